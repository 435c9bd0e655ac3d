// A small object manager for provider tests: objects with all their getters, results that keep what
// a provider returns, and the ways in which brokers differ and fail.
//
// It behaves as one of the object managers of host/behavior.h, which the environment variable
// VEXOR_HOST_MODE names (none: strict). It knows the classes of mof/vexor.mof and those that a test
// adds. Wherever it leaves a provider's value out, the test fails.
//
// Its own memory is not seen by a heap ledger. Objects live as long as it does. Two threads may use
// it at once.
#ifndef TESTS_PROVIDERS_TEST_BROKER_H
#define TESTS_PROVIDERS_TEST_BROKER_H

#include <cmpidt.h>
#include <cmpift.h>

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/behavior.h"

namespace provider_tests {

using Texts = std::vector<std::string>;

// What a provider returned. Paths and instances as texts:
//   root/cimv2:VEXOR_Vsan.Name="2001000DEC0A1B2D",CreationClassName="VEXOR_Vsan"
//   VEXOR_Vsan {Name="2001000DEC0A1B2D", VsanId=uint16 1}
struct Returned {
  Texts paths;
  Texts instances;
  Texts data;
  // The class and the keys of each instance, in the order of `instances`:
  //   VEXOR_Vsan {CreationClassName="VEXOR_Vsan", Name="2001000DEC0A1B2D"}
  Texts identities;
  std::vector<CMPIObjectPath*> objects;  // the paths; they are the broker's
  int done = 0;
};

// What VEXOR_HOST_MODE names.
cim::host::Behavior mode();

class TestBroker {
 public:
  explicit TestBroker(const cim::host::Behavior& behavior = mode());
  ~TestBroker();
  TestBroker(const TestBroker&) = delete;
  TestBroker& operator=(const TestBroker&) = delete;

  const CMPIBroker* face() const;

  // ---- requests ----
  // A path of root/cimv2.
  CMPIObjectPath* path(const char* class_name,
                       const std::vector<std::pair<const char*, const char*>>& text_keys = {});
  CMPIObjectPath* add_reference(CMPIObjectPath* path, const char* key, CMPIObjectPath* object);
  // As a client sent it: with whatever the test sets, unchecked.
  CMPIInstance* instance(const char* class_name);
  CMPIArgs* arguments();
  // A result that keeps what it is given in `returned`, which must outlive it.
  CMPIResult* result(Returned& returned);

  // Objects made so far; ends those that were made since, for tests that make very many.
  struct Made {
    size_t strings, paths, instances, arrays, args, results;
  };
  Made made() const;
  void end_objects_since(const Made& made);

  std::string text(const CMPIObjectPath* path) const;
  std::string text(const CMPIInstance* instance) const;
  std::string text(const CMPIString* string) const;  // "" for null

  // ---- how it behaves ----
  // Classes beside those of mof/vexor.mof.
  void add_classes(const char* mof);
  // Classes are unknown to classPathIsA until their superclass was told.
  void derives(const char* class_name, const char* superclass);
  // Values that are refused or left out do not fail the test: it is about them.
  void expect_refused_values();
  // All classes that it knows are known to classPathIsA with their superclasses.
  void know_superclasses();
  // Slots that brokers leave out: classPathIsA, setPropertyFilter.
  void leave_out_optional_slots();
  void ignore_property_filters();
  // While it is on (at first it is), objects may only be returned while the library's lock is free.
  void watch_lock_on_return(bool on);

  // ---- how it fails: the n-th from now on, once ----
  void fail_path(int n);
  void fail_instance(int n);
  void fail_return(int n, CMPIrc code);
  void fail_property(int n);

  // Calls of setProperty that reached it, refused ones included.
  int properties_set() const;

  struct Impl;

 private:
  std::unique_ptr<Impl> impl_;
};

}  // namespace provider_tests

#endif

// A CMPI broker that writes down its calls, one line each, through standard output: a capture of
// that stream then holds the calls and the library's traces in one order. For example
//
//   newObjectPath(root/cimv2, VEXOR_Vsan) -> path1
//   setHostname(path1, switch-1)
//   addKey(path1, Name, chars "2001000DECAABBCC")
//   addKey(path2, GroupComponent, ref path1)
//   newInstance(path1) -> instance1
//   setPropertyFilter(instance1, [A,B], [Name,CreationClassName])
//   setProperty(instance1, VsanId, uint16 5)
//   newArray(2, uint16) -> array1
//   setElementAt(array1, 0, uint16 2)
//   setProperty(instance1, OperationalStatus, uint16[] array1)
//
// Values are read as the type code says: for CMPI_chars the pointer is the text, otherwise it
// points to a value. Only the operations above exist; every other slot of the tables is null. The
// objects belong to the broker and end with it.
#ifndef TESTS_SUPPORT_RECORDING_BROKER_H
#define TESTS_SUPPORT_RECORDING_BROKER_H

#include <cmpidt.h>
#include <cmpift.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace test_support {

class RecordingBroker {
 public:
  RecordingBroker();
  ~RecordingBroker();
  RecordingBroker(const RecordingBroker&) = delete;
  RecordingBroker& operator=(const RecordingBroker&) = delete;

  const CMPIBroker* broker() const;
  operator const CMPIBroker*() const { return broker(); }  // NOLINT: to be passed as the broker

  enum class Failure { null_object, null_handle };
  // The n-th call from now on (1 is the next) fails, once.
  void fail_nth_path(size_t n, Failure how);
  void fail_nth_instance(size_t n, Failure how);
  void fail_nth_array(size_t n, Failure how);
  // Whether calls are written down (at first they are).
  void write_down(bool on);

  // Calls so far of all operations.
  size_t calls() const;

  // ---- what the objects hold ----
  // Of a path, or of the path that an instance was made from.
  std::string class_name(const CMPIObjectPath* path) const;
  std::string class_name(const CMPIInstance* instance) const;
  std::string name_space(const CMPIObjectPath* path) const;
  std::string host(const CMPIObjectPath* path) const;
  std::string host(const CMPIInstance* instance) const;
  // In the order in which they were set first.
  std::vector<std::string> key_names(const CMPIObjectPath* path) const;
  std::vector<std::string> property_names(const CMPIInstance* instance) const;
  // Type and value as of the last call: `chars "text"`, `uint16 5`, `boolean true`, `ref path1`,
  // `uint16[] {2, 3}`, `chars[] {"a", "b"}`; "none" when it was never set.
  std::string key(const CMPIObjectPath* path, const char* name) const;
  std::string property(const CMPIInstance* instance, const char* name) const;
  // The text of a chars key or property alone; "none" when it is no text.
  std::string key_text(const CMPIObjectPath* path, const char* name) const;
  std::string property_text(const CMPIInstance* instance, const char* name) const;
  // The reference; null when it is none.
  const CMPIObjectPath* key_reference(const CMPIObjectPath* path, const char* name) const;
  const CMPIObjectPath* property_reference(const CMPIInstance* instance, const char* name) const;
  // "[A,B] [Name]", or "none" when no filter was set.
  std::string filter(const CMPIInstance* instance) const;
  // "path1", "instance2"; "null".
  std::string name(const CMPIObjectPath* path) const;
  std::string name(const CMPIInstance* instance) const;

  struct Impl;

 private:
  std::unique_ptr<Impl> impl_;
};

// The name of a CMPI type code: "uint16", "chars[]".
std::string cmpi_type_name(CMPIType type);

}  // namespace test_support

#endif

// The whole object model of a simulated fabric, as clients of an object manager see it.
#ifndef TESTS_CONFORMANCE_GRAPH_H
#define TESTS_CONFORMANCE_GRAPH_H

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "host/object_manager.h"
#include "schema/repository.h"

namespace conformance {

using Texts = std::vector<std::string>;

// The classes of mof/, and an object manager with the built providers. Both live as long as the
// process: a queue that providers have released is never bound again.
const cim::schema::Repository& repository();
cim::host::ObjectManager& manager();

// The concrete VEXOR_ classes.
std::vector<const cim::schema::Class*> classes();

// A path without its host, with its keys in the order of their names.
std::string name_of(const cim::host::ObjectPath& path);

// How `get` fails for a path; empty: it does not.
std::string problem_with_get(const cim::host::ObjectPath& path);

// Sends the library's traces, which go to standard output, nowhere. Expectations stand outside of
// its scope, since they are printed there too.
class Quiet {
 public:
  Quiet();
  ~Quiet();
  Quiet(const Quiet&) = delete;
  Quiet& operator=(const Quiet&) = delete;

 private:
  int saved_;
};

// The fabrics on which everything is tested: generator descriptions, and "" for the default one.
class OnFabrics : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override;
  // The largest fabric is tested with a part of its objects.
  static bool is_medium();
  static std::size_t most_gets_per_class();
};

}  // namespace conformance

#endif  // TESTS_CONFORMANCE_GRAPH_H

// The whole object model of a simulated fabric, as clients of an object manager see it.
#ifndef TESTS_CONFORMANCE_GRAPH_H
#define TESTS_CONFORMANCE_GRAPH_H

#include <gtest/gtest.h>

#include <cstdio>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "host/object_manager.h"
#include "schema/repository.h"
#include "simulator/transport/faults.h"

namespace conformance {

using Texts = std::vector<std::string>;

// The classes of mof/, and an object manager with the built providers. Both live as long as the
// process: a queue that providers have released is never bound again.
const cim::schema::Repository& repository();
cim::host::ObjectManager& manager();

// The concrete VEXOR_ classes that these providers serve. VEXOR_Switch is not among them: providers
// on the OpenPegasus interface make it.
std::vector<const cim::schema::Class*> classes();

// A path without its host, with its keys in the order of their names.
std::string name_of(const cim::host::ObjectPath& path);

// How `get` fails for a path; empty: it does not.
std::string problem_with_get(const cim::host::ObjectPath& path);

// Sends the library's traces, which go to standard output and standard error, nowhere. Expectations
// stand outside of its scope, since they are printed there too.
class Quiet {
  struct Stream {
    explicit Stream(FILE* stream);
    ~Stream();
    Stream(const Stream&) = delete;
    Stream& operator=(const Stream&) = delete;

    FILE* stream;
    int saved;
  };
  Stream out_{stdout};
  Stream err_{stderr};
};

// A fabric on which everything is tested. Every reference answers `get` on all of them, without
// exception; what services refuse is tested by itself.
struct TestedFabric {
  const char* name;
  // For the generator; or the path of a fabric file in the tests, which begins with '/'; empty: the
  // default fabric.
  const char* description;
  std::vector<switch_sim::Fault> faults = {};
};

inline void PrintTo(const TestedFabric& fabric, std::ostream* out) {
  *out << fabric.name;
}

class OnFabrics : public testing::TestWithParam<TestedFabric> {
 protected:
  void SetUp() override;
  // The largest fabric is tested with a part of its objects.
  static bool is_medium();
  static std::size_t most_gets_per_class();
};

}  // namespace conformance

#endif  // TESTS_CONFORMANCE_GRAPH_H

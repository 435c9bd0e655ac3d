// What the builders of the two faces make, in one form: names, types and values as text, so that
// what one face made can be compared with what the other did.
#pragma once

#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMObjectPath.h>
#include <Pegasus/Common/CIMProperty.h>

#include <string>
#include <vector>

#include "tests/support/recording_broker.h"

namespace builders {

// What the host of the face's own paths is called here.
inline constexpr const char* kOwnHost = "HOST";
// The host name that the CMPI face is told.
inline constexpr const char* kCmpiHost = "switch-1";

struct Property {
  std::string name;
  std::string type;   // as MOF spells it, with "[]" for an array
  std::string value;  // "{2, 3}" for an array; a reference as its path in one line
  bool operator==(const Property&) const = default;
};

// A path, in the order of its keys' names: one face keeps no other order.
struct Path {
  std::string cls;
  std::string name_space;
  std::string host;
  std::vector<Property> keys;
  bool operator==(const Path&) const = default;
};

// An instance, its properties in the order in which they were set.
struct Instance {
  std::string cls;
  std::vector<Property> properties;
  bool operator==(const Instance&) const = default;
};

Path content_of(const test_support::RecordingBroker& broker, const CMPIObjectPath* path);
Instance content_of(const test_support::RecordingBroker& broker, const CMPIInstance* instance);
Path content_of(const Pegasus::CIMObjectPath& path);
Instance content_of(const Pegasus::CIMInstance& instance);
Property content_of(const Pegasus::CIMProperty& property);

// One line for each part.
std::string to_text(const Property& property);
std::string to_text(const Path& path);
std::string to_text(const Instance& instance);

}  // namespace builders

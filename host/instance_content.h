// Helpers over the content of a CMPIInstance.
#ifndef HOST_INSTANCE_CONTENT_H_
#define HOST_INSTANCE_CONTENT_H_

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "host/objects.h"

namespace cim::host {

/// Leaves only the properties whose names the filter holds; no filter leaves all.
void apply_filter(const std::optional<std::set<std::string, schema::NameLess>>& filter,
                  std::vector<NamedData>& properties);

/// The path of the instance: the one that was set, else its namespace and class with the keys
/// that have values, in the order of the class.
ObjectPath path_of(const Broker& broker, const InstanceContent& content);

}  // namespace cim::host

#endif  // HOST_INSTANCE_CONTENT_H_

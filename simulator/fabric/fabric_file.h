// The fabric as a JSON file; docs/fabric-file.md tells the format.
#ifndef SIMULATOR_FABRIC_FABRIC_FILE_H
#define SIMULATOR_FABRIC_FABRIC_FILE_H

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "simulator/fabric/fabric.h"

namespace switch_sim {

// What could not be done and why; of a file with its name, line and column:
// `fabric.json:12:7: unknown key "vsns" (did you mean "vsans"?)`.
struct FabricError {
  std::string message;
  friend bool operator==(const FabricError&, const FabricError&) = default;
};

// A fabric that was read keeps the rules of the model and is sorted.
using ReadFabric = std::variant<Fabric, FabricError>;

// Reads a description. `name` is what errors call it.
ReadFabric parse_fabric(std::string_view text, std::string_view name);
ReadFabric read_fabric_file(const std::string& path);

// The description of a sorted fabric: equal fabrics give equal bytes, and reading them gives the
// fabric back.
std::string write_fabric(const Fabric& fabric);

// Replaces the file as a whole or not at all, also when the machine stops meanwhile.
std::optional<FabricError> save_fabric_file(const Fabric& fabric, const std::string& path);

// The bytes of a regular file, and a file's replacement as above.
std::variant<std::string, FabricError> read_text_file(const std::string& path);
std::optional<FabricError> save_text_file(std::string_view text, const std::string& path);

// What stands against making a file where there is none yet: its folder is missing or not writable.
std::optional<FabricError> problem_of_new_file(const std::string& path);

// Texts of the values of the model.
std::optional<Wwn> parse_wwn(std::string_view text);
std::optional<IpAddress> parse_address(const std::string& text);
std::string to_text(const IpAddress& address);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_FABRIC_FILE_H

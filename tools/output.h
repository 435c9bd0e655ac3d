// Instances, paths and classes as text.
#ifndef TOOLS_OUTPUT_H_
#define TOOLS_OUTPUT_H_

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/data.h"
#include "host/object_manager.h"
#include "schema/repository.h"

namespace vexor::tools {

using Names = std::optional<std::vector<std::string>>;

/// Left-aligned columns with two spaces between them and no blanks at the end of a line. Control
/// characters in cells are written as escapes.
std::string columns_text(const std::vector<std::vector<std::string>>& rows);

/// The columns that a table of instances of one class shows when nobody says which: the properties
/// that have a value in any of the instances, except those that say the same of every instance
/// (CreationClassName, SystemCreationClassName, SystemName, NameFormat, Caption, Description).
/// Keys come first, then other identifiers (names that end in "Id" or "ID"), then the rest in the
/// order of the class.
std::vector<std::string> default_columns(const cim::schema::Repository& repository,
                                         const cim::schema::Class& cls,
                                         const std::vector<cim::host::Instance>& instances);

/// A table for each class that has instances, with a line in front that counts them.
/// \param asked  the class that was asked for: named when there are no instances
std::string instance_tables(const cim::schema::Repository& repository,
                            const cim::schema::Class& asked, std::string_view name_space,
                            const std::vector<cim::host::Instance>& instances, const Names& wanted);

/// One instance: its path, then a property a line. Without `wanted` those that have a value.
std::string instance_list(const cim::schema::Repository& repository,
                          const cim::host::Instance& instance, const Names& wanted);

/// `instance of` declarations with an empty line between them.
std::string instances_mof(const std::vector<cim::host::Instance>& instances);

/// An array of {"class", "path", "properties"}; properties without a value are left out unless they
/// are in `wanted`.
std::string instances_json(const std::vector<cim::host::Instance>& instances, const Names& wanted);
/// One such object.
std::string instance_json(const cim::host::Instance& instance, const Names& wanted);

std::string paths_text(const std::vector<cim::host::ObjectPath>& paths);
/// An array of path texts.
std::string paths_json(const std::vector<cim::host::ObjectPath>& paths);

/// What a method returned, then a line for each value that it gave back.
std::string method_text(const std::string& method, const cim::host::MethodResult& result);

}  // namespace vexor::tools

#endif  // TOOLS_OUTPUT_H_

// What passes between clients, the object manager and providers: values, object paths, instances.
// Plain values without handles: the CMPI objects that providers see are made from these and copied
// back into them (host/objects.h).
#ifndef HOST_DATA_H_
#define HOST_DATA_H_

#include <cmpidt.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "schema/class_model.h"
#include "schema/value.h"

namespace cim::host {

struct ObjectPath;
struct Instance;
using PathPtr = std::shared_ptr<const ObjectPath>;
using InstancePtr = std::shared_ptr<const Instance>;

/// One value or one element of an array; std::monostate is null. Unsigned integers of every width
/// are std::uint64_t, signed ones std::int64_t, reals double; strings and datetimes are text.
using Element = std::variant<std::monostate, bool, char16_t, std::uint64_t, std::int64_t, double,
                             std::string, PathPtr, InstancePtr>;

/// A value with its CMPI type. CMPI_chars is always kept as CMPI_string.
struct Data {
  CMPIType type = CMPI_null;  ///< with CMPI_ARRAY for arrays
  bool null = true;
  Element element;                ///< of a value that is not an array
  std::vector<Element> elements;  ///< of an array

  bool is_array() const { return (type & CMPI_ARRAY) != 0; }
  CMPIType base_type() const { return static_cast<CMPIType>(type & ~CMPI_ARRAY); }

  static Data null_of(CMPIType type);
  static Data of(CMPIType type, Element element);
  static Data array_of(CMPIType base, std::vector<Element> elements);
  static Data string(std::string text) { return of(CMPI_string, Element(std::move(text))); }
  static Data boolean(bool value) { return of(CMPI_boolean, Element(value)); }
  static Data reference(ObjectPath path);
};

/// Equal in type and content; paths and instances are compared by content.
bool operator==(const Data& a, const Data& b);

struct NamedData {
  std::string name;
  Data data;
};

/// The item of that name, in any letter case, or null.
const NamedData* find_named(const std::vector<NamedData>& items, std::string_view name);
NamedData* find_named(std::vector<NamedData>& items, std::string_view name);

/// Where an instance is: keys stand in the order in which they were added.
struct ObjectPath {
  std::string host;  ///< empty: none
  std::string name_space;
  std::string class_name;
  std::vector<NamedData> keys;
};

/// The same instance: names without regard to letter case, keys in any order, integer keys by
/// number whatever their width. The host does not matter.
bool same_instance(const ObjectPath& a, const ObjectPath& b);

struct Instance {
  ObjectPath path;
  std::vector<NamedData> properties;

  const Data* find(std::string_view name) const;
};

/// The type as MOF names it: "uint16", "string[]", "reference"; "chars" and the like otherwise.
std::string type_text(CMPIType type);
/// True for the types that values have, arrays included; false for CMPI_null, CMPI_args and others.
bool is_data_type(CMPIType type);
/// The CMPI type of a declaration.
CMPIType cmpi_type(schema::Type type, bool is_array);
CMPIType cmpi_type(const schema::Property& property);

/// A repository value; a reference in it is parsed, and stays a string when it is no path.
Data to_data(const schema::Value& value);
/// The value without handles. A reference becomes its path text, an embedded instance its MOF text.
schema::Value to_value(const Data& data);

/// `data` as the declared type: integers fit where their number does, a string may become a
/// datetime or a reference.
/// \throws CimError CMPI_RC_ERR_TYPE_MISMATCH with the reason
Data convert(const Data& data, CMPIType type);

/// The instance as MOF text, `instance of CLASS { ... };`, with every property that is not null.
std::string to_mof(const Instance& instance);

}  // namespace cim::host

#endif  // HOST_DATA_H_

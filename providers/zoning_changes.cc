#include "providers/zoning_changes.h"

#include <arpa/inet.h>
#include <cim_utils/zoning_changes.h>
#include <cim_utils/zoning_identifiers.h>

#include <charconv>
#include <cstdio>
#include <cstring>
#include <string_view>

#include "providers/zoning_members.h"

namespace vexor::providers {
namespace {

using Result = ZoneServiceResult;

constexpr size_t kLongestName = 64;
constexpr size_t kLongestText = 63;      // of a member's value
constexpr size_t kLongestInterface = 9;  // in front of ";"
constexpr size_t kWwnDigits = 16;
constexpr size_t kFcidDigits = 6;
constexpr unsigned kLastDomain = 239;
constexpr unsigned kLastPort = 255;

Result result_of(int32_t status, int32_t error) {
  if (status == 0) return Result::success;
  return zone_service_result(error != 0 ? error : -1);
}

// ---- values of members ----
// The library's readers take more than there is a meaning for, and cut numbers to a byte.

bool is_hex(std::string_view text, size_t digits) {
  return text.size() == digits &&
         text.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
}

bool is_number(std::string_view text, unsigned first, unsigned last) {
  unsigned number = 0;
  const auto [stopped, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc{} && stopped == text.data() + text.size() && number >= first &&
         number <= last;
}

// The parts in front of and behind the first separator; false when there is none.
bool split(std::string_view text, char separator, std::string_view& first,
           std::string_view& second) {
  const size_t at = text.find(separator);
  if (at == std::string_view::npos) return false;
  first = text.substr(0, at);
  second = text.substr(at + 1);
  return true;
}

bool is_ipv4(std::string_view text) {
  in_addr address{};
  return inet_pton(AF_INET, std::string(text).c_str(), &address) == 1;
}

bool is_interface(std::string_view text) {
  return !text.empty() && text.find_first_of(" ;^") == std::string_view::npos;
}

bool is_value(zs_member_type type, std::string_view text) {
  if (text.empty() || text.size() > kLongestText) return false;
  std::string_view first, second;
  switch (type) {
    case ZS_MEMBER_PORT_WWN:
    case ZS_MEMBER_NODE_WWN:
      return is_hex(text, kWwnDigits);
    case ZS_MEMBER_FCID:
      return is_hex(text, kFcidDigits);
    case ZS_MEMBER_DOMAIN_PORT:
      return split(text, ':', first, second) && is_number(first, 1, kLastDomain) &&
             is_number(second, 1, kLastPort);
    case ZS_MEMBER_LOCAL_INTERFACE:
      return is_interface(text);
    case ZS_MEMBER_IPV4:
      return split(text, '/', first, second) && is_ipv4(first) && is_ipv4(second);
    case ZS_MEMBER_INTERFACE_WWN:
      return split(text, ';', first, second) && is_interface(first) &&
             first.size() <= kLongestInterface && is_hex(second, kWwnDigits);
    case ZS_MEMBER_DOMAIN_INTERFACE:
      return split(text, ';', first, second) && is_interface(first) &&
             first.size() <= kLongestInterface && is_number(second, 1, kLastDomain);
    case ZS_MEMBER_SYMBOLIC_NAME:
      // What separates the parts of an instance id would make the member's unreadable.
      return text.find('^') == std::string_view::npos;
    case ZS_MEMBER_ALIAS:
    case ZS_MEMBER_IPV6:
      return true;
    default:
      return false;
  }
}

bool is_text(zs_member_type type) {
  return type == ZS_MEMBER_ALIAS || type == ZS_MEMBER_SYMBOLIC_NAME;
}

// Result: none for a type that is not taken or a text that is no value of it.
std::optional<PackedMember> pack(const std::string& cim_type, const std::string& text) {
  uint8_t type = 0;
  if (!is_number(cim_type, ZS_CIM_MEMBER_PORT_WWN, ZS_CIM_MEMBER_UNSIZED_TEXT) ||
      get_member_type_from_cim_member_type_str(cim_type.c_str(), &type) != 0)
    return std::nullopt;
  PackedMember member{static_cast<zs_member_type>(type), 0, {}};
  if (!is_value(member.type, text) || get_member_value_from_cim_member_type_value(
                                          text.c_str(), member.type, member.value.data()) != 0)
    return std::nullopt;
  member.length = is_text(member.type) ? static_cast<int32_t>(text.size()) + 1
                                       : get_member_value_length(member.type);
  return member;
}

std::string instance_id_of(uint32_t vsan, const PackedMember& member) {
  // What is kept of an interface of a named switch is its port WWN.
  const zs_member_type kept =
      member.type == ZS_MEMBER_INTERFACE_WWN ? ZS_MEMBER_LOCAL_INTERFACE : member.type;
  char text[ZS_CIM_INSTANCE_ID_ROOM] = {};
  return zs_cim_get_member_instance_id(vsan, kept, member.value.data(), 0, text) == 0 ? text : "";
}

// ---- collections ----

bool holds_members(const NamedObject& object) {
  return object.kind != ZS_OBJECT_ZONE_SET;
}

Result add_packed(int32_t q, uint32_t vsan, const NamedObject& collection,
                  const PackedMember& member) {
  // The library would take the alias's name for that of a zone.
  if (member.type == ZS_MEMBER_ALIAS && collection.kind != ZS_OBJECT_ZONE)
    return Result::invalid_parameter;
  int32_t error = 0;
  const int32_t status =
      zs_cim_add_zoning_member(q, 1, vsan, 0, collection.kind, collection.id.object, member.type,
                               member.value.data(), member.length, &error);
  return result_of(status, error);
}

template <class Record>
ZoningObject take_made(void* block) {
  return take_array(static_cast<Record*>(block), 1).at(0);
}

ZoningObject take_made(zs_object_kind kind, void* block) {
  switch (kind) {
    case ZS_OBJECT_ZONE_SET:
      return take_made<zs_cim_zone_set_>(block);
    case ZS_OBJECT_ZONE:
      return take_made<zs_cim_zone_>(block);
    default:
      return take_made<zs_cim_alias_>(block);
  }
}

template <class Record>
Record named_record(const char* instance_id) {
  Record record{};
  std::snprintf(record.instance_id, sizeof record.instance_id, "%s", instance_id);
  return record;
}

}  // namespace

std::optional<NamedObject> named_object(const Reference& reference) {
  if (!reference || reference->keys().size() != 1) return std::nullopt;
  const auto kind = zoning_kind(*reference);
  const auto id = read_zoning_id(reference->text("InstanceID"));
  if (!kind || !id) return std::nullopt;
  return NamedObject{*kind, *id};
}

std::optional<NamedObject> editable_object(const Reference& reference, uint32_t vsan) {
  const auto object = named_object(reference);
  return object && object->id.vsan == vsan && !object->id.active ? object : std::nullopt;
}

ZoningObject only_name(zs_object_kind kind, const char* instance_id) {
  switch (kind) {
    case ZS_OBJECT_ZONE_SET:
      return named_record<zs_cim_zone_set_>(instance_id);
    case ZS_OBJECT_ZONE:
      return named_record<zs_cim_zone_>(instance_id);
    default:
      return named_record<zs_cim_alias_>(instance_id);
  }
}

zs_cim_zone_member_ only_name_of_member(const char* instance_id) {
  return named_record<zs_cim_zone_member_>(instance_id);
}

ZoningObject only_name(const ObjectName& object) {
  const auto kind = zoning_kind(object);
  const char* instance_id = object.text("InstanceID");
  if (!kind || instance_id == nullptr)
    throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "a %s is no zone set, zone or zone alias",
                  object.class_name().c_str());
  return only_name(*kind, instance_id);
}

Result create_zoning_object(int32_t q, uint32_t vsan, zs_object_kind kind, const std::string& name,
                            std::optional<ZoningObject>& made) {
  if (name.empty() || name.size() > kLongestName) return Result::invalid_parameter;
  void* block = nullptr;
  int32_t error = 0;
  const int32_t status =
      zs_cim_create_zoning_object(q, 1, vsan, kind, name.c_str(), &block, &error);
  if (status != 0) return result_of(status, error);
  if (block == nullptr) return Result::failed;
  made = take_made(kind, block);
  return Result::success;
}

Result add_zone(int32_t q, uint32_t vsan, const Reference& zone_set, const Reference& zone) {
  const auto collection = editable_object(zone_set, vsan);
  const auto member = editable_object(zone, vsan);
  if (!collection || collection->kind != ZS_OBJECT_ZONE_SET || !member ||
      member->kind != ZS_OBJECT_ZONE)
    return Result::invalid_parameter;
  int32_t error = 0;
  const int32_t status =
      zs_cim_add_zone_to_zone_set(q, 1, vsan, collection->id.object, member->id.object, &error);
  return result_of(status, error);
}

Result add_alias(int32_t q, uint32_t vsan, const Reference& zone, const Reference& alias) {
  const auto collection = editable_object(zone, vsan);
  const auto member = editable_object(alias, vsan);
  if (!collection || collection->kind != ZS_OBJECT_ZONE || !member ||
      member->kind != ZS_OBJECT_ALIAS)
    return Result::invalid_parameter;
  int32_t error = 0;
  const int32_t status =
      zs_cim_add_alias_to_zone(q, 1, vsan, collection->id.object, member->id.object, &error);
  return result_of(status, error);
}

Result create_member(int32_t q, uint32_t vsan, const std::string& cim_type, const std::string& text,
                     const Reference& collection, std::string& instance_id) {
  const auto holder = editable_object(collection, vsan);
  if (!holder || !holds_members(*holder)) return Result::invalid_parameter;
  const auto member = pack(cim_type, text);
  if (!member) return Result::invalid_parameter;
  const Result result = add_packed(q, vsan, *holder, *member);
  if (result == Result::success && member->type != ZS_MEMBER_ALIAS)
    instance_id = instance_id_of(vsan, *member);
  return result;
}

Result add_member(int32_t q, uint32_t vsan, const Reference& collection, const Reference& member) {
  const auto holder = editable_object(collection, vsan);
  if (!holder || !holds_members(*holder) || !member || member->keys().size() != 1 ||
      !same_name(member->class_name().c_str(), kZoneMemberClass))
    return Result::invalid_parameter;
  const char* instance_id = member->text("InstanceID");
  const auto id = read_member_id(instance_id);
  if (!id || id->vsan != vsan) return Result::invalid_parameter;
  const std::vector<zs_cim_zone_member_> found = zone_members_named(q, *member);
  if (found.empty()) return Result::not_found;
  const std::vector<PackedMember> forms = packed_forms(found[0]);
  return forms.empty() ? Result::failed : add_packed(q, vsan, *holder, forms[0]);
}

Result activate_zone_set(int32_t q, uint32_t vsan, const Reference& zone_set, bool on) {
  const auto object = named_object(zone_set);
  if (!object || object->kind != ZS_OBJECT_ZONE_SET || object->id.vsan != vsan)
    return Result::invalid_parameter;
  // The library says that there is no such zone set also when the zone server does not answer.
  if (read_zoning_object(q, ZS_OBJECT_ZONE_SET, object->id) == nullptr) return Result::not_found;
  const int32_t operation = on ? 1 : 0;
  int32_t error = 0;
  const int32_t status = zs_cim_activate_zone_set(q, vsan, object->id.active ? 1 : 0,
                                                  object->id.object, &operation, &error);
  return result_of(status, error);
}

}  // namespace vexor::providers

// The texts and codes of name-server entries; no service is asked.
#include <cim_utils/formats.h>
#include <cim_utils/name_server.h>

#include <cstdio>

#include <switch_platform/name_server.h>

#include "adaptors/link_name.h"

namespace cim_utils {
namespace {

constexpr uint8_t kIscsi = 225;

// CIM port types.
constexpr uint32_t kCimN = 10;
constexpr uint32_t kCimNl = 11;
constexpr uint32_t kCimFNl = 12;
constexpr uint32_t kCimNx = 13;
constexpr uint32_t kCimF = 15;
constexpr uint32_t kCimFl = 16;
constexpr uint32_t kCimIscsi = 16011;
constexpr uint32_t kCimIscsiNode = 16012;

int code_of(const ns_api_register_req_& entry, int32_t fabric_side) {
  const bool iscsi = ns_cim_is_iscsi_fc4_type(entry.fc4_types) != 0;
  if (fabric_side != 0) return iscsi ? NS_CIM_ISCSI_FABRIC_SIDE : NS_CIM_FABRIC_SIDE;
  return iscsi ? NS_CIM_ISCSI_NODE_SIDE : NS_CIM_NODE_SIDE;
}

bool is_code_of_a_name(int32_t code) {
  return code == NS_CIM_FABRIC_SIDE || code == NS_CIM_NODE_SIDE ||
         code == NS_CIM_ISCSI_FABRIC_SIDE || code == NS_CIM_ISCSI_NODE_SIDE;
}

const wwn_& wwn_of_side(const ns_api_register_req_& entry, int32_t fabric_side) {
  return fabric_side != 0 ? entry.fabric_port_wwn : entry.port_wwn;
}

int32_t write_name(const ns_api_register_req_& entry, char* dst, int32_t fabric_side,
                   const wwn_& wwn) {
  char text[17];
  cim_sprintf_wwn(text, &wwn);
  std::snprintf(dst, CIM_NS_LINK_NAME_ROOM, "%d_%d_%s", code_of(entry, fabric_side),
                static_cast<int>(entry.vsan_index), text);
  return 0;
}

// A link name is cut to 31 characters before it is read, deliberately.
using LinkNameParts = NameParts<32>;

// A wrong code is stored all the same.
bool read_code(LinkNameParts& parts, int32_t* code) {
  return parts.next_number(code) && is_code_of_a_name(*code);
}

// The WWN, which is the last part.
bool read_last_wwn(LinkNameParts& parts, char* text) {
  return parts.next_wwn(text) && parts.next() == nullptr;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t ns_cim_get_link_name(const ns_api_register_req_* entry, char* dst, int32_t fabric_side) {
  if (entry == nullptr || dst == nullptr) return -1;
  return write_name(*entry, dst, fabric_side, wwn_of_side(*entry, fabric_side));
}

int32_t ns_cim_get_pe_link_name(const ns_api_register_req_* entry, char* dst, int32_t fabric_side) {
  if (entry == nullptr || dst == nullptr) return -1;
  return write_name(*entry, dst, fabric_side, entry->port_wwn);
}

int32_t ns_cim_get_physical_link_name(const ns_api_register_req_* entry, char* dst,
                                      int32_t fabric_side) {
  if (entry == nullptr || dst == nullptr) return -1;
  char text[17];
  cim_sprintf_wwn(text, &wwn_of_side(*entry, fabric_side));
  std::snprintf(dst, CIM_NS_LINK_NAME_ROOM, "%d_%s", code_of(*entry, fabric_side), text);
  return 0;
}

int32_t ns_cim_get_fields_from_name(const char* name, int32_t* code_out, int32_t* vsan_out,
                                    char* wwn_out) {
  if (name == nullptr || code_out == nullptr || vsan_out == nullptr || wwn_out == nullptr)
    return -1;
  LinkNameParts parts(name);
  const bool read =
      read_code(parts, code_out) && parts.next_number(vsan_out) && read_last_wwn(parts, wwn_out);
  return read ? 0 : -1;
}

int32_t ns_cim_get_fields_from_physical_name(const char* name, int32_t* code_out, char* wwn_out) {
  if (name == nullptr || code_out == nullptr || wwn_out == nullptr) return -1;
  LinkNameParts parts(name);
  return read_code(parts, code_out) && read_last_wwn(parts, wwn_out) ? 0 : -1;
}

int32_t ns_cim_is_set_fc4_type(const void* fc4_map, uint8_t type) {
  return ns_is_set_fc4_type(fc4_map, type);
}

int32_t ns_cim_is_iscsi_fc4_type(const void* fc4_map) {
  return ns_cim_is_set_fc4_type(fc4_map, kIscsi);
}

uint32_t ns_cim_convert_ns_port_type(const ns_api_register_req_* entry, int32_t fabric_side) {
  if (entry == nullptr) return 0;
  const bool fabric = fabric_side != 0;
  uint32_t type = 0;
  switch (entry->port_type) {
    case NS_PORT_TYPE_N:
    case NS_PORT_TYPE_F:
      type = fabric ? kCimF : kCimN;
      break;
    case NS_PORT_TYPE_NL:
    case NS_PORT_TYPE_FL:
      type = fabric ? kCimFl : kCimNl;
      break;
    case NS_PORT_TYPE_F_NL:
      type = kCimFNl;
      break;
    case NS_PORT_TYPE_NX:
      type = kCimNx;
      break;
    default:
      return 0;
  }
  if (ns_cim_is_iscsi_fc4_type(entry->fc4_types) != 0) return fabric ? kCimIscsi : kCimIscsiNode;
  return type;
}

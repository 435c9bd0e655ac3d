// What a type of members is called on either side, and the size of its values.
#include <cim_utils/zoning_identifiers.h>

#include <array>
#include <cstdio>

#include "zoning/decimal.h"
#include "zoning/trace.h"

namespace cim_utils {
namespace {

constexpr zs_cim_member_type kNone{0};
constexpr int32_t kUnsized = -1;

struct MemberType {
  zs_member_type zs_type;
  zs_cim_member_type shown_as;
  zs_cim_member_type asked_for_by;
  int32_t value_length;
};

// The two CIM columns differ deliberately: interfaces of other switches are asked for but never
// shown, LUN members are shown but cannot be asked for, and of the two kinds of text that are shown
// alike only one is made.
constexpr std::array<MemberType, 17> kMemberTypes = {{
    {ZS_MEMBER_PORT_WWN, ZS_CIM_MEMBER_PORT_WWN, ZS_CIM_MEMBER_PORT_WWN, 8},
    {ZS_MEMBER_DOMAIN_PORT, ZS_CIM_MEMBER_DOMAIN_PORT, ZS_CIM_MEMBER_DOMAIN_PORT, 4},
    {ZS_MEMBER_FCID, ZS_CIM_MEMBER_FCID, ZS_CIM_MEMBER_FCID, 4},
    {ZS_MEMBER_ALIAS, ZS_CIM_MEMBER_ALIAS, ZS_CIM_MEMBER_ALIAS, 64},
    {ZS_MEMBER_INTERFACE_WWN, kNone, ZS_CIM_MEMBER_INTERFACE_WWN, 8},
    {ZS_MEMBER_WWN_LUN, ZS_CIM_MEMBER_WWN_LUN, kNone, 16},
    {ZS_MEMBER_FCID_LUN, ZS_CIM_MEMBER_FCID_LUN, kNone, 12},
    {ZS_MEMBER_TEXT, ZS_CIM_MEMBER_SYMBOLIC_NAME, kNone, 256},
    {ZS_MEMBER_NODE_WWN, ZS_CIM_MEMBER_NODE_WWN, ZS_CIM_MEMBER_NODE_WWN, 8},
    {ZS_MEMBER_SYMBOLIC_NAME, ZS_CIM_MEMBER_SYMBOLIC_NAME, ZS_CIM_MEMBER_SYMBOLIC_NAME, 256},
    {ZS_MEMBER_LOCAL_INTERFACE, ZS_CIM_MEMBER_LOCAL_INTERFACE, ZS_CIM_MEMBER_LOCAL_INTERFACE, 8},
    {ZS_MEMBER_IPV4, ZS_CIM_MEMBER_IPV4, ZS_CIM_MEMBER_IPV4, 8},
    {ZS_MEMBER_DOMAIN_INTERFACE, ZS_CIM_MEMBER_DOMAIN_INTERFACE, ZS_CIM_MEMBER_DOMAIN_INTERFACE,
     12},
    {ZS_MEMBER_IPV6, ZS_CIM_MEMBER_IPV6, ZS_CIM_MEMBER_IPV6, 24},
    {ZS_MEMBER_UNSIZED_TEXT, ZS_CIM_MEMBER_UNSIZED_TEXT, ZS_CIM_MEMBER_UNSIZED_TEXT, kUnsized},
    {ZS_MEMBER_WWN_LUN_2, ZS_CIM_MEMBER_WWN_LUN, kNone, 16},
    {ZS_MEMBER_FCID_LUN_2, ZS_CIM_MEMBER_FCID_LUN, kNone, 12},
}};

const MemberType* row_of(zs_member_type zs_type) {
  for (const MemberType& row : kMemberTypes)
    if (row.zs_type == zs_type) return &row;
  return nullptr;
}

const MemberType* row_asked_for_by(zs_cim_member_type cim_type) {
  if (cim_type == kNone) return nullptr;
  for (const MemberType& row : kMemberTypes)
    if (row.asked_for_by == cim_type) return &row;
  return nullptr;
}

bool is_traced(zs_member_type zs_type) {
  return zs_type == ZS_MEMBER_IPV6 || zs_type == ZS_MEMBER_UNSIZED_TEXT;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t get_cim_member_type_from_member_type(zs_member_type zs_type, uint32_t* cim_type) {
  const MemberType* row = row_of(zs_type);
  if (cim_type == nullptr || row == nullptr || row->shown_as == kNone) return -1;
  if (is_traced(zs_type)) trace_place();
  *cim_type = static_cast<uint32_t>(row->shown_as);
  return 0;
}

int32_t get_member_type_from_cim_member_type(zs_cim_member_type cim_type, uint8_t* zs_type) {
  const MemberType* row = row_asked_for_by(cim_type);
  if (zs_type == nullptr || row == nullptr) return -1;
  if (is_traced(row->zs_type)) trace_place();
  *zs_type = static_cast<uint8_t>(row->zs_type);
  return 0;
}

int32_t get_member_type_from_cim_member_type_str(const char* cim_type, uint8_t* zs_type) {
  if (cim_type == nullptr) return -1;
  const int32_t number = decimal(cim_type);
  std::printf("Value in get_member_type_from_cim_member_type_str %d \n", number);
  return get_member_type_from_cim_member_type(zs_cim_member_type{number}, zs_type);
}

int32_t decode_cim_member_type(zs_cim_member_type cim_type, uint8_t* zs_type) {
  if (cim_type == ZS_CIM_MEMBER_UNSIZED_TEXT) return -1;
  return get_member_type_from_cim_member_type(cim_type, zs_type);
}

int32_t get_member_value_length(zs_member_type zs_type) {
  const MemberType* row = row_of(zs_type);
  return row == nullptr ? -1 : row->value_length;
}

// Zone members' values: the zone server's packed form and the key texts of CIM.
#include <arpa/inet.h>
#include <cim_utils/formats.h>
#include <cim_utils/zoning_identifiers.h>

#include <cstdio>
#include <cstring>

#include "zoning/member_values.h"

namespace cim_utils {
namespace {

constexpr int32_t kFailed = -1;

// Texts are cut to this many characters, whatever room their type has.
constexpr size_t kLongestText = 63;

int32_t write_text(char* dst, const void* value) {
  const size_t length = strnlen(static_cast<const char*>(value), kLongestText);
  std::memcpy(dst, value, length);
  dst[length] = '\0';
  return 0;
}

int32_t write_ipv6(char* dst, const void* value) {
  cim_sprintf_ipv6_addr_with_prefix(dst, value);
  std::printf(" ipv6_addr is %s \n", dst);
  return 0;
}

int32_t read_text(const char* text, zs_member_type zs_type, void* value_out) {
  std::memset(value_out, 0, static_cast<size_t>(get_member_value_length(zs_type)));
  std::memcpy(value_out, text, strnlen(text, kLongestText));
  return 0;
}

int32_t read_domain_port(const char* text, void* value_out) {
  if (std::strchr(text, ':') == nullptr) return kFailed;
  uint32_t pair[2];
  if (parse_domain_port(text, pair) != 0) return kFailed;
  std::printf("%d %d\n", static_cast<int>(pair[0]), static_cast<int>(pair[1]));
  const uint8_t value[4] = {static_cast<uint8_t>(pair[0]), 0, 0, static_cast<uint8_t>(pair[1])};
  std::memcpy(value_out, value, sizeof value);
  return 0;
}

int32_t read_wwn(const char* text, void* value_out) {
  wwn_ wwn;
  if (wwn_cim_get_hex_from_str_wwn(text, &wwn) != 0) return kFailed;
  std::memcpy(value_out, wwn.bytes, sizeof wwn.bytes);
  return 0;
}

int32_t read_ipv6(const char* text, void* value_out) {
  Ipv6Value value{};
  if (inet_pton(AF_INET6, text, value.address) != 1) {
    std::printf("Error in ipv6 conversion ");
    return kFailed;
  }
  value.family = kIpv6Family;
  value.prefix_length = kWholeIpv6Address;
  std::memcpy(value_out, &value, sizeof value);
  return 0;
}

int32_t zero_or_failed(int32_t result) {
  return result == 0 ? 0 : kFailed;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t get_cim_member_value_from_member_type_and_value(zs_member_type zs_type, const void* value,
                                                        char* dst) {
  if (value == nullptr || dst == nullptr) return kFailed;
  const auto* bytes = static_cast<const uint8_t*>(value);
  switch (zs_type) {
    case ZS_MEMBER_PORT_WWN:
    case ZS_MEMBER_NODE_WWN:
    case ZS_MEMBER_LOCAL_INTERFACE:
      cim_sprintf_wwn_uint_array(dst, bytes);
      return 0;
    case ZS_MEMBER_DOMAIN_PORT:
      zs_cim_sprintf_dom_port(dst, bytes);
      return 0;
    case ZS_MEMBER_FCID:
      cim_sprintf_fcid_uint_array(dst, bytes);
      return 0;
    case ZS_MEMBER_ALIAS:
    case ZS_MEMBER_TEXT:
    case ZS_MEMBER_SYMBOLIC_NAME:
    case ZS_MEMBER_UNSIZED_TEXT:
      return write_text(dst, value);
    case ZS_MEMBER_WWN_LUN:
    case ZS_MEMBER_WWN_LUN_2:
      cim_sprintf_wwn_lun_hex(dst, bytes);
      return 0;
    case ZS_MEMBER_FCID_LUN:
    case ZS_MEMBER_FCID_LUN_2:
      cim_sprintf_fcid_lun_hex(dst, bytes);
      return 0;
    case ZS_MEMBER_IPV4:
      cim_sprintf_ip_with_mask_hex(dst, bytes);
      return 0;
    case ZS_MEMBER_DOMAIN_INTERFACE:
      cim_sprintf_dom_interface_hex(dst, bytes);
      return 0;
    case ZS_MEMBER_IPV6:
      return write_ipv6(dst, value);
    case ZS_MEMBER_INTERFACE_WWN:  // asked for, never shown: deliberate
    default:
      return kFailed;
  }
}

int32_t get_member_value_from_cim_member_type_value(const char* text, zs_member_type zs_type,
                                                    void* value_out) {
  std::printf("Entering get_member_value_from_cim_member_type_value ");
  if (text == nullptr || value_out == nullptr) return kFailed;
  auto* bytes = static_cast<uint8_t*>(value_out);
  switch (zs_type) {
    case ZS_MEMBER_PORT_WWN:
    case ZS_MEMBER_NODE_WWN:
      return read_wwn(text, value_out);
    case ZS_MEMBER_DOMAIN_PORT:
      return read_domain_port(text, value_out);
    case ZS_MEMBER_FCID:
      return cim_get_hex_from_str_fcid(text, bytes);
    case ZS_MEMBER_ALIAS:
    case ZS_MEMBER_TEXT:
    case ZS_MEMBER_SYMBOLIC_NAME:
      return read_text(text, zs_type, value_out);
    case ZS_MEMBER_WWN_LUN:
    case ZS_MEMBER_WWN_LUN_2:
      return cim_get_hex_from_str_wwn_lun(text, bytes);
    case ZS_MEMBER_FCID_LUN:
    case ZS_MEMBER_FCID_LUN_2:
      return cim_get_hex_from_str_fcid_lun(text, bytes);
    case ZS_MEMBER_IPV4:
      return zero_or_failed(cim_get_hex_from_str_ip_with_mask(text, bytes));
    case ZS_MEMBER_IPV6:
      return read_ipv6(text, value_out);
    case ZS_MEMBER_INTERFACE_WWN:
      return zero_or_failed(
          get_pwwn_with_ifindex_and_swwn(text, ZS_CIM_INTERFACE_OF_SWITCH, value_out));
    case ZS_MEMBER_LOCAL_INTERFACE:  // shown as a WWN, read as a name: deliberate
      return zero_or_failed(get_pwwn_with_ifindex_and_swwn(text, ZS_CIM_INTERFACE, value_out));
    case ZS_MEMBER_DOMAIN_INTERFACE:
      return zero_or_failed(
          get_pwwn_with_ifindex_and_swwn(text, ZS_CIM_INTERFACE_OF_DOMAIN, value_out));
    case ZS_MEMBER_UNSIZED_TEXT:  // shown, never read: deliberate
    default:
      return kFailed;
  }
}

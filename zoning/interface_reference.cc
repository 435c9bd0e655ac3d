// Interfaces by name, of this switch, of another switch or of a domain, and the port WWNs that zone
// members know them by.
#include <cim_utils/formats.h>
#include <cim_utils/session.h>
#include <cim_utils/system.h>
#include <cim_utils/wwn_rules.h>
#include <cim_utils/zoning_identifiers.h>

#include <cstdio>
#include <cstring>

#include <switch_platform/if_index.h>

#include "zoning/decimal.h"
#include "zoning/trace.h"

namespace cim_utils {
namespace {

constexpr int32_t kFailed = -1;

int32_t fail_saying(const char* message) {
  std::puts(message);
  return kFailed;
}

// "interface;rest".
struct Reference {
  char copy[256] = {};
  char interface[10] = {};
  const char* rest = nullptr;  // into the copy; null when there is none
};

// False, said on standard output, when not even an interface is there.
bool split(const char* text, Reference& reference) {
  std::memcpy(reference.copy, text, strnlen(text, sizeof reference.copy - 1));
  char* state = nullptr;
  const char* interface = strtok_r(reference.copy, ";", &state);
  if (interface == nullptr) {
    std::puts("Error in specified Format ");
    return false;
  }
  std::memcpy(reference.interface, interface, strnlen(interface, sizeof reference.interface - 1));
  reference.rest = strtok_r(nullptr, " ", &state);
  return true;
}

// The interface's index; its name is traced behind `what`.
int32_t find_index(const char* interface, const char* what, uint32_t* if_index) {
  if (if_db_str2ifindex(interface, if_index) != 0) return fail_saying("Error in if_db_str2ifindix");
  char name[100] = {};
  sprintf_if_index(name, *if_index);
  name[sizeof name - 1] = '\0';
  std::printf("%s is %s\n", what, name);
  return 0;
}

int32_t derive_port_wwn(uint32_t if_index, const wwn_& switch_wwn, wwn_* port_wwn) {
  if (wwn_cim_get_vexor_port_wwn(if_index, port_wwn, &switch_wwn) == 0) return 0;
  return fail_saying("Error in Getting Port WWN from Switch WWn and ifindex");
}

int32_t derive_local_port_wwn(uint32_t if_index, wwn_* port_wwn) {
  wwn_ switch_wwn;
  if (system_cim_get_switch_wwn(mts_q, &switch_wwn) != 0) {
    return fail_saying("Error in Getting Switch WWN");
  }
  return derive_port_wwn(if_index, switch_wwn, port_wwn);
}

struct WwnText {
  explicit WwnText(const wwn_& wwn) { cim_sprintf_wwn(text, &wwn); }
  char text[CIM_WWN_TEXT_ROOM];
};

int32_t resolve_interface(const char* text, void* out) {
  uint32_t if_index = 0;
  wwn_ port_wwn;
  if (find_index(text, "if_infex", &if_index) != 0 ||
      derive_local_port_wwn(if_index, &port_wwn) != 0) {
    return kFailed;
  }
  std::memcpy(out, port_wwn.bytes, sizeof port_wwn.bytes);
  std::printf("wwn_str %s \n", WwnText(port_wwn).text);
  return 0;
}

int32_t resolve_interface_of_switch(const char* text, void* out) {
  Reference reference;
  if (!split(text, reference) || reference.rest == nullptr) return kFailed;
  std::printf("Interface %s \n", reference.interface);
  std::printf("Switch WWN %s \n", reference.rest);
  uint32_t if_index = 0;
  if (find_index(reference.interface, "if_infex", &if_index) != 0) return kFailed;
  wwn_ switch_wwn;
  if (wwn_cim_get_hex_from_str_wwn(reference.rest, &switch_wwn) != 0) {
    return fail_saying("Error in Getting Switch WWN");
  }
  wwn_ port_wwn;
  if (derive_port_wwn(if_index, switch_wwn, &port_wwn) != 0) return kFailed;
  std::printf("Port WWN is %s\n", WwnText(port_wwn).text);
  std::memcpy(out, port_wwn.bytes, sizeof port_wwn.bytes);
  return 0;
}

int32_t resolve_interface_of_domain(const char* text, void* out) {
  Reference reference;
  if (!split(text, reference) || reference.rest == nullptr) return kFailed;
  std::printf("Interface %s \n", reference.interface);
  const auto domain = static_cast<uint8_t>(decimal(reference.rest));
  std::printf("Switch Domain %s : %d \n", reference.rest, domain);
  uint32_t if_index = 0;
  wwn_ port_wwn;
  if (find_index(reference.interface, "Checking if_infex", &if_index) != 0 ||
      derive_local_port_wwn(if_index, &port_wwn) != 0) {
    return kFailed;
  }
  std::printf("Port WWN is %s\n", WwnText(port_wwn).text);

  // Only the two bytes that tell slot and port, whatever the switch: deliberate, the zone server
  // compares domain/interface members by this key.
  uint8_t domain_interface[12] = {};
  std::memset(domain_interface, 0xFF, 8);
  std::memcpy(domain_interface, port_wwn.bytes, 2);
  domain_interface[8] = domain;
  std::printf(" sizeof(domain_interface) %d\n", static_cast<int>(sizeof domain_interface));
  std::memcpy(out, domain_interface, sizeof domain_interface);
  return 0;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t get_pwwn_with_ifindex_and_swwn(const char* text, int32_t mode, void* out) {
  if (text == nullptr || out == nullptr) return kFailed;
  switch (mode) {
    case ZS_CIM_INTERFACE:
      trace_place();
      return resolve_interface(text, out);
    case ZS_CIM_INTERFACE_OF_SWITCH:
      return resolve_interface_of_switch(text, out);
    case ZS_CIM_INTERFACE_OF_DOMAIN:
      return resolve_interface_of_domain(text, out);
    default:
      return 0;
  }
}

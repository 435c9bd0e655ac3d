// The texts that ports and what belongs to them are named by.
#pragma once

#include <cim_utils/formats.h>
#include <cim_utils/wwn_rules.h>
#include <switch_platform/if_index.h>
#include <switch_platform/types.h>

#include <cstdint>
#include <cstdio>

namespace cim_utils::model {

inline constexpr char kPhysicalSwitchClass[] = "VEXOR_PhysicalComputerSystem";
inline constexpr char kLogicalSwitchClass[] = "VEXOR_LogicalComputerSystem";

struct WwnText {
  explicit WwnText(const wwn_& wwn) { cim_sprintf_wwn(text, &wwn); }
  explicit WwnText(const uint8_t wwn[8]) { cim_sprintf_wwn_uint_array(text, wwn); }
  char text[CIM_WWN_TEXT_ROOM];
};

// Writes the WWN of the switch that a port WWN belongs to, in a VSAN or, for VSAN 0, as a device;
// where no switch can be told, the given text of at most 16 characters.
inline void switch_text(char* dst, uint32_t vsan, const wwn_& port_wwn, const char* unknown) {
  wwn_ wwn;
  if (wwn_cim_get_switch_wwn_from_port_wwn(vsan, &wwn, &port_wwn) == 0) {
    cim_sprintf_wwn(dst, &wwn);
  } else {
    std::snprintf(dst, CIM_WWN_TEXT_ROOM, "%s", unknown);
  }
}

// An interface as the command line of the switch names it.
struct InterfaceName {
  explicit InterfaceName(uint32_t if_index) { sprintf_if_index(text, if_index); }
  char text[64] = {};
};

// What statistics, capabilities and settings of a port are known by. Unlike a port's own key the
// number has no sign.
struct InterfaceId {
  explicit InterfaceId(uint32_t if_index) { std::snprintf(text, sizeof text, "%u", if_index); }
  char text[12];
};

}  // namespace cim_utils::model

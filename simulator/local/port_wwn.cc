// The interface that a port WWN of this platform stands for.
#include <switch_platform/if_index.h>

#include "simulator/local/if_index_layout.h"

// A port WWN carries its place in the first two bytes, behind NAA 2: 0x24 and the channel number
// plus one for a port channel; else the slot in bits 0..2 of byte 0 and bits 6..7 of byte 1, and
// the port plus one in bits 0..5 of byte 1.
int32_t wwnm_get_ifindex_from_port_wwn(const uint8_t wwn[8], uint32_t* if_index) {
  if (wwn == nullptr || if_index == nullptr) return -1;
  if (wwn[0] == 0x24) {
    if (wwn[1] == 0) return -1;
    return if_index_port_channel_init(if_index, wwn[1] - 1U);
  }
  const uint32_t port_plus_one = wwn[1] & 0x3FU;
  if ((wwn[0] & 0xF8) != 0x20 || port_plus_one == 0) return -1;
  const uint32_t slot = (wwn[0] & 0x07U) << 2 | wwn[1] >> 6;
  return if_index_phy_fc_port_init(if_index, slot, port_plus_one - 1);
}

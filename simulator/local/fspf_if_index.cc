// Interface indexes as FSPF carries them: 24 bits instead of 32.
#include <arpa/inet.h>
#include <switch_platform/if_index.h>

#include "simulator/local/fspf_if_index.h"
#include "simulator/local/if_index_layout.h"

//   bits 23..19  type
//   bits 18..11  slot
//   bits 10..0   unit
namespace switch_sim {

std::optional<uint32_t> to_fspf_if_index(uint32_t if_index) {
  const uint32_t unit = unit_bits(if_index);
  if (!is_interface(if_index) || unit > 0x7FF) return std::nullopt;
  return static_cast<uint32_t>(type_bits(if_index)) << 19 | slot_bits(if_index) << 11 | unit;
}

}  // namespace switch_sim

int32_t convert_fspf_if_index_to_if_index(uint32_t fspf_index_be, uint32_t* if_index) {
  const uint32_t fspf_index = ntohl(fspf_index_be);
  if (if_index == nullptr || fspf_index > 0xFFFFFF) return -1;
  const auto type = static_cast<switch_sim::InterfaceType>(fspf_index >> 19);
  const uint32_t found =
      switch_sim::make_if_index(type, fspf_index >> 11 & 0xFF, fspf_index & 0x7FF);
  if (!switch_sim::is_interface(found)) return -1;
  *if_index = found;
  return 0;
}

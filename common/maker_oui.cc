#include "common/maker_oui.h"

namespace cim_utils {

const uint32_t kPrimaryMakerOui = 0x000DEC;

// Placeholders from the locally administered range, which no vendor owns. Their first digit is 0,
// since a WWN of the fifth format (NAA 5) carries only the five digits behind it.
const std::array<uint32_t, kFurtherMakerOuiCount> kFurtherMakerOuis = {
    0x02FC00, 0x02FC01, 0x02FC02, 0x02FC03, 0x02FC04, 0x02FC05, 0x02FC06, 0x02FC07, 0x02FC08,
    0x02FC09, 0x02FC0A, 0x02FC0B, 0x02FC0C, 0x02FC0D, 0x02FC0E, 0x02FC0F, 0x02FC10, 0x02FC11,
    0x02FC12, 0x02FC13, 0x02FC14, 0x02FC15, 0x02FC16, 0x02FC17, 0x02FC18, 0x02FC19};

}  // namespace cim_utils

// The organisationally unique identifiers (OUIs) by which the library knows the WWNs of the
// switch's own maker. Data of the product: a maker replaces maker_oui.cc and nothing else.
#ifndef COMMON_MAKER_OUI_H
#define COMMON_MAKER_OUI_H

#include <array>
#include <cstdint>

namespace cim_utils {

inline constexpr int32_t kFurtherMakerOuiCount = 26;

extern const uint32_t kPrimaryMakerOui;

// None of them is the primary one, and none is 0: that is the vendor id of a WWN without a vendor.
extern const std::array<uint32_t, kFurtherMakerOuiCount> kFurtherMakerOuis;

}  // namespace cim_utils

#endif  // COMMON_MAKER_OUI_H

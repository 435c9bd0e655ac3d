// Words of the fabric file, shared by its reader and its writer.
#ifndef SIMULATOR_FABRIC_FABRIC_WORDS_H
#define SIMULATOR_FABRIC_FABRIC_WORDS_H

#include <array>
#include <string_view>

namespace switch_sim {

inline constexpr int64_t kFabricFileVersion = 1;

// In the order of the enumerations, whose first value is 1.
inline constexpr std::array<std::string_view, 2> kStateWords = {"up", "suspended"};
inline constexpr std::array<std::string_view, 2> kLoadBalancingWords = {"src-id/dst-id",
                                                                        "src-id/dst-id/ox-id"};
inline constexpr std::array<std::string_view, 2> kDomainTypeWords = {"static", "preferred"};

// In the order of the enumeration, whose first value is 0.
inline constexpr std::array<std::string_view, 2> kZonePolicyWords = {"deny", "permit"};

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_FABRIC_WORDS_H

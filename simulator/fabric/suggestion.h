// "Did you mean": the known word that is closest to an unknown one.
#ifndef SIMULATOR_FABRIC_SUGGESTION_H
#define SIMULATOR_FABRIC_SUGGESTION_H

#include <span>
#include <string>
#include <string_view>

namespace switch_sim {

// ` (did you mean "vsans"?)`, or nothing when no word is close.
std::string suggestion(std::string_view unknown, std::span<const std::string_view> known);

// `"up" or "suspended"`.
std::string list_of(std::span<const std::string_view> words);

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_SUGGESTION_H

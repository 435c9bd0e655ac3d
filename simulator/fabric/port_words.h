// Words of the fabric file about ports, shared by its reader and its writer.
#ifndef SIMULATOR_FABRIC_PORT_WORDS_H
#define SIMULATOR_FABRIC_PORT_WORDS_H

#include <array>
#include <string_view>

#include "simulator/fabric/ports.h"

namespace switch_sim {

// In the order of the enumerations, whose first value is 1.
inline constexpr std::array<std::string_view, 5> kModuleKindWords = {
    "supervisor", "fibre-channel", "ip-storage", "crossbar", "services"};
inline constexpr std::array<std::string_view, 4> kModuleStateWords = {"ok", "powered-down",
                                                                      "failed", "starting"};
inline constexpr std::array<std::string_view, 2> kAdminStateWords = {"up", "down"};
inline constexpr std::array<std::string_view, 3> kOpticsWords = {"none", "supported",
                                                                 "unsupported"};
inline constexpr std::array<std::string_view, 3> kCounterWords = {"idle", "steady", "error-storm"};
inline constexpr std::array<std::string_view, 2> kDeviceKindWords = {"N", "NL"};

// The modes that can be configured, and their words in the same order.
inline constexpr std::array<PortMode, 8> kAdminModes = {
    PortMode::automatic, PortMode::e,  PortMode::f,  PortMode::fl,
    PortMode::fx,        PortMode::tl, PortMode::np, PortMode::sd};
inline constexpr std::array<std::string_view, 8> kAdminModeWords = {"auto", "E",  "F",  "FL",
                                                                    "Fx",   "TL", "NP", "SD"};

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_PORT_WORDS_H

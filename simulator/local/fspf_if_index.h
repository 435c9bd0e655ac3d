// Interface indexes as FSPF carries them.
#ifndef SIMULATOR_LOCAL_FSPF_IF_INDEX_H
#define SIMULATOR_LOCAL_FSPF_IF_INDEX_H

#include <cstdint>
#include <optional>

namespace switch_sim {

// The 24-bit form of an interface index, host order; nothing for an index that has none.
std::optional<uint32_t> to_fspf_if_index(uint32_t if_index);

}  // namespace switch_sim

#endif  // SIMULATOR_LOCAL_FSPF_IF_INDEX_H

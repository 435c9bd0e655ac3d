// Where a fabric keeps the topology that was worked out from it.
#ifndef SIMULATOR_FABRIC_TOPOLOGY_CACHE_H
#define SIMULATOR_FABRIC_TOPOLOGY_CACHE_H

#include <memory>

namespace switch_sim {

class Topology;

// Empty in every copy, since a copy is made to be changed, and equal to every other: it holds
// nothing that the fabric does not say.
class TopologyCache {
 public:
  TopologyCache() = default;
  TopologyCache(const TopologyCache& /*other*/) noexcept {}
  TopologyCache& operator=(const TopologyCache& other) noexcept {
    if (this != &other) topology_.reset();
    return *this;
  }
  ~TopologyCache() = default;

  friend bool operator==(const TopologyCache&, const TopologyCache&) { return true; }

 private:
  friend const Topology& topology_of(const struct Fabric& fabric);
  mutable std::shared_ptr<const Topology> topology_;  // shared: deletes a type unknown here
};

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_TOPOLOGY_CACHE_H

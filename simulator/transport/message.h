// The message seam: what passes between the client functions and the services.
#ifndef SIMULATOR_TRANSPORT_MESSAGE_H
#define SIMULATOR_TRANSPORT_MESSAGE_H

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace switch_sim {

// Time since the platform started. It passes only while somebody waits.
using VirtualTime = std::chrono::milliseconds;

using Bytes = std::vector<std::byte>;

// Names one request until its outcome was taken; never 0.
using Token = uint32_t;

// The services by their access point. Those that are only reached through client functions have
// numbers of the simulator's own, from 256.
enum class Service : uint32_t {
  domain_manager = 14,
  vsan_manager = 15,
  fabric_configuration = 20,
  system_information = 28,
  fspf = 29,
  port_manager = 34,
  system_name = 35,
  platform_manager = 39,
  switch_identity = 46,
  fabric_distribution = 256,
  zone_server = 272,
};

inline constexpr uint32_t kGet = 1;
inline constexpr uint32_t kGetNext = 2;
inline constexpr uint32_t kSet = 3;

// Opcodes of client functions; those of the synchronous call are the platform's.
inline constexpr uint32_t kLocalDomainIds = 0x10001;
inline constexpr uint32_t kSwitchAddresses = 0x10002;
inline constexpr uint32_t kDiscoverPeers = 0x10003;
inline constexpr uint32_t kSoftwareVersion = 0x10004;

struct Request {
  Service service{};
  uint32_t opcode = 0;
  uint32_t operation = 0;
  Bytes body;
  friend bool operator==(const Request&, const Request&) = default;
};

struct Outcome {
  int32_t status = 0;    // 0, a platform status, or negative for the transport
  int error_number = 0;  // errno of a transport failure
  std::optional<Bytes> reply;
  VirtualTime due{};  // when it arrives
  Token token = 0;    // of the request that it answers
  friend bool operator==(const Outcome&, const Outcome&) = default;
};

// Carries requests to the services and outcomes back. One carrier belongs to one user.
class Carrier {
 public:
  virtual ~Carrier() = default;

  virtual Token send(const Request& request) = 0;

  // Waits for the outcome of one request (or, without a token, for the earliest of any) until the
  // virtual clock shows `until`; nothing when none arrived by then.
  virtual std::optional<Outcome> take(std::optional<Token> token, VirtualTime until) = 0;
};

}  // namespace switch_sim

#endif  // SIMULATOR_TRANSPORT_MESSAGE_H

// Reading the requests of the zone server.
#ifndef SIMULATOR_SERVICES_ZONE_SERVER_REQUESTS_H
#define SIMULATOR_SERVICES_ZONE_SERVER_REQUESTS_H

#include <optional>
#include <string>

#include "simulator/fabric/fabric.h"
#include "simulator/services/bytes.h"
#include "simulator/transport/zone_server_messages.h"

namespace switch_sim::services {

// Takes the words and texts of a body in their order. After one that is missing every further one
// is empty, and `is_whole` is false.
class ZoningRequest {
 public:
  explicit ZoningRequest(const Bytes& body) : size_(body.size()), reader_(body) {}

  uint32_t word();
  std::string text();

  // True when everything was there and nothing is left.
  bool is_whole() const { return !failed_ && at_ == size_; }

 private:
  size_t size_;
  RequestReader reader_;
  size_t at_ = 0;
  bool failed_ = false;
};

std::optional<ZoningKind> zoning_kind(uint32_t word);

}  // namespace switch_sim::services

#endif  // SIMULATOR_SERVICES_ZONE_SERVER_REQUESTS_H

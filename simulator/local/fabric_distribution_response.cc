#include "simulator/local/fabric_distribution_response.h"

#include <switch_platform/fabric_distribution.h>

#include <atomic>
#include <cstring>
#include <new>
#include <optional>
#include <vector>

namespace switch_sim::distribution {
namespace {

std::atomic<int64_t> iterators{0};

uint32_t read_be32(const uint8_t* bytes) {
  return static_cast<uint32_t>(bytes[0]) << 24 | bytes[1] << 16 | bytes[2] << 8 | bytes[3];
}

struct Header {
  int32_t code;
  uint32_t count;
};

// Nothing when the payload is shorter than it says.
std::optional<Header> read_header(const void* payload, int32_t size) {
  if (payload == nullptr || size < static_cast<int32_t>(kHeaderSize)) return std::nullopt;
  const auto* bytes = static_cast<const uint8_t*>(payload);
  const Header header{static_cast<int32_t>(read_be32(bytes)), read_be32(bytes + 4)};
  if (header.count > (static_cast<size_t>(size) - kHeaderSize) / kAnswerSize) return std::nullopt;
  return header;
}

struct Iterator {
  std::vector<uint8_t> answers;  // the iterator's own copy: the message may go first
  size_t next = 0;
};

}  // namespace

int64_t iterators_outstanding() {
  return iterators;
}

}  // namespace switch_sim::distribution

using namespace switch_sim::distribution;

// The attributes: result code and number of answers, two 32-bit words in host order.
int32_t kfs_get_response_attr(const void* payload, int32_t size, void* attr) {
  const auto header = read_header(payload, size);
  if (!header || attr == nullptr) return kMalformed;
  memcpy(attr, &header->code, 4);
  memcpy(static_cast<uint8_t*>(attr) + 4, &header->count, 4);
  return kSuccess;
}

int32_t kfs_iter_parse_response(const void* payload, int32_t size, int32_t* count, void** iter) {
  if (count == nullptr || iter == nullptr) return kMalformed;
  *count = 0;
  *iter = nullptr;
  const auto header = read_header(payload, size);
  if (!header) return kMalformed;
  if (header->code != kSuccess) return header->code;
  try {
    const auto* answers = static_cast<const uint8_t*>(payload) + kHeaderSize;
    *iter = new Iterator{{answers, answers + header->count * kAnswerSize}, 0};
  } catch (const std::bad_alloc&) {
    return kNotAvailable;
  }
  ++iterators;
  *count = static_cast<int32_t>(header->count);
  return kSuccess;
}

void* kfs_iter_get_next_response(void* iter) {
  auto* iterator = static_cast<Iterator*>(iter);
  if (iterator == nullptr || iterator->next >= iterator->answers.size()) return nullptr;
  uint8_t* answer = iterator->answers.data() + iterator->next;
  iterator->next += kAnswerSize;
  return read_be32(answer) != 0 ? answer : nullptr;
}

void kfs_iter_destroy(void* iter) {
  if (iter == nullptr) return;
  delete static_cast<Iterator*>(iter);
  --iterators;
}

const char* kfs_rcode2str(int32_t code) {
  switch (code) {
    case kSuccess:
      return "Success";
    case kMalformed:
      return "Malformed response";
    case kUnknownApplication:
      return "Application is not known to the fabric distribution service";
    case kNotAvailable:
      return "Fabric distribution is not available";
    default:
      return "Unknown result code";
  }
}

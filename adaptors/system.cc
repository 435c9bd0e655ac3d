#include <cim_utils/formats.h>
#include <cim_utils/session.h>
#include <cim_utils/system.h>
#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <span>

#include <switch_platform/fabric_configuration.h>
#include <switch_platform/fabric_distribution.h>
#include <switch_platform/records_system.h>

#include "common/c_heap.h"
#include "common/exchange.h"
#include "common/wire.h"

namespace cim_utils {
namespace {

// A text may fill everything behind the selector, the count's place included.
constexpr size_t kLongestText = sizeof(system_information_) - offsetof(system_information_, answer);
constexpr uint32_t kMostComponents = sizeof(system_information_::answer) / sizeof(uint32_t);

// The components of an object identifier. The stride of 3 characters is deliberate: a component of
// three or more digits is partly overwritten by the next.
void render_object_identifier(const system_information_& info, char* dst) {
  const uint32_t count = std::min<uint32_t>(info.count, kMostComponents);
  for (uint32_t i = 0; i < count; ++i) {
    uint32_t component;
    std::memcpy(&component, info.answer + i * sizeof component, sizeof component);
    std::sprintf(dst + 3 * static_cast<size_t>(i), "%u.", component);
  }
}

// One answer of a peer switch, as the fabric distribution service's iterator gives it.
struct PeerAnswer {
  static constexpr size_t kWwn = 4;
  static constexpr size_t kFamily = 40;
  static constexpr size_t kAddress = 44;
};
constexpr size_t kPeerAddressText = 48;
// More answers than a fabric has switches: a greater count is a broken one.
constexpr int32_t kMostPeers = 65536;

// The peers of one discovery, released with this object.
class PeerAnswers {
 public:
  PeerAnswers(const void* payload, int32_t size) {
    code_ = kfs_iter_parse_response(payload, size, &count_, &iterator_);
  }
  PeerAnswers(const PeerAnswers&) = delete;
  PeerAnswers& operator=(const PeerAnswers&) = delete;
  ~PeerAnswers() {
    if (iterator_ != nullptr) kfs_iter_destroy(iterator_);
  }
  int32_t code() const { return code_; }
  int32_t count() const { return std::min(count_, kMostPeers); }
  // Null for an answer that is to be skipped.
  const uint8_t* next() {
    if (iterator_ == nullptr) return nullptr;
    return static_cast<const uint8_t*>(kfs_iter_get_next_response(iterator_));
  }

 private:
  int32_t count_ = 0;
  void* iterator_ = nullptr;
  int32_t code_;
};

// One switch of the fabric configuration server's address list.
struct SwitchAddress {
  static constexpr size_t kSize = 396;
  static constexpr size_t kDomain = 360;
  static constexpr size_t kName = 364;
};

// The domain whose switch name was found last. Nothing reads it: it is for a debugger.
std::atomic<int32_t> last_domain;

// The first switch of the list that owns `domain`; its name goes to `name`.
void find_switch_name(std::span<const uint8_t> list, uint8_t domain, char* name) {
  for (size_t at = 0; at + SwitchAddress::kSize <= list.size(); at += SwitchAddress::kSize) {
    const uint8_t* entry = list.data() + at;
    if (entry[SwitchAddress::kDomain] != domain) continue;
    char text[SwitchAddress::kSize - SwitchAddress::kName + 1] = {};
    std::memcpy(text, entry + SwitchAddress::kName, sizeof text - 1);
    std::printf("Switch name = %s\n", text);
    std::printf("Switch Domain Id = %d\n", domain);
    last_domain = domain;
    std::strcpy(name, text);
    name[256] = '\0';
    return;
  }
}

char* switch_wwn_text(int32_t q) {
  std::memset(newswitch_buf, 0, sizeof newswitch_buf);
  wwn_ wwn;
  if (system_cim_get_switch_wwn(q, &wwn) == 0) {
    cim_sprintf_wwn(newswitch_buf, &wwn);
  } else {
    std::strcpy(newswitch_buf, "N/A");
  }
  return newswitch_buf;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t system_cim_get_switch_wwn(int32_t q, wwn_* wwn) {
  if (wwn == nullptr) return -1;
  Reply reply;
  const int32_t status = exchange(
      {MTS_OPC_SWITCH_WWN, MTS_OPERATION_GET, MTS_SAP_SWITCH_IDENTITY, nullptr, 0, Preset::unknown},
      q, &reply);
  return status == 0 && reply.copy(wwn, sizeof *wwn) ? 0 : -1;
}

int32_t system_cim_parse_sys_info(const system_information_* info, int32_t selector, char* dst) {
  if (info == nullptr || dst == nullptr) return -1;
  switch (selector) {
    case 0:
    case 1:
    case 2:
    case 3: {
      const char* text =
          reinterpret_cast<const char*>(info) + offsetof(system_information_, answer);
      const size_t length = strnlen(text, kLongestText);
      std::memcpy(dst, text, length);
      dst[length] = '\0';
      break;
    }
    case 4:
      render_object_identifier(*info, dst);  // a count of 0 writes nothing
      break;
    case 6: {
      uint32_t hundredths;
      std::memcpy(&hundredths, info->answer, sizeof hundredths);
      std::sprintf(dst, "%u seconds", hundredths / 100);
      break;
    }
    default:
      std::strcpy(dst, "Not Available");
  }
  return static_cast<int32_t>(std::strlen(dst));
}

int32_t system_cim_set_SysName(int32_t q, const char* name) {
  if (name == nullptr) return -1;
  system_name_request_ request{};
  std::memcpy(request.name, name, strnlen(name, sizeof request.name - 1));
  const int32_t status = exchange(
      {MTS_OPC_SET_SYSTEM_NAME, MTS_OPERATION_SET, MTS_SAP_SYSTEM_NAME, &request, sizeof request},
      q, nullptr);
  if (status != 0) {
    std::printf("system_cim_util:set SysName -  FAIL ret code is %d\n", status);
  } else {
    std::printf("system_cim_util:set SysName - ret code is %d\n", status);
  }
  return status;
}

int32_t system_cim_get_system_key(const wwn_* wwn, int32_t number, char* dst) {
  if (wwn == nullptr || dst == nullptr) return -1;
  char text[17];
  cim_sprintf_wwn(text, wwn);
  std::sprintf(dst, "%d_%s", number, text);
  return 0;
}

int32_t system_cim_get_fields_from_key(const char* key, int32_t* number) {
  if (key == nullptr || number == nullptr) return -1;
  char copy[32] = {};
  std::memcpy(copy, key, strnlen(key, sizeof copy - 1));
  char* rest = nullptr;
  const char* first = strtok_r(copy, "_", &rest);
  if (first == nullptr) return -1;
  *number = static_cast<int32_t>(std::strtol(first, nullptr, 10));
  const char* wwn = strtok_r(nullptr, "_", &rest);
  if (wwn == nullptr || std::strlen(wwn) != 16) return -1;
  return strtok_r(nullptr, "_", &rest) == nullptr ? 0 : -1;
}

int32_t system_cim_is_local_switch_wwn_str(void) {
  return -1;
}

int32_t system_cim_is_local_switch_wwn_hex(int32_t q, uint8_t* wwn, uint8_t* result) {
  if (wwn == nullptr || result == nullptr) return -1;
  wwn_ local;
  if (system_cim_get_switch_wwn(q, &local) != 0) return -1;
  if (wwn[1] != 0) --wwn[7];  // in the caller's array, deliberately
  *result = std::memcmp(wwn + 2, local.bytes + 2, 6) == 0 ? 1 : 0;
  return 0;
}

int32_t get_kfs_peer_ip(int32_t q, const char* wwn_text, char* ip_text) {
  constexpr uint32_t kTimeoutSeconds = 20;
  uint32_t request[7] = {};
  request[6] = 126;

  Message sent(q);
  if (kfs_discover_peers(q, request, 2, sent.out()) != 0) return -1;
  Message received(q);
  if (receive(q, 0, kTimeoutSeconds, &received) < 0 || received.get() == nullptr) {
    if (errno == ETIME) {
      std::printf(
          "Could not get response. The network topology may under going change.\n"
          "Please try after about 30 seconds");
    } else {
      std::perror("Unable to receive response");
    }
    return 1;
  }
  const void* payload = mts_payload_get(received.get());
  const int32_t size = mts_payload_size(received.get());
  uint8_t attributes[64] = {};
  kfs_get_response_attr(payload, size, attributes);
  PeerAnswers answers(payload, size);
  if (answers.code() != 0) {
    std::printf("\n%s\n", kfs_rcode2str(answers.code()));
    return -1;
  }
  for (int32_t i = 0; i < answers.count(); ++i) {
    const uint8_t* answer = answers.next();
    if (answer == nullptr) continue;
    char address[kPeerAddressText] = {};
    kfs_ip_addr_to_str(wire::read32(answer + PeerAnswer::kFamily), answer + PeerAnswer::kAddress,
                       address);
    char peer[17];
    cim_sprintf_wwn_uint_array(peer, answer + PeerAnswer::kWwn);
    // The scan goes on: a later match counts.
    if (wwn_text != nullptr && std::strcmp(wwn_text, peer) == 0) {
      std::printf("Match Found ");
      if (ip_text != nullptr) std::memcpy(ip_text, address, sizeof address);
    }
  }
  return 0;
}

int32_t get_remote_switchname(uint8_t domain, char* name) {
  constexpr uint32_t kTimeoutSeconds = 5;
  constexpr int32_t kNoReply = -1;
  Message request(mts_q);
  int32_t error = fcs_send_get_inet_addr(mts_q, 1, request.out());
  if (error != 0) {
    std::printf("API failed errno: 0x%x", static_cast<uint32_t>(error));
    return -1;
  }
  // A receive that fails shows as a reply that cannot be parsed.
  Message reply(mts_q);
  if (request.get() != nullptr)
    receive(mts_q, mts_rr_token_get(request.get()), kTimeoutSeconds, &reply);

  int32_t status = 0;
  int32_t count = 0;
  void* list = nullptr;
  error = reply.get() != nullptr ? fcs_parse_get_inet_addr(reply.get(), &status, &count, &list)
                                 : kNoReply;
  const CHeap<uint8_t> owner(static_cast<uint8_t*>(list));
  if (error != 0) {
    std::printf("API failed errno: 0x%x", static_cast<uint32_t>(error));
    return -1;
  }
  // A list of one switch is not searched, deliberately: that switch is this one.
  if (status == 1 && count >= 2 && list != nullptr && name != nullptr) {
    const size_t size =
        std::min(static_cast<size_t>(count) * SwitchAddress::kSize, malloc_usable_size(list));
    find_switch_name({owner.get(), size}, domain, name);
  }
  return 0;
}

char* CSgetName(int32_t q) {
  return switch_wwn_text(q);
}

char* CSgetWWN(int32_t q) {
  return switch_wwn_text(q);
}

char* CSgetElementName(int32_t q) {
  std::memset(newswitch_buf, 0, sizeof newswitch_buf);
  system_information_ info{};
  info.selector = 2;
  if (snmp_get_sys_info1(q, &info) != 0) {
    std::strcpy(newswitch_buf, "Not Available");
    std::perror("get sys info error: ");
    return newswitch_buf;
  }
  char text[sizeof info + 8];
  system_cim_parse_sys_info(&info, 2, text);
  std::snprintf(newswitch_buf, sizeof newswitch_buf, "%.255s", text);
  return newswitch_buf;
}

// System information and software version.
#include <switch_platform/system.h>

#include <cstring>

#include "simulator/client/payload_reader.h"
#include "simulator/client/platform.h"
#include "simulator/local/platform_status.h"

using switch_sim::be32_at;
using switch_sim::Bytes;
using switch_sim::on_platform;
using switch_sim::Platform;

namespace {

constexpr size_t kRecordSize = 1032;

void store(uint8_t* record, size_t offset, uint32_t value) {
  memcpy(record + offset, &value, sizeof value);
}

// The numbers that the record carries, in host order: the item itself, the number of components of
// item 4, the single number of items 5 and 6.
void copy_record(const Bytes& reply, uint8_t* record) {
  const uint32_t item = be32_at(reply, 0);
  memcpy(record, reply.data(), kRecordSize);
  store(record, 0, item);
  if (item == 4) store(record, 1028, be32_at(reply, 1028));
  if (item == 5 || item == 6) store(record, 4, be32_at(reply, 4));
}

}  // namespace

const char* srg_sw_ver_get(int32_t /*zero*/) {
  return on_platform(static_cast<const char*>(nullptr), [](Platform& platform) -> const char* {
    const auto outcome = platform.exchange({switch_sim::Service::system_information,
                                            switch_sim::kSoftwareVersion,
                                            switch_sim::kGet,
                                            {}});
    if (outcome.status != 0 || !outcome.reply) return nullptr;
    const auto* text = reinterpret_cast<const char*>(outcome.reply->data());
    return platform.keep_text(std::string(text, outcome.reply->size()));
  });
}

// The record comes and goes in host order.
int32_t snmp_get_sys_info(int32_t q, void* info) {
  if (info == nullptr) return switch_sim::status::kBadSystemInformationItem;
  return on_platform(-1, [&](Platform& platform) {
    auto* record = static_cast<uint8_t*>(info);
    Bytes body(kRecordSize);
    uint32_t item = 0;
    memcpy(&item, record, sizeof item);
    for (size_t i = 0; i < 4; ++i)
      body[i] = static_cast<std::byte>(item >> (24 - 8 * i));
    const auto outcome = platform.exchange(
        q, {switch_sim::Service::system_information, 1812, switch_sim::kGet, body});
    if (outcome.error_number != 0) errno = outcome.error_number;
    if (outcome.status != 0) return outcome.status;
    if (!outcome.reply || outcome.reply->size() < kRecordSize) {
      return switch_sim::status::kBadSystemInformationItem;
    }
    copy_record(*outcome.reply, record);
    return 0;
  });
}

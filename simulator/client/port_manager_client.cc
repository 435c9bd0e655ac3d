// The port manager's client functions, and those of the services for IP addresses and FCIP.
#include <switch_platform/port_manager.h>
#include <switch_platform/records_port_manager.h>

#include <array>
#include <cstring>

#include "simulator/client/payload_reader.h"
#include "simulator/client/payload_writer.h"
#include "simulator/client/platform.h"
#include "simulator/local/platform_status.h"
#include "simulator/transport/port_messages.h"

using switch_sim::append_be32;
using switch_sim::Bytes;
using switch_sim::on_platform;
using switch_sim::Outcome;
using switch_sim::Platform;
using switch_sim::Service;
using switch_sim::to_host;
namespace status = switch_sim::status;

namespace {

struct Field {
  size_t offset;
  size_t width;
};

// The numbers of a port record.
constexpr std::array<Field, 8> kPortNumbers = {
    {{0, 4}, {4, 4}, {89, 4}, {94, 4}, {102, 2}, {104, 4}, {143, 4}, {147, 4}}};

void port_to_host(Bytes& bytes) {
  for (const Field& field : kPortNumbers)
    to_host(bytes, field.offset, field.width);
}

void counters_to_host(Bytes& bytes) {
  to_host(bytes, 0, 4);
  for (size_t offset = 8; offset < bytes.size(); offset += 8)
    to_host(bytes, offset, 8);
}

void words_to_host(Bytes& bytes) {
  for (size_t offset = 0; offset < bytes.size(); offset += 4)
    to_host(bytes, offset, 4);
}

Outcome exchange(Platform& platform, int32_t q, Service service, uint32_t opcode,
                 uint32_t operation, Bytes body) {
  auto outcome = platform.exchange(q, {service, opcode, operation, std::move(body)});
  if (outcome.error_number != 0) errno = outcome.error_number;
  return outcome;
}

Bytes word(uint32_t value) {
  Bytes body;
  append_be32(body, value);
  return body;
}

// Asks about one interface and hands the reply out after `convert`.
template <typename Type, typename Convert>
int32_t ask(int32_t q, uint32_t opcode, uint32_t operation, uint32_t if_index, Type** out,
            Convert convert) {
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    auto outcome = exchange(platform, q, Service::port_manager, opcode, operation, word(if_index));
    if (outcome.reply) {
      convert(*outcome.reply);
      *out = static_cast<Type*>(platform.hand_out(*outcome.reply));
    }
    return outcome.status;
  });
}

// One interface at a time is asked for.
bool names_one_interface(int32_t num_keys, const struct pm_if_key_* key) {
  return num_keys == 1 && key != nullptr && key->first == key->last;
}

// Clears what a function gives out; false when it has no place for it.
template <typename Type>
bool clear(int32_t* reply_count, Type** out) {
  if (reply_count != nullptr) *reply_count = 0;
  if (out != nullptr) *out = nullptr;
  return reply_count != nullptr && out != nullptr;
}

// The value of an attribute as it travels: a word big-endian, everything else as it stands.
void append_value(Bytes& body, const void* value, size_t length) {
  uint32_t number = 0;
  if (length == sizeof number) {
    memcpy(&number, value, sizeof number);
    append_be32(body, number);
  } else {
    switch_sim::append_raw(body, value, length);
  }
}

uint32_t* bound_interfaces(int32_t q, uint32_t opcode, uint32_t if_index) {
  return on_platform(static_cast<uint32_t*>(nullptr), [&](Platform& platform) -> uint32_t* {
    auto outcome =
        exchange(platform, q, switch_sim::kIpStorage, opcode, switch_sim::kGet, word(if_index));
    if (outcome.status != status::kOk || !outcome.reply) return nullptr;
    Bytes& block = *outcome.reply;
    const uint32_t count = switch_sim::be32_at(block, 0);
    if (count == 0 || block.size() < 4 || (block.size() - 4) / 4 < count) return nullptr;
    words_to_host(block);
    return static_cast<uint32_t*>(platform.hand_out(block));
  });
}

}  // namespace

int32_t pm_cmi_get_port_config(int32_t q, int32_t operation, int32_t num_keys,
                               const struct pm_if_key_* key, int32_t* reply_count,
                               pm_port_info_** out, int32_t /*last*/) {
  const bool has_place = clear(reply_count, out);
  if (!has_place || !names_one_interface(num_keys, key)) return status::kBadValue;
  const int32_t result = ask(q, switch_sim::kPortConfiguration, static_cast<uint32_t>(operation),
                             key->first, out, port_to_host);
  *reply_count = *out != nullptr ? 1 : 0;
  return result;
}

int32_t pm_cmi_set_port_config(int32_t q, int32_t /*zero1*/, int32_t /*zero2*/, int32_t one,
                               const struct pm_if_key_* key, int32_t attribute,
                               int32_t value_length, const void* value, int32_t* reply_count,
                               void** reply, int32_t /*last*/) {
  const bool has_place = clear(reply_count, reply);
  if (!has_place || !names_one_interface(one, key) || value == nullptr || value_length < 1) {
    return status::kBadValue;
  }
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Bytes body;
    append_be32(body, key->first);
    append_be32(body, static_cast<uint32_t>(attribute));
    append_value(body, value, static_cast<size_t>(value_length));
    auto outcome = exchange(platform, q, Service::port_manager, switch_sim::kPortAttribute,
                            switch_sim::kSet, std::move(body));
    if (outcome.reply) *reply = platform.hand_out(*outcome.reply);
    *reply_count = *reply != nullptr ? 1 : 0;
    return outcome.status;
  });
}

int32_t pm_cmi_get_fcot_info(int32_t q, int32_t operation, int32_t num_keys,
                             const struct pm_if_key_* key, int32_t* reply_count, void** reply,
                             int32_t /*timeout*/, int32_t /*last*/) {
  const bool has_place = clear(reply_count, reply);
  if (!has_place || !names_one_interface(num_keys, key)) return status::kBadValue;
  const int32_t result = ask(q, switch_sim::kTransceiver, static_cast<uint32_t>(operation),
                             key->first, reply, [](Bytes& bytes) { to_host(bytes, 0, 4); });
  *reply_count = *reply != nullptr ? 1 : 0;
  return result;
}

// Exchange link parameters are not modelled.
int32_t pm_cmi_get_elp_info(int32_t /*q*/, int32_t /*operation*/, int32_t /*num_keys*/,
                            const struct pm_if_key_* /*key*/, int32_t* reply_count, void** reply,
                            int32_t /*last*/) {
  clear(reply_count, reply);
  return status::kServiceNotAvailable;
}

int32_t pm_get_port_counters(int32_t q, uint32_t if_index, int32_t /*one1*/, int32_t /*one2*/,
                             fcIfAllCounters_t** counters) {
  if (counters == nullptr) return status::kBadValue;
  *counters = nullptr;
  return ask(q, switch_sim::kPortCounters, switch_sim::kGet, if_index, counters, counters_to_host);
}

int32_t ipconf_get_intf_ip_address(int32_t q, uint32_t if_index, void** address_block,
                                   int32_t type) {
  if (address_block == nullptr) return status::kBadValue;
  *address_block = nullptr;
  return on_platform(status::kNoMemory, [&](Platform& platform) {
    Bytes body = word(if_index);
    append_be32(body, static_cast<uint32_t>(type));
    auto outcome = exchange(platform, q, switch_sim::kIpConfiguration,
                            switch_sim::kInterfaceAddress, switch_sim::kGet, std::move(body));
    if (outcome.reply) *address_block = platform.hand_out(*outcome.reply);
    return outcome.status;
  });
}

uint32_t* ips_mgr_fcip_get_fcip_if_for_eth_if_blk(int32_t q, uint32_t eth_if_index) {
  return bound_interfaces(q, switch_sim::kFcipOfEthernet, eth_if_index);
}

uint32_t* ips_mgr_fcip_get_eth_if_for_fcip_if_blk(int32_t q, uint32_t fcip_if_index) {
  return bound_interfaces(q, switch_sim::kEthernetOfFcip, fcip_if_index);
}

#include "tests/support/double_port_manager.h"

#include <switch_platform/port_manager.h>

#include <cstring>

#include "tests/support/double.h"

namespace test_support {
namespace {

constexpr const char* kPresetToNull = "preset to null";

}  // namespace

PortQuery::PortQuery(const char* function, int32_t operation, uint32_t if_index) : Line(function) {
  q(kQueue);
  number("operation", operation);
  number("num_keys", 1);
  number("key first", if_index);
  number("key last", if_index);
  argument("reply_count", Value::not_null());
  text("out", kPresetToNull);
  last(4);
  call()->answer_required = true;
}

PortQuery& PortQuery::gives(const Bytes& record) {
  return returns(0).hands_out(record).count(1);
}

PortQuery& PortQuery::fails_with_record(int64_t result, const Bytes& record) {
  return returns(result).hands_out(record).count(1);
}

PortQuery& PortQuery::count(int32_t n) {
  answer().count = n;
  return *this;
}

PortQuery get_port(uint32_t if_index) {
  return {"pm_cmi_get_port_config", 1, if_index};
}
PortQuery get_next_port(uint32_t if_index) {
  return {"pm_cmi_get_port_config", 2, if_index};
}
PortQuery get_fcot(uint32_t if_index) {
  return PortQuery("pm_cmi_get_fcot_info", 1, if_index).timeout(20).last(-1);
}
PortQuery get_elp(int32_t operation, uint32_t if_index) {
  return {"pm_cmi_get_elp_info", operation, if_index};
}

PortChange::PortChange(uint32_t if_index, int32_t attribute, const Bytes& value)
    : Line("pm_cmi_set_port_config") {
  q(kQueue);
  number("zero1", 0);
  number("zero2", 0);
  number("one", 1);
  number("key first", if_index);
  number("key last", if_index);
  number("attribute", attribute);
  number("value_length", static_cast<int64_t>(value.size()));
  bytes("value", value);
  argument("reply_count", Value::not_null());
  text("reply", kPresetToNull);
  number("last", 4);
  call()->answer_required = true;
}

PortChange& PortChange::replies(const Bytes& reply) {
  return returns(0).hands_out(reply).count(1);
}

PortChange& PortChange::service_status(uint32_t status) {
  return replies(Record(8).be32(4, status));
}

PortChange& PortChange::fails_with_reply(int64_t result, const Bytes& reply) {
  return returns(result).hands_out(reply).count(1);
}

PortChange& PortChange::count(int32_t n) {
  answer().count = n;
  return *this;
}

PortChange set_port(uint32_t if_index, int32_t attribute, const Bytes& value) {
  return {if_index, attribute, value};
}

CountersQuery::CountersQuery(uint32_t if_index) : Line("pm_get_port_counters") {
  q(kQueue);
  number("if_index", if_index);
  number("one1", 1);
  number("one2", 1);
  argument("counters", Value::not_null());
  call()->answer_required = true;
}

CountersQuery get_port_counters(uint32_t if_index) {
  return CountersQuery(if_index);
}

AddressQuery::AddressQuery(uint32_t if_index, int32_t type) : Line("ipconf_get_intf_ip_address") {
  q(kQueue);
  number("if_index", if_index);
  text("address_block", kPresetToNull);
  number("type", type);
  call()->answer_required = true;
}

AddressQuery get_interface_address(uint32_t if_index, int32_t type) {
  return {if_index, type};
}

BindingQuery::BindingQuery(const char* function, const char* argument, uint32_t if_index)
    : Line(function) {
  q(kQueue);
  number(argument, if_index);
  call()->answer_required = true;
}

BindingQuery& BindingQuery::gives(const std::vector<uint32_t>& if_indexes) {
  HeapLedger::Pause pause;
  std::vector<uint32_t> words = {static_cast<uint32_t>(if_indexes.size())};
  words.insert(words.end(), if_indexes.begin(), if_indexes.end());
  return gives_block(words);
}

BindingQuery& BindingQuery::gives_block(const std::vector<uint32_t>& words) {
  HeapLedger::Pause pause;
  Record block(words.size() * 4);
  for (size_t i = 0; i < words.size(); ++i)
    block.host32(i * 4, words[i]);
  return hands_out(block);
}

BindingQuery fcip_interfaces_of(uint32_t ethernet_if_index) {
  return {"ips_mgr_fcip_get_fcip_if_for_eth_if_blk", "eth_if_index", ethernet_if_index};
}

BindingQuery ethernet_interfaces_of(uint32_t fcip_if_index) {
  return {"ips_mgr_fcip_get_eth_if_for_fcip_if_blk", "fcip_if_index", fcip_if_index};
}

namespace {

// Adds the two interface indexes of a key.
void add_key(Call& call, const pm_if_key_* key) {
  uint32_t words[2] = {};
  if (key == nullptr) {
    call.arguments.push_back({"key first", Value::null()});
    call.arguments.push_back({"key last", Value::null()});
    return;
  }
  memcpy(words, key, sizeof words);
  call.arguments.push_back(number_argument("key first", words[0]));
  call.arguments.push_back(number_argument("key last", words[1]));
}

// What has no answer is left as the caller preset it.
template <class Pointer>
int32_t deliver(const Answer& answer, const Call& call, Pointer** out, int32_t* reply_count) {
  if (reply_count != nullptr && answer.count) *reply_count = static_cast<int32_t>(*answer.count);
  if (out != nullptr) {
    if (void* block = hand_out_block(answer, call.function)) *out = static_cast<Pointer*>(block);
  }
  return static_cast<int32_t>(answer.result);
}

Call port_query(const char* function, int32_t q, int32_t operation, int32_t num_keys,
                const pm_if_key_* key, const int32_t* reply_count, const void* const* out,
                int32_t last) {
  Call call{function,
            {number_argument("q", q), number_argument("operation", operation),
             number_argument("num_keys", num_keys)}};
  add_key(call, key);
  call.arguments.push_back(pointer_argument("reply_count", reply_count));
  call.arguments.push_back(preset_argument("out", out));
  call.arguments.push_back(number_argument("last", last));
  return call;
}

uint32_t* binding(const char* function, const char* argument, int32_t q, uint32_t if_index) {
  Answer answer =
      answer_to({function, {number_argument("q", q), number_argument(argument, if_index)}});
  return static_cast<uint32_t*>(hand_out_block(answer, function));
}

}  // namespace
}  // namespace test_support

using namespace test_support;  // NOLINT: the platform's names stand outside of namespaces

extern "C" {

int32_t pm_cmi_get_port_config(int32_t q, int32_t operation, int32_t num_keys,
                               const struct pm_if_key_* key, int32_t* reply_count,
                               pm_port_info_** out, int32_t last) {
  HeapLedger::Pause pause;
  Call call = port_query("pm_cmi_get_port_config", q, operation, num_keys, key, reply_count,
                         reinterpret_cast<const void* const*>(out), last);
  return deliver(answer_to(call), call, out, reply_count);
}

int32_t pm_cmi_set_port_config(int32_t q, int32_t zero1, int32_t zero2, int32_t one,
                               const struct pm_if_key_* key, int32_t attribute,
                               int32_t value_length, const void* value, int32_t* reply_count,
                               void** reply, int32_t last) {
  HeapLedger::Pause pause;
  Call call{"pm_cmi_set_port_config",
            {number_argument("q", q), number_argument("zero1", zero1),
             number_argument("zero2", zero2), number_argument("one", one)}};
  add_key(call, key);
  call.arguments.push_back(number_argument("attribute", attribute));
  call.arguments.push_back(number_argument("value_length", value_length));
  call.arguments.push_back(
      bytes_argument("value", value, value_length < 0 ? 0 : static_cast<size_t>(value_length)));
  call.arguments.push_back(pointer_argument("reply_count", reply_count));
  call.arguments.push_back(preset_argument("reply", reply));
  call.arguments.push_back(number_argument("last", last));
  return deliver(answer_to(call), call, reply, reply_count);
}

int32_t pm_cmi_get_fcot_info(int32_t q, int32_t operation, int32_t num_keys,
                             const struct pm_if_key_* key, int32_t* reply_count, void** reply,
                             int32_t timeout, int32_t last) {
  HeapLedger::Pause pause;
  Call call =
      port_query("pm_cmi_get_fcot_info", q, operation, num_keys, key, reply_count, reply, last);
  call.arguments.push_back(number_argument("timeout", timeout));
  return deliver(answer_to(call), call, reply, reply_count);
}

int32_t pm_cmi_get_elp_info(int32_t q, int32_t operation, int32_t num_keys,
                            const struct pm_if_key_* key, int32_t* reply_count, void** reply,
                            int32_t last) {
  HeapLedger::Pause pause;
  Call call =
      port_query("pm_cmi_get_elp_info", q, operation, num_keys, key, reply_count, reply, last);
  return deliver(answer_to(call), call, reply, reply_count);
}

int32_t pm_get_port_counters(int32_t q, uint32_t if_index, int32_t one1, int32_t one2,
                             fcIfAllCounters_t** counters) {
  HeapLedger::Pause pause;
  Call call{"pm_get_port_counters",
            {number_argument("q", q), number_argument("if_index", if_index),
             number_argument("one1", one1), number_argument("one2", one2),
             pointer_argument("counters", counters)}};
  return deliver(answer_to(call), call, counters, nullptr);
}

int32_t ipconf_get_intf_ip_address(int32_t q, uint32_t if_index, void** address_block,
                                   int32_t type) {
  HeapLedger::Pause pause;
  Call call{"ipconf_get_intf_ip_address",
            {number_argument("q", q), number_argument("if_index", if_index),
             preset_argument("address_block", address_block), number_argument("type", type)}};
  return deliver(answer_to(call), call, address_block, nullptr);
}

uint32_t* ips_mgr_fcip_get_fcip_if_for_eth_if_blk(int32_t q, uint32_t eth_if_index) {
  HeapLedger::Pause pause;
  return binding("ips_mgr_fcip_get_fcip_if_for_eth_if_blk", "eth_if_index", q, eth_if_index);
}

uint32_t* ips_mgr_fcip_get_eth_if_for_fcip_if_blk(int32_t q, uint32_t fcip_if_index) {
  HeapLedger::Pause pause;
  return binding("ips_mgr_fcip_get_eth_if_for_fcip_if_blk", "fcip_if_index", q, fcip_if_index);
}

}  // extern "C"

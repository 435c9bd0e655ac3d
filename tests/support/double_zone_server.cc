#include "tests/support/double_zone_server.h"

#include <gtest/gtest.h>
#include <switch_platform/zone_server.h>

#include <cstring>

#include "tests/support/double.h"

namespace test_support {
namespace {

constexpr size_t kContextSize = 132;
constexpr size_t kMemberEntrySize = 24;

// Scripts count their owners from 1 up, other responders from 0x80000000.
constexpr uint32_t kFirstResponderOwner = 0xc0000000;

ZoneReadResponder* responder = nullptr;
uint32_t last_responder_owner = kFirstResponderOwner;

}  // namespace

ZoneRead::ZoneRead(const char* function, uint32_t vsan, int32_t active, int32_t count_in)
    : Line(function) {
  q(kQueue);
  number("vsan", vsan);
  bytes("context", zeros(kContextSize));
  number("zero", 0);
  number("active", active);
  this->count_in(count_in);
  text("reply", "preset to null");
  call()->answer_required = true;
}

ZoneRead& ZoneRead::id(uint32_t id) {
  return exact(1).number("id", id);
}

ZoneRead& ZoneRead::member(int32_t parent_kind, uint32_t parent_id, uint32_t member_id) {
  exact(1);
  number("parent_kind", parent_kind);
  number("parent_id", parent_id);
  number("member_id", member_id);
  return number("zero2", 0);
}

ZoneRead& ZoneRead::gives(const std::vector<Bytes>& entries) {
  HeapLedger::Pause pause;
  Bytes all;
  for (const Bytes& entry : entries)
    all.insert(all.end(), entry.begin(), entry.end());
  return returns(0).hands_out(all).count(static_cast<int32_t>(entries.size()));
}

ZoneRead& ZoneRead::fails_with_reply(int64_t result, const Bytes& reply) {
  return returns(result).hands_out(reply);
}

ZoneRead& ZoneRead::count(int32_t n) {
  answer().count = n;
  return *this;
}

ZoneRead& ZoneRead::cut_to(size_t n) {
  answer().cut = n;
  return *this;
}

ZoneRead read_zone_set(uint32_t vsan, int32_t active, uint32_t id) {
  return ZoneRead("zs_cmi_get_zone_set", vsan, active, 1).id(id);
}

ZoneRead read_zone(uint32_t vsan, int32_t active, uint32_t id) {
  return ZoneRead("zs_cmi_get_zone", vsan, active, 1).id(id);
}

ZoneRead read_alias(uint32_t vsan, int32_t active, uint32_t id) {
  return ZoneRead("zs_cmi_get_alias", vsan, active, 1).id(id);
}

ZoneRead read_all_zone_sets(uint32_t vsan, int32_t active) {
  return {"zs_cmi_get_all_zone_sets_in_vsan", vsan, active, 32};
}

ZoneRead read_all_zones(uint32_t vsan, int32_t active) {
  return {"zs_cmi_get_all_zones_in_vsan", vsan, active, 32};
}

ZoneRead read_all_aliases(uint32_t vsan, int32_t active) {
  return {"zs_cmi_get_all_aliases_in_vsan", vsan, active, 32};
}

ZoneRead read_member(uint32_t vsan, int32_t active, int32_t parent_kind, uint32_t parent_id,
                     uint32_t member_id) {
  return ZoneRead("zs_cmi_get_member", vsan, active, 1).member(parent_kind, parent_id, member_id);
}

MemberParse::MemberParse() : Line("zs_api_parse_member") {
  call()->answer_required = true;
}

MemberParse& MemberParse::as(uint8_t type, const Bytes& value, const Bytes& lun) {
  HeapLedger::Pause pause;
  answer().numbers = {type, static_cast<uint32_t>(lun.size())};
  hands_out(joined({value, lun}));
  return returns(0).length(static_cast<int32_t>(value.size()));
}

MemberParse& MemberParse::length(int32_t n) {
  answer().count = n;
  return *this;
}

MemberParse parse_member(const Bytes& entry) {
  return MemberParse().entry(entry);
}
MemberParse parse_any_member() {
  return MemberParse().any_entry();
}

ZoneReadResponder::ZoneReadResponder(std::function<ZoneReadResponse(const ZoneReadRequest&)> answer)
    : answer_(std::move(answer)), owner_(++last_responder_owner), outer_(responder) {
  responder = this;
}

ZoneReadResponder::~ZoneReadResponder() {
  HeapLedger::Pause pause;
  responder = outer_;
  for (const std::string& block : not_given_back(owner_))
    ADD_FAILURE() << "not freed: " << block;
}

size_t ZoneReadResponder::calls() const {
  size_t all = 0;
  for (const auto& [function, n] : calls_)
    all += n;
  return all;
}

size_t ZoneReadResponder::calls(const char* function) const {
  HeapLedger::Pause pause;
  auto found = calls_.find(function);
  return found == calls_.end() ? 0 : found->second;
}

ZoneReadResponse ZoneReadResponder::respond(const ZoneReadRequest& request) {
  ++calls_[request.function];
  return answer_(request);
}

ZoneChange::ZoneChange(const char* function, uint32_t vsan) : Line(function) {
  q(kQueue);
  number("vsan", vsan);
  says("empty1", "");
  says("empty2", "");
  bytes("context", zeros(kContextSize));
  call()->answer_required = true;
}

ZoneChange& ZoneChange::uses_its_context() {
  HeapLedger::Pause pause;
  answer().numbers = {1};
  return *this;
}

ZoneChange create_zoning_object(int32_t operation, uint32_t vsan, int32_t kind, const char* name) {
  return ZoneChange("zs_cmi_create_zoning_object", vsan)
      .operation(operation)
      .says("kind", kind)
      .says("minus1", -1)
      .says("name", name);
}

ZoneChange add_zone_to_zone_set(int32_t operation, uint32_t vsan, const char* zone_set,
                                const char* zone) {
  return ZoneChange("zs_cmi_add_zone_to_zone_set", vsan)
      .operation(operation)
      .says("zone_set", zone_set)
      .says("zone", zone);
}

ZoneChange add_alias_to_zone(int32_t operation, uint32_t vsan, const char* zone,
                             const char* alias) {
  return ZoneChange("zs_cmi_add_alias_to_zone", vsan)
      .operation(operation)
      .says("zone", zone)
      .says("alias", alias);
}

ZoneChange add_zone_member(int32_t operation, uint32_t vsan, const char* zone,
                           const Bytes& member) {
  return ZoneChange("zs_cmi_add_zone_member", vsan)
      .operation(operation)
      .says("parent", zone)
      .says("minus1", -1)
      .says("member", member)
      .null("empty1")
      .null("empty2");
}

ZoneChange add_alias_member(int32_t operation, uint32_t vsan, const char* alias,
                            const Bytes& member) {
  return ZoneChange("zs_cmi_add_alias_member", vsan)
      .operation(operation)
      .says("parent", alias)
      .says("minus1", -1)
      .says("member", member);
}

ZoneChange activate_zone_set(int32_t operation, uint32_t vsan, const char* name) {
  return ZoneChange("zs_cmi_activate_zone_set", vsan).operation(operation).says("name", name);
}

ZoneChange distribute_zone_set(uint32_t vsan) {
  return {"zs_cmi_zoneset_distribute", vsan};
}

ZoneIdQuery::ZoneIdQuery(uint32_t vsan, int32_t kind, const char* name)
    : Line("zs_cmi_get_id_for_name") {
  q(kQueue);
  number("vsan", vsan);
  bytes("context", zeros(kContextSize));
  number("zero", 0);
  active(0);
  number("kind", kind);
  text("name", name);
  argument("id", Value::not_null());
  call()->answer_required = true;
}

ZoneIdQuery query_id_for_name(uint32_t vsan, int32_t kind, const char* name) {
  return {vsan, kind, name};
}

ZoneNameQuery::ZoneNameQuery(uint32_t vsan, int32_t kind, uint32_t id)
    : Line("zs_cmi_get_name_for_id") {
  q(kQueue);
  number("vsan", vsan);
  bytes("context", zeros(kContextSize));
  number("zero", 0);
  active(0);
  number("kind", kind);
  number("id", id);
  argument("name", Value::not_null());
  call()->answer_required = true;
}

ZoneNameQuery query_name_for_id(uint32_t vsan, int32_t kind, uint32_t id) {
  return {vsan, kind, id};
}

PoliciesQuery::PoliciesQuery(uint32_t vsan) : Line("zs_cmi_get_all_policies") {
  q(kQueue);
  number("one", 1);
  number("vsan", vsan);
  bytes("context", zeros(kContextSize));
  number("zero", 0);
  text("policies", "preset to null");
  call()->answer_required = true;
}

PoliciesQuery query_policies(uint32_t vsan) {
  return PoliciesQuery(vsan);
}

PolicyRead::PolicyRead(const Bytes& policies) : Line("zs_cmi_get_policy") {
  bytes("policies", policies);
  number("a", 0);
  number("b", 0);
  number("c", 0);
  call()->answer_required = true;
}

PolicyRead read_policy(const Bytes& policies) {
  return PolicyRead(policies);
}

namespace {

Argument context_argument(const void* context) {
  return bytes_argument("context", context, kContextSize);
}

uint32_t argument_of(const Call& call, const char* name) {
  for (const Argument& argument : call.arguments) {
    if (strcmp(argument.name, name) == 0) return static_cast<uint32_t>(argument.value.as_number());
  }
  return 0;
}

int32_t respond_to(const Call& call, int32_t* count, void** reply) {
  ZoneReadResponse response = responder->respond(
      {call.function, argument_of(call, "vsan"), static_cast<int32_t>(argument_of(call, "active")),
       argument_of(call, "id"), static_cast<int32_t>(argument_of(call, "parent_kind")),
       argument_of(call, "parent_id"), argument_of(call, "member_id")});
  *count = response.count;
  if (response.reply) *reply = give_out(*response.reply, call.function, responder->owner());
  return response.result;
}

// A member as it lies in a responder's reply.
int32_t parse_in_place(const void* entry, uint8_t* type, int32_t* length, const void** value,
                       const void** lun) {
  const auto* bytes = static_cast<const uint8_t*>(entry);
  *type = bytes[20];
  memcpy(length, bytes, sizeof *length);
  *value = bytes + kMemberEntrySize;
  size_t behind = *type == 225 || *type == 241 ? 8 : 4;
  bool has_lun = behind == 8 || *type == 227 || *type == 243;
  *lun = has_lun ? bytes + kMemberEntrySize + behind : nullptr;
  return 0;
}

// A read: the arguments of the one function that are not those of all.
int32_t read(Call call, int32_t q, uint32_t vsan, const void* context, int32_t zero, int32_t active,
             int32_t* count, void** reply) {
  call.arguments.push_back(number_argument("q", q));
  call.arguments.push_back(number_argument("vsan", vsan));
  call.arguments.push_back(context_argument(context));
  call.arguments.push_back(number_argument("zero", zero));
  call.arguments.push_back(number_argument("active", active));
  call.arguments.push_back({"count", count == nullptr ? Value::null() : Value::number(*count)});
  call.arguments.push_back(preset_argument("reply", reply));
  if (responder != nullptr) return respond_to(call, count, reply);
  Answer answer = answer_to(call);
  if (count != nullptr && answer.count) *count = static_cast<int32_t>(*answer.count);
  if (reply != nullptr) {
    if (void* block = hand_out_block(answer, call.function)) *reply = block;
  }
  return static_cast<int32_t>(answer.result);
}

int32_t read_one(const char* function, int32_t q, int32_t exact, uint32_t vsan, const void* context,
                 int32_t zero, int32_t active, uint32_t id, int32_t* count, void** reply) {
  HeapLedger::Pause pause;
  return read({function, {number_argument("exact", exact), number_argument("id", id)}}, q, vsan,
              context, zero, active, count, reply);
}

int32_t read_all(const char* function, int32_t q, uint32_t vsan, const void* context, int32_t zero,
                 int32_t active, int32_t* count, void** reply) {
  HeapLedger::Pause pause;
  return read({function, {}}, q, vsan, context, zero, active, count, reply);
}

// A change: the arguments of the one function that are not those of all.
int32_t change(Call call, int32_t q, uint32_t vsan, const char* empty1, const char* empty2,
               void* context) {
  call.arguments.push_back(number_argument("q", q));
  call.arguments.push_back(number_argument("vsan", vsan));
  call.arguments.push_back(text_argument("empty1", empty1));
  call.arguments.push_back(text_argument("empty2", empty2));
  call.arguments.push_back(context_argument(context));
  const Answer answer = answer_to(call);
  if (!answer.numbers.empty()) memset(context, 0xa7, kContextSize);
  return static_cast<int32_t>(answer.result);
}

// The member buffer: as long as the heap block that it is; else as long as is expected.
Argument member_argument(const char* function, const void* member) {
  return bytes_argument("member", member,
                        live_block_size(member, expected_size(function, "member")));
}

}  // namespace
}  // namespace test_support

using namespace test_support;  // NOLINT: the platform's names stand outside of namespaces

extern "C" {

int32_t zs_cmi_get_zone_set(int32_t q, int32_t exact, uint32_t vsan, void* context, int32_t zero,
                            int32_t active, uint32_t id, int32_t* count, void** reply) {
  return read_one("zs_cmi_get_zone_set", q, exact, vsan, context, zero, active, id, count, reply);
}

int32_t zs_cmi_get_zone(int32_t q, int32_t exact, uint32_t vsan, void* context, int32_t zero,
                        int32_t active, uint32_t id, int32_t* count, void** reply) {
  return read_one("zs_cmi_get_zone", q, exact, vsan, context, zero, active, id, count, reply);
}

int32_t zs_cmi_get_alias(int32_t q, int32_t exact, uint32_t vsan, void* context, int32_t zero,
                         int32_t active, uint32_t id, int32_t* count, void** reply) {
  return read_one("zs_cmi_get_alias", q, exact, vsan, context, zero, active, id, count, reply);
}

int32_t zs_cmi_get_all_zone_sets_in_vsan(int32_t q, uint32_t vsan, void* context, int32_t zero,
                                         int32_t active, int32_t* count, void** reply) {
  return read_all("zs_cmi_get_all_zone_sets_in_vsan", q, vsan, context, zero, active, count, reply);
}

int32_t zs_cmi_get_all_zones_in_vsan(int32_t q, uint32_t vsan, void* context, int32_t zero,
                                     int32_t active, int32_t* count, void** reply) {
  return read_all("zs_cmi_get_all_zones_in_vsan", q, vsan, context, zero, active, count, reply);
}

int32_t zs_cmi_get_all_aliases_in_vsan(int32_t q, uint32_t vsan, void* context, int32_t zero,
                                       int32_t active, int32_t* count, void** reply) {
  return read_all("zs_cmi_get_all_aliases_in_vsan", q, vsan, context, zero, active, count, reply);
}

int32_t zs_cmi_get_member(int32_t q, int32_t exact, uint32_t vsan, void* context, int32_t zero,
                          int32_t active, int32_t parent_kind, uint32_t parent_id,
                          uint32_t member_id, int32_t* count, void** reply, int32_t zero2) {
  HeapLedger::Pause pause;
  return read({"zs_cmi_get_member",
               {number_argument("exact", exact), number_argument("parent_kind", parent_kind),
                number_argument("parent_id", parent_id), number_argument("member_id", member_id),
                number_argument("zero2", zero2)}},
              q, vsan, context, zero, active, count, reply);
}

int32_t zs_api_parse_member(const void* entry, uint8_t* type, int32_t* length, const void** value,
                            const void** lun) {
  HeapLedger::Pause pause;
  if (responder != nullptr) return parse_in_place(entry, type, length, value, lun);
  Answer answer =
      answer_to({"zs_api_parse_member", {bytes_argument("entry", entry, kMemberEntrySize)}});
  if (answer.refused || answer.numbers.size() != 2) return static_cast<int32_t>(answer.result);
  Bytes bytes = answer.bytes();
  size_t lun_size = answer.numbers[1];
  auto value_end = bytes.end() - static_cast<ptrdiff_t>(lun_size);
  *type = static_cast<uint8_t>(answer.numbers[0]);
  *length = static_cast<int32_t>(answer.count.value_or(0));
  *value = keep(Bytes(bytes.begin(), value_end));
  *lun = lun_size == 0 ? nullptr : keep(Bytes(value_end, bytes.end()));
  return static_cast<int32_t>(answer.result);
}

int32_t zs_cmi_create_zoning_object(int32_t q, int32_t operation, uint32_t vsan, int32_t kind,
                                    int32_t minus1, const char* name, const char* empty1,
                                    const char* empty2, void* context) {
  HeapLedger::Pause pause;
  return change({"zs_cmi_create_zoning_object",
                 {number_argument("operation", operation), number_argument("kind", kind),
                  number_argument("minus1", minus1), text_argument("name", name)}},
                q, vsan, empty1, empty2, context);
}

int32_t zs_cmi_get_id_for_name(int32_t q, uint32_t vsan, void* context, int32_t zero,
                               int32_t active, int32_t kind, const char* name, uint32_t* id) {
  HeapLedger::Pause pause;
  Answer answer = answer_to(
      {"zs_cmi_get_id_for_name",
       {number_argument("q", q), number_argument("vsan", vsan), context_argument(context),
        number_argument("zero", zero), number_argument("active", active),
        number_argument("kind", kind), text_argument("name", name), pointer_argument("id", id)}});
  if (id != nullptr && !answer.numbers.empty()) *id = answer.numbers[0];
  return static_cast<int32_t>(answer.result);
}

int32_t zs_cmi_get_name_for_id(int32_t q, uint32_t vsan, void* context, int32_t zero,
                               int32_t active, int32_t kind, uint32_t id, char* name) {
  HeapLedger::Pause pause;
  Answer answer = answer_to(
      {"zs_cmi_get_name_for_id",
       {number_argument("q", q), number_argument("vsan", vsan), context_argument(context),
        number_argument("zero", zero), number_argument("active", active),
        number_argument("kind", kind), number_argument("id", id), pointer_argument("name", name)}});
  if (name != nullptr && !answer.refused && answer.text) {
    memcpy(name, answer.text->c_str(), answer.text->size() + 1);
  }
  return static_cast<int32_t>(answer.result);
}

int32_t zs_cmi_add_zone_to_zone_set(int32_t q, int32_t operation, uint32_t vsan,
                                    const char* zone_set, const char* zone, const char* empty1,
                                    const char* empty2, void* context) {
  HeapLedger::Pause pause;
  return change({"zs_cmi_add_zone_to_zone_set",
                 {number_argument("operation", operation), text_argument("zone_set", zone_set),
                  text_argument("zone", zone)}},
                q, vsan, empty1, empty2, context);
}

int32_t zs_cmi_add_alias_to_zone(int32_t q, int32_t operation, uint32_t vsan, const char* zone,
                                 const char* alias, const char* empty1, const char* empty2,
                                 void* context) {
  HeapLedger::Pause pause;
  return change({"zs_cmi_add_alias_to_zone",
                 {number_argument("operation", operation), text_argument("zone", zone),
                  text_argument("alias", alias)}},
                q, vsan, empty1, empty2, context);
}

int32_t zs_cmi_add_zone_member(int32_t q, int32_t operation, uint32_t vsan, const char* parent,
                               int32_t minus1, const void* member, const char* null1,
                               const char* null2, void* context) {
  HeapLedger::Pause pause;
  const char* function = "zs_cmi_add_zone_member";
  return change({function,
                 {number_argument("operation", operation), text_argument("parent", parent),
                  number_argument("minus1", minus1), member_argument(function, member)}},
                q, vsan, null1, null2, context);
}

int32_t zs_cmi_add_alias_member(int32_t q, int32_t operation, uint32_t vsan, const char* parent,
                                int32_t minus1, const void* member, const char* empty1,
                                const char* empty2, void* context) {
  HeapLedger::Pause pause;
  const char* function = "zs_cmi_add_alias_member";
  return change({function,
                 {number_argument("operation", operation), text_argument("parent", parent),
                  number_argument("minus1", minus1), member_argument(function, member)}},
                q, vsan, empty1, empty2, context);
}

int32_t zs_cmi_activate_zone_set(int32_t q, int32_t operation, uint32_t vsan, const char* name,
                                 const char* empty1, const char* empty2, void* context) {
  HeapLedger::Pause pause;
  return change({"zs_cmi_activate_zone_set",
                 {number_argument("operation", operation), text_argument("name", name)}},
                q, vsan, empty1, empty2, context);
}

int32_t zs_cmi_zoneset_distribute(int32_t q, uint32_t vsan, const char* empty1, const char* empty2,
                                  void* context) {
  HeapLedger::Pause pause;
  return change({"zs_cmi_zoneset_distribute", {}}, q, vsan, empty1, empty2, context);
}

int32_t zs_cmi_get_all_policies(int32_t q, int32_t one, uint32_t vsan, void* context, int32_t zero,
                                void** policies) {
  HeapLedger::Pause pause;
  Answer answer =
      answer_to({"zs_cmi_get_all_policies",
                 {number_argument("q", q), number_argument("one", one),
                  number_argument("vsan", vsan), context_argument(context),
                  number_argument("zero", zero), preset_argument("policies", policies)}});
  if (policies != nullptr) {
    if (void* block = hand_out_block(answer, "zs_cmi_get_all_policies")) *policies = block;
  }
  return static_cast<int32_t>(answer.result);
}

uint32_t zs_cmi_get_policy(const void* policies, int32_t a, int32_t b, int32_t c) {
  HeapLedger::Pause pause;
  Answer answer =
      answer_to({"zs_cmi_get_policy",
                 {bytes_argument("policies", policies, live_block_size(policies, 0)),
                  number_argument("a", a), number_argument("b", b), number_argument("c", c)}});
  return answer.refused ? 0 : static_cast<uint32_t>(answer.result);
}

}  // extern "C"

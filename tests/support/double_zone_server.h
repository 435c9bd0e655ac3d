// Lines of the zone server. Every call expects the queue kQueue and a context of 132 zero bytes;
// the words that are always zero, and the texts that are always empty (not null), are checked too.
#ifndef TESTS_SUPPORT_DOUBLE_ZONE_SERVER_H
#define TESTS_SUPPORT_DOUBLE_ZONE_SERVER_H

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/script.h"

namespace test_support {

// A read of zone sets, zones, aliases or members. What is not answered stays as the caller put it.
class ZoneRead : public Line<ZoneRead> {
 public:
  ZoneRead(const char* function, uint32_t vsan, int32_t active, int32_t count_in);
  // Of one object, with `exact` 1.
  ZoneRead& id(uint32_t id);
  // Of a member, with `exact` 1.
  ZoneRead& member(int32_t parent_kind, uint32_t parent_id, uint32_t member_id);
  ZoneRead& exact(int32_t word) { return number("exact", word); }
  // The count that goes in: 1 for one object, 32 for all of a VSAN.
  ZoneRead& count_in(int32_t n) { return number("count", n); }

  // Success; the entries one after another, and their number as the count.
  ZoneRead& gives(const std::vector<Bytes>& entries);
  // Success without a reply, count 0.
  ZoneRead& gives_nothing() { return returns(0).count(0); }
  // A failure that hands out a reply all the same.
  ZoneRead& fails_with_reply(int64_t result, const Bytes& reply);
  // The count that comes out, true or not.
  ZoneRead& count(int32_t n);
  // Only the first n bytes of the reply are handed out.
  ZoneRead& cut_to(size_t n);
};
ZoneRead read_zone_set(uint32_t vsan, int32_t active, uint32_t id);
ZoneRead read_zone(uint32_t vsan, int32_t active, uint32_t id);
ZoneRead read_alias(uint32_t vsan, int32_t active, uint32_t id);
ZoneRead read_all_zone_sets(uint32_t vsan, int32_t active);
ZoneRead read_all_zones(uint32_t vsan, int32_t active);
ZoneRead read_all_aliases(uint32_t vsan, int32_t active);
ZoneRead read_member(uint32_t vsan, int32_t active, int32_t parent_kind, uint32_t parent_id,
                     uint32_t member_id);

// zs_api_parse_member of an entry with these 24 bytes.
class MemberParse : public Line<MemberParse> {
 public:
  MemberParse();
  MemberParse& entry(const Bytes& bytes) { return this->bytes("entry", bytes); }
  MemberParse& any_entry() { return any("entry"); }
  // Success. Value and LUN lie in memory of exactly their sizes until the script ends; an empty LUN
  // is a null pointer.
  MemberParse& as(uint8_t type, const Bytes& value, const Bytes& lun = {});
  // The length told for the value, true or not.
  MemberParse& length(int32_t n);
};
MemberParse parse_member(const Bytes& entry);
MemberParse parse_any_member();

// A read as the double saw it. What its function does not take is 0.
struct ZoneReadRequest {
  std::string function;
  uint32_t vsan = 0;
  int32_t active = 0;
  uint32_t id = 0;
  int32_t parent_kind = 0;
  uint32_t parent_id = 0;
  uint32_t member_id = 0;
};

struct ZoneReadResponse {
  int32_t result = 0;
  int32_t count = 0;
  std::optional<Bytes> reply;
};

// Answers every read while it exists, in place of script lines; other functions still need a
// Script. Members are taken apart as they lie in the reply: the type in byte 20 of the entry, the
// value behind its 24 bytes, the length in its first word. For counting and for sweeps.
class ZoneReadResponder {
 public:
  explicit ZoneReadResponder(std::function<ZoneReadResponse(const ZoneReadRequest&)> answer);
  // Expects that every reply was freed.
  ~ZoneReadResponder();
  ZoneReadResponder(const ZoneReadResponder&) = delete;
  ZoneReadResponder& operator=(const ZoneReadResponder&) = delete;

  size_t calls() const;
  size_t calls(const char* function) const;

  // For the double.
  ZoneReadResponse respond(const ZoneReadRequest& request);
  uint32_t owner() const { return owner_; }

 private:
  std::function<ZoneReadResponse(const ZoneReadRequest&)> answer_;
  std::map<std::string, size_t> calls_;
  uint32_t owner_;
  ZoneReadResponder* outer_;
};

// A change. Answer: returns(result).
class ZoneChange : public Line<ZoneChange> {
 public:
  ZoneChange(const char* function, uint32_t vsan);
  // The context, which the call may write to, is not zero any more afterwards.
  ZoneChange& uses_its_context();
  ZoneChange& operation(int32_t operation) { return number("operation", operation); }
  ZoneChange& says(const char* argument, const char* text) { return this->text(argument, text); }
  ZoneChange& says(const char* argument, int32_t n) { return number(argument, n); }
  ZoneChange& null(const char* argument) { return this->argument(argument, Value::null()); }
  ZoneChange& says(const char* argument, const Bytes& b) { return bytes(argument, b); }
};
ZoneChange create_zoning_object(int32_t operation, uint32_t vsan, int32_t kind, const char* name);
ZoneChange add_zone_to_zone_set(int32_t operation, uint32_t vsan, const char* zone_set,
                                const char* zone);
ZoneChange add_alias_to_zone(int32_t operation, uint32_t vsan, const char* zone, const char* alias);
// The member is the whole buffer: its size too is checked when it is a heap block of the library.
ZoneChange add_zone_member(int32_t operation, uint32_t vsan, const char* zone, const Bytes& member);
ZoneChange add_alias_member(int32_t operation, uint32_t vsan, const char* alias,
                            const Bytes& member);
ZoneChange activate_zone_set(int32_t operation, uint32_t vsan, const char* name);
ZoneChange distribute_zone_set(uint32_t vsan);

// zs_cmi_get_id_for_name; the database is the full one unless active(1) is said.
class ZoneIdQuery : public Line<ZoneIdQuery> {
 public:
  ZoneIdQuery(uint32_t vsan, int32_t kind, const char* name);
  ZoneIdQuery& active(int32_t flag) { return number("active", flag); }
  ZoneIdQuery& gives(uint32_t id) { return returns(0).gives_number(id); }
};
ZoneIdQuery query_id_for_name(uint32_t vsan, int32_t kind, const char* name);

// zs_cmi_get_name_for_id; likewise.
class ZoneNameQuery : public Line<ZoneNameQuery> {
 public:
  ZoneNameQuery(uint32_t vsan, int32_t kind, uint32_t id);
  ZoneNameQuery& active(int32_t flag) { return number("active", flag); }
  // The name is written with its terminator.
  ZoneNameQuery& gives(const char* name) { return gives_text(name); }
};
ZoneNameQuery query_name_for_id(uint32_t vsan, int32_t kind, uint32_t id);

// zs_cmi_get_all_policies, word 1.
class PoliciesQuery : public Line<PoliciesQuery> {
 public:
  explicit PoliciesQuery(uint32_t vsan);
  PoliciesQuery& gives(const Bytes& policies) { return returns(0).hands_out(policies); }
  PoliciesQuery& gives_nothing() { return returns(0); }
  PoliciesQuery& fails_with_block(int64_t result, const Bytes& policies) {
    return returns(result).hands_out(policies);
  }
};
PoliciesQuery query_policies(uint32_t vsan);

// zs_cmi_get_policy(policies, 0, 0, 0) of a live block with the bytes.
class PolicyRead : public Line<PolicyRead> {
 public:
  explicit PolicyRead(const Bytes& policies);
  PolicyRead& gives(uint32_t value) { return returns(value); }
};
PolicyRead read_policy(const Bytes& policies);

}  // namespace test_support

#endif

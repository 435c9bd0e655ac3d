#include <switch_platform/platform_manager.h>

#include <algorithm>

#include "tests/support/double.h"
#include "tests/support/double_system.h"

namespace test_support {
namespace {

constexpr int32_t kPromSize = 498;
constexpr const char* kZeroed = "zeroed";

}  // namespace

NumberQuery::NumberQuery(const char* function, const char* asked, uint32_t n, const char* out)
    : Line(function) {
  q(kQueue);
  number(asked, n);
  argument(out, Value::not_null());
  call()->answer_required = true;
}

NumberQuery entity_of_slot(uint32_t slot) {
  return {"pfm_slot_num_to_entity_index", "slot", slot, "entity"};
}

NumberQuery slot_of_entity(uint32_t entity) {
  return {"pfm_entity_index_to_slot_num", "entity", entity, "slot"};
}

PromQuery::PromQuery() : Line("pfm_get_sprom") {
  q(kQueue);
  number("a", 0);
  number("b", 2);
  number("c", 0);
  text("buffer", kZeroed);
  number("size", kPromSize);
  call()->answer_required = true;
}

PromQuery read_chassis_prom() {
  return {};
}

TextQuery chassis_id() {
  return TextQuery("pdb_get_chassis_id_string");
}

namespace {

int32_t number_query(const char* function, int32_t q, const char* asked, uint32_t n,
                     const char* out, uint32_t* number) {
  Answer answer = answer_to(
      {function,
       {number_argument("q", q), number_argument(asked, n), pointer_argument(out, number)}});
  if (number != nullptr && !answer.numbers.empty()) *number = answer.numbers[0];
  return static_cast<int32_t>(answer.result);
}

}  // namespace
}  // namespace test_support

using namespace test_support;  // NOLINT: the platform's names stand outside of namespaces

extern "C" {

int32_t pfm_slot_num_to_entity_index(int32_t q, uint32_t* entity, uint32_t slot) {
  HeapLedger::Pause pause;
  return number_query("pfm_slot_num_to_entity_index", q, "slot", slot, "entity", entity);
}

int32_t pfm_entity_index_to_slot_num(int32_t q, uint32_t entity, uint32_t* slot) {
  HeapLedger::Pause pause;
  return number_query("pfm_entity_index_to_slot_num", q, "entity", entity, "slot", slot);
}

int32_t pfm_get_sprom(int32_t q, int32_t a, int32_t b, int32_t c, void* buffer, int32_t size) {
  HeapLedger::Pause pause;
  const auto* bytes = static_cast<const uint8_t*>(buffer);
  bool zeroed = buffer != nullptr && std::all_of(bytes, bytes + std::clamp(size, 0, kPromSize),
                                                 [](uint8_t byte) { return byte == 0; });
  Answer answer = answer_to({"pfm_get_sprom",
                             {number_argument("q", q), number_argument("a", a),
                              number_argument("b", b), number_argument("c", c),
                              text_argument("buffer", buffer == nullptr ? nullptr
                                                      : zeroed          ? kZeroed
                                                                        : "not zeroed"),
                              number_argument("size", size)}});
  Bytes content = answer.refused ? Bytes() : answer.bytes();
  if (buffer != nullptr && size > 0) {
    std::copy_n(content.begin(), std::min(content.size(), static_cast<size_t>(size)),
                static_cast<uint8_t*>(buffer));
  }
  return static_cast<int32_t>(answer.result);
}

const char* pdb_get_chassis_id_string(void) {
  HeapLedger::Pause pause;
  return kept_text(answer_to({"pdb_get_chassis_id_string", {}}));
}

}  // extern "C"

#include "tests/support/double_domain_manager.h"

#include <switch_platform/domain_manager.h>

#include "tests/support/double.h"

namespace test_support {
namespace {

struct DomainList : MessageContent {
  std::vector<DomainId> domains;
  int32_t announced = 0;
};

const DomainId* entry(const mts_msg_t* message, int32_t i, const char* function) {
  HeapLedger::Pause pause;
  auto* list = content_of<DomainList>(message, function);
  if (list == nullptr) return nullptr;
  if (i >= 0 && static_cast<size_t>(i) < list->domains.size()) return &list->domains[i];
  if (i >= 0 && i < list->announced) return nullptr;
  double_failure(std::string(function) + " of entry " + std::to_string(i) + " of " +
                 std::to_string(list->domains.size()));
  return nullptr;
}

}  // namespace

Content domain_list(const std::vector<DomainId>& domains) {
  return domain_list(domains, static_cast<int32_t>(domains.size()));
}

Content domain_list(const std::vector<DomainId>& domains, int32_t announced) {
  HeapLedger::Pause pause;
  auto list = std::make_shared<DomainList>();
  list->domains = domains;
  list->announced = announced;
  return list;
}

DomainIdsQuery::DomainIdsQuery() : Line("dm_get_dom_ids_in_sw") {
  q(kQueue);
  number("zero", 0);
  text("message", "preset to null");
  call()->answer_required = true;
}

DomainIdsQuery query_domain_ids() {
  return {};
}

}  // namespace test_support

using namespace test_support;  // NOLINT: the platform's names stand outside of namespaces

extern "C" {

int32_t dm_get_dom_ids_in_sw(int32_t q, int32_t zero, mts_msg_t** message) {
  HeapLedger::Pause pause;
  Call call{"dm_get_dom_ids_in_sw",
            {number_argument("q", q), number_argument("zero", zero),
             preset_argument("message", reinterpret_cast<const void* const*>(message))}};
  Answer answer = answer_to(call);
  if (message != nullptr) *message = hand_out_message(answer, call, q, false);
  return static_cast<int32_t>(answer.result);
}

int32_t dm_parse_get_num_entries(const mts_msg_t* message) {
  HeapLedger::Pause pause;
  auto* list = content_of<DomainList>(message, "dm_parse_get_num_entries");
  return list == nullptr ? 0 : list->announced;
}

uint32_t dm_parse_get_vsan_index_in_vsan(const mts_msg_t* message, int32_t i) {
  const DomainId* domain = entry(message, i, "dm_parse_get_vsan_index_in_vsan");
  return domain == nullptr ? 0 : domain->vsan;
}

uint8_t dm_parse_get_dom_id_in_vsan(const mts_msg_t* message, int32_t i) {
  const DomainId* domain = entry(message, i, "dm_parse_get_dom_id_in_vsan");
  return domain == nullptr ? 0 : domain->domain;
}

}  // extern "C"

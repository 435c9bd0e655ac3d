#include "tests/links/link_doubles.h"

#include <arpa/inet.h>
#include <glib.h>
#include <gtest/gtest.h>

#include <utility>

#include "tests/support/heap_ledger.h"

namespace test_support {
namespace {

InterfaceIndexes* indexes;
bool fc4_types_known;
ListWork work;

template <class Map, class Key>
auto found(const Map& map, const Key& key) {
  const auto at = map.find(key);
  return at == map.end() ? std::nullopt : std::optional(at->second);
}

template <class Value, class Result>
int32_t answer(const std::optional<Value>& value, Result* result) {
  if (!value) return -1;
  *result = *value;
  return 0;
}

InterfaceIndexes* known_indexes(const char* function) {
  if (indexes == nullptr) ADD_FAILURE() << function << " where no interface index is known";
  return indexes;
}

}  // namespace

InterfaceIndexes::InterfaceIndexes() {
  indexes = this;
}

InterfaceIndexes::~InterfaceIndexes() {
  HeapLedger::Pause pause;
  conversions_.clear();
  types_.clear();
  ports_.clear();
  std::vector<std::string>().swap(calls_);
  indexes = nullptr;
}

InterfaceIndexes& InterfaceIndexes::converts(uint32_t fspf, uint32_t if_index) {
  HeapLedger::Pause pause;
  conversions_[fspf] = if_index;
  return *this;
}

InterfaceIndexes& InterfaceIndexes::type(uint32_t if_index, uint8_t type) {
  HeapLedger::Pause pause;
  types_[if_index] = type;
  return *this;
}

InterfaceIndexes& InterfaceIndexes::makes(uint32_t slot, uint32_t port, uint32_t if_index) {
  HeapLedger::Pause pause;
  ports_[{slot, port}] = if_index;
  return *this;
}

std::vector<std::string> InterfaceIndexes::take_calls() {
  return std::exchange(calls_, {});
}

void InterfaceIndexes::called(const std::string& call) {
  HeapLedger::Pause pause;
  calls_.push_back(call);
}

std::optional<uint32_t> InterfaceIndexes::converted(uint32_t fspf) {
  HeapLedger::Pause pause;
  called("convert " + std::to_string(fspf));
  return found(conversions_, fspf);
}

std::optional<uint8_t> InterfaceIndexes::type_of(uint32_t if_index) {
  HeapLedger::Pause pause;
  called("type " + std::to_string(if_index));
  return found(types_, if_index);
}

std::optional<uint32_t> InterfaceIndexes::made(uint32_t slot, uint32_t port) {
  HeapLedger::Pause pause;
  called("fc " + std::to_string(slot) + " " + std::to_string(port));
  return found(ports_, std::pair(slot, port));
}

void InterfaceIndexes::iscsi_asked() {
  called("iscsi");
}

Fc4Types::Fc4Types() {
  fc4_types_known = true;
}

Fc4Types::~Fc4Types() {
  fc4_types_known = false;
}

ListWork list_work() {
  return work;
}

extern "C" {

int32_t __wrap_convert_fspf_if_index_to_if_index(uint32_t fspf_index_be, uint32_t* if_index) {
  InterfaceIndexes* known = known_indexes("convert_fspf_if_index_to_if_index");
  return known == nullptr ? -1 : answer(known->converted(ntohl(fspf_index_be)), if_index);
}

int32_t __wrap_if_index_get_type(uint32_t if_index, uint8_t* type) {
  InterfaceIndexes* known = known_indexes("if_index_get_type");
  return known == nullptr ? -1 : answer(known->type_of(if_index), type);
}

int32_t __wrap_if_index_phy_fc_port_init(uint32_t* if_index, uint32_t slot, uint32_t port) {
  InterfaceIndexes* known = known_indexes("if_index_phy_fc_port_init");
  return known == nullptr ? -1 : answer(known->made(slot, port), if_index);
}

int32_t __wrap_if_index_iscsi_port_init(uint32_t*, uint32_t, uint32_t) {
  InterfaceIndexes* known = known_indexes("if_index_iscsi_port_init");
  if (known != nullptr) known->iscsi_asked();
  return -1;
}

int32_t __wrap_ns_is_set_fc4_type(const void* fc4_map, uint8_t type) {
  if (!fc4_types_known) ADD_FAILURE() << "ns_is_set_fc4_type where no FC-4 type is known";
  return *static_cast<const uint8_t*>(fc4_map) == type ? 0x10 : 0;
}

GSList* __real_cim_g_slist_append(GSList* list, gpointer data);

GSList* __wrap_cim_g_slist_append(GSList* list, gpointer data) {
  ++work.calls;
  work.nodes += g_slist_length(list);
  return __real_cim_g_slist_append(list, data);
}

}  // extern "C"

}  // namespace test_support

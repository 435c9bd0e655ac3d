#include "tests/zoning/interface_double.h"

#include <cstring>

#include "tests/support/heap_ledger.h"

using test_support::HeapLedger;
using zoning_test::platform_interface;

namespace zoning_test {

Interface& platform_interface() {
  static Interface interface;
  return interface;
}

void reset_platform_interface() {
  platform_interface() = Interface{};
}

namespace {

int32_t tell(uint32_t if_index, uint8_t value, uint8_t* out) {
  HeapLedger::Pause pause;
  platform_interface().indexes_asked.push_back(if_index);
  *out = value;
  return 0;
}

}  // namespace
}  // namespace zoning_test

extern "C" {

int32_t __wrap_if_db_str2ifindex(const char* name, uint32_t* if_index) {
  HeapLedger::Pause pause;
  platform_interface().names_asked.emplace_back(name);
  if (std::strcmp(platform_interface().name, name) != 0) return -1;
  *if_index = platform_interface().index;
  return 0;
}

int32_t __wrap_sprintf_if_index(char* dst, uint32_t if_index) {
  HeapLedger::Pause pause;
  platform_interface().indexes_asked.push_back(if_index);
  std::strcpy(dst, platform_interface().shown_name);
  return 0;
}

int32_t __wrap_wwnm_get_ifindex_from_port_wwn(const uint8_t wwn[8], uint32_t* if_index) {
  HeapLedger::Pause pause;
  platform_interface().port_wwns_asked.emplace_back(wwn, wwn + 8);
  *if_index = platform_interface().index;
  return 0;
}

int32_t __wrap_if_index_get_type(uint32_t if_index, uint8_t* type) {
  if (!platform_interface().type_known) return -1;
  return zoning_test::tell(if_index, platform_interface().type, type);
}

int32_t __wrap_if_index_get_slot(uint32_t if_index, uint8_t* slot) {
  return zoning_test::tell(if_index, platform_interface().slot, slot);
}

int32_t __wrap_if_index_get_port(uint32_t if_index, uint8_t* port) {
  return zoning_test::tell(if_index, platform_interface().port, port);
}

}  // extern "C"

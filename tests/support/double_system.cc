#include "tests/support/double_system.h"

#include <switch_platform/system.h>

#include <algorithm>
#include <cstring>

#include "tests/support/double.h"

namespace test_support {
namespace {

constexpr size_t kSystemInfoSize = 1032;

}  // namespace

TextQuery::TextQuery(const char* function) : Line(function) {
  call()->answer_required = true;
}

TextQuery software_version() {
  return TextQuery("srg_sw_ver_get").zero(0);
}

SystemInfoQuery::SystemInfoQuery(uint32_t selector) : Line("snmp_get_sys_info") {
  q(kQueue);
  number("selector", selector);
  call()->answer_required = true;
}

SystemInfoQuery get_system_info(uint32_t selector) {
  return SystemInfoQuery(selector);
}

}  // namespace test_support

using namespace test_support;  // NOLINT: the platform's names stand outside of namespaces

extern "C" {

const char* srg_sw_ver_get(int32_t zero) {
  HeapLedger::Pause pause;
  Answer answer = answer_to({"srg_sw_ver_get", {number_argument("zero", zero)}});
  return kept_text(answer);
}

int32_t snmp_get_sys_info(int32_t q, void* info) {
  HeapLedger::Pause pause;
  if (info == nullptr) {
    double_failure("snmp_get_sys_info without a record");
    return -1;
  }
  uint32_t selector = 0;
  memcpy(&selector, info, sizeof selector);
  Answer answer = answer_to(
      {"snmp_get_sys_info", {number_argument("q", q), number_argument("selector", selector)}});
  Bytes record = answer.refused ? Bytes() : answer.bytes();
  std::copy_n(record.begin(), std::min(record.size(), kSystemInfoSize),
              static_cast<uint8_t*>(info));
  return static_cast<int32_t>(answer.result);
}

}  // extern "C"

// System-information items, one request each.
#include <cim_utils/session.h>

#include <cstddef>

#include "common/exchange.h"
#include "common/wire.h"

namespace cim_utils {
namespace {

constexpr int32_t kNoInformation = 0x40490001;
constexpr wire::Span kSelector[] = {{0, 1, 4}};
constexpr wire::Span kAnswerFirstWord[] = {{4, 1, 4}};
constexpr wire::Span kLastWord[] = {{1028, 1, 4}};

// The number that an item carries, where it carries one.
std::span<const wire::Span> number_of_item(uint32_t selector) {
  if (selector == 4) return kLastWord;
  if (selector == 5 || selector == 6) return kAnswerFirstWord;
  return {};
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t snmp_get_sys_info1(int32_t q, system_information_* info) {
  if (info == nullptr) return kNoInformation;
  {
    wire::InWireOrder on_the_wire(*info, kSelector);
    Reply reply;
    const int32_t status =
        exchange({MTS_OPC_SYSTEM_INFORMATION, MTS_OPERATION_GET, MTS_SAP_SYSTEM_INFORMATION, info,
                  static_cast<int32_t>(sizeof *info)},
                 q, &reply);
    if (status != 0) return status;
    if (!reply.copy(info, sizeof *info)) return kNoInformation;
  }
  wire::convert(info, number_of_item(info->selector));
  return 0;
}

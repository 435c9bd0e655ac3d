#include <cim_utils/formats.h>
#include <cim_utils/session.h>
#include <cim_utils/system.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>

#include "common/exchange.h"

namespace cim_utils {
namespace {

// A text may fill everything behind the selector, the count's place included.
constexpr size_t kLongestText = sizeof(system_information_) - offsetof(system_information_, answer);
constexpr uint32_t kMostComponents = sizeof(system_information_::answer) / sizeof(uint32_t);

// The components of an object identifier. The stride of 3 characters is deliberate: a component of
// three or more digits is partly overwritten by the next.
void render_object_identifier(const system_information_& info, char* dst) {
  const uint32_t count = std::min<uint32_t>(info.count, kMostComponents);
  for (uint32_t i = 0; i < count; ++i) {
    uint32_t component;
    std::memcpy(&component, info.answer + i * sizeof component, sizeof component);
    std::sprintf(dst + 3 * static_cast<size_t>(i), "%u.", component);
  }
}

char* switch_wwn_text(int32_t q) {
  std::memset(newswitch_buf, 0, sizeof newswitch_buf);
  wwn_ wwn;
  if (system_cim_get_switch_wwn(q, &wwn) == 0) {
    cim_sprintf_wwn(newswitch_buf, &wwn);
  } else {
    std::strcpy(newswitch_buf, "N/A");
  }
  return newswitch_buf;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t system_cim_get_switch_wwn(int32_t q, wwn_* wwn) {
  if (wwn == nullptr) return -1;
  Reply reply;
  const int32_t status = exchange(
      {MTS_OPC_SWITCH_WWN, MTS_OPERATION_GET, MTS_SAP_SWITCH_IDENTITY, nullptr, 0, Preset::unknown},
      q, &reply);
  return status == 0 && reply.copy(wwn, sizeof *wwn) ? 0 : -1;
}

int32_t system_cim_parse_sys_info(const system_information_* info, int32_t selector, char* dst) {
  if (info == nullptr || dst == nullptr) return -1;
  switch (selector) {
    case 0:
    case 1:
    case 2:
    case 3: {
      const char* text =
          reinterpret_cast<const char*>(info) + offsetof(system_information_, answer);
      const size_t length = strnlen(text, kLongestText);
      std::memcpy(dst, text, length);
      dst[length] = '\0';
      break;
    }
    case 4:
      render_object_identifier(*info, dst);  // a count of 0 writes nothing
      break;
    case 6: {
      uint32_t hundredths;
      std::memcpy(&hundredths, info->answer, sizeof hundredths);
      std::sprintf(dst, "%u seconds", hundredths / 100);
      break;
    }
    default:
      std::strcpy(dst, "Not Available");
  }
  return static_cast<int32_t>(std::strlen(dst));
}

char* CSgetName(int32_t q) {
  return switch_wwn_text(q);
}

char* CSgetWWN(int32_t q) {
  return switch_wwn_text(q);
}

char* CSgetElementName(int32_t q) {
  std::memset(newswitch_buf, 0, sizeof newswitch_buf);
  system_information_ info{};
  info.selector = 2;
  if (snmp_get_sys_info1(q, &info) != 0) {
    std::strcpy(newswitch_buf, "Not Available");
    std::perror("get sys info error: ");
    return newswitch_buf;
  }
  char text[sizeof info + 8];
  system_cim_parse_sys_info(&info, 2, text);
  std::snprintf(newswitch_buf, sizeof newswitch_buf, "%.255s", text);
  return newswitch_buf;
}

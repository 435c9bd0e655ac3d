#include "tests/formats/platform_texts.h"

#include <algorithm>
#include <cstring>

namespace formats_test {

PlatformTexts& platform() {
  static PlatformTexts texts;
  return texts;
}

void reset_platform() {
  platform() = PlatformTexts{};
}

}  // namespace formats_test

using formats_test::platform;

extern "C" {

int32_t __wrap_wwnm_get_ifindex_from_port_wwn(const uint8_t wwn[8], uint32_t* if_index) {
  platform().asked_wwns.emplace_back(wwn, wwn + 8);
  if (platform().status == 0) *if_index = platform().if_index;
  return platform().status;
}

int32_t __wrap_sprintf_if_index(char* dst, uint32_t if_index) {
  platform().asked_if_indexes.push_back(if_index);
  platform().scratch_was_clear = std::all_of(dst, dst + 64, [](char c) { return c == '\0'; });
  std::memcpy(dst, platform().interface_name.data(), platform().interface_name.size());
  return 0;
}

char* __wrap_ip_addr_to_str(const void* address, char* buffer, int32_t size) {
  platform().asked_addresses.push_back(address);
  platform().buffer = buffer;
  platform().size = size;
  std::memcpy(buffer, platform().address_text.data(), platform().address_text.size());
  return buffer;
}

}  // extern "C"

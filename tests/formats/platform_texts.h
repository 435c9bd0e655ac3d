// Doubles of the three platform functions that render identifiers. They answer what a test has put
// here and write down what they were asked.
#ifndef TESTS_FORMATS_PLATFORM_TEXTS_H
#define TESTS_FORMATS_PLATFORM_TEXTS_H

#include <cstdint>
#include <string>
#include <vector>

namespace formats_test {

struct PlatformTexts {
  // wwnm_get_ifindex_from_port_wwn: a failing call leaves the index alone.
  int32_t status = 0;
  uint32_t if_index = 0;
  std::vector<std::vector<uint8_t>> asked_wwns;

  // sprintf_if_index: copies the name, which may hold any bytes, without adding a terminator.
  std::string interface_name;
  std::vector<uint32_t> asked_if_indexes;
  bool scratch_was_clear = false;  // the 64 bytes of the caller's buffer at the last call

  // ip_addr_to_str: likewise.
  std::string address_text;
  std::vector<const void*> asked_addresses;
  char* buffer = nullptr;
  int32_t size = 0;
};

// The doubles' state; every test starts with a new one.
PlatformTexts& platform();
void reset_platform();

}  // namespace formats_test

#endif  // TESTS_FORMATS_PLATFORM_TEXTS_H

// Doubles of the platform's interface functions: one interface, which answers what a test has put
// here and writes down what was asked.
#ifndef TESTS_ZONING_INTERFACE_DOUBLE_H
#define TESTS_ZONING_INTERFACE_DOUBLE_H

#include <cstdint>
#include <string>
#include <vector>

namespace zoning_test {

struct Interface {
  const char* name = "fc1/5";  // only this name is known
  uint32_t index = 0x12345678;
  uint8_t type = 1;
  uint8_t slot = 1;
  uint8_t port = 4;
  bool type_known = true;
  const char* shown_name = "fc1/5";

  std::vector<std::string> names_asked;
  std::vector<uint32_t> indexes_asked;                // of any function that takes an index
  std::vector<std::vector<uint8_t>> port_wwns_asked;  // eight bytes each
};

// The doubles' state; every test starts with a new one.
Interface& platform_interface();
void reset_platform_interface();

}  // namespace zoning_test

#endif  // TESTS_ZONING_INTERFACE_DOUBLE_H

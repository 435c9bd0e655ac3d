// Doubles of the platform's interface-index functions. They answer what a test has put here and
// write down what they were asked.
#ifndef TESTS_WWN_RULES_INTERFACE_INDEXES_H
#define TESTS_WWN_RULES_INTERFACE_INDEXES_H

#include <cstdint>
#include <string>
#include <vector>

namespace wwn_rules_test {

// A failing function leaves its result alone.
struct Answer {
  int32_t status = 0;
  uint32_t value = 0;
};

struct InterfaceIndexes {
  Answer type;
  Answer slot;
  Answer port;
  Answer channel;
  Answer made;  // of the three *_init functions
  // The calls in order, such as "if_index_get_type(16781312)".
  std::vector<std::string> calls;
};

// The doubles' state; every test starts with a new one.
InterfaceIndexes& platform();
void reset_platform();

}  // namespace wwn_rules_test

#endif  // TESTS_WWN_RULES_INTERFACE_INDEXES_H

// Doubles of the platform's pure functions that the adaptors of links ask: interface indexes and
// FC-4 types. Each test says what they know; they write down what they were asked.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/support/bytes.h"

namespace test_support {

// What the platform knows of interface indexes while this exists. What was not said fails and
// leaves its result alone.
class InterfaceIndexes {
 public:
  InterfaceIndexes();
  ~InterfaceIndexes();
  InterfaceIndexes(const InterfaceIndexes&) = delete;
  InterfaceIndexes& operator=(const InterfaceIndexes&) = delete;

  // convert_fspf_if_index_to_if_index, asked for the bytes of `fspf` in network order.
  InterfaceIndexes& converts(uint32_t fspf, uint32_t if_index);
  // if_index_get_type.
  InterfaceIndexes& type(uint32_t if_index, uint8_t type);
  // if_index_phy_fc_port_init.
  InterfaceIndexes& makes(uint32_t slot, uint32_t port, uint32_t if_index);

  // The calls so far, such as "convert 300", "type 17" and "fc 1 2"; none are left behind.
  std::vector<std::string> take_calls();

  // For the doubles.
  std::optional<uint32_t> converted(uint32_t fspf);
  std::optional<uint8_t> type_of(uint32_t if_index);
  std::optional<uint32_t> made(uint32_t slot, uint32_t port);
  void iscsi_asked();

 private:
  void called(const std::string& call);
  std::map<uint32_t, uint32_t> conversions_;
  std::map<uint32_t, uint8_t> types_;
  std::map<std::pair<uint32_t, uint32_t>, uint32_t> ports_;
  std::vector<std::string> calls_;
};

// The FC-4 types of the platform while this exists: a map is taken for that of a device with a
// type when its first byte is the type.
class Fc4Types {
 public:
  Fc4Types();
  ~Fc4Types();
  Fc4Types(const Fc4Types&) = delete;
  Fc4Types& operator=(const Fc4Types&) = delete;
};

// The nodes that cim_g_slist_append had in front of it, in all calls since the start of the test
// program, and the number of calls.
struct ListWork {
  size_t calls;
  size_t nodes;
};
ListWork list_work();

}  // namespace test_support

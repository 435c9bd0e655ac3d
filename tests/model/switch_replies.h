// What the services send for VSAN 1, as bytes.
#pragma once

#include "tests/support/double_cmi.h"

namespace records {

using namespace test_support;

// The domain manager's configuration of VSAN 1: enabled, VSAN WWN 2001000DEC0A1B2D.
inline Bytes domain_configuration_1() {
  return Record(1152)
      .be32(0, 1)
      .be32(4, 1)
      .put(22, hex("20 01 00 0d ec 0a 1b 2d"))
      .byte(334, 1)
      .put(340, hex("20 01 00 0d ec 0a 1b 99"));
}

// The VSAN manager's entry of VSAN 1 in the operational state.
inline Bytes vsan_1(uint32_t oper_state) {
  return Record(2632)
      .be32(520, 1)
      .be32(528, 1)
      .be32(544, 2)
      .be32(552, oper_state)
      .text(556, "a name of more than thirty characters");
}

inline Exchange domain_configuration_of_vsan_1() {
  return get(264).sap(14).sends(Record(1152).be32(0, 1).be32(4, 1));
}

inline Exchange entry_of_vsan_1() {
  return get(149).sap(15).sends(Record(2632).be32(520, 1));
}

}  // namespace records

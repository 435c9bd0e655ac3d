// Records and replies of the tests of the switch as hardware, written by offset.
#pragma once

#include <cim_utils/session.h>
#include <switch_platform/records_platform_manager.h>

#include "tests/model/computer_system_records.h"
#include "tests/model/port_records.h"
#include "tests/support/double_system.h"

namespace records {

using namespace test_support;

// The software version is asked for once in a process; every test of this process sees this one.
inline void know_version() {
  static const bool known = [] {
    Script script;
    script.expect(software_version().zero(0)).gives("3.2(1a)");
    getSwitchVersion();
    return true;
  }();
  static_cast<void>(known);
}

// The serial PROM of the chassis. What stands in front of the serial number is none of its text.
inline Record chassis_prom() {
  return Record(498).text(40, "not the number").text(54, "VX07123450A").text(74, "73-8158-07");
}

// The module of entity 22, whose oper status is 3 and whose admin status is 2.
inline Record module_22_bytes() {
  return Record(316).host32(0, 22).host32(4, 2).host32(8, 3).host32(304, 9);
}
inline _vefcModuleEntry module_22() {
  return record_of<_vefcModuleEntry>(module_22_bytes());
}

inline Record entity_22_bytes() {
  return Record(2780).host32(0, 22).text(4, "a description").text(788, "Slot 4 line card");
}
inline _entPhysicalEntry entity_22() {
  return record_of<_entPhysicalEntry>(entity_22_bytes());
}

}  // namespace records

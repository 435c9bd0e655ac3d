// Records and replies of the tests of switches.
#pragma once

#include <cim_utils/fabric_configuration.h>
#include <switch_platform/records_domain_manager.h>

#include "tests/support/double_cmi.h"
#include "tests/support/double_fabric.h"
#include "tests/support/double_mts.h"

namespace records {

using namespace test_support;

// The own switch's WWN, 2000000DEC0A1B3C.
inline const wwn_ kOwnWwn = {{0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x3c}};
// Another switch's, 2000000DEC0A1B4C.
inline const wwn_ kOtherWwn = {{0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x4c}};

// The own switch in VSAN 10, domain 97: WWN 200A000DEC0A1B3D.
inline fcs_cim_ie_ own_element() {
  fcs_cim_ie_ element{};
  element.vsan = 10;
  element.wwn = {{0x20, 0x0a, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x3d}};
  element.attribute_3 = 3;
  element.domain = 97;
  element.attribute_5 = 5;
  element.attribute_6 = 6;
  return element;
}

// The other switch in VSAN 10, domain 239: WWN 200A000DEC0A1B4D.
inline mts_dm_sw_dom_list_info_ other_domain() {
  mts_dm_sw_dom_list_info_ entry{};
  entry.vsan_index = 10;
  entry.request_kind = 1;
  entry.domain_id = 239;
  entry.switch_wwn = {{0x20, 0x0a, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x4d}};
  return entry;
}

inline Exchange own_switch_wwn() {
  return get(1282).sap(46).no_request().length(0);
}
inline Bytes own_wwn() {
  return hex("20 00 00 0d ec 0a 1b 3c");
}

// The domain manager's configuration of VSAN 1 as it is set. The domain ID in use is another.
inline Bytes settings_1(uint8_t domain, uint8_t type, uint8_t priority) {
  return Record(1152)
      .be32(0, 1)
      .be32(4, 1)
      .byte(21, 99)
      .byte(332, domain)
      .byte(333, type)
      .byte(334, 1)
      .byte(337, priority);
}

inline PeerDiscovery discovery() {
  return discover_peers(Record(28).host32(24, 126));
}
inline Receive peers_in_time() {
  return receive().timeout(20).no_token();
}
inline PeerReply two_peers() {
  return peers()
      .answer(hex("20 00 00 0d ec 0a 1b 3c"), 1, hex("0a 00 00 02"))
      .answer(hex("20 00 00 0d ec 0a 1b 4c"), 1, hex("0a 00 00 03"));
}
inline Receive addresses_in_time() {
  return receive().timeout(5);
}
// The list of the fabric's switches; the one of domain 0 is "melbourne".
inline AddressListReply two_names() {
  return switch_addresses().entry(97, "sydney").entry(0, "melbourne");
}

}  // namespace records

// One record of each kind, and the services' answers about them, as every builder of both faces is
// called with.
#pragma once

#include "tests/model/computer_system_records.h"
#include "tests/model/hardware_records.h"
#include "tests/model/port_records.h"
#include "tests/model/switch_records.h"
#include "tests/model/switch_replies.h"
#include "tests/model/zoning_records.h"
#include "tests/support/double_zone_server.h"

namespace builders {

// The records are the caller's; no builder may change them.
struct Inputs {
  vsanNewEntry_t vsan = records::vsan_10();
  mts_dm_sw_conf_ conf = records::configuration_10();
  fcs_cim_ie_ element = records::own_element();
  mts_dm_sw_dom_list_info_ domain = records::other_domain();
  wwn_ own = records::kOwnWwn;
  wwn_ in_vsan = {{0x20, 0x0a, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x4d}};
  wwn_ node = {{0x20, 0x00, 0x00, 0x00, 0xc9, 0x12, 0x34, 0x56}};
  pm_port_info_ port = records::fc12();
  pm_port_info_ ethernet = records::port(records::ethernet_bytes());
  fspfLinkEntry link = records::link(records::link_bytes());
  ns_api_register_req_ disk = records::entry(records::disk_bytes());
  ns_api_register_req_ tape =
      records::entry(records::disk_bytes().put(12, records::hex("10 00 00 00 c9 77 77 77")));
  fcIfAllCounters_t counters =
      records::record_of<fcIfAllCounters_t>(records::counters_by_offset(records::kFc12));
  zs_cim_zone_set_ zone_set = records::zone_set_7();
  zs_cim_zone_ zone = records::zone_12();
  zs_cim_alias_ alias = records::alias_4();
  zs_cim_zone_member_ member = records::member_of_fcid();
  _vefcModuleEntry module = records::module_22();
  _entPhysicalEntry entity = records::entity_22();
};

inline constexpr const char* kNamespace = "root/cimv2";
inline constexpr const char* kOwn = "2000000DEC0A1B3C";
inline constexpr const char* kOther = "2000000DEC0A1B4C";
inline constexpr const char* kNode = "20000000C9123456";

// The domain manager's configuration of VSAN 1: WWN 2001000DEC0A1B2D, domain 97, locked, priority
// 254.
inline test_support::Bytes domain_settings_1() {
  return test_support::Record(1152)
      .be32(0, 1)
      .be32(4, 1)
      .put(22, records::hex("20 01 00 0d ec 0a 1b 2d"))
      .byte(332, 97)
      .byte(333, 1)
      .byte(334, 1)
      .byte(337, 254);
}

// Without what may stand behind it, so that a byte less is one too few.
inline test_support::Bytes up_to_the_end_of_the_entry(test_support::Bytes vsan_reply) {
  vsan_reply.resize(2628);
  return vsan_reply;
}

// Every message has an answer with all that is asked for.
inline test_support::Response answer(const test_support::Request& request) {
  using test_support::Response;
  constexpr uint32_t kDomainEntry = 264;
  constexpr uint32_t kDomainOfSwitch = 267;
  constexpr uint32_t kVsanEntry = 149;
  constexpr uint32_t kLinks = 53;
  constexpr uint32_t kSwitchWwn = 1282;
  switch (request.opcode) {
    case kDomainEntry:
      if (request.be32(0) == 1) return Response::with(domain_settings_1());
      return Response::with(records::domain_97().put(22, records::hex("20 0a 00 0d ec 0a 1b 2d")));
    case kDomainOfSwitch:
      // The domain is the second byte of the word behind the VSAN.
      return Response::with((request.be32(4) >> 16 & 0xff) == 239 ? records::switch_239()
                                                                  : records::switch_97());
    case kVsanEntry:
      return Response::with(up_to_the_end_of_the_entry(
          request.be32(520) == 1 ? records::vsan_1(1) : records::vsan_10_entry()));
    case kLinks:
      return Response::with(records::one_link());
    case kSwitchWwn:
      return Response::with(records::own_wwn());
    default:
      return Response::failed(17);
  }
}

// What is asked by functions of their own: the lines of one builder's call. Those of the CMPI
// face's queue, which some builders of the Pegasus face ask on too, are given that.
using Lines = void (*)(test_support::Script& script, int32_t cmpi_queue);

inline void no_lines(test_support::Script&, int32_t) {}

inline void another_switch(test_support::Script& script, int32_t cmpi_queue) {
  script.expect(records::discovery()).sent();
  script.expect(records::peers_in_time()).receives(records::two_peers());
  script.expect(test_support::query_switch_addresses().q(cmpi_queue)).sent();
  script.expect(records::addresses_in_time().q(cmpi_queue)).receives(records::two_names());
}

inline void optics(test_support::Script& script, int32_t cmpi_queue) {
  script.expect(records::optics_of_fc12().q(cmpi_queue)).gives(records::optics(1));
}

inline void chassis(test_support::Script& script, int32_t) {
  script.expect(test_support::chassis_id()).gives("QRX4416");
}

inline void prom(test_support::Script& script, int32_t) {
  script.expect(test_support::read_chassis_prom()).gives(records::chassis_prom());
}

inline void chassis_and_prom(test_support::Script& script, int32_t cmpi_queue) {
  chassis(script, cmpi_queue);
  prom(script, cmpi_queue);
}

inline void slot(test_support::Script& script, int32_t) {
  script.expect(test_support::slot_of_entity(22)).gives(3);
}

// The policies are the zone server's own business; one byte stands for them.
inline void policies(test_support::Script& script, int32_t) {
  const test_support::Bytes block = records::hex("70");
  script.expect(test_support::query_policies(10)).gives(block);
  script.expect(test_support::read_policy(block)).gives(1);
}

inline void system_name(test_support::Script& script, int32_t) {
  script.expect(test_support::get_system_info(2))
      .gives(test_support::Record(1032).host32(0, 2).text(4, "sydney"));
}

inline void system_name_twice(test_support::Script& script, int32_t cmpi_queue) {
  system_name(script, cmpi_queue);
  system_name(script, cmpi_queue);
}

}  // namespace builders

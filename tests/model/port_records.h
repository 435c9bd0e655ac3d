// Records and replies of the port classes' tests, written by offset.
#pragma once

#include <switch_platform/records_fspf.h>
#include <switch_platform/records_name_server.h>
#include <switch_platform/records_port_manager.h>

#include <cstring>

#include "tests/support/double_cmi.h"
#include "tests/support/double_port_manager.h"

namespace records {

using namespace test_support;

template <class Struct>
Struct record_of(const Bytes& bytes) {
  Struct record{};
  if (bytes.size() == sizeof record) std::memcpy(&record, bytes.data(), sizeof record);
  return record;
}

// ---- interface indexes: type, slot, unit
inline constexpr uint32_t kFc11 = 0x01010001;               // fc1/1: port 0
inline constexpr uint32_t kFc12 = 0x01010002;               // fc1/2: port 1
inline constexpr uint32_t kFc23 = 0x01020003;               // fc2/3: port 2
inline constexpr uint32_t kGigabitEthernet22 = 0x02020002;  // port 1
inline constexpr uint32_t kPortChannel5 = 0x04000005;
inline constexpr uint32_t kEthernetChannel2 = 0x04010002;
inline constexpr uint32_t kMgmt0 = 0x05000001;
inline constexpr uint32_t kSupFc0 = 0x06000001;
inline constexpr uint32_t kFcip7 = 0x0a000007;
inline constexpr uint32_t kIscsi31 = 0x0b030001;
inline constexpr uint32_t kNoType = 0x03000001;  // the platform knows no type 3

// ---- port manager

// fc1/2 of the own switch, up at 2 Gb/s in VSAN 10, a port of a link (TE), with optics.
inline Record fc12_bytes() {
  return Record(204)
      .host32(0, kFc12)
      .text(8, "to switch-2")
      .host32(89, 4)
      .host32(94, 1000)
      .byte(98, 1)
      .host16(102, 1500)
      .host32(104, 10)
      .put(127, hex("20 42 00 0d ec 0a 1b 3c"))
      .put(135, hex("00 61 02 01"))
      .host32(143, 8)
      .host32(147, 2000)
      .byte(151, 1)
      .byte(154, 1)
      .byte(201, 1);
}
inline pm_port_info_ port(const Bytes& bytes) {
  return record_of<pm_port_info_>(bytes);
}
inline pm_port_info_ fc12() {
  return port(fc12_bytes());
}

// gigabitethernet2/2, up, in no VSAN, without optics.
inline Record ethernet_bytes() {
  return Record(204)
      .host32(0, kGigabitEthernet22)
      .byte(98, 2)
      .host16(102, 1500)
      .put(127, hex("00 0d ec 0a 1b 10"))
      .put(135, hex("0a 00 00 07"))
      .host32(147, 1000)
      .byte(151, 1);
}

// A port of the type that an index tells, in no VSAN, without optics.
inline pm_port_info_ port_of(uint32_t if_index) {
  return port(Record(204).host32(0, if_index).put(127, hex("20 42 00 0d ec 0a 1b 3c")));
}

inline PortQuery optics_of_fc12() {
  return get_fcot(kFc12);
}
// The ninth byte tells whether the optics are supported.
inline Bytes optics(uint8_t supported) {
  return Record(9).byte(8, supported);
}

// Each counter has its offset as its value.
inline Bytes counters_by_offset(uint32_t if_index) {
  Record block(600);
  block.host32(0, if_index);
  for (uint16_t offset = 8; offset < 600; offset += 8)
    block.host64(offset, offset);
  return block;
}

// ---- VSAN manager

inline Exchange entry_of_vsan_10() {
  return get(149).sap(15).sends(Record(2632).be32(520, 10));
}
inline Bytes vsan_10_entry(const char* name = "blue") {
  return Record(2632).be32(520, 10).be32(528, 1).be32(552, 1).text(556, name);
}

// ---- domain manager and FSPF: the own switch is domain 97 of VSAN 10, the other one domain 239

inline Exchange own_domain_in_vsan_10() {
  return get(264).sap(14).sends(Record(1152).be32(0, 10).be32(4, 1));
}
inline Record domain_97() {
  return Record(1152).be32(0, 10).be32(4, 1).byte(21, 97).byte(334, 1);
}

inline Exchange links_of_domain_97() {
  return get(53).sap(29).sends(Record(36).be32(0, 10).be32(4, 97).be32(8, 1));
}
// fc1/2 (FSPF's 0x80802) to fc2/3 (0x81003) of domain 239.
inline Record one_link() {
  return Record(72)
      .be32(28, 1)
      .be32(36, 10)
      .be32(40, 97)
      .be32(44, 2)
      .be32(48, 3)
      .be32(52, 239)
      .be32(56, 0x80802)
      .be32(60, 0x81003);
}

inline Exchange switch_of(uint32_t vsan, uint8_t domain) {
  return get(267).sap(14).sends(Record(19).be32(0, vsan).byte(4, 1).byte(5, domain));
}
// The other switch: 200A000DEC0A1B4D in VSAN 10.
inline Record switch_239() {
  return Record(19).be32(0, 10).byte(4, 1).byte(5, 239).put(6, hex("20 0a 00 0d ec 0a 1b 4d"));
}
// The own switch: 200A000DEC0A1B3D in VSAN 10.
inline Record switch_97() {
  return Record(19).be32(0, 10).byte(4, 1).byte(5, 97).put(6, hex("20 0a 00 0d ec 0a 1b 3d"));
}

// The link as the adaptor hands it out.
inline Record link_bytes() {
  return Record(36)
      .host32(0, 10)
      .host32(4, 97)
      .host32(8, 2)
      .host32(12, 3)
      .host32(16, 239)
      .host32(20, kFc12)
      .host32(24, kFc23)
      .host32(28, 7)
      .host32(32, 8);
}
inline fspfLinkEntry link(const Bytes& bytes) {
  return record_of<fspfLinkEntry>(bytes);
}

// ---- name server

// A disk (N_Port 10000000C9123456, FC ID 610201) in VSAN 10 with FC-4 types 5 and 8 on the switch
// port 2042000DEC0A1B3C.
inline Record disk_bytes() {
  return Record(768)
      .host32(4, 10)
      .put(8, hex("ff 61 02 01"))
      .put(12, hex("10 00 00 00 c9 12 34 56"))
      .put(36, hex("00 00 01 20"))
      .host32(196, 1)
      .put(200, hex("20 00 00 00 c9 12 34 56"))
      .put(208, hex("0a 00 00 09"))
      .put(236, hex("20 42 00 0d ec 0a 1b 3c"));
}
// The same as an iSCSI initiator: FC-4 type 225.
inline Record iscsi_bytes() {
  return disk_bytes().put(64, hex("00 00 00 02"));
}
inline ns_api_register_req_ entry(const Bytes& bytes) {
  return record_of<ns_api_register_req_>(bytes);
}

}  // namespace records

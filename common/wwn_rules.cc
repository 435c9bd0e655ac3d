#include <cim_utils/wwn_rules.h>

#include <cstddef>
#include <cstdio>
#include <cstring>

#include <switch_platform/if_index.h>

#include "common/maker_oui.h"

// Every rule is written once, on 8 bytes, in the _str function; its twin on wwn_ records calls
// that.

namespace {

constexpr int kFailed = -1;

constexpr uint32_t kMcDataOui = 0x080088;
constexpr uint32_t kBrocadeOui = 0x006069;
constexpr uint32_t kInrangeOui = 0x0060DF;
constexpr uint32_t kQlogicOui = 0x00C0DD;

// Byte 0: NAA 2 carries the VSAN number or the place of a port behind it, NAA 1 carries nothing.
constexpr uint8_t kNaa1 = 0x10;
constexpr uint8_t kNaa2 = 0x20;
constexpr uint8_t kPortChannelBit = 0x04;
constexpr uint8_t kNaa10 = 0xA0;

// McDATA counts the ports of a switch from 4.
constexpr uint32_t kFirstMcDataPort = 4;

constexpr uint8_t kPortChannelType = 4;
constexpr uint8_t kFcipType = 10;

const uint8_t* bytes_of(const wwn_* wwn) {
  return wwn == nullptr ? nullptr : wwn->bytes;
}
uint8_t* bytes_of(wwn_* wwn) {
  return wwn == nullptr ? nullptr : wwn->bytes;
}

// A copy to work on: the result may be the same record as the source.
struct Wwn {
  explicit Wwn(const uint8_t* source) { std::memcpy(byte, source, sizeof byte); }
  int store(uint8_t* out) const {
    std::memcpy(out, byte, sizeof byte);
    return 0;
  }
  uint8_t byte[8];
};

bool is_all_zero(const uint8_t* wwn) {
  for (std::size_t i = 0; i < 8; ++i) {
    if (wwn[i] != 0) return false;
  }
  return true;
}

uint32_t vendor_id_of(const uint8_t* wwn) {
  switch (wwn[0] >> 4) {
    case 1:
    case 2:
      return static_cast<uint32_t>(wwn[2] << 16 | wwn[3] << 8 | wwn[4]);
    case 5:  // the low nibble of byte 0, the first digit of an OUI, is not counted
      return static_cast<uint32_t>(wwn[1] << 12 | wwn[2] << 4 | wwn[3] >> 4);
    default:
      return 0;
  }
}

bool is_of_vendor(const uint8_t* wwn, uint32_t oui) {
  return wwn != nullptr && vendor_id_of(wwn) == oui;
}

bool carries_vsan(const Wwn& wwn) {
  return wwn_cim_get_vsan_index_from_wwn_str(wwn.byte) >= 1;
}

// A switch shows in a VSAN its own WWN plus one, with the VSAN number in front.
void make_switch_unique(Wwn& wwn) {
  --wwn.byte[7];
  wwn.byte[0] = kNaa2;
  wwn.byte[1] = 0;
}

// Port WWN of a switch whose ports are numbered in byte 1.
int numbered_port_wwn(uint32_t number, uint8_t* out, const uint8_t* switch_wwn) {
  if (out == nullptr || switch_wwn == nullptr) return kFailed;
  Wwn wwn(switch_wwn);
  wwn.byte[0] = kNaa2;
  wwn.byte[1] = static_cast<uint8_t>(number);
  return wwn.store(out);
}

int switch_wwn_of_numbered_port(uint8_t* out, const uint8_t* port_wwn) {
  if (out == nullptr || port_wwn == nullptr) return kFailed;
  Wwn wwn(port_wwn);
  wwn.byte[0] = kNaa1;
  wwn.byte[1] = 0;
  return wwn.store(out);
}

// The interface index behind a port WWN of the maker.
int maker_if_index(uint32_t* if_index, const uint8_t* port_wwn, bool iscsi) {
  if (port_wwn[0] == (kNaa2 | kPortChannelBit)) {
    return if_index_port_channel_init(if_index, static_cast<uint32_t>(port_wwn[1] - 1));
  }
  if (port_wwn[0] == kNaa10) return kFailed;  // kept, though such a WWN has no vendor
  int port = port_wwn[1] & 0x3F;
  if (iscsi) {
    port >>= 2;
  } else if (port >= 1) {
    --port;
  }
  if (port < 0) return kFailed;
  const uint32_t slot = static_cast<uint32_t>((port_wwn[0] & 0x07) * 4 | port_wwn[1] >> 6);
  return iscsi ? if_index_iscsi_port_init(if_index, slot, static_cast<uint32_t>(port))
               : if_index_phy_fc_port_init(if_index, slot, static_cast<uint32_t>(port));
}

}  // namespace

// ---- Vendors

uint32_t wwn_cim_getVendorId(const wwn_* wwn) {
  return wwn == nullptr ? 0 : vendor_id_of(wwn->bytes);
}

int wwn_cim_isVexor(uint32_t vendor_id, int32_t* index) {
  int32_t i = 0;
  while (i < cim_utils::kFurtherMakerOuiCount &&
         cim_utils::kFurtherMakerOuis[static_cast<std::size_t>(i)] != vendor_id) {
    ++i;
  }
  if (index != nullptr) *index = i;
  return i < cim_utils::kFurtherMakerOuiCount ? 1 : 0;
}

int wwn_cim_isVexorWwn_str(const uint8_t wwn[8]) {
  if (wwn == nullptr) return 0;
  const uint32_t vendor_id = vendor_id_of(wwn);
  return vendor_id == cim_utils::kPrimaryMakerOui || wwn_cim_isVexor(vendor_id, nullptr) == 1;
}

int wwn_cim_isMcDataWwn_str(const uint8_t wwn[8]) {
  return is_of_vendor(wwn, kMcDataOui);
}
int wwn_cim_isBrocadeWwn_str(const uint8_t wwn[8]) {
  return is_of_vendor(wwn, kBrocadeOui);
}
int wwn_cim_isInrangeWwn_str(const uint8_t wwn[8]) {
  return is_of_vendor(wwn, kInrangeOui);
}
int wwn_cim_isQlogicWwn_str(const uint8_t wwn[8]) {
  return is_of_vendor(wwn, kQlogicOui);
}

int wwn_cim_isVexorWwn(const wwn_* wwn) {
  return wwn_cim_isVexorWwn_str(bytes_of(wwn));
}
int wwn_cim_isMcDataWwn(const wwn_* wwn) {
  return wwn_cim_isMcDataWwn_str(bytes_of(wwn));
}
int wwn_cim_isBrocadeWwn(const wwn_* wwn) {
  return wwn_cim_isBrocadeWwn_str(bytes_of(wwn));
}
int wwn_cim_isInrangeWwn(const wwn_* wwn) {
  return wwn_cim_isInrangeWwn_str(bytes_of(wwn));
}
int wwn_cim_isQlogicWwn(const wwn_* wwn) {
  return wwn_cim_isQlogicWwn_str(bytes_of(wwn));
}

// ---- Switches and VSANs

uint32_t wwn_cim_get_vsan_index_from_wwn_str(const uint8_t wwn[8]) {
  return wwn == nullptr ? 0 : static_cast<uint32_t>((wwn[0] & 0x0F) << 8 | wwn[1]);
}

int wwn_cim_get_switch_unique_wwn_str_from_vsan_wwn_str(uint8_t out[8], const uint8_t vsan_wwn[8]) {
  if (out == nullptr || vsan_wwn == nullptr) return kFailed;
  Wwn wwn(vsan_wwn);
  if (wwn_cim_isVexorWwn_str(wwn.byte) == 1 && carries_vsan(wwn)) make_switch_unique(wwn);
  return wwn.store(out);
}

int wwn_cim_get_switch_unique_wwn_from_vsan_wwn(wwn_* out, const wwn_* vsan_wwn) {
  return wwn_cim_get_switch_unique_wwn_str_from_vsan_wwn_str(bytes_of(out), bytes_of(vsan_wwn));
}

int wwn_cim_get_vsan_wwn_str_from_switch_unique_wwn_str(uint32_t vsan, uint8_t out[8],
                                                        const uint8_t switch_wwn[8]) {
  if (out == nullptr || switch_wwn == nullptr) return kFailed;
  Wwn wwn(switch_wwn);
  if (wwn_cim_isVexorWwn_str(wwn.byte) == 1) {
    wwn.byte[0] = static_cast<uint8_t>(kNaa2 + ((vsan >> 8) & 0x0F));
    wwn.byte[1] = static_cast<uint8_t>(vsan);
    ++wwn.byte[7];
  }
  return wwn.store(out);
}

int wwn_cim_get_vsan_wwn_from_switch_unique_wwn(uint32_t vsan, wwn_* out, const wwn_* switch_wwn) {
  return wwn_cim_get_vsan_wwn_str_from_switch_unique_wwn_str(vsan, bytes_of(out),
                                                             bytes_of(switch_wwn));
}

// ---- Port WWN from switch WWN

int wwn_cim_get_vexor_port_wwn_str(uint32_t if_index, uint8_t out[8], const uint8_t switch_wwn[8]) {
  if (out == nullptr || switch_wwn == nullptr) return kFailed;
  uint8_t type = 0;
  if (if_index_get_type(if_index, &type) != 0) return kFailed;

  Wwn wwn(switch_wwn);
  if (carries_vsan(wwn)) make_switch_unique(wwn);

  if (type == kPortChannelType) {
    std::printf("%d is port channel \n", static_cast<int>(if_index));
    uint32_t channel = 0;
    if (if_index_port_channel_get_channel_num(if_index, &channel) != 0) return kFailed;
    wwn.byte[0] |= kPortChannelBit;
    wwn.byte[1] |= static_cast<uint8_t>(channel + 1);
    return wwn.store(out);
  }
  if (type == kFcipType) {
    std::printf("%d is fcip \n", static_cast<int>(if_index));
    return kFailed;
  }

  // Slot and port share ten bits. Large ones run into their neighbours (slots 16 to 19 into the
  // port-channel bit), deliberately: other switches derive the same names.
  uint8_t slot = 0;
  uint8_t port = 0;
  if (if_index_get_slot(if_index, &slot) != 0) return kFailed;
  if (if_index_get_port(if_index, &port) != 0) return kFailed;
  wwn.byte[0] |= static_cast<uint8_t>(slot >> 2);
  wwn.byte[1] |= static_cast<uint8_t>(slot << 6 | (port + 1));
  return wwn.store(out);
}

int wwn_cim_get_mcdata_port_wwn_str(uint32_t port, uint8_t out[8], const uint8_t switch_wwn[8]) {
  return numbered_port_wwn(port + kFirstMcDataPort, out, switch_wwn);
}
int wwn_cim_get_brocade_port_wwn_str(uint32_t port, uint8_t out[8], const uint8_t switch_wwn[8]) {
  return numbered_port_wwn(port, out, switch_wwn);
}
int wwn_cim_get_inrange_port_wwn_str(uint32_t port, uint8_t out[8], const uint8_t switch_wwn[8]) {
  return numbered_port_wwn(port, out, switch_wwn);
}
int wwn_cim_get_qlogic_port_wwn_str(uint32_t port, uint8_t out[8], const uint8_t switch_wwn[8]) {
  return numbered_port_wwn(port, out, switch_wwn);
}

// Makes no test for an all-zero WWN, deliberately: that has no vendor either.
int wwn_cim_get_port_wwn_str(uint32_t port, uint8_t out[8], const uint8_t switch_wwn[8]) {
  if (wwn_cim_isVexorWwn_str(switch_wwn) == 1) {
    return wwn_cim_get_vexor_port_wwn_str(port, out, switch_wwn);
  }
  if (wwn_cim_isMcDataWwn_str(switch_wwn) == 1) {
    return wwn_cim_get_mcdata_port_wwn_str(port, out, switch_wwn);
  }
  if (wwn_cim_isBrocadeWwn_str(switch_wwn) == 1) {
    return wwn_cim_get_brocade_port_wwn_str(port, out, switch_wwn);
  }
  if (wwn_cim_isInrangeWwn_str(switch_wwn) == 1) {
    return wwn_cim_get_inrange_port_wwn_str(port, out, switch_wwn);
  }
  if (wwn_cim_isQlogicWwn_str(switch_wwn) == 1) {
    return wwn_cim_get_qlogic_port_wwn_str(port, out, switch_wwn);
  }
  return kFailed;
}

int wwn_cim_get_vexor_port_wwn(uint32_t if_index, wwn_* out, const wwn_* switch_wwn) {
  return wwn_cim_get_vexor_port_wwn_str(if_index, bytes_of(out), bytes_of(switch_wwn));
}
int wwn_cim_get_mcdata_port_wwn(uint32_t port, wwn_* out, const wwn_* switch_wwn) {
  return wwn_cim_get_mcdata_port_wwn_str(port, bytes_of(out), bytes_of(switch_wwn));
}
int wwn_cim_get_brocade_port_wwn(uint32_t port, wwn_* out, const wwn_* switch_wwn) {
  return wwn_cim_get_brocade_port_wwn_str(port, bytes_of(out), bytes_of(switch_wwn));
}
int wwn_cim_get_inrange_port_wwn(uint32_t port, wwn_* out, const wwn_* switch_wwn) {
  return wwn_cim_get_inrange_port_wwn_str(port, bytes_of(out), bytes_of(switch_wwn));
}
int wwn_cim_get_qlogic_port_wwn(uint32_t port, wwn_* out, const wwn_* switch_wwn) {
  return wwn_cim_get_qlogic_port_wwn_str(port, bytes_of(out), bytes_of(switch_wwn));
}

int wwn_cim_get_port_wwn(uint32_t port, wwn_* out, const wwn_* switch_wwn) {
  if (switch_wwn == nullptr || is_all_zero(switch_wwn->bytes)) return kFailed;
  return wwn_cim_get_port_wwn_str(port, bytes_of(out), switch_wwn->bytes);
}

// ---- Switch WWN from port WWN

int wwn_cim_get_vexor_switch_wwn_str(uint32_t vsan, uint8_t out[8], const uint8_t port_wwn[8]) {
  if (out == nullptr || port_wwn == nullptr) return kFailed;
  Wwn wwn(port_wwn);
  wwn.byte[0] = kNaa2;
  wwn.byte[1] = 0;
  if (vsan != 0) {
    ++wwn.byte[7];
    // The high part is deliberately not masked here: a VSAN above 4095 reaches the NAA.
    wwn.byte[0] = static_cast<uint8_t>((vsan >> 8) | kNaa2);
    wwn.byte[1] = static_cast<uint8_t>(vsan);
  }
  return wwn.store(out);
}

int wwn_cim_get_mcdata_switch_wwn_str(uint8_t out[8], const uint8_t port_wwn[8]) {
  return switch_wwn_of_numbered_port(out, port_wwn);
}
int wwn_cim_get_brocade_switch_wwn_str(uint8_t out[8], const uint8_t port_wwn[8]) {
  return switch_wwn_of_numbered_port(out, port_wwn);
}
int wwn_cim_get_inrange_switch_wwn_str(uint8_t out[8], const uint8_t port_wwn[8]) {
  return switch_wwn_of_numbered_port(out, port_wwn);
}
int wwn_cim_get_qlogic_switch_wwn_str(uint8_t out[8], const uint8_t port_wwn[8]) {
  return switch_wwn_of_numbered_port(out, port_wwn);
}

// Makes no test for an all-zero WWN either.
int wwn_cim_get_switch_wwn_from_port_wwn_str(uint32_t vsan, uint8_t out[8],
                                             const uint8_t port_wwn[8]) {
  if (wwn_cim_isVexorWwn_str(port_wwn) == 1) {
    return wwn_cim_get_vexor_switch_wwn_str(vsan, out, port_wwn);
  }
  if (wwn_cim_isMcDataWwn_str(port_wwn) == 1) {
    return wwn_cim_get_mcdata_switch_wwn_str(out, port_wwn);
  }
  if (wwn_cim_isBrocadeWwn_str(port_wwn) == 1) {
    return wwn_cim_get_brocade_switch_wwn_str(out, port_wwn);
  }
  if (wwn_cim_isInrangeWwn_str(port_wwn) == 1) {
    return wwn_cim_get_inrange_switch_wwn_str(out, port_wwn);
  }
  if (wwn_cim_isQlogicWwn_str(port_wwn) == 1) {
    return wwn_cim_get_qlogic_switch_wwn_str(out, port_wwn);
  }
  return kFailed;
}

int wwn_cim_get_vexor_switch_wwn(uint32_t vsan, wwn_* out, const wwn_* port_wwn) {
  return wwn_cim_get_vexor_switch_wwn_str(vsan, bytes_of(out), bytes_of(port_wwn));
}
int wwn_cim_get_mcdata_switch_wwn(wwn_* out, const wwn_* port_wwn) {
  return wwn_cim_get_mcdata_switch_wwn_str(bytes_of(out), bytes_of(port_wwn));
}
int wwn_cim_get_brocade_switch_wwn(wwn_* out, const wwn_* port_wwn) {
  return wwn_cim_get_brocade_switch_wwn_str(bytes_of(out), bytes_of(port_wwn));
}
int wwn_cim_get_inrange_switch_wwn(wwn_* out, const wwn_* port_wwn) {
  return wwn_cim_get_inrange_switch_wwn_str(bytes_of(out), bytes_of(port_wwn));
}
int wwn_cim_get_qlogic_switch_wwn(wwn_* out, const wwn_* port_wwn) {
  return wwn_cim_get_qlogic_switch_wwn_str(bytes_of(out), bytes_of(port_wwn));
}

int wwn_cim_get_switch_wwn_from_port_wwn(uint32_t vsan, wwn_* out, const wwn_* port_wwn) {
  if (port_wwn == nullptr || is_all_zero(port_wwn->bytes)) return kFailed;
  return wwn_cim_get_switch_wwn_from_port_wwn_str(vsan, bytes_of(out), port_wwn->bytes);
}

// ---- Interface index from port WWN

int wwn_cim_get_port_index_from_wwn_hex(uint32_t* if_index, const uint8_t port_wwn[8],
                                        int32_t iscsi) {
  if (if_index == nullptr || port_wwn == nullptr) return kFailed;
  uint32_t found = 0;
  if (wwn_cim_isVexorWwn_str(port_wwn) == 1) {
    if (maker_if_index(&found, port_wwn, iscsi != 0) != 0) return kFailed;
  } else if (wwn_cim_isMcDataWwn_str(port_wwn) == 1) {
    found = port_wwn[1] - kFirstMcDataPort;
  } else if (wwn_cim_isBrocadeWwn_str(port_wwn) == 1 || wwn_cim_isInrangeWwn_str(port_wwn) == 1 ||
             wwn_cim_isQlogicWwn_str(port_wwn) == 1) {
    found = port_wwn[1];
  } else {
    return kFailed;
  }
  *if_index = found;
  return 0;
}

int wwn_cim_get_port_index_from_wwn(uint32_t* if_index, const char* port_wwn_text, int32_t iscsi) {
  wwn_ port_wwn;
  if (wwn_cim_get_hex_from_str_wwn(port_wwn_text, &port_wwn) != 0) return kFailed;
  return wwn_cim_get_port_index_from_wwn_hex(if_index, port_wwn.bytes, iscsi);
}

int wwn_cim_is_same_wwn_hex(const uint8_t wwn[8], const uint8_t other[8]) {
  return wwn != nullptr && other != nullptr && std::memcmp(wwn, other, 8) == 0;
}

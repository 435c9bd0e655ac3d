// The two sets of entry points, on wwn_ records and on bare arrays of 8 bytes, under one signature,
// so that every test of a rule runs on both.
#ifndef TESTS_WWN_RULES_TWINS_H
#define TESTS_WWN_RULES_TWINS_H

#include <cim_utils/wwn_rules.h>

#include <array>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>

namespace wwn_rules_test {

using Bytes = std::array<uint8_t, 8>;

// What a derivation made: its result and the out WWN, which held kBefore in every byte.
struct Derived {
  int result;
  Bytes wwn;
  bool operator==(const Derived&) const = default;
  friend void PrintTo(const Derived& derived, std::ostream* out) {
    static const char digits[] = "0123456789abcdef";
    *out << derived.result << " ";
    for (const uint8_t byte : derived.wwn)
      *out << digits[byte >> 4] << digits[byte & 15] << " ";
  }
};

inline constexpr uint8_t kBefore = 0xA5;
inline constexpr Bytes kUnchanged = {kBefore, kBefore, kBefore, kBefore,
                                     kBefore, kBefore, kBefore, kBefore};
inline const Derived kFails = {-1, kUnchanged};
inline Derived gives(const Bytes& wwn) {
  return {0, wwn};
}

inline wwn_ record_of(const Bytes& bytes) {
  wwn_ wwn;
  for (std::size_t i = 0; i < bytes.size(); ++i)
    wwn.bytes[i] = bytes[i];
  return wwn;
}

inline Bytes bytes_of(const wwn_& wwn) {
  Bytes bytes;
  for (std::size_t i = 0; i < bytes.size(); ++i)
    bytes[i] = wwn.bytes[i];
  return bytes;
}

// A derivation with a number (port, interface index or VSAN) in front.
struct NumberedRule {
  const char* name;
  int (*record)(uint32_t, wwn_*, const wwn_*);
  int (*array)(uint32_t, uint8_t*, const uint8_t*);

  Derived on_record(uint32_t number, const Bytes& source) const {
    const wwn_ wwn = record_of(source);
    wwn_ out = record_of(kUnchanged);
    const int result = record(number, &out, &wwn);
    return {result, bytes_of(out)};
  }
  Derived on_array(uint32_t number, const Bytes& source) const {
    Bytes out = kUnchanged;
    return {array(number, out.data(), source.data()), out};
  }
};

// A derivation without one.
struct PlainRule {
  const char* name;
  int (*record)(wwn_*, const wwn_*);
  int (*array)(uint8_t*, const uint8_t*);

  Derived on_record(const Bytes& source) const {
    const wwn_ wwn = record_of(source);
    wwn_ out = record_of(kUnchanged);
    const int result = record(&out, &wwn);
    return {result, bytes_of(out)};
  }
  Derived on_array(const Bytes& source) const {
    Bytes out = kUnchanged;
    return {array(out.data(), source.data()), out};
  }
};

struct VendorTest {
  const char* name;
  int (*record)(const wwn_*);
  int (*array)(const uint8_t*);
};

// Both twins must give the same; that is what is compared with the expected value.
template <class Rule, class... Arguments>
Derived both(const Rule& rule, const Arguments&... arguments) {
  const Derived on_record = rule.on_record(arguments...);
  const Derived on_array = rule.on_array(arguments...);
  if (!(on_record == on_array)) return {-99, {}};
  return on_record;
}

inline constexpr NumberedRule kPortWwn = {"port_wwn", wwn_cim_get_port_wwn,
                                          wwn_cim_get_port_wwn_str};
inline constexpr NumberedRule kVexorPortWwn = {"vexor_port_wwn", wwn_cim_get_vexor_port_wwn,
                                               wwn_cim_get_vexor_port_wwn_str};
inline constexpr NumberedRule kMcDataPortWwn = {"mcdata_port_wwn", wwn_cim_get_mcdata_port_wwn,
                                                wwn_cim_get_mcdata_port_wwn_str};
inline constexpr NumberedRule kBrocadePortWwn = {"brocade_port_wwn", wwn_cim_get_brocade_port_wwn,
                                                 wwn_cim_get_brocade_port_wwn_str};
inline constexpr NumberedRule kInrangePortWwn = {"inrange_port_wwn", wwn_cim_get_inrange_port_wwn,
                                                 wwn_cim_get_inrange_port_wwn_str};
inline constexpr NumberedRule kQlogicPortWwn = {"qlogic_port_wwn", wwn_cim_get_qlogic_port_wwn,
                                                wwn_cim_get_qlogic_port_wwn_str};
inline constexpr NumberedRule kVsanWwn = {"vsan_wwn", wwn_cim_get_vsan_wwn_from_switch_unique_wwn,
                                          wwn_cim_get_vsan_wwn_str_from_switch_unique_wwn_str};
inline constexpr NumberedRule kSwitchWwn = {"switch_wwn", wwn_cim_get_switch_wwn_from_port_wwn,
                                            wwn_cim_get_switch_wwn_from_port_wwn_str};
inline constexpr NumberedRule kVexorSwitchWwn = {"vexor_switch_wwn", wwn_cim_get_vexor_switch_wwn,
                                                 wwn_cim_get_vexor_switch_wwn_str};

inline constexpr PlainRule kSwitchUniqueWwn = {"switch_unique_wwn",
                                               wwn_cim_get_switch_unique_wwn_from_vsan_wwn,
                                               wwn_cim_get_switch_unique_wwn_str_from_vsan_wwn_str};
inline constexpr PlainRule kMcDataSwitchWwn = {"mcdata_switch_wwn", wwn_cim_get_mcdata_switch_wwn,
                                               wwn_cim_get_mcdata_switch_wwn_str};
inline constexpr PlainRule kBrocadeSwitchWwn = {
    "brocade_switch_wwn", wwn_cim_get_brocade_switch_wwn, wwn_cim_get_brocade_switch_wwn_str};
inline constexpr PlainRule kInrangeSwitchWwn = {
    "inrange_switch_wwn", wwn_cim_get_inrange_switch_wwn, wwn_cim_get_inrange_switch_wwn_str};
inline constexpr PlainRule kQlogicSwitchWwn = {"qlogic_switch_wwn", wwn_cim_get_qlogic_switch_wwn,
                                               wwn_cim_get_qlogic_switch_wwn_str};

// One WWN of each vendor.
inline constexpr Bytes kMakerSwitch = {0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c};
inline constexpr Bytes kMcData = {0x10, 0x00, 0x08, 0x00, 0x88, 0x0a, 0x1b, 0x2c};
inline constexpr Bytes kBrocade = {0x10, 0x00, 0x00, 0x60, 0x69, 0x0a, 0x1b, 0x2c};
inline constexpr Bytes kInrange = {0x10, 0x00, 0x00, 0x60, 0xdf, 0x0a, 0x1b, 0x2c};
inline constexpr Bytes kQlogic = {0x10, 0x00, 0x00, 0xc0, 0xdd, 0x0a, 0x1b, 0x2c};
inline constexpr Bytes kNobody = {0x10, 0x00, 0x00, 0x11, 0x22, 0x0a, 0x1b, 0x2c};
inline constexpr Bytes kAllZero = {};

}  // namespace wwn_rules_test

#endif  // TESTS_WWN_RULES_TWINS_H

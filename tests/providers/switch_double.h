// A switch with as many VSANs as a test asks for, behind the platform's request call.
#ifndef TESTS_PROVIDERS_SWITCH_DOUBLE_H
#define TESTS_PROVIDERS_SWITCH_DOUBLE_H

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/double_cmi.h"

namespace provider_tests {

inline constexpr uint32_t kCountOpcode = 125;
inline constexpr uint32_t kVsanOpcode = 149;
inline constexpr uint32_t kDomainOpcode = 264;
inline constexpr uint32_t kSystemNameOpcode = 878;
inline constexpr uint32_t kIdentityOpcode = 1282;
inline constexpr uint32_t kElementsOpcode = 1401;
inline constexpr uint32_t kElementOpcode = 1402;
inline constexpr int32_t kNoSuchElement = 0x40350004;
inline constexpr int32_t kNoSuchVsan = 0x40330005;

class SwitchDouble {
 public:
  // VSANs 1 to n, all active and up, each with the WWN 2VVV000DEC0A1B2D that holds its number, and
  // named "VSAN" and its number in four digits.
  explicit SwitchDouble(uint32_t n)
      : responder_([this](const test_support::Request& request) { return answer(request); }) {
    const test_support::HeapLedger::Pause pause;
    for (uint32_t number = 1; number <= n; ++number)
      vsans_[number] = {};
  }
  ~SwitchDouble() {
    const test_support::HeapLedger::Pause pause;
    vsans_.clear();
    elements_.clear();
    changes_.clear();
  }

  // A suspended VSAN is down and has no domain manager.
  void suspend(uint32_t number) { vsans_[number].state = 2; }
  // The domain manager does not run in the VSAN, which then goes by this WWN.
  void alternate_wwn(uint32_t number, const char* wwn) { vsans_[number].alternate = wwn; }
  void remove(uint32_t number) { vsans_.erase(number); }
  void domain_manager_refuses(uint32_t number) { vsans_[number].refused = true; }

  // A switch in a VSAN. The VSANs have none at first.
  void add_switch(uint32_t vsan, const char* wwn, uint8_t domain) {
    elements_.push_back({vsan, test_support::hex(wwn), domain});
  }
  // How the own switch, 2000000DEC0A1B2C, is set in every VSAN: domain 33, not locked, priority 128
  // at first.
  void configure(uint8_t domain, uint8_t type, uint8_t priority) {
    domain_ = domain;
    type_ = type;
    priority_ = priority;
  }
  // What changes are answered with.
  void answer_changes(int32_t status) { change_status_ = status; }
  // The requests that were to change something, in their order, with their opcodes.
  using Change = std::pair<uint32_t, test_support::Bytes>;
  const std::vector<Change>& changes() const { return changes_; }

  test_support::Responder& responder() { return responder_; }
  size_t calls(uint32_t opcode) const { return responder_.calls(opcode); }
  size_t calls() const { return responder_.calls(); }

 private:
  struct Vsan {
    uint32_t state = 1;
    const char* alternate = nullptr;
    bool refused = false;
  };

  test_support::Response answer(const test_support::Request& request) {
    const test_support::HeapLedger::Pause pause;
    if (request.operation == 3) {
      changes_.emplace_back(request.opcode, *request.body);
      return test_support::Response::failed(change_status_);
    }
    switch (request.opcode) {
      case kCountOpcode:
        return test_support::Response::with(
            test_support::Record(4).be32(0, static_cast<uint32_t>(vsans_.size())));
      case kVsanOpcode: {
        const uint32_t number = request.be32(520);
        const auto found =
            request.operation == 2 ? vsans_.upper_bound(number) : vsans_.find(number);
        if (found == vsans_.end()) return test_support::Response::failed(kNoSuchVsan);
        return test_support::Response::with(entry(found->first, found->second));
      }
      case kDomainOpcode: {
        const auto found = vsans_.find(request.be32(0));
        if (found == vsans_.end() || found->second.refused || found->second.state != 1)
          return test_support::Response::failed(kNoSuchVsan);
        return test_support::Response::with(configuration(found->first, found->second));
      }
      case kIdentityOpcode:
        return test_support::Response::with(test_support::hex("20 00 00 0d ec 0a 1b 2c"));
      case kElementsOpcode:
        return test_support::Response::with(elements(request.be32(0)));
      case kElementOpcode:
        return element(request);
      default:
        return test_support::Response::failed(-1);
    }
  }

  static test_support::Bytes entry(uint32_t number, const Vsan& vsan) {
    char name[16];
    std::snprintf(name, sizeof name, "VSAN%04u", number);
    return test_support::Record(2632)
        .be32(520, number)
        .be32(528, vsan.state)
        .be32(544, 2)
        .be32(552, vsan.state)
        .text(556, name);
  }

  test_support::Bytes elements(uint32_t vsan) const {
    std::vector<test_support::Bytes> wwns;
    for (const Element& element : elements_)
      if (element.vsan == vsan) wwns.push_back(element.wwn);
    test_support::Record list(4 + 12 * wwns.size());
    list.be32(0, static_cast<uint32_t>(wwns.size()));
    for (size_t i = 0; i < wwns.size(); ++i)
      list.put(4 + 12 * i, wwns[i]).byte(4 + 12 * i + 10, 1);
    return list;
  }

  test_support::Response element(const test_support::Request& request) const {
    const uint32_t vsan = request.be32(4);
    const test_support::Bytes wwn(request.body->begin() + 8, request.body->begin() + 16);
    for (const Element& each : elements_)
      if (each.vsan == vsan && each.wwn == wwn)
        return test_support::Response::with(
            test_support::Record(32).be32(0, vsan).put(4, wwn).be32(16, each.domain));
    return test_support::Response::failed(kNoSuchElement);
  }

  test_support::Bytes configuration(uint32_t number, const Vsan& vsan) const {
    test_support::Record record(1152);
    record.be32(0, number).be32(4, 1);
    record.byte(332, domain_).byte(333, type_).byte(337, priority_);
    if (vsan.alternate != nullptr) return record.put(340, test_support::hex(vsan.alternate));
    return record.byte(22, static_cast<uint8_t>(0x20 | number >> 8))
        .byte(23, static_cast<uint8_t>(number))
        .put(24, test_support::hex("00 0d ec 0a 1b 2d"))
        .byte(334, 1);
  }

  struct Element {
    uint32_t vsan;
    test_support::Bytes wwn;
    uint8_t domain;
  };

  std::map<uint32_t, Vsan> vsans_;
  std::vector<Element> elements_;
  std::vector<Change> changes_;
  uint8_t domain_ = 33;
  uint8_t type_ = 2;
  uint8_t priority_ = 128;
  int32_t change_status_ = 0;
  test_support::Responder responder_;
};

}  // namespace provider_tests

#endif

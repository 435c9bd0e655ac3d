#include "simulator/fabric/fabric.h"

#include <algorithm>
#include <utility>

#include "simulator/fabric/json.h"

namespace switch_sim {
namespace {

constexpr Wwn kNoWwn{};

template <typename List, typename Key, typename KeyOf>
auto* find_sorted(List& list, const Key& key, KeyOf key_of) {
  const auto found = std::lower_bound(
      list.begin(), list.end(), key,
      [&](const auto& element, const Key& wanted) { return key_of(element) < wanted; });
  return found != list.end() && key_of(*found) == key ? &*found : nullptr;
}

const auto kSwitchWwn = [](const Switch& element) { return element.wwn; };
const auto kVsanNumber = [](const Vsan& element) { return element.number; };
const auto kDomainSwitch = [](const DomainManager& element) { return element.switch_wwn; };

const auto kHolder = [](const DistributedZoning& element) { return element.switch_wwn; };

bool has_control_character(std::string_view text) {
  return std::any_of(text.begin(), text.end(), [](char character) {
    return static_cast<unsigned char>(character) < 0x20 || character == 0x7F;
  });
}

// The problems of one element come without its name, which costs more than the tests themselves.
const char* problem_of(const Switch& element) {
  // The first two bytes are where a VSAN, a slot and a port are written in derived WWNs.
  if ((element.wwn.bytes[0] != 0x20 && element.wwn.bytes[0] != 0x10) || element.wwn.bytes[1] != 0) {
    return "a switch WWN starts with 20:00, another maker's with 10:00";
  }
  if (element.name.empty()) return "the name is empty";
  if (element.name.size() > kLongestSystemName) return "the name is too long";
  if (!is_name(element.name)) return "the name is not UTF-8 of one line";
  for (const std::string* text : {&element.system.contact, &element.system.location,
                                  &element.system.description, &element.system.software_version}) {
    if (text->size() > kLongestSystemText) return "a system text is too long";
    if (text->find('\0') != std::string::npos) return "a system text holds a zero byte";
    if (!json::is_utf8(*text)) return "a system text is not UTF-8";
  }
  if (element.system.object_id.size() > kLongestObjectId) {
    return "the object identifier has too many components";
  }
  return nullptr;
}

const char* problem_of(const Fabric& fabric, const DomainManager& domain) {
  if (find_switch(fabric, domain.switch_wwn) == nullptr) return "no such switch";
  if (domain.enabled != (domain.domain_id != 0)) {
    return "an enabled domain manager has a domain ID, another has none";
  }
  if (domain.domain_id > kLargestDomainId || domain.configured_domain_id > kLargestDomainId) {
    return "a domain ID is at most 239";
  }
  if (domain.configured_priority < 1 || domain.configured_priority > 254) {
    return "a priority lies between 1 and 254";
  }
  if (domain.configured_type == DomainType::static_id && domain.configured_domain_id == 0) {
    return "a static domain ID is not 0";
  }
  return nullptr;
}

std::optional<std::string> problem_of_domains(const Fabric& fabric, const Vsan& vsan) {
  const std::string where = "VSAN " + std::to_string(vsan.number);
  std::array<bool, 256> used{};
  const DomainManager* previous = nullptr;
  for (const DomainManager& domain : vsan.domains) {
    if (previous != nullptr && domain.switch_wwn == previous->switch_wwn) {
      return where + ": two domain managers of " + to_text(domain.switch_wwn);
    }
    previous = &domain;
    if (const char* problem = problem_of(fabric, domain)) {
      return where + ", domain manager of " + to_text(domain.switch_wwn) + ": " + problem;
    }
    if (domain.domain_id != 0 && std::exchange(used[domain.domain_id], true)) {
      return where + ": domain ID " + std::to_string(domain.domain_id) + " is used twice";
    }
  }
  return std::nullopt;
}

// A database keeps its own rules; what is left is who holds it.
std::optional<std::string> problem_of_zoning(const Fabric& fabric, const Vsan& vsan) {
  const std::string where = "VSAN " + std::to_string(vsan.number) + ", zoning: ";
  if (vsan.zoning->active->zone_sets().size() > 1) return where + "two zone sets are active";
  const DistributedZoning* previous = nullptr;
  for (const DistributedZoning& held : vsan.zoning->distributed) {
    const std::string text = to_text(held.switch_wwn);
    if (held.switch_wwn == fabric.local_switch || find_domain(vsan, held.switch_wwn) == nullptr) {
      return where + text + " is no other switch of the VSAN";
    }
    if (previous != nullptr && previous->switch_wwn == held.switch_wwn) {
      return where + text + " holds two databases";
    }
    previous = &held;
  }
  return std::nullopt;
}

std::optional<std::string> problem_of(const Fabric& fabric, const Vsan& vsan) {
  const std::string where = "VSAN " + std::to_string(vsan.number);
  if (vsan.number < 1 || vsan.number > kLargestVsan) {
    return where + ": a VSAN number lies between 1 and 4094";
  }
  if (vsan.name.empty()) return where + ": the name is empty";
  if (vsan.name.size() > kLongestVsanName) return where + ": the name is too long";
  if (!is_name(vsan.name)) return where + ": the name is not UTF-8 of one line";
  if (auto problem = problem_of_domains(fabric, vsan)) return problem;
  if (auto problem = problem_of_zoning(fabric, vsan)) return problem;
  if (vsan.principal_switch != kNoWwn) {
    const DomainManager* principal = find_domain(vsan, vsan.principal_switch);
    if (principal == nullptr || !principal->enabled) {
      return where + ": the principal switch has no enabled domain manager";
    }
  }
  return std::nullopt;
}

}  // namespace

bool is_name(std::string_view text) {
  return !text.empty() && !has_control_character(text) && json::is_utf8(text);
}

void sort(Fabric& fabric) {
  const auto by = [](auto key_of) {
    return [key_of](const auto& left, const auto& right) { return key_of(left) < key_of(right); };
  };
  std::stable_sort(fabric.switches.begin(), fabric.switches.end(), by(kSwitchWwn));
  std::stable_sort(fabric.vsans.begin(), fabric.vsans.end(), by(kVsanNumber));
  for (Vsan& vsan : fabric.vsans) {
    std::stable_sort(vsan.domains.begin(), vsan.domains.end(), by(kDomainSwitch));
    if (vsan.zoning->distributed.size() > 1) {
      auto& distributed = vsan.zoning.change().distributed;
      std::stable_sort(distributed.begin(), distributed.end(), by(kHolder));
    }
  }
  sort_ports(fabric);
}

std::optional<std::string> problem_of(const Fabric& fabric) {
  if (find_switch(fabric, fabric.local_switch) == nullptr) return "the local switch is missing";
  if (is_of_another_maker(fabric.local_switch)) return "the local switch is another maker's";
  for (size_t i = 0; i < fabric.switches.size(); ++i) {
    if (const char* problem = problem_of(fabric.switches[i])) {
      return "switch " + to_text(fabric.switches[i].wwn) + ": " + problem;
    }
    if (i > 0 && fabric.switches[i].wwn == fabric.switches[i - 1].wwn) {
      return "two switches with the WWN " + to_text(fabric.switches[i].wwn);
    }
  }
  for (size_t i = 0; i < fabric.vsans.size(); ++i) {
    if (auto problem = problem_of(fabric, fabric.vsans[i])) return problem;
    if (i > 0 && fabric.vsans[i].number == fabric.vsans[i - 1].number) {
      return "two VSANs with the number " + std::to_string(fabric.vsans[i].number);
    }
  }
  return problem_of_ports(fabric);
}

const Switch* find_switch(const Fabric& fabric, const Wwn& wwn) {
  return find_sorted(fabric.switches, wwn, kSwitchWwn);
}

const Vsan* find_vsan(const Fabric& fabric, uint32_t number) {
  return find_sorted(fabric.vsans, number, kVsanNumber);
}

const Vsan* next_vsan(const Fabric& fabric, uint32_t after) {
  const auto found =
      std::upper_bound(fabric.vsans.begin(), fabric.vsans.end(), after,
                       [](uint32_t number, const Vsan& vsan) { return number < vsan.number; });
  return found != fabric.vsans.end() ? &*found : nullptr;
}

const DomainManager* find_domain(const Vsan& vsan, const Wwn& switch_wwn) {
  return find_sorted(vsan.domains, switch_wwn, kDomainSwitch);
}

Switch& local_switch(Fabric& fabric) {
  return *find_sorted(fabric.switches, fabric.local_switch, kSwitchWwn);
}

const Switch& local_switch(const Fabric& fabric) {
  return *find_sorted(fabric.switches, fabric.local_switch, kSwitchWwn);
}

bool is_running(const Vsan& vsan, const DomainManager& domain) {
  return vsan.state == VsanState::up && domain.enabled;
}

bool is_of_another_maker(const Wwn& switch_wwn) {
  return switch_wwn.bytes[0] == 0x10;
}

Wwn vsan_wwn(const Wwn& switch_wwn, uint32_t vsan) {
  if (is_of_another_maker(switch_wwn)) return switch_wwn;
  Wwn wwn = switch_wwn;
  wwn.bytes[0] = static_cast<uint8_t>(0x20 | (vsan >> 8 & 0x0F));
  wwn.bytes[1] = static_cast<uint8_t>(vsan);
  ++wwn.bytes[7];
  return wwn;
}

std::string to_text(const Wwn& wwn) {
  static constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (const uint8_t byte : wwn.bytes) {
    if (!text.empty()) text += ':';
    text += kDigits[byte >> 4];
    text += kDigits[byte & 15];
  }
  return text;
}

}  // namespace switch_sim

#include "providers/switch_settings.h"

#include <cim_utils/cmpi_computer_system.h>
#include <cim_utils/domain_manager.h>

#include <charconv>
#include <optional>

namespace vexor::providers {
namespace {

constexpr uint32_t kVsan = 1;  // whose settings these are
constexpr int kFirstDomain = 1;
constexpr int kLastDomain = 239;
constexpr uint8_t kLockedType = 1;

// What dm_cim_set_DMEntry changes.
constexpr int32_t kPriority = 1;
constexpr int32_t kDomain = 2;

struct Settings {
  uint8_t domain;
  bool locked;
  uint16_t priority;  // 2 principal, 3 subordinate, 4 any
};

uint16_t priority_code(uint8_t priority) {
  switch (priority) {
    case 1:
      return 2;
    case 254:
      return 3;
    default:
      return 4;
  }
}

Settings current_settings(int32_t q) {
  mts_dm_sw_conf_ configuration{};
  if (dm_cim_get_dmEntry(q, kVsan, 1, &configuration) != 0)
    throw Failure(CMPI_RC_ERR_FAILED, "the domain manager does not tell the switch's settings");
  return {configuration.config_domain, configuration.config_type == kLockedType,
          priority_code(configuration.config_priority)};
}

std::optional<uint16_t> read_priority(const NewValues& values) {
  std::string text;
  if (!values.text("PrincipalPriority", text)) return std::nullopt;
  if (text == "2") return 2;
  if (text == "3") return 3;
  if (text == "4") return 4;
  throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "PrincipalPriority is %.40s, not 2, 3 or 4",
                text.c_str());
}

std::optional<uint8_t> read_domain(const NewValues& values) {
  std::string text;
  if (!values.text("PreferredDomainID", text)) return std::nullopt;
  int number = 0;
  const char* end = text.data() + text.size();
  const auto [stopped, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc{} || stopped != end || number < kFirstDomain || number > kLastDomain)
    throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "PreferredDomainID is %.40s, not %d to %d",
                  text.c_str(), kFirstDomain, kLastDomain);
  return static_cast<uint8_t>(number);
}

std::optional<bool> read_locked(const NewValues& values) {
  std::string text;
  if (!values.text("DomainIDLocked", text)) return std::nullopt;
  if (text == "true") return true;
  if (text == "false") return false;
  throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "DomainIDLocked is %.40s, not true or false",
                text.c_str());
}

void check(int32_t status, const char* what) {
  if (status != 0)
    throw Failure(CMPI_RC_ERR_FAILED, "the domain manager refuses the %s (status %d)", what,
                  status);
}

}  // namespace

std::vector<OwnSwitch> the_own_switch(int32_t) {
  return {OwnSwitch{}};
}

CMPIObjectPath* switch_capabilities_reference(const Target& target, const OwnSwitch&) {
  return fcswitch_cap_fill_reference(target.class_name, target.name_space, target.broker);
}

CMPIInstance* switch_capabilities_instance(const Target& target, const OwnSwitch&) {
  return fcswitch_cap_build_instance(target.class_name, target.name_space, target.properties,
                                     target.broker);
}

CMPIObjectPath* switch_settings_reference(const Target& target, const OwnSwitch&) {
  return fcswitch_set_fill_reference(target.class_name, target.name_space, target.broker);
}

CMPIInstance* switch_settings_instance(const Target& target, const OwnSwitch&) {
  return fcswitch_set_build_instance(target.class_name, target.name_space, target.properties,
                                     target.broker);
}

void modify_switch_settings(int32_t q, const OwnSwitch&, const NewValues& values) {
  const auto priority = read_priority(values);
  const auto domain = read_domain(values);
  const auto locked = read_locked(values);
  if (!priority && !domain && !locked) return;
  const Settings old = current_settings(q);
  const Settings wanted{domain.value_or(old.domain), locked.value_or(old.locked),
                        priority.value_or(old.priority)};
  if (wanted.priority != old.priority)
    check(dm_cim_set_DMEntry(q, kVsan, wanted.priority, 0, 0, kPriority), "priority");
  if (wanted.domain != old.domain || wanted.locked != old.locked)
    check(dm_cim_set_DMEntry(q, kVsan, 0, wanted.domain, wanted.locked ? 1 : 0, kDomain),
          "domain ID");
}

}  // namespace vexor::providers

// Interface names as the command line of the switch shows them.
#include <strings.h>
#include <switch_platform/if_index.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "simulator/local/if_index_layout.h"

namespace {

using switch_sim::InterfaceType;

enum class Numbering {
  slot_and_port,  // "fc2/3": slot, then the port counted from 1
  from_zero,      // "mgmt0": the port counted from 0
  own_number,     // "fcip7"
};

struct NameForm {
  std::string_view prefix;
  InterfaceType type;
  uint32_t slot;  // of a name that does not tell its slot
  Numbering numbering;
};

constexpr std::array<NameForm, 10> kNames = {{
    {"fc", InterfaceType::fibre_channel, 0, Numbering::slot_and_port},
    {"gigabitethernet", InterfaceType::ethernet, 0, Numbering::slot_and_port},
    {"iscsi", InterfaceType::iscsi, 0, Numbering::slot_and_port},
    {"port-channel ", InterfaceType::port_channel, 0, Numbering::own_number},
    {"ethernet-channel ", InterfaceType::port_channel, switch_sim::kEthernetChannel,
     Numbering::own_number},
    {"mgmt", InterfaceType::management, 0, Numbering::from_zero},
    {"sup-fc", InterfaceType::in_band, 0, Numbering::from_zero},
    {"fcip", InterfaceType::fcip, 0, Numbering::own_number},
    {"vsan", InterfaceType::vsan, 0, Numbering::own_number},
    {"internal", InterfaceType::internal, 0, Numbering::from_zero},
}};

const NameForm* form_of(uint32_t if_index) {
  for (const NameForm& form : kNames) {
    if (static_cast<uint8_t>(form.type) != switch_sim::type_bits(if_index)) continue;
    if (form.numbering == Numbering::slot_and_port ||
        form.slot == switch_sim::slot_bits(if_index)) {
      return &form;
    }
  }
  return nullptr;
}

// Reads a decimal number without sign or leading zeros; moves `text` behind it.
bool read_number(const char*& text, uint32_t* number) {
  if (*text < '0' || *text > '9') return false;
  if (*text == '0' && text[1] >= '0' && text[1] <= '9') return false;
  uint32_t value = 0;
  for (; *text >= '0' && *text <= '9'; ++text) {
    value = value * 10 + static_cast<uint32_t>(*text - '0');
    if (value > 0xFFFF) return false;
  }
  *number = value;
  return true;
}

bool read_place(const NameForm& form, const char* text, uint32_t* slot, uint32_t* unit) {
  *slot = form.slot;
  if (form.numbering == Numbering::slot_and_port) {
    if (!read_number(text, slot) || *slot > switch_sim::kLargestSlot || *text++ != '/') {
      return false;
    }
  }
  if (!read_number(text, unit)) return false;
  if (form.numbering == Numbering::from_zero) ++*unit;
  return *text == '\0';
}

}  // namespace

// An index of no interface is shown as a number, so that a trace always tells which one it was.
int32_t sprintf_if_index(char* dst, uint32_t if_index) {
  if (dst == nullptr) return -1;
  const NameForm* form = switch_sim::is_interface(if_index) ? form_of(if_index) : nullptr;
  if (form == nullptr) return snprintf(dst, 64, "unknown (0x%x)", if_index);

  const char* prefix = form->prefix.data();
  const unsigned unit = switch_sim::unit_bits(if_index);
  switch (form->numbering) {
    case Numbering::slot_and_port:
      return snprintf(dst, 64, "%s%u/%u", prefix, switch_sim::slot_bits(if_index), unit);
    case Numbering::from_zero:
      return snprintf(dst, 64, "%s%u", prefix, unit - 1);
    case Numbering::own_number:
      return snprintf(dst, 64, "%s%u", prefix, unit);
  }
  return -1;
}

// The letters of a name are read in either case; everything else must stand as it is shown.
int32_t if_db_str2ifindex(const char* name, uint32_t* if_index) {
  if (name == nullptr || if_index == nullptr) return -1;
  for (const NameForm& form : kNames) {
    if (strncasecmp(name, form.prefix.data(), form.prefix.size()) != 0) continue;
    uint32_t slot = 0;
    uint32_t unit = 0;
    if (!read_place(form, name + form.prefix.size(), &slot, &unit)) continue;
    const uint32_t found = switch_sim::make_if_index(form.type, slot, unit);
    if (unit > 0xFFFF || !switch_sim::is_interface(found)) continue;
    *if_index = found;
    return 0;
  }
  return -1;
}

#include "providers/computer_system.h"

#include <cim_utils/cmpi_computer_system.h>
#include <cim_utils/collections.h>
#include <cim_utils/domain_manager.h>
#include <cim_utils/formats.h>
#include <cim_utils/system.h>
#include <cim_utils/vsan.h>
#include <cim_utils/wwn_rules.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "providers/queue.h"
#include "providers/wwn.h"

namespace vexor::providers {
namespace {

constexpr char kPhysicalSwitch[] = "VEXOR_PhysicalComputerSystem";
constexpr char kLogicalSwitch[] = "VEXOR_LogicalComputerSystem";

// The configuration server's address list, which holds the names of the switches by their domains,
// is that of this VSAN. In another one the same domain may be another switch's.
constexpr uint32_t kVsanOfNames = 1;

// As many characters as the switch's capabilities tell ("MaxElementNameLen").
constexpr size_t kLongestSwitchName = 32;

struct FreeBlock {
  void operator()(void* block) const { std::free(block); }
};
struct FreeList {
  void operator()(GSList* list) const { cim_g_slist_destroy(list, nullptr); }
};

PhysicalSwitch device(const wwn_& wwn, bool remote) {
  PhysicalSwitch made{{}, remote};
  cim_sprintf_wwn(made.wwn, &wwn);
  return made;
}

wwn_ own_wwn(int32_t q) {
  wwn_ wwn{};
  if (system_cim_get_switch_wwn(q, &wwn) != 0)
    throw Failure(CMPI_RC_ERR_FAILED, "the switch identity service does not tell the switch's WWN");
  return wwn;
}

// The VSAN whose part of one of our maker's switches the WWN names; 0 for any other WWN.
uint32_t vsan_of_part(const wwn_& wwn) {
  return wwn_cim_isVexorWwn(&wwn) != 0 ? wwn_cim_get_vsan_index_from_wwn_str(wwn.bytes) : 0;
}

// The WWN that a device shows in a VSAN; another maker's is the same in all.
wwn_ wwn_in_vsan(uint32_t vsan, const wwn_& device_wwn) {
  if (wwn_cim_isVexorWwn(&device_wwn) == 0) return device_wwn;
  wwn_ wwn = device_wwn;
  wwn_cim_get_vsan_wwn_from_switch_unique_wwn(vsan, &wwn, &device_wwn);
  return wwn;
}

// Without one the own switch is not in the VSAN, whatever the VSAN manager says of it, and the
// configuration server refuses to tell the others.
bool domain_manager_runs(int32_t q, uint32_t vsan) {
  mts_dm_sw_conf_ configuration{};
  return dm_cim_get_dmEntry(q, vsan, 1, &configuration) == 0 && configuration.enabled != 0;
}

bool find_element(int32_t q, uint32_t vsan, const wwn_& wwn, fcs_cim_ie_& element) {
  element = {};
  return fcs_cim_get_ie_entry(q, 1, vsan, &wwn, &element) == 0;
}

// The element of a device in a VSAN: under the WWN that it shows there, or under its own.
bool find_device(int32_t q, uint32_t vsan, const wwn_& device_wwn, fcs_cim_ie_& element) {
  const wwn_ shown = wwn_in_vsan(vsan, device_wwn);
  return find_element(q, vsan, shown, element) ||
         (!same_wwn(shown, device_wwn) && find_element(q, vsan, device_wwn, element));
}

// visit(const vsanNewEntry_t&) for the VSANs that are up, in rising order, until it says false.
template <class Visit>
void for_each_running_vsan(int32_t q, Visit visit) {
  vsanNewEntry_t vsan{};
  for (;;) {
    const uint32_t asked = vsan.vsan_index;
    const int32_t status = vsan_cim_get_vsanEntry(q, 0, &vsan);
    if (status < 0)
      throw Failure(CMPI_RC_ERR_FAILED, "the VSAN manager does not answer (status %d)", status);
    if (status != 0 || vsan.vsan_index <= asked) return;
    if (is_up(vsan) && !visit(vsan)) return;
  }
}

const char* part_class(const fcs_cim_ie_& element) {
  return vsan_of_part(element.wwn) > 0 ? kLogicalSwitch : kPhysicalSwitch;
}

void add_elements(int32_t q, const VsanRecord& vsan, std::vector<Component>& found) {
  if (!is_up(vsan.entry)) return;
  const auto shared = std::make_shared<const VsanRecord>(vsan);
  for (const fcs_cim_ie_& element : elements_of(q, vsan.entry.vsan_index))
    found.push_back({shared, element});
}

void add_element(int32_t q, const VsanRecord& vsan, const wwn_& wwn,
                 std::vector<Component>& found) {
  fcs_cim_ie_ element;
  if (is_up(vsan.entry) && find_element(q, vsan.entry.vsan_index, wwn, element))
    found.push_back({std::make_shared<const VsanRecord>(vsan), element});
}

// The VSANs in which a switch is.
std::vector<Component> components_of_switch(int32_t q, const ObjectName& object) {
  wwn_ wwn;
  if (!read_wwn(object.text("Name"), wwn)) return {};
  std::vector<Component> found;
  VsanRecord vsan;
  if (const uint32_t number = vsan_of_part(wwn); number > 0) {
    if (read_vsan(q, number, vsan)) add_element(q, vsan, wwn, found);
    return found;
  }
  for_each_running_vsan(q, [&](const vsanNewEntry_t& entry) {
    fcs_cim_ie_ element;
    if (find_element(q, entry.vsan_index, wwn, element) && read_vsan(q, entry.vsan_index, vsan))
      found.push_back({std::make_shared<const VsanRecord>(vsan), element});
    return true;
  });
  return found;
}

bool wants(const Target& target, const char* property) {
  return target.properties == nullptr || is_in(property, target.properties);
}

void set_name_of_remote_switch(CMPIInstance* instance, const char* wwn_text) {
  wwn_ wwn;
  fcs_cim_ie_ element;
  if (!read_wwn(wwn_text, wwn) || !find_device(queue::handle(), kVsanOfNames, wwn, element)) return;
  char name[257] = {};
  get_remote_switchname(static_cast<uint8_t>(element.domain), name);
  if (name[0] != '\0')
    instance->ft->setProperty(instance, "ElementName", reinterpret_cast<const CMPIValue*>(name),
                              CMPI_chars);
}

}  // namespace

std::vector<fcs_cim_ie_> elements_of(int32_t q, uint32_t vsan) {
  int32_t count = 0;
  fcs_cim_ie_* elements = nullptr;
  const int32_t status = fcs_cim_get_ie_entries_in_vsan(q, vsan, &count, &elements);
  const std::unique_ptr<fcs_cim_ie_, FreeBlock> owner(elements);
  if (status != 0) {
    if (!domain_manager_runs(q, vsan)) return {};
    throw Failure(CMPI_RC_ERR_FAILED,
                  "the fabric configuration server does not give the switches of VSAN %u", vsan);
  }
  if (elements == nullptr || count <= 0) return {};
  return {elements, elements + count};
}

// ---- devices ----

std::vector<PhysicalSwitch> physical_switches(int32_t q) {
  const PhysicalSwitch own = device(own_wwn(q), false);
  GSList* list = nullptr;
  const int32_t status = fcs_cim_get_physical_switch_wwn_lists(q, &list);
  const std::unique_ptr<GSList, FreeList> owner(list);
  if (status != 0) throw Failure(CMPI_RC_ERR_FAILED, "the switches of the fabric cannot be listed");
  std::vector<PhysicalSwitch> devices;
  for (const GSList* node = list; node != nullptr; node = node->next) {
    PhysicalSwitch each{{}, true};
    std::strncpy(each.wwn, static_cast<const char*>(node->data), kWwnText);
    each.remote = std::strcmp(each.wwn, own.wwn) != 0;
    devices.push_back(each);
  }
  // The configuration server of no VSAN may know the own switch, which exists all the same.
  const auto is_own = [](const PhysicalSwitch& each) { return !each.remote; };
  if (std::none_of(devices.begin(), devices.end(), is_own)) devices.insert(devices.begin(), own);
  return devices;
}

std::vector<PhysicalSwitch> physical_switches_named(int32_t q, const ObjectName& name) {
  wwn_ wwn;
  if (!read_wwn(name.text("Name"), wwn)) return {};
  if (same_wwn(wwn, own_wwn(q))) return {device(wwn, false)};
  // The name of a part in a VSAN is no device's.
  if (vsan_of_part(wwn) > 0) return {};
  std::vector<PhysicalSwitch> found;
  for_each_running_vsan(q, [&](const vsanNewEntry_t& vsan) {
    fcs_cim_ie_ element;
    if (find_device(q, vsan.vsan_index, wwn, element)) found.push_back(device(wwn, true));
    return found.empty();
  });
  return found;
}

CMPIObjectPath* physical_switch_reference(const Target& target, const PhysicalSwitch& device) {
  return switch_fill_reference_str(target.class_name, target.name_space, device.wwn, target.broker);
}

CMPIInstance* physical_switch_instance(const Target& target, const PhysicalSwitch& device) {
  CMPIInstance* instance =
      switch_build_instance_str(target.class_name, target.name_space, device.wwn,
                                device.remote ? 1 : 0, target.properties, target.broker);
  if (instance != nullptr && device.remote && wants(target, "ElementName"))
    set_name_of_remote_switch(instance, device.wwn);
  return instance;
}

void modify_physical_switch(int32_t q, const PhysicalSwitch& device, const NewValues& values) {
  std::string name;
  if (!values.text("ElementName", name)) return;
  if (device.remote)
    throw Failure(CMPI_RC_ERR_NOT_SUPPORTED,
                  "switch %s is not the one that runs this agent: its name is changed there",
                  device.wwn);
  if (name.empty() || name.size() > kLongestSwitchName)
    throw Failure(CMPI_RC_ERR_INVALID_PARAMETER,
                  "ElementName has %zu characters: a switch's name has 1 to %zu", name.size(),
                  kLongestSwitchName);
  const int32_t status = system_cim_set_SysName(q, name.c_str());
  if (status != 0)
    throw Failure(CMPI_RC_ERR_FAILED, "the system name service refuses the name (status %d)",
                  status);
}

// ---- parts in VSANs ----

std::vector<fcs_cim_ie_> logical_switches(int32_t q) {
  std::vector<fcs_cim_ie_> parts;
  for_each_running_vsan(q, [&](const vsanNewEntry_t& vsan) {
    for (const fcs_cim_ie_& element : elements_of(q, vsan.vsan_index))
      if (vsan_of_part(element.wwn) > 0) parts.push_back(element);
    return true;
  });
  return parts;
}

std::vector<fcs_cim_ie_> logical_switches_named(int32_t q, const ObjectName& name) {
  wwn_ wwn;
  if (!read_wwn(name.text("Name"), wwn)) return {};
  const uint32_t number = vsan_of_part(wwn);
  vsanNewEntry_t vsan{};
  if (number == 0 || !read_vsan_entry(q, number, vsan) || !is_up(vsan)) return {};
  fcs_cim_ie_ element;
  if (!find_element(q, number, wwn, element)) return {};
  return {element};
}

CMPIObjectPath* logical_switch_reference(const Target& target, const fcs_cim_ie_& element) {
  return switch_fill_reference_ie(target.class_name, target.name_space, &element, target.broker);
}

CMPIInstance* logical_switch_instance(const Target& target, const fcs_cim_ie_& element) {
  return switch_build_instance_ie(target.class_name, target.name_space, &element, target.properties,
                                  target.broker);
}

// ---- VEXOR_Component ----

std::vector<Component> components(int32_t q) {
  std::vector<Component> found;
  for (const VsanRecord& vsan : all_vsans(q))
    add_elements(q, vsan, found);
  return found;
}

std::vector<Component> components_named(int32_t q, const ObjectName& name) {
  const ObjectName* group = name.reference("GroupComponent");
  const ObjectName* part = name.reference("PartComponent");
  wwn_ wwn;
  if (group == nullptr || part == nullptr || !read_wwn(part->text("Name"), wwn)) return {};
  std::vector<Component> found;
  for (const VsanRecord& vsan : vsans_named(q, *group))
    add_element(q, vsan, wwn, found);
  return found;
}

std::vector<Component> components_of(int32_t q, const char* role, const ObjectName& object) {
  if (same_name(role, "PartComponent")) return components_of_switch(q, object);
  std::vector<Component> found;
  for (const VsanRecord& vsan : vsans_named(q, object))
    add_elements(q, vsan, found);
  return found;
}

CMPIObjectPath* component_reference(const Target& target, const Component& component) {
  return component_fill_reference_ie(target.class_name, target.name_space, &component.vsan->entry,
                                     configuration(*component.vsan), &component.element,
                                     target.broker);
}

CMPIInstance* component_instance(const Target& target, const Component& component) {
  return component_build_instance_ie(target.class_name, target.name_space, &component.vsan->entry,
                                     configuration(*component.vsan), &component.element,
                                     target.broker);
}

CMPIObjectPath* component_part_reference(const Target& target, const Component& component) {
  return switch_fill_reference_ie(part_class(component.element), target.name_space,
                                  &component.element, target.broker);
}

CMPIInstance* component_part_instance(const Target& target, const Component& component) {
  const wwn_& wwn = component.element.wwn;
  if (vsan_of_part(wwn) > 0) return logical_switch_instance(target, component.element);
  const bool remote = !same_wwn(wwn, own_wwn(queue::handle()));
  return physical_switch_instance(target, device(wwn, remote));
}

}  // namespace vexor::providers

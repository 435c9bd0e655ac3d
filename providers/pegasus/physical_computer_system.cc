#include "providers/pegasus/physical_computer_system.h"

#include <Pegasus/Common/Exception.h>
#include <cim_utils/collections.h>
#include <cim_utils/fabric_configuration.h>
#include <cim_utils/provider_util.h>
#include <cim_utils/system.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "providers/pegasus/provider_support.h"

namespace vexor::providers::pegasus {
namespace {

using Pegasus::Array;
using Pegasus::Boolean;
using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMObjectPath;
using Pegasus::CIMPropertyList;
using Pegasus::CIMValue;
using Pegasus::OperationContext;
using Pegasus::String;
using Pegasus::Uint32;

constexpr char kClass[] = "VEXOR_PhysicalComputerSystem";
constexpr char kNameProperty[] = "ElementName";

// As many characters as the switch's capabilities tell ("MaxElementNameLen").
constexpr size_t kLongestSwitchName = 32;

struct FreeList {
  void operator()(GSList* list) const { cim_g_slist_destroy(list, nullptr); }
};

struct Switch {
  std::string wwn;  // as text
  bool remote;      // not the one that runs this agent
};

// The own switch, and every other one that is in a VSAN that is up, each once.
std::vector<Switch> read_switches() {
  const Lock lock;
  const int32_t q = bound_queue();
  const std::string own = own_wwn(q);
  GSList* list = nullptr;
  const int32_t status = fcs_cim_get_physical_switch_wwn_lists(q, &list);
  const std::unique_ptr<GSList, FreeList> owner(list);
  if (status != 0) fail(Pegasus::CIM_ERR_FAILED, "the switches of the fabric cannot be listed");
  std::vector<Switch> switches;
  bool own_is_listed = false;
  for (const GSList* node = list; node != nullptr; node = node->next) {
    const auto* wwn = static_cast<const char*>(node->data);
    switches.push_back({wwn, own != wwn});
    own_is_listed = own_is_listed || own == wwn;
  }
  // The configuration server of no VSAN may know the own switch, which exists all the same.
  if (!own_is_listed) switches.insert(switches.begin(), {own, false});
  return switches;
}

// The library asks the object manager for the class while it builds, and so with the lock held:
// class definitions come from the object manager itself, never from a provider.
CIMInstance build(const CIMObjectPath& path, const Switch& device) {
  const Lock lock;
  bound_queue();  // what builds asks on it
  return ProviderUtil::switch_build_instance(kClass, path.getNameSpace().getString(),
                                             device.wwn.c_str(), device.remote ? 1 : 0);
}

CIMObjectPath reference(const CIMObjectPath& path, const Switch& device) {
  const Lock lock;
  bound_queue();
  return ProviderUtil::switch_fill_reference(kClass, path.getNameSpace().getString(),
                                             device.wwn.c_str());
}

// The switch that a path names.
Switch find(const CIMObjectPath& path) {
  const auto name = name_of(path, kClass);
  const std::vector<Switch> switches = read_switches();
  const auto found = std::find_if(switches.begin(), switches.end(),
                                  [&](const Switch& each) { return each.wwn == name; });
  if (found == switches.end()) throw Pegasus::CIMObjectNotFoundException(path.toString());
  return *found;
}

bool is_listed(const CIMName& name, const CIMPropertyList& list) {
  if (list.isNull()) return true;
  for (Uint32 i = 0; i < list.size(); ++i)
    if (list[i].equal(name)) return true;
  return false;
}

// Whether a property of `changed` is as `present` has it.
bool is_unchanged(const Pegasus::CIMConstProperty& property, const CIMInstance& present) {
  const Uint32 at = present.findProperty(property.getName());
  return at == PEG_NOT_FOUND ? property.getValue().isNull()
                             : present.getProperty(at).getValue() == property.getValue();
}

// Clients send whole instances: what they leave as it is must not be refused.
void refuse_other_changes(const CIMInstance& changed, const CIMPropertyList& list,
                          const CIMInstance& present) {
  for (Uint32 i = 0; i < changed.getPropertyCount(); ++i) {
    const Pegasus::CIMConstProperty property = changed.getProperty(i);
    if (property.getName().equal(CIMName(kNameProperty)) || !is_listed(property.getName(), list) ||
        is_unchanged(property, present)) {
      continue;
    }
    fail(Pegasus::CIM_ERR_NOT_SUPPORTED,
         std::string(property.getName().getString().getCString()) + " cannot be changed");
  }
}

void set_name(const Switch& device, const CIMValue& value) {
  String text;
  if (value.isNull() || value.isArray() || value.getType() != Pegasus::CIMTYPE_STRING)
    fail(Pegasus::CIM_ERR_INVALID_PARAMETER, "ElementName is a text");
  value.get(text);
  const std::string name = std::string(text.getCString());
  if (device.remote)
    fail(
        Pegasus::CIM_ERR_NOT_SUPPORTED,
        "switch " + device.wwn + " is not the one that runs this agent: its name is changed there");
  if (name.empty() || name.size() > kLongestSwitchName)
    fail(Pegasus::CIM_ERR_INVALID_PARAMETER, "ElementName has " + std::to_string(name.size()) +
                                                 " characters: a switch's name has 1 to 32");
  const Lock lock;
  if (system_cim_set_SysName(bound_queue(), name.c_str()) != 0)
    fail(Pegasus::CIM_ERR_FAILED, "the system name service refuses the name");
}

}  // namespace

void PhysicalComputerSystemProvider::initialize(Pegasus::CIMOMHandle& cimom) {
  cimom.disallowProviderUnload();
  join(cimom);
}

void PhysicalComputerSystemProvider::terminate() {
  leave();
  delete this;
}

void PhysicalComputerSystemProvider::getInstance(const OperationContext& /*context*/,
                                                 const CIMObjectPath& path,
                                                 const Boolean includeQualifiers,
                                                 const Boolean includeClassOrigin,
                                                 const CIMPropertyList& propertyList,
                                                 Pegasus::InstanceResponseHandler& handler) {
  const Selection selection{includeQualifiers, includeClassOrigin, propertyList};
  handler.processing();
  handler.deliver(selection.of(build(path, find(path))));
  handler.complete();
}

void PhysicalComputerSystemProvider::enumerateInstances(const OperationContext& /*context*/,
                                                        const CIMObjectPath& path,
                                                        const Boolean includeQualifiers,
                                                        const Boolean includeClassOrigin,
                                                        const CIMPropertyList& propertyList,
                                                        Pegasus::InstanceResponseHandler& handler) {
  const Selection selection{includeQualifiers, includeClassOrigin, propertyList};
  check_class(path, kClass);
  handler.processing();
  for (const Switch& device : read_switches())
    handler.deliver(selection.of(build(path, device)));
  handler.complete();
}

void PhysicalComputerSystemProvider::enumerateInstanceNames(
    const OperationContext& /*context*/, const CIMObjectPath& path,
    Pegasus::ObjectPathResponseHandler& handler) {
  check_class(path, kClass);
  handler.processing();
  for (const Switch& device : read_switches())
    handler.deliver(reference(path, device));
  handler.complete();
}

void PhysicalComputerSystemProvider::modifyInstance(const OperationContext& /*context*/,
                                                    const CIMObjectPath& path,
                                                    const CIMInstance& changed,
                                                    const Boolean /*includeQualifiers*/,
                                                    const CIMPropertyList& propertyList,
                                                    Pegasus::ResponseHandler& handler) {
  handler.processing();
  const Switch device = find(path);
  const CIMInstance present = build(path, device);
  refuse_other_changes(changed, propertyList, present);
  const Uint32 at = changed.findProperty(CIMName(kNameProperty));
  if (at != PEG_NOT_FOUND && is_listed(CIMName(kNameProperty), propertyList) &&
      !is_unchanged(changed.getProperty(at), present)) {
    set_name(device, changed.getProperty(at).getValue());
  }
  handler.complete();
}

void PhysicalComputerSystemProvider::createInstance(
    const OperationContext& /*context*/, const CIMObjectPath& /*path*/, const CIMInstance& /*made*/,
    Pegasus::ObjectPathResponseHandler& /*handler*/) {
  throw Pegasus::CIMNotSupportedException(String("a switch is not made by a client"));
}

void PhysicalComputerSystemProvider::deleteInstance(const OperationContext& /*context*/,
                                                    const CIMObjectPath& /*path*/,
                                                    Pegasus::ResponseHandler& /*handler*/) {
  throw Pegasus::CIMNotSupportedException(String("a switch is not deleted by a client"));
}

}  // namespace vexor::providers::pegasus

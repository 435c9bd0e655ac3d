#include "providers/pegasus/own_switch.h"

#include <Pegasus/Common/Exception.h>
#include <cim_utils/computer_system.h>
#include <cim_utils/provider_util.h>

#include <string>

#include "providers/pegasus/provider_support.h"

namespace vexor::providers::pegasus {
namespace {

using Pegasus::Boolean;
using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMObjectPath;
using Pegasus::CIMProperty;
using Pegasus::CIMPropertyList;
using Pegasus::CIMValue;
using Pegasus::OperationContext;
using Pegasus::String;

constexpr char kClass[] = "VEXOR_Switch";
// Where the library takes the definitions of classes from.
constexpr char kNamespaceOfClasses[] = "root/cimv2";

using Getter = int (ComputerSystem::*)(CIMProperty&);

constexpr Getter kGetters[] = {
    &ComputerSystem::getCreationClassName,
    &ComputerSystem::getName,
    &ComputerSystem::getNameFormat,
    &ComputerSystem::getElementName,
    &ComputerSystem::getCaption,
    &ComputerSystem::getDescription,
    &ComputerSystem::getVendor,
    &ComputerSystem::getVersion,
    &ComputerSystem::getIdentifyNumber,
    &ComputerSystem::getOperStatus,
    &ComputerSystem::getStatus,
    &ComputerSystem::getDedicated,
    &ComputerSystem::getPrimaryOwnerName,
    &ComputerSystem::getPrimaryOwnerContact,
};

CIMProperty power_management(ComputerSystem& system) {
  CIMProperty property;
  system.getPowerManagementCapabilities(property);
  Pegasus::Sint32 code = 0;
  property.getValue().get(code);
  return CIMProperty(
      property.getName(),
      CIMValue(ProviderUtil::convert_uint_to_array(static_cast<Pegasus::Uint16>(code))));
}

std::string read_name() {
  const Lock lock;
  return own_wwn(bound_queue());
}

CIMObjectPath reference(const CIMObjectPath& path, const std::string& name) {
  const Lock lock;
  bound_queue();  // what builds asks on it
  return ProviderUtil::switch_fill_reference(kClass, path.getNameSpace().getString(), name.c_str());
}

// Asks the object manager for the class with the lock held: class definitions come from the object
// manager itself, never from a provider.
CIMInstance build(const CIMObjectPath& path, const std::string& name) {
  const CIMObjectPath own_path = reference(path, name);
  const Lock lock;
  bound_queue();
  ComputerSystem system(ProviderUtil::mts_q);
  CIMInstance instance{CIMName(kClass)};
  for (const Getter getter : kGetters) {
    CIMProperty property;
    (system.*getter)(property);
    instance.addProperty(property);
  }
  // The getters do not fail where the WWN is no longer told.
  const Pegasus::Uint32 at = instance.findProperty(CIMName("Name"));
  if (instance.getProperty(at).getValue() != CIMValue(String(name.c_str())))
    fail(Pegasus::CIM_ERR_FAILED, "the switch identity service does not tell the switch's WWN");
  instance.addProperty(power_management(system));
  instance.setPath(own_path);
  ProviderUtil::addQualifiers(instance, kNamespaceOfClasses);
  return instance;
}

}  // namespace

void SwitchProvider::initialize(Pegasus::CIMOMHandle& cimom) {
  cimom.disallowProviderUnload();
  join(cimom);
}

void SwitchProvider::terminate() {
  leave();
  delete this;
}

void SwitchProvider::getInstance(const OperationContext& /*context*/, const CIMObjectPath& path,
                                 const Boolean includeQualifiers, const Boolean includeClassOrigin,
                                 const CIMPropertyList& propertyList,
                                 Pegasus::InstanceResponseHandler& handler) {
  const Selection selection{includeQualifiers, includeClassOrigin, propertyList};
  handler.processing();
  const auto wanted = name_of(path, kClass);
  const std::string own = read_name();
  if (wanted != own) throw Pegasus::CIMObjectNotFoundException(path.toString());
  handler.deliver(selection.of(build(path, own)));
  handler.complete();
}

void SwitchProvider::enumerateInstances(const OperationContext& /*context*/,
                                        const CIMObjectPath& path, const Boolean includeQualifiers,
                                        const Boolean includeClassOrigin,
                                        const CIMPropertyList& propertyList,
                                        Pegasus::InstanceResponseHandler& handler) {
  const Selection selection{includeQualifiers, includeClassOrigin, propertyList};
  check_class(path, kClass);
  handler.processing();
  handler.deliver(selection.of(build(path, read_name())));
  handler.complete();
}

void SwitchProvider::enumerateInstanceNames(const OperationContext& /*context*/,
                                            const CIMObjectPath& path,
                                            Pegasus::ObjectPathResponseHandler& handler) {
  check_class(path, kClass);
  handler.processing();
  handler.deliver(reference(path, read_name()));
  handler.complete();
}

void SwitchProvider::modifyInstance(const OperationContext& /*context*/,
                                    const CIMObjectPath& /*path*/, const CIMInstance& /*changed*/,
                                    const Boolean /*includeQualifiers*/,
                                    const CIMPropertyList& /*propertyList*/,
                                    Pegasus::ResponseHandler& /*handler*/) {
  throw Pegasus::CIMNotSupportedException(
      String("the switch is changed at its VEXOR_PhysicalComputerSystem"));
}

void SwitchProvider::createInstance(const OperationContext& /*context*/,
                                    const CIMObjectPath& /*path*/, const CIMInstance& /*made*/,
                                    Pegasus::ObjectPathResponseHandler& /*handler*/) {
  throw Pegasus::CIMNotSupportedException(String("a switch is not made by a client"));
}

void SwitchProvider::deleteInstance(const OperationContext& /*context*/,
                                    const CIMObjectPath& /*path*/,
                                    Pegasus::ResponseHandler& /*handler*/) {
  throw Pegasus::CIMNotSupportedException(String("a switch is not deleted by a client"));
}

}  // namespace vexor::providers::pegasus

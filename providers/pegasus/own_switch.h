// VEXOR_Switch, the switch that runs this agent, on the OpenPegasus provider interface: made of the
// single properties that class ComputerSystem gives.
//
// The class declares two properties with other types than ComputerSystem gives them:
// "PowerManagementCapabilities" is handed on as the array that it is declared as, and "InstallDate"
// is left out, since the time that the switch has been running is no date.
#pragma once

#include <Pegasus/Provider/CIMInstanceProvider.h>

namespace vexor::providers::pegasus {

// Nothing of it can be changed: the name of the switch is changed at VEXOR_PhysicalComputerSystem.
class SwitchProvider final : public Pegasus::CIMInstanceProvider {
 public:
  void initialize(Pegasus::CIMOMHandle& cimom) override;
  // Deletes the provider.
  void terminate() override;

  void getInstance(const Pegasus::OperationContext& context, const Pegasus::CIMObjectPath& path,
                   const Pegasus::Boolean includeQualifiers,
                   const Pegasus::Boolean includeClassOrigin,
                   const Pegasus::CIMPropertyList& propertyList,
                   Pegasus::InstanceResponseHandler& handler) override;
  void enumerateInstances(const Pegasus::OperationContext& context,
                          const Pegasus::CIMObjectPath& path,
                          const Pegasus::Boolean includeQualifiers,
                          const Pegasus::Boolean includeClassOrigin,
                          const Pegasus::CIMPropertyList& propertyList,
                          Pegasus::InstanceResponseHandler& handler) override;
  void enumerateInstanceNames(const Pegasus::OperationContext& context,
                              const Pegasus::CIMObjectPath& path,
                              Pegasus::ObjectPathResponseHandler& handler) override;
  void modifyInstance(const Pegasus::OperationContext& context, const Pegasus::CIMObjectPath& path,
                      const Pegasus::CIMInstance& changed, const Pegasus::Boolean includeQualifiers,
                      const Pegasus::CIMPropertyList& propertyList,
                      Pegasus::ResponseHandler& handler) override;
  void createInstance(const Pegasus::OperationContext& context, const Pegasus::CIMObjectPath& path,
                      const Pegasus::CIMInstance& made,
                      Pegasus::ObjectPathResponseHandler& handler) override;
  void deleteInstance(const Pegasus::OperationContext& context, const Pegasus::CIMObjectPath& path,
                      Pegasus::ResponseHandler& handler) override;
};

}  // namespace vexor::providers::pegasus

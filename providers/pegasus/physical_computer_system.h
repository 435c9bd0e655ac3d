// VEXOR_PhysicalComputerSystem, the switches of the fabric as devices, on the OpenPegasus provider
// interface: a model for providers that are written on it.
//
// Everything that such a provider needs is here: the queues, the library's lock, reading keys,
// property lists, and refusing in plain words. It includes no CMPI, and the library's public
// headers only.
#pragma once

#include <Pegasus/Provider/CIMInstanceProvider.h>

namespace vexor::providers::pegasus {

// Requests may come on many threads at once. The last provider that is terminated releases this
// face's queue, which is never bound again while the library stays in the process; an idle provider
// therefore asks not to be unloaded. The session's queue stays, since CMPI providers in the same
// process may be using it.
class PhysicalComputerSystemProvider final : public Pegasus::CIMInstanceProvider {
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
  // The name of the own switch ("ElementName") can be changed, nothing else.
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

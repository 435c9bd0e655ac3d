// CMPIBrokerFT: what providers ask of the object manager in the middle of a request.
#include "host/object_manager.h"
#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

std::string optional_text(const char* text) {
  return text == nullptr ? std::string() : text;
}

PropertyList property_list(const char** properties) {
  if (properties == nullptr) return std::nullopt;
  return name_list(properties);
}

CMPIEnumeration* enumeration_of(Broker& broker, std::vector<Instance> instances) {
  EnumerationContent content{CMPI_instance, {}, 0};
  for (Instance& instance : instances)
    content.items.push_back(
        Data::of(CMPI_instance, std::make_shared<const Instance>(std::move(instance))));
  return make<CMPIEnumeration>(broker, std::move(content));
}

CMPIEnumeration* enumeration_of(Broker& broker, std::vector<ObjectPath> paths) {
  EnumerationContent content{CMPI_ref, {}, 0};
  for (ObjectPath& path : paths)
    content.items.push_back(Data::reference(std::move(path)));
  return make<CMPIEnumeration>(broker, std::move(content));
}

/// Runs an operation that yields instances or paths.
template <class Operation>
CMPIEnumeration* enumerate(const CMPIBroker* face, CMPIStatus* rc, Operation&& operation) {
  return guarded(rc, static_cast<CMPIEnumeration*>(nullptr), [&] {
    Broker& broker = broker_of(face);
    return enumeration_of(broker, operation(broker.manager()));
  });
}

// --- Threads of a provider -----------------------------------------------------------------------

CMPIContext* prepare_attach_thread(const CMPIBroker* face, const CMPIContext* context) {
  return guarded(nullptr, static_cast<CMPIContext*>(nullptr), [&] {
    Broker& broker = broker_of(face);
    NamedContent content = content_of(context);
    content.pinned = broker.shared_arena();
    // A clone: it must outlive the request if the thread does.
    auto shell = std::make_unique<Shell<CMPIContext>>(broker, std::move(content));
    CMPIContext* const made = &shell->face;
    broker.clones().add(std::move(shell));
    return made;
  });
}

std::vector<std::unique_ptr<Scope>>& attachments() {
  thread_local std::vector<std::unique_ptr<Scope>> scopes;
  return scopes;
}

CMPIStatus attach_thread(const CMPIBroker* face, const CMPIContext* context) {
  return guarded_status([&] {
    Broker& broker = broker_of(face);
    const std::shared_ptr<Arena>& arena = content_of(context).pinned;
    if (arena == nullptr) {
      throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                     "the context was not made by prepareAttachThread");
    }
    attachments().push_back(std::make_unique<Scope>(broker, arena));
  });
}

CMPIStatus detach_thread(const CMPIBroker*, const CMPIContext* context) {
  return guarded_status([&] {
    Shell<CMPIContext>& shell = shell_of(context);
    if (attachments().empty())
      throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, "this thread is not attached");
    attachments().pop_back();
    shell.broker.release(shell);
  });
}

// --- Operations ----------------------------------------------------------------------------------

CMPIStatus deliver_indication(const CMPIBroker*, const CMPIContext*, const char*,
                              const CMPIInstance*) {
  return guarded_status([] {
    throw CimError(CMPI_RC_ERR_NOT_SUPPORTED, "this object manager delivers no indications");
  });
}

CMPIEnumeration* enumerate_instance_names(const CMPIBroker* face, const CMPIContext*,
                                          const CMPIObjectPath* op, CMPIStatus* rc) {
  return enumerate(face, rc, [&](ObjectManager& manager) {
    const ObjectPath path = content_of(op);
    return manager.enumerate_instance_names(path.name_space, path.class_name);
  });
}

CMPIEnumeration* enumerate_instances(const CMPIBroker* face, const CMPIContext*,
                                     const CMPIObjectPath* op, const char** properties,
                                     CMPIStatus* rc) {
  return enumerate(face, rc, [&](ObjectManager& manager) {
    const ObjectPath path = content_of(op);
    return manager.enumerate_instances(path.name_space, path.class_name, property_list(properties));
  });
}

CMPIInstance* get_instance(const CMPIBroker* face, const CMPIContext*, const CMPIObjectPath* op,
                           const char** properties, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIInstance*>(nullptr), [&] {
    Broker& broker = broker_of(face);
    const Instance instance =
        broker.manager().get_instance(content_of(op), property_list(properties));
    return make<CMPIInstance>(broker, instance_content(broker, instance));
  });
}

Instance instance_at(const CMPIObjectPath* op, const CMPIInstance* inst) {
  const Shell<CMPIInstance>& shell = shell_of(inst);
  Instance instance = finished_instance(shell.broker, *shell.content);
  instance.path = content_of(op);
  return instance;
}

CMPIObjectPath* create_instance(const CMPIBroker* face, const CMPIContext*,
                                const CMPIObjectPath* op, const CMPIInstance* inst,
                                CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIObjectPath*>(nullptr), [&] {
    Broker& broker = broker_of(face);
    return make<CMPIObjectPath>(broker, broker.manager().create_instance(instance_at(op, inst)));
  });
}

CMPIStatus modify_instance(const CMPIBroker* face, const CMPIContext*, const CMPIObjectPath* op,
                           const CMPIInstance* inst, const char** properties) {
  return guarded_status([&] {
    broker_of(face).manager().modify_instance(instance_at(op, inst), property_list(properties));
  });
}

CMPIStatus delete_instance(const CMPIBroker* face, const CMPIContext*, const CMPIObjectPath* op) {
  return guarded_status([&] { broker_of(face).manager().delete_instance(content_of(op)); });
}

CMPIEnumeration* exec_query(const CMPIBroker*, const CMPIContext*, const CMPIObjectPath*,
                            const char*, const char*, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIEnumeration*>(nullptr), [&]() -> CMPIEnumeration* {
    throw CimError(CMPI_RC_ERR_NOT_SUPPORTED, "this object manager evaluates no queries");
  });
}

CMPIEnumeration* associators(const CMPIBroker* face, const CMPIContext*, const CMPIObjectPath* op,
                             const char* association_class, const char* result_class,
                             const char* role, const char* result_role, const char** properties,
                             CMPIStatus* rc) {
  return enumerate(face, rc, [&](ObjectManager& manager) {
    return manager.associators(content_of(op),
                               {optional_text(association_class), optional_text(result_class),
                                optional_text(role), optional_text(result_role)},
                               property_list(properties));
  });
}

CMPIEnumeration* associator_names(const CMPIBroker* face, const CMPIContext*,
                                  const CMPIObjectPath* op, const char* association_class,
                                  const char* result_class, const char* role,
                                  const char* result_role, CMPIStatus* rc) {
  return enumerate(face, rc, [&](ObjectManager& manager) {
    return manager.associator_names(content_of(op),
                                    {optional_text(association_class), optional_text(result_class),
                                     optional_text(role), optional_text(result_role)});
  });
}

CMPIEnumeration* references(const CMPIBroker* face, const CMPIContext*, const CMPIObjectPath* op,
                            const char* result_class, const char* role, const char** properties,
                            CMPIStatus* rc) {
  return enumerate(face, rc, [&](ObjectManager& manager) {
    return manager.references(content_of(op),
                              {{}, optional_text(result_class), optional_text(role), {}},
                              property_list(properties));
  });
}

CMPIEnumeration* reference_names(const CMPIBroker* face, const CMPIContext*,
                                 const CMPIObjectPath* op, const char* result_class,
                                 const char* role, CMPIStatus* rc) {
  return enumerate(face, rc, [&](ObjectManager& manager) {
    return manager.reference_names(content_of(op),
                                   {{}, optional_text(result_class), optional_text(role), {}});
  });
}

CMPIData invoke_method(const CMPIBroker* face, const CMPIContext*, const CMPIObjectPath* op,
                       const char* method, const CMPIArgs* in, CMPIArgs* out, CMPIStatus* rc) {
  return guarded_data(rc, kMissing, [&] {
    Broker& broker = broker_of(face);
    MethodResult result = broker.manager().invoke_method(
        content_of(op), text_argument(method, "the method name"), content_of(in).items);
    if (out != nullptr) content_of(out).items = std::move(result.out);
    return to_cmpi(broker, result.value);
  });
}

CMPIStatus set_property(const CMPIBroker* face, const CMPIContext*, const CMPIObjectPath* op,
                        const char* name, const CMPIValue* value, CMPIType type) {
  return guarded_status([&] {
    const std::string property = text_argument(name, "the name of the property");
    const Instance instance{content_of(op), {{property, data_from(value, type)}}};
    broker_of(face).manager().modify_instance(instance, PropertyList({property}));
  });
}

CMPIData get_property(const CMPIBroker* face, const CMPIContext*, const CMPIObjectPath* op,
                      const char* name, CMPIStatus* rc) {
  return guarded_data(rc, kMissing, [&] {
    Broker& broker = broker_of(face);
    const std::string property = text_argument(name, "the name of the property");
    const Instance instance =
        broker.manager().get_instance(content_of(op), PropertyList({property}));
    const Data* data = instance.find(property);
    if (data == nullptr) {
      throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                     instance.path.class_name + " has no property " + property);
    }
    return to_cmpi(broker, *data);
  });
}

}  // namespace

CMPIBrokerFT broker_table(const Behavior& behavior) {
  unsigned capabilities = CMPI_MB_InstanceManipulation | CMPI_MB_AssociationTraversal |
                          CMPI_MB_OSEncapsulationSupport | CMPI_MB_Logging | CMPI_MB_Tracing |
                          CMPI_MB_PropertyFiltering;
  if (behavior.optional_slots)
    capabilities |= CMPI_MB_Supports_Qualifier | CMPI_MB_Supports_Extended_Error;
  if (behavior.memory_table) capabilities |= CMPI_MB_Supports_MemEnhancements;
  return {
      .brokerCapabilities = capabilities,
      .brokerVersion = kTableVersion,
      .brokerName = "vexor-cim",
      .prepareAttachThread = prepare_attach_thread,
      .attachThread = attach_thread,
      .detachThread = detach_thread,
      .deliverIndication = deliver_indication,
      .enumerateInstanceNames = enumerate_instance_names,
      .getInstance = get_instance,
      .createInstance = create_instance,
      .modifyInstance = modify_instance,
      .deleteInstance = delete_instance,
      .execQuery = exec_query,
      .enumerateInstances = enumerate_instances,
      .associators = associators,
      .associatorNames = associator_names,
      .references = references,
      .referenceNames = reference_names,
      .invokeMethod = invoke_method,
      .setProperty = set_property,
      .getProperty = get_property,
  };
}

}  // namespace cim::host

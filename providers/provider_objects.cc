#include "providers/provider_objects.h"

#include <exception>
#include <memory>
#include <new>

#include "providers/failure.h"
#include "providers/queue.h"
#include "providers/request.h"

namespace vexor::providers {
namespace {

constexpr char kName[] = "vexor_providers";

CMPIStatus failed(const CMPIBroker* broker, CMPIrc code, const char* text) {
  return {code, broker->eft->newString(broker, text, nullptr)};
}

// Runs an operation; nothing that it throws gets further than this.
template <class Operation>
CMPIStatus answer(const CMPIBroker* broker, Operation operation) {
  try {
    operation();
    return {CMPI_RC_OK, nullptr};
  } catch (const Failure& failure) {
    return failed(broker, failure.code(), failure.text());
  } catch (const std::bad_alloc&) {
    return failed(broker, CMPI_RC_ERR_FAILED, "there is not enough memory");
  } catch (const std::exception& error) {
    return failed(broker, CMPI_RC_ERR_FAILED, error.what());
  }
}

// A provider object: what the object manager sees of it, and what it needs for its requests. It is
// counted as a user of the queue as long as it exists.
template <class Face>
class ProviderObject {
 public:
  // Result: null, with the reason in rc.
  static Face* make(const CMPIBroker* broker, CMPIStatus* rc, ClassTable classes,
                    decltype(Face::ft) table) {
    Face* face = nullptr;
    const CMPIStatus status = answer(broker, [&] {
      auto object = std::unique_ptr<ProviderObject>(new ProviderObject(broker, classes, table));
      queue::join();
      face = &object.release()->face_;
    });
    if (rc != nullptr) *rc = status;
    return face;
  }

  static CMPIStatus cleanup(Face* face, const CMPIContext*, CMPIBoolean terminating) {
    if (terminating == 0) return {CMPI_RC_DO_NOT_UNLOAD, nullptr};
    const std::unique_ptr<ProviderObject> object(&of(face));
    return answer(object->broker_, [] {
      const int32_t status = queue::leave();
      if (status != 0)
        throw Failure(CMPI_RC_ERR_FAILED,
                      "the switch's response queue was not released (status %d)", status);
    });
  }

  // operation(Request&)
  template <class Operation>
  static CMPIStatus serve(Face* face, const CMPIResult* result, const CMPIObjectPath* path,
                          Operation operation) {
    const ProviderObject& object = of(face);
    return answer(object.broker_, [&] {
      Request request(object.broker_, object.classes_, result, path);
      operation(request);
    });
  }

  static const CMPIBroker* broker(Face* face) { return of(face).broker_; }

 private:
  ProviderObject(const CMPIBroker* broker, ClassTable classes, decltype(Face::ft) table)
      : face_{}, broker_(broker), classes_(classes) {
    face_.hdl = this;
    face_.ft = table;
  }
  static ProviderObject& of(Face* face) {
    // Headers differ in whether the handle is constant.
    return *static_cast<ProviderObject*>(const_cast<void*>(static_cast<const void*>(face->hdl)));
  }

  Face face_;
  const CMPIBroker* broker_;
  ClassTable classes_;
};

using Instances = ProviderObject<CMPIInstanceMI>;
using Associations = ProviderObject<CMPIAssociationMI>;
using Methods = ProviderObject<CMPIMethodMI>;

// ---- the tables ----

CMPIStatus enumerate_names(CMPIInstanceMI* mi, const CMPIContext*, const CMPIResult* result,
                           const CMPIObjectPath* path) {
  return Instances::serve(mi, result, path, [](Request& request) { request.enumerate_names(); });
}

CMPIStatus enumerate_instances(CMPIInstanceMI* mi, const CMPIContext*, const CMPIResult* result,
                               const CMPIObjectPath* path, const char** properties) {
  return Instances::serve(mi, result, path,
                          [=](Request& request) { request.enumerate_instances(properties); });
}

CMPIStatus get_instance(CMPIInstanceMI* mi, const CMPIContext*, const CMPIResult* result,
                        const CMPIObjectPath* path, const char** properties) {
  return Instances::serve(mi, result, path, [=](Request& request) { request.get(properties); });
}

CMPIStatus create_instance(CMPIInstanceMI* mi, const CMPIContext*, const CMPIResult* result,
                           const CMPIObjectPath* path, const CMPIInstance* instance) {
  return Instances::serve(mi, result, path, [=](Request& request) { request.create(instance); });
}

CMPIStatus modify_instance(CMPIInstanceMI* mi, const CMPIContext*, const CMPIResult* result,
                           const CMPIObjectPath* path, const CMPIInstance* instance,
                           const char** properties) {
  return Instances::serve(mi, result, path,
                          [=](Request& request) { request.modify(instance, properties); });
}

CMPIStatus delete_instance(CMPIInstanceMI* mi, const CMPIContext*, const CMPIResult* result,
                           const CMPIObjectPath* path) {
  return Instances::serve(mi, result, path, [](Request& request) { request.remove(); });
}

CMPIStatus exec_query(CMPIInstanceMI* mi, const CMPIContext*, const CMPIResult*,
                      const CMPIObjectPath*, const char*, const char*) {
  return failed(Instances::broker(mi), CMPI_RC_ERR_NOT_SUPPORTED, "queries are not supported");
}

CMPIStatus associators(CMPIAssociationMI* mi, const CMPIContext*, const CMPIResult* result,
                       const CMPIObjectPath* path, const char* association_class,
                       const char* result_class, const char* role, const char* result_role,
                       const char** properties) {
  return Associations::serve(mi, result, path, [=](Request& request) {
    request.associators({association_class, result_class, role, result_role}, properties);
  });
}

CMPIStatus associator_names(CMPIAssociationMI* mi, const CMPIContext*, const CMPIResult* result,
                            const CMPIObjectPath* path, const char* association_class,
                            const char* result_class, const char* role, const char* result_role) {
  return Associations::serve(mi, result, path, [=](Request& request) {
    request.associator_names({association_class, result_class, role, result_role});
  });
}

CMPIStatus references(CMPIAssociationMI* mi, const CMPIContext*, const CMPIResult* result,
                      const CMPIObjectPath* path, const char* result_class, const char* role,
                      const char** properties) {
  return Associations::serve(mi, result, path, [=](Request& request) {
    request.references({.result_class = result_class, .role = role}, properties);
  });
}

CMPIStatus reference_names(CMPIAssociationMI* mi, const CMPIContext*, const CMPIResult* result,
                           const CMPIObjectPath* path, const char* result_class, const char* role) {
  return Associations::serve(mi, result, path, [=](Request& request) {
    request.reference_names({.result_class = result_class, .role = role});
  });
}

CMPIStatus invoke_method(CMPIMethodMI* mi, const CMPIContext*, const CMPIResult* result,
                         const CMPIObjectPath* path, const char* method, const CMPIArgs* in,
                         CMPIArgs* out) {
  return Methods::serve(mi, result, path, [=](Request& request) {
    request.invoke(method, {in, out});
  });
}

// Not constant: some CMPI headers want them so. Nothing writes to them.
CMPIInstanceMIFT instance_table = {
    .ftVersion = CMPICurrentVersion,
    .miVersion = CMPICurrentVersion,
    .miName = kName,
    .cleanup = Instances::cleanup,
    .enumerateInstanceNames = enumerate_names,
    .enumerateInstances = enumerate_instances,
    .getInstance = get_instance,
    .createInstance = create_instance,
    .modifyInstance = modify_instance,
    .deleteInstance = delete_instance,
    .execQuery = exec_query,
};

CMPIAssociationMIFT association_table = {
    .ftVersion = CMPICurrentVersion,
    .miVersion = CMPICurrentVersion,
    .miName = kName,
    .cleanup = Associations::cleanup,
    .associators = associators,
    .associatorNames = associator_names,
    .references = references,
    .referenceNames = reference_names,
};

CMPIMethodMIFT method_table = {
    .ftVersion = CMPICurrentVersion,
    .miVersion = CMPICurrentVersion,
    .miName = kName,
    .cleanup = Methods::cleanup,
    .invokeMethod = invoke_method,
};

}  // namespace

CMPIInstanceMI* make_instance_mi(const CMPIBroker* broker, CMPIStatus* rc, ClassTable classes) {
  return Instances::make(broker, rc, classes, &instance_table);
}

CMPIAssociationMI* make_association_mi(const CMPIBroker* broker, CMPIStatus* rc,
                                       ClassTable classes) {
  return Associations::make(broker, rc, classes, &association_table);
}

CMPIMethodMI* make_method_mi(const CMPIBroker* broker, CMPIStatus* rc, ClassTable classes) {
  return Methods::make(broker, rc, classes, &method_table);
}

}  // namespace vexor::providers

// The factories by which an object manager finds this library's providers. They are the generic
// ones, so that the same library serves under any provider name.
#include <cmpidt.h>
#include <cmpift.h>

#include "providers/class_table.h"
#include "providers/provider_objects.h"

#define VEXOR_PROVIDERS_EXPORT extern "C" __attribute__((visibility("default")))

using namespace vexor::providers;

VEXOR_PROVIDERS_EXPORT CMPIInstanceMI* _Generic_Create_InstanceMI(const CMPIBroker* broker,
                                                                  const CMPIContext*,
                                                                  const char* /*provider*/,
                                                                  CMPIStatus* rc) {
  return make_instance_mi(broker, rc, class_table());
}

VEXOR_PROVIDERS_EXPORT CMPIAssociationMI* _Generic_Create_AssociationMI(const CMPIBroker* broker,
                                                                        const CMPIContext*,
                                                                        const char* /*provider*/,
                                                                        CMPIStatus* rc) {
  return make_association_mi(broker, rc, class_table());
}

VEXOR_PROVIDERS_EXPORT CMPIMethodMI* _Generic_Create_MethodMI(const CMPIBroker* broker,
                                                              const CMPIContext*,
                                                              const char* /*provider*/,
                                                              CMPIStatus* rc) {
  return make_method_mi(broker, rc, class_table());
}

#include <cim_utils/cmpi_builders.h>
#include <cim_utils/session.h>

#include <cstring>

#include "cmpi/builder.h"
#include "model/module_status.h"

using namespace cim_utils;

CMPIObjectPath* makePath(const CMPIBroker* broker, const char* nameSpace, const char* className,
                         CMPIStatus* rc) {
  CMPIObjectPath* path = broker->eft->newObjectPath(broker, nameSpace, className, rc);
  if (usable(path)) path->ft->setHostname(path, getCSName());
  return path;
}

CMPIObjectPath* association_class_fill_reference_path(const char* className, const char* nameSpace,
                                                      const CMPIObjectPath* firstRef,
                                                      const CMPIObjectPath* secondRef,
                                                      const char* firstRole, const char* secondRole,
                                                      const CMPIBroker* broker) {
  CMPIObjectPath* path = makePath(broker, nameSpace, className, nullptr);
  if (!usable(path)) return path;
  add_reference_key(path, firstRole, firstRef);
  add_reference_key(path, secondRole, secondRef);
  return path;
}

CMPIInstance* association_class_build_instance_path(const char* className, const char* nameSpace,
                                                    const CMPIObjectPath* firstRef,
                                                    const CMPIObjectPath* secondRef,
                                                    const char* firstRole, const char* secondRole,
                                                    const CMPIBroker* broker) {
  CMPIInstance* instance = new_instance(broker, nameSpace, className);
  if (instance == nullptr) return nullptr;
  set_reference(instance, firstRole, firstRef);
  set_reference(instance, secondRole, secondRef);
  return instance;
}

CMPIInstance* esd_build_instance(const char* className, const char* nameSpace,
                                 const CMPIObjectPath* managedElementRef,
                                 const CMPIObjectPath* settingDataRef, const char** /*ignored*/,
                                 const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, managedElementRef,
                                               settingDataRef, "ManagedElement", "SettingData",
                                               broker);
}

CMPIObjectPath* esd_fill_reference(const char* className, const char* nameSpace,
                                   const CMPIObjectPath* managedElementRef,
                                   const CMPIObjectPath* settingDataRef, const CMPIBroker* broker) {
  return association_class_fill_reference_path(className, nameSpace, managedElementRef,
                                               settingDataRef, "ManagedElement", "SettingData",
                                               broker);
}

CMPIInstance* sap_afe_build_instance(const char* className, const char* nameSpace,
                                     const CMPIObjectPath* managedElementRef,
                                     const CMPIObjectPath* availableSapRef,
                                     const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, managedElementRef,
                                               availableSapRef, "ManagedElement", "AvailableSAP",
                                               broker);
}

CMPIObjectPath* sap_afe_fill_reference(const char* className, const char* nameSpace,
                                       const CMPIObjectPath* managedElementRef,
                                       const CMPIObjectPath* availableSapRef,
                                       const CMPIBroker* broker) {
  return association_class_fill_reference_path(className, nameSpace, managedElementRef,
                                               availableSapRef, "ManagedElement", "AvailableSAP",
                                               broker);
}

CMPIInstance* ele_cap_build_instance(const char* className, const char* nameSpace,
                                     const CMPIObjectPath* managedElementRef,
                                     const CMPIObjectPath* capabilitiesRef,
                                     const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, managedElementRef,
                                               capabilitiesRef, "ManagedElement", "Capabilities",
                                               broker);
}

CMPIObjectPath* ele_cap_fill_reference(const char* className, const char* nameSpace,
                                       const CMPIObjectPath* managedElementRef,
                                       const CMPIObjectPath* capabilitiesRef,
                                       const CMPIBroker* broker) {
  return association_class_fill_reference_path(className, nameSpace, managedElementRef,
                                               capabilitiesRef, "ManagedElement", "Capabilities",
                                               broker);
}

void set_operational_status(int code, char* buffer) {
  if (buffer == nullptr) return;
  const char* text = model::module_status_text(code);
  // Never the terminator, deliberately. NOLINTNEXTLINE(bugprone-not-null-terminated-result)
  std::memcpy(buffer, text, std::strlen(text));
}

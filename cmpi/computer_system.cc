#include <cim_utils/cmpi_builders.h>
#include <cim_utils/cmpi_computer_system.h>
#include <cim_utils/session.h>

#include "cmpi/builder.h"
#include "model/computer_system.h"

using namespace cim_utils;

CMPIInstance* switch_build_instance_str(const char* className, const char* nameSpace,
                                        const char* wwnText, unsigned char remote,
                                        const char** propertyList, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(
      model::switch_instance(builder, className, nameSpace, wwnText, remote, propertyList));
}

CMPIInstance* switch_build_instance_wwn(const char* className, const char* nameSpace,
                                        const wwn_* wwn, unsigned char remote,
                                        const char** propertyList, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::switch_instance(builder, className, nameSpace, wwn, remote, propertyList));
}

CMPIInstance* switch_build_instance_ie(const char* className, const char* nameSpace,
                                       const fcs_cim_ie_* element, const char** propertyList,
                                       const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::switch_instance(builder, className, nameSpace, element, propertyList));
}

CMPIInstance* switch_build_instance_dm(const char* className, const char* nameSpace,
                                       const mts_dm_sw_dom_list_info_* entry,
                                       const char** propertyList, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::switch_instance(builder, className, nameSpace, entry, propertyList));
}

CMPIObjectPath* switch_fill_reference_str(const char* className, const char* nameSpace,
                                          const char* wwnText, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::switch_reference(builder, className, nameSpace, wwnText));
}

CMPIObjectPath* switch_fill_reference_wwn(const char* className, const char* nameSpace,
                                          const wwn_* wwn, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::switch_reference(builder, className, nameSpace, wwn));
}

CMPIObjectPath* switch_fill_reference_ie(const char* className, const char* nameSpace,
                                         const fcs_cim_ie_* element, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::switch_reference(builder, className, nameSpace, element));
}

CMPIObjectPath* switch_fill_reference_dm(const char* className, const char* nameSpace,
                                         const mts_dm_sw_dom_list_info_* entry,
                                         const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::switch_reference(builder, className, nameSpace, entry));
}

CMPIObjectPath* switch_fill_reference(const char* className, const char* nameSpace,
                                      const CMPIBroker* broker) {
  return switch_fill_reference_str(className, nameSpace, CSgetWWN(mts_q), broker);
}

CMPIInstance* component_build_instance(const char* className, const char* nameSpace,
                                       const CMPIObjectPath* groupRef,
                                       const CMPIObjectPath* partRef, const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, groupRef, partRef,
                                               "GroupComponent", "PartComponent", broker);
}

CMPIObjectPath* component_fill_reference(const char* className, const char* nameSpace,
                                         const CMPIObjectPath* groupRef,
                                         const CMPIObjectPath* partRef, const CMPIBroker* broker) {
  CMPIObjectPath* path = association_class_fill_reference_path(
      className, nameSpace, groupRef, partRef, "GroupComponent", "PartComponent", broker);
  // Unlike the general function, which returns a path without a handle as it came.
  return usable(path) ? path : nullptr;
}

CMPIInstance* component_build_instance_ie(const char* className, const char* nameSpace,
                                          const vsanNewEntry_t* vsan, const mts_dm_sw_conf_* swConf,
                                          const fcs_cim_ie_* element, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::component_instance(builder, className, nameSpace, vsan, swConf, element));
}

CMPIObjectPath* component_fill_reference_ie(const char* className, const char* nameSpace,
                                            const vsanNewEntry_t* vsan,
                                            const mts_dm_sw_conf_* swConf,
                                            const fcs_cim_ie_* element, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::component_reference(builder, className, nameSpace, vsan, swConf, element));
}

CMPIInstance* fcswitch_cap_build_instance(const char* className, const char* nameSpace,
                                          const char** propertyList, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::switch_capabilities_instance(builder, className, nameSpace, propertyList));
}

CMPIObjectPath* fcswitch_cap_fill_reference(const char* className, const char* nameSpace,
                                            const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::switch_capabilities_reference(builder, className, nameSpace));
}

CMPIInstance* fcswitch_set_build_instance(const char* className, const char* nameSpace,
                                          const char** propertyList, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::switch_settings_instance(builder, className, nameSpace, propertyList));
}

CMPIObjectPath* fcswitch_set_fill_reference(const char* className, const char* nameSpace,
                                            const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::switch_settings_reference(builder, className, nameSpace));
}

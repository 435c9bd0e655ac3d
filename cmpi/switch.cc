#include <cim_utils/cmpi_switch.h>

#include "cmpi/builder.h"
#include "model/switch_classes.h"

using namespace cim_utils;

CMPIInstance* fabric_build_instance(const char* className, const char* nameSpace,
                                    const char** propertyList, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::fabric_instance(builder, className, nameSpace, propertyList));
}

CMPIObjectPath* fabric_fill_reference(const char* className, const char* nameSpace,
                                      const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::fabric_reference(builder, className, nameSpace));
}

CMPIInstance* vsan_build_instance(const char* className, const char* nameSpace,
                                  const vsanNewEntry_t* vsan, const mts_dm_sw_conf_* swConf,
                                  const char** propertyList, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::vsan_instance(builder, className, nameSpace, vsan, swConf, propertyList));
}

CMPIObjectPath* vsan_fill_reference(const char* className, const char* nameSpace,
                                    const vsanNewEntry_t* vsan, const mts_dm_sw_conf_* swConf,
                                    const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::vsan_reference(builder, className, nameSpace, vsan, swConf));
}

CMPIInstance* contained_domain_build_instance(const char* className, const char* nameSpace,
                                              const vsanNewEntry_t* vsan,
                                              const mts_dm_sw_conf_* swConf,
                                              const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::contained_domain_instance(builder, className, nameSpace, vsan, swConf));
}

CMPIObjectPath* contained_domain_fill_reference(const char* className, const char* nameSpace,
                                                const vsanNewEntry_t* vsan,
                                                const mts_dm_sw_conf_* swConf,
                                                const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::contained_domain_reference(builder, className, nameSpace, vsan, swConf));
}

CMPIInstance* connectivity_collection_build_instance(const char* className, const char* nameSpace,
                                                     int number, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::connectivity_collection_instance(builder, className, nameSpace, number));
}

CMPIObjectPath* connectivity_collection_fill_reference(const char* className, const char* nameSpace,
                                                       int number, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::connectivity_collection_reference(builder, className, nameSpace, number));
}

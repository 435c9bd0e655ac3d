#include <cim_utils/provider_util.h>

#include "model/switch_classes.h"
#include "pegasus/builder.h"

using namespace cim_utils;
using Pegasus::CIMInstance;
using Pegasus::CIMObject;
using Pegasus::CIMObjectPath;
using Pegasus::String;

CIMObjectPath ProviderUtil::fabric_fill_reference(const char* className, const String& nameSpace) {
  PegasusBuilder builder;
  return to_pegasus(model::fabric_reference(builder, className, nameSpace.getCString()));
}

CIMInstance ProviderUtil::fabric_build_instance(const char* className, const String& nameSpace) {
  PegasusBuilder builder;
  return to_pegasus(model::fabric_instance(builder, className, nameSpace.getCString(), nullptr));
}

CIMObject ProviderUtil::fabric_build_object(const char* className, const String& nameSpace) {
  return CIMObject(fabric_build_instance(className, nameSpace));
}

CIMObjectPath ProviderUtil::vsan_fill_reference(const char* className, const String& nameSpace,
                                                vsanNewEntry_t* vsan, mts_dm_sw_conf_* swConf) {
  PegasusBuilder builder;
  return to_pegasus(
      model::vsan_reference(builder, className, nameSpace.getCString(), vsan, swConf));
}

CIMInstance ProviderUtil::vsan_build_instance(const char* className, const String& nameSpace,
                                              vsanNewEntry_t* vsan, mts_dm_sw_conf_* swConf) {
  PegasusBuilder builder;
  return to_pegasus(
      model::vsan_instance(builder, className, nameSpace.getCString(), vsan, swConf, nullptr));
}

CIMObject ProviderUtil::vsan_build_object(const char* className, const String& nameSpace,
                                          vsanNewEntry_t* vsan, mts_dm_sw_conf_* swConf) {
  return CIMObject(vsan_build_instance(className, nameSpace, vsan, swConf));
}

CIMObjectPath ProviderUtil::contained_domain_fill_reference(const String& className,
                                                            const String& nameSpace,
                                                            vsanNewEntry_t* vsan,
                                                            mts_dm_sw_conf_* swConf) {
  PegasusBuilder builder;
  return to_pegasus(model::contained_domain_reference(builder, className.getCString(),
                                                      nameSpace.getCString(), vsan, swConf));
}

CIMInstance ProviderUtil::contained_domain_build_instance(const String& className,
                                                          const String& nameSpace,
                                                          vsanNewEntry_t* vsan,
                                                          mts_dm_sw_conf_* swConf) {
  PegasusBuilder builder;
  return to_pegasus(model::contained_domain_instance(builder, className.getCString(),
                                                     nameSpace.getCString(), vsan, swConf));
}

CIMObject ProviderUtil::contained_domain_build_object(const String& className,
                                                      const String& nameSpace, vsanNewEntry_t* vsan,
                                                      mts_dm_sw_conf_* swConf) {
  return CIMObject(contained_domain_build_instance(className, nameSpace, vsan, swConf));
}

CIMObjectPath ProviderUtil::connectivity_collection_fill_reference(const char* className,
                                                                   const String& nameSpace,
                                                                   int number) {
  PegasusBuilder builder;
  return to_pegasus(
      model::connectivity_collection_reference(builder, className, nameSpace.getCString(), number));
}

CIMInstance ProviderUtil::connectivity_collection_build_instance(const char* className,
                                                                 const String& nameSpace,
                                                                 int number) {
  PegasusBuilder builder;
  return to_pegasus(
      model::connectivity_collection_instance(builder, className, nameSpace.getCString(), number));
}

CIMObject ProviderUtil::connectivity_collection_build_object(const char* className,
                                                             const String& nameSpace, int number) {
  return CIMObject(connectivity_collection_build_instance(className, nameSpace, number));
}

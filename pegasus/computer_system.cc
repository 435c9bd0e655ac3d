#include "model/computer_system.h"

#include <cim_utils/computer_system.h>
#include <cim_utils/provider_util.h>

#include "pegasus/builder.h"

using namespace cim_utils;
using Pegasus::CIMInstance;
using Pegasus::CIMObject;
using Pegasus::CIMObjectPath;
using Pegasus::String;

namespace {

constexpr unsigned char kOwnSwitch = 0;

}  // namespace

CIMObjectPath ProviderUtil::switch_fill_reference(const char* className, const String& nameSpace) {
  return switch_fill_reference(className, nameSpace, ComputerSystem(mts_q).getName());
}

CIMInstance ProviderUtil::switch_build_instance(const char* className, const String& nameSpace) {
  return switch_build_instance(className, nameSpace, ComputerSystem(mts_q).getName(), kOwnSwitch);
}

CIMObject ProviderUtil::switch_build_object(const char* className, const String& nameSpace) {
  return CIMObject(switch_build_instance(className, nameSpace));
}

CIMObjectPath ProviderUtil::switch_fill_reference(const char* className, const String& nameSpace,
                                                  const char* wwnText) {
  PegasusBuilder builder;
  return to_pegasus(model::switch_reference(builder, className, nameSpace.getCString(), wwnText));
}

CIMInstance ProviderUtil::switch_build_instance(const char* className, const String& nameSpace,
                                                const char* wwnText, unsigned char remote) {
  PegasusBuilder builder;
  return to_pegasus(
      model::switch_instance(builder, className, nameSpace.getCString(), wwnText, remote, nullptr));
}

CIMObject ProviderUtil::switch_build_object(const char* className, const String& nameSpace,
                                            const char* wwnText, unsigned char remote) {
  return CIMObject(switch_build_instance(className, nameSpace, wwnText, remote));
}

CIMObjectPath ProviderUtil::switch_fill_reference(const char* className, const String& nameSpace,
                                                  wwn_* wwn) {
  PegasusBuilder builder;
  return to_pegasus(model::switch_reference(builder, className, nameSpace.getCString(), wwn));
}

CIMInstance ProviderUtil::switch_build_instance(const char* className, const String& nameSpace,
                                                wwn_* wwn, unsigned char remote) {
  PegasusBuilder builder;
  return to_pegasus(
      model::switch_instance(builder, className, nameSpace.getCString(), wwn, remote, nullptr));
}

CIMObject ProviderUtil::switch_build_object(const char* className, const String& nameSpace,
                                            wwn_* wwn, unsigned char remote) {
  return CIMObject(switch_build_instance(className, nameSpace, wwn, remote));
}

CIMObjectPath ProviderUtil::switch_fill_reference(const char* className, const String& nameSpace,
                                                  fcs_cim_ie_* element) {
  PegasusBuilder builder;
  return to_pegasus(model::switch_reference(builder, className, nameSpace.getCString(), element));
}

CIMInstance ProviderUtil::switch_build_instance(const char* className, const String& nameSpace,
                                                fcs_cim_ie_* element) {
  PegasusBuilder builder;
  return to_pegasus(
      model::switch_instance(builder, className, nameSpace.getCString(), element, nullptr));
}

CIMObject ProviderUtil::switch_build_object(const char* className, const String& nameSpace,
                                            fcs_cim_ie_* element) {
  return CIMObject(switch_build_instance(className, nameSpace, element));
}

CIMObjectPath ProviderUtil::switch_fill_reference(const char* className, const String& nameSpace,
                                                  mts_dm_sw_dom_list_info_* entry) {
  PegasusBuilder builder;
  return to_pegasus(model::switch_reference(builder, className, nameSpace.getCString(), entry));
}

CIMInstance ProviderUtil::switch_build_instance(const char* className, const String& nameSpace,
                                                mts_dm_sw_dom_list_info_* entry) {
  PegasusBuilder builder;
  return to_pegasus(
      model::switch_instance(builder, className, nameSpace.getCString(), entry, nullptr));
}

CIMObject ProviderUtil::switch_build_object(const char* className, const String& nameSpace,
                                            mts_dm_sw_dom_list_info_* entry) {
  return CIMObject(switch_build_instance(className, nameSpace, entry));
}

CIMObjectPath ProviderUtil::component_fill_reference(const char* className, const String& nameSpace,
                                                     const CIMObjectPath& groupRef,
                                                     const CIMObjectPath& partRef) {
  return association_reference(className, nameSpace, groupRef, partRef, "GroupComponent",
                               "PartComponent");
}

CIMInstance ProviderUtil::component_build_instance(const char* className, const String& nameSpace,
                                                   const CIMObjectPath& groupRef,
                                                   const CIMObjectPath& partRef) {
  return association_instance(className, nameSpace, groupRef, partRef, "GroupComponent",
                              "PartComponent");
}

CIMObject ProviderUtil::component_build_object(const char* className, const String& nameSpace,
                                               const CIMObjectPath& groupRef,
                                               const CIMObjectPath& partRef) {
  return CIMObject(component_build_instance(className, nameSpace, groupRef, partRef));
}

CIMObjectPath ProviderUtil::component_fill_reference(const char* className, const String& nameSpace,
                                                     vsanNewEntry_t* vsan, mts_dm_sw_conf_* swConf,
                                                     fcs_cim_ie_* element) {
  PegasusBuilder builder;
  return to_pegasus(model::component_reference(builder, className, nameSpace.getCString(), vsan,
                                               swConf, element));
}

CIMInstance ProviderUtil::component_build_instance(const char* className, const String& nameSpace,
                                                   vsanNewEntry_t* vsan, mts_dm_sw_conf_* swConf,
                                                   fcs_cim_ie_* element) {
  PegasusBuilder builder;
  return to_pegasus(
      model::component_instance(builder, className, nameSpace.getCString(), vsan, swConf, element));
}

CIMObject ProviderUtil::component_build_object(const char* className, const String& nameSpace,
                                               vsanNewEntry_t* vsan, mts_dm_sw_conf_* swConf,
                                               fcs_cim_ie_* element) {
  return CIMObject(component_build_instance(className, nameSpace, vsan, swConf, element));
}

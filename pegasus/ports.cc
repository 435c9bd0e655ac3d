#include <cim_utils/provider_util.h>

#include "model/port_classes.h"
#include "model/port_endpoints.h"
#include "model/port_statistics.h"
#include "pegasus/builder.h"

using namespace cim_utils;
using Pegasus::CIMInstance;
using Pegasus::CIMObject;
using Pegasus::CIMObjectPath;
using Pegasus::String;

namespace {

constexpr char kBadPath[] = "f port fill refere exception:  ";

unsigned char* bytes_of(wwn_* wwn) {
  return wwn == nullptr ? nullptr : wwn->bytes;
}

}  // namespace

CIMObjectPath ProviderUtil::fcport_fill_reference(const char* className, const String& nameSpace,
                                                  pm_port_info_* port) {
  PegasusBuilder builder;
  return to_pegasus(model::port_reference(builder, className, nameSpace.getCString(), port));
}

CIMInstance ProviderUtil::fcport_build_instance(const char* className, const String& nameSpace,
                                                pm_port_info_* port) {
  PegasusBuilder builder;
  return to_pegasus(
      model::port_instance(builder, className, nameSpace.getCString(), port, nullptr));
}

CIMObject ProviderUtil::fcport_build_object(const char* className, const String& nameSpace,
                                            pm_port_info_* port) {
  return CIMObject(fcport_build_instance(className, nameSpace, port));
}

CIMObjectPath ProviderUtil::fcport_fill_reference(int /*index*/, const char* className,
                                                  const String& nameSpace, fspfLinkEntry* link,
                                                  unsigned char* wwn, unsigned char physical,
                                                  unsigned char /*flag*/, unsigned char local) {
  PegasusBuilder builder;
  const model::LinkPort port{link, wwn, physical != 0, local != 0};
  return to_pegasus(model::port_reference(builder, className, nameSpace.getCString(), port));
}

CIMInstance ProviderUtil::fcport_build_instance(int /*index*/, const char* className,
                                                const String& nameSpace, fspfLinkEntry* link,
                                                unsigned char* wwn, unsigned char physical,
                                                unsigned char /*flag*/, unsigned char local) {
  PegasusBuilder builder;
  const model::LinkPort port{link, wwn, physical != 0, local != 0};
  return to_pegasus(
      model::port_instance(builder, className, nameSpace.getCString(), port, nullptr));
}

CIMObject ProviderUtil::fcport_build_object(int index, const char* className,
                                            const String& nameSpace, fspfLinkEntry* link,
                                            unsigned char* wwn, unsigned char physical,
                                            unsigned char flag, unsigned char local) {
  return CIMObject(
      fcport_build_instance(index, className, nameSpace, link, wwn, physical, flag, local));
}

CIMObjectPath ProviderUtil::fcport_fill_reference(int index, const char* className,
                                                  const String& nameSpace, fspfLinkEntry* link,
                                                  wwn_* wwn, unsigned char physical,
                                                  unsigned char flag, unsigned char local) {
  return fcport_fill_reference(index, className, nameSpace, link, bytes_of(wwn), physical, flag,
                               local);
}

CIMInstance ProviderUtil::fcport_build_instance(int index, const char* className,
                                                const String& nameSpace, fspfLinkEntry* link,
                                                wwn_* wwn, unsigned char physical,
                                                unsigned char flag, unsigned char local) {
  return fcport_build_instance(index, className, nameSpace, link, bytes_of(wwn), physical, flag,
                               local);
}

CIMObject ProviderUtil::fcport_build_object(int index, const char* className,
                                            const String& nameSpace, fspfLinkEntry* link, wwn_* wwn,
                                            unsigned char physical, unsigned char flag,
                                            unsigned char local) {
  return CIMObject(
      fcport_build_instance(index, className, nameSpace, link, wwn, physical, flag, local));
}

CIMObjectPath ProviderUtil::fcport_fill_reference(const char* className, const String& nameSpace,
                                                  ns_api_register_req_* entry,
                                                  unsigned char physical,
                                                  unsigned char fabric_side) {
  PegasusBuilder builder(kBadPath);
  const model::AttachedPort port{entry, physical != 0, fabric_side != 0};
  return to_pegasus(model::port_reference(builder, className, nameSpace.getCString(), port));
}

CIMInstance ProviderUtil::fcport_build_instance(const char* className, const String& nameSpace,
                                                ns_api_register_req_* entry, unsigned char physical,
                                                unsigned char fabric_side) {
  PegasusBuilder builder(kBadPath);
  const model::AttachedPort port{entry, physical != 0, fabric_side != 0};
  return to_pegasus(
      model::port_instance(builder, className, nameSpace.getCString(), port, nullptr));
}

CIMObject ProviderUtil::fcport_build_object(const char* className, const String& nameSpace,
                                            ns_api_register_req_* entry, unsigned char physical,
                                            unsigned char fabric_side) {
  return CIMObject(fcport_build_instance(className, nameSpace, entry, physical, fabric_side));
}

CIMObjectPath ProviderUtil::pe_fill_reference(const char* className, const String& nameSpace,
                                              int queue, fspfLinkEntry* link, unsigned char local) {
  PegasusBuilder builder;
  return to_pegasus(model::endpoint_reference(builder, className, nameSpace.getCString(), queue,
                                              link, local != 0));
}

CIMInstance ProviderUtil::pe_build_instance(const char* className, const String& nameSpace,
                                            int queue, fspfLinkEntry* link, unsigned char local) {
  PegasusBuilder builder;
  return to_pegasus(model::endpoint_instance(builder, className, nameSpace.getCString(), queue,
                                             link, local != 0, nullptr));
}

CIMObject ProviderUtil::pe_build_object(const char* className, const String& nameSpace, int queue,
                                        fspfLinkEntry* link, unsigned char local) {
  return CIMObject(pe_build_instance(className, nameSpace, queue, link, local));
}

CIMObjectPath ProviderUtil::pe_fill_reference(const char* className, const String& nameSpace,
                                              pm_port_info_* port) {
  PegasusBuilder builder;
  return to_pegasus(model::endpoint_reference(builder, className, nameSpace.getCString(), port));
}

CIMInstance ProviderUtil::pe_build_instance(const char* className, const String& nameSpace,
                                            pm_port_info_* port) {
  PegasusBuilder builder;
  return to_pegasus(
      model::endpoint_instance(builder, className, nameSpace.getCString(), port, nullptr));
}

CIMObject ProviderUtil::pe_build_object(const char* className, const String& nameSpace,
                                        pm_port_info_* port) {
  return CIMObject(pe_build_instance(className, nameSpace, port));
}

CIMObjectPath ProviderUtil::pe_fill_reference(const char* className, const String& nameSpace,
                                              ns_api_register_req_* entry,
                                              unsigned char fabric_side) {
  PegasusBuilder builder;
  return to_pegasus(model::endpoint_reference(builder, className, nameSpace.getCString(), entry,
                                              fabric_side != 0));
}

CIMInstance ProviderUtil::pe_build_instance(const char* className, const String& nameSpace,
                                            ns_api_register_req_* entry,
                                            unsigned char fabric_side) {
  PegasusBuilder builder;
  return to_pegasus(model::endpoint_instance(builder, className, nameSpace.getCString(), entry,
                                             fabric_side != 0, nullptr));
}

CIMObject ProviderUtil::pe_build_object(const char* className, const String& nameSpace,
                                        ns_api_register_req_* entry, unsigned char fabric_side) {
  return CIMObject(pe_build_instance(className, nameSpace, entry, fabric_side));
}

CIMObjectPath ProviderUtil::logical_port_group_fill_reference(const char* className,
                                                              const String& nameSpace,
                                                              const char* text) {
  PegasusBuilder builder;
  return to_pegasus(model::port_group_reference(builder, className, nameSpace.getCString(), text));
}

CIMInstance ProviderUtil::logical_port_group_build_instance(const char* className,
                                                            const String& nameSpace,
                                                            const char* text) {
  PegasusBuilder builder;
  return to_pegasus(
      model::port_group_instance(builder, className, nameSpace.getCString(), text, nullptr));
}

CIMObject ProviderUtil::logical_port_group_build_object(const char* className,
                                                        const String& nameSpace, const char* text) {
  return CIMObject(logical_port_group_build_instance(className, nameSpace, text));
}

CIMObjectPath ProviderUtil::logical_port_group_fill_reference(const char* className,
                                                              const String& nameSpace, wwn_* wwn) {
  PegasusBuilder builder;
  return to_pegasus(model::port_group_reference(builder, className, nameSpace.getCString(), wwn));
}

CIMInstance ProviderUtil::logical_port_group_build_instance(const char* className,
                                                            const String& nameSpace, wwn_* wwn) {
  PegasusBuilder builder;
  return to_pegasus(
      model::port_group_instance(builder, className, nameSpace.getCString(), wwn, nullptr));
}

CIMObject ProviderUtil::logical_port_group_build_object(const char* className,
                                                        const String& nameSpace, wwn_* wwn) {
  return CIMObject(logical_port_group_build_instance(className, nameSpace, wwn));
}

CIMObjectPath ProviderUtil::fcport_stat_fill_reference(const char* className,
                                                       const String& nameSpace,
                                                       unsigned int if_index) {
  PegasusBuilder builder;
  return to_pegasus(
      model::port_statistics_reference(builder, className, nameSpace.getCString(), if_index));
}

CIMInstance ProviderUtil::fcport_stat_build_instance(const char* className, const String& nameSpace,
                                                     fcIfAllCounters_t* counters) {
  PegasusBuilder builder;
  return to_pegasus(model::port_statistics_instance(builder, className, nameSpace.getCString(),
                                                    counters, nullptr));
}

CIMObject ProviderUtil::fcport_stat_build_object(const char* className, const String& nameSpace,
                                                 fcIfAllCounters_t* counters) {
  return CIMObject(fcport_stat_build_instance(className, nameSpace, counters));
}

CIMObjectPath ProviderUtil::port_stat_fill_reference(const char* className, const String& nameSpace,
                                                     const CIMObjectPath& portRef,
                                                     const CIMObjectPath& statRef) {
  return association_reference(className, nameSpace, portRef, statRef, "ManagedElement", "Stats");
}

CIMInstance ProviderUtil::port_stat_build_instance(const char* className, const String& nameSpace,
                                                   const CIMObjectPath& portRef,
                                                   const CIMObjectPath& statRef) {
  return association_instance(className, nameSpace, portRef, statRef, "ManagedElement", "Stats");
}

CIMObject ProviderUtil::port_stat_build_object(const char* className, const String& nameSpace,
                                               const CIMObjectPath& portRef,
                                               const CIMObjectPath& statRef) {
  return CIMObject(port_stat_build_instance(className, nameSpace, portRef, statRef));
}

CIMObjectPath ProviderUtil::port_stat_fill_reference(const char* className, const String& nameSpace,
                                                     pm_port_info_* port) {
  PegasusBuilder builder;
  return to_pegasus(
      model::port_statistical_data_reference(builder, className, nameSpace.getCString(), port));
}

CIMInstance ProviderUtil::port_stat_build_instance(const char* className, const String& nameSpace,
                                                   pm_port_info_* port) {
  PegasusBuilder builder;
  return to_pegasus(
      model::port_statistical_data_instance(builder, className, nameSpace.getCString(), port));
}

CIMObject ProviderUtil::port_stat_build_object(const char* className, const String& nameSpace,
                                               pm_port_info_* port) {
  return CIMObject(port_stat_build_instance(className, nameSpace, port));
}

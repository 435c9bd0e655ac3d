#include <cim_utils/cmpi_builders.h>
#include <cim_utils/cmpi_ports.h>

#include "cmpi/builder.h"
#include "model/port_classes.h"
#include "model/port_endpoints.h"
#include "model/port_statistics.h"

using namespace cim_utils;

namespace {

const uint8_t* bytes_of(const wwn_* wwn) {
  return wwn == nullptr ? nullptr : wwn->bytes;
}

}  // namespace

// ---- Ports

CMPIObjectPath* fcport_fill_reference_pm(const char* nameSpace, const char* className,
                                         const pm_port_info_* port, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::port_reference(builder, className, nameSpace, port));
}

CMPIInstance* fcport_build_instance_pm(const char* className, const char* nameSpace,
                                       const pm_port_info_* port, const char** propertyList,
                                       const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::port_instance(builder, className, nameSpace, port, propertyList));
}

CMPIObjectPath* fcport_fill_reference_fspf_wwn(int /*index*/, const char* nameSpace,
                                               const char* className, const fspfLinkEntry* link,
                                               const uint8_t* wwn, unsigned char physical,
                                               unsigned char /*flag*/, unsigned char local,
                                               const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  const model::LinkPort port{link, wwn, physical != 0, local != 0};
  return to_cmpi(model::port_reference(builder, className, nameSpace, port));
}

CMPIObjectPath* fcport_fill_reference_fspf_wwnt(int index, const char* nameSpace,
                                                const char* className, const fspfLinkEntry* link,
                                                const wwn_* wwn, unsigned char physical,
                                                unsigned char flag, unsigned char local,
                                                const CMPIBroker* broker) {
  return fcport_fill_reference_fspf_wwn(index, nameSpace, className, link, bytes_of(wwn), physical,
                                        flag, local, broker);
}

CMPIInstance* fcport_build_instance_fspf_wwn(int /*index*/, const char* className,
                                             const char* nameSpace, const fspfLinkEntry* link,
                                             const uint8_t* wwn, unsigned char physical,
                                             unsigned char /*flag*/, unsigned char local,
                                             const char** propertyList, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  const model::LinkPort port{link, wwn, physical != 0, local != 0};
  return to_cmpi(model::port_instance(builder, className, nameSpace, port, propertyList));
}

CMPIObjectPath* fcport_fill_reference_ns(const char* className, const char* nameSpace,
                                         const ns_api_register_req_* entry, unsigned char physical,
                                         unsigned char fabric_side, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  const model::AttachedPort port{entry, physical != 0, fabric_side != 0};
  return to_cmpi(model::port_reference(builder, className, nameSpace, port));
}

CMPIInstance* fcport_build_instance_ns(const char* className, const char* nameSpace,
                                       const ns_api_register_req_* entry, unsigned char physical,
                                       unsigned char fabric_side, const char** propertyList,
                                       const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  const model::AttachedPort port{entry, physical != 0, fabric_side != 0};
  return to_cmpi(model::port_instance(builder, className, nameSpace, port, propertyList));
}

// ---- Capabilities and settings

CMPIInstance* fcport_cap_build_instance(const char* className, const char* nameSpace,
                                        const pm_port_info_* port, const char** propertyList,
                                        const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(
      model::port_capabilities_instance(builder, className, nameSpace, port, propertyList));
}

CMPIObjectPath* fcport_cap_fill_reference(const char* className, const char* nameSpace,
                                          const pm_port_info_* port, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::port_capabilities_reference(builder, className, nameSpace, port));
}

CMPIInstance* fcport_set_build_instance(const char* className, const char* nameSpace,
                                        const pm_port_info_* port, const char** propertyList,
                                        const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::port_settings_instance(builder, className, nameSpace, port, propertyList));
}

CMPIObjectPath* fcport_set_fill_reference(const char* className, const char* nameSpace,
                                          const pm_port_info_* port, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::port_settings_reference(builder, className, nameSpace, port));
}

// ---- Protocol endpoints

CMPIObjectPath* pe_fill_reference_fspf(const char* className, const char* nameSpace, int queue,
                                       const fspfLinkEntry* link, unsigned char local,
                                       const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::endpoint_reference(builder, className, nameSpace, queue, link, local != 0));
}

CMPIInstance* pe_build_instance_fspf(const char* className, const char* nameSpace, int queue,
                                     const fspfLinkEntry* link, unsigned char local,
                                     const char** propertyList, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::endpoint_instance(builder, className, nameSpace, queue, link, local != 0,
                                          propertyList));
}

CMPIObjectPath* pe_fill_reference_pm(const char* className, const char* nameSpace,
                                     const pm_port_info_* port, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::endpoint_reference(builder, className, nameSpace, port));
}

CMPIInstance* pe_build_instance_pm(const char* className, const char* nameSpace,
                                   const pm_port_info_* port, const char** propertyList,
                                   const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::endpoint_instance(builder, className, nameSpace, port, propertyList));
}

CMPIObjectPath* pe_fill_reference_ns(const char* className, const char* nameSpace,
                                     const ns_api_register_req_* entry, unsigned char fabric_side,
                                     const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::endpoint_reference(builder, className, nameSpace, entry, fabric_side != 0));
}

CMPIInstance* pe_build_instance_ns(const char* className, const char* nameSpace,
                                   const ns_api_register_req_* entry, unsigned char fabric_side,
                                   const char** propertyList, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::endpoint_instance(builder, className, nameSpace, entry, fabric_side != 0,
                                          propertyList));
}

// ---- Port groups

CMPIObjectPath* logical_port_group_fill_reference_str(const char* nameSpace, const char* className,
                                                      const char* text, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::port_group_reference(builder, className, nameSpace, text));
}

CMPIObjectPath* logical_port_group_fill_reference(const char* className, const char* nameSpace,
                                                  const wwn_* wwn, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::port_group_reference(builder, className, nameSpace, wwn));
}

CMPIInstance* logical_port_group_build_instance_str(const char* className, const char* nameSpace,
                                                    const char* text, const char** propertyList,
                                                    const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::port_group_instance(builder, className, nameSpace, text, propertyList));
}

CMPIInstance* logical_port_group_build_instance(const char* className, const char* nameSpace,
                                                const wwn_* wwn, const char** propertyList,
                                                const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::port_group_instance(builder, className, nameSpace, wwn, propertyList));
}

// ---- Statistics

CMPIObjectPath* fcport_stat_fill_reference(const char* nameSpace, const char* className,
                                           uint32_t if_index, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::port_statistics_reference(builder, className, nameSpace, if_index));
}

CMPIInstance* fcport_stat_build_instance(const char* className, const char* nameSpace,
                                         const fcIfAllCounters_t* counters,
                                         const char** propertyList, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(
      model::port_statistics_instance(builder, className, nameSpace, counters, propertyList));
}

CMPIObjectPath* port_stat_fill_reference(const char* className, const char* nameSpace,
                                         const CMPIObjectPath* portRef,
                                         const CMPIObjectPath* statRef, const CMPIBroker* broker) {
  CMPIObjectPath* path = association_class_fill_reference_path(
      className, nameSpace, portRef, statRef, "ManagedElement", "Stats", broker);
  // Unlike the general function, which returns a path without a handle as it came.
  return usable(path) ? path : nullptr;
}

CMPIInstance* port_stat_build_instance(const char* className, const char* nameSpace,
                                       const CMPIObjectPath* portRef, const CMPIObjectPath* statRef,
                                       const CMPIBroker* broker) {
  return association_class_build_instance_path(className, nameSpace, portRef, statRef,
                                               "ManagedElement", "Stats", broker);
}

CMPIObjectPath* port_stat_fill_reference_pm(const char* className, const char* nameSpace,
                                            const pm_port_info_* port, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::port_statistical_data_reference(builder, className, nameSpace, port));
}

CMPIInstance* port_stat_build_instance_pm(const char* className, const char* nameSpace,
                                          const pm_port_info_* port, const CMPIBroker* broker) {
  CmpiBuilder builder(broker);
  return to_cmpi(model::port_statistical_data_instance(builder, className, nameSpace, port));
}

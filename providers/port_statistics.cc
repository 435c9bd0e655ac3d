#include "providers/port_statistics.h"

#include <cim_utils/cmpi_ports.h>
#include <cim_utils/port_manager.h>

#include "providers/port_blocks.h"
#include "providers/queue.h"

namespace vexor::providers {
namespace {

// Null without any.
PortCounters counters_of(int32_t q, uint32_t if_index) {
  fcIfAllCounters_t* counters = nullptr;
  if (pm_cim_get_fc_port_counters(q, if_index, &counters) != 0) counters = nullptr;
  return PortCounters(counters, FreeCBlock());
}

constexpr PortKind kKind = PortKind::fibre_channel;

}  // namespace

std::vector<PortCounters> port_counters(int32_t q) {
  std::vector<PortCounters> found;
  for (const OwnPort& port : own_ports(q, kKind))
    if (PortCounters counters = counters_of(q, port.info->if_index); counters != nullptr)
      found.push_back(std::move(counters));
  return found;
}

std::vector<PortCounters> port_counters_named(int32_t q, const ObjectName& name) {
  const std::optional<uint32_t> if_index = id_of(name);
  if (!if_index || kind_of(*if_index) != kKind) return {};
  PortCounters counters = counters_of(q, *if_index);
  if (counters == nullptr) return {};
  return {std::move(counters)};
}

CMPIObjectPath* port_counters_reference(const Target& target, const PortCounters& counters) {
  return fcport_stat_fill_reference(target.name_space, target.class_name, counters->if_index,
                                    target.broker);
}

CMPIInstance* port_counters_instance(const Target& target, const PortCounters& counters) {
  return fcport_stat_build_instance(target.class_name, target.name_space, counters.get(),
                                    target.properties, target.broker);
}

// ---- VEXOR_FCPortStatisticalData ----

std::vector<OwnPort> ports_with_counters(int32_t q) {
  return own_ports(q, kKind);
}

std::vector<OwnPort> statistical_data_named(int32_t q, const ObjectName& name) {
  const ObjectName* statistics = name.reference("Stats");
  return statistics != nullptr ? own_ports_with_id(q, *statistics) : std::vector<OwnPort>{};
}

std::vector<OwnPort> statistical_data_of(int32_t q, const char* role, const ObjectName& object) {
  return same_name(role, "Stats") ? own_ports_with_id(q, object)
                                  : own_ports_named(q, kKind, object);
}

CMPIObjectPath* statistical_data_reference(const Target& target, const OwnPort& port) {
  return port_stat_fill_reference_pm(target.class_name, target.name_space, port.info.get(),
                                     target.broker);
}

CMPIInstance* statistical_data_instance(const Target& target, const OwnPort& port) {
  return port_stat_build_instance_pm(target.class_name, target.name_space, port.info.get(),
                                     target.broker);
}

CMPIObjectPath* statistics_end_reference(const Target& target, const OwnPort& port) {
  return fcport_stat_fill_reference(target.name_space, target.class_name, port.info->if_index,
                                    target.broker);
}

CMPIInstance* statistics_end_instance(const Target& target, const OwnPort& port) {
  const PortCounters counters = counters_of(queue::handle(), port.info->if_index);
  return counters != nullptr ? port_counters_instance(target, counters) : nullptr;
}

}  // namespace vexor::providers

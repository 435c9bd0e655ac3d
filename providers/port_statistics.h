// VEXOR_FCPortStatistics, and VEXOR_FCPortStatisticalData, which ties it to its port.
#pragma once

#include <switch_platform/records_port_manager.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "providers/class.h"
#include "providers/port_own.h"

namespace vexor::providers {

// What an own port has counted.
using PortCounters = std::shared_ptr<const fcIfAllCounters_t>;

// Of all own Fibre Channel ports: the walk over them, and one exchange for each. A port whose
// counters the port manager does not give, such as one that has just vanished, is left out.
std::vector<PortCounters> port_counters(int32_t q);
// By "InstanceID": one exchange.
std::vector<PortCounters> port_counters_named(int32_t q, const ObjectName& name);
CMPIObjectPath* port_counters_reference(const Target& target, const PortCounters& counters);
CMPIInstance* port_counters_instance(const Target& target, const PortCounters& counters);

// ---- VEXOR_FCPortStatisticalData ----

std::vector<OwnPort> ports_with_counters(int32_t q);
std::vector<OwnPort> statistical_data_named(int32_t q, const ObjectName& name);
// One port for either end.
std::vector<OwnPort> statistical_data_of(int32_t q, const char* role, const ObjectName& object);
CMPIObjectPath* statistical_data_reference(const Target& target, const OwnPort& port);
CMPIInstance* statistical_data_instance(const Target& target, const OwnPort& port);
CMPIObjectPath* statistics_end_reference(const Target& target, const OwnPort& port);
CMPIInstance* statistics_end_instance(const Target& target, const OwnPort& port);

}  // namespace vexor::providers

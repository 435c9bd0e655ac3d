// The functions of each CMPI table; a behavior leaves some slots out.
#ifndef HOST_TABLES_H_
#define HOST_TABLES_H_

#include <cmpift.h>

#include "host/behavior.h"

namespace cim::host {

CMPIBrokerFT broker_table(const Behavior& behavior);
CMPIBrokerEncFT encapsulated_table(const Behavior& behavior);
CMPIBrokerExtFT system_table(const Behavior& behavior);
CMPIBrokerMemFT memory_table();
CMPIInstanceFT instance_table(const Behavior& behavior);
CMPIObjectPathFT object_path_table(const Behavior& behavior);
CMPIArgsFT args_table();
CMPIStringFT string_table();
CMPIArrayFT array_table();
CMPIDateTimeFT date_time_table();
CMPIEnumerationFT enumeration_table();
CMPIContextFT context_table();
CMPIResultFT result_table(const Behavior& behavior);
CMPIErrorFT error_table();

/// The number in every ftVersion and in brokerVersion.
inline constexpr CMPIVersion kTableVersion = 200;

}  // namespace cim::host

#endif  // HOST_TABLES_H_

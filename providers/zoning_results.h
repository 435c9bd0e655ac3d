// What the zone server's results mean to a client.
#pragma once

#include <cmpidt.h>
#include <cmpift.h>

#include <cstdint>

namespace vexor::providers {

// Return values of the methods of CIM_ZoneService.
enum class ZoneServiceResult : uint32_t {
  success = 0,
  not_supported = 1,
  failed = 4,
  invalid_parameter = 5,
  not_found = 7,
  already_exists = 8,
  insufficient_resources = 9,
};

// Of a result of the zone server, or of the library's own -1.
ZoneServiceResult zone_service_result(int32_t zone_server_result);

// The same as a CIM status.
CMPIrc cim_status(ZoneServiceResult result);
inline CMPIrc cim_status(int32_t zone_server_result) {
  return cim_status(zone_service_result(zone_server_result));
}

// Whether what was asked for is not there (any more): nothing to report when reading.
bool is_not_there(int32_t zone_server_result);

}  // namespace vexor::providers

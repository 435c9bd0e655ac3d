#include "providers/zoning_results.h"

#include <switch_platform/zone_server_results.h>

namespace vexor::providers {

ZoneServiceResult zone_service_result(int32_t zone_server_result) {
  switch (zone_server_result) {
    case 0:
      return ZoneServiceResult::success;
    case ZS_NO_SUCH_VSAN:
    case ZS_NO_SUCH_OBJECT:
    case ZS_NO_SUCH_MEMBER:
      return ZoneServiceResult::not_found;
    case ZS_OBJECT_EXISTS:
    case ZS_MEMBER_EXISTS:
      return ZoneServiceResult::already_exists;
    case ZS_BAD_NAME:
    case ZS_BAD_KIND:
    case ZS_BAD_MEMBER:
      return ZoneServiceResult::invalid_parameter;
    case ZS_TOO_MANY_ZONE_SETS:
    case ZS_TOO_MANY_ZONES:
    case ZS_TOO_MANY_ALIASES:
    case ZS_TOO_MANY_MEMBERS:
    case ZS_TOO_MANY_MEMBERS_OF_PARENT:
      return ZoneServiceResult::insufficient_resources;
    default:
      return ZoneServiceResult::failed;
  }
}

CMPIrc cim_status(ZoneServiceResult result) {
  switch (result) {
    case ZoneServiceResult::success:
      return CMPI_RC_OK;
    case ZoneServiceResult::not_supported:
      return CMPI_RC_ERR_NOT_SUPPORTED;
    case ZoneServiceResult::invalid_parameter:
      return CMPI_RC_ERR_INVALID_PARAMETER;
    case ZoneServiceResult::not_found:
      return CMPI_RC_ERR_NOT_FOUND;
    case ZoneServiceResult::already_exists:
      return CMPI_RC_ERR_ALREADY_EXISTS;
    default:
      return CMPI_RC_ERR_FAILED;
  }
}

bool is_not_there(int32_t zone_server_result) {
  return zone_service_result(zone_server_result) == ZoneServiceResult::not_found;
}

}  // namespace vexor::providers

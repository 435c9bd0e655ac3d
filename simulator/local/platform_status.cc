// Texts of status codes.
#include "simulator/local/platform_status.h"

#include <switch_platform/mts.h>
#include <switch_platform/zone_server_results.h>

#include <array>
#include <cstdio>
#include <utility>

namespace {

using namespace switch_sim::status;

constexpr std::array<std::pair<int32_t, const char*>, 18> kTexts = {{
    {kOk, "Success"},
    {kTransportFailure, "Message transport failure"},
    {kNotFound, "No such entry"},
    {kEndOfTable, "No more entries in the table"},
    {kBadLength, "Request has a wrong length"},
    {kBadOperation, "Operation not supported by the service"},
    {kBadValue, "Value not allowed"},
    {kNotRunning, "Service is not running in the VSAN"},
    {kUnknownOpcode, "Opcode not known to the service"},
    {kServiceNotAvailable, "Service not available"},
    {kFabricNotUsable, "Fabric description cannot be used"},
    {kStateNotSaved, "Change could not be saved"},
    {kNotRecorded, "Request is not in the recording"},
    {kNoMemory, "Out of memory"},
    {kAttributeNotSupported, "Attribute cannot be set on this interface"},
    {kPortInChannel, "Interface belongs to a port channel"},
    {kQueryRejected, "Query rejected by the name server"},
    {kBadSystemInformationItem, "No such system-information item"},
}};

constexpr std::array<std::pair<int32_t, const char*>, 18> kZoneServerTexts = {{
    {ZS_NO_SUCH_VSAN, "VSAN is not configured"},
    {ZS_NO_SUCH_OBJECT, "No such zone set, zone or alias"},
    {ZS_NO_SUCH_MEMBER, "No such member"},
    {ZS_OBJECT_EXISTS, "Name is in use"},
    {ZS_MEMBER_EXISTS, "Member is already present"},
    {ZS_BAD_NAME, "Not a zoning name"},
    {ZS_BAD_KIND, "Wrong kind of zoning object"},
    {ZS_BAD_MEMBER, "Not a zone member"},
    {ZS_ZONE_SET_EMPTY, "Zone set holds no zones"},
    {ZS_TOO_MANY_ZONE_SETS, "Too many zone sets"},
    {ZS_TOO_MANY_ZONES, "Too many zones"},
    {ZS_TOO_MANY_ALIASES, "Too many zone aliases"},
    {ZS_TOO_MANY_MEMBERS, "Too many zone members"},
    {ZS_TOO_MANY_MEMBERS_OF_PARENT, "Too many members of one zone or alias"},
    {ZS_ALREADY_ACTIVE, "Zone set is already active"},
    {ZS_NOT_ACTIVE, "Zone set is not active"},
    {ZS_ALREADY_DISTRIBUTED, "Zoning database is already distributed"},
    {ZS_NOTHING_TO_DISTRIBUTE, "No zone set to distribute"},
}};

}  // namespace

// A code without a text of its own is shown as a number, in a buffer of the calling thread that the
// next such call overwrites.
const char* syserr2str(int32_t code) {
  for (const auto& [known, text] : kTexts) {
    if (known == code) return text;
  }
  for (const auto& [known, text] : kZoneServerTexts) {
    if (known == code) return text;
  }
  thread_local char buffer[32];
  snprintf(buffer, sizeof buffer, "Unknown status 0x%x", static_cast<unsigned>(code));
  return buffer;
}

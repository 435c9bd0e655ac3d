// Texts of status codes.
#include "simulator/local/platform_status.h"

#include <switch_platform/mts.h>

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

}  // namespace

// A code without a text of its own is shown as a number, in a buffer of the calling thread that the
// next such call overwrites.
const char* syserr2str(int32_t code) {
  for (const auto& [known, text] : kTexts) {
    if (known == code) return text;
  }
  thread_local char buffer[32];
  snprintf(buffer, sizeof buffer, "Unknown status 0x%x", static_cast<unsigned>(code));
  return buffer;
}

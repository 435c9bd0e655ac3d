// The ends of links between switches, from FSPF: what VEXOR_FCPort and VEXOR_ProtocolEndPoint show
// of them.
#pragma once

#include <switch_platform/records_fspf.h>
#include <switch_platform/types.h>

#include <cstdint>
#include <string>
#include <vector>

#include "providers/class.h"

namespace vexor::providers {

// One end of a link, and the switch at that end by the WWN that it shows in the link's VSAN.
struct LinkEnd {
  fspfLinkEntry link;
  wwn_ switch_wwn;
  bool local;     // the end that advertised the link
  bool physical;  // as a port of a device, else as one in the VSAN
};

// Numbers of the VSANs that are up: the count, and one exchange for each VSAN.
std::vector<uint32_t> running_vsans(int32_t q);

// Both ends of every link of a VSAN in which the switch at that end is known, each end once, not as
// physical ones. Asks the configuration server once and once more for each switch, and FSPF once
// for each switch. A switch whose links FSPF does not tell is known by the far ends of the others',
// and one that the configuration server does not tell of by the domain manager.
std::vector<LinkEnd> link_ends_of_vsan(int32_t q, uint32_t vsan);

// All ends, each as a port in its VSAN and as a port of its device, which a link in several VSANs
// has once.
std::vector<LinkEnd> link_ends(int32_t q, const std::vector<uint32_t>& vsans);

// Those that "DeviceID" may name. A link name and a physical one tell which switch has to be asked.
// Where that one does not know the link, or the name was cut, all links of the VSAN or VSANs are
// read and compared.
std::vector<LinkEnd> link_ends_named(int32_t q, const char* device_id);

CMPIObjectPath* link_end_reference(const Target& target, const LinkEnd& end);
CMPIInstance* link_end_instance(const Target& target, const LinkEnd& end);

// ---- endpoints ----

// What the library names an endpoint whose interface the platform does not know.
inline constexpr char kNoLinkName[] = "none";

// Ends that "Name" of an endpoint may name, likewise.
std::vector<LinkEnd> link_endpoints_named(int32_t q, const char* name);
CMPIObjectPath* link_endpoint_reference(const Target& target, const LinkEnd& end);
CMPIInstance* link_endpoint_instance(const Target& target, const LinkEnd& end);

// The whole name of an end; kNoLinkName where the platform does not know its interface.
std::string endpoint_name(const LinkEnd& end);

}  // namespace vexor::providers

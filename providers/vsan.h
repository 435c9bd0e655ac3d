// VEXOR_Vsan, and VEXOR_ContainedDomain, which holds every VSAN in the fabric.
#pragma once

#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_vsan.h>

#include <vector>

#include "providers/class.h"

namespace vexor::providers {

struct VsanRecord {
  vsanNewEntry_t entry;
  mts_dm_sw_conf_ configuration;
  bool has_configuration;  // false: the domain manager gave none
};

// The count, then one exchange with the VSAN manager and one with the domain manager per VSAN. When
// the VSAN manager stops answering on the way, the VSANs read until then are the result: the
// library does not tell the difference.
std::vector<VsanRecord> all_vsans(int32_t q);

// The VSAN that the key "Name" may name; none when there is none.
std::vector<VsanRecord> vsans_named(int32_t q, const ObjectName& name);

CMPIObjectPath* vsan_reference(const Target& target, const VsanRecord& vsan);
CMPIInstance* vsan_instance(const Target& target, const VsanRecord& vsan);

// VEXOR_ContainedDomain.
CMPIObjectPath* contained_domain_reference(const Target& target, const VsanRecord& vsan);
CMPIInstance* contained_domain_instance(const Target& target, const VsanRecord& vsan);
// By the VSAN in "PartComponent".
std::vector<VsanRecord> contained_domains_named(int32_t q, const ObjectName& name);
// All VSANs for the fabric, one for a VSAN.
std::vector<VsanRecord> contained_domains_of(int32_t q, const char* role, const ObjectName& object);

}  // namespace vexor::providers

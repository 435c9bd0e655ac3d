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

// What the library's builders take; null without one.
inline const mts_dm_sw_conf_* configuration(const VsanRecord& vsan) {
  return vsan.has_configuration ? &vsan.configuration : nullptr;
}

inline bool is_up(const vsanNewEntry_t& entry) {
  return entry.oper_state == 1;
}

// One VSAN by its number, without and with the domain manager's part. Result: false when the VSAN
// manager knows none. Throws Failure when it does not answer.
bool read_vsan_entry(int32_t q, uint32_t number, vsanNewEntry_t& entry);
bool read_vsan(int32_t q, uint32_t number, VsanRecord& vsan);

// All of them without the domain manager's part: the count, then one exchange each. Throws Failure
// when the VSAN manager does not give its VSANs.
std::vector<vsanNewEntry_t> all_vsan_entries(int32_t q);

// The count, then one exchange with the VSAN manager and one with the domain manager per VSAN. When
// the VSAN manager stops answering on the way, the VSANs read until then are the result: the
// library does not tell the difference.
std::vector<VsanRecord> all_vsans(int32_t q);

// The VSAN that the key "Name" may name; none when there is none.
std::vector<VsanRecord> vsans_named(int32_t q, const ObjectName& name);

// The numbers of all VSANs: their count, then one exchange each.
std::vector<uint32_t> vsan_numbers(int32_t q);

// The number that names a VSAN's connectivity collection, its zone service and the capabilities of
// that. Result: 0 for a text that is no VSAN's number. Asks nobody.
uint32_t read_vsan_number(const char* text);

CMPIObjectPath* vsan_reference(const Target& target, const VsanRecord& vsan);
CMPIInstance* vsan_instance(const Target& target, const VsanRecord& vsan);

// The method RequestStateChange: makes the VSAN active ("RequestedState" 2) or suspends it (3). It
// is done when the method returns, so there is never a job. Result: 0; 2 when the VSAN manager
// refuses or does not answer; 5 for another state or none.
uint32_t request_vsan_state(int32_t q, const VsanRecord& vsan, const Arguments& arguments);

// ---- VEXOR_ConnectivityCollection ----

// What a VSAN connects, known by the VSAN's number.
struct ConnectivityCollection {
  uint32_t vsan;
};

// One for each VSAN.
std::vector<ConnectivityCollection> connectivity_collections(int32_t q);
// By "InstanceID", with one exchange.
std::vector<ConnectivityCollection> connectivity_collections_named(int32_t q,
                                                                   const ObjectName& name);
CMPIObjectPath* connectivity_collection_reference(const Target& target,
                                                  const ConnectivityCollection& collection);
CMPIInstance* connectivity_collection_instance(const Target& target,
                                               const ConnectivityCollection& collection);

// ---- VEXOR_ContainedDomain ----

CMPIObjectPath* contained_domain_reference(const Target& target, const VsanRecord& vsan);
CMPIInstance* contained_domain_instance(const Target& target, const VsanRecord& vsan);
// By the VSAN in "PartComponent".
std::vector<VsanRecord> contained_domains_named(int32_t q, const ObjectName& name);
// All VSANs for the fabric, one for a VSAN.
std::vector<VsanRecord> contained_domains_of(int32_t q, const char* role, const ObjectName& object);

}  // namespace vexor::providers

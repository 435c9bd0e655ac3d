// The fabric, its VSANs, and what ties them together.
#pragma once

#include <switch_platform/records_domain_manager.h>
#include <switch_platform/records_vsan.h>

#include "model/builder.h"

namespace cim_utils::model {

// The fabric as an administrative domain. Asks the domain manager for VSAN 1, which names the
// fabric; the instance asks the VSAN manager for VSAN 1 too.
Ref fabric_reference(Builder& b, const char* cls, const char* ns);
Object fabric_instance(Builder& b, const char* cls, const char* ns, const char** properties);

// A VSAN from its entry and the domain manager's record of it. Null records make nothing.
Ref vsan_reference(Builder& b, const char* cls, const char* ns, const vsanNewEntry_t* vsan,
                   const mts_dm_sw_conf_* conf);
Object vsan_instance(Builder& b, const char* cls, const char* ns, const vsanNewEntry_t* vsan,
                     const mts_dm_sw_conf_* conf, const char** properties);

// A VSAN in the fabric.
Ref contained_domain_reference(Builder& b, const char* cls, const char* ns,
                               const vsanNewEntry_t* vsan, const mts_dm_sw_conf_* conf);
Object contained_domain_instance(Builder& b, const char* cls, const char* ns,
                                 const vsanNewEntry_t* vsan, const mts_dm_sw_conf_* conf);

// The connectivity of a group of ports, known by a number.
Ref connectivity_collection_reference(Builder& b, const char* cls, const char* ns, int number);
Object connectivity_collection_instance(Builder& b, const char* cls, const char* ns, int number);

}  // namespace cim_utils::model

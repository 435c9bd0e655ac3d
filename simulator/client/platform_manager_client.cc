// The platform manager's client functions. The fabric has no chassis yet, so that none of them can
// answer: each says that the service is not available and hands nothing out.
#include <switch_platform/platform_manager.h>

#include "simulator/local/platform_status.h"

using switch_sim::status::kServiceNotAvailable;

int32_t pfm_slot_num_to_entity_index(int32_t /*q*/, uint32_t* /*entity*/, uint32_t /*slot*/) {
  return kServiceNotAvailable;
}

int32_t pfm_entity_index_to_slot_num(int32_t /*q*/, uint32_t /*entity*/, uint32_t* /*slot*/) {
  return kServiceNotAvailable;
}

int32_t pfm_get_sprom(int32_t /*q*/, int32_t /*a*/, int32_t /*b*/, int32_t /*c*/, void* /*buffer*/,
                      int32_t /*size*/) {
  return kServiceNotAvailable;
}

const char* pdb_get_chassis_id_string(void) {
  return "";
}

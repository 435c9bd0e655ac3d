// The zone server's client functions. The fabric has no zoning yet, so that none of them can
// answer: each says that the service is not available and hands nothing out.
#include <switch_platform/zone_server.h>

#include "simulator/local/platform_status.h"

namespace {

using switch_sim::status::kServiceNotAvailable;

int32_t nothing(int32_t* count, void** reply) {
  if (count != nullptr) *count = 0;
  if (reply != nullptr) *reply = nullptr;
  return kServiceNotAvailable;
}

}  // namespace

int32_t zs_cmi_get_zone_set(int32_t /*q*/, int32_t /*exact*/, uint32_t /*vsan*/, void* /*context*/,
                            int32_t /*zero*/, int32_t /*active*/, uint32_t /*id*/, int32_t* count,
                            void** reply) {
  return nothing(count, reply);
}

int32_t zs_cmi_get_zone(int32_t /*q*/, int32_t /*exact*/, uint32_t /*vsan*/, void* /*context*/,
                        int32_t /*zero*/, int32_t /*active*/, uint32_t /*id*/, int32_t* count,
                        void** reply) {
  return nothing(count, reply);
}

int32_t zs_cmi_get_alias(int32_t /*q*/, int32_t /*exact*/, uint32_t /*vsan*/, void* /*context*/,
                         int32_t /*zero*/, int32_t /*active*/, uint32_t /*id*/, int32_t* count,
                         void** reply) {
  return nothing(count, reply);
}

int32_t zs_cmi_get_all_zone_sets_in_vsan(int32_t /*q*/, uint32_t /*vsan*/, void* /*context*/,
                                         int32_t /*zero*/, int32_t /*active*/, int32_t* count,
                                         void** reply) {
  return nothing(count, reply);
}

int32_t zs_cmi_get_all_zones_in_vsan(int32_t /*q*/, uint32_t /*vsan*/, void* /*context*/,
                                     int32_t /*zero*/, int32_t /*active*/, int32_t* count,
                                     void** reply) {
  return nothing(count, reply);
}

int32_t zs_cmi_get_all_aliases_in_vsan(int32_t /*q*/, uint32_t /*vsan*/, void* /*context*/,
                                       int32_t /*zero*/, int32_t /*active*/, int32_t* count,
                                       void** reply) {
  return nothing(count, reply);
}

int32_t zs_cmi_get_member(int32_t /*q*/, int32_t /*exact*/, uint32_t /*vsan*/, void* /*context*/,
                          int32_t /*zero*/, int32_t /*active*/, int32_t /*parent_kind*/,
                          uint32_t /*parent_id*/, uint32_t /*member_id*/, int32_t* count,
                          void** reply, int32_t /*zero2*/) {
  return nothing(count, reply);
}

int32_t zs_api_parse_member(const void* /*entry*/, uint8_t* /*type*/, int32_t* length,
                            const void** value, const void** lun) {
  if (length != nullptr) *length = 0;
  if (value != nullptr) *value = nullptr;
  if (lun != nullptr) *lun = nullptr;
  return kServiceNotAvailable;
}

int32_t zs_cmi_create_zoning_object(int32_t /*q*/, int32_t /*operation*/, uint32_t /*vsan*/,
                                    int32_t /*kind*/, int32_t /*minus1*/, const char* /*name*/,
                                    const char* /*empty1*/, const char* /*empty2*/,
                                    void* /*context*/) {
  return kServiceNotAvailable;
}

int32_t zs_cmi_get_id_for_name(int32_t /*q*/, uint32_t /*vsan*/, void* /*context*/,
                               int32_t /*zero*/, int32_t /*active*/, int32_t /*kind*/,
                               const char* /*name*/, uint32_t* /*id*/) {
  return kServiceNotAvailable;
}

int32_t zs_cmi_get_name_for_id(int32_t /*q*/, uint32_t /*vsan*/, void* /*context*/,
                               int32_t /*zero*/, int32_t /*active*/, int32_t /*kind*/,
                               uint32_t /*id*/, char* /*name*/) {
  return kServiceNotAvailable;
}

int32_t zs_cmi_add_zone_to_zone_set(int32_t /*q*/, int32_t /*operation*/, uint32_t /*vsan*/,
                                    const char* /*zone_set*/, const char* /*zone*/,
                                    const char* /*empty1*/, const char* /*empty2*/,
                                    void* /*context*/) {
  return kServiceNotAvailable;
}

int32_t zs_cmi_add_alias_to_zone(int32_t /*q*/, int32_t /*operation*/, uint32_t /*vsan*/,
                                 const char* /*zone*/, const char* /*alias*/,
                                 const char* /*empty1*/, const char* /*empty2*/,
                                 void* /*context*/) {
  return kServiceNotAvailable;
}

int32_t zs_cmi_add_zone_member(int32_t /*q*/, int32_t /*operation*/, uint32_t /*vsan*/,
                               const char* /*parent*/, int32_t /*minus1*/, const void* /*member*/,
                               const char* /*null1*/, const char* /*null2*/, void* /*context*/) {
  return kServiceNotAvailable;
}

int32_t zs_cmi_add_alias_member(int32_t /*q*/, int32_t /*operation*/, uint32_t /*vsan*/,
                                const char* /*parent*/, int32_t /*minus1*/, const void* /*member*/,
                                const char* /*empty1*/, const char* /*empty2*/, void* /*context*/) {
  return kServiceNotAvailable;
}

int32_t zs_cmi_activate_zone_set(int32_t /*q*/, int32_t /*operation*/, uint32_t /*vsan*/,
                                 const char* /*name*/, const char* /*empty1*/,
                                 const char* /*empty2*/, void* /*context*/) {
  return kServiceNotAvailable;
}

int32_t zs_cmi_zoneset_distribute(int32_t /*q*/, uint32_t /*vsan*/, const char* /*empty1*/,
                                  const char* /*empty2*/, void* /*context*/) {
  return kServiceNotAvailable;
}

int32_t zs_cmi_get_all_policies(int32_t /*q*/, int32_t /*one*/, uint32_t /*vsan*/,
                                void* /*context*/, int32_t /*zero*/, void** policies) {
  return nothing(nullptr, policies);
}

uint32_t zs_cmi_get_policy(const void* /*policies*/, int32_t /*a*/, int32_t /*b*/, int32_t /*c*/) {
  return 0;
}

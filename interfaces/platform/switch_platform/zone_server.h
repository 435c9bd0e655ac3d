/* The zone server: full and active zoning database of each VSAN. */
#ifndef SWITCH_PLATFORM_ZONE_SERVER_H
#define SWITCH_PLATFORM_ZONE_SERVER_H

#include <stdint.h>

#include <switch_platform/types.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result: 0 ok, else zone-server result (passed through). Memory: client allocates *reply (count
 * x 1344) with the C heap; library or caller frees with free(); *count in/out, 1 on input. */
int32_t zs_cmi_get_zone_set(int32_t q, int32_t exact, uint32_t vsan, void* context /* 132 */,
                            int32_t zero, int32_t active, uint32_t id, int32_t* count,
                            void** reply);

/* Result: same. Memory: same, 872-byte entries. */
int32_t zs_cmi_get_zone(int32_t q, int32_t exact, uint32_t vsan, void* context, int32_t zero,
                        int32_t active, uint32_t id, int32_t* count, void** reply);

/* Result: same. Memory: same, 344-byte entries. */
int32_t zs_cmi_get_alias(int32_t q, int32_t exact, uint32_t vsan, void* context, int32_t zero,
                         int32_t active, uint32_t id, int32_t* count, void** reply);

/* Result: same. Memory: same; *count 32 on input. */
int32_t zs_cmi_get_all_zone_sets_in_vsan(int32_t q, uint32_t vsan, void* context, int32_t zero,
                                         int32_t active, int32_t* count, void** reply);

/* Result: same. Memory: same. */
int32_t zs_cmi_get_all_zones_in_vsan(int32_t q, uint32_t vsan, void* context, int32_t zero,
                                     int32_t active, int32_t* count, void** reply);

/* Result: same. Memory: same. */
int32_t zs_cmi_get_all_aliases_in_vsan(int32_t q, uint32_t vsan, void* context, int32_t zero,
                                       int32_t active, int32_t* count, void** reply);

/* Result: 0 ok. Memory: client allocates *reply; library frees. */
int32_t zs_cmi_get_member(int32_t q, int32_t exact, uint32_t vsan, void* context, int32_t zero,
                          int32_t active, int32_t parent_kind, uint32_t parent_id,
                          uint32_t member_id, int32_t* count, void** reply, int32_t zero2);

/* Result: 0 ok. Memory: value and lun point into the entry. */
int32_t zs_api_parse_member(const void* entry, uint8_t* type, int32_t* length, const void** value,
                            const void** lun);

/* Result: 0 ok, else zone-server result. */
int32_t zs_cmi_create_zoning_object(int32_t q, int32_t operation, uint32_t vsan, int32_t kind,
                                    int32_t minus1, const char* name, const char* empty1,
                                    const char* empty2, void* context);

/* Result: 0 ok. */
int32_t zs_cmi_get_id_for_name(int32_t q, uint32_t vsan, void* context, int32_t zero,
                               int32_t active, int32_t kind, const char* name, uint32_t* id);

/* Result: 0 ok. Memory: caller's name buffer (68 bytes in the records: give 256 zeroed). */
int32_t zs_cmi_get_name_for_id(int32_t q, uint32_t vsan, void* context, int32_t zero,
                               int32_t active, int32_t kind, uint32_t id, char* name);

/* Result: 0 ok. */
int32_t zs_cmi_add_zone_to_zone_set(int32_t q, int32_t operation, uint32_t vsan,
                                    const char* zone_set, const char* zone, const char* empty1,
                                    const char* empty2, void* context);

/* Result: 0 ok. */
int32_t zs_cmi_add_alias_to_zone(int32_t q, int32_t operation, uint32_t vsan, const char* zone,
                                 const char* alias, const char* empty1, const char* empty2,
                                 void* context);

/* Result: 0 ok. Memory: member buffer is the library's (freed after the call). */
int32_t zs_cmi_add_zone_member(int32_t q, int32_t operation, uint32_t vsan, const char* parent,
                               int32_t minus1, const void* member, const char* null1,
                               const char* null2, void* context);

/* Result: 0 ok. Memory: same. */
int32_t zs_cmi_add_alias_member(int32_t q, int32_t operation, uint32_t vsan, const char* parent,
                                int32_t minus1, const void* member, const char* empty1,
                                const char* empty2, void* context);

/* Result: 0, 0x40200038, 0x40200039 = success. */
int32_t zs_cmi_activate_zone_set(int32_t q, int32_t operation, uint32_t vsan, const char* name,
                                 const char* empty1, const char* empty2, void* context);

/* Result: 0x40200079 = success; 0x40200091 special. */
int32_t zs_cmi_zoneset_distribute(int32_t q, uint32_t vsan, const char* empty1, const char* empty2,
                                  void* context);

/* Result: 0 ok. Memory: client allocates *policies, library frees with free(); NULL = none. */
int32_t zs_cmi_get_all_policies(int32_t q, int32_t one, uint32_t vsan, void* context, int32_t zero,
                                void** policies);

/* Result: the policy value. */
uint32_t zs_cmi_get_policy(const void* policies, int32_t a, int32_t b, int32_t c);

#ifdef __cplusplus
}
#endif

#endif /* SWITCH_PLATFORM_ZONE_SERVER_H */

// The name server's client functions. The fabric has no attached devices yet, so that none of them
// can answer: each says that the service is not available and hands nothing out.
#include <switch_platform/name_server.h>

#include "simulator/local/platform_status.h"

namespace {

using switch_sim::status::kServiceNotAvailable;

int32_t no_message(mts_msg_t** message) {
  if (message != nullptr) *message = nullptr;
  return kServiceNotAvailable;
}

}  // namespace

int32_t ns_send_get_entry_given_portname(int32_t /*q*/, uint32_t /*wwn_word0*/,
                                         uint32_t /*wwn_word1*/, const struct ns_query_* /*query*/,
                                         mts_msg_t** request) {
  return no_message(request);
}

int32_t ns_send_get_entries_given_nodename(int32_t /*q*/, uint32_t /*wwn_word0*/,
                                           uint32_t /*wwn_word1*/,
                                           const struct ns_query_* /*query*/, mts_msg_t** request) {
  return no_message(request);
}

int32_t ns_send_get_entries_given_fab_port_name(int32_t /*q*/, uint32_t /*wwn_word0*/,
                                                uint32_t /*wwn_word1*/,
                                                const struct ns_query_* /*query*/,
                                                mts_msg_t** request) {
  return no_message(request);
}

int32_t ns_send_get_entries_given_port_type(int32_t /*q*/, uint32_t /*port_type*/,
                                            const struct ns_query_* /*query*/,
                                            mts_msg_t** request) {
  return no_message(request);
}

int32_t ns_parse_get_entry_status(mts_msg_t* /*reply*/, int32_t* count, void** cursor) {
  if (count != nullptr) *count = 0;
  if (cursor != nullptr) *cursor = nullptr;
  return kServiceNotAvailable;
}

int32_t ns_parse_get_entry(mts_msg_t* /*reply*/, void* /*cursor*/, void* /*slot*/,
                           int32_t /*index*/) {
  return kServiceNotAvailable;
}

int32_t ns_parse_get_ct_error(mts_msg_t* /*reply*/, int32_t* error, int32_t* expln) {
  if (error != nullptr) *error = 0;
  if (expln != nullptr) *expln = 0;
  return kServiceNotAvailable;
}

int32_t ns_parse_is_entry_duplicate(mts_msg_t* /*reply*/, void* /*cursor*/, int32_t /*index*/,
                                    uint8_t* duplicate) {
  if (duplicate != nullptr) *duplicate = 0;
  return kServiceNotAvailable;
}

int32_t ns_get_fc4_devices(int32_t /*q*/, uint32_t /*vsan*/, uint32_t /*fc4_type*/,
                           const uint8_t /*wwn*/[8], mts_msg_t** reply) {
  return no_message(reply);
}

int32_t ns_parse_get_num_fc4_devices(mts_msg_t* /*reply*/) {
  return 0;
}

int32_t ns_parse_get_fc4_device_entry(mts_msg_t* /*reply*/, void* /*slot*/, int32_t /*index*/) {
  return kServiceNotAvailable;
}

// The message transport.
#include <switch_platform/mts.h>

#include "simulator/client/platform.h"
#include "simulator/local/platform_status.h"

using switch_sim::Bytes;
using switch_sim::on_platform;
using switch_sim::Platform;

// What the options ask for is not modelled: every queue is as long as it needs to be.
int32_t mts_bind(int32_t /*kind*/, int32_t /*address*/, const struct cim_mts_bind_opts* opts,
                 const char* name) {
  if (opts == nullptr || name == nullptr || *name == '\0') {
    errno = EINVAL;
    return -1;
  }
  return on_platform(-1, [](Platform& platform) { return platform.bind(); });
}

int32_t mts_unbind(int32_t q, int32_t /*flags*/) {
  return on_platform(-1, [&](Platform& platform) {
    if (platform.unbind(q)) return 0;
    errno = EBADF;
    return -1;
  });
}

int32_t mts_recv(int32_t q, mts_msg_t** msg, const struct cim_mts_recv_opts* opts) {
  if (msg == nullptr || opts == nullptr) {
    errno = EINVAL;
    return -1;
  }
  return on_platform(-1, [&](Platform& platform) {
    *msg = platform.receive(q, opts->token, std::chrono::seconds(opts->timeout_seconds));
    if (*msg != nullptr) return 0;
    errno = platform.last_error(q);
    return -1;
  });
}

int32_t mts_drop(int32_t /*q*/, mts_msg_t* msg) {
  return on_platform(-1, [&](Platform& platform) { return platform.drop(msg) ? 0 : -1; });
}

uint32_t mts_rr_token_get(const mts_msg_t* msg) {
  return on_platform(0U, [&](Platform& platform) { return platform.holds(msg) ? msg->token : 0U; });
}

void* mts_payload_get(mts_msg_t* msg) {
  return on_platform(static_cast<void*>(nullptr), [&](Platform& platform) -> void* {
    return platform.holds(msg) && !msg->payload.empty() ? msg->payload.data() : nullptr;
  });
}

int32_t mts_payload_size(mts_msg_t* msg) {
  return on_platform(0, [&](Platform& platform) {
    return platform.holds(msg) ? static_cast<int32_t>(msg->payload.size()) : 0;
  });
}

int32_t mts_errno_get(int32_t q) {
  return on_platform(ENOMEM, [&](Platform& platform) { return platform.last_error(q); });
}

namespace {

Bytes copy_request(const void* request, int32_t length) {
  if (request == nullptr) return {};
  const auto* bytes = static_cast<const std::byte*>(request);
  return {bytes, bytes + length};
}

}  // namespace

// The last three arguments but the queue carry nothing that is modelled.
int32_t cmi_req_resp(uint32_t opcode, uint32_t operation, const void* request, void** reply,
                     int32_t* length, int32_t /*zero1*/, int32_t /*zero2*/, uint32_t service_sap,
                     int32_t q, int32_t /*last*/) {
  if (reply != nullptr) *reply = nullptr;
  if (length == nullptr || *length < 0) {
    errno = EINVAL;
    return -1;
  }
  const int32_t request_length = *length;
  *length = 0;
  return on_platform(-1, [&](Platform& platform) {
    const auto outcome =
        platform.exchange(q, {static_cast<switch_sim::Service>(service_sap), opcode, operation,
                              copy_request(request, request_length)});
    if (outcome.error_number != 0) errno = outcome.error_number;
    if (reply != nullptr && outcome.reply) {
      *reply = platform.hand_out(*outcome.reply);
      *length = static_cast<int32_t>(outcome.reply->size());
    }
    return outcome.status;
  });
}

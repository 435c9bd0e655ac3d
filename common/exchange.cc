#include "common/exchange.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>

namespace cim_utils {

Reply::~Reply() {
  std::free(data_);
}

int32_t exchange(const SynchronousRequest& request, int32_t q, Reply* reply) {
  int32_t length = request.length;
  void* data = nullptr;
  const int32_t status = cmi_req_resp(request.opcode, request.operation, request.body,
                                      reply != nullptr ? &data : nullptr, &length, 0, 0,
                                      request.service, q, request.last);
  if (reply == nullptr || data == nullptr) return status;

  // The length is the service's word; the block's own size is the bound that cannot lie.
  const size_t block = malloc_usable_size(data);
  const bool told = length != request.length || request.preset == Preset::whole_reply;
  reply->data_ = data;
  reply->reported_ = std::min(block, static_cast<size_t>(std::max(length, 0)));
  reply->size_ = told ? reply->reported_ : block;
  return status;
}

int32_t receive(int32_t q, uint32_t token, uint32_t timeout_seconds, Message* message) {
  cim_mts_recv_opts options{};
  options.word_0 = 1;
  options.timeout_seconds = timeout_seconds;
  options.token = token;
  return mts_recv(q, message->out(), &options);
}

}  // namespace cim_utils

#include "zoning/zone_server_entries.h"

#include <malloc.h>

namespace cim_utils {

int32_t whole_entries(const void* reply, int32_t announced, size_t stride) {
  if (reply == nullptr || announced <= 0) return 0;
  const size_t held = malloc_usable_size(const_cast<void*>(reply)) / stride;
  return static_cast<int32_t>(std::min(static_cast<size_t>(announced), held));
}

}  // namespace cim_utils

#include "model/builder.h"

#include <cim_utils/session.h>

#include <cstring>

namespace cim_utils::model {

KeyNames::KeyNames(const Builder& builder, std::initializer_list<const char*> names) {
  constexpr uint32_t kLongestKeyName = 25;
  if (builder.face() != Face::cmpi) return;
  names_ = malloc_char_array(static_cast<int32_t>(names.size()), kLongestKeyName);
  complete_ = names_ != nullptr;
  if (!complete_) return;
  char** next = names_;
  for (const char* name : names)
    std::memcpy(*next++, name, strnlen(name, kLongestKeyName - 1));  // into zeroed texts
}

KeyNames::~KeyNames() {
  free_char_array(names_);
}

}  // namespace cim_utils::model

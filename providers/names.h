// CIM names (of classes, properties, keys, methods, roles) are the same in any letter case.
#pragma once

#include <strings.h>

namespace vexor::providers {

// Null is no name and equals none.
inline bool same_name(const char* a, const char* b) {
  return a != nullptr && b != nullptr && strcasecmp(a, b) == 0;
}

// Whether the client asks for any name: filters that are left out are null or empty.
inline bool given(const char* filter) {
  return filter != nullptr && *filter != '\0';
}

// list: names and a null pointer at the end; null is an empty list.
inline bool is_in(const char* name, const char* const* list) {
  for (; list != nullptr && *list != nullptr; ++list)
    if (same_name(name, *list)) return true;
  return false;
}

}  // namespace vexor::providers

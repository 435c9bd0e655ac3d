// Owners of what the library's adaptors hand out.
#pragma once

#include <cim_utils/collections.h>
#include <glib.h>

#include <cstdlib>
#include <memory>

namespace vexor::providers {

struct FreeCBlock {
  void operator()(void* block) const { std::free(block); }
};
template <class Record>
using CBlock = std::unique_ptr<Record, FreeCBlock>;

struct DestroyGList {
  void operator()(GSList* list) const { cim_g_slist_destroy(list, nullptr); }
};
using GListOwner = std::unique_ptr<GSList, DestroyGList>;

}  // namespace vexor::providers

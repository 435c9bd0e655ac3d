// A set of texts, for listing each thing once.
#ifndef COMMON_SEEN_TEXTS_H
#define COMMON_SEEN_TEXTS_H

#include <cim_utils/collections.h>

namespace cim_utils {

class SeenTexts {
 public:
  SeenTexts() : table_(cim_g_hash_table_new()) {}
  SeenTexts(const SeenTexts&) = delete;
  SeenTexts& operator=(const SeenTexts&) = delete;
  ~SeenTexts() { cim_g_hash_table_destroy(table_, 0); }

  // True for the first time; false later, and when the text cannot be remembered.
  bool first_time(const char* text) {
    if (g_hash_table_lookup(table_, text) != nullptr) return false;
    return cim_g_hash_table_insert(table_, text, this) == 0;
  }

 private:
  GHashTable* table_;
};

}  // namespace cim_utils

#endif  // COMMON_SEEN_TEXTS_H

// Builds the lists that the library hands out.
#ifndef COMMON_LIST_BUILDER_H
#define COMMON_LIST_BUILDER_H

#include <cim_utils/collections.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>

namespace cim_utils {

// Adds elements at the end of a list in constant time each, however long the list is: remembers
// the last node and appends to that. Nobody else may add to or take from the end of the list as
// long as the builder is in use. The list, at *head, owns its elements from the first moment on:
// what was appended is released with cim_g_slist_destroy(*head, nullptr), by whoever owns *head.
class ListBuilder {
 public:
  // Continues the list at *head, which may be empty (null).
  explicit ListBuilder(GSList** head) : head_(head), last_(*head) {
    while (last_ != nullptr && last_->next != nullptr)
      last_ = last_->next;
  }
  ListBuilder(const ListBuilder&) = delete;
  ListBuilder& operator=(const ListBuilder&) = delete;

  // Takes over a block of the C heap.
  void append(void* data) { grown(cim_g_slist_append(last_, data)); }

  // Appends a copy of the record; false, with the list unchanged, when there is no memory for it.
  [[nodiscard]] bool append_copy(const void* record, std::size_t size) {
    void* const copy = std::malloc(size);
    if (copy == nullptr) return false;
    std::memcpy(copy, record, size);
    append(copy);
    return true;
  }

  // Appends a copy of the text; false as above.
  [[nodiscard]] bool append_text(const char* text) {
    return grown(cim_g_slist_append_str(last_, text));
  }

 private:
  // GLib was given the last node as if it were a list; that has a node more now, or else nothing
  // was added.
  bool grown(GSList* from_last) {
    if (last_ == nullptr) {
      *head_ = last_ = from_last;
      return last_ != nullptr;
    }
    if (last_->next == nullptr) return false;
    last_ = last_->next;
    return true;
  }

  GSList** head_;
  GSList* last_;
};

// Turns a list round, without touching its elements. Result: the new head.
inline GSList* reversed(GSList* list) {
  GSList* front = nullptr;
  while (list != nullptr) {
    GSList* const rest = list->next;
    list->next = front;
    front = list;
    list = rest;
  }
  return front;
}

// A list under construction: freed with its elements unless it is given up.
class OwnedList {
 public:
  OwnedList() = default;
  OwnedList(const OwnedList&) = delete;
  OwnedList& operator=(const OwnedList&) = delete;
  ~OwnedList() { cim_g_slist_destroy(head, nullptr); }

  GSList* head = nullptr;
};

}  // namespace cim_utils

#endif  // COMMON_LIST_BUILDER_H

// Values whose copies share their content until one of them is changed.
#ifndef SIMULATOR_FABRIC_SHARED_H
#define SIMULATOR_FABRIC_SHARED_H

#include <atomic>
#include <memory>

namespace switch_sim {

// The content for a change: a copy of its own where others hold it too. Not null.
template <typename T>
T& unshare(std::shared_ptr<T>& content) {
  if (content.use_count() > 1) content = std::make_shared<T>(*content);
  // What another thread read before it gave its copy up comes before the change.
  std::atomic_thread_fence(std::memory_order_acquire);
  return *content;
}

// A copy costs the same however large the content is, and so does a comparison of copies that
// nobody changed.
template <typename T>
class Shared {
 public:
  const T& operator*() const { return content_ != nullptr ? *content_ : initial(); }
  const T* operator->() const { return &**this; }

  // For a change; the reference is good until the value is copied.
  T& change() {
    if (content_ == nullptr) content_ = std::make_shared<T>();
    return unshare(content_);
  }

  friend bool operator==(const Shared& left, const Shared& right) {
    return left.content_ == right.content_ || *left == *right;
  }

 private:
  static const T& initial() {
    static const T content;
    return content;
  }

  std::shared_ptr<T> content_;  // null: as it is made
};

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_SHARED_H

#include "host/arena.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <unordered_set>
#include <utility>
#include <vector>

namespace cim::host {
namespace {

/// Never destroyed: objects may still be released while the process ends.
struct LiveNodes {
  std::mutex mutex;
  std::unordered_set<const void*> nodes;

  static LiveNodes& get() {
    static LiveNodes& live = *new LiveNodes;
    return live;
  }
};

thread_local Scope* current_scope = nullptr;

}  // namespace

std::string_view kind_name(Kind kind) {
  static constexpr std::array<std::string_view, 11> kNames = {
      "CMPIInstance",    "CMPIObjectPath", "CMPIArgs",   "CMPIString", "CMPIArray", "CMPIDateTime",
      "CMPIEnumeration", "CMPIContext",    "CMPIResult", "CMPIError",  "CMPIGcStat"};
  return kNames[static_cast<std::size_t>(kind)];
}

Node::Node(Kind kind) : kind_(kind) {
  LiveNodes& live = LiveNodes::get();
  const std::lock_guard lock(live.mutex);
  live.nodes.insert(this);
}

Node::~Node() {
  no_longer_alive();
}

void Node::no_longer_alive() {
  LiveNodes& live = LiveNodes::get();
  const std::lock_guard lock(live.mutex);
  live.nodes.erase(this);
}

Node* live_node(const void* handle) {
  if (handle == nullptr) return nullptr;
  LiveNodes& live = LiveNodes::get();
  const std::lock_guard lock(live.mutex);
  if (!live.nodes.contains(handle)) return nullptr;
  return static_cast<Node*>(const_cast<void*>(handle));
}

Node* live_node(const void* handle, Kind kind) {
  Node* node = live_node(handle);
  return node != nullptr && node->kind() == kind ? node : nullptr;
}

void Arena::FreeBytes::operator()(std::byte* bytes) const {
  std::free(bytes);
}

void Arena::add(std::unique_ptr<Node> node) {
  const std::lock_guard lock(mutex_);
  const Node* const key = node.get();
  nodes_.emplace(key, Held{added_++, std::move(node)});
}

std::unique_ptr<Node> Arena::take(const Node* node) {
  const std::lock_guard lock(mutex_);
  const auto found = nodes_.find(node);
  if (found == nodes_.end()) return nullptr;
  std::unique_ptr<Node> taken = std::move(found->second.node);
  nodes_.erase(found);
  return taken;
}

std::size_t Arena::free_after(std::uint64_t count) {
  std::vector<std::unique_ptr<Node>> freed;  // destroyed outside the lock
  const std::lock_guard lock(mutex_);
  for (auto item = nodes_.begin(); item != nodes_.end();) {
    if (item->second.order < count) {
      ++item;
      continue;
    }
    freed.push_back(std::move(item->second.node));
    item = nodes_.erase(item);
  }
  return freed.size();
}

std::uint64_t Arena::added() const {
  const std::lock_guard lock(mutex_);
  return added_;
}

void* Arena::allocate(std::size_t size) {
  auto* const bytes = static_cast<std::byte*>(std::calloc(1, size == 0 ? 1 : size));
  if (bytes == nullptr) return nullptr;
  const std::lock_guard lock(mutex_);
  bytes_.emplace(bytes, Bytes{std::unique_ptr<std::byte, FreeBytes>(bytes), size});
  return bytes;
}

void* Arena::reallocate(void* bytes, std::size_t size) {
  if (bytes == nullptr) return allocate(size);
  std::size_t old_size = 0;
  {
    const std::lock_guard lock(mutex_);
    const auto found = bytes_.find(bytes);
    if (found == bytes_.end()) return nullptr;
    old_size = found->second.size;
  }
  void* const moved = allocate(size);
  if (moved == nullptr) return nullptr;
  std::memcpy(moved, bytes, std::min(old_size, size));
  free_bytes(bytes);
  return moved;
}

bool Arena::free_bytes(void* bytes) {
  const std::lock_guard lock(mutex_);
  return bytes_.erase(bytes) != 0;
}

Scope::Scope(Broker& broker, std::shared_ptr<Arena> arena)
    : broker_(broker), arena_(std::move(arena)), outer_(current_scope) {
  current_scope = this;
}

Scope::~Scope() {
  current_scope = outer_;
}

Scope* Scope::current() {
  return current_scope;
}

}  // namespace cim::host

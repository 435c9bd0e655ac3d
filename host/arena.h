// The memory behind CMPI objects.
//
// Every object that a provider sees is a Shell: the CMPI structure (handle and table) with the C++
// content that the handle stands for. Shells live in an Arena, one per request, and go with it.
// What a clone slot made belongs to the Broker instead and lives until it is released. Release
// frees the content at once; the shell, which then is a null object, stays until the request ends,
// so that a second release finds an object without a handle and does nothing.
//
// Which shells are alive is known process-wide: a handle that is none of them (freed, of another
// kind, or made by somebody else) is answered with CMPI_RC_ERR_INVALID_HANDLE, never followed.
#ifndef HOST_ARENA_H_
#define HOST_ARENA_H_

#include <cmpidt.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string_view>
#include <unordered_map>

namespace cim::host {

class Broker;

enum class Kind : std::uint8_t {
  instance,
  object_path,
  args,
  string,
  array,
  date_time,
  enumeration,
  context,
  result,
  error,
  mark,
};

/// The name of the C type: "CMPIInstance".
std::string_view kind_name(Kind kind);

class Node {
 public:
  explicit Node(Kind kind);
  virtual ~Node();
  Node(const Node&) = delete;
  Node& operator=(const Node&) = delete;

  Kind kind() const { return kind_; }
  /// Frees the content; the CMPI structure stays as a null object.
  virtual void drop() = 0;

 protected:
  void no_longer_alive();

 private:
  Kind kind_;
};

/// The shell of that kind behind a handle, or null.
Node* live_node(const void* handle, Kind kind);
/// The same of any kind.
Node* live_node(const void* handle);

class Arena {
 public:
  Arena() = default;
  Arena(const Arena&) = delete;
  Arena& operator=(const Arena&) = delete;

  /// Takes the node over.
  void add(std::unique_ptr<Node> node);
  /// Takes the node out; null when it is not here.
  std::unique_ptr<Node> take(const Node* node);
  /// Frees all that was added after the first `count`, and returns how many nodes those were.
  std::size_t free_after(std::uint64_t count);
  /// How many nodes were ever added.
  std::uint64_t added() const;

  // Bytes: freed with the arena unless freed before. A pointer that is not one of them is left
  // alone.
  void* allocate(std::size_t size);  ///< zeroed; null when there is no memory
  void* reallocate(void* bytes, std::size_t size);
  bool free_bytes(void* bytes);

 private:
  struct Held {
    std::uint64_t order;
    std::unique_ptr<Node> node;
  };
  struct FreeBytes {
    void operator()(std::byte* bytes) const;
  };
  struct Bytes {
    std::unique_ptr<std::byte, FreeBytes> memory;
    std::size_t size;
  };

  mutable std::mutex mutex_;
  std::unordered_map<const Node*, Held> nodes_;
  std::unordered_map<const void*, Bytes> bytes_;
  std::uint64_t added_ = 0;
};

/// While it lives, objects that this thread makes through `broker` go into `arena`. Scopes nest.
class Scope {
 public:
  Scope(Broker& broker, std::shared_ptr<Arena> arena);
  ~Scope();
  Scope(const Scope&) = delete;
  Scope& operator=(const Scope&) = delete;

  /// The innermost scope of this thread, or null.
  static Scope* current();

  Broker& broker() const { return broker_; }
  const std::shared_ptr<Arena>& arena() const { return arena_; }

 private:
  Broker& broker_;
  std::shared_ptr<Arena> arena_;
  Scope* outer_;
};

}  // namespace cim::host

#endif  // HOST_ARENA_H_

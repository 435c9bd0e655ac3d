// What the description of a CIM class writes to. One description serves both provider interfaces:
// the face is known to the builder alone.
//
// A builder lives on the stack of one exported call. What it hands out (Ref, Object) lives as long
// as the builder does; a face's exported function turns it into what the face returns. Values are
// consumed during the call that writes them, so texts in shared static buffers may be passed.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <span>

namespace cim_utils::model {

enum class Face { cmpi, pegasus };

// What a path builder returns when the object manager gives no usable path.
enum class BadPath {
  null,                // nothing
  as_it_came,          // whatever the object manager gave
  say_and_as_it_came,  // the same, after saying so on standard output
};

// Whether the request's property list is applied to the instance.
enum class Filter { ignored, applied };

struct Ref {
  const void* object = nullptr;
};

struct Object {
  const void* object = nullptr;
};

// An open path, whose writes are keys, or an open instance, whose writes are properties. Null texts
// and null ends are not written.
class ObjectWriter {
 public:
  virtual void text(const char* name, const char* value) = 0;
  virtual void boolean(const char* name, bool value) = 0;
  virtual void uint8(const char* name, uint8_t value) = 0;
  virtual void uint16(const char* name, uint16_t value) = 0;
  virtual void uint32(const char* name, uint32_t value) = 0;
  virtual void uint64(const char* name, uint64_t value) = 0;
  virtual void sint32(const char* name, int32_t value) = 0;
  virtual void uint16s(const char* name, std::span<const uint16_t> values) = 0;
  // The same array as the value of two properties.
  virtual void same_uint16s(const char* first, const char* second,
                            std::span<const uint16_t> values) = 0;
  virtual void uint64s(const char* name, std::span<const uint64_t> values) = 0;
  virtual void texts(const char* name, std::span<const char* const> values) = 0;
  virtual void reference(const char* role, Ref end) = 0;
  // The path of an instance, for faces whose instances have one.
  virtual void path(Ref path) = 0;

 protected:
  ~ObjectWriter() = default;
};

// out null: stop and return ref.
struct Opened {
  ObjectWriter* out;
  Ref ref;
};

class Builder;

// The names of a class's keys, for the property filter of one instance. The face that filters
// allocates them; the list must outlive the writing of the instance.
class KeyNames {
 public:
  KeyNames(const Builder& builder, std::initializer_list<const char*> names);
  KeyNames(const KeyNames&) = delete;
  KeyNames& operator=(const KeyNames&) = delete;
  ~KeyNames();

  // False when memory ran out.
  explicit operator bool() const { return complete_; }
  const char** list() const { return const_cast<const char**>(names_); }

 private:
  char** names_ = nullptr;
  bool complete_ = true;
};

class Builder {
 public:
  virtual Face face() const = 0;
  // The face's own queue handle.
  virtual int32_t queue() const = 0;
  // Whether an instance carries a path with keys of its own.
  virtual bool instances_have_paths() const = 0;

  // Makes a path with its host. One path is open at a time.
  virtual Opened open_path(const char* cls, const char* ns, BadPath bad_path) = 0;
  // Makes an instance with its host, and filters it. Null when the object manager gives none.
  virtual ObjectWriter* open_instance(const char* cls, const char* ns, const KeyNames& keys,
                                      Filter filter, const char** properties) = 0;
  // The same without key names, for instances that are never filtered.
  virtual ObjectWriter* open_instance(const char* cls, const char* ns) = 0;
  virtual Ref close_path(ObjectWriter* path) = 0;
  virtual Object close_instance(ObjectWriter* instance) = 0;

 protected:
  ~Builder() = default;
};

}  // namespace cim_utils::model

// The ways in which the library asks a switch service, each written once.
//
// Synchronous: send a request, wait for the status and, where data is wanted back, a reply that
// the transport allocated and that is freed here on every path.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

#include <switch_platform/mts.h>

namespace cim_utils {

// What the length given to the transport says about the reply when the call leaves it unchanged.
enum class Preset {
  whole_reply,  // it is also the size of the reply, which is of a fixed size
  unknown,      // it says nothing about the reply
};

// A reply of the transport: C heap memory that is freed with this object.
class Reply {
 public:
  Reply() = default;
  Reply(const Reply&) = delete;
  Reply& operator=(const Reply&) = delete;
  ~Reply();

  // Whether the service sent anything back.
  bool present() const { return data_ != nullptr; }

  // The bytes that may be read, whatever length the service claims. Empty without a reply.
  std::span<const std::byte> bytes() const { return {static_cast<const std::byte*>(data_), size_}; }

  // As many of them as the length says that the call left behind, changed or not: for functions
  // that hand the reply on as it was reported.
  std::span<const std::byte> reported_bytes() const { return bytes().first(reported_); }

  // Whether `size` bytes can be read from `offset`. A record that does not fit counts as absent.
  bool holds(size_t size, size_t offset = 0) const {
    return offset <= size_ && size <= size_ - offset;
  }

  // Copies a record out of the reply. False, and nothing copied, when it does not fit.
  bool copy(void* record, size_t size, size_t offset = 0) const {
    if (data_ == nullptr || !holds(size, offset)) return false;
    std::memcpy(record, static_cast<const std::byte*>(data_) + offset, size);
    return true;
  }

 private:
  friend int32_t exchange(const struct SynchronousRequest& request, int32_t q, Reply* reply);
  void* data_ = nullptr;
  size_t size_ = 0;
  size_t reported_ = 0;  // never more than size_
};

struct SynchronousRequest {
  uint32_t opcode;
  uint32_t operation;  // MTS_OPERATION_GET, _GET_NEXT or _SET
  uint32_t service;    // service access point
  const void* body;    // in wire order; null when the query carries no data
  int32_t length;      // of the body in bytes, or the expected reply length without a body
  Preset preset = Preset::whole_reply;
  int32_t last = 4;
};

// Sends `request` on queue `q` and waits. Result: 0, or the transport's or the service's status
// unchanged. `reply` null: no data is wanted back.
int32_t exchange(const SynchronousRequest& request, int32_t q, Reply* reply);

// A message of the transport, sent or received, that is dropped with this object.
class Message {
 public:
  explicit Message(int32_t q) : q_(q) {}
  Message(const Message&) = delete;
  Message& operator=(const Message&) = delete;
  ~Message() {
    if (message_ != nullptr) mts_drop(q_, message_);
  }

  mts_msg_t* get() const { return message_; }
  // Where a platform function stores the message; preset to null.
  mts_msg_t** out() { return &message_; }
  // Gives the message up without dropping it.
  void keep() { message_ = nullptr; }

 private:
  int32_t q_;
  mts_msg_t* message_ = nullptr;
};

// Waits on `q` for a message: the reply to the request with `token`, or any message for token 0.
// Result: that of mts_recv, negative on failure with errno set (ETIME after `timeout_seconds`).
int32_t receive(int32_t q, uint32_t token, uint32_t timeout_seconds, Message* message);

}  // namespace cim_utils

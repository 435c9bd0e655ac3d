// Lines for cmi_req_resp, the synchronous request/reply call, and a responder in place of a script.
#ifndef TESTS_SUPPORT_DOUBLE_CMI_H
#define TESTS_SUPPORT_DOUBLE_CMI_H

#include <cstdint>
#include <functional>
#include <map>
#include <optional>

#include "tests/support/script.h"

namespace test_support {

// One exchange. Expected unless the line says otherwise: queue kQueue, both zero words 0, `last` 4,
// the reply address null for a set and a pointer preset to null for get and get_next. To be said:
// the service access point, the request, and the length where it is not the request's size.
class Exchange : public Line<Exchange> {
 public:
  Exchange(uint32_t opcode, uint32_t operation);

  // ---- what is expected ----
  Exchange& sap(uint32_t service) { return number("service_sap", service); }
  // The request's bytes as they are on the wire. The length is theirs unless said.
  Exchange& sends(const Bytes& request);
  // A null request; the length (of the expected reply) has to be said.
  Exchange& no_request() { return argument("request", Value::null()); }
  // Request and length are not looked at (the length is where it is said).
  Exchange& any_request();
  Exchange& length(int32_t bytes) { return number("length", bytes); }
  Exchange& last(int32_t word) { return number("last", word); }
  Exchange& reply_address_null() { return argument("reply", Value::null()); }
  Exchange& reply_address_given();

  // ---- how it answers ----
  // Status 0 and a reply, whose true size is stored as the length. An empty reply is no reply.
  Exchange& replies(const Bytes& reply);
  // Status 0, no reply, length 0.
  Exchange& ok_without_reply() { return returns(0); }
  // A failure without a reply, length 0.
  Exchange& status(int64_t code) { return returns(code); }
  // A failure that hands out a reply all the same.
  Exchange& status_with_reply(int64_t code, const Bytes& reply);
  // -1 with the transport error ETIME.
  Exchange& times_out() { return fails(-1).with_errno(62); }
  // Only the first n bytes of the reply are handed out; the length says n.
  Exchange& cut_to(size_t n);
  // The length keeps what the caller put in.
  Exchange& length_left_alone();
};

Exchange get(uint32_t opcode);
Exchange get_next(uint32_t opcode);
Exchange set(uint32_t opcode);

// A request as a responder sees it.
struct Request {
  uint32_t opcode = 0;
  uint32_t operation = 0;     // 1 get, 2 get-next, 3 set
  std::optional<Bytes> body;  // none: a null request
  bool wants_reply = false;
  int32_t length = 0;  // as the caller put it in
  uint32_t sap = 0;
  int32_t q = 0;
  int32_t last = 0;
  // The big-endian word of the body; 0 past its end.
  uint32_t be32(size_t offset) const;
};

struct Response {
  int32_t status = 0;
  int error_number = 0;
  std::optional<Bytes> reply;
  bool length_left_alone = false;
  static Response with(Bytes reply) { return {0, 0, std::move(reply), false}; }
  static Response none() { return {}; }
  static Response failed(int32_t status, int error_number = 0) {
    return {status, error_number, std::nullopt, false};
  }
};

// Answers every cmi_req_resp while it exists, in place of script lines; other functions still need
// a Script. For counting exchanges and for sweeps over replies.
class Responder {
 public:
  explicit Responder(std::function<Response(const Request&)> answer);
  // Expects that every reply was freed.
  ~Responder();
  Responder(const Responder&) = delete;
  Responder& operator=(const Responder&) = delete;

  size_t calls() const { return calls_; }
  size_t calls(uint32_t opcode) const;
  // The n-th exchange from now on (1 is the next) is answered with the status, without a reply.
  void fail_nth_exchange(size_t n, int32_t status = -1, int error_number = 0);

  // For the double.
  Response respond(const Request& request);
  uint32_t owner() const { return owner_; }

 private:
  std::function<Response(const Request&)> answer_;
  std::map<uint32_t, size_t> by_opcode_;
  size_t calls_ = 0;
  size_t fail_in_ = 0;
  Response failure_;
  uint32_t owner_;
  Responder* outer_;
};

}  // namespace test_support

#endif

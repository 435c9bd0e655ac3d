// What went over the message seam: counted always, kept or written to a file on demand.
//
// One line per message, numbers decimal, bodies in hexadecimal ("none": no reply):
//   request token=1 service=15 opcode=149 operation=2 body=0000...
//   reply token=1 status=0 errno=0 after_ms=0 body=0000...
#ifndef SIMULATOR_TRANSPORT_REQUEST_LOG_H
#define SIMULATOR_TRANSPORT_REQUEST_LOG_H

#include <cstdio>
#include <memory>
#include <string>
#include <unordered_map>

#include "simulator/transport/message.h"
#include "simulator/transport/virtual_clock.h"

namespace switch_sim {

struct Exchange {
  Token token = 0;
  Request request;
  VirtualTime sent{};
  std::optional<Outcome> outcome;  // nothing while it was not taken
  friend bool operator==(const Exchange&, const Exchange&) = default;
};

// The lines above, without the line end.
std::string request_line(Token token, const Request& request);
std::string reply_line(const Outcome& outcome, VirtualTime after);

class RequestLog {
 public:
  // Appends to a file from now on. False with errno set when it cannot be opened.
  bool write_to(const char* path);
  void stop_writing() { file_.reset(); }

  void keep(bool on) { keeps_ = on; }
  const std::vector<Exchange>& kept() const { return kept_; }
  uint64_t count() const { return count_; }
  void clear();

  void sent(Token token, const Request& request, VirtualTime now);
  void taken(const Outcome& outcome);

 private:
  struct Closer {
    void operator()(FILE* file) const { fclose(file); }
  };
  struct Waiting {
    VirtualTime sent;
    std::optional<size_t> kept_at;
  };
  void write(std::string line);

  std::unique_ptr<FILE, Closer> file_;
  bool keeps_ = false;
  uint64_t count_ = 0;
  std::vector<Exchange> kept_;
  std::unordered_map<Token, Waiting> waiting_;
};

class LoggingCarrier : public Carrier {
 public:
  LoggingCarrier(std::unique_ptr<Carrier> inner, RequestLog& log, VirtualClock& clock)
      : inner_(std::move(inner)), log_(log), clock_(clock) {}

  Token send(const Request& request) override;
  std::optional<Outcome> take(std::optional<Token> token, VirtualTime until) override;

 private:
  std::unique_ptr<Carrier> inner_;
  RequestLog& log_;
  VirtualClock& clock_;
};

}  // namespace switch_sim

#endif  // SIMULATOR_TRANSPORT_REQUEST_LOG_H

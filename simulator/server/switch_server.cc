#include "simulator/server/switch_server.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <new>

#include "simulator/local/platform_status.h"

namespace switch_sim {
namespace {

bool would_block(int error) {
  return error == EAGAIN || error == EWOULDBLOCK || error == EINTR;
}

// In place of an answer that no client would take.
Frame too_long() {
  Outcome outcome;
  outcome.status = status::kTransportFailure;
  outcome.error_number = EMSGSIZE;
  return outcome_frame({VirtualTime{}, outcome});
}

}  // namespace

class SwitchServer::Client {
 public:
  explicit Client(int descriptor) : descriptor_(descriptor) {}
  ~Client() { close(descriptor_); }
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  // Nothing more is read while a request waits, so that a client cannot fill the memory.
  pollfd awaited() const {
    const int events = (reader_.has_frame() ? 0 : POLLIN) | (unread() != 0 ? POLLOUT : 0);
    return {descriptor_, static_cast<short>(events), 0};
  }
  bool has_request() const { return reader_.has_frame(); }

  // False when the client has to go.
  bool serve(const Switch& of, short events) {
    if ((events & POLLOUT) != 0 && !send_waiting()) return false;
    if (!has_request() && (events & (POLLIN | POLLHUP | POLLERR)) != 0 && !receive()) return false;
    auto request = reader_.next();
    if (!request) return true;
    return unread() <= kMostUnread && answer(of, std::move(*request)) && !reader_.is_broken();
  }

 private:
  size_t unread() const { return waiting_.size() - sent_; }

  bool receive() {
    std::array<std::byte, 65536> buffer;
    const ssize_t got = recv(descriptor_, buffer.data(), buffer.size(), 0);
    if (got <= 0) return got < 0 && would_block(errno);
    reader_.add(buffer.data(), static_cast<size_t>(got));
    return !reader_.is_broken();
  }

  bool answer(const Switch& of, Frame question) {
    if (question.kind == FrameKind::fabric_request && question.body.empty()) {
      return say(fabric_frame(of.fabric_text()));
    }
    const auto request = read_request(std::move(question));
    if (!request) return false;
    return say(outcome_frame(of.answer(*request)));
  }

  bool say(const Frame& frame) {
    Bytes bytes = to_bytes(size_of(frame) > kLongestAnswer ? too_long() : frame);
    if (unread() == 0) {
      waiting_ = std::move(bytes);
    } else {
      waiting_.erase(waiting_.begin(), waiting_.begin() + static_cast<ptrdiff_t>(sent_));
      waiting_.insert(waiting_.end(), bytes.begin(), bytes.end());
    }
    sent_ = 0;
    return send_waiting();
  }

  bool send_waiting() {
    const ssize_t sent = send(descriptor_, waiting_.data() + sent_, unread(), MSG_NOSIGNAL);
    if (sent < 0) return would_block(errno);
    sent_ += static_cast<size_t>(sent);
    if (unread() == 0) {
      waiting_ = {};
      sent_ = 0;
    }
    return true;
  }

  int descriptor_;
  FrameReader reader_{kLongestRequest};
  Bytes waiting_;  // answers, of which the first `sent_` bytes are gone
  size_t sent_ = 0;
};

SwitchServer::SwitchServer(Switch of) : switch_(std::move(of)) {}

SwitchServer::~SwitchServer() = default;

void SwitchServer::accept_clients() {
  while (is_accepting()) {
    const int descriptor =
        accept4(socket_.descriptor(), nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
    if (descriptor >= 0) {
      clients_.push_back(std::make_unique<Client>(descriptor));
    } else if (errno != ECONNABORTED && errno != EINTR) {
      refused_ = errno != EAGAIN && errno != EWOULDBLOCK;
      return;
    }
  }
}

// A client for which memory does not suffice goes, too.
void SwitchServer::serve_clients(const std::vector<short>& events) {
  for (size_t i = 0; i < events.size(); ++i) {
    bool stays = false;
    try {
      stays = clients_[i]->serve(switch_, events[i]);
    } catch (const std::bad_alloc&) {
    }
    if (!stays) clients_[i].reset();
  }
  if (std::erase(clients_, nullptr) != 0) refused_ = false;
}

std::optional<std::string> SwitchServer::run(int stop) {
  for (;;) {
    std::vector<pollfd> awaited = {{stop, POLLIN, 0}};
    awaited.push_back({is_accepting() ? socket_.descriptor() : -1, POLLIN, 0});
    bool has_request = false;
    for (const auto& client : clients_) {
      awaited.push_back(client->awaited());
      has_request = has_request || client->has_request();
    }
    if (poll(awaited.data(), awaited.size(), has_request ? 0 : -1) < 0) {
      if (errno == EINTR) continue;
      return std::string(strerror(errno));
    }
    if (awaited[0].revents != 0) return std::nullopt;
    std::vector<short> events;
    for (size_t i = 2; i < awaited.size(); ++i)
      events.push_back(awaited[i].revents);
    serve_clients(events);
    if (awaited[1].revents != 0) accept_clients();
    if (refused_ && clients_.empty()) return std::string("no connection can be accepted");
  }
}

}  // namespace switch_sim

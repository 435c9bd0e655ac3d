#include "simulator/transport/switch_connection.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

#include "simulator/local/platform_status.h"

namespace switch_sim {
namespace {

Outcome failure(int error_number) {
  Outcome outcome;
  outcome.status = status::kTransportFailure;
  outcome.error_number = error_number;
  return outcome;
}

}  // namespace

// A program may close descriptors that it does not know, as one does that becomes a daemon; the
// number may then be another file's.
bool SwitchConnection::is_own_descriptor() const {
  struct stat now {};
  return descriptor_ >= 0 && fstat(descriptor_, &now) == 0 && now.st_dev == device_ &&
         now.st_ino == inode_;
}

// The connection is this process's own (a child must not share its parent's bytes), nothing is left
// of an earlier answer, and the other side has not gone.
bool SwitchConnection::is_usable() const {
  if (!in_step_ || owner_ != getpid() || !is_own_descriptor()) return false;
  std::byte next;
  const ssize_t got = recv(descriptor_, &next, 1, MSG_PEEK | MSG_DONTWAIT);
  return got < 0 && (errno == EAGAIN || errno == EWOULDBLOCK);
}

void SwitchConnection::disconnect() {
  if (is_own_descriptor()) close(descriptor_);
  descriptor_ = -1;
}

int SwitchConnection::connect() {
  if (is_usable()) return 0;
  disconnect();
  const int error = open();
  if (error != 0) disconnect();
  return error;
}

int SwitchConnection::open() {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path_.size() >= sizeof address.sun_path) return ENAMETOOLONG;
  memcpy(address.sun_path, path_.data(), path_.size());
  descriptor_ = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  struct stat socket_stat {};
  if (descriptor_ < 0 || fstat(descriptor_, &socket_stat) != 0) return errno;
  device_ = socket_stat.st_dev;
  inode_ = socket_stat.st_ino;
  owner_ = getpid();
  in_step_ = true;
  // Without blocking: where nobody accepts and the queue is full, this fails with EAGAIN.
  return ::connect(descriptor_, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0 ? 0
                                                                                            : errno;
}

int SwitchConnection::wait_for(short events, Deadline deadline) const {
  for (;;) {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    if (left.count() <= 0) return ETIME;
    pollfd ready{descriptor_, events, 0};
    const int count = poll(&ready, 1, static_cast<int>(left.count()));
    if (count > 0) return 0;
    if (count < 0 && errno != EINTR) return errno;
  }
}

int SwitchConnection::send_all(const Bytes& bytes, Deadline deadline) {
  for (size_t done = 0; done < bytes.size();) {
    const ssize_t sent = send(descriptor_, bytes.data() + done, bytes.size() - done, MSG_NOSIGNAL);
    if (sent >= 0) {
      done += static_cast<size_t>(sent);
    } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
      if (const int error = wait_for(POLLOUT, deadline)) return error;
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

int SwitchConnection::receive(Frame& answer, Deadline deadline) {
  FrameReader reader(kLongestAnswer);
  std::array<std::byte, 16384> buffer;
  for (;;) {
    const ssize_t got = recv(descriptor_, buffer.data(), buffer.size(), 0);
    if (got == 0) return ECONNRESET;
    if (got > 0) {
      reader.add(buffer.data(), static_cast<size_t>(got));
      if (reader.is_broken()) return EPROTO;
      if (auto frame = reader.next()) {
        answer = std::move(*frame);
        return 0;
      }
    } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
      if (const int error = wait_for(POLLIN, deadline)) return error;
    } else if (errno != EINTR) {
      return errno;
    }
  }
}

int SwitchConnection::ask(const Frame& question, Frame& answer) {
  if (const int error = connect()) return error;
  const auto deadline = std::chrono::steady_clock::now() + patience_;
  in_step_ = false;  // also after an exception
  int error = send_all(to_bytes(question), deadline);
  if (error == 0) error = receive(answer, deadline);
  in_step_ = error == 0;
  if (error != 0) disconnect();
  return error;
}

Outcome SwitchConnection::exchange(const Request& request, VirtualClock& clock) {
  const Frame question = request_frame({clock.now(), request});
  if (size_of(question) > kLongestRequest) return failure(EMSGSIZE);
  Frame answer;
  if (const int error = ask(question, answer)) return failure(error);
  auto timed = read_outcome(std::move(answer));
  if (!timed) {
    disconnect();
    return failure(EPROTO);
  }
  clock.advance_to(timed->now);
  return std::move(timed->outcome);
}

int SwitchConnection::ask_fabric(std::string& text) {
  Frame answer;
  if (const int error = ask({FrameKind::fabric_request, {}}, answer)) return error;
  if (answer.kind != FrameKind::fabric) {
    disconnect();
    return EPROTO;
  }
  const auto* characters = reinterpret_cast<const char*>(answer.body.data());
  text.assign(characters, answer.body.size());
  return 0;
}

}  // namespace switch_sim

// Both sides of the socket by hand, and a served switch in a thread of the test.
#ifndef TESTS_SIMULATOR_SOCKET_SOCKET_FIXTURE_H
#define TESTS_SIMULATOR_SOCKET_SOCKET_FIXTURE_H

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <string_view>
#include <thread>

#include "simulator/fabric/fabric.h"
#include "simulator/server/switch_server.h"
#include "simulator/services/services.h"
#include "simulator/transport/switch_connection.h"
#include "tests/tools/program.h"

namespace socket_test {

using namespace switch_sim;

inline Bytes hex(std::string_view text) {
  Bytes bytes;
  std::string digits;
  for (const char character : text) {
    if (character != ' ') digits += character;
  }
  for (size_t i = 0; i + 1 < digits.size(); i += 2)
    bytes.push_back(static_cast<std::byte>(std::stoul(digits.substr(i, 2), nullptr, 16)));
  return bytes;
}

inline sockaddr_un address_of(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  memcpy(address.sun_path, path.data(), path.size());
  return address;
}

// A failure in place of a test that never ends.
inline void limit_waiting(int descriptor) {
  const timeval limit{20, 0};
  setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  setsockopt(descriptor, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
}

// One end of a connection, blocking.
class Line {
 public:
  explicit Line(int descriptor) : descriptor_(descriptor) { limit_waiting(descriptor); }
  ~Line() { hang_up(); }
  Line(Line&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}

  static Line to(const std::string& path) {
    const sockaddr_un address = address_of(path);
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    EXPECT_EQ(0, connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address));
    return Line(descriptor);
  }

  // False when the other side has gone.
  bool say(const Bytes& bytes) {
    return send(descriptor_, bytes.data(), bytes.size(), MSG_NOSIGNAL) ==
           static_cast<ssize_t>(bytes.size());
  }

  Bytes hear(size_t size) {
    Bytes bytes(size);
    const ssize_t got = recv(descriptor_, bytes.data(), size, MSG_WAITALL);
    bytes.resize(got > 0 ? static_cast<size_t>(got) : 0);
    return bytes;
  }

  // Nothing more will come.
  bool is_closed() {
    std::byte next;
    const ssize_t got = recv(descriptor_, &next, 1, 0);
    return got == 0 || (got < 0 && errno == ECONNRESET);
  }

  void hang_up() {
    if (descriptor_ >= 0) close(descriptor_);
    descriptor_ = -1;
  }

 private:
  int descriptor_;
};

// A listening socket that does nothing by itself.
class Listener {
 public:
  explicit Listener(const std::string& path, int backlog = 8)
      : descriptor_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    const sockaddr_un address = address_of(path);
    EXPECT_EQ(0, bind(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address));
    EXPECT_EQ(0, listen(descriptor_, backlog));
    limit_waiting(descriptor_);
  }
  ~Listener() { close(descriptor_); }
  Listener(const Listener&) = delete;
  Listener& operator=(const Listener&) = delete;

  Line next() {
    const int descriptor = accept(descriptor_, nullptr, nullptr);
    EXPECT_GE(descriptor, 0) << "nobody connects";
    return Line(descriptor);
  }

 private:
  int descriptor_;
};

// What it answers: the opcode as status, the operation as milliseconds, the body as reply.
inline TimedOutcome echo(const TimedRequest& timed) {
  Outcome outcome;
  outcome.status = static_cast<int32_t>(timed.request.opcode);
  outcome.due = VirtualTime(timed.request.operation);
  if (!timed.request.body.empty()) outcome.reply = timed.request.body;
  return {timed.now, outcome};
}

class ServedSwitch {
 public:
  explicit ServedSwitch(const std::string& path,
                        SwitchServer::Switch of = {echo, [] { return std::string("fabric"); }})
      : server_(std::move(of)) {
    EXPECT_EQ(0, pipe2(stop_, O_CLOEXEC));
    EXPECT_EQ(std::nullopt, server_.open(path));
    thread_ = std::thread([this] { EXPECT_EQ(std::nullopt, server_.run(stop_[0])); });
  }
  ~ServedSwitch() {
    close(stop_[1]);
    thread_.join();
    close(stop_[0]);
  }
  ServedSwitch(const ServedSwitch&) = delete;
  ServedSwitch& operator=(const ServedSwitch&) = delete;

 private:
  int stop_[2] = {-1, -1};
  SwitchServer server_;
  std::thread thread_;
};

inline Request request(uint32_t opcode, std::string_view body_in_hex = "") {
  return {Service::vsan_manager, opcode, 0, hex(body_in_hex)};
}

class SocketTest : public testing::Test {
 protected:
  std::string path(const char* name = "switch.sock") const {
    return (folder_.path() / name).string();
  }

  program::TemporaryFolder folder_;
  VirtualClock clock_;
};

}  // namespace socket_test

#endif  // TESTS_SIMULATOR_SOCKET_SOCKET_FIXTURE_H

// Serves a switch to other processes through a socket (transport/switch_connection.h is their
// side).
//
// One thread and no blocking: a client that is slow, silent or gone costs the others nothing. In
// each round every client gets at most one answer. What a client does not read waits for it up to a
// bound; a client beyond it, or one that sends anything but requests, is disconnected.
#ifndef SIMULATOR_SERVER_SWITCH_SERVER_H
#define SIMULATOR_SERVER_SWITCH_SERVER_H

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "simulator/server/socket_file.h"
#include "simulator/transport/frames.h"

namespace switch_sim {

// A client may ask again while at most so many bytes of answers wait for it.
inline constexpr size_t kMostUnread = size_t{1} << 20;

// Further ones wait until one leaves.
inline constexpr size_t kMostClients = 256;

class SwitchServer {
 public:
  struct Switch {
    std::function<TimedOutcome(const TimedRequest&)> answer;
    std::function<std::string()> fabric_text;
  };

  explicit SwitchServer(Switch of);
  ~SwitchServer();

  // Nothing, or why the socket cannot be served. Clients may connect from then on.
  std::optional<std::string> open(const std::string& path) { return socket_.open(path); }

  // Answers until something can be read from the descriptor `stop`. Nothing, or why it ended
  // otherwise.
  std::optional<std::string> run(int stop);

 private:
  class Client;

  bool is_accepting() const { return !refused_ && clients_.size() < kMostClients; }
  void accept_clients();
  void serve_clients(const std::vector<short>& events);

  Switch switch_;
  SocketFile socket_;
  std::vector<std::unique_ptr<Client>> clients_;
  bool refused_ = false;  // the system gave no further connection: again when a client has left
};

}  // namespace switch_sim

#endif  // SIMULATOR_SERVER_SWITCH_SERVER_H

// The file by which other processes find a serving one.
#ifndef SIMULATOR_SERVER_SOCKET_FILE_H
#define SIMULATOR_SERVER_SOCKET_FILE_H

#include <sys/types.h>

#include <optional>
#include <string>

namespace switch_sim {

// Only its owner may use it, from the moment it is there. While it is open, a lock is held on a
// second file beside it, PATH.lock: so a socket that a dead process left is told from one that is
// served, also when two processes start at once. Both files are removed at the end.
class SocketFile {
 public:
  SocketFile() = default;
  ~SocketFile();
  SocketFile(const SocketFile&) = delete;
  SocketFile& operator=(const SocketFile&) = delete;

  // Makes the socket and listens, at most once. Nothing, or why it cannot be done, with the path;
  // whatever else is at the path stays there.
  std::optional<std::string> open(const std::string& path);

  // Listening, non-blocking.
  int descriptor() const { return descriptor_; }

 private:
  std::optional<std::string> lock();
  std::optional<std::string> remove_stale() const;
  std::optional<std::string> listen();
  std::optional<std::string> problem(const char* what) const;
  std::string lock_path() const { return path_ + ".lock"; }

  std::string path_;
  int lock_ = -1;
  int descriptor_ = -1;
  dev_t device_ = 0;  // of the file, to know it again; inode 0: there is none of ours
  ino_t inode_ = 0;
};

}  // namespace switch_sim

#endif  // SIMULATOR_SERVER_SOCKET_FILE_H

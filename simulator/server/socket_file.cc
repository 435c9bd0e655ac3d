#include "simulator/server/socket_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace switch_sim {
namespace {

constexpr const char* kServed = "another process serves there";
constexpr int kConnectionsThatWait = 64;

sockaddr_un address_of(const std::string& path) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  memcpy(address.sun_path, path.data(), path.size());
  return address;
}

bool same_file(const struct stat& one, const struct stat& other) {
  return one.st_dev == other.st_dev && one.st_ino == other.st_ino;
}

// errno of connecting, or 0.
int try_to_connect(const std::string& path) {
  const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (descriptor < 0) return errno;
  const sockaddr_un address = address_of(path);
  const auto* any = reinterpret_cast<const sockaddr*>(&address);
  const int error = connect(descriptor, any, sizeof address) == 0 ? 0 : errno;
  close(descriptor);
  return error;
}

}  // namespace

SocketFile::~SocketFile() {
  struct stat now {};
  if (inode_ != 0 && lstat(path_.c_str(), &now) == 0 && now.st_dev == device_ &&
      now.st_ino == inode_) {
    unlink(path_.c_str());
  }
  if (descriptor_ >= 0) close(descriptor_);
  if (lock_ >= 0) {
    unlink(lock_path().c_str());
    close(lock_);
  }
}

std::optional<std::string> SocketFile::problem(const char* what) const {
  return path_ + ": " + what;
}

std::optional<std::string> SocketFile::open(const std::string& path) {
  path_ = path;
  if (path.empty()) return "the name of the socket is missing";
  if (path.size() >= sizeof(sockaddr_un::sun_path)) {
    return problem("the name of a socket has at most 107 bytes");
  }
  if (auto why = lock()) return why;
  if (auto why = remove_stale()) return why;
  return listen();
}

// A lock file that its holder removed meanwhile locks nothing: then again, with a new one.
std::optional<std::string> SocketFile::lock() {
  for (;;) {
    const int file =
        ::open(lock_path().c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    if (file < 0) return problem(strerror(errno));
    if (flock(file, LOCK_EX | LOCK_NB) != 0) {
      const int error = errno;
      close(file);
      return problem(error == EWOULDBLOCK ? kServed : strerror(error));
    }
    struct stat locked {};
    struct stat present {};
    if (fstat(file, &locked) == 0 && lstat(lock_path().c_str(), &present) == 0 &&
        same_file(locked, present)) {
      lock_ = file;
      return std::nullopt;
    }
    close(file);
  }
}

std::optional<std::string> SocketFile::remove_stale() const {
  struct stat present {};
  if (lstat(path_.c_str(), &present) != 0) {
    return errno == ENOENT ? std::nullopt : problem(strerror(errno));
  }
  if (!S_ISSOCK(present.st_mode)) return problem("this is not a socket");
  const int error = try_to_connect(path_);
  // EAGAIN: its queue is full, so there is somebody.
  if (error == 0 || error == EAGAIN) return problem(kServed);
  if (error != ECONNREFUSED) return problem(strerror(error));
  return unlink(path_.c_str()) == 0 ? std::nullopt : problem(strerror(errno));
}

std::optional<std::string> SocketFile::listen() {
  descriptor_ = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (descriptor_ < 0) return problem(strerror(errno));
  // The file gets the mode that the socket has when it is bound, so that it is never open to
  // others.
  if (fchmod(descriptor_, 0600) != 0) return problem(strerror(errno));
  const sockaddr_un address = address_of(path_);
  if (bind(descriptor_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    return problem(strerror(errno));
  }
  struct stat made {};
  if (lstat(path_.c_str(), &made) != 0) return problem(strerror(errno));
  device_ = made.st_dev;
  inode_ = made.st_ino;
  if (::listen(descriptor_, kConnectionsThatWait) != 0) return problem(strerror(errno));
  return std::nullopt;
}

}  // namespace switch_sim

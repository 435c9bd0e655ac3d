// The operating system as a test sets it up. The build sends gethostname, sethostname,
// gethostbyname, stat, kill, getpid, socket, ioctl and close of a test program's objects here.
//
// Without an OsDouble: the host is called "switch-1" and has no address, the marker files do not
// exist, no interface has a hardware address, and sethostname and kill fail the test. The machine
// itself is never asked for its name and never changed. Other files, other descriptors and other
// sockets than internet datagram sockets are the real ones.
#ifndef TESTS_SUPPORT_OS_DOUBLE_H
#define TESTS_SUPPORT_OS_DOUBLE_H

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace test_support {

inline constexpr const char* kProviderMarkerFile = "/etc/cim_debug_provider";
inline constexpr const char* kZoneMarkerFile = "/etc/cim_debug_zone";

class OsDouble {
 public:
  OsDouble();
  // Expects that every socket was closed.
  ~OsDouble();
  OsDouble(const OsDouble&) = delete;
  OsDouble& operator=(const OsDouble&) = delete;

  // ---- how it answers ----
  OsDouble& host_name(const std::string& name);  // "switch-1"
  OsDouble& gethostname_fails(int error_number);
  OsDouble& sethostname_returns(int result, int error_number = 0);  // 0
  // An address of the host of that name, in the order of the calls. Other names are not found.
  OsDouble& address(const std::string& host, uint8_t a, uint8_t b, uint8_t c, uint8_t d);
  // Only the two marker files; they do not exist at first.
  OsDouble& marker_file_exists(const char* path);
  OsDouble& kill_returns(int result);  // 0
  OsDouble& pid(pid_t pid);            // the real one
  OsDouble& hardware_address(const std::string& interface, const std::vector<uint8_t>& six_bytes);
  OsDouble& socket_fails(int error_number);

  // ---- what was asked ----
  struct Signal {
    pid_t pid;
    int number;
    bool operator==(const Signal&) const = default;
  };
  const std::vector<Signal>& signals() const;
  // Names given to sethostname, as many bytes of each as the length said.
  const std::vector<std::string>& host_names_set() const;
  // One line per call of gethostname, sethostname, gethostbyname, stat of a marker file, kill,
  // socket, ioctl and close of such a socket: "gethostname(500)", "sethostname(name, 4)",
  // "gethostbyname(switch-1)", "stat(/etc/cim_debug_zone)", "kill(4711, 19)", "socket(datagram)",
  // "ioctl(hardware address, mgmt0)", "close".
  const std::vector<std::string>& calls() const;

  struct State;

 private:
  std::unique_ptr<State> state_;
  State* outer_;
};

}  // namespace test_support

#endif

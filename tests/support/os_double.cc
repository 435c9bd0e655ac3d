#include "tests/support/os_double.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <net/if.h>
#include <netdb.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <map>
#include <set>

#include "tests/support/heap_ledger.h"

extern "C" {
int __real_stat(const char* path, struct stat* status);
pid_t __real_getpid();
int __real_socket(int domain, int type, int protocol);
int __real_ioctl(int fd, unsigned long request, void* argument);
int __real_close(int fd);
}

namespace test_support {

struct OsDouble::State {
  std::string host_name = "switch-1";
  int gethostname_error = 0;
  int sethostname_result = 0;
  int sethostname_error = 0;
  std::map<std::string, std::vector<std::vector<char>>> addresses;
  std::set<std::string> marker_files;
  int kill_result = 0;
  pid_t pid = 0;
  std::map<std::string, std::vector<uint8_t>> hardware_addresses;
  int socket_error = 0;
  std::set<int> sockets;
  std::vector<Signal> signals;
  std::vector<std::string> host_names_set;
  std::vector<std::string> calls;
  bool set_up_by_test = false;
  // What the last gethostbyname returned.
  std::string found_name;
  std::vector<char*> found_addresses;
  hostent found{};
};

namespace {

OsDouble::State* current = nullptr;

OsDouble::State& state() {
  static auto* fallback = new OsDouble::State;
  return current != nullptr ? *current : *fallback;
}

bool is_marker_file(const char* path) {
  return path != nullptr &&
         (strcmp(path, kProviderMarkerFile) == 0 || strcmp(path, kZoneMarkerFile) == 0);
}

// A change of the machine that no test prepared for.
int refuse(const char* what) {
  ADD_FAILURE() << what << " while no OsDouble is in force";
  errno = EPERM;
  return -1;
}

int fail(int error_number) {
  errno = error_number;
  return -1;
}

int read_hardware_address(OsDouble::State& os, ifreq* request) {
  std::string interface(request->ifr_name, strnlen(request->ifr_name, IFNAMSIZ));
  os.calls.push_back("ioctl(hardware address, " + interface + ")");
  auto found = os.hardware_addresses.find(interface);
  if (found == os.hardware_addresses.end()) return fail(ENODEV);
  memcpy(request->ifr_hwaddr.sa_data, found->second.data(),
         std::min(found->second.size(), sizeof request->ifr_hwaddr.sa_data));
  return 0;
}

}  // namespace

OsDouble::OsDouble() : outer_(current) {
  HeapLedger::Pause pause;
  state_ = std::make_unique<State>();
  state_->set_up_by_test = true;
  current = state_.get();
}

OsDouble::~OsDouble() {
  HeapLedger::Pause pause;
  for (int fd : state_->sockets) {
    ADD_FAILURE() << "a socket was not closed";
    __real_close(fd);
  }
  current = outer_;
  state_.reset();
}

OsDouble& OsDouble::host_name(const std::string& name) {
  HeapLedger::Pause pause;
  state_->host_name = name;
  return *this;
}

OsDouble& OsDouble::gethostname_fails(int error_number) {
  state_->gethostname_error = error_number;
  return *this;
}

OsDouble& OsDouble::sethostname_returns(int result, int error_number) {
  state_->sethostname_result = result;
  state_->sethostname_error = error_number;
  return *this;
}

OsDouble& OsDouble::address(const std::string& host, uint8_t a, uint8_t b, uint8_t c, uint8_t d) {
  HeapLedger::Pause pause;
  state_->addresses[host].push_back(
      {static_cast<char>(a), static_cast<char>(b), static_cast<char>(c), static_cast<char>(d)});
  return *this;
}

OsDouble& OsDouble::marker_file_exists(const char* path) {
  HeapLedger::Pause pause;
  if (!is_marker_file(path)) ADD_FAILURE() << path << " is no marker file";
  state_->marker_files.insert(path);
  return *this;
}

OsDouble& OsDouble::kill_returns(int result) {
  state_->kill_result = result;
  return *this;
}

OsDouble& OsDouble::pid(pid_t pid) {
  state_->pid = pid;
  return *this;
}

OsDouble& OsDouble::hardware_address(const std::string& interface,
                                     const std::vector<uint8_t>& six_bytes) {
  HeapLedger::Pause pause;
  if (six_bytes.size() != 6) ADD_FAILURE() << "a hardware address has six bytes";
  state_->hardware_addresses[interface] = six_bytes;
  return *this;
}

OsDouble& OsDouble::socket_fails(int error_number) {
  state_->socket_error = error_number;
  return *this;
}

const std::vector<OsDouble::Signal>& OsDouble::signals() const {
  return state_->signals;
}
const std::vector<std::string>& OsDouble::host_names_set() const {
  return state_->host_names_set;
}
const std::vector<std::string>& OsDouble::calls() const {
  return state_->calls;
}

}  // namespace test_support

using namespace test_support;  // NOLINT: the system's names stand outside of namespaces

extern "C" {

int __wrap_gethostname(char* name, size_t length) {
  HeapLedger::Pause pause;
  OsDouble::State& os = state();
  os.calls.push_back("gethostname(" + std::to_string(length) + ")");
  if (os.gethostname_error != 0) return fail(os.gethostname_error);
  size_t size = os.host_name.size() + 1;
  memcpy(name, os.host_name.c_str(), std::min(size, length));
  return size <= length ? 0 : fail(ENAMETOOLONG);
}

int __wrap_sethostname(const char* name, size_t length) {
  HeapLedger::Pause pause;
  OsDouble::State& os = state();
  if (!os.set_up_by_test) return refuse("sethostname");
  std::string given(name, length);
  os.calls.push_back("sethostname(" + given + ", " + std::to_string(length) + ")");
  os.host_names_set.push_back(given);
  if (os.sethostname_error != 0) errno = os.sethostname_error;
  return os.sethostname_result;
}

hostent* __wrap_gethostbyname(const char* name) {
  HeapLedger::Pause pause;
  OsDouble::State& os = state();
  os.calls.push_back(std::string("gethostbyname(") + (name == nullptr ? "null" : name) + ")");
  auto found = name == nullptr ? os.addresses.end() : os.addresses.find(name);
  if (found == os.addresses.end()) {
    h_errno = HOST_NOT_FOUND;
    return nullptr;
  }
  os.found_name = name;
  os.found_addresses.clear();
  for (std::vector<char>& address : found->second)
    os.found_addresses.push_back(address.data());
  os.found_addresses.push_back(nullptr);
  os.found.h_name = os.found_name.data();
  os.found.h_aliases = &os.found_addresses.back();  // none
  os.found.h_addrtype = AF_INET;
  os.found.h_length = 4;
  os.found.h_addr_list = os.found_addresses.data();
  return &os.found;
}

int __wrap_stat(const char* path, struct stat* status) {
  if (!is_marker_file(path)) return __real_stat(path, status);
  HeapLedger::Pause pause;
  OsDouble::State& os = state();
  os.calls.push_back(std::string("stat(") + path + ")");
  if (!os.marker_files.contains(path)) return fail(ENOENT);
  *status = {};
  status->st_mode = S_IFREG | 0644;
  return 0;
}

int __wrap_kill(pid_t pid, int number) {
  HeapLedger::Pause pause;
  OsDouble::State& os = state();
  if (!os.set_up_by_test) return refuse("kill");
  os.calls.push_back("kill(" + std::to_string(pid) + ", " + std::to_string(number) + ")");
  os.signals.push_back({pid, number});
  return os.kill_result;
}

pid_t __wrap_getpid() {
  pid_t pid = current != nullptr ? current->pid : 0;
  return pid != 0 ? pid : __real_getpid();
}

int __wrap_socket(int domain, int type, int protocol) {
  bool internet = domain == AF_INET || domain == AF_INET6;
  if (!internet || (type & ~(SOCK_CLOEXEC | SOCK_NONBLOCK)) != SOCK_DGRAM) {
    return __real_socket(domain, type, protocol);
  }
  HeapLedger::Pause pause;
  OsDouble::State& os = state();
  os.calls.push_back("socket(datagram)");
  if (os.socket_error != 0) return fail(os.socket_error);
  int fd = open("/dev/null", O_RDWR | O_CLOEXEC);
  os.sockets.insert(fd);
  return fd;
}

int __wrap_ioctl(int fd, unsigned long request, ...) {
  va_list arguments;
  va_start(arguments, request);
  void* argument = va_arg(arguments, void*);
  va_end(arguments);
  OsDouble::State& os = state();
  if (!os.sockets.contains(fd)) return __real_ioctl(fd, request, argument);
  HeapLedger::Pause pause;
  if (request == SIOCGIFHWADDR) return read_hardware_address(os, static_cast<ifreq*>(argument));
  ADD_FAILURE() << "ioctl with request " << request << " on a datagram socket";
  return fail(EINVAL);
}

int __wrap_close(int fd) {
  OsDouble::State& os = state();
  if (os.sockets.contains(fd)) {
    HeapLedger::Pause pause;
    os.sockets.erase(fd);
    os.calls.emplace_back("close");
  }
  return __real_close(fd);
}

}  // extern "C"

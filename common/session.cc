#include "common/session.h"

#include <arpa/inet.h>
#include <cim_utils/session.h>
#include <netdb.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <switch_platform/mts.h>
#include <switch_platform/system.h>

int32_t mts_q = -1;
pthread_mutex_t global_mutex = PTHREAD_MUTEX_INITIALIZER;
char newswitch_buf[256];
uint32_t zs_snmp_notif_type_t;

namespace cim_utils {
namespace {

// Host-name buffer of getCSName and getCSNameNew: 500 bytes for the system, one to terminate.
char host_name[501];
char software_version[32];

constexpr size_t kTraceLine = 200;

}  // namespace

int32_t bind_response_queue(int32_t& handle, const char* bound_line, int32_t* q_out) {
  if (handle < 0) {
    handle = -1;
    cim_mts_bind_opts options{};
    options.mode = 1;
    options.limit = 1024;
    handle = mts_bind(1, -1, &options, "CIM Response SAP");

    constexpr const char* kInvalid = "Invalid CIM response MTS queue handle";
    const char* reason = std::strerror(errno);
    char line[kTraceLine];
    if (handle < 0) {
      std::snprintf(line, sizeof line, "%s %s Retrying.. \n", kInvalid, reason);
    } else {
      std::snprintf(line, sizeof line, "%s", bound_line);
    }
    std::fputs(line, stderr);

    // Only -1 itself is a failure; any other negative handle is handed out, deliberately. Nothing
    // retries here, whatever the line says.
    if (handle == -1) {
      std::snprintf(line, sizeof line, "%s %s\n", kInvalid, reason);
      std::fputs(line, stderr);
      return -1;
    }
  }
  if (q_out != nullptr) *q_out = handle;
  return 0;
}

int32_t release_response_queue(const int32_t* q) {
  if (q == nullptr || *q < 0) return 0;
  return static_cast<int8_t>(mts_unbind(*q, 0));
}

int32_t stop_for_debugger(const char* marker_file, bool say_so) {
  struct stat file;
  const int found = stat(marker_file, &file);
  if (found == 0) {
    std::printf("Attach GDB to process id %d \n", getpid());
    return kill(getpid(), SIGSTOP);
  }
  return say_so ? std::printf("\nstat fail for %s\n", marker_file) : found;
}

}  // namespace cim_utils

using namespace cim_utils;

int32_t init_mts(int32_t* q_out) {
  // The misspelling is the text that log readers look for; the Pegasus face has another one.
  return bind_response_queue(mts_q, "successfuly create mts response q\n", q_out);
}

int32_t deinit_mts(int32_t* q) {
  return release_response_queue(q);
}

int32_t mutex_lock(void) {
  return pthread_mutex_lock(&global_mutex);
}

int32_t mutex_unlock(void) {
  return pthread_mutex_unlock(&global_mutex);
}

int32_t gdb_check(void) {
  return stop_for_debugger(kProviderDebugFile, true);
}

int32_t z_gdb_check(void) {
  return stop_for_debugger(kZoneDebugFile, false);
}

char* getCSName(void) {
  std::memset(host_name, 0, sizeof host_name);
  gethostname(host_name, 500);
  return host_name;
}

char* getCSNameNew(void) {
  return getCSName();
}

int32_t setCSName(const char* name) {
  constexpr size_t kLongestName = 99;
  if (name == nullptr) return -1;
  const size_t length = std::strlen(name);
  if (length > kLongestName) return 0;
  // The result is not reported, deliberately.
  if (sethostname(name, length) != 0) return 0;
  return 0;
}

int32_t getIpAddress(char* dst) {
  if (dst == nullptr) return -1;
  char host[256] = {};
  gethostname(host, 255);
  const hostent* entry = gethostbyname(host);
  if (entry == nullptr || entry->h_addrtype != AF_INET || entry->h_addr_list[0] == nullptr)
    return -1;
  in_addr address;
  std::memcpy(&address, entry->h_addr_list[0], sizeof address);
  std::snprintf(dst, 255, "%s", inet_ntoa(address));
  return 0;
}

char* getSwitchVersion(void) {
  if (software_version[0] != '\0') return software_version;
  const char* version = srg_sw_ver_get(0);
  if (version == nullptr) {
    // Kept for the life of the process: the platform is not asked again.
    std::snprintf(software_version, sizeof software_version, "Unknown Version");
    return software_version;
  }
  std::snprintf(software_version, sizeof software_version, "%s", version);
  std::printf(" getSwitchVersion(): The version returned is %s \n", software_version);
  return software_version;
}

char** malloc_char_array(int32_t n, uint32_t size) {
  if (n < 0) return nullptr;
  auto** array = static_cast<char**>(std::calloc(static_cast<size_t>(n) + 1, sizeof(char*)));
  if (array == nullptr) return nullptr;
  for (int32_t i = 0; i < n; ++i) {
    array[i] = static_cast<char*>(std::calloc(size, 1));
    if (array[i] == nullptr) {
      free_char_array(array);
      return nullptr;
    }
  }
  return array;
}

void free_char_array(char** array) {
  if (array == nullptr) return;
  for (char** text = array; *text != nullptr; ++text)
    std::free(*text);
  std::free(array);
}

void print_char_array(char** array) {
  if (array == nullptr) {
    std::printf("PropertyList is Null");
    return;
  }
  for (int i = 0; array[i] != nullptr; ++i)
    std::printf("Property [ %d ] = %s \n", i, array[i]);
}

// Writes a fabric file: one form per fabric, one line per domain manager.
#include <arpa/inet.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include "simulator/fabric/fabric_file.h"
#include "simulator/fabric/fabric_words.h"
#include "simulator/fabric/hardware_file.h"
#include "simulator/fabric/json.h"
#include "simulator/fabric/port_file.h"
#include "simulator/fabric/zoning_file.h"

namespace switch_sim {
namespace {

using json::quote;

template <typename Enumeration, size_t kCount>
std::string word_of(Enumeration value, const std::array<std::string_view, kCount>& words) {
  return quote(words.at(static_cast<size_t>(value) - 1));
}

std::string object_id_text(const std::vector<uint32_t>& components) {
  std::string text;
  for (const uint32_t component : components) {
    if (!text.empty()) text += '.';
    text += std::to_string(component);
  }
  return text;
}

void write_switch(std::string& text, const Switch& element) {
  const auto line = [&](const char* key, const std::string& value, const char* end = ",\n") {
    text += std::string("      \"") + key + "\": " + value + end;
  };
  const SystemInformation& system = element.system;
  text += "    {\n";
  line("name", quote(element.name));
  line("wwn", quote(to_text(element.wwn)));
  line("address", quote(to_text(element.address)));
  line("contact", quote(system.contact));
  line("location", quote(system.location));
  line("description", quote(system.description));
  line("software_version", quote(system.software_version));
  line("object_id", quote(object_id_text(system.object_id)));
  line("services", std::to_string(system.services));
  line("uptime_hundredths", std::to_string(system.uptime_hundredths), "");
  text += chassis_text(element.chassis) + ports_text(element) + "\n    }";
}

void write_domain(std::string& text, const DomainManager& domain) {
  text += "        {\"switch\": " + quote(to_text(domain.switch_wwn));
  text += domain.enabled ? ", \"domain_id\": " + std::to_string(domain.domain_id)
                         : ", \"enabled\": false";
  text += ", \"configured_domain_id\": " + std::to_string(domain.configured_domain_id);
  text += ", \"type\": " + word_of(domain.configured_type, kDomainTypeWords);
  text += ", \"priority\": " + std::to_string(domain.configured_priority) + "}";
}

template <typename List, typename Write>
void write_list(std::string& text, const char* indent, const List& list, Write write) {
  if (list.empty()) {
    text += "[]";
    return;
  }
  text += "[\n";
  for (size_t i = 0; i < list.size(); ++i) {
    write(text, list[i]);
    text += i + 1 < list.size() ? ",\n" : "\n";
  }
  text += std::string(indent) + "]";
}

void write_vsan(std::string& text, const Vsan& vsan) {
  text += "    {\n      \"number\": " + std::to_string(vsan.number);
  text += ",\n      \"name\": " + quote(vsan.name);
  text += ",\n      \"state\": " + word_of(vsan.state, kStateWords);
  text += ",\n      \"load_balancing\": " + word_of(vsan.load_balancing, kLoadBalancingWords);
  if (vsan.principal_switch != Wwn{}) {
    text += ",\n      \"principal_switch\": " + quote(to_text(vsan.principal_switch));
  }
  text += ",\n      \"domains\": ";
  write_list(text, "      ", vsan.domains, write_domain);
  text += zoning_text(*vsan.zoning);
  text += "\n    }";
}

// Writes all bytes and makes them durable. False with errno set.
bool write_durably(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    bytes.remove_prefix(static_cast<size_t>(count));
  }
  return fsync(file) == 0;
}

std::string folder_of(const std::string& path) {
  const size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

// A rename is durable once its folder is.
bool sync_folder(const std::string& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return false;
  const bool synced = fsync(descriptor) == 0;
  const int error = errno;
  close(descriptor);
  errno = error;
  return synced;
}

// Where the file really is: a symbolic link stays one.
std::string resolve(const std::string& path) {
  char* resolved = realpath(path.c_str(), nullptr);
  std::string result = resolved != nullptr ? resolved : path;
  free(resolved);
  return result;
}

// A file that comes into being meanwhile is somebody else's: it is not replaced.
bool move_to_its_place(const char* temporary, const char* path, bool replaces) {
  if (!replaces) {
    if (renameat2(AT_FDCWD, temporary, AT_FDCWD, path, RENAME_NOREPLACE) == 0) return true;
    const bool unknown = errno == EINVAL || errno == ENOSYS;  // to this file system
    if (!unknown) return false;
  }
  return rename(temporary, path) == 0;
}

bool replace_file(const std::string& path, std::string_view bytes) {
  std::string temporary = path + ".XXXXXX";
  const int file = mkostemp(temporary.data(), O_CLOEXEC);
  if (file < 0) return false;
  struct stat old {};
  const bool replaces = lstat(path.c_str(), &old) == 0;
  const bool keeps_mode = stat(path.c_str(), &old) == 0;
  bool saved =
      write_durably(file, bytes) && (!keeps_mode || fchmod(file, old.st_mode & 07777) == 0);
  int error = errno;
  if (close(file) != 0 && saved) {
    saved = false;
    error = errno;
  }
  if (saved && move_to_its_place(temporary.c_str(), path.c_str(), replaces)) {
    return sync_folder(folder_of(path));
  }
  if (saved) error = errno;
  unlink(temporary.c_str());
  errno = error;
  return false;
}

}  // namespace

std::string write_fabric(const Fabric& fabric) {
  std::string text = "{\n  \"version\": " + std::to_string(kFabricFileVersion);
  text += ",\n  \"local_switch\": " + quote(to_text(fabric.local_switch));
  text += ",\n  \"switches\": ";
  write_list(text, "  ", fabric.switches, write_switch);
  text += ",\n  \"vsans\": ";
  write_list(text, "  ", fabric.vsans, write_vsan);
  return text + links_and_devices_text(fabric) + "\n}\n";
}

std::optional<FabricError> save_fabric_file(const Fabric& fabric, const std::string& path) {
  return save_text_file(write_fabric(fabric), path);
}

std::optional<FabricError> save_text_file(std::string_view text, const std::string& path) {
  if (replace_file(resolve(path), text)) return std::nullopt;
  return FabricError{path + ": " + strerror(errno)};
}

std::optional<FabricError> problem_of_new_file(const std::string& path) {
  if (access(folder_of(path).c_str(), W_OK | X_OK) == 0) return std::nullopt;
  return FabricError{path + ": " + strerror(errno)};
}

std::optional<Wwn> parse_wwn(std::string_view text) {
  const auto digit = [](char character) {
    if (character >= '0' && character <= '9') return character - '0';
    if (character >= 'a' && character <= 'f') return character - 'a' + 10;
    if (character >= 'A' && character <= 'F') return character - 'A' + 10;
    return -1;
  };
  if (text.size() != 23) return std::nullopt;
  Wwn wwn;
  for (size_t i = 0; i < wwn.bytes.size(); ++i) {
    const int high = digit(text[3 * i]);
    const int low = digit(text[3 * i + 1]);
    if (high < 0 || low < 0 || (i < 7 && text[3 * i + 2] != ':')) return std::nullopt;
    wwn.bytes[i] = static_cast<uint8_t>(high << 4 | low);
  }
  return wwn;
}

std::optional<IpAddress> parse_address(const std::string& text) {
  IpAddress address;
  if (text.find('\0') != std::string::npos) return std::nullopt;
  if (inet_pton(AF_INET, text.c_str(), address.bytes.data()) == 1) return address;
  address.family = IpAddress::Family::ipv6;
  if (inet_pton(AF_INET6, text.c_str(), address.bytes.data()) == 1) return address;
  return std::nullopt;
}

std::string to_text(const IpAddress& address) {
  char text[INET6_ADDRSTRLEN] = "";
  const int family = address.family == IpAddress::Family::ipv4 ? AF_INET : AF_INET6;
  inet_ntop(family, address.bytes.data(), text, sizeof text);
  return text;
}

}  // namespace switch_sim

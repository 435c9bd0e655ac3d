// Reads a fabric file. Everything that the model demands is tested here where its position is
// known.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <map>
#include <set>

#include "simulator/fabric/fabric_file.h"
#include "simulator/fabric/fabric_words.h"
#include "simulator/fabric/hardware_file.h"
#include "simulator/fabric/json.h"
#include "simulator/fabric/object_reader.h"
#include "simulator/fabric/port_file.h"
#include "simulator/fabric/suggestion.h"
#include "simulator/fabric/zoning_file.h"

namespace switch_sim {
namespace {

bool is_control(char character) {
  return static_cast<uint8_t>(character) < 0x20 || character == 0x7F;
}

// A name is a text of one line.
std::string read_name(const Value& value, size_t longest) {
  const auto& text = expect<std::string>(value, "a text");
  if (text.empty()) throw Problem{value.position, "a name is not empty"};
  if (text.size() > longest) {
    throw Problem{value.position, "a name has at most " + std::to_string(longest) + " bytes"};
  }
  if (std::any_of(text.begin(), text.end(), is_control)) {
    throw Problem{value.position, "a name holds no control characters"};
  }
  return text;
}

std::string read_text(const ObjectReader& object, const char* key, const char* otherwise) {
  const Value* value = object.find(key);
  if (value == nullptr) return otherwise;
  const auto& text = expect<std::string>(*value, "a text");
  if (text.size() > kLongestSystemText) {
    throw Problem{value->position,
                  "a text has at most " + std::to_string(kLongestSystemText) + " bytes"};
  }
  if (text.find('\0') != std::string::npos) {
    throw Problem{value->position, "a text holds no zero byte"};
  }
  return text;
}

Wwn read_switch_wwn(const Value& value) {
  const auto wwn = parse_wwn(expect<std::string>(value, "a WWN"));
  if (!wwn) throw Problem{value.position, "expected a WWN such as \"20:00:00:0d:ec:0a:1b:2c\""};
  if ((wwn->bytes[0] != 0x20 && wwn->bytes[0] != 0x10) || wwn->bytes[1] != 0) {
    throw Problem{value.position, "a switch WWN starts with 20:00, another maker's with 10:00"};
  }
  return *wwn;
}

std::vector<uint32_t> read_object_id(const ObjectReader& object) {
  const Value* value = object.find("object_id");
  if (value == nullptr) return {};
  const auto& text = expect<std::string>(*value, "a text");
  std::vector<uint32_t> components;
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at != end) {
    uint32_t component = 0;
    const auto [next, error] = std::from_chars(at, end, component);
    const bool more = next != end && *next == '.' && next + 1 != end;
    if (error != std::errc{} || (next != end && !more)) {
      throw Problem{value->position, "expected an object identifier such as \"1.3.6.1\""};
    }
    components.push_back(component);
    at = more ? next + 1 : next;
  }
  if (components.size() > kLongestObjectId) {
    throw Problem{value->position, "an object identifier has at most " +
                                       std::to_string(kLongestObjectId) + " components"};
  }
  return components;
}

class FabricReader {
 public:
  Fabric read(const Value& file) {
    const ObjectReader object(
        file, "the fabric",
        {"version", "local_switch", "switches", "vsans", "links", "devices", "counter_seed"});
    read_number<int64_t>(object.at("version"), kFabricFileVersion, kFabricFileVersion);
    for (const Value& value : expect<json::Array>(object.at("switches"), "a list of switches")) {
      read_switch(value);
    }
    fabric_.local_switch = read_reference(object.at("local_switch"));
    if (const Value* vsans = object.find("vsans")) {
      for (const Value& value : expect<json::Array>(*vsans, "a list of VSANs"))
        read_vsan(value);
    }
    sort(fabric_);
    read_links_and_devices(
        object, [this](const Value& value) { return read_reference(value); }, fabric_);
    sort(fabric_);
    // Every rule has been tested above; this is for a rule that the model has and the reader
    // forgot.
    if (auto problem = problem_of(fabric_)) throw Problem{file.position, *problem};
    return std::move(fabric_);
  }

 private:
  void read_switch(const Value& value) {
    const ObjectReader object(
        value, "a switch",
        {"name", "wwn", "address", "contact", "location", "description", "software_version",
         "object_id", "services", "uptime_hundredths", "chassis", "modules", "interfaces"});
    Switch made;
    made.name = read_name(object.at("name"), kLongestSystemName);
    made.wwn = read_switch_wwn(object.at("wwn"));
    if (const Value* address = object.find("address")) {
      const auto parsed = parse_address(expect<std::string>(*address, "a text"));
      if (!parsed) throw Problem{address->position, "expected an IPv4 or IPv6 address"};
      made.address = *parsed;
    }
    made.system.contact = read_text(object, "contact", "");
    made.system.location = read_text(object, "location", "");
    made.system.description = read_text(object, "description", "");
    made.system.software_version = read_text(object, "software_version", "");
    made.system.object_id = read_object_id(object);
    made.system.services = read_number<uint32_t>(object, "services", 0, 127, made.system.services);
    made.system.uptime_hundredths =
        read_number<uint32_t>(object, "uptime_hundredths", 0, UINT32_MAX, 0);
    read_ports(object, made);
    read_chassis(object, made);
    if (!wwns_.insert(made.wwn).second) {
      throw Problem{object.position_of("wwn"), "another switch has this WWN"};
    }
    switches_by_name_.emplace(made.name, made.wwn);
    fabric_.switches.push_back(std::move(made));
  }

  // A switch by its WWN, or by its name where only one has it.
  Wwn read_reference(const Value& value) const {
    const auto& text = expect<std::string>(value, "the name or WWN of a switch");
    if (const auto wwn = parse_wwn(text); wwn && wwns_.contains(*wwn)) return *wwn;
    const auto [first, last] = switches_by_name_.equal_range(text);
    if (first == last) {
      std::vector<std::string_view> names;
      for (const auto& [name, wwn] : switches_by_name_)
        names.push_back(name);
      throw Problem{value.position, "no switch " + quote(text) + suggestion(text, names)};
    }
    if (std::next(first) != last) {
      throw Problem{value.position,
                    "several switches are called " + quote(text) + ": name one by its WWN"};
    }
    return first->second;
  }

  void read_vsan(const Value& value) {
    const ObjectReader object(
        value, "a VSAN",
        {"number", "name", "state", "load_balancing", "principal_switch", "domains", "zoning"});
    Vsan made;
    made.number = read_number<uint32_t>(object.at("number"), 1, kLargestVsan);
    if (!vsan_numbers_.insert(made.number).second) {
      throw Problem{object.position_of("number"), "another VSAN has this number"};
    }
    const Value* name = object.find("name");
    made.name = name != nullptr ? read_name(*name, kLongestVsanName) : usual_name(made.number);
    made.state = read_word(object, "state", kStateWords, made.state);
    made.load_balancing =
        read_word(object, "load_balancing", kLoadBalancingWords, made.load_balancing);
    if (const Value* domains = object.find("domains")) {
      for (const Value& domain : expect<json::Array>(*domains, "a list of domain managers")) {
        read_domain(domain, made);
      }
    }
    read_principal(object, made);
    const auto reference = [this](const Value& switch_value) {
      return read_reference(switch_value);
    };
    read_zoning(object, reference, fabric_.local_switch, made);
    fabric_.vsans.push_back(std::move(made));
  }

  static std::string usual_name(uint32_t number) {
    std::string digits = std::to_string(number);
    return "VSAN" + std::string(4 - digits.size(), '0') + digits;
  }

  void read_domain(const Value& value, Vsan& vsan) const {
    const ObjectReader object(
        value, "a domain manager",
        {"switch", "enabled", "domain_id", "configured_domain_id", "type", "priority"});
    DomainManager made;
    made.switch_wwn = read_reference(object.at("switch"));
    made.enabled = read_flag(object, "enabled", made.enabled);
    if (made.enabled) {
      made.domain_id = read_number<uint8_t>(object.at("domain_id"), 1, kLargestDomainId);
    } else if (const Value* domain_id = object.find("domain_id")) {
      throw Problem{domain_id->position, "a domain manager that is not enabled has no domain ID"};
    }
    made.configured_domain_id =
        read_number<uint8_t>(object, "configured_domain_id", 0, kLargestDomainId, 0);
    made.configured_type = read_word(object, "type", kDomainTypeWords, made.configured_type);
    made.configured_priority =
        read_number<uint8_t>(object, "priority", 1, 254, made.configured_priority);
    if (made.configured_type == DomainType::static_id && made.configured_domain_id == 0) {
      throw Problem{object.position_of("type"), "a static domain needs \"configured_domain_id\""};
    }
    for (const DomainManager& other : vsan.domains) {
      if (other.switch_wwn == made.switch_wwn) {
        throw Problem{object.position_of("switch"), "the switch is already in this VSAN"};
      }
      if (made.domain_id != 0 && other.domain_id == made.domain_id) {
        throw Problem{object.position_of("domain_id"), "another switch has this domain ID"};
      }
    }
    vsan.domains.push_back(made);
  }

  void read_principal(const ObjectReader& object, Vsan& vsan) const {
    const Value* value = object.find("principal_switch");
    if (value == nullptr) return;
    const Wwn wwn = read_reference(*value);
    const bool takes_part = std::any_of(
        vsan.domains.begin(), vsan.domains.end(),
        [&](const DomainManager& domain) { return domain.switch_wwn == wwn && domain.enabled; });
    if (!takes_part) {
      throw Problem{value->position, "the principal switch has no enabled domain manager here"};
    }
    vsan.principal_switch = wwn;
  }

  Fabric fabric_;
  std::set<Wwn> wwns_;
  std::multimap<std::string, Wwn, std::less<>> switches_by_name_;
  std::set<uint32_t> vsan_numbers_;
};

class FileDescriptor {
 public:
  explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() {
    if (descriptor_ >= 0) close(descriptor_);
  }
  int get() const { return descriptor_; }

 private:
  int descriptor_;
};

// The bytes of a regular file; errno of a failure (EINVAL for what is no regular file).
std::variant<std::string, int> read_bytes(const std::string& path) {
  const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat information {};
  if (file.get() < 0 || fstat(file.get(), &information) != 0) return errno;
  if (S_ISDIR(information.st_mode)) return EISDIR;
  if (!S_ISREG(information.st_mode)) return EINVAL;
  std::string bytes;
  char block[65536];
  for (;;) {
    const ssize_t count = read(file.get(), block, sizeof block);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    if (count == 0) return bytes;
    bytes.append(block, static_cast<size_t>(count));
  }
}

}  // namespace

ReadFabric parse_fabric(std::string_view text, std::string_view name) {
  try {
    return FabricReader().read(json::parse(text));
  } catch (const Problem& problem) {
    return FabricError{std::string(name) + ":" + std::to_string(problem.position.line) + ":" +
                       std::to_string(problem.position.column) + ": " + problem.message};
  }
}

std::variant<std::string, FabricError> read_text_file(const std::string& path) {
  auto bytes = read_bytes(path);
  if (const int* error = std::get_if<int>(&bytes)) {
    return FabricError{path + ": " + (*error == EINVAL ? "not a regular file" : strerror(*error))};
  }
  return std::get<std::string>(std::move(bytes));
}

ReadFabric read_fabric_file(const std::string& path) {
  auto text = read_text_file(path);
  if (auto* error = std::get_if<FabricError>(&text)) return std::move(*error);
  return parse_fabric(std::get<std::string>(text), path);
}

}  // namespace switch_sim

// Texts of the values of zone members.
#include <charconv>
#include <cstdio>

#include "simulator/fabric/fabric_file.h"
#include "simulator/fabric/zoning_file.h"
#include "simulator/local/zone_member_layout.h"

namespace switch_sim {
namespace {

using namespace zone_member;

// How the text of a type looks.
enum class Form { wwn, domain_port, fc_id, wwn_lun, fc_id_lun, ipv4, domain_interface, ipv6, text };

Form form_of(uint8_t type) {
  switch (type) {
    case kPortWwn:
    case kFabricPortWwn:
    case kInterface:
    case kInterfaceOfSwitch:
      return Form::wwn;
    case kDomainPort:
      return Form::domain_port;
    case kFcId:
      return Form::fc_id;
    case kPortWwnLun:
    case kWwnLun241:
      return Form::wwn_lun;
    case kFcIdLun:
    case kFcIdLun243:
      return Form::fc_id_lun;
    case kIpv4:
      return Form::ipv4;
    case kDomainInterface:
      return Form::domain_interface;
    case kIpv6:
      return Form::ipv6;
    default:
      return Form::text;
  }
}

using Parsed = std::optional<std::string>;

template <size_t kSize>
std::string bytes_of(const std::array<uint8_t, kSize>& bytes, size_t count = kSize) {
  return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
}

uint8_t byte_at(const std::string& value, size_t i) {
  return static_cast<uint8_t>(value[i]);
}

std::optional<uint8_t> parse_byte(std::string_view text) {
  uint8_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
  return value;
}

Parsed parse_wwn_bytes(std::string_view text) {
  const auto wwn = parse_wwn(text);
  return wwn ? Parsed(bytes_of(wwn->bytes)) : std::nullopt;
}

Parsed parse_fc_id(std::string_view text) {
  uint32_t value = 0;
  if (text.size() != 8 || !text.starts_with("0x")) return std::nullopt;
  const auto [end, error] = std::from_chars(text.data() + 2, text.data() + 8, value, 16);
  if (error != std::errc{} || end != text.data() + 8) return std::nullopt;
  return std::string{'\0', static_cast<char>(value >> 16), static_cast<char>(value >> 8),
                     static_cast<char>(value)};
}

Parsed parse_domain_port(std::string_view text) {
  const size_t colon = text.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const auto domain = parse_byte(text.substr(0, colon));
  const auto port = parse_byte(text.substr(colon + 1));
  if (!domain || !port) return std::nullopt;
  return std::string{static_cast<char>(*domain), '\0', '\0', static_cast<char>(*port)};
}

Parsed parse_ipv4(const std::string& text) {
  const auto address = parse_address(text);
  if (!address || address->family != IpAddress::Family::ipv4) return std::nullopt;
  return bytes_of(address->bytes, 4);
}

Parsed joined(const Parsed& first, const Parsed& second) {
  return first && second ? Parsed(*first + *second) : std::nullopt;
}

Parsed parse_ipv6(const std::string& address_text, std::string_view prefix_text) {
  const auto address = parse_address(address_text);
  const auto prefix = parse_byte(prefix_text);
  if (!address || address->family != IpAddress::Family::ipv6 || !prefix) return std::nullopt;
  return std::string{'\0', '\0', '\0', '\2'} + bytes_of(address->bytes) +
         std::string{'\0', '\0', '\0', static_cast<char>(*prefix)};
}

Parsed parse_domain_interface(std::string_view key, std::string_view domain_text) {
  const auto domain = parse_byte(domain_text);
  if (!domain) return std::nullopt;
  return joined(parse_wwn_bytes(key), std::string{static_cast<char>(*domain), '\0', '\0', '\0'});
}

// Forms of two parts with a slash between them.
Parsed parse_pair(Form form, const std::string& text) {
  const size_t slash = text.find('/');
  if (slash == std::string::npos) return std::nullopt;
  const std::string first = text.substr(0, slash), second = text.substr(slash + 1);
  switch (form) {
    case Form::wwn_lun:
      return joined(parse_wwn_bytes(first), parse_wwn_bytes(second));
    case Form::fc_id_lun:
      return joined(parse_fc_id(first), parse_wwn_bytes(second));
    case Form::ipv4:
      return joined(parse_ipv4(first), parse_ipv4(second));
    case Form::domain_interface:
      return parse_domain_interface(first, second);
    default:
      return parse_ipv6(first, second);
  }
}

Parsed parse_form(Form form, const std::string& text) {
  switch (form) {
    case Form::wwn:
      return parse_wwn_bytes(text);
    case Form::domain_port:
      return parse_domain_port(text);
    case Form::fc_id:
      return parse_fc_id(text);
    case Form::text:
      return text;
    default:
      return parse_pair(form, text);
  }
}

std::string wwn_text(const std::string& value, size_t at) {
  Wwn wwn;
  for (size_t i = 0; i < wwn.bytes.size(); ++i)
    wwn.bytes[i] = byte_at(value, at + i);
  return to_text(wwn);
}

std::string fc_id_text(const std::string& value) {
  char text[16];
  snprintf(text, sizeof text, "0x%02x%02x%02x", byte_at(value, 1), byte_at(value, 2),
           byte_at(value, 3));
  return text;
}

std::string address_text(IpAddress::Family family, const std::string& value, size_t at,
                         size_t size) {
  IpAddress address;
  address.family = family;
  for (size_t i = 0; i < size; ++i)
    address.bytes[i] = byte_at(value, at + i);
  return to_text(address);
}

}  // namespace

std::optional<std::string> parse_member_value(uint8_t type, const std::string& text) {
  Parsed value = parse_form(form_of(type), text);
  return value && is_member_value(type, *value) ? value : std::nullopt;
}

std::string member_value_text(uint8_t type, const std::string& value) {
  switch (form_of(type)) {
    case Form::wwn:
      return wwn_text(value, 0);
    case Form::domain_port:
      return std::to_string(byte_at(value, 0)) + ":" + std::to_string(byte_at(value, 3));
    case Form::fc_id:
      return fc_id_text(value);
    case Form::wwn_lun:
      return wwn_text(value, 0) + "/" + wwn_text(value, 8);
    case Form::fc_id_lun:
      return fc_id_text(value) + "/" + wwn_text(value, 4);
    case Form::ipv4:
      return address_text(IpAddress::Family::ipv4, value, 0, 4) + "/" +
             address_text(IpAddress::Family::ipv4, value, 4, 4);
    case Form::domain_interface:
      return wwn_text(value, 0) + "/" + std::to_string(byte_at(value, 8));
    case Form::ipv6:
      return address_text(IpAddress::Family::ipv6, value, 4, 16) + "/" +
             std::to_string(byte_at(value, 23));
    case Form::text:
      break;
  }
  return value;
}

const char* member_value_form(uint8_t type) {
  switch (form_of(type)) {
    case Form::wwn:
      return "a WWN such as \"21:00:00:e0:8b:05:05:04\"";
    case Form::domain_port:
      return "a domain ID and a port such as \"97:5\"";
    case Form::fc_id:
      return "an FC ID such as \"0x610005\"";
    case Form::wwn_lun:
      return "a WWN and a LUN such as \"21:00:00:e0:8b:05:05:04/00:01:00:00:00:00:00:00\"";
    case Form::fc_id_lun:
      return "an FC ID and a LUN such as \"0x610005/00:01:00:00:00:00:00:00\"";
    case Form::ipv4:
      return "an IPv4 address and mask such as \"192.0.2.0/255.255.255.0\"";
    case Form::domain_interface:
      return "an interface key and a domain ID such as \"20:01:ff:ff:ff:ff:ff:ff/97\"";
    case Form::ipv6:
      return "an IPv6 address and prefix length such as \"2001:db8::1/128\"";
    case Form::text:
      break;
  }
  return type == kSymbolic ? "1 to 63 bytes of text in one line"
                           : "1 to 255 bytes of text in one line";
}

}  // namespace switch_sim

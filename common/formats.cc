#include <cim_utils/formats.h>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <array>
#include <climits>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <switch_platform/if_index.h>
#include <switch_platform/system.h>

namespace {

constexpr int kFailed = -1;
// What printing one byte as two hexadecimal digits counts.
constexpr int kTwoDigits = 2;

constexpr std::size_t kWwnBytes = 8;
constexpr std::size_t kWwnDigits = 16;
constexpr std::size_t kFcidBytes = 4;
constexpr std::size_t kFcidDigits = 6;
constexpr char kPairSeparator = '_';

int nothing_to_write(char* dst) {
  if (dst != nullptr) *dst = '\0';
  return kFailed;
}

// ---- Hexadecimal digits

// The two digits of every byte value, one behind the other.
using HexDigits = std::array<char, 512>;

constexpr HexDigits hex_digits_of_all_bytes(const char* digits) {
  HexDigits pairs{};
  for (std::size_t byte = 0; byte < 256; ++byte) {
    pairs[2 * byte] = digits[byte >> 4];
    pairs[2 * byte + 1] = digits[byte & 15];
  }
  return pairs;
}

constexpr HexDigits kUpperCase = hex_digits_of_all_bytes("0123456789ABCDEF");
constexpr HexDigits kLowerCase = hex_digits_of_all_bytes("0123456789abcdef");

// Writes `count` bytes without a terminator; the result is the place behind them.
char* put_hex(char* dst, const uint8_t* bytes, std::size_t count, const HexDigits& digits) {
  for (std::size_t i = 0; i < count; ++i, dst += 2) {
    std::memcpy(dst, &digits[std::size_t{2} * bytes[i]], 2);
  }
  return dst;
}

char* put_wwn(char* dst, const uint8_t* wwn) {
  return put_hex(dst, wwn, kWwnBytes, kUpperCase);
}

// Byte 0 of an FC ID is not part of the identifier.
char* put_fcid(char* dst, const uint8_t* fcid) {
  return put_hex(dst, fcid + 1, 3, kLowerCase);
}

int end_with_wwn(char* dst, const uint8_t* wwn) {
  *put_wwn(dst, wwn) = '\0';
  return kTwoDigits;
}

constexpr uint8_t kNoDigit = 0xFF;

constexpr std::array<uint8_t, 256> values_of_hex_digits() {
  std::array<uint8_t, 256> values{};
  for (auto& value : values)
    value = kNoDigit;
  for (uint8_t i = 0; i < 10; ++i)
    values['0' + i] = i;
  for (uint8_t i = 0; i < 6; ++i) {
    values['a' + i] = static_cast<uint8_t>(10 + i);
    values['A' + i] = static_cast<uint8_t>(10 + i);
  }
  return values;
}

constexpr std::array<uint8_t, 256> kHexValue = values_of_hex_digits();

// Any text: what scanf makes of "%2x" fields, which is more than digits (blanks, signs), and 0 from
// the first field on that holds no number.
void scan_hex_fields(const char* text, std::size_t count, uint8_t* bytes) {
  char fields[kWwnDigits + 1] = {};
  std::memcpy(fields, text, 2 * count);
  unsigned int values[kWwnBytes] = {};
  (void)std::sscanf(fields, "%2x%2x%2x%2x%2x%2x%2x%2x", &values[0], &values[1], &values[2],
                    &values[3], &values[4], &values[5], &values[6], &values[7]);
  for (std::size_t i = 0; i < count; ++i)
    bytes[i] = static_cast<uint8_t>(values[i]);
}

// Reads 2 * count characters, at most 16, as `count` two-digit fields. A text of digits, which is
// nearly every text, needs no scan.
void read_hex_fields(const char* text, std::size_t count, uint8_t* bytes) {
  uint8_t seen = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const uint8_t high = kHexValue[static_cast<unsigned char>(text[2 * i])];
    const uint8_t low = kHexValue[static_cast<unsigned char>(text[2 * i + 1])];
    seen |= high | low;
    bytes[i] = static_cast<uint8_t>(high << 4 | low);
  }
  if (seen > 15) scan_hex_fields(text, count, bytes);
}

void read_wwn(const char* text, uint8_t* wwn) {
  read_hex_fields(text, kWwnBytes, wwn);
}

void read_fcid(const char* text, uint8_t* fcid) {
  fcid[0] = 0;
  read_hex_fields(text, 3, fcid + 1);
}

bool has_length(const char* text, std::size_t length) {
  return text != nullptr && strnlen(text, length + 1) == length;
}

// ---- Decimal numbers

bool is_digit(char c) {
  return c >= '0' && c <= '9';
}

struct Octet {
  char digits[3];
  uint8_t length;
};

constexpr std::array<Octet, 256> all_octets() {
  std::array<Octet, 256> octets{};
  for (unsigned value = 0; value < 256; ++value) {
    Octet& octet = octets[value];
    if (value >= 100) octet.digits[octet.length++] = static_cast<char>('0' + value / 100);
    if (value >= 10) octet.digits[octet.length++] = static_cast<char>('0' + value / 10 % 10);
    octet.digits[octet.length++] = static_cast<char>('0' + value % 10);
  }
  return octets;
}

constexpr std::array<Octet, 256> kOctets = all_octets();

// An octet and what stands behind it. Always stores three digits, which is quicker than to choose:
// two characters at least must follow, so that nothing is left of those that are too many.
char* put_octet(char* dst, uint8_t value, char separator) {
  const Octet& octet = kOctets[value];
  std::memcpy(dst, octet.digits, sizeof octet.digits);
  dst[octet.length] = separator;
  return dst + octet.length + 1;
}

// The octet that ends a text; stores not a byte more than that.
char* end_with_octet(char* dst, uint8_t value) {
  const Octet& octet = kOctets[value];
  for (std::size_t i = 0; i < octet.length; ++i)
    *dst++ = octet.digits[i];
  *dst = '\0';
  return dst;
}

char* end_with_ip(char* dst, const uint8_t* address) {
  dst = put_octet(dst, address[3], '.');
  dst = put_octet(dst, address[2], '.');
  dst = put_octet(dst, address[1], '.');
  return end_with_octet(dst, address[0]);
}

char* put_at_least_two_digits(char* dst, uint8_t value) {
  if (value < 10) *dst++ = '0';
  return end_with_octet(dst, value);
}

constexpr std::size_t kIpNumbers = 8;

// A number of one to three digits; the result is the place behind it, null where there is none.
const char* read_short_number(const char* text, unsigned int& number) {
  number = static_cast<unsigned int>(*text) - '0';
  if (number > 9) return nullptr;
  ++text;
  for (int more = 0; more < 2; ++more, ++text) {
    const unsigned int digit = static_cast<unsigned int>(*text) - '0';
    if (digit > 9) return text;
    number = number * 10 + digit;
  }
  return text;
}

// "%u.%u.%u.%u/%u.%u.%u.%u" made of nothing but short numbers and their separators.
bool read_plain_ip_with_mask(const char* text, unsigned int* numbers) {
  constexpr char kSeparators[] = ".../...";
  for (std::size_t i = 0; i < kIpNumbers; ++i) {
    if (i > 0 && *text++ != kSeparators[i - 1]) return false;
    text = read_short_number(text, numbers[i]);
    if (text == nullptr) return false;
  }
  return !is_digit(*text);
}

bool read_ip_with_mask(const char* text, unsigned int* n) {
  // What is not plain may still be what scanf takes: blanks, signs, numbers of any length.
  return read_plain_ip_with_mask(text, n) ||
         std::sscanf(text, "%u.%u.%u.%u/%u.%u.%u.%u", &n[0], &n[1], &n[2], &n[3], &n[4], &n[5],
                     &n[6], &n[7]) == static_cast<int>(kIpNumbers);
}

// ---- Interfaces

struct InterfaceName {
  char text[64] = {};
};

// Asks the platform for the name of the interface behind a port WWN, and traces it.
InterfaceName interface_of(const uint8_t* record) {
  wwn_ port_wwn;
  std::memcpy(port_wwn.bytes, record, kWwnBytes);
  uint32_t if_index = 0;
  (void)wwnm_get_ifindex_from_port_wwn(port_wwn.bytes, &if_index);  // unknown: index 0 is named

  InterfaceName name;
  sprintf_if_index(name.text, if_index);
  name.text[sizeof name.text - 1] = '\0';
  std::printf("interface : %s domain-id %d \n", name.text, record[8]);
  return name;
}

// ---- Buffers handed out

char ipv6_text[1024];
char kfs_address_text[CIM_KFS_ADDRESS_TEXT_ROOM];

constexpr std::size_t kPrefixLengthOffset = 20;
constexpr int32_t kWholeAddress = 128;

// A null address leaves the text of the previous call in the buffer, which callers rely on.
void render_ipv6(const void* address) {
  if (address == nullptr) return;
  ip_addr_to_str(address, ipv6_text, sizeof ipv6_text);
  ipv6_text[sizeof ipv6_text - 1] = '\0';
}

// Writes what has room of the text; the result is its end.
char* copy_ipv6_text(char* dst) {
  const std::size_t length = strnlen(ipv6_text, CIM_IPV6_TEXT_ROOM - 1);
  std::memcpy(dst, ipv6_text, length);
  dst[length] = '\0';
  return dst + length;
}

int32_t prefix_length_of(const void* address) {
  int32_t length = kWholeAddress;
  if (address != nullptr) {
    std::memcpy(&length, static_cast<const char*>(address) + kPrefixLengthOffset, sizeof length);
  }
  return length;
}

}  // namespace

// ---- Writers

int cim_sprintf_wwn_uint_array(char* dst, const uint8_t wwn[8]) {
  if (dst == nullptr || wwn == nullptr) return nothing_to_write(dst);
  return end_with_wwn(dst, wwn);
}

int cim_sprintf_wwn(char* dst, const wwn_* wwn) {
  return cim_sprintf_wwn_uint_array(dst, wwn == nullptr ? nullptr : wwn->bytes);
}

int cim_sprintf_mac(char* dst, const uint8_t mac[6]) {
  if (dst == nullptr || mac == nullptr) return nothing_to_write(dst);
  *put_hex(dst, mac, 6, kUpperCase) = '\0';
  return kTwoDigits;
}

int cim_sprintf_fcid_uint_array(char* dst, const uint8_t fcid[4]) {
  if (dst == nullptr || fcid == nullptr) return nothing_to_write(dst);
  *put_fcid(dst, fcid) = '\0';
  return kTwoDigits;
}

int cim_sprintf_fcid(char* dst, const uint8_t fcid[4]) {
  return cim_sprintf_fcid_uint_array(dst, fcid);
}

int cim_sprintf_wwn_lun(char* dst, const wwn_* wwn, const uint8_t lun[8]) {
  if (dst == nullptr || wwn == nullptr || lun == nullptr) return nothing_to_write(dst);
  dst = put_wwn(dst, wwn->bytes);
  *dst++ = kPairSeparator;
  return end_with_wwn(dst, lun);
}

int cim_sprintf_wwn_lun_hex(char* dst, const uint8_t pair[16]) {
  if (dst == nullptr || pair == nullptr) return nothing_to_write(dst);
  dst = put_wwn(dst, pair);
  *dst++ = kPairSeparator;
  return end_with_wwn(dst, pair + kWwnBytes);
}

int cim_sprintf_fcid_lun(char* dst, const uint8_t fcid[4], const uint8_t lun[8]) {
  if (dst == nullptr || fcid == nullptr || lun == nullptr) return nothing_to_write(dst);
  dst = put_fcid(dst, fcid);
  *dst++ = kPairSeparator;
  return end_with_wwn(dst, lun);
}

int cim_sprintf_fcid_lun_hex(char* dst, const uint8_t pair[12]) {
  return cim_sprintf_fcid_lun(dst, pair, pair == nullptr ? nullptr : pair + kFcidBytes);
}

int cim_sprintf_ip_uint_array(char* dst, const uint8_t address[4]) {
  if (dst == nullptr || address == nullptr) return nothing_to_write(dst);
  return static_cast<int>(end_with_ip(dst, address) - dst);
}

int cim_sprintf_ip_with_mask(char* dst, uint32_t address) {
  const uint8_t bytes[4] = {static_cast<uint8_t>(address), static_cast<uint8_t>(address >> 8),
                            static_cast<uint8_t>(address >> 16),
                            static_cast<uint8_t>(address >> 24)};
  return cim_sprintf_ip_uint_array(dst, bytes);
}

int cim_sprintf_ip_with_mask_hex(char* dst, const uint8_t pair[8]) {
  if (dst == nullptr || pair == nullptr) return nothing_to_write(dst);
  char* end = end_with_ip(dst, pair);
  *end++ = '/';
  return static_cast<int>(end_with_ip(end, pair + 4) - dst);
}

int zs_cim_sprintf_ip_with_mask(char* dst, const uint8_t pair[8]) {
  return cim_sprintf_ip_with_mask_hex(dst, pair);
}

char* cim_sprintf_ipv6_addr(char* dst, const void* address) {
  render_ipv6(address);
  if (dst != nullptr) copy_ipv6_text(dst);
  return ipv6_text;
}

char* cim_sprintf_ipv6_addr_with_prefix(char* dst, const void* address) {
  const int32_t prefix_length = prefix_length_of(address);
  render_ipv6(address);
  if (dst == nullptr) return ipv6_text;
  char* const end = copy_ipv6_text(dst);
  if (prefix_length != kWholeAddress) {
    const auto room = static_cast<std::size_t>(dst + CIM_IPV6_TEXT_ROOM - end);
    std::snprintf(end, room, "/%d", prefix_length);
  }
  return ipv6_text;
}

char* kfs_ip_addr_to_str(uint32_t family, const void* address, char* buffer) {
  constexpr uint32_t kIpv4 = 1;
  constexpr uint32_t kIpv6 = 2;
  if (buffer == nullptr) buffer = kfs_address_text;
  if (address != nullptr && family == kIpv4) {
    inet_ntop(AF_INET, address, buffer, CIM_IP_TEXT_ROOM);
  } else if (address != nullptr && family == kIpv6) {
    inet_ntop(AF_INET6, address, buffer, CIM_KFS_ADDRESS_TEXT_ROOM);
  } else {
    std::strcpy(buffer, "0.0.0.0");
  }
  return buffer;
}

int cim_sprintf_dom_interface_hex(char* dst, const uint8_t record[12]) {
  if (dst == nullptr || record == nullptr) return nothing_to_write(dst);
  const InterfaceName name = interface_of(record);
  return std::snprintf(dst, CIM_DOM_INTERFACE_TEXT_ROOM, "%s:%2d", name.text, record[8]);
}

int zs_cim_sprintf_dom_interface(char* dst, const uint8_t record[12]) {
  if (dst == nullptr || record == nullptr) return nothing_to_write(dst);
  const InterfaceName name = interface_of(record);
  // Deliberately small: the member ids of zones show at most 8 characters.
  return std::snprintf(dst, CIM_ZONING_DOM_INTERFACE_TEXT_ROOM, "%s:%2d", name.text, record[8]);
}

int zs_cim_sprintf_dom_port(char* dst, const uint8_t record[4]) {
  if (dst == nullptr || record == nullptr) return nothing_to_write(dst);
  char* end = put_at_least_two_digits(dst, record[0]);
  *end++ = ':';
  return static_cast<int>(put_at_least_two_digits(end, record[3]) - dst);
}

// ---- Readers

int wwn_cim_get_hex_from_str_wwn(const char* text, wwn_* wwn) {
  if (!has_length(text, kWwnDigits) || wwn == nullptr) return kFailed;
  read_wwn(text, wwn->bytes);
  return 0;
}

int cim_get_hex_from_str_fcid(const char* text, uint8_t fcid[4]) {
  if (!has_length(text, kFcidDigits) || fcid == nullptr) return kFailed;
  read_fcid(text, fcid);
  return 0;
}

int cim_get_hex_from_str_wwn_lun(const char* text, uint8_t pair[16]) {
  if (!has_length(text, kWwnDigits + 1 + kWwnDigits) || pair == nullptr) return kFailed;
  read_wwn(text, pair);
  read_wwn(text + kWwnDigits + 1, pair + kWwnBytes);
  return 0;
}

int cim_get_hex_from_str_fcid_lun(const char* text, uint8_t pair[12]) {
  if (!has_length(text, kFcidDigits + 1 + kWwnDigits) || pair == nullptr) return kFailed;
  read_fcid(text, pair);
  read_wwn(text + kFcidDigits + 1, pair + kFcidBytes);
  return 0;
}

int cim_get_hex_from_str_ip_with_mask(const char* text, uint8_t pair[8]) {
  if (text == nullptr || pair == nullptr) return kFailed;
  unsigned int numbers[kIpNumbers];
  if (!read_ip_with_mask(text, numbers)) return kFailed;
  for (std::size_t i = 0; i < 4; ++i) {
    pair[3 - i] = static_cast<uint8_t>(numbers[i]);
    pair[7 - i] = static_cast<uint8_t>(numbers[4 + i]);
  }
  return 0;
}

int cim_get_hex_from_str_dom_interface(const char* text, uint8_t record[12]) {
  if (!has_length(text, kWwnDigits + 1 + 2) || record == nullptr) return kFailed;
  read_wwn(text, record);
  // Hexadecimal, although the writer's domain is decimal: deliberate, both forms are in use.
  read_hex_fields(text + kWwnDigits + 1, 1, record + 8);
  std::memset(record + 9, 0, 3);
  return 0;
}

int32_t is_valid_number(const char* text, int32_t n) {
  if (text == nullptr) return kFailed;
  constexpr int32_t kMostPlainDigits = 9;  // never more than 31 bits
  int32_t plain = 0;
  for (int32_t i = 0; i < n; ++i) {
    if (!is_digit(text[i])) return kFailed;
    if (i < kMostPlainDigits) plain = plain * 10 + (text[i] - '0');
  }
  if (n > 0 && n <= kMostPlainDigits && !is_digit(text[n])) return plain;
  const long number = std::strtol(text, nullptr, 10);
  if (number > INT32_MAX) return INT32_MAX;
  if (number < INT32_MIN) return INT32_MIN;
  return static_cast<int32_t>(number);
}

int parse_domain_port(const char* text, uint32_t out[2]) {
  if (text == nullptr || out == nullptr) return kFailed;
  char copy[100];
  const std::size_t length = strnlen(text, sizeof copy - 1);
  if (length == 0) return 0;
  std::memcpy(copy, text, length);
  copy[length] = '\0';

  // As strtok splits: colons in front do not count, the first one behind the domain does.
  const char* const domain_text = copy + std::strspn(copy, ":");
  const std::size_t domain_length = std::strcspn(domain_text, ":");
  if (domain_length == 0) return kFailed;
  const char* port_text = domain_text + domain_length;
  if (*port_text == ':') ++port_text;

  const int32_t domain = is_valid_number(domain_text, static_cast<int32_t>(domain_length));
  const int32_t port = is_valid_number(port_text, static_cast<int32_t>(std::strlen(port_text)));
  if (domain <= 0 || port <= 0) {  // never negative but for -1
    std::printf("Invalid domain or port ");
    return kFailed;
  }
  out[0] = static_cast<uint32_t>(domain);
  out[1] = static_cast<uint32_t>(port);
  return 0;
}

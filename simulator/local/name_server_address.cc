// Text of the node address in a name-server entry.
#include <arpa/inet.h>
#include <switch_platform/name_server.h>

#include <algorithm>

// The name server keeps 16 bytes: an IPv6 address, or an IPv4 address in the last four bytes behind
// zeros (or behind the prefix of a mapped address). The text fits 64 bytes.
int32_t ns_print_ip_addr(const void* addr, char* dst) {
  if (addr == nullptr || dst == nullptr) return -1;
  const auto* bytes = static_cast<const uint8_t*>(addr);
  const bool zeros = std::all_of(bytes, bytes + 10, [](uint8_t byte) { return byte == 0; });
  const bool plain = bytes[10] == 0 && bytes[11] == 0;
  const bool mapped = bytes[10] == 0xFF && bytes[11] == 0xFF;
  const bool is_ipv4 = zeros && (plain || mapped);
  const char* text =
      is_ipv4 ? inet_ntop(AF_INET, bytes + 12, dst, 64) : inet_ntop(AF_INET6, bytes, dst, 64);
  return text != nullptr ? 0 : -1;
}

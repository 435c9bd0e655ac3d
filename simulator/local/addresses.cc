// Texts of IP addresses.
#include <arpa/inet.h>
#include <switch_platform/system.h>

#include <cstring>

// The address record: a 32-bit family in host order (1 IPv4, anything else IPv6), 16 address bytes,
// and a 32-bit prefix length, which is not part of the text.
char* ip_addr_to_str(const void* addr, char* buffer, int32_t size) {
  if (buffer == nullptr || size <= 0) return buffer;
  buffer[0] = '\0';
  if (addr == nullptr) return buffer;
  const auto* bytes = static_cast<const uint8_t*>(addr);
  uint32_t family = 0;
  memcpy(&family, bytes, sizeof family);
  const int system_family = family == 1 ? AF_INET : AF_INET6;
  if (inet_ntop(system_family, bytes + 4, buffer, static_cast<socklen_t>(size)) == nullptr) {
    buffer[0] = '\0';
  }
  return buffer;
}

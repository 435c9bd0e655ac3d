// Writers and readers of identifiers, each beside the printf or scanf calls that give the same
// text. A writer or reader of WWNs, FC IDs, MAC addresses, IPv4 addresses and pairs takes less than
// a tenth of the time of those; compare `_cim` with `_stdio` of the same name.
#include <benchmark/benchmark.h>
#include <cim_utils/formats.h>

#include <fcntl.h>
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstring>

namespace {

constexpr wwn_ kWwn = {{0x20, 0x01, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}};
constexpr uint8_t kLun[8] = {0x00, 0x05, 0x40, 0x00, 0x12, 0xab, 0xcd, 0xef};
constexpr uint8_t kFcid[4] = {0x00, 0x01, 0x0a, 0xef};
constexpr uint8_t kMac[6] = {0x00, 0x0d, 0xec, 0x11, 0x22, 0xfe};
constexpr uint8_t kIpWithMask[8] = {21, 168, 30, 192, 0, 254, 255, 255};
constexpr uint8_t kDomainPort[4] = {12, 0, 0, 207};
constexpr uint8_t kDomainInterface[12] = {0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c, 12};
constexpr uint8_t kIpv6[24] = {2, 0, 0, 0, 0x20, 0x01, 0x0d, 0xb8, 0, 0, 0,
                               0, 0, 0, 0, 0,    0,    0,    0,    1, 64};

template <typename Write>
void write(benchmark::State& state, Write writer) {
  char text[CIM_IPV6_TEXT_ROOM];
  for (auto _ : state) {
    writer(text);
    benchmark::DoNotOptimize(text);
    benchmark::ClobberMemory();
  }
}

template <typename Read>
void read(benchmark::State& state, const char* text, Read reader) {
  uint8_t bytes[16];
  for (auto _ : state) {
    benchmark::DoNotOptimize(text);
    reader(text, bytes);
    benchmark::DoNotOptimize(bytes);
    benchmark::ClobberMemory();
  }
}

// Sends standard output nowhere while it lives: the domain/interface writers trace every call.
class QuietStdout {
 public:
  QuietStdout() : nowhere_(open("/dev/null", O_WRONLY)) { swap(); }
  QuietStdout(const QuietStdout&) = delete;
  QuietStdout& operator=(const QuietStdout&) = delete;
  ~QuietStdout() {
    swap();
    close(nowhere_);
  }

 private:
  void swap() {
    std::fflush(stdout);
    const int before = dup(STDOUT_FILENO);
    dup2(nowhere_, STDOUT_FILENO);
    close(nowhere_);
    nowhere_ = before;
  }

  int nowhere_;
};

// ---- What the texts cost with the C library

void print_hex(char* dst, const uint8_t* bytes, int count, const char* format) {
  for (int i = 0; i < count; ++i)
    std::snprintf(dst + std::ptrdiff_t{2} * i, 3, format, bytes[i]);
}

void print_ip(char* dst, const uint8_t* address) {
  std::snprintf(dst, CIM_IP_TEXT_ROOM, "%u.%u.%u.%u", address[3], address[2], address[1],
                address[0]);
}

void scan_wwn(const char* text, uint8_t* bytes) {
  unsigned v[8] = {};
  (void)std::sscanf(text, "%2x%2x%2x%2x%2x%2x%2x%2x", &v[0], &v[1], &v[2], &v[3], &v[4], &v[5],
                    &v[6], &v[7]);
  for (int i = 0; i < 8; ++i)
    bytes[i] = static_cast<uint8_t>(v[i]);
}

void scan_fcid(const char* text, uint8_t* bytes) {
  unsigned v[3] = {};
  (void)std::sscanf(text, "%2x%2x%2x", &v[0], &v[1], &v[2]);
  for (int i = 0; i < 3; ++i)
    bytes[i] = static_cast<uint8_t>(v[i]);
}

void scan_ip_with_mask(const char* text, uint8_t* bytes) {
  unsigned v[8] = {};
  (void)std::sscanf(text, "%u.%u.%u.%u/%u.%u.%u.%u", &v[0], &v[1], &v[2], &v[3], &v[4], &v[5],
                    &v[6], &v[7]);
  for (int i = 0; i < 8; ++i)
    bytes[i] = static_cast<uint8_t>(v[i]);
}

// ---- Writers

BENCHMARK_CAPTURE(write, Wwn_stdio, [](char* dst) { print_hex(dst, kWwn.bytes, 8, "%02X"); });
BENCHMARK_CAPTURE(write, Wwn_cim, [](char* dst) { cim_sprintf_wwn(dst, &kWwn); });
BENCHMARK_CAPTURE(write, WwnUintArray_cim,
                  [](char* dst) { cim_sprintf_wwn_uint_array(dst, kWwn.bytes); });
BENCHMARK_CAPTURE(write, Mac_stdio, [](char* dst) { print_hex(dst, kMac, 6, "%02X"); });
BENCHMARK_CAPTURE(write, Mac_cim, [](char* dst) { cim_sprintf_mac(dst, kMac); });
BENCHMARK_CAPTURE(write, Fcid_stdio, [](char* dst) { print_hex(dst, kFcid + 1, 3, "%02x"); });
BENCHMARK_CAPTURE(write, Fcid_cim, [](char* dst) { cim_sprintf_fcid(dst, kFcid); });
BENCHMARK_CAPTURE(write, WwnLun_stdio, [](char* dst) {
  print_hex(dst, kWwn.bytes, 8, "%02X");
  dst[16] = '_';
  print_hex(dst + 17, kLun, 8, "%02X");
});
BENCHMARK_CAPTURE(write, WwnLun_cim, [](char* dst) { cim_sprintf_wwn_lun(dst, &kWwn, kLun); });
BENCHMARK_CAPTURE(write, FcidLun_stdio, [](char* dst) {
  print_hex(dst, kFcid + 1, 3, "%02x");
  dst[6] = '_';
  print_hex(dst + 7, kLun, 8, "%02X");
});
BENCHMARK_CAPTURE(write, FcidLun_cim, [](char* dst) { cim_sprintf_fcid_lun(dst, kFcid, kLun); });
BENCHMARK_CAPTURE(write, Ip_stdio, [](char* dst) { print_ip(dst, kIpWithMask); });
BENCHMARK_CAPTURE(write, Ip_cim, [](char* dst) { cim_sprintf_ip_uint_array(dst, kIpWithMask); });
BENCHMARK_CAPTURE(write, IpNumber_cim,
                  [](char* dst) { cim_sprintf_ip_with_mask(dst, 0xC01EA815); });
BENCHMARK_CAPTURE(write, IpWithMask_stdio, [](char* dst) {
  std::snprintf(dst, CIM_IP_WITH_MASK_TEXT_ROOM, "%u.%u.%u.%u/%u.%u.%u.%u", kIpWithMask[3],
                kIpWithMask[2], kIpWithMask[1], kIpWithMask[0], kIpWithMask[7], kIpWithMask[6],
                kIpWithMask[5], kIpWithMask[4]);
});
BENCHMARK_CAPTURE(write, IpWithMask_cim,
                  [](char* dst) { cim_sprintf_ip_with_mask_hex(dst, kIpWithMask); });
BENCHMARK_CAPTURE(write, DomainPort_stdio, [](char* dst) {
  std::snprintf(dst, CIM_ZONING_DOM_PORT_TEXT_ROOM, "%02d:%02d", kDomainPort[0], kDomainPort[3]);
});
BENCHMARK_CAPTURE(write, DomainPort_cim,
                  [](char* dst) { zs_cim_sprintf_dom_port(dst, kDomainPort); });
// The platform renders these; there is nothing to compare them with.
void write_domain_interface(benchmark::State& state) {
  const QuietStdout quiet;
  write(state, [](char* dst) { cim_sprintf_dom_interface_hex(dst, kDomainInterface); });
}
BENCHMARK(write_domain_interface)->Name("write/DomainInterface_cim");
BENCHMARK_CAPTURE(write, Ipv6_cim, [](char* dst) { cim_sprintf_ipv6_addr(dst, kIpv6); });
BENCHMARK_CAPTURE(write, Ipv6WithPrefix_cim,
                  [](char* dst) { cim_sprintf_ipv6_addr_with_prefix(dst, kIpv6); });
BENCHMARK_CAPTURE(write, KfsIpv6_cim, [](char* dst) { kfs_ip_addr_to_str(2, kIpv6 + 4, dst); });

// ---- Readers

BENCHMARK_CAPTURE(read, Wwn_stdio, "2001000DEC0A1B2C", scan_wwn);
BENCHMARK_CAPTURE(read, Wwn_cim, "2001000DEC0A1B2C", [](const char* text, uint8_t* bytes) {
  wwn_ wwn;
  wwn_cim_get_hex_from_str_wwn(text, &wwn);
  std::memcpy(bytes, wwn.bytes, sizeof wwn.bytes);
});
BENCHMARK_CAPTURE(read, WwnNotDigits_cim, "2001 00DEC0A1B2C", [](const char* text, uint8_t* bytes) {
  wwn_ wwn;
  wwn_cim_get_hex_from_str_wwn(text, &wwn);
  std::memcpy(bytes, wwn.bytes, sizeof wwn.bytes);
});
BENCHMARK_CAPTURE(read, Fcid_stdio, "010aef", scan_fcid);
BENCHMARK_CAPTURE(read, Fcid_cim, "010aef", cim_get_hex_from_str_fcid);
BENCHMARK_CAPTURE(read, WwnLun_stdio, "2001000DEC0A1B2C_0005400012ABCDEF",
                  [](const char* text, uint8_t* bytes) {
                    scan_wwn(text, bytes);
                    scan_wwn(text + 17, bytes + 8);
                  });
BENCHMARK_CAPTURE(read, WwnLun_cim, "2001000DEC0A1B2C_0005400012ABCDEF",
                  cim_get_hex_from_str_wwn_lun);
BENCHMARK_CAPTURE(read, FcidLun_stdio, "010aef_0005400012ABCDEF",
                  [](const char* text, uint8_t* bytes) {
                    scan_fcid(text, bytes + 1);
                    scan_wwn(text + 7, bytes + 4);
                  });
BENCHMARK_CAPTURE(read, FcidLun_cim, "010aef_0005400012ABCDEF", cim_get_hex_from_str_fcid_lun);
BENCHMARK_CAPTURE(read, IpWithMask_stdio, "192.30.168.21/255.255.254.0", scan_ip_with_mask);
BENCHMARK_CAPTURE(read, IpWithMask_cim, "192.30.168.21/255.255.254.0",
                  cim_get_hex_from_str_ip_with_mask);
BENCHMARK_CAPTURE(read, DomainInterface_stdio, "2041000DEC0A1B2C:0c",
                  [](const char* text, uint8_t* bytes) {
                    scan_wwn(text, bytes);
                    unsigned domain = 0;
                    (void)std::sscanf(text + 17, "%2x", &domain);
                    bytes[8] = static_cast<uint8_t>(domain);
                  });
BENCHMARK_CAPTURE(read, DomainInterface_cim, "2041000DEC0A1B2C:0c",
                  cim_get_hex_from_str_dom_interface);
BENCHMARK_CAPTURE(read, DomainPort_stdio, "12:207", [](const char* text, uint8_t* bytes) {
  (void)std::sscanf(text, "%hhu:%hhu", &bytes[0], &bytes[1]);
});
BENCHMARK_CAPTURE(read, DomainPort_cim, "12:207", [](const char* text, uint8_t* bytes) {
  uint32_t pair[2];
  parse_domain_port(text, pair);
  std::memcpy(bytes, pair, sizeof pair);
});
BENCHMARK_CAPTURE(read, Number_cim, "4094", [](const char* text, uint8_t* bytes) {
  const int32_t number = is_valid_number(text, 4);
  std::memcpy(bytes, &number, sizeof number);
});

}  // namespace

// The rules on WWNs: each is a few byte operations, and none allocates.
#include <benchmark/benchmark.h>
#include <cim_utils/wwn_rules.h>

namespace {

constexpr wwn_ kMakerSwitch = {{0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}};
constexpr wwn_ kMakerInVsan = {{0x20, 0x05, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}};
constexpr wwn_ kMakerPort = {{0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}};
// The last vendor that is tried, behind the whole table of the maker.
constexpr wwn_ kQlogicSwitch = {{0x10, 0x00, 0x00, 0xc0, 0xdd, 0x0a, 0x1b, 0x2c}};

template <typename Rule>
void apply(benchmark::State& state, wwn_ wwn, Rule rule) {
  for (auto _ : state) {
    benchmark::DoNotOptimize(wwn);
    wwn_ out;
    auto result = rule(wwn, out);
    benchmark::DoNotOptimize(result);
    benchmark::DoNotOptimize(out);
  }
}

BENCHMARK_CAPTURE(apply, VendorId, kMakerSwitch,
                  [](const wwn_& wwn, wwn_&) { return wwn_cim_getVendorId(&wwn); });
BENCHMARK_CAPTURE(apply, MakerTest_primary, kMakerSwitch,
                  [](const wwn_& wwn, wwn_&) { return wwn_cim_isVexorWwn(&wwn); });
BENCHMARK_CAPTURE(apply, MakerTest_other_vendor, kQlogicSwitch,
                  [](const wwn_& wwn, wwn_&) { return wwn_cim_isVexorWwn(&wwn); });
BENCHMARK_CAPTURE(apply, VsanIndex, kMakerInVsan, [](const wwn_& wwn, wwn_&) {
  return wwn_cim_get_vsan_index_from_wwn_str(wwn.bytes);
});
BENCHMARK_CAPTURE(apply, SwitchUniqueFromVsan, kMakerInVsan, [](const wwn_& wwn, wwn_& out) {
  return wwn_cim_get_switch_unique_wwn_from_vsan_wwn(&out, &wwn);
});
BENCHMARK_CAPTURE(apply, VsanFromSwitchUnique, kMakerSwitch, [](const wwn_& wwn, wwn_& out) {
  return wwn_cim_get_vsan_wwn_from_switch_unique_wwn(5, &out, &wwn);
});
BENCHMARK_CAPTURE(apply, SwitchFromPort_maker, kMakerPort, [](const wwn_& wwn, wwn_& out) {
  return wwn_cim_get_switch_wwn_from_port_wwn(5, &out, &wwn);
});
BENCHMARK_CAPTURE(apply, PortFromSwitch_qlogic, kQlogicSwitch,
                  [](const wwn_& wwn, wwn_& out) { return wwn_cim_get_port_wwn(7, &out, &wwn); });
BENCHMARK_CAPTURE(apply, IndexFromPort_qlogic, kQlogicSwitch, [](const wwn_& wwn, wwn_&) {
  uint32_t index = 0;
  return wwn_cim_get_port_index_from_wwn_hex(&index, wwn.bytes, 0) + static_cast<int>(index);
});
BENCHMARK_CAPTURE(apply, SameWwn, kMakerPort, [](const wwn_& wwn, wwn_&) {
  return wwn_cim_is_same_wwn_hex(wwn.bytes, kMakerPort.bytes);
});

// These two ask the platform for the place of the port.
BENCHMARK_CAPTURE(apply, PortFromSwitch_maker, kMakerSwitch, [](const wwn_& wwn, wwn_& out) {
  uint32_t if_index = 0;
  wwn_cim_get_port_index_from_wwn_hex(&if_index, kMakerPort.bytes, 0);
  return wwn_cim_get_port_wwn(if_index, &out, &wwn);
});
BENCHMARK_CAPTURE(apply, IndexFromPort_maker, kMakerPort, [](const wwn_& wwn, wwn_&) {
  uint32_t index = 0;
  return wwn_cim_get_port_index_from_wwn_hex(&index, wwn.bytes, 0) + static_cast<int>(index);
});

}  // namespace

// Enumerating ports, their statistics, devices and links over growing fabrics: reading the records
// and building what a provider returns of each, with a broker that does nothing. The last lines of
// each give the growth: linear, or worse.
#include <benchmark/benchmark.h>
#include <cim_utils/cmpi_ports.h>
#include <cim_utils/fspf.h>
#include <cim_utils/name_server.h>
#include <cim_utils/port_manager.h>
#include <cim_utils/vsan.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "bench/generated_fabric.h"
#include "bench/model/null_broker.h"
#include "bench/traces_aside.h"

namespace {

constexpr const char* kNamespace = "root/cimv2";
constexpr const char* kPort = "VEXOR_FCPort";

std::string number(int64_t n) {
  return std::to_string(n);
}

// use(const pm_port_info_*) for every interface of the switch. Result: how many there are.
template <typename Use>
int64_t for_each_port(int32_t q, Use use) {
  int64_t count = 0;
  uint32_t if_index = 0;
  while (pm_port_info_* port = pm_cim_find_interface(0, if_index, q)) {
    if_index = port->if_index;
    use(port);
    std::free(port);
    ++count;
  }
  return count;
}

// use(VSAN number) for every VSAN.
template <typename Use>
void for_each_vsan(int32_t q, Use use) {
  int32_t count = 0;
  vsanNewEntry_t* vsans = nullptr;
  vsan_cim_get_all_vsanEntry(q, &count, &vsans);
  for (int32_t i = 0; i < count; ++i)
    use(vsans[i].vsan_index);
  std::free(vsans);
}

// ---- Ports of the own switch: the argument is their number

// build(const pm_port_info_*) for every port.
template <typename Build>
void enumerate_ports(benchmark::State& state, Build build) {
  const TracesAside aside;
  const int32_t q =
      queue_on("switches=3,vsans=2,devices=20,ports=" + number(state.range(0)), state);
  for (auto _ : state) {
    if (for_each_port(q, build) < state.range(0)) state.SkipWithError("not all ports were read");
  }
  state.SetComplexityN(state.range(0));
}

void AllPorts(benchmark::State& state) {
  const CMPIBroker* broker = null_broker();
  enumerate_ports(state, [broker](const pm_port_info_* port) {
    benchmark::DoNotOptimize(fcport_build_instance_pm(kPort, kNamespace, port, nullptr, broker));
  });
}
BENCHMARK(AllPorts)->RangeMultiplier(2)->Range(48, 768)->Complexity();

void AllPortReferences(benchmark::State& state) {
  const CMPIBroker* broker = null_broker();
  enumerate_ports(state, [broker](const pm_port_info_* port) {
    benchmark::DoNotOptimize(fcport_fill_reference_pm(kNamespace, kPort, port, broker));
  });
}
BENCHMARK(AllPortReferences)->RangeMultiplier(2)->Range(48, 768)->Complexity();

void AllStatistics(benchmark::State& state) {
  const CMPIBroker* broker = null_broker();
  enumerate_ports(state, [broker](const pm_port_info_* port) {
    fcIfAllCounters_t* counters = nullptr;
    if (pm_cim_get_fc_port_counters(mts_q, port->if_index, &counters) != 0) return;
    benchmark::DoNotOptimize(fcport_stat_build_instance("VEXOR_FCPortStatistics", kNamespace,
                                                        counters, nullptr, broker));
    std::free(counters);
  });
}
BENCHMARK(AllStatistics)->RangeMultiplier(2)->Range(48, 768)->Complexity();

// The association of each port with its statistics.
void AllStatisticalData(benchmark::State& state) {
  const CMPIBroker* broker = null_broker();
  enumerate_ports(state, [broker](const pm_port_info_* port) {
    benchmark::DoNotOptimize(
        port_stat_build_instance_pm("VEXOR_FCPortStatisticalData", kNamespace, port, broker));
  });
}
BENCHMARK(AllStatisticalData)->RangeMultiplier(2)->Range(48, 768)->Complexity();

// ---- Devices, and the links between switches

// Both sides of every attachment, as ports and as endpoints: the argument is the number of devices.
void AllDevices(benchmark::State& state) {
  const TracesAside aside;
  const CMPIBroker* broker = null_broker();
  const int32_t q =
      queue_on("switches=10,ports=768,vsans=1,devices=" + number(state.range(0)), state);
  for (auto _ : state) {
    int64_t found = 0;
    for_each_vsan(q, [&](uint32_t vsan) {
      int32_t count = 0;
      ns_api_register_req_* entries = nullptr;
      ns_cim_get_all_nodes_or_ports_in_vsan(q, vsan, 0, &count, &entries);
      for (int32_t i = 0; i < count; ++i) {
        for (const unsigned char fabric_side : {1, 0}) {
          benchmark::DoNotOptimize(fcport_build_instance_ns(kPort, kNamespace, &entries[i], 0,
                                                            fabric_side, nullptr, broker));
          benchmark::DoNotOptimize(pe_build_instance_ns("VEXOR_ProtocolEndPoint", kNamespace,
                                                        &entries[i], fabric_side, nullptr, broker));
        }
      }
      std::free(entries);
      found += count;
    });
    if (found < state.range(0)) state.SkipWithError("not all devices were read");
  }
  state.SetComplexityN(state.range(0));
}
BENCHMARK(AllDevices)->RangeMultiplier(2)->Range(312, 5000)->Complexity();

// Both ends of every link: the argument is the number of switches, and the growth that with the
// number of links.
void AllLinks(benchmark::State& state) {
  const TracesAside aside;
  const CMPIBroker* broker = null_broker();
  const int32_t q = queue_on("ports=16,vsans=1,switches=" + number(state.range(0)), state);
  const uint8_t wwn[8] = {0x20, 0x01, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d};
  int64_t links = 0;
  for (auto _ : state) {
    links = 0;
    for_each_vsan(q, [&](uint32_t vsan) {
      int32_t count = 0;
      fspfLinkEntry* found = nullptr;
      fspf_cim_get_all_fspfLinks_of_vsan(q, vsan, &count, 0, &found);
      for (int32_t i = 0; i < count; ++i) {
        for (const unsigned char local : {1, 0})
          benchmark::DoNotOptimize(fcport_build_instance_fspf_wwn(
              0, kPort, kNamespace, &found[i], wwn, 0, 1, local, nullptr, broker));
      }
      std::free(found);
      links += count;
    });
    if (links == 0) state.SkipWithError("no links were read");
  }
  state.SetComplexityN(links);
}
BENCHMARK(AllLinks)->RangeMultiplier(2)->Range(4, 64)->Complexity();

}  // namespace

// The cost of a description and a builder against a straight-line function that makes the same
// broker calls, traces, key list and host name.
#include <benchmark/benchmark.h>
#include <cim_utils/cmpi_switch.h>
#include <cim_utils/session.h>
#include <cim_utils/vsan.h>

#include <cstdio>
#include <cstring>

#include "bench/model/null_broker.h"
#include "bench/traces_aside.h"

namespace {

vsanNewEntry_t some_vsan() {
  vsanNewEntry_t vsan{};
  vsan.vsan_index = 10;
  vsan.admin_state = 1;
  vsan.load_balancing_type = 2;
  vsan.oper_state = 1;
  std::strcpy(vsan.name, "VSAN0010");
  return vsan;
}

mts_dm_sw_conf_ some_configuration() {
  mts_dm_sw_conf_ conf{};
  conf.enabled = 1;
  conf.vsan_wwn = {{0x20, 0x0a, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2d}};
  return conf;
}

// What somebody would write for this one class and this one face.
[[gnu::noinline]] CMPIInstance* straight_line(const char* cls, const char* ns,
                                              const vsanNewEntry_t* vsan,
                                              const mts_dm_sw_conf_* conf,
                                              const CMPIBroker* broker) {
  char** keys = malloc_char_array(2, 25);
  if (keys == nullptr) return nullptr;
  std::strcpy(keys[0], "Name");
  std::strcpy(keys[1], "CreationClassName");
  std::printf("providerutil:vsan_build_instance() Start\n ");
  CMPIObjectPath* path = broker->eft->newObjectPath(broker, ns, cls, nullptr);
  if (path == nullptr || path->hdl == nullptr) {
    free_char_array(keys);
    return nullptr;
  }
  path->ft->setHostname(path, getCSName());
  CMPIInstance* instance = broker->eft->newInstance(broker, path, nullptr);
  if (instance == nullptr || instance->hdl == nullptr) {
    free_char_array(keys);
    return nullptr;
  }
  const auto set_text = [instance](const char* name, const char* text) {
    instance->ft->setProperty(instance, name, reinterpret_cast<const CMPIValue*>(text), CMPI_chars);
  };
  char name[32];
  if (vsan->admin_state == 1) {
    if (vsan_cim_get_vsan_key(name, vsan->vsan_index, conf) == 0)
      set_text("Name", name);
    else
      std::printf("error during get vsan id\n");
  } else if (vsan->admin_state == 2) {
    std::snprintf(name, sizeof name, "0000000000000000:%d", static_cast<int>(vsan->vsan_index));
    set_text("Name", name);
  }
  set_text("NameFormat", "WWN");
  char element_name[128];
  std::snprintf(element_name, sizeof element_name, "%.127s", vsan->name);
  set_text("ElementName", element_name);
  CMPIValue value{};
  value.uint16 = static_cast<uint16_t>(vsan->vsan_index);
  instance->ft->setProperty(instance, "VsanId", &value, CMPI_uint16);
  set_text("Status", vsan->oper_state == 1 ? "Up" : "Down");
  set_text("CreationClassName", cls);
  if (vsan->load_balancing_type == 1)
    set_text("LoadBalancingType", "src-id/dst-id");
  else if (vsan->load_balancing_type == 2)
    set_text("LoadBalancingType", "src-id/dst-id/ox-id");
  else
    std::printf("load balancing type =%d ", static_cast<int>(vsan->load_balancing_type));
  free_char_array(keys);
  return instance;
}

void StraightLine(benchmark::State& state) {
  const TracesAside aside;
  const CMPIBroker* broker = null_broker();
  const vsanNewEntry_t vsan = some_vsan();
  const mts_dm_sw_conf_ conf = some_configuration();
  for (auto _ : state)
    benchmark::DoNotOptimize(straight_line("VEXOR_Vsan", "root/cimv2", &vsan, &conf, broker));
}
BENCHMARK(StraightLine);

void Builder(benchmark::State& state) {
  const TracesAside aside;
  const CMPIBroker* broker = null_broker();
  const vsanNewEntry_t vsan = some_vsan();
  const mts_dm_sw_conf_ conf = some_configuration();
  for (auto _ : state)
    benchmark::DoNotOptimize(
        vsan_build_instance("VEXOR_Vsan", "root/cimv2", &vsan, &conf, nullptr, broker));
}
BENCHMARK(Builder);

}  // namespace

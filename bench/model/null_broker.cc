#include "bench/model/null_broker.h"

#include <benchmark/benchmark.h>

namespace {

CMPIStatus ok() {
  return {CMPI_RC_OK, nullptr};
}

int anything;
CMPIObjectPathFT path_table{};
CMPIInstanceFT instance_table{};
CMPIArrayFT array_table{};
CMPIObjectPath path{&anything, &path_table};
CMPIInstance instance{&anything, &instance_table};
CMPIArray array{&anything, &array_table};
CMPIBrokerEncFT encapsulation{};
CMPIBroker broker{};

}  // namespace

const CMPIBroker* null_broker() {
  path_table.setHostname = [](auto*, const char* host) {
    benchmark::DoNotOptimize(host);
    return ok();
  };
  path_table.addKey = [](auto*, const char* name, const CMPIValue* value, CMPIType) {
    benchmark::DoNotOptimize(name);
    benchmark::DoNotOptimize(value);
    return ok();
  };
  instance_table.setProperty = [](const CMPIInstance*, const char* name, const CMPIValue* value,
                                  CMPIType) {
    benchmark::DoNotOptimize(name);
    benchmark::DoNotOptimize(value);
    return ok();
  };
  instance_table.setPropertyFilter = [](auto*, const char**, const char**) { return ok(); };
  array_table.setElementAt = [](auto*, CMPICount, const CMPIValue* value, CMPIType) {
    benchmark::DoNotOptimize(value);
    return ok();
  };
  encapsulation.newObjectPath = [](const CMPIBroker*, const char*, const char*, CMPIStatus*) {
    return &path;
  };
  encapsulation.newInstance = [](const CMPIBroker*, const CMPIObjectPath*, CMPIStatus*) {
    return &instance;
  };
  encapsulation.newArray = [](const CMPIBroker*, CMPICount, CMPIType, CMPIStatus*) {
    return &array;
  };
  broker.eft = &encapsulation;
  return &broker;
}

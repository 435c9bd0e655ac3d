// Changes of ports.
#include "tests/provider_sweeps/change_sweep.h"

namespace provider_sweeps {
namespace {

constexpr const char* kPort = "16842753";  // fc1/1

class PortChangeSweeps : public ChangeSweep {
 protected:
  CMPIObjectPath* port() {
    return broker_.path("VEXOR_FCPort",
                        {{"SystemCreationClassName", "VEXOR_PhysicalComputerSystem"},
                         {"SystemName", "2000000DEC0A1B2C"},
                         {"CreationClassName", "VEXOR_FCPort"},
                         {"DeviceID", kPort}});
  }
  CMPIObjectPath* settings() {
    return broker_.path("VEXOR_FCPortSettings", {{"InstanceID", kPort}});
  }
};

TEST_F(PortChangeSweeps, Alias) {
  CMPIInstance* values = broker_.instance("VEXOR_FCPort");
  values->ft->setProperty(values, "ElementName", reinterpret_cast<const CMPIValue*>("changed"),
                          CMPI_chars);
  expect_all_or_nothing(sweep_.modifying(port(), values));
}

TEST_F(PortChangeSweeps, Speed) {
  CMPIInstance* values = broker_.instance("VEXOR_FCPortSettings");
  CMPIValue value{};
  value.uint64 = 1062500000;
  values->ft->setProperty(values, "RequestedSpeed", &value, CMPI_uint64);
  expect_all_or_nothing(sweep_.modifying(settings(), values));
}

TEST_F(PortChangeSweeps, SpeedAndType) {
  CMPIInstance* values = broker_.instance("VEXOR_FCPortSettings");
  CMPIValue value{};
  value.uint64 = 1062500000;
  values->ft->setProperty(values, "RequestedSpeed", &value, CMPI_uint64);
  value.uint16 = 5;
  values->ft->setProperty(values, "RequestedType", &value, CMPI_uint16);
  expect_all_or_nothing(sweep_.modifying(settings(), values));
}

TEST_F(PortChangeSweeps, State) {
  CMPIArgs* in = broker_.arguments();
  CMPIValue value{};
  value.uint16 = 3;
  in->ft->addArg(in, "RequestedState", &value, CMPI_uint16);
  expect_all_or_nothing(sweep_.invoking(port(), "RequestStateChange", in), "uint32 0");
}

}  // namespace
}  // namespace provider_sweeps

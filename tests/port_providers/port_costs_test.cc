// What listing ports costs: exchanges with the switch, which grow with what there is and nothing
// else.
#include "tests/port_providers/port_fixture.h"

namespace {

using namespace port_tests;

class PortCosts : public PortTest {
 protected:
  // Switches of the VSANs in which the own switch's domain manager runs, the VSANs, and the own
  // switch's interfaces.
  struct Size {
    uint64_t vsans = 0;
    uint64_t up = 0;
    uint64_t running = 0;
    uint64_t switches = 0;
    uint64_t interfaces = 0;
  };
  static Size size() {
    Size is;
    const switch_sim::Fabric fabric = control::fabric();
    is.vsans = fabric.vsans.size();
    for (const auto& vsan : fabric.vsans) {
      if (vsan.state != switch_sim::VsanState::up) continue;
      ++is.up;
      uint64_t switches = 0;
      bool runs = false;
      for (const auto& domain : vsan.domains) {
        switches += domain.enabled ? 1 : 0;
        runs = runs || (domain.enabled && domain.switch_wwn == fabric.local_switch);
      }
      if (!runs) continue;
      ++is.running;
      is.switches += switches;
    }
    for (const auto& each : fabric.switches)
      if (each.wwn == fabric.local_switch) is.interfaces = each.interfaces.size();
    return is;
  }

  // The walk over the interfaces: one exchange each, one at the end of each of the six types, and
  // one for the address of the management port.
  static uint64_t of_interfaces(const Size& is) { return is.interfaces + 6 + 1; }
  // The VSANs; in each that is up the list of its switches and one query of the name server; each
  // switch's element and links; one more where no domain manager tells the switches.
  static uint64_t of_fabric(const Size& is) {
    return 1 + is.vsans + 2 * is.up + 2 * is.switches + (is.up - is.running);
  }

  void expect_listing(const char* numbers, uint64_t ports) {
    generate(numbers);
    const Size is = size();
    EXPECT_EQ(is.interfaces, ports + 1);
    EXPECT_EQ(exchanges([&] { names("VEXOR_FCPort"); }), of_interfaces(is) + of_fabric(is))
        << numbers;
  }
};

TEST_F(PortCosts, AFewPortsAndDevices) {
  expect_listing("switches=3,ports=8,vsans=2,devices=6,seed=1", 8);
}

TEST_F(PortCosts, ADeviceMoreCostsNoExchangeMore) {
  expect_listing("switches=3,ports=8,vsans=2,devices=60,seed=1", 8);
}

TEST_F(PortCosts, LargeFabric) {
  expect_listing("switches=50,ports=768,vsans=4,devices=5000,seed=9", 768);
}

TEST_F(PortCosts, AnInstanceCostsItsVsanAndItsOpticsAndAnEPortItsPeer) {
  generate("switches=3,ports=32,vsans=2,devices=40,seed=1");
  const Size is = size();
  uint64_t e_ports = 0;
  uint64_t exchanges_of_all = 0;
  exchanges_of_all = exchanges([&] {
    const auto all = instances("VEXOR_FCPort");
    ASSERT_GT(all.size(), 32u);
    for (size_t i = 0; i < 32; ++i)
      e_ports += value(all[i], "PortType") == "14" ? 1 : 0;
  });
  EXPECT_GT(e_ports, 0u);
  // The devices behind F ports are known from the list. An E port asks for the own domain, its
  // link, and the switch at the other end.
  EXPECT_EQ(exchanges_of_all, of_interfaces(is) + of_fabric(is) + 2 * 32 + 3 * e_ports);
}

TEST_F(PortCosts, StatisticsCostAnExchangeEachBesideTheWalk) {
  generate("switches=2,ports=64,vsans=2,devices=0,seed=1");
  const Size is = size();
  EXPECT_EQ(exchanges([&] { instances("VEXOR_FCPortStatistics"); }), of_interfaces(is) + 64);
  EXPECT_EQ(exchanges([&] { names("VEXOR_FCPortStatisticalData"); }), of_interfaces(is));
}

TEST_F(PortCosts, SettingsAndCapabilitiesCostTheWalk) {
  generate("switches=2,ports=64,vsans=2,devices=0,seed=1");
  const Size is = size();
  EXPECT_EQ(exchanges([&] { instances("VEXOR_FCPortSettings"); }), of_interfaces(is));
  EXPECT_EQ(exchanges([&] { instances("VEXOR_FCPortCapabilities"); }), of_interfaces(is));
}

TEST_F(PortCosts, NodesCostAQueryPerVsan) {
  generate("switches=3,ports=32,vsans=3,devices=40,seed=1");
  const Size is = size();
  EXPECT_EQ(exchanges([&] { instances("VEXOR_LogicalPortGroup"); }), 1 + is.vsans + is.up);
}

TEST_F(PortCosts, AnEndpointOfALinkCostsItsSwitch) {
  generate("switches=3,ports=8,vsans=1,devices=6,seed=1");
  const Size is = size();
  uint64_t ends = 0;
  const uint64_t cost = exchanges([&] {
    for (const std::string& each : names("VEXOR_ProtocolEndPoint"))
      ends += each.find("Name=\"1_") != std::string::npos ? 1 : 0;
  });
  EXPECT_GT(ends, 0u);
  EXPECT_EQ(cost, of_interfaces(is) + of_fabric(is) + ends);
}

}  // namespace

// What ports have counted, and the association with their ports.
#include "tests/port_providers/port_fixture.h"

namespace {

using namespace port_tests;

class PortStatistics : public PortTest {
 protected:
  PortStatistics() { control::freeze_counters(true); }
  static std::string data_path(const char* id) {
    return "root/cimv2:VEXOR_FCPortStatisticalData.ManagedElement=\"" + escaped(port_path(id)) +
           "\",Stats=\"" + escaped(id_path("VEXOR_FCPortStatistics", id)) + "\"";
  }
  static std::string escaped(const std::string& path) {
    std::string result;
    for (const char c : path)
      result += c == '"' ? std::string("\\\"") : std::string(1, c);
    return result;
  }
};

TEST_F(PortStatistics, EveryFibreChannelPortAndChannelHasStatistics) {
  const Texts all = names("VEXOR_FCPortStatistics");
  ASSERT_EQ(all.size(), 17u);
  for (int i = 0; i < 16; ++i)
    EXPECT_EQ(all[static_cast<size_t>(i)],
              id_path("VEXOR_FCPortStatistics", std::to_string(16842753 + i)));
  EXPECT_EQ(all[16], id_path("VEXOR_FCPortStatistics", kChannel));
}

TEST_F(PortStatistics, AreGotByTheInterfaceIndexWithOneExchange) {
  Instance statistics;
  EXPECT_EQ(exchanges([&] { statistics = get(id_path("VEXOR_FCPortStatistics", kFc1)); }), 1u);
  EXPECT_EQ(value(statistics, "ElementName"), "fc1/1");
  EXPECT_EQ(value(statistics, "LIPCount"), "0");
}

TEST_F(PortStatistics, OfAnErrorStormTellItsErrors) {
  const Instance statistics = get(id_path("VEXOR_FCPortStatistics", "16842756"));
  EXPECT_EQ(value(statistics, "LinkFailures").size(), 4u) << value(statistics, "LinkFailures");
}

TEST_F(PortStatistics, OfOtherInterfacesAreNotFound) {
  for (const char* id : {kGigabit, kManagement, kFcip, kIscsi, "16842769", "-1", "x", ""})
    expect_not_found(id_path("VEXOR_FCPortStatistics", id));
}

// The library would ask for those of any port channel.
TEST_F(PortStatistics, OfAnEthernetChannelAreNotAskedFor) {
  EXPECT_EQ(exchanges([&] { expect_not_found(id_path("VEXOR_FCPortStatistics", "67174402")); }),
            0u);
}

TEST_F(PortStatistics, OfAPortThatHasJustVanishedAreLeftOut) {
  fail(switch_sim::kPortCounters, Fault::Kind::status, 0x40350004, 2);
  const Texts all = names("VEXOR_FCPortStatistics");
  ASSERT_EQ(all.size(), 16u);
  EXPECT_EQ(all[1], id_path("VEXOR_FCPortStatistics", "16842755"));
}

TEST_F(PortStatistics, ThatAreNotGivenAreNotFound) {
  for (const auto kind : {Fault::Kind::status, Fault::Kind::without_reply}) {
    fail(switch_sim::kPortCounters, kind, 7);
    expect_not_found(id_path("VEXOR_FCPortStatistics", kFc1));
  }
}

TEST_F(PortStatistics, AreTiedToTheirPorts) {
  const Texts all = names("VEXOR_FCPortStatisticalData");
  ASSERT_EQ(all.size(), 17u);
  EXPECT_EQ(all[0], data_path(kFc1));
  EXPECT_EQ(text(get(data_path(kFc1)).path), data_path(kFc1));
}

TEST_F(PortStatistics, AnAssociationWithThePortOfOtherStatisticsIsNotFound) {
  expect_not_found("root/cimv2:VEXOR_FCPortStatisticalData.ManagedElement=\"" +
                   escaped(port_path(kFc2)) + "\",Stats=\"" +
                   escaped(id_path("VEXOR_FCPortStatistics", kFc1)) + "\"");
}

TEST_F(PortStatistics, AreFoundFromThePortAndThePortFromThem) {
  const cim::host::AssociationFilter filter = {.association_class = "VEXOR_FCPortStatisticalData",
                                               .result_class = "",
                                               .role = "",
                                               .result_role = ""};
  const auto statistics = manager_->associators(path(port_path(kFc1)), filter);
  ASSERT_EQ(statistics.size(), 1u);
  EXPECT_EQ(value(statistics[0], "InstanceID"), kFc1);
  EXPECT_EQ(value(statistics[0], "ElementName"), "fc1/1");
  const auto ports = manager_->associators(path(id_path("VEXOR_FCPortStatistics", kFc1)), filter);
  ASSERT_EQ(ports.size(), 1u);
  EXPECT_EQ(value(ports[0], "DeviceID"), kFc1);
  EXPECT_EQ(value(ports[0], "PeerPortWWN"), "2100001122334401");
}

TEST_F(PortStatistics, OfAPortAreFoundWithoutReadingOtherPorts) {
  // The port, and its counters.
  EXPECT_EQ(exchanges([&] {
              manager_->associators(path(port_path(kFc1)),
                                    {.association_class = "VEXOR_FCPortStatisticalData",
                                     .result_class = "",
                                     .role = "",
                                     .result_role = ""});
            }),
            2u);
}

TEST_F(PortStatistics, PortsOfLinksAndDevicesHaveNone) {
  for (const std::string& port :
       {port_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F", "VEXOR_LogicalComputerSystem"),
        port_path("3_2100001122334401", "unknown system")})
    EXPECT_TRUE(
        manager_
            ->associator_names(path(port), {.association_class = "VEXOR_FCPortStatisticalData",
                                            .result_class = "",
                                            .role = "",
                                            .result_role = ""})
            .empty())
        << port;
}

}  // namespace

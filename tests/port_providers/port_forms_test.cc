// The forms in which ports and endpoints are known: each is listed once and answers get.
#include <set>

#include "tests/port_providers/port_fixture.h"

namespace {

using namespace port_tests;

constexpr int kTimedOut = 62;

class PortForms : public PortTest {
 protected:
  // What is listed is listed once, and is got under the same path.
  void expect_each_once(const char* class_name) {
    const Texts all = names(class_name);
    EXPECT_FALSE(all.empty()) << class_name;
    EXPECT_EQ(std::set<std::string>(all.begin(), all.end()).size(), all.size()) << class_name;
    for (const std::string& each : all)
      EXPECT_EQ(text(get(each).path), each);
  }
};

constexpr const char* kLogical = "VEXOR_LogicalComputerSystem";
constexpr const char* kClasses[] = {"VEXOR_FCPort",           "VEXOR_EthernetPort",
                                    "VEXOR_ProtocolEndPoint", "VEXOR_LogicalPortGroup",
                                    "VEXOR_FCPortStatistics", "VEXOR_FCPortStatisticalData"};

TEST_F(PortForms, EveryPortEndpointAndGroupIsListedOnceAndGot) {
  for (const char* cls : kClasses)
    expect_each_once(cls);
}

TEST_F(PortForms, EveryPortEndpointAndGroupOfGeneratedFabricsIsListedOnceAndGot) {
  for (const char* numbers : {"switches=5,ports=8,vsans=6,devices=30,seed=3",
                              "switches=1,ports=4,vsans=1,devices=9,seed=4",
                              "switches=9,ports=4,vsans=20,devices=4,seed=5"}) {
    generate(numbers);
    for (const char* cls : {"VEXOR_FCPort", "VEXOR_EthernetPort", "VEXOR_ProtocolEndPoint"})
      expect_each_once(cls);
  }
}

TEST_F(PortForms, ASwitchWithoutInterfacesHasNone) {
  generate("switches=2,ports=0,vsans=2,seed=1");
  for (const char* cls : kClasses)
    EXPECT_EQ(names(cls), Texts{}) << cls;
}

// ---- links ----

TEST_F(PortForms, ALinkHasAPortInItsVsanAndAPortOfItsDeviceAtEachEnd) {
  const Texts all = names("VEXOR_FCPort");
  const Texts expected = {port_path("1_1_97_1_0_16842754", "2001000DEC0A1B2D", kLogical),
                          port_path("2000000DEC0A1B2C_16842754_1", "2000000DEC0A1B2C"),
                          port_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F", kLogical),
                          port_path("2000000DEC0A1B5E_16842754_1", "2000000DEC0A1B5E")};
  ASSERT_GT(all.size(), 21u);
  EXPECT_EQ(Texts(all.begin() + 17, all.begin() + 21), expected);
}

TEST_F(PortForms, ATrunkHasAPortInEachVsanAndOneOfItsDevice) {
  const Texts all = names("VEXOR_FCPort");
  const std::set<std::string> listed(all.begin(), all.end());
  EXPECT_TRUE(listed.contains(port_path("4_1_97_1_0_67108865", "2001000DEC0A1B2D", kLogical)));
  EXPECT_TRUE(listed.contains(port_path("4_2_21_1_0_67108865", "2002000DEC0A1B2D", kLogical)));
  EXPECT_TRUE(listed.contains(port_path("2000000DEC0A1B2C_67108865_4")));
}

TEST_F(PortForms, APortOfALinkShowsItsSwitchsInterface) {
  const Instance port = get(port_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F", kLogical));
  EXPECT_EQ(value(port, "ElementName"), "fc1/2");
  EXPECT_EQ(value(port, "PermanentAddress"), "2042000DEC0A1B5E");
  EXPECT_EQ(value(port, "VsanId"), "1");
  EXPECT_EQ(value(port, "PortType"), "14");
  EXPECT_EQ(value(port, "PortNumber"), "1");
}

TEST_F(PortForms, APortOfALinkIsAskedOfItsOwnSwitch) {
  // FSPF for the link, the domain manager for the switch.
  EXPECT_EQ(exchanges([&] { get(port_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F", kLogical)); }),
            2u);
}

TEST_F(PortForms, APortOfADeviceIsAskedOfItsOwnSwitchInEachVsan) {
  // The two VSANs and the end of their list; the switch's element and links in each.
  EXPECT_EQ(exchanges([&] { get(port_path("2000000DEC0A1B5E_16842754_1", "2000000DEC0A1B5E")); }),
            3u + 2u + 2u);
}

TEST_F(PortForms, NamesOfNoLinkAreNotFound) {
  for (const char* id :
       {"1_1_98_1_0_16842755", "1_1_99_1_0_16842754", "1_3_98_1_0_16842754", "1_1_98_1_0",
        "1_1_98_2_0_16842754", "4_1_98_1_0_16842754", "1_1_98_1_0_16842754_", "_", "1_", "1_1",
        "1_-1_98_1_0_16842754", "1_4294967297_98_1_0_16842754", "9_1_98_1_0_16842754", "x_y_z"})
    expect_not_found(port_path(id, "2001000DEC0A1B5F", kLogical));
  expect_not_found(port_path("1_1_98_1_0_16842754", "2001000DEC0A1B2D", kLogical));
  for (const char* id :
       {"2000000DEC0A1B5E_16842755_1", "2000000DEC0A1B5E_16842754_4", "2000000DEC0A1B5E_16842754",
        "2000000DEC0A1B5E_", "2000000DEC0A1B5F_16842754_1", "200000DEC0A1B5E_16842754_1",
        "2000000dec0a1b5e_16842754_1"})
    expect_not_found(port_path(id, "2000000DEC0A1B5E"));
}

TEST_F(PortForms, ASwitchWhoseLinksAreNotToldIsKnownByTheirFarEnds) {
  const Texts whole = names("VEXOR_FCPort");
  fail(switch_sim::kLinkStateRecord, Fault::Kind::status, 1, 2);  // of switch-2 in VSAN 1
  const Texts part = names("VEXOR_FCPort");
  const std::set<std::string> listed(part.begin(), part.end());
  EXPECT_EQ(listed, std::set<std::string>(whole.begin(), whole.end()));
}

TEST_F(PortForms, APortIsGotFromTheFarEndWhereItsSwitchDoesNotTellItsLinks) {
  fail(switch_sim::kLinkStateRecord, Fault::Kind::status, 1, 1);
  const std::string far = port_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F", kLogical);
  EXPECT_EQ(text(get(far).path), far);
  fail(switch_sim::kLinkStateRecord, Fault::Kind::status, 1, 1);
  const std::string device = port_path("2000000DEC0A1B5E_16842754_1", "2000000DEC0A1B5E");
  EXPECT_EQ(text(get(device).path), device);
}

TEST_F(PortForms, WithoutTheConfigurationServerTheLinksCannotBeListed) {
  fail(1401, Fault::Kind::error, kTimedOut);
  for (const char* cls : {"VEXOR_FCPort", "VEXOR_ProtocolEndPoint"})
    expect_error(CMPI_RC_ERR_FAILED,
                 "the fabric configuration server does not give the switches of VSAN 1",
                 [&] { names(cls); });
}

TEST_F(PortForms, WithoutTheVsanManagerPortsCannotBeListed) {
  fail(125, Fault::Kind::error, kTimedOut);
  for (const char* cls : {"VEXOR_FCPort", "VEXOR_ProtocolEndPoint", "VEXOR_LogicalPortGroup"})
    expect_error(CMPI_RC_ERR_FAILED, "the VSAN manager does not give its VSANs",
                 [&] { names(cls); });
}

TEST_F(PortForms, AVsanWithoutADomainManagerOnTheOwnSwitchHasNoLinksAndNoSwitches) {
  switch_sim::Fabric fabric = control::fabric();
  for (auto& domain : fabric.vsans.at(1).domains)
    if (domain.switch_wwn == fabric.local_switch) {
      domain.enabled = false;
      domain.domain_id = 0;
    }
  ASSERT_EQ(control::install(fabric), std::nullopt);
  for (const std::string& each : names("VEXOR_FCPort")) {
    EXPECT_EQ(each.find("SystemName=\"2002"), std::string::npos) << each;
    EXPECT_EQ(text(get(each).path), each);
  }
  EXPECT_EQ(names("VEXOR_LogicalComputerSystem").size(), 3u);
  EXPECT_EQ(names("VEXOR_Component").size(), 3u);
}

// ---- endpoints ----

TEST_F(PortForms, AnOwnPortsEndpointGoesByItsWwn) {
  const std::string endpoint = endpoint_path("2041000DEC0A1B2C", kOwnWwn);
  EXPECT_EQ(names("VEXOR_ProtocolEndPoint").front(), endpoint);
  Instance found;
  EXPECT_EQ(exchanges([&] { found = get(endpoint); }), 1u);
  EXPECT_EQ(value(found, "ProtocolIFType"), "56");
}

TEST_F(PortForms, ChannelsAndFcipAndIscsiInterfacesHaveEndpointsToo) {
  for (const char* wwn : {"2402000DEC0A1B2C", "2801000DEC0A1B2C", "2081000DEC0A1B2C"})
    EXPECT_EQ(value(get(endpoint_path(wwn, kOwnWwn)), "Name"), wwn);
}

TEST_F(PortForms, ALinkHasAnEndpointAtEachEndInEachVsan) {
  for (const std::string& endpoint : {endpoint_path("1_1_97_1_0_16842754", "2001000DEC0A1B2D"),
                                      endpoint_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F"),
                                      endpoint_path("10_2_22_1_0_167772161", "2002000DEC0A1B5F")})
    EXPECT_EQ(text(get(endpoint).path), endpoint);
}

TEST_F(PortForms, AnAttachmentHasTwoEndpointsNamedByTheDevice) {
  for (const std::string& endpoint :
       {endpoint_path("2_1_2100001122334401", ""), endpoint_path("3_1_2100001122334401", ""),
        endpoint_path("11_1_2100001122334451", ""), endpoint_path("27_1_2100001122334451", "")}) {
    EXPECT_EQ(exchanges([&] { EXPECT_EQ(text(get(endpoint).path), endpoint); }), 1u);
  }
}

TEST_F(PortForms, NamesOfNoEndpointAreNotFound) {
  for (const char* name :
       {"2041000DEC0A1B5E", "2041000dec0a1b2c", "0202010A1B2C0000", "1_1_97_1_0_16842755",
        "2_2_2100001122334401", "2_1_2041000DEC0A1B2C", "none", "", "_"})
    expect_not_found(endpoint_path(name, kOwnWwn));
}

}  // namespace

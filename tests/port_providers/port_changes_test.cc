// Changes of ports: alias, speed, type and state, and what is refused.
#include "tests/port_providers/port_fixture.h"

namespace {

using namespace port_tests;

constexpr int32_t kRefused = 0x40350007;
constexpr int kTimedOut = 62;

class PortChanges : public PortTest {
 protected:
  void set_alias(const std::string& of, const std::string& alias) {
    modify(of, {{"ElementName", Data::string(alias)}});
  }
  std::string alias(const std::string& of) { return value(get(of), "Description"); }

  static std::string settings(const char* id) { return id_path("VEXOR_FCPortSettings", id); }
  static cim::host::NamedData speed(uint64_t bits_per_second) {
    return {"RequestedSpeed", Data::of(CMPI_uint64, bits_per_second)};
  }
  static cim::host::NamedData type(uint64_t number) {
    return {"RequestedType", Data::of(CMPI_uint16, number)};
  }
  static cim::host::NamedData auto_sense(bool on) { return {"AutoSenseSpeed", Data::boolean(on)}; }
  // AutoSenseSpeed, RequestedSpeed and RequestedType.
  std::string set_to(const char* id) {
    const Instance is = get(settings(id));
    return value(is, "AutoSenseSpeed") + " " + value(is, "RequestedSpeed") + " " +
           value(is, "RequestedType");
  }
  static std::string fabric() { return control::fabric_text(); }
};

// ---- alias ----

TEST_F(PortChanges, ElementNameSetsTheAliasWhichDescriptionShows) {
  set_alias(port_path(kFc1), "host-z");
  const Instance port = get(port_path(kFc1));
  EXPECT_EQ(value(port, "ElementName"), "fc1/1");
  EXPECT_EQ(value(port, "Description"), "host-z");
}

TEST_F(PortChanges, AnEthernetPortHasAnAliasToo) {
  set_alias(ethernet_path(kManagement, "mgmt0"), "to the management network");
  EXPECT_EQ(alias(ethernet_path(kManagement, "mgmt0")), "to the management network");
}

TEST_F(PortChanges, AnEmptyElementNameTakesTheAliasAway) {
  set_alias(port_path(kFc1), "");
  EXPECT_EQ(alias(port_path(kFc1)), "fc1/1");
}

TEST_F(PortChanges, TheNameOfTheInterfaceSentBackIsNoChange) {
  const std::string before = fabric();
  EXPECT_EQ(exchanges(switch_sim::kPortAttribute, [&] { set_alias(port_path(kFc1), "fc1/1"); }),
            0u);
  EXPECT_EQ(fabric(), before);
}

TEST_F(PortChanges, AnAliasHasUpTo81Characters) {
  const std::string longest(81, 'x');
  set_alias(port_path(kFc1), longest);
  EXPECT_EQ(alias(port_path(kFc1)), longest);
  expect_error(CMPI_RC_ERR_INVALID_PARAMETER,
               "ElementName has 82 characters: the alias of a port has at most 81",
               [&] { set_alias(port_path(kFc1), std::string(82, 'y')); });
  EXPECT_EQ(alias(port_path(kFc1)), longest);
}

TEST_F(PortChanges, FcipAndIscsiInterfacesHaveNoAlias) {
  expect_error(CMPI_RC_ERR_NOT_SUPPORTED, "fcip1 has no alias: it is an FCIP or iSCSI interface",
               [&] { set_alias(ethernet_path(kFcip, "fcip1"), "x"); });
  expect_error(CMPI_RC_ERR_NOT_SUPPORTED, "iscsi2/1 has no alias: it is an FCIP or iSCSI interface",
               [&] { set_alias(ethernet_path(kIscsi, "iscsi2/1"), "x"); });
}

TEST_F(PortChanges, OnlyTheOwnSwitchsPortsAreModified) {
  const std::string before = fabric();
  for (const std::string& port :
       {port_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F", "VEXOR_LogicalComputerSystem"),
        port_path("2000000DEC0A1B2C_16842754_1"),
        port_path("3_2100001122334401", "unknown system")})
    expect_error(CMPI_RC_ERR_NOT_SUPPORTED,
                 "only the own switch's ports, whose DeviceID is a number, can be modified",
                 [&] { set_alias(port, "x"); });
  EXPECT_EQ(fabric(), before);
}

TEST_F(PortChanges, OtherPropertiesOfAPortCannotBeChanged) {
  const std::string before = fabric();
  expect_error(CMPI_RC_ERR_INVALID_PARAMETER, "\"VsanId\" of a VEXOR_FCPort cannot be changed",
               [&] {
                 modify(port_path(kFc1), {{"ElementName", Data::string("x")},
                                          {"VsanId", Data::of(CMPI_uint16, uint64_t{2})}});
               });
  EXPECT_EQ(fabric(), before);
}

TEST_F(PortChanges, ARefusedAliasIsAnErrorAndChangesNothing) {
  const std::string before = fabric();
  fail(switch_sim::kPortAttribute, Fault::Kind::status, kRefused);
  expect_error(CMPI_RC_ERR_FAILED,
               "the port manager refuses the alias of fc1/1 (status 1077215239)",
               [&] { set_alias(port_path(kFc1), "x"); });
  EXPECT_EQ(fabric(), before);
}

// ---- speed and type ----

TEST_F(PortChanges, ASpeedIsSet) {
  modify(settings(kFc1), {speed(1062500000)});
  EXPECT_EQ(set_to(kFc1), "false 1062500000 17001");
  modify(settings(kFc1), {speed(2125000000)});
  EXPECT_EQ(set_to(kFc1), "false 2125000000 17001");
}

TEST_F(PortChanges, Speed0IsThatOfTheOtherEnd) {
  modify(settings(kFc1), {speed(1062500000)});
  modify(settings(kFc1), {speed(0)});
  EXPECT_EQ(set_to(kFc1), "true 0 17001");
}

TEST_F(PortChanges, AutoSenseTakesTheSpeedAway) {
  modify(settings(kFc1), {auto_sense(false), speed(1062500000)});
  EXPECT_EQ(set_to(kFc1), "false 1062500000 17001");
  modify(settings(kFc1), {auto_sense(true)});
  EXPECT_EQ(set_to(kFc1), "true 0 17001");
}

TEST_F(PortChanges, AutoSenseAndASpeedContradictEachOther) {
  const std::string before = fabric();
  expect_error(
      CMPI_RC_ERR_INVALID_PARAMETER,
      "AutoSenseSpeed is true and RequestedSpeed 1062500000: a port senses its speed or has "
      "one",
      [&] {
        modify(settings(kFc1), {auto_sense(true), speed(1062500000)});
      });
  expect_error(CMPI_RC_ERR_INVALID_PARAMETER,
               "AutoSenseSpeed is false: RequestedSpeed has to tell the speed, 1062500000 or "
               "2125000000",
               [&] { modify(settings(kFc1), {auto_sense(false)}); });
  EXPECT_EQ(fabric(), before);
}

TEST_F(PortChanges, SpeedsThatPortsDoNotHaveAreRefusedBeforeAnythingIsSent) {
  for (const uint64_t other : {uint64_t{1}, uint64_t{4250000000}, ~uint64_t{0}})
    EXPECT_EQ(exchanges(switch_sim::kPortAttribute,
                        [&] {
                          expect_error(CMPI_RC_ERR_INVALID_PARAMETER,
                                       "RequestedSpeed is " + std::to_string(other) +
                                           ", not 0, 1062500000 or 2125000000",
                                       [&] { modify(settings(kFc1), {speed(other)}); });
                        }),
              0u);
}

TEST_F(PortChanges, EveryTypeOfTheCapabilitiesIsSet) {
  for (const uint64_t each : {4, 5, 6, 17002, 17016, 17064, 17001}) {
    modify(settings(kFc9), {type(each)});
    EXPECT_EQ(set_to(kFc9), "true 0 " + std::to_string(each));
  }
}

TEST_F(PortChanges, TypesThatPortsDoNotHaveAreRefusedBeforeAnythingIsSent) {
  for (const uint64_t other : {0, 1, 7, 16004, 17000, 17003, 65535})
    EXPECT_EQ(exchanges(switch_sim::kPortAttribute,
                        [&] {
                          expect_error(CMPI_RC_ERR_INVALID_PARAMETER,
                                       "RequestedType is " + std::to_string(other) +
                                           ", not 4, 5, 6, 17001, 17002, 17016 or 17064",
                                       [&] {
                                         modify(settings(kFc9), {speed(1062500000), type(other)});
                                       });
                        }),
              0u);
}

TEST_F(PortChanges, SettingsSentBackAsTheyWereReadAreNoChange) {
  const Instance read = get(settings(kFc1));
  EXPECT_EQ(exchanges(switch_sim::kPortAttribute,
                      [&] {
                        modify(settings(kFc1),
                               {*cim::host::find_named(read.properties, "ElementName"), speed(0),
                                auto_sense(true), type(17001)});
                      }),
            0u);
}

TEST_F(PortChanges, ThePortManagersRefusalIsAnErrorAndChangesNothing) {
  const std::string before = fabric();
  // A member of a channel keeps what it joined with.
  expect_error(CMPI_RC_ERR_FAILED, "the port manager refuses the speed of fc1/5 (status ",
               [&] { modify(settings(kFc5), {speed(1062500000)}); });
  expect_error(CMPI_RC_ERR_FAILED, "the port manager refuses the type of fc1/5 (status ",
               [&] { modify(settings(kFc5), {type(5)}); });
  expect_error(CMPI_RC_ERR_FAILED, "the port manager refuses the speed of port-channel 1 (status ",
               [&] { modify(settings(kChannel), {speed(1062500000)}); });
  EXPECT_EQ(fabric(), before);
}

TEST_F(PortChanges, WhenTheTypeIsRefusedTheSpeedGetsItsOldValueBack) {
  modify(settings(kFc9), {speed(2125000000)});
  const std::string before = fabric();
  fail(switch_sim::kPortAttribute, Fault::Kind::status, kRefused, 2);
  expect_error(CMPI_RC_ERR_FAILED, "the port manager refuses the type of fc1/9 (status ", [&] {
    modify(settings(kFc9), {speed(1062500000), type(5)});
  });
  EXPECT_EQ(fabric(), before);
}

TEST_F(PortChanges, ASpeedThatCannotBeTakenBackIsTold) {
  std::vector<Fault> faults(2);
  for (uint32_t i = 0; i < 2; ++i) {
    faults[i].opcode = switch_sim::kPortAttribute;
    faults[i].nth = i + 2;
    faults[i].value = kRefused;
  }
  control::set_faults(faults);
  expect_error(CMPI_RC_ERR_FAILED, "and keeps the new speed", [&] {
    modify(settings(kFc9), {speed(1062500000), type(5)});
  });
  control::set_faults({});
  EXPECT_EQ(set_to(kFc9), "false 1062500000 17001");
}

TEST_F(PortChanges, AChangeThatTimesOutIsAnError) {
  fail(switch_sim::kPortAttribute, Fault::Kind::error, kTimedOut);
  expect_error(CMPI_RC_ERR_FAILED, "the port manager refuses the speed of fc1/1 (status ",
               [&] { modify(settings(kFc1), {speed(1062500000)}); });
}

// ---- state ----

TEST_F(PortChanges, RequestStateChangeDisablesAndEnablesAPort) {
  EXPECT_EQ(request_state(port_path(kFc1), 3), "0");
  EXPECT_EQ(value(get(port_path(kFc1)), "EnabledState"), "3");
  EXPECT_EQ(request_state(port_path(kFc1), 2), "0");
  EXPECT_EQ(value(get(port_path(kFc1)), "EnabledState"), "2");
}

TEST_F(PortChanges, RequestStateChangeDisablesAnEthernetPort) {
  EXPECT_EQ(request_state(ethernet_path(kGigabit, "gigabitethernet2/1"), 3), "0");
  EXPECT_EQ(value(get(ethernet_path(kGigabit, "gigabitethernet2/1")), "EnabledState"), "3");
}

TEST_F(PortChanges, OtherStatesAreInvalidParameters) {
  for (const uint16_t state : {0, 1, 4, 5, 9, 65535})
    EXPECT_EQ(request_state(port_path(kFc1), state), "5") << state;
}

TEST_F(PortChanges, AChannelsStateIsNotItsOwn) {
  EXPECT_EQ(request_state(port_path(kChannel), 3), "1");
}

TEST_F(PortChanges, PortsOfOtherSwitchesAndDevicesHaveNoStateToChange) {
  const std::string before = fabric();
  EXPECT_EQ(request_state(port_path("2000000DEC0A1B5E_16842754_1", "2000000DEC0A1B5E"), 3), "1");
  EXPECT_EQ(request_state(port_path("2_2041000DEC0A1B2C", "unknown system"), 3), "1");
  EXPECT_EQ(fabric(), before);
}

TEST_F(PortChanges, ARefusedStateIsAnErrorAndChangesNothing) {
  const std::string before = fabric();
  fail(switch_sim::kPortAttribute, Fault::Kind::status, kRefused);
  EXPECT_EQ(request_state(port_path(kFc1), 3), "2");
  fail(switch_sim::kPortAttribute, Fault::Kind::error, kTimedOut);
  EXPECT_EQ(request_state(port_path(kFc1), 3), "2");
  EXPECT_EQ(fabric(), before);
}

TEST_F(PortChanges, AStateThatThePortDoesNotTakeIsAnError) {
  // The exchange succeeds without an answer; the port stays as it is.
  fail(switch_sim::kPortAttribute, Fault::Kind::status, 0);
  EXPECT_EQ(request_state(port_path(kFc1), 3), "2");
  EXPECT_EQ(value(get(port_path(kFc1)), "EnabledState"), "2");
}

// It may have been taken out of the switch: nobody can tell whether it took the state.
TEST_F(PortChanges, AStateOfAPortThatCannotBeReadAfterwardsIsAnError) {
  for (const auto kind : {Fault::Kind::status, Fault::Kind::without_reply, Fault::Kind::error}) {
    fail(switch_sim::kPortConfiguration, kind, kTimedOut, 2);
    EXPECT_EQ(request_state(port_path(kFc1), 3), "2");
    control::set_faults({});
  }
}

TEST_F(PortChanges, OtherMethodsAndClassesAreRefused) {
  expect_error(CMPI_RC_ERR_METHOD_NOT_FOUND, "", [&] {
    manager_->invoke_method(path(id_path("VEXOR_FCPortSettings", kFc1)), "RequestStateChange", {});
  });
  expect_error(
      CMPI_RC_ERR_NOT_SUPPORTED, "instances of VEXOR_FCPortCapabilities cannot be modified", [&] {
        modify(id_path("VEXOR_FCPortCapabilities", kFc1), {{"ElementName", Data::string("x")}});
      });
}

}  // namespace

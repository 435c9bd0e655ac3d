// Changes of VSANs, of the switch's settings and of its name: what is sent, and what is refused.
#include <functional>

#include "tests/providers/provider_fixture.h"

namespace {

using namespace provider_tests;
using test_support::Bytes;
using test_support::HeapLedger;
using test_support::Record;
using Changes = std::vector<SwitchDouble::Change>;

constexpr int32_t kRefused = 0x40330009;  // 1077084169

// The change of the domain manager's configuration in VSAN 1.
Record domain_change(uint32_t mask) {
  return Record(1152).be32(0, 1).be32(4, 1).host32(348, mask);
}

Bytes new_name(const char* name) {
  return Record(260).text(0, name);
}

class ProviderChanges : public ProviderFixture {
 protected:
  CMPIObjectPath* settings_path() {
    return broker_.path("VEXOR_FCSwitchSettings", {{"InstanceID", "2000000DEC0A1B2C"}});
  }
  CMPIObjectPath* switch_path(const char* wwn = "2000000DEC0A1B2C") {
    return broker_.path("VEXOR_PhysicalComputerSystem",
                        {{"Name", wwn}, {"CreationClassName", "VEXOR_PhysicalComputerSystem"}});
  }
  CMPIInstance* settings() { return broker_.instance("VEXOR_FCSwitchSettings"); }
  static CMPIInstance* set(CMPIInstance* instance, const char* name, uint16_t value) {
    CMPIValue number{};
    number.uint16 = value;
    instance->ft->setProperty(instance, name, &number, CMPI_uint16);
    return instance;
  }
  static CMPIInstance* set(CMPIInstance* instance, const char* name, bool value) {
    CMPIValue truth{};
    truth.boolean = value ? 1 : 0;
    instance->ft->setProperty(instance, name, &truth, CMPI_boolean);
    return instance;
  }
  static CMPIInstance* set(CMPIInstance* instance, const char* name, const char* value) {
    instance->ft->setProperty(instance, name, reinterpret_cast<const CMPIValue*>(value),
                              CMPI_chars);
    return instance;
  }
  CMPIInstance* named(const char* name) {
    return set(broker_.instance("VEXOR_PhysicalComputerSystem"), "ElementName", name);
  }
  CMPIArgs* requested(uint16_t state) {
    CMPIArgs* in = broker_.arguments();
    CMPIValue value{};
    value.uint16 = state;
    in->ft->addArg(in, "requestedstate", &value, CMPI_uint16);
    return in;
  }
  Outcome request_state(const CMPIArgs* in) {
    return invoke(vsan_path("2002000DEC0A1B2D"), "RequestStateChange", in, broker_.arguments());
  }
  void expect_refused(const Outcome& answer, CMPIrc code, const char* message) {
    EXPECT_EQ(answer.code, code);
    EXPECT_EQ(answer.message, message);
    EXPECT_TRUE(switch_.changes().empty());
  }

  // VSAN 2 as the double gives it, with another administrative state.
  static Bytes vsan_change(uint32_t state) {
    return Record(2632)
        .be32(520, 2)
        .be32(528, state)
        .be32(544, 2)
        .be32(552, 1)
        .text(556, "VSAN0002");
  }
};

// ---- RequestStateChange ----

TEST_F(ProviderChanges, RequestedState2MakesAVsanActive) {
  const Outcome answer = request_state(requested(2));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.data, (Texts{"uint32 0"}));
  EXPECT_EQ(switch_.changes(), (Changes{{149, vsan_change(1)}}));
}

TEST_F(ProviderChanges, RequestedState3SuspendsAVsan) {
  EXPECT_EQ(request_state(requested(3)).returned.data, (Texts{"uint32 0"}));
  EXPECT_EQ(switch_.changes(), (Changes{{149, vsan_change(2)}}));
}

TEST_F(ProviderChanges, AStateChangeHasNoJob) {
  CMPIArgs* out = broker_.arguments();
  EXPECT_EQ(invoke(vsan_path("2002000DEC0A1B2D"), "requeststatechange", requested(3), out).code,
            CMPI_RC_OK);
  CMPIStatus status{};
  out->ft->getArg(out, "Job", &status);
  EXPECT_NE(status.rc, CMPI_RC_OK);
}

TEST_F(ProviderChanges, AnotherStateIsAnInvalidParameter) {
  for (const uint16_t state : {0, 1, 4, 5, 6, 11, 32, 65535})
    EXPECT_EQ(request_state(requested(state)).returned.data, (Texts{"uint32 5"})) << state;
  EXPECT_EQ(request_state(broker_.arguments()).returned.data, (Texts{"uint32 5"}));
  EXPECT_EQ(request_state(nullptr).returned.data, (Texts{"uint32 5"}));
  EXPECT_TRUE(switch_.changes().empty());
}

TEST_F(ProviderChanges, AStateThatTheVsanManagerRefusesIsAnUnspecifiedError) {
  switch_.answer_changes(kRefused);
  const Outcome answer = request_state(requested(3));
  EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
  EXPECT_EQ(answer.returned.data, (Texts{"uint32 2"}));
}

TEST_F(ProviderChanges, AVsanThatDoesNotExistHasNoStateToChange) {
  const Outcome answer = invoke(vsan_path("2009000DEC0A1B2D"), "RequestStateChange", requested(3),
                                broker_.arguments());
  expect_refused(answer, CMPI_RC_ERR_NOT_FOUND, "there is no such VEXOR_Vsan");
}

// ---- the switch's settings ----

TEST_F(ProviderChanges, EveryPrincipalPriorityIsSentAsItsNumber) {
  switch_.configure(33, 2, 7);
  EXPECT_EQ(modify(settings_path(), set(settings(), "PrincipalPriority", uint16_t{2})).code,
            CMPI_RC_OK);
  EXPECT_EQ(modify(settings_path(), set(settings(), "principalpriority", uint16_t{3})).code,
            CMPI_RC_OK);
  switch_.configure(33, 2, 1);
  EXPECT_EQ(modify(settings_path(), set(settings(), "PrincipalPriority", uint16_t{4})).code,
            CMPI_RC_OK);
  EXPECT_EQ(switch_.changes(), (Changes{{264, domain_change(32).byte(337, 1)},
                                        {264, domain_change(32).byte(337, 254)},
                                        {264, domain_change(32).byte(337, 128)}}));
}

TEST_F(ProviderChanges, ADomainIdKeepsWhetherItIsLocked) {
  switch_.configure(33, 1, 128);
  EXPECT_EQ(modify(settings_path(), set(settings(), "PreferredDomainID", uint16_t{239})).code,
            CMPI_RC_OK);
  switch_.configure(33, 2, 128);
  EXPECT_EQ(modify(settings_path(), set(settings(), "PreferredDomainID", uint16_t{1})).code,
            CMPI_RC_OK);
  EXPECT_EQ(switch_.changes(), (Changes{{264, domain_change(512).byte(332, 239).byte(333, 1)},
                                        {264, domain_change(512).byte(332, 1).byte(333, 2)}}));
}

TEST_F(ProviderChanges, LockingKeepsTheDomainId) {
  EXPECT_EQ(modify(settings_path(), set(settings(), "DomainIDLocked", true)).code, CMPI_RC_OK);
  switch_.configure(33, 1, 128);
  EXPECT_EQ(modify(settings_path(), set(settings(), "DomainIDLocked", false)).code, CMPI_RC_OK);
  EXPECT_EQ(switch_.changes(), (Changes{{264, domain_change(512).byte(332, 33).byte(333, 1)},
                                        {264, domain_change(512).byte(332, 33).byte(333, 2)}}));
}

TEST_F(ProviderChanges, AllSettingsAreChangedWithTwoRequests) {
  CMPIInstance* values = set(settings(), "PreferredDomainID", uint16_t{40});
  set(values, "DomainIDLocked", true);
  set(values, "PrincipalPriority", uint16_t{2});
  EXPECT_EQ(modify(settings_path(), values).code, CMPI_RC_OK);
  EXPECT_EQ(switch_.changes(), (Changes{{264, domain_change(32).byte(337, 1)},
                                        {264, domain_change(512).byte(332, 40).byte(333, 1)}}));
}

TEST_F(ProviderChanges, WhatIsSentBackAsItWasReadIsNoChange) {
  CMPIInstance* values = set(settings(), "InstanceID", "2000000DEC0A1B2C");
  set(values, "ElementName", "FC Switch Settings");
  set(values, "PreferredDomainID", uint16_t{33});
  set(values, "DomainIDLocked", false);
  set(values, "PrincipalPriority", uint16_t{4});
  EXPECT_EQ(modify(settings_path(), values).code, CMPI_RC_OK);
  EXPECT_TRUE(switch_.changes().empty());
  set(values, "PrincipalPriority", uint16_t{3});
  EXPECT_EQ(modify(settings_path(), values).code, CMPI_RC_OK);
  EXPECT_EQ(switch_.changes(), (Changes{{264, domain_change(32).byte(337, 254)}}));
}

TEST_F(ProviderChanges, SettingsOutsideThePropertyListAreNotChanged) {
  CMPIInstance* values = set(settings(), "PreferredDomainID", uint16_t{40});
  set(values, "PrincipalPriority", uint16_t{9});
  set(values, "ElementName", "mine");
  const char* list[] = {"preferreddomainid", nullptr};
  EXPECT_EQ(modify(settings_path(), values, list).code, CMPI_RC_OK);
  EXPECT_EQ(switch_.changes(), (Changes{{264, domain_change(512).byte(332, 40).byte(333, 2)}}));
}

TEST_F(ProviderChanges, AListedSettingWithoutAValueIsRefusedAndNothingIsSent) {
  const char* list[] = {"PrincipalPriority", "PreferredDomainID", nullptr};
  expect_refused(modify(settings_path(), set(settings(), "PrincipalPriority", uint16_t{2}), list),
                 CMPI_RC_ERR_INVALID_PARAMETER,
                 "\"PreferredDomainID\" of a VEXOR_FCSwitchSettings cannot be without a value");
}

TEST_F(ProviderChanges, AListedSettingThatHasNoValueAnywayIsNoChange) {
  const char* list[] = {"PrincipalPriority", "Caption", nullptr};
  EXPECT_EQ(modify(settings_path(), set(settings(), "PrincipalPriority", uint16_t{2}), list).code,
            CMPI_RC_OK);
  EXPECT_EQ(switch_.changes(), (Changes{{264, domain_change(32).byte(337, 1)}}));
}

TEST_F(ProviderChanges, AValueOutOfRangeIsRefusedAndNothingIsSent) {
  CMPIInstance* values = set(settings(), "PrincipalPriority", uint16_t{2});
  for (const uint16_t domain : {0, 240, 255, 300}) {
    const std::string message = "PreferredDomainID is " + std::to_string(domain) + ", not 1 to 239";
    expect_refused(modify(settings_path(), set(values, "PreferredDomainID", domain)),
                   CMPI_RC_ERR_INVALID_PARAMETER, message.c_str());
  }
  expect_refused(modify(settings_path(), set(settings(), "PreferredDomainID", "12x")),
                 CMPI_RC_ERR_INVALID_PARAMETER, "PreferredDomainID is 12x, not 1 to 239");
  values = set(settings(), "PreferredDomainID", uint16_t{40});
  expect_refused(modify(settings_path(), set(values, "PrincipalPriority", uint16_t{5})),
                 CMPI_RC_ERR_INVALID_PARAMETER, "PrincipalPriority is 5, not 2, 3 or 4");
  expect_refused(modify(settings_path(), set(settings(), "DomainIDLocked", uint16_t{1})),
                 CMPI_RC_ERR_INVALID_PARAMETER, "DomainIDLocked is 1, not true or false");
}

TEST_F(ProviderChanges, AnotherSettingIsRefusedAndNothingIsSent) {
  CMPIInstance* values = set(settings(), "PreferredDomainID", uint16_t{40});
  expect_refused(modify(settings_path(), set(values, "ElementName", "mine")),
                 CMPI_RC_ERR_INVALID_PARAMETER,
                 "\"ElementName\" of a VEXOR_FCSwitchSettings cannot be changed");
  values = set(settings(), "PreferredDomainID", uint16_t{40});
  expect_refused(modify(settings_path(), set(values, "Colour", "red")),
                 CMPI_RC_ERR_INVALID_PARAMETER,
                 "\"Colour\" of a VEXOR_FCSwitchSettings cannot be changed");
}

TEST_F(ProviderChanges, SettingsThatTheDomainManagerRefusesFailWithItsStatus) {
  switch_.answer_changes(kRefused);
  Outcome answer = modify(settings_path(), set(settings(), "PrincipalPriority", uint16_t{2}));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "the domain manager refuses the priority (status 1077084169)");
  answer = modify(settings_path(), set(settings(), "DomainIDLocked", true));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "the domain manager refuses the domain ID (status 1077084169)");
}

TEST_F(ProviderChanges, SettingsThatCannotBeReadAreNotChanged) {
  switch_.domain_manager_refuses(1);
  expect_refused(modify(settings_path(), set(settings(), "PrincipalPriority", uint16_t{2})),
                 CMPI_RC_ERR_FAILED, "the domain manager does not tell the switch's settings");
}

// ---- the switch's name ----

TEST_F(ProviderChanges, TheSwitchIsRenamedThroughTheSystemNameService) {
  EXPECT_EQ(modify(switch_path(), named("sydney")).code, CMPI_RC_OK);
  EXPECT_EQ(switch_.changes(), (Changes{{878, new_name("sydney")}}));
  EXPECT_TRUE(system_.host_names_set().empty());
}

TEST_F(ProviderChanges, ANameHas1To32Characters) {
  expect_refused(modify(switch_path(), named("")), CMPI_RC_ERR_INVALID_PARAMETER,
                 "ElementName has 0 characters: a switch's name has 1 to 32");
  expect_refused(modify(switch_path(), named("a23456789b23456789c23456789d23456")),
                 CMPI_RC_ERR_INVALID_PARAMETER,
                 "ElementName has 33 characters: a switch's name has 1 to 32");
  EXPECT_EQ(modify(switch_path(), named("a23456789b23456789c23456789d2345")).code, CMPI_RC_OK);
  EXPECT_EQ(switch_.changes(), (Changes{{878, new_name("a23456789b23456789c23456789d2345")}}));
}

TEST_F(ProviderChanges, AnotherSwitchIsNotRenamedFromHere) {
  switch_.add_switch(1, "20 01 00 0d ec 0a 1b 3d", 34);
  expect_refused(modify(switch_path("2000000DEC0A1B3C"), named("perth")), CMPI_RC_ERR_NOT_SUPPORTED,
                 "switch 2000000DEC0A1B3C is not the one that runs this agent: its name is changed "
                 "there");
}

TEST_F(ProviderChanges, AnotherPropertyOfTheSwitchIsRefusedAndItIsNotRenamed) {
  expect_refused(modify(switch_path(), set(named("perth"), "Vendor", "mine")),
                 CMPI_RC_ERR_INVALID_PARAMETER,
                 "\"Vendor\" of a VEXOR_PhysicalComputerSystem cannot be changed");
}

TEST_F(ProviderChanges, ASwitchThatIsSentBackAsItWasReadIsRenamedOnly) {
  CMPIInstance* values = named("perth");
  set(values, "Name", "2000000DEC0A1B2C");
  set(values, "Vendor", "Vexor Systems");
  set(values, "PrimarySwitch", true);
  CMPIValue status{};
  status.uint16 = 2;
  CMPIArray* array = broker_.face()->eft->newArray(broker_.face(), 1, CMPI_uint16, nullptr);
  array->ft->setElementAt(array, 0, &status, CMPI_uint16);
  CMPIValue value{};
  value.array = array;
  values->ft->setProperty(values, "OperationalStatus", &value, CMPI_uint16A);
  EXPECT_EQ(modify(switch_path(), values).code, CMPI_RC_OK);
  EXPECT_EQ(switch_.changes(), (Changes{{878, new_name("perth")}}));

  status.uint16 = 3;
  array->ft->setElementAt(array, 0, &status, CMPI_uint16);
  const Outcome answer = modify(switch_path(), values);
  EXPECT_EQ(answer.code, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(answer.message,
            "\"OperationalStatus\" of a VEXOR_PhysicalComputerSystem cannot be changed");
  EXPECT_EQ(switch_.changes().size(), 1u);
}

TEST_F(ProviderChanges, ANameThatIsRefusedFailsWithTheStatus) {
  switch_.answer_changes(kRefused);
  const Outcome answer = modify(switch_path(), named("sydney"));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_FAILED);
  EXPECT_EQ(answer.message, "the system name service refuses the name (status 1077084169)");
}

TEST_F(ProviderChanges, PartsCapabilitiesAndComponentsCannotBeChanged) {
  for (const char* name :
       {"VEXOR_LogicalComputerSystem", "VEXOR_FCSwitchCapabilities", "VEXOR_Component"})
    expect_refused(modify(broker_.path(name), broker_.instance(name)), CMPI_RC_ERR_NOT_SUPPORTED,
                   ("instances of " + std::string(name) + " cannot be modified").c_str());
}

// ---- failing exchanges ----

TEST_F(ProviderChanges, EveryFailingExchangeEndsInAClearStatusAndLeavesNothing) {
  switch_.add_switch(1, "20 01 00 0d ec 0a 1b 2d", 33);
  switch_.add_switch(1, "20 01 00 0d ec 0a 1b 3d", 34);
  switch_.add_switch(2, "20 02 00 0d ec 0a 1b 2d", 43);
  CMPIInstanceMI* mi = instances_;
  CMPIAssociationMI* am = associations_;
  CMPIMethodMI* methods = methods_;
  const auto names_of = [&, this](const char* name) {
    const auto* path = broker_.path(name);
    return
        [=](const CMPIResult* to) { return mi->ft->enumerateInstanceNames(mi, nullptr, to, path); };
  };
  const auto* vsan = vsan_path("2002000DEC0A1B2D");
  const auto* own = switch_path();
  const auto* settings_name = settings_path();
  const auto* part = broker_.path(
      "VEXOR_LogicalComputerSystem",
      {{"Name", "2002000DEC0A1B2D"}, {"CreationClassName", "VEXOR_LogicalComputerSystem"}});
  const auto* new_settings =
      set(set(settings(), "DomainIDLocked", true), "PrincipalPriority", uint16_t{2});
  const auto* new_switch = set(named("sydney"), "Vendor", "Vexor Systems");
  const auto* in = requested(3);
  CMPIArgs* out = broker_.arguments();
  const std::vector<std::function<CMPIStatus(const CMPIResult*)>> kOperations = {
      names_of("VEXOR_PhysicalComputerSystem"),
      names_of("VEXOR_LogicalComputerSystem"),
      names_of("VEXOR_Component"),
      names_of("VEXOR_FCSwitchSettings"),
      [=](auto* to) { return mi->ft->getInstance(mi, nullptr, to, own, nullptr); },
      [=](auto* to) { return mi->ft->getInstance(mi, nullptr, to, part, nullptr); },
      [=](auto* to) { return mi->ft->getInstance(mi, nullptr, to, settings_name, nullptr); },
      [=](auto* to) {
        return am->ft->associators(am, nullptr, to, vsan, "VEXOR_Component", nullptr, nullptr,
                                   nullptr, nullptr);
      },
      [=](auto* to) {
        return mi->ft->modifyInstance(mi, nullptr, to, settings_name, new_settings, nullptr);
      },
      [=](auto* to) { return mi->ft->modifyInstance(mi, nullptr, to, own, new_switch, nullptr); },
      [=](auto* to) {
        return methods->ft->invokeMethod(methods, nullptr, to, vsan, "RequestStateChange", in, out);
      },
  };
  for (size_t operation = 0; operation < kOperations.size(); ++operation) {
    const size_t before = switch_.calls();
    ASSERT_EQ(ask(kOperations[operation]).code, CMPI_RC_OK) << operation;
    const size_t exchanges = switch_.calls() - before;
    EXPECT_GT(exchanges, 0u) << operation;
    for (size_t n = 1; n <= exchanges; ++n) {
      switch_.responder().fail_nth_exchange(n);
      Returned returned;
      const CMPIResult* result = broker_.result(returned);
      const HeapLedger ledger;
      const CMPIStatus status = kOperations[operation](result);
      const HeapLedger::Pause pause;
      EXPECT_TRUE(lock_is_free()) << operation << ", exchange " << n;
      EXPECT_EQ(returned.done, status.rc == CMPI_RC_OK ? 1 : 0) << operation << ", " << n;
      EXPECT_EQ(broker_.text(status.msg).empty(), status.rc == CMPI_RC_OK) << operation;
      returned = {};
    }
  }
}

}  // namespace

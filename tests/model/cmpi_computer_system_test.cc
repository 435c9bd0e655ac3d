// The CMPI face of switches, of their membership in VSANs, and of the own switch's capabilities and
// settings.
#include <cim_utils/cmpi_builders.h>
#include <cim_utils/cmpi_computer_system.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <functional>

#include "tests/model/computer_system_records.h"
#include "tests/model/switch_records.h"
#include "tests/model/switch_replies.h"
#include "tests/support/capture.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/os_double.h"
#include "tests/support/recording_broker.h"
#include "tests/support/transcript.h"

using namespace test_support;

namespace {

using Failure = RecordingBroker::Failure;
using Names = std::vector<std::string>;

constexpr const char* kNamespace = "root/cimv2";
constexpr const char* kPhysical = "VEXOR_PhysicalComputerSystem";
constexpr const char* kLogical = "VEXOR_LogicalComputerSystem";
constexpr const char* kOwn = "2000000DEC0A1B3C";
constexpr const char* kOther = "2000000DEC0A1B4C";
constexpr unsigned char kRemote = 1;

class CmpiComputerSystem : public testing::Test {
 protected:
  CmpiComputerSystem() {
    mts_q = kQueue;
    system_.host_name("switch-1");
    system_.address("switch-1", 10, 0, 0, 1);
  }
  ~CmpiComputerSystem() override { mts_q = -1; }

  static void expect_configuration(Script& script) {
    script.expect(records::domain_configuration_of_vsan_1())
        .replies(records::domain_configuration_1());
  }
  CMPIInstance* own_switch() {
    return switch_build_instance_str(kPhysical, kNamespace, kOwn, 0, nullptr, broker_);
  }
  CMPIInstance* other_switch() {
    return switch_build_instance_str(kLogical, kNamespace, kOther, kRemote, nullptr, broker_);
  }
  static void expect_address(Script& script) {
    script.expect(records::discovery()).sent();
    script.expect(records::peers_in_time()).receives(records::two_peers());
  }
  static void expect_name(Script& script) {
    script.expect(query_switch_addresses()).sent();
    script.expect(records::addresses_in_time()).receives(records::two_names());
  }
  CMPIInstance* element_switch(const char* cls, const char** properties = nullptr) {
    return switch_build_instance_ie(cls, kNamespace, &element_, properties, broker_);
  }
  CMPIInstance* domain_switch(const char* cls, const char** properties = nullptr) {
    return switch_build_instance_dm(cls, kNamespace, &domain_, properties, broker_);
  }
  CMPIInstance* component() {
    return component_build_instance_ie("VEXOR_Component", kNamespace, &vsan_, &conf_, &element_,
                                       broker_);
  }
  CMPIObjectPath* component_path() {
    return component_fill_reference_ie("VEXOR_Component", kNamespace, &vsan_, &conf_, &element_,
                                       broker_);
  }
  CMPIInstance* capabilities(const char** properties = nullptr) {
    return fcswitch_cap_build_instance("VEXOR_FCSwitchCapabilities", kNamespace, properties,
                                       broker_);
  }
  CMPIInstance* settings(const char** properties = nullptr) {
    return fcswitch_set_build_instance("VEXOR_FCSwitchSettings", kNamespace, properties, broker_);
  }

  OsDouble system_;
  RecordingBroker broker_;
  StdioCapture out_;
  vsanNewEntry_t vsan_ = records::vsan_10();
  mts_dm_sw_conf_ conf_ = records::configuration_10();
  fcs_cim_ie_ element_ = records::own_element();
  mts_dm_sw_dom_list_info_ domain_ = records::other_domain();
};

// Every property of a switch that is made from a text, in order.
const Names kOwnSwitch = {"PermanentAddress",
                          "Name",
                          "NameFormat",
                          "CreationClassName",
                          "ElementName",
                          "PrimarySwitch",
                          "IPAddress",
                          "EnabledState",
                          "OtherIdentifyingInfo",
                          "IdentifyingDescriptions",
                          "OperationalStatus",
                          "Dedicated",
                          "OtherDedicatedDescriptions",
                          "Caption",
                          "Description",
                          "Vendor"};

const Names kWithoutDomainManager = {"PermanentAddress",
                                     "Name",
                                     "NameFormat",
                                     "CreationClassName",
                                     "IdentifyingDescriptions",
                                     "OperationalStatus",
                                     "Dedicated",
                                     "OtherDedicatedDescriptions",
                                     "Caption",
                                     "Description",
                                     "Vendor"};

// Those of another switch, without the ones given.
Names other_switch_without(const Names& left_out) {
  Names names;
  for (const char* name :
       {"PermanentAddress", "Name", "NameFormat", "CreationClassName", "PrimarySwitch", "IPAddress",
        "ElementName", "EnabledState", "OtherIdentifyingInfo", "IdentifyingDescriptions",
        "OperationalStatus", "Dedicated", "OtherDedicatedDescriptions", "Caption", "Description",
        "Vendor"}) {
    if (std::find(left_out.begin(), left_out.end(), name) == left_out.end())
      names.emplace_back(name);
  }
  return names;
}

Names without(Names names, const char* left_out) {
  std::erase(names, left_out);
  return names;
}

// ---- a switch by its WWN text

TEST_F(CmpiComputerSystem, TheOwnSwitchIsPrimaryAndEnabled) {
  Script script;
  expect_configuration(script);
  ASSERT_NE(own_switch(), nullptr);
  expect_transcript(out_.out(), "cmpi_switch_instance_local.txt");
}

TEST_F(CmpiComputerSystem, AnotherSwitchIsNotPrimaryAndHasNoState) {
  Script script;
  expect_configuration(script);
  expect_address(script);
  expect_name(script);
  ASSERT_NE(other_switch(), nullptr);
  expect_transcript(out_.out(), "cmpi_switch_instance_remote.txt");
}

TEST_F(CmpiComputerSystem, AnyFlagButZeroIsAnotherSwitch) {
  Script script;
  expect_configuration(script);
  script.expect(records::discovery()).fails(-1);
  script.expect(query_switch_addresses()).fails(-1);
  CMPIInstance* instance =
      switch_build_instance_str(kLogical, kNamespace, kOther, 255, nullptr, broker_);
  EXPECT_EQ(broker_.property(instance, "PrimarySwitch"), "boolean false");
  EXPECT_EQ(broker_.property(instance, "EnabledState"), "uint16 5");
}

TEST_F(CmpiComputerSystem, TheSystemIsAskedForTheHostNameAndItsAddress) {
  Script script;
  expect_configuration(script);
  ASSERT_NE(own_switch(), nullptr);
  EXPECT_EQ(system_.calls(), (Names{"gethostname(500)", "gethostname(100)", "gethostname(255)",
                                    "gethostbyname(switch-1)"}));
}

TEST_F(CmpiComputerSystem, AnotherSwitchDoesNotAskForTheOwnAddress) {
  Script script;
  expect_configuration(script);
  expect_address(script);
  expect_name(script);
  ASSERT_NE(other_switch(), nullptr);
  EXPECT_EQ(system_.calls(), (Names{"gethostname(500)"}));
}

TEST_F(CmpiComputerSystem, AHostNameIsCutTo100Characters) {
  for (const size_t length : {99u, 100u, 101u, 400u}) {
    Script script;
    expect_configuration(script);
    system_.host_name(std::string(length, 'h'));
    CMPIInstance* instance = own_switch();
    ASSERT_NE(instance, nullptr);
    EXPECT_EQ(broker_.property_text(instance, "ElementName"),
              std::string(length == 99 ? 99 : 100, 'h'));
  }
}

TEST_F(CmpiComputerSystem, WithoutAHostNameTheOwnSwitchHasAnEmptyName) {
  Script script;
  expect_configuration(script);
  system_.gethostname_fails(EFAULT);
  CMPIInstance* instance = own_switch();
  EXPECT_EQ(broker_.property_names(instance), without(kOwnSwitch, "IPAddress"));
  EXPECT_EQ(broker_.property(instance, "ElementName"), "chars \"\"");
}

TEST_F(CmpiComputerSystem, AHostWithoutAddressLeavesOutTheAddressAndItsTrace) {
  Script script;
  expect_configuration(script);
  system_.host_name("switch-2");
  EXPECT_EQ(broker_.property_names(own_switch()), without(kOwnSwitch, "IPAddress"));
  EXPECT_EQ(out_.out().find("IP Address"), std::string::npos);
}

TEST_F(CmpiComputerSystem, WithoutTheDomainManagerASwitchHasOnlyWhatNeedsNone) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1()).status(17);
  ASSERT_NE(own_switch(), nullptr);
  expect_transcript(out_.out(), "cmpi_switch_instance_no_domain_manager.txt");
}

TEST_F(CmpiComputerSystem, WithoutTheDomainManagerAnotherSwitchAsksNothingElse) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1()).times_out();
  script.expect(records::domain_configuration_of_vsan_1()).ok_without_reply();
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1())
      .cut_to(1151);
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(broker_.property_names(other_switch()), kWithoutDomainManager) << i;
  EXPECT_EQ(script.calls(), 3u);
}

TEST_F(CmpiComputerSystem, AnotherSwitchThatIsNoPeerHasNoAddress) {
  Script script;
  expect_configuration(script);
  script.expect(records::discovery()).sent();
  script.expect(records::peers_in_time())
      .receives(peers().answer(hex("20 00 00 0d ec 0a 1b 5c"), 1, hex("0a 00 00 02")));
  expect_name(script);
  EXPECT_EQ(broker_.property_names(other_switch()), other_switch_without({"IPAddress"}));
  EXPECT_EQ(out_.out().find("IP Address"), std::string::npos);
}

TEST_F(CmpiComputerSystem, PeersThatCannotBeAskedLeaveOutTheAddress) {
  Script script;
  expect_configuration(script);
  script.expect(records::discovery()).fails(-1);
  expect_name(script);
  EXPECT_EQ(broker_.property_names(other_switch()), other_switch_without({"IPAddress"}));
}

TEST_F(CmpiComputerSystem, PeersThatDoNotAnswerLeaveOutTheAddress) {
  Script script;
  expect_configuration(script);
  script.expect(records::discovery()).sent();
  script.expect(records::peers_in_time()).times_out();
  expect_name(script);
  EXPECT_EQ(broker_.property_names(other_switch()), other_switch_without({"IPAddress"}));
}

TEST_F(CmpiComputerSystem, PeersThatCannotBeParsedLeaveOutTheAddress) {
  Script script;
  expect_configuration(script);
  script.expect(records::discovery()).sent();
  script.expect(records::peers_in_time()).receives(peers().parse_fails(33));
  expect_name(script);
  EXPECT_EQ(broker_.property_names(other_switch()), other_switch_without({"IPAddress"}));
}

TEST_F(CmpiComputerSystem, AnotherSwitchIsNamedAsTheOneOfDomainZero) {
  Script script;
  expect_configuration(script);
  expect_address(script);
  script.expect(query_switch_addresses()).sent();
  script.expect(records::addresses_in_time())
      .receives(switch_addresses().entry(97, "sydney").entry(239, "melbourne"));
  EXPECT_EQ(broker_.property_names(other_switch()), other_switch_without({"ElementName"}));
}

TEST_F(CmpiComputerSystem, AnEmptySwitchNameIsLeftOut) {
  Script script;
  expect_configuration(script);
  expect_address(script);
  script.expect(query_switch_addresses()).sent();
  script.expect(records::addresses_in_time())
      .receives(switch_addresses().entry(97, "sydney").entry(0, ""));
  EXPECT_EQ(broker_.property_names(other_switch()), other_switch_without({"ElementName"}));
}

TEST_F(CmpiComputerSystem, SwitchNamesThatCannotBeAskedLeaveOutTheName) {
  Script script;
  expect_configuration(script);
  expect_address(script);
  script.expect(query_switch_addresses()).fails(0x4033000a);
  EXPECT_EQ(broker_.property_names(other_switch()), other_switch_without({"ElementName"}));
}

TEST_F(CmpiComputerSystem, SwitchNamesThatDoNotComeInTimeLeaveOutTheName) {
  Script script;
  expect_configuration(script);
  expect_address(script);
  script.expect(query_switch_addresses()).sent();
  script.expect(records::addresses_in_time()).times_out();
  EXPECT_EQ(broker_.property_names(other_switch()), other_switch_without({"ElementName"}));
}

TEST_F(CmpiComputerSystem, NeitherPeersNorNamesLeaveTheRestOfAnotherSwitch) {
  Script script;
  expect_configuration(script);
  script.expect(records::discovery()).fails(-1);
  script.expect(query_switch_addresses()).fails(-1);
  EXPECT_EQ(broker_.property_names(other_switch()),
            other_switch_without({"IPAddress", "ElementName"}));
}

TEST_F(CmpiComputerSystem, EveryFailingExchangeOfAnotherSwitchLeavesItStanding) {
  broker_.write_down(false);
  const size_t rounds = for_every_failing_exchange([this](FailingExchange&) {
    Script script;
    expect_configuration(script);
    expect_address(script);
    expect_name(script);
    EXPECT_NE(other_switch(), nullptr);
  });
  EXPECT_EQ(rounds, 6u);
}

TEST_F(CmpiComputerSystem, OtherIdentifyingInfoIsZeroWhateverTheDomain) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1()).replies(records::settings_1(77, 1, 1));
  CMPIInstance* instance = own_switch();
  EXPECT_EQ(broker_.property(instance, "OtherIdentifyingInfo"), "chars[] {\"0\"}");
}

TEST_F(CmpiComputerSystem, OnlyThePhysicalClassIsNotDedicatedWhateverItsLetterCase) {
  const struct {
    const char* cls;
    const char* dedicated;
    const char* description;
  } cases[] = {{"vexor_PHYSICALcomputersystem", "uint16[] {2}", "chars[] {\"Not Dedicated\"}"},
               {"VEXOR_PhysicalComputerSystem2", "uint16[] {5}", "chars[] {\"Dedicated\"}"},
               {"VEXOR_ComputerSystem", "uint16[] {5}", "chars[] {\"Dedicated\"}"},
               {"VEXOR_LogicalComputerSystem", "uint16[] {5}", "chars[] {\"Dedicated\"}"}};
  Responder responder([](const Request&) { return Response::failed(17); });
  for (const auto& c : cases) {
    CMPIInstance* by_text = switch_build_instance_str(c.cls, kNamespace, kOwn, 0, nullptr, broker_);
    EXPECT_EQ(broker_.property(by_text, "Dedicated"), c.dedicated) << c.cls;
    EXPECT_EQ(broker_.property(by_text, "OtherDedicatedDescriptions"), c.description) << c.cls;
    CMPIInstance* by_element = element_switch(c.cls);
    EXPECT_EQ(broker_.property(by_element, "Dedicated"), c.dedicated) << c.cls;
    EXPECT_EQ(broker_.property(by_element, "OtherDedicatedDescriptions"), c.description) << c.cls;
    CMPIInstance* by_domain = domain_switch(c.cls);
    EXPECT_EQ(broker_.property(by_domain, "Dedicated"), c.dedicated) << c.cls;
    EXPECT_EQ(broker_.property(by_domain, "OtherDedicatedDescriptions"), "none") << c.cls;
  }
}

TEST_F(CmpiComputerSystem, ASwitchByItsTextIgnoresThePropertyList) {
  Script script;
  expect_configuration(script);
  const char* properties[] = {"Vendor", nullptr};
  CMPIInstance* instance =
      switch_build_instance_str(kPhysical, kNamespace, kOwn, 0, properties, broker_);
  EXPECT_EQ(broker_.filter(instance), "none");
  expect_transcript(out_.out(), "cmpi_switch_instance_local.txt");
}

TEST_F(CmpiComputerSystem, ASwitchByItsWwnIgnoresThePropertyListToo) {
  Script script;
  expect_configuration(script);
  const char* properties[] = {"Vendor", nullptr};
  ASSERT_NE(
      switch_build_instance_wwn(kPhysical, kNamespace, &records::kOwnWwn, 0, properties, broker_),
      nullptr);
  expect_transcript(out_.out(), "cmpi_switch_instance_local.txt");
}

TEST_F(CmpiComputerSystem, AnotherSwitchByItsWwnIsTheSameAsByItsText) {
  Script script;
  expect_configuration(script);
  expect_address(script);
  expect_name(script);
  ASSERT_NE(switch_build_instance_wwn(kLogical, kNamespace, &records::kOtherWwn, kRemote, nullptr,
                                      broker_),
            nullptr);
  expect_transcript(out_.out(), "cmpi_switch_instance_remote.txt");
}

TEST_F(CmpiComputerSystem, ATextThatIsNoWwnIsTakenAsItIs) {
  Responder responder([](const Request&) { return Response::failed(17); });
  const std::string text = "100% " + std::string(2000, 'w');
  CMPIInstance* instance =
      switch_build_instance_str(kPhysical, kNamespace, text.c_str(), 0, nullptr, broker_);
  EXPECT_EQ(broker_.property_text(instance, "Name"), text);
  CMPIObjectPath* path = switch_fill_reference_str(kPhysical, kNamespace, "", broker_);
  EXPECT_EQ(broker_.key(path, "Name"), "chars \"\"");
}

TEST_F(CmpiComputerSystem, NoTextAndNoRecordMakeNoSwitch) {
  EXPECT_EQ(switch_build_instance_str(kPhysical, kNamespace, nullptr, 0, nullptr, broker_),
            nullptr);
  EXPECT_EQ(switch_build_instance_wwn(kPhysical, kNamespace, nullptr, 0, nullptr, broker_),
            nullptr);
  EXPECT_EQ(switch_build_instance_ie(kPhysical, kNamespace, nullptr, nullptr, broker_), nullptr);
  EXPECT_EQ(switch_build_instance_dm(kPhysical, kNamespace, nullptr, nullptr, broker_), nullptr);
  EXPECT_EQ(switch_fill_reference_str(kPhysical, kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(switch_fill_reference_wwn(kPhysical, kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(switch_fill_reference_ie(kPhysical, kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(switch_fill_reference_dm(kPhysical, kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(broker_.calls(), 0u);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(CmpiComputerSystem, ABadPathOrInstanceMakesNoSwitchAndAsksNothing) {
  Script script;
  const std::function<CMPIInstance*()> builders[] = {
      [this] { return own_switch(); },
      [this] { return other_switch(); },
      [this] {
        return switch_build_instance_wwn(kPhysical, kNamespace, &records::kOwnWwn, 0, nullptr,
                                         broker_);
      },
      [this] { return element_switch(kPhysical); },
      [this] { return domain_switch(kPhysical); },
  };
  broker_.write_down(false);
  HeapLedger ledger;
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    for (const auto& build : builders) {
      broker_.fail_nth_path(1, how);
      EXPECT_EQ(build(), nullptr);
      broker_.fail_nth_instance(1, how);
      EXPECT_EQ(build(), nullptr);
    }
  }
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(CmpiComputerSystem, EveryFailingAllocationOfASwitchGivesNone) {
  Responder responder([](const Request&) { return Response::failed(17); });
  broker_.write_down(false);
  const std::function<CMPIInstance*()> builders[] = {
      [this] { return own_switch(); },
      [this] { return other_switch(); },
      [this] {
        return switch_build_instance_wwn(kPhysical, kNamespace, &records::kOwnWwn, 0, nullptr,
                                         broker_);
      },
      [this] { return element_switch(kPhysical); },
      [this] { return domain_switch(kPhysical); },
      // The list of one key is an allocation shorter.
      [this] { return capabilities(); },
      [this] { return settings(); },
  };
  std::vector<size_t> rounds;
  for (const auto& build : builders) {
    rounds.push_back(for_every_failing_allocation(
        [&build](FailingAllocation& round) {
          CMPIInstance* instance = round.attempt(build);
          EXPECT_EQ(instance == nullptr, round.was_hit());
        },
        Heap::c));
  }
  EXPECT_EQ(rounds, (std::vector<size_t>{4, 4, 4, 4, 4, 3, 3}));
}

TEST_F(CmpiComputerSystem, ASwitchWithoutMemoryForItsKeysSaysNothing) {
  HeapLedger ledger;
  ledger.fail_nth(1, Heap::c);
  EXPECT_EQ(own_switch(), nullptr);
  EXPECT_EQ(out_.out(), "");
  EXPECT_EQ(broker_.calls(), 0u);
}

TEST_F(CmpiComputerSystem, AnArrayThatTheBrokerDoesNotGiveIsLeftOut) {
  const char* const arrays[] = {"OtherIdentifyingInfo", "IdentifyingDescriptions",
                                "OperationalStatus", "Dedicated", "OtherDedicatedDescriptions"};
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    for (size_t n = 1; n <= 5; ++n) {
      Script script;
      expect_configuration(script);
      broker_.fail_nth_array(n, how);
      EXPECT_EQ(broker_.property_names(own_switch()), without(kOwnSwitch, arrays[n - 1]));
    }
  }
}

// ---- a switch's path

TEST_F(CmpiComputerSystem, AReferenceHoldsTheWwnText) {
  ASSERT_NE(switch_fill_reference_str(kPhysical, kNamespace, kOwn, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_switch_reference.txt");
}

TEST_F(CmpiComputerSystem, AReferenceByTheWwnHoldsItsText) {
  ASSERT_NE(switch_fill_reference_wwn(kPhysical, kNamespace, &records::kOwnWwn, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_switch_reference.txt");
}

TEST_F(CmpiComputerSystem, AReferenceByTheElementHoldsItsWwn) {
  CMPIObjectPath* path = switch_fill_reference_ie(kLogical, kNamespace, &element_, broker_);
  EXPECT_EQ(broker_.key_names(path), (Names{"Name", "CreationClassName"}));
  EXPECT_EQ(broker_.key(path, "Name"), "chars \"200A000DEC0A1B3D\"");
  EXPECT_EQ(broker_.key_text(path, "CreationClassName"), kLogical);
}

TEST_F(CmpiComputerSystem, AReferenceByTheDomainHoldsItsSwitchesWwn) {
  CMPIObjectPath* path = switch_fill_reference_dm(kLogical, kNamespace, &domain_, broker_);
  EXPECT_EQ(broker_.key_names(path), (Names{"Name", "CreationClassName"}));
  EXPECT_EQ(broker_.key(path, "Name"), "chars \"200A000DEC0A1B4D\"");
  EXPECT_EQ(broker_.key_text(path, "CreationClassName"), kLogical);
}

TEST_F(CmpiComputerSystem, TheOwnSwitchesReferenceAsksForItsWwn) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  ASSERT_NE(switch_fill_reference(kPhysical, kNamespace, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_switch_reference.txt");
}

TEST_F(CmpiComputerSystem, WithoutItsWwnTheOwnSwitchesReferenceHoldsNa) {
  Script script;
  script.expect(records::own_switch_wwn()).status(17);
  CMPIObjectPath* path = switch_fill_reference(kPhysical, kNamespace, broker_);
  EXPECT_EQ(broker_.key(path, "Name"), "chars \"N/A\"");
}

TEST_F(CmpiComputerSystem, ASwitchReferenceOfABadPathIsWhatTheBrokerGave) {
  Responder responder([](const Request&) { return Response::with(records::own_wwn()); });
  const std::function<CMPIObjectPath*()> builders[] = {
      [this] { return switch_fill_reference_str(kPhysical, kNamespace, kOwn, broker_); },
      [this] {
        return switch_fill_reference_wwn(kPhysical, kNamespace, &records::kOwnWwn, broker_);
      },
      [this] { return switch_fill_reference_ie(kPhysical, kNamespace, &element_, broker_); },
      [this] { return switch_fill_reference_dm(kPhysical, kNamespace, &domain_, broker_); },
      [this] { return switch_fill_reference(kPhysical, kNamespace, broker_); },
  };
  for (const auto& build : builders) {
    broker_.fail_nth_path(1, Failure::null_object);
    EXPECT_EQ(build(), nullptr);
    broker_.fail_nth_path(1, Failure::null_handle);
    CMPIObjectPath* path = build();
    ASSERT_NE(path, nullptr);
    EXPECT_EQ(path->hdl, nullptr);
  }
  EXPECT_EQ(broker_.calls(), 10u);  // neither host nor keys
}

// ---- a switch by its element

TEST_F(CmpiComputerSystem, AnElementsSwitchHasItsDomainAndTwoStatuses) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  const char* properties[] = {"Name", "EnabledState", nullptr};
  ASSERT_NE(element_switch(kLogical, properties), nullptr);
  expect_transcript(out_.out(), "cmpi_switch_instance_ie.txt");
}

TEST_F(CmpiComputerSystem, AnElementOfAnotherSwitchHasNoState) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 4c"));
  EXPECT_EQ(broker_.property(element_switch(kLogical), "EnabledState"), "uint16 5");
}

TEST_F(CmpiComputerSystem, AnElementWithTheOwnSwitchesUniqueWwnIsEnabled) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  element_.wwn = records::kOwnWwn;
  EXPECT_EQ(broker_.property(element_switch(kPhysical), "EnabledState"), "uint16 2");
}

TEST_F(CmpiComputerSystem, AnElementThatCannotBeComparedHasNoStateAndAllElse) {
  Script script;
  script.expect(records::own_switch_wwn()).status(17);
  CMPIInstance* instance = element_switch(kLogical);
  EXPECT_EQ(broker_.property(instance, "EnabledState"), "uint16 5");
  EXPECT_EQ(broker_.property_names(instance),
            (Names{"Name", "NameFormat", "CreationClassName", "ElementName", "EnabledState",
                   "OtherIdentifyingInfo", "IdentifyingDescriptions", "OperationalStatus",
                   "Dedicated", "OtherDedicatedDescriptions"}));
}

TEST_F(CmpiComputerSystem, AnElementsDomainIsPrintedAsASignedNumber) {
  Responder responder([](const Request&) { return Response::failed(17); });
  element_.domain = 0;
  EXPECT_EQ(broker_.property(element_switch(kLogical), "OtherIdentifyingInfo"), "chars[] {\"0\"}");
  element_.domain = 0x80000000;
  EXPECT_EQ(broker_.property(element_switch(kLogical), "OtherIdentifyingInfo"),
            "chars[] {\"-2147483648\"}");
}

TEST_F(CmpiComputerSystem, TheFilterOfAnElementsSwitchKeepsTheKeysWithoutAPropertyListToo) {
  Responder responder([](const Request&) { return Response::failed(17); });
  EXPECT_EQ(broker_.filter(element_switch(kLogical)), "null [Name,CreationClassName]");
}

// ---- a switch by its domain

TEST_F(CmpiComputerSystem, ADomainsSwitchHasItsDomainAndTwoStatuses) {
  Script script;
  script.expect(records::entry_of_vsan_1()).replies(records::vsan_1(1));
  const char* properties[] = {"Dedicated", nullptr};
  ASSERT_NE(domain_switch(kPhysical, properties), nullptr);
  expect_transcript(out_.out(), "cmpi_switch_instance_dm.txt");
}

TEST_F(CmpiComputerSystem, WithoutVsanOneADomainsSwitchHasNoEnabledState) {
  Script script;
  script.expect(records::entry_of_vsan_1()).status(17);
  EXPECT_EQ(broker_.property_names(domain_switch(kPhysical)),
            (Names{"Name", "NameFormat", "CreationClassName", "ElementName", "OtherIdentifyingInfo",
                   "IdentifyingDescriptions", "OperationalStatus", "Dedicated"}));
}

TEST_F(CmpiComputerSystem, TheFilterOfADomainsSwitchKeepsTheKeysWithoutAPropertyListToo) {
  Responder responder([](const Request&) { return Response::failed(17); });
  EXPECT_EQ(broker_.filter(domain_switch(kLogical)), "null [Name,CreationClassName]");
}

// ---- components

TEST_F(CmpiComputerSystem, AComponentTiesTheSwitchToTheVsan) {
  ASSERT_NE(component(), nullptr);
  expect_transcript(out_.out(), "cmpi_component_ie_instance.txt");
}

TEST_F(CmpiComputerSystem, AComponentsReferenceHoldsBothEnds) {
  ASSERT_NE(component_path(), nullptr);
  expect_transcript(out_.out(), "cmpi_component_ie_reference.txt");
}

TEST_F(CmpiComputerSystem, OnlyTheMakersWwnWithAVsanNumberIsALogicalSwitch) {
  const struct {
    wwn_ wwn;
    const char* cls;
  } cases[] = {
      {{{0x20, 0x0a, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x3d}}, kLogical},   // VSAN 10
      {{{0x2f, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x3d}}, kLogical},   // VSAN 3840
      {{{0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x3c}}, kPhysical},  // no VSAN
      {{{0x20, 0x0a, 0x00, 0x11, 0x22, 0x0a, 0x1b, 0x3d}}, kPhysical},  // another maker
      {{}, kPhysical},
  };
  for (const auto& c : cases) {
    element_.wwn = c.wwn;
    const CMPIObjectPath* of_instance = broker_.property_reference(component(), "PartComponent");
    const CMPIObjectPath* of_path = broker_.key_reference(component_path(), "PartComponent");
    ASSERT_NE(of_instance, nullptr);
    ASSERT_NE(of_path, nullptr);
    EXPECT_EQ(broker_.class_name(of_instance), c.cls);
    EXPECT_EQ(broker_.key_text(of_instance, "CreationClassName"), c.cls);
    EXPECT_EQ(broker_.class_name(of_path), c.cls);
  }
}

TEST_F(CmpiComputerSystem, AComponentOfABadPathOrInstanceIsNone) {
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_path(3, how);  // behind the two ends
    EXPECT_EQ(component_path(), nullptr);
    broker_.fail_nth_path(3, how);
    EXPECT_EQ(component(), nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(component(), nullptr);
  }
}

TEST_F(CmpiComputerSystem, AComponentLeavesOutAnEndThatTheBrokerDidNotGive) {
  broker_.fail_nth_path(1, Failure::null_object);
  EXPECT_EQ(broker_.property_names(component()), Names{"PartComponent"});
  broker_.fail_nth_path(2, Failure::null_object);
  EXPECT_EQ(broker_.property_names(component()), Names{"GroupComponent"});
  broker_.fail_nth_path(1, Failure::null_object);
  EXPECT_EQ(broker_.key_names(component_path()), Names{"PartComponent"});
  broker_.fail_nth_path(2, Failure::null_object);
  EXPECT_EQ(broker_.key_names(component_path()), Names{"GroupComponent"});
}

TEST_F(CmpiComputerSystem, AComponentLeavesOutAnEndWithoutARecord) {
  EXPECT_EQ(broker_.property_names(component_build_instance_ie(
                "VEXOR_Component", kNamespace, nullptr, &conf_, &element_, broker_)),
            Names{"PartComponent"});
  EXPECT_EQ(broker_.key_names(component_fill_reference_ie("VEXOR_Component", kNamespace, &vsan_,
                                                          &conf_, nullptr, broker_)),
            Names{"GroupComponent"});
}

TEST_F(CmpiComputerSystem, AComponentWithoutADomainManagerRecordHoldsTheErrorText) {
  CMPIObjectPath* path = component_fill_reference_ie("VEXOR_Component", kNamespace, &vsan_, nullptr,
                                                     &element_, broker_);
  EXPECT_EQ(broker_.key_text(broker_.key_reference(path, "GroupComponent"), "Name"),
            "error during get vsan id");
}

TEST_F(CmpiComputerSystem, AComponentOfTwoReferencesHoldsThem) {
  broker_.write_down(false);
  CMPIObjectPath* group = makePath(broker_, kNamespace, "VEXOR_First", nullptr);
  CMPIObjectPath* part = makePath(broker_, kNamespace, "VEXOR_Second", nullptr);
  broker_.write_down(true);
  ASSERT_NE(component_build_instance("VEXOR_Component", kNamespace, group, part, broker_), nullptr);
  ASSERT_NE(component_fill_reference("VEXOR_Component", kNamespace, group, part, broker_), nullptr);
  EXPECT_EQ(out_.out(),
            "newObjectPath(root/cimv2, VEXOR_Component) -> path3\n"
            "setHostname(path3, switch-1)\n"
            "newInstance(path3) -> instance1\n"
            "setProperty(instance1, GroupComponent, ref path1)\n"
            "setProperty(instance1, PartComponent, ref path2)\n"
            "newObjectPath(root/cimv2, VEXOR_Component) -> path4\n"
            "setHostname(path4, switch-1)\n"
            "addKey(path4, GroupComponent, ref path1)\n"
            "addKey(path4, PartComponent, ref path2)\n");
}

TEST_F(CmpiComputerSystem, AComponentOfTwoReferencesAndABadPathOrInstanceIsNone) {
  CMPIObjectPath* end = makePath(broker_, kNamespace, "VEXOR_End", nullptr);
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(component_fill_reference("VEXOR_Component", kNamespace, end, end, broker_), nullptr);
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(component_build_instance("VEXOR_Component", kNamespace, end, end, broker_), nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(component_build_instance("VEXOR_Component", kNamespace, end, end, broker_), nullptr);
  }
}

TEST_F(CmpiComputerSystem, AComponentLeavesOutANullReference) {
  CMPIObjectPath* end = makePath(broker_, kNamespace, "VEXOR_End", nullptr);
  EXPECT_EQ(broker_.property_names(
                component_build_instance("VEXOR_Component", kNamespace, nullptr, end, broker_)),
            Names{"PartComponent"});
  EXPECT_EQ(broker_.key_names(
                component_fill_reference("VEXOR_Component", kNamespace, end, nullptr, broker_)),
            Names{"GroupComponent"});
}

TEST_F(CmpiComputerSystem, ComponentsAllocateNothing) {
  broker_.write_down(false);
  HeapLedger ledger;
  component();
  component_path();
  EXPECT_EQ(ledger.allocations(Heap::c), 0u);
}

// ---- capabilities and settings

TEST_F(CmpiComputerSystem, TheCapabilitiesAreThoseOfTheOwnSwitch) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  const char* properties[] = {"MaxDomainID", nullptr};
  ASSERT_NE(capabilities(properties), nullptr);
  expect_transcript(out_.out(), "cmpi_switch_capabilities_instance.txt");
}

TEST_F(CmpiComputerSystem, TheCapabilitiesReferenceHoldsTheWwn) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  ASSERT_NE(fcswitch_cap_fill_reference("VEXOR_FCSwitchCapabilities", kNamespace, broker_),
            nullptr);
  expect_transcript(out_.out(), "cmpi_switch_capabilities_reference.txt");
}

TEST_F(CmpiComputerSystem, TheSettingsReferenceHoldsTheWwn) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  ASSERT_NE(fcswitch_set_fill_reference("VEXOR_FCSwitchSettings", kNamespace, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_switch_settings_reference.txt");
}

TEST_F(CmpiComputerSystem, WithoutTheWwnCapabilitiesAndSettingsAreNamedNa) {
  Responder responder([](const Request&) { return Response::failed(17); });
  EXPECT_EQ(broker_.property_text(capabilities(), "InstanceID"), "N/A");
  EXPECT_EQ(broker_.property_text(settings(), "InstanceID"), "N/A");
  EXPECT_EQ(broker_.key_text(
                fcswitch_cap_fill_reference("VEXOR_FCSwitchCapabilities", kNamespace, broker_),
                "InstanceID"),
            "N/A");
  EXPECT_EQ(
      broker_.key_text(fcswitch_set_fill_reference("VEXOR_FCSwitchSettings", kNamespace, broker_),
                       "InstanceID"),
      "N/A");
}

TEST_F(CmpiComputerSystem, TheSettingsAreTheConfiguredOnesOfVsanOne) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  script.expect(records::domain_configuration_of_vsan_1()).replies(records::settings_1(77, 1, 254));
  CMPIInstance* instance = settings();
  EXPECT_EQ(broker_.property_names(instance),
            (Names{"InstanceID", "ElementName", "PreferredDomainID", "DomainIDLocked",
                   "PrincipalPriority"}));
  EXPECT_EQ(broker_.property(instance, "InstanceID"), "chars \"2000000DEC0A1B3C\"");
  EXPECT_EQ(broker_.property(instance, "ElementName"), "chars \"FC Switch Settings\"");
  EXPECT_EQ(broker_.property(instance, "PreferredDomainID"), "uint8 77");
  EXPECT_EQ(broker_.property(instance, "DomainIDLocked"), "boolean true");
  EXPECT_EQ(broker_.property(instance, "PrincipalPriority"), "uint16 3");
}

TEST_F(CmpiComputerSystem, OnlyDomainTypeOneIsLocked) {
  const struct {
    uint8_t type;
    const char* locked;
  } cases[] = {
      {0, "boolean false"}, {1, "boolean true"}, {2, "boolean false"}, {255, "boolean false"}};
  for (const auto& c : cases) {
    Script script;
    script.expect(records::own_switch_wwn()).replies(records::own_wwn());
    script.expect(records::domain_configuration_of_vsan_1())
        .replies(records::settings_1(1, c.type, 128));
    EXPECT_EQ(broker_.property(settings(), "DomainIDLocked"), c.locked) << int{c.type};
  }
}

TEST_F(CmpiComputerSystem, APriorityOf1Is2AndOf254Is3AndAnyOtherIs4) {
  const struct {
    uint8_t configured;
    const char* shown;
  } cases[] = {{1, "uint16 2"}, {254, "uint16 3"}, {128, "uint16 4"},
               {0, "uint16 4"}, {2, "uint16 4"},   {255, "uint16 4"}};
  for (const auto& c : cases) {
    Script script;
    script.expect(records::own_switch_wwn()).replies(records::own_wwn());
    script.expect(records::domain_configuration_of_vsan_1())
        .replies(records::settings_1(1, 2, c.configured));
    EXPECT_EQ(broker_.property(settings(), "PrincipalPriority"), c.shown) << int{c.configured};
  }
}

TEST_F(CmpiComputerSystem, WithoutTheDomainManagerTheSettingsHaveNoneOfTheThree) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  script.expect(records::domain_configuration_of_vsan_1()).status(17);
  EXPECT_EQ(broker_.property_names(settings()), (Names{"InstanceID", "ElementName"}));
}

TEST_F(CmpiComputerSystem, TheSettingsApplyThePropertyList) {
  Responder responder([](const Request&) { return Response::failed(17); });
  const char* properties[] = {"PrincipalPriority", "ElementName", nullptr};
  EXPECT_EQ(broker_.filter(settings(properties)), "[PrincipalPriority,ElementName] [InstanceID]");
  EXPECT_EQ(broker_.filter(settings()), "null [InstanceID]");
  EXPECT_EQ(broker_.filter(capabilities()), "null [InstanceID]");
}

TEST_F(CmpiComputerSystem, ABadPathOrInstanceMakesNeitherCapabilitiesNorSettingsAndAsksNothing) {
  Script script;
  HeapLedger ledger;
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(fcswitch_cap_fill_reference("VEXOR_FCSwitchCapabilities", kNamespace, broker_),
              nullptr);
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(fcswitch_set_fill_reference("VEXOR_FCSwitchSettings", kNamespace, broker_), nullptr);
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(capabilities(), nullptr);
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(settings(), nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(capabilities(), nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(settings(), nullptr);
  }
  EXPECT_EQ(script.calls(), 0u);
}

}  // namespace

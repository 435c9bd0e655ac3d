// The Pegasus face of switches and of their membership in VSANs, and class ComputerSystem.
#include <Pegasus/Common/System.h>
#include <cim_utils/cmpi_computer_system.h>
#include <cim_utils/computer_system.h>
#include <cim_utils/provider_util.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <new>
#include <optional>
#include <type_traits>

#include "tests/model/class_source_double.h"
#include "tests/model/computer_system_records.h"
#include "tests/model/pegasus_text.h"
#include "tests/model/switch_records.h"
#include "tests/model/switch_replies.h"
#include "tests/support/capture.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/os_double.h"
#include "tests/support/recording_broker.h"
#include "tests/support/transcript.h"

using namespace test_support;
using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMObject;
using Pegasus::CIMObjectPath;
using Pegasus::CIMValue;
using Pegasus::String;

namespace {

const String kNamespace("root/cimv2");
constexpr const char* kPhysical = "VEXOR_PhysicalComputerSystem";
constexpr const char* kLogical = "VEXOR_LogicalComputerSystem";
constexpr const char* kOwn = "2000000DEC0A1B3C";
constexpr const char* kOther = "2000000DEC0A1B4C";
constexpr const char* kNoText = nullptr;
constexpr unsigned char kRemote = 1;
constexpr int32_t kCmpiQueue = 9;

constexpr const char* kOwnPath =
    "path HOST root/cimv2 VEXOR_PhysicalComputerSystem\n"
    "key CreationClassName = VEXOR_PhysicalComputerSystem\n"
    "key Name = 2000000DEC0A1B3C\n";

class PegasusComputerSystem : public testing::Test {
 protected:
  PegasusComputerSystem() {
    ProviderUtil::mts_q = kQueue;
    system_.host_name("switch-1");
    system_.address("switch-1", 10, 0, 0, 1);
    for (const char* cls : {kPhysical, kLogical})
      classes_.define(
          cls, {"Name", "CreationClassName"},
          {"PermanentAddress", "NameFormat", "ElementName", "PrimarySwitch", "IPAddress",
           "EnabledState", "OtherIdentifyingInfo", "IdentifyingDescriptions", "OperationalStatus",
           "Dedicated", "OtherDedicatedDescriptions", "Caption", "Description", "Vendor"});
    classes_.define("VEXOR_Component", {"GroupComponent", "PartComponent"}, {});
  }
  ~PegasusComputerSystem() override {
    ProviderUtil::mts_q = -1;
    mts_q = -1;
  }

  static void expect_configuration(Script& script) {
    script.expect(records::domain_configuration_of_vsan_1())
        .replies(records::domain_configuration_1());
  }
  static void expect_address(Script& script) {
    script.expect(records::discovery()).sent();
    script.expect(records::peers_in_time()).receives(records::two_peers());
  }
  // Another switch's name is asked on the queue of the CMPI face.
  static void expect_name(Script& script) {
    mts_q = kCmpiQueue;
    script.expect(query_switch_addresses()).q(kCmpiQueue).sent();
    script.expect(records::addresses_in_time()).q(kCmpiQueue).receives(records::two_names());
  }

  // The traces, and then what was returned.
  template <class Value>
  void expect(const Value& value, const char* transcript) {
    expect_transcript(out_.out() + "\n---\n" + pegasus_text::of(value), transcript);
  }

  static bool has(const CIMInstance& instance, const char* property) {
    return instance.findProperty(CIMName(property)) != PEG_NOT_FOUND;
  }
  static std::string text_of(const CIMInstance& instance, const char* property) {
    const auto at = instance.findProperty(CIMName(property));
    if (at == PEG_NOT_FOUND) return "none";
    return std::string(instance.getProperty(at).getValue().toString().getCString());
  }

  OsDouble system_;
  ClassSourceDouble classes_;
  StdioCapture out_;
  vsanNewEntry_t vsan_ = records::vsan_10();
  mts_dm_sw_conf_ conf_ = records::configuration_10();
  fcs_cim_ie_ element_ = records::own_element();
  mts_dm_sw_dom_list_info_ domain_ = records::other_domain();
  wwn_ own_ = records::kOwnWwn;
  wwn_ other_ = records::kOtherWwn;
};

TEST_F(PegasusComputerSystem, TheOwnSwitchIsPrimaryAndEnabled) {
  Script script;
  expect_configuration(script);
  expect(ProviderUtil::switch_build_instance(kPhysical, kNamespace, kOwn, 0),
         "pegasus_switch_instance_local.txt");
}

TEST_F(PegasusComputerSystem, WithoutARecordTheOwnSwitchAsksForItsWwn) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  expect_configuration(script);
  expect(ProviderUtil::switch_build_instance(kPhysical, kNamespace),
         "pegasus_switch_instance_local.txt");
}

TEST_F(PegasusComputerSystem, ByItsWwnTheOwnSwitchIsTheSame) {
  Script script;
  expect_configuration(script);
  expect(ProviderUtil::switch_build_instance(kPhysical, kNamespace, &own_, 0),
         "pegasus_switch_instance_local.txt");
}

TEST_F(PegasusComputerSystem, AnotherSwitchIsNotPrimaryAndHasNoState) {
  Script script;
  expect_configuration(script);
  expect_address(script);
  expect_name(script);
  expect(ProviderUtil::switch_build_instance(kLogical, kNamespace, kOther, kRemote),
         "pegasus_switch_instance_remote.txt");
}

TEST_F(PegasusComputerSystem, ByItsWwnAnotherSwitchIsTheSame) {
  Script script;
  expect_configuration(script);
  expect_address(script);
  expect_name(script);
  expect(ProviderUtil::switch_build_instance(kLogical, kNamespace, &other_, kRemote),
         "pegasus_switch_instance_remote.txt");
}

TEST_F(PegasusComputerSystem, WithoutTheCmpiFacesQueueAnotherSwitchHasNoName) {
  Script script;
  expect_configuration(script);
  expect_address(script);
  script.expect(query_switch_addresses()).q(-1).fails(0x4033000a);
  const CIMInstance instance =
      ProviderUtil::switch_build_instance(kLogical, kNamespace, kOther, kRemote);
  EXPECT_FALSE(has(instance, "ElementName"));
  EXPECT_EQ(text_of(instance, "IPAddress"), "10.0.0.3");
}

TEST_F(PegasusComputerSystem, WithoutTheDomainManagerASwitchHasOnlyWhatNeedsNone) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1()).status(17);
  const CIMInstance instance =
      ProviderUtil::switch_build_instance(kPhysical, kNamespace, kOther, kRemote);
  for (const char* name :
       {"ElementName", "PrimarySwitch", "IPAddress", "EnabledState", "OtherIdentifyingInfo"})
    EXPECT_FALSE(has(instance, name)) << name;
  EXPECT_EQ(instance.getPropertyCount(), 11u);
}

TEST_F(PegasusComputerSystem, WithoutItsWwnTheOwnSwitchIsNamedNa) {
  Script script;
  script.expect(records::own_switch_wwn()).status(17);
  expect_configuration(script);
  script.expect(records::own_switch_wwn()).ok_without_reply();
  EXPECT_EQ(text_of(ProviderUtil::switch_build_instance(kPhysical, kNamespace), "Name"), "N/A");
  EXPECT_EQ(pegasus_text::of(ProviderUtil::switch_fill_reference(kPhysical, kNamespace)),
            "path HOST root/cimv2 VEXOR_PhysicalComputerSystem\n"
            "key CreationClassName = VEXOR_PhysicalComputerSystem\n"
            "key Name = N/A\n");
}

TEST_F(PegasusComputerSystem, AnElementsSwitchHasItsDomainAndTwoStatuses) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  expect(ProviderUtil::switch_build_instance(kLogical, kNamespace, &element_),
         "pegasus_switch_instance_ie.txt");
}

TEST_F(PegasusComputerSystem, AnElementThatCannotBeComparedHasNoState) {
  Script script;
  script.expect(records::own_switch_wwn()).status(17);
  EXPECT_EQ(
      text_of(ProviderUtil::switch_build_instance(kLogical, kNamespace, &element_), "EnabledState"),
      "5");
}

TEST_F(PegasusComputerSystem, ADomainsSwitchHasItsDomainAndTwoStatuses) {
  Script script;
  script.expect(records::entry_of_vsan_1()).replies(records::vsan_1(1));
  expect(ProviderUtil::switch_build_instance(kPhysical, kNamespace, &domain_),
         "pegasus_switch_instance_dm.txt");
}

TEST_F(PegasusComputerSystem, WithoutVsanOneADomainsSwitchHasNoEnabledState) {
  Script script;
  script.expect(records::entry_of_vsan_1()).status(17);
  const CIMInstance instance = ProviderUtil::switch_build_instance(kPhysical, kNamespace, &domain_);
  EXPECT_FALSE(has(instance, "EnabledState"));
  EXPECT_EQ(instance.getPropertyCount(), 8u);
}

TEST_F(PegasusComputerSystem, TheArraysHaveAsManyElementsAsTheirValues) {
  Script script;
  expect_configuration(script);
  const CIMInstance by_text = ProviderUtil::switch_build_instance(kPhysical, kNamespace, kOwn, 0);
  for (const char* name : {"OtherIdentifyingInfo", "IdentifyingDescriptions", "OperationalStatus",
                           "Dedicated", "OtherDedicatedDescriptions"}) {
    const CIMValue value = by_text.getProperty(by_text.findProperty(CIMName(name))).getValue();
    EXPECT_TRUE(value.isArray()) << name;
    EXPECT_EQ(value.getArraySize(), 1u) << name;
  }
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  const CIMInstance by_element =
      ProviderUtil::switch_build_instance(kPhysical, kNamespace, &element_);
  EXPECT_EQ(by_element.getProperty(by_element.findProperty(CIMName("OperationalStatus")))
                .getValue()
                .getArraySize(),
            2u);
}

TEST_F(PegasusComputerSystem, AReferenceHoldsTheWwnText) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  EXPECT_EQ(pegasus_text::of(ProviderUtil::switch_fill_reference(kPhysical, kNamespace)), kOwnPath);
  EXPECT_EQ(pegasus_text::of(ProviderUtil::switch_fill_reference(kPhysical, kNamespace, kOwn)),
            kOwnPath);
  EXPECT_EQ(pegasus_text::of(ProviderUtil::switch_fill_reference(kPhysical, kNamespace, &own_)),
            kOwnPath);
}

TEST_F(PegasusComputerSystem, AReferenceByARecordHoldsItsWwn) {
  EXPECT_EQ(pegasus_text::of(ProviderUtil::switch_fill_reference(kLogical, kNamespace, &element_)),
            "path HOST root/cimv2 VEXOR_LogicalComputerSystem\n"
            "key CreationClassName = VEXOR_LogicalComputerSystem\n"
            "key Name = 200A000DEC0A1B3D\n");
  EXPECT_EQ(pegasus_text::of(ProviderUtil::switch_fill_reference(kLogical, kNamespace, &domain_)),
            "path HOST root/cimv2 VEXOR_LogicalComputerSystem\n"
            "key CreationClassName = VEXOR_LogicalComputerSystem\n"
            "key Name = 200A000DEC0A1B4D\n");
}

TEST_F(PegasusComputerSystem, NoTextAndNoRecordMakeAnUninitializedSwitch) {
  wwn_* no_wwn = nullptr;
  fcs_cim_ie_* no_element = nullptr;
  mts_dm_sw_dom_list_info_* no_entry = nullptr;
  const CIMInstance instances[] = {
      ProviderUtil::switch_build_instance(kPhysical, kNamespace, kNoText, 0),
      ProviderUtil::switch_build_instance(kPhysical, kNamespace, no_wwn, 0),
      ProviderUtil::switch_build_instance(kPhysical, kNamespace, no_element),
      ProviderUtil::switch_build_instance(kPhysical, kNamespace, no_entry)};
  for (const CIMInstance& instance : instances)
    EXPECT_TRUE(instance.isUninitialized());
  const CIMObjectPath paths[] = {
      ProviderUtil::switch_fill_reference(kPhysical, kNamespace, kNoText),
      ProviderUtil::switch_fill_reference(kPhysical, kNamespace, no_wwn),
      ProviderUtil::switch_fill_reference(kPhysical, kNamespace, no_element),
      ProviderUtil::switch_fill_reference(kPhysical, kNamespace, no_entry)};
  for (const CIMObjectPath& path : paths)
    EXPECT_TRUE(path.getClassName().isNull());
  EXPECT_EQ(out_.out(), "");
}

TEST_F(PegasusComputerSystem, AnObjectIsTheInstance) {
  Responder responder([](const Request&) { return Response::failed(17); });
  const std::pair<CIMObject, CIMInstance> pairs[] = {
      {ProviderUtil::switch_build_object(kPhysical, kNamespace),
       ProviderUtil::switch_build_instance(kPhysical, kNamespace)},
      {ProviderUtil::switch_build_object(kPhysical, kNamespace, kOther, kRemote),
       ProviderUtil::switch_build_instance(kPhysical, kNamespace, kOther, kRemote)},
      {ProviderUtil::switch_build_object(kPhysical, kNamespace, &own_, 0),
       ProviderUtil::switch_build_instance(kPhysical, kNamespace, &own_, 0)},
      {ProviderUtil::switch_build_object(kPhysical, kNamespace, &element_),
       ProviderUtil::switch_build_instance(kPhysical, kNamespace, &element_)},
      {ProviderUtil::switch_build_object(kPhysical, kNamespace, &domain_),
       ProviderUtil::switch_build_instance(kPhysical, kNamespace, &domain_)},
      {ProviderUtil::component_build_object("VEXOR_Component", kNamespace, &vsan_, &conf_,
                                            &element_),
       ProviderUtil::component_build_instance("VEXOR_Component", kNamespace, &vsan_, &conf_,
                                              &element_)},
  };
  for (const auto& [object, instance] : pairs) {
    ASSERT_TRUE(object.isInstance());
    EXPECT_EQ(pegasus_text::of(CIMInstance(object)), pegasus_text::of(instance));
  }
}

TEST_F(PegasusComputerSystem, AComponentTiesTheSwitchToTheVsan) {
  expect(ProviderUtil::component_build_instance("VEXOR_Component", kNamespace, &vsan_, &conf_,
                                                &element_),
         "pegasus_component_ie_instance.txt");
}

TEST_F(PegasusComputerSystem, AComponentsReferenceHoldsBothEnds) {
  expect(ProviderUtil::component_fill_reference("VEXOR_Component", kNamespace, &vsan_, &conf_,
                                                &element_),
         "pegasus_component_ie_reference.txt");
}

TEST_F(PegasusComputerSystem, AnElementWithoutAVsanIsAPhysicalSwitchInItsComponent) {
  element_.wwn = records::kOwnWwn;
  const CIMObjectPath path = ProviderUtil::component_fill_reference("VEXOR_Component", kNamespace,
                                                                    &vsan_, &conf_, &element_);
  EXPECT_NE(pegasus_text::of(path).find("key PartComponent = //HOST/root/cimv2:"
                                        "VEXOR_PhysicalComputerSystem."),
            std::string::npos);
}

TEST_F(PegasusComputerSystem, AComponentLeavesOutAnEndWithoutARecord) {
  const CIMInstance without_switch = ProviderUtil::component_build_instance(
      "VEXOR_Component", kNamespace, &vsan_, &conf_, nullptr);
  EXPECT_TRUE(has(without_switch, "GroupComponent"));
  EXPECT_FALSE(has(without_switch, "PartComponent"));
  const CIMObjectPath without_vsan = ProviderUtil::component_fill_reference(
      "VEXOR_Component", kNamespace, nullptr, &conf_, &element_);
  ASSERT_EQ(without_vsan.getKeyBindings().size(), 1u);
  EXPECT_TRUE(without_vsan.getKeyBindings()[0].getName().equal(CIMName("PartComponent")));
}

TEST_F(PegasusComputerSystem, AComponentOfTwoReferencesHoldsThem) {
  const CIMObjectPath group("root/cimv2:VEXOR_First.Name=\"1\"");
  const CIMObjectPath part("root/cimv2:VEXOR_Second.Name=\"2\"");
  const std::string path =
      "path HOST root/cimv2 VEXOR_Component\n"
      "key GroupComponent = root/cimv2:VEXOR_First.Name=\"1\"\n"
      "key PartComponent = root/cimv2:VEXOR_Second.Name=\"2\"\n";
  const std::string instance =
      "instance VEXOR_Component\n"
      "  [Version]\n"
      "property GroupComponent reference root/cimv2:VEXOR_First.Name=\"1\"\n"
      "  [Key]\n"
      "property PartComponent reference root/cimv2:VEXOR_Second.Name=\"2\"\n"
      "  [Key]\n" +
      path;
  EXPECT_EQ(pegasus_text::of(
                ProviderUtil::component_fill_reference("VEXOR_Component", kNamespace, group, part)),
            path);
  EXPECT_EQ(pegasus_text::of(
                ProviderUtil::component_build_instance("VEXOR_Component", kNamespace, group, part)),
            instance);
  EXPECT_EQ(pegasus_text::of(CIMInstance(
                ProviderUtil::component_build_object("VEXOR_Component", kNamespace, group, part))),
            instance);
}

TEST_F(PegasusComputerSystem, QualifiersComeFromOneNamespaceWhateverTheInstances) {
  Responder responder([](const Request&) { return Response::failed(17); });
  const CIMObjectPath end("root/cimv2:VEXOR_End.Name=\"1\"");
  ProviderUtil::switch_build_instance(kPhysical, "root/another", kOwn, 0);
  ProviderUtil::component_build_instance("VEXOR_Component", "root/another", end, end);
  EXPECT_EQ(classes_.asked_in(), (std::vector<std::string>{"root/cimv2", "root/cimv2"}));
}

TEST_F(PegasusComputerSystem, EveryFailingAllocationOfASwitchIsTheCallersException) {
  Responder responder([](const Request& request) {
    return request.opcode == 264 ? Response::with(records::domain_configuration_1())
                                 : Response::with(records::own_wwn());
  });
  const std::function<CIMInstance()> builders[] = {
      [this] { return ProviderUtil::switch_build_instance(kPhysical, kNamespace); },
      [this] { return ProviderUtil::switch_build_instance(kPhysical, kNamespace, &element_); },
      [this] {
        return ProviderUtil::component_build_instance("VEXOR_Component", kNamespace, &vsan_, &conf_,
                                                      &element_);
      },
  };
  for (const auto& build : builders) {
    const std::string whole = pegasus_text::of(build());
    const size_t rounds = for_every_failing_allocation([&](FailingAllocation& round) {
      std::optional<CIMInstance> built;
      round.attempt([&] {
        try {
          built = build();
        } catch (const std::bad_alloc&) {
        }
      });
      // Sorting the keys gets along without the memory that it asks for.
      EXPECT_TRUE(built.has_value() || round.was_hit()) << round.n();
      if (built.has_value()) {
        EXPECT_EQ(pegasus_text::of(*built), whole) << round.n();
      }
    });
    EXPECT_GT(rounds, 20u);
  }
}

TEST_F(PegasusComputerSystem, ASwitchesReferenceDiffersBetweenTheFacesInItsHostOnly) {
  mts_q = kQueue;
  system_.host_name("not-the-machines-own");
  RecordingBroker broker;
  Responder responder([](const Request&) { return Response::with(records::own_wwn()); });
  const std::pair<CMPIObjectPath*, CIMObjectPath> pairs[] = {
      {switch_fill_reference(kPhysical, "root/cimv2", broker),
       ProviderUtil::switch_fill_reference(kPhysical, kNamespace)},
      {switch_fill_reference_str(kPhysical, "root/cimv2", kOwn, broker),
       ProviderUtil::switch_fill_reference(kPhysical, kNamespace, kOwn)},
      {switch_fill_reference_wwn(kPhysical, "root/cimv2", &own_, broker),
       ProviderUtil::switch_fill_reference(kPhysical, kNamespace, &own_)},
      {switch_fill_reference_ie(kPhysical, "root/cimv2", &element_, broker),
       ProviderUtil::switch_fill_reference(kPhysical, kNamespace, &element_)},
      {switch_fill_reference_dm(kPhysical, "root/cimv2", &domain_, broker),
       ProviderUtil::switch_fill_reference(kPhysical, kNamespace, &domain_)},
  };
  for (const auto& [cmpi, pegasus] : pairs) {
    EXPECT_EQ("path HOST " + broker.name_space(cmpi) + " " + broker.class_name(cmpi) +
                  "\nkey CreationClassName = " + broker.key_text(cmpi, "CreationClassName") +
                  "\nkey Name = " + broker.key_text(cmpi, "Name") + "\n",
              pegasus_text::of(pegasus));
    EXPECT_EQ(broker.host(cmpi), "not-the-machines-own");
    EXPECT_TRUE(String::equal(pegasus.getHost(), Pegasus::System::getHostName()));
  }
}

TEST_F(PegasusComputerSystem, TheNameOfTheOwnSwitchIsItsWwn) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  ComputerSystem system;
  EXPECT_STREQ(system.getName(), kOwn);
}

TEST_F(PegasusComputerSystem, WithoutItsWwnTheOwnSwitchesNameIsNa) {
  Script script;
  script.expect(records::own_switch_wwn()).times_out();
  ComputerSystem system;
  EXPECT_STREQ(system.getName(), "N/A");
}

TEST_F(PegasusComputerSystem, AComputerSystemAsksOnItsOwnQueue) {
  Script script;
  script.expect(records::own_switch_wwn()).q(23).replies(records::own_wwn());
  script.expect(records::own_switch_wwn()).q(kQueue).replies(records::own_wwn());
  ComputerSystem(23).getName();
  ComputerSystem().getName();
}

TEST_F(PegasusComputerSystem, AComputerSystemsTextIsItsOwn) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  script.expect(records::own_switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 4c"));
  ComputerSystem one;
  ComputerSystem other;
  const char* name = one.getName();
  other.getName();
  EXPECT_STREQ(name, kOwn);
  EXPECT_NE(name, static_cast<const char*>(newswitch_buf));
}

TEST_F(PegasusComputerSystem, AComputerSystemsFirstMemberIsItsQueue) {
  static_assert(!std::is_polymorphic_v<ComputerSystem>);
  EXPECT_EQ(sizeof(ComputerSystem), sizeof(int) + 256);
  const ComputerSystem system(23);
  int first;
  std::memcpy(&first, static_cast<const void*>(&system), sizeof first);
  EXPECT_EQ(first, 23);
}

}  // namespace

// The CMPI face of the fabric, its VSANs and their containment.
#include <cim_utils/cmpi_switch.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include "tests/model/switch_records.h"
#include "tests/model/switch_replies.h"
#include "tests/support/capture.h"
#include "tests/support/double_mts.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/os_double.h"
#include "tests/support/recording_broker.h"
#include "tests/support/transcript.h"

using namespace test_support;

namespace {

using Failure = RecordingBroker::Failure;

constexpr const char* kNamespace = "root/cimv2";

class CmpiSwitch : public testing::Test {
 protected:
  CmpiSwitch() {
    mts_q = kQueue;
    system_.host_name("switch-1");
  }
  ~CmpiSwitch() override { mts_q = -1; }

  CMPIInstance* vsan_instance() {
    return vsan_build_instance("VEXOR_Vsan", kNamespace, &vsan_, &conf_, nullptr, broker_);
  }
  CMPIObjectPath* vsan_path() {
    return vsan_fill_reference("VEXOR_Vsan", kNamespace, &vsan_, &conf_, broker_);
  }

  OsDouble system_;
  RecordingBroker broker_;
  StdioCapture out_;
  vsanNewEntry_t vsan_ = records::vsan_10();
  mts_dm_sw_conf_ conf_ = records::configuration_10();
};

TEST_F(CmpiSwitch, AnActiveVsanIsNamedByItsWwn) {
  ASSERT_NE(vsan_instance(), nullptr);
  expect_transcript(out_.out(), "cmpi_vsan_instance_active.txt");
}

TEST_F(CmpiSwitch, ASuspendedVsanIsNamedByItsNumber) {
  vsan_.admin_state = 2;
  vsan_.oper_state = 2;
  vsan_.load_balancing_type = 1;
  ASSERT_NE(vsan_instance(), nullptr);
  expect_transcript(out_.out(), "cmpi_vsan_instance_suspended.txt");
}

TEST_F(CmpiSwitch, AVsanOfNoKeyFormHasNoNameAndOneOfNoBalancingTypeSaysSo) {
  vsan_.admin_state = 3;
  vsan_.load_balancing_type = 7;
  ASSERT_NE(vsan_instance(), nullptr);
  expect_transcript(out_.out(), "cmpi_vsan_instance_no_key_form.txt");
}

TEST_F(CmpiSwitch, AVsanWithoutADomainManagerRecordHasNoNameAndSaysSo) {
  ASSERT_NE(vsan_build_instance("VEXOR_Vsan", kNamespace, &vsan_, nullptr, nullptr, broker_),
            nullptr);
  expect_transcript(out_.out(), "cmpi_vsan_instance_key_error.txt");
}

TEST_F(CmpiSwitch, AVsanIgnoresThePropertyList) {
  const char* properties[] = {"VsanId", nullptr};
  ASSERT_NE(vsan_build_instance("VEXOR_Vsan", kNamespace, &vsan_, &conf_, properties, broker_),
            nullptr);
  expect_transcript(out_.out(), "cmpi_vsan_instance_active.txt");
}

TEST_F(CmpiSwitch, TheVsanNameIsCutTo127CharactersAndTheNumberTo16Bits) {
  std::memset(vsan_.name, 'n', sizeof vsan_.name);
  vsan_.vsan_index = 0x10005;
  CMPIInstance* instance = vsan_instance();
  ASSERT_NE(instance, nullptr);
  EXPECT_EQ(broker_.property(instance, "ElementName"), "chars \"" + std::string(127, 'n') + "\"");
  EXPECT_EQ(broker_.property(instance, "VsanId"), "uint16 5");
}

TEST_F(CmpiSwitch, AnActiveVsansReferenceHoldsItsWwn) {
  ASSERT_NE(vsan_path(), nullptr);
  expect_transcript(out_.out(), "cmpi_vsan_reference_active.txt");
}

TEST_F(CmpiSwitch, ASuspendedVsansReferenceHoldsItsNumber) {
  vsan_.admin_state = 2;
  CMPIObjectPath* path = vsan_path();
  ASSERT_NE(path, nullptr);
  EXPECT_EQ(broker_.key(path, "Name"), "chars \"0000000000000000:10\"");
}

TEST_F(CmpiSwitch, AReferenceOfNoKeyFormHasAnEmptyName) {
  vsan_.admin_state = 0;
  CMPIObjectPath* path = vsan_path();
  ASSERT_NE(path, nullptr);
  EXPECT_EQ(broker_.key(path, "Name"), "chars \"\"");
}

TEST_F(CmpiSwitch, AReferenceWithoutADomainManagerRecordHoldsTheErrorText) {
  CMPIObjectPath* path = vsan_fill_reference("VEXOR_Vsan", kNamespace, &vsan_, nullptr, broker_);
  ASSERT_NE(path, nullptr);
  EXPECT_EQ(broker_.key(path, "Name"), "chars \"error during get vsan id\"");
}

TEST_F(CmpiSwitch, NoVsanRecordMakesNothing) {
  EXPECT_EQ(vsan_build_instance("VEXOR_Vsan", kNamespace, nullptr, &conf_, nullptr, broker_),
            nullptr);
  EXPECT_EQ(vsan_fill_reference("VEXOR_Vsan", kNamespace, nullptr, &conf_, broker_), nullptr);
  EXPECT_EQ(broker_.calls(), 0u);
}

TEST_F(CmpiSwitch, AVsanReferenceOfABadPathIsWhatTheBrokerGave) {
  broker_.fail_nth_path(1, Failure::null_object);
  EXPECT_EQ(vsan_path(), nullptr);
  broker_.fail_nth_path(1, Failure::null_handle);
  CMPIObjectPath* path = vsan_path();
  ASSERT_NE(path, nullptr);
  EXPECT_EQ(path->hdl, nullptr);
  EXPECT_EQ(broker_.calls(), 2u);  // neither host nor keys
}

TEST_F(CmpiSwitch, AVsanInstanceOfABadPathOrInstanceIsNone) {
  HeapLedger ledger;
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(vsan_instance(), nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(vsan_instance(), nullptr);
  }
}

TEST_F(CmpiSwitch, EveryFailingAllocationOfAVsanInstanceGivesNone) {
  broker_.write_down(false);
  const size_t rounds = for_every_failing_allocation(
      [this](FailingAllocation& round) {
        CMPIInstance* instance = round.attempt([this] { return vsan_instance(); });
        EXPECT_EQ(instance == nullptr, round.was_hit());
      },
      Heap::c);
  EXPECT_EQ(rounds, 4u);  // the key-name list: three blocks
}

TEST_F(CmpiSwitch, AVsanAllocatesItsKeyNamesAndNothingElse) {
  HeapLedger ledger;
  ASSERT_NE(vsan_instance(), nullptr);
  EXPECT_EQ(ledger.allocations(Heap::c), 3u);
  ASSERT_NE(vsan_path(), nullptr);
  EXPECT_EQ(ledger.allocations(Heap::c), 3u);
}

TEST_F(CmpiSwitch, TheFabricIsNamedByVsanOne) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1());
  script.expect(records::entry_of_vsan_1()).replies(records::vsan_1(1));
  ASSERT_NE(fabric_build_instance("VEXOR_AdminDomain", kNamespace, nullptr, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_fabric_instance.txt");
}

TEST_F(CmpiSwitch, WithoutTheDomainManagerTheFabricHasAFixedName) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1()).status(17);
  script.expect(records::entry_of_vsan_1()).replies(records::vsan_1(2));
  ASSERT_NE(fabric_build_instance("VEXOR_AdminDomain", kNamespace, nullptr, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_fabric_instance_no_domain_manager.txt");
}

TEST_F(CmpiSwitch, WithoutVsanOneTheFabricHasNeitherNameNorStatus) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1());
  script.expect(records::entry_of_vsan_1()).status(17);
  CMPIInstance* fabric = fabric_build_instance("VEXOR_AdminDomain", kNamespace, nullptr, broker_);
  ASSERT_NE(fabric, nullptr);
  EXPECT_EQ(broker_.property_names(fabric),
            (std::vector<std::string>{"NameFormat", "Name", "CreationClassName"}));
}

TEST_F(CmpiSwitch, AnotherStateOfVsanOneSetsNoStatus) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1());
  script.expect(records::entry_of_vsan_1()).replies(records::vsan_1(3));
  CMPIInstance* fabric = fabric_build_instance("VEXOR_AdminDomain", kNamespace, nullptr, broker_);
  ASSERT_NE(fabric, nullptr);
  EXPECT_EQ(broker_.property_names(fabric),
            (std::vector<std::string>{"NameFormat", "Name", "ElementName", "CreationClassName"}));
}

TEST_F(CmpiSwitch, TheFabricIgnoresThePropertyList) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1());
  script.expect(records::entry_of_vsan_1()).replies(records::vsan_1(1));
  const char* properties[] = {"Status", nullptr};
  ASSERT_NE(fabric_build_instance("VEXOR_AdminDomain", kNamespace, properties, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_fabric_instance.txt");
}

TEST_F(CmpiSwitch, TheFabricReferenceHoldsItsName) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1());
  ASSERT_NE(fabric_fill_reference("VEXOR_AdminDomain", kNamespace, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_fabric_reference.txt");
}

TEST_F(CmpiSwitch, ABadPathOrInstanceMakesNoFabricAndAsksNothing) {
  Script script;
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(fabric_fill_reference("VEXOR_AdminDomain", kNamespace, broker_), nullptr);
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(fabric_build_instance("VEXOR_AdminDomain", kNamespace, nullptr, broker_), nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(fabric_build_instance("VEXOR_AdminDomain", kNamespace, nullptr, broker_), nullptr);
  }
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(CmpiSwitch, EveryFailingAllocationOfAFabricInstanceGivesNone) {
  Responder responder([](const Request&) { return Response::failed(17); });
  broker_.write_down(false);
  const size_t rounds = for_every_failing_allocation(
      [this](FailingAllocation& round) {
        CMPIInstance* instance = round.attempt([this] {
          return fabric_build_instance("VEXOR_AdminDomain", kNamespace, nullptr, broker_);
        });
        EXPECT_EQ(instance == nullptr, round.was_hit());
      },
      Heap::c);
  EXPECT_EQ(rounds, 4u);
}

TEST_F(CmpiSwitch, AContainedDomainTiesTheFabricToTheVsan) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1());
  ASSERT_NE(
      contained_domain_build_instance("VEXOR_ContainedDomain", kNamespace, &vsan_, &conf_, broker_),
      nullptr);
  expect_transcript(out_.out(), "cmpi_contained_domain_instance.txt");
}

TEST_F(CmpiSwitch, AContainedDomainsReferenceHoldsBothEnds) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1());
  ASSERT_NE(
      contained_domain_fill_reference("VEXOR_ContainedDomain", kNamespace, &vsan_, &conf_, broker_),
      nullptr);
  expect_transcript(out_.out(), "cmpi_contained_domain_reference.txt");
}

TEST_F(CmpiSwitch, AContainedDomainOfABadPathOrInstanceIsNone) {
  Responder responder([](const Request&) { return Response::failed(17); });
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_path(3, how);  // behind the two ends
    EXPECT_EQ(contained_domain_fill_reference("VEXOR_ContainedDomain", kNamespace, &vsan_, &conf_,
                                              broker_),
              nullptr);
    broker_.fail_nth_path(3, how);
    EXPECT_EQ(contained_domain_build_instance("VEXOR_ContainedDomain", kNamespace, &vsan_, &conf_,
                                              broker_),
              nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(contained_domain_build_instance("VEXOR_ContainedDomain", kNamespace, &vsan_, &conf_,
                                              broker_),
              nullptr);
  }
}

TEST_F(CmpiSwitch, AContainedDomainLeavesOutAnEndThatTheBrokerDidNotGive) {
  Responder responder([](const Request&) { return Response::failed(17); });
  broker_.fail_nth_path(1, Failure::null_object);
  CMPIInstance* instance =
      contained_domain_build_instance("VEXOR_ContainedDomain", kNamespace, &vsan_, &conf_, broker_);
  ASSERT_NE(instance, nullptr);
  EXPECT_EQ(broker_.property_names(instance), std::vector<std::string>{"PartComponent"});
}

TEST_F(CmpiSwitch, AConnectivityCollectionIsKnownByItsNumber) {
  ASSERT_NE(connectivity_collection_build_instance("VEXOR_ConnectivityCollection", kNamespace, 10,
                                                   broker_),
            nullptr);
  ASSERT_NE(connectivity_collection_fill_reference("VEXOR_ConnectivityCollection", kNamespace,
                                                   -2147483647 - 1, broker_),
            nullptr);
  expect_transcript(out_.out(), "cmpi_connectivity_collection.txt");
}

TEST_F(CmpiSwitch, AConnectivityCollectionOfABadPathOrInstanceIsNone) {
  const auto instance = [this] {
    return connectivity_collection_build_instance("VEXOR_ConnectivityCollection", kNamespace, 10,
                                                  broker_);
  };
  const auto path = [this] {
    return connectivity_collection_fill_reference("VEXOR_ConnectivityCollection", kNamespace, 10,
                                                  broker_);
  };
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(instance(), nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(instance(), nullptr);
  }
  broker_.fail_nth_path(1, Failure::null_object);
  EXPECT_EQ(path(), nullptr);
  broker_.fail_nth_path(1, Failure::null_handle);
  CMPIObjectPath* unusable = path();
  ASSERT_NE(unusable, nullptr);
  EXPECT_EQ(unusable->hdl, nullptr);
}

TEST_F(CmpiSwitch, EveryFailingAllocationOfAConnectivityCollectionGivesNone) {
  broker_.write_down(false);
  const size_t rounds = for_every_failing_allocation(
      [this](FailingAllocation& round) {
        CMPIInstance* instance = round.attempt([this] {
          return connectivity_collection_build_instance("VEXOR_ConnectivityCollection", kNamespace,
                                                        10, broker_);
        });
        EXPECT_EQ(instance == nullptr, round.was_hit());
      },
      Heap::c);
  EXPECT_EQ(rounds, 3u);
}

}  // namespace

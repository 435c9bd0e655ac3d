// The CMPI face of the ports' statistics.
#include <cim_utils/cmpi_ports.h>
#include <gtest/gtest.h>

#include "tests/model/port_records.h"
#include "tests/support/capture.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/recording_broker.h"
#include "tests/support/transcript.h"

using namespace test_support;

namespace {

using Failure = RecordingBroker::Failure;

constexpr const char* kNamespace = "root/cimv2";
constexpr const char* kStatistics = "VEXOR_FCPortStatistics";
constexpr const char* kData = "VEXOR_FCPortStatisticalData";

class CmpiPortStatistics : public testing::Test {
 protected:
  CMPIInstance* statistics(const Bytes& block, const char** properties = nullptr) {
    const auto counters = records::record_of<fcIfAllCounters_t>(block);
    return fcport_stat_build_instance(kStatistics, kNamespace, &counters, properties, broker_);
  }

  RecordingBroker broker_;
  StdioCapture out_;
};

// Received frames are the packets transmitted, and the other way round, deliberately.
TEST_F(CmpiPortStatistics, EachStatisticIsTheCounterOfItsOffset) {
  const char* properties[] = {"CRCErrors", nullptr};
  ASSERT_NE(statistics(records::counters_by_offset(records::kFc12), properties), nullptr);
  expect_transcript(out_.out(), "cmpi_port_statistics_instance.txt");
}

TEST_F(CmpiPortStatistics, CountersAndSumsHave64Bits) {
  CMPIInstance* made = statistics(Record(600)
                                      .host32(0, records::kFc11)
                                      .host64(24, 0xfffffffffffffffeu)
                                      .host64(96, 3)
                                      .host64(32, 0x100000000u)
                                      .host64(104, 1)
                                      .host64(200, 0xffffffffffffffffu));
  EXPECT_EQ(broker_.property(made, "BytesReceived"), "uint64 1");  // a counter that went round
  EXPECT_EQ(broker_.property(made, "BytesTransmitted"), "uint64 4294967297");
  EXPECT_EQ(broker_.property(made, "CRCErrors"), "uint64 18446744073709551615");
}

TEST_F(CmpiPortStatistics, StatisticsAreKnownByTheUnsignedIndex) {
  const struct {
    uint32_t if_index;
    const char* id;
  } cases[] = {{16777216, "16777216"}, {0, "0"}, {4294967295u, "4294967295"}};
  for (const auto& c : cases) {
    CMPIObjectPath* path = fcport_stat_fill_reference(kNamespace, kStatistics, c.if_index, broker_);
    EXPECT_EQ(broker_.key_names(path), std::vector<std::string>{"InstanceID"});
    EXPECT_EQ(broker_.key_text(path, "InstanceID"), c.id);
    EXPECT_EQ(broker_.class_name(path), kStatistics);
    EXPECT_EQ(broker_.name_space(path), kNamespace);
    EXPECT_EQ(broker_.host(path), "switch-1");
    EXPECT_EQ(broker_.property_text(statistics(Record(600).host32(0, c.if_index)), "InstanceID"),
              c.id);
  }
}

TEST_F(CmpiPortStatistics, APortIsTiedToItsStatistics) {
  const pm_port_info_ port = records::fc12();
  ASSERT_NE(port_stat_build_instance_pm(kData, kNamespace, &port, broker_), nullptr);
  ASSERT_NE(port_stat_fill_reference_pm(kData, kNamespace, &port, broker_), nullptr);
  expect_transcript(out_.out(), "cmpi_port_statistical_data.txt");
}

TEST_F(CmpiPortStatistics, AnEthernetPortIsTiedByItsOwnReference) {
  const pm_port_info_ port = records::port_of(records::kFcip7);
  CMPIInstance* made = port_stat_build_instance_pm(kData, kNamespace, &port, broker_);
  const CMPIObjectPath* end = broker_.property_reference(made, "ManagedElement");
  EXPECT_EQ(broker_.class_name(end), "VEXOR_EthernetPort");
  EXPECT_EQ(broker_.key_text(end, "SystemName"), "fcip7");
}

TEST_F(CmpiPortStatistics, TwoGivenReferencesAreTied) {
  CMPIObjectPath* port = fcport_stat_fill_reference(kNamespace, "A", 1, broker_);
  CMPIObjectPath* statistics = fcport_stat_fill_reference(kNamespace, "B", 2, broker_);
  CMPIObjectPath* path = port_stat_fill_reference(kData, kNamespace, port, statistics, broker_);
  EXPECT_EQ(broker_.class_name(path), kData);
  EXPECT_EQ(broker_.key_reference(path, "ManagedElement"), port);
  EXPECT_EQ(broker_.key_reference(path, "Stats"), statistics);
  CMPIInstance* made = port_stat_build_instance(kData, kNamespace, port, statistics, broker_);
  EXPECT_EQ(broker_.class_name(made), kData);
  EXPECT_EQ(broker_.property_reference(made, "ManagedElement"), port);
  EXPECT_EQ(broker_.property_reference(made, "Stats"), statistics);
}

TEST_F(CmpiPortStatistics, ANullEndIsLeftOut) {
  CMPIObjectPath* port = fcport_stat_fill_reference(kNamespace, "A", 1, broker_);
  CMPIInstance* made = port_stat_build_instance(kData, kNamespace, port, nullptr, broker_);
  EXPECT_EQ(broker_.property_names(made), std::vector<std::string>{"ManagedElement"});
  CMPIObjectPath* path = port_stat_fill_reference(kData, kNamespace, nullptr, port, broker_);
  EXPECT_EQ(broker_.key_names(path), std::vector<std::string>{"Stats"});
}

TEST_F(CmpiPortStatistics, AnEndThatTheBrokerDoesNotGiveIsLeftOut) {
  const pm_port_info_ port = records::fc12();
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_path(1, how);
    CMPIInstance* made = port_stat_build_instance_pm(kData, kNamespace, &port, broker_);
    EXPECT_EQ(broker_.property_names(made), std::vector<std::string>{"Stats"});
    broker_.fail_nth_path(2, how);
    CMPIObjectPath* path = port_stat_fill_reference_pm(kData, kNamespace, &port, broker_);
    EXPECT_EQ(broker_.key_names(path), std::vector<std::string>{"ManagedElement"});
  }
}

TEST_F(CmpiPortStatistics, NoRecordMakesNothing) {
  EXPECT_EQ(fcport_stat_build_instance(kStatistics, kNamespace, nullptr, nullptr, broker_),
            nullptr);
  EXPECT_EQ(port_stat_fill_reference_pm(kData, kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(port_stat_build_instance_pm(kData, kNamespace, nullptr, broker_), nullptr);
  EXPECT_EQ(broker_.calls(), 0u);
}

TEST_F(CmpiPortStatistics, ABadPathOrInstanceIsNone) {
  const pm_port_info_ port = records::fc12();
  CMPIObjectPath* end = fcport_stat_fill_reference(kNamespace, "A", 1, broker_);
  HeapLedger ledger;
  broker_.write_down(false);
  for (const Failure how : {Failure::null_object, Failure::null_handle}) {
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(fcport_stat_fill_reference(kNamespace, kStatistics, 1, broker_), nullptr);
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(statistics(Record(600)), nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(statistics(Record(600)), nullptr);
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(port_stat_fill_reference(kData, kNamespace, end, end, broker_), nullptr);
    broker_.fail_nth_path(1, how);
    EXPECT_EQ(port_stat_build_instance(kData, kNamespace, end, end, broker_), nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(port_stat_build_instance(kData, kNamespace, end, end, broker_), nullptr);
    // Behind the paths of the two ends.
    broker_.fail_nth_path(3, how);
    EXPECT_EQ(port_stat_fill_reference_pm(kData, kNamespace, &port, broker_), nullptr);
    broker_.fail_nth_path(3, how);
    EXPECT_EQ(port_stat_build_instance_pm(kData, kNamespace, &port, broker_), nullptr);
    broker_.fail_nth_instance(1, how);
    EXPECT_EQ(port_stat_build_instance_pm(kData, kNamespace, &port, broker_), nullptr);
  }
}

TEST_F(CmpiPortStatistics, WithoutMemoryForItsKeyThereAreNoStatistics) {
  broker_.write_down(false);
  const Bytes block = Record(600);
  const size_t rounds = for_every_failing_allocation(
      [&](FailingAllocation& round) {
        CMPIInstance* made = round.attempt([&] { return statistics(block); });
        EXPECT_EQ(made == nullptr, round.was_hit());
      },
      Heap::c);
  EXPECT_EQ(rounds, 3u);
}

}  // namespace

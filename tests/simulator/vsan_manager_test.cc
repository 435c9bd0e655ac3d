#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;

class VsanManager : public SimulatorTest {
 protected:
  Result entry(uint32_t operation, const char* vsan_in_hex) {
    return call(15, 149, operation, Pattern(2632).at(520, vsan_in_hex).bytes());
  }

  static Pattern first_vsan() {
    return Pattern(2632)
        .at(520, "00000001")  // number
        .at(528, "00000001")  // active
        .at(544, "00000002")  // by source, destination and exchange
        .at(552, "00000001")  // up
        .text(556, "VSAN0001");
  }
  static Pattern second_vsan() {
    return Pattern(2632)
        .at(520, "00000002")
        .at(528, "00000001")
        .at(544, "00000001")  // by source and destination
        .at(552, "00000001")
        .text(556, "VSAN0002");
  }
};

TEST_F(VsanManager, GetAnswersTheEntryOfTheVsan) {
  expect_reply(entry(1, "00000001"), first_vsan());
  expect_reply(entry(1, "00000002"), second_vsan());
}

TEST_F(VsanManager, GetNextWalksTheVsansInRisingOrder) {
  expect_reply(entry(2, "00000000"), first_vsan());
  expect_reply(entry(2, "00000001"), second_vsan());
  expect_refused(entry(2, "00000002"), kEndOfTable);
  expect_refused(entry(2, "ffffffff"), kEndOfTable);
}

TEST_F(VsanManager, AnUnknownVsanIsNotFound) {
  expect_refused(entry(1, "00000003"), kNotFound);
  expect_refused(entry(1, "00000000"), kNotFound);
}

TEST_F(VsanManager, ARequestOfAnotherLengthIsRefused) {
  expect_refused(call(15, 149, 1, Pattern(2631).bytes()), kBadLength);
  expect_refused(call(15, 149, 1, Pattern(2633).bytes()), kBadLength);
  expect_refused(call(15, 149, 1, {}), kBadLength);
}

TEST_F(VsanManager, AnUnknownOperationIsRefused) {
  expect_refused(entry(4, "00000001"), kBadOperation);
}

TEST_F(VsanManager, TheCountIsThatOfAllVsans) {
  expect_reply(call(15, 125, 1, {}), Pattern(4).at(0, "00000002"));
  expect_refused(call(15, 125, 2, {}), kBadOperation);
}

TEST_F(VsanManager, TheOtherCountLeavesOutSuspendedVsans) {
  expect_reply(call(15, 128, 1, {}), Pattern(4).at(0, "00000002"));
  auto fabric = control::fabric();
  fabric.vsans[1].state = switch_sim::VsanState::suspended;
  ASSERT_EQ(std::nullopt, control::install(fabric));
  expect_reply(call(15, 128, 1, {}), Pattern(4).at(0, "00000001"));
  expect_reply(call(15, 125, 1, {}), Pattern(4).at(0, "00000002"));
}

TEST_F(VsanManager, SuspendingAVsanTakesItDown) {
  const auto suspend = second_vsan().at(528, "00000002").bytes();
  expect_refused(call(15, 149, 3, suspend), 0);
  expect_reply(entry(1, "00000002"), second_vsan().at(528, "00000002").at(552, "00000002"));
  expect_reply(entry(1, "00000001"), first_vsan());
}

TEST_F(VsanManager, ActivatingAVsanBringsItUp) {
  call(15, 149, 3, second_vsan().at(528, "00000002").bytes());
  const auto activate = second_vsan().at(528, "00000001").at(552, "00000002").bytes();
  expect_refused(call(15, 149, 3, activate), 0);
  expect_reply(entry(1, "00000002"), second_vsan());
}

TEST_F(VsanManager, ASetTakesOverNameAndLoadBalancing) {
  const auto change = Pattern(2632)
                          .at(520, "00000001")
                          .at(528, "00000001")
                          .at(544, "00000001")
                          .text(556, "backup")
                          .bytes();
  expect_refused(call(15, 149, 3, change), 0);
  expect_reply(entry(1, "00000001"), Pattern(2632)
                                         .at(520, "00000001")
                                         .at(528, "00000001")
                                         .at(544, "00000001")
                                         .at(552, "00000001")
                                         .text(556, "backup"));
}

TEST_F(VsanManager, ASetToAnotherStateIsRefusedAndChangesNothing) {
  const auto before = control::fabric();
  for (const char* state : {"00000000", "00000003", "ffffffff"}) {
    expect_refused(call(15, 149, 3, second_vsan().at(528, state).bytes()), kBadValue);
  }
  EXPECT_EQ(before, control::fabric());
}

TEST_F(VsanManager, ASetWithAWrongNameOrLoadBalancingIsRefusedAndChangesNothing) {
  const auto before = control::fabric();
  expect_refused(call(15, 149, 3, second_vsan().at(544, "00000003").bytes()), kBadValue);
  expect_refused(call(15, 149, 3, second_vsan().at(556, "00").bytes()), kBadValue);
  expect_refused(call(15, 149, 3, second_vsan().at(556, "0a").bytes()), kBadValue);
  Pattern unterminated = second_vsan();
  for (size_t i = 0; i < 128; ++i)
    unterminated.at(556 + i, "41");
  expect_refused(call(15, 149, 3, unterminated.bytes()), kBadValue);
  EXPECT_EQ(before, control::fabric());
}

TEST_F(VsanManager, ASetOfAnUnknownVsanIsNotFound) {
  expect_refused(call(15, 149, 3, second_vsan().at(520, "00000007").bytes()), kNotFound);
}

TEST_F(VsanManager, ANameOf127BytesIsToldWhole) {
  auto fabric = control::fabric();
  fabric.vsans[0].name = std::string(127, 'n');
  ASSERT_EQ(std::nullopt, control::install(fabric));
  expect_reply(entry(1, "00000001"), first_vsan().text(556, std::string(127, 'n')));
}

}  // namespace
}  // namespace simulator_test

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;

class Fspf : public SimulatorTest {
 protected:
  Result record(const char* vsan_and_domain) {
    return call(29, 53, 1, Pattern(36).at(0, vsan_and_domain).at(8, "00000001").bytes());
  }

  static void change(void (*edit)(switch_sim::Fabric&)) {
    auto fabric = control::fabric();
    edit(fabric);
    ASSERT_EQ(std::nullopt, control::install(fabric));
  }
};

TEST_F(Fspf, TheLocalSwitchTellsItsLinksByInterface) {
  expect_reply(record("0000000100000061"),
               Pattern(108)
                   .at(0, "000000010000006100000001")
                   .at(28, "00000002")
                   // fc1/2 to switch-2 fc1/2, 2 Gb/s
                   .at(36, "00000001000000610000000100000000")
                   .at(52, "000000620008080200080802000001f4")
                   // port-channel 1 to switch-3 port-channel 1, twice 2 Gb/s
                   .at(72, "00000001000000610000000100000000")
                   .at(88, "000000630020000100200001000000fa"));
}

TEST_F(Fspf, AnotherVsanHasOtherLinksAndDomains) {
  expect_reply(record("0000000200000015"), Pattern(108)
                                               .at(0, "000000020000001500000001")
                                               .at(28, "00000002")
                                               .at(36, "00000002000000150000000100000000")
                                               .at(52, "000000170020000100200001000000fa")
                                               // fcip1 to switch-2 fcip1, 1 Gb/s
                                               .at(72, "00000002000000150000000100000000")
                                               .at(88, "000000160050000100500001000003e8"));
}

TEST_F(Fspf, ARemoteSwitchTellsTheSameLinksFromItsSide) {
  expect_reply(record("0000000100000062"), Pattern(108)
                                               .at(0, "000000010000006200000001")
                                               .at(28, "00000002")
                                               .at(36, "00000001000000620000000100000000")
                                               .at(52, "000000610008080200080802000001f4")
                                               .at(72, "00000001000000620000000100000000")
                                               .at(88, "000000630008080900080809000001f4"));
}

TEST_F(Fspf, ASwitchWithoutLinksHasAnEmptyRecord) {
  change([](switch_sim::Fabric& fabric) { fabric.links.clear(); });
  expect_reply(record("0000000100000061"), Pattern(36).at(0, "000000010000006100000001"));
}

TEST_F(Fspf, ATrunkCarriesOnlyItsVsans) {
  change([](switch_sim::Fabric& fabric) { fabric.links[3].vsans = {2}; });
  EXPECT_EQ(72, record("0000000100000062").length);
  EXPECT_EQ(108, record("0000000200000016").length);
}

TEST_F(Fspf, ALinkThatIsDownAtEitherEndIsNotTold) {
  change([](switch_sim::Fabric& fabric) {
    find_interface(fabric.switches[1], 0x01010002)->admin_state = switch_sim::AdminState::down;
  });
  EXPECT_EQ(72, record("0000000100000061").length);
  EXPECT_EQ(72, record("0000000100000062").length);
}

TEST_F(Fspf, ALinkOfOneVsanNeedsTheSameVsanAtBothEnds) {
  change(
      [](switch_sim::Fabric& fabric) { find_interface(fabric.switches[1], 0x01010002)->vsan = 2; });
  EXPECT_EQ(72, record("0000000100000061").length);
  EXPECT_EQ(108, record("0000000200000016").length);
}

TEST_F(Fspf, APortThatIsSetDownTakesItsLinkOutOfTheRecord) {
  expect_reply(call(34, 0x11002, 3, Pattern(9).at(0, "010100020000000102").bytes()),
               Pattern(8).at(0, "01010002"));
  EXPECT_EQ(72, record("0000000100000061").length);
}

TEST_F(Fspf, AnUnknownVsanOrDomainIsNotFound) {
  expect_refused(record("0000000300000061"), kNotFound);
  expect_refused(record("0000000100000015"), kNotFound);
  expect_refused(record("0000000100000000"), kNotFound);
}

TEST_F(Fspf, AVsanThatDoesNotRunHereHasNoRecords) {
  change(
      [](switch_sim::Fabric& fabric) { fabric.vsans[1].state = switch_sim::VsanState::suspended; });
  expect_refused(record("0000000200000015"), kNotRunning);
}

TEST_F(Fspf, AnotherRequestIsRefused) {
  expect_refused(call(29, 53, 1, Pattern(35).bytes()), kBadLength);
  expect_refused(call(29, 53, 1, Pattern(36).at(0, "0000000100000061").bytes()), kBadValue);
  expect_refused(call(29, 53, 2, Pattern(36).bytes()), kBadOperation);
  expect_refused(call(29, 54, 1, Pattern(36).bytes()), kUnknownOpcode);
}

TEST_F(Fspf, FiftySwitchesTellEveryLinkTwice) {
  ASSERT_EQ(std::nullopt,
            control::install_generated("switches=50,ports=48,vsans=1,devices=500,seed=5"));
  const auto fabric = control::fabric();
  size_t told = 0;
  for (const auto& domain : fabric.vsans.at(0).domains) {
    char key[17];
    snprintf(key, sizeof key, "00000001%08x", domain.domain_id);
    const Result result = record(key);
    ASSERT_EQ(0, result.status);
    told += static_cast<size_t>(result.length) / 36 - 1;
  }
  EXPECT_GE(fabric.links.size(), 49U);
  EXPECT_EQ(fabric.links.size() * 2, told);
}

}  // namespace
}  // namespace simulator_test

#include <switch_platform/system.h>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;

class SystemServices : public SimulatorTest {
 protected:
  Result item(const char* item_in_hex) {
    return call(28, 1812, 1, Pattern(1032).at(0, item_in_hex).bytes());
  }
  Result set_name(std::string_view name) {
    return call(35, 878, 3, Pattern(260).text(0, name).bytes());
  }
};

TEST_F(SystemServices, TheSwitchWwnIsEightBytes) {
  expect_reply(call(46, 1282, 1, {}), Pattern(8).at(0, "2000000dec0a1b2c"));
}

TEST_F(SystemServices, TheSwitchWwnIsOnlyReadAndWithoutARequest) {
  expect_refused(call(46, 1282, 3, {}), kBadOperation);
  expect_refused(call(46, 1282, 1, {1}), kBadLength);
}

TEST_F(SystemServices, TheTextsAreItemsZeroToThree) {
  expect_reply(item("00000000"), Pattern(1032).text(4, "storage-team@example.com"));
  expect_reply(item("00000001"), Pattern(1032).at(0, "00000001").text(4, "Row 1, rack 4"));
  expect_reply(item("00000002"), Pattern(1032).at(0, "00000002").text(4, "switch-1"));
  expect_reply(item("00000003"),
               Pattern(1032).at(0, "00000003").text(4, "Simulated Fibre Channel switch"));
}

TEST_F(SystemServices, TheObjectIdentifierIsItemFourWithItsCountAtTheEnd) {
  expect_reply(item("00000004"),
               Pattern(1032)
                   .at(0, "00000004")
                   .at(4, "0000000100000003000000060000000100000004000000010000000800000005")
                   .at(1028, "00000008"));
}

TEST_F(SystemServices, TheServicesAreItemFive) {
  expect_reply(item("00000005"), Pattern(1032).at(0, "00000005").at(4, "00000002"));
}

TEST_F(SystemServices, TheTimeSinceTheStartIsItemSixInHundredthsOfASecond) {
  expect_reply(item("00000006"), Pattern(1032).at(0, "00000006").at(4, "0083d600"));
  control::advance(std::chrono::seconds(1));
  expect_reply(item("00000006"), Pattern(1032).at(0, "00000006").at(4, "0083d664"));
}

TEST_F(SystemServices, ThereIsNoItemSeven) {
  expect_refused(item("00000007"), 0x40490001);
  expect_refused(item("ffffffff"), 0x40490001);
}

TEST_F(SystemServices, AnItemRequestOfAnotherLengthOrOperationIsRefused) {
  expect_refused(call(28, 1812, 1, Pattern(1031).bytes()), kBadLength);
  expect_refused(call(28, 1812, 2, Pattern(1032).bytes()), kBadOperation);
}

TEST_F(SystemServices, ATextOf1023BytesIsToldWhole) {
  auto fabric = control::fabric();
  fabric.switches[0].system.description = std::string(1023, 'd');
  ASSERT_EQ(std::nullopt, control::install(fabric));
  expect_reply(item("00000003"), Pattern(1032).at(0, "00000003").text(4, std::string(1023, 'd')));
}

TEST_F(SystemServices, ANewSystemNameIsToldAfterwards) {
  expect_refused(set_name("edge-7"), 0);
  expect_reply(item("00000002"), Pattern(1032).at(0, "00000002").text(4, "edge-7"));
}

TEST_F(SystemServices, ASystemNameOf255BytesIsAccepted) {
  expect_refused(set_name(std::string(255, 'n')), 0);
  EXPECT_EQ(std::string(255, 'n'), control::fabric().switches[0].name);
}

TEST_F(SystemServices, AWrongSystemNameIsRefusedAndChangesNothing) {
  const auto before = control::fabric();
  expect_refused(set_name(""), kBadValue);
  expect_refused(set_name("a\nb"), kBadValue);
  expect_refused(set_name(std::string(256, 'n')), kBadValue);
  expect_refused(call(35, 878, 3, Pattern(259).text(0, "a").bytes()), kBadLength);
  expect_refused(call(35, 878, 1, Pattern(260).text(0, "a").bytes()), kBadOperation);
  EXPECT_EQ(before, control::fabric());
}

TEST_F(SystemServices, TheClientRecordIsInHostOrder) {
  uint32_t record[258] = {5};
  ASSERT_EQ(0, snmp_get_sys_info(q, record));
  EXPECT_EQ(5U, record[0]);
  EXPECT_EQ(2U, record[1]);

  record[0] = 6;
  ASSERT_EQ(0, snmp_get_sys_info(q, record));
  EXPECT_EQ(6U, record[0]);
  EXPECT_EQ(8640000U, record[1]);

  record[0] = 4;
  ASSERT_EQ(0, snmp_get_sys_info(q, record));
  EXPECT_EQ(8U, record[257]);
  // The components stay as the service sent them.
  const uint8_t second_component[] = {0, 0, 0, 3};
  EXPECT_EQ(0, memcmp(&record[2], second_component, 4));

  record[0] = 2;
  ASSERT_EQ(0, snmp_get_sys_info(q, record));
  EXPECT_STREQ("switch-1", reinterpret_cast<const char*>(&record[1]));
}

TEST_F(SystemServices, AFailedClientRecordIsLeftAlone) {
  uint32_t record[258] = {7, 77};
  EXPECT_EQ(0x40490001, snmp_get_sys_info(q, record));
  EXPECT_EQ(7U, record[0]);
  EXPECT_EQ(77U, record[1]);
  EXPECT_EQ(0x40490001, snmp_get_sys_info(q, nullptr));
  record[0] = 2;
  EXPECT_EQ(-1, snmp_get_sys_info(12345, record));
}

TEST_F(SystemServices, AShortClientRecordIsRefused) {
  control::set_faults({{.kind = switch_sim::Fault::Kind::short_reply, .value = 1031}});
  uint32_t record[258] = {2, 77};
  EXPECT_EQ(0x40490001, snmp_get_sys_info(q, record));
  EXPECT_EQ(77U, record[1]);
}

TEST_F(SystemServices, TheSoftwareVersionIsAText) {
  EXPECT_STREQ("3.1(2a)", srg_sw_ver_get(0));
}

TEST_F(SystemServices, AVersionTextStaysValid) {
  const char* first = srg_sw_ver_get(0);
  auto fabric = control::fabric();
  fabric.switches[0].system.software_version = "3.2(1)";
  ASSERT_EQ(std::nullopt, control::install(fabric));
  EXPECT_STREQ("3.2(1)", srg_sw_ver_get(0));
  EXPECT_STREQ("3.1(2a)", first);
}

TEST_F(SystemServices, AVersionThatCannotBeReadIsNull) {
  auto fabric = control::fabric();
  fabric.switches[0].system.software_version = "";
  ASSERT_EQ(std::nullopt, control::install(fabric));
  EXPECT_EQ(nullptr, srg_sw_ver_get(0));
}

}  // namespace
}  // namespace simulator_test

#include <switch_platform/if_index.h>
#include <switch_platform/port_manager.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

std::string name_of(uint32_t if_index) {
  char text[64];
  sprintf_if_index(text, if_index);
  return text;
}

TEST(IfIndex, AnFcPortCarriesTypeSlotAndPort) {
  uint32_t if_index = 0;
  ASSERT_EQ(0, if_index_phy_fc_port_init(&if_index, 2, 5));
  EXPECT_EQ(0x01020006U, if_index);

  uint8_t type = 0, slot = 0, port = 0;
  EXPECT_EQ(0, if_index_get_type(if_index, &type));
  EXPECT_EQ(0, if_index_get_slot(if_index, &slot));
  EXPECT_EQ(0, if_index_get_port(if_index, &port));
  EXPECT_EQ(1, type);
  EXPECT_EQ(2, slot);
  EXPECT_EQ(5, port);
}

TEST(IfIndex, AnIscsiPortCarriesTypeSlotAndPort) {
  uint32_t if_index = 0;
  ASSERT_EQ(0, if_index_iscsi_port_init(&if_index, 3, 0));
  EXPECT_EQ(0x0B030001U, if_index);
  uint8_t type = 0;
  EXPECT_EQ(0, if_index_get_type(if_index, &type));
  EXPECT_EQ(11, type);
}

TEST(IfIndex, APortChannelCarriesItsNumberAndHasNoSlotOrPort) {
  uint32_t if_index = 0;
  ASSERT_EQ(0, if_index_port_channel_init(&if_index, 5));
  EXPECT_EQ(0x04000005U, if_index);
  uint32_t channel = 0;
  EXPECT_EQ(0, if_index_port_channel_get_channel_num(if_index, &channel));
  EXPECT_EQ(5U, channel);
  uint8_t byte = 77;
  EXPECT_NE(0, if_index_get_slot(if_index, &byte));
  EXPECT_NE(0, if_index_get_port(if_index, &byte));
  EXPECT_EQ(77, byte);
}

TEST(IfIndex, OnlyAPortChannelHasAChannelNumber) {
  uint32_t channel = 77;
  EXPECT_NE(0, if_index_port_channel_get_channel_num(0x01020006, &channel));
  EXPECT_NE(0, if_index_port_channel_get_channel_num(0x0A000007, &channel));
  EXPECT_EQ(77U, channel);
}

TEST(IfIndex, NumbersBeyondTheLimitsAreRefused) {
  uint32_t if_index = 77;
  EXPECT_EQ(0, if_index_phy_fc_port_init(&if_index, 255, 254));
  EXPECT_EQ(0x01FF00FFU, if_index);
  if_index = 77;
  EXPECT_NE(0, if_index_phy_fc_port_init(&if_index, 256, 0));
  EXPECT_NE(0, if_index_phy_fc_port_init(&if_index, 0, 255));
  EXPECT_NE(0, if_index_iscsi_port_init(&if_index, 1, 0xFFFFFFFF));
  EXPECT_NE(0, if_index_port_channel_init(&if_index, 0));
  EXPECT_NE(0, if_index_port_channel_init(&if_index, 257));
  EXPECT_NE(0, if_index_port_channel_init(&if_index, 0xFFFFFFFF));
  EXPECT_EQ(77U, if_index);
  EXPECT_EQ(0, if_index_port_channel_init(&if_index, 256));
}

TEST(IfIndex, AnUnknownTypeHasNoTypeSlotOrPort) {
  uint8_t byte = 77;
  for (uint32_t if_index : {0U, 256U, 0x03010001U, 0x11000001U, 0xFFFFFFFFU}) {
    EXPECT_NE(0, if_index_get_type(if_index, &byte)) << if_index;
    EXPECT_NE(0, if_index_get_slot(if_index, &byte)) << if_index;
    EXPECT_NE(0, if_index_get_port(if_index, &byte)) << if_index;
  }
  EXPECT_EQ(77, byte);
}

TEST(IfIndex, NullResultsAreRefused) {
  EXPECT_NE(0, if_index_get_type(0x01020006, nullptr));
  EXPECT_NE(0, if_index_get_slot(0x01020006, nullptr));
  EXPECT_NE(0, if_index_get_port(0x01020006, nullptr));
  EXPECT_NE(0, if_index_get_next_type(nullptr));
  EXPECT_NE(0, if_index_phy_fc_port_init(nullptr, 1, 1));
  EXPECT_NE(0, if_index_port_channel_init(nullptr, 1));
  EXPECT_NE(0, if_index_port_channel_get_channel_num(0x04000005, nullptr));
  EXPECT_NE(0, convert_fspf_if_index_to_if_index(0, nullptr));
}

TEST(IfIndex, AWalkVisitsEveryTypeOnceInRisingOrder) {
  std::vector<int> types;
  uint8_t type = 0;
  while (if_index_get_next_type(&type) == 0)
    types.push_back(type);
  EXPECT_EQ((std::vector<int>{1, 2, 4, 5, 6, 10, 11, 14}), types);
  EXPECT_EQ(14, type);  // the failing step leaves the type alone
}

TEST(IfIndex, AnUnknownTypeAdvancesToTheNextKnownOne) {
  uint8_t type = 7;
  EXPECT_EQ(0, if_index_get_next_type(&type));
  EXPECT_EQ(10, type);
}

TEST(IfIndex, TheStartOfATypeLiesBelowItsInterfacesAndTellsTheType) {
  const uint32_t start = if_index_get_if_index_all_for_type(4);
  EXPECT_EQ(0x04000000U, start);
  uint8_t type = 0;
  EXPECT_EQ(0, if_index_get_type(start, &type));
  EXPECT_EQ(4, type);
  uint32_t channel = 0;
  EXPECT_NE(0, if_index_port_channel_get_channel_num(start, &channel));
}

TEST(IfIndex, TheWireOrderIsBigEndian) {
  const uint32_t on_the_wire = hton_if_index(0x01020304);
  const auto* bytes = reinterpret_cast<const uint8_t*>(&on_the_wire);
  EXPECT_EQ(1, bytes[0]);
  EXPECT_EQ(4, bytes[3]);
  EXPECT_EQ(0x01020304U, ntoh_if_index(on_the_wire));
}

TEST(IfIndex, OnlyAnEthernetChannelIsOne) {
  EXPECT_NE(0, pm_is_ether_channel(0x04010003));
  EXPECT_EQ(0, pm_is_ether_channel(0x04000003));
  EXPECT_EQ(0, pm_is_ether_channel(0x02010003));
  EXPECT_EQ(0, pm_is_ether_channel(0));
}

TEST(IfIndex, OnlyThePortChannelIsABundle) {
  EXPECT_NE(0, pm_is_bundle_port_type(4));
  for (uint8_t type : {0, 1, 2, 5, 6, 10, 11, 14})
    EXPECT_EQ(0, pm_is_bundle_port_type(type));
}

TEST(IfIndex, SpeedsAndModesAreShownAsTheyAre) {
  EXPECT_EQ(2000U, pm_cli_dump_port_speed(2000));
  EXPECT_EQ(96U, pm_cli_dump_port_mode(96));
}

struct Named {
  uint32_t if_index;
  const char* name;
};

void PrintTo(const Named& named, std::ostream* out) {
  *out << named.name;
}

class InterfaceName : public testing::TestWithParam<Named> {};

TEST_P(InterfaceName, IsShown) {
  EXPECT_EQ(GetParam().name, name_of(GetParam().if_index));
}

TEST_P(InterfaceName, IsReadBack) {
  uint32_t if_index = 0;
  EXPECT_EQ(0, if_db_str2ifindex(GetParam().name, &if_index));
  EXPECT_EQ(GetParam().if_index, if_index);
}

INSTANTIATE_TEST_SUITE_P(
    Names, InterfaceName,
    testing::Values(Named{0x01010001, "fc1/1"}, Named{0x01020003, "fc2/3"},
                    Named{0x01FF00FF, "fc255/255"}, Named{0x02020001, "gigabitethernet2/1"},
                    Named{0x04000005, "port-channel 5"}, Named{0x04000100, "port-channel 256"},
                    Named{0x04010003, "ethernet-channel 3"}, Named{0x05000001, "mgmt0"},
                    Named{0x06000001, "sup-fc0"}, Named{0x0A000007, "fcip7"},
                    Named{0x0B030001, "iscsi3/1"}, Named{0x0E000FFE, "vsan4094"},
                    Named{0x10000001, "internal0"}));

TEST(InterfaceName, AnIndexOfNoInterfaceIsShownAsANumber) {
  EXPECT_EQ("unknown (0x0)", name_of(0));
  EXPECT_EQ("unknown (0x4000000)", name_of(0x04000000));
  EXPECT_EQ("unknown (0xffffffff)", name_of(0xFFFFFFFF));
}

TEST(InterfaceName, LettersAreReadInEitherCase) {
  uint32_t if_index = 0;
  EXPECT_EQ(0, if_db_str2ifindex("GigabitEthernet2/1", &if_index));
  EXPECT_EQ(0x02020001U, if_index);
}

TEST(InterfaceName, OtherTextsAreNoInterface) {
  uint32_t if_index = 77;
  for (const char* text : {"",
                           "fc",
                           "fc1",
                           "fc1/",
                           "fc/1",
                           "fc1/0",
                           "fc1/256",
                           "fc256/1",
                           "fc1/1 ",
                           " fc1/1",
                           "fc01/1",
                           "fc1/-1",
                           "fc1/99999999999",
                           "port-channel5",
                           "port-channel 0",
                           "port-channel 257",
                           "mgmt255",
                           "mgmt",
                           "fcip0",
                           "fcip2048",
                           "vsan4095",
                           "eth0",
                           "1",
                           "iscsi3"}) {
    EXPECT_NE(0, if_db_str2ifindex(text, &if_index)) << text;
  }
  EXPECT_NE(0, if_db_str2ifindex(nullptr, &if_index));
  EXPECT_NE(0, if_db_str2ifindex("fc1/1", nullptr));
  EXPECT_EQ(77U, if_index);
}

TEST(PortWwn, APhysicalPortIsFoundBySlotAndPort) {
  const uint8_t slot_1_port_0[8] = {0x20, 0x41, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, 0x2C};
  uint32_t if_index = 0;
  EXPECT_EQ(0, wwnm_get_ifindex_from_port_wwn(slot_1_port_0, &if_index));
  EXPECT_EQ(0x01010001U, if_index);

  const uint8_t slot_13_port_3[8] = {0x23, 0x44, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, 0x2C};
  EXPECT_EQ(0, wwnm_get_ifindex_from_port_wwn(slot_13_port_3, &if_index));
  EXPECT_EQ(0x010D0004U, if_index);
}

TEST(PortWwn, APortChannelIsFoundByItsNumber) {
  const uint8_t channel_5[8] = {0x24, 0x06, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, 0x2C};
  uint32_t if_index = 0;
  EXPECT_EQ(0, wwnm_get_ifindex_from_port_wwn(channel_5, &if_index));
  EXPECT_EQ(0x04000005U, if_index);
}

TEST(PortWwn, AWwnWithoutAPlaceHasNoInterface) {
  uint32_t if_index = 77;
  const uint8_t switch_wwn[8] = {0x20, 0x00, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, 0x2C};
  const uint8_t other_naa[8] = {0x50, 0x41, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, 0x2C};
  const uint8_t channel_0[8] = {0x24, 0x01, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, 0x2C};
  const uint8_t no_channel[8] = {0x24, 0x00, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, 0x2C};
  for (const uint8_t* wwn : {switch_wwn, other_naa, channel_0, no_channel}) {
    EXPECT_NE(0, wwnm_get_ifindex_from_port_wwn(wwn, &if_index));
  }
  EXPECT_NE(0, wwnm_get_ifindex_from_port_wwn(nullptr, &if_index));
  EXPECT_EQ(77U, if_index);
}

TEST(FspfIfIndex, BecomesAPlatformIndex) {
  uint32_t if_index = 0;
  // 00001 00000010 00000000110: type 1, slot 2, unit 6.
  EXPECT_EQ(0, convert_fspf_if_index_to_if_index(hton_if_index(0x00081006), &if_index));
  EXPECT_EQ(0x01020006U, if_index);
  // 00100 00000000 00000000101: port channel 5.
  EXPECT_EQ(0, convert_fspf_if_index_to_if_index(hton_if_index(0x00200005), &if_index));
  EXPECT_EQ(0x04000005U, if_index);
  // 10000 00000000 00000000001: an interface inside the switch.
  EXPECT_EQ(0, convert_fspf_if_index_to_if_index(hton_if_index(0x00800001), &if_index));
  EXPECT_EQ(0x10000001U, if_index);
}

TEST(FspfIfIndex, ANumberThatIsNoneIsRefused) {
  uint32_t if_index = 77;
  EXPECT_NE(0, convert_fspf_if_index_to_if_index(hton_if_index(0x01000000), &if_index));
  EXPECT_NE(0, convert_fspf_if_index_to_if_index(hton_if_index(0x00180001), &if_index));
  EXPECT_NE(0, convert_fspf_if_index_to_if_index(0, &if_index));
  EXPECT_EQ(77U, if_index);
}

}  // namespace

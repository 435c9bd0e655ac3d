#include <cim_utils/fspf.h>
#include <cim_utils/name_server.h>
#include <gtest/gtest.h>

#include <cstring>
#include <string>

#include "tests/links/link_doubles.h"
#include "tests/support/bytes.h"

using namespace test_support;

namespace {

// ---- FSPF: writing ------------------------------------------------------------------------

class FspfNames : public testing::Test {
 protected:
  FspfNames() {
    link_.word_0 = 10;
    link_.domain = 0x63;
    link_.word_2 = 2;
    link_.word_3 = 3;
    link_.remote_domain = 0x64;
    link_.if_index = 7;
    link_.remote_if_index = 300;
    link_.word_7 = 77;
    link_.word_8 = 88;
    std::memset(dst_, '#', sizeof dst_);
  }
  // The name of the end; empty and "#" when none was written.
  std::string name(int32_t this_end, int32_t expected = 0) {
    EXPECT_EQ(fspf_cim_get_link_name(&link_, dst_, this_end), expected);
    return dst_[0] == '#' ? "#" : dst_;
  }
  std::string physical(int32_t this_end, int32_t expected = 0) {
    const Bytes wwn = hex("20 00 00 0d ec 0a 1b 2c");
    EXPECT_EQ(fspf_cim_get_physical_link_name(wwn.data(), &link_, dst_, this_end), expected);
    return dst_[0] == '#' ? "#" : dst_;
  }

  InterfaceIndexes indexes_;
  fspfLinkEntry link_{};
  char dst_[CIM_FSPF_LINK_NAME_ROOM];
};

TEST_F(FspfNames, NameTheEndThatTheFlagSays) {
  indexes_.type(300, 4);
  EXPECT_EQ(name(1), "1_10_99_2_3_7");
  EXPECT_EQ(name(-1), "1_10_99_2_3_7");
  EXPECT_EQ(name(0), "4_10_100_2_3_300");
}

TEST_F(FspfNames, AskTheTypeOfIndexesAbove256Only) {
  indexes_.type(257, 10).type(256, 5).type(255, 5);
  link_.if_index = 257;
  EXPECT_EQ(name(1), "10_10_99_2_3_257");
  link_.if_index = 256;
  EXPECT_EQ(name(1), "1_10_99_2_3_256");
  link_.if_index = 255;
  EXPECT_EQ(name(1), "1_10_99_2_3_255");
  EXPECT_EQ(physical(1), "2000000DEC0A1B2C_255_1");
  EXPECT_EQ(indexes_.take_calls(), std::vector<std::string>{"type 257"});
}

TEST_F(FspfNames, HoldAnyTypeThatAnInterfaceHas) {
  for (const int type : {1, 2, 5, 16, 255}) {
    indexes_.type(300, static_cast<uint8_t>(type));
    EXPECT_EQ(name(0), std::to_string(type) + "_10_100_2_3_300");
  }
}

TEST_F(FspfNames, AreSignedNumbersThatFitTheirRoom) {
  link_.word_0 = link_.domain = link_.word_2 = link_.word_3 = 0x80000000;
  link_.if_index = 0x80000001;
  // An index with the top bit set is below 256.
  EXPECT_EQ(name(1), "1_-2147483648_-2147483648_-2147483648_-2147483648_-2147483647");
  EXPECT_EQ(physical(1), "2000000DEC0A1B2C_-2147483647_1");
}

TEST_F(FspfNames, OfAnUnknownTypeAreNotWrittenYetNoFailure) {
  EXPECT_EQ(name(0, 0), "#");
}

TEST_F(FspfNames, PhysicalOnesOfAnUnknownTypeAreAFailure) {
  EXPECT_EQ(physical(0, -1), "#");
}

TEST_F(FspfNames, PhysicalOnesHoldTheTypes1And4And10Only) {
  const struct {
    uint8_t type;
    const char* name;
  } rows[] = {{1, "2000000DEC0A1B2C_300_1"},   {2, "2000000DEC0A1B2C_300_1"},
              {4, "2000000DEC0A1B2C_300_4"},   {5, "2000000DEC0A1B2C_300_1"},
              {10, "2000000DEC0A1B2C_300_10"}, {11, "2000000DEC0A1B2C_300_1"},
              {16, "2000000DEC0A1B2C_300_1"}};
  for (const auto& row : rows) {
    indexes_.type(300, row.type);
    EXPECT_EQ(physical(0), row.name);
  }
  EXPECT_EQ(physical(1), "2000000DEC0A1B2C_7_1");
}

TEST_F(FspfNames, NeedTheirArguments) {
  EXPECT_EQ(fspf_cim_get_link_name(nullptr, dst_, 1), -1);
  EXPECT_EQ(fspf_cim_get_link_name(&link_, nullptr, 1), -1);
  const uint8_t wwn[8] = {};
  EXPECT_EQ(fspf_cim_get_physical_link_name(nullptr, &link_, dst_, 1), -1);
  EXPECT_EQ(fspf_cim_get_physical_link_name(wwn, nullptr, dst_, 1), -1);
  EXPECT_EQ(fspf_cim_get_physical_link_name(wwn, &link_, nullptr, 1), -1);
}

// ---- FSPF: reading ------------------------------------------------------------------------

using Numbers = std::vector<int32_t>;

// What reading stores, all of it -9 before.
Numbers read(const char* name, int32_t expected) {
  Numbers n(6, -9);
  EXPECT_EQ(fspf_cim_get_fields_from_name(name, &n[0], &n[1], &n[2], &n[3], &n[4], &n[5]), expected)
      << name;
  return n;
}

TEST(FspfLinkName, OfTypes1And4And10IsRead) {
  EXPECT_EQ(read("1_10_99_2_3_7", 0), (Numbers{1, 10, 99, 2, 3, 7}));
  EXPECT_EQ(read("4_10_99_2_3_7", 0), (Numbers{4, 10, 99, 2, 3, 7}));
  EXPECT_EQ(read("10_10_99_2_3_16777222", 0), (Numbers{10, 10, 99, 2, 3, 16777222}));
}

TEST(FspfLinkName, OfAnotherTypeIsNot) {
  EXPECT_EQ(read("2_10_99_2_3_7", -1), (Numbers{2, -9, -9, -9, -9, -9}));
  EXPECT_EQ(read("0_10_99_2_3_7", -1), (Numbers{0, -9, -9, -9, -9, -9}));
  EXPECT_EQ(read("11_1_1_1_1_1", -1), (Numbers{11, -9, -9, -9, -9, -9}));
  EXPECT_EQ(read("-1_1_1_1_1_1", -1), (Numbers{-1, -9, -9, -9, -9, -9}));
  EXPECT_EQ(read("x_1_1_1_1_1", -1), (Numbers{0, -9, -9, -9, -9, -9}));
}

TEST(FspfLinkName, OfFiveNumbersIsNotReadAndThoseBeforeAreStored) {
  EXPECT_EQ(read("1_10_99_2_3", -1), (Numbers{1, 10, 99, 2, 3, -9}));
  EXPECT_EQ(read("1", -1), (Numbers{1, -9, -9, -9, -9, -9}));
  EXPECT_EQ(read("", -1), Numbers(6, -9));
  EXPECT_EQ(read("___", -1), Numbers(6, -9));
}

TEST(FspfLinkName, OfSevenNumbersIsReadToTheSixth) {
  EXPECT_EQ(read("1_10_99_2_3_7_8", 0), (Numbers{1, 10, 99, 2, 3, 7}));
}

TEST(FspfLinkName, IsCutAt31Characters) {
  //                                      v the 31st
  EXPECT_EQ(read("1_1000000_1000000_2_3_1234567890", 0),
            (Numbers{1, 1000000, 1000000, 2, 3, 123456789}));
  EXPECT_EQ(read("1_10000000_10000000_20000000_3_7", -1),
            (Numbers{1, 10000000, 10000000, 20000000, 3, -9}));
}

TEST(FspfLinkName, MayHoldNumbersOutOfRangeAndOtherCharacters) {
  EXPECT_EQ(read("1_-1_+2_ 3_4x_y", 0), (Numbers{1, -1, 2, 3, 4, 0}));
  EXPECT_EQ(read("1_4294967295_1_1_1_1", 0), (Numbers{1, -1, 1, 1, 1, 1}));
}

TEST(FspfLinkName, HoldsDecimalNumbersWhateverTheyBeginWith) {
  EXPECT_EQ(read("04_010_099_0x2_3_7", 0), (Numbers{4, 10, 99, 0, 3, 7}));
}

TEST(FspfLinkName, NeedsAPlaceForEachNumber) {
  int32_t n = 0;
  EXPECT_EQ(fspf_cim_get_fields_from_name(nullptr, &n, &n, &n, &n, &n, &n), -1);
  const char* name = "1_2_3_4_5_6";
  EXPECT_EQ(fspf_cim_get_fields_from_name(name, nullptr, &n, &n, &n, &n, &n), -1);
  EXPECT_EQ(fspf_cim_get_fields_from_name(name, &n, nullptr, &n, &n, &n, &n), -1);
  EXPECT_EQ(fspf_cim_get_fields_from_name(name, &n, &n, &n, &n, &n, nullptr), -1);
}

struct Physical {
  int32_t result;
  std::string wwn;
  int32_t if_index;
  int32_t type;
  bool operator==(const Physical&) const = default;
};

Physical read_physical(const char* name) {
  Physical read{0, "", -9, -9};
  char wwn[17] = "untouched";
  read.result = fspf_cim_get_fields_from_physical_name(name, wwn, &read.if_index, &read.type);
  read.wwn = wwn;
  return read;
}

TEST(FspfPhysicalName, IsWwnInterfaceAndType) {
  EXPECT_EQ(read_physical("2000000DEC0A1B2C_16777222_4"),
            (Physical{0, "2000000DEC0A1B2C", 16777222, 4}));
  EXPECT_EQ(read_physical("any 16 character_-1_99"), (Physical{0, "any 16 character", -1, 99}));
}

TEST(FspfPhysicalName, NeedsAWwnOf16Characters) {
  EXPECT_EQ(read_physical("2000000DEC0A1B2_7_1"), (Physical{-1, "untouched", -9, -9}));
  EXPECT_EQ(read_physical("2000000DEC0A1B2C0_7_1"), (Physical{-1, "untouched", -9, -9}));
}

TEST(FspfPhysicalName, HasThreeParts) {
  EXPECT_EQ(read_physical(""), (Physical{-1, "untouched", -9, -9}));
  EXPECT_EQ(read_physical("2000000DEC0A1B2C"), (Physical{-1, "2000000DEC0A1B2C", -9, -9}));
  EXPECT_EQ(read_physical("2000000DEC0A1B2C_7"), (Physical{-1, "2000000DEC0A1B2C", 7, -9}));
  EXPECT_EQ(read_physical("2000000DEC0A1B2C_7_1_0"), (Physical{-1, "2000000DEC0A1B2C", 7, 1}));
}

TEST(FspfPhysicalName, HasAtMost63Characters) {
  const std::string longest = "2000000DEC0A1B2C_7_000000000000000000000000000000000000000000001";
  ASSERT_EQ(longest.size(), 64u);
  EXPECT_EQ(read_physical(longest.c_str()), (Physical{-1, "untouched", -9, -9}));
  EXPECT_EQ(read_physical(longest.substr(0, 63).c_str()), (Physical{0, "2000000DEC0A1B2C", 7, 0}));
}

TEST(FspfPhysicalName, NeedsAPlaceForEachPart) {
  char wwn[17];
  int32_t n = 0;
  const char* name = "2000000DEC0A1B2C_7_1";
  EXPECT_EQ(fspf_cim_get_fields_from_physical_name(nullptr, wwn, &n, &n), -1);
  EXPECT_EQ(fspf_cim_get_fields_from_physical_name(name, nullptr, &n, &n), -1);
  EXPECT_EQ(fspf_cim_get_fields_from_physical_name(name, wwn, nullptr, &n), -1);
  EXPECT_EQ(fspf_cim_get_fields_from_physical_name(name, wwn, &n, nullptr), -1);
}

// ---- Name server: writing -----------------------------------------------------------------

// An entry whose FC-4 types the double takes for one type; 225 is iSCSI's.
ns_api_register_req_ entry_with(uint8_t fc4_type, uint32_t port_type = 1) {
  const Bytes bytes = Record(768)
                          .host32(4, 10)
                          .put(12, hex("21 00 00 e0 8b 0a 1b 2c"))
                          .byte(36, fc4_type)
                          .host32(196, port_type)
                          .put(200, hex("20 00 00 e0 8b 0a 1b 2c"))
                          .put(236, hex("20 41 00 0d ec 0a 1b 2c"));
  ns_api_register_req_ entry;
  std::memcpy(&entry, bytes.data(), sizeof entry);
  return entry;
}

using Writer = int32_t (*)(const ns_api_register_req_*, char*, int32_t);

std::string written(Writer writer, uint8_t fc4_type, int32_t fabric_side) {
  const Fc4Types types;
  const ns_api_register_req_ entry = entry_with(fc4_type);
  char dst[CIM_NS_LINK_NAME_ROOM];
  EXPECT_EQ(writer(&entry, dst, fabric_side), 0);
  return dst;
}

TEST(NameServerNames, BeginWithTheCodeOfSideAndDevice) {
  EXPECT_EQ(written(ns_cim_get_link_name, 8, 1), "2_10_2041000DEC0A1B2C");
  EXPECT_EQ(written(ns_cim_get_link_name, 225, 1), "11_10_2041000DEC0A1B2C");
  EXPECT_EQ(written(ns_cim_get_link_name, 8, 0), "3_10_210000E08B0A1B2C");
  EXPECT_EQ(written(ns_cim_get_link_name, 225, 0), "27_10_210000E08B0A1B2C");
  EXPECT_EQ(written(ns_cim_get_link_name, 8, -1), "2_10_2041000DEC0A1B2C");
}

TEST(NameServerNames, OfEndpointsHoldThePortWwnOnBothSides) {
  EXPECT_EQ(written(ns_cim_get_pe_link_name, 8, 1), "2_10_210000E08B0A1B2C");
  EXPECT_EQ(written(ns_cim_get_pe_link_name, 225, 1), "11_10_210000E08B0A1B2C");
  EXPECT_EQ(written(ns_cim_get_pe_link_name, 8, 0), "3_10_210000E08B0A1B2C");
  EXPECT_EQ(written(ns_cim_get_pe_link_name, 225, 0), "27_10_210000E08B0A1B2C");
}

TEST(NameServerNames, PhysicalOnesHoldNoVsan) {
  EXPECT_EQ(written(ns_cim_get_physical_link_name, 8, 1), "2_2041000DEC0A1B2C");
  EXPECT_EQ(written(ns_cim_get_physical_link_name, 225, 1), "11_2041000DEC0A1B2C");
  EXPECT_EQ(written(ns_cim_get_physical_link_name, 8, 0), "3_210000E08B0A1B2C");
  EXPECT_EQ(written(ns_cim_get_physical_link_name, 225, 0), "27_210000E08B0A1B2C");
}

TEST(NameServerNames, NeedTheirArguments) {
  const ns_api_register_req_ entry = entry_with(8);
  char dst[CIM_NS_LINK_NAME_ROOM];
  for (const Writer writer :
       {ns_cim_get_link_name, ns_cim_get_pe_link_name, ns_cim_get_physical_link_name}) {
    EXPECT_EQ(writer(nullptr, dst, 1), -1);
    EXPECT_EQ(writer(&entry, nullptr, 1), -1);
  }
}

// ---- Name server: reading -----------------------------------------------------------------

struct Name {
  int32_t result;
  int32_t code;
  int32_t vsan;
  std::string wwn;
  bool operator==(const Name&) const = default;
};

Name read_name(const char* text) {
  Name read{0, -9, -9, ""};
  char wwn[17] = "untouched";
  read.result = ns_cim_get_fields_from_name(text, &read.code, &read.vsan, wwn);
  read.wwn = wwn;
  return read;
}

Name read_physical_name(const char* text) {
  Name read{0, -9, -9, ""};
  char wwn[17] = "untouched";
  read.result = ns_cim_get_fields_from_physical_name(text, &read.code, wwn);
  read.wwn = wwn;
  return read;
}

TEST(NameServerName, IsCodeVsanAndWwn) {
  EXPECT_EQ(read_name("3_1_210000E08B0A1B2C"), (Name{0, 3, 1, "210000E08B0A1B2C"}));
  EXPECT_EQ(read_name("2_4094_any 16 character"), (Name{0, 2, 4094, "any 16 character"}));
  EXPECT_EQ(read_name("11_-1_210000E08B0A1B2C"), (Name{0, 11, -1, "210000E08B0A1B2C"}));
  EXPECT_EQ(read_name("27_x_210000E08B0A1B2C"), (Name{0, 27, 0, "210000E08B0A1B2C"}));
}

TEST(NameServerName, HoldsDecimalNumbersWhateverTheyBeginWith) {
  EXPECT_EQ(read_name("011_010_210000E08B0A1B2C"), (Name{0, 11, 10, "210000E08B0A1B2C"}));
  EXPECT_EQ(read_physical_name("027_210000E08B0A1B2C"), (Name{0, 27, -9, "210000E08B0A1B2C"}));
}

TEST(NameServerName, OfAnotherCodeIsNotRead) {
  for (const int code : {0, 1, 4, 7, 10, 12, 26, 28, -3})
    EXPECT_EQ(read_name((std::to_string(code) + "_1_210000E08B0A1B2C").c_str()),
              (Name{-1, code, -9, "untouched"}));
}

TEST(NameServerName, HasThreeParts) {
  EXPECT_EQ(read_name(""), (Name{-1, -9, -9, "untouched"}));
  EXPECT_EQ(read_name("___"), (Name{-1, -9, -9, "untouched"}));
  EXPECT_EQ(read_name("3"), (Name{-1, 3, -9, "untouched"}));
  EXPECT_EQ(read_name("3_1"), (Name{-1, 3, 1, "untouched"}));
  EXPECT_EQ(read_name("3_1_210000E08B0A1B2C_"), (Name{0, 3, 1, "210000E08B0A1B2C"}));
  EXPECT_EQ(read_name("3_1_210000E08B0A1B2C_0"), (Name{-1, 3, 1, "210000E08B0A1B2C"}));
}

TEST(NameServerName, NeedsAWwnOf16Characters) {
  EXPECT_EQ(read_name("3_1_210000E08B0A1B2"), (Name{-1, 3, 1, "untouched"}));
  EXPECT_EQ(read_name("3_1_210000E08B0A1B2C0"), (Name{-1, 3, 1, "untouched"}));
  EXPECT_EQ(read_name("3_1_210000E08B0A1B2C0000000000"), (Name{-1, 3, 1, "untouched"}));
}

TEST(NameServerName, IsCutAt31Characters) {
  // The WWN comes out short.
  EXPECT_EQ(read_name("3_00000000000001_210000E08B0A1B2C"), (Name{-1, 3, 1, "untouched"}));
  EXPECT_EQ(read_name("3_0000000000001_210000E08B0A1B2C"), (Name{-1, 3, 1, "untouched"}));  // 32
  EXPECT_EQ(read_name("3_000000000001_210000E08B0A1B2C"), (Name{0, 3, 1, "210000E08B0A1B2C"}));
  // What would be a fourth part is not seen.
  EXPECT_EQ(read_name("3_000000000001_210000E08B0A1B2C_0"), (Name{0, 3, 1, "210000E08B0A1B2C"}));
}

TEST(NameServerName, NeedsAPlaceForEachPart) {
  char wwn[17];
  int32_t n = 0;
  const char* name = "3_1_210000E08B0A1B2C";
  EXPECT_EQ(ns_cim_get_fields_from_name(nullptr, &n, &n, wwn), -1);
  EXPECT_EQ(ns_cim_get_fields_from_name(name, nullptr, &n, wwn), -1);
  EXPECT_EQ(ns_cim_get_fields_from_name(name, &n, nullptr, wwn), -1);
  EXPECT_EQ(ns_cim_get_fields_from_name(name, &n, &n, nullptr), -1);
  EXPECT_EQ(ns_cim_get_fields_from_physical_name(nullptr, &n, wwn), -1);
  EXPECT_EQ(ns_cim_get_fields_from_physical_name(name, nullptr, wwn), -1);
  EXPECT_EQ(ns_cim_get_fields_from_physical_name(name, &n, nullptr), -1);
}

TEST(NameServerPhysicalName, IsCodeAndWwn) {
  for (const int code : {2, 3, 11, 27})
    EXPECT_EQ(read_physical_name((std::to_string(code) + "_210000E08B0A1B2C").c_str()),
              (Name{0, code, -9, "210000E08B0A1B2C"}));
}

TEST(NameServerPhysicalName, IsNothingElse) {
  EXPECT_EQ(read_physical_name(""), (Name{-1, -9, -9, "untouched"}));
  EXPECT_EQ(read_physical_name("3"), (Name{-1, 3, -9, "untouched"}));
  EXPECT_EQ(read_physical_name("4_210000E08B0A1B2C"), (Name{-1, 4, -9, "untouched"}));
  EXPECT_EQ(read_physical_name("3_210000E08B0A1B2"), (Name{-1, 3, -9, "untouched"}));
  EXPECT_EQ(read_physical_name("3_210000E08B0A1B2C0"), (Name{-1, 3, -9, "untouched"}));
  EXPECT_EQ(read_physical_name("3_1_210000E08B0A1B2C"), (Name{-1, 3, -9, "untouched"}));
  EXPECT_EQ(read_physical_name("3_210000E08B0A1B2C_0"), (Name{-1, 3, -9, "210000E08B0A1B2C"}));
}

// ---- Name server: types -------------------------------------------------------------------

TEST(NameServerTypes, AreTestedInTheBitMap) {
  const Fc4Types types;
  const uint8_t map[32] = {8};
  const uint8_t iscsi[32] = {225};
  EXPECT_NE(ns_cim_is_set_fc4_type(map, 8), 0);
  EXPECT_EQ(ns_cim_is_set_fc4_type(map, 225), 0);
  EXPECT_EQ(ns_cim_is_iscsi_fc4_type(map), 0);
  EXPECT_NE(ns_cim_is_iscsi_fc4_type(iscsi), 0);
}

TEST(NameServerTypes, EveryPortTypeConvertsBySideAndDevice) {
  const struct {
    uint32_t type;
    uint32_t node, fabric, iscsi_node, iscsi_fabric;
  } rows[] = {{1, 10, 15, 16012, 16011}, {129, 10, 15, 16012, 16011},
              {2, 11, 16, 16012, 16011}, {130, 11, 16, 16012, 16011},
              {3, 12, 12, 16012, 16011}, {127, 13, 13, 16012, 16011},
              {0, 0, 0, 0, 0},           {4, 0, 0, 0, 0},
              {128, 0, 0, 0, 0},         {131, 0, 0, 0, 0},
              {0x80000001, 0, 0, 0, 0}};
  const Fc4Types types;
  for (const auto& row : rows) {
    const ns_api_register_req_ fc = entry_with(8, row.type);
    const ns_api_register_req_ iscsi = entry_with(225, row.type);
    EXPECT_EQ(ns_cim_convert_ns_port_type(&fc, 0), row.node) << row.type;
    EXPECT_EQ(ns_cim_convert_ns_port_type(&fc, 1), row.fabric) << row.type;
    EXPECT_EQ(ns_cim_convert_ns_port_type(&iscsi, 0), row.iscsi_node) << row.type;
    EXPECT_EQ(ns_cim_convert_ns_port_type(&iscsi, -1), row.iscsi_fabric) << row.type;
  }
  EXPECT_EQ(ns_cim_convert_ns_port_type(nullptr, 1), 0u);
}

}  // namespace

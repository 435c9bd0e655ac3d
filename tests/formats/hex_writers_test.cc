// Writers of WWN, MAC, FC ID and the pairs with a LUN.
#include <cim_utils/formats.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <functional>

#include "tests/formats/destination.h"
#include "tests/support/heap_ledger.h"

namespace {

using formats_test::Destination;

constexpr wwn_ kWwn = {{0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c}};
constexpr uint8_t kFcid[4] = {0x00, 0x01, 0x0a, 0xef};
constexpr uint8_t kLun[8] = {0x00, 0x05, 0x40, 0x00, 0x12, 0xab, 0xcd, 0xef};
constexpr uint8_t kLunZero[8] = {};
constexpr uint8_t kWwnAndLun[16] = {0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c,
                                    0x00, 0x05, 0x40, 0x00, 0x12, 0xab, 0xcd, 0xef};
constexpr uint8_t kFcidAndLun[12] = {0x77, 0x01, 0x0a, 0xef, 0x00, 0x05,
                                     0x40, 0x00, 0x12, 0xab, 0xcd, 0xef};

TEST(WwnText, IsSixteenUpperCaseDigits) {
  Destination dst(17);
  EXPECT_EQ(cim_sprintf_wwn(dst, &kWwn), 2);
  EXPECT_EQ(dst.text(), "2000000DEC0A1B2C");
}

TEST(WwnText, IsTheSameFromABareArray) {
  Destination dst(17);
  EXPECT_EQ(cim_sprintf_wwn_uint_array(dst, kWwn.bytes), 2);
  EXPECT_EQ(dst.text(), "2000000DEC0A1B2C");
}

TEST(WwnText, KeepsLeadingZeros) {
  constexpr wwn_ zero = {{0, 0, 0, 0, 0, 0, 0, 0}};
  Destination dst(17);
  cim_sprintf_wwn(dst, &zero);
  EXPECT_EQ(dst.text(), "0000000000000000");
}

TEST(WwnText, WritesBytesAboveSevenF) {
  constexpr wwn_ high = {{0xff, 0x80, 0xfe, 0x9a, 0xbc, 0xde, 0xf0, 0xff}};
  Destination dst(17);
  cim_sprintf_wwn(dst, &high);
  EXPECT_EQ(dst.text(), "FF80FE9ABCDEF0FF");
}

TEST(WwnText, AgreesWithPrintfOnEveryByteValue) {
  for (unsigned value = 0; value < 256; ++value) {
    wwn_ wwn = {};
    wwn.bytes[3] = static_cast<uint8_t>(value);
    char expected[3];
    std::snprintf(expected, sizeof expected, "%02X", value);
    Destination dst(17);
    cim_sprintf_wwn(dst, &wwn);
    EXPECT_EQ(dst.text(), std::string("000000") + expected + "00000000");
  }
}

TEST(MacText, IsTwelveUpperCaseDigits) {
  constexpr uint8_t mac[6] = {0x00, 0x0d, 0xec, 0x11, 0x22, 0xfe};
  Destination dst(13);
  EXPECT_EQ(cim_sprintf_mac(dst, mac), 2);
  EXPECT_EQ(dst.text(), "000DEC1122FE");
}

TEST(FcidText, IsSixLowerCaseDigits) {
  Destination dst(7);
  EXPECT_EQ(cim_sprintf_fcid(dst, kFcid), 2);
  EXPECT_EQ(dst.text(), "010aef");
}

TEST(FcidText, IsTheSameFromABareArray) {
  Destination dst(7);
  EXPECT_EQ(cim_sprintf_fcid_uint_array(dst, kFcid), 2);
  EXPECT_EQ(dst.text(), "010aef");
}

TEST(FcidText, LeavesOutByteZero) {
  constexpr uint8_t fcid[4] = {0x99, 0xfe, 0x00, 0x7b};
  Destination dst(7);
  cim_sprintf_fcid(dst, fcid);
  EXPECT_EQ(dst.text(), "fe007b");
}

TEST(FcidText, AgreesWithPrintfOnEveryByteValue) {
  for (unsigned value = 0; value < 256; ++value) {
    const uint8_t fcid[4] = {0, 0, static_cast<uint8_t>(value), 0};
    char expected[3];
    std::snprintf(expected, sizeof expected, "%02x", value);
    Destination dst(7);
    cim_sprintf_fcid(dst, fcid);
    EXPECT_EQ(dst.text(), std::string("00") + expected + "00");
  }
}

TEST(WwnLunText, OfLunZeroEndsInUnderscoreAndSixteenZeros) {
  Destination dst(34);
  EXPECT_EQ(cim_sprintf_wwn_lun(dst, &kWwn, kLunZero), 2);
  EXPECT_EQ(dst.text(), "2000000DEC0A1B2C_0000000000000000");
  EXPECT_EQ(dst.text().size(), 33U);
}

TEST(WwnLunText, WritesTheLunInTheFormOfAWwn) {
  Destination dst(34);
  cim_sprintf_wwn_lun(dst, &kWwn, kLun);
  EXPECT_EQ(dst.text(), "2000000DEC0A1B2C_0005400012ABCDEF");
}

TEST(WwnLunText, IsTheSameFromOneRecord) {
  Destination dst(34);
  EXPECT_EQ(cim_sprintf_wwn_lun_hex(dst, kWwnAndLun), 2);
  EXPECT_EQ(dst.text(), "2000000DEC0A1B2C_0005400012ABCDEF");
}

TEST(FcidLunText, IsLowerCaseInFrontAndUpperCaseBehind) {
  Destination dst(24);
  EXPECT_EQ(cim_sprintf_fcid_lun(dst, kFcid, kLun), 2);
  EXPECT_EQ(dst.text(), "010aef_0005400012ABCDEF");
  EXPECT_EQ(dst.text().size(), 23U);
}

TEST(FcidLunText, IsTheSameFromOneRecord) {
  Destination dst(24);
  EXPECT_EQ(cim_sprintf_fcid_lun_hex(dst, kFcidAndLun), 2);
  EXPECT_EQ(dst.text(), "010aef_0005400012ABCDEF");
}

// Every writer of this file, with all its arguments, without an identifier and without a
// destination.
struct Writer {
  const char* name;
  std::size_t room;
  std::function<int(char*)> good;
  std::function<int(char*)> without_identifier;
};

const Writer kWriters[] = {
    {"cim_sprintf_wwn", 17, [](char* d) { return cim_sprintf_wwn(d, &kWwn); },
     [](char* d) { return cim_sprintf_wwn(d, nullptr); }},
    {"cim_sprintf_wwn_uint_array", 17,
     [](char* d) { return cim_sprintf_wwn_uint_array(d, kWwn.bytes); },
     [](char* d) { return cim_sprintf_wwn_uint_array(d, nullptr); }},
    {"cim_sprintf_mac", 13, [](char* d) { return cim_sprintf_mac(d, kLun); },
     [](char* d) { return cim_sprintf_mac(d, nullptr); }},
    {"cim_sprintf_fcid", 7, [](char* d) { return cim_sprintf_fcid(d, kFcid); },
     [](char* d) { return cim_sprintf_fcid(d, nullptr); }},
    {"cim_sprintf_fcid_uint_array", 7,
     [](char* d) { return cim_sprintf_fcid_uint_array(d, kFcid); },
     [](char* d) { return cim_sprintf_fcid_uint_array(d, nullptr); }},
    {"cim_sprintf_wwn_lun", 34, [](char* d) { return cim_sprintf_wwn_lun(d, &kWwn, kLun); },
     [](char* d) { return cim_sprintf_wwn_lun(d, nullptr, kLun); }},
    {"cim_sprintf_wwn_lun without a LUN", 34,
     [](char* d) { return cim_sprintf_wwn_lun(d, &kWwn, kLun); },
     [](char* d) { return cim_sprintf_wwn_lun(d, &kWwn, nullptr); }},
    {"cim_sprintf_wwn_lun_hex", 34, [](char* d) { return cim_sprintf_wwn_lun_hex(d, kWwnAndLun); },
     [](char* d) { return cim_sprintf_wwn_lun_hex(d, nullptr); }},
    {"cim_sprintf_fcid_lun", 24, [](char* d) { return cim_sprintf_fcid_lun(d, kFcid, kLun); },
     [](char* d) { return cim_sprintf_fcid_lun(d, nullptr, kLun); }},
    {"cim_sprintf_fcid_lun without a LUN", 24,
     [](char* d) { return cim_sprintf_fcid_lun(d, kFcid, kLun); },
     [](char* d) { return cim_sprintf_fcid_lun(d, kFcid, nullptr); }},
    {"cim_sprintf_fcid_lun_hex", 24,
     [](char* d) { return cim_sprintf_fcid_lun_hex(d, kFcidAndLun); },
     [](char* d) { return cim_sprintf_fcid_lun_hex(d, nullptr); }},
};

TEST(HexWriters, FillTheNamedRoomExactly) {
  for (const Writer& writer : kWriters) {
    SCOPED_TRACE(writer.name);
    Destination dst(writer.room);
    writer.good(dst);
    EXPECT_EQ(dst.text().size(), writer.room - 1);
  }
}

TEST(HexWriters, FailWithoutADestination) {
  for (const Writer& writer : kWriters) {
    SCOPED_TRACE(writer.name);
    EXPECT_EQ(writer.good(nullptr), -1);
    EXPECT_EQ(writer.without_identifier(nullptr), -1);
  }
}

TEST(HexWriters, WriteAnEmptyTextWithoutAnIdentifier) {
  for (const Writer& writer : kWriters) {
    SCOPED_TRACE(writer.name);
    Destination dst(writer.room);
    EXPECT_EQ(writer.without_identifier(dst), -1);
    EXPECT_EQ(dst.text(), "");
    EXPECT_TRUE(dst.rest_is_untouched());
  }
}

TEST(HexWriters, AllocateNothing) {
  char dst[34];
  const test_support::HeapLedger ledger;
  for (const Writer& writer : kWriters)
    writer.good(dst);
  EXPECT_EQ(ledger.allocations(), 0U);
}

}  // namespace

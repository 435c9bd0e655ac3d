// Readers of identifier texts, against results written out by hand. scan_comparison_test.cc
// compares them with the C library besides.
#include <cim_utils/formats.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "tests/support/heap_ledger.h"

namespace {

template <std::size_t kSize>
using Bytes = std::array<uint8_t, kSize>;

constexpr uint8_t kBefore = 0xA5;

template <std::size_t kSize>
constexpr Bytes<kSize> unchanged() {
  Bytes<kSize> bytes{};
  bytes.fill(kBefore);
  return bytes;
}

// What a reader made of a text: its result and its record, which held kBefore in every byte.
template <std::size_t kSize>
struct Reading {
  int result;
  Bytes<kSize> bytes;
  bool operator==(const Reading&) const = default;
  friend void PrintTo(const Reading& reading, std::ostream* out) {
    *out << reading.result << " " << testing::PrintToString(reading.bytes);
  }
};

template <std::size_t kSize>
Reading<kSize> read(int (*reader)(const char*, uint8_t*), const char* text) {
  Reading<kSize> reading{0, unchanged<kSize>()};
  reading.result = reader(text, reading.bytes.data());
  return reading;
}

template <std::size_t kSize>
Reading<kSize> gives(const Bytes<kSize>& bytes) {
  return {0, bytes};
}

template <std::size_t kSize>
Reading<kSize> fails() {
  return {-1, unchanged<kSize>()};
}

Reading<8> read_wwn(const char* text) {
  return read<8>(
      [](const char* wwn_text, uint8_t* bytes) {
        wwn_ wwn;
        std::copy(bytes, bytes + 8, wwn.bytes);
        const int result = wwn_cim_get_hex_from_str_wwn(wwn_text, &wwn);
        std::copy(wwn.bytes, wwn.bytes + 8, bytes);
        return result;
      },
      text);
}
Reading<4> read_fcid(const char* text) {
  return read<4>(cim_get_hex_from_str_fcid, text);
}
Reading<16> read_wwn_lun(const char* text) {
  return read<16>(cim_get_hex_from_str_wwn_lun, text);
}
Reading<12> read_fcid_lun(const char* text) {
  return read<12>(cim_get_hex_from_str_fcid_lun, text);
}
Reading<8> read_ip(const char* text) {
  return read<8>(cim_get_hex_from_str_ip_with_mask, text);
}
Reading<12> read_dom_interface(const char* text) {
  return read<12>(cim_get_hex_from_str_dom_interface, text);
}

// ---- WWN

TEST(WwnReader, ReadsDigitsOfEitherCase) {
  const auto wwn = gives<8>({0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c});
  EXPECT_EQ(read_wwn("2000000dec0a1b2c"), wwn);
  EXPECT_EQ(read_wwn("2000000DEC0A1B2C"), wwn);
  EXPECT_EQ(read_wwn("2000000DeC0a1B2c"), wwn);
}

TEST(WwnReader, ReadsEveryDigit) {
  EXPECT_EQ(read_wwn("0123456789abcdef"),
            gives<8>({0x01, 0x23, 0x45, 0x67, 0x89, 0xab, 0xcd, 0xef}));
  EXPECT_EQ(read_wwn("FEDCBA9876543210"),
            gives<8>({0xfe, 0xdc, 0xba, 0x98, 0x76, 0x54, 0x32, 0x10}));
}

TEST(WwnReader, RefusesFifteenAndSeventeenCharacters) {
  EXPECT_EQ(read_wwn("2000000dec0a1b2"), fails<8>());
  EXPECT_EQ(read_wwn("2000000dec0a1b2c0"), fails<8>());
  EXPECT_EQ(read_wwn(""), fails<8>());
}

TEST(WwnReader, RefusesSeparators) {
  EXPECT_EQ(read_wwn("20:00:00:0d:ec:0a:1b:2c"), fails<8>());
}

TEST(WwnReader, FillsWithZerosFromTheFirstFieldThatIsNoNumber) {
  EXPECT_EQ(read_wwn("2000000dec0a1bzz"), gives<8>({0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0}));
  EXPECT_EQ(read_wwn("20zz000dec0a1b2c"), gives<8>({0x20, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(read_wwn("zzzzzzzzzzzzzzzz"), gives<8>({0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(read_wwn("                "), gives<8>({0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(WwnReader, StopsInTheMiddleOfAFieldLikeTheScan) {
  // "2" is a whole field; the next one starts at "g" and holds no number.
  EXPECT_EQ(read_wwn("2g00000dec0a1b2c"), gives<8>({0x02, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(WwnReader, SkipsBlanksLikeTheScan) {
  EXPECT_EQ(read_wwn("20 0000dec0a1b2c"),
            gives<8>({0x20, 0x00, 0x00, 0xde, 0xc0, 0xa1, 0xb2, 0x0c}));
  EXPECT_EQ(read_wwn("1 2 3 4 5 6 7 8 "),
            gives<8>({0x01, 0x02, 0x03, 0x04, 0x05, 0x06, 0x07, 0x08}));
}

TEST(WwnReader, TakesSignsLikeTheScan) {
  EXPECT_EQ(read_wwn("+1-1-f0000000000"),
            gives<8>({0x01, 0xff, 0xf1, 0x00, 0x00, 0x00, 0x00, 0x00}));
}

TEST(WwnReader, TakesNoByteAbove7FForADigit) {
  EXPECT_EQ(read_wwn("20\xc3\xa4"
                     "000dec0a1b2c"),
            gives<8>({0x20, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(WwnReader, FailsOnNullArguments) {
  EXPECT_EQ(read_wwn(nullptr), fails<8>());
  EXPECT_EQ(wwn_cim_get_hex_from_str_wwn("2000000dec0a1b2c", nullptr), -1);
}

// ---- FC ID

TEST(FcidReader, PutsThreeBytesBehindAZero) {
  EXPECT_EQ(read_fcid("010aef"), gives<4>({0x00, 0x01, 0x0a, 0xef}));
  EXPECT_EQ(read_fcid("FE0A7B"), gives<4>({0x00, 0xfe, 0x0a, 0x7b}));
}

TEST(FcidReader, RefusesFiveAndSevenCharacters) {
  EXPECT_EQ(read_fcid("010ae"), fails<4>());
  EXPECT_EQ(read_fcid("010aef0"), fails<4>());
  EXPECT_EQ(read_fcid(""), fails<4>());
}

TEST(FcidReader, FillsWithZerosFromTheFirstFieldThatIsNoNumber) {
  EXPECT_EQ(read_fcid("01xxef"), gives<4>({0x00, 0x01, 0x00, 0x00}));
  EXPECT_EQ(read_fcid("01 2 3"), gives<4>({0x00, 0x01, 0x02, 0x03}));
}

TEST(FcidReader, FailsOnNullArguments) {
  EXPECT_EQ(read_fcid(nullptr), fails<4>());
  EXPECT_EQ(cim_get_hex_from_str_fcid("010aef", nullptr), -1);
}

// ---- Pairs with a LUN

constexpr Bytes<16> kWwnAndLun = {0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c,
                                  0x00, 0x05, 0x40, 0x00, 0x12, 0xab, 0xcd, 0xef};
constexpr Bytes<12> kFcidAndLun = {0x00, 0x01, 0x0a, 0xef, 0x00, 0x05,
                                   0x40, 0x00, 0x12, 0xab, 0xcd, 0xef};

TEST(WwnLunReader, ReadsBothHalves) {
  EXPECT_EQ(read_wwn_lun("2000000DEC0A1B2C_0005400012ABCDEF"), gives(kWwnAndLun));
}

TEST(WwnLunReader, RefusesThirtyTwoAndThirtyFourCharacters) {
  EXPECT_EQ(read_wwn_lun("2000000DEC0A1B2C_0005400012ABCDE"), fails<16>());
  EXPECT_EQ(read_wwn_lun("2000000DEC0A1B2C_0005400012ABCDEF0"), fails<16>());
}

TEST(WwnLunReader, NeverLooksAtTheSeparator) {
  EXPECT_EQ(read_wwn_lun("2000000DEC0A1B2C:0005400012ABCDEF"), gives(kWwnAndLun));
  EXPECT_EQ(read_wwn_lun("2000000DEC0A1B2C00005400012ABCDEF"), gives(kWwnAndLun));
}

TEST(WwnLunReader, KeepsTheHalvesApartWhenOneIsNoNumber) {
  EXPECT_EQ(
      read_wwn_lun("2000zzzzzzzzzzzz_0005400012ABCDEF"),
      gives<16>({0x20, 0x00, 0, 0, 0, 0, 0, 0, 0x00, 0x05, 0x40, 0x00, 0x12, 0xab, 0xcd, 0xef}));
  EXPECT_EQ(read_wwn_lun("2000000DEC0A1B2C_00zz400012ABCDEF"),
            gives<16>({0x20, 0x00, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c, 0x00, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(WwnLunReader, DoesNotReadTheSeparatorIntoTheWwn) {
  // The blank lets the scan of the WWN run to the end of its sixteen characters, not beyond.
  EXPECT_EQ(read_wwn_lun(" 0102030405060701110203040506070f").bytes[7], 0x00);
}

TEST(WwnLunReader, FailsOnNullArguments) {
  EXPECT_EQ(read_wwn_lun(nullptr), fails<16>());
  EXPECT_EQ(cim_get_hex_from_str_wwn_lun("2000000DEC0A1B2C_0005400012ABCDEF", nullptr), -1);
}

TEST(FcidLunReader, ReadsBothHalves) {
  EXPECT_EQ(read_fcid_lun("010aef_0005400012ABCDEF"), gives(kFcidAndLun));
}

TEST(FcidLunReader, RefusesTwentyTwoAndTwentyFourCharacters) {
  EXPECT_EQ(read_fcid_lun("010aef_0005400012ABCDE"), fails<12>());
  EXPECT_EQ(read_fcid_lun("010aef_0005400012ABCDEF0"), fails<12>());
}

TEST(FcidLunReader, NeverLooksAtTheSeparator) {
  EXPECT_EQ(read_fcid_lun("010aefz0005400012ABCDEF"), gives(kFcidAndLun));
}

TEST(FcidLunReader, KeepsTheHalvesApartWhenOneIsNoNumber) {
  EXPECT_EQ(read_fcid_lun("zz0aef_0005400012ABCDEF"),
            gives<12>({0, 0, 0, 0, 0x00, 0x05, 0x40, 0x00, 0x12, 0xab, 0xcd, 0xef}));
  EXPECT_EQ(read_fcid_lun("010aef_zz05400012ABCDEF"),
            gives<12>({0x00, 0x01, 0x0a, 0xef, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST(FcidLunReader, FailsOnNullArguments) {
  EXPECT_EQ(read_fcid_lun(nullptr), fails<12>());
  EXPECT_EQ(cim_get_hex_from_str_fcid_lun("010aef_0005400012ABCDEF", nullptr), -1);
}

// ---- IPv4 with mask

TEST(IpWithMaskReader, PutsTheFirstNumberIntoByteThree) {
  EXPECT_EQ(read_ip("10.0.0.1/255.255.255.0"),
            gives<8>({0x01, 0x00, 0x00, 0x0a, 0x00, 0xff, 0xff, 0xff}));
  EXPECT_EQ(read_ip("44.43.42.41/48.47.46.45"), gives<8>({41, 42, 43, 44, 45, 46, 47, 48}));
}

TEST(IpWithMaskReader, RefusesSevenNumbers) {
  EXPECT_EQ(read_ip("10.0.0.1/255.255.255"), fails<8>());
  EXPECT_EQ(read_ip("10.0.0.1/255.255.255."), fails<8>());
  EXPECT_EQ(read_ip("10.0.0.1/255.255.255.x"), fails<8>());
  EXPECT_EQ(read_ip("10.0.0/255.255.255.0"), fails<8>());
}

TEST(IpWithMaskReader, RefusesAnAddressWithoutAMask) {
  EXPECT_EQ(read_ip("10.0.0.1"), fails<8>());
  EXPECT_EQ(read_ip("10.0.0.1/24"), fails<8>());
}

TEST(IpWithMaskReader, RefusesOtherTexts) {
  EXPECT_EQ(read_ip(""), fails<8>());
  EXPECT_EQ(read_ip("ten.0.0.1/255.255.255.0"), fails<8>());
  EXPECT_EQ(read_ip("10.0.0.1.255.255.255.0"), fails<8>());
  EXPECT_EQ(read_ip("10/0/0/1/255.255.255.0"), fails<8>());
  EXPECT_EQ(read_ip("10 .0.0.1/255.255.255.0"), fails<8>());
}

TEST(IpWithMaskReader, KeepsTheLowEightBitsOfANumber) {
  EXPECT_EQ(read_ip("256.257.511.300/999.1000.65537.1024"),
            gives<8>({44, 255, 1, 0, 0, 1, 232, 231}));
}

TEST(IpWithMaskReader, TakesNumbersOfAnyLengthLikeTheScan) {
  EXPECT_EQ(read_ip("0000000000010.0.0.1/255.255.255.4294967303"),
            gives<8>({1, 0, 0, 10, 7, 255, 255, 255}));
}

TEST(IpWithMaskReader, SkipsBlanksInFrontOfNumbersLikeTheScan) {
  EXPECT_EQ(read_ip("  10. 0.\t0.1/255.255.255.0"), gives<8>({1, 0, 0, 10, 0, 255, 255, 255}));
}

TEST(IpWithMaskReader, TakesSignsLikeTheScan) {
  EXPECT_EQ(read_ip("+10.-1.0.1/255.255.255.-2"), gives<8>({1, 0, 255, 10, 254, 255, 255, 255}));
}

TEST(IpWithMaskReader, DoesNotLookBehindTheLastNumber) {
  EXPECT_EQ(read_ip("10.0.0.1/255.255.255.0/24 etc."), gives<8>({1, 0, 0, 10, 0, 255, 255, 255}));
}

TEST(IpWithMaskReader, FailsOnNullArguments) {
  EXPECT_EQ(read_ip(nullptr), fails<8>());
  EXPECT_EQ(cim_get_hex_from_str_ip_with_mask("10.0.0.1/255.255.255.0", nullptr), -1);
}

// ---- Domain/interface

TEST(DomainInterfaceReader, ReadsAWwnAndAHexadecimalDomain) {
  EXPECT_EQ(read_dom_interface("2041000DEC0A1B2C:0c"),
            gives<12>({0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c, 0x0c, 0, 0, 0}));
}

TEST(DomainInterfaceReader, ReadsTheDomainAsHexadecimalEvenWhereItLooksDecimal) {
  EXPECT_EQ(read_dom_interface("2041000DEC0A1B2C:12").bytes[8], 0x12);
}

TEST(DomainInterfaceReader, RefusesEighteenAndTwentyCharacters) {
  EXPECT_EQ(read_dom_interface("2041000DEC0A1B2C:c"), fails<12>());
  EXPECT_EQ(read_dom_interface("2041000DEC0A1B2C:00c"), fails<12>());
  EXPECT_EQ(read_dom_interface(""), fails<12>());
}

TEST(DomainInterfaceReader, NeverLooksAtTheSeparator) {
  EXPECT_EQ(read_dom_interface("2041000DEC0A1B2Cf0c"),
            gives<12>({0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c, 0x0c, 0, 0, 0}));
}

TEST(DomainInterfaceReader, GivesDomainZeroForWhatIsNoNumber) {
  EXPECT_EQ(read_dom_interface("2041000DEC0A1B2C:zz"),
            gives<12>({0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c, 0x00, 0, 0, 0}));
}

TEST(DomainInterfaceReader, FailsOnNullArguments) {
  EXPECT_EQ(read_dom_interface(nullptr), fails<12>());
  EXPECT_EQ(cim_get_hex_from_str_dom_interface("2041000DEC0A1B2C:0c", nullptr), -1);
}

// ---- All of them

TEST(Readers, AllocateNothing) {
  wwn_ wwn;
  uint8_t bytes[16];
  const test_support::HeapLedger ledger;
  wwn_cim_get_hex_from_str_wwn("2000000dec0a1b2c", &wwn);
  cim_get_hex_from_str_fcid("010aef", bytes);
  cim_get_hex_from_str_wwn_lun("2000000DEC0A1B2C_0005400012ABCDEF", bytes);
  cim_get_hex_from_str_fcid_lun("010aef_0005400012ABCDEF", bytes);
  cim_get_hex_from_str_ip_with_mask("10.0.0.1/255.255.255.0", bytes);
  cim_get_hex_from_str_dom_interface("2041000DEC0A1B2C:0c", bytes);
  EXPECT_EQ(ledger.allocations(), 0U);
}

}  // namespace

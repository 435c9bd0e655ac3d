// Writers of IPv4 and IPv6 addresses.
#include <cim_utils/formats.h>
#include <gtest/gtest.h>

#include <array>
#include <cstring>

#include "tests/formats/destination.h"
#include "tests/formats/platform_texts.h"

namespace {

using formats_test::Destination;
using formats_test::platform;

TEST(IpText, PrintsByteThreeFirst) {
  constexpr uint8_t address[4] = {1, 0, 0, 10};
  Destination dst(16);
  EXPECT_EQ(cim_sprintf_ip_uint_array(dst, address), 8);
  EXPECT_EQ(dst.text(), "10.0.0.1");
}

TEST(IpText, WritesOneTwoAndThreeDigits) {
  constexpr uint8_t address[4] = {204, 133, 22, 1};
  Destination dst(16);
  cim_sprintf_ip_uint_array(dst, address);
  EXPECT_EQ(dst.text(), "1.22.133.204");
}

TEST(IpText, FitsItsRoomAtItsLongest) {
  constexpr uint8_t address[4] = {255, 255, 255, 255};
  Destination dst(16);
  EXPECT_EQ(cim_sprintf_ip_uint_array(dst, address), 15);
  EXPECT_EQ(dst.text(), "255.255.255.255");
}

TEST(IpText, WritesNothingBehindItsTerminator) {
  constexpr uint8_t address[4] = {4, 3, 2, 1};
  Destination dst(16);
  cim_sprintf_ip_uint_array(dst, address);
  EXPECT_EQ(dst.text(), "1.2.3.4");
  EXPECT_TRUE(dst.rest_is_untouched());
}

TEST(IpText, AgreesWithPrintfOnEveryByteValue) {
  for (unsigned value = 0; value < 256; ++value) {
    const auto byte = static_cast<uint8_t>(value);
    const uint8_t address[4] = {byte, 7, byte, byte};
    char expected[16];
    std::snprintf(expected, sizeof expected, "%u.%u.7.%u", value, value, value);
    Destination dst(16);
    EXPECT_EQ(cim_sprintf_ip_uint_array(dst, address), static_cast<int>(std::strlen(expected)));
    EXPECT_EQ(dst.text(), expected);
    EXPECT_TRUE(dst.rest_is_untouched());
  }
}

TEST(IpText, OfANumberPrintsTheHighByteFirstAndNoMask) {
  Destination dst(16);
  EXPECT_EQ(cim_sprintf_ip_with_mask(dst, 0x0a000001), 8);
  EXPECT_EQ(dst.text(), "10.0.0.1");
  EXPECT_EQ(cim_sprintf_ip_with_mask(dst, 0xC01EA815), 13);
  EXPECT_EQ(dst.text(), "192.30.168.21");
}

TEST(IpText, FailsOnNullArguments) {
  constexpr uint8_t address[4] = {1, 0, 0, 10};
  Destination dst(16);
  EXPECT_EQ(cim_sprintf_ip_uint_array(nullptr, address), -1);
  EXPECT_EQ(cim_sprintf_ip_with_mask(nullptr, 0x0a000001), -1);
  EXPECT_EQ(cim_sprintf_ip_uint_array(dst, nullptr), -1);
  EXPECT_EQ(dst.text(), "");
}

TEST(IpWithMaskText, PrintsAddressThenMask) {
  constexpr uint8_t pair[8] = {0x01, 0x00, 0x00, 0x0a, 0x00, 0xff, 0xff, 0xff};
  Destination dst(32);
  EXPECT_EQ(cim_sprintf_ip_with_mask_hex(dst, pair), 22);
  EXPECT_EQ(dst.text(), "10.0.0.1/255.255.255.0");
  EXPECT_TRUE(dst.rest_is_untouched());
}

TEST(IpWithMaskText, TakesEachNumberFromItsOwnByte) {
  constexpr uint8_t pair[8] = {41, 42, 43, 44, 45, 46, 47, 48};
  Destination dst(32);
  cim_sprintf_ip_with_mask_hex(dst, pair);
  EXPECT_EQ(dst.text(), "44.43.42.41/48.47.46.45");
}

TEST(IpWithMaskText, IsTheSameForZoning) {
  constexpr uint8_t pair[8] = {0x01, 0x00, 0x00, 0x0a, 0x00, 0xff, 0xff, 0xff};
  Destination dst(32);
  EXPECT_EQ(zs_cim_sprintf_ip_with_mask(dst, pair), 22);
  EXPECT_EQ(dst.text(), "10.0.0.1/255.255.255.0");
}

TEST(IpWithMaskText, FitsItsRoomAtItsLongest) {
  constexpr uint8_t pair[8] = {255, 255, 255, 255, 255, 255, 255, 255};
  Destination dst(32);
  EXPECT_EQ(cim_sprintf_ip_with_mask_hex(dst, pair), 31);
  EXPECT_EQ(dst.text(), "255.255.255.255/255.255.255.255");
}

TEST(IpWithMaskText, FailsOnNullArguments) {
  constexpr uint8_t pair[8] = {};
  Destination dst(32);
  EXPECT_EQ(cim_sprintf_ip_with_mask_hex(nullptr, pair), -1);
  EXPECT_EQ(zs_cim_sprintf_ip_with_mask(nullptr, pair), -1);
  EXPECT_EQ(cim_sprintf_ip_with_mask_hex(dst, nullptr), -1);
  EXPECT_EQ(dst.text(), "");
  EXPECT_EQ(zs_cim_sprintf_ip_with_mask(dst, nullptr), -1);
}

// The platform's address record: family, 16 bytes, prefix length.
using Ipv6Record = std::array<uint8_t, 24>;

Ipv6Record record_with_prefix(int32_t length) {
  Ipv6Record record{};
  std::memcpy(record.data() + 20, &length, sizeof length);
  return record;
}

std::string terminated(std::string text) {
  text.push_back('\0');
  return text;
}

class Ipv6Text : public testing::Test {
 protected:
  Ipv6Text() { formats_test::reset_platform(); }
  Destination dst{128};
};

TEST_F(Ipv6Text, IsThePlatformsText) {
  platform().address_text = terminated("2001:db8::1");
  constexpr Ipv6Record record{};
  char* const result = cim_sprintf_ipv6_addr(dst, record.data());
  EXPECT_EQ(dst.text(), "2001:db8::1");
  EXPECT_TRUE(dst.rest_is_untouched());
  EXPECT_STREQ(result, "2001:db8::1");
}

TEST_F(Ipv6Text, IsAskedForWithTheRecordAndTheWholeBuffer) {
  platform().address_text = terminated("::1");
  constexpr Ipv6Record record{};
  char* const result = cim_sprintf_ipv6_addr(dst, record.data());
  EXPECT_EQ(platform().asked_addresses, std::vector<const void*>{record.data()});
  EXPECT_EQ(platform().size, 1024);
  EXPECT_EQ(platform().buffer, result);
}

TEST_F(Ipv6Text, ComesBackInOneBufferThatTheNextCallOverwrites) {
  constexpr Ipv6Record record{};
  platform().address_text = terminated("fe80::1");
  char* const first = cim_sprintf_ipv6_addr(dst, record.data());
  platform().address_text = terminated("fe80::2");
  EXPECT_EQ(cim_sprintf_ipv6_addr_with_prefix(dst, record.data()), first);
  EXPECT_STREQ(first, "fe80::2");
}

TEST_F(Ipv6Text, OfANullAddressIsThePreviousText) {
  platform().address_text = terminated("2001:db8::77");
  constexpr Ipv6Record record{};
  cim_sprintf_ipv6_addr(dst, record.data());
  Destination second(128);
  EXPECT_STREQ(cim_sprintf_ipv6_addr(second, nullptr), "2001:db8::77");
  EXPECT_EQ(second.text(), "2001:db8::77");
  EXPECT_EQ(platform().asked_addresses.size(), 1U);
}

TEST_F(Ipv6Text, IsCutAfter127Characters) {
  platform().address_text = terminated(std::string(126, 'a') + "bcd");
  constexpr Ipv6Record record{};
  const std::string result = cim_sprintf_ipv6_addr(dst, record.data());
  EXPECT_EQ(dst.text(), std::string(126, 'a') + "b");
  EXPECT_EQ(result, std::string(126, 'a') + "bcd");
}

TEST_F(Ipv6Text, EndsInTheBufferThoughThePlatformDoesNotEndIt) {
  platform().address_text = std::string(1024, 'x');
  constexpr Ipv6Record record{};
  EXPECT_EQ(std::string(cim_sprintf_ipv6_addr(dst, record.data())), std::string(1023, 'x'));
  EXPECT_EQ(dst.text(), std::string(127, 'x'));
}

TEST_F(Ipv6Text, IsRenderedWithoutADestination) {
  platform().address_text = terminated("2001:db8::5");
  const Ipv6Record record = record_with_prefix(64);
  EXPECT_STREQ(cim_sprintf_ipv6_addr(nullptr, record.data()), "2001:db8::5");
  platform().address_text = terminated("2001:db8::6");
  EXPECT_STREQ(cim_sprintf_ipv6_addr_with_prefix(nullptr, record.data()), "2001:db8::6");
}

TEST_F(Ipv6Text, WithPrefix128HasNoSlash) {
  platform().address_text = terminated("2001:db8::1");
  const Ipv6Record record = record_with_prefix(128);
  EXPECT_STREQ(cim_sprintf_ipv6_addr_with_prefix(dst, record.data()), "2001:db8::1");
  EXPECT_EQ(dst.text(), "2001:db8::1");
}

TEST_F(Ipv6Text, WithPrefix64EndsInSlash64) {
  platform().address_text = terminated("2001:db8::1");
  const Ipv6Record record = record_with_prefix(64);
  EXPECT_STREQ(cim_sprintf_ipv6_addr_with_prefix(dst, record.data()), "2001:db8::1");
  EXPECT_EQ(dst.text(), "2001:db8::1/64");
  EXPECT_TRUE(dst.rest_is_untouched());
}

TEST_F(Ipv6Text, AsksForThePrefixedTextLikeForThePlainOne) {
  platform().address_text = terminated("::1");
  const Ipv6Record record = record_with_prefix(64);
  cim_sprintf_ipv6_addr_with_prefix(dst, record.data());
  EXPECT_EQ(platform().asked_addresses, std::vector<const void*>{record.data()});
  EXPECT_EQ(platform().size, 1024);
}

TEST_F(Ipv6Text, ReadsThePrefixAtByteTwentyInHostOrderAtAnyAddress) {
  platform().address_text = terminated("::1");
  std::array<uint8_t, 25> storage{};
  storage.fill(0xEE);
  uint8_t* const record = storage.data() + 1;
  const int32_t length = 96;
  std::memcpy(record + 20, &length, sizeof length);
  cim_sprintf_ipv6_addr_with_prefix(dst, record);
  EXPECT_EQ(dst.text(), "::1/96");
}

TEST_F(Ipv6Text, WritesThePrefixAsASignedNumber) {
  platform().address_text = terminated("::1");
  cim_sprintf_ipv6_addr_with_prefix(dst, record_with_prefix(-1).data());
  EXPECT_EQ(dst.text(), "::1/-1");
  cim_sprintf_ipv6_addr_with_prefix(dst, record_with_prefix(0).data());
  EXPECT_EQ(dst.text(), "::1/0");
}

TEST_F(Ipv6Text, WithPrefixOfANullAddressIsThePreviousAddressAlone) {
  platform().address_text = terminated("2001:db8::9");
  const Ipv6Record record = record_with_prefix(64);
  cim_sprintf_ipv6_addr_with_prefix(dst, record.data());
  Destination second(128);
  cim_sprintf_ipv6_addr_with_prefix(second, nullptr);
  EXPECT_EQ(second.text(), "2001:db8::9");
  EXPECT_EQ(platform().asked_addresses.size(), 1U);
}

TEST_F(Ipv6Text, WithPrefixIsCutAfter127Characters) {
  const Ipv6Record record = record_with_prefix(64);
  platform().address_text = terminated(std::string(125, 'a'));
  cim_sprintf_ipv6_addr_with_prefix(dst, record.data());
  EXPECT_EQ(dst.text(), std::string(125, 'a') + "/6");
  platform().address_text = terminated(std::string(300, 'b'));
  cim_sprintf_ipv6_addr_with_prefix(dst, record.data());
  EXPECT_EQ(dst.text(), std::string(127, 'b'));
}

TEST(KfsAddress, OfFamilyOneIsDottedText) {
  constexpr uint8_t address[4] = {10, 1, 2, 3};
  Destination buffer(46);
  EXPECT_EQ(kfs_ip_addr_to_str(1, address, buffer), static_cast<char*>(buffer));
  EXPECT_EQ(buffer.text(), "10.1.2.3");
}

TEST(KfsAddress, OfFamilyOneFitsAtItsLongest) {
  constexpr uint8_t address[4] = {255, 254, 253, 252};
  Destination buffer(46);
  kfs_ip_addr_to_str(1, address, buffer);
  EXPECT_EQ(buffer.text(), "255.254.253.252");
}

TEST(KfsAddress, OfFamilyTwoIsIpv6Text) {
  constexpr uint8_t address[16] = {0x20, 0x01, 0x0d, 0xb8, 0, 0, 0,    0,
                                   0,    0,    0,    0,    0, 0, 0x12, 0x34};
  Destination buffer(46);
  EXPECT_EQ(kfs_ip_addr_to_str(2, address, buffer), static_cast<char*>(buffer));
  EXPECT_EQ(buffer.text(), "2001:db8::1234");
}

TEST(KfsAddress, OfFamilyTwoFitsAtItsLongest) {
  constexpr uint8_t address[16] = {0x20, 0x01, 0x1d, 0xb8, 0x85, 0xa3, 0x18, 0xd3,
                                   0x13, 0x19, 0x8a, 0x2e, 0xf3, 0x70, 0x73, 0x44};
  Destination buffer(46);
  kfs_ip_addr_to_str(2, address, buffer);
  EXPECT_EQ(buffer.text(), "2001:1db8:85a3:18d3:1319:8a2e:f370:7344");
}

TEST(KfsAddress, OfAnyOtherFamilyIsAllZeros) {
  constexpr uint8_t address[16] = {10, 1, 2, 3};
  for (const uint32_t family : {3U, 0U, 10U, 0x01000000U, 0xFFFFFFFFU}) {
    Destination buffer(46);
    EXPECT_EQ(kfs_ip_addr_to_str(family, address, buffer), static_cast<char*>(buffer));
    EXPECT_EQ(buffer.text(), "0.0.0.0");
  }
}

TEST(KfsAddress, WithoutABufferComesInTheLibrarysOwn) {
  constexpr uint8_t first[4] = {10, 1, 2, 3};
  constexpr uint8_t second[4] = {10, 9, 8, 7};
  char* const own = kfs_ip_addr_to_str(1, first, nullptr);
  EXPECT_STREQ(own, "10.1.2.3");
  EXPECT_EQ(kfs_ip_addr_to_str(1, second, nullptr), own);
  EXPECT_STREQ(own, "10.9.8.7");
  EXPECT_EQ(kfs_ip_addr_to_str(3, second, nullptr), own);
  EXPECT_STREQ(own, "0.0.0.0");
}

TEST(KfsAddress, LeavesTheLibrarysBufferAloneWhenGivenOne) {
  constexpr uint8_t first[4] = {10, 1, 2, 3};
  constexpr uint8_t second[4] = {10, 9, 8, 7};
  char* const own = kfs_ip_addr_to_str(1, first, nullptr);
  Destination buffer(46);
  kfs_ip_addr_to_str(1, second, buffer);
  EXPECT_STREQ(own, "10.1.2.3");
}

TEST(KfsAddress, OfANullAddressIsAllZeros) {
  Destination buffer(46);
  kfs_ip_addr_to_str(1, nullptr, buffer);
  EXPECT_EQ(buffer.text(), "0.0.0.0");
  EXPECT_STREQ(kfs_ip_addr_to_str(2, nullptr, nullptr), "0.0.0.0");
}

}  // namespace

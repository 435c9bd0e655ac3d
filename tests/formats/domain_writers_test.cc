// Writers of domain/interface and domain/port.
#include <cim_utils/formats.h>
#include <gtest/gtest.h>

#include "tests/formats/destination.h"
#include "tests/formats/platform_texts.h"

namespace {

using formats_test::Destination;
using formats_test::platform;

class DomainInterfaceText : public testing::Test {
 protected:
  DomainInterfaceText() { formats_test::reset_platform(); }

  // Names the interface for the doubles.
  static void interface_is(const std::string& name) { platform().interface_name = name; }

  static std::string trace_of(int (*writer)(char*, const uint8_t*), const uint8_t* record) {
    Destination dst(80);
    testing::internal::CaptureStdout();
    writer(dst, record);
    return testing::internal::GetCapturedStdout();
  }

  // Bytes 9 to 11 are not part of the text.
  const uint8_t domain_12[12] = {0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c, 12, 99, 98, 97};
  const uint8_t domain_5[12] = {0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c, 5, 0, 0, 0};
  const uint8_t domain_239[12] = {0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c, 239, 0, 0, 0};
  Destination dst{80};
  Destination zoning_dst{9};
};

TEST_F(DomainInterfaceText, IsNameColonDomain) {
  interface_is("fc1/1");
  EXPECT_EQ(cim_sprintf_dom_interface_hex(dst, domain_12), 8);
  EXPECT_EQ(dst.text(), "fc1/1:12");
}

TEST_F(DomainInterfaceText, AlignsTheDomainToTheRightInTwoPlaces) {
  interface_is("fc1/1");
  EXPECT_EQ(cim_sprintf_dom_interface_hex(dst, domain_5), 8);
  EXPECT_EQ(dst.text(), "fc1/1: 5");
}

TEST_F(DomainInterfaceText, WritesTheDomainInDecimalWithAllItsDigits) {
  interface_is("fc1/1");
  EXPECT_EQ(cim_sprintf_dom_interface_hex(dst, domain_239), 9);
  EXPECT_EQ(dst.text(), "fc1/1:239");
}

TEST_F(DomainInterfaceText, NamesTheInterfaceOfTheWwn) {
  interface_is("fc1/1");
  platform().if_index = 0x01001000;
  cim_sprintf_dom_interface_hex(dst, domain_12);
  const std::vector<uint8_t> wwn = {0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c};
  EXPECT_EQ(platform().asked_wwns, (std::vector<std::vector<uint8_t>>{wwn}));
  EXPECT_EQ(platform().asked_if_indexes, std::vector<uint32_t>{0x01001000});
}

TEST_F(DomainInterfaceText, NamesInterfaceZeroWhenThePlatformKnowsNone) {
  interface_is("fc0/0");
  platform().status = -1;
  platform().if_index = 0x01001000;
  EXPECT_EQ(cim_sprintf_dom_interface_hex(dst, domain_12), 8);
  EXPECT_EQ(dst.text(), "fc0/0:12");
  EXPECT_EQ(zs_cim_sprintf_dom_interface(zoning_dst, domain_12), 8);
  EXPECT_EQ(platform().asked_if_indexes, (std::vector<uint32_t>{0, 0}));
}

TEST_F(DomainInterfaceText, GivesThePlatformAClearedBuffer) {
  interface_is("port-channel 128");
  cim_sprintf_dom_interface_hex(dst, domain_12);
  interface_is("");
  cim_sprintf_dom_interface_hex(dst, domain_12);
  EXPECT_TRUE(platform().scratch_was_clear);
  EXPECT_EQ(dst.text(), ":12");
}

TEST_F(DomainInterfaceText, IsTracedOnStandardOutput) {
  interface_is("fc1/1");
  EXPECT_EQ(trace_of(cim_sprintf_dom_interface_hex, domain_5), "interface : fc1/1 domain-id 5 \n");
}

TEST_F(DomainInterfaceText, IsNotCut) {
  interface_is("port-channel 128");
  EXPECT_EQ(cim_sprintf_dom_interface_hex(dst, domain_239), 20);
  EXPECT_EQ(dst.text(), "port-channel 128:239");
}

TEST_F(DomainInterfaceText, TakesTheLongestNameOfThePlatform) {
  interface_is(std::string(63, 'n'));
  EXPECT_EQ(cim_sprintf_dom_interface_hex(dst, domain_239), 67);
  EXPECT_EQ(dst.text(), std::string(63, 'n') + ":239");
}

TEST_F(DomainInterfaceText, EndsANameThatThePlatformDoesNotEnd) {
  interface_is(std::string(64, 'n'));
  cim_sprintf_dom_interface_hex(dst, domain_12);
  EXPECT_EQ(dst.text(), std::string(63, 'n') + ":12");
}

TEST_F(DomainInterfaceText, ForZoningIsTheSameUpToEightCharacters) {
  interface_is("fc1/1");
  EXPECT_EQ(zs_cim_sprintf_dom_interface(zoning_dst, domain_12), 8);
  EXPECT_EQ(zoning_dst.text(), "fc1/1:12");
}

TEST_F(DomainInterfaceText, ForZoningIsCutAfterEightCharacters) {
  interface_is("fc12/24");
  EXPECT_EQ(zs_cim_sprintf_dom_interface(zoning_dst, domain_12), 10);
  EXPECT_EQ(zoning_dst.text(), "fc12/24:");
  interface_is("port-channel 128");
  zs_cim_sprintf_dom_interface(zoning_dst, domain_12);
  EXPECT_EQ(zoning_dst.text(), "port-cha");
}

TEST_F(DomainInterfaceText, ForZoningNamesTheInterfaceOfTheWwn) {
  interface_is("fc1/1");
  platform().if_index = 0x01002000;
  zs_cim_sprintf_dom_interface(zoning_dst, domain_12);
  const std::vector<uint8_t> wwn = {0x20, 0x41, 0x00, 0x0d, 0xec, 0x0a, 0x1b, 0x2c};
  EXPECT_EQ(platform().asked_wwns, (std::vector<std::vector<uint8_t>>{wwn}));
  EXPECT_EQ(platform().asked_if_indexes, std::vector<uint32_t>{0x01002000});
}

TEST_F(DomainInterfaceText, ForZoningIsTracedUncut) {
  interface_is("port-channel 128");
  EXPECT_EQ(trace_of(zs_cim_sprintf_dom_interface, domain_12),
            "interface : port-channel 128 domain-id 12 \n");
}

TEST_F(DomainInterfaceText, IsNotWhatTheReaderOfThatRecordReads) {
  interface_is("fc1/1");
  cim_sprintf_dom_interface_hex(dst, domain_12);
  uint8_t record[12];
  EXPECT_EQ(cim_get_hex_from_str_dom_interface(dst, record), -1);
}

TEST_F(DomainInterfaceText, FailsOnNullArgumentsWithoutAsking) {
  EXPECT_EQ(cim_sprintf_dom_interface_hex(nullptr, domain_12), -1);
  EXPECT_EQ(zs_cim_sprintf_dom_interface(nullptr, domain_12), -1);
  EXPECT_EQ(cim_sprintf_dom_interface_hex(dst, nullptr), -1);
  EXPECT_EQ(dst.text(), "");
  EXPECT_EQ(zs_cim_sprintf_dom_interface(zoning_dst, nullptr), -1);
  EXPECT_EQ(zoning_dst.text(), "");
  EXPECT_TRUE(platform().asked_wwns.empty());
}

TEST(DomainPortText, HasAtLeastTwoDigitsEach) {
  constexpr uint8_t record[4] = {5, 88, 99, 7};
  Destination dst(16);
  EXPECT_EQ(zs_cim_sprintf_dom_port(dst, record), 5);
  EXPECT_EQ(dst.text(), "05:07");
  EXPECT_TRUE(dst.rest_is_untouched());
}

TEST(DomainPortText, HasThreeDigitsWhereTheNumberHas) {
  constexpr uint8_t record[4] = {239, 0, 0, 255};
  Destination dst(16);
  EXPECT_EQ(zs_cim_sprintf_dom_port(dst, record), 7);
  EXPECT_EQ(dst.text(), "239:255");
}

TEST(DomainPortText, OfTwoDigitNumbersAndZero) {
  constexpr uint8_t record[4] = {12, 0, 0, 0};
  Destination dst(16);
  EXPECT_EQ(zs_cim_sprintf_dom_port(dst, record), 5);
  EXPECT_EQ(dst.text(), "12:00");
}

TEST(DomainPortText, AgreesWithPrintfOnEveryByteValue) {
  for (unsigned value = 0; value < 256; ++value) {
    const auto byte = static_cast<uint8_t>(value);
    const uint8_t record[4] = {byte, 0, 0, byte};
    char expected[16];
    std::snprintf(expected, sizeof expected, "%02u:%02u", value, value);
    Destination dst(16);
    zs_cim_sprintf_dom_port(dst, record);
    EXPECT_EQ(dst.text(), expected);
  }
}

TEST(DomainPortText, FailsOnNullArguments) {
  constexpr uint8_t record[4] = {5, 0, 0, 7};
  Destination dst(16);
  EXPECT_EQ(zs_cim_sprintf_dom_port(nullptr, record), -1);
  EXPECT_EQ(zs_cim_sprintf_dom_port(dst, nullptr), -1);
  EXPECT_EQ(dst.text(), "");
}

}  // namespace

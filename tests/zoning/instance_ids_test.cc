// The instance ids of zoning objects and of members.
#include <cim_utils/zoning_identifiers.h>

#include <cstring>

#include "tests/zoning/zoning_fixture.h"

using namespace test_support;
using zoning_test::switch_wwn;
using zoning_test::without_line_numbers;

namespace {

class GenericInstanceIds : public zoning_test::ZoningFixture {};

struct Fields {
  int32_t result;
  int32_t vsan;
  int32_t object;
  int32_t active;
  bool operator==(const Fields&) const = default;
  friend void PrintTo(const Fields& f, std::ostream* out) {
    *out << f.result << " " << f.vsan << " " << f.object << " " << f.active;
  }
};

Fields parse(const std::string& text) {
  Fields f{0, 111, 222, 333};
  f.result =
      zs_cim_get_fields_from_generic_instance_id(text.c_str(), &f.vsan, &f.object, &f.active);
  return f;
}

TEST_F(GenericInstanceIds, AreWrittenAsThreeDecimalNumbers) {
  char text[288];
  EXPECT_EQ(zs_cim_get_generic_instance_id(5, 12, 1, text), 0);
  EXPECT_STREQ(text, "5_12_1");
  EXPECT_EQ(zs_cim_get_generic_instance_id(4094, 8000, 0, text), 0);
  EXPECT_STREQ(text, "4094_8000_0");
  EXPECT_EQ(zs_cim_get_generic_instance_id(-1, 0, -2147483647 - 1, text), 0);
  EXPECT_STREQ(text, "-1_0_-2147483648");
  EXPECT_EQ(printed(), "");
}

TEST_F(GenericInstanceIds, AreReadBack) {
  EXPECT_EQ(parse("5_12_1"), (Fields{0, 5, 12, 1}));
  EXPECT_EQ(printed(), "vsan_id_p 5 \ngeneric_id_p 12 \nactive 1 \n");
}

TEST_F(GenericInstanceIds, WithoutThreePartsFailAfterStoringWhatIsThere) {
  EXPECT_EQ(parse("5_12"), (Fields{-1, 5, 12, 333}));
  EXPECT_EQ(parse("5_12_"), (Fields{-1, 5, 12, 333}));
  EXPECT_EQ(parse("5"), (Fields{-1, 5, 222, 333}));
  EXPECT_EQ(parse(""), (Fields{-1, 111, 222, 333}));
  EXPECT_EQ(parse("___"), (Fields{-1, 111, 222, 333}));
}

TEST_F(GenericInstanceIds, NumbersAreNotChecked) {
  EXPECT_EQ(parse("7x_12y_1z"), (Fields{0, 7, 12, 1}));
  EXPECT_EQ(parse("x_y_z"), (Fields{0, 0, 0, 0}));
  EXPECT_EQ(parse("_5__12___1_9"), (Fields{0, 5, 12, 1}));
  EXPECT_EQ(parse("-5_ 12_2"), (Fields{0, -5, 12, 2}));
}

TEST_F(GenericInstanceIds, ANumberBeyond32BitsIsTheNearest) {
  EXPECT_EQ(parse("4294967297_99999999999999999999_-99999999999999999999"),
            (Fields{0, 2147483647, 2147483647, -2147483647 - 1}));
}

TEST_F(GenericInstanceIds, TheFirst287CharactersCount) {
  EXPECT_EQ(parse(std::string(282, '0') + "5_12_1"), (Fields{-1, 5, 12, 333}));  // "_1" is cut
  EXPECT_EQ(parse(std::string(281, '0') + "5_12_19"), (Fields{0, 5, 12, 1}));
  EXPECT_EQ(parse(std::string(5000, '7')), (Fields{-1, 2147483647, 222, 333}));
}

TEST_F(GenericInstanceIds, NullArgumentsAreFailures) {
  int32_t n = 0;
  EXPECT_EQ(zs_cim_get_generic_instance_id(1, 2, 0, nullptr), -1);
  EXPECT_EQ(zs_cim_get_fields_from_generic_instance_id(nullptr, &n, &n, &n), -1);
  EXPECT_EQ(zs_cim_get_fields_from_generic_instance_id("1_2_0", nullptr, &n, &n), -1);
  EXPECT_EQ(zs_cim_get_fields_from_generic_instance_id("1_2_0", &n, nullptr, &n), -1);
  EXPECT_EQ(zs_cim_get_fields_from_generic_instance_id("1_2_0", &n, &n, nullptr), -1);
  EXPECT_EQ(n, 0);
}

// ---- Members

class MemberInstanceIds : public zoning_test::ZoningFixture {
 protected:
  // Empty for a failure.
  static std::string written(uint32_t vsan, zs_member_type type, const Bytes& value,
                             int32_t active) {
    char text[289];
    std::memset(text, '#', sizeof text);
    text[288] = '\0';
    const int32_t result = zs_cim_get_member_instance_id(vsan, type, value.data(), active, text);
    if (result == 0) return text;
    EXPECT_EQ(result, -1);
    EXPECT_EQ(std::string(text), std::string(288, '#'));
    return "";
  }
};

const Bytes kWwn = hex("21 00 00 e0 8b 05 05 04");

TEST_F(MemberInstanceIds, EveryTypeIsWrittenWithItsCimTypeAndKeyText) {
  const Bytes lun = hex("00 02 00 00 00 00 00 7f");
  const Bytes fcid = hex("00 01 0a ef");
  const Bytes text = Record(256).text(0, "name");
  EXPECT_EQ(written(1, ZS_MEMBER_PORT_WWN, kWwn, 0), "1^2^210000E08B050504^0");
  EXPECT_EQ(written(1, ZS_MEMBER_DOMAIN_PORT, hex("03 00 00 05"), 0), "1^4^03:05^0");
  EXPECT_EQ(written(1, ZS_MEMBER_FCID, fcid, 0), "1^3^010aef^0");
  EXPECT_EQ(written(1, ZS_MEMBER_ALIAS, text, 0), "1^5^name^0");
  EXPECT_EQ(written(1, ZS_MEMBER_WWN_LUN, joined({kWwn, lun}), 0),
            "1^101^210000E08B050504_000200000000007F^0");
  EXPECT_EQ(written(1, ZS_MEMBER_FCID_LUN, joined({fcid, lun}), 0),
            "1^102^010aef_000200000000007F^0");
  EXPECT_EQ(written(1, ZS_MEMBER_TEXT, text, 0), "1^12^name^0");
  EXPECT_EQ(written(1, ZS_MEMBER_NODE_WWN, kWwn, 0), "1^7^210000E08B050504^0");
  EXPECT_EQ(written(1, ZS_MEMBER_SYMBOLIC_NAME, text, 0), "1^12^name^0");
  EXPECT_EQ(written(1, ZS_MEMBER_LOCAL_INTERFACE, kWwn, 0), "1^6^210000E08B050504^0");
  EXPECT_EQ(written(1, ZS_MEMBER_IPV4, hex("01 00 00 0a 00 ff ff ff"), 0),
            "1^8^10.0.0.1/255.255.255.0^0");
  EXPECT_EQ(written(1, ZS_MEMBER_DOMAIN_INTERFACE, hex("20 45 ff ff ff ff ff ff 07 00 00 00"), 0),
            "1^11^fc1/5: 7^0");
  EXPECT_EQ(
      written(1, ZS_MEMBER_IPV6, hex("02000000 20010db8000000000000000000000001 40000000"), 0),
      "1^9^2001:db8::1/64^0");
  EXPECT_EQ(written(1, ZS_MEMBER_UNSIZED_TEXT, text, 0), "1^13^name^0");
  EXPECT_EQ(written(1, ZS_MEMBER_WWN_LUN_2, joined({kWwn, lun}), 0),
            "1^101^210000E08B050504_000200000000007F^0");
  EXPECT_EQ(written(1, ZS_MEMBER_FCID_LUN_2, joined({fcid, lun}), 0),
            "1^102^010aef_000200000000007F^0");
}

TEST_F(MemberInstanceIds, VsanAndActiveAreDecimal) {
  EXPECT_EQ(written(4094, ZS_MEMBER_PORT_WWN, kWwn, 1), "4094^2^210000E08B050504^1");
  EXPECT_EQ(printed(),
            "Instance id in zs_cim_get_member_instance_id : 4094^2^210000E08B050504^1 \n");
}

TEST_F(MemberInstanceIds, ATypeThatIsNotShownIsRefusedAndTheLineTraced) {
  for (const int type : {109, 0, 5, 226, 255}) {
    EXPECT_EQ(written(1, static_cast<zs_member_type>(type), zeros(256), 0), "") << type;
    EXPECT_EQ(without_line_numbers(printed()), "Function zs_cim_get_member_instance_id Line N \n")
        << type;
  }
}

TEST_F(MemberInstanceIds, PartsInCimFormAreWrittenAsTheyAre) {
  char text[288];
  EXPECT_EQ(zs_cim_get_member_instance_id_with_cim_member(5, ZS_CIM_MEMBER_ALIAS, "a^b", 0, text),
            0);
  EXPECT_STREQ(text, "5^5^a^b^0");
  EXPECT_EQ(zs_cim_get_member_instance_id_with_cim_member(5, static_cast<zs_cim_member_type>(0), "",
                                                          1, text),
            0);
  EXPECT_STREQ(text, "5^0^^1");
  EXPECT_EQ(printed(), "");
}

TEST_F(MemberInstanceIds, ALongTextInCimFormIsCutAtTheRoom) {
  char text[289];
  text[288] = '#';
  EXPECT_EQ(zs_cim_get_member_instance_id_with_cim_member(5, ZS_CIM_MEMBER_ALIAS,
                                                          std::string(400, 'x').c_str(), 0, text),
            0);
  EXPECT_EQ(std::string(text), "5^5^" + std::string(283, 'x'));
  EXPECT_EQ(text[288], '#');
}

TEST_F(MemberInstanceIds, NullArgumentsToWriteAreFailures) {
  char text[288] = "#";
  EXPECT_EQ(zs_cim_get_member_instance_id(1, ZS_MEMBER_PORT_WWN, nullptr, 0, text), -1);
  EXPECT_EQ(zs_cim_get_member_instance_id(1, ZS_MEMBER_PORT_WWN, kWwn.data(), 0, nullptr), -1);
  EXPECT_EQ(
      zs_cim_get_member_instance_id_with_cim_member(1, ZS_CIM_MEMBER_PORT_WWN, nullptr, 0, text),
      -1);
  EXPECT_EQ(
      zs_cim_get_member_instance_id_with_cim_member(1, ZS_CIM_MEMBER_PORT_WWN, "x", 0, nullptr),
      -1);
  EXPECT_STREQ(text, "#");
}

// What the parser stored; the value up to the last byte that differs from what was there before.
struct Parsed {
  int32_t result = 0;
  uint32_t vsan = 111;
  int type = 222;
  int active = 99;
  Bytes value;
  int32_t length = 333;
  bool operator==(const Parsed&) const = default;
  friend void PrintTo(const Parsed& p, std::ostream* out) {
    *out << "result " << p.result << " vsan " << p.vsan << " type " << p.type << " active "
         << p.active << " length " << p.length << "\n"
         << hexdump(p.value);
  }
};

Parsed parse_member_id(const std::string& text, int32_t raw = 0) {
  Parsed parsed;
  Bytes value(300, 0xa7);
  uint8_t type = 222;
  uint8_t active = 99;
  parsed.result = zs_cim_get_fields_from_member_instance_id(
      text.c_str(), &parsed.vsan, &type, value.data(), &parsed.length, &active, raw);
  while (!value.empty() && value.back() == 0xa7)
    value.pop_back();
  parsed.type = type;
  parsed.active = active;
  parsed.value = value;
  return parsed;
}

TEST_F(MemberInstanceIds, APortWwnIsReadBackAsItWasWritten) {
  EXPECT_EQ(written(1, ZS_MEMBER_PORT_WWN, kWwn, 0), "1^2^210000E08B050504^0");
  printed();
  EXPECT_EQ(parse_member_id("1^2^210000E08B050504^0"), (Parsed{0, 1, 1, 0, kWwn, 8}));
  EXPECT_EQ(printed(),
            "vsan_id in zs_cim_get_fields_from_member_instance_id 1 \n"
            "Value in get_member_type_from_cim_member_type_str 2 \n"
            "Temp str is 0 \n"
            "Entering get_member_value_from_cim_member_type_value ");
}

TEST_F(MemberInstanceIds, EveryTypeThatIsAcceptedIsRead) {
  EXPECT_EQ(parse_member_id("2^3^010aef^1"), (Parsed{0, 2, 3, 1, hex("00 01 0a ef"), 4}));
  EXPECT_EQ(parse_member_id("2^4^03:05^1"), (Parsed{0, 2, 2, 1, hex("03 00 00 05"), 4}));
  EXPECT_EQ(parse_member_id("2^7^210000E08B050504^1"), (Parsed{0, 2, 229, 1, kWwn, 8}));
  EXPECT_EQ(parse_member_id("2^8^10.0.0.1/255.255.255.0^1"),
            (Parsed{0, 2, 232, 1, hex("01 00 00 0a 00 ff ff ff"), 8}));
  EXPECT_EQ(parse_member_id("2^9^2001:db8::1^1"),
            (Parsed{0, 2, 234, 1, hex("02000000 20010db8000000000000000000000001 80000000"), 24}));
  EXPECT_EQ(parse_member_id("2^10^fc1/5;2000000DEC999999^1"),
            (Parsed{0, 2, 109, 1, hex("20 45 00 0d ec 99 99 99"), 8}));
}

TEST_F(MemberInstanceIds, InterfacesOfThisSwitchAskItForItsWwn) {
  Script script;
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  EXPECT_EQ(parse_member_id("2^6^fc1/5^1"),
            (Parsed{0, 2, 231, 1, hex("20 45 00 0d ec 0a 1b 2c"), 8}));
  EXPECT_EQ(parse_member_id("2^11^fc1/5;7^1"),
            (Parsed{0, 2, 233, 1, hex("20 45 ff ff ff ff ff ff 07 00 00 00"), 12}));
}

TEST_F(MemberInstanceIds, WithoutTheSwitchWwnInterfacesAreRefused) {
  Script script;
  script.expect(switch_wwn()).status(17);
  EXPECT_EQ(parse_member_id("2^6^fc1/5^1"), (Parsed{-1, 2, 231, 1, {}, 333}));
}

// The length is that of the text of the active flag.
TEST_F(MemberInstanceIds, TheLengthOfAnAliasOrSymbolicNameIsThatOfTheActiveFlagAndOne) {
  EXPECT_EQ(parse_member_id("2^5^alias-a^0"),
            (Parsed{0, 2, 4, 0, Record(64).text(0, "alias-a"), 2}));
  EXPECT_EQ(parse_member_id("2^12^iqn.name^0"),
            (Parsed{0, 2, 230, 0, Record(256).text(0, "iqn.name"), 2}));
  EXPECT_EQ(parse_member_id("2^12^iqn.name^0001").length, 5);
}

TEST_F(MemberInstanceIds, ATypeThatIsNotReadBackIsRefused) {
  EXPECT_EQ(parse_member_id("1^101^210000E08B050504_0000000000000000^0"),
            (Parsed{-1, 1, 222, 99, {}, 333}));
  EXPECT_EQ(parse_member_id("1^102^010aef_0000000000000000^0"), (Parsed{-1, 1, 222, 99, {}, 333}));
  EXPECT_EQ(parse_member_id("1^14^x^0"), (Parsed{-1, 1, 222, 99, {}, 333}));
}

TEST_F(MemberInstanceIds, AnUnsizedTextIsMappedButNotRead) {
  EXPECT_EQ(parse_member_id("1^13^text^1"), (Parsed{-1, 1, 235, 1, {}, 333}));
}

TEST_F(MemberInstanceIds, TheKeyTextsOfInterfacesAreNotReadBack) {
  EXPECT_EQ(parse_member_id("1^6^2045000DEC0A1B2C^0"), (Parsed{-1, 1, 231, 0, {}, 333}));
  EXPECT_EQ(parse_member_id("1^11^fc1/5: 7^0"), (Parsed{-1, 1, 233, 0, {}, 333}));
}

TEST_F(MemberInstanceIds, AValueThatDoesNotFitItsTypeIsRefusedAfterTheActiveFlagWasStored) {
  EXPECT_EQ(parse_member_id("1^2^21^1"), (Parsed{-1, 1, 1, 1, {}, 333}));
}

TEST_F(MemberInstanceIds, MissingPartsAreFailuresAfterStoringThoseInFront) {
  EXPECT_EQ(parse_member_id(""), (Parsed{-1, 111, 222, 99, {}, 333}));
  EXPECT_EQ(parse_member_id("^^^"), (Parsed{-1, 111, 222, 99, {}, 333}));
  EXPECT_EQ(parse_member_id("1"), (Parsed{-1, 1, 222, 99, {}, 333}));
  EXPECT_EQ(parse_member_id("1^2"), (Parsed{-1, 1, 1, 99, {}, 333}));
  EXPECT_EQ(parse_member_id("1^2^210000E08B050504"), (Parsed{-1, 1, 1, 99, {}, 333}));
  EXPECT_EQ(parse_member_id("1^2^210000E08B050504^"), (Parsed{-1, 1, 1, 99, {}, 333}));
}

TEST_F(MemberInstanceIds, AnEmptyValueOrOneWithTheSeparatorShiftsTheParts) {
  EXPECT_EQ(parse_member_id("1^5^^0"), (Parsed{-1, 1, 4, 99, {}, 333}));
  EXPECT_EQ(parse_member_id("1^5^a^b^0"), (Parsed{0, 1, 4, 0, Record(64).text(0, "a"), 2}));
}

TEST_F(MemberInstanceIds, AnyActiveFlagButOneIsZero) {
  for (const char* flag : {"0", "2", "-1", "x", "11"})
    EXPECT_EQ(parse_member_id("1^3^010aef^" + std::string(flag)).active, 0) << flag;
  EXPECT_EQ(parse_member_id("1^3^010aef^01x").active, 1);
}

// The value's place receives the active flag's text.
TEST_F(MemberInstanceIds, ARawReadStoresTheTextOfTheActiveFlag) {
  EXPECT_EQ(parse_member_id("1^2^210000E08B050504^1", 1), (Parsed{0, 1, 1, 1, hex("31 00"), 8}));
  EXPECT_EQ(printed(),
            "vsan_id in zs_cim_get_fields_from_member_instance_id 1 \n"
            "Value in get_member_type_from_cim_member_type_str 2 \n"
            "Temp str is 1 \n"
            "member_value 1 \n");
}

TEST_F(MemberInstanceIds, ARawReadTakesAnyValueText) {
  EXPECT_EQ(parse_member_id("1^2^nothing like a WWN^0", 1), (Parsed{0, 1, 1, 0, hex("30 00"), 8}));
  EXPECT_EQ(parse_member_id("1^11^fc1/5: 7^0", 1), (Parsed{0, 1, 233, 0, hex("30 00"), 12}));
  EXPECT_EQ(parse_member_id("1^13^text^0", 1), (Parsed{0, 1, 235, 0, hex("30 00"), -1}));
  EXPECT_EQ(parse_member_id("1^101^x^0", 1).result, -1);
}

TEST_F(MemberInstanceIds, ARawReadOfALongFlagStaysInTheMemberIdsRoom) {
  const Parsed parsed = parse_member_id("1^2^x^" + std::string(281, '0'), 1);
  EXPECT_EQ(parsed.result, 0);
  EXPECT_EQ(parsed.value, joined({Bytes(257, '0'), zeros(1)}));
}

TEST_F(MemberInstanceIds, TheFirst287CharactersCount) {
  // Behind "1^12^" and 280 characters there is room for "^0" alone.
  EXPECT_EQ(parse_member_id("1^12^" + std::string(280, 'x') + "^09", 0).length, 2);
  EXPECT_EQ(parse_member_id("1^12^" + std::string(281, 'x') + "^0", 0).result, -1);
  EXPECT_EQ(parse_member_id(std::string(5000, '1'), 0).result, -1);
}

TEST_F(MemberInstanceIds, NullArgumentsToReadAreFailures) {
  uint32_t vsan = 111;
  uint8_t type = 222;
  uint8_t value[288] = {};
  int32_t length = 333;
  uint8_t active = 99;
  const char* id = "1^2^210000E08B050504^1";
  EXPECT_EQ(
      zs_cim_get_fields_from_member_instance_id(nullptr, &vsan, &type, value, &length, &active, 0),
      -1);
  EXPECT_EQ(
      zs_cim_get_fields_from_member_instance_id(id, nullptr, &type, value, &length, &active, 0),
      -1);
  EXPECT_EQ(
      zs_cim_get_fields_from_member_instance_id(id, &vsan, nullptr, value, &length, &active, 0),
      -1);
  EXPECT_EQ(
      zs_cim_get_fields_from_member_instance_id(id, &vsan, &type, nullptr, &length, &active, 0),
      -1);
  EXPECT_EQ(zs_cim_get_fields_from_member_instance_id(id, &vsan, &type, value, nullptr, &active, 0),
            -1);
  EXPECT_EQ(zs_cim_get_fields_from_member_instance_id(id, &vsan, &type, value, &length, nullptr, 0),
            -1);
  EXPECT_EQ(vsan, 111u);
}

// ---- Zones

class ZoneRecords : public zoning_test::ZoningFixture {};

TEST_F(ZoneRecords, AZoneIsPrintedWithItsIdAndName) {
  zs_cim_zone_ zone{};
  std::strcpy(zone.instance_id, "5_12_1");
  std::strcpy(zone.name, "zone-a");
  print_zone(&zone);
  EXPECT_EQ(printed(), "zone id 5_12_1\n  name zone-a\n");
}

TEST_F(ZoneRecords, ANameWithoutATerminatorIsPrintedToItsEnd) {
  zs_cim_zone_ zone{};
  std::memset(zone.name, 'n', sizeof zone.name);
  zone.vsan_id = 0x41414141;
  print_zone(&zone);
  EXPECT_EQ(printed(), "zone id \n  name " + std::string(68, 'n') + "\n");
}

TEST_F(ZoneRecords, NoZoneIsNotPrinted) {
  print_zone(nullptr);
  EXPECT_EQ(printed(), "");
}

TEST_F(ZoneRecords, BitZeroOfTheAttributesMakesAZoneReadOnly) {
  EXPECT_EQ(is_zone_readonly(0), 0);
  EXPECT_EQ(is_zone_readonly(1), 1);
  EXPECT_EQ(is_zone_readonly(0xfffffffe), 0);
  EXPECT_EQ(is_zone_readonly(0xffffffff), 1);
}

}  // namespace

// Members' values, packed and as text, for every type and in both directions.
#include <cim_utils/zoning_identifiers.h>

#include <cstring>
#include <vector>

#include "tests/zoning/zoning_fixture.h"

using namespace test_support;
using zoning_test::platform_interface;
using zoning_test::switch_wwn;

namespace {

class MemberValues : public zoning_test::ZoningFixture {};

const Bytes kWwn = hex("21 00 00 e0 8b 05 05 04");
const Bytes kLun = hex("00 02 00 00 00 00 00 7f");
const Bytes kFcid = hex("00 01 0a ef");
const Bytes kIpv6 =
    hex("02 00 00 00  20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01  80 00 00 00");
const char kLongText[] = "0123456789012345678901234567890123456789012345678901234567890123456789";
const char kCutText[] = "012345678901234567890123456789012345678901234567890123456789012";  // 63

// A text in a field of its size.
Bytes text_field(size_t size, const char* text) {
  return Record(size).text(0, text);
}

// ---- Written

struct Written {
  int32_t result;
  std::string text;
  bool operator==(const Written&) const = default;
  friend void PrintTo(const Written& written, std::ostream* out) {
    *out << written.result << " '" << written.text << "'";
  }
};

Written write(zs_member_type type, const Bytes& value) {
  char dst[129];
  std::memset(dst, '#', sizeof dst);
  dst[128] = '\0';
  const int32_t result = get_cim_member_value_from_member_type_and_value(type, value.data(), dst);
  if (result != 0) {
    EXPECT_EQ(std::string(dst), std::string(128, '#'));
    return {result, ""};
  }
  return {result, dst};
}

TEST_F(MemberValues, WwnsAreWrittenInUpperCase) {
  for (const auto type : {ZS_MEMBER_PORT_WWN, ZS_MEMBER_NODE_WWN, ZS_MEMBER_LOCAL_INTERFACE})
    EXPECT_EQ(write(type, kWwn), (Written{0, "210000E08B050504"})) << type;
}

TEST_F(MemberValues, DomainAndPortAreWrittenFromBytes0And3) {
  EXPECT_EQ(write(ZS_MEMBER_DOMAIN_PORT, hex("03 aa bb 05")), (Written{0, "03:05"}));
  EXPECT_EQ(write(ZS_MEMBER_DOMAIN_PORT, hex("ef 00 00 64")), (Written{0, "239:100"}));
}

TEST_F(MemberValues, AnFcidIsWrittenInLowerCase) {
  EXPECT_EQ(write(ZS_MEMBER_FCID, kFcid), (Written{0, "010aef"}));
}

TEST_F(MemberValues, TextsAreWrittenAsTheyAre) {
  for (const auto type :
       {ZS_MEMBER_ALIAS, ZS_MEMBER_TEXT, ZS_MEMBER_SYMBOLIC_NAME, ZS_MEMBER_UNSIZED_TEXT}) {
    EXPECT_EQ(write(type, text_field(64, "backup server_1")), (Written{0, "backup server_1"}))
        << type;
    EXPECT_EQ(write(type, hex("00")), (Written{0, ""})) << type;
  }
}

TEST_F(MemberValues, OfATextSixtyThreeCharactersAreWritten) {
  EXPECT_EQ(write(ZS_MEMBER_ALIAS, Bytes(kLongText, kLongText + 63)), (Written{0, kCutText}));
  for (const auto type : {ZS_MEMBER_TEXT, ZS_MEMBER_SYMBOLIC_NAME, ZS_MEMBER_UNSIZED_TEXT})
    EXPECT_EQ(write(type, text_field(256, kLongText)), (Written{0, kCutText})) << type;
}

TEST_F(MemberValues, AWwnAndItsLunAreWrittenWithAnUnderscoreBetweenThem) {
  for (const auto type : {ZS_MEMBER_WWN_LUN, ZS_MEMBER_WWN_LUN_2}) {
    EXPECT_EQ(write(type, joined({kWwn, kLun})), (Written{0, "210000E08B050504_000200000000007F"}))
        << type;
  }
}

TEST_F(MemberValues, AnFcidAndItsLunAreWrittenWithAnUnderscoreBetweenThem) {
  for (const auto type : {ZS_MEMBER_FCID_LUN, ZS_MEMBER_FCID_LUN_2})
    EXPECT_EQ(write(type, joined({kFcid, kLun})), (Written{0, "010aef_000200000000007F"})) << type;
}

TEST_F(MemberValues, AnIpv4AddressIsWrittenWithItsMask) {
  EXPECT_EQ(write(ZS_MEMBER_IPV4, hex("01 02 00 0a 00 f0 ff ff")),
            (Written{0, "10.0.2.1/255.255.240.0"}));
}

TEST_F(MemberValues, ADomainInterfaceIsWrittenWithTheInterfacesNameAndAPaddedDomain) {
  EXPECT_EQ(write(ZS_MEMBER_DOMAIN_INTERFACE, hex("20 45 ff ff ff ff ff ff 07 00 00 00")),
            (Written{0, "fc1/5: 7"}));
  EXPECT_EQ(platform_interface().port_wwns_asked.size(), 1u);
  EXPECT_EQ(platform_interface().port_wwns_asked[0], hex("20 45 ff ff ff ff ff ff"));
  EXPECT_EQ(printed(), "interface : fc1/5 domain-id 7 \n");
}

TEST_F(MemberValues, AnIpv6AddressIsWrittenWithItsPrefixUnlessThatIsWhole) {
  EXPECT_EQ(write(ZS_MEMBER_IPV6, kIpv6), (Written{0, "2001:db8::1"}));
  EXPECT_EQ(printed(), " ipv6_addr is 2001:db8::1 \n");
  Bytes network = kIpv6;
  network[20] = 48;
  EXPECT_EQ(write(ZS_MEMBER_IPV6, network), (Written{0, "2001:db8::1/48"}));
  EXPECT_EQ(printed(), " ipv6_addr is 2001:db8::1/48 \n");
}

TEST_F(MemberValues, ValuesNeedNoAlignment) {
  const Bytes shifted = joined({hex("ff"), kIpv6});
  char dst[128];
  EXPECT_EQ(
      get_cim_member_value_from_member_type_and_value(ZS_MEMBER_IPV6, shifted.data() + 1, dst), 0);
  EXPECT_STREQ(dst, "2001:db8::1");
}

TEST_F(MemberValues, TheInterfaceOfAnotherSwitchIsNeverWritten) {
  EXPECT_EQ(write(ZS_MEMBER_INTERFACE_WWN, kWwn), (Written{-1, ""}));
}

TEST_F(MemberValues, UnknownTypesAreNeitherWrittenNorRead) {
  const Bytes known = {1, 2, 3, 4, 109, 225, 227, 228, 229, 230, 231, 232, 233, 234, 235, 241, 243};
  int unknown = 0;
  for (int type = 0; type < 256; ++type) {
    if (std::find(known.begin(), known.end(), type) != known.end()) continue;
    ++unknown;
    EXPECT_EQ(write(static_cast<zs_member_type>(type), zeros(256)), (Written{-1, ""})) << type;
    uint8_t value[1] = {0xaa};
    EXPECT_EQ(get_member_value_from_cim_member_type_value("210000E08B050504",
                                                          static_cast<zs_member_type>(type), value),
              -1)
        << type;
    EXPECT_EQ(value[0], 0xaa) << type;
  }
  EXPECT_EQ(unknown, 239);
}

TEST_F(MemberValues, NullArgumentsAreFailures) {
  char dst[128] = "#";
  EXPECT_EQ(get_cim_member_value_from_member_type_and_value(ZS_MEMBER_PORT_WWN, nullptr, dst), -1);
  EXPECT_STREQ(dst, "#");
  EXPECT_EQ(
      get_cim_member_value_from_member_type_and_value(ZS_MEMBER_PORT_WWN, kWwn.data(), nullptr),
      -1);
  uint8_t value[288] = {0xaa};
  for (int type = 0; type < 256; ++type) {
    const auto zs_type = static_cast<zs_member_type>(type);
    EXPECT_EQ(get_member_value_from_cim_member_type_value(nullptr, zs_type, value), -1) << type;
    EXPECT_EQ(get_member_value_from_cim_member_type_value("3:5", zs_type, nullptr), -1) << type;
  }
  EXPECT_EQ(value[0], 0xaa);
}

// ---- Read

// What a reader stored: the bytes up to the last that differs from what was there before.
struct Read {
  int32_t result;
  Bytes value;
  bool operator==(const Read&) const = default;
  friend void PrintTo(const Read& read, std::ostream* out) {
    *out << read.result << "\n" << hexdump(read.value);
  }
};

Read read(zs_member_type type, const char* text) {
  Bytes value(300, 0xa7);
  const int32_t result = get_member_value_from_cim_member_type_value(text, type, value.data());
  while (!value.empty() && value.back() == 0xa7)
    value.pop_back();
  return {result, value};
}

const Read kRefused = {-1, {}};

TEST_F(MemberValues, EveryReadSaysSo) {
  EXPECT_EQ(read(ZS_MEMBER_FCID, "010aef"), (Read{0, kFcid}));
  EXPECT_EQ(printed(), "Entering get_member_value_from_cim_member_type_value ");
  EXPECT_EQ(read(ZS_MEMBER_UNSIZED_TEXT, "x"), kRefused);
  EXPECT_EQ(printed(), "Entering get_member_value_from_cim_member_type_value ");
}

TEST_F(MemberValues, AWwnIsReadInEitherCase) {
  for (const auto type : {ZS_MEMBER_PORT_WWN, ZS_MEMBER_NODE_WWN}) {
    EXPECT_EQ(read(type, "210000E08B050504"), (Read{0, kWwn})) << type;
    EXPECT_EQ(read(type, "210000e08b050504"), (Read{0, kWwn})) << type;
  }
}

TEST_F(MemberValues, AWwnOfAnotherLengthIsRefused) {
  for (const auto type : {ZS_MEMBER_PORT_WWN, ZS_MEMBER_NODE_WWN}) {
    EXPECT_EQ(read(type, "210000E08B05050"), kRefused) << type;
    EXPECT_EQ(read(type, "210000E08B0505044"), kRefused) << type;
    EXPECT_EQ(read(type, "21:00:00:E0:8B:05:05:04"), kRefused) << type;
    EXPECT_EQ(read(type, ""), kRefused) << type;
  }
}

TEST_F(MemberValues, DomainAndPortAreReadToBytes0And3) {
  EXPECT_EQ(read(ZS_MEMBER_DOMAIN_PORT, "3:5"), (Read{0, hex("03 00 00 05")}));
  EXPECT_TRUE(was_printed("3 5\n"));
  EXPECT_EQ(read(ZS_MEMBER_DOMAIN_PORT, "03:05"), (Read{0, hex("03 00 00 05")}));
  EXPECT_EQ(read(ZS_MEMBER_DOMAIN_PORT, "239:255"), (Read{0, hex("ef 00 00 ff")}));
}

TEST_F(MemberValues, OfDomainAndPortTheLowByteIsKept) {
  EXPECT_EQ(read(ZS_MEMBER_DOMAIN_PORT, "257:511"), (Read{0, hex("01 00 00 ff")}));
}

TEST_F(MemberValues, ADomainOrPortThatIsZeroOrNoNumberIsRefusedWithAMessage) {
  for (const char* text : {"0:5", "3:0", "a:5", "3:b", "3:", ":5", "3:4:5"}) {
    EXPECT_EQ(read(ZS_MEMBER_DOMAIN_PORT, text), kRefused) << text;
    EXPECT_EQ(printed(),
              "Entering get_member_value_from_cim_member_type_value Invalid domain or port ")
        << text;
  }
}

TEST_F(MemberValues, ADomainPortTextWithoutAColonIsRefusedSilently) {
  for (const char* text : {"35", "", "3;5", ":"}) {
    EXPECT_EQ(read(ZS_MEMBER_DOMAIN_PORT, text), kRefused) << text;
    EXPECT_EQ(printed(), "Entering get_member_value_from_cim_member_type_value ") << text;
  }
}

TEST_F(MemberValues, AnFcidOfAnotherLengthIsRefused) {
  EXPECT_EQ(read(ZS_MEMBER_FCID, "010AEF"), (Read{0, kFcid}));
  EXPECT_EQ(read(ZS_MEMBER_FCID, "010ae"), kRefused);
  EXPECT_EQ(read(ZS_MEMBER_FCID, "0x010aef"), kRefused);
}

TEST_F(MemberValues, ATextIsReadIntoAZeroedField) {
  EXPECT_EQ(read(ZS_MEMBER_ALIAS, "alias-a"), (Read{0, text_field(64, "alias-a")}));
  EXPECT_EQ(read(ZS_MEMBER_TEXT, "node.example"), (Read{0, text_field(256, "node.example")}));
  EXPECT_EQ(read(ZS_MEMBER_SYMBOLIC_NAME, "iqn.x"), (Read{0, text_field(256, "iqn.x")}));
  EXPECT_EQ(read(ZS_MEMBER_ALIAS, ""), (Read{0, zeros(64)}));
}

TEST_F(MemberValues, OfATextSixtyThreeCharactersAreRead) {
  EXPECT_EQ(read(ZS_MEMBER_ALIAS, kLongText), (Read{0, text_field(64, kCutText)}));
  EXPECT_EQ(read(ZS_MEMBER_TEXT, kLongText), (Read{0, text_field(256, kCutText)}));
  EXPECT_EQ(read(ZS_MEMBER_SYMBOLIC_NAME, kLongText), (Read{0, text_field(256, kCutText)}));
}

TEST_F(MemberValues, AWwnAndItsLunAreRead) {
  for (const auto type : {ZS_MEMBER_WWN_LUN, ZS_MEMBER_WWN_LUN_2}) {
    EXPECT_EQ(read(type, "210000E08B050504_000200000000007F"), (Read{0, joined({kWwn, kLun})}))
        << type;
    EXPECT_EQ(read(type, "210000E08B050504_000200000000007"), kRefused) << type;
    EXPECT_EQ(read(type, "210000E08B050504"), kRefused) << type;
  }
}

TEST_F(MemberValues, AnFcidAndItsLunAreRead) {
  for (const auto type : {ZS_MEMBER_FCID_LUN, ZS_MEMBER_FCID_LUN_2}) {
    EXPECT_EQ(read(type, "010aef_000200000000007F"), (Read{0, joined({kFcid, kLun})})) << type;
    EXPECT_EQ(read(type, "010aef_000200000000007F0"), kRefused) << type;
    EXPECT_EQ(read(type, "010aef"), kRefused) << type;
  }
}

TEST_F(MemberValues, AnIpv4AddressIsReadWithItsMask) {
  EXPECT_EQ(read(ZS_MEMBER_IPV4, "10.0.2.1/255.255.240.0"),
            (Read{0, hex("01 02 00 0a 00 f0 ff ff")}));
  EXPECT_EQ(read(ZS_MEMBER_IPV4, "10.0.2.1"), kRefused);
  EXPECT_EQ(read(ZS_MEMBER_IPV4, "10.0.2.1/24"), kRefused);
}

TEST_F(MemberValues, AnIpv6AddressIsReadWithAWholePrefix) {
  EXPECT_EQ(read(ZS_MEMBER_IPV6, "2001:db8::1"), (Read{0, kIpv6}));
  EXPECT_EQ(write(ZS_MEMBER_IPV6, kIpv6), (Written{0, "2001:db8::1"}));
}

TEST_F(MemberValues, WhatIsNoIpv6AddressIsRefusedWithAMessage) {
  for (const char* text : {"", "2001:db8::1/64", "10.0.0.1", "2001:db8:::1", "fe80::1%eth0"}) {
    EXPECT_EQ(read(ZS_MEMBER_IPV6, text), kRefused) << text;
    EXPECT_EQ(printed(),
              "Entering get_member_value_from_cim_member_type_value Error in ipv6 conversion ")
        << text;
  }
}

TEST_F(MemberValues, AnUnsizedTextIsNeverRead) {
  EXPECT_EQ(read(ZS_MEMBER_UNSIZED_TEXT, "text"), kRefused);
}

TEST_F(MemberValues, AnInterfaceOfThisSwitchIsReadByItsNameNotByItsWwn) {
  Script script;
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  EXPECT_EQ(read(ZS_MEMBER_LOCAL_INTERFACE, "fc1/5"), (Read{0, hex("20 45 00 0d ec 0a 1b 2c")}));
  EXPECT_EQ(read(ZS_MEMBER_LOCAL_INTERFACE, "2045000DEC0A1B2C"), kRefused);
}

TEST_F(MemberValues, AnInterfaceOfAnotherSwitchIsReadByItsNameAndTheSwitchsWwn) {
  EXPECT_EQ(read(ZS_MEMBER_INTERFACE_WWN, "fc1/5;2000000DEC999999"),
            (Read{0, hex("20 45 00 0d ec 99 99 99")}));
  EXPECT_EQ(read(ZS_MEMBER_INTERFACE_WWN, "fc1/5"), kRefused);
}

TEST_F(MemberValues, ADomainInterfaceIsReadByItsNameAndTheDomain) {
  Script script;
  script.expect(switch_wwn()).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  EXPECT_EQ(read(ZS_MEMBER_DOMAIN_INTERFACE, "fc1/5;7"),
            (Read{0, hex("20 45 ff ff ff ff ff ff 07 00 00 00")}));
}

TEST_F(MemberValues, TheKeyTextOfADomainInterfaceIsNotReadBack) {
  EXPECT_EQ(read(ZS_MEMBER_DOMAIN_INTERFACE, "fc1/5: 7"), kRefused);
}

TEST_F(MemberValues, WithoutTheSwitchWwnInterfacesAreRefused) {
  Script script;
  script.expect(switch_wwn()).status(17);
  script.expect(switch_wwn()).ok_without_reply();
  EXPECT_EQ(read(ZS_MEMBER_LOCAL_INTERFACE, "fc1/5"), kRefused);
  EXPECT_EQ(read(ZS_MEMBER_DOMAIN_INTERFACE, "fc1/5;7"), kRefused);
}

}  // namespace

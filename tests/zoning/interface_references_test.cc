// Interface references and the port WWNs behind them.
#include <cim_utils/zoning_identifiers.h>

#include "tests/adaptors/reply_sweep.h"
#include "tests/zoning/zoning_fixture.h"

using namespace test_support;
using zoning_test::platform_interface;
using zoning_test::switch_wwn;
using zoning_test::without_line_numbers;

namespace {

class InterfaceReferences : public zoning_test::ZoningFixture {
 protected:
  struct Resolved {
    int32_t result;
    Bytes out;
    bool operator==(const Resolved&) const = default;
  };
  // The bytes up to the last that differs from what was there before.
  static Resolved resolve(const char* text, int32_t mode) {
    Bytes out(16, 0xa7);
    const int32_t result = get_pwwn_with_ifindex_and_swwn(text, mode, out.data());
    while (!out.empty() && out.back() == 0xa7)
      out.pop_back();
    return {result, out};
  }
  static const Resolved& refused() {
    static const Resolved refused = {-1, {}};
    return refused;
  }
  static Bytes wwn() { return hex("20 00 00 0d ec 0a 1b 2c"); }
};

TEST_F(InterfaceReferences, AnInterfaceOfThisSwitchIsItsPortWwn) {
  Script script;
  script.expect(switch_wwn()).replies(wwn());
  EXPECT_EQ(resolve("fc1/5", 0), (Resolved{0, hex("20 45 00 0d ec 0a 1b 2c")}));
  EXPECT_EQ(platform_interface().names_asked, std::vector<std::string>{"fc1/5"});
  EXPECT_EQ(platform_interface().indexes_asked, std::vector<uint32_t>(4, 0x12345678));
  EXPECT_EQ(without_line_numbers(printed()),
            "Function get_pwwn_with_ifindex_and_swwn Line N \n"
            "if_infex is fc1/5\n"
            "wwn_str 2045000DEC0A1B2C \n");
}

TEST_F(InterfaceReferences, AnInterfaceOfThisSwitchTakesTheWholeTextForItsName) {
  Script script;
  script.expect(switch_wwn()).replies(wwn());
  platform_interface().name = "port-channel 12;3";
  EXPECT_EQ(resolve("port-channel 12;3", 0).result, 0);
}

TEST_F(InterfaceReferences, AnUnknownInterfaceIsRefusedBeforeTheSwitchIsAsked) {
  EXPECT_EQ(resolve("fc9/9", 0), refused());
  EXPECT_EQ(without_line_numbers(printed()),
            "Function get_pwwn_with_ifindex_and_swwn Line N \nError in if_db_str2ifindix\n");
  EXPECT_EQ(resolve("fc9/9;2000000DEC999999", 1), refused());
  EXPECT_EQ(printed(),
            "Interface fc9/9 \nSwitch WWN 2000000DEC999999 \nError in if_db_str2ifindix\n");
  EXPECT_EQ(resolve("fc9/9;7", 2), refused());
  EXPECT_EQ(printed(), "Interface fc9/9 \nSwitch Domain 7 : 7 \nError in if_db_str2ifindix\n");
}

TEST_F(InterfaceReferences, WithoutTheSwitchWwnThereIsNoPortWwn) {
  Script script;
  script.expect(switch_wwn()).status(17);
  script.expect(switch_wwn()).times_out();
  script.expect(switch_wwn()).ok_without_reply();
  script.expect(switch_wwn()).replies(wwn()).cut_to(7);
  script.expect(switch_wwn()).status_with_reply(3, wwn());
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(resolve(i % 2 == 0 ? "fc1/5" : "fc1/5;7", i % 2 == 0 ? 0 : 2), refused());
    EXPECT_TRUE(printed().ends_with("Error in Getting Switch WWN\n"));
  }
}

TEST_F(InterfaceReferences, AnInterfaceWithoutAPortWwnIsRefused) {
  Script script;
  script.expect(switch_wwn()).replies(wwn());
  script.expect(switch_wwn()).replies(wwn());
  platform_interface().type_known = false;
  const std::string message = "Error in Getting Port WWN from Switch WWn and ifindex\n";
  EXPECT_EQ(resolve("fc1/5", 0), refused());
  EXPECT_TRUE(printed().ends_with(message));
  EXPECT_EQ(resolve("fc1/5;2000000DEC999999", 1), refused());
  EXPECT_TRUE(printed().ends_with(message));
  EXPECT_EQ(resolve("fc1/5;7", 2), refused());
  EXPECT_TRUE(printed().ends_with(message));
}

TEST_F(InterfaceReferences, AnInterfaceOfAnotherSwitchIsDerivedFromThatSwitchsWwn) {
  EXPECT_EQ(resolve("fc1/5;2000000DEC999999", 1), (Resolved{0, hex("20 45 00 0d ec 99 99 99")}));
  EXPECT_EQ(printed(),
            "Interface fc1/5 \n"
            "Switch WWN 2000000DEC999999 \n"
            "if_infex is fc1/5\n"
            "Port WWN is 2045000DEC999999\n");
}

TEST_F(InterfaceReferences, TheSecondPartEndsAtABlank) {
  EXPECT_EQ(resolve("fc1/5;2000000DEC999999 behind it", 1).result, 0);
  EXPECT_EQ(resolve("fc1/5; 2000000DEC999999", 1).result, 0);
}

TEST_F(InterfaceReferences, ABadSwitchWwnIsRefused) {
  EXPECT_EQ(resolve("fc1/5;2000000DEC99999", 1), refused());
  EXPECT_EQ(printed(),
            "Interface fc1/5 \n"
            "Switch WWN 2000000DEC99999 \n"
            "if_infex is fc1/5\n"
            "Error in Getting Switch WWN\n");
}

TEST_F(InterfaceReferences, WithoutAnInterfaceTheFormatIsWrong) {
  for (const int32_t mode : {1, 2}) {
    EXPECT_EQ(resolve("", mode), refused());
    EXPECT_EQ(resolve(";;", mode), refused());
    EXPECT_EQ(printed(), "Error in specified Format \nError in specified Format \n");
  }
}

TEST_F(InterfaceReferences, WithoutASecondPartThereIsNoMessage) {
  for (const int32_t mode : {1, 2}) {
    EXPECT_EQ(resolve("fc1/5", mode), refused());
    EXPECT_EQ(resolve("fc1/5;", mode), refused());
    EXPECT_EQ(resolve("fc1/5;  ", mode), refused());
    EXPECT_EQ(printed(), "");
  }
}

TEST_F(InterfaceReferences, OfAnInterfacesNameNineCharactersAreKept) {
  platform_interface().name = "sup-fc123";
  EXPECT_EQ(resolve("sup-fc123;2000000DEC999999", 1).result, 0);
  EXPECT_EQ(resolve("sup-fc1234;2000000DEC999999", 1).result, 0);
  EXPECT_EQ(platform_interface().names_asked, (std::vector<std::string>{"sup-fc123", "sup-fc123"}));
}

TEST_F(InterfaceReferences, OfAReference255CharactersCount) {
  const std::string name(238, 'n');
  platform_interface().name = "nnnnnnnnn";
  EXPECT_EQ(resolve((name + ";2000000DEC999999").c_str(), 1).result, 0);
  // One character more in front: the last digit of the WWN is out of sight.
  EXPECT_EQ(resolve(("n" + name + ";2000000DEC999999").c_str(), 1).result, -1);
  EXPECT_TRUE(was_printed("Switch WWN 2000000DEC99999 \n"));
}

TEST_F(InterfaceReferences, AnInterfaceOfADomainIsTheTruncatedKeyOfItsPortWwn) {
  Script script;
  script.expect(switch_wwn()).replies(wwn());
  EXPECT_EQ(resolve("fc1/5;7", 2), (Resolved{0, hex("20 45 ff ff ff ff ff ff 07 00 00 00")}));
  EXPECT_EQ(printed(),
            "Interface fc1/5 \n"
            "Switch Domain 7 : 7 \n"
            "Checking if_infex is fc1/5\n"
            "Port WWN is 2045000DEC0A1B2C\n"
            " sizeof(domain_interface) 12\n");
}

TEST_F(InterfaceReferences, OfADomainTheLowByteIsKept) {
  Script script;
  for (int i = 0; i < 4; ++i)
    script.expect(switch_wwn()).replies(wwn());
  EXPECT_EQ(resolve("fc1/5;263", 2).out[8], 7);
  EXPECT_TRUE(was_printed("Switch Domain 263 : 7 \n"));
  EXPECT_EQ(resolve("fc1/5;7x", 2).out[8], 7);
  EXPECT_EQ(resolve("fc1/5;x", 2).out[8], 0);
  EXPECT_EQ(resolve("fc1/5;-1", 2).out[8], 255);
}

TEST_F(InterfaceReferences, AnyOtherModeDoesNothing) {
  for (const int32_t mode : {-1, 3, 100}) {
    EXPECT_EQ(resolve("fc1/5", mode), (Resolved{0, {}})) << mode;
  }
  EXPECT_EQ(printed(), "");
  EXPECT_TRUE(platform_interface().names_asked.empty());
}

TEST_F(InterfaceReferences, NullArgumentsAreFailures) {
  for (const int32_t mode : {0, 1, 2}) {
    uint8_t out[12];
    EXPECT_EQ(get_pwwn_with_ifindex_and_swwn(nullptr, mode, out), -1);
    EXPECT_EQ(get_pwwn_with_ifindex_and_swwn("fc1/5;7", mode, nullptr), -1);
  }
  EXPECT_EQ(printed(), "");
}

TEST_F(InterfaceReferences, EverySwitchWwnReplyLengthAndPatternIsSafe) {
  HeapLedger::Pause pause;
  sweep_replies(8, [] {
    uint8_t out[12];
    get_pwwn_with_ifindex_and_swwn("fc1/5;7", 2, out);
  });
}

}  // namespace

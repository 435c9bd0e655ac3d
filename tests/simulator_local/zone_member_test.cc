#include <switch_platform/zone_server.h>

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace {

constexpr int32_t kBadMember = 0x40200008;

struct Parsed {
  int32_t result;
  int type;
  int32_t length;
  long value;  // offset in the entry; -1: null
  long lun;
  friend bool operator==(const Parsed&, const Parsed&) = default;
};

Parsed parse(const std::vector<uint8_t>& entry) {
  uint8_t type = 0;
  int32_t length = -7;
  const void* value = &type;
  const void* lun = &type;
  const auto offset = [&](const void* at) {
    return at != nullptr ? static_cast<const uint8_t*>(at) - entry.data() : -1L;
  };
  const int32_t result = zs_api_parse_member(entry.data(), &type, &length, &value, &lun);
  return {result, type, length, offset(value), offset(lun)};
}

// An entry that ends with the value of its type.
std::vector<uint8_t> entry_of(uint8_t type, size_t width, const char* text = "") {
  std::vector<uint8_t> entry(24 + width);
  entry[20] = type;
  memcpy(entry.data() + 24, text, strlen(text));
  return entry;
}

TEST(ZoneMember, AnAddressHasTheLengthOfItsType) {
  EXPECT_EQ((Parsed{0, 1, 8, 24, -1}), parse(entry_of(1, 8)));
  EXPECT_EQ((Parsed{0, 2, 4, 24, -1}), parse(entry_of(2, 4)));
  EXPECT_EQ((Parsed{0, 3, 4, 24, -1}), parse(entry_of(3, 4)));
  EXPECT_EQ((Parsed{0, 109, 8, 24, -1}), parse(entry_of(109, 8)));
  EXPECT_EQ((Parsed{0, 229, 8, 24, -1}), parse(entry_of(229, 8)));
  EXPECT_EQ((Parsed{0, 231, 8, 24, -1}), parse(entry_of(231, 8)));
  EXPECT_EQ((Parsed{0, 232, 8, 24, -1}), parse(entry_of(232, 8)));
  EXPECT_EQ((Parsed{0, 233, 12, 24, -1}), parse(entry_of(233, 12)));
  EXPECT_EQ((Parsed{0, 234, 24, 24, -1}), parse(entry_of(234, 24)));
}

TEST(ZoneMember, ALunFollowsTheAddress) {
  EXPECT_EQ((Parsed{0, 225, 16, 24, 32}), parse(entry_of(225, 16)));
  EXPECT_EQ((Parsed{0, 241, 16, 24, 32}), parse(entry_of(241, 16)));
  EXPECT_EQ((Parsed{0, 227, 12, 24, 28}), parse(entry_of(227, 12)));
  EXPECT_EQ((Parsed{0, 243, 12, 24, 28}), parse(entry_of(243, 12)));
}

TEST(ZoneMember, TheLengthOfATextCountsItsNul) {
  EXPECT_EQ((Parsed{0, 4, 6, 24, -1}), parse(entry_of(4, 64, "array")));
  EXPECT_EQ((Parsed{0, 228, 3, 24, -1}), parse(entry_of(228, 256, "iq")));
  EXPECT_EQ((Parsed{0, 230, 3, 24, -1}), parse(entry_of(230, 256, "iq")));
  EXPECT_EQ((Parsed{0, 235, 1, 24, -1}), parse(entry_of(235, 256)));
}

TEST(ZoneMember, ATextWithoutANulEndsWithItsWidth) {
  EXPECT_EQ((Parsed{0, 4, 64, 24, -1}), parse(entry_of(4, 64, std::string(64, 'x').c_str())));
  EXPECT_EQ((Parsed{0, 235, 256, 24, -1}),
            parse(entry_of(235, 256, std::string(256, 'x').c_str())));
}

TEST(ZoneMember, AnUnknownTypeIsToldAndHasNoValue) {
  EXPECT_EQ((Parsed{kBadMember, 5, 0, -1, -1}), parse(entry_of(5, 0)));
  EXPECT_EQ((Parsed{kBadMember, 0, 0, -1, -1}), parse(entry_of(0, 0)));
}

TEST(ZoneMember, NothingIsReadFromNullOrStoredThere) {
  int32_t length = 7;
  EXPECT_EQ(kBadMember, zs_api_parse_member(nullptr, nullptr, &length, nullptr, nullptr));
  EXPECT_EQ(0, length);
  EXPECT_EQ(0, zs_api_parse_member(entry_of(225, 16).data(), nullptr, nullptr, nullptr, nullptr));
}

}  // namespace

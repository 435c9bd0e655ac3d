// A second proof of the readers: whatever the text, they give what the C library's scan gives.
// readers_test.cc holds the first one, results written out by hand.
#include <cim_utils/formats.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <random>
#include <string>

namespace {

constexpr int kTexts = 60000;

class RandomTexts {
 public:
  // Mostly characters of `likely`, now and then any other one but the terminator.
  RandomTexts(std::string likely, uint32_t seed) : likely_(std::move(likely)), random_(seed) {}

  std::string next(std::size_t length) {
    std::string text(length, '0');
    for (char& c : text)
      c = character();
    return text;
  }
  std::size_t up_to(std::size_t most) { return random_() % (most + 1); }

 private:
  char character() {
    if (random_() % 97 == 0) return static_cast<char>(1 + random_() % 255);
    return likely_[random_() % likely_.size()];
  }

  std::string likely_;
  std::mt19937 random_;
};

std::array<uint8_t, 8> scanned_wwn(const char* text) {
  unsigned v[8] = {};
  (void)std::sscanf(text, "%2x%2x%2x%2x%2x%2x%2x%2x", &v[0], &v[1], &v[2], &v[3], &v[4], &v[5],
                    &v[6], &v[7]);
  std::array<uint8_t, 8> bytes;
  for (std::size_t i = 0; i < 8; ++i)
    bytes[i] = static_cast<uint8_t>(v[i]);
  return bytes;
}

std::array<uint8_t, 4> scanned_fcid(const char* text) {
  unsigned v[3] = {};
  (void)std::sscanf(text, "%2x%2x%2x", &v[0], &v[1], &v[2]);
  return {0, static_cast<uint8_t>(v[0]), static_cast<uint8_t>(v[1]), static_cast<uint8_t>(v[2])};
}

void expect_wwns_as_scanned(RandomTexts texts) {
  for (int i = 0; i < kTexts; ++i) {
    const std::string text = texts.next(16);
    wwn_ wwn;
    ASSERT_EQ(wwn_cim_get_hex_from_str_wwn(text.c_str(), &wwn), 0);
    std::array<uint8_t, 8> bytes;
    std::copy(wwn.bytes, wwn.bytes + 8, bytes.begin());
    ASSERT_EQ(bytes, scanned_wwn(text.c_str())) << testing::PrintToString(text);
  }
}

TEST(ScanComparison, WwnsOfDigits) {
  expect_wwns_as_scanned(RandomTexts("0123456789abcdefABCDEF", 1));
}

TEST(ScanComparison, WwnsOfDigitsBlanksSignsAndPrefixes) {
  expect_wwns_as_scanned(RandomTexts("0123456789abcdefABCDEF0x0X +-\t\ngZ", 2));
}

TEST(ScanComparison, WwnsOfLittleButPrefixesAndSigns) {
  expect_wwns_as_scanned(RandomTexts("00xX+- 1f", 3));
}

TEST(ScanComparison, FcidsOfAllKinds) {
  RandomTexts texts("0123456789abcdefABCDEF0xX +-g", 4);
  for (int i = 0; i < kTexts; ++i) {
    const std::string text = texts.next(6);
    std::array<uint8_t, 4> fcid;
    ASSERT_EQ(cim_get_hex_from_str_fcid(text.c_str(), fcid.data()), 0);
    ASSERT_EQ(fcid, scanned_fcid(text.c_str())) << testing::PrintToString(text);
  }
}

TEST(ScanComparison, DomainsOfAllKinds) {
  RandomTexts texts("0123456789abcdefABCDEFxX +-g", 5);
  for (int i = 0; i < kTexts; ++i) {
    const std::string text = "2041000DEC0A1B2C:" + texts.next(2);
    uint8_t record[12];
    ASSERT_EQ(cim_get_hex_from_str_dom_interface(text.c_str(), record), 0);
    unsigned domain = 0;
    (void)std::sscanf(text.c_str() + 17, "%2x", &domain);
    ASSERT_EQ(record[8], static_cast<uint8_t>(domain)) << testing::PrintToString(text);
  }
}

void expect_ip_as_scanned(const std::string& text) {
  unsigned v[8] = {};
  const int fields = std::sscanf(text.c_str(), "%u.%u.%u.%u/%u.%u.%u.%u", &v[0], &v[1], &v[2],
                                 &v[3], &v[4], &v[5], &v[6], &v[7]);
  std::array<uint8_t, 8> bytes{};
  ASSERT_EQ(cim_get_hex_from_str_ip_with_mask(text.c_str(), bytes.data()), fields == 8 ? 0 : -1)
      << testing::PrintToString(text);
  if (fields != 8) return;
  const std::array<uint8_t, 8> scanned = {static_cast<uint8_t>(v[3]), static_cast<uint8_t>(v[2]),
                                          static_cast<uint8_t>(v[1]), static_cast<uint8_t>(v[0]),
                                          static_cast<uint8_t>(v[7]), static_cast<uint8_t>(v[6]),
                                          static_cast<uint8_t>(v[5]), static_cast<uint8_t>(v[4])};
  ASSERT_EQ(bytes, scanned) << testing::PrintToString(text);
}

TEST(ScanComparison, AddressesOfRandomNumbers) {
  RandomTexts digits("0123456789", 6);
  for (int i = 0; i < kTexts; ++i) {
    std::string text = digits.next(1 + digits.up_to(3));
    for (const char separator : {'.', '.', '.', '/', '.', '.', '.'}) {
      text += separator;
      text += digits.next(1 + digits.up_to(i % 50 == 0 ? 20 : 2));
    }
    expect_ip_as_scanned(text);
  }
}

TEST(ScanComparison, AddressesWithSomethingWrong) {
  RandomTexts odd("0123456789./ +-\tx", 7);
  for (int i = 0; i < kTexts; ++i) {
    std::string text = "10.200.3.44/255.255.255.0";
    text.replace(odd.up_to(text.size() - 1), odd.up_to(3), odd.next(odd.up_to(3)));
    expect_ip_as_scanned(text);
  }
}

}  // namespace

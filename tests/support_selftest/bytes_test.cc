#include "tests/support/bytes.h"

#include <gtest/gtest.h>

#include <set>
#include <stdexcept>
#include <string>

namespace test_support {
namespace {

TEST(Bytes, HexReadsDigitsOfBothCasesAndIgnoresBlanks) {
  EXPECT_EQ(hex("00 01fF\n a0"), (Bytes{0x00, 0x01, 0xff, 0xa0}));
  EXPECT_EQ(hex(""), Bytes());
}

TEST(Bytes, HexRefusesOtherCharactersAndAnOddDigit) {
  EXPECT_THROW(hex("0g"), std::invalid_argument);
  EXPECT_THROW(hex("012"), std::invalid_argument);
}

TEST(Bytes, RecordWritesNumbersMostSignificantByteFirst) {
  Bytes record = Record(16).byte(0, 0xaa).be16(1, 0x1234).be32(4, 0x01020304).be64(8, 0xf0);
  EXPECT_EQ(record, hex("aa 12 34 00 01 02 03 04 00 00 00 00 00 00 00 f0"));
}

TEST(Bytes, RecordWritesTextWithoutATerminator) {
  Bytes record = Record(4).byte(3, 0x7e).text(0, "abc");
  EXPECT_EQ(record, hex("61 62 63 7e"));
}

TEST(Bytes, RecordRefusesWhatDoesNotFit) {
  EXPECT_THROW(Record(4).be32(1, 0), std::out_of_range);
  EXPECT_THROW(Record(4).byte(4, 0), std::out_of_range);
  EXPECT_THROW(Record(4).be32(static_cast<size_t>(-2), 0), std::out_of_range);
}

TEST(Bytes, HexdumpShowsOffsetBytesAndCharacters) {
  EXPECT_EQ(hexdump(hex("41 00 7a")),
            "     0: 41 00 7a                                         A.z\n");
  EXPECT_EQ(hexdump(zeros(20), 16),
            "     0: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00  ................\n"
            "        ... 4 more bytes\n");
}

TEST(Bytes, DifferenceNamesTheFirstDifferingOffset) {
  EXPECT_EQ(difference(hex("00 01 02"), hex("00 01 02")), "");
  Bytes longer = zeros(40);
  Bytes other = longer;
  other[33] = 9;
  EXPECT_NE(difference(longer, other).find("first difference at offset 33 (40 bytes expected, 40"),
            std::string::npos);
  EXPECT_NE(difference(hex("00 01"), hex("00")).find("offset 1 (2 bytes expected, 1 found)"),
            std::string::npos);
}

TEST(Bytes, PatternsDifferFromEachOtherAndStayTheSame) {
  std::set<std::string> seen;
  for (unsigned n = 0; n < kPatterns; ++n)
    seen.insert(hexdump(pattern(n, 64)));
  EXPECT_EQ(seen.size(), kPatterns);
  EXPECT_EQ(pattern(2, 4), hex("00 01 02 03"));
  EXPECT_EQ(pattern(3, 4), hex("41 42 43 44"));
  EXPECT_EQ(pattern(17, 32), pattern(17, 32));
}

}  // namespace
}  // namespace test_support

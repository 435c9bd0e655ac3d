// parse_domain_port and is_valid_number.
#include <cim_utils/formats.h>
#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace {

struct Parsed {
  int result;
  uint32_t domain;
  uint32_t port;
  std::string trace;
  bool operator==(const Parsed&) const = default;
  friend void PrintTo(const Parsed& parsed, std::ostream* out) {
    *out << parsed.result << " " << parsed.domain << ":" << parsed.port << " '" << parsed.trace
         << "'";
  }
};

Parsed parse(const std::string& text) {
  uint32_t out[2] = {111, 222};
  testing::internal::CaptureStdout();
  const int result = parse_domain_port(text.c_str(), out);
  return {result, out[0], out[1], testing::internal::GetCapturedStdout()};
}

const Parsed kRejected = {-1, 111, 222, "Invalid domain or port "};
const Parsed kNoToken = {-1, 111, 222, ""};

TEST(DomainPortReader, ReadsDomainAndPort) {
  EXPECT_EQ(parse("12:7"), (Parsed{0, 12, 7, ""}));
}

TEST(DomainPortReader, RejectsDomainZero) {
  EXPECT_EQ(parse("0:5"), kRejected);
}
TEST(DomainPortReader, RejectsPortZero) {
  EXPECT_EQ(parse("5:0"), kRejected);
}
TEST(DomainPortReader, RejectsAMissingPort) {
  EXPECT_EQ(parse("5:"), kRejected);
  EXPECT_EQ(parse("5"), kRejected);
}
TEST(DomainPortReader, RejectsWhatIsNotMadeOfDigits) {
  EXPECT_EQ(parse("a5:3"), kRejected);
  EXPECT_EQ(parse("5a:3"), kRejected);
  EXPECT_EQ(parse("5:3a"), kRejected);
  EXPECT_EQ(parse("5: 3"), kRejected);
  EXPECT_EQ(parse("-5:3"), kRejected);
  EXPECT_EQ(parse("5:-3"), kRejected);
}

TEST(DomainPortReader, TakesTheFirstNumberBehindColonsForTheDomain) {
  // ":5" names a domain but no port.
  EXPECT_EQ(parse(":5"), kRejected);
  EXPECT_EQ(parse("::5:6"), (Parsed{0, 5, 6, ""}));
}

TEST(DomainPortReader, RejectsASecondColon) {
  EXPECT_EQ(parse("3:4:5"), kRejected);
  EXPECT_EQ(parse("3::5"), kRejected);
}

TEST(DomainPortReader, FailsSilentlyWhereThereAreOnlyColons) {
  EXPECT_EQ(parse(":"), kNoToken);
  EXPECT_EQ(parse(":::"), kNoToken);
}

TEST(DomainPortReader, SucceedsOnAnEmptyTextAndChangesNothing) {
  EXPECT_EQ(parse(""), (Parsed{0, 111, 222, ""}));
}

TEST(DomainPortReader, KeepsNumbersAbove255) {
  EXPECT_EQ(parse("300:70000"), (Parsed{0, 300, 70000, ""}));
}

TEST(DomainPortReader, ClampsNumbersBeyond32Bits) {
  EXPECT_EQ(parse("99999999999:2147483648"), (Parsed{0, 2147483647, 2147483647, ""}));
}

TEST(DomainPortReader, LooksAtNinetyNineCharacters) {
  EXPECT_EQ(parse("12:" + std::string(95, '0') + "7"), (Parsed{0, 12, 7, ""}));
  EXPECT_EQ(parse("12:" + std::string(95, '0') + "7x"), (Parsed{0, 12, 7, ""}));
  EXPECT_EQ(parse("12:" + std::string(96, '0') + "7"), kRejected);
}

TEST(DomainPortReader, TakesALongTextWithoutAColonForAMissingPort) {
  EXPECT_EQ(parse(std::string(99, '1')), kRejected);
  EXPECT_EQ(parse(std::string(100, '1') + ":5"), kRejected);
  EXPECT_EQ(parse(std::string(5000, '1')), kRejected);
  EXPECT_EQ(parse(std::string(98, '1') + ":5"), kRejected);
}

TEST(DomainPortReader, FailsSilentlyOnNullArguments) {
  uint32_t out[2] = {111, 222};
  testing::internal::CaptureStdout();
  EXPECT_EQ(parse_domain_port(nullptr, out), -1);
  EXPECT_EQ(parse_domain_port("12:7", nullptr), -1);
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(out[0], 111U);
}

TEST(ValidNumber, IsTheDecimalValue) {
  EXPECT_EQ(is_valid_number("4094", 4), 4094);
  EXPECT_EQ(is_valid_number("0", 1), 0);
  EXPECT_EQ(is_valid_number("0012", 4), 12);
}

TEST(ValidNumber, IsMinusOneWhenACheckedCharacterIsNoDigit) {
  EXPECT_EQ(is_valid_number("12a", 3), -1);
  EXPECT_EQ(is_valid_number("a12", 1), -1);
  EXPECT_EQ(is_valid_number(" 12", 3), -1);
  EXPECT_EQ(is_valid_number("+12", 3), -1);
  EXPECT_EQ(is_valid_number("-12", 3), -1);
}

TEST(ValidNumber, ReadsOnPastTheCheckedDigits) {
  EXPECT_EQ(is_valid_number("1234", 2), 1234);
  EXPECT_EQ(is_valid_number("1234567890", 9), 1234567890);
  EXPECT_EQ(is_valid_number("12a", 2), 12);
  EXPECT_EQ(is_valid_number("123:4", 1), 123);
}

TEST(ValidNumber, IsMinusOneWhenTheTextIsShorterThanTold) {
  EXPECT_EQ(is_valid_number("12", 3), -1);
  EXPECT_EQ(is_valid_number("12", INT_MAX), -1);
  EXPECT_EQ(is_valid_number("", 1), -1);
}

TEST(ValidNumber, OfLengthZeroTestsNothing) {
  EXPECT_EQ(is_valid_number("", 0), 0);
  EXPECT_EQ(is_valid_number("abc", 0), 0);
  EXPECT_EQ(is_valid_number("77", 0), 77);
  EXPECT_EQ(is_valid_number("-7", 0), -7);
  EXPECT_EQ(is_valid_number("77", -3), 77);
}

TEST(ValidNumber, ClampsWhatDoesNotFit) {
  EXPECT_EQ(is_valid_number("2147483647", 10), 2147483647);
  EXPECT_EQ(is_valid_number("2147483648", 10), 2147483647);
  EXPECT_EQ(is_valid_number("4294967295", 10), 2147483647);
  EXPECT_EQ(is_valid_number("99999999999999999999", 20), 2147483647);
  EXPECT_EQ(is_valid_number("-99999999999999999999", 0), INT_MIN);
}

TEST(ValidNumber, ReadsLeadingZerosOfAnyLength) {
  EXPECT_EQ(is_valid_number("00000000000000000000000000000042", 32), 42);
}

TEST(ValidNumber, IsMinusOneOfANullText) {
  EXPECT_EQ(is_valid_number(nullptr, 0), -1);
}

}  // namespace

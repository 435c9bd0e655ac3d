#include <Pegasus/Common/CIMDateTime.h>
#include <Pegasus/Common/Exception.h>
#include <gtest/gtest.h>

#include "tests/pegasus_compat/support.h"

namespace {

using Pegasus::CIMDateTime;
using Pegasus::InvalidDateTimeFormatException;
using Pegasus::String;
using pegasus_test::messageOf;

TEST(CIMDateTime, DefaultIsTheIntervalOfLengthZero) {
  const CIMDateTime time;
  EXPECT_EQ(time.toString(), "00000000000000.000000:000");
  EXPECT_TRUE(time.isInterval());
}

TEST(CIMDateTime, KeepsItsText) {
  const CIMDateTime time(String("20240229123456.654321+060"));
  EXPECT_EQ(time.toString(), "20240229123456.654321+060");
  EXPECT_FALSE(time.isInterval());
  EXPECT_TRUE(CIMDateTime(String("99999999235959.999999:000")).isInterval());
}

TEST(CIMDateTime, TakesAsterisksForUnknownParts) {
  for (const char* text :
       {"20240229******.******+000", "2024**********.******-300", "**************.******+000",
        "20240229123456.654***+000", "00000001******.******:000"}) {
    EXPECT_EQ(CIMDateTime(String(text)).toString(), text);
  }
}

TEST(CIMDateTime, OtherTextsThrowAndAreNotSet) {
  CIMDateTime time(String("20240101000000.000000+000"));
  for (const char* text : {"",
                           "20240101",
                           "20240101000000.000000+00",
                           "20240101000000.000000+0000",
                           "20240101000000,000000+000",
                           "20240101000000.000000:001",
                           "20240101000000.000000 000",
                           "20241301000000.000000+000",
                           "20240001000000.000000+000",
                           "20240132000000.000000+000",
                           "20230229000000.000000+000",
                           "20240101240000.000000+000",
                           "20240101006000.000000+000",
                           "20240101000060.000000+000",
                           "2024010100000a.000000+000",
                           "202401010000**.0000**+0*0",
                           "20240101000*00.000000+000",
                           "20240101000**0.000000+000",
                           "00000000240000.000000:000",
                           "********000000.000000:000",
                           "20240101000000.00000\xC3\xA9+000"}) {
    EXPECT_EQ(messageOf<InvalidDateTimeFormatException>([&] { time.set(String(text)); }),
              "invalid datetime format")
        << text;
  }
  EXPECT_EQ(time.toString(), "20240101000000.000000+000");
}

TEST(CIMDateTime, EqualMomentsAreEqualWhateverTheirOffsets) {
  const CIMDateTime utc(String("20240301003000.000001+000"));
  EXPECT_TRUE(utc.equal(CIMDateTime(String("20240301013000.000001+060"))));
  EXPECT_TRUE(utc == CIMDateTime(String("20240229233000.000001-060")));
  EXPECT_TRUE(utc != CIMDateTime(String("20240301003000.000002+000")));
  EXPECT_TRUE(CIMDateTime(String("19991231233000.000000-030")) ==
              CIMDateTime(String("20000101000000.000000+000")));
}

TEST(CIMDateTime, IntervalsAndUnknownPartsCompareAsTexts) {
  EXPECT_TRUE(CIMDateTime() == CIMDateTime(String("00000000000000.000000:000")));
  EXPECT_TRUE(CIMDateTime() != CIMDateTime(String("00000000000001.000000:000")));
  EXPECT_TRUE(CIMDateTime(String("2024**********.******+000")) !=
              CIMDateTime(String("2024**********.******+060")));
  EXPECT_TRUE(CIMDateTime() != CIMDateTime(String("20240101000000.000000+000")));
}

TEST(CIMDateTime, ClearReturnsToTheDefault) {
  CIMDateTime time(String("20240101000000.000000+000"));
  time.clear();
  EXPECT_EQ(time.toString(), "00000000000000.000000:000");
}

TEST(CIMDateTime, TheCurrentTimeIsAPointInTime) {
  const CIMDateTime now = CIMDateTime::getCurrentDateTime();
  EXPECT_EQ(now.toString().size(), 25U);
  EXPECT_FALSE(now.isInterval());
  EXPECT_TRUE(now.toString() > String("2024"));
}

TEST(CIMDateTime, CopiesAreValues) {
  CIMDateTime time(String("20240101000000.000000+000"));
  const CIMDateTime copy(time);
  time.clear();
  EXPECT_EQ(copy.toString(), "20240101000000.000000+000");
  EXPECT_EQ(sizeof(CIMDateTime), 8U);
}

}  // namespace

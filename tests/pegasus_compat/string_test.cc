#include <Pegasus/Common/Exception.h>
#include <Pegasus/Common/String.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <type_traits>
#include <utility>

#include "tests/pegasus_compat/support.h"

namespace {

using Pegasus::Char16;
using Pegasus::CString;
using Pegasus::Exception;
using Pegasus::IndexOutOfBoundsException;
using Pegasus::String;
using Pegasus::Uint16;
using Pegasus::Uint32;
using pegasus_test::messageOf;

std::string utf8(const String& text) {
  return static_cast<const char*>(text.getCString());
}

TEST(Char16, IsTheNumberOfACharacter) {
  const Char16 zero;
  Char16 letter('A');
  EXPECT_EQ(static_cast<Uint16>(zero), 0);
  EXPECT_EQ(static_cast<Uint16>(letter), 65);
  letter = Uint16{66};
  EXPECT_TRUE(letter == 'B');
  EXPECT_TRUE('B' == letter);
  EXPECT_TRUE(letter != 'C');
  EXPECT_TRUE('C' != letter);
  EXPECT_TRUE(letter == Char16(66));
  EXPECT_TRUE(letter != zero);
  EXPECT_EQ(sizeof(Char16), 2U);
}

TEST(String, DefaultIsEmpty) {
  const String text;
  EXPECT_EQ(text.size(), 0U);
  EXPECT_EQ(static_cast<Uint16>(text.getChar16Data()[0]), 0);
  EXPECT_EQ(utf8(text), "");
}

TEST(String, EmptyConstantIsEmpty) {
  EXPECT_EQ(String::EMPTY.size(), 0U);
}

TEST(String, IsMadeOfCharacters) {
  EXPECT_EQ(utf8(String("switch")), "switch");
  EXPECT_EQ(utf8(String("switch", 3)), "swi");
  EXPECT_EQ(String("switch").size(), 6U);
  EXPECT_EQ(utf8(String("")), "");
  EXPECT_EQ(utf8(String("anything", 0)), "");
}

TEST(String, IsMadeOfCodeUnits) {
  const Char16 units[] = {'f', 'a', 'b', 0};
  EXPECT_EQ(utf8(String(units)), "fab");
  EXPECT_EQ(utf8(String(units, 2)), "fa");
  EXPECT_EQ(utf8(String(units, 0)), "");
}

TEST(String, IsMadeOfAnotherString) {
  const String text("domain");
  EXPECT_EQ(utf8(String(text)), "domain");
  EXPECT_EQ(utf8(String(text, 3)), "dom");
  EXPECT_EQ(utf8(String(text, 6)), "domain");
  EXPECT_EQ(utf8(String(text, 100)), "domain");
  EXPECT_EQ(utf8(String(text, 0U)), "");
}

TEST(String, IsMadeOfTwoTexts) {
  const String zone("zone");
  EXPECT_EQ(utf8(String(zone, String("set"))), "zoneset");
  EXPECT_EQ(utf8(String(zone, "set")), "zoneset");
  EXPECT_EQ(utf8(String("re", zone)), "rezone");
}

TEST(String, TakesUtf8ApartIntoUtf16) {
  const String text("\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");  // e acute, euro, a smiling face
  ASSERT_EQ(text.size(), 4U);
  EXPECT_TRUE(text[0] == 0x00E9);
  EXPECT_TRUE(text[1] == 0x20AC);
  EXPECT_TRUE(text[2] == 0xD83D);
  EXPECT_TRUE(text[3] == 0xDE00);
  EXPECT_EQ(utf8(text), "\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80");
}

TEST(String, RefusesWhatIsNotUtf8) {
  const std::pair<std::string, std::string> cases[] = {
      {"\xFF", "invalid UTF-8 at byte 0"},
      {"ab\x80", "invalid UTF-8 at byte 2"},            // continuation without a start
      {"abc\xC3", "invalid UTF-8 at byte 3"},           // cut off
      {"\xC0\x80", "invalid UTF-8 at byte 0"},          // two bytes for U+0000
      {"\xE0\x80\x80", "invalid UTF-8 at byte 0"},      // three bytes for U+0000
      {"\xF0\x80\x80\x80", "invalid UTF-8 at byte 0"},  // four bytes for U+0000
      {"\xED\xA0\x80", "invalid UTF-8 at byte 0"},      // half of a pair
      {"\xF4\x90\x80\x80", "invalid UTF-8 at byte 0"},  // past the last character
      {"\xE2\x82"
       "a",
       "invalid UTF-8 at byte 0"},
      {"\xF5\x80\x80\x80", "invalid UTF-8 at byte 0"},
  };
  for (const auto& [bytes, message] : cases) {
    EXPECT_EQ(messageOf<Exception>([&] { String text(bytes.c_str()); }), message);
  }
}

TEST(String, KeepsItsTextWhenAnAssignmentIsRefused) {
  String text("kept");
  EXPECT_EQ(messageOf<Exception>([&] { text.assign("\xFF"); }), "invalid UTF-8 at byte 0");
  EXPECT_EQ(messageOf<Exception>([&] { text.append("x\xFF", 2); }), "invalid UTF-8 at byte 1");
  EXPECT_EQ(utf8(text), "kept");
}

TEST(String, RefusesANullPointer) {
  const char* none = nullptr;
  const Char16* noUnits = nullptr;
  String text("kept");
  EXPECT_EQ(messageOf<Exception>([&] { String made(none); }), "null pointer");
  EXPECT_EQ(messageOf<Exception>([&] { String made(none, 3); }), "null pointer");
  EXPECT_EQ(messageOf<Exception>([&] { String made(noUnits); }), "null pointer");
  EXPECT_EQ(messageOf<Exception>([&] { String made(noUnits, 3); }), "null pointer");
  EXPECT_EQ(messageOf<Exception>([&] { text.append(noUnits, 1); }), "null pointer");
  EXPECT_EQ(messageOf<Exception>([&] { text.assign(none); }), "null pointer");
  EXPECT_EQ(utf8(text), "kept");
}

TEST(String, WritesAHalfPairAsTheReplacementCharacter) {
  const Char16 high[] = {'a', 0xD800, 'b', 0};
  const Char16 low[] = {0xDC00, 0};
  const Char16 highAtTheEnd[] = {0xD800, 0};
  EXPECT_EQ(utf8(String(high)),
            "a\xEF\xBF\xBD"
            "b");
  EXPECT_EQ(utf8(String(low)), "\xEF\xBF\xBD");
  EXPECT_EQ(utf8(String(highAtTheEnd)), "\xEF\xBF\xBD");
}

TEST(String, AssignReplacesTheText) {
  const Char16 units[] = {'u', 'v', 0};
  String text("old");
  EXPECT_EQ(&text.assign(String("one")), &text);
  EXPECT_EQ(utf8(text), "one");
  EXPECT_EQ(utf8(text.assign(units)), "uv");
  EXPECT_EQ(utf8(text.assign(units, 1)), "u");
  EXPECT_EQ(utf8(text.assign("chars")), "chars");
  EXPECT_EQ(utf8(text.assign("chars", 2)), "ch");
  text = String("operator");
  EXPECT_EQ(utf8(text), "operator");
  text = "literal";
  EXPECT_EQ(utf8(text), "literal");
}

TEST(String, AssignsPartsOfItself) {
  String text("abcdef");
  text.assign(text.getChar16Data() + 2, 3);
  EXPECT_EQ(utf8(text), "cde");
  const String& same = text;
  text = same;
  EXPECT_EQ(utf8(text), "cde");
}

TEST(String, MovesLeaveAnEmptyText) {
  String from("text");
  const String to(std::move(from));
  EXPECT_EQ(utf8(to), "text");
  EXPECT_EQ(from.size(), 0U);  // NOLINT(bugprone-use-after-move): what it is afterwards
  String assigned("old");
  String again(to);
  assigned = std::move(again);
  EXPECT_EQ(utf8(assigned), "text");
}

TEST(String, ClearMakesItEmpty) {
  String text("x");
  text.clear();
  EXPECT_EQ(text.size(), 0U);
}

TEST(String, ReserveCapacityKeepsTheText) {
  String text("abc");
  text.reserveCapacity(100);
  EXPECT_EQ(utf8(text), "abc");
  const Char16* data = text.getChar16Data();
  for (int i = 0; i < 97; ++i)
    text.append(Char16('x'));
  EXPECT_EQ(text.getChar16Data(), data);  // the room was there
  text.reserveCapacity(1);
  EXPECT_EQ(text.size(), 100U);
  String empty;
  empty.reserveCapacity(10);
  EXPECT_EQ(empty.size(), 0U);
  EXPECT_EQ(utf8(empty), "");
}

TEST(String, ChangingOneCharacterLeavesCopiesAlone) {
  String text("abc");
  const String copy(text);
  text[1] = Char16('X');
  EXPECT_EQ(utf8(text), "aXc");
  EXPECT_EQ(utf8(copy), "abc");
}

TEST(String, AnIndexPastTheTextThrows) {
  String text("ab");
  const String& constant = text;
  EXPECT_TRUE(constant[1] == 'b');
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { text[2] = Char16('x'); }),
            "index out of bounds");
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { static_cast<void>(constant[2]); }),
            "index out of bounds");
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { static_cast<void>(String()[0]); }),
            "index out of bounds");
}

TEST(String, AppendsEveryKindOfText) {
  const Char16 units[] = {'3', '4', 0};
  String text;
  EXPECT_EQ(&text.append(Char16('1')), &text);
  text.append(String("2"));
  text.append(units, 2);
  text.append("56");
  text.append("789", 1);
  text.append(units, 0);
  EXPECT_EQ(utf8(text), "1234567");
}

TEST(String, AppendsItself) {
  String text("ab");
  text.append(text);
  EXPECT_EQ(utf8(text), "abab");
  text.reserveCapacity(50);
  text.append(text);
  text.append(text[0]);
  EXPECT_EQ(utf8(text), "ababababa");
}

TEST(String, AppendingLeavesCopiesAlone) {
  String text("ab");
  const String copy(text);
  text.append(String("c"));
  EXPECT_EQ(utf8(copy), "ab");
  EXPECT_EQ(utf8(text), "abc");
}

TEST(String, RemovesAPart) {
  String text("0123456");
  text.remove(1, 2);
  EXPECT_EQ(utf8(text), "03456");
  text.remove(3);
  EXPECT_EQ(utf8(text), "034");
  text.remove(0, 0);
  EXPECT_EQ(utf8(text), "034");
  text.remove(3);  // at the end: nothing there to take
  EXPECT_EQ(utf8(text), "034");
  text.remove(0);
  EXPECT_EQ(text.size(), 0U);
}

TEST(String, RemovingPastTheEndThrowsAndKeepsTheText) {
  String text("abc");
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { text.remove(1, 3); }),
            "index out of bounds");
  EXPECT_EQ(messageOf<IndexOutOfBoundsException>([&] { text.remove(4); }), "index out of bounds");
  EXPECT_EQ(utf8(text), "abc");
}

TEST(String, SubStringTakesWhatIsThere) {
  const String text("abcdef");
  EXPECT_EQ(utf8(text.subString(2)), "cdef");
  EXPECT_EQ(utf8(text.subString(2, 2)), "cd");
  EXPECT_EQ(utf8(text.subString(4, 100)), "ef");
  EXPECT_EQ(utf8(text.subString(6)), "");
  EXPECT_EQ(utf8(text.subString(60, 2)), "");
}

TEST(String, FindsCharactersAndTexts) {
  const String text("a:b:c");
  EXPECT_EQ(text.find(Char16(':')), 1U);
  EXPECT_EQ(text.find(2, Char16(':')), 3U);
  EXPECT_EQ(text.find(4, Char16(':')), PEG_NOT_FOUND);
  EXPECT_EQ(text.find(40, Char16(':')), PEG_NOT_FOUND);
  EXPECT_EQ(text.find(Char16('z')), 4294967295U);
  EXPECT_EQ(text.reverseFind(Char16(':')), 3U);
  EXPECT_EQ(text.reverseFind(Char16('z')), PEG_NOT_FOUND);
  EXPECT_EQ(text.find(String("b:c")), 2U);
  EXPECT_EQ(text.find(String("b:d")), PEG_NOT_FOUND);
  EXPECT_EQ(text.find("c"), 4U);
  EXPECT_EQ(text.find(String()), 0U);
  EXPECT_EQ(String().find(String()), 0U);
  EXPECT_EQ(String().find(String("a")), PEG_NOT_FOUND);
}

TEST(String, ChangesCaseOfPlainLettersOnly) {
  String text("aZ9_\xC3\x89");  // the last is a capital E acute
  const String copy(text);
  text.toLower();
  EXPECT_EQ(utf8(text), "az9_\xC3\x89");
  text.toUpper();
  EXPECT_EQ(utf8(text), "AZ9_\xC3\x89");
  EXPECT_EQ(utf8(copy), "aZ9_\xC3\x89");
}

TEST(String, AppendPrintfFormats) {
  String text("id ");
  text.appendPrintf("%d_%s", 12, "x");
  EXPECT_EQ(utf8(text), "id 12_x");
  const std::string longText(1000, 'y');
  text.clear();
  text.appendPrintf("%s", longText.c_str());
  EXPECT_EQ(utf8(text), longText);
}

TEST(String, ComparesByCodeUnit) {
  EXPECT_LT(String::compare(String("abc"), String("abd")), 0);
  EXPECT_GT(String::compare(String("b"), String("abd")), 0);
  EXPECT_EQ(String::compare(String("abc"), String("abc")), 0);
  EXPECT_LT(String::compare(String("ab"), String("abc")), 0);
  EXPECT_GT(String::compare(String("abc"), String("ab")), 0);
  EXPECT_EQ(String::compare(String("abX"), String("abY"), 2), 0);
  EXPECT_LT(String::compare(String("abX"), String("abY"), 3), 0);
  EXPECT_LT(String::compare(String("a"), String("ab"), 2), 0);
  EXPECT_EQ(String::compare(String("abc"), "abc"), 0);
  EXPECT_GT(String::compare(String("a"), String("A")), 0);
  EXPECT_EQ(String::compareNoCase(String("aBc"), String("AbC")), 0);
  EXPECT_LT(String::compareNoCase(String("a"), String("B")), 0);
}

TEST(String, EqualRegardsCaseAndEqualNoCaseDoesNot) {
  EXPECT_TRUE(String::equal(String("abc"), String("abc")));
  EXPECT_FALSE(String::equal(String("abc"), String("abC")));
  EXPECT_FALSE(String::equal(String("abc"), String("ab")));
  EXPECT_TRUE(String::equal(String(), String("")));
  EXPECT_TRUE(String::equal(String("abc"), "abc"));
  EXPECT_TRUE(String::equalNoCase(String("abc"), String("ABC")));
  EXPECT_FALSE(String::equalNoCase(String("abc"), String("ABCD")));
  EXPECT_TRUE(String::equalNoCase(String("abc"), "ABC"));
}

TEST(String, OperatorsCompareAndJoin) {
  const String abc("abc");
  EXPECT_TRUE(abc == String("abc"));
  EXPECT_TRUE(abc == "abc");
  EXPECT_TRUE("abc" == abc);
  EXPECT_TRUE(abc != String("x"));
  EXPECT_TRUE(abc != "x");
  EXPECT_TRUE("x" != abc);
  EXPECT_TRUE(abc < String("abd"));
  EXPECT_TRUE(abc <= String("abc"));
  EXPECT_TRUE(abc > String("abb"));
  EXPECT_TRUE(abc >= String("abc"));
  EXPECT_EQ(utf8(abc + String("d")), "abcd");
  EXPECT_EQ(utf8(abc + "d"), "abcd");
  EXPECT_EQ(utf8("_" + abc), "_abc");
}

TEST(String, PrintsAsUtf8) {
  std::ostringstream out;
  out << String("\xC3\xA9") << '|' << String("x").getCString();
  EXPECT_EQ(out.str(), "\xC3\xA9|x");
}

TEST(String, KeepsAZeroInsideTheText) {
  const String text("a\0b", 3);
  EXPECT_EQ(text.size(), 3U);
  EXPECT_TRUE(text[2] == 'b');
}

TEST(CString, OwnsItsBytes) {
  CString empty;
  EXPECT_STREQ(empty, "");
  const CString text = String("text").getCString();
  CString copy(text);
  EXPECT_STREQ(copy, "text");
  EXPECT_NE(static_cast<const char*>(copy), static_cast<const char*>(text));
  empty = copy;
  EXPECT_STREQ(empty, "text");
  const CString& same = empty;
  empty = same;
  EXPECT_STREQ(empty, "text");
  copy = CString();
  EXPECT_STREQ(copy, "");
}

static_assert(std::is_nothrow_move_constructible_v<String>);

}  // namespace

#include <Pegasus/Common/CIMDateTime.h>
#include <Pegasus/Common/Exception.h>

#include <cstdint>
#include <cstdio>
#include <ctime>
#include <optional>
#include <string>

namespace Pegasus {
inline namespace vexor_compat {
namespace {

constexpr Uint32 kLength = 25;
constexpr char kZeroInterval[] = "00000000000000.000000:000";
constexpr Uint32 kSeparator = 14;
constexpr Uint32 kSign = 21;

// The text as plain characters; empty if it holds others.
std::string plain(const String& text) {
  std::string result;
  for (Uint32 i = 0; i < text.size(); ++i) {
    const Uint16 c = text[i];
    if (c == 0 || c >= 0x80) return std::string();
    result += static_cast<char>(c);
  }
  return result;
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// The number in n digits from begin on; nothing if they are asterisks.
std::optional<int64_t> field(const std::string& text, size_t begin, size_t n) {
  if (text[begin] == '*') return std::nullopt;
  return std::stoll(text.substr(begin, n));
}

bool inRange(const std::optional<int64_t>& value, int64_t low, int64_t high) {
  return !value || (*value >= low && *value <= high);
}

int64_t daysInMonth(int64_t year, int64_t month) {
  static constexpr int64_t days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
  return month == 2 && leap ? 29 : days[month - 1];
}

// Every place holds a digit, or from some field on an asterisk.
bool digitsThenAsterisks(const std::string& text, bool interval) {
  bool unknown = false;
  for (size_t i = 0; i < kSign; ++i) {
    if (i == kSeparator) continue;
    const bool startsField = interval ? i == 0 || (i >= 8 && i % 2 == 0) || i > kSeparator
                                      : i == 0 || (i >= 4 && i % 2 == 0) || i > kSeparator;
    if (text[i] == '*') {
      if (!unknown && !startsField) return false;
      unknown = true;
    } else if (!isDigit(text[i]) || unknown) {
      return false;
    }
  }
  return true;
}

bool legalTimeOfDay(const std::string& text) {
  return inRange(field(text, 8, 2), 0, 23) && inRange(field(text, 10, 2), 0, 59) &&
         inRange(field(text, 12, 2), 0, 59);
}

bool legalDate(const std::string& text) {
  const auto year = field(text, 0, 4);
  const auto month = field(text, 4, 2);
  const auto day = field(text, 6, 2);
  if (!inRange(month, 1, 12)) return false;
  return inRange(day, 1, year && month ? daysInMonth(*year, *month) : 31);
}

bool legal(const std::string& text) {
  if (text.size() != kLength || text[kSeparator] != '.') return false;
  for (size_t i = kSign + 1; i < kLength; ++i) {
    if (!isDigit(text[i])) return false;
  }
  if (text[kSign] == ':') {
    return text.substr(kSign + 1) == "000" && digitsThenAsterisks(text, true) &&
           legalTimeOfDay(text);
  }
  if (text[kSign] != '+' && text[kSign] != '-') return false;
  return digitsThenAsterisks(text, false) && legalDate(text) && legalTimeOfDay(text);
}

// Days from 1 January of the year 0 of the Gregorian calendar, extended backwards.
int64_t dayNumber(int64_t year, int64_t month, int64_t day) {
  int64_t days = year * 365 + (year + 3) / 4 - (year + 99) / 100 + (year + 399) / 400;
  for (int64_t m = 1; m < month; ++m)
    days += daysInMonth(year, m);
  return days + day - 1;
}

// A point in time in microseconds, at UTC; the text must have no unknown parts.
int64_t moment(const std::string& text) {
  const int64_t minutes =
      (dayNumber(*field(text, 0, 4), *field(text, 4, 2), *field(text, 6, 2)) * 24 +
       *field(text, 8, 2)) *
          60 +
      *field(text, 10, 2);
  const int64_t offset = *field(text, kSign + 1, 3) * (text[kSign] == '-' ? -1 : 1);
  return ((minutes - offset) * 60 + *field(text, 12, 2)) * 1000000 + *field(text, 15, 6);
}

}  // namespace

CIMDateTime::CIMDateTime() = default;
CIMDateTime::CIMDateTime(const String& str) {
  set(str);
}

String CIMDateTime::toString() const {
  return _text.size() == 0 ? String(kZeroInterval) : _text;
}

void CIMDateTime::set(const String& str) {
  if (!legal(plain(str))) throw InvalidDateTimeFormatException();
  _text = str;
}

void CIMDateTime::clear() {
  _text.clear();
}

Boolean CIMDateTime::isInterval() const {
  return _text.size() == 0 || Uint16(_text[kSign]) == ':';
}

Boolean CIMDateTime::equal(const CIMDateTime& x) const {
  const std::string mine = plain(toString());
  const std::string other = plain(x.toString());
  const bool unknown = mine.find('*') != std::string::npos || other.find('*') != std::string::npos;
  if (isInterval() || x.isInterval() || unknown) return mine == other;
  return moment(mine) == moment(other);
}

CIMDateTime CIMDateTime::getCurrentDateTime() {
  timespec now{};
  clock_gettime(CLOCK_REALTIME, &now);
  tm local{};
  localtime_r(&now.tv_sec, &local);
  const long offset = local.tm_gmtoff / 60;
  char date[32];
  const size_t n = std::strftime(date, sizeof(date), "%Y%m%d%H%M%S", &local);
  String text(date, static_cast<Uint32>(n));
  text.appendPrintf(".%06ld%c%03ld", now.tv_nsec / 1000, offset < 0 ? '-' : '+',
                    offset < 0 ? -offset : offset);
  return CIMDateTime(text);
}

Boolean operator==(const CIMDateTime& x, const CIMDateTime& y) {
  return x.equal(y);
}
Boolean operator!=(const CIMDateTime& x, const CIMDateTime& y) {
  return !x.equal(y);
}

}  // namespace vexor_compat
}  // namespace Pegasus

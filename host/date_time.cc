#include "host/date_time.h"

#include <array>
#include <chrono>
#include <cstdio>

#include "schema/value.h"

namespace cim::host {
namespace {

constexpr std::uint64_t kSecond = 1'000'000;
constexpr std::uint64_t kMinute = 60 * kSecond;
constexpr std::uint64_t kHour = 60 * kMinute;
constexpr std::uint64_t kDay = 24 * kHour;
constexpr std::size_t kPoint = 14;   // in front of the microseconds
constexpr std::size_t kOffset = 21;  // '+', '-' or ':'

/// A field of digits; asterisks give `lowest`.
std::uint64_t field(std::string_view text, std::size_t at, std::size_t width,
                    std::uint64_t lowest = 0) {
  std::uint64_t value = 0;
  for (char c : text.substr(at, width)) {
    if (c == '*') return value == 0 ? lowest : value;
    value = value * 10 + static_cast<std::uint64_t>(c - '0');
  }
  return value;
}

/// Microseconds may be given to fewer than six digits.
std::uint64_t fraction(std::string_view text) {
  std::uint64_t value = 0;
  for (char c : text.substr(kPoint + 1, 6))
    value = value * 10 + (c == '*' ? 0 : static_cast<std::uint64_t>(c - '0'));
  return value;
}

std::uint64_t time_of_day(std::string_view text) {
  return field(text, 8, 2) * kHour + field(text, 10, 2) * kMinute + field(text, 12, 2) * kSecond +
         fraction(text);
}

}  // namespace

std::optional<std::string> interval_text(std::uint64_t microseconds) {
  const std::uint64_t days = microseconds / kDay;
  if (days > 99'999'999) return std::nullopt;
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%08u%02u%02u%02u.%06u:000", static_cast<unsigned>(days),
                static_cast<unsigned>(microseconds % kDay / kHour),
                static_cast<unsigned>(microseconds % kHour / kMinute),
                static_cast<unsigned>(microseconds % kMinute / kSecond),
                static_cast<unsigned>(microseconds % kSecond));
  return text.data();
}

std::optional<std::string> time_stamp_text(std::uint64_t microseconds) {
  const std::chrono::sys_days day{
      std::chrono::days{static_cast<std::chrono::days::rep>(microseconds / kDay)}};
  if (day > std::chrono::sys_days{std::chrono::year{9999} / 12 / 31}) return std::nullopt;
  const std::chrono::year_month_day date{day};
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%04d%02u%02u%02u%02u%02u.%06u+000",
                static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                static_cast<unsigned>(date.day()),
                static_cast<unsigned>(microseconds % kDay / kHour),
                static_cast<unsigned>(microseconds % kHour / kMinute),
                static_cast<unsigned>(microseconds % kMinute / kSecond),
                static_cast<unsigned>(microseconds % kSecond));
  return text.data();
}

bool is_interval(std::string_view text) {
  return text.size() > kOffset && text[kOffset] == ':';
}

std::optional<std::uint64_t> microseconds_of(std::string_view text) {
  if (!schema::is_datetime(text)) return std::nullopt;
  if (is_interval(text)) return field(text, 0, 8) * kDay + time_of_day(text);
  const std::chrono::year_month_day date{
      std::chrono::year{static_cast<int>(field(text, 0, 4, 1970))},
      std::chrono::month{static_cast<unsigned>(field(text, 4, 2, 1))},
      std::chrono::day{static_cast<unsigned>(field(text, 6, 2, 1))}};
  const std::chrono::sys_days days = date;
  const auto offset_minutes = static_cast<std::int64_t>(field(text, kOffset + 1, 3));
  const auto offset = static_cast<std::int64_t>(kMinute) *
                      (text[kOffset] == '-' ? -offset_minutes : offset_minutes);
  const std::int64_t local =
      static_cast<std::int64_t>(days.time_since_epoch().count()) * static_cast<std::int64_t>(kDay) +
      static_cast<std::int64_t>(time_of_day(text));
  if (local < offset) return std::nullopt;
  return static_cast<std::uint64_t>(local - offset);
}

}  // namespace cim::host

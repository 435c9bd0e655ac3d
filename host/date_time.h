// CIM datetimes: 25 characters, and microseconds.
#ifndef HOST_DATE_TIME_H_
#define HOST_DATE_TIME_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace cim::host {

/// "ddddddddhhmmss.mmmmmm:000"; nothing when the interval has more than 99,999,999 days.
std::optional<std::string> interval_text(std::uint64_t microseconds);

/// "yyyymmddhhmmss.mmmmmm+000" for microseconds since 1970-01-01 00:00 UTC; nothing after the year
/// 9999.
std::optional<std::string> time_stamp_text(std::uint64_t microseconds);

/// The microseconds that a datetime stands for; asterisks count as the lowest value of their field.
/// Nothing for a text that is no datetime, or a time before 1970.
std::optional<std::uint64_t> microseconds_of(std::string_view text);

bool is_interval(std::string_view text);

}  // namespace cim::host

#endif  // HOST_DATE_TIME_H_

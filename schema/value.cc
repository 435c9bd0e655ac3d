#include "schema/value.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <utility>

#include "schema/mof_scanner.h"
#include "schema/names.h"
#include "schema/utf8.h"

namespace cim::schema {
namespace {

constexpr std::array<std::string_view, 15> kTypeNames = {
    "boolean", "char16", "uint8",  "sint8",  "uint16", "sint16",   "uint32",    "sint32",
    "uint64",  "sint64", "real32", "real64", "string", "datetime", "reference",
};

struct Bounds {
  std::int64_t low;
  std::uint64_t high;
};

template <typename Integer>
constexpr Bounds bounds() {
  return {static_cast<std::int64_t>(std::numeric_limits<Integer>::min()),
          static_cast<std::uint64_t>(std::numeric_limits<Integer>::max())};
}

Bounds bounds_of(Type type) {
  switch (type) {
    case Type::uint8:
      return bounds<std::uint8_t>();
    case Type::uint16:
      return bounds<std::uint16_t>();
    case Type::uint32:
      return bounds<std::uint32_t>();
    case Type::uint64:
      return bounds<std::uint64_t>();
    case Type::sint8:
      return bounds<std::int8_t>();
    case Type::sint16:
      return bounds<std::int16_t>();
    case Type::sint32:
      return bounds<std::int32_t>();
    default:
      return bounds<std::int64_t>();
  }
}

/// An element as MOF writes it when nothing is known but its kind.
std::string literal_text(const Scalar& element) {
  constexpr std::size_t kLongest = 40;
  std::string text = to_mof(Type::real64, element);
  if (text.size() <= kLongest) return text;
  std::size_t cut = kLongest - 3;
  while (cut > 0 && (static_cast<unsigned char>(text[cut]) & 0xC0U) == 0x80)
    --cut;
  return text.substr(0, cut) + "...";
}

struct ScalarResult {
  Scalar value;
  std::string error;
};

ScalarResult wrong_kind(const Scalar& element, Type type) {
  return {{}, literal_text(element) + " is not a " + std::string(type_name(type))};
}

ScalarResult convert_integer(const Scalar& element, Type type) {
  const Bounds bounds = bounds_of(type);
  const auto* positive = std::get_if<std::uint64_t>(&element);
  const auto* number = std::get_if<std::int64_t>(&element);
  if (positive == nullptr && number == nullptr) return wrong_kind(element, type);
  const bool fits = positive != nullptr
                        ? *positive <= bounds.high
                        : *number >= bounds.low &&
                              (*number < 0 || static_cast<std::uint64_t>(*number) <= bounds.high);
  if (!fits) {
    return {{},
            literal_text(element) + " is out of range for " + std::string(type_name(type)) + " (" +
                std::to_string(bounds.low) + " to " + std::to_string(bounds.high) + ")"};
  }
  const std::uint64_t bits = positive != nullptr ? *positive : static_cast<std::uint64_t>(*number);
  if (is_unsigned(type)) return {Scalar(bits), {}};
  return {Scalar(static_cast<std::int64_t>(bits)), {}};
}

ScalarResult convert_real(const Scalar& element, Type type) {
  double value = 0;
  if (const auto* real = std::get_if<double>(&element)) {
    value = *real;
  } else if (const auto* positive = std::get_if<std::uint64_t>(&element)) {
    value = static_cast<double>(*positive);
  } else if (const auto* number = std::get_if<std::int64_t>(&element)) {
    value = static_cast<double>(*number);
  } else {
    return wrong_kind(element, type);
  }
  if (type == Type::real64) return {Scalar(value), {}};
  if (std::isfinite(value) && std::fabs(value) > std::numeric_limits<float>::max()) {
    return {{}, literal_text(element) + " is out of range for real32"};
  }
  return {Scalar(static_cast<double>(static_cast<float>(value))), {}};
}

ScalarResult convert_text(const Scalar& element, Type type) {
  const auto* text = std::get_if<std::string>(&element);
  if (text == nullptr) return wrong_kind(element, type);
  if (type == Type::datetime && !is_datetime(*text)) return wrong_kind(element, type);
  return {element, {}};
}

ScalarResult convert_scalar(const Scalar& element, Type type) {
  if (std::holds_alternative<std::monostate>(element)) return {element, {}};
  if (is_integer(type)) return convert_integer(element, type);
  if (is_real(type)) return convert_real(element, type);
  switch (type) {
    case Type::boolean:
      if (!std::holds_alternative<bool>(element)) return wrong_kind(element, type);
      return {element, {}};
    case Type::char16:
      if (!std::holds_alternative<char16_t>(element)) return wrong_kind(element, type);
      return {element, {}};
    default:
      return convert_text(element, type);
  }
}

ValueResult failed(std::string error) {
  return {std::nullopt, std::move(error)};
}

std::string real_text(double value, bool single) {
  std::array<char, 64> buffer{};
  char* const end = buffer.data() + buffer.size();
  const std::to_chars_result result =
      single ? std::to_chars(buffer.data(), end, static_cast<float>(value))
             : std::to_chars(buffer.data(), end, value);
  return {buffer.data(), result.ptr};
}

/// The shortest text that reads back as the same number, always with a decimal point.
std::string real_literal(double value, bool single) {
  if (!std::isfinite(value)) return "NULL";
  std::string text = real_text(value, single);
  if (text.find('.') == std::string::npos) {
    const std::size_t exponent = text.find('e');
    text.insert(exponent == std::string::npos ? text.size() : exponent, ".0");
  }
  return text;
}

std::string char16_text(char16_t character) {
  const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
  std::string text;
  append_utf8(text, surrogate ? U'\uFFFD' : char32_t{character});
  return text;
}

std::string char16_literal(char16_t character) {
  if (character == u'\'') return "'\\''";
  if (character == u'"') return "'\"'";
  return "'" + escape(char16_text(character)) + "'";
}

void append_escaped(std::string& out, char32_t code_point) {
  switch (code_point) {
    case '\b':
      out += "\\b";
      return;
    case '\t':
      out += "\\t";
      return;
    case '\n':
      out += "\\n";
      return;
    case '\f':
      out += "\\f";
      return;
    case '\r':
      out += "\\r";
      return;
    case '"':
      out += "\\\"";
      return;
    case '\\':
      out += "\\\\";
      return;
    default:
      break;
  }
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "\\x%04X", static_cast<unsigned>(code_point & 0xFFFFU));
  out += text.data();
}

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

ScalarResult plain_text(std::string_view text, Type type) {
  if (!is_utf8(text)) return {{}, "the text is not UTF-8"};
  if (text.find('\0') != std::string_view::npos) return {{}, "the text holds a null character"};
  return convert_scalar(Scalar(std::string(text)), type);
}

ScalarResult plain_char16(std::string_view text) {
  const CodePoint point = text.empty() ? CodePoint{} : first_code_point(text);
  if (point.length != text.size() || point.length == 0 || point.value > 0xFFFF) {
    return {{}, "exactly one character of 16 bits is needed"};
  }
  return {Scalar(static_cast<char16_t>(point.value)), {}};
}

/// One element in its plain form. Texts are taken as they are, all else without blanks around.
ScalarResult plain_element(std::string_view text, Type type) {
  if (type == Type::string || type == Type::reference) return plain_text(text, type);
  if (type == Type::char16) return plain_char16(text);
  const std::string_view word = trimmed(text);
  if (equal_names(word, "null")) return {};
  if (type == Type::datetime) return plain_text(word, type);
  if (type == Type::boolean) {
    if (equal_names(word, "true")) return {Scalar(true), {}};
    if (equal_names(word, "false")) return {Scalar(false), {}};
    return {{}, "'" + std::string(word) + "' is not a boolean (true or false)"};
  }
  Number number = parse_number(word);
  if (!number.error.empty()) return {{}, std::move(number.error)};
  return convert_scalar(number.value, type);
}

/// A decimal field of a date, or all asterisks.
struct DateField {
  std::size_t width;
  int low;
  int high;
};

bool all_of(std::string_view text, char c) {
  return text.find_first_not_of(c) == std::string_view::npos;
}

bool is_number(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// Checks the fields in front of the point. `asterisks` becomes true when the last ones have none.
template <std::size_t Count>
bool date_fields_ok(std::string_view text, const std::array<DateField, Count>& fields,
                    bool& asterisks) {
  std::size_t at = 0;
  for (const DateField& field : fields) {
    const std::string_view digits = text.substr(at, field.width);
    at += field.width;
    if (all_of(digits, '*')) {
      asterisks = true;
      continue;
    }
    if (asterisks || !is_number(digits)) return false;
    int value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (value < field.low || value > field.high) return false;
  }
  return true;
}

/// Microseconds: digits, the last of which may be asterisks.
bool microseconds_ok(std::string_view text, bool asterisks) {
  const std::size_t digits = std::min(text.find('*'), text.size());
  if (asterisks && digits != 0) return false;
  return (digits == 0 || is_number(text.substr(0, digits))) && all_of(text.substr(digits), '*');
}

}  // namespace

std::string_view type_name(Type type) {
  return kTypeNames[static_cast<std::size_t>(type)];
}

std::optional<Type> type_of_name(std::string_view name) {
  for (std::size_t i = 0; i + 1 < kTypeNames.size(); ++i) {
    if (equal_names(kTypeNames[i], name)) return static_cast<Type>(i);
  }
  return std::nullopt;
}

bool is_unsigned(Type type) {
  return type == Type::uint8 || type == Type::uint16 || type == Type::uint32 ||
         type == Type::uint64;
}

bool is_signed(Type type) {
  return type == Type::sint8 || type == Type::sint16 || type == Type::sint32 ||
         type == Type::sint64;
}

bool is_real(Type type) {
  return type == Type::real32 || type == Type::real64;
}

Value Value::null(Type type, bool is_array) {
  Value value;
  value.type_ = type;
  value.is_array_ = is_array;
  return value;
}

Value Value::of(Type type, Scalar content) {
  Value value = null(type);
  value.null_ = std::holds_alternative<std::monostate>(content);
  value.scalar_ = std::move(content);
  return value;
}

Value Value::array_of(Type type, std::vector<Scalar> elements) {
  Value value = null(type, true);
  value.null_ = false;
  value.elements_ = std::move(elements);
  return value;
}

Value Value::strings(const std::vector<std::string>& texts) {
  return array_of(Type::string, {texts.begin(), texts.end()});
}

bool Value::is_true() const {
  const bool* content = std::get_if<bool>(&scalar_);
  return content != nullptr && *content;
}

ValueResult convert(const Value& value, Type type, bool is_array) {
  if (value.is_null()) return {Value::null(type, is_array), {}};
  if (is_array && !value.is_array()) return failed("an array in braces is needed");
  if (!is_array && value.is_array()) return failed("a single value is needed, not an array");
  if (!is_array) {
    ScalarResult result = convert_scalar(value.scalar(), type);
    if (!result.error.empty()) return failed(std::move(result.error));
    return {Value::of(type, std::move(result.value)), {}};
  }
  std::vector<Scalar> elements;
  elements.reserve(value.elements().size());
  for (const Scalar& element : value.elements()) {
    ScalarResult result = convert_scalar(element, type);
    if (!result.error.empty()) return failed(std::move(result.error));
    elements.push_back(std::move(result.value));
  }
  return {Value::array_of(type, std::move(elements)), {}};
}

ValueResult value_from_mof(std::string_view text, Type type, bool is_array) {
  TokenStream tokens(text);
  Literal literal = read_literal(tokens, "the literal");
  if (!literal.ok()) return failed(std::move(literal.error));
  const Token& rest = tokens.peek();
  if (rest.kind == TokenKind::bad) return failed(rest.error);
  if (rest.kind != TokenKind::end) {
    return failed("expected the end of the literal, found " + rest.described());
  }
  return convert(literal.value, type, is_array);
}

ValueResult value_from_text(std::string_view text, Type type, bool is_array) {
  const std::string_view word = trimmed(text);
  if (is_array && word.starts_with('{')) return value_from_mof(word, type, true);
  if (is_array && equal_names(word, "null")) return {Value::null(type, true), {}};
  ScalarResult result = plain_element(text, type);
  if (!result.error.empty()) return failed(std::move(result.error));
  if (!is_array) return {Value::of(type, std::move(result.value)), {}};
  return {Value::array_of(type, {std::move(result.value)}), {}};
}

std::string to_mof(Type type, const Scalar& element) {
  struct Writer {
    Type type;
    std::string operator()(std::monostate) const { return "NULL"; }
    std::string operator()(bool value) const { return value ? "true" : "false"; }
    std::string operator()(char16_t value) const { return char16_literal(value); }
    std::string operator()(std::uint64_t value) const { return std::to_string(value); }
    std::string operator()(std::int64_t value) const { return std::to_string(value); }
    std::string operator()(double value) const { return real_literal(value, type == Type::real32); }
    std::string operator()(const std::string& value) const {
      if (type == Type::reference && value.starts_with('$')) return value;
      return quote(value);
    }
  };
  return std::visit(Writer{type}, element);
}

std::string to_mof(const Value& value) {
  if (value.is_null()) return "NULL";
  if (!value.is_array()) return to_mof(value.type(), value.scalar());
  std::string text = "{";
  for (const Scalar& element : value.elements()) {
    if (text.size() > 1) text += ", ";
    text += to_mof(value.type(), element);
  }
  return text + "}";
}

std::string to_text(Type type, const Scalar& element) {
  if (const auto* text = std::get_if<std::string>(&element)) return *text;
  if (const auto* character = std::get_if<char16_t>(&element)) return char16_text(*character);
  if (std::holds_alternative<std::monostate>(element)) return {};
  if (const auto* real = std::get_if<double>(&element); real != nullptr && !std::isfinite(*real)) {
    return real_text(*real, type == Type::real32);
  }
  return to_mof(type, element);
}

std::string to_text(const Value& value) {
  if (value.is_null()) return {};
  if (!value.is_array()) return to_text(value.type(), value.scalar());
  std::string text;
  for (std::size_t i = 0; i < value.elements().size(); ++i) {
    if (i > 0) text += ", ";
    text += to_text(value.type(), value.elements()[i]);
  }
  return text;
}

std::string escape(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const CodePoint point = first_code_point(text);
    if (point.length == 0) {
      append_escaped(out, static_cast<unsigned char>(text[0]));
    } else if (point.value < 0x20 || point.value == '"' || point.value == '\\') {
      append_escaped(out, point.value);
    } else {
      out.append(text.substr(0, point.length));
    }
    text.remove_prefix(point.length == 0 ? 1 : point.length);
  }
  return out;
}

std::string quote(std::string_view text) {
  return "\"" + escape(text) + "\"";
}

std::optional<std::string> unescape(std::string_view text) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '"') return std::nullopt;
    if (text[i] == '\\') ++i;
  }
  Unescaped result = unescape_literal(text);
  if (!result.error.empty()) return std::nullopt;
  return std::move(result.text);
}

bool is_datetime(std::string_view text) {
  constexpr std::size_t kLength = 25;
  constexpr std::array<DateField, 6> kTimestamp = {
      {{4, 0, 9999}, {2, 1, 12}, {2, 1, 31}, {2, 0, 23}, {2, 0, 59}, {2, 0, 59}}};
  constexpr std::array<DateField, 4> kInterval = {
      {{8, 0, 99999999}, {2, 0, 23}, {2, 0, 59}, {2, 0, 59}}};
  if (text.size() != kLength || text[14] != '.') return false;
  bool asterisks = false;
  const std::string_view offset = text.substr(22);
  if (text[21] == ':') {
    return offset == "000" && date_fields_ok(text.substr(0, 14), kInterval, asterisks) &&
           microseconds_ok(text.substr(15, 6), asterisks);
  }
  if (text[21] != '+' && text[21] != '-') return false;
  return is_number(offset) && date_fields_ok(text.substr(0, 14), kTimestamp, asterisks) &&
         microseconds_ok(text.substr(15, 6), asterisks);
}

bool is_utf8(std::string_view text) {
  while (!text.empty()) {
    const CodePoint point = first_code_point(text);
    if (point.length == 0) return false;
    text.remove_prefix(point.length);
  }
  return true;
}

}  // namespace cim::schema

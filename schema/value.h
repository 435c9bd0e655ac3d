// CIM data types and values, with their text forms.
//
// A Value knows its type. Integers of every unsigned width are held as std::uint64_t, of every
// signed width as std::int64_t, real32 and real64 as double; string, datetime and reference (an
// object path) as text in UTF-8. A null value has a type too.
#ifndef SCHEMA_VALUE_H_
#define SCHEMA_VALUE_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace cim::schema {

enum class Type : std::uint8_t {
  boolean,
  char16,
  uint8,
  sint8,
  uint16,
  sint16,
  uint32,
  sint32,
  uint64,
  sint64,
  real32,
  real64,
  string,
  datetime,
  reference,
};

/// The name as MOF and CIM-XML write it: "uint16", "datetime", ...; "reference" for a reference.
std::string_view type_name(Type type);

/// The type of that name, in any letter case. "reference" and "ref" are not names of data types.
std::optional<Type> type_of_name(std::string_view name);

bool is_unsigned(Type type);  ///< uint8 to uint64
bool is_signed(Type type);    ///< sint8 to sint64
bool is_real(Type type);      ///< real32, real64
inline bool is_integer(Type type) {
  return is_unsigned(type) || is_signed(type);
}
inline bool is_numeric(Type type) {
  return is_integer(type) || is_real(type);
}

/// One value or one element of an array; std::monostate is null.
using Scalar =
    std::variant<std::monostate, bool, char16_t, std::uint64_t, std::int64_t, double, std::string>;

/// The value of a property, a parameter or a qualifier.
class Value {
 public:
  /// A null string.
  Value() = default;

  static Value null(Type type, bool is_array = false);
  /// `content` must be of the alternative that `type` calls for (see the head of this file); no
  /// range is checked: convert() does that.
  static Value of(Type type, Scalar content);
  static Value array_of(Type type, std::vector<Scalar> elements);
  static Value boolean(bool value) { return of(Type::boolean, Scalar(value)); }
  static Value string(std::string text) { return of(Type::string, Scalar(std::move(text))); }
  static Value strings(const std::vector<std::string>& texts);
  static Value unsigned_integer(Type type, std::uint64_t value) { return of(type, Scalar(value)); }
  static Value signed_integer(Type type, std::int64_t value) { return of(type, Scalar(value)); }

  Type type() const { return type_; }
  bool is_array() const { return is_array_; }
  bool is_null() const { return null_; }

  /// The content of a value that is not an array; std::monostate when null.
  const Scalar& scalar() const { return scalar_; }
  /// The elements of an array; none when null (ask is_null() to tell it from an empty array).
  const std::vector<Scalar>& elements() const { return elements_; }

  /// The content when it is of that kind, else null; a convenience for the common reads.
  const std::string* text() const { return std::get_if<std::string>(&scalar_); }
  bool is_true() const;

  friend bool operator==(const Value&, const Value&) = default;

 private:
  Type type_ = Type::string;
  bool is_array_ = false;
  bool null_ = true;
  Scalar scalar_;
  std::vector<Scalar> elements_;
};

/// A value, or the reason why there is none.
struct ValueResult {
  std::optional<Value> value;
  std::string error;  ///< "300 is out of range for uint8 (0 to 255)"; no position, no full stop

  explicit operator bool() const { return value.has_value(); }
};

/// The value as another type. Refused where the type or its range does not allow it: an integer
/// fits every integer type whose range holds it and every real, a string may become a datetime or a
/// reference, char16 and boolean become nothing else. Null becomes a null of the type.
/// `is_array` of the value must agree.
ValueResult convert(const Value& value, Type type, bool is_array);

/// A MOF literal: `"text"`, `'c'`, `12`, `0x1F`, `101b`, `1.5e3`, `true`, `NULL`, `{1, 2}`.
/// Nothing else may stand beside it.
ValueResult value_from_mof(std::string_view text, Type type, bool is_array);

/// The value as a MOF literal that value_from_mof() reads back equal.
std::string to_mof(const Value& value);
std::string to_mof(Type type, const Scalar& element);

/// The plain form of a value, as a command line takes it: a string, datetime or reference stands as
/// it is, a char16 as its one character, numbers and booleans as in MOF. An array is written
/// `{...}` as in MOF, or as one element without braces.
ValueResult value_from_text(std::string_view text, Type type, bool is_array);

/// The plain form for people: strings as they are, array elements joined by ", ", null as "".
std::string to_text(const Value& value);
std::string to_text(Type type, const Scalar& element);

/// The inside of a MOF string literal: `"`, `\` and control characters escaped, no quotes around.
std::string escape(std::string_view text);
/// `"` + escape(text) + `"`.
std::string quote(std::string_view text);
/// The reverse of escape(); nothing when `text` is not the inside of a MOF string literal.
std::optional<std::string> unescape(std::string_view text);

/// True for the 25 characters of a CIM time stamp ("yyyymmddhhmmss.mmmmmmsutc") or interval
/// ("ddddddddhhmmss.mmmmmm:000") whose fields are in range; trailing fields may be asterisks.
bool is_datetime(std::string_view text);

/// True when every byte of `text` belongs to a well-formed UTF-8 sequence.
bool is_utf8(std::string_view text);

}  // namespace cim::schema

#endif  // SCHEMA_VALUE_H_

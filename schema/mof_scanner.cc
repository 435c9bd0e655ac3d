#include "schema/mof_scanner.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>
#include <utility>

#include "schema/names.h"
#include "schema/utf8.h"

namespace cim::schema {
namespace {

constexpr std::size_t kLongestName = 256;
constexpr std::size_t kLongestShown = 32;

bool is_digit(char c) {
  return c >= '0' && c <= '9';
}
bool is_letter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}
bool is_name_start(char c) {
  return is_letter(c) || c == '_';
}
bool is_name_part(char c) {
  return is_name_start(c) || is_digit(c);
}
bool is_blank(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f';
}

int hex_digit(char c) {
  if (is_digit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

/// The first characters of a token, whole code points, for an error message.
std::string shown(std::string_view source) {
  if (source.size() <= kLongestShown) return std::string(source);
  std::size_t cut = kLongestShown - 3;
  while (cut > 0 && (static_cast<unsigned char>(source[cut]) & 0xC0U) == 0x80)
    --cut;
  return std::string(source.substr(0, cut)) + "...";
}

/// Reads `\x` with its one to four digits; `at` stands behind the x. -1: no digit.
int read_hex_escape(std::string_view text, std::size_t& at) {
  int value = 0;
  std::size_t digits = 0;
  while (digits < 4 && at < text.size() && hex_digit(text[at]) >= 0) {
    value = value * 16 + hex_digit(text[at]);
    ++at;
    ++digits;
  }
  return digits == 0 ? -1 : value;
}

bool is_high_surrogate(int value) {
  return value >= 0xD800 && value <= 0xDBFF;
}
bool is_low_surrogate(int value) {
  return value >= 0xDC00 && value <= 0xDFFF;
}

/// The character that `\c` stands for, 0 when there is no such escape.
char simple_escape(char c) {
  switch (c) {
    case 'b':
      return '\b';
    case 't':
      return '\t';
    case 'n':
      return '\n';
    case 'f':
      return '\f';
    case 'r':
      return '\r';
    case '"':
    case '\'':
    case '\\':
      return c;
    default:
      return 0;
  }
}

/// Resolves the escape at `at`, which stands on the backslash. Returns an error or an empty text.
std::string append_escape(std::string& out, std::string_view text, std::size_t& at) {
  ++at;
  if (at == text.size()) return "'\\' stands at the end";
  const char c = text[at++];
  if (c != 'x' && c != 'X') {
    const char plain = simple_escape(c);
    if (plain == 0) return "'\\" + std::string(is_name_part(c) ? 1 : 0, c) + "' is not an escape";
    out.push_back(plain);
    return {};
  }
  int value = read_hex_escape(text, at);
  if (value < 0) return "'\\x' needs one to four hexadecimal digits";
  if (value == 0) return "'\\x0' is not allowed: a text cannot hold the character U+0000";
  if (is_high_surrogate(value) && text.substr(at, 2) == "\\x") {
    std::size_t next = at + 2;
    const int low = read_hex_escape(text, next);
    if (is_low_surrogate(low)) {
      at = next;
      value = 0x10000 + ((value - 0xD800) << 10) + (low - 0xDC00);
    }
  }
  if (is_high_surrogate(value) || is_low_surrogate(value)) {
    return "half of a surrogate pair (" + code_point_name(static_cast<char32_t>(value)) + ")";
  }
  append_utf8(out, static_cast<char32_t>(value));
  return {};
}

Number failed_number(std::string error) {
  return {{}, std::move(error)};
}

Number parse_digits(std::string_view digits, int base, bool negative, std::string_view whole) {
  std::uint64_t magnitude = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, status] = std::from_chars(digits.data(), end, magnitude, base);
  if (stop != end || status == std::errc::invalid_argument) {
    return failed_number("malformed number '" + shown(whole) + "'");
  }
  constexpr std::uint64_t kLowest = std::uint64_t{1} << 63U;
  if (status == std::errc::result_out_of_range || (negative && magnitude > kLowest)) {
    return failed_number("number '" + shown(whole) + "' does not fit 64 bits");
  }
  if (!negative) return {Scalar(magnitude), {}};
  return {Scalar(static_cast<std::int64_t>(0 - magnitude)), {}};
}

/// [digits] [. digits] [e [sign] digits], with a digit on at least one side of the point.
bool is_real_syntax(std::string_view text) {
  std::size_t at = 0;
  const auto digits = [&] {
    const std::size_t from = at;
    while (at < text.size() && is_digit(text[at]))
      ++at;
    return at - from;
  };
  const std::size_t whole = digits();
  if (at < text.size() && text[at] == '.') {
    ++at;
    if (digits() == 0) return false;
  } else if (whole == 0) {
    return false;
  }
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    if (digits() == 0) return false;
  }
  return at == text.size();
}

Number parse_real(std::string_view text, bool negative, std::string_view whole) {
  if (!is_real_syntax(text)) return failed_number("malformed number '" + shown(whole) + "'");
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc()) {
    return failed_number("number '" + shown(whole) + "' is out of range for real64");
  }
  return {Scalar(negative ? -value : value), {}};
}

}  // namespace

bool Token::is_word(std::string_view word) const {
  return kind == TokenKind::name && equal_names(source, word);
}

std::string Token::described() const {
  switch (kind) {
    case TokenKind::end:
      return "the end of the file";
    case TokenKind::string:
    case TokenKind::character:
      return shown(source);
    default:
      return "'" + shown(source) + "'";
  }
}

Unescaped unescape_literal(std::string_view inside) {
  Unescaped result;
  result.text.reserve(inside.size());
  std::size_t at = 0;
  while (at < inside.size()) {
    const char c = inside[at];
    if (c == '\\') {
      result.error = append_escape(result.text, inside, at);
      if (!result.error.empty()) return result;
      continue;
    }
    const CodePoint point = first_code_point(inside.substr(at));
    if (point.length == 0) {
      result.error = "a text holds a byte that is not UTF-8";
      return result;
    }
    if (point.value < 0x20 && c != '\t') {
      result.error =
          "control character " + code_point_name(point.value) + " must be written as an escape";
      return result;
    }
    result.text.append(inside, at, point.length);
    at += point.length;
  }
  return result;
}

Number parse_number(std::string_view text) {
  std::string_view rest = text;
  const bool negative = !rest.empty() && rest[0] == '-';
  if (!rest.empty() && (rest[0] == '-' || rest[0] == '+')) rest.remove_prefix(1);
  if (rest.empty()) return failed_number("malformed number '" + shown(text) + "'");
  if (rest.size() > 2 && rest[0] == '0' && (rest[1] == 'x' || rest[1] == 'X')) {
    return parse_digits(rest.substr(2), 16, negative, text);
  }
  if (rest.size() > 1 && (rest.back() == 'b' || rest.back() == 'B')) {
    return parse_digits(rest.substr(0, rest.size() - 1), 2, negative, text);
  }
  if (rest.find_first_of(".eE") != std::string_view::npos) return parse_real(rest, negative, text);
  if (rest.size() > 1 && rest[0] == '0') return parse_digits(rest.substr(1), 8, negative, text);
  return parse_digits(rest, 10, negative, text);
}

Scanner::Scanner(std::string_view text) : text_(text) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  if (text_.starts_with(kByteOrderMark)) position_ = kByteOrderMark.size();
}

char Scanner::peek(std::size_t ahead) const {
  return position_ + ahead < text_.size() ? text_[position_ + ahead] : '\0';
}

void Scanner::advance() {
  const char c = text_[position_++];
  if (c == '\n') {
    ++line_;
    column_ = 1;
  } else if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80) {
    ++column_;
  }
}

void Scanner::advance(std::size_t bytes) {
  while (bytes-- > 0)
    advance();
}

bool Scanner::skip_blanks(Token& bad) {
  while (!at_end()) {
    if (is_blank(peek())) {
      advance();
    } else if (peek() == '/' && peek(1) == '/') {
      while (!at_end() && peek() != '\n')
        advance();
    } else if (peek() == '/' && peek(1) == '*') {
      bad.line = line_;
      bad.column = column_;
      const std::size_t start = position_;
      const std::size_t close = text_.find("*/", position_ + 2);
      if (close == std::string_view::npos) {
        bad.kind = TokenKind::bad;
        bad.source = text_.substr(start, 2);
        bad.error = "comment is not closed";
        advance(text_.size() - start);
        return false;
      }
      advance(close + 2 - start);
    } else {
      return true;
    }
  }
  return true;
}

Token Scanner::next() {
  Token token;
  if (!skip_blanks(token)) return token;
  token.line = line_;
  token.column = column_;
  if (at_end()) return token;
  const std::size_t start = position_;
  const char c = peek();
  const bool signed_number =
      (c == '+' || c == '-' || c == '.') && (is_digit(peek(1)) || peek(1) == '.');
  if (is_name_start(c)) {
    scan_name(token);
  } else if (is_digit(c) || signed_number) {
    scan_number(token);
  } else if (c == '"' || c == '\'') {
    scan_quoted(token, c);
  } else if (c == '#') {
    scan_directive(token);
  } else {
    scan_other(token);
  }
  token.source = text_.substr(start, position_ - start);
  return token;
}

void Scanner::scan_name(Token& token) {
  const std::size_t start = position_;
  while (is_name_part(peek()))
    advance();
  token.kind = TokenKind::name;
  if (position_ - start > kLongestName) {
    token.kind = TokenKind::bad;
    token.error = "name of more than 256 characters";
  }
}

void Scanner::scan_number(Token& token) {
  const std::size_t start = position_;
  advance();
  while (is_name_part(peek()) || peek() == '.' ||
         ((peek() == '+' || peek() == '-') &&
          (text_[position_ - 1] == 'e' || text_[position_ - 1] == 'E'))) {
    advance();
  }
  Number number = parse_number(text_.substr(start, position_ - start));
  token.kind = number.error.empty() ? TokenKind::number : TokenKind::bad;
  token.content = std::move(number.value);
  token.error = std::move(number.error);
}

void Scanner::scan_quoted(Token& token, char mark) {
  const bool is_string = mark == '"';
  const std::string what = is_string ? "string" : "character";
  advance();
  const std::size_t start = position_;
  while (!at_end() && peek() != mark && peek() != '\n') {
    if (peek() == '\\' && position_ + 1 < text_.size() && peek(1) != '\n') advance();
    advance();
  }
  token.kind = TokenKind::bad;
  if (at_end() || peek() == '\n') {
    token.error = what + " is not closed before the end of the line";
    return;
  }
  Unescaped inside = unescape_literal(text_.substr(start, position_ - start));
  advance();
  if (!inside.error.empty()) {
    token.error = what + ": " + inside.error;
    return;
  }
  if (is_string) {
    token.kind = TokenKind::string;
    token.content = Scalar(std::move(inside.text));
    return;
  }
  const CodePoint point = inside.text.empty() ? CodePoint{} : first_code_point(inside.text);
  if (point.length != inside.text.size() || point.length == 0 || point.value > 0xFFFF) {
    token.error = "character: exactly one character of 16 bits must stand between the quotes";
    return;
  }
  token.kind = TokenKind::character;
  token.content = Scalar(static_cast<char16_t>(point.value));
}

void Scanner::scan_directive(Token& token) {
  advance();
  const std::size_t start = position_;
  while (is_name_part(peek()))
    advance();
  const std::string_view word = text_.substr(start, position_ - start);
  token.kind = TokenKind::directive;
  if (!equal_names(word, "pragma")) {
    token.kind = TokenKind::bad;
    token.error = "expected '#pragma', found '#" + shown(word) + "'";
  }
}

void Scanner::scan_other(Token& token) {
  constexpr std::string_view kMarks = "{}()[],;:=";
  const char c = peek();
  token.kind = TokenKind::bad;
  if (kMarks.find(c) != std::string_view::npos) {
    token.kind = TokenKind::punctuation;
    advance();
  } else if (c == '$' && is_name_start(peek(1))) {
    advance();
    scan_name(token);
    if (token.kind == TokenKind::name) token.kind = TokenKind::alias;
  } else if (const CodePoint point = first_code_point(text_.substr(position_)); point.length == 0) {
    token.error = "a byte that is not UTF-8 cannot stand here";
    advance();
  } else {
    const bool printable = point.value > 0x20 && point.value < 0x7F;
    token.error = "character " +
                  (printable ? "'" + std::string(1, c) + "'" : code_point_name(point.value)) +
                  " cannot stand here";
    advance(point.length);
  }
}

Token TokenStream::take() {
  return std::exchange(current_, scanner_.next());
}

namespace {

Type natural_type(const Scalar& element) {
  constexpr Type kTypes[] = {Type::string, Type::boolean, Type::char16, Type::uint64,
                             Type::sint64, Type::real64,  Type::string};
  return kTypes[element.index()];
}

/// One element. Adjacent strings are one string.
bool read_element(TokenStream& tokens, Scalar& element, Type& type) {
  const Token& token = tokens.peek();
  if (token.is_word("true") || token.is_word("false")) {
    element = Scalar(tokens.take().is_word("true"));
  } else if (token.is_word("null")) {
    tokens.take();
    element = Scalar();
  } else if (token.kind == TokenKind::string) {
    std::string text;
    while (tokens.peek().kind == TokenKind::string) {
      text += std::get<std::string>(tokens.take().content);
    }
    element = Scalar(std::move(text));
  } else if (token.kind == TokenKind::character || token.kind == TokenKind::number) {
    element = tokens.take().content;
  } else if (token.kind == TokenKind::alias) {
    element = Scalar(std::string(tokens.take().source));
    type = Type::reference;
    return true;
  } else {
    return false;
  }
  type = natural_type(element);
  return true;
}

Literal& fail(Literal& literal, const Token& token, const std::string& expected) {
  literal.line = token.line;
  literal.column = token.column;
  literal.error = token.kind == TokenKind::bad
                      ? token.error
                      : "expected " + expected + ", found " + token.described();
  return literal;
}

}  // namespace

Literal read_literal(TokenStream& tokens, std::string_view what) {
  Literal literal;
  literal.line = tokens.peek().line;
  literal.column = tokens.peek().column;
  Scalar element;
  Type type = Type::string;
  if (!tokens.peek().is('{')) {
    if (!read_element(tokens, element, type)) {
      return fail(literal, tokens.peek(), "a value for " + std::string(what));
    }
    literal.value = Value::of(type, std::move(element));
    return literal;
  }
  tokens.take();
  std::vector<Scalar> elements;
  Type array_type = Type::string;
  while (!tokens.peek().is('}')) {
    if (!elements.empty()) {
      if (!tokens.peek().is(',')) {
        return fail(literal, tokens.peek(), "',' or '}' in the values of " + std::string(what));
      }
      tokens.take();
    }
    if (!read_element(tokens, element, type)) {
      return fail(literal, tokens.peek(), "a value for " + std::string(what));
    }
    if (elements.empty()) array_type = type;
    elements.push_back(std::move(element));
  }
  tokens.take();
  literal.value = Value::array_of(array_type, std::move(elements));
  return literal;
}

}  // namespace cim::schema

// Splits MOF text into tokens. Every call consumes at least one byte or is at the end.
#ifndef SCHEMA_MOF_SCANNER_H_
#define SCHEMA_MOF_SCANNER_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "schema/value.h"

namespace cim::schema {

enum class TokenKind : std::uint8_t {
  end,
  name,       ///< also the key words: they are key words only where one is expected
  string,     ///< one quoted piece; `content` is its text
  character,  ///< `content` is a char16_t
  number,     ///< `content` is an integer or a double
  alias,      ///< `$Name`
  directive,  ///< `#pragma`
  punctuation,
  bad,  ///< nothing of MOF; `error` says why
};

struct Token {
  TokenKind kind = TokenKind::end;
  std::string_view source;  ///< the bytes of the token in the text
  Scalar content;
  std::string error;
  std::uint32_t line = 1;
  std::uint32_t column = 1;

  bool is(char mark) const { return kind == TokenKind::punctuation && source[0] == mark; }
  bool is_name() const { return kind == TokenKind::name; }
  /// True for the key word `word`, in any letter case.
  bool is_word(std::string_view word) const;
  /// As an error message shows it: "'}'", "'Foo'", "the end of the file".
  std::string described() const;
};

class Scanner {
 public:
  /// `text` must outlive the scanner and its tokens.
  explicit Scanner(std::string_view text);

  Token next();

 private:
  bool at_end() const { return position_ == text_.size(); }
  char peek(std::size_t ahead = 0) const;
  void advance();
  void advance(std::size_t bytes);
  /// Skips white space and comments; false, with `bad` filled, for a comment without an end.
  bool skip_blanks(Token& bad);
  void scan_name(Token& token);
  void scan_number(Token& token);
  void scan_quoted(Token& token, char mark);
  void scan_directive(Token& token);
  void scan_other(Token& token);

  std::string_view text_;
  std::size_t position_ = 0;
  std::uint32_t line_ = 1;
  std::uint32_t column_ = 1;
};

/// The text between the quotes of a literal, escapes resolved.
struct Unescaped {
  std::string text;
  std::string error;  ///< empty: good
};
Unescaped unescape_literal(std::string_view inside);

/// An integer or real literal of MOF, with an optional sign.
struct Number {
  Scalar value;       ///< std::uint64_t, std::int64_t (only with a '-') or double
  std::string error;  ///< empty: good
};
Number parse_number(std::string_view text);

/// The tokens of a text with one token of look-ahead.
class TokenStream {
 public:
  explicit TokenStream(std::string_view text) : scanner_(text), current_(scanner_.next()) {}

  const Token& peek() const { return current_; }
  Token take();

 private:
  Scanner scanner_;
  Token current_;
};

/// A literal and where it stands, or an error.
struct Literal {
  Value value;  ///< of the literal's natural type; a mixed array keeps each element's own kind
  std::uint32_t line = 1;
  std::uint32_t column = 1;
  std::string error;  ///< empty: good; otherwise line and column are those of the error

  bool ok() const { return error.empty(); }
};

/// Reads a constant, with NULL and `{...}`; what follows it stays in the stream.
/// \param what  what is being read, for messages: "the default of property VsanId"
Literal read_literal(TokenStream& tokens, std::string_view what);

}  // namespace cim::schema

#endif  // SCHEMA_MOF_SCANNER_H_

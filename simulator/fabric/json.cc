#include "simulator/fabric/json.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace switch_sim::json {
namespace {

constexpr int kDeepest = 64;

bool is_digit(char character) {
  return character >= '0' && character <= '9';
}

bool is_continuation(char character) {
  return (static_cast<uint8_t>(character) & 0xC0) == 0x80;
}

// Bytes of the UTF-8 character at the start of a text that is not empty; 0 when it is none.
size_t utf8_length(std::string_view text) {
  const auto byte = [&](size_t i) {
    return i < text.size() ? static_cast<uint8_t>(text[i]) : uint8_t{0};
  };
  const uint8_t first = byte(0);
  if (first < 0x80) return 1;
  const size_t length = first < 0xC2   ? 0
                        : first < 0xE0 ? 2
                        : first < 0xF0 ? 3
                        : first < 0xF5 ? 4
                                       : 0;
  for (size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  // Overlong forms, surrogates and what lies above the last character.
  if (first == 0xE0 && byte(1) < 0xA0) return 0;
  if (first == 0xED && byte(1) > 0x9F) return 0;
  if (first == 0xF0 && byte(1) < 0x90) return 0;
  if (first == 0xF4 && byte(1) > 0x8F) return 0;
  return length;
}

void append_utf8(std::string& text, uint32_t character) {
  const auto put = [&](uint32_t byte) { text += static_cast<char>(byte); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0 | character >> 6);
    put(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    put(0xE0 | character >> 12);
    put(0x80 | (character >> 6 & 0x3F));
    put(0x80 | (character & 0x3F));
  } else {
    put(0xF0 | character >> 18);
    put(0x80 | (character >> 12 & 0x3F));
    put(0x80 | (character >> 6 & 0x3F));
    put(0x80 | (character & 0x3F));
  }
}

class Parser {
 public:
  explicit Parser(std::string_view text) : rest_(text) {}

  Value parse_file() {
    skip_blanks();
    Value value = parse_value(0);
    skip_blanks();
    if (!rest_.empty()) fail("there is more after the end of the description");
    return value;
  }

 private:
  [[noreturn]] void fail(std::string message) const {
    throw Problem{position_, std::move(message)};
  }

  [[noreturn]] void fail_expecting(std::string_view what) const {
    fail("expected " + std::string(what) + ", found " + found());
  }

  std::string found() const {
    if (rest_.empty()) return "the end of the file";
    const size_t length = utf8_length(rest_);
    if (length == 0 || static_cast<uint8_t>(rest_.front()) < 0x20) {
      char text[16];
      snprintf(text, sizeof text, "byte 0x%02x", static_cast<uint8_t>(rest_.front()));
      return text;
    }
    return "'" + std::string(rest_.substr(0, length)) + "'";
  }

  bool at(char character) const { return !rest_.empty() && rest_.front() == character; }

  char take() {
    const char character = rest_.front();
    rest_.remove_prefix(1);
    if (character == '\n') {
      position_ = {position_.line + 1, 1};
    } else if (rest_.empty() || !is_continuation(rest_.front())) {
      ++position_.column;
    }
    return character;
  }

  bool take_if(char character) {
    if (!at(character)) return false;
    take();
    return true;
  }

  void skip_blanks() {
    while (at(' ') || at('\t') || at('\r') || at('\n'))
      take();
  }

  Value parse_value(int depth) {
    if (depth > kDeepest) fail("nested too deeply");
    const Position position = position_;
    if (at('{')) return {position, parse_object(depth)};
    if (at('[')) return {position, parse_array(depth)};
    if (at('"')) return {position, parse_text()};
    if (at('-') || (!rest_.empty() && is_digit(rest_.front()))) return {position, parse_number()};
    if (take_word("true")) return {position, true};
    if (take_word("false")) return {position, false};
    if (take_word("null")) return {position, Null{}};
    fail_expecting("a value");
  }

  bool take_word(std::string_view word) {
    if (!rest_.starts_with(word)) return false;
    for (size_t i = 0; i < word.size(); ++i)
      take();
    return true;
  }

  Object parse_object(int depth) {
    Object object;
    take();
    skip_blanks();
    if (take_if('}')) return object;
    for (;;) {
      Member member;
      member.key_position = position_;
      if (!at('"')) fail_expecting("a key in double quotes");
      member.key = parse_text();
      const bool twice = std::any_of(object.begin(), object.end(),
                                     [&](const Member& other) { return other.key == member.key; });
      if (twice) throw Problem{member.key_position, "key " + quote(member.key) + " is given twice"};
      skip_blanks();
      if (!take_if(':')) fail_expecting("\":\"");
      skip_blanks();
      member.value = parse_value(depth + 1);
      object.push_back(std::move(member));
      skip_blanks();
      if (take_if('}')) return object;
      if (!take_if(',')) fail_expecting("\",\" or \"}\"");
      skip_blanks();
    }
  }

  Array parse_array(int depth) {
    Array array;
    take();
    skip_blanks();
    if (take_if(']')) return array;
    for (;;) {
      array.push_back(parse_value(depth + 1));
      skip_blanks();
      if (take_if(']')) return array;
      if (!take_if(',')) fail_expecting("\",\" or \"]\"");
      skip_blanks();
    }
  }

  std::string parse_text() {
    const Position start = position_;
    std::string text;
    take();
    for (;;) {
      if (rest_.empty() || at('\n')) throw Problem{start, "a text that is not closed"};
      if (take_if('"')) return text;
      if (at('\\')) {
        parse_escape(text);
        continue;
      }
      if (static_cast<uint8_t>(rest_.front()) < 0x20) fail("a control character in a text");
      const size_t length = utf8_length(rest_);
      if (length == 0) fail("not valid UTF-8");
      for (size_t i = 0; i < length; ++i)
        text += take();
    }
  }

  void parse_escape(std::string& text) {
    static constexpr std::string_view kLetters = "\"\\/bfnrt";
    static constexpr std::string_view kMeanings = "\"\\/\b\f\n\r\t";
    const Position start = position_;
    take();
    if (take_if('u')) {
      append_utf8(text, parse_unicode(start));
      return;
    }
    const size_t letter = rest_.empty() ? std::string_view::npos : kLetters.find(rest_.front());
    if (letter == std::string_view::npos) throw Problem{start, "an unknown escape in a text"};
    take();
    text += kMeanings[letter];
  }

  uint32_t parse_unicode(Position start) {
    const uint32_t first = parse_four_digits(start);
    if (first < 0xD800 || first > 0xDFFF) return first;
    const Problem half{start, "half of a surrogate pair in a text"};
    if (first > 0xDBFF || !take_if('\\') || !take_if('u')) throw half;
    const uint32_t second = parse_four_digits(start);
    if (second < 0xDC00 || second > 0xDFFF) throw half;
    return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
  }

  uint32_t parse_four_digits(Position start) {
    uint32_t value = 0;
    const std::string_view digits = rest_.substr(0, 4);
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (error != std::errc{} || digits.size() < 4 || end != digits.data() + 4) {
      throw Problem{start, "\\u needs four hexadecimal digits"};
    }
    for (int i = 0; i < 4; ++i)
      take();
    return value;
  }

  size_t take_digits(std::string& text) {
    size_t count = 0;
    for (; !rest_.empty() && is_digit(rest_.front()); ++count)
      text += take();
    return count;
  }

  Number parse_number() {
    const Position start = position_;
    const Problem malformed{start, "not a number as JSON writes it"};
    std::string text;
    if (at('-')) text += take();
    const bool zero = at('0');
    const size_t digits = take_digits(text);
    if (digits == 0 || (zero && digits > 1)) throw malformed;
    bool whole = true;
    if (at('.')) {
      whole = false;
      text += take();
      if (take_digits(text) == 0) throw malformed;
    }
    if (at('e') || at('E')) {
      whole = false;
      text += take();
      if (at('+') || at('-')) text += take();
      if (take_digits(text) == 0) throw malformed;
    }
    int64_t value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (!whole || result.ec != std::errc{}) return {std::nullopt};
    return {value};
  }

  std::string_view rest_;
  Position position_;
};

}  // namespace

Value parse(std::string_view text) {
  return Parser(text).parse_file();
}

bool is_utf8(std::string_view text) {
  while (!text.empty()) {
    const size_t length = utf8_length(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

std::string quote(std::string_view text) {
  std::string quoted = "\"";
  for (const char character : text) {
    if (character == '"' || character == '\\') {
      quoted += '\\';
      quoted += character;
    } else if (static_cast<uint8_t>(character) < 0x20) {
      char escape[8];
      snprintf(escape, sizeof escape, "\\u%04x", static_cast<uint8_t>(character));
      quoted += escape;
    } else {
      quoted += character;
    }
  }
  return quoted + '"';
}

}  // namespace switch_sim::json

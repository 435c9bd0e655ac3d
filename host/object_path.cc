#include "host/object_path.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "schema/names.h"
#include "schema/value.h"

namespace cim::host {
namespace {

// Longer than any path of any model; beyond it a text is refused unread.
constexpr std::size_t kLongestPath = std::size_t{1} << 20;

std::string key_text(const Data& data) {
  const schema::Value value = to_value(data);
  if (value.is_null()) return "NULL";
  if (const auto* flag = std::get_if<bool>(&data.element)) return *flag ? "TRUE" : "FALSE";
  if (data.type == CMPI_ref) return schema::quote(schema::to_text(value));
  return schema::to_mof(value);
}

std::string short_key_text(const Data& data) {
  if (const auto* path = std::get_if<PathPtr>(&data.element)) return to_short_text(**path);
  return schema::to_text(to_value(data));
}

bool is_name_start(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || byte >= 0x80;
}

bool is_name_part(char c) {
  return is_name_start(c) || (c >= '0' && c <= '9');
}

/// What went wrong, and at which byte.
struct Fault {
  std::size_t at;
  std::string text;
};

class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  ObjectPath parse() {
    if (text_.size() > kLongestPath) fail("the path is too long");
    if (text_.empty()) fail("the path is empty");
    ObjectPath path;
    parse_host(path);
    parse_namespace(path);
    path.class_name = parse_name("a class name");
    if (at_end()) return path;
    if (text_[at_] != '.') fail("expected '.' and a key after the class name");
    ++at_;
    do {
      parse_key(path);
    } while (take(','));
    if (!at_end()) fail("expected ',' or the end after the value of key " + path.keys.back().name);
    return path;
  }

 private:
  [[noreturn]] void fail(std::string text) const { throw Fault{at_, std::move(text)}; }

  bool at_end() const { return at_ == text_.size(); }

  bool take(char c) {
    if (at_end() || text_[at_] != c) return false;
    ++at_;
    return true;
  }

  void parse_host(ObjectPath& path) {
    if (!text_.starts_with("//")) return;
    at_ = 2;
    const std::size_t slash = text_.find('/', at_);
    if (slash == std::string_view::npos) fail("expected '/' after the host name");
    if (slash == at_) fail("expected a host name after '//'");
    path.host = text_.substr(at_, slash - at_);
    at_ = slash + 1;
  }

  /// A namespace reaches to the ':' in front of the class; there is none without that ':'.
  void parse_namespace(ObjectPath& path) {
    std::size_t end = at_;
    while (end < text_.size() &&
           (is_name_part(text_[end]) || text_[end] == '/' || text_[end] == '-'))
      ++end;
    if (end == text_.size() || text_[end] != ':') {
      if (!path.host.empty()) {
        at_ = end;
        fail("expected a namespace and ':' after the host");
      }
      return;
    }
    if (end == at_) fail("expected a namespace in front of ':'");
    path.name_space = text_.substr(at_, end - at_);
    at_ = end + 1;
  }

  std::string parse_name(const std::string& what) {
    const std::size_t start = at_;
    if (at_end() || !is_name_start(text_[at_])) fail("expected " + what);
    while (!at_end() && is_name_part(text_[at_]))
      ++at_;
    return std::string(text_.substr(start, at_ - start));
  }

  void parse_key(ObjectPath& path) {
    const std::size_t start = at_;
    std::string name = parse_name("the name of a key");
    if (find_named(path.keys, name) != nullptr) {
      at_ = start;
      fail("key " + name + " stands here a second time");
    }
    if (!take('=')) fail("expected '=' after key " + name);
    Data value = parse_value(name);
    path.keys.push_back({std::move(name), std::move(value)});
  }

  Data parse_value(const std::string& key) {
    if (at_end()) fail("expected a value for key " + key);
    if (text_[at_] == '"') return Data::string(parse_quoted('"', "the text"));
    if (text_[at_] == '\'') return parse_character();
    return parse_word(key);
  }

  /// The inside of the quotes, escapes resolved.
  std::string parse_quoted(char mark, const std::string& what) {
    const std::size_t start = at_++;
    while (!at_end() && text_[at_] != mark)
      at_ += text_[at_] == '\\' && at_ + 1 < text_.size() ? 2 : 1;
    if (at_end()) {
      at_ = start;
      fail(what + " that starts here has no closing " + mark);
    }
    const std::string_view inside = text_.substr(start + 1, at_ - start - 1);
    ++at_;
    std::optional<std::string> result = schema::unescape(inside);
    if (!result) {
      at_ = start;
      fail(what + " that starts here has a '\\' without a known escape, or is not UTF-8");
    }
    return std::move(*result);
  }

  Data parse_character() {
    const std::size_t start = at_++;
    while (!at_end() && text_[at_] != '\'')
      at_ += text_[at_] == '\\' && at_ + 1 < text_.size() ? 2 : 1;
    if (!at_end()) ++at_;
    const auto result =
        schema::value_from_mof(text_.substr(start, at_ - start), schema::Type::char16, false);
    if (!result) {
      at_ = start;
      fail(result.error);
    }
    return to_data(*result.value);
  }

  /// A number or a boolean: everything up to the next ','.
  Data parse_word(const std::string& key) {
    const std::size_t end = std::min(text_.find(',', at_), text_.size());
    const std::string_view word = text_.substr(at_, end - at_);
    Data value;
    if (schema::equal_names(word, "true") || schema::equal_names(word, "false")) {
      value = Data::boolean(schema::equal_names(word, "true"));
    } else {
      value = parse_number(key, word);
    }
    at_ = end;
    return value;
  }

  Data parse_number(const std::string& key, std::string_view word) const {
    const bool number_like = word.find_first_of("0123456789") < 3 &&
                             std::none_of(word.begin(), word.end(),
                                          [](char c) { return c == ' ' || c == '{' || c == '"'; });
    if (number_like) {
      for (const schema::Type type :
           {schema::Type::uint64, schema::Type::sint64, schema::Type::real64}) {
        const auto result = schema::value_from_mof(word, type, false);
        if (result) return to_data(*result.value);
      }
    }
    fail("expected a text in quotes, a number, TRUE or FALSE as the value of key " + key);
  }

  std::string_view text_;
  std::size_t at_ = 0;
};

/// Characters before the byte, from 1.
std::size_t column_of(std::string_view text, std::size_t byte) {
  const std::string_view before = text.substr(0, std::min(byte, text.size()));
  return 1 + static_cast<std::size_t>(std::count_if(before.begin(), before.end(), [](char c) {
           return (static_cast<unsigned char>(c) & 0xC0U) != 0x80;
         }));
}

std::string keys_text(const ObjectPath& path, std::string (*value_text)(const Data&)) {
  std::string text;
  for (const NamedData& key : path.keys) {
    text += text.empty() ? "." : ",";
    text += key.name + "=" + value_text(key.data);
  }
  return text;
}

}  // namespace

std::string to_text(const ObjectPath& path) {
  std::string text;
  if (!path.host.empty()) text = "//" + path.host + "/";
  if (!path.name_space.empty()) text += path.name_space + ":";
  return text + path.class_name + keys_text(path, key_text);
}

std::string to_short_text(const ObjectPath& path) {
  ObjectPath shown = path;
  std::erase_if(shown.keys, [&](const NamedData& key) {
    const auto* text = std::get_if<std::string>(&key.data.element);
    return schema::equal_names(key.name, "CreationClassName") && text != nullptr &&
           schema::equal_names(*text, path.class_name);
  });
  return path.class_name + keys_text(shown, short_key_text);
}

ParsedPath parse_object_path(std::string_view text) {
  ParsedPath result;
  try {
    result.path = Parser(text).parse();
  } catch (Fault& fault) {
    result.error = std::move(fault.text);
    result.column = column_of(text, fault.at);
  }
  return result;
}

}  // namespace cim::host

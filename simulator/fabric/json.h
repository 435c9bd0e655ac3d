// JSON with positions: every value knows where it stands in its file, so that an error can say so.
#ifndef SIMULATOR_FABRIC_JSON_H
#define SIMULATOR_FABRIC_JSON_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace switch_sim::json {

// Line and column from 1; a column is a character, not a byte.
struct Position {
  size_t line = 1;
  size_t column = 1;
};

// What is wrong, and where. Thrown while a file is read; never leaves the reader.
struct Problem {
  Position position;
  std::string message;
};

struct Member;
struct Value;
struct Null {};
struct Number {
  std::optional<int64_t> integer;  // nothing for fractions, exponents and what does not fit
};
using Array = std::vector<Value>;
using Object = std::vector<Member>;  // in the order of the file; no key twice

struct Value {
  Position position;
  std::variant<Null, bool, Number, std::string, Array, Object> data;
};

struct Member {
  Position key_position;
  std::string key;
  Value value;
};

// Reads one value that fills the whole text (UTF-8, standard JSON). Throws Problem.
Value parse(std::string_view text);

// The text in double quotes, escaped as far as JSON demands.
std::string quote(std::string_view text);

// True for well-formed UTF-8.
bool is_utf8(std::string_view text);

}  // namespace switch_sim::json

#endif  // SIMULATOR_FABRIC_JSON_H

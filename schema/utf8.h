// UTF-8 one code point at a time.
#ifndef SCHEMA_UTF8_H_
#define SCHEMA_UTF8_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace cim::schema {

struct CodePoint {
  char32_t value = 0;
  std::size_t length = 0;  ///< bytes; 0: the bytes are not UTF-8
};

/// The code point at the start of `text`, which is not empty. Overlong forms, surrogates and values
/// above U+10FFFF are not UTF-8.
CodePoint first_code_point(std::string_view text);

void append_utf8(std::string& out, char32_t code_point);

/// "U+00E9".
std::string code_point_name(char32_t code_point);

}  // namespace cim::schema

#endif  // SCHEMA_UTF8_H_

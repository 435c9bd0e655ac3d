// A name that joins its parts with "_", split in another way than the library's readers do.
#ifndef FUZZ_SPLIT_NAME_H
#define FUZZ_SPLIT_NAME_H

#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

namespace fuzz {

// The parts of the name's first `most` characters that are not empty.
inline std::vector<std::string> split_name(const std::string& name, std::size_t most) {
  std::vector<std::string> parts;
  std::string part;
  for (const char c : name.substr(0, most) + "_") {
    if (c != '_') {
      part += c;
    } else if (!part.empty()) {
      parts.push_back(part);
      part.clear();
    }
  }
  return parts;
}

inline int32_t number_of(const std::string& part) {
  return static_cast<int32_t>(std::strtol(part.c_str(), nullptr, 10));
}

}  // namespace fuzz

#endif  // FUZZ_SPLIT_NAME_H

// The tree's own source files, for tests that read them.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace repository {

namespace fs = std::filesystem;

inline fs::path root() {
  return CIM_SOURCE_DIR;
}

inline std::string read(const fs::path& file) {
  std::ifstream in(file);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

inline std::vector<std::string> lines(const fs::path& file) {
  std::ifstream in(file);
  std::vector<std::string> result;
  for (std::string line; std::getline(in, line);)
    result.push_back(line);
  return result;
}

// C and C++ sources and headers below a folder of the tree; empty where there is no such folder.
inline std::vector<fs::path> sources_below(const std::string& folder) {
  std::vector<fs::path> result;
  if (!fs::exists(root() / folder)) return result;
  for (const auto& entry : fs::recursive_directory_iterator(root() / folder)) {
    const auto extension = entry.path().extension();
    if (extension == ".cc" || extension == ".c" || extension == ".h")
      result.push_back(entry.path());
  }
  return result;
}

}  // namespace repository

// What the library offers and what it asks for, read off the built library.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::vector<std::string> run(const std::string& command) {
  std::vector<std::string> lines;
  FILE* pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) return lines;
  char line[4096];
  while (std::fgets(line, sizeof line, pipe) != nullptr) {
    std::string text = line;
    while (!text.empty() && text.back() == '\n')
      text.pop_back();
    lines.push_back(text);
  }
  EXPECT_EQ(pclose(pipe), 0) << command;
  return lines;
}

std::string without_inline_namespace(std::string name) {
  const std::string inline_namespace = "vexor_compat::";
  for (size_t at; (at = name.find(inline_namespace)) != std::string::npos;)
    name.erase(at, inline_namespace.size());
  return name;
}

// "T name", "D name": kind and demangled name of every exported symbol.
std::set<std::string> exported() {
  std::set<std::string> names;
  for (const std::string& line :
       run(std::string(CIM_NM) + " -D -C --defined-only " + CIM_UTILS_LIBRARY)) {
    std::smatch match;
    static const std::regex symbol("[0-9a-f]+ (\\w) (.*)");
    if (!std::regex_match(line, match, symbol)) continue;
    std::string name = without_inline_namespace(match[2]);
    const auto version = name.find("@@");
    if (version != std::string::npos) name.erase(version);
    if (match[1] == "A") continue;  // the version itself
    const bool data = match[1] == "D" || match[1] == "B" || match[1] == "R";
    names.insert((data ? "data " : "") + name);
  }
  return names;
}

constexpr const char* kFamily = "\tfamily";

// The lines of the list, with their marks.
std::vector<std::string> lines() {
  std::vector<std::string> result;
  std::ifstream in(std::string(CIM_SOURCE_DIR) + "/tests/exports/public_names.txt");
  for (std::string line; std::getline(in, line);)
    if (!line.empty() && line[0] != '#') result.push_back(line);
  return result;
}

std::vector<std::string> listed() {
  std::vector<std::string> names = lines();
  for (std::string& name : names)
    name.erase(std::min(name.find('\t'), name.size()));
  return names;
}

// What the names of a family begin with: the class of a builder, or the C++ class of a constructor.
std::string family_of(const std::string& name) {
  for (const char* operation : {"_build_", "_fill_"}) {
    const auto at = name.find(operation);
    if (at != std::string::npos) return name.substr(0, at);
  }
  const auto at = name.find("::");
  return at != std::string::npos ? name.substr(0, at + 2) : name;
}

std::string without_class(const std::string& name) {
  return name.starts_with("ProviderUtil::") ? name.substr(std::strlen("ProviderUtil::")) : name;
}

TEST(Exports, AMarkedNameCompletesAFamilyOfPublishedNames) {
  std::vector<std::string> published;
  std::vector<std::string> marked;
  for (const std::string& line : lines()) {
    if (line.find('\t') == std::string::npos) {
      published.push_back(without_class(line));
    } else {
      ASSERT_TRUE(line.ends_with(kFamily)) << line;
      marked.push_back(without_class(line.substr(0, line.find('\t'))));
    }
  }
  EXPECT_FALSE(marked.empty());
  for (const std::string& name : marked) {
    const std::string family = family_of(name);
    EXPECT_TRUE(std::any_of(published.begin(), published.end(), [&](const std::string& other) {
      return family_of(other) == family;
    })) << name;
  }
}

TEST(Exports, AreExactlyThePublicNames) {
  const std::vector<std::string> list = listed();
  const std::set<std::string> expected(list.begin(), list.end());
  EXPECT_EQ(expected.size(), list.size()) << "a name is listed twice";
  const std::set<std::string> actual = exported();
  EXPECT_FALSE(actual.empty());
  for (const std::string& name : expected)
    EXPECT_TRUE(actual.contains(name)) << "missing: " << name;
  for (const std::string& name : actual)
    EXPECT_TRUE(expected.contains(name)) << "not public: " << name;
}

TEST(Exports, EveryDeclaredNameIsExported) {
  static const std::regex declaration(
      "CIM_UTILS_EXPORT\\s+(?:extern\\s+)?[^;(]*?(\\w+)\\s*[;(\\[]");
  const std::set<std::string> names = exported();
  int found = 0;
  for (const auto& header :
       fs::directory_iterator(std::string(CIM_SOURCE_DIR) + "/include/cim_utils")) {
    std::ifstream in(header.path());
    std::ostringstream buffer;
    buffer << in.rdbuf();
    const std::string text = buffer.str();
    for (std::sregex_iterator match(text.begin(), text.end(), declaration), end; match != end;
         ++match) {
      const std::string name = (*match)[1];
      if (name == "__attribute__") continue;  // the macro's own definition
      if (text.compare((*match).position() - 6, 6, "class ") == 0) continue;
      ++found;
      bool known = names.contains(name) || names.contains("data " + name);
      for (const std::string& candidate : names)
        known = known || candidate.starts_with(name + "(");
      EXPECT_TRUE(known) << header.path() << " declares " << name;
    }
  }
  EXPECT_GT(found, 20);
}

TEST(Exports, EveryPublicCNameResolves) {
  // Lazily: the platform's functions stay undefined in this process.
  void* library = dlopen(CIM_UTILS_LIBRARY, RTLD_LAZY | RTLD_LOCAL);
  ASSERT_NE(library, nullptr) << dlerror();
  for (std::string name : listed()) {
    if (name.starts_with("data ")) name.erase(0, 5);
    if (name.find(':') != std::string::npos || name.find('(') != std::string::npos) continue;
    EXPECT_NE(dlsym(library, name.c_str()), nullptr) << name;
  }
}

std::set<std::string> platform_functions() {
  static const std::regex prototype("^[a-z_][\\w ]*[ *]+(\\w+)\\(");
  std::set<std::string> names;
  for (const auto& header : fs::directory_iterator(std::string(CIM_SOURCE_DIR) +
                                                   "/interfaces/platform/switch_platform")) {
    std::ifstream in(header.path());
    for (std::string line; std::getline(in, line);) {
      std::smatch match;
      if (std::regex_search(line, match, prototype)) names.insert(match[1]);
    }
  }
  return names;
}

TEST(Imports, ThePlatformHas91Functions) {
  EXPECT_EQ(platform_functions().size(), 91u);
}

TEST(Imports, AreThePlatformTheSystemAndTheNamedGlibFunctionsOnly) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizers' runtime offers the C library's functions without their versions";
#endif
  static const std::set<std::string> glib = {
      "g_hash_table_new",     "g_hash_table_insert", "g_hash_table_lookup", "g_hash_table_foreach",
      "g_hash_table_destroy", "g_str_hash",          "g_str_equal",         "g_slist_append",
      "g_slist_prepend",      "g_slist_length",      "g_slist_nth_data",    "g_slist_foreach",
      "g_slist_free"};
  static const std::regex system(
      ".*@(GLIBC|GLIBCXX|CXXABI|GCC)_.*|_ITM_.*|__gmon_start__|__(asan|ubsan|lsan|sanitizer)_.*");
  const std::set<std::string> platform = platform_functions();
  for (const std::string& line :
       run(std::string(CIM_NM) + " -D -C --undefined-only " + CIM_UTILS_LIBRARY)) {
    const auto at = line.find_first_not_of(' ');
    const std::string name = line.substr(at + 2);
    const bool fine = std::regex_match(name, system) || platform.contains(name) ||
                      glib.contains(name) || name.find("Pegasus::") != std::string::npos;
    EXPECT_TRUE(fine) << name;
  }
}

TEST(Imports, OnlyTheAgreedWaysToAskTheSystem) {
  static const std::set<std::string> other_ways = {"getaddrinfo",  "raise",         "__sprintf_chk",
                                                   "__memcpy_chk", "__fprintf_chk", "__printf_chk"};
  for (const std::string& line :
       run(std::string(CIM_NM) + " -D --undefined-only " + CIM_UTILS_LIBRARY)) {
    std::string name = line.substr(line.find_first_not_of(' ') + 2);
    name = name.substr(0, name.find('@'));
    EXPECT_FALSE(other_ways.contains(name)) << name;
  }
}

}  // namespace

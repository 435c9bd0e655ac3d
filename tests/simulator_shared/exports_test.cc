// The simulated platform as the shared library that programs link.
#include <switch_platform/mts.h>

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include "simulator/control/control.h"

namespace {

std::string read(const std::filesystem::path& path) {
  std::stringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

// A header without comments and preprocessor lines.
std::string declarations_of(const std::filesystem::path& path) {
  std::string text = read(path);
  for (size_t start; (start = text.find("/*")) != std::string::npos;) {
    text.erase(start, text.find("*/", start) + 2 - start);
  }
  std::string declarations;
  std::stringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with('#')) declarations += line + '\n';
  }
  return declarations;
}

bool is_of_name(char character) {
  return isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
}

// Every function that a header of interfaces/platform declares: the name before the first
// parenthesis of a statement.
std::set<std::string> declared_functions() {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(
           std::string(CIM_SOURCE_DIR) + "/interfaces/platform/switch_platform")) {
    std::stringstream statements(declarations_of(entry.path()));
    for (std::string statement; std::getline(statements, statement, ';');) {
      const size_t end = statement.find('(');
      if (end == std::string::npos) continue;
      size_t start = end;
      while (start > 0 && is_of_name(statement[start - 1]))
        --start;
      names.insert(statement.substr(start, end - start));
    }
  }
  return names;
}

// What `nm` shows as defined and exported, without C++ names.
std::set<std::string> exported_functions() {
  std::set<std::string> names;
  FILE* nm = popen("nm -D --defined-only " SWITCH_SIM_PATH, "r");
  char line[4096];
  while (fgets(line, sizeof line, nm) != nullptr) {
    std::stringstream words(line);
    std::string address, kind, name;
    words >> address >> kind >> name;
    if (!name.starts_with("_Z")) names.insert(name);
  }
  pclose(nm);
  return names;
}

TEST(SharedLibrary, EveryDeclaredPlatformFunctionIsExported) {
  const auto declared = declared_functions();
  EXPECT_EQ(91U, declared.size());
  void* library = dlopen(SWITCH_SIM_PATH, RTLD_NOW);
  ASSERT_NE(nullptr, library) << dlerror();
  for (const auto& name : declared)
    EXPECT_NE(nullptr, dlsym(library, name.c_str())) << name;
  dlclose(library);
}

TEST(SharedLibrary, NoOtherCFunctionIsExported) {
  EXPECT_EQ(declared_functions(), exported_functions());
}

TEST(SharedLibrary, OnlyTheControlInterfaceIsExportedInCpp) {
  FILE* nm = popen("nm -DC --defined-only " SWITCH_SIM_PATH, "r");
  char line[4096];
  size_t count = 0;
  while (fgets(line, sizeof line, nm) != nullptr) {
    const std::string text(line);
    if (text.find('(') == std::string::npos) continue;
    EXPECT_NE(std::string::npos, text.find("switch_sim::control::")) << text;
    ++count;
  }
  pclose(nm);
  EXPECT_GE(count, 14U);
}

TEST(SharedLibrary, TheControlInterfaceActsOnTheExportedFunctions) {
  switch_sim::control::reset();
  const cim_mts_bind_opts opts = {1, 0, 1024, 0, 0};
  const int32_t q = mts_bind(1, -1, &opts, "test");
  void* reply = nullptr;
  int32_t length = 0;
  ASSERT_EQ(0, cmi_req_resp(125, 1, nullptr, &reply, &length, 0, 0, 15, q, 4));
  EXPECT_EQ(2, static_cast<const uint8_t*>(reply)[3]);
  free(reply);

  auto fabric = switch_sim::control::fabric();
  fabric.vsans.pop_back();
  ASSERT_EQ(std::nullopt, switch_sim::control::install(fabric));
  length = 0;
  ASSERT_EQ(0, cmi_req_resp(125, 1, nullptr, &reply, &length, 0, 0, 15, q, 4));
  EXPECT_EQ(1, static_cast<const uint8_t*>(reply)[3]);
  free(reply);
  EXPECT_EQ(2U, switch_sim::control::exchange_count());
  EXPECT_EQ(1, switch_sim::control::outstanding().queues);
  mts_unbind(q, 0);
}

}  // namespace

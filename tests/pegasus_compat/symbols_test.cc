// What the library exports and imports, as the dynamic linker sees it.

#include <cxxabi.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

struct Symbol {
  char kind;  // as nm shows it
  std::string mangled;
  std::string name;
};

std::string demangled(const std::string& mangled) {
  int status = 0;
  const std::unique_ptr<char, decltype(&std::free)> name(
      abi::__cxa_demangle(mangled.c_str(), nullptr, nullptr, &status), &std::free);
  return status == 0 ? name.get() : mangled;
}

// The dynamic symbols of a library.
std::vector<Symbol> symbolsOf(const char* library) {
  const std::string command = std::string(PEGASUS_TEST_NM) + " -D --no-demangle '" + library + "'";
  std::vector<Symbol> symbols;
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), &pclose);
  if (pipe == nullptr) return symbols;
  std::array<char, 65536> line{};
  while (std::fgets(line.data(), line.size(), pipe.get()) != nullptr) {
    std::istringstream words(line.data());
    std::vector<std::string> parts;
    for (std::string word; words >> word;)
      parts.push_back(word);
    if (parts.size() < 2) continue;
    const std::string mangled = parts.back().substr(0, parts.back().find('@'));
    symbols.push_back({parts[parts.size() - 2][0], mangled, demangled(mangled)});
  }
  return symbols;
}

bool isImport(const Symbol& symbol) {
  return symbol.kind == 'U' || symbol.kind == 'w';
}

// Whether the name speaks of Pegasus::X other than Pegasus::vexor_compat::X.
bool namesPlainPegasus(const std::string& name) {
  const std::string pegasus = "Pegasus::";
  const std::string ours = "vexor_compat::";
  for (size_t at = name.find(pegasus); at != std::string::npos;
       at = name.find(pegasus, at + pegasus.size())) {
    if (name.compare(at + pegasus.size(), ours.size(), ours) != 0) return true;
  }
  return false;
}

TEST(Symbols, TheCheckKnowsAPlainName) {
  EXPECT_TRUE(namesPlainPegasus("Pegasus::String::String(char const*)"));
  EXPECT_TRUE(namesPlainPegasus("Pegasus::vexor_compat::f(Pegasus::String const&)"));
  EXPECT_FALSE(namesPlainPegasus("Pegasus::vexor_compat::f(Pegasus::vexor_compat::String)"));
}

TEST(Symbols, TheDecoyHasPlainNames) {
  int plain = 0;
  for (const Symbol& symbol : symbolsOf(PEGASUS_DECOY))
    plain += namesPlainPegasus(symbol.name);
  EXPECT_GT(plain, 20);
}

TEST(Symbols, NoneIsOfThePlainNamespace) {
  const std::vector<Symbol> symbols = symbolsOf(PEGASUS_LIBRARY);
  ASSERT_GT(symbols.size(), 500U);
  for (const Symbol& symbol : symbols)
    EXPECT_FALSE(namesPlainPegasus(symbol.name)) << symbol.name;
}

TEST(Symbols, OnlyNamesOfOurNamespaceAreExported) {
  for (const Symbol& symbol : symbolsOf(PEGASUS_LIBRARY)) {
    if (isImport(symbol)) continue;
    EXPECT_NE(symbol.mangled.find("7Pegasus12vexor_compat"), std::string::npos) << symbol.name;
    EXPECT_NE(symbol.name.find("Pegasus::vexor_compat::"), std::string::npos) << symbol.name;
  }
}

// The dynamic linker never unloads a library that has one.
TEST(Symbols, NoneIsUniqueInTheProcess) {
  for (const Symbol& symbol : symbolsOf(PEGASUS_LIBRARY)) {
    EXPECT_NE(symbol.kind, 'u') << symbol.name;
  }
}

TEST(Symbols, ArrayExistsForItsElementTypesAndNoOthers) {
  std::set<std::string> types;
  for (const Symbol& symbol : symbolsOf(PEGASUS_LIBRARY)) {
    const std::string constructor = "Pegasus::vexor_compat::Array<";
    const size_t end = symbol.name.find(">::Array()");
    if (isImport(symbol) || end == std::string::npos) continue;
    ASSERT_EQ(symbol.name.rfind(constructor, 0), 0U) << symbol.name;
    std::string type = symbol.name.substr(constructor.size(), end - constructor.size());
    const std::string ours = "Pegasus::vexor_compat::";
    if (type.rfind(ours, 0) == 0) type = type.substr(ours.size());
    types.insert(type);
  }
  const std::set<std::string> expected = {"bool",
                                          "char",
                                          "unsigned char",
                                          "signed char",
                                          "unsigned short",
                                          "short",
                                          "unsigned int",
                                          "int",
                                          "unsigned long long",
                                          "long long",
                                          "float",
                                          "double",
                                          "Char16",
                                          "String",
                                          "CIMDateTime",
                                          "CIMName",
                                          "CIMNamespaceName",
                                          "CIMObjectPath",
                                          "CIMKeyBinding",
                                          "CIMValue",
                                          "CIMProperty",
                                          "CIMQualifier",
                                          "CIMQualifierDecl",
                                          "CIMParameter",
                                          "CIMParamValue",
                                          "CIMMethod",
                                          "CIMClass",
                                          "CIMInstance",
                                          "CIMObject"};
  EXPECT_EQ(types, expected);
}

}  // namespace

// Texts that no person writes: they must end in errors, quickly and within bounded memory.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "schema/repository.h"

namespace cim::schema {
namespace {

std::string repeated(std::string_view piece, std::size_t times) {
  std::string text;
  text.reserve(piece.size() * times);
  for (std::size_t i = 0; i < times; ++i)
    text += piece;
  return text;
}

/// Reads and adds; the first error, "" when there is none.
std::string first_error(std::string_view text) {
  Repository repository;
  const std::vector<Diagnostic> errors = repository.add(read_mof_text(text, "t.mof"));
  return errors.empty() ? "" : errors[0].text();
}

TEST(HostileMof, Deep_nesting_does_not_overflow_the_stack) {
  constexpr std::size_t kDepth = 200'000;
  EXPECT_EQ(first_error(repeated("{", kDepth)),
            "t.mof:1:1: expected 'class', 'instance', 'qualifier' or '#pragma', found '{'");
  EXPECT_EQ(first_error("class A { uint8 a[] = " + repeated("{", kDepth)),
            "t.mof:1:24: expected a value for the default of property a, found '{'");
  EXPECT_EQ(first_error(repeated("[", kDepth)),
            "t.mof:1:2: expected the name of a qualifier, found '['");
  EXPECT_EQ(first_error("class A { uint32 a(" + repeated("(", kDepth)),
            "t.mof:1:20: expected the type of a parameter of method a, found '('");
}

TEST(HostileMof, Endless_comments_strings_and_names_are_errors) {
  EXPECT_EQ(first_error("/*" + repeated("/ * ", 1'000'000)), "t.mof:1:1: comment is not closed");
  EXPECT_EQ(first_error("\"" + repeated("a", 1'000'000)),
            "t.mof:1:1: string is not closed before the end of the line");
  EXPECT_EQ(first_error("class " + repeated("a", 1'000'000) + " { };"),
            "t.mof:1:7: name of more than 256 characters");
  EXPECT_EQ(first_error("class $" + repeated("a", 1000) + " { };"),
            "t.mof:1:7: name of more than 256 characters");
  EXPECT_EQ(first_error("\"" + repeated("\\", 100'001)),
            "t.mof:1:1: string is not closed before the end of the line");
}

TEST(HostileMof, Long_lists_are_errors) {
  EXPECT_EQ(first_error("[" + repeated("A,", 256) + "A] class B { };"),
            "t.mof:1:514: more than 256 qualifiers in one list");
  EXPECT_EQ(first_error("class B { uint8 m(" + repeated("uint8 p,", 256) + "uint8 p); };"),
            "t.mof:1:2073: more than 256 parameters of method m");
}

TEST(HostileMof, A_name_of_256_characters_is_allowed) {
  EXPECT_EQ(first_error("[X] class " + repeated("a", 256) + " { };"),
            "t.mof:1:2: unknown qualifier 'X' on class " + repeated("a", 256));
}

TEST(HostileMof, Huge_numbers_are_errors) {
  EXPECT_EQ(first_error("class A { uint8 a = " + repeated("9", 1'000'000) + "; };"),
            "t.mof:1:21: number '99999999999999999999999999999...' does not fit 64 bits");
  EXPECT_EQ(first_error("class A { real64 a = 1." + repeated("9", 1'000'000) + "e; };"),
            "t.mof:1:22: malformed number '1.999999999999999999999999999...'");
}

TEST(HostileMof, Many_errors_stop_the_reading) {
  const Document document = read_mof_text(repeated("x;", 200'000), "t.mof");
  EXPECT_EQ(document.errors.size(), 51U);
  EXPECT_EQ(document.errors.back().message, "too many errors: reading stopped here");
  const Document in_class = read_mof_text("class A {" + repeated("x;", 200'000), "t.mof");
  EXPECT_EQ(in_class.errors.size(), 51U);
  const Document in_instance = read_mof_text("instance of A {" + repeated("x;", 100'000), "t.mof");
  EXPECT_EQ(in_instance.errors.size(), 51U);
}

TEST(HostileMof, Null_bytes_are_errors_wherever_they_stand) {
  constexpr std::string_view kText = "class A { [Key] string a = \"b\"; };";
  for (std::size_t i = 0; i <= kText.size(); ++i) {
    std::string text(kText);
    text.insert(i, 1, '\0');
    EXPECT_NE(first_error(text), "") << i;
  }
}

TEST(HostileMof, Every_beginning_of_a_text_is_read_without_a_crash) {
  std::ifstream in(CIM_SOURCE_DIR "/mof/vexor_switch.mof");
  const std::string text{std::istreambuf_iterator<char>(in), {}};
  ASSERT_GT(text.size(), 1000U);
  ReadOptions options;
  options.read_file = [](const std::string&, std::size_t) -> FileContent { return {"", {}}; };
  std::size_t classes = 0;
  for (std::size_t at = text.find("\nclass "); at != std::string::npos;
       at = text.find("\nclass ", at + 1))
    ++classes;
  ASSERT_GT(classes, 2U);
  for (std::size_t length = 0; length < text.size(); ++length) {
    const Document document =
        read_mof_text(std::string_view(text).substr(0, length), "t.mof", options);
    EXPECT_LE(document.classes.size(), classes) << length;
    EXPECT_LE(document.errors.size(), 2U) << length;
  }
}

TEST(HostileMof, Changed_bytes_are_read_without_a_crash) {
  std::ifstream in(CIM_SOURCE_DIR "/mof/cim_core.mof");
  std::string text{std::istreambuf_iterator<char>(in), {}};
  text.erase(text.find("#pragma"), std::string_view("#pragma").size());
  std::mt19937 random(20260131);
  for (int round = 0; round < 300; ++round) {
    std::string changed = text;
    for (int i = 0; i < 8; ++i) {
      changed[random() % changed.size()] = static_cast<char>(random() % 256);
    }
    Repository repository;
    repository.add(read_mof_text(changed, "t.mof"));
    EXPECT_LE(repository.all().size(), 40U);
  }
}

constexpr std::string_view kKey = "Qualifier Key : boolean, Scope(property);";

TEST(HostileMof, A_long_inheritance_chain_is_an_error) {
  std::string text(kKey);
  for (int i = 0; i < 20'000; ++i) {
    text += "class A" + std::to_string(i) + " : A" + std::to_string(i + 1) + " { };\n";
  }
  text += "class A20000 { [Key] string a; };\n";
  EXPECT_EQ(first_error(text).substr(0, 80),
            "t.mof:19937:7: class A19936 has more than 63 superclasses above it");
}

TEST(HostileMof, An_inheritance_chain_of_64_classes_is_allowed) {
  std::string text(kKey);
  for (int i = 0; i < 63; ++i) {
    text += "class A" + std::to_string(i) + " : A" + std::to_string(i + 1) + " { };\n";
  }
  text += "class A63 { [Key] string a; };\n";
  EXPECT_EQ(first_error(text), "");
}

TEST(HostileMof, A_long_inheritance_cycle_is_an_error) {
  std::string text;
  for (int i = 0; i < 20'000; ++i) {
    text += "class A" + std::to_string(i) + " : A" + std::to_string((i + 1) % 20'000) + " { };\n";
  }
  EXPECT_EQ(first_error(text),
            "t.mof:1:12: class A0 is its own superclass (A0 : A1 : A2 : A3 : A4 : A5 : A6 : A7 : "
            "... : A0)");
}

TEST(HostileMof, Inherited_properties_that_multiply_are_an_error) {
  std::string text(kKey);
  text += "class A { [Key] string k;\n";
  for (int i = 0; i < 2000; ++i)
    text += "uint8 p" + std::to_string(i) + ";";
  text += "};\n";
  for (int i = 0; i < 2000; ++i)
    text += "class A" + std::to_string(i) + " : A { };\n";
  EXPECT_EQ(
      first_error(text),
      "t.mof:501:7: the classes have more than 1000000 properties and methods, inherited ones "
      "counted");
}

TEST(HostileMof, Many_wrong_names_are_reported_with_a_limit) {
  std::string text;
  for (int i = 0; i < 5000; ++i)
    text += "[Kay] class A" + std::to_string(i) + " : Missing { };\n";
  Repository repository;
  EXPECT_EQ(repository.add(read_mof_text(text)).size(), 100U);
}

TEST(HostileMof, Include_cycles_of_every_length_are_errors) {
  for (int length = 1; length <= 16; ++length) {
    ReadOptions options;
    options.read_file = [length](const std::string& path, std::size_t) -> FileContent {
      const int next = (std::stoi(path) + 1) % length;
      return {"#pragma include (\"" + std::to_string(next) + "\")", {}};
    };
    EXPECT_EQ(read_mof_file("0", options).error_text(),
              std::to_string(length - 1) + ":1:18: included file '0' includes itself\n");
  }
}

TEST(HostileMof, Includes_that_never_end_are_an_error) {
  ReadOptions options;
  options.read_file = [](const std::string& path, std::size_t) -> FileContent {
    return {"#pragma include (\"" + path + "x\")", {}};
  };
  EXPECT_EQ(read_mof_file("x", options).error_text(),
            "xxxxxxxxxxxxxxxx:1:18: included file 'xxxxxxxxxxxxxxxxx' is nested too deeply: at "
            "most 16 files may include each other\n");
}

TEST(HostileMof, Includes_that_multiply_are_an_error) {
  ReadOptions options;
  options.read_file = [](const std::string& path, std::size_t) -> FileContent {
    std::string text;
    for (const char* child : {"a", "b", "c", "d"}) {
      text += "#pragma include (\"" + path + child + "\")\n";
    }
    return {text, {}};
  };
  const Document document = read_mof_file("x", options);
  EXPECT_FALSE(document.ok());
  EXPECT_LE(document.files.size(), 1000U);
  EXPECT_LE(document.errors.size(), 51U);
}

TEST(HostileMof, A_folder_that_links_to_itself_does_not_hide_a_cycle) {
  const std::filesystem::path folder =
      std::filesystem::path(testing::TempDir()) / "hostile_mof_links";
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  std::filesystem::create_directory_symlink(folder, folder / "self");
  const std::string file = (folder / "a.mof").string();
  std::ofstream(file) << "#pragma include (\"self/a.mof\")\n";
  EXPECT_EQ(
      read_mof_file(file).error_text(),
      file + ":1:18: included file '" + (folder / "self/a.mof").string() + "' includes itself\n");
  std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace cim::schema

// Runs vexor-cim as a person would, and gives back what it printed.
#ifndef TESTS_TOOLS_PROGRAM_H_
#define TESTS_TOOLS_PROGRAM_H_

#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace program {

namespace fs = std::filesystem;

inline std::string file_text(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  EXPECT_TRUE(in.good()) << file;
  return {std::istreambuf_iterator<char>(in), {}};
}

/// A folder of its own, removed with all that is in it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (fs::temp_directory_path() / "vexor-cim-XXXXXX").string();
    path_ = mkdtemp(pattern.data());
  }
  ~TemporaryFolder() { fs::remove_all(path_); }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const fs::path& path() const { return path_; }
  fs::path write(const std::string& name, const std::string& text) const {
    std::ofstream(path_ / name, std::ios::binary) << text;
    return path_ / name;
  }

 private:
  fs::path path_;
};

struct Outcome {
  int status = -1;  ///< exit status; -1 when the program ended by a signal
  std::string out;
  std::string err;
};

/// What the program does with its standard output.
enum class Output { kept, to_full_device, closed };

inline Outcome run_file(const std::string& file, std::vector<std::string> arguments,
                        Output output = Output::kept) {
  const TemporaryFolder folder;
  const std::string out = (folder.path() / "out").string();
  const std::string err = (folder.path() / "err").string();
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  const int write = O_WRONLY | O_CREAT | O_TRUNC;
  if (output == Output::closed) {
    posix_spawn_file_actions_addclose(&actions, STDOUT_FILENO);
  } else {
    const char* name = output == Output::to_full_device ? "/dev/full" : out.c_str();
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, name, write, 0600);
  }
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, err.c_str(), write, 0600);
  arguments.insert(arguments.begin(), file);
  std::vector<char*> argv;
  for (std::string& argument : arguments)
    argv.push_back(argument.data());
  argv.push_back(nullptr);
  pid_t child = 0;
  EXPECT_EQ(posix_spawn(&child, file.c_str(), &actions, nullptr, argv.data(), environ), 0) << file;
  posix_spawn_file_actions_destroy(&actions);
  int status = 0;
  waitpid(child, &status, 0);
  Outcome outcome;
  if (WIFEXITED(status)) outcome.status = WEXITSTATUS(status);
  if (output == Output::kept) outcome.out = file_text(out);
  outcome.err = file_text(err);
  return outcome;
}

inline Outcome run(std::vector<std::string> arguments, Output output = Output::kept) {
  return run_file(VEXOR_CIM, std::move(arguments), output);
}

/// Object paths made by the library carry the name of the machine: it reads HOST here.
inline std::string without_host_name(std::string text) {
  char name[256] = {};
  gethostname(name, sizeof name - 1);
  const std::string host = std::string("//") + name + "/";
  for (std::size_t at = text.find(host); at != std::string::npos; at = text.find(host, at))
    text.replace(at, host.size(), "//HOST/");
  return text;
}

inline std::string screen(const std::string& name) {
  return file_text(fs::path(CIM_SOURCE_DIR) / "tests" / "tools" / "screens" / name);
}

/// Nothing outside of the tests decides what the program does.
class ProgramTest : public ::testing::Test {
 protected:
  ProgramTest() {
    for (const char* name :
         {"VEXOR_MOF", "VEXOR_PROVIDERS", "SWITCH_SIM_FABRIC", "SWITCH_SIM_STATE",
          "SWITCH_SIM_SOCKET", "SWITCH_SIM_TRACE", "SWITCH_SIM_REPLAY"})
      unsetenv(name);
  }

  /// The whole screen of a run that succeeds.
  static void expect_screen(const std::string& name, std::vector<std::string> arguments) {
    const Outcome outcome = run(std::move(arguments));
    EXPECT_EQ(without_host_name(outcome.out), screen(name));
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.status, 0);
  }

  /// A run that fails prints one line, and no results.
  static void expect_error(int status, const std::string& line,
                           std::vector<std::string> arguments) {
    const Outcome outcome = run(std::move(arguments));
    EXPECT_EQ(outcome.err, "vexor-cim: " + line + "\n");
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.status, status);
  }
};

}  // namespace program

#endif  // TESTS_TOOLS_PROGRAM_H_

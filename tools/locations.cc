#include "tools/locations.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace vexor::tools {
namespace {

namespace fs = std::filesystem;

fs::path program_folder() {
  std::error_code error;
  const fs::path program = fs::read_symlink("/proc/self/exe", error);
  return error ? fs::path() : program.parent_path();
}

bool in_build_tree() {
  std::error_code error;
  const bool same = fs::equivalent(program_folder(), VEXOR_BUILD_BIN, error);
  return same && !error;
}

/// The value of an environment variable; empty when it is not set.
std::string environment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

/// A file that a person named: it must be there.
Location named(fs::path path, const std::string& by) {
  std::error_code error;
  if (fs::is_directory(path, error) && by != "--providers" && by != "VEXOR_PROVIDERS")
    path /= "vexor.mof";
  if (fs::exists(path, error) && !fs::is_directory(path, error)) return {path, {}};
  return {{}, by + ": there is no file " + path.string()};
}

Location find(const std::string& given, const char* option, const char* variable,
              const fs::path& in_tree, const fs::path& from_program, const char* what) {
  if (!given.empty()) return named(given, option);
  if (const std::string value = environment(variable); !value.empty())
    return named(value, variable);
  const fs::path path =
      in_build_tree() ? in_tree : (program_folder() / from_program).lexically_normal();
  std::error_code error;
  if (fs::exists(path, error)) return {path, {}};
  return {{},
          std::string(what) + " are not where they belong: there is no " + path.string() + " (" +
              option + " or " + variable + " says where they are)"};
}

}  // namespace

Location find_mof(const std::string& given) {
  return find(given, "--mof", "VEXOR_MOF", VEXOR_BUILD_MOF,
              fs::path(VEXOR_DATA_FROM_BIN) / "vexor" / "mof" / "vexor.mof",
              "the class definitions");
}

Location find_providers(const std::string& given) {
  return find(given, "--providers", "VEXOR_PROVIDERS", VEXOR_BUILD_PROVIDERS,
              fs::path(VEXOR_LIB_FROM_BIN) / "libvexor_providers.so", "the providers");
}

}  // namespace vexor::tools

// The command line of vexor-cim.
#ifndef TOOLS_COMMAND_LINE_H_
#define TOOLS_COMMAND_LINE_H_

#include <optional>
#include <string>
#include <vector>

#include "host/object_manager.h"

namespace vexor::tools {

enum class Command {
  classes,
  show_class,
  enumerate,
  get,
  ports,
  modules,
  associators,
  associator_names,
  references,
  reference_names,
  invoke,
  modify,
  create,
  remove,
  fabric,
  serve_switch,
};
enum class Format { table, mof, json };

/// Which simulated fabric answers.
struct PlatformOptions {
  std::optional<std::string> fabric;    ///< a fabric file
  std::optional<std::string> generate;  ///< numbers of the generator
  std::optional<std::string> state;     ///< a file that keeps changes
};

struct Options {
  Command command = Command::classes;
  std::string name_space = "root/cimv2";
  std::string trace_file;
  bool verbose = false;
  std::string mof;        ///< file or folder; empty: look for it
  std::string providers;  ///< library; empty: look for it
  PlatformOptions platform;
  std::string socket;  ///< where a switch is served

  std::string target;  ///< a class name, or the text of an object path
  bool all = false;
  bool names = false;
  std::optional<std::vector<std::string>> properties;
  Format format = Format::table;
  cim::host::AssociationFilter filter;
  std::string method;
  std::vector<std::string> values;  ///< words NAME=VALUE
};

/// What to do: run with `options`, or, when they are missing, print `text` and end with
/// `exit_status`. A text that goes with status 0 is a result, else an error without its line end.
struct Parsed {
  std::optional<Options> options;
  std::string text;
  int exit_status = 0;
};

Parsed parse_command_line(int argc, const char* const* argv);

}  // namespace vexor::tools

#endif  // TOOLS_COMMAND_LINE_H_

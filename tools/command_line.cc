#include "tools/command_line.h"

#include <CLI/CLI.hpp>
#include <map>
#include <sstream>
#include <string_view>

#include "schema/names.h"
#include "tools/exit_status.h"

namespace vexor::tools {
namespace {

constexpr const char* kDescription =
    "vexor-cim asks the CIM providers of a Fibre Channel switch, without a CIM server.\n"
    "It reads the class definitions, loads the provider library into an object manager of its\n"
    "own, and prints what the providers return. The switch is the platform library that the\n"
    "program was built with: as a rule the simulated fabric.";

constexpr const char* kExamples =
    "Examples:\n"
    "  vexor-cim classes                               the classes of the agent\n"
    "  vexor-cim class VEXOR_Vsan                      what a VSAN has: keys, properties, types\n"
    "  vexor-cim enumerate VEXOR_Vsan                  all VSANs, one a line\n"
    "  vexor-cim enumerate VEXOR_Vsan --format json    the same for a program\n"
    "  vexor-cim enumerate VEXOR_Vsan --names          the paths that `get` takes\n"
    "  vexor-cim get 'VEXOR_Vsan.Name=\"2001000DEC0A1B2D\"'\n"
    "  vexor-cim -v enumerate VEXOR_Vsan               with the traces of the library\n"
    "\n"
    "Exit status: 0 success, 1 the operation failed, 2 the command line or an input is wrong.\n"
    "Environment: VEXOR_MOF and VEXOR_PROVIDERS stand for --mof and --providers.\n"
    "Every command has a help of its own: vexor-cim enumerate --help";

constexpr const char* kClassExamples =
    "Examples:\n"
    "  vexor-cim class VEXOR_Vsan\n"
    "  vexor-cim class CIM_AdminDomain       a class that others derive from";

constexpr const char* kEnumerateExamples =
    "Without --properties a table leaves out what says nothing: properties without a value, and\n"
    "CreationClassName, SystemCreationClassName, SystemName, NameFormat, Caption and Description.\n"
    "\n"
    "Examples:\n"
    "  vexor-cim enumerate VEXOR_Vsan\n"
    "  vexor-cim enumerate VEXOR_Vsan --properties VsanId,Status\n"
    "  vexor-cim enumerate VEXOR_ContainedDomain --format mof\n"
    "  vexor-cim enumerate CIM_AdminDomain   VSANs and the fabric: all that derive from it";

constexpr const char* kGetExamples =
    "Examples:\n"
    "  vexor-cim get 'VEXOR_Vsan.Name=\"2001000DEC0A1B2D\"'\n"
    "  vexor-cim get 'VEXOR_Vsan.Name=\"2001000DEC0A1B2D\"' --properties Status --format json";

void add_global_options(CLI::App& app, Options& options) {
  app.add_option("--namespace", options.name_space, "CIM namespace (root/cimv2)")
      ->type_name("NAME");
  app.add_option("--trace", options.trace_file, "write the traces of the library to FILE")
      ->type_name("FILE");
  app.add_flag("-v,--verbose", options.verbose, "show the traces of the library on standard error");
  app.add_option("--mof", options.mof, "class definitions: a MOF file, or a folder with vexor.mof")
      ->type_name("PATH");
  app.add_option("--providers", options.providers, "provider library")->type_name("FILE");
}

/// The names between the commas.
std::vector<std::string> split(const std::string& list) {
  std::vector<std::string> names;
  std::istringstream in(list + ",");
  for (std::string name; std::getline(in, name, ',');) {
    if (name.empty()) throw CLI::ValidationError("--properties", "a name is missing");
    names.push_back(name);
  }
  return names;
}

void add_output_options(CLI::App& command, Options& options) {
  command
      .add_option_function<std::string>(
          "--properties", [&options](const std::string& list) { options.properties = split(list); },
          "only these properties, in this order, separated by commas")
      ->type_name("A,B");
  static const std::map<std::string, Format> kFormats = {
      {"table", Format::table}, {"mof", Format::mof}, {"json", Format::json}};
  command
      .add_option_function<std::string>(
          "--format",
          [&options](const std::string& name) {
            const auto found = kFormats.find(name);
            if (found == kFormats.end()) {
              throw CLI::ValidationError("--format", name + " is not table, mof or json");
            }
            options.format = found->second;
          },
          "table (the default), mof or json")
      ->type_name("FORMAT");
}

Parsed refused(std::string text) {
  return {std::nullopt, std::move(text) + "; vexor-cim --help tells what there is", kBadInput};
}

/// A first word that is no command gets an answer of its own: it is the commonest slip.
std::string unknown_command(const CLI::App& app, int argc, const char* const* argv) {
  std::vector<std::string_view> commands;
  for (const CLI::App* command : app.get_subcommands({}))
    commands.push_back(command->get_name());
  for (int i = 1; i < argc; ++i) {
    const std::string_view word = argv[i];
    if (word.starts_with("-")) return {};
    if (std::find(commands.begin(), commands.end(), word) != commands.end()) return {};
    const std::string_view nearest = cim::schema::nearest_name(word, commands);
    std::string text = "no command " + std::string(word);
    if (!nearest.empty()) text += " (did you mean " + std::string(nearest) + "?)";
    return text;
  }
  return {};
}

std::string one_line(std::string text) {
  while (!text.empty() && text.back() == '\n')
    text.pop_back();
  std::replace(text.begin(), text.end(), '\n', ' ');
  return text;
}

}  // namespace

Parsed parse_command_line(int argc, const char* const* argv) {
  Options options;
  CLI::App app(kDescription, "vexor-cim");
  app.footer(kExamples);
  app.require_subcommand(1);
  app.fallthrough();
  app.set_version_flag("--version", "vexor-cim " VEXOR_VERSION, "print the version");
  app.set_help_flag("-h,--help", "print this help");
  app.get_formatter()->label("SUBCOMMAND", "COMMAND");
  app.get_formatter()->label("REQUIRED", "");
  add_global_options(app, options);

  CLI::App* const classes = app.add_subcommand("classes", "list the classes of the agent");
  classes->footer("");
  classes->add_flag("--all", options.all, "list the classes that they derive from, too");

  CLI::App* const show = app.add_subcommand("class", "print a class as MOF, with what it inherits");
  show->footer(kClassExamples);
  show->add_option("NAME", options.target, "name of a class")->required()->type_name("");

  CLI::App* const enumerate = app.add_subcommand(
      "enumerate", "print the instances of a class and of those derived from it");
  enumerate->footer(kEnumerateExamples);
  enumerate->add_option("CLASS", options.target, "name of a class")->required()->type_name("");
  enumerate->add_flag("--names", options.names, "print the paths of the instances only");
  add_output_options(*enumerate, options);

  CLI::App* const get = app.add_subcommand("get", "print one instance");
  get->footer(kGetExamples);
  get->add_option("PATH", options.target,
                  "its path, as enumerate --names prints it; the namespace and the key\n"
                  "CreationClassName may be left out")
      ->required()
      ->type_name("");
  add_output_options(*get, options);

  for (CLI::App* command : {classes, show, enumerate, get})
    command->group("Commands");

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& error) {
    if (error.get_exit_code() == 0) {
      std::ostringstream out;
      app.exit(error, out, out);
      return {std::nullopt, out.str(), kSuccess};
    }
    const std::string unknown = unknown_command(app, argc, argv);
    if (!unknown.empty()) return refused(unknown);
    if (app.get_subcommands().empty()) return refused("a command is needed");
    return refused(one_line(error.what()));
  }

  if (show->parsed()) options.command = Command::show_class;
  if (enumerate->parsed()) options.command = Command::enumerate;
  if (get->parsed()) options.command = Command::get;
  if (options.names && options.properties)
    return refused("--names prints paths, which --properties cannot choose from");
  if (options.names && options.format == Format::mof)
    return refused("--names prints paths, which have no MOF form");
  return {std::move(options), {}, kSuccess};
}

}  // namespace vexor::tools

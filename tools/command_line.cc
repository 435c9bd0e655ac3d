#include "tools/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
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
    "  vexor-cim ports                                 the ports and what is plugged in\n"
    "  vexor-cim modules                               the chassis and its modules\n"
    "  vexor-cim get 'VEXOR_Vsan.Name=\"2001000DEC0A1B2D\"'\n"
    "  vexor-cim associators 'VEXOR_Vsan.Name=\"2001000DEC0A1B2D\"'\n"
    "  vexor-cim modify 'VEXOR_FCSwitchSettings.InstanceID=\"2000000DEC0A1B2C\"' "
    "PrincipalPriority=3\n"
    "  vexor-cim invoke 'VEXOR_Vsan.Name=\"2001000DEC0A1B2D\"' RequestStateChange "
    "RequestedState=3\n"
    "  vexor-cim -v enumerate VEXOR_Vsan               with the traces of the library\n";

#if VEXOR_WITH_SIMULATOR
constexpr const char* kSimulatorExamples =
    "  vexor-cim fabric > lab.json                     the simulated fabric, to edit\n"
    "  vexor-cim --fabric lab.json --state lab.state enumerate VEXOR_Vsan\n"
    "  vexor-cim --generate vsans=20,seed=7 enumerate VEXOR_Vsan\n"
    "  vexor-cim switch --socket lab.sock              the switch for several processes\n";
#else
constexpr const char* kSimulatorExamples = "";
#endif

constexpr const char* kStatus =
    "\n"
    "Exit status: 0 success; 1 the operation failed or was refused, or the method returned\n"
    "another number than 0; 2 the command line or an input is wrong.\n"
    "Environment: VEXOR_MOF and VEXOR_PROVIDERS stand for --mof and --providers.\n";

#if VEXOR_WITH_SIMULATOR
constexpr const char* kSimulatorEnvironment =
    "SWITCH_SIM_FABRIC and SWITCH_SIM_STATE stand for --fabric and --state; SWITCH_SIM_SOCKET is\n"
    "the socket of a switch that another process runs.\n";
#else
constexpr const char* kSimulatorEnvironment = "";
#endif

constexpr const char* kEveryHelp =
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

constexpr const char* kPortsExamples =
    "What is plugged into the switch, a line for each of its ports:\n"
    "  mode   E to a switch, F to a device, FL to a loop of devices, eth for Ethernet\n"
    "  state  up, down, disabled by an administrator, or no optics or bad optics in the port\n"
    "  peer   the switch and interface at the other end; or the description of the port and the\n"
    "         WWN of the device there\n"
    "\n"
    "Examples:\n"
    "  vexor-cim ports\n"
    "  vexor-cim enumerate VEXOR_FCPortStatistics      what the ports have counted\n"
    "  vexor-cim modify 'VEXOR_FCPortSettings.InstanceID=\"16842753\"' "
    "RequestedSpeed=1062500000";

constexpr const char* kModulesExamples =
    "What the switch is made of: a line for its chassis, and one for each module.\n"
    "  slot    counted from 1\n"
    "  status  as the switch tells it, some texts cut short: OK, DISABLED, POWEREDDOWN, FAILED "
    "...\n"
    "  ports   how many the module has, of each kind\n"
    "\n"
    "Examples:\n"
    "  vexor-cim modules\n"
    "  vexor-cim enumerate VEXOR_LogicalModule         all that CIM tells of the modules\n"
    "  vexor-cim enumerate VEXOR_PhysicalElement       the physical side of each interface";

constexpr const char* kAssociatorsExamples =
    "Examples:\n"
    "  vexor-cim associators 'VEXOR_Vsan.Name=\"2001000DEC0A1B2D\"'\n"
    "  vexor-cim associators 'VEXOR_AdminDomain.Name=\"2001000DEC0A1B2D\"' --result-class "
    "VEXOR_Vsan\n"
    "  vexor-cim associators 'VEXOR_AdminDomain.Name=\"2001000DEC0A1B2D\"' \\\n"
    "      --assoc-class VEXOR_ContainedDomain --role GroupComponent --format json";

constexpr const char* kAssociatorNamesExamples =
    "Examples:\n"
    "  vexor-cim associator-names 'VEXOR_AdminDomain.Name=\"2001000DEC0A1B2D\"'\n"
    "  vexor-cim associator-names 'VEXOR_Vsan.Name=\"2001000DEC0A1B2D\"' --result-role "
    "GroupComponent";

constexpr const char* kReferencesExamples =
    "Examples:\n"
    "  vexor-cim references 'VEXOR_Vsan.Name=\"2001000DEC0A1B2D\"'\n"
    "  vexor-cim references 'VEXOR_AdminDomain.Name=\"2001000DEC0A1B2D\"' \\\n"
    "      --result-class VEXOR_ContainedDomain --role GroupComponent";

constexpr const char* kReferenceNamesExamples =
    "Examples:\n"
    "  vexor-cim reference-names 'VEXOR_Vsan.Name=\"2001000DEC0A1B2D\"'";

constexpr const char* kInvokeExamples =
    "Prints what the method returned, such as `RequestStateChange returned 0`, then what it gave\n"
    "back, a line for each: NAME = VALUE.\n"
    "The exit status is 1 when it returned another number than 0.\n"
    "A path without keys stands for the class itself, for a static method.\n"
    "Values are as for modify; `vexor-cim class` shows the parameters of a method.\n"
    "\n"
    "Examples:\n"
    "  vexor-cim invoke 'VEXOR_Vsan.Name=\"2001000DEC0A1B2D\"' RequestStateChange "
    "RequestedState=2\n"
    "  vexor-cim invoke 'VEXOR_Vsan.Name=\"2001000DEC0A1B2D\"' RequestStateChange \\\n"
    "      RequestedState=3 TimeoutPeriod=00000000000030.000000:000";

constexpr const char* kModifyExamples =
    "Values have the types of the class: a text stands as it is, a number as 12 or 0x0C, a\n"
    "boolean as true or false, a datetime in its 25 characters, a reference as an object path, an\n"
    "array as {a,b}. Only the named properties are sent. The names and types of a class:\n"
    "vexor-cim class VEXOR_FCSwitchSettings\n"
    "\n"
    "Examples:\n"
    "  vexor-cim modify 'VEXOR_FCSwitchSettings.InstanceID=\"2000000DEC0A1B2C\"' "
    "PrincipalPriority=3\n"
    "  vexor-cim --state lab.state modify 'VEXOR_FCSwitchSettings.InstanceID=\"2000000DEC0A1B2C\"' "
    "\\\n"
    "      PreferredDomainID=12 DomainIDLocked=true        kept for the next run";

constexpr const char* kCreateExamples =
    "Prints the path of what was made. Values are as for modify. A provider that makes no\n"
    "instances of the class refuses: of the classes of the agent, the two associations of zoning\n"
    "can be created. Zone sets, zones and members are made by methods of VEXOR_ZoneService.\n"
    "\n"
    "Example:\n"
    "  vexor-cim create VEXOR_ZoneElementSettingData \\\n"
    "      ManagedElement='VEXOR_Zone.InstanceID=\"1_2_0\"' \\\n"
    "      SettingData='VEXOR_ZoneMemberSettingData.InstanceID=\"1^2^2100001122334401^0\"'";

#if VEXOR_WITH_SIMULATOR
constexpr const char* kFabricExamples =
    "Examples:\n"
    "  vexor-cim fabric > lab.json                       the built-in fabric, to edit\n"
    "  vexor-cim --generate switches=8,seed=7 fabric     eight made-up switches\n"
    "  vexor-cim --state lab.state fabric                what changes have made of it";

constexpr const char* kSwitchExamples =
    "Runs until it is interrupted (SIGINT or SIGTERM). Every process with SWITCH_SIM_SOCKET=PATH\n"
    "in its environment then uses this switch in place of one of its own: another vexor-cim, or "
    "an\n"
    "object manager that runs the providers. Changes are seen by all of them at once. Only the "
    "user\n"
    "who started it can connect.\n"
    "\n"
    "Examples:\n"
    "  vexor-cim --fabric lab.json --state lab.state switch --socket /tmp/lab.sock\n"
    "  SWITCH_SIM_SOCKET=/tmp/lab.sock vexor-cim enumerate VEXOR_Vsan";
#endif

constexpr const char* kDeleteExamples =
    "A provider that deletes no instances of the class refuses: of the classes of the agent, "
    "those\n"
    "of zoning can be deleted.\n"
    "\n"
    "Example:\n"
    "  vexor-cim delete 'VEXOR_Zone.InstanceID=\"1_2_0\"'";

/// An empty text is as a rule a variable of a script that was not set.
CLI::Validator not_empty(const char* what) {
  CLI::Validator check;
  check.operation([what](const std::string& text) {
    return text.empty() ? std::string(what) + " is missing" : std::string();
  });
  return check;
}

const CLI::Validator& file_name() {
  static const CLI::Validator kCheck = not_empty("the name of the file");
  return kCheck;
}

void add_global_options(CLI::App& app, Options& options) {
  app.add_option("--namespace", options.name_space, "CIM namespace (root/cimv2)")
      ->type_name("NAME")
      ->check(not_empty("the name"));
  app.add_option("--trace", options.trace_file, "write the traces of the library to FILE")
      ->type_name("FILE")
      ->check(file_name());
  app.add_flag("-v,--verbose", options.verbose, "show the traces of the library on standard error");
  app.add_option("--mof", options.mof, "class definitions: a MOF file, or a folder with vexor.mof")
      ->type_name("PATH")
      ->check(file_name());
  app.add_option("--providers", options.providers, "provider library")
      ->type_name("FILE")
      ->check(file_name());
}

#if VEXOR_WITH_SIMULATOR
void add_platform_options(CLI::App& app, PlatformOptions& options) {
  app.add_option("--fabric", options.fabric, "answer from the simulated fabric in a fabric file")
      ->type_name("FILE")
      ->check(file_name());
  app.add_option("--generate", options.generate,
                 "answer from a made-up fabric, such as\n"
                 "switches=8,ports=48,vsans=8,devices=200,seed=7")
      ->type_name("NUMBERS");
  app.add_option("--state", options.state,
                 "go on from this file where it exists, and keep every change in it;\n"
                 "without it changes end with the command")
      ->type_name("FILE")
      ->check(file_name());
}
#endif

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

void add_format(CLI::App& command, Options& options, const char* choices) {
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
          choices)
      ->type_name("FORMAT");
}

void add_output_options(CLI::App& command, Options& options) {
  command
      .add_option_function<std::string>(
          "--properties", [&options](const std::string& list) { options.properties = split(list); },
          "only these properties, in this order, separated by commas")
      ->type_name("A,B");
  add_format(command, options, "table (the default), mof or json");
}

void add_path(CLI::App& command, Options& options) {
  command
      .add_option("PATH", options.target,
                  "its path, as enumerate --names prints it; the namespace and the key\n"
                  "CreationClassName may be left out")
      ->required()
      ->type_name("");
}

void add_class(CLI::App& command, const char* name, Options& options) {
  command.add_option(name, options.target, "name of a class")
      ->required()
      ->type_name("")
      ->check(not_empty("the name of the class"));
}

CLI::Option* add_values(CLI::App& command, Options& options, const char* description) {
  return command.add_option("VALUES", options.values, description)->type_name("");
}

/// A command of the program, and what Options::command says when it was given.
struct NamedCommand {
  CLI::App* app;
  Command command;
};

class Commands {
 public:
  explicit Commands(CLI::App& app) : app_(app) {}

  CLI::App& add(Command command, const char* name, const char* description, const char* footer) {
    CLI::App* const added = app_.add_subcommand(name, description);
    added->footer(footer);
    added->group("Commands");
    all_.push_back({added, command});
    return *added;
  }

  Command given() const {
    const auto found = std::find_if(all_.begin(), all_.end(),
                                    [](const NamedCommand& each) { return each.app->parsed(); });
    return found->command;
  }

 private:
  CLI::App& app_;
  std::vector<NamedCommand> all_;
};

void add_class_commands(Commands& commands, Options& options) {
  commands.add(Command::classes, "classes", "list the classes of the agent", "")
      .add_flag("--all", options.all, "list the classes that they derive from, too");
  add_class(commands.add(Command::show_class, "class",
                         "print a class as MOF, with what it inherits", kClassExamples),
            "NAME", options);
}

void add_reading_commands(Commands& commands, Options& options) {
  CLI::App& enumerate = commands.add(Command::enumerate, "enumerate",
                                     "print the instances of a class and of those derived from it",
                                     kEnumerateExamples);
  add_class(enumerate, "CLASS", options);
  enumerate.add_flag("--names", options.names, "print the paths of the instances only");
  add_output_options(enumerate, options);

  commands.add(Command::ports, "ports", "print the ports of the switch and what is plugged in",
               kPortsExamples);
  commands.add(Command::modules, "modules", "print the chassis of the switch and its modules",
               kModulesExamples);

  CLI::App& get = commands.add(Command::get, "get", "print one instance", kGetExamples);
  add_path(get, options);
  add_output_options(get, options);
}

void add_filters(CLI::App& command, cim::host::AssociationFilter& filter, bool of_associators) {
  if (of_associators) {
    command.add_option("--assoc-class", filter.association_class, "only by associations of C")
        ->type_name("C");
  }
  command
      .add_option("--result-class", filter.result_class,
                  of_associators ? "only instances of C" : "only associations of C")
      ->type_name("C");
  command
      .add_option("--role", filter.role,
                  "only where the instance is the value of the association's property R")
      ->type_name("R");
  if (of_associators) {
    command
        .add_option("--result-role", filter.result_role,
                    "only what is the value of the association's property R")
        ->type_name("R");
  }
}

void add_association_commands(Commands& commands, Options& options) {
  const auto add = [&](Command command, const char* name, const char* description,
                       const char* footer, bool of_associators, bool names) {
    CLI::App& added = commands.add(command, name, description, footer);
    add_path(added, options);
    add_filters(added, options.filter, of_associators);
    if (names) {
      add_format(added, options, "table (the default: one a line) or json");
    } else {
      add_output_options(added, options);
    }
  };
  add(Command::associators, "associators", "print what is associated with an instance",
      kAssociatorsExamples, true, false);
  add(Command::associator_names, "associator-names", "print the paths of those",
      kAssociatorNamesExamples, true, true);
  add(Command::references, "references", "print the associations that lead to an instance",
      kReferencesExamples, false, false);
  add(Command::reference_names, "reference-names", "print the paths of those",
      kReferenceNamesExamples, false, true);
}

void add_changing_commands(Commands& commands, Options& options) {
  CLI::App& invoke =
      commands.add(Command::invoke, "invoke", "call a method of an instance", kInvokeExamples);
  add_path(invoke, options);
  invoke.add_option("METHOD", options.method, "name of the method")->required()->type_name("");
  add_values(invoke, options, "parameters, each NAME=VALUE");

  CLI::App& modify =
      commands.add(Command::modify, "modify", "change properties of an instance", kModifyExamples);
  add_path(modify, options);
  add_values(modify, options, "properties, each NAME=VALUE")->required();

  CLI::App& create =
      commands.add(Command::create, "create", "make an instance of a class", kCreateExamples);
  add_class(create, "CLASS", options);
  add_values(create, options, "properties, each NAME=VALUE")->required();

  add_path(commands.add(Command::remove, "delete", "delete an instance", kDeleteExamples), options);
}

/// Why these options do not go together; empty: they do.
std::string contradiction(const Options& options) {
  if (options.platform.fabric && options.platform.generate)
    return "--fabric and --generate both say what the fabric is";
  if (!options.trace_file.empty() && options.verbose)
    return "--trace and --verbose both say where the traces go";
  const bool names = options.names || options.command == Command::associator_names ||
                     options.command == Command::reference_names;
  const std::string what = options.names ? "--names prints paths, which " : "paths ";
  if (names && options.properties) return what + "--properties cannot choose from";
  if (names && options.format == Format::mof) return what + "have no MOF form";
  return {};
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

/// The first word that nothing takes.
std::string unexpected_word(const CLI::App& app, int argc, const char* const* argv) {
  const std::vector<std::string> unexpected = app.remaining(true);
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (std::find(unexpected.begin(), unexpected.end(), word) != unexpected.end()) return word;
  }
  return {};
}

std::vector<std::string> option_names(const CLI::App& app) {
  std::vector<std::string> names;
  const auto add = [&names](const CLI::App& from) {
    for (const CLI::Option* option : from.get_options())
      for (const std::string& name : option->get_lnames())
        names.push_back("--" + name);
  };
  add(app);
  for (const CLI::App* command : app.get_subcommands())
    add(*command);
  return names;
}

std::string unexpected(const CLI::App& app, int argc, const char* const* argv) {
  const std::string word = unexpected_word(app, argc, argv);
  if (!word.starts_with("-")) return "the argument " + word + " is one too many";
  const std::vector<std::string> known = option_names(app);
  const std::string_view nearest =
      cim::schema::nearest_name(word, std::vector<std::string_view>(known.begin(), known.end()));
  std::string text = "no option " + word;
  if (!nearest.empty()) text += " (did you mean " + std::string(nearest) + "?)";
  return text;
}

/// What the parser calls "1 required FORMAT missing" and "At Most 1 required but received 2".
std::string mismatch(const std::string& text) {
  const std::string option = text.substr(0, text.find(':'));
  const bool twice = text.find("received") != std::string::npos;
  return option + (twice ? " is given twice" : ": its value is missing");
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
  app.footer(std::string(kExamples) + kSimulatorExamples + kStatus + kSimulatorEnvironment +
             kEveryHelp);
  app.require_subcommand(1);
  app.fallthrough();
  app.set_version_flag("--version", "vexor-cim " VEXOR_VERSION, "print the version");
  app.set_help_flag("-h,--help", "print this help");
  app.get_formatter()->label("SUBCOMMAND", "COMMAND");
  app.get_formatter()->label("REQUIRED", "");
  add_global_options(app, options);

  Commands commands(app);
  add_class_commands(commands, options);
  add_reading_commands(commands, options);
  add_association_commands(commands, options);
  add_changing_commands(commands, options);
#if VEXOR_WITH_SIMULATOR
  add_platform_options(app, options.platform);
  commands.add(Command::fabric, "fabric", "print the simulated fabric as a fabric file",
               kFabricExamples);
  commands
      .add(Command::serve_switch, "switch", "run the simulated switch for other processes",
           kSwitchExamples)
      .add_option("--socket", options.socket, "where they connect: the name of a socket to make")
      ->required()
      ->type_name("PATH");
#endif

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
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr)
      return refused(unexpected(app, argc, argv));
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr)
      return refused(mismatch(error.what()));
    return refused(one_line(error.what()));
  }

  options.command = commands.given();
  if (const std::string why = contradiction(options); !why.empty()) return refused(why);
  return {std::move(options), {}, kSuccess};
}

}  // namespace vexor::tools

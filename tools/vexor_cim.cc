// vexor-cim: the CIM providers of the switch on the command line.
#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/object_manager.h"
#include "host/object_path.h"
#include "schema/names.h"
#include "schema/repository.h"
#include "tools/command_line.h"
#include "tools/exit_status.h"
#include "tools/locations.h"
#include "tools/output.h"
#include "tools/streams.h"

#if VEXOR_WITH_SIMULATOR
#include "simulator/control/control.h"
#endif

namespace vexor::tools {
namespace {

using cim::host::Instance;
using cim::host::ObjectManager;
using cim::host::ObjectPath;
using cim::schema::Class;
using cim::schema::Repository;

constexpr const char* kProviderName = "VexorProvider";
constexpr const char* kClassPrefix = "VEXOR_";

/// Input that a person can mend: exit status 2.
class BadInput : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

std::string checked(const Location& location) {
  if (!location.error.empty()) throw BadInput(location.error);
  return location.path;
}

void load_classes(Repository& repository, const Options& options) {
  const std::vector<cim::schema::Diagnostic> errors =
      repository.add_file(checked(find_mof(options.mof)));
  if (errors.empty()) return;
  std::string text = errors.front().text();
  if (errors.size() > 1) text += " (and " + std::to_string(errors.size() - 1) + " more)";
  throw BadInput(text);
}

/// The platform tells here that its own configuration is wrong, instead of in every answer.
void check_platform() {
#if VEXOR_WITH_SIMULATOR
  const std::string problem = switch_sim::control::startup_problem();
  if (!problem.empty()) throw BadInput(problem);
#endif
}

cim::host::Settings settings_for(const Options& options) {
  cim::host::Settings settings;
  cim::host::ProviderRoute route;
  route.name = kProviderName;
  route.class_prefix = kClassPrefix;
  // Commands that only look at classes do without the library.
  if (options.command == Command::enumerate || options.command == Command::get) {
    route.library = checked(find_providers(options.providers));
    check_platform();
  }
  settings.providers.push_back(std::move(route));
  settings.report = [](std::string_view line) {
    // Among the traces, in their order.
    std::printf("object manager: %.*s\n", static_cast<int>(line.size()), line.data());
  };
  return settings;
}

/// \throws BadInput when neither the class nor one derived from it has a property of that name
void check_properties(const Repository& repository, const Class& cls, const Names& wanted) {
  if (!wanted) return;
  std::vector<const Class*> classes = repository.subclasses(cls.name, true);
  classes.insert(classes.begin(), &cls);
  for (const std::string& name : *wanted) {
    std::vector<std::string_view> known;
    bool found = false;
    for (const Class* candidate : classes) {
      found = found || repository.property(*candidate, name) != nullptr;
      for (const cim::schema::Property* property : repository.properties(*candidate))
        known.push_back(property->name);
    }
    if (found) continue;
    const std::string_view nearest = cim::schema::nearest_name(name, known);
    throw BadInput(cls.name + ": no property " + name +
                   (nearest.empty() ? "" : " (did you mean " + std::string(nearest) + "?)"));
  }
}

std::string kind_of(const Class& cls) {
  std::string kind = cls.is_association ? "association" : cls.is_indication ? "indication" : "";
  if (cls.is_abstract) kind = kind.empty() ? "abstract" : "abstract " + kind;
  return kind;
}

std::string list_classes(const ObjectManager& manager, const Options& options) {
  std::vector<std::vector<std::string>> rows = {{"Class", "Superclass", "Kind"}};
  for (const Class* cls : manager.repository().all()) {
    if (!options.all && manager.route(*cls) == nullptr) continue;
    rows.push_back({cls->name, cls->superclass, kind_of(*cls)});
  }
  return columns_text(rows);
}

std::string enumerate(ObjectManager& manager, const Options& options) {
  if (options.names) {
    const std::vector<ObjectPath> paths =
        manager.enumerate_instance_names(options.name_space, options.target);
    return options.format == Format::json ? paths_json(paths) : paths_text(paths);
  }
  const Class& cls = manager.find_class(options.target);
  check_properties(manager.repository(), cls, options.properties);
  const std::vector<Instance> instances =
      manager.enumerate_instances(options.name_space, cls.name, options.properties);
  switch (options.format) {
    case Format::mof:
      return instances_mof(instances);
    case Format::json:
      return instances_json(instances, options.properties);
    case Format::table:
      break;
  }
  return instance_tables(manager.repository(), cls, options.name_space, instances,
                         options.properties);
}

/// The path that a person typed, with what can only be one thing filled in.
ObjectPath path_of(const ObjectManager& manager, const Options& options) {
  cim::host::ParsedPath parsed = cim::host::parse_object_path(options.target);
  if (!parsed) {
    throw BadInput(options.target + ": column " + std::to_string(parsed.column) + ": " +
                   parsed.error);
  }
  ObjectPath path = std::move(parsed.path);
  if (path.name_space.empty()) path.name_space = options.name_space;
  const Class& cls = manager.find_class(path.class_name);
  for (const cim::schema::Property* key : manager.repository().keys(cls)) {
    if (cim::schema::equal_names(key->name, "CreationClassName") &&
        cim::host::find_named(path.keys, key->name) == nullptr) {
      path.keys.push_back({key->name, cim::host::Data::string(cls.name)});
    }
  }
  return path;
}

std::string get(ObjectManager& manager, const Options& options) {
  const ObjectPath path = path_of(manager, options);
  check_properties(manager.repository(), manager.find_class(path.class_name), options.properties);
  const Instance instance = manager.get_instance(path, options.properties);
  switch (options.format) {
    case Format::mof:
      return instances_mof({instance});
    case Format::json:
      return instance_json(instance, options.properties);
    case Format::table:
      break;
  }
  return instance_list(manager.repository(), instance, options.properties);
}

std::string run_command(ObjectManager& manager, const Options& options) {
  switch (options.command) {
    case Command::classes:
      manager.check_name_space(options.name_space);
      return list_classes(manager, options);
    case Command::show_class:
      manager.check_name_space(options.name_space);
      return cim::schema::to_mof(manager.find_class(options.target), manager.repository(),
                                 cim::schema::Form::complete);
    case Command::enumerate:
      return enumerate(manager, options);
    case Command::get:
      break;
  }
  return get(manager, options);
}

int run(const Options& options, Streams& streams) {
  try {
    Repository repository;
    load_classes(repository, options);
    ObjectManager manager(repository, settings_for(options));
    streams.result(run_command(manager, options));
  } catch (const BadInput& error) {
    streams.error(error.what());
    return kBadInput;
  } catch (const std::exception& error) {
    streams.error(error.what());
    return kFailed;
  }
  return kSuccess;
}

/// Results that did not arrive are a failure, whatever the command said.
int finished(Streams& streams, int status) {
  const std::string problem = streams.finish();
  if (problem.empty()) return status;
  streams.error("the results cannot be written: " + problem);
  return kFailed;
}

int run_program(int argc, const char* const* argv) {
  Streams streams;
  const Parsed parsed = parse_command_line(argc, argv);
  if (!parsed.options) {
    if (parsed.exit_status == kSuccess) {
      streams.result(parsed.text);
    } else {
      streams.error(parsed.text);
    }
    return finished(streams, parsed.exit_status);
  }
  const std::string problem = streams.open({parsed.options->trace_file, parsed.options->verbose});
  if (!problem.empty()) {
    streams.error(problem);
    return kBadInput;
  }
  return finished(streams, run(*parsed.options, streams));
}

}  // namespace
}  // namespace vexor::tools

int main(int argc, char** argv) {
  return vexor::tools::run_program(argc, argv);
}

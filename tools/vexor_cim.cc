// vexor-cim: the CIM providers of the switch on the command line.
#include <csignal>
#include <cstdio>
#include <exception>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/cim_error.h"
#include "host/object_manager.h"
#include "host/object_path.h"
#include "schema/names.h"
#include "schema/repository.h"
#include "tools/command_line.h"
#include "tools/exit_status.h"
#include "tools/input.h"
#include "tools/locations.h"
#include "tools/modules_command.h"
#include "tools/output.h"
#include "tools/platform.h"
#include "tools/ports_command.h"
#include "tools/streams.h"
#include "tools/switch_command.h"

namespace vexor::tools {
namespace {

using cim::host::Instance;
using cim::host::ObjectManager;
using cim::host::ObjectPath;
using cim::schema::Class;
using cim::schema::Repository;

constexpr const char* kProviderName = "VexorProvider";
constexpr const char* kClassPrefix = "VEXOR_";

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

cim::host::Settings settings_for(const Options& options, Streams& streams) {
  cim::host::Settings settings;
  cim::host::ProviderRoute route;
  route.name = kProviderName;
  route.class_prefix = kClassPrefix;
  // Commands that only look at classes do without the library.
  if (options.command != Command::classes && options.command != Command::show_class) {
    route.library = checked(find_providers(options.providers));
    // Told here once, instead of in every answer.
    check_platform(streams);
  }
  settings.providers.push_back(std::move(route));
  settings.report = [](std::string_view line) {
    // Among the traces, in their order.
    std::printf("object manager: %.*s\n", static_cast<int>(line.size()), line.data());
  };
  return settings;
}

/// \throws BadInput, beginning with `whose`, when none of the classes has a property of that name
void check_properties(const Repository& repository, const std::vector<const Class*>& classes,
                      const std::string& whose, const Names& wanted) {
  if (!wanted) return;
  for (const std::string& name : *wanted) {
    std::vector<std::string_view> known;
    bool found = false;
    for (const Class* candidate : classes) {
      found = found || repository.property(*candidate, name) != nullptr;
      for (const cim::schema::Property* property : repository.properties(*candidate))
        known.push_back(property->name);
    }
    if (!found) throw BadInput(whose + " property " + name + did_you_mean(name, known));
  }
}

/// The same for a class and those derived from it.
void check_properties(const Repository& repository, const Class& cls, const Names& wanted) {
  std::vector<const Class*> classes = repository.subclasses(cls.name, true);
  classes.insert(classes.begin(), &cls);
  check_properties(repository, classes, cls.name + ": no", wanted);
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

/// The path that a person typed. \throws CimError when there is no such class
ObjectPath path_of(const ObjectManager& manager, const Options& options) {
  ObjectPath path = read_path(manager.repository(), options.target, options.name_space);
  manager.find_class(path.class_name);
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

// --- Associations --------------------------------------------------------------------------------

std::vector<const Class*> associations(const Repository& repository) {
  std::vector<const Class*> found;
  for (const Class* cls : repository.all())
    if (cls->is_association) found.push_back(cls);
  return found;
}

/// A filter that nothing can pass is a slip.
void check_role(const Repository& repository, const char* option, const std::string& role) {
  if (role.empty()) return;
  std::vector<std::string_view> known;
  for (const Class* cls : associations(repository)) {
    for (const cim::schema::Property* property : repository.properties(*cls)) {
      if (!property->is_reference()) continue;
      if (cim::schema::equal_names(property->name, role)) return;
      known.push_back(property->name);
    }
  }
  throw BadInput(std::string(option) + ": no association has a reference " + role +
                 did_you_mean(role, known));
}

/// The same for a class that is no association.
void check_association(const ObjectManager& manager, const char* option, const std::string& name) {
  if (!name.empty() && !manager.find_class(name).is_association)
    throw BadInput(std::string(option) + ": " + name + " is no association");
}

void check_filter(const ObjectManager& manager, const Options& options) {
  const cim::host::AssociationFilter& filter = options.filter;
  check_association(manager, "--assoc-class", filter.association_class);
  const bool gives_associations =
      options.command == Command::references || options.command == Command::reference_names;
  if (gives_associations) {
    check_association(manager, "--result-class", filter.result_class);
  } else if (!filter.result_class.empty()) {
    manager.find_class(filter.result_class);
  }
  check_role(manager.repository(), "--role", filter.role);
  check_role(manager.repository(), "--result-role", filter.result_role);
}

std::string shown(const ObjectManager& manager, const Options& options,
                  const std::vector<Instance>& instances, const std::string& when_empty) {
  switch (options.format) {
    case Format::mof:
      return instances_mof(instances);
    case Format::json:
      return instances_json(instances, options.properties);
    case Format::table:
      break;
  }
  if (instances.empty()) return when_empty;
  const Class& first = manager.find_class(instances.front().path.class_name);
  return instance_tables(manager.repository(), first, options.name_space, instances,
                         options.properties);
}

/// Providers find nothing at an object that is not there, which as a rule is a slip, too.
/// \throws CimError when it is not there
void check_object(ObjectManager& manager, const ObjectPath& path) {
  try {
    manager.get_instance(path);
  } catch (const cim::host::CimError& error) {
    if (error.code() == CMPI_RC_ERR_NOT_FOUND) throw;
  }
}

std::string associated(ObjectManager& manager, const Options& options) {
  const Repository& repository = manager.repository();
  const bool references = options.command == Command::references;
  const ObjectPath path = path_of(manager, options);
  check_filter(manager, options);
  if (!options.filter.result_class.empty()) {
    check_properties(repository, manager.find_class(options.filter.result_class),
                     options.properties);
  } else if (references) {
    check_properties(repository, associations(repository), "no association has a",
                     options.properties);
  } else {
    const auto all = repository.all();
    check_properties(repository, {all.begin(), all.end()}, "no class has a", options.properties);
  }
  const std::vector<Instance> found =
      references ? manager.references(path, options.filter, options.properties)
                 : manager.associators(path, options.filter, options.properties);
  if (found.empty()) check_object(manager, path);
  const char* nothing = references ? "No association leads to " : "Nothing is associated with ";
  return shown(manager, options, found, nothing + cim::host::to_short_text(path) + "\n");
}

std::string associated_names(ObjectManager& manager, const Options& options) {
  const ObjectPath path = path_of(manager, options);
  check_filter(manager, options);
  const std::vector<ObjectPath> paths = options.command == Command::reference_names
                                            ? manager.reference_names(path, options.filter)
                                            : manager.associator_names(path, options.filter);
  if (paths.empty()) check_object(manager, path);
  return options.format == Format::json ? paths_json(paths) : paths_text(paths);
}

// --- Changes -------------------------------------------------------------------------------------

/// What a command printed, and its exit status.
struct Outcome {
  std::string text;
  int status = kSuccess;
};

const cim::schema::Method& find_method(const Repository& repository, const Class& cls,
                                       const std::string& name) {
  if (const cim::schema::Method* method = repository.method(cls, name)) return *method;
  std::vector<std::string_view> known;
  for (const cim::schema::Method* method : repository.methods(cls))
    known.push_back(method->name);
  throw BadInput(cls.name + ": no method " + name + did_you_mean(name, known));
}

bool is_nonzero(const cim::host::Data& data) {
  if (const auto* number = std::get_if<std::uint64_t>(&data.element)) return *number != 0;
  if (const auto* number = std::get_if<std::int64_t>(&data.element)) return *number != 0;
  return false;
}

Outcome invoke(ObjectManager& manager, const Options& options) {
  const ObjectPath path = path_of(manager, options);
  const Class& cls = manager.find_class(path.class_name);
  const cim::schema::Method& method = find_method(manager.repository(), cls, options.method);
  const ValueScope scope{manager.repository(), path.name_space};
  const cim::host::MethodResult result =
      manager.invoke_method(path, method.name, read_arguments(scope, cls, method, options.values));
  return {method_text(method.name, result), is_nonzero(result.value) ? kFailed : kSuccess};
}

std::string modify(ObjectManager& manager, const Options& options) {
  const ObjectPath path = path_of(manager, options);
  const Class& cls = manager.find_class(path.class_name);
  const ValueScope scope{manager.repository(), path.name_space};
  const Instance changed{path, read_properties(scope, cls, options.values)};
  std::vector<std::string> names;
  for (const cim::host::NamedData& property : changed.properties) {
    if (manager.repository().property(cls, property.name)->is_key())
      throw BadInput(cls.name + "." + property.name + " is a key: it cannot change");
    names.push_back(property.name);
  }
  manager.modify_instance(changed, names);
  return "modified " + cim::host::to_short_text(path) + "\n";
}

std::string create(ObjectManager& manager, const Options& options) {
  const Class& cls = manager.find_class(options.target);
  const ValueScope scope{manager.repository(), options.name_space};
  const Instance made{{{}, options.name_space, cls.name, {}},
                      read_properties(scope, cls, options.values)};
  return paths_text({manager.create_instance(made)});
}

std::string remove(ObjectManager& manager, const Options& options) {
  const ObjectPath path = path_of(manager, options);
  manager.delete_instance(path);
  return "deleted " + cim::host::to_short_text(path) + "\n";
}

// --- Running -------------------------------------------------------------------------------------

Outcome run_command(ObjectManager& manager, const Options& options) {
  switch (options.command) {
    case Command::classes:
      manager.check_name_space(options.name_space);
      return {list_classes(manager, options)};
    case Command::show_class:
      manager.check_name_space(options.name_space);
      return {cim::schema::to_mof(manager.find_class(options.target), manager.repository(),
                                  cim::schema::Form::complete)};
    case Command::enumerate:
      return {enumerate(manager, options)};
    case Command::get:
      return {get(manager, options)};
    case Command::ports:
      return {ports_table(manager, options.name_space)};
    case Command::modules:
      return {modules_table(manager, options.name_space)};
    case Command::associators:
    case Command::references:
      return {associated(manager, options)};
    case Command::associator_names:
    case Command::reference_names:
      return {associated_names(manager, options)};
    case Command::invoke:
      return invoke(manager, options);
    case Command::modify:
      return {modify(manager, options)};
    case Command::create:
      return {create(manager, options)};
    case Command::remove:
      return {remove(manager, options)};
    case Command::fabric:  // need no classes: see outcome_of and run
    case Command::serve_switch:
      break;
  }
  return {};
}

Outcome outcome_of(const Options& options, Streams& streams) {
  prepare_platform(options.platform);
  if (options.command == Command::fabric) {
    check_platform(streams);
    return {platform_fabric()};
  }
  Repository repository;
  load_classes(repository, options);
  ObjectManager manager(repository, settings_for(options, streams));
  return run_command(manager, options);
}

int run(const Options& options, Streams& streams) {
  try {
    if (options.command == Command::serve_switch) return serve_switch(options, streams);
    const Outcome outcome = outcome_of(options, streams);
    streams.result(outcome.text);
    return outcome.status;
  } catch (const BadInput& error) {
    streams.error(error.what());
    return kBadInput;
  } catch (const std::exception& error) {
    streams.error(error.what());
    return kFailed;
  }
}

/// Results or traces that did not arrive are a failure, whatever the command said.
int finished(Streams& streams, int status) {
  const std::string problem = streams.finish();
  if (problem.empty()) return status;
  streams.error(problem);
  return kFailed;
}

int run_program(int argc, const char* const* argv) {
  // A file that may not grow is an error of the writer like any other.
  std::signal(SIGXFSZ, SIG_IGN);
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

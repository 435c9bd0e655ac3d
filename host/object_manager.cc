#include "host/object_manager.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "host/object_path.h"
#include "host/objects.h"
#include "host/provider_library.h"
#include "schema/names.h"

namespace cim::host {
namespace {

using schema::equal_names;

/// " (did you mean X?)", or nothing.
std::string did_you_mean(std::string_view name, const std::vector<std::string_view>& candidates) {
  const std::string_view nearest = schema::nearest_name(name, candidates);
  return nearest.empty() ? std::string() : " (did you mean " + std::string(nearest) + "?)";
}

std::vector<std::string_view> names_of(std::span<const schema::Property* const> properties) {
  std::vector<std::string_view> names;
  for (const schema::Property* property : properties)
    names.push_back(property->name);
  return names;
}

/// A property list as the tables take it: null for all.
class NameArray {
 public:
  explicit NameArray(const PropertyList& names) {
    if (!names) return;
    for (const std::string& name : *names)
      pointers_.push_back(name.c_str());
    pointers_.push_back(nullptr);
  }
  const char** data() { return pointers_.empty() ? nullptr : pointers_.data(); }

 private:
  std::vector<const char*> pointers_;
};

const char* or_null(const std::string& text) {
  return text.empty() ? nullptr : text.c_str();
}

/// Clients get what they asked for, also from a provider that returns more.
void keep_only(const PropertyList& wanted, std::vector<Instance>& instances) {
  if (!wanted) return;
  for (Instance& instance : instances) {
    std::erase_if(instance.properties, [&](const NamedData& property) {
      return std::none_of(wanted->begin(), wanted->end(), [&](const std::string& name) {
        return equal_names(name, property.name);
      });
    });
  }
}

void fill_in_namespace(std::string_view name_space, ObjectPath& path) {
  if (path.name_space.empty()) path.name_space = name_space;
}

/// The path of an instance of this manager: in the namespace that was asked, without the host that
/// some providers put in.
void make_local(std::string_view name_space, ObjectPath& path) {
  fill_in_namespace(name_space, path);
  path.host.clear();
}

[[noreturn]] void not_served(const schema::Class& cls) {
  throw CimError(CMPI_RC_ERR_NOT_SUPPORTED, cls.name + ": no provider serves this class");
}

template <class Slot>
Slot* present(Slot* slot, const char* operation, const schema::Class& cls) {
  if (slot == nullptr) {
    throw CimError(CMPI_RC_ERR_NOT_SUPPORTED,
                   cls.name + ": its provider has no operation " + operation);
  }
  return slot;
}

/// Calls the provider. C++ exceptions of a provider end here.
template <class Call>
void call_provider(const schema::Class& cls, Call&& call) {
  CMPIStatus status{CMPI_RC_OK, nullptr};
  try {
    status = call();
  } catch (const CimError&) {
    throw;
  } catch (const std::exception& error) {
    throw CimError(CMPI_RC_ERR_FAILED,
                   cls.name + ": the provider failed: " + std::string(error.what()));
  } catch (...) {
    throw CimError(CMPI_RC_ERR_FAILED, cls.name + ": the provider failed");
  }
  if (status.rc == CMPI_RC_OK) return;
  const std::string text = status_text(status);
  const bool says_which = text.find(cls.name) != std::string::npos;
  throw CimError(status.rc, says_which ? text : cls.name + ": " + text);
}

}  // namespace

/// One call of a client or a provider: its arena, unless it runs inside another request, and its
/// context.
struct ObjectManager::Request {
  explicit Request(ObjectManager& manager, CMPIFlags flags = 0)
      : broker(manager.broker_), scope(broker, arena_for(broker)) {
    const Settings& settings = manager.settings_;
    context = make<CMPIContext>(
        broker, NamedContent{{{CMPIInvocationFlags, Data::of(CMPI_uint32, std::uint64_t{flags})},
                              {CMPIInitNameSpace, Data::string(settings.name_spaces.front())},
                              {CMPIPrincipal, Data::string(settings.principal)}},
                             nullptr});
  }

  static std::shared_ptr<Arena> arena_for(Broker& broker) {
    const Scope* outer = Scope::current();
    const bool inside = outer != nullptr && &outer->broker() == &broker;
    return inside ? outer->arena() : std::make_shared<Arena>();
  }

  const CMPIObjectPath* path(ObjectPath content) {
    return make<CMPIObjectPath>(broker, std::move(content));
  }

  Broker& broker;
  Scope scope;
  const CMPIContext* context = nullptr;
};

namespace {

/// What one call of a provider returns. The result object that the provider gets is good for that
/// call only.
struct Returned : Collector {
  Returned(Broker& broker, ResultOf what) {
    wanted = what;
    result = make<CMPIResult>(broker, ResultContent{this});
  }
  ~Returned() { shell_of(result).drop(); }
  Returned(const Returned&) = delete;
  Returned& operator=(const Returned&) = delete;

  const CMPIResult* result;
};

}  // namespace

ObjectManager::ObjectManager(const schema::Repository& repository, Settings settings)
    : repository_(repository),
      settings_(std::move(settings)),
      broker_(repository_, settings_.behavior, settings_.report, this),
      libraries_(settings_.providers.size()) {
  if (settings_.name_spaces.empty())
    throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, "an object manager needs a namespace");
}

ObjectManager::~ObjectManager() = default;

// --- Classes and paths ---------------------------------------------------------------------------

void ObjectManager::check_name_space(std::string_view name_space) const {
  for (const std::string& known : settings_.name_spaces) {
    if (equal_names(known, name_space)) return;
  }
  const std::vector<std::string_view> known(settings_.name_spaces.begin(),
                                            settings_.name_spaces.end());
  std::string all;
  for (const std::string_view name : known)
    all += (all.empty() ? "" : ", ") + std::string(name);
  throw CimError(CMPI_RC_ERR_INVALID_NAMESPACE,
                 std::string(name_space) + ": no such namespace (there is " + all + ")");
}

const schema::Class& ObjectManager::find_class(std::string_view name) const {
  if (const schema::Class* cls = repository_.find(name)) return *cls;
  std::vector<std::string_view> names;
  for (const schema::Class* cls : repository_.all())
    names.push_back(cls->name);
  throw CimError(CMPI_RC_ERR_INVALID_CLASS,
                 std::string(name) + ": no such class" + did_you_mean(name, names));
}

const schema::Class& ObjectManager::find_concrete(const ObjectPath& path) const {
  const schema::Class& cls = find_class(path.class_name);
  if (cls.is_abstract) {
    throw CimError(CMPI_RC_ERR_NOT_SUPPORTED,
                   cls.name + " is abstract: an instance has a class that derives from it");
  }
  return cls;
}

ObjectPath ObjectManager::complete_path(const ObjectPath& path) const {
  const schema::Class& cls = find_concrete(path);
  ObjectPath complete;
  complete.host = path.host;
  complete.name_space = path.name_space.empty() ? settings_.name_spaces.front() : path.name_space;
  check_name_space(complete.name_space);
  complete.class_name = cls.name;
  const auto keys = repository_.keys(cls);
  for (const NamedData& key : path.keys) {
    const auto declared = std::find_if(keys.begin(), keys.end(), [&](const schema::Property* p) {
      return equal_names(p->name, key.name);
    });
    if (declared == keys.end()) {
      throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                     cls.name + " has no key " + key.name + did_you_mean(key.name, names_of(keys)));
    }
    try {
      complete.keys.push_back({(*declared)->name, convert(key.data, cmpi_type(**declared))});
    } catch (const CimError& error) {
      throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                     cls.name + ", key " + (*declared)->name + ": " + error.what());
    }
  }
  for (const schema::Property* key : keys) {
    if (find_named(complete.keys, key->name) == nullptr)
      throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                     cls.name + ": key " + key->name + " is missing");
  }
  return complete;
}

Instance ObjectManager::complete_instance(const Instance& instance) const {
  const schema::Class& cls = find_concrete(instance.path);
  Instance complete;
  complete.path = instance.path;
  complete.path.class_name = cls.name;
  if (complete.path.name_space.empty()) complete.path.name_space = settings_.name_spaces.front();
  check_name_space(complete.path.name_space);
  for (const NamedData& property : instance.properties) {
    const schema::Property* declared = repository_.property(cls, property.name);
    if (declared == nullptr) {
      throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                     cls.name + " has no property " + property.name +
                         did_you_mean(property.name, names_of(repository_.properties(cls))));
    }
    try {
      complete.properties.push_back({declared->name, convert(property.data, cmpi_type(*declared))});
    } catch (const CimError& error) {
      throw CimError(CMPI_RC_ERR_TYPE_MISMATCH,
                     cls.name + "." + declared->name + ": " + error.what());
    }
  }
  return complete;
}

// --- Providers -----------------------------------------------------------------------------------

const ProviderRoute* ObjectManager::route(const schema::Class& cls) const {
  if (cls.is_abstract) return nullptr;
  const schema::Qualifier* named = schema::find_qualifier(repository_.qualifiers(cls), "Provider");
  const std::string* provider = named == nullptr ? nullptr : named->value.text();
  for (const ProviderRoute& candidate : settings_.providers) {
    const std::string& prefix = candidate.class_prefix;
    const bool serves =
        provider != nullptr
            ? equal_names(*provider, candidate.name)
            : !prefix.empty() && equal_names(cls.name.substr(0, prefix.size()), prefix);
    if (serves) return &candidate;
  }
  return nullptr;
}

ProviderLibrary& ObjectManager::provider(const schema::Class& cls) {
  const ProviderRoute* found = route(cls);
  if (found == nullptr) not_served(cls);
  const auto index = static_cast<std::size_t>(found - settings_.providers.data());
  if (libraries_[index] == nullptr)
    libraries_[index] = std::make_unique<ProviderLibrary>(broker_, found->library, found->name);
  return *libraries_[index];
}

std::vector<const schema::Class*> ObjectManager::served_classes(const schema::Class& cls) const {
  std::vector<const schema::Class*> served;
  if (route(cls) != nullptr) served.push_back(&cls);
  for (const schema::Class* subclass : repository_.subclasses(cls.name, true)) {
    if (route(*subclass) != nullptr) served.push_back(subclass);
  }
  return served;
}

/// Whether an object that a provider gave for `asked` is to be kept. A provider may also give those
/// of subclasses; each of these is asked for by itself.
static bool belongs_to(const schema::Class& asked, const std::string& class_name,
                       const std::vector<const schema::Class*>& served) {
  if (equal_names(class_name, asked.name)) return true;
  return std::none_of(served.begin(), served.end(),
                      [&](const schema::Class* cls) { return equal_names(cls->name, class_name); });
}

/// Calls `call(class)` for each class at or below the named one. A class whose provider does not
/// support the operation is left out as long as another one does.
template <class Call>
void ObjectManager::for_each_served(std::string_view name_space, std::string_view class_name,
                                    Call&& call) {
  check_name_space(name_space);
  const schema::Class& cls = find_class(class_name);
  const std::vector<const schema::Class*> served = served_classes(cls);
  if (served.empty()) not_served(cls);
  std::optional<CimError> unsupported;
  bool any = false;
  for (const schema::Class* concrete : served) {
    try {
      call(*concrete);
      any = true;
    } catch (const CimError& error) {
      if (error.code() != CMPI_RC_ERR_NOT_SUPPORTED) throw;
      if (!unsupported) unsupported = error;
      broker_.report(error.what());
    }
  }
  if (!any) throw CimError(*unsupported);
}

// --- Instances -----------------------------------------------------------------------------------

std::vector<Instance> ObjectManager::enumerate_instances(std::string_view name_space,
                                                         std::string_view class_name,
                                                         const PropertyList& properties) {
  std::vector<Instance> all;
  Request request(*this, CMPI_FLAG_DeepInheritance);
  NameArray names(properties);
  check_name_space(name_space);
  const auto served = served_classes(find_class(class_name));
  for_each_served(name_space, class_name, [&](const schema::Class& cls) {
    CMPIInstanceMI* const mi = provider(cls).instance_mi(request.context);
    Returned returned(broker_, ResultOf::instances);
    const CMPIObjectPath* const path = request.path({{}, std::string(name_space), cls.name, {}});
    call_provider(cls, [&] {
      return present(mi->ft->enumerateInstances, "enumerateInstances", cls)(
          mi, request.context, returned.result, path, names.data());
    });
    for (Instance& instance : returned.instances)
      if (belongs_to(cls, instance.path.class_name, served)) all.push_back(std::move(instance));
  });
  for (Instance& instance : all)
    make_local(name_space, instance.path);
  keep_only(properties, all);
  return all;
}

std::vector<ObjectPath> ObjectManager::enumerate_instance_names(std::string_view name_space,
                                                                std::string_view class_name) {
  std::vector<ObjectPath> all;
  Request request(*this);
  check_name_space(name_space);
  const auto served = served_classes(find_class(class_name));
  for_each_served(name_space, class_name, [&](const schema::Class& cls) {
    CMPIInstanceMI* const mi = provider(cls).instance_mi(request.context);
    Returned returned(broker_, ResultOf::paths);
    const CMPIObjectPath* const path = request.path({{}, std::string(name_space), cls.name, {}});
    call_provider(cls, [&] {
      return present(mi->ft->enumerateInstanceNames, "enumerateInstanceNames", cls)(
          mi, request.context, returned.result, path);
    });
    for (ObjectPath& found : returned.paths)
      if (belongs_to(cls, found.class_name, served)) all.push_back(std::move(found));
  });
  for (ObjectPath& path : all)
    make_local(name_space, path);
  return all;
}

Instance ObjectManager::get_instance(const ObjectPath& path, const PropertyList& properties) {
  const ObjectPath complete = complete_path(path);
  const schema::Class& cls = find_class(complete.class_name);
  Request request(*this);
  NameArray names(properties);
  CMPIInstanceMI* const mi = provider(cls).instance_mi(request.context);
  Returned returned(broker_, ResultOf::instances);
  call_provider(cls, [&] {
    return present(mi->ft->getInstance, "getInstance", cls)(mi, request.context, returned.result,
                                                            request.path(complete), names.data());
  });
  if (returned.instances.empty())
    throw CimError(CMPI_RC_ERR_NOT_FOUND, to_text(complete) + ": no such instance");
  keep_only(properties, returned.instances);
  Instance instance = std::move(returned.instances.front());
  instance.path = complete;
  return instance;
}

ObjectPath ObjectManager::create_instance(const Instance& instance) {
  const Instance complete = complete_instance(instance);
  const schema::Class& cls = find_class(complete.path.class_name);
  Request request(*this);
  CMPIInstanceMI* const mi = provider(cls).instance_mi(request.context);
  Returned returned(broker_, ResultOf::paths);
  const CMPIInstance* const given = make<CMPIInstance>(broker_, request_content(broker_, complete));
  call_provider(cls, [&] {
    return present(mi->ft->createInstance, "createInstance", cls)(
        mi, request.context, returned.result, request.path(complete.path), given);
  });
  if (returned.paths.empty()) {
    throw CimError(CMPI_RC_ERR_FAILED,
                   cls.name + ": the provider returned no path of the new instance");
  }
  make_local(complete.path.name_space, returned.paths.front());
  return std::move(returned.paths.front());
}

void ObjectManager::modify_instance(const Instance& instance, const PropertyList& properties) {
  Instance complete = complete_instance(instance);
  complete.path = complete_path(instance.path);
  const schema::Class& cls = find_class(complete.path.class_name);
  Request request(*this);
  NameArray names(properties);
  CMPIInstanceMI* const mi = provider(cls).instance_mi(request.context);
  Returned returned(broker_, ResultOf::paths);
  const CMPIInstance* const given = make<CMPIInstance>(broker_, request_content(broker_, complete));
  call_provider(cls, [&] {
    return present(mi->ft->modifyInstance, "modifyInstance", cls)(
        mi, request.context, returned.result, request.path(complete.path), given, names.data());
  });
}

void ObjectManager::delete_instance(const ObjectPath& path) {
  const ObjectPath complete = complete_path(path);
  const schema::Class& cls = find_class(complete.class_name);
  Request request(*this);
  CMPIInstanceMI* const mi = provider(cls).instance_mi(request.context);
  Returned returned(broker_, ResultOf::paths);
  call_provider(cls, [&] {
    return present(mi->ft->deleteInstance, "deleteInstance", cls)(
        mi, request.context, returned.result, request.path(complete));
  });
}

// --- Associations --------------------------------------------------------------------------------

std::vector<const schema::Class*> ObjectManager::associations_of(const ObjectPath& path,
                                                                 std::string_view association_class,
                                                                 std::string_view role) const {
  if (!association_class.empty() && repository_.find(association_class) == nullptr) {
    throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                   std::string(association_class) + ": no such class");
  }
  std::vector<const schema::Class*> found;
  for (const schema::Class* cls : repository_.all()) {
    if (!cls->is_association || route(*cls) == nullptr) continue;
    if (!association_class.empty() && !repository_.is_a(cls->name, association_class)) continue;
    const auto properties = repository_.properties(*cls);
    const bool leads_to_path =
        std::any_of(properties.begin(), properties.end(), [&](const schema::Property* property) {
          return property->is_reference() && (role.empty() || equal_names(property->name, role)) &&
                 repository_.is_a(path.class_name, property->reference_class);
        });
    if (leads_to_path) found.push_back(cls);
  }
  return found;
}

/// Calls `call(class, mi)` for each association class that may lead to the instance. A provider
/// that does not support the operation is left out.
template <class Call>
void ObjectManager::for_each_association(const ObjectPath& path, std::string_view association_class,
                                         std::string_view role, Call&& call) {
  for (const schema::Class* cls : associations_of(path, association_class, role)) {
    try {
      call(*cls);
    } catch (const CimError& error) {
      if (error.code() != CMPI_RC_ERR_NOT_SUPPORTED) throw;
      broker_.report(error.what());
    }
  }
}

std::vector<Instance> ObjectManager::associators(const ObjectPath& path,
                                                 const AssociationFilter& filter,
                                                 const PropertyList& properties) {
  const ObjectPath complete = complete_path(path);
  Request request(*this);
  NameArray names(properties);
  std::vector<Instance> all;
  for_each_association(
      complete, filter.association_class, filter.role, [&](const schema::Class& cls) {
        CMPIAssociationMI* const mi = provider(cls).association_mi(request.context);
        Returned returned(broker_, ResultOf::instances);
        call_provider(cls, [&] {
          return present(mi->ft->associators, "associators", cls)(
              mi, request.context, returned.result, request.path(complete), cls.name.c_str(),
              or_null(filter.result_class), or_null(filter.role), or_null(filter.result_role),
              names.data());
        });
        std::move(returned.instances.begin(), returned.instances.end(), std::back_inserter(all));
      });
  for (Instance& instance : all)
    make_local(complete.name_space, instance.path);
  keep_only(properties, all);
  return all;
}

std::vector<ObjectPath> ObjectManager::associator_names(const ObjectPath& path,
                                                        const AssociationFilter& filter) {
  const ObjectPath complete = complete_path(path);
  Request request(*this);
  std::vector<ObjectPath> all;
  for_each_association(
      complete, filter.association_class, filter.role, [&](const schema::Class& cls) {
        CMPIAssociationMI* const mi = provider(cls).association_mi(request.context);
        Returned returned(broker_, ResultOf::paths);
        call_provider(cls, [&] {
          return present(mi->ft->associatorNames, "associatorNames", cls)(
              mi, request.context, returned.result, request.path(complete), cls.name.c_str(),
              or_null(filter.result_class), or_null(filter.role), or_null(filter.result_role));
        });
        std::move(returned.paths.begin(), returned.paths.end(), std::back_inserter(all));
      });
  for (ObjectPath& found : all)
    make_local(complete.name_space, found);
  return all;
}

std::vector<Instance> ObjectManager::references(const ObjectPath& path,
                                                const AssociationFilter& filter,
                                                const PropertyList& properties) {
  const ObjectPath complete = complete_path(path);
  Request request(*this);
  NameArray names(properties);
  std::vector<Instance> all;
  for_each_association(complete, filter.result_class, filter.role, [&](const schema::Class& cls) {
    CMPIAssociationMI* const mi = provider(cls).association_mi(request.context);
    Returned returned(broker_, ResultOf::instances);
    call_provider(cls, [&] {
      return present(mi->ft->references, "references", cls)(
          mi, request.context, returned.result, request.path(complete), cls.name.c_str(),
          or_null(filter.role), names.data());
    });
    std::move(returned.instances.begin(), returned.instances.end(), std::back_inserter(all));
  });
  for (Instance& instance : all)
    make_local(complete.name_space, instance.path);
  keep_only(properties, all);
  return all;
}

std::vector<ObjectPath> ObjectManager::reference_names(const ObjectPath& path,
                                                       const AssociationFilter& filter) {
  const ObjectPath complete = complete_path(path);
  Request request(*this);
  std::vector<ObjectPath> all;
  for_each_association(complete, filter.result_class, filter.role, [&](const schema::Class& cls) {
    CMPIAssociationMI* const mi = provider(cls).association_mi(request.context);
    Returned returned(broker_, ResultOf::paths);
    call_provider(cls, [&] {
      return present(mi->ft->referenceNames, "referenceNames", cls)(
          mi, request.context, returned.result, request.path(complete), cls.name.c_str(),
          or_null(filter.role));
    });
    std::move(returned.paths.begin(), returned.paths.end(), std::back_inserter(all));
  });
  for (ObjectPath& found : all)
    make_local(complete.name_space, found);
  return all;
}

// --- Methods -------------------------------------------------------------------------------------

MethodResult ObjectManager::invoke_method(const ObjectPath& path, std::string_view method,
                                          const std::vector<NamedData>& in) {
  const schema::Class& cls = find_class(path.class_name);
  // A path without keys means the class itself, for a static method.
  ObjectPath target = path;
  target.class_name = cls.name;
  if (!path.keys.empty()) target = complete_path(path);
  fill_in_namespace(settings_.name_spaces.front(), target);
  check_name_space(target.name_space);
  const schema::Method* declared = repository_.method(cls, method);
  if (declared == nullptr) {
    throw CimError(CMPI_RC_ERR_METHOD_NOT_FOUND,
                   cls.name + " has no method " + std::string(method));
  }
  NamedContent arguments;
  for (const NamedData& argument : in) {
    const schema::Parameter* parameter = declared->find_parameter(argument.name);
    if (parameter == nullptr || !parameter->is_in()) {
      throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                     cls.name + "." + declared->name + " takes no parameter " + argument.name);
    }
    try {
      arguments.items.push_back(
          {parameter->name,
           convert(argument.data, cmpi_type(parameter->type, parameter->is_array))});
    } catch (const CimError& error) {
      throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                     "parameter " + parameter->name + ": " + error.what());
    }
  }
  Request request(*this);
  CMPIMethodMI* const mi = provider(cls).method_mi(request.context);
  Returned returned(broker_, ResultOf::data);
  const CMPIArgs* const given = make<CMPIArgs>(broker_, std::move(arguments));
  CMPIArgs* const out = make<CMPIArgs>(broker_, {});
  call_provider(cls, [&] {
    return present(mi->ft->invokeMethod, "invokeMethod", cls)(mi, request.context, returned.result,
                                                              request.path(target),
                                                              declared->name.c_str(), given, out);
  });
  MethodResult result;
  result.value = returned.data.empty() ? Data::null_of(cmpi_type(declared->return_type, false))
                                       : returned.data.front();
  result.out = content_of(out).items;
  return result;
}

}  // namespace cim::host

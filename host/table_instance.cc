// CMPIInstanceFT: properties are checked against the class as they are set.
#include <algorithm>

#include "host/instance_content.h"
#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

CMPIType plain(CMPIType type) {
  if (type == CMPI_chars) return CMPI_string;
  return type == CMPI_charsA ? CMPIType{CMPI_stringA} : type;
}

bool holds_instances(const schema::Property& property) {
  return schema::find_qualifier(property.qualifiers, "EmbeddedInstance") != nullptr ||
         schema::has_true_qualifier(property.qualifiers, "EmbeddedObject");
}

bool fits(const schema::Property& property, CMPIType given) {
  if (plain(given) == cmpi_type(property)) return true;
  const CMPIType embedded = property.is_array ? CMPI_instanceA : CMPI_instance;
  return given == embedded && property.type == schema::Type::string && holds_instances(property);
}

bool ignored_by_filter(const Broker& broker, const InstanceContent& content,
                       const std::string& name) {
  return content.filter && !broker.behavior().filter_on_output && !content.filter->contains(name);
}

void store(InstanceContent& content, const std::string& name, Data data) {
  if (NamedData* known = find_named(content.instance.properties, name)) {
    known->data = std::move(data);
  } else {
    content.instance.properties.push_back({name, std::move(data)});
  }
}

/// The property as the class declares it; null when the behavior lets others in.
/// \throws CimError when it does not
const schema::Property* declared_property(const Broker& broker, const InstanceContent& content,
                                          const std::string& name) {
  if (content.cls == nullptr) return nullptr;
  const schema::Property* property = broker.repository().property(*content.cls, name);
  if (property != nullptr || broker.behavior().unknown_property != UnknownProperty::refuse)
    return property;
  const std::string text = content.cls->name + " has no property " + name;
  broker.report(text + "; it was not set");
  throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY, text);
}

void check_type(const Broker& broker, const InstanceContent& content,
                const schema::Property& property, CMPIType type) {
  const Behavior& behavior = broker.behavior();
  const bool accepted = fits(property, type) || behavior.wrong_type == WrongType::store ||
                        (type == CMPI_null && !behavior.null_needs_type);
  if (accepted) return;
  const std::string text = content.cls->name + "." + property.name + " is declared " +
                           type_text(cmpi_type(property)) + ", not " + type_text(type);
  broker.report(text + "; it was not set");
  throw CimError(CMPI_RC_ERR_INVALID_DATA_TYPE, text);
}

CMPIStatus set_property(const CMPIInstance* instance, const char* name, const CMPIValue* value,
                        CMPIType type) {
  return guarded_status([&] {
    const Shell<CMPIInstance>& shell = shell_of(instance);
    const Broker& broker = shell.broker;
    InstanceContent& content = *shell.content;
    std::string wanted = text_argument(name, "the name of the property");
    const schema::Property* property = declared_property(broker, content, wanted);
    if (property != nullptr) {
      check_type(broker, content, *property, type);
      wanted = property->name;
    } else if (content.cls != nullptr &&
               broker.behavior().unknown_property == UnknownProperty::drop) {
      return;
    }
    if (ignored_by_filter(broker, content, wanted)) return;
    store(content, wanted, data_from(value, type));
  });
}

CMPIStatus set_property_with_origin(const CMPIInstance* instance, const char* name,
                                    const CMPIValue* value, CMPIType type, const char*) {
  // The class says where a property comes from, whatever the provider thinks.
  return set_property(instance, name, value, type);
}

CMPIData get_property(const CMPIInstance* instance, const char* name, CMPIStatus* rc) {
  return guarded_data(rc, kMissing, [&] {
    const Shell<CMPIInstance>& shell = shell_of(instance);
    const std::string wanted = text_argument(name, "the name of the property");
    const Data* data = shell.content->instance.find(wanted);
    if (data == nullptr) {
      throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                     shell.content->instance.path.class_name + " has no property " + wanted);
    }
    return to_cmpi(shell.broker, *data);
  });
}

CMPIData get_property_at(const CMPIInstance* instance, CMPICount index, CMPIString** name,
                         CMPIStatus* rc) {
  return guarded_data(rc, kMissing, [&] {
    if (name != nullptr) *name = nullptr;
    const Shell<CMPIInstance>& shell = shell_of(instance);
    const NamedData& property =
        item_at(shell.content->instance.properties, index, CMPI_RC_ERR_NO_SUCH_PROPERTY);
    give_name(shell.broker, name, property.name);
    return to_cmpi(shell.broker, property.data);
  });
}

CMPICount get_property_count(const CMPIInstance* instance, CMPIStatus* rc) {
  return guarded(rc, CMPICount{0}, [&] {
    return static_cast<CMPICount>(content_of(instance).instance.properties.size());
  });
}

CMPIObjectPath* get_object_path(const CMPIInstance* instance, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIObjectPath*>(nullptr), [&] {
    const Shell<CMPIInstance>& shell = shell_of(instance);
    return make<CMPIObjectPath>(shell.broker, path_of(shell.broker, *shell.content));
  });
}

CMPIStatus set_property_filter(const CMPIInstance* instance, const char** properties,
                               const char** keys) {
  return guarded_status([&] {
    const Shell<CMPIInstance>& shell = shell_of(instance);
    InstanceContent& content = *shell.content;
    content.filter.reset();
    if (properties == nullptr) return;
    content.filter.emplace();
    for (std::string& name : name_list(properties))
      content.filter->insert(std::move(name));
    for (std::string& name : name_list(keys))
      content.filter->insert(std::move(name));
    if (keys == nullptr && content.cls != nullptr) {
      for (const schema::Property* key : shell.broker.repository().keys(*content.cls))
        content.filter->insert(key->name);
    }
    if (!shell.broker.behavior().filter_on_output)
      apply_filter(content.filter, content.instance.properties);
  });
}

CMPIStatus set_object_path(const CMPIInstance* instance, const CMPIObjectPath* path) {
  return guarded_status([&] {
    InstanceContent& content = content_of(instance);
    const ObjectPath& given = content_of(path);
    if (!schema::equal_names(given.class_name, content.instance.path.class_name)) {
      throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, "a path of class " + given.class_name +
                                                        " does not fit an instance of " +
                                                        content.instance.path.class_name);
    }
    content.instance.path = given;
    content.path_given = true;
  });
}

}  // namespace

void apply_filter(const std::optional<std::set<std::string, schema::NameLess>>& filter,
                  std::vector<NamedData>& properties) {
  if (!filter) return;
  std::erase_if(properties,
                [&](const NamedData& property) { return !filter->contains(property.name); });
}

ObjectPath path_of(const Broker& broker, const InstanceContent& content) {
  ObjectPath path = content.instance.path;
  if (content.path_given || !path.keys.empty() || content.cls == nullptr) return path;
  for (const schema::Property* key : broker.repository().keys(*content.cls)) {
    const Data* data = content.instance.find(key->name);
    if (data != nullptr && !data->null) path.keys.push_back({key->name, *data});
  }
  return path;
}

Instance finished_instance(Broker& broker, const InstanceContent& content) {
  Instance instance{path_of(broker, content), content.instance.properties};
  apply_filter(content.filter, instance.properties);
  return instance;
}

InstanceContent instance_content(Broker& broker, const Instance& instance) {
  InstanceContent content;
  content.cls = broker.repository().find(instance.path.class_name);
  content.instance.path = instance.path;
  content.path_given = !instance.path.keys.empty();
  if (content.cls != nullptr) {
    for (const schema::Property* property : broker.repository().properties(*content.cls)) {
      content.instance.properties.push_back({property->name, Data::null_of(cmpi_type(*property))});
    }
  }
  for (const NamedData& property : instance.properties)
    store(content, property.name, property.data);
  return content;
}

void set_class_defaults(const Broker& broker, InstanceContent& content) {
  if (content.cls == nullptr) return;
  for (const schema::Property* property : broker.repository().properties(*content.cls)) {
    NamedData* known = find_named(content.instance.properties, property->name);
    if (known == nullptr || !known->data.null || property->default_value.is_null()) continue;
    known->data = to_data(property->default_value);
  }
}

InstanceContent request_content(Broker& broker, const Instance& instance) {
  InstanceContent content = instance_content(broker, instance);
  if (broker.behavior().defaults_in_requests) set_class_defaults(broker, content);
  return content;
}

CMPIInstanceFT instance_table(const Behavior& behavior) {
  return {
      .ftVersion = kTableVersion,
      .release = release_object<CMPIInstance>,
      .clone = clone_object<CMPIInstance>,
      .getProperty = get_property,
      .getPropertyAt = get_property_at,
      .getPropertyCount = get_property_count,
      .setProperty = set_property,
      .getObjectPath = get_object_path,
      .setPropertyFilter = set_property_filter,
      .setObjectPath = set_object_path,
      .setPropertyWithOrigin = behavior.optional_slots ? set_property_with_origin : nullptr,
  };
}

}  // namespace cim::host

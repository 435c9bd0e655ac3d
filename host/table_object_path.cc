// CMPIObjectPathFT.
#include <algorithm>

#include "host/object_path.h"
#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

template <std::string ObjectPath::*kMember>
CMPIStatus set_text(const CMPIObjectPath* path, const char* text) {
  return guarded_status([&] { content_of(path).*kMember = text_argument(text, "the text"); });
}

template <std::string ObjectPath::*kMember>
CMPIString* get_text(const CMPIObjectPath* path, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIString*>(nullptr), [&] {
    const Shell<CMPIObjectPath>& shell = shell_of(path);
    return make_string(shell.broker, (*shell.content).*kMember);
  });
}

CMPIStatus add_key(const CMPIObjectPath* path, const char* name, const CMPIValue* value,
                   CMPIType type) {
  return guarded_status([&] {
    const Shell<CMPIObjectPath>& shell = shell_of(path);
    std::vector<NamedData>& keys = shell.content->keys;
    std::string key_name = text_argument(name, "the name of the key");
    Data data = data_from(value, type);
    if (data.null || data.is_array() || data.type == CMPI_instance) {
      throw CimError(CMPI_RC_ERR_INVALID_DATA_TYPE,
                     "key " + key_name + " cannot be " +
                         (data.null ? std::string("null") : "a value of type " + type_text(type)));
    }
    if (NamedData* known = find_named(keys, key_name)) {
      known->data = std::move(data);
      return;
    }
    auto place = keys.end();
    if (shell.broker.behavior().sorted_keys) {
      place = std::upper_bound(keys.begin(), keys.end(), key_name,
                               [](const std::string& new_name, const NamedData& key) {
                                 return schema::NameLess()(new_name, key.name);
                               });
    }
    keys.insert(place, {std::move(key_name), std::move(data)});
  });
}

CMPIData key_data(const Shell<CMPIObjectPath>& shell, const NamedData& key) {
  const Behavior& behavior = shell.broker.behavior();
  CMPIData data = to_cmpi(shell.broker, key.data);
  if (behavior.integer_keys_widened) {
    if (const auto* number = std::get_if<std::uint64_t>(&key.data.element)) {
      data.type = CMPI_sint64;
      data.value.sint64 = static_cast<CMPISint64>(*number);
    } else if (const auto* signed_number = std::get_if<std::int64_t>(&key.data.element)) {
      data.type = CMPI_sint64;
      data.value.sint64 = *signed_number;
    }
  }
  const auto* text = std::get_if<std::string>(&key.data.element);
  if (behavior.empty_keys_null && text != nullptr && text->empty()) {
    data.value = {};
    data.state |= CMPI_nullValue;
  }
  if (behavior.key_state) data.state |= CMPI_keyValue;
  return data;
}

CMPIData get_key(const CMPIObjectPath* path, const char* name, CMPIStatus* rc) {
  return guarded_data(rc, kMissing, [&] {
    const Shell<CMPIObjectPath>& shell = shell_of(path);
    const std::string key_name = text_argument(name, "the name of the key");
    const NamedData* key = find_named(shell.content->keys, key_name);
    if (key == nullptr) throw CimError(CMPI_RC_ERR_NOT_FOUND, "no key " + key_name);
    return key_data(shell, *key);
  });
}

/// The keys that the path has; where the behavior counts them, the class's other ones, too, as
/// null.
std::vector<NamedData> counted_keys(const Shell<CMPIObjectPath>& shell) {
  std::vector<NamedData> keys = shell.content->keys;
  const Broker& broker = shell.broker;
  const schema::Class* cls = broker.repository().find(shell.content->class_name);
  if (!broker.behavior().missing_keys_counted || cls == nullptr) return keys;
  for (const schema::Property* key : broker.repository().keys(*cls)) {
    if (find_named(keys, key->name) == nullptr)
      keys.push_back({key->name, Data::null_of(cmpi_type(*key))});
  }
  if (broker.behavior().sorted_keys) {
    std::stable_sort(keys.begin(), keys.end(), [](const NamedData& a, const NamedData& b) {
      return schema::NameLess()(a.name, b.name);
    });
  }
  return keys;
}

CMPIData get_key_at(const CMPIObjectPath* path, CMPICount index, CMPIString** name,
                    CMPIStatus* rc) {
  return guarded_data(rc, kMissing, [&] {
    if (name != nullptr) *name = nullptr;
    const Shell<CMPIObjectPath>& shell = shell_of(path);
    const std::vector<NamedData> keys = counted_keys(shell);
    const NamedData& key = item_at(keys, index, CMPI_RC_ERR_NO_SUCH_PROPERTY);
    give_name(shell.broker, name, key.name);
    if (key.data.null) throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY, "no key " + key.name);
    return key_data(shell, key);
  });
}

CMPICount get_key_count(const CMPIObjectPath* path, CMPIStatus* rc) {
  return guarded(rc, CMPICount{0},
                 [&] { return static_cast<CMPICount>(counted_keys(shell_of(path)).size()); });
}

CMPIStatus set_namespace_from(const CMPIObjectPath* path, const CMPIObjectPath* source) {
  return guarded_status([&] { content_of(path).name_space = content_of(source).name_space; });
}

CMPIStatus set_host_and_namespace_from(const CMPIObjectPath* path, const CMPIObjectPath* source) {
  return guarded_status([&] {
    const ObjectPath& from = content_of(source);
    ObjectPath& to = content_of(path);
    to.host = from.host;
    to.name_space = from.name_space;
  });
}

// --- Qualifiers ----------------------------------------------------------------------------------

const schema::Class& class_of(const Shell<CMPIObjectPath>& shell) {
  const std::string& name = shell.content->class_name;
  const schema::Class* cls = shell.broker.repository().find(name);
  if (cls == nullptr) throw CimError(CMPI_RC_ERR_INVALID_CLASS, "no class " + name);
  return *cls;
}

CMPIData qualifier_data(const Shell<CMPIObjectPath>& shell,
                        std::span<const schema::Qualifier> qualifiers, const char* name) {
  const std::string wanted = text_argument(name, "the name of the qualifier");
  const schema::Qualifier* qualifier = schema::find_qualifier(qualifiers, wanted);
  if (qualifier == nullptr) throw CimError(CMPI_RC_ERR_NOT_FOUND, "no qualifier " + wanted);
  return to_cmpi(shell.broker, to_data(qualifier->value));
}

const schema::Method& method_of(const Shell<CMPIObjectPath>& shell, const char* name) {
  const std::string wanted = text_argument(name, "the name of the method");
  const schema::Class& cls = class_of(shell);
  const schema::Method* method = shell.broker.repository().method(cls, wanted);
  if (method == nullptr)
    throw CimError(CMPI_RC_ERR_METHOD_NOT_FOUND, cls.name + " has no method " + wanted);
  return *method;
}

CMPIData get_class_qualifier(const CMPIObjectPath* path, const char* name, CMPIStatus* rc) {
  return guarded_data(rc, kMissing, [&] {
    const Shell<CMPIObjectPath>& shell = shell_of(path);
    return qualifier_data(shell, shell.broker.repository().qualifiers(class_of(shell)), name);
  });
}

CMPIData get_property_qualifier(const CMPIObjectPath* path, const char* property_name,
                                const char* name, CMPIStatus* rc) {
  return guarded_data(rc, kMissing, [&] {
    const Shell<CMPIObjectPath>& shell = shell_of(path);
    const std::string wanted = text_argument(property_name, "the name of the property");
    const schema::Class& cls = class_of(shell);
    const schema::Property* property = shell.broker.repository().property(cls, wanted);
    if (property == nullptr)
      throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY, cls.name + " has no property " + wanted);
    return qualifier_data(shell, property->qualifiers, name);
  });
}

CMPIData get_method_qualifier(const CMPIObjectPath* path, const char* method_name, const char* name,
                              CMPIStatus* rc) {
  return guarded_data(rc, kMissing, [&] {
    const Shell<CMPIObjectPath>& shell = shell_of(path);
    return qualifier_data(shell, method_of(shell, method_name).qualifiers, name);
  });
}

CMPIData get_parameter_qualifier(const CMPIObjectPath* path, const char* method_name,
                                 const char* parameter_name, const char* name, CMPIStatus* rc) {
  return guarded_data(rc, kMissing, [&] {
    const Shell<CMPIObjectPath>& shell = shell_of(path);
    const schema::Method& method = method_of(shell, method_name);
    const std::string wanted = text_argument(parameter_name, "the name of the parameter");
    const schema::Parameter* parameter = method.find_parameter(wanted);
    if (parameter == nullptr) {
      throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                     "method " + method.name + " has no parameter " + wanted);
    }
    return qualifier_data(shell, parameter->qualifiers, name);
  });
}

CMPIString* path_to_string(const CMPIObjectPath* path, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIString*>(nullptr), [&] {
    const Shell<CMPIObjectPath>& shell = shell_of(path);
    return make_string(shell.broker, to_text(*shell.content));
  });
}

}  // namespace

CMPIObjectPathFT object_path_table(const Behavior& behavior) {
  CMPIObjectPathFT table{
      .ftVersion = kTableVersion,
      .release = release_object<CMPIObjectPath>,
      .clone = clone_object<CMPIObjectPath>,
      .setNameSpace = set_text<&ObjectPath::name_space>,
      .getNameSpace = get_text<&ObjectPath::name_space>,
      .setHostname = set_text<&ObjectPath::host>,
      .getHostname = get_text<&ObjectPath::host>,
      .setClassName = set_text<&ObjectPath::class_name>,
      .getClassName = get_text<&ObjectPath::class_name>,
      .addKey = add_key,
      .getKey = get_key,
      .getKeyAt = get_key_at,
      .getKeyCount = get_key_count,
      .setNameSpaceFromObjectPath = set_namespace_from,
      .setHostAndNameSpaceFromObjectPath = set_host_and_namespace_from,
      .getClassQualifier = get_class_qualifier,
      .getPropertyQualifier = get_property_qualifier,
      .getMethodQualifier = get_method_qualifier,
      .getParameterQualifier = get_parameter_qualifier,
      .toString = path_to_string,
  };
  if (!behavior.optional_slots) {
    table.getClassQualifier = nullptr;
    table.getPropertyQualifier = nullptr;
    table.getMethodQualifier = nullptr;
    table.getParameterQualifier = nullptr;
  }
  return table;
}

}  // namespace cim::host

#include "tests/providers/test_broker.h"

#include <cim_utils/session.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <strings.h>

#include <algorithm>
#include <cstdlib>
#include <deque>
#include <functional>
#include <mutex>

#include "host/data.h"
#include "schema/repository.h"
#include "tests/support/heap_ledger.h"

namespace provider_tests {
namespace {

using cim::host::Behavior;
using cim::host::UnknownProperty;
using cim::host::WrongType;
using Pause = test_support::HeapLedger::Pause;

struct Named {
  std::string name;
  CMPIData data;
};

struct StringObject {
  CMPIString face;
  std::string text;
  bool empty = false;  // no characters at all, as some brokers have strings
};

struct PathObject {
  CMPIObjectPath face;
  TestBroker::Impl* broker;
  std::string name_space, host, class_name;
  std::vector<Named> keys;
};

struct InstanceObject {
  CMPIInstance face;
  TestBroker::Impl* broker;
  std::string name_space, class_name;
  const cim::schema::Class* cls = nullptr;  // null: what is set is not checked
  std::vector<Named> properties;            // those that were set, in that order
  std::vector<Named> keys;                  // of the path, where the broker copies them
  std::vector<Named> defaults;              // of the class, where the broker knows them
  bool filtered = false;
  Texts filter;
};

struct ArrayObject {
  CMPIArray face;
  TestBroker::Impl* broker;
  CMPIType type;
  std::vector<CMPIData> elements;
};

struct ArgsObject {
  CMPIArgs face;
  TestBroker::Impl* broker;
  std::vector<Named> arguments;
};

struct ResultObject {
  CMPIResult face;
  TestBroker::Impl* broker;
  Returned* returned;
};

bool same(const std::string& a, const char* b) {
  return strcasecmp(a.c_str(), b) == 0;
}

void put(CMPIStatus* rc, CMPIrc code) {
  if (rc != nullptr) *rc = {code, nullptr};
}

// Counts down to the call that is to fail.
bool fails(int& countdown) {
  return countdown > 0 && --countdown == 0;
}

Named* find(std::vector<Named>& list, const char* name) {
  for (Named& named : list)
    if (same(named.name, name)) return &named;
  return nullptr;
}

}  // namespace

struct TestBroker::Impl {
  std::recursive_mutex mutex;
  CMPIBroker face{};
  CMPIBrokerFT broker_table{};
  CMPIBrokerEncFT encapsulated{};
  CMPIStringFT string_table{};
  CMPIObjectPathFT path_table{};
  CMPIInstanceFT instance_table{};
  CMPIArrayFT array_table{};
  CMPIArgsFT args_table{};
  CMPIResultFT result_table{};

  std::deque<StringObject> strings;
  std::deque<PathObject> paths;
  std::deque<InstanceObject> instances;
  std::deque<ArrayObject> arrays;
  std::deque<ArgsObject> args;
  std::deque<ResultObject> results;

  explicit Impl(const Behavior& the_behavior) : behavior(the_behavior) {
    const auto problems = classes.add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof");
    for (const auto& problem : problems)
      ADD_FAILURE() << problem.message;
  }

  const Behavior behavior;
  cim::schema::Repository classes;
  std::map<std::string, std::string> superclasses;
  bool refusals_are_expected = false;
  bool filters = true;
  bool lock_is_watched = true;
  int path_fails = 0, instance_fails = 0, return_fails = 0, property_fails = 0;
  CMPIrc return_code = CMPI_RC_OK;
  int set_calls = 0;

  void fill_tables();

  CMPIString* string(const std::string& text) {
    StringObject& object = strings.emplace_back(StringObject{{}, text});
    object.face = {&object, &string_table};
    return &object.face;
  }
  CMPIObjectPath* path(const char* name_space, const char* class_name) {
    PathObject& object = paths.emplace_back();
    object.broker = this;
    object.name_space = name_space != nullptr ? name_space : "";
    object.class_name = class_name;
    object.face = {&object, &path_table};
    return &object.face;
  }
  InstanceObject& instance(const PathObject& path) {
    InstanceObject& object = instances.emplace_back();
    object.broker = this;
    object.name_space = path.name_space;
    object.class_name = path.class_name;
    object.face = {&object, &instance_table};
    return object;
  }
  // Whole numbers are all that the classes have as defaults.
  void set_defaults(InstanceObject& object) {
    const auto* cls = classes.find(object.class_name);
    if (cls == nullptr) return;
    for (const auto* property : classes.properties(*cls)) {
      const auto data = cim::host::to_data(property->default_value);
      const auto* number = std::get_if<std::uint64_t>(&data.element);
      if (data.null || data.is_array() || number == nullptr) continue;
      CMPIValue value{};
      value.uint64 = *number;
      object.defaults.push_back({property->name, keep(&value, data.type, CMPI_goodValue)});
    }
  }
  CMPIString* no_string() {
    CMPIString* made = string("");
    strings.back().empty = true;
    return made;
  }
  // A value of a provider that some object manager would not take.
  void left_out(const std::string& what) const {
    if (!refusals_are_expected) ADD_FAILURE() << what;
  }
  // As brokers keep values: texts become strings.
  CMPIData keep(const CMPIValue* value, CMPIType type, CMPIValueState state) {
    CMPIData data{type, state, {}};
    if (type == CMPI_chars) {
      data.type = CMPI_string;
      data.value.string = string(reinterpret_cast<const char*>(value));
    } else if (value != nullptr && type != CMPI_null) {
      data.value = *value;
    } else {
      data.state = CMPI_nullValue;
    }
    return data;
  }
};

namespace {

using Impl = TestBroker::Impl;

Impl& impl_of(const CMPIBroker* broker) {
  return *static_cast<Impl*>(broker->hdl);
}
StringObject& of(const CMPIString* face) {
  return *static_cast<StringObject*>(face->hdl);
}
PathObject& of(const CMPIObjectPath* face) {
  return *static_cast<PathObject*>(face->hdl);
}
InstanceObject& of(const CMPIInstance* face) {
  return *static_cast<InstanceObject*>(face->hdl);
}
ArrayObject& of(const CMPIArray* face) {
  return *static_cast<ArrayObject*>(face->hdl);
}
ArgsObject& of(const CMPIArgs* face) {
  return *static_cast<ArgsObject*>(face->hdl);
}
ResultObject& of(const CMPIResult* face) {
  return *static_cast<ResultObject*>(face->hdl);
}

using Guard = std::lock_guard<std::recursive_mutex>;

// Brokers whose keys have no state have fewer states of missing items, too.
CMPIData no_data(const Impl& broker, CMPIStatus* rc, CMPIrc code) {
  put(rc, code);
  const CMPIValueState also = broker.behavior.key_state ? CMPI_nullValue : CMPI_goodValue;
  return {CMPI_null, static_cast<CMPIValueState>(CMPI_notFound | also), {}};
}

CMPIData item(const std::vector<Named>& list, CMPICount index, CMPIString** name, Impl& broker,
              CMPIStatus* rc) {
  if (name != nullptr) *name = nullptr;
  if (index >= list.size()) return no_data(broker, rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  put(rc, CMPI_RC_OK);
  if (name != nullptr) *name = broker.string(list[index].name);
  return list[index].data;
}

CMPIData item(const Impl& broker, std::vector<Named>& list, const char* name, CMPIrc missing,
              CMPIStatus* rc) {
  const Named* found = find(list, name);
  if (found == nullptr) return no_data(broker, rc, missing);
  put(rc, CMPI_RC_OK);
  return found->data;
}

void set(std::vector<Named>& list, const char* name, const CMPIData& data) {
  if (Named* found = find(list, name))
    found->data = data;
  else
    list.push_back({name, data});
}

std::string in_quotes(const std::string& text) {
  return '"' + text + '"';
}

std::string print(const CMPIObjectPath* path);

std::string print(const CMPIData& data) {
  if ((data.state & ~CMPI_keyValue) != 0) return "null";
  if ((data.type & CMPI_ARRAY) != 0) {
    std::string text = "{";
    for (const CMPIData& element : of(data.value.array).elements)
      text += (text.size() > 1 ? ", " : "") + print(element);
    return text + "}";
  }
  switch (data.type) {
    case CMPI_string:
      return in_quotes(of(data.value.string).text);
    case CMPI_chars:
      return in_quotes(data.value.chars);
    case CMPI_ref:
      return "[" + print(data.value.ref) + "]";
    case CMPI_boolean:
      return data.value.boolean != 0 ? "true" : "false";
    case CMPI_uint8:
      return "uint8 " + std::to_string(data.value.uint8);
    case CMPI_uint16:
      return "uint16 " + std::to_string(data.value.uint16);
    case CMPI_uint32:
      return "uint32 " + std::to_string(data.value.uint32);
    case CMPI_sint32:
      return "sint32 " + std::to_string(data.value.sint32);
    case CMPI_uint64:
      return "uint64 " + std::to_string(data.value.uint64);
    default:
      return "type " + std::to_string(data.type);
  }
}

std::string print(const CMPIObjectPath* path) {
  const PathObject& object = of(path);
  std::string text = object.name_space + ":" + object.class_name;
  char separator = '.';
  for (const Named& key : object.keys) {
    text += separator + key.name + "=" + print(key.data);
    separator = ',';
  }
  return text;
}

// The class and its keys as the provider set them, whatever the filter lets out.
std::string print_identity(const CMPIInstance* instance) {
  InstanceObject& object = of(instance);
  std::string text = object.class_name + " {";
  const char* separator = "";
  if (object.cls == nullptr) return text + "}";
  for (const auto* key : object.broker->classes.keys(*object.cls)) {
    const Named* property = find(object.properties, key->name.c_str());
    text += separator + key->name + "=" + (property != nullptr ? print(property->data) : "null");
    separator = ", ";
  }
  return text + "}";
}

bool is_listed(const Texts& list, const char* name) {
  return std::any_of(list.begin(), list.end(),
                     [name](const std::string& listed) { return same(listed, name); });
}

// What the provider set, of that what its property filter lets out.
std::string print(const CMPIInstance* instance) {
  const InstanceObject& object = of(instance);
  std::string text = object.class_name + " {";
  const char* separator = "";
  for (const Named& property : object.properties) {
    if (object.filtered && !is_listed(object.filter, property.name.c_str())) continue;
    text += separator + property.name + "=" + print(property.data);
    separator = ", ";
  }
  return text + "}";
}

// ---- strings ----

const char* get_chars(const CMPIString* string, CMPIStatus* rc) {
  put(rc, CMPI_RC_OK);
  return of(string).empty ? nullptr : of(string).text.c_str();
}

// ---- paths ----

CMPIStatus set_host(const CMPIObjectPath* path, const char* host) {
  const Pause pause;
  of(path).host = host;
  return {CMPI_RC_OK, nullptr};
}

CMPIString* get_name_space(const CMPIObjectPath* path, CMPIStatus* rc) {
  const Pause pause;
  Impl& broker = *of(path).broker;
  const Guard guard(broker.mutex);
  put(rc, CMPI_RC_OK);
  return broker.string(of(path).name_space);
}

CMPIString* get_class_name(const CMPIObjectPath* path, CMPIStatus* rc) {
  const Pause pause;
  Impl& broker = *of(path).broker;
  const Guard guard(broker.mutex);
  put(rc, CMPI_RC_OK);
  return broker.string(of(path).class_name);
}

CMPIStatus add_key(const CMPIObjectPath* path, const char* name, const CMPIValue* value,
                   CMPIType type) {
  const Pause pause;
  Impl& broker = *of(path).broker;
  const Guard guard(broker.mutex);
  set(of(path).keys, name, broker.keep(value, type, CMPI_keyValue));
  return {CMPI_RC_OK, nullptr};
}

// The value of an integer of any type.
CMPISint64 integer(const CMPIData& data) {
  switch (data.type) {
    case CMPI_uint8:
      return data.value.uint8;
    case CMPI_uint16:
      return data.value.uint16;
    case CMPI_uint32:
      return data.value.uint32;
    case CMPI_sint8:
      return data.value.sint8;
    case CMPI_sint16:
      return data.value.sint16;
    case CMPI_sint32:
      return data.value.sint32;
    default:
      return data.value.sint64;
  }
}

bool has_quotation_mark(const PathObject& path) {
  return std::any_of(path.keys.begin(), path.keys.end(), [](const Named& key) {
    if (key.data.type == CMPI_ref) return has_quotation_mark(of(key.data.value.ref));
    return key.data.type == CMPI_string &&
           of(key.data.value.string).text.find('"') != std::string::npos;
  });
}

// A path in a key or a property as the broker gives it back.
CMPIData given_path(const Impl& broker, CMPIData data) {
  if (broker.behavior.nested_paths_as_text && data.type == CMPI_ref && data.value.ref != nullptr &&
      has_quotation_mark(of(data.value.ref)))
    data.value.ref = nullptr;
  return data;
}

// A key as the broker gives it back.
CMPIData given_key(const Impl& broker, CMPIData data) {
  data = given_path(broker, data);
  const bool is_text = data.type == CMPI_string && (data.state & CMPI_nullValue) == 0;
  if (broker.behavior.empty_keys_null && is_text && of(data.value.string).text.empty()) {
    data.value = {};
    data.state |= CMPI_nullValue;
  }
  const bool is_integer = (data.type & CMPI_INTEGER) != 0 && (data.type & ~0xff) == 0;
  if (is_integer && broker.behavior.integer_keys_widened) {
    data.value.sint64 = integer(data);
    data.type = CMPI_sint64;
  }
  if (!broker.behavior.key_state) data.state &= static_cast<CMPIValueState>(~CMPI_keyValue);
  return data;
}

CMPIData get_key(const CMPIObjectPath* path, const char* name, CMPIStatus* rc) {
  Impl& broker = *of(path).broker;
  const Named* found = find(of(path).keys, name);
  if (found == nullptr) return no_data(broker, rc, CMPI_RC_ERR_NOT_FOUND);
  put(rc, CMPI_RC_OK);
  return given_key(broker, found->data);
}

// The path's keys in the broker's order; those of its class that it lacks, where it counts them, as
// not found.
std::vector<Named> counted_keys(const PathObject& path) {
  const Impl& broker = *path.broker;
  std::vector<Named> keys = path.keys;
  const auto* cls = broker.classes.find(path.class_name);
  if (broker.behavior.missing_keys_counted && cls != nullptr)
    for (const auto* key : broker.classes.keys(*cls))
      if (find(keys, key->name.c_str()) == nullptr)
        keys.push_back({key->name, {CMPI_null, CMPI_notFound | CMPI_nullValue, {}}});
  if (broker.behavior.sorted_keys)
    std::sort(keys.begin(), keys.end(), [](const Named& a, const Named& b) {
      return strcasecmp(a.name.c_str(), b.name.c_str()) < 0;
    });
  return keys;
}

CMPIData get_key_at(const CMPIObjectPath* path, CMPICount index, CMPIString** name,
                    CMPIStatus* rc) {
  const Pause pause;
  Impl& broker = *of(path).broker;
  const Guard guard(broker.mutex);
  const std::vector<Named> keys = counted_keys(of(path));
  if (index >= keys.size() && !broker.behavior.key_state) {
    // Deliberately no error: a broker in use says nothing.
    put(rc, CMPI_RC_OK);
    if (name != nullptr) *name = broker.no_string();
    return {};
  }
  const CMPIData data = item(keys, index, name, broker, rc);
  if (index >= keys.size()) return data;
  if ((data.state & CMPI_notFound) != 0) put(rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  return given_key(broker, data);
}

CMPICount get_key_count(const CMPIObjectPath* path, CMPIStatus* rc) {
  const Pause pause;
  const Guard guard(of(path).broker->mutex);
  put(rc, CMPI_RC_OK);
  return static_cast<CMPICount>(counted_keys(of(path)).size());
}

// ---- instances ----

// Every property that the class has, those that nobody set as null, and those that were added.
std::vector<Named> all_properties(const InstanceObject& object) {
  std::vector<Named> all;
  if (object.cls != nullptr)
    for (const auto* property : object.broker->classes.properties(*object.cls))
      all.push_back({property->name, {cim::host::cmpi_type(*property), CMPI_nullValue, {}}});
  for (const auto* list : {&object.defaults, &object.keys, &object.properties})
    for (const Named& property : *list)
      set(all, property.name.c_str(), property.data);
  if (object.filtered && !object.broker->behavior.filter_on_output)
    std::erase_if(all,
                  [&](const Named& each) { return !is_listed(object.filter, each.name.c_str()); });
  return all;
}

CMPIData get_property(const CMPIInstance* instance, const char* name, CMPIStatus* rc) {
  const Pause pause;
  const InstanceObject& object = of(instance);
  const Guard guard(object.broker->mutex);
  std::vector<Named> all = all_properties(object);
  return given_path(*object.broker,
                    item(*object.broker, all, name, CMPI_RC_ERR_NO_SUCH_PROPERTY, rc));
}

CMPIData get_property_at(const CMPIInstance* instance, CMPICount index, CMPIString** name,
                         CMPIStatus* rc) {
  const Pause pause;
  Impl& broker = *of(instance).broker;
  const Guard guard(broker.mutex);
  return item(all_properties(of(instance)), index, name, broker, rc);
}

CMPICount get_property_count(const CMPIInstance* instance, CMPIStatus* rc) {
  const Pause pause;
  const Guard guard(of(instance).broker->mutex);
  put(rc, CMPI_RC_OK);
  return static_cast<CMPICount>(all_properties(of(instance)).size());
}

CMPIType as_kept(CMPIType type) {
  if (type == CMPI_chars) return CMPI_string;
  return type == CMPI_charsA ? CMPIType{CMPI_stringA} : type;
}

// What the broker does with a value of an instance whose class it knows: OK to keep it.
struct Judgement {
  CMPIrc code = CMPI_RC_OK;
  bool kept = true;
};

Judgement judge(const InstanceObject& object, const char* name, CMPIType type) {
  const Impl& broker = *object.broker;
  const std::string what = object.class_name + "." + name;
  const auto* property = broker.classes.property(*object.cls, name);
  if (property == nullptr) {
    broker.left_out(what + " is not declared");
    switch (broker.behavior.unknown_property) {
      case UnknownProperty::refuse:
        return {CMPI_RC_ERR_NO_SUCH_PROPERTY, false};
      case UnknownProperty::drop:
        return {CMPI_RC_OK, false};
      case UnknownProperty::add:
        return {};
    }
  }
  if (as_kept(type) == cim::host::cmpi_type(*property)) return {};
  if (type == CMPI_null && !broker.behavior.null_needs_type) return {};
  broker.left_out(what + " was set with type " + std::to_string(type));
  if (broker.behavior.wrong_type == WrongType::refuse)
    return {CMPI_RC_ERR_INVALID_DATA_TYPE, false};
  if (type == CMPI_chars) {
    ADD_FAILURE() << what << ": a broker in use ends the process here";
    return {CMPI_RC_ERR_INVALID_DATA_TYPE, false};
  }
  return {};
}

CMPIStatus set_property(const CMPIInstance* instance, const char* name, const CMPIValue* value,
                        CMPIType type) {
  const Pause pause;
  InstanceObject& object = of(instance);
  Impl& broker = *object.broker;
  const Guard guard(broker.mutex);
  ++broker.set_calls;
  if (fails(broker.property_fails)) return {CMPI_RC_ERR_FAILED, nullptr};
  if (object.cls != nullptr) {
    const Judgement judgement = judge(object, name, type);
    if (!judgement.kept) return {judgement.code, nullptr};
  }
  const bool filters_now = object.filtered && !broker.behavior.filter_on_output;
  if (filters_now && !is_listed(object.filter, name)) return {CMPI_RC_OK, nullptr};
  set(object.properties, name, broker.keep(value, type, CMPI_goodValue));
  return {CMPI_RC_OK, nullptr};
}

CMPIStatus set_property_filter(const CMPIInstance* instance, const char** properties,
                               const char** keys) {
  const Pause pause;
  InstanceObject& object = of(instance);
  if (!object.broker->filters) return {CMPI_RC_OK, nullptr};
  object.filtered = true;
  for (const char** list : {properties, keys})
    for (; list != nullptr && *list != nullptr; ++list)
      object.filter.emplace_back(*list);
  return {CMPI_RC_OK, nullptr};
}

CMPIObjectPath* get_object_path(const CMPIInstance* instance, CMPIStatus* rc) {
  const Pause pause;
  const InstanceObject& object = of(instance);
  const Guard guard(object.broker->mutex);
  put(rc, CMPI_RC_OK);
  return object.broker->path(object.name_space.c_str(), object.class_name.c_str());
}

// ---- arrays ----

CMPICount get_size(const CMPIArray* array, CMPIStatus* rc) {
  put(rc, CMPI_RC_OK);
  return static_cast<CMPICount>(of(array).elements.size());
}

CMPIData get_element(const CMPIArray* array, CMPICount index, CMPIStatus* rc) {
  const ArrayObject& object = of(array);
  if (index >= object.elements.size())
    return no_data(*object.broker, rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  put(rc, CMPI_RC_OK);
  return object.elements[index];
}

CMPIStatus set_element(const CMPIArray* array, CMPICount index, const CMPIValue* value,
                       CMPIType type) {
  const Pause pause;
  ArrayObject& object = of(array);
  const Guard guard(object.broker->mutex);
  if (index >= object.elements.size()) return {CMPI_RC_ERR_NO_SUCH_PROPERTY, nullptr};
  const bool fits = type == object.type || (type == CMPI_chars && object.type == CMPI_string &&
                                            object.broker->behavior.texts_fit_string_arrays);
  if (!fits) {
    object.broker->left_out("an array of type " + std::to_string(object.type) +
                            " was given an element of type " + std::to_string(type));
    return {CMPI_RC_ERR_TYPE_MISMATCH, nullptr};
  }
  object.elements[index] = object.broker->keep(value, type, CMPI_goodValue);
  return {CMPI_RC_OK, nullptr};
}

// ---- arguments ----

CMPIStatus add_argument(const CMPIArgs* args, const char* name, const CMPIValue* value,
                        CMPIType type) {
  const Pause pause;
  const Guard guard(of(args).broker->mutex);
  set(of(args).arguments, name, of(args).broker->keep(value, type, CMPI_goodValue));
  return {CMPI_RC_OK, nullptr};
}

CMPIData get_argument(const CMPIArgs* args, const char* name, CMPIStatus* rc) {
  return item(*of(args).broker, of(args).arguments, name, CMPI_RC_ERR_NOT_FOUND, rc);
}

// ---- results ----

CMPIStatus returned(Impl& broker, const std::function<void()>& keep) {
  const Pause pause;
  const Guard guard(broker.mutex);
  if (broker.lock_is_watched) {
    const int held = pthread_mutex_trylock(&global_mutex);
    EXPECT_EQ(held, 0) << "returned under the lock";
    if (held == 0) pthread_mutex_unlock(&global_mutex);
  }
  if (fails(broker.return_fails)) return {broker.return_code, nullptr};
  keep();
  return {CMPI_RC_OK, nullptr};
}

CMPIStatus return_data(const CMPIResult* result, const CMPIValue* value, CMPIType type) {
  ResultObject& object = of(result);
  return returned(*object.broker, [&] {
    object.returned->data.push_back(print(object.broker->keep(value, type, CMPI_goodValue)));
  });
}

CMPIStatus return_instance(const CMPIResult* result, const CMPIInstance* instance) {
  ResultObject& object = of(result);
  return returned(*object.broker, [&] {
    object.returned->instances.push_back(print(instance));
    object.returned->identities.push_back(print_identity(instance));
  });
}

CMPIStatus return_path(const CMPIResult* result, const CMPIObjectPath* path) {
  ResultObject& object = of(result);
  return returned(*object.broker, [&] {
    object.returned->paths.push_back(print(path));
    object.returned->objects.push_back(const_cast<CMPIObjectPath*>(path));
  });
}

CMPIStatus return_done(const CMPIResult* result) {
  ResultObject& object = of(result);
  return returned(*object.broker, [&] { ++object.returned->done; });
}

// ---- the broker ----

CMPIObjectPath* new_path(const CMPIBroker* face, const char* name_space, const char* class_name,
                         CMPIStatus* rc) {
  const Pause pause;
  Impl& broker = impl_of(face);
  const Guard guard(broker.mutex);
  if (fails(broker.path_fails)) {
    put(rc, CMPI_RC_ERR_FAILED);
    return nullptr;
  }
  put(rc, CMPI_RC_OK);
  return broker.path(name_space, class_name);
}

CMPIInstance* new_instance(const CMPIBroker* face, const CMPIObjectPath* path, CMPIStatus* rc) {
  const Pause pause;
  Impl& broker = impl_of(face);
  const Guard guard(broker.mutex);
  if (fails(broker.instance_fails)) {
    put(rc, CMPI_RC_ERR_FAILED);
    return nullptr;
  }
  const PathObject& of_path = of(path);
  const auto* cls = broker.classes.find(of_path.class_name);
  if (cls == nullptr) {
    broker.left_out("there is no class " + of_path.class_name);
    if (!broker.behavior.instances_of_unknown_class) {
      put(rc, CMPI_RC_ERR_INVALID_CLASS);
      return nullptr;
    }
  }
  InstanceObject& object = broker.instance(of_path);
  object.cls = cls;
  if (broker.behavior.keys_copied_to_instance) object.keys = of_path.keys;
  if (broker.behavior.class_defaults) broker.set_defaults(object);
  put(rc, CMPI_RC_OK);
  return &object.face;
}

CMPIString* new_string(const CMPIBroker* face, const char* text, CMPIStatus* rc) {
  const Pause pause;
  Impl& broker = impl_of(face);
  const Guard guard(broker.mutex);
  put(rc, CMPI_RC_OK);
  if (text != nullptr) return broker.string(text);
  if (!broker.behavior.key_state) return broker.no_string();
  put(rc, CMPI_RC_ERR_INVALID_PARAMETER);
  return nullptr;
}

CMPIArray* new_array(const CMPIBroker* face, CMPICount count, CMPIType type, CMPIStatus* rc) {
  const Pause pause;
  Impl& broker = impl_of(face);
  const Guard guard(broker.mutex);
  ArrayObject& object = broker.arrays.emplace_back();
  object.broker = &broker;
  object.type = type;
  object.elements.resize(count, CMPIData{type, CMPI_nullValue, {}});
  object.face = {&object, &broker.array_table};
  put(rc, CMPI_RC_OK);
  return &object.face;
}

CMPIBoolean class_path_is_a(const CMPIBroker* face, const CMPIObjectPath* path,
                            const char* class_name, CMPIStatus* rc) {
  const Pause pause;
  Impl& broker = impl_of(face);
  const Guard guard(broker.mutex);
  put(rc, CMPI_RC_OK);
  std::string cls = of(path).class_name;
  while (!same(cls, class_name)) {
    const auto found = broker.superclasses.find(cls);
    if (found == broker.superclasses.end()) return 0;
    cls = found->second;
  }
  return 1;
}

}  // namespace

void TestBroker::Impl::fill_tables() {
  broker_table.brokerName = "test";
  broker_table.brokerVersion = CMPICurrentVersion;
  encapsulated.newObjectPath = new_path;
  encapsulated.newInstance = new_instance;
  encapsulated.newString = new_string;
  encapsulated.newArray = new_array;
  encapsulated.classPathIsA = class_path_is_a;
  string_table.getCharPtr = get_chars;
  path_table.setHostname = set_host;
  path_table.getNameSpace = get_name_space;
  path_table.getClassName = get_class_name;
  path_table.addKey = add_key;
  path_table.getKey = get_key;
  path_table.getKeyAt = get_key_at;
  path_table.getKeyCount = get_key_count;
  instance_table.getProperty = get_property;
  instance_table.getPropertyAt = get_property_at;
  instance_table.getPropertyCount = get_property_count;
  instance_table.setProperty = set_property;
  instance_table.setPropertyFilter = set_property_filter;
  instance_table.getObjectPath = get_object_path;
  array_table.getSize = get_size;
  array_table.getElementAt = get_element;
  array_table.setElementAt = set_element;
  args_table.addArg = add_argument;
  args_table.getArg = get_argument;
  result_table.returnData = return_data;
  result_table.returnInstance = return_instance;
  result_table.returnObjectPath = return_path;
  result_table.returnDone = return_done;
  face = {this, &broker_table, &encapsulated, nullptr, nullptr};
}

Behavior mode() {
  const Pause pause;
  const char* name = std::getenv("VEXOR_HOST_MODE");
  const auto behavior = Behavior::named(name != nullptr ? name : "strict");
  if (!behavior) ADD_FAILURE() << "VEXOR_HOST_MODE=" << name << ": there is no such mode";
  return behavior.value_or(Behavior{});
}

TestBroker::TestBroker(const Behavior& behavior) {
  const Pause pause;
  impl_ = std::make_unique<Impl>(behavior);
  impl_->fill_tables();
}

TestBroker::~TestBroker() {
  const Pause pause;
  impl_.reset();
}

const CMPIBroker* TestBroker::face() const {
  return &impl_->face;
}

CMPIObjectPath* TestBroker::path(
    const char* class_name, const std::vector<std::pair<const char*, const char*>>& text_keys) {
  const Pause pause;
  const Guard guard(impl_->mutex);
  CMPIObjectPath* path = impl_->path("root/cimv2", class_name);
  for (const auto& [name, text] : text_keys)
    add_key(path, name, reinterpret_cast<const CMPIValue*>(text), CMPI_chars);
  return path;
}

CMPIObjectPath* TestBroker::add_reference(CMPIObjectPath* path, const char* key,
                                          CMPIObjectPath* object) {
  CMPIValue value{};
  value.ref = object;
  add_key(path, key, &value, CMPI_ref);
  return path;
}

CMPIInstance* TestBroker::instance(const char* class_name) {
  const Pause pause;
  const CMPIObjectPath* of_class = path(class_name);
  const Guard guard(impl_->mutex);
  InstanceObject& object = impl_->instance(of(of_class));
  if (impl_->behavior.defaults_in_requests) impl_->set_defaults(object);
  return &object.face;
}

CMPIArgs* TestBroker::arguments() {
  const Pause pause;
  ArgsObject& object = impl_->args.emplace_back();
  object.broker = impl_.get();
  object.face = {&object, &impl_->args_table};
  return &object.face;
}

CMPIResult* TestBroker::result(Returned& returned) {
  const Pause pause;
  const Guard guard(impl_->mutex);
  ResultObject& object = impl_->results.emplace_back();
  object.broker = impl_.get();
  object.returned = &returned;
  object.face = {&object, &impl_->result_table};
  return &object.face;
}

namespace {

template <class Object>
void end_behind(std::deque<Object>& objects, size_t count) {
  while (objects.size() > count)
    objects.pop_back();
}

}  // namespace

TestBroker::Made TestBroker::made() const {
  return {impl_->strings.size(), impl_->paths.size(), impl_->instances.size(),
          impl_->arrays.size(),  impl_->args.size(),  impl_->results.size()};
}

void TestBroker::end_objects_since(const Made& made) {
  const Pause pause;
  const Guard guard(impl_->mutex);
  end_behind(impl_->strings, made.strings);
  end_behind(impl_->paths, made.paths);
  end_behind(impl_->instances, made.instances);
  end_behind(impl_->arrays, made.arrays);
  end_behind(impl_->args, made.args);
  end_behind(impl_->results, made.results);
}

std::string TestBroker::text(const CMPIObjectPath* path) const {
  return print(path);
}
std::string TestBroker::text(const CMPIInstance* instance) const {
  return print(instance);
}
std::string TestBroker::text(const CMPIString* string) const {
  return string != nullptr ? of(string).text : "";
}

void TestBroker::derives(const char* class_name, const char* superclass) {
  impl_->superclasses[class_name] = superclass;
}
void TestBroker::know_superclasses() {
  const Pause pause;
  for (const auto* cls : impl_->classes.all())
    if (!cls->superclass.empty()) impl_->superclasses[cls->name] = cls->superclass;
}
void TestBroker::expect_refused_values() {
  impl_->refusals_are_expected = true;
}
void TestBroker::add_classes(const char* mof) {
  const Pause pause;
  for (const auto& problem : impl_->classes.add(cim::schema::read_mof_text(mof)))
    ADD_FAILURE() << problem.message;
}
void TestBroker::leave_out_optional_slots() {
  impl_->encapsulated.classPathIsA = nullptr;
  impl_->instance_table.setPropertyFilter = nullptr;
}
void TestBroker::ignore_property_filters() {
  impl_->filters = false;
}
void TestBroker::watch_lock_on_return(bool on) {
  impl_->lock_is_watched = on;
}

void TestBroker::fail_path(int n) {
  impl_->path_fails = n;
}
void TestBroker::fail_instance(int n) {
  impl_->instance_fails = n;
}
void TestBroker::fail_return(int n, CMPIrc code) {
  impl_->return_fails = n;
  impl_->return_code = code;
}
void TestBroker::fail_property(int n) {
  impl_->property_fails = n;
}
int TestBroker::properties_set() const {
  return impl_->set_calls;
}

}  // namespace provider_tests

#include "tests/providers/test_broker.h"

#include <cim_utils/session.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <strings.h>

#include <deque>
#include <functional>
#include <mutex>

#include "tests/support/heap_ledger.h"

namespace provider_tests {
namespace {

using Pause = test_support::HeapLedger::Pause;

struct Named {
  std::string name;
  CMPIData data;
};

struct StringObject {
  CMPIString face;
  std::string text;
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
  std::vector<Named> properties;
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

  std::map<std::string, std::string> superclasses;
  std::map<std::string, CMPIType> declared;
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
  // As brokers keep values: texts become strings.
  CMPIData keep(const CMPIValue* value, CMPIType type, CMPIValueState state) {
    CMPIData data{type, state, {}};
    if (type == CMPI_chars) {
      data.type = CMPI_string;
      data.value.string = string(reinterpret_cast<const char*>(value));
    } else if (value != nullptr) {
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

CMPIData no_data(CMPIStatus* rc, CMPIrc code) {
  put(rc, code);
  return {CMPI_null, CMPI_notFound | CMPI_nullValue, {}};
}

CMPIData item(std::vector<Named>& list, CMPICount index, CMPIString** name, Impl& broker,
              CMPIStatus* rc) {
  if (index >= list.size()) return no_data(rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  put(rc, CMPI_RC_OK);
  if (name != nullptr) *name = broker.string(list[index].name);
  return list[index].data;
}

CMPIData item(std::vector<Named>& list, const char* name, CMPIStatus* rc) {
  const Named* found = find(list, name);
  if (found == nullptr) return no_data(rc, CMPI_RC_ERR_NOT_FOUND);
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

std::string print(const CMPIInstance* instance) {
  const InstanceObject& object = of(instance);
  std::string text = object.class_name + " {";
  const char* separator = "";
  for (const Named& property : object.properties) {
    text += separator + property.name + "=" + print(property.data);
    separator = ", ";
  }
  return text + "}";
}

// ---- strings ----

const char* get_chars(const CMPIString* string, CMPIStatus* rc) {
  put(rc, CMPI_RC_OK);
  return of(string).text.c_str();
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

CMPIData get_key(const CMPIObjectPath* path, const char* name, CMPIStatus* rc) {
  return item(of(path).keys, name, rc);
}

CMPIData get_key_at(const CMPIObjectPath* path, CMPICount index, CMPIString** name,
                    CMPIStatus* rc) {
  const Pause pause;
  Impl& broker = *of(path).broker;
  const Guard guard(broker.mutex);
  return item(of(path).keys, index, name, broker, rc);
}

CMPICount get_key_count(const CMPIObjectPath* path, CMPIStatus* rc) {
  put(rc, CMPI_RC_OK);
  return static_cast<CMPICount>(of(path).keys.size());
}

// ---- instances ----

CMPIData get_property(const CMPIInstance* instance, const char* name, CMPIStatus* rc) {
  return item(of(instance).properties, name, rc);
}

CMPIData get_property_at(const CMPIInstance* instance, CMPICount index, CMPIString** name,
                         CMPIStatus* rc) {
  const Pause pause;
  Impl& broker = *of(instance).broker;
  const Guard guard(broker.mutex);
  return item(of(instance).properties, index, name, broker, rc);
}

CMPICount get_property_count(const CMPIInstance* instance, CMPIStatus* rc) {
  put(rc, CMPI_RC_OK);
  return static_cast<CMPICount>(of(instance).properties.size());
}

CMPIStatus set_property(const CMPIInstance* instance, const char* name, const CMPIValue* value,
                        CMPIType type) {
  const Pause pause;
  InstanceObject& object = of(instance);
  Impl& broker = *object.broker;
  const Guard guard(broker.mutex);
  ++broker.set_calls;
  if (fails(broker.property_fails)) return {CMPI_RC_ERR_FAILED, nullptr};
  const auto declared = broker.declared.find(name);
  const CMPIType kept = type == CMPI_chars ? CMPI_string : type;
  if (declared != broker.declared.end() && declared->second != kept)
    return {CMPI_RC_ERR_INVALID_DATA_TYPE, nullptr};
  if (object.filtered) {
    bool listed = false;
    for (const std::string& wanted : object.filter)
      listed = listed || same(wanted, name);
    if (!listed) return {CMPI_RC_OK, nullptr};
  }
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
  if (index >= of(array).elements.size()) return no_data(rc, CMPI_RC_ERR_NO_SUCH_PROPERTY);
  put(rc, CMPI_RC_OK);
  return of(array).elements[index];
}

CMPIStatus set_element(const CMPIArray* array, CMPICount index, const CMPIValue* value,
                       CMPIType type) {
  const Pause pause;
  ArrayObject& object = of(array);
  const Guard guard(object.broker->mutex);
  if (index >= object.elements.size()) return {CMPI_RC_ERR_NO_SUCH_PROPERTY, nullptr};
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
  return item(of(args).arguments, name, rc);
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
  return returned(*object.broker, [&] { object.returned->instances.push_back(print(instance)); });
}

CMPIStatus return_path(const CMPIResult* result, const CMPIObjectPath* path) {
  ResultObject& object = of(result);
  return returned(*object.broker, [&] { object.returned->paths.push_back(print(path)); });
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
  InstanceObject& object = broker.instances.emplace_back();
  object.broker = &broker;
  object.name_space = of(path).name_space;
  object.class_name = of(path).class_name;
  object.face = {&object, &broker.instance_table};
  put(rc, CMPI_RC_OK);
  return &object.face;
}

CMPIString* new_string(const CMPIBroker* face, const char* text, CMPIStatus* rc) {
  const Pause pause;
  Impl& broker = impl_of(face);
  const Guard guard(broker.mutex);
  put(rc, CMPI_RC_OK);
  return broker.string(text);
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

TestBroker::TestBroker() {
  const Pause pause;
  impl_ = std::make_unique<Impl>();
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
  return new_instance(face(), path(class_name), nullptr);
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
void TestBroker::declare(const char* property, CMPIType type) {
  impl_->declared[property] = type;
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

#include "tests/support/recording_broker.h"

#include <gtest/gtest.h>

#include <cctype>
#include <cinttypes>
#include <cstdio>
#include <deque>

#include "tests/support/heap_ledger.h"

namespace test_support {
namespace {

constexpr CMPIStatus kOk = {CMPI_RC_OK, nullptr};

struct TypeName {
  CMPIType type;
  const char* name;
};
constexpr TypeName kTypeNames[] = {
    {CMPI_null, "null"},     {CMPI_boolean, "boolean"},   {CMPI_char16, "char16"},
    {CMPI_real32, "real32"}, {CMPI_real64, "real64"},     {CMPI_uint8, "uint8"},
    {CMPI_uint16, "uint16"}, {CMPI_uint32, "uint32"},     {CMPI_uint64, "uint64"},
    {CMPI_sint8, "sint8"},   {CMPI_sint16, "sint16"},     {CMPI_sint32, "sint32"},
    {CMPI_sint64, "sint64"}, {CMPI_instance, "instance"}, {CMPI_ref, "ref"},
    {CMPI_string, "string"}, {CMPI_chars, "chars"},       {CMPI_dateTime, "dateTime"},
};

const char* print_name(const char* text) {
  return text == nullptr ? "null" : text;
}

std::string quote(const char* text) {
  if (text == nullptr) return "null";
  std::string quoted = "\"";
  for (const char* c = text; *c != '\0'; ++c) {
    char escape[8];
    if (*c == '"' || *c == '\\') {
      quoted += '\\';
      quoted += *c;
    } else if (*c == '\n') {
      quoted += "\\n";
    } else if (std::isprint(static_cast<unsigned char>(*c))) {
      quoted += *c;
    } else {
      snprintf(escape, sizeof escape, "\\x%02x", static_cast<unsigned char>(*c));
      quoted += escape;
    }
  }
  return quoted + "\"";
}

std::string print_list(const char** names) {
  if (names == nullptr) return "null";
  std::string list = "[";
  for (const char** name = names; *name != nullptr; ++name) {
    if (name != names) list += ",";
    list += *name;
  }
  return list + "]";
}

// A value as it was set: `written` for the line of the call, `content` for those who ask later.
struct Slot {
  std::string name;
  std::string written;
  std::string content;
  std::string text = "none";
  const CMPIObjectPath* reference = nullptr;
};

using Slots = std::vector<Slot>;

const Slot* find(const Slots& slots, const char* name) {
  for (const Slot& slot : slots) {
    if (slot.name == name) return &slot;
  }
  return nullptr;
}

void put(Slots& slots, const Slot& slot) {
  for (Slot& old : slots) {
    if (old.name == slot.name) {
      old = slot;
      return;
    }
  }
  slots.push_back(slot);
}

}  // namespace

std::string cmpi_type_name(CMPIType type) {
  CMPIType element = type & static_cast<CMPIType>(~CMPI_ARRAY);
  std::string name;
  for (const TypeName& known : kTypeNames) {
    if (known.type == element) name = known.name;
  }
  if (name.empty()) {
    char text[32];
    snprintf(text, sizeof text, "type 0x%04x", element);
    name = text;
  }
  return (type & CMPI_ARRAY) != 0 ? name + "[]" : name;
}

struct RecordingBroker::Impl {
  struct Path {
    CMPIObjectPath object;
    Impl* broker;
    std::string name;
    std::string name_space;
    std::string class_name;
    std::string host;
    Slots keys;
  };
  struct Instance {
    CMPIInstance object;
    Impl* broker;
    std::string name;
    std::string class_name;
    std::string host;
    std::string filter = "none";
    Slots properties;
  };
  struct Array {
    CMPIArray object;
    Impl* broker;
    std::string name;
    CMPIType type;
    std::vector<std::string> elements;
  };
  struct Fault {
    size_t in = 0;
    Failure how = Failure::null_object;
    // Whether this call fails.
    bool due() { return in != 0 && --in == 0; }
  };

  Impl();

  // One line. Through stdio, as the library's traces are.
  void write_down(const std::string& line) {
    ++calls;
    if (writing) printf("%s\n", line.c_str());
  }

  Slot read(const char* name, const CMPIValue* value, CMPIType type) const;
  std::string print_scalar(const CMPIValue* value, CMPIType type) const;
  const Array* find_array(const CMPIArray* array) const;
  std::string name_of(const CMPIObjectPath* path) const;
  std::string name_of(const CMPIInstance* instance) const;

  CMPIBroker broker{};
  CMPIBrokerFT operations{};
  CMPIBrokerEncFT factories{};
  CMPIObjectPathFT path_table{};
  CMPIInstanceFT instance_table{};
  CMPIArrayFT array_table{};
  std::deque<Path> paths;
  std::deque<Instance> instances;
  std::deque<Array> arrays;
  Fault path_fault;
  Fault instance_fault;
  Fault array_fault;
  size_t calls = 0;
  bool writing = true;
};

namespace {

using Impl = RecordingBroker::Impl;
using Failure = RecordingBroker::Failure;

Impl& impl_of(const CMPIBroker* broker) {
  return *static_cast<Impl*>(broker->hdl);
}
Impl::Path& path_of(const CMPIObjectPath* object) {
  return *static_cast<Impl::Path*>(object->hdl);
}
Impl::Instance& instance_of(const CMPIInstance* object) {
  return *static_cast<Impl::Instance*>(object->hdl);
}
Impl::Array& array_of(const CMPIArray* object) {
  return *static_cast<Impl::Array*>(object->hdl);
}

// Completes a call that makes an object: writes the line, which a status that was asked for ends,
// and hands the object out or what its fault says.
template <class Made>
auto hand_out(Impl& broker, Impl::Fault& fault, const std::string& call, Made& made, CMPIStatus* rc)
    -> decltype(&made.object) {
  const std::string line = call + (rc != nullptr ? ", status)" : ")");
  bool fails = fault.due();
  if (rc != nullptr) rc->rc = fails ? CMPI_RC_ERR_FAILED : CMPI_RC_OK;
  if (fails && fault.how == Failure::null_object) {
    broker.write_down(line + " -> null");
    return nullptr;
  }
  made.object.hdl = fails ? nullptr : &made;
  broker.write_down(line + " -> " + made.name + (fails ? " with a null handle" : ""));
  return &made.object;
}

CMPIObjectPath* new_object_path(const CMPIBroker* mb, const char* name_space,
                                const char* class_name, CMPIStatus* rc) {
  HeapLedger::Pause pause;
  Impl& broker = impl_of(mb);
  broker.paths.emplace_back();
  Impl::Path& path = broker.paths.back();
  path.object.ft = &broker.path_table;
  path.broker = &broker;
  path.name = "path" + std::to_string(broker.paths.size());
  path.name_space = print_name(name_space);
  path.class_name = print_name(class_name);
  return hand_out(broker, broker.path_fault,
                  "newObjectPath(" + path.name_space + ", " + path.class_name, path, rc);
}

CMPIInstance* new_instance(const CMPIBroker* mb, const CMPIObjectPath* op, CMPIStatus* rc) {
  HeapLedger::Pause pause;
  Impl& broker = impl_of(mb);
  broker.instances.emplace_back();
  Impl::Instance& instance = broker.instances.back();
  instance.object.ft = &broker.instance_table;
  instance.broker = &broker;
  instance.name = "instance" + std::to_string(broker.instances.size());
  if (op != nullptr && op->hdl != nullptr) {
    instance.class_name = path_of(op).class_name;
    instance.host = path_of(op).host;
  }
  return hand_out(broker, broker.instance_fault, "newInstance(" + broker.name_of(op), instance, rc);
}

CMPIArray* new_array(const CMPIBroker* mb, CMPICount size, CMPIType type, CMPIStatus* rc) {
  HeapLedger::Pause pause;
  Impl& broker = impl_of(mb);
  broker.arrays.emplace_back();
  Impl::Array& array = broker.arrays.back();
  array.object.ft = &broker.array_table;
  array.broker = &broker;
  array.name = "array" + std::to_string(broker.arrays.size());
  array.type = type;
  array.elements.assign(size, "null");
  return hand_out(broker, broker.array_fault,
                  "newArray(" + std::to_string(size) + ", " + cmpi_type_name(type), array, rc);
}

CMPIStatus set_hostname(const CMPIObjectPath* op, const char* host) {
  HeapLedger::Pause pause;
  Impl::Path& path = path_of(op);
  path.host = print_name(host);
  path.broker->write_down("setHostname(" + path.name + ", " + path.host + ")");
  return kOk;
}

CMPIStatus add_key(const CMPIObjectPath* op, const char* name, const CMPIValue* value,
                   CMPIType type) {
  HeapLedger::Pause pause;
  Impl::Path& path = path_of(op);
  Slot slot = path.broker->read(name, value, type);
  put(path.keys, slot);
  path.broker->write_down("addKey(" + path.name + ", " + slot.name + ", " + slot.written + ")");
  return kOk;
}

CMPIStatus set_property(const CMPIInstance* inst, const char* name, const CMPIValue* value,
                        CMPIType type) {
  HeapLedger::Pause pause;
  Impl::Instance& instance = instance_of(inst);
  Slot slot = instance.broker->read(name, value, type);
  put(instance.properties, slot);
  instance.broker->write_down("setProperty(" + instance.name + ", " + slot.name + ", " +
                              slot.written + ")");
  return kOk;
}

CMPIStatus set_property_filter(const CMPIInstance* inst, const char** properties,
                               const char** keys) {
  HeapLedger::Pause pause;
  Impl::Instance& instance = instance_of(inst);
  std::string names = print_list(properties);
  std::string key_names = print_list(keys);
  instance.filter = names + " " + key_names;
  instance.broker->write_down("setPropertyFilter(" + instance.name + ", " + names + ", " +
                              key_names + ")");
  return kOk;
}

CMPIStatus set_element_at(const CMPIArray* object, CMPICount index, const CMPIValue* value,
                          CMPIType type) {
  HeapLedger::Pause pause;
  Impl::Array& array = array_of(object);
  std::string element = array.broker->print_scalar(value, type);
  std::string line = "setElementAt(" + array.name + ", " + std::to_string(index) + ", " +
                     cmpi_type_name(type) + " " + element + ")";
  if (type != array.type) {
    array.broker->write_down(line + " -> wrong type");
    return {CMPI_RC_ERR_TYPE_MISMATCH, nullptr};
  }
  if (index >= array.elements.size()) {
    array.broker->write_down(line + " -> past the end");
    return {CMPI_RC_ERR_INVALID_PARAMETER, nullptr};
  }
  array.elements[index] = element;
  array.broker->write_down(line);
  return kOk;
}

}  // namespace

RecordingBroker::Impl::Impl() {
  factories.newObjectPath = new_object_path;
  factories.newInstance = new_instance;
  factories.newArray = new_array;
  path_table.setHostname = set_hostname;
  path_table.addKey = add_key;
  instance_table.setProperty = set_property;
  instance_table.setPropertyFilter = set_property_filter;
  array_table.setElementAt = set_element_at;
  broker.hdl = this;
  broker.bft = &operations;
  broker.eft = &factories;
}

const RecordingBroker::Impl::Array* RecordingBroker::Impl::find_array(
    const CMPIArray* array) const {
  for (const Array& known : arrays) {
    if (&known.object == array) return &known;
  }
  return nullptr;
}

std::string RecordingBroker::Impl::name_of(const CMPIObjectPath* path) const {
  if (path == nullptr) return "null";
  for (const Path& known : paths) {
    if (&known.object == path) return known.name;
  }
  return "a path of another broker";
}

std::string RecordingBroker::Impl::name_of(const CMPIInstance* instance) const {
  if (instance == nullptr) return "null";
  for (const Instance& known : instances) {
    if (&known.object == instance) return known.name;
  }
  return "an instance of another broker";
}

// The value alone, without its type.
std::string RecordingBroker::Impl::print_scalar(const CMPIValue* value, CMPIType type) const {
  if (value == nullptr) return "null";
  char text[64] = "?";
  switch (type) {
    case CMPI_chars:
      return quote(reinterpret_cast<const char*>(value));
    case CMPI_ref:
      return name_of(value->ref);
    case CMPI_boolean:
      return value->boolean ? "true" : "false";
    case CMPI_uint8:
      return std::to_string(value->uint8);
    case CMPI_uint16:
      return std::to_string(value->uint16);
    case CMPI_uint32:
      return std::to_string(value->uint32);
    case CMPI_uint64:
      return std::to_string(value->uint64);
    case CMPI_sint8:
      return std::to_string(value->sint8);
    case CMPI_sint16:
      return std::to_string(value->sint16);
    case CMPI_sint32:
      return std::to_string(value->sint32);
    case CMPI_sint64:
      return std::to_string(value->sint64);
    case CMPI_char16:
      return std::to_string(value->char16);
    case CMPI_real32:
      snprintf(text, sizeof text, "%g", static_cast<double>(value->real32));
      break;
    case CMPI_real64:
      snprintf(text, sizeof text, "%g", value->real64);
      break;
    default:
      break;
  }
  return text;
}

Slot RecordingBroker::Impl::read(const char* name, const CMPIValue* value, CMPIType type) const {
  Slot slot;
  slot.name = print_name(name);
  std::string type_name = cmpi_type_name(type) + " ";
  if ((type & CMPI_ARRAY) == 0) {
    slot.written = slot.content = type_name + print_scalar(value, type);
    if (type == CMPI_chars && value != nullptr) slot.text = reinterpret_cast<const char*>(value);
    if (type == CMPI_ref && value != nullptr) slot.reference = value->ref;
    return slot;
  }
  const Array* array = value == nullptr ? nullptr : find_array(value->array);
  if (array == nullptr) {
    slot.written = slot.content =
        type_name + (value == nullptr || value->array == nullptr ? "null" : "of another broker");
    return slot;
  }
  slot.written = type_name + array->name;
  if (type != (array->type | CMPI_ARRAY)) {
    slot.written += " made as " + cmpi_type_name(array->type);
  }
  slot.content = type_name + "{";
  for (size_t i = 0; i < array->elements.size(); ++i) {
    slot.content += (i == 0 ? "" : ", ") + array->elements[i];
  }
  slot.content += "}";
  return slot;
}

RecordingBroker::RecordingBroker() {
  HeapLedger::Pause pause;
  impl_ = std::make_unique<Impl>();
}

RecordingBroker::~RecordingBroker() {
  HeapLedger::Pause pause;
  impl_.reset();
}

const CMPIBroker* RecordingBroker::broker() const {
  return &impl_->broker;
}

void RecordingBroker::fail_nth_path(size_t n, Failure how) {
  impl_->path_fault = {n, how};
}
void RecordingBroker::fail_nth_instance(size_t n, Failure how) {
  impl_->instance_fault = {n, how};
}
void RecordingBroker::fail_nth_array(size_t n, Failure how) {
  impl_->array_fault = {n, how};
}
void RecordingBroker::write_down(bool on) {
  impl_->writing = on;
}
size_t RecordingBroker::calls() const {
  return impl_->calls;
}

namespace {

bool usable(const CMPIObjectPath* path) {
  if (path != nullptr && path->hdl != nullptr) return true;
  ADD_FAILURE() << "the path is null or has a null handle";
  return false;
}

bool usable(const CMPIInstance* instance) {
  if (instance != nullptr && instance->hdl != nullptr) return true;
  ADD_FAILURE() << "the instance is null or has a null handle";
  return false;
}

std::vector<std::string> names_of(const Slots& slots) {
  std::vector<std::string> names;
  for (const Slot& slot : slots)
    names.push_back(slot.name);
  return names;
}

}  // namespace

std::string RecordingBroker::class_name(const CMPIObjectPath* path) const {
  return usable(path) ? path_of(path).class_name : "none";
}

std::string RecordingBroker::class_name(const CMPIInstance* instance) const {
  return usable(instance) ? instance_of(instance).class_name : "none";
}

std::string RecordingBroker::name_space(const CMPIObjectPath* path) const {
  return usable(path) ? path_of(path).name_space : "none";
}

std::string RecordingBroker::host(const CMPIObjectPath* path) const {
  return usable(path) ? path_of(path).host : "none";
}

std::string RecordingBroker::host(const CMPIInstance* instance) const {
  return usable(instance) ? instance_of(instance).host : "none";
}

std::vector<std::string> RecordingBroker::key_names(const CMPIObjectPath* path) const {
  return usable(path) ? names_of(path_of(path).keys) : std::vector<std::string>();
}

std::vector<std::string> RecordingBroker::property_names(const CMPIInstance* instance) const {
  return usable(instance) ? names_of(instance_of(instance).properties) : std::vector<std::string>();
}

std::string RecordingBroker::key(const CMPIObjectPath* path, const char* name) const {
  const Slot* slot = usable(path) ? find(path_of(path).keys, name) : nullptr;
  return slot == nullptr ? "none" : slot->content;
}

std::string RecordingBroker::property(const CMPIInstance* instance, const char* name) const {
  const Slot* slot = usable(instance) ? find(instance_of(instance).properties, name) : nullptr;
  return slot == nullptr ? "none" : slot->content;
}

std::string RecordingBroker::key_text(const CMPIObjectPath* path, const char* name) const {
  const Slot* slot = usable(path) ? find(path_of(path).keys, name) : nullptr;
  return slot == nullptr ? "none" : slot->text;
}

std::string RecordingBroker::property_text(const CMPIInstance* instance, const char* name) const {
  const Slot* slot = usable(instance) ? find(instance_of(instance).properties, name) : nullptr;
  return slot == nullptr ? "none" : slot->text;
}

const CMPIObjectPath* RecordingBroker::key_reference(const CMPIObjectPath* path,
                                                     const char* name) const {
  const Slot* slot = usable(path) ? find(path_of(path).keys, name) : nullptr;
  return slot == nullptr ? nullptr : slot->reference;
}

const CMPIObjectPath* RecordingBroker::property_reference(const CMPIInstance* instance,
                                                          const char* name) const {
  const Slot* slot = usable(instance) ? find(instance_of(instance).properties, name) : nullptr;
  return slot == nullptr ? nullptr : slot->reference;
}

std::string RecordingBroker::filter(const CMPIInstance* instance) const {
  return usable(instance) ? instance_of(instance).filter : "none";
}

std::string RecordingBroker::name(const CMPIObjectPath* path) const {
  return impl_->name_of(path);
}

std::string RecordingBroker::name(const CMPIInstance* instance) const {
  return impl_->name_of(instance);
}

}  // namespace test_support

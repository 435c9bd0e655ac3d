#include "cmpi/builder.h"

#include <cim_utils/session.h>

#include <cstdio>

namespace cim_utils {
namespace {

// A text is handed over as the pointer itself, in keys, properties and array elements alike.
const CMPIValue* as_value(const char* text) {
  return reinterpret_cast<const CMPIValue*>(text);
}

CMPIValue reference_value(const CMPIObjectPath* path) {
  CMPIValue value{};
  value.ref = const_cast<CMPIObjectPath*>(path);
  return value;
}

}  // namespace

bool usable(const CMPIObjectPath* path) {
  return path != nullptr && path->hdl != nullptr;
}

bool usable(const CMPIInstance* instance) {
  return instance != nullptr && instance->hdl != nullptr;
}

CMPIObjectPath* new_path(const CMPIBroker* broker, const char* ns, const char* cls) {
  CMPIObjectPath* path = broker->eft->newObjectPath(broker, ns, cls, nullptr);
  if (usable(path)) path->ft->setHostname(path, getCSName());
  return path;
}

CMPIInstance* new_instance(const CMPIBroker* broker, const char* ns, const char* cls) {
  CMPIObjectPath* path = new_path(broker, ns, cls);
  if (!usable(path)) return nullptr;
  CMPIInstance* instance = broker->eft->newInstance(broker, path, nullptr);
  return usable(instance) ? instance : nullptr;
}

void add_reference_key(CMPIObjectPath* path, const char* role, const CMPIObjectPath* end) {
  if (end == nullptr) return;
  const CMPIValue value = reference_value(end);
  path->ft->addKey(path, role, &value, CMPI_ref);
}

void set_reference(CMPIInstance* instance, const char* role, const CMPIObjectPath* end) {
  if (end == nullptr) return;
  const CMPIValue value = reference_value(end);
  instance->ft->setProperty(instance, role, &value, CMPI_ref);
}

int32_t CmpiBuilder::queue() const {
  return mts_q;
}

model::Opened CmpiBuilder::open_path(const char* cls, const char* ns, model::BadPath bad_path) {
  path_.path = new_path(path_.broker(), ns, cls);
  if (usable(path_.path)) return {&path_, {}};
  if (bad_path == model::BadPath::say_and_as_it_came) std::printf("ObjectPath is null\n\n\n");
  return {nullptr, {bad_path == model::BadPath::null ? nullptr : path_.path}};
}

model::ObjectWriter* CmpiBuilder::open_instance(const char* cls, const char* ns) {
  instance_.instance = new_instance(instance_.broker(), ns, cls);
  return instance_.instance != nullptr ? &instance_ : nullptr;
}

model::ObjectWriter* CmpiBuilder::open_instance(const char* cls, const char* ns,
                                                const model::KeyNames& keys, model::Filter filter,
                                                const char** properties) {
  model::ObjectWriter* writer = open_instance(cls, ns);
  if (writer != nullptr && filter == model::Filter::applied) {
    CMPIInstance* instance = instance_.instance;
    instance->ft->setPropertyFilter(instance, properties, keys.list());
  }
  return writer;
}

void CmpiBuilder::Writer::text(const char* name, const char* value) {
  if (value != nullptr) set(name, as_value(value), CMPI_chars);
}

void CmpiBuilder::Writer::boolean(const char* name, bool value) {
  CMPIValue v{};
  v.boolean = value;
  set(name, &v, CMPI_boolean);
}

void CmpiBuilder::Writer::uint8(const char* name, uint8_t value) {
  CMPIValue v{};
  v.uint8 = value;
  set(name, &v, CMPI_uint8);
}

void CmpiBuilder::Writer::uint16(const char* name, uint16_t value) {
  CMPIValue v{};
  v.uint16 = value;
  set(name, &v, CMPI_uint16);
}

void CmpiBuilder::Writer::uint32(const char* name, uint32_t value) {
  CMPIValue v{};
  v.uint32 = value;
  set(name, &v, CMPI_uint32);
}

void CmpiBuilder::Writer::uint64(const char* name, uint64_t value) {
  CMPIValue v{};
  v.uint64 = value;
  set(name, &v, CMPI_uint64);
}

void CmpiBuilder::Writer::sint32(const char* name, int32_t value) {
  CMPIValue v{};
  v.sint32 = value;
  set(name, &v, CMPI_sint32);
}

CMPIArray* CmpiBuilder::Writer::new_array(size_t count, CMPIType type) {
  CMPIArray* array = broker_->eft->newArray(broker_, static_cast<CMPICount>(count), type, nullptr);
  return array != nullptr && array->hdl != nullptr ? array : nullptr;
}

void CmpiBuilder::Writer::set_array(const char* name, CMPIArray* array, CMPIType type) {
  CMPIValue v{};
  v.array = array;
  set(name, &v, type);
}

CMPIArray* CmpiBuilder::Writer::new_array(std::span<const uint16_t> values) {
  CMPIArray* array = new_array(values.size(), CMPI_uint16);
  if (array == nullptr) return nullptr;
  CMPICount index = 0;
  for (const uint16_t value : values) {
    CMPIValue v{};
    v.uint16 = value;
    array->ft->setElementAt(array, index++, &v, CMPI_uint16);
  }
  return array;
}

void CmpiBuilder::Writer::uint16s(const char* name, std::span<const uint16_t> values) {
  CMPIArray* array = new_array(values);
  if (array != nullptr) set_array(name, array, CMPI_uint16A);
}

void CmpiBuilder::Writer::same_uint16s(const char* first, const char* second,
                                       std::span<const uint16_t> values) {
  CMPIArray* array = new_array(values);
  if (array == nullptr) return;
  set_array(first, array, CMPI_uint16A);
  set_array(second, array, CMPI_uint16A);
}

void CmpiBuilder::Writer::uint64s(const char* name, std::span<const uint64_t> values) {
  CMPIArray* array = new_array(values.size(), CMPI_uint64);
  if (array == nullptr) return;
  CMPICount index = 0;
  for (const uint64_t value : values) {
    CMPIValue v{};
    v.uint64 = value;
    array->ft->setElementAt(array, index++, &v, CMPI_uint64);
  }
  set_array(name, array, CMPI_uint64A);
}

void CmpiBuilder::Writer::texts(const char* name, std::span<const char* const> values) {
  CMPIArray* array = new_array(values.size(), CMPI_chars);
  if (array == nullptr) return;
  CMPICount index = 0;
  for (const char* value : values) {
    array->ft->setElementAt(array, index++, as_value(value), CMPI_chars);
  }
  set_array(name, array, CMPI_charsA);
}

void CmpiBuilder::Writer::reference(const char* role, model::Ref end) {
  const auto* const path = static_cast<const CMPIObjectPath*>(end.object);
  if (!usable(path)) return;
  const CMPIValue value = reference_value(path);
  set(role, &value, CMPI_ref);
}

void CmpiBuilder::PathWriter::set(const char* name, const CMPIValue* value, CMPIType type) {
  path->ft->addKey(path, name, value, type);
}

void CmpiBuilder::InstanceWriter::set(const char* name, const CMPIValue* value, CMPIType type) {
  instance->ft->setProperty(instance, name, value, type);
}

}  // namespace cim_utils

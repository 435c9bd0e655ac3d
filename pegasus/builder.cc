#include "pegasus/builder.h"

#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/Exception.h>
#include <Pegasus/Common/System.h>
#include <cim_utils/provider_util.h>

#include <cstdio>

namespace cim_utils {

using Pegasus::Array;
using Pegasus::CIMInstance;
using Pegasus::CIMKeyBinding;
using Pegasus::CIMName;
using Pegasus::CIMNamespaceName;
using Pegasus::CIMObjectPath;
using Pegasus::CIMProperty;
using Pegasus::CIMValue;
using Pegasus::String;

int32_t PegasusBuilder::queue() const {
  return ProviderUtil::mts_q;
}

model::Opened PegasusBuilder::open_path(const char* cls, const char* ns, model::BadPath) {
  path_.cls = cls;
  path_.ns = ns;
  path_.keys.clear();
  return {&path_, {}};
}

model::ObjectWriter* PegasusBuilder::open_instance(const char* cls, const char*) {
  instance_.instance.emplace(CIMName(cls));
  return &instance_;
}

model::ObjectWriter* PegasusBuilder::open_instance(const char* cls, const char* ns,
                                                   const model::KeyNames&, model::Filter,
                                                   const char**) {
  return open_instance(cls, ns);
}

model::Ref PegasusBuilder::make_path() {
  if (closed_count_ == closed_.size()) return {};  // no class needs so many
  auto& path = closed_[closed_count_];
  path.emplace(Pegasus::System::getHostName(), CIMNamespaceName(path_.ns), CIMName(path_.cls),
               path_.keys);
  ++closed_count_;
  return {&*path};
}

model::Ref PegasusBuilder::close_path(model::ObjectWriter*) {
  if (bad_path_text_ == nullptr) return make_path();
  try {
    return make_path();
  } catch (const Pegasus::Exception& e) {
    std::printf("%s%s", bad_path_text_, static_cast<const char*>(e.getMessage().getCString()));
    return {};
  }
}

model::Object PegasusBuilder::close_instance(model::ObjectWriter*) {
  // The class definitions live in one namespace, whatever namespace the instance is for.
  ProviderUtil::addQualifiers(*instance_.instance, "root/cimv2");
  return {&*instance_.instance};
}

void PegasusBuilder::Writer::text(const char* name, const char* value) {
  if (value != nullptr) set(name, CIMValue(String(value)));
}

void PegasusBuilder::Writer::boolean(const char* name, bool value) {
  set(name, CIMValue(Pegasus::Boolean(value)));
}

void PegasusBuilder::Writer::uint8(const char* name, uint8_t value) {
  set(name, CIMValue(Pegasus::Uint8(value)));
}

void PegasusBuilder::Writer::uint16(const char* name, uint16_t value) {
  set(name, CIMValue(Pegasus::Uint16(value)));
}

void PegasusBuilder::Writer::uint32(const char* name, uint32_t value) {
  set(name, CIMValue(Pegasus::Uint32(value)));
}

void PegasusBuilder::Writer::uint64(const char* name, uint64_t value) {
  set(name, CIMValue(Pegasus::Uint64(value)));
}

void PegasusBuilder::Writer::sint32(const char* name, int32_t value) {
  set(name, CIMValue(Pegasus::Sint32(value)));
}

void PegasusBuilder::Writer::uint16s(const char* name, std::span<const uint16_t> values) {
  Array<Pegasus::Uint16> array;
  for (const uint16_t value : values)
    array.append(value);
  set(name, CIMValue(array));
}

void PegasusBuilder::Writer::same_uint16s(const char* first, const char* second,
                                          std::span<const uint16_t> values) {
  uint16s(first, values);
  uint16s(second, values);
}

void PegasusBuilder::Writer::uint64s(const char* name, std::span<const uint64_t> values) {
  Array<Pegasus::Uint64> array;
  for (const uint64_t value : values)
    array.append(value);
  set(name, CIMValue(array));
}

void PegasusBuilder::Writer::texts(const char* name, std::span<const char* const> values) {
  Array<String> array;
  for (const char* value : values)
    array.append(String(value));
  set(name, CIMValue(array));
}

void PegasusBuilder::Writer::reference(const char* role, model::Ref end) {
  if (end.object != nullptr) set(role, CIMValue(*static_cast<const CIMObjectPath*>(end.object)));
}

void PegasusBuilder::PathWriter::set(const char* name, const CIMValue& value) {
  keys.append(CIMKeyBinding(CIMName(name), value));
}

void PegasusBuilder::InstanceWriter::set(const char* name, const CIMValue& value) {
  instance->addProperty(CIMProperty(CIMName(name), value));
}

void PegasusBuilder::InstanceWriter::path(model::Ref path) {
  if (path.object != nullptr) instance->setPath(*static_cast<const CIMObjectPath*>(path.object));
}

CIMObjectPath to_pegasus(model::Ref ref) {
  return ref.object != nullptr ? *static_cast<const CIMObjectPath*>(ref.object) : CIMObjectPath();
}

CIMInstance to_pegasus(model::Object object) {
  return object.object != nullptr ? *static_cast<const CIMInstance*>(object.object) : CIMInstance();
}

namespace {

// An end that could not be made is left out.
model::Ref end_of(const CIMObjectPath& path) {
  return {path.getClassName().isNull() ? nullptr : &path};
}

}  // namespace

CIMObjectPath association_reference(const char* cls, const String& ns, const CIMObjectPath& first,
                                    const CIMObjectPath& second, const char* first_role,
                                    const char* second_role) {
  const Pegasus::CString ns_text = ns.getCString();
  PegasusBuilder builder;
  auto [out, ref] = builder.open_path(cls, ns_text, model::BadPath::null);
  out->reference(first_role, end_of(first));
  out->reference(second_role, end_of(second));
  return to_pegasus(builder.close_path(out));
}

CIMInstance association_instance(const char* cls, const String& ns, const CIMObjectPath& first,
                                 const CIMObjectPath& second, const char* first_role,
                                 const char* second_role) {
  const Pegasus::CString ns_text = ns.getCString();
  PegasusBuilder builder;
  model::ObjectWriter* out = builder.open_instance(cls, ns_text);
  out->reference(first_role, end_of(first));
  out->reference(second_role, end_of(second));
  const CIMObjectPath path = association_reference(cls, ns, first, second, first_role, second_role);
  out->path({&path});
  return to_pegasus(builder.close_instance(out));
}

}  // namespace cim_utils

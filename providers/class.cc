#include "providers/class.h"

namespace vexor::providers {
namespace {

bool same_value(const CMPIData& a, const CMPIData& b);

bool same_elements(const CMPIArray* a, const CMPIArray* b) {
  if (a == nullptr || b == nullptr) return a == b;
  const CMPICount count = a->ft->getSize(a, nullptr);
  if (b->ft->getSize(b, nullptr) != count) return false;
  for (CMPICount index = 0; index < count; ++index)
    if (!same_value(a->ft->getElementAt(a, index, nullptr), b->ft->getElementAt(b, index, nullptr)))
      return false;
  return true;
}

bool same_value(const CMPIData& a, const CMPIData& b) {
  const bool array = (a.type & CMPI_ARRAY) != 0;
  if (array != ((b.type & CMPI_ARRAY) != 0)) return false;
  const bool values = a.state == CMPI_goodValue && b.state == CMPI_goodValue;
  if (array) return values && same_elements(a.value.array, b.value.array);
  std::string first, second;
  return to_text(a, first) && to_text(b, second) && first == second;
}

std::optional<ObjectName> object_in(const CMPIData& data, const CMPIStatus& status) {
  const bool has_value = status.rc == CMPI_RC_OK && (data.state & ~CMPI_keyValue) == 0;
  if (!has_value || data.type != CMPI_ref || data.value.ref == nullptr) return std::nullopt;
  return ObjectName(data.value.ref);
}

}  // namespace

bool NewValues::is_asked_for(const char* property) const {
  if (properties_ != nullptr) return is_in(property, properties_);
  return blank_ == nullptr || !same_in(blank_, property);
}

bool NewValues::text(const char* property, std::string& value) const {
  if (!is_asked_for(property)) return false;
  CMPIStatus status = {CMPI_RC_OK, nullptr};
  const CMPIData data = instance_->ft->getProperty(instance_, property, &status);
  return status.rc == CMPI_RC_OK && to_text(data, value);
}

bool NewValues::has(const char* property) const {
  CMPIStatus status = {CMPI_RC_OK, nullptr};
  const CMPIData data = instance_->ft->getProperty(instance_, property, &status);
  return status.rc == CMPI_RC_OK && (data.state & ~CMPI_keyValue) == 0;
}

std::vector<std::string> NewValues::names() const {
  std::vector<std::string> given;
  const CMPICount count = instance_->ft->getPropertyCount(instance_, nullptr);
  for (CMPICount index = 0; index < count; ++index) {
    CMPIString* name = nullptr;
    CMPIStatus status = {CMPI_RC_OK, nullptr};
    const CMPIData data = instance_->ft->getPropertyAt(instance_, index, &name, &status);
    if (status.rc != CMPI_RC_OK || (data.state & ~CMPI_keyValue) != 0) continue;
    const char* text = chars_of(name);
    if (is_asked_for(text)) given.emplace_back(text);
  }
  return given;
}

bool NewValues::same_in(const CMPIInstance* other, const char* property) const {
  CMPIStatus mine = {CMPI_RC_OK, nullptr};
  CMPIStatus theirs = {CMPI_RC_OK, nullptr};
  const CMPIData a = instance_->ft->getProperty(instance_, property, &mine);
  const CMPIData b = other->ft->getProperty(other, property, &theirs);
  return mine.rc == CMPI_RC_OK && theirs.rc == CMPI_RC_OK && same_value(a, b);
}

std::optional<ObjectName> NewValues::reference(const char* property) const {
  if (properties_ != nullptr && !is_in(property, properties_)) return std::nullopt;
  CMPIStatus status = {CMPI_RC_OK, nullptr};
  const CMPIData data = instance_->ft->getProperty(instance_, property, &status);
  return object_in(data, status);
}

bool Arguments::text(const char* argument, std::string& value) const {
  if (in == nullptr) return false;
  CMPIStatus status = {CMPI_RC_OK, nullptr};
  const CMPIData data = in->ft->getArg(in, argument, &status);
  return status.rc == CMPI_RC_OK && to_text(data, value);
}

std::optional<ObjectName> Arguments::reference(const char* argument) const {
  if (in == nullptr) return std::nullopt;
  CMPIStatus status = {CMPI_RC_OK, nullptr};
  const CMPIData data = in->ft->getArg(in, argument, &status);
  return object_in(data, status);
}

void Arguments::give_back(const char* argument, const CMPIObjectPath* path) const {
  if (path == nullptr || path->hdl == nullptr)
    throw Failure(CMPI_RC_ERR_FAILED, "the object path for \"%s\" cannot be made", argument);
  if (out == nullptr) return;
  CMPIValue value{};
  // Headers differ in whether the path is constant.
  value.ref = const_cast<CMPIObjectPath*>(path);
  const CMPIStatus status = out->ft->addArg(out, argument, &value, CMPI_ref);
  if (status.rc != CMPI_RC_OK)
    throw Failure(status.rc, "the object path for \"%s\" was not taken", argument);
}

}  // namespace vexor::providers

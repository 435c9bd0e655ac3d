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

}  // namespace

bool NewValues::text(const char* property, std::string& value) const {
  if (properties_ != nullptr && !is_in(property, properties_)) return false;
  CMPIStatus status = {CMPI_RC_OK, nullptr};
  const CMPIData data = instance_->ft->getProperty(instance_, property, &status);
  return status.rc == CMPI_RC_OK && to_text(data, value);
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
    if (properties_ == nullptr || is_in(text, properties_)) given.emplace_back(text);
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

bool Arguments::text(const char* argument, std::string& value) const {
  if (in == nullptr) return false;
  CMPIStatus status = {CMPI_RC_OK, nullptr};
  const CMPIData data = in->ft->getArg(in, argument, &status);
  return status.rc == CMPI_RC_OK && to_text(data, value);
}

}  // namespace vexor::providers

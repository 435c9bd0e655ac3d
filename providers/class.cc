#include "providers/class.h"

namespace vexor::providers {

bool NewValues::text(const char* property, std::string& value) const {
  if (properties_ != nullptr && !is_in(property, properties_)) return false;
  CMPIStatus status = {CMPI_RC_OK, nullptr};
  const CMPIData data = instance_->ft->getProperty(instance_, property, &status);
  return status.rc == CMPI_RC_OK && to_text(data, value);
}

}  // namespace vexor::providers

// The failure of a CIM operation: a status code, as clients get it, and a text for a person.
#ifndef HOST_CIM_ERROR_H_
#define HOST_CIM_ERROR_H_

#include <cmpidt.h>

#include <stdexcept>
#include <string>
#include <string_view>

namespace cim::host {

/// "CIM_ERR_NOT_FOUND" for CMPI_RC_ERR_NOT_FOUND, and so on; "status 77" for a code without a name.
std::string status_name(CMPIrc code);

/// Thrown by the operations of an ObjectManager. No exception crosses the CMPI tables: they turn it
/// into a CMPIStatus.
class CimError : public std::runtime_error {
 public:
  CimError(CMPIrc code, const std::string& text) : std::runtime_error(text), code_(code) {}

  CMPIrc code() const { return code_; }

 private:
  CMPIrc code_;
};

}  // namespace cim::host

#endif  // HOST_CIM_ERROR_H_

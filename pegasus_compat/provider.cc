#include <Pegasus/Common/ResponseHandler.h>
#include <Pegasus/Provider/CIMInstanceProvider.h>
#include <Pegasus/Provider/CIMProvider.h>

namespace Pegasus {
inline namespace vexor_compat {

CIMProvider::CIMProvider() = default;
CIMProvider::~CIMProvider() = default;
CIMInstanceProvider::CIMInstanceProvider() = default;
CIMInstanceProvider::~CIMInstanceProvider() = default;

ResponseHandler::ResponseHandler() = default;
ResponseHandler::ResponseHandler(const ResponseHandler& handler) = default;
ResponseHandler::~ResponseHandler() = default;
ResponseHandler& ResponseHandler::operator=(const ResponseHandler& handler) = default;
void ResponseHandler::setContext(const OperationContext& context) {
  _context = context;
}
OperationContext ResponseHandler::getContext() const {
  return _context;
}

InstanceResponseHandler::~InstanceResponseHandler() = default;
ObjectPathResponseHandler::~ObjectPathResponseHandler() = default;

}  // namespace vexor_compat
}  // namespace Pegasus

#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/Exception.h>

namespace Pegasus {
inline namespace vexor_compat {

Exception::Exception(const String& message) : _message(message) {}
Exception::Exception(const Exception& exception) = default;
Exception::~Exception() = default;
Exception& Exception::operator=(const Exception& exception) = default;
const String& Exception::getMessage() const {
  return _message;
}

IndexOutOfBoundsException::IndexOutOfBoundsException() : Exception("index out of bounds") {}
IndexOutOfBoundsException::~IndexOutOfBoundsException() = default;

AlreadyExistsException::AlreadyExistsException(const String& message)
    : Exception(String("already exists: ") + message) {}
AlreadyExistsException::~AlreadyExistsException() = default;

DynamicCastFailedException::DynamicCastFailedException() : Exception("dynamic cast failed") {}
DynamicCastFailedException::~DynamicCastFailedException() = default;

InvalidNameException::InvalidNameException(const String& name)
    : Exception(String("The CIM name is not valid: ") + name) {}
InvalidNameException::~InvalidNameException() = default;

InvalidNamespaceNameException::InvalidNamespaceNameException(const String& name)
    : Exception(String("invalid CIM namespace name: ") + name) {}
InvalidNamespaceNameException::~InvalidNamespaceNameException() = default;

MalformedObjectNameException::MalformedObjectNameException(const String& objectName)
    : Exception(String("malformed object name: ") + objectName) {}
MalformedObjectNameException::~MalformedObjectNameException() = default;

UninitializedObjectException::UninitializedObjectException() : Exception("uninitialized object") {}
UninitializedObjectException::~UninitializedObjectException() = default;

TypeMismatchException::TypeMismatchException() : Exception("type mismatch") {}
TypeMismatchException::~TypeMismatchException() = default;

InvalidDateTimeFormatException::InvalidDateTimeFormatException()
    : Exception("invalid datetime format") {}
InvalidDateTimeFormatException::~InvalidDateTimeFormatException() = default;

CIMException::CIMException(CIMStatusCode code, const String& message)
    : Exception(message), _code(code) {}

CIMException::CIMException(CIMStatusCode code, const String& message, const CIMInstance& instance)
    : Exception(message), _code(code), _errors(1, instance) {}

CIMException::CIMException(CIMStatusCode code, const String& message,
                           const Array<CIMInstance>& instances)
    : Exception(message), _code(code), _errors(instances) {}

CIMException::CIMException(const CIMException& cimException) = default;
CIMException& CIMException::operator=(const CIMException& cimException) = default;
CIMException::~CIMException() = default;
CIMStatusCode CIMException::getCode() const {
  return _code;
}
Uint32 CIMException::getErrorCount() const {
  return _errors.size();
}
CIMConstInstance CIMException::getError(Uint32 index) const {
  return _errors[index];
}
void CIMException::addError(const CIMInstance& instance) {
  _errors.append(instance);
}

CIMNotSupportedException::CIMNotSupportedException(const String& message)
    : CIMException(CIM_ERR_NOT_SUPPORTED, message) {}
CIMNotSupportedException::~CIMNotSupportedException() = default;

CIMObjectAlreadyExistsException::CIMObjectAlreadyExistsException(const String& message)
    : CIMException(CIM_ERR_ALREADY_EXISTS, message) {}
CIMObjectAlreadyExistsException::~CIMObjectAlreadyExistsException() = default;

CIMObjectNotFoundException::CIMObjectNotFoundException(const String& message)
    : CIMException(CIM_ERR_NOT_FOUND, message) {}
CIMObjectNotFoundException::~CIMObjectNotFoundException() = default;

CIMInvalidParameterException::CIMInvalidParameterException(const String& message)
    : CIMException(CIM_ERR_INVALID_PARAMETER, message) {}
CIMInvalidParameterException::~CIMInvalidParameterException() = default;

CIMAccessDeniedException::CIMAccessDeniedException(const String& message)
    : CIMException(CIM_ERR_ACCESS_DENIED, message) {}
CIMAccessDeniedException::~CIMAccessDeniedException() = default;

CIMPropertyNotFoundException::CIMPropertyNotFoundException(const String& message)
    : CIMException(CIM_ERR_NO_SUCH_PROPERTY, message) {}
CIMPropertyNotFoundException::~CIMPropertyNotFoundException() = default;

CIMOperationFailedException::CIMOperationFailedException(const String& message)
    : CIMException(CIM_ERR_FAILED, message) {}
CIMOperationFailedException::~CIMOperationFailedException() = default;

const char* cimStatusCodeToString(CIMStatusCode code) {
  switch (code) {
    case CIM_ERR_SUCCESS:
      return "CIM_ERR_SUCCESS";
    case CIM_ERR_FAILED:
      return "CIM_ERR_FAILED";
    case CIM_ERR_ACCESS_DENIED:
      return "CIM_ERR_ACCESS_DENIED";
    case CIM_ERR_INVALID_NAMESPACE:
      return "CIM_ERR_INVALID_NAMESPACE";
    case CIM_ERR_INVALID_PARAMETER:
      return "CIM_ERR_INVALID_PARAMETER";
    case CIM_ERR_INVALID_CLASS:
      return "CIM_ERR_INVALID_CLASS";
    case CIM_ERR_NOT_FOUND:
      return "CIM_ERR_NOT_FOUND";
    case CIM_ERR_NOT_SUPPORTED:
      return "CIM_ERR_NOT_SUPPORTED";
    case CIM_ERR_CLASS_HAS_CHILDREN:
      return "CIM_ERR_CLASS_HAS_CHILDREN";
    case CIM_ERR_CLASS_HAS_INSTANCES:
      return "CIM_ERR_CLASS_HAS_INSTANCES";
    case CIM_ERR_INVALID_SUPERCLASS:
      return "CIM_ERR_INVALID_SUPERCLASS";
    case CIM_ERR_ALREADY_EXISTS:
      return "CIM_ERR_ALREADY_EXISTS";
    case CIM_ERR_NO_SUCH_PROPERTY:
      return "CIM_ERR_NO_SUCH_PROPERTY";
    case CIM_ERR_TYPE_MISMATCH:
      return "CIM_ERR_TYPE_MISMATCH";
    case CIM_ERR_QUERY_LANGUAGE_NOT_SUPPORTED:
      return "CIM_ERR_QUERY_LANGUAGE_NOT_SUPPORTED";
    case CIM_ERR_INVALID_QUERY:
      return "CIM_ERR_INVALID_QUERY";
    case CIM_ERR_METHOD_NOT_AVAILABLE:
      return "CIM_ERR_METHOD_NOT_AVAILABLE";
    case CIM_ERR_METHOD_NOT_FOUND:
      return "CIM_ERR_METHOD_NOT_FOUND";
    case CIM_ERR_NAMESPACE_NOT_EMPTY:
      return "CIM_ERR_NAMESPACE_NOT_EMPTY";
    case CIM_ERR_INVALID_ENUMERATION_CONTEXT:
      return "CIM_ERR_INVALID_ENUMERATION_CONTEXT";
    case CIM_ERR_INVALID_OPERATION_TIMEOUT:
      return "CIM_ERR_INVALID_OPERATION_TIMEOUT";
    case CIM_ERR_PULL_HAS_BEEN_ABANDONED:
      return "CIM_ERR_PULL_HAS_BEEN_ABANDONED";
    case CIM_ERR_PULL_CANNOT_BE_ABANDONED:
      return "CIM_ERR_PULL_CANNOT_BE_ABANDONED";
    case CIM_ERR_FILTERED_ENUMERATION_NOT_SUPPORTED:
      return "CIM_ERR_FILTERED_ENUMERATION_NOT_SUPPORTED";
    case CIM_ERR_CONTINUATION_ON_ERROR_NOT_SUPPORTED:
      return "CIM_ERR_CONTINUATION_ON_ERROR_NOT_SUPPORTED";
    case CIM_ERR_SERVER_LIMITS_EXCEEDED:
      return "CIM_ERR_SERVER_LIMITS_EXCEEDED";
    case CIM_ERR_SERVER_IS_SHUTTING_DOWN:
      return "CIM_ERR_SERVER_IS_SHUTTING_DOWN";
  }
  return "unknown";
}

}  // namespace vexor_compat
}  // namespace Pegasus

#ifndef PEGASUS_COMMON_EXCEPTION_H
#define PEGASUS_COMMON_EXCEPTION_H

#include <Pegasus/Common/Array.h>
#include <Pegasus/Common/CIMStatusCode.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>
#include <Pegasus/Common/String.h>

namespace Pegasus {
inline namespace vexor_compat {

// What this interface throws; each subclass says what went wrong in its message.
class PEGASUS_COMMON_LINKAGE Exception {
 public:
  Exception(const String& message);
  Exception(const Exception& exception);
  virtual ~Exception();
  Exception& operator=(const Exception& exception);
  virtual const String& getMessage() const;

 private:
  String _message;
};

// Message: "index out of bounds".
class PEGASUS_COMMON_LINKAGE IndexOutOfBoundsException : public Exception {
 public:
  IndexOutOfBoundsException();
  ~IndexOutOfBoundsException() override;
};

// Message: "already exists: " and the message.
class PEGASUS_COMMON_LINKAGE AlreadyExistsException : public Exception {
 public:
  AlreadyExistsException(const String& message);
  ~AlreadyExistsException() override;
};

// Message: "dynamic cast failed".
class PEGASUS_COMMON_LINKAGE DynamicCastFailedException : public Exception {
 public:
  DynamicCastFailedException();
  ~DynamicCastFailedException() override;
};

// Message: "The CIM name is not valid: " and the name.
class PEGASUS_COMMON_LINKAGE InvalidNameException : public Exception {
 public:
  InvalidNameException(const String& name);
  ~InvalidNameException() override;
};

// Message: "invalid CIM namespace name: " and the name.
class PEGASUS_COMMON_LINKAGE InvalidNamespaceNameException : public Exception {
 public:
  InvalidNamespaceNameException(const String& name);
  ~InvalidNamespaceNameException() override;
};

// Message: "malformed object name: " and the text.
class PEGASUS_COMMON_LINKAGE MalformedObjectNameException : public Exception {
 public:
  MalformedObjectNameException(const String& objectName);
  ~MalformedObjectNameException() override;
};

// Message: "uninitialized object".
class PEGASUS_COMMON_LINKAGE UninitializedObjectException : public Exception {
 public:
  UninitializedObjectException();
  ~UninitializedObjectException() override;
};

// Message: "type mismatch".
class PEGASUS_COMMON_LINKAGE TypeMismatchException : public Exception {
 public:
  TypeMismatchException();
  ~TypeMismatchException() override;
};

// Message: "invalid datetime format".
class PEGASUS_COMMON_LINKAGE InvalidDateTimeFormatException : public Exception {
 public:
  InvalidDateTimeFormatException();
  ~InvalidDateTimeFormatException() override;
};

// An error of a CIM operation: what the client gets as code and description.
class PEGASUS_COMMON_LINKAGE CIMException : public Exception {
 public:
  CIMException(CIMStatusCode code = CIM_ERR_SUCCESS, const String& message = String::EMPTY);
  CIMException(CIMStatusCode code, const String& message, const CIMInstance& instance);
  CIMException(CIMStatusCode code, const String& message, const Array<CIMInstance>& instances);
  CIMException(const CIMException& cimException);
  CIMException& operator=(const CIMException& cimException);
  ~CIMException() override;

  CIMStatusCode getCode() const;

#ifdef PEGASUS_USE_EXPERIMENTAL_INTERFACES
  // The CIM_Error instances that go with the error.
  Uint32 getErrorCount() const;
  CIMConstInstance getError(Uint32 index) const;
  void addError(const CIMInstance& instance);
#endif

 private:
  CIMStatusCode _code;
  Array<CIMInstance> _errors;
};

// Code: CIM_ERR_NOT_SUPPORTED.
class PEGASUS_COMMON_LINKAGE CIMNotSupportedException : public CIMException {
 public:
  CIMNotSupportedException(const String& message);
  ~CIMNotSupportedException() override;
};

// Code: CIM_ERR_ALREADY_EXISTS.
class PEGASUS_COMMON_LINKAGE CIMObjectAlreadyExistsException : public CIMException {
 public:
  CIMObjectAlreadyExistsException(const String& message);
  ~CIMObjectAlreadyExistsException() override;
};

// Code: CIM_ERR_NOT_FOUND.
class PEGASUS_COMMON_LINKAGE CIMObjectNotFoundException : public CIMException {
 public:
  CIMObjectNotFoundException(const String& message);
  ~CIMObjectNotFoundException() override;
};

// Code: CIM_ERR_INVALID_PARAMETER.
class PEGASUS_COMMON_LINKAGE CIMInvalidParameterException : public CIMException {
 public:
  CIMInvalidParameterException(const String& message);
  ~CIMInvalidParameterException() override;
};

// Code: CIM_ERR_ACCESS_DENIED.
class PEGASUS_COMMON_LINKAGE CIMAccessDeniedException : public CIMException {
 public:
  CIMAccessDeniedException(const String& message);
  ~CIMAccessDeniedException() override;
};

// Code: CIM_ERR_NO_SUCH_PROPERTY.
class PEGASUS_COMMON_LINKAGE CIMPropertyNotFoundException : public CIMException {
 public:
  CIMPropertyNotFoundException(const String& message);
  ~CIMPropertyNotFoundException() override;
};

// Code: CIM_ERR_FAILED.
class PEGASUS_COMMON_LINKAGE CIMOperationFailedException : public CIMException {
 public:
  CIMOperationFailedException(const String& message);
  ~CIMOperationFailedException() override;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif

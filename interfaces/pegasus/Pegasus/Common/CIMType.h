#ifndef PEGASUS_COMMON_CIMTYPE_H
#define PEGASUS_COMMON_CIMTYPE_H

#include <Pegasus/Common/Config.h>

namespace Pegasus {
inline namespace vexor_compat {

enum CIMType {
  CIMTYPE_BOOLEAN = 0,
  CIMTYPE_UINT8 = 1,
  CIMTYPE_SINT8 = 2,
  CIMTYPE_UINT16 = 3,
  CIMTYPE_SINT16 = 4,
  CIMTYPE_UINT32 = 5,
  CIMTYPE_SINT32 = 6,
  CIMTYPE_UINT64 = 7,
  CIMTYPE_SINT64 = 8,
  CIMTYPE_REAL32 = 9,
  CIMTYPE_REAL64 = 10,
  CIMTYPE_CHAR16 = 11,
  CIMTYPE_STRING = 12,
  CIMTYPE_DATETIME = 13,
  CIMTYPE_REFERENCE = 14,
  CIMTYPE_OBJECT = 15,
  CIMTYPE_INSTANCE = 16
};

// The type as MOF and CIM-XML write it, "uint16" for example; "unknown" for another number.
PEGASUS_COMMON_LINKAGE const char* cimTypeToString(CIMType type);

}  // namespace vexor_compat
}  // namespace Pegasus

#endif

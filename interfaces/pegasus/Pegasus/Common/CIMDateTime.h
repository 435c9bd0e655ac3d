#ifndef PEGASUS_COMMON_CIMDATETIME_H
#define PEGASUS_COMMON_CIMDATETIME_H

#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>
#include <Pegasus/Common/String.h>

namespace Pegasus {
inline namespace vexor_compat {

// A CIM datetime in its 25-character form: a point in time "yyyymmddhhmmss.mmmmmmsutc" or an
// interval "ddddddddhhmmss.mmmmmm:000". Unknown parts on the right are asterisks. Another text
// throws InvalidDateTimeFormatException. Default: the interval of length 0.
class PEGASUS_COMMON_LINKAGE CIMDateTime {
 public:
  CIMDateTime();
  CIMDateTime(const String& str);

  String toString() const;
  void set(const String& str);
  void clear();
  Boolean isInterval() const;
  // Two points in time are equal when they are the same moment, whatever their offsets from UTC;
  // with unknown parts, when their texts are.
  Boolean equal(const CIMDateTime& x) const;

  // The current local time with its offset from UTC.
  static CIMDateTime getCurrentDateTime();

 private:
  String _text;  // empty for the default interval
};

PEGASUS_COMMON_LINKAGE Boolean operator==(const CIMDateTime& x, const CIMDateTime& y);
PEGASUS_COMMON_LINKAGE Boolean operator!=(const CIMDateTime& x, const CIMDateTime& y);

}  // namespace vexor_compat
}  // namespace Pegasus

#endif

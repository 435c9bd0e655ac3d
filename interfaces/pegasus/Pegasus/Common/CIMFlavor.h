#ifndef PEGASUS_COMMON_CIMFLAVOR_H
#define PEGASUS_COMMON_CIMFLAVOR_H

#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>
#include <Pegasus/Common/String.h>

namespace Pegasus {
inline namespace vexor_compat {

// A set of qualifier flavors.
class PEGASUS_COMMON_LINKAGE CIMFlavor {
 public:
  CIMFlavor() noexcept : _bits(0) {}

  void addFlavor(const CIMFlavor& flavor);
  void removeFlavor(const CIMFlavor& flavor);
  // Whether every flavor of the argument is in this set.
  Boolean hasFlavor(const CIMFlavor& flavor) const;
  Boolean equal(const CIMFlavor& flavor) const;
  CIMFlavor operator+(const CIMFlavor& flavor) const;
  // The names in capitals, separated by a space.
  String toString() const;

  static const CIMFlavor NONE;
  static const CIMFlavor OVERRIDABLE;
  static const CIMFlavor ENABLEOVERRIDE;  // another name of OVERRIDABLE
  static const CIMFlavor DISABLEOVERRIDE;
  static const CIMFlavor TOSUBCLASS;
  static const CIMFlavor RESTRICTED;
  static const CIMFlavor TOINSTANCE;
  static const CIMFlavor TRANSLATABLE;
  static const CIMFlavor DEFAULTS;       // OVERRIDABLE and TOSUBCLASS
  static const CIMFlavor TOSUBELEMENTS;  // another name of TOSUBCLASS

 private:
  explicit constexpr CIMFlavor(Uint32 bits) noexcept : _bits(bits) {}
  Uint32 _bits;
};

PEGASUS_COMMON_LINKAGE Boolean operator==(const CIMFlavor& x, const CIMFlavor& y);
PEGASUS_COMMON_LINKAGE Boolean operator!=(const CIMFlavor& x, const CIMFlavor& y);

}  // namespace vexor_compat
}  // namespace Pegasus

#endif

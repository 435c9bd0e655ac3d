#ifndef PEGASUS_COMMON_CIMSCOPE_H
#define PEGASUS_COMMON_CIMSCOPE_H

#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>
#include <Pegasus/Common/String.h>

namespace Pegasus {
inline namespace vexor_compat {

// The set of elements that a qualifier may stand on.
class PEGASUS_COMMON_LINKAGE CIMScope {
 public:
  CIMScope() noexcept : _bits(0) {}

  void addScope(const CIMScope& scope);
  Boolean hasScope(const CIMScope& scope) const;
  Boolean equal(const CIMScope& scope) const;
  CIMScope operator+(const CIMScope& scope) const;
  // The names in capitals, separated by a space.
  String toString() const;

  static const CIMScope NONE;
  static const CIMScope CLASS;
  static const CIMScope ASSOCIATION;
  static const CIMScope INDICATION;
  static const CIMScope PROPERTY;
  static const CIMScope REFERENCE;
  static const CIMScope METHOD;
  static const CIMScope PARAMETER;
  static const CIMScope ANY;  // all of them

 private:
  explicit constexpr CIMScope(Uint32 bits) noexcept : _bits(bits) {}
  Uint32 _bits;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif

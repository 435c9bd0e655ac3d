#ifndef PEGASUS_COMMON_CHAR16_H
#define PEGASUS_COMMON_CHAR16_H

#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>

namespace Pegasus {
inline namespace vexor_compat {

// One UTF-16 code unit. Compares and prints as the number it is.
class PEGASUS_COMMON_LINKAGE Char16 {
 public:
  Char16() noexcept : _code(0) {}
  Char16(Uint16 x) noexcept : _code(x) {}
  Char16& operator=(Uint16 x) noexcept {
    _code = x;
    return *this;
  }
  operator Uint16() const noexcept { return _code; }

 private:
  Uint16 _code;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif

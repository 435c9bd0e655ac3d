#ifndef PEGASUS_COMMON_CHAR16_H
#define PEGASUS_COMMON_CHAR16_H

#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>

#include <type_traits>

namespace Pegasus {
inline namespace vexor_compat {

// One UTF-16 code unit. Compares and prints as the number it is.
class PEGASUS_COMMON_LINKAGE Char16 {
 public:
  constexpr Char16() noexcept : _code(0) {}
  constexpr Char16(Uint16 x) noexcept : _code(x) {}
  Char16& operator=(Uint16 x) noexcept {
    _code = x;
    return *this;
  }
  constexpr operator Uint16() const noexcept { return _code; }

 private:
  Uint16 _code;
};

// Without these a comparison would be ambiguous where other types are made from a Char16.
inline constexpr Boolean operator==(const Char16& x, const Char16& y) noexcept {
  return static_cast<Uint16>(x) == static_cast<Uint16>(y);
}
inline constexpr Boolean operator!=(const Char16& x, const Char16& y) noexcept {
  return !(x == y);
}

template <class T>
constexpr typename std::enable_if<std::is_integral<T>::value, Boolean>::type operator==(
    const Char16& x, T y) noexcept {
  return static_cast<Uint16>(x) == y;
}
template <class T>
constexpr typename std::enable_if<std::is_integral<T>::value, Boolean>::type operator==(
    T x, const Char16& y) noexcept {
  return x == static_cast<Uint16>(y);
}
template <class T>
constexpr typename std::enable_if<std::is_integral<T>::value, Boolean>::type operator!=(
    const Char16& x, T y) noexcept {
  return !(x == y);
}
template <class T>
constexpr typename std::enable_if<std::is_integral<T>::value, Boolean>::type operator!=(
    T x, const Char16& y) noexcept {
  return !(x == y);
}

}  // namespace vexor_compat
}  // namespace Pegasus

#endif

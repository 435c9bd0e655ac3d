#ifndef PEGASUS_COMPAT_UTF_H
#define PEGASUS_COMPAT_UTF_H

#include <Pegasus/Common/Char16.h>

#include <cstddef>
#include <string>

namespace Pegasus {
inline namespace vexor_compat {

// The number of UTF-16 code units for n bytes of UTF-8. Throws Exception if they are not UTF-8:
// overlong forms, surrogates, characters past U+10FFFF and cut-off sequences included.
size_t utf16Length(const char* text, size_t n);

// Writes the code units; the bytes must have passed utf16Length.
void toUtf16(const char* text, size_t n, Char16* out);

// UTF-8 of n code units, without a final zero. A surrogate without its other half becomes U+FFFD.
// Writes nothing if out is null. Returns the number of bytes.
size_t toUtf8(const Char16* text, size_t n, char* out);

}  // namespace vexor_compat
}  // namespace Pegasus

#endif

#ifndef PEGASUS_COMMON_CONFIG_H
#define PEGASUS_COMMON_CONFIG_H

// Basic types and the macros that provider sources expect.
//
// Everything stands in the inline namespace Pegasus::vexor_compat: sources write Pegasus::String,
// but the symbols carry another name than those of an OpenPegasus library in the same process.

#define PEGASUS_PLATFORM_LINUX_GENERIC_GNU
#define PEGASUS_OS_TYPE_UNIX
#define PEGASUS_OS_LINUX
#define PEGASUS_COMPILER_GNU

#define PEGASUS_EXPORT __attribute__((visibility("default")))
#define PEGASUS_IMPORT __attribute__((visibility("default")))
#define PEGASUS_COMMON_LINKAGE PEGASUS_EXPORT
#define PEGASUS_PROVIDER_LINKAGE PEGASUS_EXPORT
#define PEGASUS_TEMPLATE_LINKAGE PEGASUS_EXPORT

#define PEGASUS_NAMESPACE_BEGIN \
  namespace Pegasus {           \
  inline namespace vexor_compat {
#define PEGASUS_NAMESPACE_END \
  }                           \
  }
#define PEGASUS_USING_PEGASUS using namespace Pegasus
#define PEGASUS_USING_STD using namespace std
#define PEGASUS_STD(NAME) std::NAME

// Marks a printf-like function; the first argument of a method is its object.
#define PEGASUS_FORMAT(FORMAT, FIRST) __attribute__((format(printf, FORMAT, FIRST)))

namespace Pegasus {
inline namespace vexor_compat {

typedef bool Boolean;
typedef unsigned char Uint8;
typedef signed char Sint8;
typedef unsigned short Uint16;
typedef signed short Sint16;
typedef unsigned int Uint32;
typedef signed int Sint32;
// (unsigned) long long, although the platform's 64-bit integers are (unsigned) long: code that
// passes a size_t must say which width it means, here as with any other Pegasus headers.
typedef unsigned long long Uint64;
typedef signed long long Sint64;
typedef float Real32;
typedef double Real64;

}  // namespace vexor_compat
}  // namespace Pegasus

// The index of something that is not there.
#define PEG_NOT_FOUND Pegasus::Uint32(-1)

#endif

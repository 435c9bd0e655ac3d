#ifndef PEGASUS_PROVIDER_CIMPROVIDER_H
#define PEGASUS_PROVIDER_CIMPROVIDER_H

#include <Pegasus/Common/Config.h>
#include <Pegasus/Provider/CIMOMHandle.h>
#include <Pegasus/Provider/Linkage.h>

namespace Pegasus {
inline namespace vexor_compat {

// What every provider is. The object manager gets it from the library's C function
//
//     extern "C" PEGASUS_EXPORT Pegasus::CIMProvider* PegasusCreateProvider(
//         const Pegasus::String& name);
//
// which answers null for a name that it does not know.
class PEGASUS_PROVIDER_LINKAGE CIMProvider {
 public:
  CIMProvider();
  virtual ~CIMProvider();
  // Called once, before any request. The provider may keep a copy of the handle.
  virtual void initialize(CIMOMHandle& cimom) = 0;
  // Called last; usually the provider deletes itself.
  virtual void terminate() = 0;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif

#ifndef PEGASUS_COMMON_RESPONSEHANDLER_H
#define PEGASUS_COMMON_RESPONSEHANDLER_H

#include <Pegasus/Common/Array.h>
#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMObjectPath.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>
#include <Pegasus/Common/OperationContext.h>

namespace Pegasus {
inline namespace vexor_compat {

// How a provider answers a request: processing(), then deliver() for each item, then complete().
// The object manager implements these classes.
class PEGASUS_COMMON_LINKAGE ResponseHandler {
 public:
  virtual ~ResponseHandler();
  virtual void processing() = 0;
  virtual void complete() = 0;
  // What the provider wants to send along with the response.
  void setContext(const OperationContext& context);

 protected:
  ResponseHandler();
  ResponseHandler(const ResponseHandler& handler);
  ResponseHandler& operator=(const ResponseHandler& handler);
  OperationContext getContext() const;

 private:
  OperationContext _context;
};

class PEGASUS_COMMON_LINKAGE InstanceResponseHandler : public ResponseHandler {
 public:
  ~InstanceResponseHandler() override;
  virtual void deliver(const CIMInstance& instance) = 0;
  virtual void deliver(const Array<CIMInstance>& instances) = 0;
};

class PEGASUS_COMMON_LINKAGE ObjectPathResponseHandler : public ResponseHandler {
 public:
  ~ObjectPathResponseHandler() override;
  virtual void deliver(const CIMObjectPath& objectPath) = 0;
  virtual void deliver(const Array<CIMObjectPath>& objectPaths) = 0;
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif

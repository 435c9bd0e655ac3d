#ifndef PEGASUS_COMMON_OPERATIONCONTEXT_H
#define PEGASUS_COMMON_OPERATIONCONTEXT_H

#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>
#include <Pegasus/Common/String.h>

namespace Pegasus {
inline namespace vexor_compat {

// What accompanies a request: named containers. The context keeps its own clones. Copies are
// values. A container that is not there throws Exception.
class PEGASUS_COMMON_LINKAGE OperationContext {
 public:
  class PEGASUS_COMMON_LINKAGE Container {
   public:
    virtual ~Container();
    virtual String getName() const = 0;
    virtual Container* clone() const = 0;
    // Ends the container's life: the context calls it on its clones.
    virtual void destroy() = 0;
  };

  OperationContext();
  OperationContext(const OperationContext& context);
  virtual ~OperationContext();
  OperationContext& operator=(const OperationContext& context);

  void clear();
  // Valid until the context changes.
  const Container& get(const String& containerName) const;
  Boolean contains(const String& containerName) const;
  // Replaces the container of the same name.
  void set(const Container& container);
  // Adds a container; AlreadyExistsException if there is one of the same name.
  void insert(const Container& container);
  void remove(const String& containerName);

 private:
  OperationContextRep* _rep;  // null while empty
};

}  // namespace vexor_compat
}  // namespace Pegasus

#endif

#include <Pegasus/Common/OperationContext.h>

#include <Pegasus/Common/Exception.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace Pegasus {
inline namespace vexor_compat {

class OperationContextRep {
 public:
  // Containers are not deleted but asked to destroy themselves.
  struct Destroy {
    void operator()(OperationContext::Container* container) const { container->destroy(); }
  };
  using Owned = std::unique_ptr<OperationContext::Container, Destroy>;

  auto find(const String& name) {
    return std::find_if(containers.begin(), containers.end(),
                        [&](const Owned& container) { return container->getName() == name; });
  }

  // Throws Exception if there is none.
  auto existing(const String& name) {
    const auto found = find(name);
    if (found == containers.end()) throw missing(name);
    return found;
  }

  static Exception missing(const String& name) {
    return Exception(String("no such container: \"") + name + String("\""));
  }

  static Owned cloned(const OperationContext::Container& container) {
    Owned copy(container.clone());
    if (copy == nullptr) throw Exception(String("a container cannot be cloned"));
    return copy;
  }

  std::vector<Owned> containers;
};

OperationContext::Container::~Container() = default;

OperationContext::OperationContext() : _rep(nullptr) {}

OperationContext::OperationContext(const OperationContext& context) : _rep(nullptr) {
  if (context._rep == nullptr) return;
  auto copy = std::make_unique<OperationContextRep>();
  for (const auto& container : context._rep->containers) {
    copy->containers.push_back(OperationContextRep::cloned(*container));
  }
  _rep = copy.release();
}

OperationContext::~OperationContext() {
  delete _rep;
}

OperationContext& OperationContext::operator=(const OperationContext& context) {
  OperationContext copy(context);
  std::swap(_rep, copy._rep);
  return *this;
}

void OperationContext::clear() {
  delete std::exchange(_rep, nullptr);
}

const OperationContext::Container& OperationContext::get(const String& containerName) const {
  if (_rep == nullptr) throw OperationContextRep::missing(containerName);
  return **_rep->existing(containerName);
}

Boolean OperationContext::contains(const String& containerName) const {
  return _rep != nullptr && _rep->find(containerName) != _rep->containers.end();
}

void OperationContext::set(const Container& container) {
  if (_rep == nullptr) throw OperationContextRep::missing(container.getName());
  const auto found = _rep->existing(container.getName());
  *found = OperationContextRep::cloned(container);
}

void OperationContext::insert(const Container& container) {
  if (contains(container.getName())) {
    throw AlreadyExistsException(String("container \"") + container.getName() + String("\""));
  }
  if (_rep == nullptr) _rep = new OperationContextRep;
  _rep->containers.push_back(OperationContextRep::cloned(container));
}

void OperationContext::remove(const String& containerName) {
  if (_rep == nullptr) throw OperationContextRep::missing(containerName);
  _rep->containers.erase(_rep->existing(containerName));
}

}  // namespace vexor_compat
}  // namespace Pegasus

#include "pegasus_compat/reps.h"

namespace Pegasus {
inline namespace vexor_compat {

template <class Rep>
RepHandle<Rep>::RepHandle(const RepHandle& x) noexcept : _rep(x._rep) {
  if (_rep != nullptr) _rep->retain();
}

template <class Rep>
RepHandle<Rep>::~RepHandle() {
  if (_rep != nullptr && _rep->release()) delete _rep;
}

template <class Rep>
RepHandle<Rep>& RepHandle<Rep>::operator=(const RepHandle& x) noexcept {
  RepHandle copy(x);
  std::swap(_rep, copy._rep);
  return *this;
}

template <class Rep>
RepHandle<Rep>& RepHandle<Rep>::operator=(RepHandle&& x) noexcept {
  RepHandle taken(std::move(x));
  std::swap(_rep, taken._rep);
  return *this;
}

template class RepHandle<CIMMethodRep>;
template class RepHandle<CIMObjectPathRep>;
template class RepHandle<CIMObjectRep>;
template class RepHandle<CIMParameterRep>;
template class RepHandle<CIMParamValueRep>;
template class RepHandle<CIMPropertyListRep>;
template class RepHandle<CIMPropertyRep>;
template class RepHandle<CIMQualifierDeclRep>;
template class RepHandle<CIMQualifierRep>;
template class RepHandle<CIMValueRep>;

}  // namespace vexor_compat
}  // namespace Pegasus

#include "providers/pegasus/provider_support.h"

#include <Pegasus/Common/Exception.h>
#include <cim_utils/formats.h>
#include <cim_utils/provider_util.h>
#include <cim_utils/session.h>
#include <cim_utils/system.h>

namespace vexor::providers::pegasus {
namespace {

using Pegasus::Array;
using Pegasus::CIMName;
using Pegasus::CIMObjectPath;
using Pegasus::String;
using Pegasus::Uint32;

// Both guarded by Lock.
int providers = 0;             // of this library, that are in use
bool session_is_ours = false;  // its queue was bound by one of them

// The library gives a handle that was released out again, as long as it stays loaded, and others in
// the process may ask on the session's queue: without the handle they bind it anew.
void release_queues() {
  if (ProviderUtil::mts_q >= 0) ProviderUtil::deinit_mts(&ProviderUtil::mts_q);
  ProviderUtil::mts_q = -1;
  if (!session_is_ours) return;
  ::deinit_mts(&mts_q);
  mts_q = -1;
  session_is_ours = false;
}

}  // namespace

void fail(Pegasus::CIMStatusCode code, const std::string& text) {
  throw Pegasus::CIMException(code, String(text.c_str()));
}

Lock::Lock() {
  if (mutex_lock() != 0) fail(Pegasus::CIM_ERR_FAILED, "the lock cannot be taken");
}

Lock::~Lock() {
  mutex_unlock();
}

int32_t bound_queue() {
  int32_t of_session = -1;
  int of_face = -1;
  const bool was_unbound = mts_q < 0;
  const bool is_bound = ::init_mts(&of_session) == 0;
  if (was_unbound) session_is_ours = is_bound;
  if (!is_bound || ProviderUtil::init_mts(&of_face) != 0)
    fail(Pegasus::CIM_ERR_FAILED, "the switch's response queue cannot be bound");
  return of_session;
}

std::string own_wwn(int32_t q) {
  wwn_ wwn{};
  if (system_cim_get_switch_wwn(q, &wwn) != 0)
    fail(Pegasus::CIM_ERR_FAILED, "the switch identity service does not tell the switch's WWN");
  char text[17];
  cim_sprintf_wwn(text, &wwn);
  return text;
}

void join(const Pegasus::CIMOMHandle& cimom) {
  const Lock lock;
  ++providers;
  ProviderUtil::_cimom = cimom;
}

void leave() {
  const Lock lock;
  if (--providers != 0) return;
  ProviderUtil::_cimom = Pegasus::CIMOMHandle();
  release_queues();
}

void check_class(const CIMObjectPath& path, const char* cls) {
  if (path.getClassName().equal(CIMName(cls))) return;
  fail(Pegasus::CIM_ERR_INVALID_CLASS, std::string("this provider serves ") + cls + " only");
}

std::optional<std::string> name_of(const CIMObjectPath& path, const char* cls) {
  check_class(path, cls);
  std::optional<std::string> name;
  bool fits = true;
  const Array<Pegasus::CIMKeyBinding>& keys = path.getKeyBindings();
  for (Uint32 i = 0; i < keys.size(); ++i) {
    if (keys[i].getName().equal(CIMName("Name"))) {
      name = std::string(keys[i].getValue().getCString());
    } else if (keys[i].getName().equal(CIMName("CreationClassName"))) {
      fits = fits && String::equalNoCase(keys[i].getValue(), String(cls));
    } else {
      fail(Pegasus::CIM_ERR_INVALID_PARAMETER, std::string(cls) + " has other keys");
    }
  }
  if (!name) fail(Pegasus::CIM_ERR_INVALID_PARAMETER, "the key Name is missing");
  return fits ? name : std::nullopt;
}

Pegasus::CIMInstance Selection::of(Pegasus::CIMInstance instance) const {
  instance.instanceFilter(qualifiers, class_origin, properties);
  return instance;
}

}  // namespace vexor::providers::pegasus

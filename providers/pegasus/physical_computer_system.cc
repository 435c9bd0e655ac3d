#include "providers/pegasus/physical_computer_system.h"

#include <Pegasus/Common/Exception.h>
#include <cim_utils/collections.h>
#include <cim_utils/fabric_configuration.h>
#include <cim_utils/formats.h>
#include <cim_utils/provider_util.h>
#include <cim_utils/session.h>
#include <cim_utils/system.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace vexor::providers::pegasus {
namespace {

using Pegasus::Array;
using Pegasus::Boolean;
using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMObjectPath;
using Pegasus::CIMPropertyList;
using Pegasus::CIMValue;
using Pegasus::OperationContext;
using Pegasus::String;
using Pegasus::Uint32;

constexpr char kClass[] = "VEXOR_PhysicalComputerSystem";
constexpr char kNameProperty[] = "ElementName";

// As many characters as the switch's capabilities tell ("MaxElementNameLen").
constexpr size_t kLongestSwitchName = 32;

[[noreturn]] void fail(Pegasus::CIMStatusCode code, const std::string& text) {
  throw Pegasus::CIMException(code, String(text.c_str()));
}

// The library's process-wide lock: its texts lie in buffers that all threads share. It is held
// while records are read, and again for each object that is built of them, but not while one is
// delivered.
class Lock {
 public:
  Lock() {
    if (mutex_lock() != 0) fail(Pegasus::CIM_ERR_FAILED, "the lock cannot be taken");
  }
  ~Lock() { mutex_unlock(); }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;
};

// The library asks on two queues: what this face builds on ProviderUtil's, the names of other
// switches on the session's. The caller holds the lock.
bool session_is_ours = false;  // bound by this provider. Guarded by Lock.

int32_t bound_queue() {
  int32_t of_session = -1;
  int of_face = -1;
  if (mts_q < 0) session_is_ours = true;
  if (::init_mts(&of_session) != 0 || ProviderUtil::init_mts(&of_face) != 0)
    fail(Pegasus::CIM_ERR_FAILED, "the switch's response queue cannot be bound");
  return of_session;
}

// The library gives a handle that was released out again, as long as it stays loaded, and others in
// the process may ask on the session's queue: without the handle they bind it anew.
void release_queues() {
  ProviderUtil::deinit_mts(&ProviderUtil::mts_q);
  ProviderUtil::mts_q = -1;
  if (!session_is_ours) return;
  ::deinit_mts(&mts_q);
  mts_q = -1;
  session_is_ours = false;
}

// Providers of this library that are in use. Guarded by Lock.
int providers = 0;

struct FreeList {
  void operator()(GSList* list) const { cim_g_slist_destroy(list, nullptr); }
};

struct Switch {
  std::string wwn;  // as text
  bool remote;      // not the one that runs this agent
};

std::string own_wwn(int32_t q) {
  wwn_ wwn{};
  if (system_cim_get_switch_wwn(q, &wwn) != 0)
    fail(Pegasus::CIM_ERR_FAILED, "the switch identity service does not tell the switch's WWN");
  char text[17];
  cim_sprintf_wwn(text, &wwn);
  return text;
}

// The own switch, and every other one that is in a VSAN that is up, each once.
std::vector<Switch> read_switches() {
  const Lock lock;
  const int32_t q = bound_queue();
  const std::string own = own_wwn(q);
  GSList* list = nullptr;
  const int32_t status = fcs_cim_get_physical_switch_wwn_lists(q, &list);
  const std::unique_ptr<GSList, FreeList> owner(list);
  if (status != 0) fail(Pegasus::CIM_ERR_FAILED, "the switches of the fabric cannot be listed");
  std::vector<Switch> switches;
  bool own_is_listed = false;
  for (const GSList* node = list; node != nullptr; node = node->next) {
    const auto* wwn = static_cast<const char*>(node->data);
    switches.push_back({wwn, own != wwn});
    own_is_listed = own_is_listed || own == wwn;
  }
  // The configuration server of no VSAN may know the own switch, which exists all the same.
  if (!own_is_listed) switches.insert(switches.begin(), {own, false});
  return switches;
}

// The library asks the object manager for the class while it builds, and so with the lock held:
// class definitions come from the object manager itself, never from a provider.
CIMInstance build(const CIMObjectPath& path, const Switch& device) {
  const Lock lock;
  bound_queue();  // what builds asks on it
  return ProviderUtil::switch_build_instance(kClass, path.getNameSpace().getString(),
                                             device.wwn.c_str(), device.remote ? 1 : 0);
}

CIMObjectPath reference(const CIMObjectPath& path, const Switch& device) {
  const Lock lock;
  bound_queue();
  return ProviderUtil::switch_fill_reference(kClass, path.getNameSpace().getString(),
                                             device.wwn.c_str());
}

void check_class(const CIMObjectPath& path) {
  if (path.getClassName().equal(CIMName(kClass))) return;
  fail(Pegasus::CIM_ERR_INVALID_CLASS, std::string("this provider serves ") + kClass + " only");
}

// The switch that a path names.
Switch find(const CIMObjectPath& path) {
  check_class(path);
  String name;
  bool has_name = false;
  bool fits = true;
  const Array<Pegasus::CIMKeyBinding>& keys = path.getKeyBindings();
  for (Uint32 i = 0; i < keys.size(); ++i) {
    if (keys[i].getName().equal(CIMName("Name"))) {
      name = keys[i].getValue();
      has_name = true;
    } else if (keys[i].getName().equal(CIMName("CreationClassName"))) {
      fits = fits && String::equalNoCase(keys[i].getValue(), String(kClass));
    } else {
      fail(Pegasus::CIM_ERR_INVALID_PARAMETER, std::string(kClass) + " has other keys");
    }
  }
  if (!has_name) fail(Pegasus::CIM_ERR_INVALID_PARAMETER, "the key Name is missing");
  const std::string wanted = std::string(name.getCString());
  const std::vector<Switch> switches = read_switches();
  const auto found = std::find_if(switches.begin(), switches.end(),
                                  [&](const Switch& each) { return fits && each.wwn == wanted; });
  if (found == switches.end()) throw Pegasus::CIMObjectNotFoundException(path.toString());
  return *found;
}

// What the client wants to see of an instance.
struct Selection {
  Boolean qualifiers;
  Boolean class_origin;
  const CIMPropertyList& properties;

  CIMInstance of(CIMInstance instance) const {
    instance.instanceFilter(qualifiers, class_origin, properties);
    return instance;
  }
};

bool is_listed(const CIMName& name, const CIMPropertyList& list) {
  if (list.isNull()) return true;
  for (Uint32 i = 0; i < list.size(); ++i)
    if (list[i].equal(name)) return true;
  return false;
}

// Whether a property of `changed` is as `present` has it.
bool is_unchanged(const Pegasus::CIMConstProperty& property, const CIMInstance& present) {
  const Uint32 at = present.findProperty(property.getName());
  return at == PEG_NOT_FOUND ? property.getValue().isNull()
                             : present.getProperty(at).getValue() == property.getValue();
}

// Clients send whole instances: what they leave as it is must not be refused.
void refuse_other_changes(const CIMInstance& changed, const CIMPropertyList& list,
                          const CIMInstance& present) {
  for (Uint32 i = 0; i < changed.getPropertyCount(); ++i) {
    const Pegasus::CIMConstProperty property = changed.getProperty(i);
    if (property.getName().equal(CIMName(kNameProperty)) || !is_listed(property.getName(), list) ||
        is_unchanged(property, present)) {
      continue;
    }
    fail(Pegasus::CIM_ERR_NOT_SUPPORTED,
         std::string(property.getName().getString().getCString()) + " cannot be changed");
  }
}

void set_name(const Switch& device, const CIMValue& value) {
  String text;
  if (value.isNull() || value.isArray() || value.getType() != Pegasus::CIMTYPE_STRING)
    fail(Pegasus::CIM_ERR_INVALID_PARAMETER, "ElementName is a text");
  value.get(text);
  const std::string name = std::string(text.getCString());
  if (device.remote)
    fail(
        Pegasus::CIM_ERR_NOT_SUPPORTED,
        "switch " + device.wwn + " is not the one that runs this agent: its name is changed there");
  if (name.empty() || name.size() > kLongestSwitchName)
    fail(Pegasus::CIM_ERR_INVALID_PARAMETER, "ElementName has " + std::to_string(name.size()) +
                                                 " characters: a switch's name has 1 to 32");
  const Lock lock;
  if (system_cim_set_SysName(bound_queue(), name.c_str()) != 0)
    fail(Pegasus::CIM_ERR_FAILED, "the system name service refuses the name");
}

}  // namespace

void PhysicalComputerSystemProvider::initialize(Pegasus::CIMOMHandle& cimom) {
  cimom.disallowProviderUnload();
  const Lock lock;
  ++providers;
  ProviderUtil::_cimom = cimom;
}

void PhysicalComputerSystemProvider::terminate() {
  {
    const Lock lock;
    if (--providers == 0) {
      ProviderUtil::_cimom = Pegasus::CIMOMHandle();
      release_queues();
    }
  }
  delete this;
}

void PhysicalComputerSystemProvider::getInstance(const OperationContext& /*context*/,
                                                 const CIMObjectPath& path,
                                                 const Boolean includeQualifiers,
                                                 const Boolean includeClassOrigin,
                                                 const CIMPropertyList& propertyList,
                                                 Pegasus::InstanceResponseHandler& handler) {
  const Selection selection{includeQualifiers, includeClassOrigin, propertyList};
  handler.processing();
  handler.deliver(selection.of(build(path, find(path))));
  handler.complete();
}

void PhysicalComputerSystemProvider::enumerateInstances(const OperationContext& /*context*/,
                                                        const CIMObjectPath& path,
                                                        const Boolean includeQualifiers,
                                                        const Boolean includeClassOrigin,
                                                        const CIMPropertyList& propertyList,
                                                        Pegasus::InstanceResponseHandler& handler) {
  const Selection selection{includeQualifiers, includeClassOrigin, propertyList};
  check_class(path);
  handler.processing();
  for (const Switch& device : read_switches())
    handler.deliver(selection.of(build(path, device)));
  handler.complete();
}

void PhysicalComputerSystemProvider::enumerateInstanceNames(
    const OperationContext& /*context*/, const CIMObjectPath& path,
    Pegasus::ObjectPathResponseHandler& handler) {
  check_class(path);
  handler.processing();
  for (const Switch& device : read_switches())
    handler.deliver(reference(path, device));
  handler.complete();
}

void PhysicalComputerSystemProvider::modifyInstance(const OperationContext& /*context*/,
                                                    const CIMObjectPath& path,
                                                    const CIMInstance& changed,
                                                    const Boolean /*includeQualifiers*/,
                                                    const CIMPropertyList& propertyList,
                                                    Pegasus::ResponseHandler& handler) {
  handler.processing();
  const Switch device = find(path);
  const CIMInstance present = build(path, device);
  refuse_other_changes(changed, propertyList, present);
  const Uint32 at = changed.findProperty(CIMName(kNameProperty));
  if (at != PEG_NOT_FOUND && is_listed(CIMName(kNameProperty), propertyList) &&
      !is_unchanged(changed.getProperty(at), present)) {
    set_name(device, changed.getProperty(at).getValue());
  }
  handler.complete();
}

void PhysicalComputerSystemProvider::createInstance(
    const OperationContext& /*context*/, const CIMObjectPath& /*path*/, const CIMInstance& /*made*/,
    Pegasus::ObjectPathResponseHandler& /*handler*/) {
  throw Pegasus::CIMNotSupportedException(String("a switch is not made by a client"));
}

void PhysicalComputerSystemProvider::deleteInstance(const OperationContext& /*context*/,
                                                    const CIMObjectPath& /*path*/,
                                                    Pegasus::ResponseHandler& /*handler*/) {
  throw Pegasus::CIMNotSupportedException(String("a switch is not deleted by a client"));
}

}  // namespace vexor::providers::pegasus

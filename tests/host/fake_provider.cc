// A provider of Test_Disk (two instances), Test_FastDisk (one), Test_Tape (unsupported) and the
// association Test_Link, that notes what it is asked.
#include "tests/host/fake_provider.h"

#include <cmpift.h>

#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string>

namespace {

FakeControl control;
const CMPIBroker* broker = nullptr;
const CMPIResult* kept_result = nullptr;

template <std::size_t kSize>
void note(char (&to)[kSize], const std::string& text) {
  std::snprintf(to, kSize, "%s", text.c_str());
}

std::string chars(const CMPIString* string) {
  return string->ft->getCharPtr(string, nullptr);
}

CMPIStatus ok() {
  return {CMPI_RC_OK, nullptr};
}

CMPIStatus failure(CMPIrc code, const char* text) {
  return {code, broker->eft->newString(broker, text, nullptr)};
}

std::string joined(const char** names) {
  if (names == nullptr) return "(all)";
  std::string text;
  for (; *names != nullptr; ++names)
    text += (text.empty() ? "" : ",") + std::string(*names);
  return text;
}

std::string class_of(const CMPIObjectPath* path) {
  return chars(path->ft->getClassName(path, nullptr));
}

void note_call(const char* operation, const CMPIContext* context, const CMPIObjectPath* path) {
  note(control.last_operation, operation);
  note(control.last_class, class_of(path));
  note(control.last_path, chars(path->ft->toString(path, nullptr)));
  note(control.last_namespace, chars(path->ft->getNameSpace(path, nullptr)));
  const CMPIData flags = context->ft->getEntry(context, CMPIInvocationFlags, nullptr);
  control.last_flags = flags.value.uint32;
  const CMPIData principal = context->ft->getEntry(context, CMPIPrincipal, nullptr);
  note(control.last_principal, chars(principal.value.string));
}

/// What every operation does first in the modes that fail; true: return *status.
bool fails(CMPIStatus* status) {
  switch (control.mode) {
    case FakeMode::fails:
      *status = failure(control.status, control.message);
      return true;
    case FakeMode::fails_without_text:
      *status = {control.status, nullptr};
      return true;
    case FakeMode::throws:
      throw std::runtime_error("out of luck");
    case FakeMode::throws_a_number:
      throw 7;
    case FakeMode::returns_nothing:
      *status = ok();
      return true;
    default:
      return false;
  }
}

const char* namespace_of(const CMPIObjectPath* path, std::string& storage) {
  if (control.mode == FakeMode::leaves_namespace_out) return nullptr;
  storage = chars(path->ft->getNameSpace(path, nullptr));
  return storage.c_str();
}

CMPIObjectPath* disk_path(const CMPIObjectPath* op, const std::string& cls, unsigned id) {
  std::string name_space;
  CMPIObjectPath* path =
      broker->eft->newObjectPath(broker, namespace_of(op, name_space), cls.c_str(), nullptr);
  CMPIValue value{};
  value.uint32 = id;
  path->ft->addKey(path, "Id", &value, CMPI_uint32);
  return path;
}

CMPIInstance* disk(const CMPIObjectPath* op, const std::string& cls, unsigned id) {
  CMPIObjectPath* path = disk_path(op, cls, id);
  CMPIInstance* instance = broker->eft->newInstance(broker, path, nullptr);
  CMPIValue value{};
  value.uint32 = id;
  instance->ft->setProperty(instance, "Id", &value, CMPI_uint32);
  const std::string name = "disk" + std::to_string(id);
  instance->ft->setProperty(instance, "Name", reinterpret_cast<const CMPIValue*>(name.c_str()),
                            CMPI_chars);
  if (control.mode == FakeMode::sets_wrong_type) {
    control.last_return_status =
        instance->ft->setProperty(instance, "Size", &value, CMPI_uint32).rc;
  } else {
    value.uint64 = 1000ULL * id;
    instance->ft->setProperty(instance, "Size", &value, CMPI_uint64);
  }
  return instance;
}

struct Ids {
  unsigned first, last;
};

Ids ids_of(const std::string& cls) {
  if (cls == "Test_Disk") return {1, 2};
  if (cls == "Test_FastDisk") return {3, 3};
  return {1, 0};
}

CMPIStatus return_disks(const CMPIResult* result, const CMPIObjectPath* op, const std::string& cls,
                        bool names) {
  if (control.mode == FakeMode::uses_kept_result) {
    control.last_return_status = kept_result->ft->returnDone(kept_result).rc;
    return ok();
  }
  kept_result = result;
  for (unsigned id = ids_of(cls).first; id <= ids_of(cls).last; ++id) {
    const bool wrong = control.mode == FakeMode::returns_wrong_kind;
    const CMPIStatus status = names != wrong
                                  ? result->ft->returnObjectPath(result, disk_path(op, cls, id))
                                  : result->ft->returnInstance(result, disk(op, cls, id));
    if (control.mode != FakeMode::sets_wrong_type) control.last_return_status = status.rc;
  }
  result->ft->returnDone(result);
  if (control.mode == FakeMode::returns_after_done) {
    control.last_return_status = result->ft->returnInstance(result, disk(op, "Test_Disk", 9)).rc;
  }
  return ok();
}

// --- Instances -----------------------------------------------------------------------------------

CMPIStatus instance_cleanup(CMPIInstanceMI*, const CMPIContext*, CMPIBoolean terminating) {
  ++control.cleanups;
  control.last_terminating = terminating;
  return {control.cleanup_status, nullptr};
}

CMPIStatus enumerate_instance_names(CMPIInstanceMI*, const CMPIContext* context,
                                    const CMPIResult* result, const CMPIObjectPath* op) {
  note_call("enumerateInstanceNames", context, op);
  CMPIStatus status{};
  if (fails(&status)) return status;
  if (class_of(op) == "Test_Tape") return failure(CMPI_RC_ERR_NOT_SUPPORTED, "no tapes");
  return return_disks(result, op, class_of(op), true);
}

CMPIStatus enumerate_instances(CMPIInstanceMI*, const CMPIContext* context,
                               const CMPIResult* result, const CMPIObjectPath* op,
                               const char** properties) {
  note_call("enumerateInstances", context, op);
  note(control.last_properties, joined(properties));
  CMPIStatus status{};
  if (fails(&status)) return status;
  if (class_of(op) == "Test_Tape") return failure(CMPI_RC_ERR_NOT_SUPPORTED, "no tapes");
  return return_disks(result, op, class_of(op), false);
}

CMPIStatus get_instance(CMPIInstanceMI*, const CMPIContext* context, const CMPIResult* result,
                        const CMPIObjectPath* op, const char** properties) {
  note_call("getInstance", context, op);
  note(control.last_properties, joined(properties));
  CMPIStatus status{};
  if (fails(&status)) return status;
  if (control.mode == FakeMode::asks_back || control.mode == FakeMode::asks_unknown_class) {
    const bool known = control.mode == FakeMode::asks_back;
    CMPIObjectPath* path = broker->eft->newObjectPath(
        broker, "root/test", known ? "Test_FastDisk" : "Test_Nothing", nullptr);
    CMPIStatus asked{};
    CMPIEnumeration* found = broker->bft->enumerateInstanceNames(broker, context, path, &asked);
    if (found == nullptr) return asked;
    const CMPIData first = found->ft->getNext(found, nullptr);
    note(control.last_filters, chars(first.value.ref->ft->toString(first.value.ref, nullptr)));
  }
  const CMPIData key = op->ft->getKey(op, "Id", nullptr);
  const Ids ids = ids_of(class_of(op));
  if (key.value.uint32 < ids.first || key.value.uint32 > ids.last)
    return failure(CMPI_RC_ERR_NOT_FOUND, "no such disk");
  result->ft->returnInstance(result, disk(op, class_of(op), key.value.uint32));
  result->ft->returnDone(result);
  return ok();
}

void note_instance(const CMPIInstance* instance) {
  note(control.last_instance, chars(broker->eft->toString(broker, instance, nullptr)));
}

CMPIStatus create_instance(CMPIInstanceMI*, const CMPIContext* context, const CMPIResult* result,
                           const CMPIObjectPath* op, const CMPIInstance* instance) {
  note_call("createInstance", context, op);
  note_instance(instance);
  CMPIStatus status{};
  if (fails(&status)) return status;
  result->ft->returnObjectPath(result, disk_path(op, class_of(op), 7));
  result->ft->returnDone(result);
  return ok();
}

CMPIStatus modify_instance(CMPIInstanceMI*, const CMPIContext* context, const CMPIResult*,
                           const CMPIObjectPath* op, const CMPIInstance* instance,
                           const char** properties) {
  note_call("modifyInstance", context, op);
  note(control.last_properties, joined(properties));
  note_instance(instance);
  CMPIStatus status{};
  return fails(&status) ? status : ok();
}

CMPIStatus delete_instance(CMPIInstanceMI*, const CMPIContext* context, const CMPIResult*,
                           const CMPIObjectPath* op) {
  note_call("deleteInstance", context, op);
  CMPIStatus status{};
  return fails(&status) ? status : ok();
}

const CMPIInstanceMIFT instance_table = {
    CMPICurrentVersion,       CMPICurrentVersion,  "fake",       instance_cleanup,
    enumerate_instance_names, enumerate_instances, get_instance, create_instance,
    modify_instance,          delete_instance,     nullptr};
[[maybe_unused]] CMPIInstanceMI instance_mi = {nullptr, &instance_table};

// --- Associations --------------------------------------------------------------------------------

CMPIStatus association_cleanup(CMPIAssociationMI*, const CMPIContext*, CMPIBoolean) {
  ++control.cleanups;
  return ok();
}

std::string or_dash(const char* text) {
  return text == nullptr ? "-" : text;
}

CMPIStatus associators(CMPIAssociationMI*, const CMPIContext* context, const CMPIResult* result,
                       const CMPIObjectPath* op, const char* association, const char* result_class,
                       const char* role, const char* result_role, const char** properties) {
  note_call("associators", context, op);
  note(control.last_properties, joined(properties));
  note(control.last_filters, or_dash(association) + "," + or_dash(result_class) + "," +
                                 or_dash(role) + "," + or_dash(result_role));
  CMPIStatus status{};
  if (fails(&status)) return status;
  return return_disks(result, op, "Test_FastDisk", false);
}

CMPIStatus associator_names(CMPIAssociationMI*, const CMPIContext* context,
                            const CMPIResult* result, const CMPIObjectPath* op,
                            const char* association, const char* result_class, const char* role,
                            const char* result_role) {
  note_call("associatorNames", context, op);
  note(control.last_filters, or_dash(association) + "," + or_dash(result_class) + "," +
                                 or_dash(role) + "," + or_dash(result_role));
  CMPIStatus status{};
  if (fails(&status)) return status;
  return return_disks(result, op, "Test_FastDisk", true);
}

CMPIObjectPath* link_path(const CMPIObjectPath* op) {
  CMPIObjectPath* path = broker->eft->newObjectPath(broker, "root/test", "Test_Link", nullptr);
  CMPIValue end{};
  end.ref = disk_path(op, "Test_Disk", 1);
  path->ft->addKey(path, "Antecedent", &end, CMPI_ref);
  end.ref = disk_path(op, "Test_FastDisk", 3);
  path->ft->addKey(path, "Dependent", &end, CMPI_ref);
  return path;
}

CMPIStatus references(CMPIAssociationMI*, const CMPIContext* context, const CMPIResult* result,
                      const CMPIObjectPath* op, const char* result_class, const char* role,
                      const char** properties) {
  note_call("references", context, op);
  note(control.last_properties, joined(properties));
  note(control.last_filters, or_dash(result_class) + "," + or_dash(role));
  CMPIStatus status{};
  if (fails(&status)) return status;
  CMPIInstance* link = broker->eft->newInstance(broker, link_path(op), nullptr);
  CMPIValue end{};
  end.ref = disk_path(op, "Test_Disk", 1);
  link->ft->setProperty(link, "Antecedent", &end, CMPI_ref);
  result->ft->returnInstance(result, link);
  result->ft->returnDone(result);
  return ok();
}

CMPIStatus reference_names(CMPIAssociationMI*, const CMPIContext* context, const CMPIResult* result,
                           const CMPIObjectPath* op, const char* result_class, const char* role) {
  note_call("referenceNames", context, op);
  note(control.last_filters, or_dash(result_class) + "," + or_dash(role));
  CMPIStatus status{};
  if (fails(&status)) return status;
  result->ft->returnObjectPath(result, link_path(op));
  result->ft->returnDone(result);
  return ok();
}

const CMPIAssociationMIFT association_table = {
    CMPICurrentVersion, CMPICurrentVersion, "fake",     association_cleanup,
    associators,        associator_names,   references, reference_names};
[[maybe_unused]] CMPIAssociationMI association_mi = {nullptr, &association_table};

// --- Methods -------------------------------------------------------------------------------------

CMPIStatus method_cleanup(CMPIMethodMI*, const CMPIContext*, CMPIBoolean) {
  ++control.cleanups;
  return ok();
}

CMPIStatus invoke_method(CMPIMethodMI*, const CMPIContext* context, const CMPIResult* result,
                         const CMPIObjectPath* op, const char* method, const CMPIArgs* in,
                         CMPIArgs* out) {
  note_call(method, context, op);
  note(control.last_arguments, chars(broker->eft->toString(broker, in, nullptr)));
  CMPIStatus status{};
  if (fails(&status)) return status;
  out->ft->addArg(out, "Report", reinterpret_cast<const CMPIValue*>("done"), CMPI_chars);
  CMPIValue value{};
  value.uint32 = 42;
  result->ft->returnData(result, &value, CMPI_uint32);
  result->ft->returnDone(result);
  return ok();
}

const CMPIMethodMIFT method_table = {CMPICurrentVersion, CMPICurrentVersion, "fake", method_cleanup,
                                     invoke_method};
[[maybe_unused]] CMPIMethodMI method_mi = {nullptr, &method_table};

template <class Mi>
[[maybe_unused]] Mi* made(Mi* mi, const CMPIBroker* given, const char* name, CMPIStatus* rc) {
  broker = given;
  ++control.factories;
  note(control.factory_name, name);
  if (std::strcmp(name, "Broken") == 0) {
    *rc = failure(CMPI_RC_ERR_ACCESS_DENIED, "the disks are locked");
    return nullptr;
  }
  if (std::strcmp(name, "Silent") == 0) return nullptr;
  return mi;
}

}  // namespace

#define FAKE_EXPORT extern "C" __attribute__((visibility("default")))

FAKE_EXPORT FakeControl* fake_control() {
  return &control;
}

#if FAKE_GENERIC_FACTORIES
FAKE_EXPORT CMPIInstanceMI* _Generic_Create_InstanceMI(const CMPIBroker* given, const CMPIContext*,
                                                       const char* name, CMPIStatus* rc) {
  return made(&instance_mi, given, name, rc);
}
FAKE_EXPORT CMPIAssociationMI* _Generic_Create_AssociationMI(const CMPIBroker* given,
                                                             const CMPIContext*, const char* name,
                                                             CMPIStatus* rc) {
  return made(&association_mi, given, name, rc);
}
FAKE_EXPORT CMPIMethodMI* _Generic_Create_MethodMI(const CMPIBroker* given, const CMPIContext*,
                                                   const char* name, CMPIStatus* rc) {
  return made(&method_mi, given, name, rc);
}
#endif

#if FAKE_NAMED_FACTORIES
FAKE_EXPORT CMPIInstanceMI* Fake_Create_InstanceMI(const CMPIBroker* given, const CMPIContext*,
                                                   CMPIStatus* rc) {
  return made(&instance_mi, given, "named", rc);
}
#endif

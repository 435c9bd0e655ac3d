#include "providers/request.h"

#include <type_traits>

#include "providers/forwarding_broker.h"
#include "providers/lock.h"
#include "providers/queue.h"

namespace vexor::providers {
namespace {

// Runs a function of a class on the queue, under the lock.
template <class Read>
auto locked(Read read) {
  const Lock lock;
  if constexpr (std::is_void_v<decltype(read(queue::handle()))>) {
    read(queue::handle());
    check_memory();
  } else {
    auto result = read(queue::handle());
    check_memory();
    return result;
  }
}

void check(const CMPIStatus& status, const char* what) {
  if (status.rc == CMPI_RC_OK) return;
  const char* reason = chars_of(status.msg);
  throw Failure(status.rc, "%s%s%s", what, *reason != '\0' ? ": " : "", reason);
}

// Which keys the client gave is judged before the switch is asked anything.
void check_key_names(const Class& cls, const ObjectName& name) {
  for (const char* const* key = cls.keys(); *key != nullptr; ++key)
    if (name.key(*key) == nullptr)
      throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "the object path of a %s lacks the key \"%s\"",
                    cls.name(), *key);
  for (const ObjectName::Key& key : name.keys())
    if (!is_in(key.name.c_str(), cls.keys()))
      throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "%s has no key \"%s\"", cls.name(),
                    key.name.c_str());
}

[[noreturn]] void not_supported(const Class& cls, const char* operation) {
  throw Failure(CMPI_RC_ERR_NOT_SUPPORTED, "instances of %s cannot be %s", cls.name(), operation);
}

// Some object managers keep a path in a path as text, and lose the one that they cannot read again.
// They would not survive to pass on a path that lost a key.
void check_kept(const CMPIData& data, const CMPIStatus& status, const char* class_name,
                const char* key) {
  const bool has_value = status.rc == CMPI_RC_OK && (data.state & ~CMPI_keyValue) == 0;
  if (has_value && data.type == CMPI_ref && data.value.ref == nullptr)
    throw Failure(CMPI_RC_ERR_FAILED,
                  "the object manager cannot hold the object that \"%s\" of a %s names", key,
                  class_name);
}

void check_kept(const CMPIObjectPath* path, const Class& association) {
  for (const int end : {0, 1}) {
    const char* key = association.end(end).role;
    CMPIStatus status = {CMPI_RC_OK, nullptr};
    const CMPIData data = path->ft->getKey(path, key, &status);
    check_kept(data, status, association.name(), key);
  }
}

void check_kept(const CMPIInstance* instance, const Class& association) {
  for (const int end : {0, 1}) {
    const char* key = association.end(end).role;
    CMPIStatus status = {CMPI_RC_OK, nullptr};
    const CMPIData data = instance->ft->getProperty(instance, key, &status);
    check_kept(data, status, association.name(), key);
  }
}

}  // namespace

Request::Request(const CMPIBroker* broker, ClassTable classes, const CMPIResult* result,
                 const CMPIObjectPath* path)
    : broker_(broker),
      classes_(classes),
      result_(result),
      path_(path),
      name_space_(chars_of(path->ft->getNameSpace(path, nullptr))),
      class_name_(chars_of(path->ft->getClassName(path, nullptr))) {}

// ---- classes ----

const Class* Request::class_named(const char* name) const {
  for (const Class* cls : classes_)
    if (same_name(cls->name(), name)) return cls;
  return nullptr;
}

const Class& Request::own_class() const {
  const Class* cls = class_named(class_name_.c_str());
  // The class may well exist, and others may serve it: an object manager goes on without this one.
  if (cls == nullptr)
    throw Failure(CMPI_RC_ERR_NOT_SUPPORTED, "\"%s\" is not a class of this provider",
                  class_name_.c_str());
  return *cls;
}

bool Request::is_a(const CMPIObjectPath* path, const char* class_name) const {
  if (same_name(chars_of(path->ft->getClassName(path, nullptr)), class_name)) return true;
  if (broker_->eft->classPathIsA == nullptr) return false;
  CMPIStatus status = {CMPI_RC_OK, nullptr};
  const bool derives = broker_->eft->classPathIsA(broker_, path, class_name, &status) != 0;
  return derives && status.rc == CMPI_RC_OK;
}

bool Request::is_a(const char* name, const char* class_name) const {
  if (same_name(name, class_name)) return true;
  const CMPIObjectPath* path =
      broker_->eft->newObjectPath(broker_, name_space_.c_str(), name, nullptr);
  return path != nullptr && path->hdl != nullptr && is_a(path, class_name);
}

bool Request::stands_at(const End& end) const {
  if (is_a(path_, end.class_name)) return true;
  for (const char* const* name = end.more_classes; name != nullptr && *name != nullptr; ++name)
    if (is_a(path_, *name)) return true;
  return false;
}

template <class Visit>
void Request::for_each_class(Visit visit) const {
  if (const Class* cls = class_named(class_name_.c_str())) return visit(*cls);
  bool found = false;
  for (const Class* cls : classes_) {
    if (!is_a(cls->name(), class_name_.c_str())) continue;
    found = true;
    visit(*cls);
  }
  if (!found) own_class();  // says that there is none
}

// ---- building ----

template <class Build>
CMPIObjectPath* Request::build_path(const char* class_name, Build build) const {
  const ForwardingBroker broker(broker_, {});
  CMPIObjectPath* path = nullptr;
  {
    const Lock lock;
    queue::handle();  // what builds asks on it
    path = build(Target{class_name, name_space_.c_str(), broker.face(), nullptr});
    check_memory();
  }
  if (path == nullptr || path->hdl == nullptr)
    throw Failure(CMPI_RC_ERR_FAILED, "an object path of %s cannot be made", class_name);
  const Class* cls = class_named(class_name);
  if (cls != nullptr && cls->is_association()) check_kept(path, *cls);
  return path;
}

template <class Build>
CMPIInstance* Request::build_instance(const char* class_name, const char** properties,
                                      Build build) const {
  const Class* cls = class_named(class_name);
  const ForwardingBroker broker(broker_, {.keys = cls != nullptr ? cls->keys() : nullptr,
                                          .properties = properties,
                                          .differences = type_differences_of(class_name)});
  CMPIInstance* made = nullptr;
  {
    const Lock lock;
    queue::handle();
    made = build(Target{class_name, name_space_.c_str(), broker.face(), properties});
    check_memory();
  }
  CMPIInstance* instance = ForwardingBroker::real_instance(made);
  if (instance == nullptr)
    throw Failure(CMPI_RC_ERR_FAILED, "an instance of %s cannot be made", class_name);
  if (cls != nullptr && cls->is_association()) check_kept(instance, *cls);
  return instance;
}

CMPIObjectPath* Request::reference(const Class& cls, const Objects& objects, size_t index) const {
  return build_path(cls.name(),
                    [&](const Target& target) { return objects.reference(index, target); });
}

CMPIInstance* Request::instance(const Class& cls, const Objects& objects, size_t index,
                                const char** properties) const {
  return build_instance(cls.name(), properties,
                        [&](const Target& target) { return objects.instance(index, target); });
}

CMPIObjectPath* Request::end_reference(const Link& link, int end) const {
  return build_path(link.association.end(end).class_name, [&](const Target& target) {
    return link.objects.end_reference(link.index, end, target);
  });
}

const CMPIInstance* Request::blank_instance(const Class& cls) const {
  const CMPIObjectPath* path =
      broker_->eft->newObjectPath(broker_, name_space_.c_str(), cls.name(), nullptr);
  if (path == nullptr || path->hdl == nullptr) return nullptr;
  const CMPIInstance* instance = broker_->eft->newInstance(broker_, path, nullptr);
  return instance != nullptr && instance->hdl != nullptr ? instance : nullptr;
}

// ---- returning ----

void Request::give(const CMPIObjectPath* path) const {
  check(result_->ft->returnObjectPath(result_, path), "the object path was not taken");
}

void Request::give(const CMPIInstance* instance) const {
  check(result_->ft->returnInstance(result_, instance), "the instance was not taken");
}

void Request::done() const {
  check(result_->ft->returnDone(result_), "the end of the result was not taken");
}

// ---- instances ----

void Request::enumerate_names() {
  for_each_class([this](const Class& cls) {
    const auto objects = locked([&](int32_t q) { return cls.list(q); });
    for (size_t index = 0; index < objects->size(); ++index)
      give(reference(cls, *objects, index));
  });
  done();
}

void Request::enumerate_instances(const char** properties) {
  for_each_class([this, properties](const Class& cls) {
    const auto objects = locked([&](int32_t q) { return cls.list(q); });
    for (size_t index = 0; index < objects->size(); ++index)
      give(instance(cls, *objects, index, properties));
  });
  done();
}

Request::Found Request::find(const Class& cls) const {
  const ObjectName asked(path_);
  check_key_names(cls, asked);
  Found found{locked([&](int32_t q) { return cls.find(q, asked); }), 0};
  for (; found.index < found.objects->size(); ++found.index)
    if (ObjectName(reference(cls, *found.objects, found.index)).same_object(asked)) return found;
  throw Failure(CMPI_RC_ERR_NOT_FOUND, "there is no such %s", cls.name());
}

void Request::get(const char** properties) {
  const Class& cls = own_class();
  const Found found = find(cls);
  give(instance(cls, *found.objects, found.index, properties));
  done();
}

void Request::create(const CMPIInstance* new_instance) {
  const Class& cls = own_class();
  if (!cls.can_create()) not_supported(cls, "created");
  const NewValues values(new_instance, nullptr);
  const auto made = locked([&](int32_t q) { return cls.create(q, values); });
  give(reference(cls, *made, 0));
  done();
}

void Request::refuse_other_changes(const Class& cls, const Found& found,
                                   const NewValues& values) const {
  if (cls.changeable() == nullptr) return;
  const std::vector<std::string> given = values.names();
  std::vector<const char*> others;
  for (const std::string& name : given)
    if (!is_in(name.c_str(), cls.changeable())) others.push_back(name.c_str());
  if (others.empty()) return;
  others.push_back(nullptr);
  const CMPIInstance* current = instance(cls, *found.objects, found.index, others.data());
  others.pop_back();
  // Clients send back what they have read, so the same value is no change.
  for (const char* name : others)
    if (!values.same_in(current, name))
      throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "\"%s\" of a %s cannot be changed", name,
                    cls.name());
}

// A property that is listed without a value would have none: the switch knows no such state.
void Request::refuse_lost_values(const Class& cls, const Found& found, const NewValues& values,
                                 const char** properties) const {
  if (properties == nullptr) return;
  std::vector<const char*> without;
  for (const char** name = properties; *name != nullptr; ++name)
    if (!values.has(*name)) without.push_back(*name);
  if (without.empty()) return;
  without.push_back(nullptr);
  const NewValues current(instance(cls, *found.objects, found.index, without.data()), nullptr);
  without.pop_back();
  for (const char* name : without)
    if (current.has(name))
      throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "\"%s\" of a %s cannot be without a value", name,
                    cls.name());
}

void Request::modify(const CMPIInstance* new_values, const char** properties) {
  const Class& cls = own_class();
  if (!cls.can_modify()) not_supported(cls, "modified");
  const Found found = find(cls);
  const NewValues values(new_values, properties, blank_instance(cls));
  refuse_lost_values(cls, found, values, properties);
  refuse_other_changes(cls, found, values);
  locked([&](int32_t q) { found.objects->modify(found.index, q, values); });
  done();
}

void Request::remove() {
  const Class& cls = own_class();
  if (!cls.can_remove()) not_supported(cls, "deleted");
  const Found found = find(cls);
  locked([&](int32_t q) { found.objects->remove(found.index, q); });
  done();
}

// ---- methods ----

void Request::invoke(const char* method, const Arguments& arguments) {
  const Class& cls = own_class();
  if (method == nullptr || !cls.has_method(method))
    throw Failure(CMPI_RC_ERR_METHOD_NOT_FOUND, "%s has no method \"%s\"", cls.name(),
                  method != nullptr ? method : "");
  const Found found = find(cls);
  const ForwardingBroker broker(broker_, {});
  const Arguments with_target{arguments.in, arguments.out, name_space_.c_str(), broker.face()};
  CMPIValue value{};
  value.uint32 =
      locked([&](int32_t q) { return found.objects->invoke(found.index, q, method, with_target); });
  check(result_->ft->returnData(result_, &value, CMPI_uint32), "the return value was not taken");
  done();
}

// ---- associations ----

// Every record of the association in which the path's object stands at `end`.
template <class Visit>
void Request::for_each_link(const Class& association, int end, Visit visit) const {
  const ObjectName object(path_);
  const auto objects = locked([&](int32_t q) { return association.related(q, end, object); });
  bool known = false;
  bool matches = false;
  for (size_t index = 0; index < objects->size(); ++index) {
    const Link link{association, *objects, index, 1 - end};
    if (!known) matches = ObjectName(end_reference(link, end)).same_object(object);
    known = association.end(end).always_the_same;
    if (matches) visit(link);
    if (known && !matches) return;
  }
}

template <class Visit>
void Request::for_each_link(const AssociationFilter& filter, Visit visit) const {
  for (const Class* cls : classes_) {
    if (!cls->is_association()) continue;
    if (given(filter.association_class) && !is_a(cls->name(), filter.association_class)) continue;
    for (const int end : {0, 1}) {
      if (given(filter.role) && !same_name(filter.role, cls->end(end).role)) continue;
      if (given(filter.result_role) && !same_name(filter.result_role, cls->end(1 - end).role))
        continue;
      if (stands_at(cls->end(end))) for_each_link(*cls, end, visit);
    }
  }
}

void Request::associator_names(const AssociationFilter& filter) {
  for_each_link(filter, [&](const Link& link) {
    const CMPIObjectPath* other = end_reference(link, link.other_end);
    if (!given(filter.result_class) || is_a(other, filter.result_class)) give(other);
  });
  done();
}

void Request::associators(const AssociationFilter& filter, const char** properties) {
  for_each_link(filter, [&](const Link& link) {
    const CMPIObjectPath* other = end_reference(link, link.other_end);
    if (given(filter.result_class) && !is_a(other, filter.result_class)) return;
    const std::string class_name = chars_of(other->ft->getClassName(other, nullptr));
    give(build_instance(class_name.c_str(), properties, [&](const Target& target) {
      return link.objects.end_instance(link.index, link.other_end, target);
    }));
  });
  done();
}

void Request::reference_names(const AssociationFilter& filter) {
  for_each_link(
      {.association_class = filter.result_class, .role = filter.role},
      [this](const Link& link) { give(reference(link.association, link.objects, link.index)); });
  done();
}

void Request::references(const AssociationFilter& filter, const char** properties) {
  for_each_link({.association_class = filter.result_class, .role = filter.role},
                [this, properties](const Link& link) {
                  give(instance(link.association, link.objects, link.index, properties));
                });
  done();
}

}  // namespace vexor::providers

// One request of a client, answered for any class of a table.
//
// Each operation returns its objects through the request's CMPIResult as it builds them, and throws
// Failure for what the client is to be told. Class names are taken in any letter case. A request
// for a class that is not in the table goes to the classes of the table that derive from it.
#pragma once

#include <cmpidt.h>
#include <cmpift.h>

#include <memory>
#include <string>

#include "providers/class.h"

namespace vexor::providers {

// The filters of the association operations; null or empty lets everything through.
struct AssociationFilter {
  const char* association_class = nullptr;
  const char* result_class = nullptr;
  const char* role = nullptr;
  const char* result_role = nullptr;
};

class Request {
 public:
  Request(const CMPIBroker* broker, ClassTable classes, const CMPIResult* result,
          const CMPIObjectPath* path);

  void enumerate_names();
  void enumerate_instances(const char** properties);
  void get(const char** properties);
  void create(const CMPIInstance* instance);
  void modify(const CMPIInstance* instance, const char** properties);
  void remove();
  void invoke(const char* method, const Arguments& arguments);

  // Of the object that the path names. `role` is the role of that object, result_role that of the
  // other end.
  void associator_names(const AssociationFilter& filter);
  void associators(const AssociationFilter& filter, const char** properties);
  // result_class and role only; result_class is that of the association.
  void reference_names(const AssociationFilter& filter);
  void references(const AssociationFilter& filter, const char** properties);

 private:
  // The object that a path names, found among those that were read for it.
  struct Found {
    std::unique_ptr<Objects> objects;
    size_t index;
  };
  // What a walk over associations found: object `index`, in which the asked-for object stands at
  // one end and something else at the other.
  struct Link {
    const Class& association;
    const Objects& objects;
    size_t index;
    int other_end;
  };

  const Class* class_named(const char* name) const;
  const Class& own_class() const;
  Found find(const Class& cls) const;
  // Throws Failure when the values would change what cannot be changed.
  void refuse_other_changes(const Class& cls, const Found& found, const NewValues& values) const;
  // Throws Failure when a property of the list has a value now and none in the new values.
  void refuse_lost_values(const Class& cls, const Found& found, const NewValues& values,
                          const char** properties) const;
  // visit(const Class&) for the path's class or those that derive from it.
  template <class Visit>
  void for_each_class(Visit visit) const;
  // visit(const Link&) for every association of the path's object that the filter lets through.
  template <class Visit>
  void for_each_link(const AssociationFilter& filter, Visit visit) const;
  template <class Visit>
  void for_each_link(const Class& association, int end, Visit visit) const;

  // Whether a path's class is the named one or derives from it.
  bool is_a(const CMPIObjectPath* path, const char* class_name) const;
  bool is_a(const char* name, const char* class_name) const;
  // Whether the path's object may stand at an end.
  bool stands_at(const End& end) const;

  // Run a builder of the library under the lock; a builder that fails is a failure of the request.
  template <class Build>
  CMPIObjectPath* build_path(const char* class_name, Build build) const;
  template <class Build>
  CMPIInstance* build_instance(const char* class_name, const char** properties, Build build) const;
  CMPIObjectPath* reference(const Class& cls, const Objects& objects, size_t index) const;
  CMPIInstance* instance(const Class& cls, const Objects& objects, size_t index,
                         const char** properties) const;
  CMPIObjectPath* end_reference(const Link& link, int end) const;
  // As the object manager makes one; null when it does not.
  const CMPIInstance* blank_instance(const Class& cls) const;

  void give(const CMPIObjectPath* path) const;
  void give(const CMPIInstance* instance) const;
  void done() const;

  const CMPIBroker* broker_;
  ClassTable classes_;
  const CMPIResult* result_;
  const CMPIObjectPath* path_;
  std::string name_space_;
  std::string class_name_;
};

}  // namespace vexor::providers

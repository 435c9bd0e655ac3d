// The broker that the library gets in place of the object manager's own.
//
// What the library makes comes from the object manager; on the way
//  - properties outside the request's property list are left out, keys never: most of the library's
//    builders return every property whatever was asked for, and some object managers ignore
//    property filters,
//  - values are converted to the types that their class declares, where the library's type is
//    another one; a value that does not fit is left out,
//  - operations that the object manager does not have fail instead of being called.
//
// The library asks a broker for paths, instances and arrays only; every other slot of the tables is
// null.
#pragma once

#include <cmpidt.h>
#include <cmpift.h>

#include <forward_list>
#include <span>

#include "providers/type_differences.h"

namespace vexor::providers {

class ForwardingBroker {
 public:
  // What instances are to hold. `properties` is the request's property list and a null pointer at
  // its end, or null for all properties; `keys` are in any case part of an instance, and end in a
  // null pointer too. All must outlive the broker.
  struct Shape {
    const char* const* keys = nullptr;
    const char** properties = nullptr;
    std::span<const TypeDifference> differences = {};
  };

  ForwardingBroker(const CMPIBroker* real, const Shape& shape);
  ForwardingBroker(const ForwardingBroker&) = delete;
  ForwardingBroker& operator=(const ForwardingBroker&) = delete;

  const CMPIBroker* face() const { return &face_; }

  // The object manager's instance behind one that was made through the face; null for null.
  static CMPIInstance* real_instance(CMPIInstance* made);

 private:
  // What the library holds as an instance: the object manager's, and the broker it came through.
  struct Instance {
    CMPIInstance face;
    CMPIInstance* real;
    const ForwardingBroker* broker;
  };

  // Not constant: some CMPI headers want them so. Nothing writes to them.
  static CMPIBrokerEncFT encapsulated_table;
  static CMPIInstanceFT instance_table;

  static const ForwardingBroker& of(const CMPIBroker* face);
  static const Instance& of(const CMPIInstance* face);

  static CMPIObjectPath* new_object_path(const CMPIBroker*, const char* name_space,
                                         const char* class_name, CMPIStatus* rc);
  static CMPIInstance* new_instance(const CMPIBroker*, const CMPIObjectPath*, CMPIStatus* rc);
  static CMPIArray* new_array(const CMPIBroker*, CMPICount, CMPIType, CMPIStatus* rc);
  static CMPIStatus set_property(const CMPIInstance*, const char* name, const CMPIValue*, CMPIType);

  bool wanted(const char* property) const;
  CMPIType declared_type(const char* property, CMPIType as_set) const;

  const CMPIBroker* real_;
  Shape shape_;
  CMPIBrokerFT broker_table_;
  CMPIBroker face_;
  std::forward_list<Instance> instances_;
};

// The value as `declared` holds it. A one-element array gives its element, a whole number changes
// its width and sign. Result: false, and nothing converted, when the value does not fit or is none
// of these.
bool convert(const CMPIValue& from, CMPIType type, CMPIType declared, CMPIValue& to);

}  // namespace vexor::providers

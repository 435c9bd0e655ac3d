// What the generic provider knows of a CIM class, and how a class is described to it.
//
// A class is one RecordClass in class_table.cc: its name, its keys, and functions that read records
// from the switch and hand them to the library's builders. Everything else (locking, property
// lists, comparing keys, walking associations, reporting failures) is done once, for all classes.
//
// The functions of a class are called with the lock held. They take the queue's handle, throw
// Failure when the switch does not give what they need, and never ask the object manager for an
// operation.
#pragma once

#include <cmpidt.h>
#include <cmpift.h>

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "providers/failure.h"
#include "providers/names.h"
#include "providers/object_name.h"

namespace vexor::providers {

// Where a builder puts what it makes. Class name and namespace as the library's builders take them.
struct Target {
  const char* class_name;
  const char* name_space;
  const CMPIBroker* broker;
  const char** properties;  // the request's property list; null: all
};

// The values that a client sent for a new or a changed object. Those outside the request's property
// list are not given. `blank` may be null, or an instance as the object manager makes it: without a
// property list, a value that stands there, too, is not given either, since an object manager may
// have put the class's defaults where the client sent nothing.
class NewValues {
 public:
  NewValues(const CMPIInstance* instance, const char** properties,
            const CMPIInstance* blank = nullptr)
      : instance_(instance), properties_(properties), blank_(blank) {}
  // Result: whether the client gave the property, and it is a text, a number or a truth value;
  // `value` receives its text.
  bool text(const char* property, std::string& value) const;

  // Whether the instance has a value of the property, asked for or not.
  bool has(const char* property) const;
  // The properties that the client gave with a value.
  std::vector<std::string> names() const;
  // Whether an instance has the same value of a property. Numbers are compared whatever their
  // types.
  bool same_in(const CMPIInstance* other, const char* property) const;
  // The object that a reference property names; none when it is not given or is no reference.
  std::optional<ObjectName> reference(const char* property) const;

 private:
  bool is_asked_for(const char* property) const;

  const CMPIInstance* instance_;
  const char** properties_;
  const CMPIInstance* blank_;
};

// The arguments of a method call. Those that are no text, number, truth value or reference through
// `in` and `out` themselves.
struct Arguments {
  const CMPIArgs* in;
  CMPIArgs* out;
  // For the paths of objects that the method gives back; the request fills them in.
  const char* name_space = nullptr;
  const CMPIBroker* broker = nullptr;

  // Result: whether the client gave the argument; `value` receives its text.
  bool text(const char* argument, std::string& value) const;
  // The object that the argument names; none when it is not given or is no reference.
  std::optional<ObjectName> reference(const char* argument) const;
  // Gives an object back. Throws Failure when there is no path or it is not taken.
  void give_back(const char* argument, const CMPIObjectPath* path) const;
  Target target(const char* class_name) const { return {class_name, name_space, broker, nullptr}; }
};

// One end of an association.
struct End {
  const char* role = nullptr;        // null: the class is no association
  const char* class_name = nullptr;  // what stands at this end: this class or one derived from it
  bool always_the_same = false;      // every record has the same object at this end
  // Further classes that stand at this end, where they have no superclass of ours in common, and a
  // null pointer; null: none.
  const char* const* more_classes = nullptr;
};

// The objects of one class that a request has read.
class Objects {
 public:
  virtual ~Objects() = default;
  virtual size_t size() const = 0;
  virtual CMPIObjectPath* reference(size_t index, const Target& target) const = 0;
  virtual CMPIInstance* instance(size_t index, const Target& target) const = 0;
  // The object at an end (0 or 1) of an association.
  virtual CMPIObjectPath* end_reference(size_t index, int end, const Target& target) const = 0;
  virtual CMPIInstance* end_instance(size_t index, int end, const Target& target) const = 0;
  virtual void modify(size_t index, int32_t q, const NewValues& values) const = 0;
  virtual void remove(size_t index, int32_t q) const = 0;
  virtual uint32_t invoke(size_t index, int32_t q, const char* method,
                          const Arguments& arguments) const = 0;
};

// The most keys that a class has, and a null pointer.
using KeyNames = std::array<const char*, 6>;

class Class {
 public:
  const char* name() const { return name_; }
  const char* const* keys() const { return keys_.data(); }
  const End& end(int index) const { return ends_[index]; }
  bool is_association() const { return ends_[0].role != nullptr; }

  virtual bool can_create() const = 0;
  virtual bool can_modify() const = 0;
  virtual bool can_remove() const = 0;
  // The properties that `modify` looks at, and a null pointer; null: it judges all of them itself.
  virtual const char* const* changeable() const = 0;
  virtual bool has_methods() const = 0;
  virtual bool has_method(const char* method) const = 0;

  virtual std::unique_ptr<Objects> list(int32_t q) const = 0;
  // Those that the keys may name, without reading all of them where the class can. The caller
  // compares.
  virtual std::unique_ptr<Objects> find(int32_t q, const ObjectName& name) const = 0;
  // Those that may have the object at the end, likewise.
  virtual std::unique_ptr<Objects> related(int32_t q, int end, const ObjectName& object) const = 0;
  // The object that was made.
  virtual std::unique_ptr<Objects> create(int32_t q, const NewValues& values) const = 0;

 protected:
  constexpr Class(const char* name, const KeyNames& keys, const std::array<End, 2>& ends)
      : name_(name), keys_(keys), ends_(ends) {}
  ~Class() = default;

 private:
  const char* name_;
  KeyNames keys_;
  std::array<End, 2> ends_;
};

// A class whose objects are made from records of one type. What is left out (null) is not
// supported, or done by what is there: without `find` and `related` all records are read and
// compared.
template <class Record>
class RecordClass final : public Class {
 public:
  using Reference = CMPIObjectPath* (*)(const Target&, const Record&);
  using Instance = CMPIInstance* (*)(const Target&, const Record&);
  using Records = std::vector<Record>;

  struct EndOf : End {
    Reference reference = nullptr;  // builders of the object at this end
    Instance instance = nullptr;
  };
  struct Method {
    const char* name = nullptr;
    // Result: the method's return value.
    uint32_t (*invoke)(int32_t q, const Record&, const Arguments&) = nullptr;
  };

  struct Description {
    const char* name;
    KeyNames keys;
    Records (*list)(int32_t q);
    Reference reference;
    Instance instance;
    Records (*find)(int32_t q, const ObjectName& name) = nullptr;
    std::array<EndOf, 2> ends = {};
    Records (*related)(int32_t q, const char* role, const ObjectName& object) = nullptr;
    Record (*create)(int32_t q, const NewValues& values) = nullptr;
    void (*modify)(int32_t q, const Record&, const NewValues& values) = nullptr;
    // With a list here (a null pointer at its end), a request that gives any other property another
    // value than it has is refused before `modify` is called.
    const char* const* changeable = nullptr;
    void (*remove)(int32_t q, const Record&) = nullptr;
    std::span<const Method> methods = {};
  };

  constexpr explicit RecordClass(const Description& description)
      : Class(description.name, description.keys, {description.ends[0], description.ends[1]}),
        description_(description) {}

  bool can_create() const override { return description_.create != nullptr; }
  bool can_modify() const override { return description_.modify != nullptr; }
  bool can_remove() const override { return description_.remove != nullptr; }
  const char* const* changeable() const override { return description_.changeable; }
  bool has_methods() const override { return !description_.methods.empty(); }
  bool has_method(const char* method) const override { return find_method(method) != nullptr; }

  std::unique_ptr<Objects> list(int32_t q) const override { return objects(description_.list(q)); }
  std::unique_ptr<Objects> find(int32_t q, const ObjectName& name) const override {
    return description_.find != nullptr ? objects(description_.find(q, name)) : list(q);
  }
  std::unique_ptr<Objects> related(int32_t q, int end, const ObjectName& object) const override {
    if (description_.related == nullptr) return list(q);
    return objects(description_.related(q, description_.ends[end].role, object));
  }
  std::unique_ptr<Objects> create(int32_t q, const NewValues& values) const override {
    Records made;
    made.push_back(description_.create(q, values));
    return objects(std::move(made));
  }

 private:
  class RecordObjects final : public Objects {
   public:
    RecordObjects(const RecordClass& of, Records records) : of_(of), records_(std::move(records)) {}
    size_t size() const override { return records_.size(); }
    CMPIObjectPath* reference(size_t index, const Target& target) const override {
      return is().reference(target, records_[index]);
    }
    CMPIInstance* instance(size_t index, const Target& target) const override {
      return is().instance(target, records_[index]);
    }
    CMPIObjectPath* end_reference(size_t index, int end, const Target& target) const override {
      return is().ends[end].reference(target, records_[index]);
    }
    CMPIInstance* end_instance(size_t index, int end, const Target& target) const override {
      return is().ends[end].instance(target, records_[index]);
    }
    void modify(size_t index, int32_t q, const NewValues& values) const override {
      is().modify(q, records_[index], values);
    }
    void remove(size_t index, int32_t q) const override { is().remove(q, records_[index]); }
    uint32_t invoke(size_t index, int32_t q, const char* method,
                    const Arguments& arguments) const override {
      return of_.find_method(method)->invoke(q, records_[index], arguments);
    }

   private:
    const Description& is() const { return of_.description_; }
    const RecordClass& of_;
    Records records_;
  };

  std::unique_ptr<Objects> objects(Records records) const {
    return std::make_unique<RecordObjects>(*this, std::move(records));
  }
  const Method* find_method(const char* name) const {
    for (const Method& method : description_.methods)
      if (same_name(method.name, name)) return &method;
    return nullptr;
  }

  Description description_;
};

// The classes that a provider serves.
using ClassTable = std::span<const Class* const>;

}  // namespace vexor::providers

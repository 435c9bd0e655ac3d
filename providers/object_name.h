// An object path as plain values: which object a client means, and which one a path names.
#pragma once

#include <cmpidt.h>
#include <cmpift.h>

#include <string>
#include <vector>

namespace vexor::providers {

class ObjectName {
 public:
  struct Key;

  // Copies what the path holds.
  // Throws Failure (INVALID_PARAMETER): a key without a value, or with one that is no key's.
  explicit ObjectName(const CMPIObjectPath* path);

  const std::string& name_space() const { return name_space_; }  // empty: not said
  const std::string& class_name() const { return class_name_; }
  const std::vector<Key>& keys() const { return keys_; }

  // Null when there is no such key.
  const Key* key(const char* name) const;
  // The text of a key; null when there is none, or it is a reference.
  const char* text(const char* name) const;
  // The object that a reference key names; null when there is none.
  const ObjectName* reference(const char* name) const;

  // Whether both name the same object. Values are compared exactly, names of classes and keys in
  // any letter case. A name without a namespace means the other's. Hosts are not compared: clients
  // leave them out or write them in their own way.
  bool same_object(const ObjectName& other) const;

 private:
  std::string name_space_;
  std::string class_name_;
  std::vector<Key> keys_;
};

// The value of a key: a text as it is, a number in decimal, a truth value as true or false; or the
// one object that a reference names. Numbers are compared as texts, since object managers change
// the type of number keys on the way.
struct ObjectName::Key {
  std::string name;
  std::string text;
  std::vector<ObjectName> object;  // none or one
};

// The text of a broker's string; empty for null strings and null texts.
const char* chars_of(const CMPIString* string);

// A number, text or truth value as a text. Result: whether the data is one of these and not null.
bool to_text(const CMPIData& data, std::string& text);

}  // namespace vexor::providers

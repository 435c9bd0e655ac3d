#include "providers/object_name.h"

#include "providers/failure.h"
#include "providers/names.h"

namespace vexor::providers {
namespace {

const CMPIString* name_space_of(const CMPIObjectPath* path) {
  return path->ft->getNameSpace(path, nullptr);
}

// Result: false for a key that the path lacks. Some object managers count every key of the class;
// those that the client left out are then not to be had.
bool read_key(const CMPIObjectPath* path, CMPICount index, ObjectName::Key& key) {
  CMPIString* name = nullptr;
  CMPIStatus status = {CMPI_RC_OK, nullptr};
  const CMPIData data = path->ft->getKeyAt(path, index, &name, &status);
  if (status.rc == CMPI_RC_ERR_NO_SUCH_PROPERTY) return false;
  key.name = chars_of(name);
  if (status.rc != CMPI_RC_OK || key.name.empty())
    throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "key number %u of the object path is unreadable",
                  index + 1);
  const bool has_value = (data.state & ~CMPI_keyValue) == 0;
  // An empty text comes without a value from some object managers.
  const bool is_empty = data.type == CMPI_string && (data.state & CMPI_nullValue) != 0;
  if (has_value && data.type == CMPI_ref && data.value.ref != nullptr)
    key.object.emplace_back(data.value.ref);
  else if (!is_empty && !to_text(data, key.text))
    throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "key \"%s\" has no value", key.name.c_str());
  return true;
}

bool same_value(const ObjectName::Key& a, const ObjectName::Key& b) {
  if (a.object.size() != b.object.size()) return false;
  return a.object.empty() ? a.text == b.text : a.object[0].same_object(b.object[0]);
}

}  // namespace

const char* chars_of(const CMPIString* string) {
  if (string == nullptr || string->hdl == nullptr) return "";
  const char* chars = string->ft->getCharPtr(string, nullptr);
  return chars != nullptr ? chars : "";
}

bool to_text(const CMPIData& data, std::string& text) {
  if ((data.state & ~CMPI_keyValue) != 0) return false;
  switch (data.type) {
    case CMPI_string:
      if (data.value.string == nullptr) return false;
      text = chars_of(data.value.string);
      return true;
    case CMPI_chars:
      if (data.value.chars == nullptr) return false;
      text = data.value.chars;
      return true;
    case CMPI_boolean:
      text = data.value.boolean != 0 ? "true" : "false";
      return true;
    case CMPI_uint8:
      text = std::to_string(data.value.uint8);
      return true;
    case CMPI_uint16:
      text = std::to_string(data.value.uint16);
      return true;
    case CMPI_uint32:
      text = std::to_string(data.value.uint32);
      return true;
    case CMPI_uint64:
      text = std::to_string(data.value.uint64);
      return true;
    case CMPI_sint8:
      text = std::to_string(data.value.sint8);
      return true;
    case CMPI_sint16:
      text = std::to_string(data.value.sint16);
      return true;
    case CMPI_sint32:
      text = std::to_string(data.value.sint32);
      return true;
    case CMPI_sint64:
      text = std::to_string(data.value.sint64);
      return true;
    default:
      return false;
  }
}

ObjectName::ObjectName(const CMPIObjectPath* path)
    : name_space_(chars_of(name_space_of(path))),
      class_name_(chars_of(path->ft->getClassName(path, nullptr))) {
  const CMPICount count = path->ft->getKeyCount(path, nullptr);
  keys_.reserve(count);
  for (CMPICount index = 0; index < count; ++index) {
    Key key;
    if (read_key(path, index, key)) keys_.push_back(std::move(key));
  }
}

const ObjectName::Key* ObjectName::key(const char* name) const {
  for (const Key& key : keys_)
    if (same_name(key.name.c_str(), name)) return &key;
  return nullptr;
}

const char* ObjectName::text(const char* name) const {
  const Key* found = key(name);
  return found != nullptr && found->object.empty() ? found->text.c_str() : nullptr;
}

const ObjectName* ObjectName::reference(const char* name) const {
  const Key* found = key(name);
  return found != nullptr && !found->object.empty() ? &found->object[0] : nullptr;
}

bool ObjectName::same_object(const ObjectName& other) const {
  if (!same_name(class_name_.c_str(), other.class_name_.c_str())) return false;
  if (!name_space_.empty() && !other.name_space_.empty() &&
      !same_name(name_space_.c_str(), other.name_space_.c_str()))
    return false;
  if (keys_.size() != other.keys_.size()) return false;
  for (const Key& mine : keys_) {
    const Key* theirs = other.key(mine.name.c_str());
    if (theirs == nullptr || !same_value(mine, *theirs)) return false;
  }
  return true;
}

}  // namespace vexor::providers

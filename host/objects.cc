#include "host/objects.h"

#include <algorithm>
#include <cstring>

namespace cim::host {
namespace {

std::string text_of(const CMPIString* string) {
  return content_of(string).text;
}

/// One value that is not an array.
Element element_from(const CMPIValue& value, CMPIType type) {
  switch (type) {
    case CMPI_boolean:
      return value.boolean != 0;
    case CMPI_char16:
      return static_cast<char16_t>(value.char16);
    case CMPI_uint8:
      return std::uint64_t{value.uint8};
    case CMPI_uint16:
      return std::uint64_t{value.uint16};
    case CMPI_uint32:
      return std::uint64_t{value.uint32};
    case CMPI_uint64:
      return std::uint64_t{value.uint64};
    case CMPI_sint8:
      return std::int64_t{value.sint8};
    case CMPI_sint16:
      return std::int64_t{value.sint16};
    case CMPI_sint32:
      return std::int64_t{value.sint32};
    case CMPI_sint64:
      return std::int64_t{value.sint64};
    case CMPI_real32:
      return double{value.real32};
    case CMPI_real64:
      return value.real64;
    case CMPI_string:
      if (value.string == nullptr) return {};
      return text_of(value.string);
    case CMPI_dateTime:
      if (value.dateTime == nullptr) return {};
      return content_of(value.dateTime).text;
    case CMPI_ref:
      if (value.ref == nullptr) return {};
      return std::make_shared<const ObjectPath>(content_of(value.ref));
    case CMPI_instance: {
      if (value.inst == nullptr) return {};
      Shell<CMPIInstance>& shell = shell_of(value.inst);
      return std::make_shared<const Instance>(finished_instance(shell.broker, *shell.content));
    }
    default:
      throw CimError(CMPI_RC_ERR_INVALID_DATA_TYPE, type_text(type) + " is no type of a value");
  }
}

Data array_from(const CMPIArray* array, CMPIType type) {
  const auto declared = static_cast<CMPIType>(type & ~CMPI_ARRAY);
  if (array == nullptr) return Data::null_of(declared == CMPI_chars ? CMPI_stringA : type);
  const ArrayContent& content = content_of(array);
  const auto plain = [](CMPIType t) { return t == CMPI_chars ? CMPIType{CMPI_string} : t; };
  if (plain(content.type) != plain(declared)) {
    throw CimError(CMPI_RC_ERR_INVALID_DATA_TYPE,
                   "an array of " + type_text(content.type) + " is given as " + type_text(type));
  }
  return Data::array_of(plain(declared), content.elements);
}

CMPIValue value_of(Broker& broker, const Element& element, CMPIType base) {
  CMPIValue value{};
  struct Writer {
    Broker& broker;
    CMPIType base;
    CMPIValue& value;
    void operator()(std::monostate) const {}
    void operator()(bool content) const { value.boolean = content ? 1 : 0; }
    void operator()(char16_t content) const { value.char16 = content; }
    void operator()(std::uint64_t content) const {
      // The member of the type's own width, so that the value is right on any byte order.
      if (base == CMPI_uint8) {
        value.uint8 = static_cast<CMPIUint8>(content);
      } else if (base == CMPI_uint16) {
        value.uint16 = static_cast<CMPIUint16>(content);
      } else if (base == CMPI_uint32) {
        value.uint32 = static_cast<CMPIUint32>(content);
      } else {
        value.uint64 = content;
      }
    }
    void operator()(std::int64_t content) const {
      if (base == CMPI_sint8) {
        value.sint8 = static_cast<CMPISint8>(content);
      } else if (base == CMPI_sint16) {
        value.sint16 = static_cast<CMPISint16>(content);
      } else if (base == CMPI_sint32) {
        value.sint32 = static_cast<CMPISint32>(content);
      } else {
        value.sint64 = content;
      }
    }
    void operator()(double content) const {
      if (base == CMPI_real32) {
        value.real32 = static_cast<float>(content);
      } else {
        value.real64 = content;
      }
    }
    void operator()(const std::string& content) const {
      if (base == CMPI_dateTime) {
        value.dateTime = make<CMPIDateTime>(broker, {content});
      } else {
        value.string = make_string(broker, content);
      }
    }
    void operator()(const PathPtr& content) const {
      value.ref = make<CMPIObjectPath>(broker, *content);
    }
    void operator()(const InstancePtr& content) const {
      value.inst = make<CMPIInstance>(broker, instance_content(broker, *content));
    }
  };
  std::visit(Writer{broker, base, value}, element);
  return value;
}

bool has_quotation_mark(const ObjectPath& path) {
  for (const NamedData& key : path.keys) {
    const auto* text = std::get_if<std::string>(&key.data.element);
    if (text != nullptr && text->find('"') != std::string::npos) return true;
    const auto* nested = std::get_if<PathPtr>(&key.data.element);
    if (nested != nullptr && has_quotation_mark(**nested)) return true;
  }
  return false;
}

}  // namespace

CMPIStatus make_status(CMPIrc code, const std::string& text) {
  CMPIStatus status{code, nullptr};
  const Scope* scope = Scope::current();
  if (scope == nullptr || text.empty()) return status;
  try {
    status.msg = make_string(scope->broker(), text);
  } catch (const std::bad_alloc&) {
    status.msg = nullptr;  // the code must do
  }
  return status;
}

Data data_from(const CMPIValue* value, CMPIType type) {
  if (type == CMPI_null) return Data::null_of(CMPI_null);
  if (!is_data_type(type))
    throw CimError(CMPI_RC_ERR_INVALID_DATA_TYPE, type_text(type) + " is no type of a value");
  if (value == nullptr) return Data::null_of(type == CMPI_chars ? CMPIType{CMPI_string} : type);
  if ((type & CMPI_ARRAY) != 0) return array_from(value->array, type);
  if (type == CMPI_chars) {
    // By the interface's convention the pointer is the text itself.
    return Data::string(reinterpret_cast<const char*>(value));
  }
  return Data::of(type, element_from(*value, type));
}

Data data_from(const CMPIData& data) {
  if ((data.state & ~CMPI_keyValue) != 0) return Data::null_of(data.type);
  if (data.type == CMPI_chars) {
    if (data.value.chars == nullptr) return Data::null_of(CMPI_string);
    return Data::string(data.value.chars);
  }
  return data_from(&data.value, data.type);
}

CMPIData to_cmpi(Broker& broker, const Data& data) {
  CMPIData result{};
  result.type = data.type;
  if (data.null) {
    result.state = CMPI_nullValue;
  } else if (data.is_array()) {
    result.value.array = make<CMPIArray>(broker, ArrayContent{data.base_type(), data.elements});
  } else {
    result.value = value_of(broker, data.element, data.type);
    const auto* path = std::get_if<PathPtr>(&data.element);
    if (path != nullptr && broker.behavior().nested_paths_as_text && has_quotation_mark(**path))
      result.value.ref = nullptr;
  }
  return result;
}

CMPIString* make_string(Broker& broker, std::string text) {
  return make<CMPIString>(broker, StringContent{std::move(text)});
}

void give_name(Broker& broker, CMPIString** name, const std::string& text) {
  if (name != nullptr) *name = make_string(broker, text);
}

std::string text_argument(const char* text, const char* what) {
  if (text == nullptr)
    throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, std::string(what) + " is a null pointer");
  return text;
}

std::vector<std::string> name_list(const char** names) {
  std::vector<std::string> result;
  for (; names != nullptr && *names != nullptr; ++names)
    result.emplace_back(*names);
  return result;
}

const NamedData& item_at(const std::vector<NamedData>& items, CMPICount index, CMPIrc beyond) {
  if (index >= items.size()) {
    throw CimError(beyond, "there are " + std::to_string(items.size()) +
                               " items, and none at index " + std::to_string(index));
  }
  return items[index];
}

}  // namespace cim::host

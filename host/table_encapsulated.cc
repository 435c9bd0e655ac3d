// CMPIBrokerEncFT: factories of objects, texts, logging.
#include <chrono>
#include <cstdarg>

#include "host/date_time.h"
#include "host/object_path.h"
#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

// --- Factories -----------------------------------------------------------------------------------

CMPIInstance* new_instance(const CMPIBroker* face, const CMPIObjectPath* path, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIInstance*>(nullptr), [&] {
    Broker& broker = broker_of(face);
    const ObjectPath& given = content_of(path);
    const Behavior& behavior = broker.behavior();
    Instance instance;
    instance.path = given;
    if (broker.repository().find(given.class_name) == nullptr &&
        !behavior.instances_of_unknown_class) {
      const std::string text = "no class " + given.class_name;
      broker.report(text + "; no instance was made");
      throw CimError(CMPI_RC_ERR_INVALID_CLASS, text);
    }
    InstanceContent content = instance_content(broker, instance);
    content.path_given = false;
    if (behavior.class_defaults) set_class_defaults(broker, content);
    if (behavior.keys_copied_to_instance) {
      for (const NamedData& key : given.keys) {
        if (NamedData* property = find_named(content.instance.properties, key.name))
          property->data = key.data;
      }
    }
    return make<CMPIInstance>(broker, std::move(content));
  });
}

CMPIObjectPath* new_object_path(const CMPIBroker* face, const char* name_space,
                                const char* class_name, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIObjectPath*>(nullptr), [&] {
    Broker& broker = broker_of(face);
    ObjectPath path;
    path.class_name = text_argument(class_name, "the class name");
    if (name_space != nullptr) path.name_space = name_space;
    return make<CMPIObjectPath>(broker, std::move(path));
  });
}

CMPIArgs* new_args(const CMPIBroker* face, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIArgs*>(nullptr),
                 [&] { return make<CMPIArgs>(broker_of(face), {}); });
}

CMPIString* new_string(const CMPIBroker* face, const char* chars, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIString*>(nullptr),
                 [&] { return make_string(broker_of(face), text_argument(chars, "the text")); });
}

CMPIArray* new_array(const CMPIBroker* face, CMPICount size, CMPIType type, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIArray*>(nullptr), [&] {
    Broker& broker = broker_of(face);
    // Beyond it no property or argument makes sense, and the memory would be the machine's.
    constexpr CMPICount kMostElements = 1U << 24;
    if (size > kMostElements) {
      throw CimError(CMPI_RC_ERR_INVALID_PARAMETER,
                     "an array of " + std::to_string(size) + " elements is too large");
    }
    if ((type & CMPI_ARRAY) != 0 || !is_data_type(type)) {
      throw CimError(CMPI_RC_ERR_INVALID_DATA_TYPE, "there are no arrays of " + type_text(type));
    }
    return make<CMPIArray>(broker, ArrayContent{type, std::vector<Element>(size)});
  });
}

CMPIDateTime* make_date_time(const CMPIBroker* face, std::optional<std::string> text) {
  if (!text) throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, "beyond what a CIM datetime can say");
  return make<CMPIDateTime>(broker_of(face), {std::move(*text)});
}

CMPIDateTime* new_date_time(const CMPIBroker* face, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIDateTime*>(nullptr), [&] {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    const auto microseconds = std::chrono::duration_cast<std::chrono::microseconds>(now).count();
    return make_date_time(face, time_stamp_text(static_cast<std::uint64_t>(microseconds)));
  });
}

CMPIDateTime* new_date_time_from_binary(const CMPIBroker* face, CMPIUint64 time,
                                        CMPIBoolean interval, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIDateTime*>(nullptr), [&] {
    return make_date_time(face, interval != 0 ? interval_text(time) : time_stamp_text(time));
  });
}

CMPIDateTime* new_date_time_from_chars(const CMPIBroker* face, const char* chars, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIDateTime*>(nullptr), [&] {
    std::string text = text_argument(chars, "the datetime");
    if (!schema::is_datetime(text))
      throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, "'" + text + "' is no CIM datetime");
    return make_date_time(face, std::move(text));
  });
}

CMPISelectExp* new_select_exp(const CMPIBroker*, const char*, const char*, CMPIArray** projection,
                              CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPISelectExp*>(nullptr), [&]() -> CMPISelectExp* {
    if (projection != nullptr) *projection = nullptr;
    throw CimError(CMPI_RC_ERR_NOT_SUPPORTED, "this object manager evaluates no queries");
  });
}

// --- Questions about objects ---------------------------------------------------------------------

CMPIBoolean class_path_is_a(const CMPIBroker* face, const CMPIObjectPath* path,
                            const char* class_name, CMPIStatus* rc) {
  return guarded(rc, CMPIBoolean{0}, [&] {
    const schema::Repository& repository = broker_of(face).repository();
    const std::string ancestor = text_argument(class_name, "the class name");
    const std::string& name = content_of(path).class_name;
    if (repository.find(name) == nullptr)
      throw CimError(CMPI_RC_ERR_INVALID_CLASS, "no class " + name);
    return static_cast<CMPIBoolean>(repository.is_a(name, ancestor) ? 1 : 0);
  });
}

std::string data_text(const Data& data) {
  return schema::to_mof(to_value(data));
}

std::string items_text(const std::vector<NamedData>& items) {
  std::string text;
  for (const NamedData& item : items)
    text += (text.empty() ? "" : ", ") + item.name + "=" + data_text(item.data);
  return text;
}

template <class Face>
const typename Traits<Face>::Content& content_in(const Node& node) {
  return *static_cast<const Shell<Face>&>(node).content;
}

std::string object_text(Broker& broker, const Node& node) {
  switch (node.kind()) {
    case Kind::instance:
      return to_mof(finished_instance(broker, content_in<CMPIInstance>(node)));
    case Kind::object_path:
      return to_text(content_in<CMPIObjectPath>(node));
    case Kind::args:
      return items_text(content_in<CMPIArgs>(node).items);
    case Kind::context:
      return items_text(content_in<CMPIContext>(node).items);
    case Kind::string:
      return content_in<CMPIString>(node).text;
    case Kind::array: {
      const ArrayContent& array = content_in<CMPIArray>(node);
      return data_text(Data::array_of(array.type, array.elements));
    }
    case Kind::date_time:
      return content_in<CMPIDateTime>(node).text;
    case Kind::enumeration: {
      std::string text;
      for (const Data& item : content_in<CMPIEnumeration>(node).items)
        text += schema::to_text(to_value(item)) + "\n";
      return text;
    }
    case Kind::error:
      return content_in<CMPIError>(node).message;
    case Kind::result:
    case Kind::mark:
      break;
  }
  return std::string(kind_name(node.kind()));
}

/// Every CMPI object starts with its handle.
Node& node_of(const void* object) {
  Node* node = object == nullptr ? nullptr : live_node(*static_cast<void* const*>(object));
  if (node == nullptr) throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "not a valid CMPI object");
  return *node;
}

CMPIString* to_string(const CMPIBroker* face, const void* object, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIString*>(nullptr), [&] {
    Broker& broker = broker_of(face);
    return make_string(broker, object_text(broker, node_of(object)));
  });
}

CMPIBoolean is_of_type(const CMPIBroker*, const void* object, const char* type, CMPIStatus* rc) {
  return guarded(rc, CMPIBoolean{0}, [&] {
    const bool same = kind_name(node_of(object).kind()) == text_argument(type, "the type");
    return static_cast<CMPIBoolean>(same ? 1 : 0);
  });
}

CMPIString* get_type(const CMPIBroker* face, const void* object, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIString*>(nullptr), [&] {
    return make_string(broker_of(face), std::string(kind_name(node_of(object).kind())));
  });
}

// --- Messages ------------------------------------------------------------------------------------

/// The texts of `count` pairs of type and value.
std::vector<std::string> message_arguments(CMPICount count, va_list list) {
  std::vector<std::string> texts;
  for (CMPICount i = 0; i < count; ++i) {
    switch (va_arg(list, int)) {
      case CMPI_sint32:
        texts.push_back(std::to_string(va_arg(list, long)));
        break;
      case CMPI_uint32:
        texts.push_back(std::to_string(va_arg(list, unsigned long)));
        break;
      case CMPI_sint64:
        texts.push_back(std::to_string(va_arg(list, long long)));
        break;
      case CMPI_uint64:
        texts.push_back(std::to_string(va_arg(list, unsigned long long)));
        break;
      case CMPI_real64:
        texts.push_back(schema::to_mof(schema::Type::real64, schema::Scalar(va_arg(list, double))));
        break;
      case CMPI_boolean:
        texts.emplace_back(va_arg(list, int) != 0 ? "true" : "false");
        break;
      case CMPI_chars: {
        const char* const text = va_arg(list, const char*);
        texts.emplace_back(text == nullptr ? "" : text);
        break;
      }
      case CMPI_string:
        texts.push_back(content_of(va_arg(list, const CMPIString*)).text);
        break;
      default:
        throw CimError(CMPI_RC_ERR_INVALID_DATA_TYPE,
                       "argument " + std::to_string(i) + " of the message has an unknown type");
    }
  }
  return texts;
}

/// `$0` to `$9` become the arguments; a mark without an argument stays.
std::string filled_in(const std::string& message, const std::vector<std::string>& arguments) {
  std::string text;
  for (std::size_t i = 0; i < message.size(); ++i) {
    const char digit = i + 1 < message.size() ? message[i + 1] : '\0';
    const auto index = static_cast<std::size_t>(digit - '0');
    if (message[i] == '$' && digit >= '0' && digit <= '9' && index < arguments.size()) {
      text += arguments[index];
      ++i;
    } else {
      text += message[i];
    }
  }
  return text;
}

/// There are no translations: the default text is the message.
CMPIString* message(const CMPIBroker* face, const char* text, CMPIStatus* rc, CMPICount count,
                    va_list list) {
  return guarded(rc, static_cast<CMPIString*>(nullptr), [&] {
    const std::vector<std::string> arguments = message_arguments(count, list);
    return make_string(broker_of(face),
                       filled_in(text_argument(text, "the default message"), arguments));
  });
}

CMPIString* get_message(const CMPIBroker* face, const char*, const char* text, CMPIStatus* rc,
                        CMPICount count, ...) {
  va_list list;
  va_start(list, count);
  CMPIString* const result = message(face, text, rc, count, list);
  va_end(list);
  return result;
}

CMPIString* get_message2(const CMPIBroker* face, const char*, CMPIMsgFileHandle, const char* text,
                         CMPIStatus* rc, CMPICount count, ...) {
  va_list list;
  va_start(list, count);
  CMPIString* const result = message(face, text, rc, count, list);
  va_end(list);
  return result;
}

CMPIStatus open_message_file(const CMPIBroker*, const char* name, CMPIMsgFileHandle* handle) {
  return guarded_status([&] {
    if (handle != nullptr) *handle = nullptr;
    throw CimError(CMPI_RC_ERR_NOT_FOUND,
                   "there is no message file " + text_argument(name, "the file name"));
  });
}

CMPIStatus close_message_file(const CMPIBroker*, CMPIMsgFileHandle) {
  return guarded_status(
      [] { throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "no message file was opened"); });
}

CMPIStatus report(const CMPIBroker* face, const char* kind, const char* id, const char* text,
                  const CMPIString* string) {
  return guarded_status([&] {
    std::string line = std::string(kind) + ": ";
    if (id != nullptr) line += std::string(id) + ": ";
    if (text != nullptr) {
      line += text;
    } else if (string != nullptr) {
      line += content_of(string).text;
    }
    broker_of(face).report(line);
  });
}

CMPIStatus log_message(const CMPIBroker* face, CMPISeverity severity, const char* id,
                       const char* text, const CMPIString* string) {
  const char* const kind = severity == CMPI_SEV_ERROR     ? "error"
                           : severity == CMPI_SEV_WARNING ? "warning"
                                                          : "info";
  return report(face, kind, id, text, string);
}

CMPIStatus trace(const CMPIBroker* face, CMPILevel, const char* component, const char* text,
                 const CMPIString* string) {
  return report(face, "trace", component, text, string);
}

CMPIError* new_error(const CMPIBroker* face, const char* owner, const char* message_id,
                     const char* message_text, CMPIErrorSeverity severity,
                     CMPIErrorProbableCause cause, CMPIrc status, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIError*>(nullptr), [&] {
    ErrorContent content;
    content.owning_entity = text_argument(owner, "the owning entity");
    content.message_id = text_argument(message_id, "the message id");
    content.message = text_argument(message_text, "the message");
    content.severity = severity;
    content.cause = cause;
    content.status = status;
    return make<CMPIError>(broker_of(face), std::move(content));
  });
}

}  // namespace

CMPIBrokerEncFT encapsulated_table(const Behavior& behavior) {
  CMPIBrokerEncFT table{
      .ftVersion = kTableVersion,
      .newInstance = new_instance,
      .newObjectPath = new_object_path,
      .newArgs = new_args,
      .newString = new_string,
      .newArray = new_array,
      .newDateTime = new_date_time,
      .newDateTimeFromBinary = new_date_time_from_binary,
      .newDateTimeFromChars = new_date_time_from_chars,
      .newSelectExp = new_select_exp,
      .classPathIsA = class_path_is_a,
      .toString = to_string,
      .isOfType = is_of_type,
      .getType = get_type,
      .getMessage = get_message,
      .logMessage = log_message,
      .trace = trace,
      .newCMPIError = new_error,
      .openMessageFile = open_message_file,
      .closeMessageFile = close_message_file,
      .getMessage2 = get_message2,
  };
  if (!behavior.optional_slots) {
    table.newCMPIError = nullptr;
    table.openMessageFile = nullptr;
    table.closeMessageFile = nullptr;
    table.getMessage2 = nullptr;
  }
  return table;
}

}  // namespace cim::host

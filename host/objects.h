// CMPI objects and the C++ content behind them, and the way from one to the other. For the sources
// of the tables only (host/table_*.cc, host/object_manager.cc, host/broker.cc).
#ifndef HOST_OBJECTS_H_
#define HOST_OBJECTS_H_

#include <cmpidt.h>
#include <cmpift.h>

#include <exception>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "host/arena.h"
#include "host/broker.h"
#include "host/cim_error.h"
#include "host/data.h"
#include "schema/names.h"

namespace cim::host {

// --- Contents ------------------------------------------------------------------------------------

struct StringContent {
  std::string text;
};

struct ArrayContent {
  CMPIType type = CMPI_null;  ///< of the elements; CMPI_chars stays CMPI_chars here
  std::vector<Element> elements;
};

struct InstanceContent {
  const schema::Class* cls = nullptr;  ///< null: of a class that the repository does not know
  Instance instance;
  bool path_given = false;  ///< by setObjectPath
  /// The names that count; none: all.
  std::optional<std::set<std::string, schema::NameLess>> filter;
};

struct NamedContent {
  std::vector<NamedData> items;
  /// Of a context made for a thread: the request that it belongs to.
  std::shared_ptr<Arena> pinned;
};

struct DateTimeContent {
  std::string text;  ///< the 25 characters
};

struct EnumerationContent {
  CMPIType type = CMPI_null;  ///< CMPI_instance or CMPI_ref, or that of the first item
  std::vector<Data> items;
  std::size_t next = 0;
};

enum class ResultOf { instances, paths, data };

/// What a provider returned. The operation that called the provider owns it.
struct Collector {
  ResultOf wanted = ResultOf::data;
  std::vector<Instance> instances;
  std::vector<ObjectPath> paths;
  std::vector<Data> data;
  bool done = false;
};

struct ResultContent {
  Collector* collector;
};

struct ErrorContent {
  CMPIErrorType type = UnknownErrorType;
  std::string other_type;
  std::string owning_entity;
  std::string message_id;
  std::string message;
  CMPIErrorSeverity severity = ErrorSevUnknown;
  CMPIErrorProbableCause cause = ErrorProbableCauseUnknown;
  std::string cause_description;
  std::vector<Element> recommended_actions;
  std::string source;
  CMPIErrorSrcFormat source_format = UnknownErrorSrcFormat;
  std::string other_source_format;
  CMPIrc status = CMPI_RC_OK;
  std::string status_description;
  std::vector<Element> message_arguments;
};

struct MarkContent {
  std::uint64_t count = 0;
};

// --- Faces ---------------------------------------------------------------------------------------

/// CMPIGcStat has no members for providers; it gets a handle like all others.
struct MarkFace {
  void* hdl;
  const void* ft;
};

/// Which table, kind and content belong to a CMPI structure.
template <class Face>
struct Traits;

template <Kind kKind, class ContentType, auto kTable>
struct TraitsOf {
  using Content = ContentType;
  static constexpr Kind kind = kKind;
  static const auto* table(const Tables& tables) { return &(tables.*kTable); }
};

template <>
struct Traits<CMPIInstance> : TraitsOf<Kind::instance, InstanceContent, &Tables::instance> {};
template <>
struct Traits<CMPIObjectPath> : TraitsOf<Kind::object_path, ObjectPath, &Tables::object_path> {};
template <>
struct Traits<CMPIArgs> : TraitsOf<Kind::args, NamedContent, &Tables::args> {};
template <>
struct Traits<CMPIString> : TraitsOf<Kind::string, StringContent, &Tables::string> {};
template <>
struct Traits<CMPIArray> : TraitsOf<Kind::array, ArrayContent, &Tables::array> {};
template <>
struct Traits<CMPIDateTime> : TraitsOf<Kind::date_time, DateTimeContent, &Tables::date_time> {};
template <>
struct Traits<CMPIEnumeration>
    : TraitsOf<Kind::enumeration, EnumerationContent, &Tables::enumeration> {};
template <>
struct Traits<CMPIContext> : TraitsOf<Kind::context, NamedContent, &Tables::context> {};
template <>
struct Traits<CMPIResult> : TraitsOf<Kind::result, ResultContent, &Tables::result> {};
template <>
struct Traits<CMPIError> : TraitsOf<Kind::error, ErrorContent, &Tables::error> {};
template <>
struct Traits<MarkFace> {
  using Content = MarkContent;
  static constexpr Kind kind = Kind::mark;
  static const void* table(const Tables&) { return nullptr; }
};

template <class Face>
class Shell final : public Node {
 public:
  using Content = typename Traits<Face>::Content;

  Shell(Broker& owner, Content value)
      : Node(Traits<Face>::kind),
        broker(owner),
        content(std::make_unique<Content>(std::move(value))) {
    face.hdl = static_cast<Node*>(this);
    face.ft = Traits<Face>::table(owner.tables());
  }

  void drop() override {
    no_longer_alive();
    face.hdl = nullptr;
    content.reset();
  }

  Face face;
  Broker& broker;
  std::unique_ptr<Content> content;
};

/// The shell behind an object that came from a provider.
/// \throws CimError CMPI_RC_ERR_INVALID_HANDLE for null, a null object, or an object that is not
/// ours or no longer there
template <class Face>
Shell<Face>& shell_of(const Face* object) {
  Node* node = object == nullptr ? nullptr : live_node(object->hdl, Traits<Face>::kind);
  if (node == nullptr) {
    throw CimError(CMPI_RC_ERR_INVALID_HANDLE,
                   "not a valid " + std::string(kind_name(Traits<Face>::kind)));
  }
  return static_cast<Shell<Face>&>(*node);
}

template <class Face>
typename Traits<Face>::Content& content_of(const Face* object) {
  return *shell_of(object).content;
}

/// A new object that goes with the request.
template <class Face>
Face* make(Broker& broker, typename Traits<Face>::Content content) {
  auto shell = std::make_unique<Shell<Face>>(broker, std::move(content));
  Face* const face = &shell->face;
  broker.arena().add(std::move(shell));
  return face;
}

// --- The way out of a table function -------------------------------------------------------------

/// A status whose text lives as long as the request; without a request it has no text.
CMPIStatus make_status(CMPIrc code, const std::string& text);

/// Runs the body of a table function: *rc gets the outcome, and a failure yields `failed`. The two
/// results never share a variable: a body that throws must not have written into `failed`.
template <class Result, class Body>
Result guarded(CMPIStatus* rc, const Result& failed, Body&& body) noexcept {
  CMPIStatus status{CMPI_RC_OK, nullptr};
  try {
    const Result result = body();
    if (rc != nullptr) *rc = status;
    return result;
  } catch (const CimError& error) {
    status = make_status(error.code(), error.what());
  } catch (const std::exception& error) {
    status = make_status(CMPI_RC_ERR_FAILED, error.what());
  }
  if (rc != nullptr) *rc = status;
  return failed;
}

/// The same for functions that return a status.
template <class Body>
CMPIStatus guarded_status(Body&& body) noexcept {
  CMPIStatus status{CMPI_RC_OK, nullptr};
  guarded(&status, 0, [&] {
    body();
    return 0;
  });
  return status;
}

/// The same for functions that return data; a failure has the given state.
template <class Body>
CMPIData guarded_data(CMPIStatus* rc, CMPIValueState failed_state, Body&& body) noexcept {
  CMPIData failed{};
  failed.state = failed_state;
  return guarded(rc, failed, std::forward<Body>(body));
}

constexpr CMPIValueState kMissing = CMPI_notFound | CMPI_nullValue;

// --- Slots that every object has -----------------------------------------------------------------

template <class Face>
CMPIStatus release_object(Face* object) {
  return guarded_status([&] {
    if (object != nullptr && object->hdl == nullptr) return;  // released before: harmless
    Shell<Face>& shell = shell_of(object);
    shell.broker.release(shell);
  });
}

template <class Face>
Face* clone_object(const Face* object, CMPIStatus* rc) {
  return guarded(rc, static_cast<Face*>(nullptr), [&] {
    Shell<Face>& original = shell_of(object);
    auto shell = std::make_unique<Shell<Face>>(original.broker, *original.content);
    Face* const face = &shell->face;
    original.broker.clones().add(std::move(shell));
    return face;
  });
}

// --- Values --------------------------------------------------------------------------------------

/// Copies a value that a provider hands over; a null pointer is a null of that type. CMPI_chars
/// becomes CMPI_string.
/// \throws CimError CMPI_RC_ERR_INVALID_DATA_TYPE, CMPI_RC_ERR_INVALID_HANDLE
Data data_from(const CMPIValue* value, CMPIType type);
Data data_from(const CMPIData& data);

/// Makes what a provider gets to see; objects go with the request.
CMPIData to_cmpi(Broker& broker, const Data& data);

CMPIString* make_string(Broker& broker, std::string text);
/// A string, or null in *name; does nothing when name is null.
void give_name(Broker& broker, CMPIString** name, const std::string& text);

/// \throws CimError CMPI_RC_ERR_INVALID_PARAMETER for a null pointer
std::string text_argument(const char* text, const char* what);
/// A null-terminated list of names; a null list has none.
std::vector<std::string> name_list(const char** names);

/// The data of a named item at an index, for the ...At slots.
/// \throws CimError `beyond` when there is none
const NamedData& item_at(const std::vector<NamedData>& items, CMPICount index, CMPIrc beyond);

/// Takes over an instance as it was when it was returned: filtered, and with its path.
Instance finished_instance(Broker& broker, const InstanceContent& content);
/// An instance of a class: every property of the class is there, null unless given.
InstanceContent instance_content(Broker& broker, const Instance& instance);
/// The same for a client's new values, as a provider is to see them.
InstanceContent request_content(Broker& broker, const Instance& instance);
/// What the class gives as defaults, where a property is null.
void set_class_defaults(const Broker& broker, InstanceContent& content);

}  // namespace cim::host

#endif  // HOST_OBJECTS_H_

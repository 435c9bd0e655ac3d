// Object managers differ where the CMPI interface leaves them room. Everything that may differ
// stands here, so that a provider can be tried against each way without the object manager that
// behaves so.
#ifndef HOST_BEHAVIOR_H_
#define HOST_BEHAVIOR_H_

#include <optional>
#include <string_view>

namespace cim::host {

enum class UnknownProperty {
  refuse,  ///< CMPI_RC_ERR_NO_SUCH_PROPERTY
  drop,    ///< nothing happens, and CMPI_RC_OK
  add,     ///< the instance gets a property that its class lacks
};

enum class WrongType {
  refuse,  ///< CMPI_RC_ERR_INVALID_DATA_TYPE, the old value stays
  store,   ///< stored as it came, with the wrong type
};

/// The default refuses whatever some object manager in use refuses or does not survive: what works
/// here works there.
struct Behavior {
  UnknownProperty unknown_property = UnknownProperty::refuse;
  WrongType wrong_type = WrongType::refuse;
  bool null_needs_type = true;              ///< CMPI_null does not clear a property
  bool instances_of_unknown_class = false;  ///< newInstance makes them, with no properties
  bool keys_copied_to_instance = false;     ///< newInstance sets the path's keys as properties
  bool class_defaults = false;              ///< newInstance sets what the class gives as defaults
  bool defaults_in_requests = false;        ///< where a client's new values lack a property, the
                                            ///< provider is given the default of its class
  bool missing_keys_counted = false;        ///< getKeyCount counts keys of the class that a path
                                            ///< lacks; getKeyAt has a name for them and no value
  bool filter_on_output = false;         ///< a property filter acts when the instance is returned
  bool sorted_keys = false;              ///< getKeyAt goes by name, not by order of addKey
  bool integer_keys_widened = false;     ///< integer keys read back as sint64
  bool empty_keys_null = false;          ///< keys with an empty text read back as null
  bool nested_paths_as_text = false;     ///< a path in a key, a property or an argument is kept as
                                         ///< text without escapes: one with a quotation mark in a
                                         ///< key reads back as a null pointer
  bool key_state = true;                 ///< keys read back in the state CMPI_keyValue
  bool texts_fit_string_arrays = false;  ///< CMPI_chars may be set in an array of CMPI_string
  bool optional_slots = true;  ///< slots that may be null are there: qualifiers, errors, messages
  bool memory_table = true;    ///< CMPIBroker.mft is there

  /// Does as it is told: stores wrong types and unknown properties, leaves optional slots out.
  /// Instances start with the keys of their path and the defaults of their class; paths in paths
  /// are texts.
  static Behavior lenient();
  /// Checks types but says nothing about unknown properties; keys are sorted, widened, null when
  /// they are empty and counted when they are missing; instances start with the defaults of their
  /// class; there is no memory table.
  static Behavior quiet();

  /// "strict" is the default; "lenient" and "quiet" are those above. Others have no value.
  static std::optional<Behavior> named(std::string_view name);
};

}  // namespace cim::host

#endif  // HOST_BEHAVIOR_H_

#include "host/behavior.h"

namespace cim::host {

Behavior Behavior::lenient() {
  Behavior behavior;
  behavior.unknown_property = UnknownProperty::add;
  behavior.wrong_type = WrongType::store;
  behavior.null_needs_type = false;
  behavior.instances_of_unknown_class = true;
  behavior.keys_copied_to_instance = true;
  behavior.class_defaults = true;
  behavior.defaults_in_requests = true;
  behavior.nested_paths_as_text = true;
  behavior.key_state = false;
  behavior.texts_fit_string_arrays = true;
  behavior.optional_slots = false;
  return behavior;
}

Behavior Behavior::quiet() {
  Behavior behavior;
  behavior.unknown_property = UnknownProperty::drop;
  behavior.instances_of_unknown_class = true;
  behavior.class_defaults = true;
  behavior.missing_keys_counted = true;
  behavior.filter_on_output = true;
  behavior.sorted_keys = true;
  behavior.integer_keys_widened = true;
  behavior.empty_keys_null = true;
  behavior.memory_table = false;
  return behavior;
}

std::optional<Behavior> Behavior::named(std::string_view name) {
  if (name == "strict") return Behavior{};
  if (name == "lenient") return lenient();
  if (name == "quiet") return quiet();
  return std::nullopt;
}

}  // namespace cim::host

#include "host/behavior.h"

namespace cim::host {

Behavior Behavior::lenient() {
  Behavior behavior;
  behavior.unknown_property = UnknownProperty::add;
  behavior.wrong_type = WrongType::store;
  behavior.null_needs_type = false;
  behavior.instances_of_unknown_class = true;
  behavior.keys_copied_to_instance = true;
  behavior.key_state = false;
  behavior.texts_fit_string_arrays = true;
  behavior.optional_slots = false;
  return behavior;
}

Behavior Behavior::quiet() {
  Behavior behavior;
  behavior.unknown_property = UnknownProperty::drop;
  behavior.instances_of_unknown_class = true;
  behavior.filter_on_output = true;
  behavior.sorted_keys = true;
  behavior.integer_keys_widened = true;
  behavior.memory_table = false;
  return behavior;
}

}  // namespace cim::host

// CMPIArrayFT.
#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

[[noreturn]] void beyond(const ArrayContent& content, CMPICount index) {
  throw CimError(CMPI_RC_ERR_NO_SUCH_PROPERTY,
                 "the array has " + std::to_string(content.elements.size()) +
                     " elements, and none at index " + std::to_string(index));
}

CMPICount get_size(const CMPIArray* array, CMPIStatus* rc) {
  return guarded(rc, CMPICount{0},
                 [&] { return static_cast<CMPICount>(content_of(array).elements.size()); });
}

CMPIType get_simple_type(const CMPIArray* array, CMPIStatus* rc) {
  return guarded(rc, CMPIType{CMPI_null}, [&] { return content_of(array).type; });
}

CMPIData get_element_at(const CMPIArray* array, CMPICount index, CMPIStatus* rc) {
  return guarded_data(rc, CMPI_nullValue, [&] {
    const Shell<CMPIArray>& shell = shell_of(array);
    const ArrayContent& content = *shell.content;
    if (index >= content.elements.size()) beyond(content, index);
    const CMPIType type = content.type == CMPI_chars ? CMPIType{CMPI_string} : content.type;
    return to_cmpi(shell.broker, Data::of(type, content.elements[index]));
  });
}

CMPIStatus set_element_at(const CMPIArray* array, CMPICount index, const CMPIValue* value,
                          CMPIType type) {
  return guarded_status([&] {
    const Shell<CMPIArray>& shell = shell_of(array);
    ArrayContent& content = *shell.content;
    if (index >= content.elements.size()) beyond(content, index);
    const Behavior& behavior = shell.broker.behavior();
    const bool fits =
        type == content.type || (type == CMPI_null && !behavior.null_needs_type) ||
        (behavior.texts_fit_string_arrays && type == CMPI_chars && content.type == CMPI_string);
    if (!fits) {
      throw CimError(CMPI_RC_ERR_TYPE_MISMATCH, "an element of type " + type_text(type) +
                                                    " does not fit an array of " +
                                                    type_text(content.type));
    }
    content.elements[index] = data_from(value, type).element;
  });
}

}  // namespace

CMPIArrayFT array_table() {
  return {
      .ftVersion = kTableVersion,
      .release = release_object<CMPIArray>,
      .clone = clone_object<CMPIArray>,
      .getSize = get_size,
      .getSimpleType = get_simple_type,
      .getElementAt = get_element_at,
      .setElementAt = set_element_at,
  };
}

}  // namespace cim::host

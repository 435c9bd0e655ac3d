// Properties of instances, for the commands that show them to people.
#ifndef TOOLS_INSTANCE_VALUES_H_
#define TOOLS_INSTANCE_VALUES_H_

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "host/data.h"

namespace vexor::tools {

/// What stands where there is nothing to show.
inline constexpr const char* kNothing = "--";

/// Empty where there is no text.
inline std::string text_of(const cim::host::Instance& instance, std::string_view property) {
  const cim::host::Data* data = instance.find(property);
  const auto* text = data == nullptr ? nullptr : std::get_if<std::string>(&data->element);
  return text == nullptr ? std::string() : *text;
}

inline std::optional<std::uint64_t> number_of(const cim::host::Instance& instance,
                                              std::string_view property) {
  const cim::host::Data* data = instance.find(property);
  const auto* number = data == nullptr ? nullptr : std::get_if<std::uint64_t>(&data->element);
  return number == nullptr ? std::nullopt : std::optional(*number);
}

}  // namespace vexor::tools

#endif  // TOOLS_INSTANCE_VALUES_H_

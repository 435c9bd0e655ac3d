#include "providers/type_differences.h"

#include <algorithm>
#include <iterator>

#include "providers/names.h"

namespace vexor::providers {
namespace {

// The rows of one class stand together.
constexpr TypeDifference kDifferences[] = {
    // The library gives an interface index, signed and of 32 bits, for a port without a number.
    {"VEXOR_EthernetPort", "PortNumber", CMPI_uint16},
    {"VEXOR_FCPort", "PortNumber", CMPI_uint16},
    // The library gives arrays of one element.
    {"VEXOR_LogicalModule", "EnabledState", CMPI_uint16},
    {"VEXOR_LogicalModule", "RequestedState", CMPI_uint16},
    {"VEXOR_LogicalModule", "EnabledDefault", CMPI_uint16},
};

}  // namespace

std::span<const TypeDifference> type_differences_of(const char* class_name) {
  const auto of_class = [class_name](const TypeDifference& difference) {
    return same_name(difference.class_name, class_name);
  };
  const auto* first = std::find_if(std::begin(kDifferences), std::end(kDifferences), of_class);
  const auto* end = std::find_if_not(first, std::end(kDifferences), of_class);
  return {first, end};
}

}  // namespace vexor::providers

// Properties whose type, as the library sets it, is not the type that their class declares.
//
// Object managers differ in what they do about a wrong type: some store it, some refuse it, some
// end the provider's process. So the values are converted before the object manager sees them.
#pragma once

#include <cmpidt.h>

#include <span>

namespace vexor::providers {

struct TypeDifference {
  const char* class_name;
  const char* property;
  CMPIType declared;
};

// Those of one class, named as the table of classes names it.
std::span<const TypeDifference> type_differences_of(const char* class_name);

}  // namespace vexor::providers

// CMPI tables whose slots note who is called, with which arguments, and give a known answer.
#ifndef RECORDING_BROKER_H
#define RECORDING_BROKER_H

#include <cmpift.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace recording {

// One call of a slot. Pointers and numbers are kept as numbers.
struct Call {
  std::string slot;
  std::vector<std::uintptr_t> arguments;

  bool operator==(const Call&) const = default;
};

inline std::vector<Call> calls;

template <class T>
std::uintptr_t AsNumber(T value) {
  if constexpr (std::is_pointer_v<T>) {
    return reinterpret_cast<std::uintptr_t>(value);
  } else {
    return static_cast<std::uintptr_t>(value);
  }
}

// What slots answer: pointers this address, numbers 3 (which fits every enumeration), data and
// status these.
inline char answer_target = 0;
inline constexpr int kNumber = 3;
inline constexpr CMPIrc kStatus = CMPI_RC_ERR_ALREADY_EXISTS;
inline constexpr CMPIType kDataType = CMPI_sint32;

template <class T>
T Answer() {
  if constexpr (std::is_pointer_v<T>) {
    return reinterpret_cast<T>(&answer_target);
  } else if constexpr (std::is_same_v<T, CMPIStatus>) {
    return CMPIStatus{kStatus, nullptr};
  } else if constexpr (std::is_same_v<T, CMPIData>) {
    return CMPIData{kDataType, CMPI_goodValue, {}};
  } else if constexpr (!std::is_void_v<T>) {
    return static_cast<T>(kNumber);
  }
}

// The name of a slot as a template argument.
struct Name {
  char text[40] = {};

  template <std::size_t size>
  constexpr Name(const char (&name)[size]) {  // NOLINT(google-explicit-constructor)
    std::copy_n(name, size, text);
  }
};

template <Name name, class R, class... A>
R Note(A... arguments) {
  calls.push_back({name.text, {AsNumber(arguments)...}});
  return Answer<R>();
}

// Becomes a function of whatever type the slot has: table.getKey = Slot<"getKey">{}.
template <Name name>
struct Slot {
  template <class R, class... A>
  using Function = R (*)(A...);

  template <class R, class... A>
  operator Function<R, A...>() const {  // NOLINT(google-explicit-constructor)
    return &Note<name, R, A...>;
  }
};

// Whether exactly one call was made since the last question, to this slot with these arguments.
template <class... A>
bool Called(const char* slot, A... arguments) {
  const std::vector<Call> made = std::exchange(calls, {});
  return made == std::vector<Call>{{slot, {AsNumber(arguments)...}}};
}

}  // namespace recording

#endif

// Reading the members of the objects of a fabric file. Everything throws json::Problem.
#ifndef SIMULATOR_FABRIC_OBJECT_READER_H
#define SIMULATOR_FABRIC_OBJECT_READER_H

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/fabric/json.h"
#include "simulator/fabric/suggestion.h"

namespace switch_sim {

using json::Position;
using json::Problem;
using json::quote;
using json::Value;

template <typename Type>
const Type& expect(const Value& value, const char* what) {
  if (const auto* data = std::get_if<Type>(&value.data)) return *data;
  throw Problem{value.position, std::string("expected ") + what};
}

// The members of one object. Keys that are not among `known` are refused at once.
class ObjectReader {
 public:
  ObjectReader(const Value& value, const char* what, std::vector<std::string_view> known)
      : position_(value.position), object_(expect<json::Object>(value, what)), what_(what) {
    for (const json::Member& member : object_) {
      if (std::find(known.begin(), known.end(), member.key) == known.end()) {
        throw Problem{member.key_position,
                      "unknown key " + quote(member.key) + suggestion(member.key, known)};
      }
    }
  }

  const Value* find(std::string_view key) const {
    const auto member =
        std::find_if(object_.begin(), object_.end(),
                     [&](const json::Member& candidate) { return candidate.key == key; });
    return member != object_.end() ? &member->value : nullptr;
  }

  const Value& at(std::string_view key) const {
    if (const Value* value = find(key)) return *value;
    throw Problem{position_, std::string(what_) + " lacks " + quote(key)};
  }

  Position position_of(std::string_view key) const {
    const Value* value = find(key);
    return value != nullptr ? value->position : position_;
  }

 private:
  Position position_;
  const json::Object& object_;
  const char* what_;
};

template <typename Integer>
Integer read_number(const Value& value, int64_t least, int64_t most) {
  const auto& number = expect<json::Number>(value, "a number");
  if (!number.integer || *number.integer < least || *number.integer > most) {
    throw Problem{value.position, "expected a whole number from " + std::to_string(least) + " to " +
                                      std::to_string(most)};
  }
  return static_cast<Integer>(*number.integer);
}

template <typename Integer>
Integer read_number(const ObjectReader& object, const char* key, int64_t least, int64_t most,
                    Integer otherwise) {
  const Value* value = object.find(key);
  return value != nullptr ? read_number<Integer>(*value, least, most) : otherwise;
}

inline bool read_flag(const ObjectReader& object, const char* key, bool otherwise) {
  const Value* value = object.find(key);
  return value != nullptr ? expect<bool>(*value, "true or false") : otherwise;
}

// One of the words; its enumeration has the same order, from 1.
template <typename Enumeration, size_t kCount>
Enumeration read_word(const ObjectReader& object, const char* key,
                      const std::array<std::string_view, kCount>& words, Enumeration otherwise) {
  const Value* value = object.find(key);
  if (value == nullptr) return otherwise;
  const auto& text = expect<std::string>(*value, "a text");
  const auto word = std::find(words.begin(), words.end(), text);
  if (word == words.end()) {
    throw Problem{value->position, "expected " + list_of(words) + suggestion(text, words)};
  }
  return static_cast<Enumeration>(word - words.begin() + 1);
}

}  // namespace switch_sim

#endif  // SIMULATOR_FABRIC_OBJECT_READER_H

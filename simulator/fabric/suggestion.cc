#include "simulator/fabric/suggestion.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace switch_sim {
namespace {

// Letters to insert, remove or replace.
size_t edit_distance(std::string_view from, std::string_view to) {
  std::vector<size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), size_t{0});
  for (size_t i = 0; i < from.size(); ++i) {
    size_t diagonal = row[0];
    row[0] = i + 1;
    for (size_t j = 0; j < to.size(); ++j) {
      const size_t replaced = diagonal + (from[i] == to[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
    }
  }
  return row.back();
}

constexpr size_t kLongestCompared = 64;

}  // namespace

std::string suggestion(std::string_view unknown, std::span<const std::string_view> known) {
  if (unknown.size() > kLongestCompared) return "";
  std::string_view best;
  size_t best_distance = std::max<size_t>(unknown.size() / 3, 1) + 1;
  for (const std::string_view word : known) {
    const size_t distance = edit_distance(unknown, word);
    if (distance < best_distance) {
      best = word;
      best_distance = distance;
    }
  }
  return best.empty() ? "" : " (did you mean \"" + std::string(best) + "\"?)";
}

std::string list_of(std::span<const std::string_view> words) {
  std::string text;
  for (size_t i = 0; i < words.size(); ++i) {
    if (i > 0) text += i + 1 < words.size() ? ", " : " or ";
    text += '"' + std::string(words[i]) + '"';
  }
  return text;
}

}  // namespace switch_sim

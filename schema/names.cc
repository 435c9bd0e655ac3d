#include "schema/names.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace cim::schema {
namespace {

constexpr std::size_t kLongestCompared = 128;

constexpr unsigned char lower(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte >= 'A' && byte <= 'Z' ? static_cast<unsigned char>(byte + ('a' - 'A')) : byte;
}

/// The number of single-letter changes between two names, without regard to letter case; counting
/// stops beyond `limit`.
std::size_t edit_distance(std::string_view a, std::string_view b, std::size_t limit) {
  if (a.size() > b.size() + limit || b.size() > a.size() + limit) return limit + 1;
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    std::size_t best = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t changed = diagonal + (lower(a[i - 1]) == lower(b[j - 1]) ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
      best = std::min(best, row[j]);
    }
    if (best > limit) return limit + 1;
  }
  return row[b.size()];
}

}  // namespace

bool equal_names(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return lower(x) == lower(y); });
}

bool NameLess::operator()(std::string_view a, std::string_view b) const {
  return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                      [](char x, char y) { return lower(x) < lower(y); });
}

std::size_t NameHash::operator()(std::string_view name) const {
  std::size_t hash = 14695981039346656037ULL;
  for (char c : name)
    hash = (hash ^ lower(c)) * 1099511628211ULL;
  return hash;
}

std::string_view nearest_name(std::string_view name, std::span<const std::string_view> candidates) {
  if (name.empty() || name.size() > kLongestCompared) return {};
  const std::size_t limit = std::max<std::size_t>(1, name.size() / 3);
  std::string_view nearest;
  std::size_t best = limit + 1;
  for (std::string_view candidate : candidates) {
    if (candidate.size() > kLongestCompared) continue;
    const std::size_t distance = edit_distance(name, candidate, limit);
    if (distance < best) {
      best = distance;
      nearest = candidate;
    }
  }
  return nearest;
}

std::string suggestion(std::string_view name, std::span<const std::string_view> candidates) {
  const std::string_view nearest = nearest_name(name, candidates);
  if (nearest.empty()) return {};
  return "; did you mean '" + std::string(nearest) + "'?";
}

}  // namespace cim::schema

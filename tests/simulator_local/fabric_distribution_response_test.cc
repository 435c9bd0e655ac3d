#include "simulator/local/fabric_distribution_response.h"

#include <switch_platform/fabric_distribution.h>

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace {

using switch_sim::distribution::iterators_outstanding;

// Two answers, the first from 2000000DEC0A1B2D at 192.0.2.2, the second silent.
std::vector<uint8_t> two_answers() {
  std::vector<uint8_t> payload = {0, 0, 0, 0, 0, 0, 0, 2};
  payload.resize(8 + 2 * 60, 0);
  const uint8_t first[] = {0, 0, 0, 1, 0x20, 0x00, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, 0x2D};
  memcpy(payload.data() + 8, first, sizeof first);
  const uint8_t address[] = {0, 0, 0, 1, 192, 0, 2, 2};
  memcpy(payload.data() + 8 + 40, address, sizeof address);
  return payload;
}

TEST(DistributionResponse, TheIteratorGivesTheAnswersInOrder) {
  auto payload = two_answers();
  payload[8 + 60 + 3] = 1;
  payload[8 + 60 + 11] = 0x2E;
  int32_t count = 0;
  void* iter = nullptr;
  ASSERT_EQ(0, kfs_iter_parse_response(payload.data(), 128, &count, &iter));
  EXPECT_EQ(2, count);

  const auto* first = static_cast<const uint8_t*>(kfs_iter_get_next_response(iter));
  ASSERT_NE(nullptr, first);
  const uint8_t wwn[] = {0x20, 0x00, 0x00, 0x0D, 0xEC, 0x0A, 0x1B, 0x2D};
  EXPECT_EQ(0, memcmp(first + 4, wwn, 8));
  const uint8_t family_and_address[] = {0, 0, 0, 1, 192, 0, 2, 2};
  EXPECT_EQ(0, memcmp(first + 40, family_and_address, 8));

  const auto* second = static_cast<const uint8_t*>(kfs_iter_get_next_response(iter));
  ASSERT_NE(nullptr, second);
  EXPECT_EQ(0x2E, second[11]);
  EXPECT_EQ(nullptr, kfs_iter_get_next_response(iter));
  kfs_iter_destroy(iter);
}

TEST(DistributionResponse, ASilentPeerIsNull) {
  const auto payload = two_answers();
  int32_t count = 0;
  void* iter = nullptr;
  ASSERT_EQ(0, kfs_iter_parse_response(payload.data(), 128, &count, &iter));
  EXPECT_NE(nullptr, kfs_iter_get_next_response(iter));
  EXPECT_EQ(nullptr, kfs_iter_get_next_response(iter));
  kfs_iter_destroy(iter);
}

TEST(DistributionResponse, AnswersOutliveThePayload) {
  auto payload = two_answers();
  int32_t count = 0;
  void* iter = nullptr;
  ASSERT_EQ(0, kfs_iter_parse_response(payload.data(), 128, &count, &iter));
  std::vector<uint8_t>().swap(payload);
  const auto* first = static_cast<const uint8_t*>(kfs_iter_get_next_response(iter));
  ASSERT_NE(nullptr, first);
  EXPECT_EQ(0x2D, first[11]);
  kfs_iter_destroy(iter);
}

TEST(DistributionResponse, APayloadShorterThanItsCountIsMalformed) {
  const auto payload = two_answers();
  int32_t count = 77;
  void* iter = &count;
  for (int32_t size : {-1, 0, 7, 8, 127}) {
    EXPECT_EQ(1, kfs_iter_parse_response(payload.data(), size, &count, &iter)) << size;
    EXPECT_EQ(0, count);
    EXPECT_EQ(nullptr, iter);
  }
  EXPECT_EQ(1, kfs_iter_parse_response(nullptr, 128, &count, &iter));
}

TEST(DistributionResponse, AHugeCountIsMalformed) {
  auto payload = two_answers();
  memset(payload.data() + 4, 0xFF, 4);
  int32_t count = 0;
  void* iter = nullptr;
  EXPECT_EQ(1, kfs_iter_parse_response(payload.data(), 128, &count, &iter));
  EXPECT_EQ(nullptr, iter);
}

TEST(DistributionResponse, TheResultCodeIsTheParseResult) {
  const uint8_t payload[] = {0, 0, 0, 2, 0, 0, 0, 0};
  int32_t count = 77;
  void* iter = nullptr;
  EXPECT_EQ(2, kfs_iter_parse_response(payload, 8, &count, &iter));
  EXPECT_EQ(0, count);
  EXPECT_EQ(nullptr, iter);
}

TEST(DistributionResponse, TheAttributesAreCodeAndCount) {
  const auto payload = two_answers();
  uint32_t attributes[16] = {77, 77};
  EXPECT_EQ(0, kfs_get_response_attr(payload.data(), 128, attributes));
  EXPECT_EQ(0U, attributes[0]);
  EXPECT_EQ(2U, attributes[1]);
  EXPECT_EQ(1, kfs_get_response_attr(payload.data(), 127, attributes));
  EXPECT_EQ(1, kfs_get_response_attr(payload.data(), 128, nullptr));
}

TEST(DistributionResponse, IteratorsAreCounted) {
  const auto payload = two_answers();
  int32_t count = 0;
  void* first = nullptr;
  void* second = nullptr;
  const int64_t before = iterators_outstanding();
  kfs_iter_parse_response(payload.data(), 128, &count, &first);
  kfs_iter_parse_response(payload.data(), 128, &count, &second);
  EXPECT_EQ(before + 2, iterators_outstanding());
  kfs_iter_destroy(first);
  EXPECT_EQ(before + 1, iterators_outstanding());
  kfs_iter_destroy(second);
  kfs_iter_destroy(nullptr);
  EXPECT_EQ(before, iterators_outstanding());
}

TEST(DistributionResponse, NoIteratorHasNoAnswers) {
  EXPECT_EQ(nullptr, kfs_iter_get_next_response(nullptr));
}

}  // namespace

// A bound queue on the default fabric, and replies compared whole with bytes written by hand.
#ifndef TESTS_SIMULATOR_SIMULATOR_FIXTURE_H
#define TESTS_SIMULATOR_SIMULATOR_FIXTURE_H

#include <switch_platform/mts.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "simulator/control/control.h"

namespace simulator_test {

// Bytes of a given size, zeros but where hexadecimal text is put.
class Pattern {
 public:
  explicit Pattern(size_t size) : bytes_(size) {}

  Pattern& at(size_t offset, std::string_view hex) {
    for (size_t i = 0; i + 1 < hex.size(); i += 2) {
      bytes_.at(offset + i / 2) =
          static_cast<uint8_t>(std::stoul(std::string(hex.substr(i, 2)), nullptr, 16));
    }
    return *this;
  }

  Pattern& text(size_t offset, std::string_view text) {
    for (size_t i = 0; i < text.size(); ++i) {
      bytes_.at(offset + i) = static_cast<uint8_t>(text[i]);
    }
    return *this;
  }

  const std::vector<uint8_t>& bytes() const { return bytes_; }

 private:
  std::vector<uint8_t> bytes_;
};

struct Result {
  int32_t status = 0;
  bool has_reply = false;
  int32_t length = 0;
  std::vector<uint8_t> reply;
};

class SimulatorTest : public testing::Test {
 protected:
  void SetUp() override {
    switch_sim::control::reset();
    cim_mts_bind_opts opts = {1, 0, 1024, 0, 0};
    q = mts_bind(1, -1, &opts, "test");
    ASSERT_GE(q, 0);
  }

  void TearDown() override {
    mts_unbind(q, 0);
    const auto left = switch_sim::control::outstanding();
    EXPECT_EQ(0, left.messages);
    EXPECT_EQ(0, left.iterators);
  }

  Result call(uint32_t sap, uint32_t opcode, uint32_t operation,
              const std::vector<uint8_t>& request) {
    Result result;
    void* reply = nullptr;
    result.length = static_cast<int32_t>(request.size());
    result.status = cmi_req_resp(opcode, operation, request.empty() ? nullptr : request.data(),
                                 &reply, &result.length, 0, 0, sap, q, 4);
    result.has_reply = reply != nullptr;
    if (reply != nullptr) {
      const auto* bytes = static_cast<const uint8_t*>(reply);
      result.reply.assign(bytes, bytes + result.length);
    }
    free(reply);
    return result;
  }

  void expect_reply(const Result& result, const Pattern& expected) {
    EXPECT_EQ(0, result.status);
    EXPECT_EQ(static_cast<int32_t>(expected.bytes().size()), result.length);
    EXPECT_EQ(expected.bytes(), result.reply);
  }

  void expect_refused(const Result& result, int32_t status) {
    EXPECT_EQ(status, result.status) << syserr2str(result.status);
    EXPECT_FALSE(result.has_reply);
    EXPECT_EQ(0, result.length);
  }

  int32_t q = -1;
};

// Statuses, as numbers of the interface.
inline constexpr int32_t kNotFound = 0x40010001;
inline constexpr int32_t kEndOfTable = 0x40010002;
inline constexpr int32_t kBadLength = 0x40010003;
inline constexpr int32_t kBadOperation = 0x40010004;
inline constexpr int32_t kBadValue = 0x40010005;
inline constexpr int32_t kNotRunning = 0x40010006;
inline constexpr int32_t kUnknownOpcode = 0x40010007;
inline constexpr int32_t kServiceNotAvailable = 0x40010008;
inline constexpr int32_t kFabricNotUsable = 0x40010009;
inline constexpr int32_t kStateNotSaved = 0x4001000A;
inline constexpr int32_t kNotRecorded = 0x4001000B;

}  // namespace simulator_test

#endif  // TESTS_SIMULATOR_SIMULATOR_FIXTURE_H

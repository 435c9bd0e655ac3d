// Services that answer whatever the fuzzer's input says: statuses, missing replies, short and long
// ones, true and untrue lengths. For programs of one source.
#ifndef FUZZ_FUZZED_SERVICES_H
#define FUZZ_FUZZED_SERVICES_H

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <switch_platform/mts.h>

namespace {

// The rest of the input, consumed from its front. Behind its end everything is zero.
class Input {
 public:
  void start(const uint8_t* data, size_t size) {
    data_ = data;
    size_ = size;
  }
  uint8_t byte() {
    if (size_ == 0) return 0;
    --size_;
    return *data_++;
  }
  uint16_t word() { return static_cast<uint16_t>(byte() << 8 | byte()); }
  void fill(void* to, size_t size) {
    const size_t there = std::min(size, size_);
    if (there > 0) std::memcpy(to, data_, there);
    std::memset(static_cast<uint8_t*>(to) + there, 0, size - there);
    data_ += there;
    size_ -= there;
  }
  bool empty() const { return size_ == 0; }

 private:
  const uint8_t* data_ = nullptr;
  size_t size_ = 0;
};

Input input;
// Exchanges left for this run: services do not answer for ever.
int exchanges_left;

}  // namespace

int32_t cmi_req_resp(uint32_t, uint32_t, const void*, void** reply, int32_t* length, int32_t,
                     int32_t, uint32_t, int32_t, int32_t) {
  if (input.empty() || --exchanges_left < 0) return -1;
  const uint8_t what = input.byte();
  const size_t size = input.word() % 3000;
  if (reply != nullptr && (what & 1) != 0 && size > 0) {
    *reply = std::malloc(size);
    input.fill(*reply, size);
    if ((what & 2) == 0) *length = static_cast<int32_t>(size);
    if ((what & 4) != 0) *length = static_cast<int32_t>(input.word()) - 0x8000;
  }
  if ((what & 0x18) == 0x18) return static_cast<int8_t>(input.byte());
  return 0;
}

void perror(const char*) {}

namespace {

// Starts a run over the input. Traces are of no interest here; what the sanitizers say is.
void start_run(const uint8_t* data, size_t size) {
  static const bool quiet = std::freopen("/dev/null", "w", stdout) != nullptr;
  (void)quiet;
  input.start(data, size);
  exchanges_left = 2000;
}

}  // namespace

#endif

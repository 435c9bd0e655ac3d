// A ledger of the C and C++ heap of a test program.
//
// The build sends every reference to malloc, calloc, realloc, free, strdup, strndup and
// malloc_usable_size from the objects of a test program (the library under test, the tests, the
// doubles, GoogleTest) through this ledger, and the C++ allocation functions are replaced. Blocks
// that shared libraries (GLib, the C library) make for themselves are not seen.
//
// Nothing is checked until a HeapLedger exists. While one does:
//  - what is allocated is counted and can be made to fail,
//  - a second free, a free of what is no heap block, and a block that goes back by the wrong
//    function (free for new, delete for malloc) fail the test,
//  - a freed block keeps its address until the ledger ends (or many blocks later), so that a second
//    free is told for certain; writing into it meanwhile fails the test,
//  - at its end every block allocated during its life must have been freed.
#ifndef TESTS_SUPPORT_HEAP_LEDGER_H
#define TESTS_SUPPORT_HEAP_LEDGER_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace test_support {

enum class Heap { any, c, cpp };

class HeapLedger {
 public:
  HeapLedger();
  // Expects that nothing is outstanding. (After a failure of the same test only blocks of the C
  // heap are told: GoogleTest's records of the failure are blocks made with new.)
  ~HeapLedger();
  HeapLedger(const HeapLedger&) = delete;
  HeapLedger& operator=(const HeapLedger&) = delete;

  // The n-th allocation from now on (1 is the next) fails, once: a C function returns null with
  // errno ENOMEM, operator new throws std::bad_alloc, its nothrow form returns null.
  void fail_nth(size_t n, Heap which = Heap::any);
  void fail_none();
  // Whether the failure asked for last was hit.
  bool failure_was_hit() const { return hit_; }

  // Allocations so far. A realloc counts as one.
  size_t allocations(Heap which = Heap::any) const;
  // Blocks and bytes allocated in this scope and not freed yet.
  size_t outstanding() const;
  size_t outstanding_bytes() const;

  // Frees a block that the library or a double handed to the caller; fails the test when the block
  // is not a live one. The same as free(block), said aloud.
  void release_by_caller(void* block);

  // While one exists on this thread nothing is counted, failed or expected to be freed: for
  // allocations of the test itself that outlive the ledger.
  class Pause {
   public:
    Pause();
    ~Pause();
    Pause(const Pause&) = delete;
    Pause& operator=(const Pause&) = delete;
  };

  // While one exists on this thread, a service of the same program works for the caller: what it
  // makes with new is its own and not seen, as under a Pause. Blocks of the C heap are what it
  // hands out: they are expected to be freed, but neither counted nor made to fail.
  class GivingOut {
   public:
    GivingOut();
    ~GivingOut();
    GivingOut(const GivingOut&) = delete;
    GivingOut& operator=(const GivingOut&) = delete;
  };

 private:
  friend struct LedgerAccess;
  uint32_t scope_;
  HeapLedger* outer_;
  int failures_before_;
  size_t count_c_ = 0;
  size_t count_cpp_ = 0;
  size_t fail_in_ = 0;  // 0: none
  Heap fail_which_ = Heap::any;
  bool hit_ = false;
};

// One round of for_every_failing_allocation.
class FailingAllocation {
 public:
  FailingAllocation(size_t n, Heap which) : n_(n), which_(which) {}
  // Runs the operation with its n-th allocation failing.
  template <class Operation>
  auto attempt(Operation&& operation) {
    struct Guard {
      FailingAllocation& round;
      ~Guard() { round.end_attempt(); }
    } guard{*this};
    attempted_ = true;
    ledger_.fail_nth(n_, which_);
    return std::forward<Operation>(operation)();
  }
  // After attempt: whether an allocation did fail (false: the operation makes fewer than n).
  bool was_hit() const { return hit_; }
  bool was_attempted() const { return attempted_; }
  size_t n() const { return n_; }
  HeapLedger& ledger() { return ledger_; }

 private:
  void end_attempt() {
    hit_ = ledger_.failure_was_hit();
    ledger_.fail_none();
  }
  size_t n_;
  Heap which_;
  bool attempted_ = false;
  bool hit_ = false;
  HeapLedger ledger_;
};

// Reports which round failed; false when the loop has to stop.
bool round_may_go_on(const char* what, size_t n, bool attempted);

// Calls test(FailingAllocation&) with n = 1, 2, ... until the operation that the test runs through
// attempt() completes without having hit the failure. Each round has a ledger of its own: what the
// failed operation leaves behind fails the test. Result: the number of rounds.
template <class Test>
size_t for_every_failing_allocation(Test test, Heap which = Heap::any) {
  for (size_t n = 1;; ++n) {
    FailingAllocation round(n, which);
    if constexpr (std::is_invocable_v<Test, FailingAllocation&>) {
      test(round);
    } else {
      round.attempt(test);
    }
    if (!round_may_go_on("allocation", n, round.was_attempted()) || !round.was_hit()) return n;
  }
}

// Failures recorded so far for the test that is running.
int failures_so_far();

// Blocks that doubles hand to the library: exactly these bytes from the C heap, never made to fail,
// not counted. `owner` groups them (a script uses its own number); `label` names the call.
void* give_out(std::span<const uint8_t> bytes, const std::string& label, uint32_t owner);
// What was given out under the owner and has not been freed: one line per block, each told once.
std::vector<std::string> not_given_back(uint32_t owner);
// How many are live.
size_t live_blocks_of(uint32_t owner);

// The size of the live block that begins here, or `otherwise` when none does.
size_t live_block_size(const void* block, size_t otherwise);

}  // namespace test_support

#endif

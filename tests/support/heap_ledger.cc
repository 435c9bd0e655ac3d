#include "tests/support/heap_ledger.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <new>
#include <string_view>

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#define LEDGER_HIDE(p, n) ASAN_POISON_MEMORY_REGION(p, n)
#define LEDGER_SHOW(p, n) ASAN_UNPOISON_MEMORY_REGION(p, n)
constexpr bool kSanitizerWatchesFreedBlocks = true;
#else
#define LEDGER_HIDE(p, n) ((void)(p), (void)(n))
#define LEDGER_SHOW(p, n) ((void)(p), (void)(n))
constexpr bool kSanitizerWatchesFreedBlocks = false;
#endif

extern "C" {
void* __real_malloc(size_t size);
void* __real_calloc(size_t count, size_t size);
void* __real_realloc(void* block, size_t size);
void __real_free(void* block);
size_t __real_malloc_usable_size(void* block);
}

namespace test_support {
namespace {

enum class Maker : uint8_t { malloc, new_object, new_array };
enum class State : uint8_t { empty, erased, live, freed };

constexpr uint8_t kFreedFill = 0xdd;

const char* name_of(Maker maker) {
  switch (maker) {
    case Maker::malloc:
      return "malloc";
    case Maker::new_object:
      return "new";
    case Maker::new_array:
      return "new[]";
  }
  return "";
}

struct Block {
  // Complement of the address: a plain pointer here would make every leaked block look reachable
  // to the leak checker.
  uintptr_t hidden;
  size_t size;
  size_t number;  // which allocation of its scope
  char* label;    // given out by a double: for which call; else null
  uint32_t scope;
  uint32_t owner;  // of a given out block; else 0
  Maker maker;
  State state;
  bool told;
};

void* address_of(const Block& block) {
  return reinterpret_cast<void*>(~block.hidden);
}

// Every block of the program, in an open hash table that lives outside of what it records.
struct Table {
  std::mutex mutex;
  Block* blocks = nullptr;
  size_t capacity = 0;
  size_t used = 0;  // live, freed and erased

  static size_t hash(const void* p) {
    return static_cast<size_t>((reinterpret_cast<uintptr_t>(p) >> 4) * 0x9e3779b97f4a7c15u >> 20);
  }

  Block* find(const void* p) {
    if (capacity == 0) return nullptr;
    for (size_t i = hash(p) & (capacity - 1);; i = (i + 1) & (capacity - 1)) {
      Block& block = blocks[i];
      if (block.state == State::empty) return nullptr;
      if (block.state != State::erased && address_of(block) == p) return &block;
    }
  }

  Block* insert(const Block& block) {
    if (Block* same = find(address_of(block))) {  // freed meanwhile where we can not see it
      __real_free(same->label);
      *same = block;
      return same;
    }
    if ((used + 1) * 2 > capacity) grow();
    size_t i = hash(address_of(block)) & (capacity - 1);
    while (blocks[i].state == State::live || blocks[i].state == State::freed) {
      i = (i + 1) & (capacity - 1);
    }
    if (blocks[i].state == State::empty) ++used;
    blocks[i] = block;
    return &blocks[i];
  }

  void erase(Block* block) {
    __real_free(block->label);
    block->label = nullptr;
    block->state = State::erased;
  }

  void grow() {
    size_t live = 0;
    for (size_t i = 0; i < capacity; ++i) {
      live += blocks[i].state == State::live || blocks[i].state == State::freed;
    }
    Table bigger;
    bigger.capacity = 4096;
    while (bigger.capacity < live * 4 + 4)
      bigger.capacity *= 2;
    bigger.blocks = static_cast<Block*>(__real_calloc(bigger.capacity, sizeof(Block)));
    if (bigger.blocks == nullptr) abort();
    for (size_t i = 0; i < capacity; ++i) {
      if (blocks[i].state == State::live || blocks[i].state == State::freed) {
        bigger.insert(blocks[i]);
      }
    }
    __real_free(blocks);
    blocks = bigger.blocks;
    capacity = bigger.capacity;
    used = bigger.used;
  }
};

// Freed blocks keep their address for a while: the last of them, in the order of their freeing.
struct FreedBlocks {
  static constexpr size_t kMostBlocks = 8192;
  static constexpr size_t kMostBytes = 32 << 20;
  uintptr_t hidden[kMostBlocks] = {};
  size_t sizes[kMostBlocks] = {};
  size_t first = 0;
  size_t count = 0;
  size_t bytes = 0;

  bool full() const { return count == kMostBlocks || (bytes > kMostBytes && count > 1); }
  void push(const Block& block) {
    size_t at = (first + count++) % kMostBlocks;
    hidden[at] = block.hidden;
    sizes[at] = block.size;
    bytes += block.size;
  }
  void* address(size_t i) const {
    return reinterpret_cast<void*>(~hidden[(first + i) % kMostBlocks]);
  }
  void drop_newest() { bytes -= sizes[(first + --count) % kMostBlocks]; }
  void* pop() {
    void* oldest = reinterpret_cast<void*>(~hidden[first]);
    bytes -= sizes[first];
    first = (first + 1) % kMostBlocks;
    --count;
    return oldest;
  }
};

// How many blocks there are to be told at the end of a scope or of an owner. Most leave none, and
// then the table need not be walked.
struct LiveBlocks {
  size_t scoped = 0;
  size_t owned = 0;

  void begin(const Block& block) {
    scoped += block.scope != 0;
    owned += block.owner != 0;
  }
  void end(const Block& block) {
    scoped -= block.scope != 0;
    owned -= block.owner != 0;
  }
};

constinit Table table;
constinit LiveBlocks live_blocks;
constinit FreedBlocks freed_blocks;
constinit HeapLedger* active = nullptr;
constinit uint32_t last_scope = 0;
constinit thread_local int pauses = 0;
constinit thread_local int givers = 0;  // of GivingOut

HeapLedger* armed() {
  return pauses == 0 ? active : nullptr;
}

// The ledger that sees a block of this maker.
HeapLedger* armed_for(Maker maker) {
  return givers == 0 || maker == Maker::malloc ? armed() : nullptr;
}

// Under the table's lock.
void record(const Block& block) {
  const Block* same = table.find(address_of(block));  // freed meanwhile where we can not see it
  if (same != nullptr && same->state == State::live) live_blocks.end(*same);
  table.insert(block);
  live_blocks.begin(block);
}

std::string describe(const Block& block) {
  std::string text = std::to_string(block.size) + " bytes, ";
  if (block.label != nullptr) return text + "given out by the double for " + block.label;
  return text + "made with " + name_of(block.maker) + " as allocation " +
         std::to_string(block.number);
}

}  // namespace

struct LedgerAccess {
  static uint32_t scope(const HeapLedger& ledger) { return ledger.scope_; }

  // Counts an allocation; true when it has to fail.
  static bool count(HeapLedger& ledger, Maker maker, size_t* number) {
    bool c = maker == Maker::malloc;
    ++(c ? ledger.count_c_ : ledger.count_cpp_);
    *number = ledger.count_c_ + ledger.count_cpp_;
    bool meant = ledger.fail_which_ == Heap::any || (ledger.fail_which_ == Heap::c) == c;
    if (ledger.fail_in_ == 0 || !meant || --ledger.fail_in_ != 0) return false;
    ledger.hit_ = true;
    return true;
  }
};

namespace {

void* allocate(size_t size, Maker maker, size_t alignment, bool zeroed) {
  HeapLedger* ledger = armed_for(maker);
  size_t number = 0;
  if (ledger != nullptr && givers == 0) {
    std::lock_guard lock(table.mutex);
    if (LedgerAccess::count(*ledger, maker, &number)) {
      errno = ENOMEM;
      return nullptr;
    }
  }
  void* p = nullptr;
  if (alignment > alignof(std::max_align_t)) {
    p = aligned_alloc(alignment, (std::max<size_t>(size, 1) + alignment - 1) & ~(alignment - 1));
  } else {
    p = zeroed ? __real_calloc(1, size) : __real_malloc(size);
  }
  if (p == nullptr) return nullptr;
  Block block{};
  block.hidden = ~reinterpret_cast<uintptr_t>(p);
  block.size = size;
  block.number = number;
  block.scope = ledger != nullptr ? LedgerAccess::scope(*ledger) : 0;
  block.maker = maker;
  block.state = State::live;
  std::lock_guard lock(table.mutex);
  record(block);
  return p;
}

// Never called under the table's lock: reporting allocates.
void complain(std::string_view what, const Block* block) {
  HeapLedger::Pause pause;
  ADD_FAILURE() << what << (block != nullptr ? ": " + describe(*block) : "");
}

const char* giver_back(Maker maker) {
  switch (maker) {
    case Maker::malloc:
      return "free";
    case Maker::new_object:
      return "delete";
    case Maker::new_array:
      return "delete[]";
  }
  return "";
}

bool is_filled(const uint8_t* bytes, size_t size) {
  return size == 0 || (bytes[0] == kFreedFill && memcmp(bytes, bytes + 1, size - 1) == 0);
}

// Gives a freed block, no longer in the table, back to the heap.
void end_freed_block(const Block& block) {
  auto* bytes = static_cast<uint8_t*>(address_of(block));
  LEDGER_SHOW(bytes, block.size);
  if (!kSanitizerWatchesFreedBlocks && !is_filled(bytes, block.size)) {
    complain("written after it was freed", &block);
  }
  __real_free(block.label);
  __real_free(bytes);
}

// Takes a freed block out of the table; the result owns its label.
Block take_freed(Block* block) {
  Block taken = *block;
  block->label = nullptr;
  table.erase(block);
  return taken;
}

// Keeps one more freed block, at the cost of the oldest ones.
void keep_freed_block(const Block& freed) {
  for (;;) {
    Block oldest{};
    {
      std::lock_guard lock(table.mutex);
      if (!freed_blocks.full()) {
        freed_blocks.push(freed);
        return;
      }
      Block* block = table.find(freed_blocks.pop());
      if (block != nullptr && block->state == State::freed) oldest = take_freed(block);
    }
    if (oldest.state == State::freed) end_freed_block(oldest);
  }
}

void release(void* p, Maker maker) {
  if (p == nullptr) return;
  int error_number = errno;  // giving back never changes it
  HeapLedger* ledger = armed_for(maker);
  Block seen{};
  {
    std::lock_guard lock(table.mutex);
    if (Block* block = table.find(p)) {
      seen = *block;
      if (block->state == State::live) live_blocks.end(*block);
      if (block->state == State::live && ledger != nullptr) {
        block->state = State::freed;
        block->scope = LedgerAccess::scope(*ledger);
      } else if (block->state == State::live) {
        table.erase(block);
      }
    }
  }
  if (seen.state == State::freed) {
    complain("a block is freed a second time", &seen);
  } else if (ledger == nullptr) {
    __real_free(p);
  } else if (seen.state != State::live) {
    // Not handed on: the C library may end the program for an address that is not its own.
    complain("free of an address that is no block of this program's heap", nullptr);
  } else {
    if (seen.maker != maker) {
      complain(std::string("a block goes back with ") + giver_back(maker), &seen);
    }
    memset(p, kFreedFill, seen.size);
    LEDGER_HIDE(p, seen.size);
    keep_freed_block(seen);
  }
  errno = error_number;
}

template <class Visit>
void for_each_live(Visit visit) {
  for (size_t i = 0; i < table.capacity; ++i) {
    if (table.blocks[i].state == State::live) visit(table.blocks[i]);
  }
}

// Copies of the entries that `wanted` picks, after `then` was done to each. The room is made before
// the table is walked, since making it changes the table.
template <class Wanted, class Then>
std::vector<Block> collect(Wanted wanted, Then then) {
  std::vector<Block> blocks;
  size_t count = 0;
  {
    std::lock_guard lock(table.mutex);
    for (size_t i = 0; i < table.capacity; ++i)
      count += wanted(table.blocks[i]);
  }
  blocks.reserve(count);
  std::lock_guard lock(table.mutex);
  for (size_t i = 0; i < table.capacity && blocks.size() < count; ++i) {
    if (!wanted(table.blocks[i])) continue;
    blocks.push_back(table.blocks[i]);
    then(table.blocks[i]);
  }
  std::sort(blocks.begin(), blocks.end(),
            [](const Block& a, const Block& b) { return a.number < b.number; });
  return blocks;
}

// Gives the blocks freed under the scope back to the heap. All freed blocks are among those that
// keep their address; the scope's own are the newest.
void end_freed_blocks(uint32_t scope) {
  std::vector<Block> freed;
  freed.reserve(freed_blocks.count);
  {
    std::lock_guard lock(table.mutex);
    const auto is_kept = [](const Block* block) {
      return block != nullptr && block->state == State::freed;
    };
    for (size_t i = 0; i < freed_blocks.count && freed.size() < freed.capacity(); ++i) {
      Block* block = table.find(freed_blocks.address(i));
      if (is_kept(block) && block->scope == scope) freed.push_back(take_freed(block));
    }
    while (freed_blocks.count != 0 &&
           !is_kept(table.find(freed_blocks.address(freed_blocks.count - 1))))
      freed_blocks.drop_newest();
  }
  for (const Block& block : freed)
    end_freed_block(block);
}

std::vector<Block> live_and_not_told(uint32_t Block::*group, uint32_t value) {
  return collect(
      [group, value](const Block& block) {
        return block.state == State::live && !block.told && block.*group == value;
      },
      [](Block& block) { block.told = true; });
}

}  // namespace

int failures_so_far() {
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  return test == nullptr ? 0 : test->result()->total_part_count();
}

HeapLedger::Pause::Pause() {
  ++pauses;
}
HeapLedger::Pause::~Pause() {
  --pauses;
}
HeapLedger::GivingOut::GivingOut() {
  ++givers;
}
HeapLedger::GivingOut::~GivingOut() {
  --givers;
}

// GoogleTest makes a few blocks for itself when a failure is looked for the first time.
void let_googletest_allocate() {
  static const bool done = [] {
    testing::TestPartResultArray failures;
    testing::ScopedFakeTestPartResultReporter reporter(
        testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &failures);
    ADD_FAILURE() << "looked for";
    return failures.size() == 1;
  }();
  (void)done;
}

HeapLedger::HeapLedger()
    : scope_(++last_scope), outer_(active), failures_before_(failures_so_far()) {
  {
    Pause pause;
    let_googletest_allocate();
  }
  active = this;
}

HeapLedger::~HeapLedger() {
  Pause pause;
  active = outer_;
  end_freed_blocks(scope_);
  std::vector<Block> left;
  if (live_blocks.scoped != 0) left = live_and_not_told(&Block::scope, scope_);
  if (failures_so_far() != failures_before_) {
    // GoogleTest keeps its records of a failure in blocks made with new, which say nothing here.
    std::erase_if(left, [](const Block& block) { return block.maker != Maker::malloc; });
  }
  constexpr size_t kTold = 10;
  for (size_t i = 0; i < std::min(left.size(), kTold); ++i)
    complain("not freed", &left[i]);
  if (left.size() > kTold) ADD_FAILURE() << "not freed: " << left.size() - kTold << " more blocks";
}

void HeapLedger::fail_nth(size_t n, Heap which) {
  fail_in_ = n;
  fail_which_ = which;
  hit_ = false;
}

void HeapLedger::fail_none() {
  fail_in_ = 0;
}

size_t HeapLedger::allocations(Heap which) const {
  switch (which) {
    case Heap::c:
      return count_c_;
    case Heap::cpp:
      return count_cpp_;
    case Heap::any:
      break;
  }
  return count_c_ + count_cpp_;
}

size_t HeapLedger::outstanding() const {
  std::lock_guard lock(table.mutex);
  size_t count = 0;
  for_each_live([&](const Block& block) { count += block.scope == scope_; });
  return count;
}

size_t HeapLedger::outstanding_bytes() const {
  std::lock_guard lock(table.mutex);
  size_t bytes = 0;
  for_each_live([&](const Block& block) { bytes += block.scope == scope_ ? block.size : 0; });
  return bytes;
}

void HeapLedger::release_by_caller(void* block) {
  bool live = false;
  {
    std::lock_guard lock(table.mutex);
    const Block* found = table.find(block);
    live = found != nullptr && found->state == State::live;
  }
  if (live) {
    release(block, Maker::malloc);
  } else {
    complain("release_by_caller of what is no live block", nullptr);
  }
}

bool round_may_go_on(const char* what, size_t n, bool attempted) {
  HeapLedger::Pause pause;
  if (!attempted) {
    ADD_FAILURE() << "the operation was not run through attempt()";
    return false;
  }
  if (testing::Test::HasFatalFailure()) return false;
  if (n >= 100000) {
    ADD_FAILURE() << "the operation does not end: failed " << what << " " << n;
    return false;
  }
  return true;
}

void* give_out(std::span<const uint8_t> bytes, const std::string& label, uint32_t owner) {
  void* p = __real_malloc(bytes.size());
  if (p == nullptr) abort();
  if (!bytes.empty()) memcpy(p, bytes.data(), bytes.size());
  Block block{};
  block.hidden = ~reinterpret_cast<uintptr_t>(p);
  block.size = bytes.size();
  block.scope = active != nullptr ? LedgerAccess::scope(*active) : 0;
  block.label = static_cast<char*>(__real_malloc(label.size() + 1));
  if (block.label != nullptr) memcpy(block.label, label.c_str(), label.size() + 1);
  block.owner = owner;
  block.maker = Maker::malloc;
  block.state = State::live;
  std::lock_guard lock(table.mutex);
  record(block);
  return p;
}

std::vector<std::string> not_given_back(uint32_t owner) {
  HeapLedger::Pause pause;
  std::vector<std::string> lines;
  if (live_blocks.owned == 0) return lines;
  for (const Block& block : live_and_not_told(&Block::owner, owner)) {
    lines.push_back(describe(block));
  }
  return lines;
}

size_t live_blocks_of(uint32_t owner) {
  std::lock_guard lock(table.mutex);
  size_t count = 0;
  for_each_live([&](const Block& block) { count += block.owner == owner; });
  return count;
}

size_t live_block_size(const void* block, size_t otherwise) {
  std::lock_guard lock(table.mutex);
  const Block* known = table.find(block);
  return known != nullptr && known->state == State::live ? known->size : otherwise;
}

}  // namespace test_support

using test_support::allocate;
using test_support::Maker;
using test_support::release;

extern "C" {

void* __wrap_malloc(size_t size) {
  return allocate(size, Maker::malloc, 0, false);
}

void* __wrap_calloc(size_t count, size_t size) {
  size_t bytes = 0;
  if (__builtin_mul_overflow(count, size, &bytes)) {
    errno = ENOMEM;
    return nullptr;
  }
  return allocate(bytes, Maker::malloc, 0, true);
}

void __wrap_free(void* block) {
  release(block, Maker::malloc);
}

// The size asked for, so that nobody comes to live on what the heap happened to round up to.
size_t __wrap_malloc_usable_size(void* block) {
  if (block == nullptr) return 0;
  {
    std::lock_guard lock(test_support::table.mutex);
    const test_support::Block* known = test_support::table.find(block);
    if (known != nullptr) return known->size;
  }
  return __real_malloc_usable_size(block);
}

// Always moves the block: a pointer into the old one must not be used afterwards.
void* __wrap_realloc(void* block, size_t size) {
  if (block == nullptr) return __wrap_malloc(size);
  size_t old_size = 0;
  {
    std::lock_guard lock(test_support::table.mutex);
    const test_support::Block* known = test_support::table.find(block);
    if (known == nullptr && test_support::armed() == nullptr) return __real_realloc(block, size);
    old_size = known == nullptr || known->state != test_support::State::live ? 0 : known->size;
  }
  if (size == 0) {
    __wrap_free(block);
    return nullptr;
  }
  void* moved = __wrap_malloc(size);
  if (moved == nullptr) return nullptr;
  memcpy(moved, block, std::min(size, old_size));
  __wrap_free(block);
  return moved;
}

char* __wrap_strndup(const char* text, size_t most) {
  size_t length = strnlen(text, most);
  auto* copy = static_cast<char*>(__wrap_malloc(length + 1));
  if (copy == nullptr) return nullptr;
  memcpy(copy, text, length);
  copy[length] = '\0';
  return copy;
}

char* __wrap_strdup(const char* text) {
  return __wrap_strndup(text, strlen(text));
}

}  // extern "C"

namespace {

void* must(void* block) {
  if (block == nullptr) throw std::bad_alloc();
  return block;
}

}  // namespace

void* operator new(size_t size) {
  return must(allocate(size, Maker::new_object, 0, false));
}
void* operator new[](size_t size) {
  return must(allocate(size, Maker::new_array, 0, false));
}
void* operator new(size_t size, const std::nothrow_t&) noexcept {
  return allocate(size, Maker::new_object, 0, false);
}
void* operator new[](size_t size, const std::nothrow_t&) noexcept {
  return allocate(size, Maker::new_array, 0, false);
}
void* operator new(size_t size, std::align_val_t alignment) {
  return must(allocate(size, Maker::new_object, static_cast<size_t>(alignment), false));
}
void* operator new[](size_t size, std::align_val_t alignment) {
  return must(allocate(size, Maker::new_array, static_cast<size_t>(alignment), false));
}
void* operator new(size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return allocate(size, Maker::new_object, static_cast<size_t>(alignment), false);
}
void* operator new[](size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept {
  return allocate(size, Maker::new_array, static_cast<size_t>(alignment), false);
}
void operator delete(void* block) noexcept {
  release(block, Maker::new_object);
}
void operator delete[](void* block) noexcept {
  release(block, Maker::new_array);
}
void operator delete(void* block, size_t) noexcept {
  release(block, Maker::new_object);
}
void operator delete[](void* block, size_t) noexcept {
  release(block, Maker::new_array);
}
void operator delete(void* block, const std::nothrow_t&) noexcept {
  release(block, Maker::new_object);
}
void operator delete[](void* block, const std::nothrow_t&) noexcept {
  release(block, Maker::new_array);
}
void operator delete(void* block, std::align_val_t) noexcept {
  release(block, Maker::new_object);
}
void operator delete[](void* block, std::align_val_t) noexcept {
  release(block, Maker::new_array);
}
void operator delete(void* block, size_t, std::align_val_t) noexcept {
  release(block, Maker::new_object);
}
void operator delete[](void* block, size_t, std::align_val_t) noexcept {
  release(block, Maker::new_array);
}
void operator delete(void* block, std::align_val_t, const std::nothrow_t&) noexcept {
  release(block, Maker::new_object);
}
void operator delete[](void* block, std::align_val_t, const std::nothrow_t&) noexcept {
  release(block, Maker::new_array);
}

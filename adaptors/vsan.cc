#include <cim_utils/formats.h>
#include <cim_utils/vsan.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "common/c_heap.h"
#include "common/exchange.h"
#include "common/wire.h"

const hex_digit_ HexMap[16] = {{'0', 0},  {'1', 1},  {'2', 2},  {'3', 3}, {'4', 4},  {'5', 5},
                               {'6', 6},  {'7', 7},  {'8', 8},  {'9', 9}, {'A', 10}, {'B', 11},
                               {'C', 12}, {'D', 13}, {'E', 14}, {'F', 15}};

namespace cim_utils {
namespace {

// Words 0 to 3 and 5 to 8. The four bytes at 16 are never converted.
constexpr wire::Span kVsanEntry[] = {{0, 4, 4}, {20, 4, 4}};

// More VSANs than a switch has: a greater count is a broken one.
constexpr int32_t kMostVsans = 4096;

// Status of the last count query. Nothing reads it: it is for a debugger.
std::atomic<int32_t> last_count_status;

constexpr uint32_t kAdminActive = 1;
constexpr uint32_t kAdminSuspended = 2;

// The message around an entry that is in wire order already.
void fill_message(vsan_message_& message, const vsanNewEntry_t& entry) {
  std::memset(&message, 0, sizeof message);
  message.entry = entry;
}

SynchronousRequest entry_request(uint32_t operation, const vsan_message_& message) {
  return {MTS_OPC_VSAN_ENTRY, operation, MTS_SAP_VSAN_MANAGER, &message,
          static_cast<int32_t>(sizeof message)};
}

// Three characters, most significant first; each that is a digit takes its place.
uint32_t add_hex_digit(uint32_t result, char digit, int shift) {
  for (const hex_digit_& row : HexMap) {
    if (row.code == static_cast<uint32_t>(static_cast<unsigned char>(digit))) {
      result = (result << shift) | row.value;
      std::printf(" Int value is %d, result is %d \n", static_cast<int>(row.value),
                  static_cast<int>(result));
      break;
    }
  }
  return result;
}

const wwn_& key_wwn(const mts_dm_sw_conf_& dm_entry) {
  return dm_entry.enabled != 0 ? dm_entry.vsan_wwn : dm_entry.alternate_wwn;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t vsan_cim_get_vsanEntry(int32_t q, int32_t exact, vsanNewEntry_t* entry) {
  if (entry == nullptr) return -1;
  wire::InWireOrder on_the_wire(*entry, kVsanEntry);
  vsan_message_ message;
  fill_message(message, *entry);
  Reply reply;
  const int32_t status = exchange(
      entry_request(exact == 1 ? MTS_OPERATION_GET : MTS_OPERATION_GET_NEXT, message), q, &reply);
  // Without a reply the entry stays as it is and the result is still 0, deliberately.
  if (status == 0) reply.copy(entry, sizeof *entry, offsetof(vsan_message_, entry));
  return status;
}

int32_t vsan_cim_get_vsanEntry_with_memory_allocation(int32_t q, int32_t exact,
                                                      vsanNewEntry_t** out) {
  if (out == nullptr) return -1;
  *out = nullptr;
  auto entry = allocate<vsanNewEntry_t>();
  if (entry == nullptr || vsan_cim_get_vsanEntry(q, exact, entry.get()) != 0) return -1;
  *out = entry.release();
  return 0;
}

int32_t vsan_cim_get_vsan_num(int32_t q, int32_t* count, int32_t which) {
  if (count == nullptr) return -1;
  Reply reply;
  const int32_t status =
      exchange({static_cast<uint32_t>(which != 0 ? MTS_OPC_VSAN_COUNT : MTS_OPC_VSAN_OTHER_COUNT),
                MTS_OPERATION_GET, MTS_SAP_VSAN_MANAGER, nullptr, sizeof(uint32_t)},
               q, &reply);
  last_count_status = status;
  if (status != 0 || !reply.holds(sizeof(uint32_t))) return -1;
  *count = static_cast<int32_t>(wire::read32(reply.bytes().data()));
  return 0;
}

int32_t vsan_cim_get_all_vsanEntry(int32_t q, int32_t* count, vsanNewEntry_t** list) {
  if (count == nullptr || list == nullptr) return -1;
  *list = nullptr;
  int32_t total = 0;
  if (vsan_cim_get_vsan_num(q, &total, 1) != 0 || total < 0) return -1;
  if (total > kMostVsans) total = kMostVsans;

  // At least one entry, so that an empty list is a block that free() takes.
  auto entries = allocate<vsanNewEntry_t>(total > 0 ? static_cast<size_t>(total) : 1);
  if (entries == nullptr) return -1;

  int32_t fetched = 0;
  while (fetched < total) {
    if (vsan_cim_get_vsanEntry(q, 0, &entries[fetched]) != 0) {
      std::printf("vsan_cim_get_all_vsan only get %d vsans of total %d vsans\n", fetched, total);
      std::perror("vsan cim get vsan error");
      break;
    }
    ++fetched;
    if (fetched < total) entries[fetched].vsan_index = entries[fetched - 1].vsan_index;
  }
  *count = fetched;
  *list = entries.release();
  return 0;
}

int32_t vsan_cim_set_VsanEntry(int32_t q, uint32_t vsan, int32_t state) {
  if (state != 2 && state != 3) return -1;
  vsanNewEntry_t entry;
  std::memset(&entry, 0, sizeof entry);
  entry.vsan_index = vsan;
  if (vsan_cim_get_vsanEntry(q, 1, &entry) != 0) {
    std::printf("set Vsan State - vsan %d cannot be read\n", static_cast<int>(vsan));
    return -1;
  }
  entry.vsan_index = vsan;
  entry.admin_state = state == 2 ? kAdminActive : kAdminSuspended;
  wire::convert(&entry, kVsanEntry);
  vsan_message_ message;
  fill_message(message, entry);
  const int32_t status = exchange(entry_request(MTS_OPERATION_SET, message), q, nullptr);
  if (status != 0) std::printf("set Vsan State -  FAIL ret code is %d\n", status);
  return status;
}

int32_t vsan_cim_check_vsan_index(uint32_t vsan) {
  return vsan >= 1 && vsan <= 4096 ? 0 : -1;
}

int32_t vsan_cim_get_vsan_key(char* dst, uint32_t vsan, const mts_dm_sw_conf_* dm_entry) {
  if (dst == nullptr || dm_entry == nullptr) return -1;
  std::printf(" vsan %d dm enabled is %d\n", static_cast<int>(vsan), dm_entry->enabled);
  vsan_cim_get_vsan_admindomain_key(dst, dm_entry);
  std::printf(" vsan wwn is  %s \n", dst);
  return 0;
}

int32_t vsan_cim_get_vsan_admindomain_key(char* dst, const mts_dm_sw_conf_* dm_entry) {
  if (dst == nullptr || dm_entry == nullptr) return -1;
  cim_sprintf_wwn(dst, &key_wwn(*dm_entry));
  return 0;
}

int32_t vsan_cim_get_vsan_key_fields(const char* key, uint32_t* vsan, char* wwn) {
  if (key == nullptr || vsan == nullptr || wwn == nullptr) return -1;
  constexpr size_t kWwnText = 16;
  constexpr size_t kVsanDigits = 4;
  char copy[128] = {};
  std::memcpy(copy, key, strnlen(key, sizeof copy - 1));

  const char* colon = std::strchr(copy, ':');
  if (colon != nullptr) {
    char digits[kVsanDigits + 1] = {};
    std::memcpy(digits, colon + 1, strnlen(colon + 1, kVsanDigits));
    std::printf("else : Vsan_index is %s\n", digits);
    *vsan = static_cast<uint32_t>(std::strtol(digits, nullptr, 10));
    std::memset(wwn, '0', kWwnText);  // no terminator: callers hand in a buffer that ends in zero
  } else {
    get_vsan_value(copy[1], copy[2], copy[3], vsan);
    const size_t length = strnlen(copy, kWwnText);
    std::memcpy(wwn, copy, length);
    wwn[length] = '\0';
  }
  std::printf(" Vsan Index is %d\n", static_cast<int>(*vsan));
  return 0;
}

int32_t get_vsan_value(char high, char mid, char low, uint32_t* value) {
  std::printf(" High bit is %c, mid bit is %c, low bit is %c", high, mid, low);
  uint32_t result = add_hex_digit(0, high, 0);
  result = add_hex_digit(result, mid, 4);
  result = add_hex_digit(result, low, 4);
  std::printf(" Result is %d \n", static_cast<int>(result));
  if (value != nullptr) *value = result;
  std::printf("vsan_index_p %d\n", static_cast<int>(result));
  return 0;
}

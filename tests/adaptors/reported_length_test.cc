// A transport that reports another length than that of the block that it hands out.
#include <cim_utils/fabric_configuration.h>
#include <cim_utils/system.h>
#include <cim_utils/vsan.h>
#include <gtest/gtest.h>

#include <optional>

#include "tests/support/capture.h"
#include "tests/support/double_cmi.h"
#include "tests/support/heap_ledger.h"

namespace {

// Stands in the length after every exchange, where it is set.
std::optional<int32_t> reported;

}  // namespace

extern "C" {

int32_t __real_cmi_req_resp(uint32_t opcode, uint32_t operation, const void* request, void** reply,
                            int32_t* length, int32_t zero1, int32_t zero2, uint32_t service_sap,
                            int32_t q, int32_t last);

int32_t __wrap_cmi_req_resp(uint32_t opcode, uint32_t operation, const void* request, void** reply,
                            int32_t* length, int32_t zero1, int32_t zero2, uint32_t service_sap,
                            int32_t q, int32_t last) {
  const int32_t status = __real_cmi_req_resp(opcode, operation, request, reply, length, zero1,
                                             zero2, service_sap, q, last);
  if (reported) *length = *reported;
  return status;
}

}  // extern "C"

using namespace test_support;

namespace {

class ReportedLength : public testing::Test {
 protected:
  ~ReportedLength() override { reported.reset(); }

  // What one exchange with the fabric configuration server writes: 16 bytes are handed out.
  static Bytes data_when_reported(int32_t length) {
    Script script;
    script.expect(get(1402).sap(20).sends(hex("00 00 00 14")).last(0))
        .replies(hex("01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f 10"));
    reported = length;
    HeapLedger::Pause pause;
    Bytes out(20, 0x77);
    EXPECT_EQ(fcs_get_data(kQueue, 20, 1, nullptr, 0, out.data()), 0);
    return out;
  }

  HeapLedger ledger_;
  StdioCapture out_;
};

TEST_F(ReportedLength, BoundsTheDataOfTheFabricConfigurationServer) {
  EXPECT_EQ(data_when_reported(5),
            hex("01 02 03 04 05 77 77 77 77 77 77 77 77 77 77 77 77 77 77 77"));
  // As long as the request: it may be the length that the caller put in.
  EXPECT_EQ(data_when_reported(4),
            hex("01 02 03 04 77 77 77 77 77 77 77 77 77 77 77 77 77 77 77 77"));
}

TEST_F(ReportedLength, OfNothingGivesNoData) {
  EXPECT_EQ(data_when_reported(0), Bytes(20, 0x77));
  EXPECT_EQ(data_when_reported(-1), Bytes(20, 0x77));
}

TEST_F(ReportedLength, BeyondTheBlockIsNotBelieved) {
  EXPECT_EQ(data_when_reported(0x7fffffff),
            hex("01 02 03 04 05 06 07 08 09 0a 0b 0c 0d 0e 0f 10 77 77 77 77"));
}

TEST_F(ReportedLength, BoundsTheListOfElements) {
  Script script;
  script.expect(get(1401).sap(20).sends(hex("00 00 00 05 00 00 00 00")))
      .replies(hex("00 00 00 02"
                   "20 05 00 0d ec 0a 1b 02 00 00 01 00"
                   "20 05 00 0d ec 0a 1b 03 00 00 01 00"));
  reported = 27;  // one byte short of the second entry
  fcs_giel_entry_* entries = nullptr;
  int32_t count = 0;
  ASSERT_EQ(fcs_cim_get_ies_in_vsan(kQueue, 5, &entries, &count), 0);
  EXPECT_EQ(count, 1);
  ledger_.release_by_caller(entries);
}

TEST_F(ReportedLength, OneByteShortOfARecordMakesItNone) {
  Script script;
  script.expect(get(149).sap(15).any_request()).replies(Record(2632).be32(520, 9));
  script.expect(get(1282).sap(46).no_request().length(0)).replies(hex("20 00 00 0d ec 0a 1b 2c"));
  reported = 2627;
  vsanNewEntry_t entry{};
  entry.vsan_index = 5;
  EXPECT_EQ(vsan_cim_get_vsanEntry(kQueue, 1, &entry), 0);
  EXPECT_EQ(entry.vsan_index, 5u);
  reported = 7;
  wwn_ wwn{};
  EXPECT_EQ(system_cim_get_switch_wwn(kQueue, &wwn), -1);
}

TEST_F(ReportedLength, BelowZeroMakesARecordNone) {
  Script script;
  script.expect(get(149).sap(15).any_request()).replies(Record(2632).be32(520, 9));
  reported = -2632;
  vsanNewEntry_t entry{};
  entry.vsan_index = 5;
  EXPECT_EQ(vsan_cim_get_vsanEntry(kQueue, 1, &entry), 0);
  EXPECT_EQ(entry.vsan_index, 5u);
}

TEST_F(ReportedLength, BeyondTheBlockMakesAShortRecordNone) {
  Script script;
  script.expect(get(149).sap(15).any_request()).replies(Record(2632).be32(520, 9)).cut_to(2627);
  reported = 0x7fffffff;
  vsanNewEntry_t entry{};
  entry.vsan_index = 5;
  EXPECT_EQ(vsan_cim_get_vsanEntry(kQueue, 1, &entry), 0);
  EXPECT_EQ(entry.vsan_index, 5u);
}

}  // namespace

// Interfaces that are taken out of the switch while a client lists them, told by a double of the
// port manager.
#include "tests/providers/provider_fixture.h"
#include "tests/support/double_port_manager.h"

namespace {

using namespace provider_tests;
using test_support::get_next_port;
using test_support::get_port;
using test_support::hex;
using test_support::Record;
using test_support::Script;

constexpr uint32_t kFc1 = 0x01010001;
constexpr uint32_t kFc2 = 0x01010002;
constexpr uint32_t kFc3 = 0x01010003;
constexpr uint32_t kStarts[] = {0x01000000, 0x02000000, 0x04000000,
                                0x05000000, 0x0a000000, 0x0b000000};
constexpr int32_t kRefused = 0x40350004;

Record record_of(uint32_t if_index) {
  return Record(204).host32(0, if_index).put(127, hex("20 41 00 0d ec 0a 1b 2c"));
}

class ProviderRemovals : public ProviderFixture {
 protected:
  // No interfaces of the types behind FC ports.
  static void expect_other_types_empty(Script& script) {
    for (const uint32_t start : kStarts)
      if (start != kStarts[0]) script.expect(get_next_port(start)).fails(5);
  }
  std::vector<std::string> listed() {
    const Outcome answer = names("VEXOR_FCPortSettings");
    EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message;
    return answer.returned.paths;
  }
};

constexpr const char* kName1 = "root/cimv2:VEXOR_FCPortSettings.InstanceID=\"16842753\"";
constexpr const char* kName2 = "root/cimv2:VEXOR_FCPortSettings.InstanceID=\"16842754\"";
constexpr const char* kName3 = "root/cimv2:VEXOR_FCPortSettings.InstanceID=\"16842755\"";

TEST_F(ProviderRemovals, APortThatIsRemovedBeforeItsTurnIsNotListed) {
  Script script;
  script.expect(get_next_port(kStarts[0])).gives(record_of(kFc1));
  script.expect(get_next_port(kFc1)).gives(record_of(kFc3));
  script.expect(get_next_port(kFc3)).fails(5);
  expect_other_types_empty(script);
  EXPECT_EQ(listed(), (std::vector<std::string>{kName1, kName3}));
}

TEST_F(ProviderRemovals, APortThatIsRemovedAfterItsTurnIsListedWithThoseBehindIt) {
  Script script;
  script.expect(get_next_port(kStarts[0])).gives(record_of(kFc1));
  script.expect(get_next_port(kFc1)).gives(record_of(kFc2));
  // fc1/2 is taken out here.
  script.expect(get_next_port(kFc2)).gives(record_of(kFc3));
  script.expect(get_next_port(kFc3)).fails(5);
  expect_other_types_empty(script);
  EXPECT_EQ(listed(), (std::vector<std::string>{kName1, kName2, kName3}));
  // Whoever asks for it by the name that was listed is told that it is not there.
  script.expect(get_port(kFc2)).fails(kRefused);
  const Outcome answer = get(broker_.path("VEXOR_FCPortSettings", {{"InstanceID", "16842754"}}));
  EXPECT_EQ(answer.code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(ProviderRemovals, WhereThePortManagerRefusesARemovedPortThePortsBehindItAreMissed) {
  Script script;
  script.expect(get_next_port(kStarts[0])).gives(record_of(kFc1));
  script.expect(get_next_port(kFc1)).fails(kRefused);
  script.expect(get_next_port(kStarts[1])).fails(5);
  script.expect(get_next_port(kStarts[2])).gives(record_of(0x04000005));
  script.expect(get_next_port(0x04000005)).fails(5);
  for (size_t type = 3; type < std::size(kStarts); ++type)
    script.expect(get_next_port(kStarts[type])).fails(5);
  EXPECT_EQ(listed(), (std::vector<std::string>{
                          kName1, "root/cimv2:VEXOR_FCPortSettings.InstanceID=\"67108869\""}));
}

// Such as one that starts again at the first port when the one asked behind is gone.
TEST_F(ProviderRemovals, APortManagerThatLosesItsPlaceDoesNotKeepTheListGoing) {
  Script script;
  script.expect(get_next_port(kStarts[0])).gives(record_of(kFc1));
  script.expect(get_next_port(kFc1)).gives(record_of(kFc2));
  script.expect(get_next_port(kFc2)).gives(record_of(kFc1));
  EXPECT_EQ(listed(), (std::vector<std::string>{kName1, kName2}));
}

}  // namespace

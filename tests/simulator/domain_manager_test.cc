#include <switch_platform/domain_manager.h>

#include "tests/simulator/simulator_fixture.h"

namespace simulator_test {
namespace {

namespace control = switch_sim::control;

class DomainManager : public SimulatorTest {
 protected:
  Result configuration(uint32_t operation, const char* vsan_in_hex) {
    return call(14, 264, operation, Pattern(1152).at(0, vsan_in_hex).at(4, "00000001").bytes());
  }

  Result database(uint32_t operation, const char* vsan_kind_and_domain) {
    return call(14, 267, operation, Pattern(19).at(0, vsan_kind_and_domain).bytes());
  }

  static Pattern first_configuration() {
    return Pattern(1152)
        .at(0, "00000001")
        .at(4, "00000001")
        .at(21, "61")                // domain ID 97 in use
        .at(22, "2001000dec0a1b2d")  // VSAN WWN
        .at(332, "61")               // configured domain ID
        .at(333, "02")               // preferred
        .at(334, "01")               // enabled
        .at(337, "01");              // priority
  }
  static Pattern second_configuration() {
    return Pattern(1152)
        .at(0, "00000002")
        .at(4, "00000001")
        .at(21, "15")
        .at(22, "2002000dec0a1b2d")
        .at(332, "15")
        .at(333, "02")
        .at(334, "01")
        .at(337, "80");
  }

  // A set of VSAN 2; the mask travels as this machine keeps its numbers.
  static Pattern change(uint32_t mask) {
    Pattern pattern = Pattern(1152).at(0, "00000002").at(4, "00000001");
    char bytes[4];
    memcpy(bytes, &mask, 4);
    return pattern.text(348, std::string_view(bytes, 4));
  }

  static void change_fabric(void (*change)(switch_sim::Fabric&)) {
    auto fabric = control::fabric();
    change(fabric);
    ASSERT_EQ(std::nullopt, control::install(fabric));
  }
};

TEST_F(DomainManager, GetAnswersTheConfigurationInTheVsan) {
  expect_reply(configuration(1, "00000001"), first_configuration());
  expect_reply(configuration(1, "00000002"), second_configuration());
}

TEST_F(DomainManager, GetNextWalksTheVsans) {
  expect_reply(configuration(2, "00000000"), first_configuration());
  expect_reply(configuration(2, "00000001"), second_configuration());
  expect_refused(configuration(2, "00000002"), kEndOfTable);
}

TEST_F(DomainManager, AnUnknownVsanIsNotFound) {
  expect_refused(configuration(1, "00000009"), kNotFound);
}

TEST_F(DomainManager, ADomainManagerThatIsNotEnabledShowsTheAlternateWwn) {
  change_fabric([](switch_sim::Fabric& fabric) {
    fabric.vsans[1].domains[0].enabled = false;
    fabric.vsans[1].domains[0].domain_id = 0;
  });
  expect_reply(configuration(1, "00000002"), Pattern(1152)
                                                 .at(0, "00000002")
                                                 .at(4, "00000001")
                                                 .at(332, "15")
                                                 .at(333, "02")
                                                 .at(337, "80")
                                                 .at(340, "2002000dec0a1b2d"));
}

TEST_F(DomainManager, ASuspendedVsanHasNoRunningDomainManager) {
  change_fabric(
      [](switch_sim::Fabric& fabric) { fabric.vsans[0].state = switch_sim::VsanState::suspended; });
  expect_reply(configuration(1, "00000001"), Pattern(1152)
                                                 .at(0, "00000001")
                                                 .at(4, "00000001")
                                                 .at(332, "61")
                                                 .at(333, "02")
                                                 .at(337, "01")
                                                 .at(340, "2001000dec0a1b2d"));
}

TEST_F(DomainManager, AVsanWithoutTheLocalSwitchIsNotInTheTable) {
  change_fabric([](switch_sim::Fabric& fabric) {
    fabric.vsans[0].principal_switch = {};
    fabric.vsans[0].domains.erase(fabric.vsans[0].domains.begin());
  });
  expect_refused(configuration(1, "00000001"), kNotFound);
  expect_reply(configuration(2, "00000000"), second_configuration());
}

TEST_F(DomainManager, ThePriorityIsChangedWithMask32) {
  expect_refused(call(14, 264, 3, change(32).at(337, "fe").bytes()), 0);
  expect_reply(configuration(1, "00000002"), second_configuration().at(337, "fe"));
  expect_reply(configuration(1, "00000001"), first_configuration());
}

TEST_F(DomainManager, DomainIdAndTypeAreChangedWithMask512AndTheIdInUseStays) {
  expect_refused(call(14, 264, 3, change(512).at(332, "2a").at(333, "01").bytes()), 0);
  expect_reply(configuration(1, "00000002"), second_configuration().at(332, "2a").at(333, "01"));
}

TEST_F(DomainManager, BothMasksTogetherChangeBoth) {
  expect_refused(call(14, 264, 3, change(544).at(332, "2a").at(333, "01").at(337, "03").bytes()),
                 0);
  expect_reply(configuration(1, "00000002"),
               second_configuration().at(332, "2a").at(333, "01").at(337, "03"));
}

TEST_F(DomainManager, AWrongChangeIsRefusedAndChangesNothing) {
  const auto before = control::fabric();
  const auto refused = [&](const Pattern& request) {
    expect_refused(call(14, 264, 3, request.bytes()), kBadValue);
  };
  refused(change(0));   // nothing chosen
  refused(change(64));  // unknown field
  refused(change(33));
  refused(change(32).at(337, "00"));                 // priority below 1
  refused(change(32).at(337, "ff"));                 // and above 254
  refused(change(512).at(332, "f0").at(333, "02"));  // domain ID above 239
  refused(change(512).at(332, "01").at(333, "03"));  // unknown type
  refused(change(512).at(332, "00").at(333, "01"));  // static without an ID
  EXPECT_EQ(before, control::fabric());
}

TEST_F(DomainManager, AnyDomainIdMayBePreferred) {
  expect_refused(call(14, 264, 3, change(512).at(332, "00").at(333, "02").bytes()), 0);
  expect_reply(configuration(1, "00000002"), second_configuration().at(332, "00"));
}

TEST_F(DomainManager, AChangeOfAnUnknownVsanIsNotFound) {
  expect_refused(call(14, 264, 3, change(32).at(0, "00000009").at(337, "05").bytes()), kNotFound);
}

TEST_F(DomainManager, AnotherRequestKindLengthOrOperationIsRefused) {
  expect_refused(call(14, 264, 1, Pattern(1152).at(0, "00000001").bytes()), kBadValue);
  expect_refused(call(14, 264, 1, Pattern(1151).bytes()), kBadLength);
  expect_refused(configuration(4, "00000001"), kBadOperation);
}

TEST_F(DomainManager, TheDatabaseNamesTheOwnerOfADomainId) {
  expect_reply(database(1, "000000010162"),
               Pattern(19).at(0, "000000010162").at(6, "2001000dec0a1b5f"));
  expect_reply(database(1, "000000020117"),
               Pattern(19).at(0, "000000020117").at(6, "2002000dec0a1b91"));
}

TEST_F(DomainManager, ADomainIdWithoutAnOwnerIsNotFound) {
  expect_refused(database(1, "000000010115"), kNotFound);
  expect_refused(database(1, "000000010100"), kNotFound);
  expect_refused(database(1, "0000000901ff"), kNotFound);
}

TEST_F(DomainManager, TheDatabaseWalkGoesOnInTheNextVsan) {
  expect_reply(database(2, "000000000100"),
               Pattern(19).at(0, "000000010161").at(6, "2001000dec0a1b2d"));
  expect_reply(database(2, "000000010162"),
               Pattern(19).at(0, "000000010163").at(6, "2001000dec0a1b91"));
  expect_reply(database(2, "000000010163"),
               Pattern(19).at(0, "000000020115").at(6, "2002000dec0a1b2d"));
  expect_refused(database(2, "000000020117"), kEndOfTable);
}

TEST_F(DomainManager, TheDatabaseOfASuspendedVsanIsNotServed) {
  change_fabric(
      [](switch_sim::Fabric& fabric) { fabric.vsans[0].state = switch_sim::VsanState::suspended; });
  expect_refused(database(1, "000000010161"), kNotRunning);
  expect_reply(database(2, "000000000100"),
               Pattern(19).at(0, "000000020115").at(6, "2002000dec0a1b2d"));
}

TEST_F(DomainManager, ADatabaseRequestOfAnotherLengthKindOrOperationIsRefused) {
  expect_refused(call(14, 267, 1, Pattern(18).bytes()), kBadLength);
  expect_refused(database(1, "000000010061"), kBadValue);
  expect_refused(database(3, "000000010161"), kBadOperation);
}

TEST_F(DomainManager, TheLocalDomainIdsAreToldPerVsan) {
  mts_msg_t* message = nullptr;
  ASSERT_EQ(0, dm_get_dom_ids_in_sw(q, 0, &message));
  EXPECT_EQ(2, dm_parse_get_num_entries(message));
  EXPECT_EQ(1U, dm_parse_get_vsan_index_in_vsan(message, 0));
  EXPECT_EQ(97, dm_parse_get_dom_id_in_vsan(message, 0));
  EXPECT_EQ(2U, dm_parse_get_vsan_index_in_vsan(message, 1));
  EXPECT_EQ(21, dm_parse_get_dom_id_in_vsan(message, 1));
  EXPECT_EQ(1, control::outstanding().messages);
  mts_drop(q, message);
}

TEST_F(DomainManager, TheReplyWithLocalDomainIdsHasEightBytesPerVsan) {
  mts_msg_t* message = nullptr;
  ASSERT_EQ(0, dm_get_dom_ids_in_sw(q, 0, &message));
  const auto expected = Pattern(20).at(0, "00000002").at(4, "0000000161").at(12, "0000000215");
  const auto* payload = static_cast<const uint8_t*>(mts_payload_get(message));
  EXPECT_EQ(expected.bytes(), std::vector<uint8_t>(payload, payload + mts_payload_size(message)));
  mts_drop(q, message);
}

TEST_F(DomainManager, EntriesOutsideTheMessageAreZero) {
  mts_msg_t* message = nullptr;
  ASSERT_EQ(0, dm_get_dom_ids_in_sw(q, 0, &message));
  for (int32_t i : {-1, 2, 2147483647}) {
    EXPECT_EQ(0U, dm_parse_get_vsan_index_in_vsan(message, i));
    EXPECT_EQ(0, dm_parse_get_dom_id_in_vsan(message, i));
  }
  mts_drop(q, message);
  EXPECT_EQ(0, dm_parse_get_num_entries(nullptr));
  EXPECT_EQ(0U, dm_parse_get_vsan_index_in_vsan(nullptr, 0));
}

TEST_F(DomainManager, AShortListNeverGivesMoreThanItHolds) {
  control::set_faults({{.service = switch_sim::Service::domain_manager,
                        .kind = switch_sim::Fault::Kind::short_reply,
                        .value = 13}});
  mts_msg_t* message = nullptr;
  ASSERT_EQ(0, dm_get_dom_ids_in_sw(q, 0, &message));
  EXPECT_EQ(1, dm_parse_get_num_entries(message));
  EXPECT_EQ(0U, dm_parse_get_vsan_index_in_vsan(message, 1));
  mts_drop(q, message);
}

TEST_F(DomainManager, AFailedListGivesNoMessage) {
  control::set_faults({{.kind = switch_sim::Fault::Kind::status, .value = kNotRunning}});
  mts_msg_t* message = nullptr;
  EXPECT_EQ(kNotRunning, dm_get_dom_ids_in_sw(q, 0, &message));
  EXPECT_EQ(nullptr, message);
  control::set_faults({{.kind = switch_sim::Fault::Kind::without_reply}});
  EXPECT_EQ(-1, dm_get_dom_ids_in_sw(q, 0, &message));
  EXPECT_EQ(nullptr, message);
  EXPECT_EQ(-1, dm_get_dom_ids_in_sw(q, 0, nullptr));
}

}  // namespace
}  // namespace simulator_test

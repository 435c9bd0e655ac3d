// Every read that fails and every allocation that fails, for every way to ask for zoning.
#include "tests/providers/operation_sweep.h"
#include "tests/zoning_providers/zoning_fixture.h"

namespace {

using namespace zoning_provider_tests;

// Zone set 2 holds zone 7, which holds alias 3 and a member; the alias holds another.
ZoneReadResponse answer(const ZoneReadRequest& request) {
  const HeapLedger::Pause pause;
  const bool all = request.function.find("_all_") != std::string::npos;
  const auto is = [&](const char* what) {
    return request.function.find(what) != std::string::npos;
  };
  if (request.active != 0) return {0x40200002, 0, std::nullopt};
  if (is("member"))
    return {0, 1,
            member_entry(
                1, Record(8).byte(0, 0x21).byte(7, static_cast<uint8_t>(request.parent_kind)))};
  if (is("zone_set") && (all || request.id == 2)) return {0, 1, zone_set_entry(1, 2, "lab", {7})};
  if (is("alias") && (all || request.id == 3)) return {0, 1, alias_entry(1, 3, "disks", {1})};
  if (is("zone") && (all || request.id == 7))
    return {0, 1, zone_entry(1, 7, "web", {.members = {1}, .aliases = {3}})};
  return {0x40200002, 0, std::nullopt};
}

class ZoningFailures : public ZoningFixture {
 protected:
  std::vector<Operation> operations() {
    std::vector<Operation> all;
    for (const char* cls :
         {"VEXOR_ZoneSet", "VEXOR_Zone", "VEXOR_ZoneAlias", "VEXOR_ZoneMemberSettingData",
          "VEXOR_ZoneMemberOfCollection", "VEXOR_ZoneElementSettingData",
          "VEXOR_ZoneHostedCollection", "VEXOR_HostedCollection", "VEXOR_HostedService",
          "VEXOR_ZoneCapabilities"})
      all.push_back(sweep_.instances_of(broker_.path(cls)));
    for (CMPIObjectPath* path :
         {zone_set("1_2_0"), zone("1_7_0"), alias("1_3_0"), member("1^2^2100000000000001^0"),
          association("VEXOR_ZoneElementSettingData", "ManagedElement", alias("1_3_0"),
                      "SettingData", member("1^2^2100000000000000^0")),
          association("VEXOR_ZoneMemberOfCollection", "Collection", zone("1_7_0"), "Member",
                      alias("1_3_0"))})
      all.push_back(sweep_.getting(path));
    for (CMPIObjectPath* path : {zone_set("1_2_0"), zone("1_7_0"), alias("1_3_0")}) {
      all.push_back(sweep_.associators_of(path, "VEXOR_ZoneMemberOfCollection"));
      all.push_back(sweep_.associators_of(path, "VEXOR_ZoneHostedCollection"));
    }
    for (CMPIObjectPath* path : {zone("1_7_0"), alias("1_3_0"), member("1^2^2100000000000001^0")})
      all.push_back(sweep_.associators_of(path, "VEXOR_ZoneElementSettingData"));
    all.push_back(
        sweep_.associators_of(vsan_path("2001000DEC0A1B2D"), "VEXOR_ZoneHostedCollection"));
    return all;
  }

  OperationSweep sweep_{broker_, instances_, associations_, methods_};
};

TEST_F(ZoningFailures, AnExchangeThatFailsEndsInAClearStatusAndLeavesNothing) {
  size_t failed = 0;
  for (const Operation& operation : operations()) {
    size_t failing = 0;  // none
    size_t call = 0;
    ZoneReadResponder zone_server([&](const ZoneReadRequest& request) -> ZoneReadResponse {
      return ++call == failing ? ZoneReadResponse{-1, 0, std::nullopt} : answer(request);
    });
    EXPECT_EQ(sweep_.run(operation).code, CMPI_RC_OK) << operation.name;
    const size_t calls = call;
    for (failing = 1; failing <= calls; ++failing) {
      call = 0;
      sweep_.run(operation);
      ++failed;
    }
  }
  EXPECT_GT(failed, 0u);
}

TEST_F(ZoningFailures, AReplyThatIsOneByteShortIsNoRecord) {
  for (const Operation& operation : operations()) {
    ZoneReadResponder zone_server([&](const ZoneReadRequest& request) {
      const HeapLedger::Pause pause;
      ZoneReadResponse response = answer(request);
      if (response.reply) response.reply->pop_back();
      return response;
    });
    const Outcome outcome = sweep_.run(operation);
    // These are there whatever the zone server tells.
    const bool is_of_vsan = operation.name.find("VEXOR_HostedService") != std::string::npos ||
                            operation.name.find("VEXOR_ZoneCapabilities") != std::string::npos ||
                            operation.name.find("VEXOR_HostedCollection") != std::string::npos;
    if (!is_of_vsan) {
      EXPECT_EQ(outcome.returned.identities, Texts{}) << operation.name;
    }
  }
}

TEST_F(ZoningFailures, AnAllocationThatFailsFailsTheRequestAndLeavesNothing) {
  ZoneReadResponder zone_server(answer);
  for (const Operation& operation : operations()) {
    const Outcome whole = sweep_.run(operation);
    const size_t failed = sweep_.sweep_allocations(
        operation, whole, [&](const Outcome& outcome, const std::string& what) {
          EXPECT_EQ(outcome.code, CMPI_RC_ERR_FAILED) << what;
          OperationSweep::expect_objects_of(what, whole.returned, outcome.returned);
        });
    EXPECT_GT(failed, 0u) << operation.name;
  }
}

TEST_F(ZoningFailures, ABrokerThatKnowsNoSuperclassesWalksAllTheSame) {
  broker_.leave_out_optional_slots();
  ZoneReadResponder zone_server(answer);
  const Filter membership{.association = "VEXOR_ZoneMemberOfCollection"};
  EXPECT_EQ(associator_names(zone("1_7_0"), membership).returned.paths,
            (Texts{"root/cimv2:VEXOR_ZoneAlias.InstanceID=\"1_3_0\"",
                   "root/cimv2:VEXOR_ZoneSet.InstanceID=\"1_2_0\""}));
  EXPECT_EQ(associator_names(alias("1_3_0"), membership).returned.paths,
            (Texts{"root/cimv2:VEXOR_Zone.InstanceID=\"1_7_0\""}));
  EXPECT_EQ(associator_names(alias("1_3_0"), {.association = "VEXOR_ZoneHostedCollection"})
                .returned.paths,
            (Texts{kVsan1}));
}

}  // namespace

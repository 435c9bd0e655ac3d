// Every read that fails and every allocation that fails, for every way to ask for zoning.
#include <functional>

#include "tests/support/heap_ledger.h"
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
  struct Operation {
    std::string name;
    std::function<CMPIStatus(const CMPIResult*)> run;
  };

  std::vector<Operation> operations() {
    CMPIInstanceMI* mi = instances_;
    CMPIAssociationMI* am = associations_;
    std::vector<Operation> all;
    for (const char* cls :
         {"VEXOR_ZoneSet", "VEXOR_Zone", "VEXOR_ZoneAlias", "VEXOR_ZoneMemberSettingData",
          "VEXOR_ZoneMemberOfCollection", "VEXOR_ZoneElementSettingData",
          "VEXOR_ZoneHostedCollection", "VEXOR_HostedCollection", "VEXOR_HostedService",
          "VEXOR_ZoneCapabilities"}) {
      const auto* path = broker_.path(cls);
      all.push_back({std::string("instances of ") + cls, [=](const CMPIResult* to) {
                       return mi->ft->enumerateInstances(mi, nullptr, to, path, nullptr);
                     }});
    }
    for (CMPIObjectPath* path :
         {zone_set("1_2_0"), zone("1_7_0"), alias("1_3_0"), member("1^2^2100000000000001^0"),
          association("VEXOR_ZoneElementSettingData", "ManagedElement", alias("1_3_0"),
                      "SettingData", member("1^2^2100000000000000^0")),
          association("VEXOR_ZoneMemberOfCollection", "Collection", zone("1_7_0"), "Member",
                      alias("1_3_0"))})
      all.push_back({"get " + broker_.text(path), [=](const CMPIResult* to) {
                       return mi->ft->getInstance(mi, nullptr, to, path, nullptr);
                     }});
    const auto walk = [&](CMPIObjectPath* path, const char* cls) {
      all.push_back({"from " + broker_.text(path) + " by " + cls, [=](const CMPIResult* to) {
                       return am->ft->associators(am, nullptr, to, path, cls, nullptr, nullptr,
                                                  nullptr, nullptr);
                     }});
    };
    for (CMPIObjectPath* path : {zone_set("1_2_0"), zone("1_7_0"), alias("1_3_0")}) {
      walk(path, "VEXOR_ZoneMemberOfCollection");
      walk(path, "VEXOR_ZoneHostedCollection");
    }
    for (CMPIObjectPath* path : {zone("1_7_0"), alias("1_3_0"), member("1^2^2100000000000001^0")})
      walk(path, "VEXOR_ZoneElementSettingData");
    walk(vsan_path("2001000DEC0A1B2D"), "VEXOR_ZoneHostedCollection");
    return all;
  }

  void expect_clear_end(const Operation& operation, const CMPIStatus& status,
                        const Returned& returned) {
    const HeapLedger::Pause pause;
    EXPECT_TRUE(lock_is_free()) << operation.name;
    EXPECT_EQ(returned.done, status.rc == CMPI_RC_OK ? 1 : 0) << operation.name;
    EXPECT_EQ(broker_.text(status.msg).empty(), status.rc == CMPI_RC_OK) << operation.name;
  }
};

TEST_F(ZoningFailures, AnExchangeThatFailsEndsInAClearStatusAndLeavesNothing) {
  for (const Operation& operation : operations()) {
    size_t failing = 0;  // none
    size_t call = 0;
    ZoneReadResponder zone_server([&](const ZoneReadRequest& request) -> ZoneReadResponse {
      return ++call == failing ? ZoneReadResponse{-1, 0, std::nullopt} : answer(request);
    });
    const auto run = [&] {
      call = 0;
      Returned returned;
      const CMPIResult* result = broker_.result(returned);
      const HeapLedger ledger;
      const CMPIStatus status = operation.run(result);
      expect_clear_end(operation, status, returned);
      const HeapLedger::Pause pause;
      returned = {};
      return status.rc;
    };
    EXPECT_EQ(run(), CMPI_RC_OK) << operation.name;
    const size_t calls = call;
    for (failing = 1; failing <= calls; ++failing)
      run();
  }
}

TEST_F(ZoningFailures, AReplyThatIsOneByteShortIsNoRecord) {
  for (const Operation& operation : operations()) {
    ZoneReadResponder zone_server([&](const ZoneReadRequest& request) {
      const HeapLedger::Pause pause;
      ZoneReadResponse response = answer(request);
      if (response.reply) response.reply->pop_back();
      return response;
    });
    Returned returned;
    const CMPIResult* result = broker_.result(returned);
    const HeapLedger ledger;
    expect_clear_end(operation, operation.run(result), returned);
    const HeapLedger::Pause pause;
    returned = {};
  }
}

TEST_F(ZoningFailures, AnAllocationThatFailsLeavesNothing) {
  ZoneReadResponder zone_server(answer);
  for (const Operation& operation : operations()) {
    const size_t rounds = for_every_failing_allocation([&](FailingAllocation& round) {
      Returned returned;
      const CMPIResult* result = broker_.result(returned);
      const CMPIStatus status = round.attempt([&] { return operation.run(result); });
      expect_clear_end(operation, status, returned);
      const HeapLedger::Pause pause;
      returned = {};
    });
    EXPECT_GT(rounds, 1u) << operation.name;
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

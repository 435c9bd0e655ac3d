// What enumerating costs: exchanges with the switch, and allocations.
#include "tests/providers/provider_fixture.h"
#include "tests/support/heap_ledger.h"

namespace {

using namespace provider_tests;
using test_support::HeapLedger;

class ProviderCosts : public ProviderFixture {
 protected:
  void expect_exchanges(uint32_t n) {
    SwitchDouble large(n);
    const Outcome instances = enumerate("VEXOR_Vsan");
    EXPECT_EQ(instances.code, CMPI_RC_OK);
    EXPECT_EQ(instances.returned.instances.size(), n);
    EXPECT_EQ(large.calls(kCountOpcode), 1u);
    EXPECT_EQ(large.calls(kVsanOpcode), n);
    EXPECT_EQ(large.calls(kDomainOpcode), n);
    EXPECT_EQ(large.calls(), 1u + n + n);
    const Outcome paths = names("VEXOR_Vsan");
    EXPECT_EQ(paths.returned.paths.size(), n);
    EXPECT_EQ(large.calls(), 2 * (1u + n + n));
  }

  // Allocations of the provider and of the library for an enumeration of n VSANs.
  size_t allocations(uint32_t n) {
    SwitchDouble large(n);
    Returned returned;
    const auto* result = broker_.result(returned);
    const auto* path = broker_.path("VEXOR_Vsan");
    const HeapLedger ledger;
    EXPECT_EQ(instances_->ft->enumerateInstances(instances_, nullptr, result, path, nullptr).rc,
              CMPI_RC_OK);
    return ledger.allocations();
  }
};

TEST_F(ProviderCosts, OneVsanIsReadWithThreeExchanges) {
  expect_exchanges(1);
}

TEST_F(ProviderCosts, AHundredVsansAreReadWithTwoExchangesEachAndOneMore) {
  expect_exchanges(100);
}

TEST_F(ProviderCosts, AllVsansThatThereCanBeAreReadWithTwoExchangesEachAndOneMore) {
  expect_exchanges(4094);
}

TEST_F(ProviderCosts, ASwitchWithoutVsansIsAskedOnce) {
  SwitchDouble none(0);
  const Outcome answer = enumerate("VEXOR_Vsan");
  EXPECT_EQ(answer.code, CMPI_RC_OK);
  EXPECT_TRUE(answer.returned.instances.empty());
  EXPECT_EQ(none.calls(), 1u);
}

TEST_F(ProviderCosts, OneMoreVsanCostsFiveMoreAllocations) {
  // The library's list of key names (three blocks) and the forwarded instance (one), besides the
  // list of records, which is made once.
  const size_t few = allocations(10);
  const size_t many = allocations(110);
  EXPECT_LE(many - few, 5u * 100u);
  EXPECT_LE(few, 5u * 10u + 10u);
}

TEST_F(ProviderCosts, AContainedDomainCostsOneExchangeMorePerVsanForItsFabric) {
  SwitchDouble ten(10);
  EXPECT_EQ(names("VEXOR_ContainedDomain").returned.paths.size(), 10u);
  EXPECT_EQ(ten.calls(), 1u + 10u + 10u + 10u);
}

TEST_F(ProviderCosts, AConnectivityCollectionIsFoundWithOneExchange) {
  SwitchDouble large(100);
  const auto* path = broker_.path("VEXOR_ConnectivityCollection", {{"InstanceID", "73"}});
  EXPECT_EQ(get(path).returned.instances,
            (Texts{"VEXOR_ConnectivityCollection {InstanceID=\"73\"}"}));
  EXPECT_EQ(large.calls(kVsanOpcode), 1u);
  EXPECT_EQ(large.calls(), 1u);
}

// The domain manager has nothing to tell of them.
TEST_F(ProviderCosts, ConnectivityCollectionsAreReadWithOneExchangePerVsanAndOneMore) {
  SwitchDouble ten(10);
  EXPECT_EQ(names("VEXOR_ConnectivityCollection").returned.paths.size(), 10u);
  EXPECT_EQ(ten.calls(), 1u + 10u);
}

TEST_F(ProviderCosts, TheFabricsVsansAreFoundWithOneExchangeMoreThanTheirList) {
  SwitchDouble ten(10);
  EXPECT_EQ(associators(fabric_path(), {}).returned.instances.size(), 10u);
  EXPECT_EQ(ten.calls(), 1u + 10u + 10u + 1u);
}

TEST_F(ProviderCosts, SwitchesAreListedWithTwoExchangesPerVsanAndOnePerSwitchInIt) {
  SwitchDouble ten(10);
  for (uint32_t vsan = 1; vsan <= 10; ++vsan)
    for (uint8_t domain = 1; domain <= 3; ++domain) {
      char wwn[24];
      std::snprintf(wwn, sizeof wwn, "20%02x000dec0a1b%02x", vsan, 0x2c + domain);
      ten.add_switch(vsan, wwn, domain);
    }
  EXPECT_EQ(names("VEXOR_LogicalComputerSystem").returned.paths.size(), 30u);
  // The VSANs, their lists, the read that ends the walk, the elements.
  EXPECT_EQ(ten.calls(), 10u + 10u + 1u + 30u);
  EXPECT_EQ(names("VEXOR_PhysicalComputerSystem").returned.paths.size(), 3u);
  // Once more that and the own switch's WWN.
  EXPECT_EQ(ten.calls(), 2 * (10u + 10u + 1u + 30u) + 1u);
}

}  // namespace

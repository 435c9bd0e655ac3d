// The local domain ID, read from the domain manager's own list.
#include <cim_utils/domain_manager.h>
#include <gtest/gtest.h>

#include "tests/support/capture.h"
#include "tests/support/double_domain_manager.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;

namespace {

class DomainIdOfVsan : public testing::Test {
 protected:
  HeapLedger ledger_;
  StdioCapture out_;
  uint8_t domain_ = 77;
};

TEST_F(DomainIdOfVsan, IsTheLastMatchingEntrys) {
  Script script;
  script.expect(query_domain_ids())
      .gives(domain_list({{1, 10}, {5, 20}, {2, 30}, {5, 40}, {3, 50}}));
  EXPECT_EQ(dm_cim_get_domainId(kQueue, 5, &domain_), 0);
  EXPECT_EQ(domain_, 40);
  EXPECT_EQ(out_.out(), "return DomId is  20 \n return DomId is  40 \n ");
}

TEST_F(DomainIdOfVsan, IsZeroForAVsanThatIsNotListed) {
  Script script;
  script.expect(query_domain_ids()).gives(domain_list({{1, 10}}));
  EXPECT_EQ(dm_cim_get_domainId(kQueue, 5, &domain_), 0);
  EXPECT_EQ(domain_, 0);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(DomainIdOfVsan, IsZeroInAnEmptyList) {
  Script script;
  script.expect(query_domain_ids()).gives(domain_list({}));
  EXPECT_EQ(dm_cim_get_domainId(kQueue, 5, &domain_), 0);
  EXPECT_EQ(domain_, 0);
}

TEST_F(DomainIdOfVsan, IsLeftAloneWhenTheListCannotBeRead) {
  Script script;
  script.expect(query_domain_ids()).fails(-1);
  script.expect(query_domain_ids()).fails_with_message(17, domain_list({{5, 10}}));
  EXPECT_EQ(dm_cim_get_domainId(kQueue, 5, &domain_), 255);
  EXPECT_EQ(dm_cim_get_domainId(kQueue, 5, &domain_), 255);
  EXPECT_EQ(domain_, 77);
  EXPECT_EQ(out_.out(),
            "Failed to get domain-id from DM. Ignoring Domain Id."
            "Failed to get domain-id from DM. Ignoring Domain Id.");
}

TEST_F(DomainIdOfVsan, IsLeftAloneWithoutAList) {
  Script script;
  script.expect(query_domain_ids()).returns(0);
  EXPECT_EQ(dm_cim_get_domainId(kQueue, 5, &domain_), 255);
  EXPECT_EQ(domain_, 77);
  EXPECT_EQ(out_.out(), "Failed to get domain-id from DM. Ignoring Domain Id.");
}

TEST_F(DomainIdOfVsan, IsFoundInAListThatAnnouncesMoreThanAnySwitchHas) {
  Script script;
  script.expect(query_domain_ids()).gives(domain_list({{1, 10}, {5, 20}}, 0x7fffffff));
  EXPECT_EQ(dm_cim_get_domainId(kQueue, 5, &domain_), 0);
  EXPECT_EQ(domain_, 20);
}

TEST_F(DomainIdOfVsan, IsZeroInAListThatAnnouncesLessThanNothing) {
  Script script;
  script.expect(query_domain_ids()).gives(domain_list({{5, 20}}, -1));
  EXPECT_EQ(dm_cim_get_domainId(kQueue, 5, &domain_), 0);
  EXPECT_EQ(domain_, 0);
}

TEST_F(DomainIdOfVsan, NeedsNoPlaceForItsResult) {
  Script script;
  script.expect(query_domain_ids()).gives(domain_list({{5, 10}}));
  EXPECT_EQ(dm_cim_get_domainId(kQueue, 5, nullptr), 0);
}

}  // namespace

// Zone members whose names have quotation marks, in an object manager that keeps paths in paths as
// texts without escapes.
#include "tests/zoning_providers/agent.h"

namespace {

using namespace zoning_agent;

constexpr const char* kMember = "1^12^rack \"5\"^0";

class QuotationMarks : public AgentTest {
 protected:
  void SetUp() override {
    AgentTest::SetUp();
    ASSERT_EQ(client_->call(
                  "CreateZoneMembershipSettingData",
                  {number("ConnectivityMemberType", 12), text("ConnectivityMemberID", "rack \"5\""),
                   reference("SystemSpecificCollection", zone_)}),
              0u);
    ASSERT_EQ(client_->made(), kMember);
  }

  static std::unique_ptr<ObjectManager> lenient() {
    cim::host::Settings settings;
    settings.providers = {{"VexorProvider", PROVIDERS_LIBRARY, "VEXOR_"}};
    settings.behavior = cim::host::Behavior::lenient();
    return std::make_unique<ObjectManager>(repository(), settings);
  }

  template <class Operation>
  static void expect_refused(Operation operation) {
    try {
      operation();
      ADD_FAILURE() << "nothing is refused";
    } catch (const CimError& error) {
      EXPECT_EQ(error.code(), CMPI_RC_ERR_FAILED);
      EXPECT_STREQ(error.what(),
                   "the object manager cannot hold the object that \"SettingData\" of a "
                   "VEXOR_ZoneElementSettingData names");
    }
  }

  const ObjectPath zone_ = instance("VEXOR_Zone", "1_1_0");
  const ObjectPath member_ =
      path("VEXOR_ZoneMemberSettingData.InstanceID=\"1^12^rack \\\"5\\\"^0\"");
  const cim::host::AssociationFilter members_ = {"VEXOR_ZoneElementSettingData", "", "", ""};
  const cim::host::AssociationFilter links_ = {"", "VEXOR_ZoneElementSettingData", "", ""};
};

TEST_F(QuotationMarks, AnAssociationThatWouldLoseItsMemberIsRefused) {
  const auto manager = lenient();
  expect_refused(
      [&] { manager->enumerate_instance_names(kNamespace, "VEXOR_ZoneElementSettingData"); });
  expect_refused([&] { manager->enumerate_instances(kNamespace, "VEXOR_ZoneElementSettingData"); });
  expect_refused([&] { manager->reference_names(zone_, links_); });
  expect_refused([&] { manager->references(zone_, links_); });
}

TEST_F(QuotationMarks, TheMemberIsFoundFromItsZone) {
  const auto manager = lenient();
  const auto members = manager->associator_names(zone_, members_);
  ASSERT_EQ(members.size(), 2u);
  EXPECT_EQ(
      std::get<std::string>(cim::host::find_named(members[1].keys, "InstanceID")->data.element),
      kMember);
  EXPECT_EQ(manager->associators(zone_, members_).size(), 2u);
  const auto got = manager->get_instance(member_);
  EXPECT_EQ(std::get<std::string>(got.find("ConnectivityMemberID")->element), "rack \"5\"");
  const auto zones = manager->associator_names(member_, members_);
  ASSERT_EQ(zones.size(), 1u);
  EXPECT_EQ(zones[0].class_name, "VEXOR_Zone");
}

TEST_F(QuotationMarks, OtherObjectManagersHoldTheAssociation) {
  ObjectManager& manager = client_->manager();
  EXPECT_EQ(manager.reference_names(zone_, links_).size(), 2u);
  EXPECT_EQ(manager.references(zone_, links_).size(), 2u);
}

}  // namespace

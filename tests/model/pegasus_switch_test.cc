// The Pegasus face of the fabric, its VSANs and their containment, and the copying of qualifiers.
#include <cim_utils/provider_util.h>
#include <gtest/gtest.h>

#include "tests/model/class_source_double.h"
#include "tests/model/pegasus_text.h"
#include "tests/model/switch_records.h"
#include "tests/model/switch_replies.h"
#include "tests/support/capture.h"
#include "tests/support/transcript.h"

using namespace test_support;
using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMObject;
using Pegasus::CIMObjectPath;
using Pegasus::CIMProperty;
using Pegasus::CIMValue;
using Pegasus::String;

namespace {

const String kNamespace("root/cimv2");

class PegasusSwitch : public testing::Test {
 protected:
  PegasusSwitch() {
    ProviderUtil::mts_q = kQueue;
    classes_.define("VEXOR_Vsan", {"Name", "CreationClassName"},
                    {"NameFormat", "ElementName", "VsanId", "Status", "LoadBalancingType"});
    classes_.define("VEXOR_AdminDomain", {"Name", "CreationClassName"},
                    {"NameFormat", "ElementName", "Status"});
    classes_.define("VEXOR_ContainedDomain", {"GroupComponent", "PartComponent"}, {});
  }
  ~PegasusSwitch() override { ProviderUtil::mts_q = -1; }

  // The traces, and then what was returned.
  template <class Value>
  void expect(const Value& value, const char* transcript) {
    expect_transcript(out_.out() + "\n---\n" + pegasus_text::of(value), transcript);
  }

  ClassSourceDouble classes_;
  StdioCapture out_;
  vsanNewEntry_t vsan_ = records::vsan_10();
  mts_dm_sw_conf_ conf_ = records::configuration_10();
};

TEST_F(PegasusSwitch, AnActiveVsanIsNamedByItsWwn) {
  expect(ProviderUtil::vsan_build_instance("VEXOR_Vsan", kNamespace, &vsan_, &conf_),
         "pegasus_vsan_instance_active.txt");
}

TEST_F(PegasusSwitch, AnActiveVsansReferenceHoldsItsWwn) {
  expect(ProviderUtil::vsan_fill_reference("VEXOR_Vsan", kNamespace, &vsan_, &conf_),
         "pegasus_vsan_reference_active.txt");
}

TEST_F(PegasusSwitch, ASuspendedVsansReferenceHoldsItsNumber) {
  vsan_.admin_state = 2;
  const CIMObjectPath path =
      ProviderUtil::vsan_fill_reference("VEXOR_Vsan", kNamespace, &vsan_, &conf_);
  EXPECT_EQ(pegasus_text::of(path),
            "path HOST root/cimv2 VEXOR_Vsan\n"
            "key CreationClassName = VEXOR_Vsan\n"
            "key Name = 0000000000000000:10\n");
}

TEST_F(PegasusSwitch, TheFabricIsNamedByVsanOneInInstanceAndPath) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1());
  script.expect(records::entry_of_vsan_1()).replies(records::vsan_1(1));
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1());
  expect(ProviderUtil::fabric_build_instance("VEXOR_AdminDomain", kNamespace),
         "pegasus_fabric_instance.txt");
}

TEST_F(PegasusSwitch, WithoutTheDomainManagerTheFabricHasAFixedName) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1()).status(17);
  const CIMObjectPath path = ProviderUtil::fabric_fill_reference("VEXOR_AdminDomain", kNamespace);
  EXPECT_EQ(pegasus_text::of(path),
            "path HOST root/cimv2 VEXOR_AdminDomain\n"
            "key CreationClassName = VEXOR_AdminDomain\n"
            "key Name = PHYSICAL_FABRIC\n");
}

TEST_F(PegasusSwitch, AContainedDomainTiesTheFabricToTheVsan) {
  Script script;
  // Once for the instance's end, once for the end in its path.
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1());
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1());
  expect(ProviderUtil::contained_domain_build_instance("VEXOR_ContainedDomain", kNamespace, &vsan_,
                                                       &conf_),
         "pegasus_contained_domain_instance.txt");
}

TEST_F(PegasusSwitch, AContainedDomainsReferenceHoldsBothEnds) {
  Script script;
  script.expect(records::domain_configuration_of_vsan_1())
      .replies(records::domain_configuration_1());
  const CIMObjectPath path = ProviderUtil::contained_domain_fill_reference(
      "VEXOR_ContainedDomain", kNamespace, &vsan_, &conf_);
  EXPECT_EQ(path.getKeyBindings().size(), 2u);
  EXPECT_EQ(path.getKeyBindings()[0].getType(), Pegasus::CIMKeyBinding::REFERENCE);
}

TEST_F(PegasusSwitch, AConnectivityCollectionIsKnownByItsNumber) {
  classes_.define("VEXOR_ConnectivityCollection", {"InstanceID"}, {});
  const CIMObject object = ProviderUtil::connectivity_collection_build_object(
      "VEXOR_ConnectivityCollection", kNamespace, 10);
  EXPECT_EQ(pegasus_text::of(CIMInstance(object)),
            "instance VEXOR_ConnectivityCollection\n"
            "  [Version]\n"
            "property InstanceID string 10\n"
            "  [Key]\n"
            "path HOST root/cimv2 VEXOR_ConnectivityCollection\n"
            "key InstanceID = 10\n");
}

TEST_F(PegasusSwitch, AnObjectIsTheInstance) {
  const CIMObject object =
      ProviderUtil::vsan_build_object("VEXOR_Vsan", kNamespace, &vsan_, &conf_);
  ASSERT_TRUE(object.isInstance());
  EXPECT_EQ(pegasus_text::of(CIMInstance(object)),
            pegasus_text::of(
                ProviderUtil::vsan_build_instance("VEXOR_Vsan", kNamespace, &vsan_, &conf_)));
  Responder responder([](const Request&) { return Response::failed(17); });
  EXPECT_TRUE(ProviderUtil::fabric_build_object("VEXOR_AdminDomain", kNamespace).isInstance());
  EXPECT_TRUE(ProviderUtil::contained_domain_build_object("VEXOR_ContainedDomain", kNamespace,
                                                          &vsan_, &conf_)
                  .isInstance());
}

TEST_F(PegasusSwitch, NoVsanRecordMakesAnUninitializedInstance) {
  EXPECT_TRUE(ProviderUtil::vsan_build_instance("VEXOR_Vsan", kNamespace, nullptr, &conf_)
                  .isUninitialized());
  const CIMObjectPath path =
      ProviderUtil::vsan_fill_reference("VEXOR_Vsan", kNamespace, nullptr, &conf_);
  EXPECT_TRUE(path.getClassName().isNull());
}

TEST_F(PegasusSwitch, QualifiersComeFromOneNamespaceWhateverTheInstances) {
  ProviderUtil::vsan_build_instance("VEXOR_Vsan", "root/another", &vsan_, &conf_);
  EXPECT_EQ(classes_.asked_in(), std::vector<std::string>{"root/cimv2"});
}

TEST_F(PegasusSwitch, APropertyThatTheClassLacksIsDroppedAndNamed) {
  classes_.define("VEXOR_Small", {"Name"}, {});
  CIMInstance instance{CIMName("VEXOR_Small")};
  instance.addProperty(CIMProperty(CIMName("Extra"), CIMValue(String("x"))));
  instance.addProperty(CIMProperty(CIMName("name"), CIMValue(String("y"))));
  instance.addProperty(CIMProperty(CIMName("More"), CIMValue(String("z"))));
  ProviderUtil::addQualifiers(instance, "root/cimv2");
  ASSERT_EQ(instance.getPropertyCount(), 1u);
  EXPECT_TRUE(instance.getProperty(0).getName().equal(CIMName("Name")));
  EXPECT_EQ(instance.getProperty(0).getQualifierCount(), 1u);
  EXPECT_EQ(out_.out(),
            "ProviderUtil::addQualifiers() - Start\n"
            "ProviderUtil::addQualifiers() - NO SUCH property exception: Extra\n"
            "ProviderUtil::addQualifiers() - NO SUCH property exception: More\n"
            "ProviderUtil::addQualifiers() - Exit\n");
}

TEST_F(PegasusSwitch, ABuiltInstanceComesBackWithoutWhatItsClassLacks) {
  classes_.define("VEXOR_OldVsan", {"Name", "CreationClassName"}, {"ElementName"});
  const CIMInstance vsan =
      ProviderUtil::vsan_build_instance("VEXOR_OldVsan", kNamespace, &vsan_, &conf_);
  ASSERT_EQ(vsan.getPropertyCount(), 3u);
  EXPECT_TRUE(vsan.getProperty(0).getName().equal(CIMName("Name")));
  EXPECT_TRUE(vsan.getProperty(1).getName().equal(CIMName("ElementName")));
  EXPECT_TRUE(vsan.getProperty(2).getName().equal(CIMName("CreationClassName")));
  EXPECT_NE(
      out_.out().find("ProviderUtil::addQualifiers() - Start\n"
                      "ProviderUtil::addQualifiers() - NO SUCH property exception: NameFormat\n"
                      "ProviderUtil::addQualifiers() - NO SUCH property exception: VsanId\n"
                      "ProviderUtil::addQualifiers() - NO SUCH property exception: Status\n"
                      "ProviderUtil::addQualifiers() - NO SUCH property exception: "
                      "LoadBalancingType\n"
                      "ProviderUtil::addQualifiers() - Exit\n"),
      std::string::npos)
      << out_.out();
}

TEST_F(PegasusSwitch, AClassThatCannotBeHadLeavesTheInstanceAsItWas) {
  CIMInstance instance{CIMName("VEXOR_Nowhere")};
  instance.addProperty(CIMProperty(CIMName("Name"), CIMValue(String("y"))));
  ProviderUtil::addQualifiers(instance, "root/cimv2");
  EXPECT_EQ(instance.getPropertyCount(), 1u);
  EXPECT_EQ(instance.getQualifierCount(), 0u);
  const std::string start =
      "ProviderUtil::addQualifiers() - Start\n"
      "ProviderUtil::addQualifiers() - Add qualifiers got exception:  CIM_ERR_NOT_FOUND";
  EXPECT_EQ(out_.out().substr(0, start.size()), start);
  EXPECT_EQ(out_.out().find("Exit"), std::string::npos);
}

TEST_F(PegasusSwitch, QualifiersThatCannotBeAddedAreReportedAndTheExitLineComes) {
  classes_.define("VEXOR_Small", {"Name"}, {});
  CIMInstance instance{CIMName("VEXOR_Small")};
  instance.addQualifier(
      Pegasus::CIMQualifier(CIMName("Version"), CIMValue(String("already there"))));
  instance.addProperty(CIMProperty(CIMName("Name"), CIMValue(String("y"))));
  ProviderUtil::addQualifiers(instance, "root/cimv2");
  EXPECT_EQ(instance.getPropertyCount(), 1u);
  const std::string all = out_.out();
  EXPECT_NE(all.find("ProviderUtil::addQualifiers() - Add Qualifier ex: "), std::string::npos);
  EXPECT_TRUE(all.ends_with("\nProviderUtil::addQualifiers() - Exit\n")) << all;
}

TEST(PegasusArrays, HoldOneElement) {
  const auto array = ProviderUtil::convert_uint_to_array(5);
  ASSERT_EQ(array.size(), 1u);
  EXPECT_EQ(array[0], 5);
}

TEST(PegasusArrays, AnIntegerIsNarrowedTo16Bits) {
  CIMProperty property;
  char name[] = "Dedicated";
  getUIntArrayProperty(property, name, 0x10005);
  EXPECT_TRUE(property.getName().equal(CIMName("Dedicated")));
  Pegasus::Array<Pegasus::Uint16> value;
  property.getValue().get(value);
  ASSERT_EQ(value.size(), 1u);
  EXPECT_EQ(value[0], 5);
}

TEST(PegasusArrays, ATextIsItsOnlyElement) {
  CIMProperty property;
  char name[] = "OtherIdentifyingInfo";
  char text[] = "0";
  getStringArrayProperty(property, name, text);
  Pegasus::Array<String> value;
  property.getValue().get(value);
  ASSERT_EQ(value.size(), 1u);
  EXPECT_TRUE(String::equal(value[0], "0"));
}

TEST(ProviderUtilClass, HasNoDataOfItsOwn) {
  const ProviderUtil one;
  (void)one;
  EXPECT_EQ(sizeof(ProviderUtil), 1u);
  EXPECT_EQ(ProviderUtil::mts_q, -1);
}

}  // namespace

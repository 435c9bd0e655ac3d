// Instances of the Pegasus face with the qualifiers of our own class definitions.
#include <Pegasus/Common/CIMQualifier.h>
#include <cim_utils/provider_util.h>
#include <gtest/gtest.h>

#include "schema/repository.h"
#include "tests/model/repository_class_source.h"
#include "tests/model/switch_records.h"
#include "tests/model/switch_replies.h"
#include "tests/support/capture.h"

using namespace test_support;
using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMProperty;

namespace {

class PegasusRepository : public testing::Test {
 protected:
  PegasusRepository() {
    for (const auto& error : repository_.add_file(std::string(CIM_SOURCE_DIR) + "/mof/vexor.mof"))
      ADD_FAILURE() << error.text();
    source_.emplace(repository_);
  }

  // Whether the instance's property of that name has the qualifier.
  static bool qualified(CIMInstance instance, const char* name, const char* qualifier) {
    const Pegasus::Uint32 at = instance.findProperty(CIMName(name));
    return at != PEG_NOT_FOUND &&
           instance.getProperty(at).findQualifier(CIMName(qualifier)) != PEG_NOT_FOUND;
  }
  void expect_nothing_dropped() {
    EXPECT_EQ(out_.out().find("NO SUCH property"), std::string::npos) << out_.out();
    EXPECT_EQ(out_.out().find("exception"), std::string::npos) << out_.out();
  }

  cim::schema::Repository repository_;
  std::optional<RepositoryClassSource> source_;
  StdioCapture out_;
  Responder services_{[](const Request& request) {
    if (request.opcode == 264) return Response::with(records::domain_configuration_1());
    if (request.opcode == 149) return Response::with(records::vsan_1(1));
    return Response::failed(17);
  }};
  vsanNewEntry_t vsan_ = records::vsan_10();
  mts_dm_sw_conf_ conf_ = records::configuration_10();
};

TEST_F(PegasusRepository, AVsanKeepsItsPropertiesAndGetsTheirQualifiers) {
  const CIMInstance vsan =
      ProviderUtil::vsan_build_instance("VEXOR_Vsan", "root/cimv2", &vsan_, &conf_);
  EXPECT_EQ(vsan.getPropertyCount(), 7u);
  EXPECT_TRUE(qualified(vsan, "Name", "Key"));
  EXPECT_TRUE(qualified(vsan, "LoadBalancingType", "ValueMap"));
  EXPECT_FALSE(qualified(vsan, "VsanId", "Key"));
  EXPECT_NE(vsan.findQualifier(CIMName("Description")), PEG_NOT_FOUND);
  expect_nothing_dropped();
}

TEST_F(PegasusRepository, AFabricKeepsItsProperties) {
  const CIMInstance fabric = ProviderUtil::fabric_build_instance("VEXOR_AdminDomain", "root/cimv2");
  EXPECT_EQ(fabric.getPropertyCount(), 5u);
  EXPECT_TRUE(qualified(fabric, "Name", "Key"));
  expect_nothing_dropped();
}

TEST_F(PegasusRepository, AContainedDomainKeepsItsEnds) {
  const CIMInstance contained = ProviderUtil::contained_domain_build_instance(
      "VEXOR_ContainedDomain", "root/cimv2", &vsan_, &conf_);
  EXPECT_EQ(contained.getPropertyCount(), 2u);
  EXPECT_TRUE(qualified(contained, "GroupComponent", "Key"));
  EXPECT_TRUE(qualified(contained, "GroupComponent", "Aggregate"));
  EXPECT_NE(contained.findQualifier(CIMName("Association")), PEG_NOT_FOUND);
  expect_nothing_dropped();
}

TEST_F(PegasusRepository, AConnectivityCollectionKeepsItsKey) {
  const CIMInstance collection = ProviderUtil::connectivity_collection_build_instance(
      "VEXOR_ConnectivityCollection", "root/cimv2", 10);
  EXPECT_EQ(collection.getPropertyCount(), 1u);
  EXPECT_TRUE(qualified(collection, "InstanceID", "Key"));
  expect_nothing_dropped();
}

}  // namespace

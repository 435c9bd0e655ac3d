#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/Exception.h>
#include <gtest/gtest.h>

#include "tests/pegasus_compat/support.h"

namespace {

using Pegasus::CIMName;
using Pegasus::CIMNamespaceName;
using Pegasus::InvalidNameException;
using Pegasus::InvalidNamespaceNameException;
using Pegasus::String;
using pegasus_test::messageOf;

TEST(CIMName, DefaultIsNull) {
  const CIMName name;
  EXPECT_TRUE(name.isNull());
  EXPECT_EQ(name.getString(), "");
}

TEST(CIMName, KeepsTheNameAsWritten) {
  EXPECT_EQ(CIMName("VEXOR_Vsan").getString(), "VEXOR_Vsan");
  EXPECT_EQ(CIMName(String("VsanId")).getString(), "VsanId");
  CIMName name;
  name = String("Name");
  EXPECT_EQ(name.getString(), "Name");
  name = "Other";
  EXPECT_EQ(name.getString(), "Other");
  EXPECT_FALSE(name.isNull());
  name.clear();
  EXPECT_TRUE(name.isNull());
}

TEST(CIMName, LegalNamesAreLettersDigitsAndUnderscores) {
  EXPECT_TRUE(CIMName::legal("_a9"));
  EXPECT_TRUE(CIMName::legal("Z"));
  EXPECT_TRUE(CIMName::legal("\xC3\xA9t\xC3\xA9"));
  EXPECT_FALSE(CIMName::legal(""));
  EXPECT_FALSE(CIMName::legal("9a"));
  EXPECT_FALSE(CIMName::legal("a b"));
  EXPECT_FALSE(CIMName::legal("a.b"));
  EXPECT_FALSE(CIMName::legal("a-b"));
}

TEST(CIMName, IllegalNameThrowsAndIsNotAssigned) {
  EXPECT_EQ(messageOf<InvalidNameException>([] { CIMName name("a b"); }),
            "The CIM name is not valid: a b");
  EXPECT_EQ(messageOf<InvalidNameException>([] { CIMName name(String("")); }),
            "The CIM name is not valid: ");
  CIMName kept("kept");
  EXPECT_EQ(messageOf<InvalidNameException>([&] { kept = String("1"); }),
            "The CIM name is not valid: 1");
  EXPECT_EQ(messageOf<InvalidNameException>([&] { kept = "2"; }), "The CIM name is not valid: 2");
  EXPECT_EQ(kept.getString(), "kept");
}

TEST(CIMName, ComparesWithoutCase) {
  EXPECT_TRUE(CIMName("Name").equal(CIMName("NAME")));
  EXPECT_FALSE(CIMName("Name").equal(CIMName("Names")));
  EXPECT_TRUE(CIMName("Name").equal("nAME"));
  EXPECT_TRUE(CIMName("Name") == CIMName("name"));
  EXPECT_TRUE(CIMName("Name") != CIMName("nome"));
  EXPECT_TRUE(CIMName() == CIMName());
}

TEST(CIMName, CopiesAreValues) {
  CIMName copy;
  const CIMName name("Name");
  copy = name;
  copy = String("Changed");
  EXPECT_EQ(name.getString(), "Name");
}

TEST(CIMNamespaceName, DefaultIsNull) {
  const CIMNamespaceName name;
  EXPECT_TRUE(name.isNull());
  EXPECT_EQ(name.getString(), "");
}

TEST(CIMNamespaceName, IsNamesBetweenSlashes) {
  EXPECT_EQ(CIMNamespaceName("root/cimv2").getString(), "root/cimv2");
  EXPECT_EQ(CIMNamespaceName(String("root")).getString(), "root");
  EXPECT_TRUE(CIMNamespaceName::legal("root/cimv2/x"));
  EXPECT_FALSE(CIMNamespaceName::legal(""));
  EXPECT_FALSE(CIMNamespaceName::legal("/"));
  EXPECT_FALSE(CIMNamespaceName::legal("root/"));
  EXPECT_FALSE(CIMNamespaceName::legal("root//x"));
  EXPECT_FALSE(CIMNamespaceName::legal("ro ot"));
}

TEST(CIMNamespaceName, LosesOneLeadingSlash) {
  EXPECT_EQ(CIMNamespaceName("/root/cimv2").getString(), "root/cimv2");
}

TEST(CIMNamespaceName, IllegalNameThrowsAndIsNotAssigned) {
  EXPECT_EQ(messageOf<InvalidNamespaceNameException>([] { CIMNamespaceName name("//x"); }),
            "invalid CIM namespace name: //x");
  CIMNamespaceName kept("root");
  EXPECT_EQ(messageOf<InvalidNamespaceNameException>([&] { kept = String("a b"); }),
            "invalid CIM namespace name: a b");
  EXPECT_EQ(messageOf<InvalidNamespaceNameException>([&] { kept = ""; }),
            "invalid CIM namespace name: ");
  EXPECT_EQ(kept.getString(), "root");
}

TEST(CIMNamespaceName, ComparesWithoutCase) {
  CIMNamespaceName name;
  name = String("ROOT/cimv2");
  EXPECT_TRUE(name.equal(CIMNamespaceName("root/CIMV2")));
  EXPECT_TRUE(name.equal("root/cimv2"));
  EXPECT_TRUE(name == CIMNamespaceName("root/cimv2"));
  EXPECT_TRUE(name != CIMNamespaceName("root/interop"));
  name = "root";
  EXPECT_EQ(name.getString(), "root");
  name.clear();
  EXPECT_TRUE(name.isNull());
}

}  // namespace

#include <Pegasus/Common/CIMQualifier.h>
#include <Pegasus/Common/CIMQualifierDecl.h>
#include <gtest/gtest.h>

#include "tests/pegasus_compat/support.h"

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it
using pegasus_test::flag;
using pegasus_test::messageOf;
using pegasus_test::textOf;

const char* const kUninitialized = "uninitialized object";

TEST(CIMFlavor, IsASetOfFlavors) {
  CIMFlavor flavor;
  EXPECT_TRUE(flavor.equal(CIMFlavor::NONE));
  flavor.addFlavor(CIMFlavor::TOINSTANCE);
  flavor.addFlavor(CIMFlavor::RESTRICTED + CIMFlavor::TRANSLATABLE);
  EXPECT_TRUE(flavor.hasFlavor(CIMFlavor::RESTRICTED));
  EXPECT_TRUE(flavor.hasFlavor(CIMFlavor::RESTRICTED + CIMFlavor::TOINSTANCE));
  EXPECT_FALSE(flavor.hasFlavor(CIMFlavor::RESTRICTED + CIMFlavor::TOSUBCLASS));
  flavor.removeFlavor(CIMFlavor::RESTRICTED);
  EXPECT_FALSE(flavor.hasFlavor(CIMFlavor::RESTRICTED));
  CIMFlavor copy(flavor);
  copy.addFlavor(CIMFlavor::DISABLEOVERRIDE);
  EXPECT_TRUE(copy != flavor);
  copy = flavor;
  EXPECT_TRUE(copy == flavor);
}

TEST(CIMFlavor, SomeNamesMeanTheSame) {
  EXPECT_TRUE(CIMFlavor::OVERRIDABLE == CIMFlavor::ENABLEOVERRIDE);
  EXPECT_TRUE(CIMFlavor::TOSUBCLASS == CIMFlavor::TOSUBELEMENTS);
  EXPECT_TRUE(CIMFlavor::DEFAULTS == CIMFlavor::OVERRIDABLE + CIMFlavor::TOSUBCLASS);
  EXPECT_TRUE(CIMFlavor::OVERRIDABLE != CIMFlavor::DISABLEOVERRIDE);
}

TEST(CIMFlavor, IsWrittenInCapitals) {
  EXPECT_EQ(CIMFlavor::NONE.toString(), "");
  EXPECT_EQ(CIMFlavor::DEFAULTS.toString(), "OVERRIDABLE TOSUBCLASS");
  EXPECT_EQ((CIMFlavor::TOINSTANCE + CIMFlavor::TRANSLATABLE + CIMFlavor::DISABLEOVERRIDE +
             CIMFlavor::RESTRICTED)
                .toString(),
            "TOINSTANCE TRANSLATABLE DISABLEOVERRIDE RESTRICTED");
}

TEST(CIMScope, IsASetOfElementKinds) {
  CIMScope scope;
  EXPECT_TRUE(scope.equal(CIMScope::NONE));
  scope.addScope(CIMScope::CLASS + CIMScope::METHOD);
  EXPECT_TRUE(scope.hasScope(CIMScope::METHOD));
  EXPECT_FALSE(scope.hasScope(CIMScope::PROPERTY));
  EXPECT_EQ(scope.toString(), "CLASS METHOD");
  EXPECT_EQ(CIMScope::ANY.toString(),
            "CLASS ASSOCIATION INDICATION PROPERTY REFERENCE METHOD PARAMETER");
  EXPECT_TRUE(CIMScope::ANY.hasScope(CIMScope::ASSOCIATION + CIMScope::INDICATION +
                                     CIMScope::REFERENCE + CIMScope::PARAMETER));
}

TEST(CIMQualifier, HasNameValueFlavorAndOrigin) {
  CIMQualifier qualifier(CIMName("Description"), CIMValue(String("text")), CIMFlavor::TRANSLATABLE,
                         true);
  EXPECT_EQ(qualifier.getName().getString(), "Description");
  EXPECT_EQ(qualifier.getType(), CIMTYPE_STRING);
  EXPECT_FALSE(qualifier.isArray());
  EXPECT_EQ(textOf(qualifier.getValue()), "text");
  EXPECT_TRUE(qualifier.getFlavor() == CIMFlavor::TRANSLATABLE);
  EXPECT_EQ(qualifier.getPropagated(), 1U);
  EXPECT_FALSE(qualifier.isUninitialized());
  qualifier.setName(CIMName("Other"));
  qualifier.setValue(CIMValue(Array<String>(2, String("x"))));
  qualifier.setFlavor(CIMFlavor::TOSUBCLASS);
  qualifier.unsetFlavor(CIMFlavor::TRANSLATABLE);
  qualifier.setPropagated(false);
  EXPECT_EQ(qualifier.getName().getString(), "Other");
  EXPECT_TRUE(qualifier.isArray());
  EXPECT_TRUE(qualifier.getFlavor() == CIMFlavor::TOSUBCLASS);
  EXPECT_EQ(qualifier.getPropagated(), 0U);
}

TEST(CIMQualifier, HasNoFlavorUnlessGivenOne) {
  EXPECT_TRUE(flag("Key").getFlavor() == CIMFlavor::NONE);
  EXPECT_EQ(flag("Key").getPropagated(), 0U);
}

TEST(CIMQualifier, CopiesShareAndClonesDoNot) {
  CIMQualifier qualifier = flag("Key");
  CIMQualifier copy(qualifier);
  const CIMConstQualifier constant(qualifier);
  const CIMQualifier clone = qualifier.clone();
  copy.setName(CIMName("Changed"));
  EXPECT_EQ(qualifier.getName().getString(), "Changed");
  EXPECT_EQ(constant.getName().getString(), "Changed");
  EXPECT_EQ(clone.getName().getString(), "Key");
  EXPECT_EQ(constant.clone().getName().getString(), "Changed");
}

TEST(CIMQualifier, IdenticalComparesEverything) {
  const CIMQualifier key = flag("Key");
  EXPECT_TRUE(key.identical(flag("KEY")));
  EXPECT_TRUE(key.identical(key.clone()));
  EXPECT_FALSE(key.identical(flag("Read")));
  EXPECT_FALSE(key.identical(flag("Key", false)));
  EXPECT_FALSE(key.identical(CIMQualifier("Key", CIMValue(true), CIMFlavor::TOSUBCLASS)));
  EXPECT_FALSE(key.identical(CIMQualifier("Key", CIMValue(true), CIMFlavor::NONE, true)));
}

TEST(CIMQualifier, UninitializedHandlesThrow) {
  CIMQualifier none;
  const CIMConstQualifier constant;
  EXPECT_TRUE(none.isUninitialized());
  EXPECT_TRUE(constant.isUninitialized());
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { none.getName(); }), kUninitialized);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { none.setPropagated(true); }),
            kUninitialized);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { none.clone(); }), kUninitialized);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { constant.getValue(); }), kUninitialized);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { flag("a").identical(constant); }),
            kUninitialized);
}

TEST(CIMQualifier, ANullNameThrows) {
  CIMQualifier qualifier = flag("Key");
  EXPECT_EQ(
      messageOf<UninitializedObjectException>([] { CIMQualifier made(CIMName(), CIMValue(true)); }),
      kUninitialized);
  EXPECT_EQ(messageOf<UninitializedObjectException>([&] { qualifier.setName(CIMName()); }),
            kUninitialized);
  EXPECT_EQ(qualifier.getName().getString(), "Key");
}

TEST(CIMConstQualifier, ShowsTheQualifier) {
  const CIMConstQualifier made(CIMName("Values"), CIMValue(Array<String>(1, String("x"))),
                               CIMFlavor::TOINSTANCE, true);
  EXPECT_EQ(made.getName().getString(), "Values");
  EXPECT_EQ(made.getType(), CIMTYPE_STRING);
  EXPECT_TRUE(made.isArray());
  EXPECT_EQ(textOf(made.getValue()), "x");
  EXPECT_TRUE(made.getFlavor() == CIMFlavor::TOINSTANCE);
  EXPECT_EQ(made.getPropagated(), 1U);
  EXPECT_FALSE(made.isUninitialized());
  CIMConstQualifier assigned;
  assigned = made;
  EXPECT_TRUE(assigned.identical(made));
  assigned = flag("Key");
  EXPECT_EQ(assigned.getName().getString(), "Key");
}

TEST(CIMQualifierDecl, HasEverythingOfADeclaration) {
  CIMQualifierDecl declaration(CIMName("Key"), CIMValue(false), CIMScope::PROPERTY);
  EXPECT_EQ(declaration.getName().getString(), "Key");
  EXPECT_EQ(declaration.getType(), CIMTYPE_BOOLEAN);
  EXPECT_FALSE(declaration.isArray());
  EXPECT_EQ(textOf(declaration.getValue()), "FALSE");
  EXPECT_TRUE(declaration.getScope().equal(CIMScope::PROPERTY));
  EXPECT_TRUE(declaration.getFlavor() == CIMFlavor::DEFAULTS);
  EXPECT_EQ(declaration.getArraySize(), 0U);
  const CIMQualifierDecl clone = declaration.clone();
  EXPECT_TRUE(clone.identical(declaration));
  declaration.setName(CIMName("Other"));
  declaration.setValue(CIMValue(true));
  EXPECT_FALSE(clone.identical(declaration));
  EXPECT_EQ(clone.getName().getString(), "Key");
  EXPECT_FALSE(declaration.isUninitialized());
  EXPECT_TRUE(CIMQualifierDecl().isUninitialized());
  EXPECT_EQ(messageOf<UninitializedObjectException>([] { CIMQualifierDecl().getName(); }),
            kUninitialized);
}

}  // namespace

#include <Pegasus/Provider/CIMOMHandle.h>
#include <Pegasus/Provider/vexor_class_source.h>
#include <gtest/gtest.h>

#include <memory>

#include "tests/pegasus_compat/support.h"

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it
using pegasus_test::flag;
using pegasus_test::keyProperty;
using pegasus_test::messageOf;
using pegasus_test::textProperty;

// Knows one class of one namespace.
class OneClass : public ClassSource {
 public:
  explicit OneClass(const CIMClass& known) : _known(known) {}
  CIMClass getClass(const CIMNamespaceName& nameSpace, const CIMName& className) override {
    const bool same =
        nameSpace == CIMNamespaceName("root/cimv2") && className == _known.getClassName();
    return same ? _known : CIMClass();
  }

 private:
  CIMClass _known;
};

class Failing : public ClassSource {
 public:
  CIMClass getClass(const CIMNamespaceName&, const CIMName&) override {
    throw CIMException(CIM_ERR_INVALID_NAMESPACE, String("no such namespace"));
  }
};

CIMClass vsan() {
  CIMClass cls(CIMName("VEXOR_Vsan"), CIMName("CIM_AdminDomain"));
  cls.addQualifier(CIMQualifier(CIMName("Inherited"), CIMValue(true), CIMFlavor::NONE, true));
  cls.addQualifier(flag("Version"));
  cls.addProperty(keyProperty("Name"));  // inherited, of CIM_Base
  CIMProperty own(CIMName("VsanId"), CIMValue(CIMTYPE_UINT32, false), 0, CIMName(),
                  CIMName("VEXOR_Vsan"), false);
  own.addQualifier(flag("Read"));
  cls.addProperty(own);
  CIMMethod inherited(CIMName("RequestStateChange"), CIMTYPE_UINT32, CIMName("CIM_Base"), true);
  cls.addMethod(inherited);
  CIMMethod method(CIMName("Suspend"), CIMTYPE_UINT32, CIMName("VEXOR_Vsan"));
  method.addQualifier(flag("Static"));
  CIMParameter parameter(CIMName("Force"), CIMTYPE_BOOLEAN);
  parameter.addQualifier(flag("In"));
  method.addParameter(parameter);
  cls.addMethod(method);
  cls.setPath(CIMObjectPath(String("root/cimv2:VEXOR_Vsan")));
  return cls;
}

CIMClass ask(CIMOMHandle& handle, bool localOnly, bool qualifiers, bool origins,
             const CIMPropertyList& list = CIMPropertyList()) {
  return handle.getClass(OperationContext(), CIMNamespaceName("root/cimv2"), CIMName("VEXOR_Vsan"),
                         localOnly, qualifiers, origins, list);
}

class CIMOMHandleTest : public testing::Test {
 protected:
  void SetUp() override { installClassSource(std::make_shared<OneClass>(_cls)); }
  void TearDown() override { uninstallClassSource(); }

  CIMClass _cls = vsan();
  CIMOMHandle _handle;
};

TEST_F(CIMOMHandleTest, GetClassReturnsTheWholeClass) {
  const CIMClass got = ask(_handle, false, true, true);
  EXPECT_TRUE(got.identical(_cls));
}

TEST_F(CIMOMHandleTest, APropertyOfAClassHasItsKeyQualifier) {
  const CIMClass got = ask(_handle, false, true, true);
  const CIMConstProperty name = got.getProperty(got.findProperty(CIMName("Name")));
  EXPECT_EQ(name.getQualifierCount(), 1U);
  EXPECT_EQ(name.getQualifier(0).getName().getString(), "Key");
  EXPECT_EQ(name.getQualifier(0).getValue().toString(), "TRUE");
}

TEST_F(CIMOMHandleTest, WhatGetClassReturnsIsTheCallersOwn) {
  CIMClass got = ask(_handle, false, true, true);
  got.getProperty(0).getQualifier(0).setName(CIMName("Changed"));
  got.getQualifier(0).setName(CIMName("Changed"));
  got.getMethod(1).getParameter(0).setName(CIMName("Changed"));
  got.removeProperty(0);
  EXPECT_TRUE(_cls.identical(vsan()));
}

TEST_F(CIMOMHandleTest, LocalOnlyLeavesOutWhatIsInherited) {
  const CIMClass got = ask(_handle, true, true, true);
  EXPECT_EQ(got.getQualifierCount(), 1U);
  EXPECT_EQ(got.getQualifier(0).getName().getString(), "Version");
  EXPECT_EQ(got.getPropertyCount(), 1U);
  EXPECT_EQ(got.getProperty(0).getName().getString(), "VsanId");
  EXPECT_EQ(got.getMethodCount(), 1U);
  EXPECT_EQ(got.getMethod(0).getName().getString(), "Suspend");
  EXPECT_EQ(got.getSuperClassName().getString(), "CIM_AdminDomain");
}

TEST_F(CIMOMHandleTest, WithoutQualifiersNoElementHasAny) {
  const CIMClass got = ask(_handle, false, false, true);
  EXPECT_EQ(got.getQualifierCount(), 0U);
  EXPECT_EQ(got.getPropertyCount(), 2U);
  EXPECT_EQ(got.getProperty(0).getQualifierCount(), 0U);
  EXPECT_EQ(got.getProperty(1).getQualifierCount(), 0U);
  EXPECT_EQ(got.getMethod(1).getQualifierCount(), 0U);
  EXPECT_EQ(got.getMethod(1).getParameter(0).getQualifierCount(), 0U);
  EXPECT_EQ(got.getProperty(0).getClassOrigin().getString(), "CIM_Base");
}

TEST_F(CIMOMHandleTest, WithoutClassOriginNoElementHasOne) {
  const CIMClass got = ask(_handle, false, true, false);
  EXPECT_TRUE(got.getProperty(0).getClassOrigin().isNull());
  EXPECT_TRUE(got.getMethod(0).getClassOrigin().isNull());
  EXPECT_EQ(got.getProperty(0).getQualifierCount(), 1U);
}

TEST_F(CIMOMHandleTest, APropertyListSelectsProperties) {
  Array<CIMName> names;
  names.append(CIMName("VSANID"));
  names.append(CIMName("NotThere"));
  EXPECT_EQ(ask(_handle, false, true, true, CIMPropertyList(names)).getPropertyCount(), 1U);
  EXPECT_EQ(ask(_handle, false, true, true, CIMPropertyList(Array<CIMName>())).getPropertyCount(),
            0U);
}

TEST_F(CIMOMHandleTest, AMissingClassIsNotFound) {
  try {
    _handle.getClass(OperationContext(), CIMNamespaceName("root/cimv2"), CIMName("VEXOR_None"),
                     false, true, true, CIMPropertyList());
    FAIL() << "nothing thrown";
  } catch (const CIMException& error) {
    EXPECT_EQ(error.getCode(), CIM_ERR_NOT_FOUND);
    EXPECT_EQ(static_cast<int>(error.getCode()), 6);
    EXPECT_EQ(error.getMessage(), "CIM_ERR_NOT_FOUND: VEXOR_None");
  }
}

TEST_F(CIMOMHandleTest, WithoutASourceNoClassIsFound) {
  uninstallClassSource();
  EXPECT_EQ(messageOf<CIMException>([&] { ask(_handle, false, true, true); }),
            "CIM_ERR_NOT_FOUND: VEXOR_Vsan");
}

TEST_F(CIMOMHandleTest, ErrorsOfTheSourcePassOn) {
  installClassSource(std::make_shared<Failing>());
  try {
    ask(_handle, false, true, true);
    FAIL() << "nothing thrown";
  } catch (const CIMException& error) {
    EXPECT_EQ(error.getCode(), CIM_ERR_INVALID_NAMESPACE);
    EXPECT_EQ(error.getMessage(), "no such namespace");
  }
}

TEST_F(CIMOMHandleTest, ReplacedSourcesAreReleased) {
  auto first = std::make_shared<OneClass>(_cls);
  const std::weak_ptr<OneClass> watch = first;
  installClassSource(std::move(first));
  EXPECT_FALSE(watch.expired());
  installClassSource(std::make_shared<Failing>());
  EXPECT_TRUE(watch.expired());
}

TEST_F(CIMOMHandleTest, HandlesMayBeCopied) {
  CIMOMHandle copy(_handle);
  CIMOMHandle assigned;
  assigned = copy;
  EXPECT_TRUE(ask(assigned, false, true, true).identical(_cls));
}

TEST_F(CIMOMHandleTest, OtherOperationsAreNotSupported) {
  const OperationContext context;
  const CIMNamespaceName ns("root/cimv2");
  const CIMName name("VEXOR_Vsan");
  const CIMPropertyList all;
  EXPECT_EQ(messageOf<CIMNotSupportedException>(
                [&] { _handle.enumerateClasses(context, ns, name, true, false, true, true); }),
            "CIM_ERR_NOT_SUPPORTED: enumerateClasses");
  EXPECT_EQ(messageOf<CIMNotSupportedException>(
                [&] { _handle.enumerateClassNames(context, ns, name, true); }),
            "CIM_ERR_NOT_SUPPORTED: enumerateClassNames");
  EXPECT_EQ(messageOf<CIMNotSupportedException>(
                [&] { _handle.getInstance(context, ns, CIMObjectPath(), false, true, true, all); }),
            "CIM_ERR_NOT_SUPPORTED: getInstance");
  EXPECT_EQ(messageOf<CIMNotSupportedException>([&] {
              _handle.enumerateInstances(context, ns, name, true, false, true, true, all);
            }),
            "CIM_ERR_NOT_SUPPORTED: enumerateInstances");
  EXPECT_EQ(messageOf<CIMNotSupportedException>(
                [&] { _handle.enumerateInstanceNames(context, ns, name); }),
            "CIM_ERR_NOT_SUPPORTED: enumerateInstanceNames");
}

TEST_F(CIMOMHandleTest, UnloadingIsLeftToTheHost) {
  _handle.disallowProviderUnload();
  _handle.allowProviderUnload();
  EXPECT_FALSE(_handle.getResponseContext().contains(String("any")));
}

}  // namespace

#include <Pegasus/Common/CIMObjectPath.h>
#include <Pegasus/Common/CIMValue.h>
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "tests/pegasus_compat/support.h"

namespace {

using namespace Pegasus;  // NOLINT: the test names most of it
using pegasus_test::messageOf;

CIMKeyBinding key(const char* name, const char* value,
                  CIMKeyBinding::Type type = CIMKeyBinding::STRING) {
  return CIMKeyBinding(CIMName(name), String(value), type);
}

CIMObjectPath parsed(const char* text) {
  return CIMObjectPath(String(text));
}

TEST(CIMKeyBinding, TypesHaveTheirNumbers) {
  EXPECT_EQ(static_cast<int>(CIMKeyBinding::BOOLEAN), 0);
  EXPECT_EQ(static_cast<int>(CIMKeyBinding::STRING), 1);
  EXPECT_EQ(static_cast<int>(CIMKeyBinding::NUMERIC), 2);
  EXPECT_EQ(static_cast<int>(CIMKeyBinding::REFERENCE), 3);
}

TEST(CIMKeyBinding, IsNameTextAndType) {
  CIMKeyBinding binding;
  EXPECT_TRUE(binding.getName().isNull());
  binding.setName(CIMName("VsanId"));
  binding.setValue(String("7"));
  binding.setType(CIMKeyBinding::NUMERIC);
  EXPECT_EQ(binding.getName().getString(), "VsanId");
  EXPECT_EQ(binding.getValue(), "7");
  EXPECT_EQ(binding.getType(), CIMKeyBinding::NUMERIC);
  const CIMKeyBinding copy(binding);
  binding.setValue(String("8"));
  EXPECT_EQ(copy.getValue(), "7");
  EXPECT_TRUE(copy == key("VSANID", "7", CIMKeyBinding::NUMERIC));
  EXPECT_TRUE(copy != binding);
}

TEST(CIMKeyBinding, TakesTypeAndTextFromAValue) {
  const auto of = [](const CIMValue& value) { return CIMKeyBinding(CIMName("k"), value); };
  EXPECT_EQ(of(CIMValue(Uint32{7})).getType(), CIMKeyBinding::NUMERIC);
  EXPECT_EQ(of(CIMValue(Uint32{7})).getValue(), "7");
  EXPECT_EQ(of(CIMValue(Sint64{-7})).getValue(), "-7");
  EXPECT_EQ(of(CIMValue(Real64{0.5})).getType(), CIMKeyBinding::NUMERIC);
  EXPECT_EQ(of(CIMValue(true)).getType(), CIMKeyBinding::BOOLEAN);
  EXPECT_EQ(of(CIMValue(true)).getValue(), "TRUE");
  EXPECT_EQ(of(CIMValue(String("a\"b"))).getType(), CIMKeyBinding::STRING);
  EXPECT_EQ(of(CIMValue(String("a\"b"))).getValue(), "a\"b");
  EXPECT_EQ(of(CIMValue(Char16('c'))).getType(), CIMKeyBinding::STRING);
  EXPECT_EQ(of(CIMValue(CIMDateTime())).getType(), CIMKeyBinding::STRING);
  EXPECT_EQ(of(CIMValue(parsed("A.b=1"))).getType(), CIMKeyBinding::REFERENCE);
  EXPECT_EQ(of(CIMValue(parsed("A.b=1"))).getValue(), "A.b=1");
}

TEST(CIMKeyBinding, RefusesArraysAndEmbeddedObjects) {
  EXPECT_EQ(messageOf<TypeMismatchException>(
                [] { CIMKeyBinding made(CIMName("k"), CIMValue(Array<Uint32>(1))); }),
            "type mismatch");
  EXPECT_EQ(messageOf<TypeMismatchException>(
                [] { CIMKeyBinding made(CIMName("k"), CIMValue(CIMInstance("A"))); }),
            "type mismatch");
  EXPECT_EQ(messageOf<TypeMismatchException>(
                [] { CIMKeyBinding made(CIMName("k"), CIMValue(CIMObject(CIMInstance("A")))); }),
            "type mismatch");
}

TEST(CIMKeyBinding, EqualComparesByType) {
  EXPECT_TRUE(key("k", "0x10", CIMKeyBinding::NUMERIC).equal(CIMValue(Uint32{16})));
  EXPECT_TRUE(key("k", "+16", CIMKeyBinding::NUMERIC).equal(CIMValue(Uint8{16})));
  EXPECT_TRUE(key("k", "-1", CIMKeyBinding::NUMERIC).equal(CIMValue(Sint8{-1})));
  EXPECT_TRUE(key("k", "101b", CIMKeyBinding::NUMERIC).equal(CIMValue(Uint8{5})));
  EXPECT_TRUE(key("k", "010", CIMKeyBinding::NUMERIC).equal(CIMValue(Uint8{8})));
  EXPECT_TRUE(key("k", "0", CIMKeyBinding::NUMERIC).equal(CIMValue(Uint8{0})));
  EXPECT_TRUE(key("k", "5.0e-1", CIMKeyBinding::NUMERIC).equal(CIMValue(Real64{0.5})));
  EXPECT_FALSE(key("k", "16", CIMKeyBinding::NUMERIC).equal(CIMValue(Uint32{17})));
  EXPECT_FALSE(key("k", "16", CIMKeyBinding::NUMERIC).equal(CIMValue(String("16"))));
  EXPECT_TRUE(key("k", "true", CIMKeyBinding::BOOLEAN).equal(CIMValue(true)));
  EXPECT_FALSE(key("k", "true", CIMKeyBinding::BOOLEAN).equal(CIMValue(false)));
  EXPECT_TRUE(key("k", "text").equal(CIMValue(String("text"))));
  EXPECT_FALSE(key("k", "text").equal(CIMValue(String("TEXT"))));
  EXPECT_TRUE(key("k", "x:a.B=1", CIMKeyBinding::REFERENCE).equal(CIMValue(parsed("X:A.b=1"))));
  EXPECT_FALSE(key("k", "x:a.B=2", CIMKeyBinding::REFERENCE).equal(CIMValue(parsed("X:A.b=1"))));
  EXPECT_FALSE(key("k", "").equal(CIMValue(CIMTYPE_STRING, false)));
  EXPECT_FALSE(key("k", "1", CIMKeyBinding::NUMERIC).equal(CIMValue(Array<Uint32>(1, 1))));
  EXPECT_FALSE(key("k", "A").equal(CIMValue(CIMInstance("A"))));
}

TEST(CIMObjectPath, DefaultIsEmpty) {
  const CIMObjectPath path;
  EXPECT_EQ(path.getHost(), "");
  EXPECT_TRUE(path.getNameSpace().isNull());
  EXPECT_TRUE(path.getClassName().isNull());
  EXPECT_EQ(path.getKeyBindings().size(), 0U);
  EXPECT_EQ(path.toString(), "");
}

TEST(CIMObjectPath, IsHostNamespaceClassAndKeys) {
  const CIMObjectPath path(String("host"), CIMNamespaceName("root/cimv2"), CIMName("VEXOR_Vsan"),
                           Array<CIMKeyBinding>(1, key("Name", "x")));
  EXPECT_EQ(path.getHost(), "host");
  EXPECT_EQ(path.getNameSpace().getString(), "root/cimv2");
  EXPECT_EQ(path.getClassName().getString(), "VEXOR_Vsan");
  EXPECT_EQ(path.getKeyBindings()[0].getValue(), "x");
  EXPECT_EQ(CIMObjectPath(String("host"), CIMNamespaceName("root"), CIMName("A")).toString(),
            "//host/root:A");
}

TEST(CIMObjectPath, ToStringOmitsWhatIsMissing) {
  EXPECT_EQ(CIMObjectPath(String(), CIMNamespaceName("root"), CIMName("A")).toString(), "root:A");
  EXPECT_EQ(CIMObjectPath(String(), CIMNamespaceName(), CIMName("A")).toString(), "A");
  EXPECT_EQ(CIMObjectPath(String("h"), CIMNamespaceName(), CIMName("A")).toString(), "//h/:A");
}

TEST(CIMObjectPath, SettersChangeOnePart) {
  CIMObjectPath path;
  path.setHost(String("h.example:5988"));
  path.setNameSpace(CIMNamespaceName("root"));
  path.setClassName(CIMName("A"));
  Array<CIMKeyBinding> keys(1, key("z", "1"));
  keys.append(key("B", "2"));
  path.setKeyBindings(keys);
  EXPECT_EQ(path.toString(), "//h.example:5988/root:A.B=\"2\",z=\"1\"");
  path.set(String("g"), CIMNamespaceName("x"), CIMName("C"), keys);
  EXPECT_EQ(path.toString(), "//g/x:C.B=\"2\",z=\"1\"");
  path.set(String(), CIMNamespaceName("x"), CIMName("C"));
  EXPECT_EQ(path.toString(), "x:C");
  path.set(String("y:D.k=1"));
  EXPECT_EQ(path.toString(), "y:D.k=1");
  path = String("z:E");
  EXPECT_EQ(path.toString(), "z:E");
  path.clear();
  EXPECT_EQ(path.toString(), "");
}

TEST(CIMObjectPath, EachSetterLeavesCopiesAlone) {
  const CIMObjectPath path = parsed("//h/root:A.k=1");
  CIMObjectPath copy(path);
  copy.setHost(String("g"));
  copy = path;
  copy.setNameSpace(CIMNamespaceName("x"));
  copy = path;
  copy.setClassName(CIMName("B"));
  copy = path;
  copy.setKeyBindings(Array<CIMKeyBinding>());
  EXPECT_EQ(copy.toString(), "//h/root:A");
  EXPECT_EQ(path.toString(), "//h/root:A.k=1");
}

TEST(CIMObjectPath, HostsMayBeNamesAndAddressesWithAPort) {
  for (const char* host : {"switch", "sw-1.fab_a.example", "192.0.2.1", "h:5989", "[2001:db8::1]",
                           "[fe80::1%1]:5989"}) {
    CIMObjectPath path;
    path.setHost(String(host));
    EXPECT_EQ(path.getHost(), host);
  }
}

TEST(CIMObjectPath, OtherHostsThrowAndAreNotSet) {
  CIMObjectPath path = parsed("//h/root:A");
  for (const char* host :
       {"a b", "a/b", "h:", "h:x", "[", "[]", "[1", "[::1]x", ":5989", "\xC3\xA9"}) {
    EXPECT_EQ(messageOf<MalformedObjectNameException>([&] { path.setHost(String(host)); }),
              std::string("malformed object name: ") + host);
    EXPECT_EQ(messageOf<MalformedObjectNameException>(
                  [&] { path.set(String(host), CIMNamespaceName("root"), CIMName("A")); }),
              std::string("malformed object name: ") + host);
  }
  EXPECT_EQ(path.toString(), "//h/root:A");
}

TEST(CIMObjectPath, ReadsAWholePath) {
  const CIMObjectPath path =
      parsed("//host:5988/root/cimv2:VEXOR_X.Z=7,A=\"q\\\"x\\\\\",b=True,C=-0x1F");
  EXPECT_EQ(path.getHost(), "host:5988");
  EXPECT_EQ(path.getNameSpace().getString(), "root/cimv2");
  EXPECT_EQ(path.getClassName().getString(), "VEXOR_X");
  const Array<CIMKeyBinding> keys = path.getKeyBindings();
  ASSERT_EQ(keys.size(), 4U);
  EXPECT_EQ(keys[0].getName().getString(), "A");
  EXPECT_EQ(keys[0].getValue(), "q\"x\\");
  EXPECT_EQ(keys[0].getType(), CIMKeyBinding::STRING);
  EXPECT_EQ(keys[1].getName().getString(), "b");
  EXPECT_EQ(keys[1].getValue(), "True");
  EXPECT_EQ(keys[1].getType(), CIMKeyBinding::BOOLEAN);
  EXPECT_EQ(keys[2].getValue(), "-0x1F");
  EXPECT_EQ(keys[2].getType(), CIMKeyBinding::NUMERIC);
  EXPECT_EQ(keys[3].getValue(), "7");
  EXPECT_EQ(path.toString(), "//host:5988/root/cimv2:VEXOR_X.A=\"q\\\"x\\\\\",b=True,C=-0x1F,Z=7");
}

TEST(CIMObjectPath, ReadsPathsWithMissingParts) {
  EXPECT_EQ(parsed("A").toString(), "A");
  EXPECT_EQ(parsed("root:A").getNameSpace().getString(), "root");
  EXPECT_EQ(parsed("/root:A").getNameSpace().getString(), "root");
  EXPECT_EQ(parsed("A.k=\"\"").getKeyBindings()[0].getValue(), "");
  EXPECT_EQ(parsed("//h/:A").getHost(), "h");
  EXPECT_TRUE(parsed("//h/:A").getNameSpace().isNull());
  EXPECT_EQ(parsed("root:A=@").toString(), "root:A");
}

TEST(CIMObjectPath, ReadsSpecialCharactersInsideQuotes) {
  const CIMObjectPath path = parsed("A.k=\"a,b=c:d//e.f\",l=1");
  EXPECT_EQ(path.getKeyBindings()[0].getValue(), "a,b=c:d//e.f");
  EXPECT_EQ(path.getKeyBindings()[0].getType(), CIMKeyBinding::STRING);
  EXPECT_EQ(path.getKeyBindings().size(), 2U);
}

TEST(CIMObjectPath, AQuotedPathWithKeysIsAReference) {
  const CIMObjectPath path = parsed("A.p=\"root:B.k=\\\"x\\\"\",q=\"root:B\",r=\"B\"");
  const Array<CIMKeyBinding> keys = path.getKeyBindings();
  EXPECT_EQ(keys[0].getType(), CIMKeyBinding::REFERENCE);
  EXPECT_EQ(keys[0].getValue(), "root:B.k=\"x\"");
  EXPECT_EQ(keys[1].getType(), CIMKeyBinding::STRING);
  EXPECT_EQ(keys[2].getType(), CIMKeyBinding::STRING);
  EXPECT_EQ(path.toString(), "A.p=\"root:B.k=\\\"x\\\"\",q=\"root:B\",r=\"B\"");
}

TEST(CIMObjectPath, WhatItWritesItReadsBack) {
  CIMObjectPath inner(String("h"), CIMNamespaceName("root"), CIMName("B"),
                      Array<CIMKeyBinding>(1, key("k", "a\\\"b")));
  CIMObjectPath middle(String("h"), CIMNamespaceName("root"), CIMName("C"),
                       Array<CIMKeyBinding>(1, CIMKeyBinding(CIMName("r"), CIMValue(inner))));
  CIMObjectPath outer(String("h"), CIMNamespaceName("root"), CIMName("D"),
                      Array<CIMKeyBinding>(1, CIMKeyBinding(CIMName("r"), CIMValue(middle))));
  const CIMObjectPath again(outer.toString());
  EXPECT_TRUE(again.identical(outer));
  EXPECT_EQ(again.toString(), outer.toString());
  EXPECT_EQ(middle.toString(), "//h/root:C.r=\"//h/root:B.k=\\\"a\\\\\\\\\\\\\\\"b\\\"\"");
}

TEST(CIMObjectPath, OtherTextsThrowAndAreNotSet) {
  CIMObjectPath path = parsed("root:A.k=1");
  for (const char* text : {"",
                           ":A",
                           "root:",
                           "a b:C",
                           "//",
                           "//h",
                           "//h/",
                           "//h/A",
                           "///root:A",
                           "//h h/root:A",
                           "A.",
                           "A.k",
                           "A.k=",
                           "A.=1",
                           "A.k=1,",
                           "A.,k=1",
                           "A.k=\"x",
                           "A.k=\"x\\",
                           "A.k=\"x\"y",
                           "A.k=\"\\n\"",
                           "A.k=x",
                           "A.k=1x",
                           "A.k=--1",
                           "A.k=0x",
                           "A.k=1.2.3",
                           "A.k=08",
                           "A.k=.",
                           "A.k=-",
                           "A.k=18446744073709551616",
                           "A.k=1 ",
                           " A",
                           "A.k k=1",
                           "A=",
                           "A=@x",
                           "A..k=1",
                           "1A.k=1",
                           "root/:A",
                           "A.k=e5",
                           "A.k=2b"}) {
    EXPECT_EQ(messageOf<MalformedObjectNameException>([&] { path.set(String(text)); }),
              std::string("malformed object name: ") + text);
  }
  EXPECT_EQ(path.toString(), "root:A.k=1");
}

TEST(CIMObjectPath, TheSmallestAndGreatestNumbersAreRead) {
  EXPECT_EQ(parsed("A.k=18446744073709551615").getKeyBindings()[0].getType(),
            CIMKeyBinding::NUMERIC);
  EXPECT_EQ(parsed("A.k=-9223372036854775808").getKeyBindings()[0].getType(),
            CIMKeyBinding::NUMERIC);
  EXPECT_EQ(messageOf<MalformedObjectNameException>([] { parsed("A.k=-9223372036854775809"); }),
            "malformed object name: A.k=-9223372036854775809");
}

TEST(CIMObjectPath, IdenticalIgnoresCaseOfNamesOnly) {
  const CIMObjectPath path = parsed("//Host/root:A.k=\"x\",n=16");
  EXPECT_TRUE(path.identical(parsed("//host/ROOT:a.K=\"x\",N=0x10")));
  EXPECT_TRUE(path == path);
  EXPECT_TRUE(path != parsed("//host/root:A.k=\"X\",n=16"));
  EXPECT_TRUE(path != parsed("//other/root:A.k=\"x\",n=16"));
  EXPECT_TRUE(path != parsed("//host/rood:A.k=\"x\",n=16"));
  EXPECT_TRUE(path != parsed("//host/root:B.k=\"x\",n=16"));
  EXPECT_TRUE(path != parsed("//host/root:A.k=\"x\""));
  EXPECT_TRUE(path != parsed("//host/root:A.k=\"x\",n=\"16\""));
  EXPECT_TRUE(CIMObjectPath() == CIMObjectPath());
}

TEST(CIMObjectPath, IdenticalPathsHaveOneHashCode) {
  EXPECT_EQ(parsed("//Host/root:A.k=\"x\",n=16").makeHashCode(),
            parsed("//host/ROOT:a.K=\"x\",N=0x10").makeHashCode());
  EXPECT_NE(parsed("root:A.k=\"x\"").makeHashCode(), parsed("root:A.k=\"y\"").makeHashCode());
  EXPECT_NE(parsed("root:A").makeHashCode(), parsed("root:B").makeHashCode());
}

TEST(CIMObjectPath, SortingLeavesTheCallersArrayAlone) {
  Array<CIMKeyBinding> keys(1, key("z", "1"));
  keys.append(key("A", "2"));
  const CIMObjectPath path(String(), CIMNamespaceName(), CIMName("A"), keys);
  EXPECT_EQ(path.getKeyBindings()[0].getName().getString(), "A");
  EXPECT_EQ(keys[0].getName().getString(), "z");
}

// Whatever a text says, it is a path that can be written and read again, or an error.
TEST(CIMObjectPath, DamagedTextsAreReadOrRefused) {
  const std::string whole =
      "//host:5988/root/"
      "cimv2:VEXOR_X.A=\"q\\\"x\\\\\",b=TRUE,C=-0x1F,d=\"root:B.k=\\\"x\\\"\",e=1.5e3";
  const std::string characters = "/:.=\",\\@[]0x+-eBTRUEa_ \xC3\xA9";
  std::mt19937 random(7);
  int refused = 0;
  int read = 0;
  for (int round = 0; round < 20000; ++round) {
    std::string text = whole;
    for (unsigned change = 0; change <= random() % 3; ++change) {
      const size_t at = random() % text.size();
      const char other = characters[random() % characters.size()];
      if (random() % 3 == 0) {
        text.erase(at, 1 + random() % 5);
      } else if (random() % 2 == 0) {
        text.insert(at, 1, other);
      } else {
        text[at] = other;
      }
    }
    try {
      const CIMObjectPath path{String(text.c_str())};
      EXPECT_TRUE(CIMObjectPath(path.toString()).identical(path)) << text;
      ++read;
    } catch (const Exception&) {
      ++refused;
    }
  }
  EXPECT_GT(read, 1000);
  EXPECT_GT(refused, 1000);
}

TEST(CIMObjectPath, DeeplyNestedReferencesAreReadInBoundedTime) {
  CIMObjectPath path = parsed("A.k=\"x\"");
  for (int depth = 0; depth < 12; ++depth) {
    path = CIMObjectPath(String(), CIMNamespaceName(), CIMName("A"),
                         Array<CIMKeyBinding>(1, CIMKeyBinding(CIMName("k"), CIMValue(path))));
  }
  EXPECT_TRUE(CIMObjectPath(path.toString()) == path);
}

}  // namespace

// The broker that the library gets: property lists, declared types, slots that are not there.
#include "providers/forwarding_broker.h"

#include <gtest/gtest.h>

#include <cstring>

#include "providers/type_differences.h"
#include "tests/providers/test_broker.h"
#include "tests/support/heap_ledger.h"

namespace {

using namespace provider_tests;
using test_support::HeapLedger;
using vexor::providers::convert;
using vexor::providers::ForwardingBroker;
using vexor::providers::type_differences_of;
using vexor::providers::TypeDifference;

constexpr const char* kKeys[] = {"Name", nullptr};

class Forwarding : public testing::Test {
 protected:
  Forwarding() {
    broker_.watch_lock_on_return(false);
    broker_.add_classes(
        "class VEXOR_Thing { [Key] string Name; sint32 Number; uint16 States[]; string Other;\n"
        "  uint16 PortNumber; uint16 EnabledState; uint16 RequestedState; uint16 Caption; };");
  }

  CMPIInstance* make(const ForwardingBroker& broker) {
    const CMPIBroker* face = broker.face();
    const auto* path = face->eft->newObjectPath(face, "root/cimv2", "VEXOR_Thing", nullptr);
    return face->eft->newInstance(face, path, nullptr);
  }
  static CMPIStatus set_text(const CMPIInstance* instance, const char* name, const char* text) {
    return instance->ft->setProperty(instance, name, reinterpret_cast<const CMPIValue*>(text),
                                     CMPI_chars);
  }
  static CMPIStatus set_sint32(const CMPIInstance* instance, const char* name, int32_t number) {
    CMPIValue value{};
    value.sint32 = number;
    return instance->ft->setProperty(instance, name, &value, CMPI_sint32);
  }
  CMPIStatus set_uint16s(const ForwardingBroker& broker, const CMPIInstance* instance,
                         const char* name, std::initializer_list<uint16_t> numbers) {
    const CMPIBroker* face = broker.face();
    CMPIArray* array =
        face->eft->newArray(face, static_cast<CMPICount>(numbers.size()), CMPI_uint16, nullptr);
    CMPICount index = 0;
    for (const uint16_t number : numbers) {
      CMPIValue element{};
      element.uint16 = number;
      array->ft->setElementAt(array, index++, &element, CMPI_uint16);
    }
    CMPIValue value{};
    value.array = array;
    return instance->ft->setProperty(instance, name, &value, CMPI_uint16A);
  }
  std::string text(CMPIInstance* made) const {
    return broker_.text(ForwardingBroker::real_instance(made));
  }

  TestBroker broker_;
};

TEST_F(Forwarding, WithoutAListEveryPropertyGoesThroughAsItIs) {
  const ForwardingBroker broker(broker_.face(), {.keys = kKeys});
  auto* made = make(broker);
  set_text(made, "Name", "one");
  set_sint32(made, "Number", -7);
  set_uint16s(broker, made, "States", {2, 3});
  EXPECT_EQ(text(made),
            "VEXOR_Thing {Name=\"one\", Number=sint32 -7, States={uint16 2, uint16 3}}");
}

TEST_F(Forwarding, PropertiesOutsideTheListDoNotReachTheBroker) {
  const char* list[] = {"number", nullptr};
  const ForwardingBroker broker(broker_.face(), {.keys = kKeys, .properties = list});
  auto* made = make(broker);
  set_text(made, "NAME", "one");
  set_sint32(made, "Number", 5);
  EXPECT_EQ(set_text(made, "Other", "dropped").rc, CMPI_RC_OK);
  EXPECT_EQ(text(made), "VEXOR_Thing {NAME=\"one\", Number=sint32 5}");
  EXPECT_EQ(broker_.properties_set(), 2);
}

TEST_F(Forwarding, AFilterThatTheLibrarySetsChangesNothing) {
  const ForwardingBroker broker(broker_.face(), {.keys = kKeys});
  auto* made = make(broker);
  const char* list[] = {"Number", nullptr};
  EXPECT_EQ(made->ft->setPropertyFilter(made, list, nullptr).rc, CMPI_RC_OK);
  set_text(made, "Other", "kept");
  EXPECT_EQ(text(made), "VEXOR_Thing {Other=\"kept\"}");
}

TEST_F(Forwarding, ValuesBecomeTheirDeclaredTypes) {
  static constexpr TypeDifference kDifferences[] = {
      {"VEXOR_Thing", "PortNumber", CMPI_uint16},
      {"VEXOR_Thing", "EnabledState", CMPI_uint16},
  };
  const ForwardingBroker broker(broker_.face(), {.keys = kKeys, .differences = kDifferences});
  auto* made = make(broker);
  EXPECT_EQ(set_sint32(made, "portnumber", 65535).rc, CMPI_RC_OK);
  EXPECT_EQ(set_uint16s(broker, made, "EnabledState", {5}).rc, CMPI_RC_OK);
  EXPECT_EQ(text(made), "VEXOR_Thing {portnumber=uint16 65535, EnabledState=uint16 5}");
}

TEST_F(Forwarding, ValuesThatDoNotFitTheirDeclaredTypeAreLeftOut) {
  static constexpr TypeDifference kDifferences[] = {
      {"VEXOR_Thing", "PortNumber", CMPI_uint16},
      {"VEXOR_Thing", "EnabledState", CMPI_uint16},
      {"VEXOR_Thing", "RequestedState", CMPI_uint16},
      {"VEXOR_Thing", "Caption", CMPI_uint16},
  };
  const ForwardingBroker broker(broker_.face(), {.keys = kKeys, .differences = kDifferences});
  auto* made = make(broker);
  EXPECT_EQ(set_sint32(made, "PortNumber", 0x01080000).rc, CMPI_RC_ERR_TYPE_MISMATCH);
  EXPECT_EQ(set_uint16s(broker, made, "EnabledState", {2, 3}).rc, CMPI_RC_ERR_TYPE_MISMATCH);
  EXPECT_EQ(set_uint16s(broker, made, "RequestedState", {}).rc, CMPI_RC_ERR_TYPE_MISMATCH);
  EXPECT_EQ(set_text(made, "Caption", "5").rc, CMPI_RC_ERR_TYPE_MISMATCH);
  EXPECT_EQ(text(made), "VEXOR_Thing {}");
  EXPECT_EQ(broker_.properties_set(), 0);
}

TEST_F(Forwarding, NumbersKeepTheirValueOrAreNotConverted) {
  CMPIValue from{}, to{};
  from.uint64 = 0xffffffffffffffff;
  EXPECT_FALSE(convert(from, CMPI_uint64, CMPI_sint64, to));
  EXPECT_TRUE(convert(from, CMPI_uint64, CMPI_uint64, to));
  EXPECT_EQ(to.uint64, 0xffffffffffffffff);
  from = {};
  from.sint8 = -128;
  EXPECT_TRUE(convert(from, CMPI_sint8, CMPI_sint64, to));
  EXPECT_EQ(to.sint64, -128);
  EXPECT_FALSE(convert(from, CMPI_sint8, CMPI_uint64, to));
  from = {};
  from.sint32 = -32768;
  EXPECT_TRUE(convert(from, CMPI_sint32, CMPI_sint16, to));
  EXPECT_EQ(to.sint16, -32768);
  from.sint32 = -32769;
  EXPECT_FALSE(convert(from, CMPI_sint32, CMPI_sint16, to));
  from.sint32 = 256;
  EXPECT_FALSE(convert(from, CMPI_sint32, CMPI_uint8, to));
  from.sint32 = 255;
  EXPECT_TRUE(convert(from, CMPI_sint32, CMPI_uint8, to));
  EXPECT_EQ(to.uint8, 255);
  from = {};
  from.sint64 = INT64_MIN;
  EXPECT_TRUE(convert(from, CMPI_sint64, CMPI_sint64, to));
  EXPECT_EQ(to.sint64, INT64_MIN);
  EXPECT_FALSE(convert(from, CMPI_sint64, CMPI_boolean, to));
}

TEST_F(Forwarding, ATruthValueStaysOne) {
  CMPIValue from{}, to{};
  from.boolean = 1;
  EXPECT_TRUE(convert(from, CMPI_boolean, CMPI_boolean, to));
  EXPECT_EQ(to.boolean, 1);
  EXPECT_FALSE(convert(from, CMPI_boolean, CMPI_uint16, to));
}

TEST_F(Forwarding, AnEmptyElementIsNotConverted) {
  const CMPIBroker* real = broker_.face();
  CMPIValue from{}, to{};
  from.array = real->eft->newArray(real, 1, CMPI_uint16, nullptr);
  EXPECT_FALSE(convert(from, CMPI_uint16A, CMPI_uint16, to));
  from.array = nullptr;
  EXPECT_FALSE(convert(from, CMPI_uint16A, CMPI_uint16, to));
}

TEST_F(Forwarding, OnlyTheNamedClassesHaveDifferences) {
  EXPECT_EQ(type_differences_of("VEXOR_Vsan").size(), 0u);
  ASSERT_EQ(type_differences_of("VEXOR_LogicalModule").size(), 3u);
  EXPECT_STREQ(type_differences_of("VEXOR_LogicalModule")[0].property, "EnabledState");
  ASSERT_EQ(type_differences_of("vexor_fcport").size(), 1u);
  EXPECT_EQ(type_differences_of("VEXOR_FCPort")[0].declared, CMPI_uint16);
}

TEST_F(Forwarding, FailuresOfTheBrokerComeBackAsNull) {
  const ForwardingBroker broker(broker_.face(), {.keys = kKeys});
  broker_.fail_instance(1);
  EXPECT_EQ(make(broker), nullptr);
  EXPECT_EQ(ForwardingBroker::real_instance(nullptr), nullptr);
  broker_.fail_path(1);
  const CMPIBroker* face = broker.face();
  EXPECT_EQ(face->eft->newObjectPath(face, "root/cimv2", "VEXOR_Thing", nullptr), nullptr);
}

TEST_F(Forwarding, InstancesMadeThroughItEndWithIt) {
  const HeapLedger ledger;
  {
    const ForwardingBroker broker(broker_.face(), {.keys = kKeys});
    auto* first = make(broker);
    auto* second = make(broker);
    set_text(first, "Name", "one");
    set_text(second, "Name", "two");
    const HeapLedger::Pause pause;
    EXPECT_EQ(text(first), "VEXOR_Thing {Name=\"one\"}");
    EXPECT_EQ(text(second), "VEXOR_Thing {Name=\"two\"}");
  }
  EXPECT_EQ(ledger.outstanding(), 0u);
}

TEST_F(Forwarding, WithoutMemoryThereIsNoInstance) {
  const ForwardingBroker broker(broker_.face(), {.keys = kKeys});
  HeapLedger ledger;
  ledger.fail_nth(1);
  EXPECT_EQ(make(broker), nullptr);
  EXPECT_TRUE(ledger.failure_was_hit());
}

}  // namespace

// What a class of the table can do beyond being listed: made, changed, deleted, asked to do
// something, found by keys of every type, associated with its own kind.
#include "providers/class.h"

#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include "providers/provider_objects.h"
#include "tests/providers/provider_fixture.h"

namespace {

using namespace provider_tests;
using vexor::providers::Arguments;
using vexor::providers::Class;
using vexor::providers::Failure;
using vexor::providers::NewValues;
using vexor::providers::ObjectName;
using vexor::providers::RecordClass;
using vexor::providers::Target;

// A lamp has a number, which is its key, and a colour; it stands beside the lamp of the next
// number.
struct Lamp {
  uint16_t number;
  std::string colour;
};

std::vector<Lamp> lamps;
int lists = 0;
int32_t queue_seen = 0;

CMPIObjectPath* lamp_path(const Target& to, uint16_t number) {
  CMPIObjectPath* path =
      to.broker->eft->newObjectPath(to.broker, to.name_space, to.class_name, nullptr);
  CMPIValue value{};
  value.uint16 = number;
  if (path != nullptr) path->ft->addKey(path, "Number", &value, CMPI_uint16);
  return path;
}

CMPIObjectPath* lamp_reference(const Target& to, const Lamp& lamp) {
  EXPECT_FALSE(lock_is_free()) << "a builder runs under the lock";
  return lamp_path(to, lamp.number);
}

CMPIInstance* lamp_instance(const Target& to, const Lamp& lamp) {
  EXPECT_FALSE(lock_is_free()) << "a builder runs under the lock";
  const CMPIObjectPath* path =
      to.broker->eft->newObjectPath(to.broker, to.name_space, to.class_name, nullptr);
  CMPIInstance* instance = to.broker->eft->newInstance(to.broker, path, nullptr);
  if (instance == nullptr) return nullptr;
  CMPIValue value{};
  value.uint16 = lamp.number;
  instance->ft->setProperty(instance, "Number", &value, CMPI_uint16);
  instance->ft->setProperty(instance, "Colour",
                            reinterpret_cast<const CMPIValue*>(lamp.colour.c_str()), CMPI_chars);
  return instance;
}

std::vector<Lamp> list_lamps(int32_t q) {
  EXPECT_FALSE(lock_is_free()) << "records are read under the lock";
  ++lists;
  queue_seen = q;
  return lamps;
}

std::vector<Lamp> lamp_by_number(int32_t, const ObjectName& name) {
  std::vector<Lamp> found;
  for (const Lamp& lamp : lamps)
    if (std::to_string(lamp.number) == name.text("Number")) found.push_back(lamp);
  return found;
}

Lamp create_lamp(int32_t, const NewValues& values) {
  std::string number, colour;
  if (!values.text("Number", number))
    throw Failure(CMPI_RC_ERR_INVALID_PARAMETER, "a lamp needs a number");
  values.text("Colour", colour);
  lamps.push_back({static_cast<uint16_t>(std::stoul(number)), colour});
  return lamps.back();
}

void modify_lamp(int32_t, const Lamp& lamp, const NewValues& values) {
  for (Lamp& each : lamps)
    if (each.number == lamp.number) values.text("Colour", each.colour);
}

void remove_lamp(int32_t, const Lamp& lamp) {
  std::erase_if(lamps, [&](const Lamp& each) { return each.number == lamp.number; });
}

uint32_t light(int32_t, const Lamp& lamp, const Arguments& arguments) {
  const CMPIData seconds = arguments.in->ft->getArg(arguments.in, "Seconds", nullptr);
  CMPIValue value{};
  value.uint16 = lamp.number;
  arguments.out->ft->addArg(arguments.out, "Lit", &value, CMPI_uint16);
  return seconds.value.uint32 + lamp.number;
}

constexpr RecordClass<Lamp>::Method kMethods[] = {{"Light", light}};

constexpr RecordClass<Lamp> kLamp{{
    .name = "VEXOR_Lamp",
    .keys = {"Number"},
    .list = list_lamps,
    .reference = lamp_reference,
    .instance = lamp_instance,
    .find = lamp_by_number,
    .create = create_lamp,
    .modify = modify_lamp,
    .remove = remove_lamp,
    .methods = kMethods,
}};

// A plain class: what is left out is done with the list.
constexpr RecordClass<Lamp> kPlainLamp{{
    .name = "VEXOR_PlainLamp",
    .keys = {"Number"},
    .list = list_lamps,
    .reference = lamp_reference,
    .instance = lamp_instance,
}};

CMPIObjectPath* next_lamp(const Target& to, const Lamp& lamp) {
  return lamp_path(to, static_cast<uint16_t>(lamp.number + 1));
}

constexpr RecordClass<Lamp> kBeside{{
    .name = "VEXOR_Beside",
    .keys = {"Left", "Right"},
    .list = list_lamps,
    .reference =
        [](const Target& to, const Lamp& lamp) {
          CMPIObjectPath* path = lamp_path(to, lamp.number);
          return path;
        },
    .instance = lamp_instance,
    .ends = {{
        {{.role = "Left", .class_name = "VEXOR_Lamp"}, lamp_reference, lamp_instance},
        {{.role = "Right", .class_name = "VEXOR_Lamp"}, next_lamp, lamp_instance},
    }},
}};

constexpr const Class* kTable[] = {&kLamp, &kPlainLamp, &kBeside};

class ProviderClass : public testing::Test {
 protected:
  ProviderClass() {
    mts_q = test_support::kQueue;
    vexor::providers::queue::join();
    broker_.add_classes(
        "class VEXOR_Lamp { [Key] uint16 Number; string Colour; };\n"
        "class VEXOR_PlainLamp : VEXOR_Lamp { };\n"
        "[Association] class VEXOR_Beside { [Key] VEXOR_Lamp REF Left; [Key] VEXOR_Lamp REF Right; "
        "};");
    lamps = {{1, "red"}, {2, "green"}};
    instances_ = vexor::providers::make_instance_mi(broker_.face(), nullptr, kTable);
    associations_ = vexor::providers::make_association_mi(broker_.face(), nullptr, kTable);
    methods_ = vexor::providers::make_method_mi(broker_.face(), nullptr, kTable);
  }
  ~ProviderClass() override {
    EXPECT_TRUE(lock_is_free());
    instances_->ft->cleanup(instances_, nullptr, 1);
    associations_->ft->cleanup(associations_, nullptr, 1);
    methods_->ft->cleanup(methods_, nullptr, 1);
  }

  CMPIObjectPath* lamp(uint64_t number, CMPIType type = CMPI_uint16,
                       const char* class_name = "VEXOR_Lamp") {
    CMPIObjectPath* path = broker_.path(class_name);
    CMPIValue value{};
    value.uint64 = number;
    path->ft->addKey(path, "Number", &value, type);
    return path;
  }
  CMPIInstance* values(int number, const char* colour) {
    CMPIInstance* instance = broker_.instance("VEXOR_Lamp");
    CMPIValue value{};
    value.uint16 = static_cast<uint16_t>(number);
    if (number > 0) instance->ft->setProperty(instance, "number", &value, CMPI_uint16);
    instance->ft->setProperty(instance, "Colour", reinterpret_cast<const CMPIValue*>(colour),
                              CMPI_chars);
    return instance;
  }
  template <class Operation>
  Outcome ask(Operation operation) {
    Outcome outcome;
    const CMPIStatus status = operation(broker_.result(outcome.returned));
    outcome.code = status.rc;
    outcome.message = broker_.text(status.msg);
    EXPECT_TRUE(lock_is_free());
    return outcome;
  }
  Outcome get(CMPIObjectPath* path) {
    return ask([&](auto* result) {
      return instances_->ft->getInstance(instances_, nullptr, result, path, nullptr);
    });
  }

  test_support::OsDouble system_;
  test_support::StdioCapture out_;
  TestBroker broker_;
  CMPIInstanceMI* instances_ = nullptr;
  CMPIAssociationMI* associations_ = nullptr;
  CMPIMethodMI* methods_ = nullptr;
};

TEST_F(ProviderClass, ItsFunctionsGetTheQueue) {
  queue_seen = 0;
  get(lamp(1, CMPI_uint16, "VEXOR_PlainLamp"));
  EXPECT_EQ(queue_seen, test_support::kQueue);
}

TEST_F(ProviderClass, NumberKeysMatchInAnyWidthAndAsText) {
  for (const CMPIType type : {CMPI_uint8, CMPI_uint16, CMPI_uint32, CMPI_uint64, CMPI_sint8,
                              CMPI_sint16, CMPI_sint32, CMPI_sint64})
    EXPECT_EQ(get(lamp(2, type)).returned.instances,
              (Texts{"VEXOR_Lamp {Number=uint16 2, Colour=\"green\"}"}))
        << type;
  EXPECT_EQ(get(broker_.path("VEXOR_Lamp", {{"Number", "2"}})).code, CMPI_RC_OK);
  EXPECT_EQ(get(lamp(3)).code, CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(get(lamp(1, CMPI_boolean)).code, CMPI_RC_ERR_NOT_FOUND);
}

TEST_F(ProviderClass, AKeyOfATypeThatKeysDoNotHaveIsRefused) {
  const Outcome outcome = get(lamp(2, CMPI_real64));
  EXPECT_EQ(outcome.code, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(outcome.message, "key \"Number\" has no value");
}

TEST_F(ProviderClass, FindsWithoutListing) {
  lists = 0;
  EXPECT_EQ(get(lamp(2)).code, CMPI_RC_OK);
  EXPECT_EQ(lists, 0);
}

TEST_F(ProviderClass, WithoutAFindItIsFoundInItsList) {
  lists = 0;
  EXPECT_EQ(get(lamp(2, CMPI_uint16, "VEXOR_PlainLamp")).returned.instances,
            (Texts{"VEXOR_PlainLamp {Number=uint16 2, Colour=\"green\"}"}));
  EXPECT_EQ(lists, 1);
}

TEST_F(ProviderClass, CreateReturnsThePathOfWhatWasMade) {
  const Outcome outcome = ask([&](auto* result) {
    return instances_->ft->createInstance(instances_, nullptr, result, broker_.path("VEXOR_Lamp"),
                                          values(7, "blue"));
  });
  EXPECT_EQ(outcome.code, CMPI_RC_OK) << outcome.message;
  EXPECT_EQ(outcome.returned.paths, (Texts{"root/cimv2:VEXOR_Lamp.Number=uint16 7"}));
  EXPECT_EQ(get(lamp(7)).returned.instances,
            (Texts{"VEXOR_Lamp {Number=uint16 7, Colour=\"blue\"}"}));
}

TEST_F(ProviderClass, AFailureOfTheClassReachesTheClientAndFreesTheLock) {
  const Outcome outcome = ask([&](auto* result) {
    return instances_->ft->createInstance(instances_, nullptr, result, broker_.path("VEXOR_Lamp"),
                                          values(0, "blue"));
  });
  EXPECT_EQ(outcome.code, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(outcome.message, "a lamp needs a number");
}

TEST_F(ProviderClass, ModifyChangesWhatIsInTheListOnly) {
  const auto modify = [&](const char** list) {
    return ask([&](auto* result) {
      return instances_->ft->modifyInstance(instances_, nullptr, result, lamp(2), values(2, "blue"),
                                            list);
    });
  };
  const char* other[] = {"Number", nullptr};
  EXPECT_EQ(modify(other).code, CMPI_RC_OK);
  EXPECT_EQ(lamps[1].colour, "green");
  const char* list[] = {"COLOUR", nullptr};
  EXPECT_EQ(modify(list).code, CMPI_RC_OK);
  EXPECT_EQ(lamps[1].colour, "blue");
  lamps[1].colour = "green";
  EXPECT_EQ(modify(nullptr).code, CMPI_RC_OK);
  EXPECT_EQ(lamps[1].colour, "blue");
}

TEST_F(ProviderClass, WhatDoesNotExistIsNeitherModifiedNorDeleted) {
  EXPECT_EQ(ask([&](auto* result) {
              return instances_->ft->modifyInstance(instances_, nullptr, result, lamp(9),
                                                    values(9, "blue"), nullptr);
            }).code,
            CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(ask([&](auto* result) {
              return instances_->ft->deleteInstance(instances_, nullptr, result, lamp(9));
            }).code,
            CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(lamps.size(), 2u);
}

TEST_F(ProviderClass, DeleteRemovesTheOneThatIsNamed) {
  EXPECT_EQ(ask([&](auto* result) {
              return instances_->ft->deleteInstance(instances_, nullptr, result, lamp(1));
            }).code,
            CMPI_RC_OK);
  ASSERT_EQ(lamps.size(), 1u);
  EXPECT_EQ(lamps[0].number, 2);
}

TEST_F(ProviderClass, AMethodGetsItsArgumentsAndReturnsItsValue) {
  CMPIArgs* in = broker_.arguments();
  CMPIArgs* out = broker_.arguments();
  CMPIValue seconds{};
  seconds.uint32 = 40;
  in->ft->addArg(in, "Seconds", &seconds, CMPI_uint32);
  const Outcome outcome = ask([&](auto* result) {
    return methods_->ft->invokeMethod(methods_, nullptr, result, lamp(2), "LIGHT", in, out);
  });
  EXPECT_EQ(outcome.code, CMPI_RC_OK) << outcome.message;
  EXPECT_EQ(outcome.returned.data, (Texts{"uint32 42"}));
  EXPECT_EQ(out->ft->getArg(out, "Lit", nullptr).value.uint16, 2);
}

TEST_F(ProviderClass, AMethodOfAnObjectThatDoesNotExistIsNotInvoked) {
  EXPECT_EQ(ask([&](auto* result) {
              return methods_->ft->invokeMethod(methods_, nullptr, result, lamp(9), "Light",
                                                broker_.arguments(), broker_.arguments());
            }).code,
            CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(ask([&](auto* result) {
              return methods_->ft->invokeMethod(methods_, nullptr, result, lamp(1), nullptr,
                                                broker_.arguments(), broker_.arguments());
            }).code,
            CMPI_RC_ERR_METHOD_NOT_FOUND);
}

TEST_F(ProviderClass, AnAssociationOfAClassWithItselfIsWalkedFromBothEnds) {
  lamps = {{1, "red"}, {2, "green"}, {3, "blue"}};
  const auto beside = [&](const char* role, const char* result_role) {
    return ask([&](auto* result) {
             return associations_->ft->associatorNames(associations_, nullptr, result, lamp(2),
                                                       "VEXOR_Beside", nullptr, role, result_role);
           })
        .returned.paths;
  };
  EXPECT_EQ(beside(nullptr, nullptr), (Texts{"root/cimv2:VEXOR_Lamp.Number=uint16 3",
                                             "root/cimv2:VEXOR_Lamp.Number=uint16 1"}));
  EXPECT_EQ(beside("Left", nullptr), (Texts{"root/cimv2:VEXOR_Lamp.Number=uint16 3"}));
  EXPECT_EQ(beside(nullptr, "left"), (Texts{"root/cimv2:VEXOR_Lamp.Number=uint16 1"}));
}

}  // namespace

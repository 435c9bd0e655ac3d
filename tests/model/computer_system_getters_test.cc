// Class ComputerSystem: each property of the own switch's computer-system instance.
#include <cim_utils/computer_system.h>
#include <gtest/gtest.h>

#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Common/String.h>

#include <cstring>
#include <string>

#include "tests/model/computer_system_records.h"
#include "tests/support/capture.h"
#include "tests/support/double_system.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;
using Pegasus::CIMName;
using Pegasus::CIMProperty;
using Pegasus::CIMValue;

namespace {

constexpr const char* kOwn = "2000000DEC0A1B3C";

// The record as snmp_get_sys_info leaves it: the selector and the answer from byte 4.
Bytes item_text(uint32_t selector, const char* text) {
  return Record(1032).host32(0, selector).text(4, text);
}

class ComputerSystemGetters : public testing::Test {
 protected:
  ComputerSystemGetters() { ProviderUtil::mts_q = kQueue; }
  ~ComputerSystemGetters() override { ProviderUtil::mts_q = -1; }

  using Getter = int (ComputerSystem::*)(CIMProperty&);

  CIMProperty get(Getter getter) {
    CIMProperty property(CIMName("Before"), CIMValue(Pegasus::Uint8(7)));
    ComputerSystem system;
    EXPECT_EQ((system.*getter)(property), 0);
    return property;
  }

  static std::string name_of(const CIMProperty& property) {
    return std::string(property.getName().getString().getCString());
  }

  // "Name string value", with the type's name and "[]" behind it for an array.
  static std::string text_of(const CIMProperty& property) {
    const CIMValue& value = property.getValue();
    const char* type = value.getType() == Pegasus::CIMTYPE_STRING   ? "string"
                       : value.getType() == Pegasus::CIMTYPE_UINT16 ? "uint16"
                       : value.getType() == Pegasus::CIMTYPE_SINT32 ? "sint32"
                                                                    : "other";
    return name_of(property) + " " + type + (value.isArray() ? "[] " : " ") +
           std::string(value.toString().getCString());
  }

  // The text of a property that shows an item.
  std::string shown(Getter getter, uint32_t selector, const char* text) {
    Script script;
    script.expect(get_system_info(selector)).gives(item_text(selector, text));
    return text_of(get(getter));
  }

  StdioCapture out_;
};

TEST_F(ComputerSystemGetters, CaptionAndDescriptionAreTheSystemsDescription) {
  EXPECT_EQ(shown(&ComputerSystem::getCaption, 3, "a switch"), "Caption string a switch");
  EXPECT_EQ(shown(&ComputerSystem::getDescription, 3, "a switch"), "Description string a switch");
}

TEST_F(ComputerSystemGetters, TheInstallDateIsTheUpTimeInSeconds) {
  Script script;
  script.expect(get_system_info(6)).gives(Record(1032).host32(0, 6).host32(4, 12399));
  EXPECT_EQ(text_of(get(&ComputerSystem::getInstallDate)), "InstallDate string 123 seconds");
}

TEST_F(ComputerSystemGetters, TheSystemNameIsTheElementNameAndTheName) {
  EXPECT_EQ(shown(&ComputerSystem::getElementName, 2, "sydney"), "ElementName string sydney");
  EXPECT_EQ(shown(&ComputerSystem::getSysName, 2, "sydney"), "Name string sydney");
}

TEST_F(ComputerSystemGetters, TheOwnersContactIsAlsoTheOwnersName) {
  EXPECT_EQ(shown(&ComputerSystem::getPrimaryOwnerName, 0, "ops, 1234"),
            "PrimaryOwnerName string ops, 1234");
  EXPECT_EQ(shown(&ComputerSystem::getPrimaryOwnerContact, 0, "ops, 1234"),
            "PrimaryOwnerContact string ops, 1234");
}

TEST_F(ComputerSystemGetters, TheNameIsTheSwitchWwn) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  EXPECT_EQ(text_of(get(&ComputerSystem::getName)), std::string("Name string ") + kOwn);
  EXPECT_EQ(out_.out(), "");
}

TEST_F(ComputerSystemGetters, WithoutTheSwitchWwnTheNameIsNaAndSaysSo) {
  Script script;
  script.expect(records::own_switch_wwn()).status(5);
  EXPECT_EQ(text_of(get(&ComputerSystem::getName)), "Name string N/A");
  EXPECT_EQ(out_.out(), "get name fail \n");
}

TEST_F(ComputerSystemGetters, TheIdentifyingNumberIsTheSwitchWwnOrNaWithoutAWord) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  script.expect(records::own_switch_wwn()).ok_without_reply();
  EXPECT_EQ(text_of(get(&ComputerSystem::getIdentifyNumber)),
            std::string("IdentifyingNumber string ") + kOwn);
  EXPECT_EQ(text_of(get(&ComputerSystem::getIdentifyNumber)), "IdentifyingNumber string N/A");
  EXPECT_EQ(out_.out(), "");
}

TEST_F(ComputerSystemGetters, FixedValuesNeedNoService) {
  const Script script;
  EXPECT_EQ(text_of(get(&ComputerSystem::getCreationClassName)),
            "CreationClassName string VEXOR_Switch");
  EXPECT_EQ(text_of(get(&ComputerSystem::getVendor)), "Vendor string VEXOR");
  EXPECT_EQ(text_of(get(&ComputerSystem::getVersion)), "Version string 1.0");
  EXPECT_EQ(text_of(get(&ComputerSystem::getStatus)), "Status string OK");
  EXPECT_EQ(text_of(get(&ComputerSystem::getNameFormat)), "NameFormat string WWN");
}

TEST_F(ComputerSystemGetters, StatusAndDedicationAreArraysOfOneCode) {
  const CIMProperty status = get(&ComputerSystem::getOperStatus);
  const CIMProperty dedicated = get(&ComputerSystem::getDedicated);
  for (const auto& [property, name, code] :
       {std::tuple{status, "OperationalStatus", 2}, std::tuple{dedicated, "Dedicated", 5}}) {
    EXPECT_EQ(name_of(property), name);
    Pegasus::Array<Pegasus::Uint16> codes;
    ASSERT_EQ(property.getValue().getType(), Pegasus::CIMTYPE_UINT16);
    ASSERT_TRUE(property.getValue().isArray());
    property.getValue().get(codes);
    ASSERT_EQ(codes.size(), 1u);
    EXPECT_EQ(codes[0], code);
  }
}

TEST_F(ComputerSystemGetters, PowerManagementCapabilitiesAreOneNumber) {
  EXPECT_EQ(text_of(get(&ComputerSystem::getPowerManagementCapabilities)),
            "PowerManagementCapabilities sint32 1");
}

TEST_F(ComputerSystemGetters, GettersWithNothingToTellLeaveThePropertyAlone) {
  const Script script;
  for (const Getter getter :
       {&ComputerSystem::getRoles, &ComputerSystem::getOtherIdentifyingInfo,
        &ComputerSystem::getIdentifyingDescriptions, &ComputerSystem::getResetCapability}) {
    const CIMProperty property = get(getter);
    EXPECT_EQ(name_of(property), "Before");
    Pegasus::Uint8 number = 0;
    property.getValue().get(number);
    EXPECT_EQ(number, 7);
  }
}

TEST_F(ComputerSystemGetters, AnItemThatIsNotAnsweredIsNotAvailable) {
  struct Shown {
    Getter getter;
    uint32_t selector;
    const char* text;
  };
  const Shown all[] = {
      {&ComputerSystem::getCaption, 3, "Caption string Not Available"},
      {&ComputerSystem::getDescription, 3, "Description string Not Available"},
      {&ComputerSystem::getInstallDate, 6, "InstallDate string Not Available"},
      {&ComputerSystem::getElementName, 2, "ElementName string Not Available"},
      {&ComputerSystem::getSysName, 2, "Name string Not Available"},
      {&ComputerSystem::getPrimaryOwnerName, 0, "PrimaryOwnerName string Not Available"},
      {&ComputerSystem::getPrimaryOwnerContact, 0, "PrimaryOwnerContact string Not Available"},
  };
  for (const Shown& property : all) {
    Script script;
    script.expect(get_system_info(property.selector)).fails(0x40490007);
    EXPECT_EQ(text_of(get(property.getter)), property.text);
  }
  EXPECT_EQ(out_.err().rfind("get sys info error: : ", 0), 0u) << out_.err();
}

TEST_F(ComputerSystemGetters, AnAttributeIsRenderedByItsSelector) {
  Script script;
  script.expect(get_system_info(1)).gives(item_text(1, "rack 4"));
  script.expect(get_system_info(5)).gives(item_text(5, "x"));
  char text[1040];
  ComputerSystem system;
  EXPECT_EQ(system.getAttribute(1, text), 0);
  EXPECT_STREQ(text, "rack 4");
  EXPECT_EQ(system.getAttribute(5, text), 0);
  EXPECT_STREQ(text, "Not Available");
}

TEST_F(ComputerSystemGetters, AnAttributesStatusIsTheServices) {
  Script script;
  script.expect(get_system_info(0)).fails(77);
  char text[1040];
  ComputerSystem system;
  EXPECT_EQ(system.getAttribute(0, text), 77);
  EXPECT_STREQ(text, "Not Available");
  EXPECT_EQ(system.getAttribute(0, nullptr), -1);
}

TEST_F(ComputerSystemGetters, TheLongestItemIsWholeInAPropertyAndCutInTheObjectsText) {
  const std::string longest(1024, 'd');
  EXPECT_EQ(shown(&ComputerSystem::getDescription, 3, longest.c_str()),
            "Description string " + longest);
  Script script;
  script.expect(get_system_info(2)).gives(item_text(2, longest.c_str()));
  ComputerSystem system;
  EXPECT_EQ(std::string(system.getElementName()), std::string(255, 'd'));
}

TEST_F(ComputerSystemGetters, TheWwnIsWrittenToTheCallersText) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  script.expect(records::own_switch_wwn()).replies(records::own_wwn()).cut_to(7);
  char text[17] = "untouched";
  ComputerSystem system;
  EXPECT_EQ(system.get_system_wwn(text), 0);
  EXPECT_STREQ(text, kOwn);
  std::strcpy(text, "untouched");
  EXPECT_EQ(system.get_system_wwn(text), -1);
  EXPECT_STREQ(text, "untouched");
  EXPECT_EQ(system.get_system_wwn(nullptr), -1);
}

TEST_F(ComputerSystemGetters, TheObjectsTextHoldsTheLastAnswer) {
  Script script;
  script.expect(records::own_switch_wwn()).replies(records::own_wwn());
  script.expect(get_system_info(2)).gives(item_text(2, "sydney"));
  script.expect(get_system_info(2)).fails(1);
  script.expect(records::own_switch_wwn()).status(1);
  ComputerSystem system;
  const char* text = system.getWWN();
  EXPECT_STREQ(text, kOwn);
  EXPECT_EQ(static_cast<const char*>(system.getElementName()), text);
  EXPECT_STREQ(text, "sydney");
  EXPECT_STREQ(system.getElementName(), "Not Available");
  EXPECT_STREQ(system.getWWN(), "N/A");
}

TEST_F(ComputerSystemGetters, EveryGetterAsksOnTheObjectsQueue) {
  Script script;
  script.expect(get_system_info(3)).q(31).gives(item_text(3, "a switch"));
  script.expect(records::own_switch_wwn()).q(31).replies(records::own_wwn());
  ComputerSystem system(31);
  CIMProperty property;
  EXPECT_EQ(system.getCaption(property), 0);
  EXPECT_EQ(system.getName(property), 0);
}

}  // namespace

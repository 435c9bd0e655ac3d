// Class ComputerSystem: the properties of the own switch's computer-system instance.
#include <Pegasus/Common/Array.h>
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Common/String.h>
#include <cim_utils/computer_system.h>
#include <cim_utils/formats.h>
#include <cim_utils/session.h>
#include <cim_utils/system.h>
#include <switch_platform/system.h>

#include <cstdio>
#include <cstring>

using Pegasus::Array;
using Pegasus::CIMName;
using Pegasus::CIMProperty;
using Pegasus::CIMValue;
using Pegasus::String;
using Pegasus::Uint16;

namespace {

constexpr int kOwnerContact = 0;
constexpr int kSystemName = 2;
constexpr int kDescription = 3;
constexpr int kUpTime = 6;

// Room for the longest item: 1,028 bytes of answer and an end, rounded up.
using ItemText = char[1040];

constexpr char kUnknownWwn[] = "N/A";

// Cut to the place that it is kept in.
char* keep(char (&place)[256], const char* text) {
  std::snprintf(place, sizeof place, "%s", text);
  return place;
}

int give(CIMProperty& property, const char* name, const CIMValue& value) {
  property = CIMProperty(CIMName(name), value);
  return 0;
}

int give_text(CIMProperty& property, const char* name, const char* text) {
  return give(property, name, CIMValue(String(text)));
}

int give_item(ComputerSystem& system, CIMProperty& property, const char* name, int selector) {
  ItemText text = {};
  system.getAttribute(selector, text);
  return give_text(property, name, text);
}

int give_codes(CIMProperty& property, const char* name, Uint16 code) {
  Array<Uint16> codes;
  codes.append(code);
  return give(property, name, CIMValue(codes));
}

}  // namespace

ComputerSystem::ComputerSystem(int queue) : queue_(queue) {}

int ComputerSystem::getAttribute(int selector, char* dst) {
  if (dst == nullptr) return -1;
  system_information_ item{};
  item.selector = static_cast<uint32_t>(selector);
  const int status = snmp_get_sys_info(queue_, &item);
  if (status != 0) {
    std::perror("get sys info error: ");
    std::strcpy(dst, "Not Available");
    return status;
  }
  system_cim_parse_sys_info(&item, selector, dst);
  return 0;
}

int ComputerSystem::get_system_wwn(char* dst) {
  wwn_ wwn{};
  if (dst == nullptr || system_cim_get_switch_wwn(queue_, &wwn) != 0) return -1;
  cim_sprintf_wwn(dst, &wwn);
  return 0;
}

char* ComputerSystem::getName() {
  char wwn[17];
  return keep(text_, get_system_wwn(wwn) == 0 ? wwn : kUnknownWwn);
}

char* ComputerSystem::getWWN() {
  return getName();
}

char* ComputerSystem::getElementName() {
  ItemText text = {};
  getAttribute(kSystemName, text);
  return keep(text_, text);
}

int ComputerSystem::getCaption(CIMProperty& property) {
  return give_item(*this, property, "Caption", kDescription);
}

int ComputerSystem::getDescription(CIMProperty& property) {
  return give_item(*this, property, "Description", kDescription);
}

int ComputerSystem::getInstallDate(CIMProperty& property) {
  return give_item(*this, property, "InstallDate", kUpTime);
}

int ComputerSystem::getCreationClassName(CIMProperty& property) {
  return give_text(property, "CreationClassName", "VEXOR_Switch");
}

int ComputerSystem::getName(CIMProperty& property) {
  char wwn[17];
  if (get_system_wwn(wwn) == 0) return give_text(property, "Name", wwn);
  std::printf("get name fail \n");
  return give_text(property, "Name", kUnknownWwn);
}

int ComputerSystem::getElementName(CIMProperty& property) {
  return give_item(*this, property, "ElementName", kSystemName);
}

int ComputerSystem::getSysName(CIMProperty& property) {
  return give_item(*this, property, "Name", kSystemName);
}

int ComputerSystem::getVendor(CIMProperty& property) {
  return give_text(property, "Vendor", "VEXOR");
}

int ComputerSystem::getVersion(CIMProperty& property) {
  return give_text(property, "Version", "1.0");
}

int ComputerSystem::getIdentifyNumber(CIMProperty& property) {
  return give_text(property, "IdentifyingNumber", getName());
}

int ComputerSystem::getOperStatus(CIMProperty& property) {
  return give_codes(property, "OperationalStatus", 2);
}

int ComputerSystem::getStatus(CIMProperty& property) {
  return give_text(property, "Status", "OK");
}

int ComputerSystem::getNameFormat(CIMProperty& property) {
  return give_text(property, "NameFormat", "WWN");
}

int ComputerSystem::getPrimaryOwnerName(CIMProperty& property) {
  return give_item(*this, property, "PrimaryOwnerName", kOwnerContact);
}

int ComputerSystem::getPrimaryOwnerContact(CIMProperty& property) {
  return give_item(*this, property, "PrimaryOwnerContact", kOwnerContact);
}

int ComputerSystem::getDedicated(CIMProperty& property) {
  return give_codes(property, "Dedicated", 5);
}

int ComputerSystem::getPowerManagementCapabilities(CIMProperty& property) {
  return give(property, "PowerManagementCapabilities", CIMValue(Pegasus::Sint32(1)));
}

int ComputerSystem::getRoles(CIMProperty&) {
  return 0;
}

int ComputerSystem::getOtherIdentifyingInfo(CIMProperty&) {
  return 0;
}

int ComputerSystem::getIdentifyingDescriptions(CIMProperty&) {
  return 0;
}

int ComputerSystem::getResetCapability(CIMProperty&) {
  return 0;
}

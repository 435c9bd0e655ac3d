// The Pegasus face: class ComputerSystem, one getter for each property of the own switch's
// computer-system instance. A provider calls the getters that it wants and adds the properties to
// its instance.
//
// Conventions:
// - Services are asked on the queue handle that the object was made with.
// - Texts returned are in a buffer of the object, overwritten by the next call that returns one,
//   and cut to its size.
// - A property getter makes the property anew, whatever was in it, and returns 0. The four at the
//   end have nothing to tell: they leave the property as it was.
// - When memory runs out std::bad_alloc is the caller's.
#pragma once

#include <Pegasus/Common/CIMProperty.h>
#include <cim_utils/export.h>
#include <cim_utils/provider_util.h>

class CIM_UTILS_EXPORT ComputerSystem {
 public:
  explicit ComputerSystem(int queue = ProviderUtil::mts_q);

  // Asks the system-information service for an item (0 owner contact, 2 system name, 3 description,
  // 6 up-time) and renders it to dst, which has room for 1,029 bytes; "Not Available" when it is
  // not answered, and a line on standard error. Result: 0, -1 for a null dst, or the service's
  // status.
  int getAttribute(int selector, char* dst);

  // Writes the switch WWN, 16 upper-case hexadecimal digits, to dst (17 bytes), which stays
  // untouched when the switch identity service does not tell it. Result: 0 or -1.
  int get_system_wwn(char* dst);

  // The switch WWN as text; "N/A" when the switch identity service does not tell it.
  char* getName();
  char* getWWN();

  // The system name; "Not Available" when the system-information service does not tell it.
  char* getElementName();

  // The description of the system.
  int getCaption(Pegasus::CIMProperty& property);
  int getDescription(Pegasus::CIMProperty& property);
  // The time since the system's start, in seconds.
  int getInstallDate(Pegasus::CIMProperty& property);
  int getCreationClassName(Pegasus::CIMProperty& property);
  // The switch WWN; "N/A" and a line on standard output when it is not known.
  int getName(Pegasus::CIMProperty& property);
  // The system name, as property "ElementName" and as property "Name".
  int getElementName(Pegasus::CIMProperty& property);
  int getSysName(Pegasus::CIMProperty& property);
  int getVendor(Pegasus::CIMProperty& property);
  int getVersion(Pegasus::CIMProperty& property);
  // The switch WWN; "N/A" when it is not known.
  int getIdentifyNumber(Pegasus::CIMProperty& property);
  int getOperStatus(Pegasus::CIMProperty& property);
  int getStatus(Pegasus::CIMProperty& property);
  int getNameFormat(Pegasus::CIMProperty& property);
  // The owner's contact, deliberately in both: the system knows no owner's name.
  int getPrimaryOwnerName(Pegasus::CIMProperty& property);
  int getPrimaryOwnerContact(Pegasus::CIMProperty& property);
  int getDedicated(Pegasus::CIMProperty& property);
  // One number, deliberately, although the CIM property is an array.
  int getPowerManagementCapabilities(Pegasus::CIMProperty& property);

  int getRoles(Pegasus::CIMProperty& property);
  int getOtherIdentifyingInfo(Pegasus::CIMProperty& property);
  int getIdentifyingDescriptions(Pegasus::CIMProperty& property);
  int getResetCapability(Pegasus::CIMProperty& property);

 private:
  // The handle is the first member: providers rely on its place.
  int queue_;
  char text_[256] = {};
};

// The properties whose type, as the library writes it, is not the type that DMTF declares for them
// and that our classes keep: all that there are, each deliberate. Providers convert those of the
// builders.
#pragma once

namespace types {

enum class Writer {
  builders,  // of both faces
  getters,   // of class ComputerSystem
};

struct Difference {
  const char* cls;
  const char* property;
  const char* written;   // where it is not the declared one
  const char* declared;  // "[]" behind it for an array
  Writer writer;
};

inline constexpr Difference kDifferences[] = {
    // "N seconds", which is no datetime.
    {"VEXOR_ComputerSystem", "InstallDate", "string", "datetime", Writer::getters},
    // The number 1, which is no array.
    {"VEXOR_ComputerSystem", "PowerManagementCapabilities", "sint32", "uint16[]", Writer::getters},
    {"VEXOR_PhysicalComputerSystem", "InstallDate", "string", "datetime", Writer::getters},
    {"VEXOR_PhysicalComputerSystem", "PowerManagementCapabilities", "sint32", "uint16[]",
     Writer::getters},
    {"VEXOR_Switch", "InstallDate", "string", "datetime", Writer::getters},
    {"VEXOR_Switch", "PowerManagementCapabilities", "sint32", "uint16[]", Writer::getters},
    // The interface index of a port without a number; a number is written as declared.
    {"VEXOR_FCPort", "PortNumber", "sint32", "uint16", Writer::builders},
    {"VEXOR_EthernetPort", "PortNumber", "sint32", "uint16", Writer::builders},
    // Arrays of one element.
    {"VEXOR_LogicalModule", "EnabledState", "uint16[]", "uint16", Writer::builders},
    {"VEXOR_LogicalModule", "RequestedState", "uint16[]", "uint16", Writer::builders},
    {"VEXOR_LogicalModule", "EnabledDefault", "uint16[]", "uint16", Writer::builders},
};

}  // namespace types

// The switch, its services and the class definitions that the rows of builders are called on.
#pragma once

#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMQualifier.h>
#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Provider/vexor_class_source.h>
#include <cim_utils/provider_util.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "tests/model/builder_content.h"
#include "tests/model/builder_rows.h"
#include "tests/support/capture.h"
#include "tests/support/os_double.h"

namespace builders {

// What the classes declare that the Pegasus face has builders of.
inline constexpr const char* kDeclared =
    "Active ActiveFC4Types ActiveMaximumTransmissionUnit AddressErrors Antecedent "
    "BufferCreditNotProvided BufferCreditNotReceived BytesReceived BytesTransmitted Caption "
    "Class2FBSY Class2FRJT Class2PBSY Class2PRJT Class3FramesDiscarded Collection CollectionAlias "
    "ConnectivityMemberID ConnectivityMemberType CRCErrors CreationClassName Dedicated "
    "defaultZoningState DelimiterErrors Dependent Description DeviceID DumpedFrames ElementName "
    "EnabledDefault EnabledState EncodingDisparityErrors ErrorFrames FramesTooLong FramesTooShort "
    "GroupComponent IdentifyingDescriptions IdentifyingNumber InstanceID InvalidTransmissionWords "
    "IPAddress LinkFailures LinkResetsReceived LinkResetsTransmitted LinkTechnology LIPCount "
    "LoadBalancingType LossOfSignalCounter LossOfSyncCounter ManagedElement Manufacturer "
    "MaxNumZone MaxNumZoneAliases MaxNumZoneMembers MaxNumZoneSets MaxNumZonesPerZoneSet MaxSpeed "
    "Member Model ModuleNumber MulticastFramesReceived MulticastFramesTransmitted Name NameFormat "
    "NetworkAddresses NOSCount OperationalStatus OtherDedicatedDescriptions OtherIdentifyingInfo "
    "PacketsReceived PacketsTransmitted PartComponent PartNumber PeerPortWWN PermanentAddress "
    "PortAvailability PortNumber PortType PrimarySwitch PrimitiveSeqProtocolErrCount "
    "ProtocolIFType ProtocolType ReadOnly RequestedSessionState RequestedState RXClass2Frames "
    "RXClass3Frames SameElement SerialNumber SessionState SettingData Speed Stats Status "
    "SupportedConnectivityMemberTypes SupportedCOS SupportedFC4Types "
    "SupportedMaximumTransmissionUnit SystemCreationClassName SystemElement SystemName Tag "
    "TXClass2Frames TXClass3Frames Vendor Version VsanId VsanName ZoneNameFormat ZoneNameMaxLen "
    "ZoneType ";

// Gives every class that is asked for the same definition, with all that any of them declares, so
// that no property is dropped. (What each class declares is compared elsewhere.) Few blocks are
// live for it: a sweep looks through them at the end of each round.
class AnyClass {
 public:
  AnyClass() { Pegasus::installClassSource(std::make_shared<Source>()); }
  ~AnyClass() { Pegasus::uninstallClassSource(); }
  AnyClass(const AnyClass&) = delete;
  AnyClass& operator=(const AnyClass&) = delete;

 private:
  struct Source : Pegasus::ClassSource {
    Source() {
      using Pegasus::CIMName;
      using Pegasus::CIMQualifier;
      using Pegasus::CIMValue;
      definition.addQualifier(CIMQualifier(CIMName("Version"), CIMValue(Pegasus::String("1.0"))));
      std::istringstream names(kDeclared);
      for (std::string name; names >> name;) {
        Pegasus::CIMProperty property(CIMName(name.c_str()),
                                      CIMValue(Pegasus::CIMTYPE_STRING, false));
        property.addQualifier(CIMQualifier(CIMName("Key"), CIMValue(Pegasus::Boolean(true))));
        definition.addProperty(property);
      }
    }
    Pegasus::CIMClass getClass(const Pegasus::CIMNamespaceName&, const Pegasus::CIMName&) override {
      const test_support::HeapLedger::Pause pause;  // what the object manager does is not counted
      return definition;
    }
    Pegasus::CIMClass definition{Pegasus::CIMName("VEXOR_AnyClass")};
  };
};

class BuilderPlatform {
 public:
  // The queues of the two faces, so that asking on the wrong one shows. One that is not bound is
  // -1.
  BuilderPlatform(int32_t cmpi_queue, int32_t pegasus_queue) {
    records::know_version();
    mts_q = cmpi_queue;
    ProviderUtil::mts_q = pegasus_queue;
    system_.host_name(kCmpiHost).address(kCmpiHost, 10, 0, 0, 1);
  }
  ~BuilderPlatform() {
    mts_q = -1;
    ProviderUtil::mts_q = -1;
  }
  BuilderPlatform(const BuilderPlatform&) = delete;
  BuilderPlatform& operator=(const BuilderPlatform&) = delete;

 private:
  test_support::OsDouble system_;
  AnyClass classes_;
  test_support::StdioCapture out_;
  test_support::Responder services_{[](const test_support::Request& request) {
    EXPECT_EQ(request.q, test_support::kQueue);
    return answer(request);
  }};
};

// The two faces: what a row makes there, as text. Each keeps the services' lines of a row in a
// script of its own.
inline constexpr int32_t kUnbound = -1;
inline constexpr int32_t kOtherFacesQueue = 9;

inline std::string text_of(const test_support::RecordingBroker& broker, const CmpiObject& made) {
  if (made.path != nullptr) return to_text(content_of(broker, made.path));
  if (made.instance != nullptr) return to_text(content_of(broker, made.instance));
  return "nothing";
}

// What an object or an instance is, without its path.
inline Instance instance_of(const PegasusObject& made) {
  if (const auto* object = std::get_if<Pegasus::CIMObject>(&made))
    return content_of(Pegasus::CIMInstance(*object));
  return content_of(std::get<Pegasus::CIMInstance>(made));
}

inline Path path_of(const PegasusObject& made) {
  if (const auto* object = std::get_if<Pegasus::CIMObject>(&made))
    return content_of(object->getPath());
  if (const auto* instance = std::get_if<Pegasus::CIMInstance>(&made))
    return content_of(instance->getPath());
  return content_of(std::get<Pegasus::CIMObjectPath>(made));
}

inline bool is_instance(const PegasusObject& made) {
  return std::holds_alternative<Pegasus::CIMInstance>(made) ||
         std::holds_alternative<Pegasus::CIMObject>(made);
}

inline std::string text_of(const PegasusObject& made) {
  if (is_instance(made)) return to_text(instance_of(made)) + to_text(path_of(made));
  if (std::holds_alternative<Pegasus::CIMObjectPath>(made)) return to_text(path_of(made));
  if (const auto* property = std::get_if<Pegasus::CIMProperty>(&made))
    return to_text(content_of(*property));
  if (const auto* numbers = std::get_if<Pegasus::Array<Pegasus::Uint16>>(&made))
    return "numbers " + std::to_string(numbers->size()) + "\n";
  return "nothing";
}

// A row's object where every service answers, every line of its script used.
inline std::string whole(const CmpiRow& row) {
  test_support::Script script;
  row.lines(script, mts_q);
  test_support::RecordingBroker broker;
  broker.write_down(false);
  const CmpiObject made = row.make(broker);
  return text_of(broker, made);
}
inline std::string whole(const PegasusRow& row) {
  test_support::Script script;
  row.lines(script, mts_q);
  return text_of(row.make());
}

inline const char* name_of_area(Area area) {
  constexpr const char* kNames[] = {"switches", "ports",        "zoning",
                                    "hardware", "connectivity", "others"};
  return kNames[static_cast<size_t>(area)];
}

inline constexpr Area kAreas[] = {Area::switches, Area::ports,        Area::zoning,
                                  Area::hardware, Area::connectivity, Area::others};

}  // namespace builders

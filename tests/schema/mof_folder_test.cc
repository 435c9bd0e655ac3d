// The class definitions of mof/ themselves.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "schema/repository.h"

namespace cim::schema {
namespace {

constexpr const char* kFolder = CIM_SOURCE_DIR "/mof/";

std::vector<std::string> errors_of(Repository& repository, const std::string& file) {
  std::vector<std::string> errors;
  for (const Diagnostic& error : repository.add_file(kFolder + file)) {
    errors.push_back(error.text());
  }
  return errors;
}

class MofFolder : public testing::Test {
 protected:
  MofFolder() { EXPECT_EQ(errors_of(agent, "vexor.mof"), std::vector<std::string>()); }

  /// "Name string key, VsanId uint16, ..." for the properties of a class that are asked for.
  std::string property_list(const Repository& repository, const char* name,
                            const std::set<std::string>& wanted) {
    std::string text;
    for (const Property* property : repository.properties(*repository.find(name))) {
      if (!wanted.contains(property->name)) continue;
      text += text.empty() ? "" : ", ";
      text += property->name + " ";
      text += property->is_reference() ? property->reference_class : type_name(property->type);
      if (property->is_array) text += "[]";
      if (property->is_key()) text += " key";
    }
    return text;
  }

  Repository agent;
};

TEST_F(MofFolder, Every_file_reads_without_errors_on_its_own) {
  for (const auto& entry : std::filesystem::directory_iterator(kFolder)) {
    if (entry.path().extension() != ".mof") continue;
    Repository repository;
    EXPECT_EQ(errors_of(repository, entry.path().filename()), std::vector<std::string>());
  }
}

TEST_F(MofFolder, Has_the_fabric_and_VSAN_classes) {
  for (const char* name : {"VEXOR_AdminDomain", "VEXOR_Vsan", "VEXOR_ContainedDomain"}) {
    ASSERT_NE(agent.find(name), nullptr) << name;
    EXPECT_FALSE(agent.find(name)->is_abstract) << name;
  }
  EXPECT_TRUE(agent.is_a("VEXOR_Vsan", "CIM_AdminDomain"));
  EXPECT_TRUE(agent.is_a("VEXOR_AdminDomain", "CIM_AdminDomain"));
  EXPECT_TRUE(agent.is_a("VEXOR_ContainedDomain", "CIM_Component"));
  EXPECT_TRUE(agent.find("VEXOR_ContainedDomain")->is_association);
}

TEST_F(MofFolder, Declares_the_properties_of_the_fabric) {
  EXPECT_EQ(property_list(agent, "VEXOR_AdminDomain",
                          {"Name", "CreationClassName", "NameFormat", "ElementName", "Status"}),
            "ElementName string, Name string key, Status string, CreationClassName string key, "
            "NameFormat string");
}

TEST_F(MofFolder, Declares_the_properties_of_a_VSAN) {
  EXPECT_EQ(property_list(agent, "VEXOR_Vsan",
                          {"Name", "CreationClassName", "NameFormat", "ElementName", "VsanId",
                           "Status", "LoadBalancingType"}),
            "ElementName string, Name string key, Status string, CreationClassName string key, "
            "NameFormat string, VsanId uint16, LoadBalancingType string");
}

TEST_F(MofFolder, Ties_a_VSAN_to_its_fabric) {
  EXPECT_EQ(property_list(agent, "VEXOR_ContainedDomain", {"GroupComponent", "PartComponent"}),
            "GroupComponent VEXOR_AdminDomain key, PartComponent VEXOR_Vsan key");
}

TEST_F(MofFolder, Keeps_the_lengths_of_inherited_properties) {
  const Class& vsan = *agent.find("VEXOR_Vsan");
  const auto max_length = [&](const char* name) {
    const Qualifier* found = find_qualifier(agent.property(vsan, name)->qualifiers, "MaxLen");
    return found == nullptr ? "none" : to_mof(found->value);
  };
  EXPECT_EQ(max_length("Name"), "256");
  EXPECT_EQ(max_length("CreationClassName"), "256");
  EXPECT_EQ(max_length("NameFormat"), "64");
  EXPECT_EQ(max_length("Status"), "10");
  EXPECT_EQ(max_length("Caption"), "64");
}

TEST_F(MofFolder, Gives_a_VSAN_the_method_that_changes_its_state) {
  const Method* method = agent.method(*agent.find("VEXOR_Vsan"), "RequestStateChange");
  ASSERT_NE(method, nullptr);
  EXPECT_EQ(method->return_type, Type::uint32);
  ASSERT_EQ(method->parameters.size(), 3U);
  const Parameter& state = method->parameters[0];
  EXPECT_EQ(state.name, "RequestedState");
  EXPECT_EQ(state.type, Type::uint16);
  EXPECT_TRUE(state.is_in());
  EXPECT_FALSE(state.is_out());
  const Parameter& job = method->parameters[1];
  EXPECT_EQ(job.name, "Job");
  EXPECT_EQ(job.reference_class, "CIM_ConcreteJob");
  EXPECT_FALSE(job.is_in());
  EXPECT_TRUE(job.is_out());
  const Parameter& timeout = method->parameters[2];
  EXPECT_EQ(timeout.name, "TimeoutPeriod");
  EXPECT_EQ(timeout.type, Type::datetime);
}

TEST_F(MofFolder, Has_the_superclasses_of_a_connectivity_collection) {
  EXPECT_EQ(property_list(agent, "CIM_ConnectivityCollection", {"InstanceID"}),
            "InstanceID string key");
}

TEST_F(MofFolder, Pairs_every_value_with_its_name) {
  Repository all;
  ASSERT_EQ(errors_of(all, "vexor_switch_classes.mof"), std::vector<std::string>());
  const auto check = [](const std::vector<Qualifier>& qualifiers, const std::string& where) {
    const Qualifier* map = find_qualifier(qualifiers, "ValueMap");
    const Qualifier* values = find_qualifier(qualifiers, "Values");
    if (values == nullptr) return;
    ASSERT_NE(map, nullptr) << where;
    EXPECT_EQ(map->value.elements().size(), values->value.elements().size()) << where;
  };
  for (const Class* cls : all.all()) {
    for (const Property& property : cls->properties) {
      check(property.qualifiers, cls->name + "." + property.name);
    }
    for (const Method& method : cls->methods) {
      check(method.qualifiers, cls->name + "." + method.name);
      for (const Parameter& parameter : method.parameters) {
        check(parameter.qualifiers, cls->name + "." + method.name + "." + parameter.name);
      }
    }
  }
}

TEST_F(MofFolder, Prepares_the_switch_classes) {
  Repository all;
  ASSERT_EQ(errors_of(all, "vexor_switch_classes.mof"), std::vector<std::string>());
  EXPECT_TRUE(all.is_a("VEXOR_PhysicalComputerSystem", "VEXOR_ComputerSystem"));
  EXPECT_TRUE(all.is_a("VEXOR_LogicalComputerSystem", "CIM_ComputerSystem"));
  EXPECT_EQ(property_list(all, "VEXOR_ComputerSystem",
                          {"Name",
                           "CreationClassName",
                           "PermanentAddress",
                           "NameFormat",
                           "ElementName",
                           "PrimarySwitch",
                           "IPAddress",
                           "EnabledState",
                           "OtherIdentifyingInfo",
                           "IdentifyingDescriptions",
                           "OperationalStatus",
                           "Dedicated",
                           "OtherDedicatedDescriptions",
                           "Caption",
                           "Description",
                           "Vendor",
                           "InstallDate",
                           "Version",
                           "IdentifyingNumber",
                           "Status",
                           "PrimaryOwnerName",
                           "PrimaryOwnerContact",
                           "PowerManagementCapabilities"}),
            "Caption string, Description string, ElementName string, InstallDate datetime, "
            "Name string key, OperationalStatus uint16[], Status string, EnabledState uint16, "
            "CreationClassName string key, NameFormat string, PrimaryOwnerName string, "
            "PrimaryOwnerContact string, OtherIdentifyingInfo string[], "
            "IdentifyingDescriptions string[], Dedicated uint16[], "
            "OtherDedicatedDescriptions string[], PowerManagementCapabilities uint16[], "
            "PermanentAddress string, PrimarySwitch boolean, IPAddress string, Vendor string, "
            "Version string, IdentifyingNumber string");
  EXPECT_EQ(property_list(all, "VEXOR_Component", {"GroupComponent", "PartComponent"}),
            "GroupComponent CIM_ManagedElement key, PartComponent CIM_ManagedElement key");
  EXPECT_EQ(
      property_list(all, "VEXOR_FCSwitchCapabilities",
                    {"InstanceID", "ElementName", "ElementNameEditSupported", "MaxElementNameLen",
                     "RequestedStatesSupported", "DomainIDLockedSupported", "DomainIDConfigureable",
                     "MinDomainID", "MaxDomainID", "PrincipalPrioritiesSupported"}),
      "InstanceID string key, ElementName string, ElementNameEditSupported boolean, "
      "MaxElementNameLen uint16, RequestedStatesSupported uint16[], "
      "DomainIDLockedSupported boolean, DomainIDConfigureable boolean, MinDomainID uint8, "
      "MaxDomainID uint8, PrincipalPrioritiesSupported uint16[]");
  EXPECT_EQ(property_list(all, "VEXOR_FCSwitchSettings",
                          {"InstanceID", "ElementName", "PreferredDomainID", "DomainIDLocked",
                           "PrincipalPriority"}),
            "InstanceID string key, ElementName string, PreferredDomainID uint8, "
            "DomainIDLocked boolean, PrincipalPriority uint16");
}

// The DMTF's schema gives the inherited property a default, which an object manager may fill in
// where a client sends nothing.
TEST_F(MofFolder, Declares_the_priority_of_the_switch_without_a_default) {
  const Class* cls = agent.find("VEXOR_FCSwitchSettings");
  ASSERT_NE(cls, nullptr);
  const Property* priority = agent.property(*cls, "PrincipalPriority");
  ASSERT_NE(priority, nullptr);
  EXPECT_EQ(priority->declaring_class, "VEXOR_FCSwitchSettings");
  EXPECT_TRUE(priority->default_value.is_null());
}

TEST_F(MofFolder, Has_the_port_classes) {
  const struct {
    const char* name;
    const char* superclass;
  } classes[] = {{"VEXOR_FCPort", "CIM_FCPort"},
                 {"VEXOR_EthernetPort", "CIM_EthernetPort"},
                 {"VEXOR_FCPortStatistics", "CIM_FCPortStatistics"},
                 {"VEXOR_FCPortStatisticalData", "CIM_ElementStatisticalData"},
                 {"VEXOR_ProtocolEndPoint", "CIM_ProtocolEndpoint"},
                 {"VEXOR_LogicalPortGroup", "CIM_LogicalPortGroup"},
                 {"VEXOR_FCPortCapabilities", "CIM_FCPortCapabilities"},
                 {"VEXOR_FCPortSettings", "CIM_LogicalPortSettings"}};
  for (const auto& c : classes) {
    ASSERT_NE(agent.find(c.name), nullptr) << c.name;
    EXPECT_FALSE(agent.find(c.name)->is_abstract) << c.name;
    EXPECT_TRUE(agent.is_a(c.name, c.superclass)) << c.name;
  }
  EXPECT_TRUE(agent.is_a("CIM_FCPort", "CIM_LogicalDevice"));
  EXPECT_TRUE(agent.is_a("CIM_EthernetPort", "CIM_NetworkPort"));
}

TEST_F(MofFolder, Declares_the_properties_of_an_FC_port) {
  EXPECT_EQ(property_list(agent, "VEXOR_FCPort",
                          {"DeviceID",
                           "SystemName",
                           "SystemCreationClassName",
                           "CreationClassName",
                           "ElementName",
                           "OperationalStatus",
                           "EnabledDefault",
                           "EnabledState",
                           "PermanentAddress",
                           "VsanId",
                           "VsanName",
                           "PeerPortWWN",
                           "IdentifyingDescriptions",
                           "OtherIdentifyingInfo",
                           "NetworkAddresses",
                           "PortNumber",
                           "PortType",
                           "Speed",
                           "MaxSpeed",
                           "LinkTechnology",
                           "SupportedMaximumTransmissionUnit",
                           "ActiveMaximumTransmissionUnit",
                           "SupportedCOS",
                           "SupportedFC4Types",
                           "ActiveFC4Types",
                           "PortAvailability"}),
            "ElementName string, OperationalStatus uint16[], EnabledState uint16, "
            "EnabledDefault uint16, SystemCreationClassName string key, SystemName string key, "
            "CreationClassName string key, DeviceID string key, OtherIdentifyingInfo string[], "
            "IdentifyingDescriptions string[], Speed uint64, MaxSpeed uint64, PortType uint16, "
            "PortNumber uint16, LinkTechnology uint16, PermanentAddress string, "
            "NetworkAddresses string[], SupportedMaximumTransmissionUnit uint64, "
            "ActiveMaximumTransmissionUnit uint64, SupportedCOS uint16[], "
            "SupportedFC4Types uint16[], ActiveFC4Types uint16[], VsanId uint16, VsanName string, "
            "PeerPortWWN string, PortAvailability uint16");
}

TEST_F(MofFolder, Declares_the_settings_of_a_port_as_changeable) {
  EXPECT_EQ(property_list(agent, "VEXOR_FCPortSettings",
                          {"InstanceID", "AutoSenseSpeed", "RequestedSpeed", "RequestedType"}),
            "InstanceID string key, AutoSenseSpeed boolean, RequestedSpeed uint64, "
            "RequestedType uint16");
  for (const char* name : {"AutoSenseSpeed", "RequestedSpeed", "RequestedType"}) {
    const Property* property = agent.property(*agent.find("VEXOR_FCPortSettings"), name);
    EXPECT_NE(find_qualifier(property->qualifiers, "Write"), nullptr) << name;
  }
}

TEST_F(MofFolder, Ties_a_port_to_its_statistics) {
  EXPECT_EQ(property_list(agent, "VEXOR_FCPortStatisticalData", {"ManagedElement", "Stats"}),
            "ManagedElement CIM_ManagedElement key, Stats VEXOR_FCPortStatistics key");
  EXPECT_TRUE(agent.find("VEXOR_FCPortStatisticalData")->is_association);
}

}  // namespace
}  // namespace cim::schema

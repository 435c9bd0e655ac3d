#include "providers/registration/registration.h"

namespace vexor::providers {
namespace {

// Numbers of PG_ProviderCapabilities.ProviderType.
std::string pegasus_kinds(const Class& of) {
  std::string kinds = "2";
  if (of.is_association()) kinds += ", 3";
  if (of.has_methods()) kinds += ", 5";
  return kinds;
}

std::string sfcb_kinds(const Class& of) {
  std::string kinds = "instance";
  if (of.is_association()) kinds += " association";
  if (of.has_methods()) kinds += " method";
  return kinds;
}

std::string capabilities(const Class& of, const std::string& name_space) {
  const std::string name = of.name();
  return "\ninstance of PG_ProviderCapabilities {\n"
         "  ProviderModuleName = \"VexorProviderModule\";\n"
         "  ProviderName = \"VexorProvider\";\n"
         "  CapabilityID = \"" +
         name + "\";\n  ClassName = \"" + name + "\";\n  Namespaces = {\"" + name_space +
         "\"};\n  ProviderType = {" + pegasus_kinds(of) +
         "};\n"
         "  SupportedProperties = NULL;\n"
         "  SupportedMethods = NULL;\n"
         "};\n";
}

std::string section(const Class& of, const std::string& name_space) {
  return "\n[" + std::string(of.name()) +
         "]\n"
         "   provider: VexorProvider\n"
         "   location: vexor_providers\n"
         "   type: " +
         sfcb_kinds(of) + "\n   namespace: " + name_space + "\n   group: vexor\n";
}

}  // namespace

std::string openpegasus_registration(ClassTable classes, const Registration& registration) {
  // UserContext 5, the object manager's own user: else there may be a process for every user, each
  // with a queue to the switch.
  std::string text =
      "// The providers of libvexor_providers.so; for the namespace root/PG_InterOp.\n"
      "\ninstance of PG_ProviderModule {\n"
      "  Name = \"VexorProviderModule\";\n"
      "  Vendor = \"VEXOR\";\n"
      "  Version = \"" +
      registration.version +
      "\";\n"
      "  InterfaceType = \"CMPI\";\n"
      "  InterfaceVersion = \"2.0.0\";\n"
      "  Location = \"vexor_providers\";\n"
      "  UserContext = 5;\n"
      "};\n"
      "\ninstance of PG_Provider {\n"
      "  ProviderModuleName = \"VexorProviderModule\";\n"
      "  Name = \"VexorProvider\";\n"
      "};\n";
  for (const Class* each : classes)
    text += capabilities(*each, registration.name_space);
  return text;
}

std::string sfcb_registration(ClassTable classes, const Registration& registration) {
  std::string text = "# The providers of libvexor_providers.so, version " + registration.version +
                     ": one group, one process.\n";
  for (const Class* each : classes)
    text += section(*each, registration.name_space);
  return text;
}

}  // namespace vexor::providers

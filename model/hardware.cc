#include "model/hardware.h"

#include <cim_utils/modules.h>
#include <cim_utils/port_manager.h>
#include <cim_utils/session.h>
#include <switch_platform/platform_manager.h>
#include <switch_platform/port_manager.h>

#include <cstdio>

#include "model/association.h"
#include "model/computer_system.h"
#include "model/module_status.h"
#include "model/port_texts.h"

namespace cim_utils::model {
namespace {

constexpr uint8_t kPortChannel = 4;
constexpr uint16_t kEnabledByDefault = 2;

// A decimal number: at most 11 characters.
struct NumberText {
  explicit NumberText(uint32_t number) {
    std::snprintf(text, sizeof text, "%d", static_cast<int>(number));
  }
  char text[12];
};

// The two texts of the chassis's serial PROM. Empty when it cannot be read.
struct SerialProm {
  static constexpr size_t kSerialNumber = 54;
  static constexpr size_t kPartNumber = 74;

  explicit SerialProm(int32_t q) {
    char content[498] = {};
    if (pfm_get_sprom(q, 0, 2, 0, content, sizeof content) != 0) return;
    std::snprintf(serial_number, sizeof serial_number, "%.*s",
                  static_cast<int>(kPartNumber - kSerialNumber), content + kSerialNumber);
    std::snprintf(part_number, sizeof part_number, "%.*s",
                  static_cast<int>(sizeof content - kPartNumber), content + kPartNumber);
  }
  char serial_number[kPartNumber - kSerialNumber + 1] = {};
  char part_number[498 - kPartNumber + 1] = {};
};

// The port manager tells Ethernet channels; of all others the index tells the type.
uint8_t interface_type(uint32_t if_index) {
  if (pm_is_ether_channel(if_index) != 0) return kPortChannel;
  uint8_t type = 0;
  if_index_get_type(if_index, &type);
  return type;
}

void write_code(ObjectWriter& out, const char* name, uint16_t code) {
  out.uint16s(name, {&code, 1});
}

}  // namespace

Ref product_reference(Builder& b, const char* cls, const char* ns, ChassisTexts& texts) {
  auto [out, ref] = b.open_path(cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  out->text("IdentifyingNumber", texts.system_name());
  out->text("Name", texts.product_name());
  out->text("Vendor", texts.vendor());
  out->text("Version", texts.version());
  return b.close_path(out);
}

Object product_instance(Builder& b, const char* cls, const char* ns, ChassisTexts& texts) {
  const KeyNames keys(b, {"IdentifyingNumber", "Name", "Vendor", "Version"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::ignored, nullptr);
  if (out == nullptr) return {};
  out->text("IdentifyingNumber", texts.system_name());
  const char* name = texts.product_name();
  out->text("Name", name);
  out->text("ElementName", name);
  out->text("Vendor", texts.vendor());
  out->text("Version", texts.version());
  if (b.instances_have_paths()) out->path(product_reference(b, cls, ns, texts));
  return b.close_instance(out);
}

Ref physical_package_reference(Builder& b, const char* cls, const char* ns, ChassisTexts& texts) {
  auto [out, ref] = b.open_path(cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  out->text("CreationClassName", cls);
  out->text("Tag", texts.system_name());
  return b.close_path(out);
}

Object physical_package_instance(Builder& b, const char* cls, const char* ns, ChassisTexts& texts) {
  const KeyNames keys(b, {"CreationClassName", "Tag"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::ignored, nullptr);
  if (out == nullptr) return {};
  out->text("CreationClassName", cls);
  const char* name = texts.system_name();
  out->text("Tag", name);
  out->text("ElementName", name);
  out->text("Name", name);
  out->text("Manufacturer", texts.vendor());
  out->text("Model", texts.model());
  const SerialProm prom(b.queue());
  out->text("SerialNumber", prom.serial_number);
  out->text("Version", texts.version());
  out->text("PartNumber", prom.part_number);
  if (b.instances_have_paths()) out->path(physical_package_reference(b, cls, ns, texts));
  return b.close_instance(out);
}

Ref physical_element_reference(Builder& b, const char* cls, const char* ns,
                               const pm_port_info_* info) {
  if (info == nullptr) return {};
  auto [out, ref] = b.open_path(cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  out->text("Tag", NumberText(info->if_index).text);
  out->text("CreationClassName", cls);
  return b.close_path(out);
}

Object physical_element_instance(Builder& b, const char* cls, const char* ns,
                                 const pm_port_info_* info, ChassisTexts& texts) {
  if (info == nullptr) return {};
  const KeyNames keys(b, {"Tag", "CreationClassName"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::ignored, nullptr);
  if (out == nullptr) return {};
  out->text("CreationClassName", cls);
  out->text("Tag", NumberText(info->if_index).text);
  const InterfaceName name(info->if_index);
  out->text("ElementName", name.text);
  out->text("Name", name.text);
  out->text("Manufacturer", texts.vendor());
  char address[64] = {};
  pm_cim_get_permanent_address(address, info, interface_type(info->if_index));
  out->text("SerialNumber", address);
  out->text("Version", texts.version());
  out->text("Model", texts.model());
  // The chassis's, deliberately: ports have no part numbers of their own.
  out->text("PartNumber", SerialProm(b.queue()).part_number);
  if (b.instances_have_paths()) out->path(physical_element_reference(b, cls, ns, info));
  return b.close_instance(out);
}

Ref logical_module_reference(Builder& b, const char* cls, const char* ns, const char* key_class,
                             const _vefcModuleEntry* module) {
  if (module == nullptr) return {};
  auto [out, ref] = b.open_path(cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  out->text("DeviceID", NumberText(module->entity_index).text);
  out->text("SystemName", CSgetName(b.queue()));
  out->text("SystemCreationClassName", kPhysicalSwitchClass);
  out->text("CreationClassName", key_class);
  return b.close_path(out);
}

Object logical_module_instance(Builder& b, const char* cls, const char* ns, const char* key_class,
                               const _vefcModuleEntry* module, const _entPhysicalEntry* entity) {
  if (module == nullptr || entity == nullptr) return {};
  const KeyNames keys(b,
                      {"DeviceID", "SystemName", "SystemCreationClassName", "CreationClassName"});
  if (!keys) return {};
  const auto number = static_cast<int>(module->entity_index);
  const auto oper_status = static_cast<int>(module->oper_status);
  std::printf("log_module_build_instance(): Entered - entityId is %d\n", number);
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::ignored, nullptr);
  if (out == nullptr) return {};

  out->text("DeviceID", NumberText(module->entity_index).text);
  out->text("SystemName", CSgetName(b.queue()));
  out->text("SystemCreationClassName", kPhysicalSwitchClass);
  out->text("CreationClassName", cls);
  uint32_t slot = 0;
  const bool slot_known =
      pfm_cim_entity_index_to_slot_num(b.queue(), module->entity_index, &slot) == 0;
  std::printf("log_module_build_instance(): slot number of Card is %d\n", static_cast<int>(slot));
  // Slots are counted from 0 and modules from 1, deliberately.
  if (slot_known) out->uint16("ModuleNumber", static_cast<uint16_t>(slot + 1));
  char name[sizeof entity->name + 1];
  std::snprintf(name, sizeof name, "%.*s", static_cast<int>(sizeof entity->name), entity->name);
  std::printf("log_module_build_instance(): ent Physical Name is  %s\n", name);
  for (const char* property : {"ElementName", "Name", "Description", "Caption"})
    out->text(property, name);
  std::printf("log_module_build_instance(): EntityId is %d Moduleoperstatus is %d \n", number,
              oper_status);
  write_code(*out, "OperationalStatus", pfm_cim_convert_module_oper_state(module->oper_status));
  out->text("Status", module_status_text(oper_status));
  // From the oper status, not the admin status, and as arrays of one, deliberately.
  write_code(*out, "EnabledState", pfm_cim_convert_module_enable_state(module->oper_status));
  const uint16_t requested = pfm_cim_convert_module_requested_status(module->admin_status);
  std::printf("log_module_build_instance(): requested status is %d \n", requested);
  write_code(*out, "RequestedState", requested);
  write_code(*out, "EnabledDefault", kEnabledByDefault);
  if (b.instances_have_paths()) out->path(logical_module_reference(b, cls, ns, key_class, module));
  return b.close_instance(out);
}

namespace {

Ends switch_package_ends(Builder& b, const char* ns, ChassisTexts& texts) {
  const Ref package = physical_package_reference(b, "VEXOR_PhysicalPackage", ns, texts);
  return {"Antecedent", package, "Dependent",
          switch_reference(b, kPhysicalSwitchClass, ns, texts.system_name())};
}

}  // namespace

Ref switch_package_reference(Builder& b, const char* cls, const char* ns, ChassisTexts& texts) {
  return association_reference(b, cls, ns, switch_package_ends(b, ns, texts));
}

Object switch_package_instance(Builder& b, const char* instance_class, const char* cls,
                               const char* ns, ChassisTexts& texts) {
  return association_instance(
      b, instance_class, ns, [&] { return switch_package_ends(b, ns, texts); }, cls);
}

}  // namespace cim_utils::model

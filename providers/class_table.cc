#include "providers/class_table.h"

#include <cim_utils/cmpi_switch.h>

#include "providers/fabric.h"
#include "providers/vsan.h"

// To add a class: write its functions in a source of its own, describe it here with a RecordClass,
// and name it in kClasses. What a description may hold stands in class.h.
namespace vexor::providers {
namespace {

constexpr KeyNames kSystemKeys = {"Name", "CreationClassName"};

constexpr RecordClass<Fabric> kAdminDomain{{
    .name = "VEXOR_AdminDomain",
    .keys = kSystemKeys,
    .list = the_fabric,
    .reference = [](const Target& to, const Fabric&) { return fabric_reference(to); },
    .instance = [](const Target& to, const Fabric&) { return fabric_instance(to); },
}};

constexpr RecordClass<VsanRecord> kVsan{{
    .name = "VEXOR_Vsan",
    .keys = kSystemKeys,
    .list = all_vsans,
    .reference = vsan_reference,
    .instance = vsan_instance,
    .find = vsans_named,
}};

constexpr RecordClass<VsanRecord> kConnectivityCollection{{
    .name = "VEXOR_ConnectivityCollection",
    .keys = {"InstanceID"},
    .list = all_vsans,
    .reference =
        [](const Target& to, const VsanRecord& vsan) {
          return connectivity_collection_fill_reference(
              to.class_name, to.name_space, static_cast<int>(vsan.entry.vsan_index), to.broker);
        },
    .instance =
        [](const Target& to, const VsanRecord& vsan) {
          return connectivity_collection_build_instance(
              to.class_name, to.name_space, static_cast<int>(vsan.entry.vsan_index), to.broker);
        },
}};

constexpr RecordClass<VsanRecord> kContainedDomain{{
    .name = "VEXOR_ContainedDomain",
    .keys = {"GroupComponent", "PartComponent"},
    .list = all_vsans,
    .reference = contained_domain_reference,
    .instance = contained_domain_instance,
    .find = contained_domains_named,
    .ends = {{
        {{.role = "GroupComponent", .class_name = "VEXOR_AdminDomain", .always_the_same = true},
         [](const Target& to, const VsanRecord&) { return fabric_reference(to); },
         [](const Target& to, const VsanRecord&) { return fabric_instance(to); }},
        {{.role = "PartComponent", .class_name = "VEXOR_Vsan"}, vsan_reference, vsan_instance},
    }},
    .related = contained_domains_of,
}};

constexpr const Class* kClasses[] = {
    &kAdminDomain,
    &kConnectivityCollection,
    &kContainedDomain,
    &kVsan,
};

}  // namespace

ClassTable class_table() {
  return kClasses;
}

}  // namespace vexor::providers

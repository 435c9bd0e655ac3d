#include "model/switch_classes.h"

#include <cim_utils/domain_manager.h>
#include <cim_utils/vsan.h>

#include <cstdio>
#include <cstring>

#include "model/association.h"

namespace cim_utils::model {
namespace {

constexpr char kVsanKeyError[] = "error during get vsan id";

struct FabricName {
  char name[20];
  const char* format;
};

// The fabric is named by VSAN 1; without it, by a fixed text.
FabricName fabric_name(const Builder& b) {
  FabricName result{"PHYSICAL_FABRIC", "Other"};
  mts_dm_sw_conf_ conf{};
  if (dm_cim_get_dmEntry(b.queue(), 1, 1, &conf) == 0) {
    vsan_cim_get_vsan_admindomain_key(result.name, &conf);
    result.format = "WWN";
  }
  return result;
}

// How a VSAN is named: 1 by its WWN, 2 by its number. An active VSAN runs a domain manager, which
// gives it a WWN; a suspended one has none.
uint32_t vsan_key_form(const vsanNewEntry_t& vsan) {
  return vsan.admin_state;
}

// The text of a VSAN's key. Longest: the WWN form's 17 bytes; the number form's 28.
struct VsanName {
  enum { named, failed, none } outcome;
  char text[32];
};

VsanName vsan_name(const vsanNewEntry_t& vsan, const mts_dm_sw_conf_* conf) {
  VsanName name{VsanName::named, ""};
  switch (vsan_key_form(vsan)) {
    case 1:
      if (vsan_cim_get_vsan_key(name.text, vsan.vsan_index, conf) != 0)
        name.outcome = VsanName::failed;
      break;
    case 2:
      std::snprintf(name.text, sizeof name.text, "0000000000000000:%d",
                    static_cast<int>(vsan.vsan_index));
      break;
    default:
      name.outcome = VsanName::none;
  }
  return name;
}

// The text of a collection's number: at most 15 characters.
struct CollectionId {
  explicit CollectionId(int number) { std::snprintf(text, sizeof text, "%d", number); }
  char text[16];
};

}  // namespace

Ref fabric_reference(Builder& b, const char* cls, const char* ns) {
  std::printf("providerutil:fabric_fill_reference() Start\n ");
  auto [out, ref] = b.open_path(cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  out->text("Name", fabric_name(b).name);
  out->text("CreationClassName", cls);
  return b.close_path(out);
}

Object fabric_instance(Builder& b, const char* cls, const char* ns, const char** properties) {
  const KeyNames keys(b, {"Name", "CreationClassName"});
  if (!keys) return {};
  std::printf("providerutil:fabric_build_instance() Start\n ");
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::ignored, properties);
  if (out == nullptr) return {};

  const FabricName name = fabric_name(b);
  out->text("NameFormat", name.format);
  out->text("Name", name.name);
  vsanNewEntry_t vsan{};
  vsan.vsan_index = 1;
  if (vsan_cim_get_vsanEntry(b.queue(), 1, &vsan) == 0) {
    char element_name[31];
    std::snprintf(element_name, sizeof element_name, "%.30s", vsan.name);
    out->text("ElementName", element_name);
    if (vsan.oper_state == 1) out->text("Status", "Up");
    if (vsan.oper_state == 2) out->text("Status", "Down");
  }
  out->text("CreationClassName", cls);
  if (b.instances_have_paths()) out->path(fabric_reference(b, cls, ns));
  return b.close_instance(out);
}

Ref vsan_reference(Builder& b, const char* cls, const char* ns, const vsanNewEntry_t* vsan,
                   const mts_dm_sw_conf_* conf) {
  if (vsan == nullptr) return {};
  auto [out, ref] = b.open_path(cls, ns, BadPath::as_it_came);
  if (out == nullptr) return ref;
  const VsanName name = vsan_name(*vsan, conf);
  out->text("Name", name.outcome == VsanName::failed ? kVsanKeyError : name.text);
  out->text("CreationClassName", cls);
  return b.close_path(out);
}

Object vsan_instance(Builder& b, const char* cls, const char* ns, const vsanNewEntry_t* vsan,
                     const mts_dm_sw_conf_* conf, const char** properties) {
  if (vsan == nullptr) return {};
  const KeyNames keys(b, {"Name", "CreationClassName"});
  if (!keys) return {};
  std::printf("providerutil:vsan_build_instance() Start\n ");
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::ignored, properties);
  if (out == nullptr) return {};

  const VsanName name = vsan_name(*vsan, conf);
  if (name.outcome == VsanName::named) out->text("Name", name.text);
  if (name.outcome == VsanName::failed) std::printf("%s\n", kVsanKeyError);
  out->text("NameFormat", "WWN");
  char element_name[128];
  std::snprintf(element_name, sizeof element_name, "%.127s", vsan->name);
  out->text("ElementName", element_name);
  out->uint16("VsanId", static_cast<uint16_t>(vsan->vsan_index));
  out->text("Status", vsan->oper_state == 1 ? "Up" : "Down");
  out->text("CreationClassName", cls);
  switch (vsan->load_balancing_type) {
    case 1:
      out->text("LoadBalancingType", "src-id/dst-id");
      break;
    case 2:
      out->text("LoadBalancingType", "src-id/dst-id/ox-id");
      break;
    default:
      std::printf("load balancing type =%d ", static_cast<int>(vsan->load_balancing_type));
  }
  if (b.instances_have_paths()) out->path(vsan_reference(b, cls, ns, vsan, conf));
  return b.close_instance(out);
}

namespace {

Ends contained_domain_ends(Builder& b, const char* ns, const vsanNewEntry_t* vsan,
                           const mts_dm_sw_conf_* conf) {
  const Ref fabric = fabric_reference(b, "VEXOR_AdminDomain", ns);
  return {"GroupComponent", fabric, "PartComponent",
          vsan_reference(b, "VEXOR_Vsan", ns, vsan, conf)};
}

}  // namespace

Ref contained_domain_reference(Builder& b, const char* cls, const char* ns,
                               const vsanNewEntry_t* vsan, const mts_dm_sw_conf_* conf) {
  return association_reference(b, cls, ns, contained_domain_ends(b, ns, vsan, conf));
}

Object contained_domain_instance(Builder& b, const char* cls, const char* ns,
                                 const vsanNewEntry_t* vsan, const mts_dm_sw_conf_* conf) {
  return association_instance(b, cls, ns, [&] { return contained_domain_ends(b, ns, vsan, conf); });
}

Ref connectivity_collection_reference(Builder& b, const char* cls, const char* ns, int number) {
  auto [out, ref] = b.open_path(cls, ns, BadPath::as_it_came);
  if (out == nullptr) return ref;
  out->text("InstanceID", CollectionId(number).text);
  return b.close_path(out);
}

Object connectivity_collection_instance(Builder& b, const char* cls, const char* ns, int number) {
  const KeyNames keys(b, {"InstanceID"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::ignored, nullptr);
  if (out == nullptr) return {};
  out->text("InstanceID", CollectionId(number).text);
  if (b.instances_have_paths()) out->path(connectivity_collection_reference(b, cls, ns, number));
  return b.close_instance(out);
}

}  // namespace cim_utils::model

#include "providers/vsan.h"

#include <cim_utils/cmpi_switch.h>
#include <cim_utils/domain_manager.h>
#include <cim_utils/vsan.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <memory>

namespace vexor::providers {
namespace {

constexpr uint32_t kActive = 1;  // administrative state
constexpr size_t kWwnDigits = 16;

struct FreeBlock {
  void operator()(void* block) const { std::free(block); }
};

// The domain manager's part; the entry is there already.
void complete(int32_t q, VsanRecord& vsan) {
  vsan.configuration = {};
  vsan.has_configuration =
      dm_cim_get_dmEntry(q, vsan.entry.vsan_index, 1, &vsan.configuration) == 0;
}

bool has_wwn(const VsanRecord& vsan, const char* wwn) {
  char text[kWwnDigits + 1] = {};
  return vsan_cim_get_vsan_admindomain_key(text, configuration(vsan)) == 0 &&
         std::strcmp(text, wwn) == 0;
}

// The VSAN manager may say yes and reply nothing: the library leaves the entry as it was then.
bool is_told(const vsanNewEntry_t& entry) {
  return entry.vsan_index != 0 && entry.admin_state != 0;
}

}  // namespace

bool read_vsan_entry(int32_t q, uint32_t number, vsanNewEntry_t& entry) {
  if (vsan_cim_check_vsan_index(number) != 0) return false;
  entry = {};
  entry.vsan_index = number;
  const int32_t status = vsan_cim_get_vsanEntry(q, 1, &entry);
  // The service's own refusals are positive; a negative status says that nobody answered.
  if (status < 0)
    throw Failure(CMPI_RC_ERR_FAILED, "the VSAN manager does not answer (status %d)", status);
  if (status == 0 && !is_told(entry))
    throw Failure(CMPI_RC_ERR_FAILED, "the VSAN manager does not tell of VSAN %u", number);
  return status == 0;
}

bool read_vsan(int32_t q, uint32_t number, VsanRecord& vsan) {
  if (!read_vsan_entry(q, number, vsan.entry)) return false;
  complete(q, vsan);
  return true;
}

std::vector<vsanNewEntry_t> all_vsan_entries(int32_t q) {
  int32_t count = 0;
  vsanNewEntry_t* entries = nullptr;
  const int32_t status = vsan_cim_get_all_vsanEntry(q, &count, &entries);
  const std::unique_ptr<vsanNewEntry_t, FreeBlock> owner(entries);
  if (status != 0 || !std::all_of(entries, entries + count, is_told))
    throw Failure(CMPI_RC_ERR_FAILED, "the VSAN manager does not give its VSANs");
  return {entries, entries + count};
}

std::vector<VsanRecord> all_vsans(int32_t q) {
  const std::vector<vsanNewEntry_t> entries = all_vsan_entries(q);
  std::vector<VsanRecord> vsans(entries.size());
  for (size_t index = 0; index < vsans.size(); ++index) {
    vsans[index].entry = entries[index];
    complete(q, vsans[index]);
  }
  return vsans;
}

std::vector<uint32_t> vsan_numbers(int32_t q) {
  std::vector<uint32_t> numbers;
  for (const vsanNewEntry_t& entry : all_vsan_entries(q))
    numbers.push_back(entry.vsan_index);
  return numbers;
}

std::vector<VsanRecord> vsans_named(int32_t q, const ObjectName& name) {
  const char* key = name.text("Name");
  if (key == nullptr) return {};
  uint32_t number = 0;
  char wwn[kWwnDigits + 1] = {};
  vsan_cim_get_vsan_key_fields(key, &number, wwn);

  std::vector<VsanRecord> found(1);
  if (!read_vsan(q, number, found[0])) found.clear();
  const bool by_number = std::strchr(key, ':') != nullptr;
  if (by_number || std::strlen(key) != kWwnDigits) return found;

  if (!found.empty() && found[0].entry.admin_state == kActive && !found[0].has_configuration)
    throw Failure(CMPI_RC_ERR_FAILED, "the domain manager does not tell the WWN of VSAN %u",
                  number);
  if (!found.empty() && has_wwn(found[0], key)) return found;
  // The WWN of a VSAN without a domain manager need not hold the VSAN's number.
  return all_vsans(q);
}

uint32_t read_vsan_number(const char* text) {
  if (text == nullptr || *text == '0') return 0;
  uint32_t number = 0;
  const char* end = text + std::strlen(text);
  const auto [stopped, error] = std::from_chars(text, end, number);
  if (error != std::errc{} || stopped != end || vsan_cim_check_vsan_index(number) != 0) return 0;
  return number;
}

CMPIObjectPath* vsan_reference(const Target& target, const VsanRecord& vsan) {
  return vsan_fill_reference(target.class_name, target.name_space, &vsan.entry, configuration(vsan),
                             target.broker);
}

CMPIInstance* vsan_instance(const Target& target, const VsanRecord& vsan) {
  return vsan_build_instance(target.class_name, target.name_space, &vsan.entry, configuration(vsan),
                             target.properties, target.broker);
}

uint32_t request_vsan_state(int32_t q, const VsanRecord& vsan, const Arguments& arguments) {
  constexpr uint32_t kCompleted = 0;
  constexpr uint32_t kUnspecifiedError = 2;
  constexpr uint32_t kInvalidParameter = 5;
  std::string state;
  if (!arguments.text("RequestedState", state) || (state != "2" && state != "3"))
    return kInvalidParameter;
  const int32_t status = vsan_cim_set_VsanEntry(q, vsan.entry.vsan_index, state == "2" ? 2 : 3);
  return status == 0 ? kCompleted : kUnspecifiedError;
}

std::vector<ConnectivityCollection> connectivity_collections(int32_t q) {
  std::vector<ConnectivityCollection> found;
  for (const uint32_t vsan : vsan_numbers(q))
    found.push_back({vsan});
  return found;
}

std::vector<ConnectivityCollection> connectivity_collections_named(int32_t q,
                                                                   const ObjectName& name) {
  const uint32_t number = read_vsan_number(name.text("InstanceID"));
  vsanNewEntry_t entry;
  if (number == 0 || !read_vsan_entry(q, number, entry)) return {};
  return {ConnectivityCollection{number}};
}

CMPIObjectPath* connectivity_collection_reference(const Target& target,
                                                  const ConnectivityCollection& collection) {
  return connectivity_collection_fill_reference(target.class_name, target.name_space,
                                                static_cast<int>(collection.vsan), target.broker);
}

CMPIInstance* connectivity_collection_instance(const Target& target,
                                               const ConnectivityCollection& collection) {
  return connectivity_collection_build_instance(target.class_name, target.name_space,
                                                static_cast<int>(collection.vsan), target.broker);
}

CMPIObjectPath* contained_domain_reference(const Target& target, const VsanRecord& vsan) {
  return contained_domain_fill_reference(target.class_name, target.name_space, &vsan.entry,
                                         configuration(vsan), target.broker);
}

CMPIInstance* contained_domain_instance(const Target& target, const VsanRecord& vsan) {
  return contained_domain_build_instance(target.class_name, target.name_space, &vsan.entry,
                                         configuration(vsan), target.broker);
}

std::vector<VsanRecord> contained_domains_named(int32_t q, const ObjectName& name) {
  const ObjectName* vsan = name.reference("PartComponent");
  return vsan != nullptr ? vsans_named(q, *vsan) : std::vector<VsanRecord>{};
}

std::vector<VsanRecord> contained_domains_of(int32_t q, const char* role,
                                             const ObjectName& object) {
  return same_name(role, "PartComponent") ? vsans_named(q, object) : all_vsans(q);
}

}  // namespace vexor::providers

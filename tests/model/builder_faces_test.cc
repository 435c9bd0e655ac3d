// What one face makes is what the other makes: for every builder that both have, on the same switch
// and with the same records, names, types, values and order.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <tuple>

#include "tests/model/builder_platform.h"

using namespace test_support;
using namespace builders;

namespace {

struct Difference {
  std::string row;   // of the CMPI face
  std::string what;  // "class", "key NAME", "property NAME", "order"
  std::string cmpi;
  std::string pegasus;
  auto operator<=>(const Difference&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Difference& difference) {
  return out << difference.row << ", " << difference.what << ": " << difference.cmpi << " / "
             << difference.pegasus << "\n";
}

using Differences = std::vector<Difference>;

// The only ones that there are, each deliberate.
const Differences kDeliberate = {
    // The product is called as the chassis or as the system; the maker's name and the version are
    // the real ones or fixed texts.
    {"product_fill_reference", "key Name", "string QRX4416", "string sydney"},
    {"product_fill_reference", "key Vendor", "string Vexor Systems", "string Vexor System"},
    {"product_fill_reference", "key Version", "string 3.2(1a)", "string 2.1"},
    {"product_build_instance", "property Name", "string QRX4416", "string sydney"},
    {"product_build_instance", "property ElementName", "string QRX4416", "string sydney"},
    {"product_build_instance", "property Vendor", "string Vexor Systems", "string Vexor System"},
    {"product_build_instance", "property Version", "string 3.2(1a)", "string 2.1"},
    // The chassis and the physical side of a port have a fixed model and version as well.
    {"physical_package_build_instance", "property Manufacturer", "string Vexor Systems",
     "string Vexor System"},
    {"physical_package_build_instance", "property Model", "string QRX4416", "string QRX4400"},
    {"physical_package_build_instance", "property Version", "string 3.2(1a)", "string 2.1"},
    {"physical_element_build_instance", "property Manufacturer", "string Vexor Systems",
     "string Vexor System"},
    {"physical_element_build_instance", "property Model", "string QRX4416", "string QRX4400"},
    {"physical_element_build_instance", "property Version", "string 3.2(1a)", "string 2.1"},
    // The class in the key of a module's reference is fixed, whatever class is asked for.
    {"logical_module_fill_reference (card)", "key CreationClassName", "string VEXOR_Card",
     "string VEXOR_LogicalModule"},
    // The class of the instance that ties the chassis to the switch is fixed.
    {"switch_package_build_instance", "class", "VEXOR_Realizes", "VEXOR_ComputerSystemPackage"},
};

// Builders that the Pegasus face does not have.
const std::set<std::string> kCmpiOnly = {
    "fcswitch_cap_fill_reference",
    "fcswitch_cap_build_instance",
    "fcswitch_set_fill_reference",
    "fcswitch_set_build_instance",
    "fcport_cap_fill_reference",
    "fcport_cap_build_instance",
    "fcport_set_fill_reference",
    "fcport_set_build_instance",
    "switch_package_fill_reference_op",
    "switch_package_build_instance_op",
    "module_port_fill_reference",
    "module_port_build_instance",
    "product_physical_element_fill_reference",
    "product_physical_element_build_instance",
    "rsap_fill_reference",
    "rsap_build_instance",
    "makePath",
    "association_class_fill_reference_path",
    "association_class_build_instance_path",
    "esd_fill_reference",
    "esd_build_instance",
    "sap_afe_fill_reference",
    "sap_afe_build_instance",
    "ele_cap_fill_reference",
    "ele_cap_build_instance",
};

// Builders that the CMPI face does not have: a device on the switch that another is attached to.
const std::set<std::string> kPegasusOnly = {
    "ProviderUtil::system_device_fill_reference(char const*, Pegasus::String const&, "
    "ns_api_register_req_*, ns_api_register_req_*)",
    "ProviderUtil::system_device_build_instance(char const*, Pegasus::String const&, "
    "ns_api_register_req_*, ns_api_register_req_*)",
    "ProviderUtil::system_device_build_object(char const*, Pegasus::String const&, "
    "ns_api_register_req_*, ns_api_register_req_*)",
};

const CmpiRow& cmpi_row(const std::string& id) {
  const std::vector<CmpiRow>& rows = cmpi_rows();
  const auto found =
      std::find_if(rows.begin(), rows.end(), [&id](const CmpiRow& row) { return row.id == id; });
  if (found == rows.end()) throw std::out_of_range("no row of the CMPI face: " + id);
  return *found;
}

// ---- what differs

std::string typed(const Property& property) {
  return property.type + " " + property.value;
}

std::vector<std::string> names_of(const std::vector<Property>& properties) {
  std::vector<std::string> names;
  for (const Property& property : properties)
    names.push_back(property.name);
  return names;
}

std::string joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names)
    text += name + " ";
  return text;
}

class Comparison {
 public:
  explicit Comparison(const std::string& row) : row_(row) {}

  void text(const char* what, const std::string& cmpi, const std::string& pegasus) {
    if (cmpi != pegasus) differences_.push_back({row_, what, cmpi, pegasus});
  }
  void properties(const char* kind, const std::vector<Property>& cmpi,
                  const std::vector<Property>& pegasus) {
    text("order", joined(names_of(cmpi)), joined(names_of(pegasus)));
    std::map<std::string, std::pair<std::string, std::string>> values;
    for (const Property& property : cmpi)
      values[property.name].first = typed(property);
    for (const Property& property : pegasus)
      values[property.name].second = typed(property);
    for (const auto& [name, value] : values)
      text((std::string(kind) + " " + name).c_str(), value.first, value.second);
  }
  const Differences& differences() const { return differences_; }

 private:
  std::string row_;
  Differences differences_;
};

Differences compared(const std::string& row, const Path& cmpi, const Path& pegasus) {
  Comparison comparison(row);
  comparison.text("class", cmpi.cls, pegasus.cls);
  comparison.text("namespace", cmpi.name_space, pegasus.name_space);
  comparison.text("host", cmpi.host, pegasus.host);
  comparison.properties("key", cmpi.keys, pegasus.keys);
  return comparison.differences();
}

Differences compared(const std::string& row, const Instance& cmpi, const Instance& pegasus) {
  Comparison comparison(row);
  comparison.text("class", cmpi.cls, pegasus.cls);
  comparison.properties("property", cmpi.properties, pegasus.properties);
  return comparison.differences();
}

PegasusObject made_of(const PegasusRow& row) {
  const BuilderPlatform platform(kOtherFacesQueue, kQueue);
  Script script;
  row.lines(script, mts_q);
  return row.make();
}

Differences differences_of(const PegasusRow& row) {
  const PegasusObject pegasus = made_of(row);
  const BuilderPlatform platform(kQueue, kUnbound);
  Script script;
  const CmpiRow& counterpart = cmpi_row(row.counterpart);
  counterpart.lines(script, mts_q);
  RecordingBroker broker;
  broker.write_down(false);
  const CmpiObject cmpi = counterpart.make(broker);
  if (is_instance(pegasus))
    return compared(counterpart.id, content_of(broker, cmpi.instance), instance_of(pegasus));
  return compared(counterpart.id, content_of(broker, cmpi.path), path_of(pegasus));
}

bool builds(const PegasusRow& row) {
  return row.id.find("_fill_reference") != std::string::npos ||
         row.id.find("_build_") != std::string::npos;
}

// ---- the tests

TEST(Faces, MakeTheSameButForWhatIsListed) {
  std::set<Difference> seen;
  for (const PegasusRow& row : pegasus_rows()) {
    if (row.counterpart.empty()) continue;
    SCOPED_TRACE(row.id);
    Differences expected;
    std::copy_if(kDeliberate.begin(), kDeliberate.end(), std::back_inserter(expected),
                 [&row](const Difference& d) { return d.row == row.counterpart; });
    std::sort(expected.begin(), expected.end());
    Differences found = differences_of(row);
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, expected);
    seen.insert(found.begin(), found.end());
  }
  for (const Difference& difference : kDeliberate)
    EXPECT_TRUE(seen.contains(difference)) << "no longer one: " << difference;
}

TEST(Faces, HaveTheSameBuildersButForWhatIsListed) {
  std::set<std::string> without_counterpart;
  std::set<std::string> counterparts;
  for (const PegasusRow& row : pegasus_rows()) {
    if (!row.counterpart.empty()) counterparts.insert(row.counterpart);
    if (row.counterpart.empty() && builds(row)) without_counterpart.insert(row.id);
  }
  EXPECT_EQ(without_counterpart, kPegasusOnly);
  std::set<std::string> cmpi_only;
  for (const CmpiRow& row : cmpi_rows()) {
    if (!counterparts.contains(row.id)) cmpi_only.insert(row.id);
  }
  EXPECT_EQ(cmpi_only, kCmpiOnly);
}

TEST(Faces, AnObjectOfThePegasusFaceIsItsInstance) {
  const std::string instance = "_build_instance";
  const std::string object = "_build_object";
  std::map<std::string, const PegasusRow*> instances;
  for (const PegasusRow& row : pegasus_rows())
    instances[row.id] = &row;
  size_t objects = 0;
  for (const PegasusRow& row : pegasus_rows()) {
    const auto at = row.id.find(object);
    if (at == std::string::npos) continue;
    SCOPED_TRACE(row.id);
    ++objects;
    std::string id = row.id;
    id.replace(at, object.size(), instance);
    const auto found = instances.find(id);
    ASSERT_NE(found, instances.end());
    EXPECT_EQ(text_of(made_of(row)), text_of(made_of(*found->second)));
  }
  EXPECT_GT(objects, 60u);
}

// The path of an instance is what the builder of its reference makes, which the other face has too.
TEST(Faces, AnInstancesPathInThePegasusFaceIsTheReferenceOfTheCmpiFace) {
  // Their references differ between the faces as listed above.
  const std::set<std::string> differing = {"product_build_instance"};
  size_t instances = 0;
  for (const PegasusRow& row : pegasus_rows()) {
    const auto at = row.counterpart.find("_build_instance");
    if (at == std::string::npos || differing.contains(row.counterpart)) continue;
    SCOPED_TRACE(row.id);
    std::string id = row.counterpart;
    id.replace(at, std::string("_build_instance").size(), "_fill_reference");
    if (const auto remote = id.find(" (remote)"); remote != std::string::npos) continue;
    if (id == "zhc_fill_reference") id = "zone_hosted_collection_fill_reference";
    const PegasusObject made = made_of(row);
    const BuilderPlatform platform(kQueue, kUnbound);
    Script script;
    const CmpiRow& reference = cmpi_row(id);
    reference.lines(script, mts_q);
    RecordingBroker broker;
    broker.write_down(false);
    EXPECT_EQ(to_text(path_of(made)), to_text(content_of(broker, reference.make(broker).path)));
    ++instances;
  }
  EXPECT_GT(instances, 100u);
}

}  // namespace

// Every exported builder of both faces with its n-th call to a service failing, n = 1, 2, ... until
// there are no more, in every way in which a call can fail. A builder never fails for it: what
// depends on the service is left out or told by a text of its own.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

#include "tests/model/builder_platform.h"
#include "tests/support/exchange_failure.h"
#include "tests/support/heap_ledger.h"

using namespace test_support;
using namespace builders;

namespace {

// What the n-th failing call of a row changes: "-NAME" for a property that is left out,
// "NAME: VALUE" for another value, of a reference only the keys that are others; "key" in front of
// the name for a key of the path.
struct Fallback {
  std::string row;
  size_t exchange;
  std::string difference;
  auto operator<=>(const Fallback&) const = default;
};
using Fallbacks = std::set<Fallback>;

std::ostream& operator<<(std::ostream& out, const Fallback& fallback) {
  return out << "\n{\"" << fallback.row << "\", " << fallback.exchange << ", \""
             << fallback.difference << "\"}";
}

// ---- what changed

using Parts = std::vector<std::pair<std::string, std::string>>;

// The lines of a text as names and values. A name is "NAME TYPE", with "key" in front for a key.
Parts parts_of(const std::string& text) {
  Parts parts;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const bool key = line.starts_with("key ");
    auto end = line.find(' ', key ? 4 : 0);
    const std::string name = line.substr(0, end);
    end = end == std::string::npos ? end : line.find(' ', end + 1);
    parts.emplace_back(name, end == std::string::npos ? "" : line.substr(end + 1));
  }
  return parts;
}

// Of a reference only what differs.
std::string changed(const std::string& before, const std::string& after) {
  if (!before.starts_with("//")) return after;
  std::set<std::string> known;
  std::istringstream old_keys(before);
  for (std::string key; std::getline(old_keys, key, ',');)
    known.insert(key);
  std::string text;
  std::istringstream keys(after);
  for (std::string key; std::getline(keys, key, ',');) {
    if (!known.contains(key)) text += (text.empty() ? "" : ",") + key;
  }
  return text;
}

std::string difference(const std::string& before, const std::string& after) {
  const Parts old_parts = parts_of(before);
  const Parts parts = parts_of(after);
  const std::map<std::string, std::string> values(parts.begin(), parts.end());
  std::set<std::string> known;
  std::string text;
  for (const auto& [name, value] : old_parts) {
    known.insert(name);
    const auto now = values.find(name);
    const std::string separator = text.empty() ? "" : "; ";
    if (now == values.end()) {
      text += separator + "-" + name;
    } else if (now->second != value) {
      text += separator + name + ": " + changed(value, now->second);
    }
  }
  for (const auto& [name, value] : parts) {
    if (!known.contains(name)) text += "+" + name;
  }
  return text;
}

// ---- one round

// A row without a counterpart, and the own switch, whose WWN is asked for before it is like one of
// a text, are called by their own names.
std::string label_of(const CmpiRow& row) {
  return row.id;
}
std::string label_of(const PegasusRow& row) {
  const bool own = row.id.starts_with("ProviderUtil::switch_") &&
                   row.id.ends_with("(char const*, Pegasus::String const&)") &&
                   !row.id.starts_with("ProviderUtil::switch_package");
  if (row.counterpart.empty()) return row.id;
  return (own ? "own " : "") + row.counterpart;
}

std::string made_of(const CmpiRow& row) {
  RecordingBroker broker;
  broker.write_down(false);
  const CmpiObject made = row.make(broker);
  EXPECT_TRUE(made.made());
  return text_of(broker, made);
}
std::string made_of(const PegasusRow& row) {
  return text_of(row.make());
}

// What a row makes with one call failing, and which function's.
struct Round {
  std::string function;
  std::string text;
};

template <class Row>
std::vector<Round> failing(const Row& row, ExchangeFailure how) {
  std::vector<Round> rounds;
  const FailingHow failing_so(how);
  for_every_failing_exchange([&](FailingExchange& round) {
    Script script;
    lines_may_be_left(script);
    row.lines(script, mts_q);
    const std::string text = made_of(row);
    if (!round.was_hit()) return;
    const HeapLedger::Pause pause;
    rounds.push_back({failed_function(), text});
  });
  return rounds;
}

Fallbacks of_area(const Fallbacks& all, const std::set<std::string>& labels) {
  Fallbacks some;
  for (const Fallback& fallback : all) {
    if (labels.contains(fallback.row)) some.insert(fallback);
  }
  return some;
}

template <class Row>
std::set<std::string> labels_of(const std::vector<Row>& rows, Area area) {
  std::set<std::string> labels;
  for (const Row& row : rows) {
    if (row.area == area) labels.insert(label_of(row));
  }
  return labels;
}

// ---- what is expected

const Fallbacks kCmpi = {
    {"contained_domain_build_instance", 1, "GroupComponent: Name=PHYSICAL_FABRIC"},
    {"contained_domain_fill_reference", 1, "key GroupComponent: Name=PHYSICAL_FABRIC"},
    {"fabric_build_instance", 1, "NameFormat: Other; Name: PHYSICAL_FABRIC"},
    {"fabric_build_instance", 2, "-ElementName; -Status"},
    {"fabric_fill_reference", 1, "key Name: PHYSICAL_FABRIC"},
    {"fcswitch_cap_build_instance", 1, "InstanceID: N/A"},
    {"fcswitch_cap_fill_reference", 1, "key InstanceID: N/A"},
    {"fcswitch_set_build_instance", 1, "InstanceID: N/A"},
    {"fcswitch_set_build_instance", 2, "-PreferredDomainID; -DomainIDLocked; -PrincipalPriority"},
    {"fcswitch_set_fill_reference", 1, "key InstanceID: N/A"},
    {"switch_build_instance_dm", 1, "-EnabledState"},
    {"switch_build_instance_ie", 1, "EnabledState: 5"},
    {"switch_build_instance_str", 1,
     "-ElementName; -PrimarySwitch; -IPAddress; -EnabledState; -OtherIdentifyingInfo"},
    {"switch_build_instance_str (remote)", 1,
     "-PrimarySwitch; -IPAddress; -ElementName; -EnabledState; -OtherIdentifyingInfo"},
    {"switch_build_instance_str (remote)", 2, "-IPAddress"},
    {"switch_build_instance_str (remote)", 3, "-IPAddress"},
    {"switch_build_instance_str (remote)", 4, "-ElementName"},
    {"switch_build_instance_str (remote)", 5, "-ElementName"},
    {"switch_build_instance_wwn", 1,
     "-ElementName; -PrimarySwitch; -IPAddress; -EnabledState; -OtherIdentifyingInfo"},
    {"switch_build_instance_wwn (remote)", 1,
     "-PrimarySwitch; -IPAddress; -ElementName; -EnabledState; -OtherIdentifyingInfo"},
    {"switch_build_instance_wwn (remote)", 2, "-IPAddress"},
    {"switch_build_instance_wwn (remote)", 3, "-IPAddress"},
    {"switch_build_instance_wwn (remote)", 4, "-ElementName"},
    {"switch_build_instance_wwn (remote)", 5, "-ElementName"},
    {"switch_fill_reference", 1, "key Name: N/A"},
    {"fcport_build_instance_pm", 1, "-VsanId; -VsanName; -PeerPortWWN"},
    {"fcport_build_instance_pm", 2, "-PeerPortWWN"},
    {"fcport_build_instance_pm", 3, "-PeerPortWWN"},
    {"fcport_build_instance_pm", 4, "-PeerPortWWN"},
    {"fcport_build_instance_pm", 5, ""},
    {"pe_build_instance_fspf", 1, "SystemName: "},
    {"pe_fill_reference_fspf", 1, "key SystemName: "},
    {"hosted_service_build_instance", 1, "Dependent: SystemName=10"},
    {"hosted_service_build_instance", 2, "Dependent: SystemName=10"},
    {"hosted_service_fill_reference", 1, "key Dependent: SystemName=10"},
    {"hosted_service_fill_reference", 2, "key Dependent: SystemName=10"},
    {"zone_service_build_instance", 1, "SystemName: 10"},
    {"zone_service_build_instance", 2, "SystemName: 10"},
    {"zone_service_build_instance", 3, "defaultZoningState: 0"},
    {"zone_service_build_instance", 4, "defaultZoningState: 3"},
    {"zone_service_fill_reference", 1, "key SystemName: 10"},
    {"zone_service_fill_reference", 2, "key SystemName: 10"},
    {"logical_module_build_instance", 1, "SystemName: N/A"},
    {"logical_module_build_instance", 2, "-ModuleNumber"},
    {"logical_module_fill_reference", 1, "key SystemName: N/A"},
    {"logical_module_fill_reference (card)", 1, "key SystemName: N/A"},
    {"physical_element_build_instance", 1, "Model: "},
    {"physical_element_build_instance", 2, "PartNumber: "},
    {"physical_package_build_instance", 1, "Tag: N/A; ElementName: N/A; Name: N/A"},
    {"physical_package_build_instance", 2, "Model: "},
    {"physical_package_build_instance", 3, "SerialNumber: ; PartNumber: "},
    {"physical_package_fill_reference", 1, "key Tag: N/A"},
    {"product_build_instance", 1, "IdentifyingNumber: N/A"},
    {"product_build_instance", 2, "Name: ; ElementName: "},
    {"product_fill_reference", 1, "key IdentifyingNumber: N/A"},
    {"product_fill_reference", 2, "key Name: "},
    {"switch_package_build_instance", 1, "Antecedent: Tag=N/A"},
    {"switch_package_build_instance", 2, "Dependent: Name=N/A"},
    {"switch_package_fill_reference", 1, "key Antecedent: Tag=N/A"},
    {"switch_package_fill_reference", 2, "key Dependent: Name=N/A"},
    {"active_connection_build_instance_fspf", 1, "Antecedent: SystemName="},
    {"active_connection_build_instance_fspf", 2, "Dependent: SystemName="},
    {"active_connection_fill_reference_fspf", 1, "key Antecedent: SystemName="},
    {"active_connection_fill_reference_fspf", 2, "key Dependent: SystemName="},
};

const Fallbacks kPegasus = {
    {"contained_domain_build_instance", 1, "GroupComponent: Name=PHYSICAL_FABRIC"},
    {"contained_domain_build_instance", 2, "key GroupComponent: Name=PHYSICAL_FABRIC"},
    {"contained_domain_fill_reference", 1, "key GroupComponent: Name=PHYSICAL_FABRIC"},
    {"fabric_build_instance", 1, "NameFormat: Other; Name: PHYSICAL_FABRIC"},
    {"fabric_build_instance", 2, "-ElementName; -Status"},
    {"fabric_build_instance", 3, "key Name: PHYSICAL_FABRIC"},
    {"fabric_fill_reference", 1, "key Name: PHYSICAL_FABRIC"},
    {"own switch_build_instance_str", 1, "PermanentAddress: N/A; Name: N/A; key Name: N/A"},
    {"own switch_build_instance_str", 2,
     "-ElementName; -PrimarySwitch; -IPAddress; -EnabledState; -OtherIdentifyingInfo"},
    {"own switch_fill_reference", 1, "key Name: N/A"},
    {"switch_build_instance_dm", 1, "-EnabledState"},
    {"switch_build_instance_ie", 1, "EnabledState: 5"},
    {"switch_build_instance_str", 1,
     "-ElementName; -PrimarySwitch; -IPAddress; -EnabledState; -OtherIdentifyingInfo"},
    {"switch_build_instance_str (remote)", 1,
     "-PrimarySwitch; -IPAddress; -ElementName; -EnabledState; -OtherIdentifyingInfo"},
    {"switch_build_instance_str (remote)", 2, "-IPAddress"},
    {"switch_build_instance_str (remote)", 3, "-IPAddress"},
    {"switch_build_instance_str (remote)", 4, "-ElementName"},
    {"switch_build_instance_str (remote)", 5, "-ElementName"},
    {"switch_build_instance_wwn", 1,
     "-ElementName; -PrimarySwitch; -IPAddress; -EnabledState; -OtherIdentifyingInfo"},
    {"switch_build_instance_wwn (remote)", 1,
     "-PrimarySwitch; -IPAddress; -ElementName; -EnabledState; -OtherIdentifyingInfo"},
    {"switch_build_instance_wwn (remote)", 2, "-IPAddress"},
    {"switch_build_instance_wwn (remote)", 3, "-IPAddress"},
    {"switch_build_instance_wwn (remote)", 4, "-ElementName"},
    {"switch_build_instance_wwn (remote)", 5, "-ElementName"},
    {"fcport_build_instance_pm", 1, "-VsanId; -VsanName; -PeerPortWWN"},
    {"fcport_build_instance_pm", 2, "-PeerPortWWN"},
    {"fcport_build_instance_pm", 3, "-PeerPortWWN"},
    {"fcport_build_instance_pm", 4, "-PeerPortWWN"},
    {"fcport_build_instance_pm", 5, ""},
    {"pe_build_instance_fspf", 1, "SystemName: ; key SystemName: "},
    {"pe_fill_reference_fspf", 1, "key SystemName: "},
    {"hosted_service_build_instance", 1, "Dependent: SystemName=10"},
    {"hosted_service_build_instance", 2, "Dependent: SystemName=10"},
    {"hosted_service_build_instance", 3, "key Dependent: SystemName=10"},
    {"hosted_service_build_instance", 4, "key Dependent: SystemName=10"},
    {"hosted_service_fill_reference", 1, "key Dependent: SystemName=10"},
    {"hosted_service_fill_reference", 2, "key Dependent: SystemName=10"},
    {"zone_service_build_instance", 1, "SystemName: 10"},
    {"zone_service_build_instance", 2, "SystemName: 10"},
    {"zone_service_build_instance", 3, "defaultZoningState: 0"},
    {"zone_service_build_instance", 4, "defaultZoningState: 3"},
    {"zone_service_build_instance", 5, "key SystemName: 10"},
    {"zone_service_build_instance", 6, "key SystemName: 10"},
    {"zone_service_fill_reference", 1, "key SystemName: 10"},
    {"zone_service_fill_reference", 2, "key SystemName: 10"},
    {"logical_module_build_instance", 1, "SystemName: N/A"},
    {"logical_module_build_instance", 2, "-ModuleNumber"},
    {"logical_module_build_instance", 3, "key SystemName: N/A"},
    {"logical_module_fill_reference", 1, "key SystemName: N/A"},
    {"logical_module_fill_reference (card)", 1, "key SystemName: N/A"},
    {"physical_element_build_instance", 1, "PartNumber: "},
    {"physical_package_build_instance", 1, "Tag: N/A; ElementName: N/A; Name: N/A"},
    {"physical_package_build_instance", 2, "SerialNumber: ; PartNumber: "},
    {"physical_package_build_instance", 3, "key Tag: N/A"},
    {"physical_package_fill_reference", 1, "key Tag: N/A"},
    {"product_build_instance", 1, "IdentifyingNumber: N/A"},
    {"product_build_instance", 2, "Name: Not Available; ElementName: Not Available"},
    {"product_build_instance", 3, "key IdentifyingNumber: N/A"},
    {"product_build_instance", 4, "key Name: Not Available"},
    {"product_fill_reference", 1, "key IdentifyingNumber: N/A"},
    {"product_fill_reference", 2, "key Name: Not Available"},
    {"switch_package_build_instance", 1, "Antecedent: Tag=N/A"},
    {"switch_package_build_instance", 2, "Dependent: Name=N/A"},
    {"switch_package_build_instance", 3, "key Antecedent: Tag=N/A"},
    {"switch_package_build_instance", 4, "key Dependent: Name=N/A"},
    {"switch_package_fill_reference", 1, "key Antecedent: Tag=N/A"},
    {"switch_package_fill_reference", 2, "key Dependent: Name=N/A"},
    {"active_connection_build_instance_fspf", 1,
     "Antecedent: SystemName=; key Antecedent: SystemName="},
    {"active_connection_build_instance_fspf", 2,
     "Dependent: SystemName=; key Dependent: SystemName="},
    {"active_connection_fill_reference_fspf", 1, "key Antecedent: SystemName="},
    {"active_connection_fill_reference_fspf", 2, "key Dependent: SystemName="},
    {"ComputerSystem::getAttribute(int, char*)", 1, "Text: Not Available"},
    {"ComputerSystem::getCaption(Pegasus::CIMProperty&)", 1, "Caption: Not Available"},
    {"ComputerSystem::getDescription(Pegasus::CIMProperty&)", 1, "Description: Not Available"},
    {"ComputerSystem::getElementName()", 1, "Text: Not Available"},
    {"ComputerSystem::getElementName(Pegasus::CIMProperty&)", 1, "ElementName: Not Available"},
    {"ComputerSystem::getIdentifyNumber(Pegasus::CIMProperty&)", 1, "IdentifyingNumber: N/A"},
    {"ComputerSystem::getInstallDate(Pegasus::CIMProperty&)", 1, "InstallDate: Not Available"},
    {"ComputerSystem::getName()", 1, "Text: N/A"},
    {"ComputerSystem::getName(Pegasus::CIMProperty&)", 1, "Name: N/A"},
    {"ComputerSystem::getPrimaryOwnerContact(Pegasus::CIMProperty&)", 1,
     "PrimaryOwnerContact: Not Available"},
    {"ComputerSystem::getPrimaryOwnerName(Pegasus::CIMProperty&)", 1,
     "PrimaryOwnerName: Not Available"},
    {"ComputerSystem::getSysName(Pegasus::CIMProperty&)", 1, "Name: Not Available"},
    {"ComputerSystem::getWWN()", 1, "Text: N/A"},
    {"ComputerSystem::get_system_wwn(char*)", 1, "Text: "},
    {"ProviderUtil::deinit_mts(int*)", 1, ""},
    {"ProviderUtil::init_mts(int*)", 1, ""},
};

// ---- the tests

// Functions whose answer is no block that could be cut.
const std::set<std::string> kNoBlock = {
    "snmp_get_sys_info",
    "pfm_get_sprom",
    "pfm_entity_index_to_slot_num",
    "pdb_get_chassis_id_string",
    "kfs_discover_peers",
    "fcs_send_get_inet_addr",
    "mts_recv",
    "mts_bind",
    "mts_unbind",
    "zs_cmi_get_policy",
};

// Success without a reply where it is not a failure. The VSAN manager's entry then counts as read
// and is as it was asked for, deliberately; what answers in place keeps what was there; and a
// discovery's answers are waited for without its request.
const Fallbacks kUnanswered = {
    {"fabric_build_instance", 2, "ElementName: ; -Status"},
    {"switch_build_instance_dm", 1, ""},
    {"switch_build_instance_str (remote)", 2, ""},
    {"switch_build_instance_wwn (remote)", 2, ""},
    {"fcport_build_instance_pm", 1, "VsanName: "},
    {"zone_service_fill_reference", 1, ""},
    {"zone_service_build_instance", 1, ""},
    {"zone_service_build_instance", 5, ""},  // for the path, in the Pegasus face
    {"hosted_service_fill_reference", 1, ""},
    {"hosted_service_build_instance", 1, ""},
    {"hosted_service_build_instance", 3, ""},
    {"logical_module_build_instance", 2, "ModuleNumber: 1"},
};

// The same of the system's information, which only the Pegasus face asks for.
const Fallbacks kNoInformation = {
    {"product_fill_reference", 2, "key Name: "},
    {"product_build_instance", 2, "Name: ; ElementName: "},
    {"product_build_instance", 4, "key Name: "},
    {"ComputerSystem::getAttribute(int, char*)", 1, "Text: "},
    {"ComputerSystem::getCaption(Pegasus::CIMProperty&)", 1, "Caption: "},
    {"ComputerSystem::getDescription(Pegasus::CIMProperty&)", 1, "Description: "},
    {"ComputerSystem::getElementName()", 1, "Text: "},
    {"ComputerSystem::getElementName(Pegasus::CIMProperty&)", 1, "ElementName: "},
    {"ComputerSystem::getInstallDate(Pegasus::CIMProperty&)", 1, "InstallDate: 0 seconds"},
    {"ComputerSystem::getPrimaryOwnerContact(Pegasus::CIMProperty&)", 1, "PrimaryOwnerContact: "},
    {"ComputerSystem::getPrimaryOwnerName(Pegasus::CIMProperty&)", 1, "PrimaryOwnerName: "},
    {"ComputerSystem::getSysName(Pegasus::CIMProperty&)", 1, "Name: "},
};

// A way of failing against the table of all calls and, where others know a call too, against those.
template <class Row>
void expect_as(const std::vector<Row>& rows, Area area, ExchangeFailure how, const Fallbacks& calls,
               const std::vector<Fallbacks>& others = {}) {
  std::map<std::pair<std::string, size_t>, std::string> known;
  for (const Fallback& fallback : of_area(calls, labels_of(rows, area)))
    known[{fallback.row, fallback.exchange}] = fallback.difference;
  for (const Fallbacks& other : others) {
    for (const Fallback& fallback : other) {
      const auto call = known.find({fallback.row, fallback.exchange});
      if (call != known.end()) call->second = fallback.difference;
    }
  }
  Fallbacks found;
  Fallbacks expected;
  for (const Row& row : rows) {
    if (row.area != area) continue;
    SCOPED_TRACE(row.id);
    const std::string unharmed = whole(row);
    const std::string label = label_of(row);
    size_t exchange = 0;
    for (const Round& round : failing(row, how)) {
      found.insert({label, ++exchange, difference(unharmed, round.text)});
      const bool goes_well = how == ExchangeFailure::cut_reply && kNoBlock.contains(round.function);
      const auto call = known.find({label, exchange});
      EXPECT_NE(call, known.end()) << "not listed: " << exchange;
      expected.insert({label, exchange, goes_well || call == known.end() ? "" : call->second});
    }
    // Every listed call is made.
    const auto of_row = [&label](const auto& call) { return call.first.first == label; };
    EXPECT_EQ(static_cast<size_t>(std::count_if(known.begin(), known.end(), of_row)), exchange);
  }
  EXPECT_EQ(found, expected);
}

class CmpiBuilderExchanges : public testing::TestWithParam<Area> {
 protected:
  BuilderPlatform platform_{kQueue, kUnbound};
};

TEST_P(CmpiBuilderExchanges, ARefusedOneLeavesOutWhatDependsOnIt) {
  expect_as(cmpi_rows(), GetParam(), ExchangeFailure::refused, kCmpi);
}

TEST_P(CmpiBuilderExchanges, AStatusIsLikeARefusal) {
  expect_as(cmpi_rows(), GetParam(), ExchangeFailure::status, kCmpi);
}

TEST_P(CmpiBuilderExchanges, ATimeOutIsLikeARefusal) {
  expect_as(cmpi_rows(), GetParam(), ExchangeFailure::timed_out, kCmpi);
}

TEST_P(CmpiBuilderExchanges, AnAnswerWithoutAReplyIsLikeARefusal) {
  expect_as(cmpi_rows(), GetParam(), ExchangeFailure::no_reply, kCmpi,
            {kUnanswered, kNoInformation});
}

TEST_P(CmpiBuilderExchanges, AReplyThatLacksAByteIsLikeARefusal) {
  expect_as(cmpi_rows(), GetParam(), ExchangeFailure::cut_reply, kCmpi,
            {kUnanswered, kNoInformation});
}

class PegasusBuilderExchanges : public testing::TestWithParam<Area> {
 protected:
  BuilderPlatform platform_{kOtherFacesQueue, kQueue};
};

TEST_P(PegasusBuilderExchanges, ARefusedOneLeavesOutWhatDependsOnIt) {
  expect_as(pegasus_rows(), GetParam(), ExchangeFailure::refused, kPegasus);
}

TEST_P(PegasusBuilderExchanges, AStatusIsLikeARefusal) {
  expect_as(pegasus_rows(), GetParam(), ExchangeFailure::status, kPegasus);
}

TEST_P(PegasusBuilderExchanges, ATimeOutIsLikeARefusal) {
  expect_as(pegasus_rows(), GetParam(), ExchangeFailure::timed_out, kPegasus);
}

TEST_P(PegasusBuilderExchanges, AnAnswerWithoutAReplyIsLikeARefusal) {
  expect_as(pegasus_rows(), GetParam(), ExchangeFailure::no_reply, kPegasus,
            {kUnanswered, kNoInformation});
}

TEST_P(PegasusBuilderExchanges, AReplyThatLacksAByteIsLikeARefusal) {
  expect_as(pegasus_rows(), GetParam(), ExchangeFailure::cut_reply, kPegasus,
            {kUnanswered, kNoInformation});
}

std::string name_of_parameter(const testing::TestParamInfo<Area>& area) {
  return name_of_area(area.param);
}

INSTANTIATE_TEST_SUITE_P(Each, CmpiBuilderExchanges, testing::ValuesIn(kAreas), name_of_parameter);
INSTANTIATE_TEST_SUITE_P(Each, PegasusBuilderExchanges, testing::ValuesIn(kAreas),
                         name_of_parameter);

TEST(BuilderExchanges, NoFallbackIsListedOfACallThatIsNotMade) {
  std::set<std::string> cmpi;
  std::set<std::string> pegasus;
  for (const Area area : kAreas) {
    cmpi.merge(labels_of(cmpi_rows(), area));
    pegasus.merge(labels_of(pegasus_rows(), area));
  }
  EXPECT_EQ(of_area(kCmpi, cmpi), kCmpi);
  EXPECT_EQ(of_area(kPegasus, pegasus), kPegasus);
  for (const Fallbacks* table : {&kUnanswered, &kNoInformation}) {
    for (const Fallback& special : *table) {
      const auto same_call = [&special](const Fallback& call) {
        return call.row == special.row && call.exchange == special.exchange;
      };
      EXPECT_TRUE(std::any_of(kCmpi.begin(), kCmpi.end(), same_call) ||
                  std::any_of(kPegasus.begin(), kPegasus.end(), same_call))
          << special;
    }
  }
}

}  // namespace

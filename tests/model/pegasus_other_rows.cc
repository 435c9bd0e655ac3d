// The rows of class ComputerSystem, of what the builders of ProviderUtil share, and of what it does
// besides building.
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMValue.h>
#include <cim_utils/computer_system.h>
#include <cim_utils/provider_util.h>

#include <utility>

#include "tests/model/pegasus_row_table.h"

namespace builders {
namespace {

using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMProperty;
using Pegasus::CIMValue;
using Pegasus::String;
using test_support::Record;
using test_support::Script;

constexpr size_t kLongestItem = 1029;

template <uint32_t selector>
void item(Script& script, int32_t) {
  script.expect(test_support::get_system_info(selector))
      .gives(Record(1032).host32(0, selector).text(4, "sydney"));
}

void up_time(Script& script, int32_t) {
  script.expect(test_support::get_system_info(6)).gives(Record(1032).host32(0, 6).host32(4, 12399));
}

void binding(Script& script, int32_t) {
  script.expect(test_support::bind("CIM Response SAP")).returns(23);
}

void unbinding(Script& script, int32_t) {
  script.expect(test_support::unbind(test_support::kQueue)).returns(0);
}

// What a getter makes of a property that was another.
using Getter = int (ComputerSystem::*)(CIMProperty&);
PegasusObject got(Getter getter) {
  CIMProperty property(CIMName("Before"), CIMValue(Pegasus::Uint8(7)));
  ComputerSystem system;
  (system.*getter)(property);
  return property;
}

// A text as a property, for the functions that return one.
PegasusObject as_property(const char* text) {
  return CIMProperty(CIMName("Text"), CIMValue(String(text)));
}

}  // namespace

void add_computer_system_getters(std::vector<PegasusRow>& rows) {
  PegasusTable t(rows, Area::others);
  const auto getter = [&t](const char* name, Getter function, Lines lines = no_lines) {
    t.row(std::string("ComputerSystem::") + name + "(Pegasus::CIMProperty&)", lines, nullptr,
          [function] { return got(function); });
  };
  using C = ComputerSystem;
  getter("getCaption", &C::getCaption, item<3>);
  getter("getDescription", &C::getDescription, item<3>);
  getter("getInstallDate", &C::getInstallDate, up_time);
  getter("getCreationClassName", &C::getCreationClassName);
  getter("getName", &C::getName);
  getter("getElementName", &C::getElementName, item<2>);
  getter("getSysName", &C::getSysName, item<2>);
  getter("getVendor", &C::getVendor);
  getter("getVersion", &C::getVersion);
  getter("getIdentifyNumber", &C::getIdentifyNumber);
  getter("getOperStatus", &C::getOperStatus);
  getter("getStatus", &C::getStatus);
  getter("getNameFormat", &C::getNameFormat);
  getter("getPrimaryOwnerName", &C::getPrimaryOwnerName, item<0>);
  getter("getPrimaryOwnerContact", &C::getPrimaryOwnerContact, item<0>);
  getter("getDedicated", &C::getDedicated);
  getter("getPowerManagementCapabilities", &C::getPowerManagementCapabilities);
  getter("getRoles", &C::getRoles);
  getter("getOtherIdentifyingInfo", &C::getOtherIdentifyingInfo);
  getter("getIdentifyingDescriptions", &C::getIdentifyingDescriptions);
  getter("getResetCapability", &C::getResetCapability);
  t.row("ComputerSystem::ComputerSystem(int)", no_lines, nullptr, []() -> PegasusObject {
    const C system(23);
    return std::monostate();
  });
  t.row("ComputerSystem::getName()", no_lines, nullptr, [] { return as_property(C().getName()); });
  t.row("ComputerSystem::getWWN()", no_lines, nullptr, [] { return as_property(C().getWWN()); });
  t.row("ComputerSystem::getElementName()", item<2>, nullptr,
        [] { return as_property(C().getElementName()); });
  t.row("ComputerSystem::getAttribute(int, char*)", item<2>, nullptr, [] {
    char text[kLongestItem] = {};
    C().getAttribute(2, text);
    return as_property(text);
  });
  t.row("ComputerSystem::get_system_wwn(char*)", no_lines, nullptr, [] {
    char text[17] = {};
    C().get_system_wwn(text);
    return as_property(text);
  });
}

void add_pegasus_others(std::vector<PegasusRow>& rows) {
  PegasusTable t(rows, Area::others);
  using P = ProviderUtil;
  static char name[] = "Dedicated";
  static char text[] = "a text";
  t.row("getUIntArrayProperty(Pegasus::CIMProperty&, char*, int)", no_lines, nullptr,
        []() -> PegasusObject {
          CIMProperty property;
          getUIntArrayProperty(property, name, 5);
          return property;
        });
  t.row("getStringArrayProperty(Pegasus::CIMProperty&, char*, char*)", no_lines, nullptr,
        []() -> PegasusObject {
          CIMProperty property;
          getStringArrayProperty(property, name, text);
          return property;
        });
  t.row("ProviderUtil::convert_uint_to_array(unsigned short)", no_lines, nullptr,
        []() -> PegasusObject { return P::convert_uint_to_array(5); });
  t.row("ProviderUtil::addQualifiers(Pegasus::CIMInstance&, Pegasus::String)", no_lines, nullptr,
        []() -> PegasusObject {
          CIMInstance instance(CIMName("VEXOR_ZoneSet"));
          instance.addProperty(CIMProperty(CIMName("InstanceID"), CIMValue(String("10_7_1"))));
          instance.addProperty(CIMProperty(CIMName("NoSuch"), CIMValue(String("dropped"))));
          P::addQualifiers(instance, kNamespace);
          return instance;
        });
  t.row("ProviderUtil::ProviderUtil()", no_lines, nullptr, []() -> PegasusObject {
    const P none;
    return std::monostate();
  });
  t.row("ProviderUtil::~ProviderUtil()", no_lines, nullptr, []() -> PegasusObject {
    const P none;
    return std::monostate();
  });
  t.row("ProviderUtil::init_mts(int*)", binding, nullptr, []() -> PegasusObject {
    const int bound = std::exchange(P::mts_q, -1);
    int queue = -1;
    P::init_mts(&queue);
    P::mts_q = bound;
    return std::monostate();
  });
  t.row("ProviderUtil::deinit_mts(int*)", unbinding, nullptr, []() -> PegasusObject {
    int queue = test_support::kQueue;
    P::deinit_mts(&queue);
    return std::monostate();
  });
  t.row("ProviderUtil::gdb_check()", no_lines, nullptr, []() -> PegasusObject {
    P::gdb_check();
    return std::monostate();
  });
}

}  // namespace builders

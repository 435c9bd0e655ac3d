// The providers as an object manager sees them, with a switch of two VSANs behind them.
#ifndef TESTS_PROVIDERS_PROVIDER_FIXTURE_H
#define TESTS_PROVIDERS_PROVIDER_FIXTURE_H

#include "tests/providers/provider_objects_fixture.h"
#include "tests/providers/switch_double.h"

namespace provider_tests {

inline constexpr const char* kVsan1 =
    "root/cimv2:VEXOR_Vsan.Name=\"2001000DEC0A1B2D\",CreationClassName=\"VEXOR_Vsan\"";
inline constexpr const char* kVsan2 =
    "root/cimv2:VEXOR_Vsan.Name=\"2002000DEC0A1B2D\",CreationClassName=\"VEXOR_Vsan\"";
inline constexpr const char* kFabric =
    "root/cimv2:VEXOR_AdminDomain.Name=\"2001000DEC0A1B2D\","
    "CreationClassName=\"VEXOR_AdminDomain\"";
inline constexpr const char* kVsan1Instance =
    "VEXOR_Vsan {Name=\"2001000DEC0A1B2D\", NameFormat=\"WWN\", ElementName=\"VSAN0001\", "
    "VsanId=uint16 1, Status=\"Up\", CreationClassName=\"VEXOR_Vsan\", "
    "LoadBalancingType=\"src-id/dst-id/ox-id\"}";
inline constexpr const char* kVsan2Instance =
    "VEXOR_Vsan {Name=\"2002000DEC0A1B2D\", NameFormat=\"WWN\", ElementName=\"VSAN0002\", "
    "VsanId=uint16 2, Status=\"Up\", CreationClassName=\"VEXOR_Vsan\", "
    "LoadBalancingType=\"src-id/dst-id/ox-id\"}";
inline constexpr const char* kFabricInstance =
    "VEXOR_AdminDomain {NameFormat=\"WWN\", Name=\"2001000DEC0A1B2D\", ElementName=\"VSAN0001\", "
    "Status=\"Up\", CreationClassName=\"VEXOR_AdminDomain\"}";

class ProviderFixture : public ProviderObjects {
 protected:
  // A queue that someone else has bound before: init_mts gives it out.
  ProviderFixture() { mts_q = test_support::kQueue; }

  CMPIObjectPath* vsan_path(const char* name) {
    return broker_.path("VEXOR_Vsan", {{"Name", name}, {"CreationClassName", "VEXOR_Vsan"}});
  }
  CMPIObjectPath* fabric_path(const char* name = "2001000DEC0A1B2D") {
    return broker_.path("VEXOR_AdminDomain",
                        {{"Name", name}, {"CreationClassName", "VEXOR_AdminDomain"}});
  }

  SwitchDouble switch_{2};
};

}  // namespace provider_tests

#endif

// Whichever exchange fails, and however: an operation on ports ends in its result or in an error
// that says something, and nothing is left behind.
#include "tests/port_providers/port_fixture.h"

namespace {

using namespace port_tests;

class PortFailures : public PortTest {
 protected:
  // Result: whether it succeeded.
  template <class Operation>
  static bool ends_well(Operation operation) {
    try {
      operation();
      return true;
    } catch (const CimError& error) {
      EXPECT_NE(std::string(error.what()), "");
      EXPECT_NE(error.code(), CMPI_RC_OK);
      return false;
    }
  }

  // Runs the operation once for each of its exchanges, which then fails.
  template <class Operation>
  void sweep(const char* what, Operation operation) {
    control::set_faults({});
    const uint64_t all = exchanges(operation);
    const auto before = control::outstanding();
    ASSERT_GT(all, 0u) << what;
    for (const auto kind : {Fault::Kind::error, Fault::Kind::status, Fault::Kind::without_reply,
                            Fault::Kind::short_reply}) {
      for (uint64_t n = 1; n <= all; ++n) {
        Fault fault;
        fault.kind = kind;
        fault.nth = static_cast<uint32_t>(n);
        fault.value = kind == Fault::Kind::short_reply ? 3 : 62;
        control::set_faults({fault});
        ends_well(operation);
        EXPECT_EQ(control::outstanding().messages, before.messages)
            << what << ", exchange " << n << ", kind " << static_cast<int>(kind);
      }
    }
    control::set_faults({});
    EXPECT_TRUE(ends_well(operation)) << what;
  }
};

TEST_F(PortFailures, EveryExchangeOfAListing) {
  generate("switches=2,ports=4,vsans=2,devices=3,seed=2");
  for (const char* cls :
       {"VEXOR_FCPort", "VEXOR_EthernetPort", "VEXOR_FCPortStatistics",
        "VEXOR_FCPortStatisticalData", "VEXOR_ProtocolEndPoint", "VEXOR_LogicalPortGroup",
        "VEXOR_FCPortCapabilities", "VEXOR_FCPortSettings"})
    sweep(cls, [&] { instances(cls); });
}

TEST_F(PortFailures, EveryExchangeOfALookUp) {
  for (const std::string& port :
       {port_path(kFc1), port_path(kFc2),
        port_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F", "VEXOR_LogicalComputerSystem"),
        port_path("2000000DEC0A1B5E_16842754_1", "2000000DEC0A1B5E"),
        port_path("3_1_2100001122334401", "unknown system", "VEXOR_Vsan"),
        port_path("2_2041000DEC0A1B2C", "unknown system"),
        endpoint_path("2041000DEC0A1B2C", kOwnWwn),
        endpoint_path("1_1_98_1_0_16842754", "2001000DEC0A1B5F"),
        endpoint_path("2_1_2100001122334401", ""),
        id_path("VEXOR_LogicalPortGroup", "2000001122334421"),
        id_path("VEXOR_FCPortStatistics", kFc1)})
    sweep(port.c_str(), [&] { get(port); });
}

TEST_F(PortFailures, EveryExchangeOfAChange) {
  sweep("alias", [&] { modify(port_path(kFc1), {{"ElementName", Data::string("x")}}); });
  sweep("speed", [&] {
    modify(id_path("VEXOR_FCPortSettings", kFc9),
           {{"RequestedSpeed", Data::of(CMPI_uint64, uint64_t{1062500000})},
            {"RequestedType", Data::of(CMPI_uint16, uint64_t{5})}});
    modify(id_path("VEXOR_FCPortSettings", kFc9),
           {{"RequestedSpeed", Data::of(CMPI_uint64, uint64_t{0})},
            {"RequestedType", Data::of(CMPI_uint16, uint64_t{17001})}});
  });
  sweep("state", [&] { request_state(port_path(kFc9), 3); });
}

}  // namespace

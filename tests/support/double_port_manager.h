// Lines of the port manager, of the IP configuration and of the FCIP manager.
#ifndef TESTS_SUPPORT_DOUBLE_PORT_MANAGER_H
#define TESTS_SUPPORT_DOUBLE_PORT_MANAGER_H

#include <cstdint>
#include <vector>

#include "tests/support/script.h"

namespace test_support {

// A request for one interface: pm_cmi_get_port_config, pm_cmi_get_fcot_info, pm_cmi_get_elp_info.
// Expected: kQueue, one key, both of whose words are the interface index, a reply count, an
// out-pointer preset to null, and `last` (4; for pm_cmi_get_fcot_info -1, time-out 20).
class PortQuery : public Line<PortQuery> {
 public:
  PortQuery(const char* function, int32_t operation, uint32_t if_index);
  PortQuery& last(int32_t word) { return number("last", word); }
  PortQuery& timeout(int32_t seconds) { return number("timeout", seconds); }

  // Success and the record, reply count 1.
  PortQuery& gives(const Bytes& record);
  // Success without a record, reply count 0.
  PortQuery& gives_nothing() { return returns(0).count(0); }
  // A failure that hands out a record all the same.
  PortQuery& fails_with_record(int64_t result, const Bytes& record);
  // -1; mts_errno_get tells 62.
  PortQuery& times_out() { return fails(-1).with_errno(62); }
  PortQuery& count(int32_t n);
};
PortQuery get_port(uint32_t if_index);
PortQuery get_next_port(uint32_t if_index);
PortQuery get_fcot(uint32_t if_index);
PortQuery get_elp(int32_t operation, uint32_t if_index);

// pm_cmi_set_port_config. Expected: kQueue, words 0, 0, 1, the key, the attribute, the value and
// its length, a reply count, a reply pointer preset to null, `last` 4.
class PortChange : public Line<PortChange> {
 public:
  PortChange(uint32_t if_index, int32_t attribute, const Bytes& value);
  // Success with a reply, reply count 1.
  PortChange& replies(const Bytes& reply);
  // Success with a reply of 8 bytes, whose second word (network order) is the service's status.
  PortChange& service_status(uint32_t status);
  PortChange& fails_with_reply(int64_t result, const Bytes& reply);
  PortChange& ok_without_reply() { return returns(0); }
  PortChange& count(int32_t n);
};
PortChange set_port(uint32_t if_index, int32_t attribute, const Bytes& value);

// pm_get_port_counters, words 1, 1.
class CountersQuery : public Line<CountersQuery> {
 public:
  explicit CountersQuery(uint32_t if_index);
  CountersQuery& gives(const Bytes& block) { return returns(0).hands_out(block); }
  CountersQuery& gives_nothing() { return returns(0); }
  CountersQuery& fails_with_block(int64_t result, const Bytes& block) {
    return returns(result).hands_out(block);
  }
};
CountersQuery get_port_counters(uint32_t if_index);

// ipconf_get_intf_ip_address of an interface of the type.
class AddressQuery : public Line<AddressQuery> {
 public:
  AddressQuery(uint32_t if_index, int32_t type);
  AddressQuery& gives(const Bytes& block) { return returns(0).hands_out(block); }
  AddressQuery& gives_nothing() { return returns(0); }
  AddressQuery& fails_with_block(int64_t result, const Bytes& block) {
    return returns(result).hands_out(block);
  }
};
AddressQuery get_interface_address(uint32_t if_index, int32_t type);

// ips_mgr_fcip_get_fcip_if_for_eth_if_blk and ips_mgr_fcip_get_eth_if_for_fcip_if_blk.
class BindingQuery : public Line<BindingQuery> {
 public:
  BindingQuery(const char* function, const char* argument, uint32_t if_index);
  // A block of the count and the indexes.
  BindingQuery& gives(const std::vector<uint32_t>& if_indexes);
  // A block as it is: counts that are not true.
  BindingQuery& gives_block(const std::vector<uint32_t>& words);
  BindingQuery& gives_nothing() { return returns(0); }
};
BindingQuery fcip_interfaces_of(uint32_t ethernet_if_index);
BindingQuery ethernet_interfaces_of(uint32_t fcip_if_index);

}  // namespace test_support

#endif

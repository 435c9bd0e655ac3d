#include <cim_utils/collections.h>
#include <cim_utils/formats.h>
#include <cim_utils/name_server.h>
#include <cim_utils/vsan.h>

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstring>
#include <utility>

#include <switch_platform/name_server.h>

#include "common/c_heap.h"
#include "common/exchange.h"
#include "common/list_builder.h"

namespace cim_utils {
namespace {

using Entries = CHeap<ns_api_register_req_>;

constexpr uint32_t kReplySeconds = 10;
constexpr int32_t kQueryRejected = 0x4025000A;
constexpr uint32_t kScsi = 8;
constexpr uint32_t kVsanUp = 1;

ns_query_ query_of(uint32_t vsan, uint16_t attributes) {
  return {vsan, attributes, {}, {}};
}

// One query of the name server: the request that was sent, and the reply to it.
class Query {
 public:
  explicit Query(int32_t session) : session_(session), request_(session), reply_(session) {}

  // Where the function that sends the request stores it.
  mts_msg_t** request_out() { return request_.out(); }

  // Waits for the reply to the request. False, after a line on standard output, without one.
  bool wait(const char* failure) {
    if (request_.get() != nullptr &&
        receive(session_, mts_rr_token_get(request_.get()), kReplySeconds, &reply_) >= 0 &&
        reply_.get() != nullptr)
      return true;
    std::fputs(failure, stdout);
    return false;
  }

  // Reads how many entries the reply holds. Result: that of the client, 0 or a failure.
  int32_t read_status() { return ns_parse_get_entry_status(reply_.get(), &count_, &cursor_); }

  // Of a reply that rejects the query; what the client says of it is printed.
  void print_rejection() {
    int32_t error = 0;
    int32_t explanation = 0;
    if (ns_parse_get_ct_error(reply_.get(), &error, &explanation) == kQueryRejected)
      std::printf("CT error = %d, expln = %d\n", error, explanation);
  }

  int32_t count() const { return count_; }

  bool read(int32_t index, ns_api_register_req_* entry) {
    return ns_parse_get_entry(reply_.get(), cursor_, entry, index) == 0;
  }

  // Whether the entry's device was given before. False when that cannot be told.
  bool read_duplicate(int32_t index, bool* duplicate) {
    uint8_t flag = 0;
    if (ns_parse_is_entry_duplicate(reply_.get(), cursor_, index, &flag) != 0) return false;
    *duplicate = flag != 0;
    return true;
  }

 private:
  int32_t session_;
  Message request_;
  Message reply_;
  int32_t count_ = 0;
  void* cursor_ = nullptr;
};

// More ports than a VSAN has FC IDs: a greater count is a broken one.
constexpr int32_t kMostPorts = 1 << 24;

// Room for the entries that a service announces; null when memory runs out or the count is none.
template <typename Record>
CHeap<Record> allocate_announced(int32_t count) {
  if (count < 0 || count > kMostPorts) return nullptr;
  return allocate<Record>(static_cast<size_t>(std::max(count, 1)));
}

bool no_entries(int32_t* count_out, ns_api_register_req_** entries_out) {
  if (count_out == nullptr || entries_out == nullptr) return false;
  *count_out = 0;
  *entries_out = nullptr;
  return true;
}

int32_t print_parse_failure() {
  std::printf("parse_get_entry_status returned error");
  return -1;
}

void print_entry(const ns_api_register_req_& entry) {
  char port[17];
  char node[17];
  cim_sprintf_wwn(port, &entry.port_wwn);
  cim_sprintf_wwn(node, &entry.node_wwn);
  std::printf("\n%x:%x:%x - %s, ", entry.fcid[1], entry.fcid[2], entry.fcid[3], port);
  std::printf("\n%s\n", node);
}

// What a WWN that is looked up is the name of.
enum class Named { port, node, fabric_port };

// What the lookups by a WWN differ in.
struct LookUp {
  Named named;
  const char* send_failure;
  const char* receive_failure;
};
constexpr LookUp kByPort = {Named::port, "get_entry_given_port_name failed!", "MTS recv failed!"};
constexpr LookUp kByNode = {Named::node, "get_entry_given_node_name failed!", "MTS recv failed!"};
constexpr LookUp kByFabricPort = {Named::fabric_port, "get_entry_given_fab_port_name failed!",
                                  "get fwwn entry MTS recv failed!"};

// The client takes a WWN as the two words that it is in memory. Its functions are called, not
// pointed to: a process may load the library before it has them.
int32_t send_by_wwn(Named named, int32_t session, uint32_t vsan, const uint8_t* wwn,
                    mts_msg_t** request) {
  uint32_t words[2];
  std::memcpy(words, wwn, sizeof words);
  const ns_query_ query = query_of(vsan, NS_ATTRIBUTES_ALL);
  switch (named) {
    case Named::port:
      return ns_send_get_entry_given_portname(session, words[0], words[1], &query, request);
    case Named::node:
      return ns_send_get_entries_given_nodename(session, words[0], words[1], &query, request);
    case Named::fabric_port:
      return ns_send_get_entries_given_fab_port_name(session, words[0], words[1], &query, request);
  }
  return -1;
}

int32_t look_up(const LookUp& by, int32_t session, uint32_t vsan, const uint8_t* wwn,
                int32_t* count_out, ns_api_register_req_** entries_out) {
  if (!no_entries(count_out, entries_out) || wwn == nullptr) return -1;
  Query query(session);
  if (send_by_wwn(by.named, session, vsan, wwn, query.request_out()) != 0) {
    std::fputs(by.send_failure, stdout);
    return -1;
  }
  if (!query.wait(by.receive_failure)) return -1;
  if (query.read_status() != 0) return print_parse_failure();
  auto entries = allocate_announced<ns_api_register_req_>(query.count());
  if (entries == nullptr) return -1;
  int32_t filled = 0;
  while (filled < query.count() && query.read(filled, &entries[filled]))
    print_entry(entries[filled++]);
  *count_out = filled;
  *entries_out = entries.release();
  return 0;
}

// The bytes of a WWN text; false when it does not parse.
bool read_wwn(const char* text, wwn_* wwn) {
  return text != nullptr && wwn_cim_get_hex_from_str_wwn(text, wwn) == 0;
}

// The number that its eight bytes, most significant first, write.
uint64_t number_of(const wwn_& wwn) {
  uint64_t number = 0;
  for (const uint8_t byte : wwn.bytes)
    number = number << 8 | byte;
  return number;
}

// Reads the entries of a VSAN-wide walk; returns how many.
int32_t read_walk(Query& query, ns_api_register_req_* entries) {
  int32_t filled = 0;
  while (filled < query.count() && query.read(filled, &entries[filled])) {
    const ns_api_register_req_& entry = entries[filled++];
    bool duplicate = false;
    if (!query.read_duplicate(filled - 1, &duplicate)) {
      std::printf("entry_dup failed!");
      break;
    }
    std::printf("\nnodename: %" PRIx64, number_of(entry.node_wwn));
    // Kept all the same, deliberately: the caller sees every registration.
    if (duplicate) std::printf("(duplicate)");
  }
  return filled;
}

// A set of switch ports, by the text of their WWN.
class SwitchPorts {
 public:
  SwitchPorts() : table_(cim_g_hash_table_new()) {}
  SwitchPorts(const SwitchPorts&) = delete;
  SwitchPorts& operator=(const SwitchPorts&) = delete;
  ~SwitchPorts() { cim_g_hash_table_destroy(table_, 0); }

  bool holds(const char* text) const { return g_hash_table_lookup(table_, text) != nullptr; }
  // False when memory runs out.
  bool add(const char* text) { return cim_g_hash_table_insert(table_, text, this) == 0; }

 private:
  GHashTable* table_;
};

// Copies the first entry of each switch port. Result: how many; -1 when memory runs out.
int32_t copy_one_per_port(const ns_api_register_req_* all, int32_t count,
                          ns_api_register_req_* kept) {
  SwitchPorts seen;
  int32_t filled = 0;
  for (int32_t i = 0; i < count; ++i) {
    char text[17];
    cim_sprintf_wwn(text, &all[i].fabric_port_wwn);
    if (seen.holds(text)) {
      std::printf("found FL %s  with multiple NL ports \n", text);
      continue;
    }
    if (!seen.add(text)) return -1;
    kept[filled++] = all[i];
  }
  return filled;
}

// How a WWN is looked up for the code of a link name; null: not at all.
const LookUp* look_up_for(int32_t code) {
  switch (code) {
    case NS_CIM_FABRIC_SIDE:
    case NS_CIM_ISCSI_FABRIC_SIDE:
      return &kByFabricPort;
    case NS_CIM_NODE_SIDE:
    case NS_CIM_ISCSI_NODE_SIDE:
      return &kByPort;
    case NS_CIM_NODE:
      return &kByNode;
    default:
      return nullptr;
  }
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t ns_cim_get_node_or_nxport_with_wwn_byte_array(int32_t session, uint32_t vsan,
                                                      const uint8_t* wwn, int32_t by_node,
                                                      int32_t* count_out,
                                                      ns_api_register_req_** entries_out) {
  return look_up(by_node != 0 ? kByNode : kByPort, session, vsan, wwn, count_out, entries_out);
}

int32_t ns_cim_get_node_or_nxport_with_wwn(int32_t session, uint32_t vsan, const wwn_* wwn,
                                           int32_t by_node, int32_t* count_out,
                                           ns_api_register_req_** entries_out) {
  return ns_cim_get_node_or_nxport_with_wwn_byte_array(
      session, vsan, wwn != nullptr ? wwn->bytes : nullptr, by_node, count_out, entries_out);
}

int32_t ns_cim_get_node_or_nxport_with_string_wwn(int32_t session, uint32_t vsan,
                                                  const char* wwn_text, int32_t by_node,
                                                  int32_t* count_out,
                                                  ns_api_register_req_** entries_out) {
  wwn_ wwn;
  if (!no_entries(count_out, entries_out) || !read_wwn(wwn_text, &wwn)) return -1;
  return ns_cim_get_node_or_nxport_with_wwn(session, vsan, &wwn, by_node, count_out, entries_out);
}

int32_t ns_cim_get_fxport_entries_with_wwn_byte_array(int32_t session, uint32_t vsan,
                                                      const uint8_t* fabric_port_wwn,
                                                      int32_t* count_out,
                                                      ns_api_register_req_** entries_out) {
  return look_up(kByFabricPort, session, vsan, fabric_port_wwn, count_out, entries_out);
}

int32_t ns_cim_get_fxport_entries_with_string_wwn(int32_t session, uint32_t vsan,
                                                  const char* wwn_text, int32_t* count_out,
                                                  ns_api_register_req_** entries_out) {
  wwn_ wwn;
  if (!no_entries(count_out, entries_out) || !read_wwn(wwn_text, &wwn)) return -1;
  return look_up(kByFabricPort, session, vsan, wwn.bytes, count_out, entries_out);
}

int32_t ns_cim_get_fc4_devices(int32_t session, uint32_t vsan, const char* wwn_text,
                               int32_t* count_out, ns_fc4_device_** devices_out) {
  if (count_out == nullptr || devices_out == nullptr) return -1;
  *count_out = 0;
  *devices_out = nullptr;
  wwn_ wwn;
  if (!read_wwn(wwn_text, &wwn)) return -1;
  Message reply(session);
  if (ns_get_fc4_devices(session, vsan, kScsi, wwn.bytes, reply.out()) != 0 ||
      reply.get() == nullptr)
    return -1;
  const int32_t count = ns_parse_get_num_fc4_devices(reply.get());
  auto devices = allocate_announced<ns_fc4_device_>(count);
  if (devices == nullptr) return -1;
  int32_t filled = 0;
  while (filled < count &&
         ns_parse_get_fc4_device_entry(reply.get(), &devices[filled], filled) == 0) {
    const uint8_t* fcid = devices[filled++].fcid;
    std::printf("\n%x:%x:%x", fcid[1], fcid[2], fcid[3]);
  }
  *count_out = filled;
  *devices_out = devices.release();
  return 0;
}

int32_t ns_cim_get_all_nodes_or_ports_in_vsan(int32_t session, uint32_t vsan, int32_t fabric_side,
                                              int32_t* count_out,
                                              ns_api_register_req_** entries_out) {
  if (!no_entries(count_out, entries_out)) return -1;
  const ns_query_ block =
      query_of(vsan, fabric_side != 0 ? NS_ATTRIBUTES_FABRIC_PORTS : NS_ATTRIBUTES_ALL);
  Query query(session);
  if (ns_send_get_entries_given_port_type(session, NS_PORT_TYPE_NX, &block, query.request_out()) !=
      0) {
    std::printf("get nodes in vsan error");
    return -1;
  }
  if (!query.wait("get nodes in vsan MTS recv failed!")) return -1;
  const int32_t status = query.read_status();
  if (status == kQueryRejected) query.print_rejection();
  if (status != 0) return print_parse_failure();
  auto entries = allocate_announced<ns_api_register_req_>(query.count());
  if (entries == nullptr) return -1;
  *count_out = read_walk(query, entries.get());
  *entries_out = entries.release();
  return 0;
}

int32_t ns_cim_get_all_fxports_in_vsan(int32_t session, uint32_t vsan, int32_t one_per_fabric_port,
                                       int32_t* count_out, ns_api_register_req_** entries_out) {
  if (!no_entries(count_out, entries_out)) return -1;
  int32_t count = 0;
  ns_api_register_req_* walked = nullptr;
  const int32_t status = ns_cim_get_all_nodes_or_ports_in_vsan(session, vsan, 0, &count, &walked);
  const Entries all(walked);
  if (status != 0) return -1;
  auto entries = allocate_announced<ns_api_register_req_>(count);
  if (entries == nullptr) return -1;
  if (one_per_fabric_port != 0) {
    count = copy_one_per_port(all.get(), count, entries.get());
    if (count < 0) return -1;
  } else {
    std::copy_n(all.get(), count, entries.get());
  }
  *count_out = count;
  *entries_out = entries.release();
  return 0;
}

int32_t ns_cim_get_all_fxports_by_domain_id_in_vsan(int32_t session, uint32_t vsan, uint8_t domain,
                                                    int32_t one_per_fabric_port, int32_t* count_out,
                                                    GSList** list) {
  if (count_out == nullptr || list == nullptr) return -1;
  *count_out = 0;
  int32_t count = 0;
  ns_api_register_req_* walked = nullptr;
  const int32_t status =
      ns_cim_get_all_fxports_in_vsan(session, vsan, one_per_fabric_port, &count, &walked);
  const Entries all(walked);
  if (status != 0) return -1;
  ListBuilder matching(list);
  for (int32_t i = 0; i < count; ++i) {
    if (all[i].fcid[1] != domain) continue;
    if (!matching.append_copy(&all[i], sizeof all[i])) return -1;
    ++*count_out;
  }
  return *count_out > 0 ? 0 : -1;
}

int32_t ns_cim_get_all_name_server_entries_with_wwn(int32_t session, const uint8_t* wwn,
                                                    int32_t code, int32_t, int32_t, GSList** list) {
  if (wwn == nullptr || list == nullptr) return -1;
  int32_t vsan_count = 0;
  vsanNewEntry_t* listed = nullptr;
  const int32_t status = vsan_cim_get_all_vsanEntry(session, &vsan_count, &listed);
  const CHeap<vsanNewEntry_t> vsans(listed);
  if (status != 0) {
    std::printf("ns cim util get all vsan error %d\n", status);
    return -1;
  }
  const LookUp* by = look_up_for(code);
  ListBuilder found(list);
  for (int32_t i = 0; i < vsan_count && by != nullptr; ++i) {
    if (vsans[i].oper_state != kVsanUp) continue;
    int32_t count = 0;
    ns_api_register_req_* in_vsan = nullptr;
    look_up(*by, session, vsans[i].vsan_index, wwn, &count, &in_vsan);
    const Entries entries(in_vsan);
    for (int32_t j = 0; j < count; ++j) {
      if (!found.append_copy(&entries[j], sizeof entries[j])) return -1;
    }
  }
  return *list != nullptr ? 0 : -1;
}

int32_t ns_cim_get_ns_entries_with_link_name(int32_t session, const char* link_name,
                                             int32_t* code_out, int32_t* vsan_out,
                                             char* wwn_text_out, int32_t* count_out,
                                             ns_api_register_req_** entries_out) {
  if (!no_entries(count_out, entries_out)) return -1;
  if (ns_cim_get_fields_from_name(link_name, code_out, vsan_out, wwn_text_out) != 0) return -1;
  // By port WWN for a fabric-side name too, deliberately.
  if (ns_cim_get_node_or_nxport_with_string_wwn(session, static_cast<uint32_t>(*vsan_out),
                                                wwn_text_out, 0, count_out, entries_out) != 0)
    return -1;
  return *count_out > 0 ? 0 : -1;
}

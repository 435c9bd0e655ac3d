// Lines and messages of the name server. The ns_parse_* functions read the message and need no
// lines.
#ifndef TESTS_SUPPORT_DOUBLE_NAME_SERVER_H
#define TESTS_SUPPORT_DOUBLE_NAME_SERVER_H

#include <cstdint>
#include <memory>
#include <vector>

#include "tests/support/script.h"

namespace test_support {

// The four ns_send_get_* functions. To be said: the query block of 16 bytes.
class NameServerQuery : public SendingLine<NameServerQuery> {
 public:
  NameServerQuery(const char* function, uint32_t word0, uint32_t word1);
  NameServerQuery(const char* function, uint32_t port_type);
  NameServerQuery& query(const Bytes& block) { return bytes("query", block); }
};
// By the two words of the WWN, as the function gets them.
NameServerQuery query_port_name(uint32_t word0, uint32_t word1);
NameServerQuery query_node_name(uint32_t word0, uint32_t word1);
NameServerQuery query_fabric_port_name(uint32_t word0, uint32_t word1);
NameServerQuery query_port_type(uint32_t port_type);

inline constexpr int32_t kNameServerRejects = 0x4025000a;

// The reply to such a query, for receive().receives(...).
//   name_server_reply().entry(Record(768)...).entry(...)
class NameServerReply {
 public:
  NameServerReply();
  // One registered port, padded with zeros to 768 bytes.
  NameServerReply& entry(const Bytes& entry);
  // The count that ns_parse_get_entry_status tells; the number of entries unless said.
  NameServerReply& count(int32_t n);
  // What ns_parse_get_entry_status returns; it then leaves count and cursor alone.
  NameServerReply& status(int32_t result);
  // What ns_parse_get_ct_error finds, and that it finds something.
  NameServerReply& ct_error(int32_t error, int32_t explanation);
  // Reading the entry fails: the walk ends before it.
  NameServerReply& entry_fails(int32_t index, int32_t result = 1);
  NameServerReply& duplicate(int32_t index);
  NameServerReply& duplicate_fails(int32_t index, int32_t result = 1);
  operator Content() const;  // NOLINT: to be received as a message

  struct Reply;

 private:
  std::shared_ptr<Reply> reply_;
};
NameServerReply name_server_reply();

// ns_get_fc4_devices of the node in the VSAN, FC-4 type 8 unless said. The wwn is 8 bytes.
class Fc4Query : public Line<Fc4Query> {
 public:
  Fc4Query(uint32_t vsan, const Bytes& wwn);
  Fc4Query& fc4_type(uint32_t type) { return number("fc4_type", type); }
  Fc4Query& gives(const Content& reply) { return gives_message(0, reply); }
  Fc4Query& fails_with_message(int64_t result, const Content& reply) {
    return gives_message(result, reply);
  }
};
Fc4Query query_fc4_devices(uint32_t vsan, const Bytes& wwn);

// The reply: device records, padded with zeros to 24 bytes. Reading an index past them fails.
Content fc4_devices(const std::vector<Bytes>& devices);
// With a count that is not true.
Content fc4_devices(const std::vector<Bytes>& devices, int32_t count);

}  // namespace test_support

#endif

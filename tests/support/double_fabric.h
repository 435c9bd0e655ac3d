// Lines and messages of the fabric configuration server's address query and of the fabric
// distribution service. Their parse functions and iterators read the message and need no lines.
#ifndef TESTS_SUPPORT_DOUBLE_FABRIC_H
#define TESTS_SUPPORT_DOUBLE_FABRIC_H

#include <cstdint>
#include <memory>
#include <vector>

#include "tests/support/script.h"

namespace test_support {

// fcs_send_get_inet_addr on kQueue, word 1.
class AddressListQuery : public SendingLine<AddressListQuery> {
 public:
  AddressListQuery();
  // Success without a request message.
  AddressListQuery& sent_without_message();
};
AddressListQuery query_switch_addresses();

// The reply to it, for receive().receives(...). The list that fcs_parse_get_inet_addr hands out has
// to be freed.
class AddressListReply {
 public:
  AddressListReply();
  // An entry of 396 bytes: the domain ID at 360, the switch's name at 364.
  AddressListReply& entry(uint8_t domain, const char* name);
  AddressListReply& entry(const Bytes& entry);
  AddressListReply& status(int32_t status);  // 1 unless said
  AddressListReply& count(int32_t n);        // the number of entries unless said
  // fcs_parse_get_inet_addr fails and leaves its arguments alone.
  AddressListReply& parse_fails(int32_t result);
  // It fails and hands out the list all the same.
  AddressListReply& parse_fails_with_list(int32_t result);
  operator Content() const;  // NOLINT: to be received as a message

  struct Reply;

 private:
  std::shared_ptr<Reply> reply_;
};
AddressListReply switch_addresses();

// kfs_discover_peers with the request of 28 bytes, word 2, on kQueue.
class PeerDiscovery : public SendingLine<PeerDiscovery> {
 public:
  explicit PeerDiscovery(const Bytes& request);
};
PeerDiscovery discover_peers(const Bytes& request);

// The reply, for receive().timeout(20).no_token().receives(...). The iterator has to be destroyed
// once (see Script::iterators_may_be_left).
class PeerReply {
 public:
  PeerReply();
  // The answer of one peer, exactly these bytes (60 where nothing else is tried).
  PeerReply& answer(const Bytes& answer);
  // WWN (8 bytes) at 4, address family at 40, address (at most 16 bytes) at 44.
  PeerReply& answer(const Bytes& wwn, uint32_t family, const Bytes& address);
  // A peer whose answer is null.
  PeerReply& no_answer();
  PeerReply& count(int32_t n);  // the number of answers, null ones included, unless said
  PeerReply& attributes_fail(int32_t result);
  // kfs_iter_parse_response fails and hands out an iterator all the same.
  PeerReply& parse_fails(int32_t code);
  PeerReply& parse_fails_without_iterator(int32_t code);
  // It succeeds and hands out no iterator.
  PeerReply& no_iterator();
  operator Content() const;  // NOLINT: to be received as a message

  struct Reply;

 private:
  std::shared_ptr<Reply> reply_;
};
PeerReply peers();

}  // namespace test_support

#endif

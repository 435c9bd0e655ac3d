// Lines and messages of the domain manager. The dm_parse_* functions read the message and need no
// lines; an index past the list fails the test.
#ifndef TESTS_SUPPORT_DOUBLE_DOMAIN_MANAGER_H
#define TESTS_SUPPORT_DOUBLE_DOMAIN_MANAGER_H

#include <cstdint>
#include <vector>

#include "tests/support/script.h"

namespace test_support {

struct DomainId {
  uint32_t vsan;
  uint8_t domain;
};

// The message that dm_get_dom_ids_in_sw hands out.
Content domain_list(const std::vector<DomainId>& domains);
// The same, announcing another number of entries. Those that are missing read as zeros.
Content domain_list(const std::vector<DomainId>& domains, int32_t announced);

// dm_get_dom_ids_in_sw on kQueue, zero word 0.
class DomainIdsQuery : public Line<DomainIdsQuery> {
 public:
  DomainIdsQuery();
  DomainIdsQuery& gives(const Content& message) { return gives_message(0, message); }
  DomainIdsQuery& fails_with_message(int64_t result, const Content& message) {
    return gives_message(result, message);
  }
};
DomainIdsQuery query_domain_ids();

}  // namespace test_support

#endif

// Lines of the platform manager (slots, entities, chassis) and of the system services (software
// version, system information).
#ifndef TESTS_SUPPORT_DOUBLE_SYSTEM_H
#define TESTS_SUPPORT_DOUBLE_SYSTEM_H

#include <cstdint>

#include "tests/support/script.h"

namespace test_support {

// pfm_slot_num_to_entity_index and pfm_entity_index_to_slot_num. A failure leaves the number alone.
class NumberQuery : public Line<NumberQuery> {
 public:
  NumberQuery(const char* function, const char* asked, uint32_t n, const char* out);
  NumberQuery& gives(uint32_t n) { return returns(0).gives_number(n); }
};
NumberQuery entity_of_slot(uint32_t slot);
NumberQuery slot_of_entity(uint32_t entity);

// pfm_get_sprom with words 0, 2, 0 into a zeroed buffer of 498 bytes.
class PromQuery : public Line<PromQuery> {
 public:
  PromQuery();
  PromQuery& gives(const Bytes& content) { return returns(0).hands_out(content); }
  PromQuery& fails_with_content(int64_t result, const Bytes& content) {
    return returns(result).hands_out(content);
  }
};
PromQuery read_chassis_prom();

// pdb_get_chassis_id_string, srg_sw_ver_get(0): a text or null.
class TextQuery : public Line<TextQuery> {
 public:
  explicit TextQuery(const char* function);
  TextQuery& gives(const char* text) { return gives_text(text); }
  TextQuery& zero(int32_t word) { return number("zero", word); }
};
TextQuery chassis_id();
TextQuery software_version();

// snmp_get_sys_info of the item: the selector in the record's first word, host order.
class SystemInfoQuery : public Line<SystemInfoQuery> {
 public:
  explicit SystemInfoQuery(uint32_t selector);
  // The bytes are written over the record from its beginning (at most 1032).
  SystemInfoQuery& gives(const Bytes& record) { return returns(0).hands_out(record); }
};
SystemInfoQuery get_system_info(uint32_t selector);

}  // namespace test_support

#endif

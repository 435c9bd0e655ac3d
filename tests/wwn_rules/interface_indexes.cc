#include "tests/wwn_rules/interface_indexes.h"

namespace wwn_rules_test {

namespace {

template <class Result>
int32_t answer(std::string call, const Answer& answer, Result* result) {
  platform().calls.push_back(std::move(call));
  if (answer.status == 0) *result = static_cast<Result>(answer.value);
  return answer.status;
}

std::string called(const char* name, uint32_t first) {
  return std::string(name) + "(" + std::to_string(first) + ")";
}

std::string called(const char* name, uint32_t first, uint32_t second) {
  return std::string(name) + "(" + std::to_string(first) + ", " + std::to_string(second) + ")";
}

}  // namespace

InterfaceIndexes& platform() {
  static InterfaceIndexes indexes;
  return indexes;
}

void reset_platform() {
  platform() = InterfaceIndexes{};
}

extern "C" {

int32_t __wrap_if_index_get_type(uint32_t if_index, uint8_t* type) {
  return answer(called("if_index_get_type", if_index), platform().type, type);
}

int32_t __wrap_if_index_get_slot(uint32_t if_index, uint8_t* slot) {
  return answer(called("if_index_get_slot", if_index), platform().slot, slot);
}

int32_t __wrap_if_index_get_port(uint32_t if_index, uint8_t* port) {
  return answer(called("if_index_get_port", if_index), platform().port, port);
}

int32_t __wrap_if_index_port_channel_get_channel_num(uint32_t if_index, uint32_t* channel) {
  return answer(called("if_index_port_channel_get_channel_num", if_index), platform().channel,
                channel);
}

int32_t __wrap_if_index_phy_fc_port_init(uint32_t* if_index, uint32_t slot, uint32_t port) {
  return answer(called("if_index_phy_fc_port_init", slot, port), platform().made, if_index);
}

int32_t __wrap_if_index_iscsi_port_init(uint32_t* if_index, uint32_t slot, uint32_t port) {
  return answer(called("if_index_iscsi_port_init", slot, port), platform().made, if_index);
}

int32_t __wrap_if_index_port_channel_init(uint32_t* if_index, uint32_t channel) {
  return answer(called("if_index_port_channel_init", channel), platform().made, if_index);
}

}  // extern "C"

}  // namespace wwn_rules_test

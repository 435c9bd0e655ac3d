// Changes of an interface's configuration.
#include <cim_utils/port_manager.h>

#include <cstdio>
#include <cstring>

#include <switch_platform/mts.h>
#include <switch_platform/port_manager.h>

#include "adaptors/port_requests.h"
#include "common/wire.h"

namespace cim_utils {
namespace {

// What can be set, by the port manager's numbers.
enum class Attribute : int32_t { admin_state = 1, admin_mode = 2, admin_speed = 3, alias = 6 };

struct ChangeResult {
  int32_t transport;              // the client library's result
  int32_t count;                  // of replies
  std::optional<int32_t> status;  // of the service; nothing without a reply
};

ChangeResult change(int32_t session, uint32_t if_index, Attribute attribute, const void* value,
                    int32_t length) {
  constexpr size_t kStatus = 4;  // offset in the reply
  const pm_if_key_ key = key_of(if_index);
  ChangeResult result{0, 0, std::nullopt};
  void* block = nullptr;
  result.transport = pm_cmi_set_port_config(session, 0, 0, 1, &key, static_cast<int32_t>(attribute),
                                            length, value, &result.count, &block, 4);
  const auto reply = take_bytes(block, kStatus + sizeof(uint32_t));
  if (reply != nullptr) result.status = static_cast<int32_t>(wire::read32(reply.get() + kStatus));
  return result;
}

// Speed and mode: the number is 4 bytes in host order, which the client library converts.
int32_t change_number(int32_t session, uint32_t if_index, Attribute attribute, uint32_t number) {
  const ChangeResult result = change(session, if_index, attribute, &number, sizeof number);
  if (result.status) return *result.status;
  return result.transport != 0 ? result.transport : -1;
}

bool has_speed_and_mode(uint32_t if_index) {
  const auto type = type_of(if_index);
  if (type == PM_IF_ISCSI) std::printf("ISCSI Interface not supported \n");
  return type && type != PM_IF_ISCSI;
}

}  // namespace
}  // namespace cim_utils

using namespace cim_utils;

int32_t pm_cim_set_port_alias(const char* alias, uint32_t if_index, int32_t session) {
  if (alias == nullptr) return -1;
  const auto type = type_of(if_index);
  if (!type || !can_be_asked_about(*type)) return -1;
  if (type == PM_IF_FCIP || type == PM_IF_ISCSI) {
    std::printf("pm_cim_set_port_alias NOT supported for FCIP and ISCSI\n");
    return -1;
  }
  const size_t length = std::strlen(alias);
  if (length > PM_MAX_ALIAS_LENGTH) {
    std::printf("pm_cim_set_port_alias length of alias is %d greater than Port Max Len %d\n",
                static_cast<int>(length), PM_MAX_ALIAS_LENGTH);
    return -1;
  }
  char field[PM_MAX_ALIAS_LENGTH] = {};  // without a terminator when the alias fills it
  std::memcpy(field, alias, length);
  const ChangeResult result = change(session, if_index, Attribute::alias, field, sizeof field);
  return result.transport == 0 ? result.status.value_or(0) : result.transport;
}

int32_t pm_cim_set_port_admin_speed(uint64_t speed, uint32_t if_index, int32_t session) {
  if (!has_speed_and_mode(if_index)) return -1;
  const uint32_t admin_speed = pm_cim_convert_cimport_speed(speed);
  std::printf("port speed is %u \n", pm_cli_dump_port_speed(admin_speed));
  return change_number(session, if_index, Attribute::admin_speed, admin_speed);
}

int32_t pm_cim_set_port_admin_mode(uint32_t cim_mode, uint32_t if_index, int32_t session) {
  if (!has_speed_and_mode(if_index)) return -1;
  const uint32_t admin_mode = pm_cim_convert_cimport_mode(cim_mode);
  std::printf("port mode is %u \n", pm_cli_dump_port_mode(admin_mode));
  return change_number(session, if_index, Attribute::admin_mode, admin_mode);
}

int32_t pm_cim_set_port_admin_status(uint32_t cim_state, uint32_t if_index, int32_t session) {
  const auto type = type_of(if_index);
  if (!type) {
    std::printf("pm_cim_set_port_admin_status(): index type not found\n");
    return -1;
  }
  if (type == PM_IF_IN_BAND) {
    std::printf("pm_cim_set_port_admin_status(): index type INBAND PORT not supported\n");
    return -1;
  }
  if (!can_be_asked_about(*type)) {
    std::printf("pm_cim_set_port_admin_status(): IF table dest info failed\n");
    return -1;
  }
  if (type == PM_IF_PORT_CHANNEL) {
    std::printf("pm_cim_set_port_admin_status(): index type is a physical FC port channel\n");
    return -1;
  }
  const auto state = static_cast<uint8_t>(pm_cim_convert_cimport_state(cim_state));
  std::printf("port state is %u, input state is %u \n", state, cim_state);
  const ChangeResult result =
      change(session, if_index, Attribute::admin_state, &state, sizeof state);
  std::fflush(stdout);
  std::printf("ret_code =%d %s ", result.transport, syserr2str(result.transport));
  // What the service says in its reply is not looked at, deliberately: the transport's result is
  // what callers get.
  if (result.transport != 0 || !result.status || result.count != 1)
    std::printf("pm_cim_set_port_admin_status(): the state of interface 0x%x was not set\n",
                if_index);
  return result.transport;
}

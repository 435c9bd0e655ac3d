// CMPIDateTimeFT.
#include "host/date_time.h"
#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

CMPIUint64 get_binary_format(const CMPIDateTime* date_time, CMPIStatus* rc) {
  return guarded(rc, CMPIUint64{0}, [&]() -> CMPIUint64 {
    const std::string& text = content_of(date_time).text;
    const auto microseconds = microseconds_of(text);
    if (!microseconds) throw CimError(CMPI_RC_ERR_FAILED, text + " is before 1970");
    return *microseconds;
  });
}

CMPIString* get_string_format(const CMPIDateTime* date_time, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIString*>(nullptr), [&] {
    const Shell<CMPIDateTime>& shell = shell_of(date_time);
    return make_string(shell.broker, shell.content->text);
  });
}

CMPIBoolean get_is_interval(const CMPIDateTime* date_time, CMPIStatus* rc) {
  return guarded(rc, CMPIBoolean{0}, [&] {
    return static_cast<CMPIBoolean>(is_interval(content_of(date_time).text) ? 1 : 0);
  });
}

}  // namespace

CMPIDateTimeFT date_time_table() {
  return {
      .ftVersion = kTableVersion,
      .release = release_object<CMPIDateTime>,
      .clone = clone_object<CMPIDateTime>,
      .getBinaryFormat = get_binary_format,
      .getStringFormat = get_string_format,
      .isInterval = get_is_interval,
  };
}

}  // namespace cim::host

// CMPIStringFT.
#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

const char* get_char_ptr(const CMPIString* string, CMPIStatus* rc) {
  return guarded(rc, static_cast<const char*>(nullptr),
                 [&] { return content_of(string).text.c_str(); });
}

}  // namespace

CMPIStringFT string_table() {
  return {
      .ftVersion = kTableVersion,
      .release = release_object<CMPIString>,
      .clone = clone_object<CMPIString>,
      .getCharPtr = get_char_ptr,
  };
}

}  // namespace cim::host

// What the tests and the fake provider share: how it shall behave, and what was asked of it.
#ifndef TESTS_HOST_FAKE_PROVIDER_H_
#define TESTS_HOST_FAKE_PROVIDER_H_

#include <cmpidt.h>

enum class FakeMode {
  normal,
  fails,               ///< every operation answers with `status` and `message`
  fails_without_text,  ///< the same without a text
  throws,              ///< a C++ exception
  throws_a_number,     ///< what no handler of std::exception catches
  returns_after_done,
  returns_wrong_kind,  ///< an instance where a path is due, and the reverse
  returns_nothing,
  keeps_result,  ///< remembers the CMPIResult beyond the call
  uses_kept_result,
  sets_wrong_type,
  asks_back,             ///< getInstance asks the broker for all names of Test_Tape
  asks_unknown_class,    ///< getInstance asks the broker for a class that there is not
  leaves_namespace_out,  ///< of the paths it returns
};

struct FakeControl {
  FakeMode mode = FakeMode::normal;
  CMPIrc status = CMPI_RC_OK;
  const char* message = "";
  CMPIrc cleanup_status = CMPI_RC_OK;

  // Written by the provider.
  int factories = 0;
  int cleanups = 0;
  int last_terminating = 0;
  char factory_name[32] = {};  ///< the name handed to the generic factory, else "named"
  char last_operation[64] = {};
  char last_class[64] = {};
  char last_path[256] = {};
  char last_namespace[64] = {};
  char last_properties[128] = {};  ///< "A,B", or "(all)"
  char last_filters[128] = {};     ///< association class, result class, role, result role
  char last_arguments[128] = {};
  char last_instance[256] = {};
  unsigned last_flags = 99;
  char last_principal[32] = {};
  CMPIrc last_return_status = CMPI_RC_OK;  ///< of the last call of a result's function
};

/// Exported by the library as "fake_control".
using FakeControlFunction = FakeControl* (*)();

#endif  // TESTS_HOST_FAKE_PROVIDER_H_

// Prints how the providers are registered: vexor_registration openpegasus|sfcb NAMESPACE
#include <cstdio>
#include <string_view>

#include "providers/class_table.h"
#include "providers/registration/registration.h"

using namespace vexor::providers;

int main(int argc, char** argv) {
  const std::string_view format = argc == 3 ? argv[1] : "";
  std::string text;
  if (format == "openpegasus") {
    text = openpegasus_registration(class_table(), {argv[2], VEXOR_VERSION});
  } else if (format == "sfcb") {
    text = sfcb_registration(class_table(), {argv[2], VEXOR_VERSION});
  } else {
    std::fputs("usage: vexor_registration openpegasus|sfcb NAMESPACE\n", stderr);
    return 2;
  }
  const bool written = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
  if (!written) std::perror("vexor_registration");
  return written ? 0 : 1;
}

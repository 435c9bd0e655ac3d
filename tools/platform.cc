#include "tools/platform.h"

#include <optional>

#include "tools/input.h"

#if VEXOR_WITH_SIMULATOR
#include "simulator/control/control.h"
#endif

namespace vexor::tools {

#if VEXOR_WITH_SIMULATOR

namespace control = switch_sim::control;

namespace {

void check(const std::optional<std::string>& problem) {
  if (problem) throw BadInput(*problem);
}

/// The numbers of the generator have no file name that would tell what is meant.
std::optional<std::string> install_generated(const std::string& numbers) {
  std::optional<std::string> problem = control::install_generated(numbers);
  if (problem) problem->insert(0, "--generate: ");
  return problem;
}

}  // namespace

void prepare_platform(const PlatformOptions& options) {
  // A state file of the environment belongs to the fabric of the environment: a change of another
  // fabric must not replace it.
  if (options.fabric || options.generate) check(control::keep_state_in(""));
  if (options.fabric) check(control::install_file(*options.fabric));
  if (options.generate) check(install_generated(*options.generate));
  if (options.state) check(control::keep_state_in(*options.state));
}

void check_platform(Streams& streams) {
  control::tell_problems_to([&streams](const std::string& problem) { streams.error(problem); });
  const std::string problem = control::startup_problem();
  if (!problem.empty()) throw BadInput(problem);
  const std::string unreachable = control::connection_problem();
  if (!unreachable.empty()) throw BadInput("SWITCH_SIM_SOCKET: " + unreachable);
}

std::string platform_fabric() {
  return control::fabric_text();
}

#else

void prepare_platform(const PlatformOptions&) {}

void check_platform(Streams&) {}

std::string platform_fabric() {
  return {};
}

#endif

}  // namespace vexor::tools

#include "simulator/control/control.h"

#include <cstring>
#include <stdexcept>

#include "simulator/client/platform.h"
#include "simulator/fabric/generator.h"
#include "simulator/local/fabric_distribution_response.h"
#include "simulator/server/switch_server.h"

namespace switch_sim::control {
namespace {

template <typename Work>
auto locked(Work work) {
  Platform& platform = Platform::instance();
  const auto lock = platform.lock();
  return work(platform);
}

std::optional<std::string> text_of(std::optional<FabricError> error) {
  return error ? std::optional(std::move(error->message)) : std::nullopt;
}

std::optional<std::string> install_read(ReadFabric read) {
  if (auto* error = std::get_if<FabricError>(&read)) return std::move(error->message);
  return install(std::get<Fabric>(std::move(read)));
}

std::string no_answer(const SwitchConnection& connection, int error) {
  return connection.path() + ": no switch answers there: " + strerror(error);
}

std::string present_text(Platform& platform) {
  SwitchConnection* const connection = platform.connection();
  if (connection == nullptr) return write_fabric(platform.fabric());
  std::string text;
  const int error = connection->ask_fabric(text);
  if (error != 0) throw std::runtime_error(no_answer(*connection, error));
  return text;
}

Fabric present_fabric(Platform& platform) {
  if (platform.connection() == nullptr) return platform.fabric();
  auto read = parse_fabric(present_text(platform), platform.connection()->path());
  if (auto* error = std::get_if<FabricError>(&read)) throw std::runtime_error(error->message);
  return std::get<Fabric>(std::move(read));
}

}  // namespace

Fabric fabric() {
  return locked(present_fabric);
}

Fabric default_fabric() {
  return switch_sim::default_fabric();
}

std::optional<std::string> install(Fabric fabric) {
  sort(fabric);
  if (auto problem = problem_of(fabric)) return problem;
  locked([&](Platform& platform) { platform.install(std::move(fabric)); });
  return std::nullopt;
}

std::optional<std::string> install_text(const std::string& text, const std::string& name) {
  return install_read(parse_fabric(text, name));
}

std::optional<std::string> install_file(const std::string& path) {
  return install_read(read_fabric_file(path));
}

std::optional<std::string> install_generated(const std::string& description) {
  return install_read(generate_fabric(description));
}

std::string fabric_text() {
  return locked(present_text);
}

std::optional<std::string> save(const std::string& path) {
  return locked([&](Platform& platform) {
    return text_of(save_fabric_file(present_fabric(platform), path));
  });
}

std::optional<std::string> keep_state_in(const std::string& path) {
  return locked([&](Platform& platform) { return text_of(platform.keep_state_in(path)); });
}

void tell_problems_to(std::function<void(const std::string& problem)> listener) {
  locked([&](Platform& platform) { platform.tell_problems_to(std::move(listener)); });
}

std::optional<std::string> use_switch_at(const std::string& path) {
  return locked([&](Platform& platform) { return platform.use_switch_at(path); });
}

std::string connection_problem() {
  return locked([](Platform& platform) {
    SwitchConnection* const connection = platform.connection();
    const int error = connection != nullptr ? connection->connect() : 0;
    return error != 0 ? no_answer(*connection, error) : std::string();
  });
}

std::optional<std::string> serve(const std::string& path, int stop,
                                 const std::function<void()>& serving) {
  use_switch_at("");
  SwitchServer server({
      [](const TimedRequest& request) {
        return locked([&](Platform& platform) { return platform.serve(request); });
      },
      [] { return fabric_text(); },
  });
  if (auto problem = server.open(path)) return problem;
  serving();
  return server.run(stop);
}

void reset() {
  locked([](Platform& platform) {
    platform.keep_state_in("");
    platform.tell_problems_to(nullptr);
    platform.install(switch_sim::default_fabric());
    platform.log().keep(false);
    platform.log().clear();
    platform.faults().set({});
    platform.replay(nullptr);
    platform.reset_counts();
    platform.clock().reset();
    platform.freeze_counters(false);
  });
}

std::string startup_problem() {
  return locked([](Platform& platform) { return platform.startup_problem(); });
}

uint64_t exchange_count() {
  return locked([](Platform& platform) { return platform.log().count(); });
}

void keep_log(bool on) {
  locked([&](Platform& platform) { platform.log().keep(on); });
}

std::vector<Exchange> log() {
  return locked([](Platform& platform) { return platform.log().kept(); });
}

void clear_log() {
  locked([](Platform& platform) { platform.log().clear(); });
}

void set_faults(const std::vector<Fault>& faults) {
  locked([&](Platform& platform) { platform.faults().set(faults); });
}

std::optional<std::string> replay(const std::string& recording) {
  auto read = read_recording(recording);
  if (const auto* error = std::get_if<RecordingError>(&read)) {
    return "line " + std::to_string(error->line) + ": " + error->message;
  }
  auto exchanges = std::make_unique<Recording>(std::get<std::vector<Exchange>>(std::move(read)));
  locked([&](Platform& platform) { platform.replay(std::move(exchanges)); });
  return std::nullopt;
}

VirtualTime now() {
  return locked([](Platform& platform) { return platform.clock().now(); });
}

void advance(VirtualTime by) {
  locked([&](Platform& platform) { platform.clock().advance_to(platform.clock().now() + by); });
}

void freeze_counters(bool on) {
  locked([&](Platform& platform) { platform.freeze_counters(on); });
}

void watch_calls(CallWatcher* watcher) {
  call_watcher = watcher;
}

Outstanding outstanding() {
  return locked([](Platform& platform) {
    const HandedOut handed_out = platform.handed_out();
    return Outstanding{handed_out.replies, handed_out.reply_bytes, handed_out.messages,
                       distribution::iterators_outstanding(), handed_out.queues};
  });
}

}  // namespace switch_sim::control

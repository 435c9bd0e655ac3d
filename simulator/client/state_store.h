// Where every change of the fabric is kept: a fabric file, and beside a large one a journal of the
// changes since it was written, so that a change costs its own size and not that of the fabric.
//
// The journal is FILE.journal. Its first line names the fabric file that it goes on from by a
// checksum; each further one is a request that was answered, with a checksum of its own:
//
//   journal of 8c61f2d5b0a3e947
//   5f2b90c3a1d4e876 request token=0 service=272 opcode=65809 operation=3 body=00000001...
//
// Before the fabric file is written anew the journal gets a line that names the new one
// ("... replaced by CHECKSUM"), and is removed after: whenever the process or the machine stops,
// the two together tell every change that was acknowledged, each once. A last line that was not
// written whole belongs to a change that was not.
#ifndef SIMULATOR_CLIENT_STATE_STORE_H
#define SIMULATOR_CLIENT_STATE_STORE_H

#include <array>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <variant>

#include "simulator/fabric/fabric_file.h"
#include "simulator/transport/message.h"

namespace switch_sim {

class StateStore {
 public:
  // Up to this size a fabric file is written anew for every change, and stands alone.
  static constexpr size_t kSmallFile = 65536;

  struct Opened;

  // Keeps nothing.
  StateStore() = default;

  // A store, with the fabric that the file and its journal tell where the file exists. An empty
  // path is a store that keeps nothing.
  static std::variant<Opened, FabricError> open(const std::string& path);

  // Keeps a fabric that came from the last one by answering the request; an error while
  // `is_behind`.
  std::optional<FabricError> save(const Request& request, const Fabric& changed);

  // Another process has changed the file since: open it again.
  bool is_behind() const { return problem_with_others().has_value(); }

  // The next fabric to be kept did not come from the last one.
  void differs() {
    goes_on_ = false;
    differs_ = true;
  }
  // Since the last one that was kept.
  bool has_differed() const { return differs_; }
  const std::string& path() const { return path_; }

 private:
  struct Closer {
    void operator()(FILE* file) const { fclose(file); }
  };

  // Another one means that somebody replaced or changed the file: number, size, seconds and
  // nanoseconds of its last change.
  using Identity = std::array<int64_t, 4>;

  // Nothing for what is no regular file.
  static std::optional<Identity> identity_of(const std::string& path);
  std::string journal_path() const;
  std::optional<FabricError> problem_with_others() const;
  std::optional<FabricError> read_journal(Fabric& fabric);
  std::optional<FabricError> write_anew(const Fabric& changed);
  std::optional<FabricError> append(const Request& request);
  std::optional<FabricError> append_to_journal(const Request& request);
  std::optional<FabricError> start_journal();
  bool is_undisturbed() const;

  std::string path_;      // empty: nothing is kept
  bool goes_on_ = false;  // the file and its journal tell the fabric as it is
  bool differs_ = false;
  uint64_t checksum_ = 0;         // of the fabric file
  size_t size_ = 0;               // of the fabric file
  std::optional<Identity> file_;  // of the fabric file
  std::optional<Identity> journal_file_;
  size_t journal_size_ = 0;  // of what counts in the journal; 0: there is none
  std::unique_ptr<FILE, Closer> journal_;
};

struct StateStore::Opened {
  StateStore store;
  std::optional<Fabric> fabric;
};

}  // namespace switch_sim

#endif  // SIMULATOR_CLIENT_STATE_STORE_H

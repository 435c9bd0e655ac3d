// The CMPIBroker that providers get: its tables, and what their functions share.
//
// A Broker belongs to one ObjectManager, which answers the operations that providers ask for.
#ifndef HOST_BROKER_H_
#define HOST_BROKER_H_

#include <cmpidt.h>
#include <cmpift.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "host/arena.h"
#include "host/behavior.h"
#include "host/data.h"
#include "schema/repository.h"

namespace cim::host {

class ObjectManager;

/// One table of each kind. A broker has its own, since behaviors differ in the slots they leave
/// out.
struct Tables {
  CMPIBrokerFT broker;
  CMPIBrokerEncFT encapsulated;
  CMPIBrokerExtFT system;
  CMPIBrokerMemFT memory;
  CMPIInstanceFT instance;
  CMPIObjectPathFT object_path;
  CMPIArgsFT args;
  CMPIStringFT string;
  CMPIArrayFT array;
  CMPIDateTimeFT date_time;
  CMPIEnumerationFT enumeration;
  CMPIContextFT context;
  CMPIResultFT result;
  CMPIErrorFT error;

  static Tables of(const Behavior& behavior);
};

/// Told what a provider does wrong and what it writes to the log, one line each without its end.
using Report = std::function<void(std::string_view line)>;

class Broker {
 public:
  /// `repository` and `manager` must outlive the broker. `manager` may be null: then every
  /// operation is answered with CMPI_RC_ERR_NOT_SUPPORTED.
  Broker(const schema::Repository& repository, const Behavior& behavior, Report report,
         ObjectManager* manager);
  ~Broker();
  Broker(const Broker&) = delete;
  Broker& operator=(const Broker&) = delete;

  const CMPIBroker* face() const { return &face_; }
  const schema::Repository& repository() const { return repository_; }
  const Behavior& behavior() const { return behavior_; }
  const Tables& tables() const { return tables_; }
  /// \throws CimError CMPI_RC_ERR_NOT_SUPPORTED when there is none
  ObjectManager& manager() const;
  void report(std::string_view line) const;

  /// The arena of the request that this thread works for; outside of any, one that lives as long
  /// as the broker.
  Arena& arena();
  std::shared_ptr<Arena> shared_arena();

  /// Clones: alive until released.
  Arena& clones() { return clones_; }
  /// Frees the content of an object; of a clone, moves the rest to the request.
  void release(Node& node);

 private:
  const schema::Repository& repository_;
  Behavior behavior_;
  Report report_;
  ObjectManager* manager_;
  Tables tables_;
  CMPIBroker face_;
  std::shared_ptr<Arena> outside_ = std::make_shared<Arena>();
  Arena clones_;
};

/// The broker behind the structure that a provider hands in, which may be a provider's copy of it.
/// \throws CimError CMPI_RC_ERR_INVALID_HANDLE
Broker& broker_of(const CMPIBroker* face);

}  // namespace cim::host

#endif  // HOST_BROKER_H_

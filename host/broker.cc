#include "host/broker.h"

#include <utility>

#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {

Tables Tables::of(const Behavior& behavior) {
  return Tables{
      .broker = broker_table(behavior),
      .encapsulated = encapsulated_table(behavior),
      .system = system_table(behavior),
      .memory = memory_table(),
      .instance = instance_table(behavior),
      .object_path = object_path_table(behavior),
      .args = args_table(),
      .string = string_table(),
      .array = array_table(),
      .date_time = date_time_table(),
      .enumeration = enumeration_table(),
      .context = context_table(),
      .result = result_table(behavior),
      .error = error_table(),
  };
}

Broker::Broker(const schema::Repository& repository, const Behavior& behavior, Report report,
               ObjectManager* manager)
    : repository_(repository),
      behavior_(behavior),
      report_(std::move(report)),
      manager_(manager),
      tables_(Tables::of(behavior)),
      face_{this, &tables_.broker, &tables_.encapsulated, &tables_.system,
            behavior.memory_table ? &tables_.memory : nullptr} {}

Broker::~Broker() = default;

ObjectManager& Broker::manager() const {
  if (manager_ == nullptr)
    throw CimError(CMPI_RC_ERR_NOT_SUPPORTED, "this broker answers no operations");
  return *manager_;
}

void Broker::report(std::string_view line) const {
  if (report_) report_(line);
}

std::shared_ptr<Arena> Broker::shared_arena() {
  const Scope* scope = Scope::current();
  return scope != nullptr && &scope->broker() == this ? scope->arena() : outside_;
}

Arena& Broker::arena() {
  const Scope* scope = Scope::current();
  return scope != nullptr && &scope->broker() == this ? *scope->arena() : *outside_;
}

void Broker::release(Node& node) {
  node.drop();
  if (std::unique_ptr<Node> clone = clones_.take(&node)) arena().add(std::move(clone));
}

Broker& broker_of(const CMPIBroker* face) {
  if (face == nullptr || face->hdl == nullptr)
    throw CimError(CMPI_RC_ERR_INVALID_HANDLE, "not a valid CMPIBroker");
  return *static_cast<Broker*>(face->hdl);
}

}  // namespace cim::host

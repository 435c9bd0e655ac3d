// CMPIResultFT: what a provider returns is copied into the collector of the operation.
#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

Collector& collector_for(const CMPIResult* result, ResultOf given) {
  static constexpr const char* kNames[] = {"instances", "object paths", "data"};
  const Shell<CMPIResult>& shell = shell_of(result);
  Collector& collector = *shell.content->collector;
  if (collector.done) {
    shell.broker.report("the provider returns more after returnDone; it was not taken");
    throw CimError(CMPI_RC_ERR_FAILED, "the result is done");
  }
  if (collector.wanted != given) {
    const std::string text = std::string("this operation returns ") +
                             kNames[static_cast<int>(collector.wanted)] + ", not " +
                             kNames[static_cast<int>(given)];
    shell.broker.report(text);
    throw CimError(CMPI_RC_ERR_INVALID_PARAMETER, text);
  }
  return collector;
}

CMPIStatus return_data(const CMPIResult* result, const CMPIValue* value, CMPIType type) {
  return guarded_status([&] {
    if (type == CMPI_instance && value != nullptr) {
      if (content_of(result).collector->wanted == ResultOf::instances) {
        const Shell<CMPIInstance>& shell = shell_of(value->inst);
        collector_for(result, ResultOf::instances)
            .instances.push_back(finished_instance(shell.broker, *shell.content));
        return;
      }
    } else if (type == CMPI_ref && value != nullptr) {
      if (content_of(result).collector->wanted == ResultOf::paths) {
        collector_for(result, ResultOf::paths).paths.push_back(content_of(value->ref));
        return;
      }
    }
    collector_for(result, ResultOf::data).data.push_back(data_from(value, type));
  });
}

CMPIStatus return_instance(const CMPIResult* result, const CMPIInstance* instance) {
  return guarded_status([&] {
    const Shell<CMPIInstance>& shell = shell_of(instance);
    collector_for(result, ResultOf::instances)
        .instances.push_back(finished_instance(shell.broker, *shell.content));
  });
}

CMPIStatus return_object_path(const CMPIResult* result, const CMPIObjectPath* path) {
  return guarded_status([&] {
    const ObjectPath& content = content_of(path);
    collector_for(result, ResultOf::paths).paths.push_back(content);
  });
}

CMPIStatus return_done(const CMPIResult* result) {
  return guarded_status([&] { content_of(result).collector->done = true; });
}

CMPIStatus return_error(const CMPIResult* result, const CMPIError* error) {
  return guarded_status([&] {
    const Shell<CMPIResult>& shell = shell_of(result);
    const ErrorContent& content = content_of(error);
    // The status that the provider's function returns is what the client gets.
    shell.broker.report("the provider returns an error: " + content.message_id + " " +
                        content.message);
  });
}

CMPIResult* clone_result(const CMPIResult* result, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIResult*>(nullptr), [&]() -> CMPIResult* {
    shell_of(result);
    throw CimError(CMPI_RC_ERR_NOT_SUPPORTED, "a result belongs to its request");
  });
}

CMPIStatus release_result(CMPIResult* result) {
  return guarded_status([&] { shell_of(result); });  // the operation still needs it
}

}  // namespace

CMPIResultFT result_table(const Behavior& behavior) {
  CMPIResultFT table{
      .ftVersion = kTableVersion,
      .release = release_result,
      .clone = clone_result,
      .returnData = return_data,
      .returnInstance = return_instance,
      .returnObjectPath = return_object_path,
      .returnDone = return_done,
      .returnError = return_error,
  };
  if (!behavior.optional_slots) {
    table.release = nullptr;
    table.clone = nullptr;
    table.returnError = nullptr;
  }
  return table;
}

}  // namespace cim::host

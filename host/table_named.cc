// CMPIArgsFT and CMPIContextFT: lists of named values.
#include <iterator>

#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

template <class Face>
CMPIStatus add_item(const Face* object, const char* name, const CMPIValue* value, CMPIType type) {
  return guarded_status([&] {
    std::vector<NamedData>& items = content_of(object).items;
    std::string item_name = text_argument(name, "the name");
    Data data = data_from(value, type);
    if (NamedData* known = find_named(items, item_name)) {
      known->data = std::move(data);
    } else {
      items.push_back({std::move(item_name), std::move(data)});
    }
  });
}

template <class Face>
CMPIData get_item(const Face* object, const char* name, CMPIStatus* rc, const char* what,
                  CMPIrc missing) {
  return guarded_data(rc, kMissing, [&] {
    const Shell<Face>& shell = shell_of(object);
    const std::string item_name = text_argument(name, "the name");
    const NamedData* item = find_named(shell.content->items, item_name);
    if (item == nullptr) throw CimError(missing, "no " + (what + (" " + item_name)));
    return to_cmpi(shell.broker, item->data);
  });
}

template <class Face>
CMPIData get_item_at(const Face* object, CMPICount index, CMPIString** name, CMPIStatus* rc) {
  return guarded_data(rc, kMissing, [&] {
    if (name != nullptr) *name = nullptr;
    const Shell<Face>& shell = shell_of(object);
    const NamedData& item = item_at(shell.content->items, index, CMPI_RC_ERR_NO_SUCH_PROPERTY);
    give_name(shell.broker, name, item.name);
    return to_cmpi(shell.broker, item.data);
  });
}

template <class Face>
CMPICount get_item_count(const Face* object, CMPIStatus* rc) {
  return guarded(rc, CMPICount{0},
                 [&] { return static_cast<CMPICount>(content_of(object).items.size()); });
}

CMPIData get_arg(const CMPIArgs* args, const char* name, CMPIStatus* rc) {
  return get_item(args, name, rc, "argument", CMPI_RC_ERR_NO_SUCH_PROPERTY);
}

CMPIData get_entry(const CMPIContext* context, const char* name, CMPIStatus* rc) {
  return get_item(context, name, rc, "context entry", CMPI_RC_ERR_NO_SUCH_PROPERTY);
}

}  // namespace

CMPIArgsFT args_table() {
  return {
      .ftVersion = kTableVersion,
      .release = release_object<CMPIArgs>,
      .clone = clone_object<CMPIArgs>,
      .addArg = add_item<CMPIArgs>,
      .getArg = get_arg,
      .getArgAt = get_item_at<CMPIArgs>,
      .getArgCount = get_item_count<CMPIArgs>,
  };
}

CMPIContextFT context_table() {
  return {
      .ftVersion = kTableVersion,
      .release = release_object<CMPIContext>,
      .clone = clone_object<CMPIContext>,
      .getEntry = get_entry,
      .getEntryAt = get_item_at<CMPIContext>,
      .getEntryCount = get_item_count<CMPIContext>,
      .addEntry = add_item<CMPIContext>,
  };
}

}  // namespace cim::host

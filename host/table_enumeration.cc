// CMPIEnumerationFT.
#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

CMPIData get_next(const CMPIEnumeration* enumeration, CMPIStatus* rc) {
  return guarded_data(rc, kMissing, [&] {
    const Shell<CMPIEnumeration>& shell = shell_of(enumeration);
    EnumerationContent& content = *shell.content;
    if (content.next >= content.items.size())
      throw CimError(CMPI_RC_NO_MORE_ELEMENTS, "the enumeration is at its end");
    return to_cmpi(shell.broker, content.items[content.next++]);
  });
}

CMPIBoolean has_next(const CMPIEnumeration* enumeration, CMPIStatus* rc) {
  return guarded(rc, CMPIBoolean{0}, [&] {
    const EnumerationContent& content = content_of(enumeration);
    return static_cast<CMPIBoolean>(content.next < content.items.size() ? 1 : 0);
  });
}

CMPIArray* to_array(const CMPIEnumeration* enumeration, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIArray*>(nullptr), [&] {
    const Shell<CMPIEnumeration>& shell = shell_of(enumeration);
    ArrayContent array{shell.content->type, {}};
    for (const Data& item : shell.content->items)
      array.elements.push_back(item.element);
    return make<CMPIArray>(shell.broker, std::move(array));
  });
}

}  // namespace

CMPIEnumerationFT enumeration_table() {
  return {
      .ftVersion = kTableVersion,
      .release = release_object<CMPIEnumeration>,
      .clone = clone_object<CMPIEnumeration>,
      .getNext = get_next,
      .hasNext = has_next,
      .toArray = to_array,
  };
}

}  // namespace cim::host

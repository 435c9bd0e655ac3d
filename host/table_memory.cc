// CMPIBrokerMemFT: the arena of the request.
#include <cstring>
#include <limits>

#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

CMPIGcStat* mark(const CMPIBroker* face, CMPIStatus* rc) {
  return guarded(rc, static_cast<CMPIGcStat*>(nullptr), [&] {
    Broker& broker = broker_of(face);
    MarkFace* const made = make<MarkFace>(broker, {});
    // The mark itself stays when it is released, so that a second release is harmless.
    content_of(made).count = broker.arena().added();
    return reinterpret_cast<CMPIGcStat*>(made);
  });
}

CMPIStatus release_mark(const CMPIBroker* face, const CMPIGcStat* gc) {
  return guarded_status([&] {
    Broker& broker = broker_of(face);
    broker.arena().free_after(content_of(reinterpret_cast<const MarkFace*>(gc)).count);
  });
}

void* allocate(const CMPIBroker* face, std::size_t size) {
  return guarded(nullptr, static_cast<void*>(nullptr),
                 [&] { return broker_of(face).arena().allocate(size); });
}

void* allocate_zeroed(const CMPIBroker* face, std::size_t count, std::size_t size) {
  if (size != 0 && count > std::numeric_limits<std::size_t>::max() / size) return nullptr;
  return allocate(face, count * size);
}

void* reallocate(const CMPIBroker* face, void* bytes, std::size_t size) {
  return guarded(nullptr, static_cast<void*>(nullptr),
                 [&] { return broker_of(face).arena().reallocate(bytes, size); });
}

char* duplicate(const CMPIBroker* face, const char* text) {
  if (text == nullptr) return nullptr;
  const std::size_t size = std::strlen(text) + 1;
  void* const copy = allocate(face, size);
  if (copy != nullptr) std::memcpy(copy, text, size);
  return static_cast<char*>(copy);
}

void free_bytes(const CMPIBroker* face, void* bytes) {
  if (bytes == nullptr) return;
  guarded_status([&] {
    Broker& broker = broker_of(face);
    if (!broker.arena().free_bytes(bytes))
      broker.report("cmpiFree of bytes that this request did not allocate");
  });
}

template <class Face>
void free_object(const CMPIBroker*, Face* object) {
  release_object(object);
}

/// Queries are not supported, so there is none to free.
void free_select_exp(const CMPIBroker*, CMPISelectExp*) {}

}  // namespace

CMPIBrokerMemFT memory_table() {
  return {
      .ftVersion = kTableVersion,
      .mark = mark,
      .release = release_mark,
      .cmpiMalloc = allocate,
      .cmpiCalloc = allocate_zeroed,
      .cmpiRealloc = reallocate,
      .cmpiStrDup = duplicate,
      .cmpiFree = free_bytes,
      .freeInstance = free_object<CMPIInstance>,
      .freeObjectPath = free_object<CMPIObjectPath>,
      .freeArgs = free_object<CMPIArgs>,
      .freeString = free_object<CMPIString>,
      .freeArray = free_object<CMPIArray>,
      .freeDateTime = free_object<CMPIDateTime>,
      .freeSelectExp = free_select_exp,
  };
}

}  // namespace cim::host

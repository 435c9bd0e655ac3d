// The CMPI face: paths and instances made through the broker's function tables.
#pragma once

#include <cmpidt.h>
#include <cmpift.h>

#include "model/builder.h"

namespace cim_utils {

// A path that the broker made, for builders and for the exported functions that add keys
// themselves. Null, or with a null handle, when the broker has none; then nothing is done to it.
CMPIObjectPath* new_path(const CMPIBroker* broker, const char* ns, const char* cls);

// An instance of a fresh path without keys; null when the broker has none.
CMPIInstance* new_instance(const CMPIBroker* broker, const char* ns, const char* cls);

bool usable(const CMPIObjectPath* path);
bool usable(const CMPIInstance* instance);

void add_reference_key(CMPIObjectPath* path, const char* role, const CMPIObjectPath* end);
void set_reference(CMPIInstance* instance, const char* role, const CMPIObjectPath* end);

class CmpiBuilder final : public model::Builder {
 public:
  explicit CmpiBuilder(const CMPIBroker* broker) : path_(broker), instance_(broker) {}

  model::Face face() const override { return model::Face::cmpi; }
  int32_t queue() const override;
  // The keys of an instance live in its properties; its path has none.
  bool instances_have_paths() const override { return false; }
  model::Opened open_path(const char* cls, const char* ns, model::BadPath bad_path) override;
  model::ObjectWriter* open_instance(const char* cls, const char* ns, const model::KeyNames& keys,
                                     model::Filter filter, const char** properties) override;
  model::ObjectWriter* open_instance(const char* cls, const char* ns) override;
  model::Ref close_path(model::ObjectWriter*) override { return {path_.path}; }
  model::Object close_instance(model::ObjectWriter*) override { return {instance_.instance}; }

 private:
  // Turns values of every CIM type into one broker call with its type code.
  class Writer : public model::ObjectWriter {
   public:
    explicit Writer(const CMPIBroker* broker) : broker_(broker) {}
    void text(const char* name, const char* value) final;
    void boolean(const char* name, bool value) final;
    void uint8(const char* name, uint8_t value) final;
    void uint16(const char* name, uint16_t value) final;
    void uint32(const char* name, uint32_t value) final;
    void uint64(const char* name, uint64_t value) final;
    void sint32(const char* name, int32_t value) final;
    void uint16s(const char* name, std::span<const uint16_t> values) final;
    void same_uint16s(const char* first, const char* second,
                      std::span<const uint16_t> values) final;
    void uint64s(const char* name, std::span<const uint64_t> values) final;
    void texts(const char* name, std::span<const char* const> values) final;
    void reference(const char* role, model::Ref end) final;
    void path(model::Ref) final {}

   protected:
    ~Writer() = default;
    virtual void set(const char* name, const CMPIValue* value, CMPIType type) = 0;
    const CMPIBroker* broker() const { return broker_; }

   private:
    CMPIArray* new_array(size_t count, CMPIType type);
    CMPIArray* new_array(std::span<const uint16_t> values);
    void set_array(const char* name, CMPIArray* array, CMPIType type);
    const CMPIBroker* broker_;
  };

  class PathWriter final : public Writer {
   public:
    using Writer::broker;
    using Writer::Writer;
    CMPIObjectPath* path = nullptr;

   private:
    void set(const char* name, const CMPIValue* value, CMPIType type) override;
  };

  class InstanceWriter final : public Writer {
   public:
    using Writer::broker;
    using Writer::Writer;
    CMPIInstance* instance = nullptr;

   private:
    void set(const char* name, const CMPIValue* value, CMPIType type) override;
  };

  PathWriter path_;
  InstanceWriter instance_;
};

// What the exported functions return.
inline CMPIObjectPath* to_cmpi(model::Ref ref) {
  return const_cast<CMPIObjectPath*>(static_cast<const CMPIObjectPath*>(ref.object));
}

inline CMPIInstance* to_cmpi(model::Object object) {
  return const_cast<CMPIInstance*>(static_cast<const CMPIInstance*>(object.object));
}

}  // namespace cim_utils

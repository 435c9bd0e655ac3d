// The Pegasus face: paths and instances as values of the OpenPegasus provider interface.
#pragma once

#include <Pegasus/Common/Array.h>
#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMObjectPath.h>
#include <Pegasus/Common/CIMProperty.h>
#include <Pegasus/Common/CIMValue.h>
#include <Pegasus/Common/String.h>

#include <array>
#include <optional>

#include "model/builder.h"

namespace cim_utils {

class PegasusBuilder final : public model::Builder {
 public:
  PegasusBuilder() = default;
  // With a text, a path that cannot be made is told on standard output, the text and then the
  // exception's message, and left out; otherwise the exception passes to the caller.
  explicit PegasusBuilder(const char* bad_path_text) : bad_path_text_(bad_path_text) {}

  model::Face face() const override { return model::Face::pegasus; }
  int32_t queue() const override;
  bool instances_have_paths() const override { return true; }
  model::Opened open_path(const char* cls, const char* ns, model::BadPath bad_path) override;
  // The request's property list does not reach this face.
  model::ObjectWriter* open_instance(const char* cls, const char* ns, const model::KeyNames& keys,
                                     model::Filter filter, const char** properties) override;
  model::ObjectWriter* open_instance(const char* cls, const char* ns) override;
  model::Ref close_path(model::ObjectWriter* path) override;
  // Copies the class's qualifiers to the instance.
  model::Object close_instance(model::ObjectWriter* instance) override;

 private:
  // Turns values of every CIM type into CIMValues.
  class Writer : public model::ObjectWriter {
   public:
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

   protected:
    ~Writer() = default;
    virtual void set(const char* name, const Pegasus::CIMValue& value) = 0;
  };

  class PathWriter final : public Writer {
   public:
    void path(model::Ref) override {}
    const char* cls = nullptr;
    const char* ns = nullptr;
    Pegasus::Array<Pegasus::CIMKeyBinding> keys;

   private:
    void set(const char* name, const Pegasus::CIMValue& value) override;
  };

  class InstanceWriter final : public Writer {
   public:
    void path(model::Ref path) override;
    std::optional<Pegasus::CIMInstance> instance;

   private:
    void set(const char* name, const Pegasus::CIMValue& value) override;
  };

  model::Ref make_path();

  const char* bad_path_text_ = nullptr;
  PathWriter path_;
  InstanceWriter instance_;
  // Closed paths. An association's instance makes the most: two ends, the ends of its path again,
  // and the path.
  std::array<std::optional<Pegasus::CIMObjectPath>, 8> closed_;
  size_t closed_count_ = 0;
};

// What the exported functions return; an uninitialised value where nothing was built.
Pegasus::CIMObjectPath to_pegasus(model::Ref ref);
Pegasus::CIMInstance to_pegasus(model::Object object);

// An association of two given references, under the two role names.
Pegasus::CIMObjectPath association_reference(const char* cls, const Pegasus::String& ns,
                                             const Pegasus::CIMObjectPath& first,
                                             const Pegasus::CIMObjectPath& second,
                                             const char* first_role, const char* second_role);
Pegasus::CIMInstance association_instance(const char* cls, const Pegasus::String& ns,
                                          const Pegasus::CIMObjectPath& first,
                                          const Pegasus::CIMObjectPath& second,
                                          const char* first_role, const char* second_role);

}  // namespace cim_utils

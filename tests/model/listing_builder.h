// A third builder beside the two faces: it lists what a description writes, names and types in
// order, for comparison with the class definitions and between the faces.
#pragma once

#include <string>
#include <vector>

#include "model/builder.h"

namespace cim_utils::model {

class ListingBuilder final : public Builder {
 public:
  struct Entry {
    std::string name;
    std::string type;  // MOF spelling; "[]" behind it for an array
    bool operator==(const Entry&) const = default;
  };
  struct Listed {
    std::string cls;
    bool instance = false;
    bool filtered = false;
    std::vector<Entry> entries;
  };

  // As which face the description is asked; it decides what differs between them.
  explicit ListingBuilder(Face face) : face_(face) {}

  // Everything that was closed, in order. The last is what the description was asked for.
  const std::vector<Listed>& listed() const { return listed_; }

  Face face() const override { return face_; }
  int32_t queue() const override { return 7; }
  bool instances_have_paths() const override { return face_ == Face::pegasus; }
  Opened open_path(const char* cls, const char*, BadPath) override {
    path_.reset(cls, false);
    return {&path_, {}};
  }
  ObjectWriter* open_instance(const char* cls, const char*) override {
    instance_.reset(cls, true);
    return &instance_;
  }
  ObjectWriter* open_instance(const char* cls, const char* ns, const KeyNames&, Filter filter,
                              const char**) override {
    open_instance(cls, ns);
    instance_.current.filtered = filter == Filter::applied;
    return &instance_;
  }
  Ref close_path(ObjectWriter*) override {
    listed_.push_back(path_.current);
    return {this};
  }
  Object close_instance(ObjectWriter*) override {
    listed_.push_back(instance_.current);
    return {this};
  }

 private:
  struct Writer final : ObjectWriter {
    Listed current;
    void reset(const char* cls, bool instance) { current = {cls, instance, false, {}}; }
    void add(const char* name, const char* type) { current.entries.push_back({name, type}); }
    void text(const char* name, const char* value) override {
      if (value != nullptr) add(name, "string");
    }
    void boolean(const char* name, bool) override { add(name, "boolean"); }
    void uint8(const char* name, uint8_t) override { add(name, "uint8"); }
    void uint16(const char* name, uint16_t) override { add(name, "uint16"); }
    void uint32(const char* name, uint32_t) override { add(name, "uint32"); }
    void uint64(const char* name, uint64_t) override { add(name, "uint64"); }
    void sint32(const char* name, int32_t) override { add(name, "sint32"); }
    void uint16s(const char* name, std::span<const uint16_t>) override { add(name, "uint16[]"); }
    void same_uint16s(const char* first, const char* second,
                      std::span<const uint16_t> values) override {
      uint16s(first, values);
      uint16s(second, values);
    }
    void uint64s(const char* name, std::span<const uint64_t>) override { add(name, "uint64[]"); }
    void texts(const char* name, std::span<const char* const>) override { add(name, "string[]"); }
    void reference(const char* role, Ref end) override {
      if (end.object != nullptr) add(role, "reference");
    }
    void path(Ref) override {}
  };

  Face face_;
  Writer path_;
  Writer instance_;
  std::vector<Listed> listed_;
};

}  // namespace cim_utils::model

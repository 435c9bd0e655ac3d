// Associations of two objects.
#pragma once

#include "model/builder.h"

namespace cim_utils::model {

// The roles and the ends of an association. An end that is none is left out.
struct Ends {
  const char* first_role;
  Ref first;
  const char* second_role;
  Ref second;

  void write(ObjectWriter& out) const {
    out.reference(first_role, first);
    out.reference(second_role, second);
  }
};

// The ends are made before the association's own path.
inline Ref association_reference(Builder& b, const char* cls, const char* ns, const Ends& ends) {
  auto [out, ref] = b.open_path(cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  ends.write(*out);
  return b.close_path(out);
}

// `make_ends` is called once more for the instance's path, in the face that has one. The path's
// class may be another than the instance's.
template <class MakeEnds>
Object association_instance(Builder& b, const char* cls, const char* ns, MakeEnds make_ends,
                            const char* path_class) {
  const Ends ends = make_ends();
  ObjectWriter* out = b.open_instance(cls, ns);
  if (out == nullptr) return {};
  ends.write(*out);
  if (b.instances_have_paths()) out->path(association_reference(b, path_class, ns, make_ends()));
  return b.close_instance(out);
}

template <class MakeEnds>
Object association_instance(Builder& b, const char* cls, const char* ns, MakeEnds make_ends) {
  return association_instance(b, cls, ns, make_ends, cls);
}

}  // namespace cim_utils::model

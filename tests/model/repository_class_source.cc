#include "tests/model/repository_class_source.h"

#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMProperty.h>
#include <Pegasus/Common/CIMQualifier.h>
#include <Pegasus/Provider/vexor_class_source.h>

#include <span>

namespace {

using namespace Pegasus;
namespace schema = cim::schema;

String text(const std::string& value) {
  return String(value.c_str());
}

CIMType type_of(schema::Type type) {
  switch (type) {
    case schema::Type::boolean:
      return CIMTYPE_BOOLEAN;
    case schema::Type::uint8:
      return CIMTYPE_UINT8;
    case schema::Type::uint16:
      return CIMTYPE_UINT16;
    case schema::Type::uint32:
      return CIMTYPE_UINT32;
    case schema::Type::uint64:
      return CIMTYPE_UINT64;
    case schema::Type::sint32:
      return CIMTYPE_SINT32;
    case schema::Type::datetime:
      return CIMTYPE_DATETIME;
    case schema::Type::reference:
      return CIMTYPE_REFERENCE;
    default:
      return CIMTYPE_STRING;
  }
}

// Booleans as they are, everything else as its text.
CIMValue value_of(const schema::Value& value) {
  if (value.type() == schema::Type::boolean) return CIMValue(Boolean(value.is_true()));
  return CIMValue(text(schema::to_text(value)));
}

template <class Element>
void add_qualifiers(Element& element, std::span<const schema::Qualifier> qualifiers) {
  for (const schema::Qualifier& qualifier : qualifiers)
    element.addQualifier(CIMQualifier(CIMName(text(qualifier.name)), value_of(qualifier.value)));
}

class Source : public ClassSource {
 public:
  explicit Source(const schema::Repository& repository) : repository_(repository) {}

  CIMClass getClass(const CIMNamespaceName&, const CIMName& name) override {
    const schema::Class* found =
        repository_.find(static_cast<const char*>(name.getString().getCString()));
    if (found == nullptr) return CIMClass();
    CIMClass result{CIMName(text(found->name))};
    add_qualifiers(result, repository_.qualifiers(*found));
    for (const schema::Property* property : repository_.properties(*found)) {
      CIMProperty added(CIMName(text(property->name)),
                        CIMValue(type_of(property->type), property->is_array));
      add_qualifiers(added, property->qualifiers);
      result.addProperty(added);
    }
    return result;
  }

 private:
  const schema::Repository& repository_;
};

}  // namespace

RepositoryClassSource::RepositoryClassSource(const schema::Repository& repository) {
  installClassSource(std::make_shared<Source>(repository));
}

RepositoryClassSource::~RepositoryClassSource() {
  uninstallClassSource();
}

#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMName.h>
#include <Pegasus/Common/CIMPropertyList.h>
#include <Pegasus/Common/Exception.h>
#include <Pegasus/Common/OperationContext.h>
#include <cim_utils/provider_util.h>

#include <cstdio>

#include "common/session.h"

using namespace cim_utils;
using Pegasus::Array;
using Pegasus::CIMClass;
using Pegasus::CIMInstance;
using Pegasus::CIMName;
using Pegasus::CIMNamespaceName;
using Pegasus::CIMProperty;
using Pegasus::CIMValue;
using Pegasus::String;
using Pegasus::Uint16;
using Pegasus::Uint32;

Pegasus::CIMOMHandle ProviderUtil::_cimom;
int ProviderUtil::mts_q = -1;

ProviderUtil::ProviderUtil() = default;
ProviderUtil::~ProviderUtil() = default;

int ProviderUtil::init_mts(int* q_out) {
  // This face's own misspelling.
  return bind_response_queue(mts_q, "succeffuly create mts response q\n", q_out);
}

int ProviderUtil::deinit_mts(int* q) {
  return release_response_queue(q);
}

int ProviderUtil::gdb_check() {
  return stop_for_debugger(kProviderDebugFile, true);
}

namespace {

// Copies the qualifiers of the class and of its properties. Properties that the class does not have
// are left out.
void copy_qualifiers(const CIMClass& from, CIMInstance& instance) {
  for (Uint32 i = 0; i < from.getQualifierCount(); ++i)
    instance.addQualifier(const_cast<CIMClass&>(from).getQualifier(i));

  Array<CIMProperty> kept;
  for (Uint32 i = 0; i < instance.getPropertyCount(); ++i) {
    CIMProperty property = instance.getProperty(i);
    const Uint32 position = from.findProperty(property.getName());
    if (position == PEG_NOT_FOUND) {
      std::printf("ProviderUtil::addQualifiers() - NO SUCH property exception: %s\n",
                  static_cast<const char*>(property.getName().getString().getCString()));
      continue;
    }
    CIMProperty declared = const_cast<CIMClass&>(from).getProperty(position);
    for (Uint32 q = 0; q < declared.getQualifierCount(); ++q)
      property.addQualifier(declared.getQualifier(q));
    kept.append(property);
  }
  for (Uint32 i = instance.getPropertyCount(); i > 0; --i)
    instance.removeProperty(0);
  for (Uint32 i = 0; i < kept.size(); ++i)
    instance.addProperty(kept[i]);
}

}  // namespace

// By value as published.
void ProviderUtil::addQualifiers(CIMInstance& instance,
                                 String nameSpace) {  // NOLINT(performance-unnecessary-value-param)
  std::printf("ProviderUtil::addQualifiers() - Start\n");
  CIMClass definition;
  try {
    definition = _cimom.getClass(Pegasus::OperationContext(), CIMNamespaceName(nameSpace),
                                 instance.getClassName(), /*localOnly=*/false,
                                 /*includeQualifiers=*/true, /*includeClassOrigin=*/false,
                                 Pegasus::CIMPropertyList());
  } catch (const Pegasus::Exception& e) {
    std::printf("ProviderUtil::addQualifiers() - Add qualifiers got exception:  %s",
                static_cast<const char*>(e.getMessage().getCString()));
    return;
  }
  try {
    copy_qualifiers(definition, instance);
  } catch (const Pegasus::Exception& e) {
    std::printf("ProviderUtil::addQualifiers() - Add Qualifier ex: %s\n",
                static_cast<const char*>(e.getMessage().getCString()));
    std::fflush(stdout);
  }
  std::printf("ProviderUtil::addQualifiers() - Exit\n");
  std::fflush(stdout);
}

Array<Uint16> ProviderUtil::convert_uint_to_array(Uint16 value) {
  Array<Uint16> array;
  array.append(value);
  return array;
}

void getUIntArrayProperty(CIMProperty& property, char* name, int value) {
  property = CIMProperty(CIMName(name),
                         CIMValue(ProviderUtil::convert_uint_to_array(static_cast<Uint16>(value))));
}

void getStringArrayProperty(CIMProperty& property, char* name, char* value) {
  Array<String> array;
  array.append(String(value));
  property = CIMProperty(CIMName(name), CIMValue(array));
}

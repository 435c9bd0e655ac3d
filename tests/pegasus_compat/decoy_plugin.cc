// A library written on our classes, as a provider is; loaded by decoy_test.

#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/Exception.h>
#include <Pegasus/Common/System.h>
#include <Pegasus/Provider/CIMOMHandle.h>
#include <Pegasus/Provider/vexor_class_source.h>

#include <memory>
#include <sstream>
#include <string>

namespace {

using namespace Pegasus;  // NOLINT: uses most of it

const String loadedText("made while the library was loaded");
const CIMOMHandle loadedHandle;

std::string described() {
  CIMInstance instance(CIMName("VEXOR_A"));
  instance.addProperty(CIMProperty(CIMName("Text"), CIMValue(String("a") + String("b"))));
  instance.addProperty(CIMProperty(CIMName("Number"), CIMValue(Uint32{7})));
  Array<CIMKeyBinding> keys;
  keys.append(CIMKeyBinding(CIMName("Text"), instance.getProperty(0).getValue()));
  instance.setPath(CIMObjectPath(String("h"), CIMNamespaceName("root"), CIMName("VEXOR_A"), keys));
  Array<Uint32> numbers(2, 5);
  numbers.append(6);
  Array<String> texts(1, String("t"));
  texts.append(String::EMPTY);
  std::ostringstream result;
  result << instance.getPath().toString() << ' ' << instance.getPropertyCount() << ' ' << numbers[2]
         << ' ' << texts.size();
  try {
    instance.addProperty(CIMProperty(CIMName("TEXT"), CIMValue()));
  } catch (const Exception& error) {
    result << ' ' << error.getMessage();
  }
  try {
    CIMOMHandle handle(loadedHandle);
    handle.getClass(OperationContext(), CIMNamespaceName("root"), CIMName("B"), false, true, true,
                    CIMPropertyList());
  } catch (const CIMException& error) {
    result << ' ' << error.getMessage();
  }
  result << ' ' << loadedText.size();
  if (System::getPID() == 0) result << " no process";
  return result.str();
}

class NoClasses : public ClassSource {
 public:
  CIMClass getClass(const CIMNamespaceName&, const CIMName&) override { return CIMClass(); }
};

}  // namespace

// Writes at most size bytes of what the classes made of a short program; ends with a zero.
extern "C" PEGASUS_EXPORT void compat_plugin_describe(char* out, unsigned size) {
  const std::string text = described();
  out[text.copy(out, size - 1)] = '\0';
}

// Leaves a class source installed, as a provider does that forgets it.
extern "C" PEGASUS_EXPORT void compat_plugin_install_source() {
  installClassSource(std::make_shared<NoClasses>());
}

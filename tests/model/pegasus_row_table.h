// How the rows of the Pegasus face are written: each is called by what the compiler knows of the
// function's parameters.
#pragma once

#include <Pegasus/Common/String.h>
#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#include <tuple>
#include <type_traits>
#include <typeinfo>

#include "tests/model/builder_rows.h"

namespace builders {

template <class... Parameters>
struct ParameterList {};

// "char const*, Pegasus::String const&", as listings of a library's symbols have it.
template <class... Parameters>
std::string parameters_text() {
  const std::unique_ptr<char, decltype(&std::free)> demangled(
      abi::__cxa_demangle(typeid(ParameterList<Parameters...>).name(), nullptr, nullptr, nullptr),
      &std::free);
  std::string text = demangled.get();
  const auto first = text.find('<') + 1;
  text = text.substr(first, text.rfind('>') - first);
  const std::string inline_namespace = "vexor_compat::";
  for (size_t at; (at = text.find(inline_namespace)) != std::string::npos;)
    text.erase(at, inline_namespace.size());
  return text;
}

// What the three builders of a record have in common.
struct Stem {
  const char* stem;
  const char* suffix = "";  // of the functions' names
  const char* which = "";   // " (...)" where a builder is called in several ways
  // Rows of the other face; null where it has none.
  const char* reference = nullptr;
  const char* instance = nullptr;
  // What is asked for a path, and for an instance, which has one.
  Lines reference_lines = no_lines;
  Lines instance_lines = no_lines;
};

class PegasusTable {
 public:
  PegasusTable(std::vector<PegasusRow>& rows, Area area) : rows_(rows), area_(area) {}

  void row(const std::string& id, Lines lines, const char* counterpart,
           std::function<PegasusObject()> make) {
    rows_.push_back({id, area_, lines, counterpart != nullptr ? counterpart : "", std::move(make)});
  }

 private:
  std::vector<PegasusRow>& rows_;
  Area area_;
};

// Builders with the given parameters.
template <class... Parameters>
struct Of {
  static void reference(PegasusTable& table, const Stem& stem,
                        Pegasus::CIMObjectPath (*builder)(Parameters...),
                        const std::decay_t<Parameters>&... arguments) {
    add(table, stem, "_fill_reference", stem.reference_lines, stem.reference, builder,
        arguments...);
  }
  static void instances(PegasusTable& table, const Stem& stem,
                        Pegasus::CIMInstance (*instance)(Parameters...),
                        Pegasus::CIMObject (*object)(Parameters...),
                        const std::decay_t<Parameters>&... arguments) {
    add(table, stem, "_build_instance", stem.instance_lines, stem.instance, instance, arguments...);
    add(table, stem, "_build_object", stem.instance_lines, stem.instance, object, arguments...);
  }
  static void triple(PegasusTable& table, const Stem& stem,
                     Pegasus::CIMObjectPath (*path)(Parameters...),
                     Pegasus::CIMInstance (*instance)(Parameters...),
                     Pegasus::CIMObject (*object)(Parameters...),
                     const std::decay_t<Parameters>&... arguments) {
    reference(table, stem, path, arguments...);
    instances(table, stem, instance, object, arguments...);
  }

 private:
  template <class Built>
  static void add(PegasusTable& table, const Stem& stem, const char* operation, Lines lines,
                  const char* counterpart, Built (*builder)(Parameters...),
                  const std::decay_t<Parameters>&... arguments) {
    const std::string id = std::string("ProviderUtil::") + stem.stem + operation + stem.suffix +
                           "(" + parameters_text<Parameters...>() + ")" + stem.which;
    table.row(id, lines, counterpart,
              [builder, all = std::make_tuple(arguments...)]() -> PegasusObject {
                return std::apply(builder, all);
              });
  }
};

}  // namespace builders

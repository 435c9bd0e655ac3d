// A source of class definitions for ProviderUtil::addQualifiers, installed for its lifetime.
#pragma once

#include <Pegasus/Common/CIMClass.h>
#include <Pegasus/Common/CIMQualifier.h>
#include <Pegasus/Common/Exception.h>
#include <Pegasus/Provider/vexor_class_source.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "tests/support/heap_ledger.h"

class ClassSourceDouble {
 public:
  ClassSourceDouble() : source_(std::make_shared<Source>()) {
    Pegasus::installClassSource(source_);
  }
  ~ClassSourceDouble() { Pegasus::uninstallClassSource(); }
  ClassSourceDouble(const ClassSourceDouble&) = delete;
  ClassSourceDouble& operator=(const ClassSourceDouble&) = delete;

  // A class with a class qualifier "Version" and properties of the given names; keys get "Key".
  void define(const char* cls, const std::vector<const char*>& keys,
              const std::vector<const char*>& properties) {
    Pegasus::CIMClass definition{Pegasus::CIMName(cls)};
    definition.addQualifier(Pegasus::CIMQualifier(Pegasus::CIMName("Version"),
                                                  Pegasus::CIMValue(Pegasus::String("1.0"))));
    for (const char* name : keys)
      definition.addProperty(property(name, "Key"));
    for (const char* name : properties)
      definition.addProperty(property(name, "Description"));
    source_->classes.emplace(cls, definition);
  }
  // The namespaces that classes were asked in.
  const std::vector<std::string>& asked_in() const { return source_->asked_in; }

 private:
  static Pegasus::CIMProperty property(const char* name, const char* qualifier) {
    Pegasus::CIMProperty result(Pegasus::CIMName(name),
                                Pegasus::CIMValue(Pegasus::CIMTYPE_STRING, false));
    result.addQualifier(
        Pegasus::CIMQualifier(Pegasus::CIMName(qualifier), Pegasus::CIMValue(true)));
    return result;
  }

  struct Source : Pegasus::ClassSource {
    Pegasus::CIMClass getClass(const Pegasus::CIMNamespaceName& ns,
                               const Pegasus::CIMName& cls) override {
      const test_support::HeapLedger::Pause pause;  // what the object manager does is not counted
      asked_in.emplace_back(ns.getString().getCString());
      const auto found = classes.find(std::string(cls.getString().getCString()));
      return found != classes.end() ? found->second : Pegasus::CIMClass();
    }
    std::map<std::string, Pegasus::CIMClass> classes;
    std::vector<std::string> asked_in;
  };

  std::shared_ptr<Source> source_;
};

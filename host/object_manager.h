// An embedded CIM object manager: the operations of CIM over a class repository and providers.
//
// Failures are thrown as CimError. Names of namespaces, classes, properties and keys are taken in
// any letter case; what comes back has the case of the repository. One operation at a time; a
// provider may ask for operations in the middle of its own.
#ifndef HOST_OBJECT_MANAGER_H_
#define HOST_OBJECT_MANAGER_H_

#include <cmpidt.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/behavior.h"
#include "host/broker.h"
#include "host/cim_error.h"
#include "host/data.h"
#include "schema/repository.h"

namespace cim::host {

class ProviderLibrary;

/// Which classes a provider serves: the concrete classes whose names start with the prefix, and
/// those that carry its name in the qualifier Provider("name").
struct ProviderRoute {
  std::string name;          ///< handed to the library's factories
  std::string library;       ///< file of the shared library
  std::string class_prefix;  ///< empty: classes with the qualifier only
};

struct Settings {
  std::vector<std::string> name_spaces = {"root/cimv2"};
  std::vector<ProviderRoute> providers;
  std::string principal;  ///< who asks: the context entry CMPIPrincipal
  Behavior behavior;
  Report report;  ///< may be empty
};

/// Which properties a client wants; nothing: all of them.
using PropertyList = std::optional<std::vector<std::string>>;

/// The filters of the association operations; an empty text lets everything through.
struct AssociationFilter {
  std::string association_class;
  std::string result_class;
  std::string role;
  std::string result_role;
};

struct MethodResult {
  Data value;
  std::vector<NamedData> out;
};

class ObjectManager {
 public:
  /// `repository` must outlive the manager and stay as it is. Libraries are loaded when a class of
  /// theirs is first asked for.
  ObjectManager(const schema::Repository& repository, Settings settings);
  /// Tells the providers that the end has come, and unloads them.
  ~ObjectManager();
  ObjectManager(const ObjectManager&) = delete;
  ObjectManager& operator=(const ObjectManager&) = delete;

  const schema::Repository& repository() const { return repository_; }
  Broker& broker() { return broker_; }

  /// The instances of a class and of all classes that derive from it.
  std::vector<Instance> enumerate_instances(std::string_view name_space,
                                            std::string_view class_name,
                                            const PropertyList& properties = {});
  std::vector<ObjectPath> enumerate_instance_names(std::string_view name_space,
                                                   std::string_view class_name);

  /// Keys are given their declared types: `VsanId=1` of a path that was typed fits a uint16.
  Instance get_instance(const ObjectPath& path, const PropertyList& properties = {});
  ObjectPath create_instance(const Instance& instance);
  void modify_instance(const Instance& instance, const PropertyList& properties = {});
  void delete_instance(const ObjectPath& path);

  std::vector<Instance> associators(const ObjectPath& path, const AssociationFilter& filter = {},
                                    const PropertyList& properties = {});
  std::vector<ObjectPath> associator_names(const ObjectPath& path,
                                           const AssociationFilter& filter = {});
  /// Filters: result_class (the association) and role.
  std::vector<Instance> references(const ObjectPath& path, const AssociationFilter& filter = {},
                                   const PropertyList& properties = {});
  std::vector<ObjectPath> reference_names(const ObjectPath& path,
                                          const AssociationFilter& filter = {});

  MethodResult invoke_method(const ObjectPath& path, std::string_view method,
                             const std::vector<NamedData>& in);

  /// \throws CimError CMPI_RC_ERR_INVALID_NAMESPACE
  void check_name_space(std::string_view name_space) const;
  /// \throws CimError CMPI_RC_ERR_INVALID_CLASS, with the class that was probably meant
  const schema::Class& find_class(std::string_view name) const;

  /// The concrete classes at or below `cls` that a provider serves, in the repository's order.
  std::vector<const schema::Class*> served_classes(const schema::Class& cls) const;
  /// The provider of a class, or null.
  const ProviderRoute* route(const schema::Class& cls) const;

 private:
  struct Request;

  ObjectPath complete_path(const ObjectPath& path) const;
  Instance complete_instance(const Instance& instance) const;
  const schema::Class& find_concrete(const ObjectPath& path) const;
  ProviderLibrary& provider(const schema::Class& cls);
  std::vector<const schema::Class*> associations_of(const ObjectPath& path,
                                                    std::string_view association_class,
                                                    std::string_view role) const;
  template <class Call>
  void for_each_served(std::string_view name_space, std::string_view class_name, Call&& call);
  template <class Call>
  void for_each_association(const ObjectPath& path, std::string_view association_class,
                            std::string_view role, Call&& call);

  const schema::Repository& repository_;
  Settings settings_;
  Broker broker_;
  std::vector<std::unique_ptr<ProviderLibrary>> libraries_;  // one per route, in its order
};

}  // namespace cim::host

#endif  // HOST_OBJECT_MANAGER_H_

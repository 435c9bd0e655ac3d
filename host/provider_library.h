// A provider library and the provider objects (MIs) that its factories made: one of each kind.
#ifndef HOST_PROVIDER_LIBRARY_H_
#define HOST_PROVIDER_LIBRARY_H_

#include <cmpidt.h>
#include <cmpift.h>

#include <string>

#include "host/objects.h"

namespace cim::host {

class ProviderLibrary {
 public:
  /// Loads the library.
  /// \param file  path of the shared library
  /// \param name  of the provider, for its factories
  /// \throws CimError CMPI_RC_ERR_FAILED with the loader's reason
  ProviderLibrary(Broker& broker, std::string file, std::string name);
  /// Calls cleanup of every MI and unloads, unless one of them wants to stay loaded.
  ~ProviderLibrary();
  ProviderLibrary(const ProviderLibrary&) = delete;
  ProviderLibrary& operator=(const ProviderLibrary&) = delete;

  // The MI of that kind, made on first use by `_Generic_Create_<kind>MI` or else by
  // `<name>_Create_<kind>MI`.
  // \throws CimError CMPI_RC_ERR_NOT_SUPPORTED when the library has neither factory, and the
  // factory's own status when it makes none

  CMPIInstanceMI* instance_mi(const CMPIContext* context);
  CMPIAssociationMI* association_mi(const CMPIContext* context);
  CMPIMethodMI* method_mi(const CMPIContext* context);

 private:
  template <class Mi>
  Mi* get(Mi*& mi, const char* kind, const CMPIContext* context);
  template <class Mi>
  bool clean_up(Mi* mi, const CMPIContext* context);

  Broker& broker_;
  std::string file_;
  std::string name_;
  void* handle_ = nullptr;
  CMPIInstanceMI* instance_mi_ = nullptr;
  CMPIAssociationMI* association_mi_ = nullptr;
  CMPIMethodMI* method_mi_ = nullptr;
};

/// The text of a status that a provider returned.
std::string status_text(const CMPIStatus& status);

}  // namespace cim::host

#endif  // HOST_PROVIDER_LIBRARY_H_

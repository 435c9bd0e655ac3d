#include "host/provider_library.h"

#include <dlfcn.h>

#include <utility>

namespace cim::host {
namespace {

template <class Mi>
using GenericFactory = Mi* (*)(const CMPIBroker*, const CMPIContext*, const char*, CMPIStatus*);
template <class Mi>
using NamedFactory = Mi* (*)(const CMPIBroker*, const CMPIContext*, CMPIStatus*);

}  // namespace

std::string status_text(const CMPIStatus& status) {
  if (status.msg == nullptr || status.msg->hdl == nullptr) return status_name(status.rc);
  const char* const text = status.msg->ft->getCharPtr(status.msg, nullptr);
  return text == nullptr || *text == '\0' ? status_name(status.rc) : text;
}

ProviderLibrary::ProviderLibrary(Broker& broker, std::string file, std::string name)
    : broker_(broker), file_(std::move(file)), name_(std::move(name)) {
  handle_ = dlopen(file_.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle_ == nullptr) {
    const char* const reason = dlerror();
    throw CimError(CMPI_RC_ERR_FAILED, "the provider library does not load: " +
                                           std::string(reason != nullptr ? reason : file_));
  }
}

ProviderLibrary::~ProviderLibrary() {
  bool unload = true;
  {
    const Scope scope(broker_, std::make_shared<Arena>());
    const CMPIContext* const context = make<CMPIContext>(broker_, {});
    unload = clean_up(instance_mi_, context) && unload;
    unload = clean_up(association_mi_, context) && unload;
    unload = clean_up(method_mi_, context) && unload;
  }
  if (unload) dlclose(handle_);
}

/// False when the library wants to stay loaded.
template <class Mi>
bool ProviderLibrary::clean_up(Mi* mi, const CMPIContext* context) {
  if (mi == nullptr || mi->ft->cleanup == nullptr) return true;
  const CMPIStatus status = mi->ft->cleanup(mi, context, 1);
  return status.rc != CMPI_RC_DO_NOT_UNLOAD && status.rc != CMPI_RC_NEVER_UNLOAD;
}

template <class Mi>
Mi* ProviderLibrary::get(Mi*& mi, const char* kind, const CMPIContext* context) {
  if (mi != nullptr) return mi;
  const std::string generic = "_Generic_Create_" + std::string(kind) + "MI";
  const std::string named = name_ + "_Create_" + kind + "MI";
  CMPIStatus status{CMPI_RC_OK, nullptr};
  Mi* made = nullptr;
  if (void* symbol = dlsym(handle_, generic.c_str())) {
    made = reinterpret_cast<GenericFactory<Mi>>(symbol)(broker_.face(), context, name_.c_str(),
                                                        &status);
  } else if (void* named_symbol = dlsym(handle_, named.c_str())) {
    made = reinterpret_cast<NamedFactory<Mi>>(named_symbol)(broker_.face(), context, &status);
  } else {
    throw CimError(CMPI_RC_ERR_NOT_SUPPORTED, file_ + " has neither " + generic + " nor " + named);
  }
  if (made == nullptr || made->ft == nullptr) {
    const CMPIrc code = status.rc == CMPI_RC_OK ? CMPI_RC_ERR_FAILED : status.rc;
    throw CimError(code, "provider " + name_ + " cannot be made: " + status_text(status));
  }
  mi = made;
  return mi;
}

CMPIInstanceMI* ProviderLibrary::instance_mi(const CMPIContext* context) {
  return get(instance_mi_, "Instance", context);
}

CMPIAssociationMI* ProviderLibrary::association_mi(const CMPIContext* context) {
  return get(association_mi_, "Association", context);
}

CMPIMethodMI* ProviderLibrary::method_mi(const CMPIContext* context) {
  return get(method_mi_, "Method", context);
}

}  // namespace cim::host

// The providers as an object manager sees them: three provider objects made by the factories, and
// one call per operation that gives what was returned and how it ended. Which switch is behind them
// is up to who derives from it.
#ifndef TESTS_PROVIDERS_PROVIDER_OBJECTS_FIXTURE_H
#define TESTS_PROVIDERS_PROVIDER_OBJECTS_FIXTURE_H

#include <cim_utils/session.h>
#include <gtest/gtest.h>
#include <pthread.h>

#include "providers/queue.h"
#include "tests/providers/test_broker.h"
#include "tests/support/capture.h"
#include "tests/support/os_double.h"

extern "C" {
CMPIInstanceMI* _Generic_Create_InstanceMI(const CMPIBroker*, const CMPIContext*, const char*,
                                           CMPIStatus*);
CMPIAssociationMI* _Generic_Create_AssociationMI(const CMPIBroker*, const CMPIContext*, const char*,
                                                 CMPIStatus*);
CMPIMethodMI* _Generic_Create_MethodMI(const CMPIBroker*, const CMPIContext*, const char*,
                                       CMPIStatus*);
}

namespace provider_tests {

inline bool lock_is_free() {
  if (pthread_mutex_trylock(&global_mutex) != 0) return false;
  pthread_mutex_unlock(&global_mutex);
  return true;
}

// How an operation ended, and what it returned until then.
struct Outcome {
  CMPIrc code = CMPI_RC_OK;
  std::string message;
  Returned returned;
};

class ProviderObjects : public testing::Test {
 protected:
  ProviderObjects() {
    vexor::providers::queue::join();  // so that the tests of one process share one bound queue
    instances_ = _Generic_Create_InstanceMI(broker_.face(), nullptr, "VexorProvider", nullptr);
    associations_ =
        _Generic_Create_AssociationMI(broker_.face(), nullptr, "VexorProvider", nullptr);
    methods_ = _Generic_Create_MethodMI(broker_.face(), nullptr, "VexorProvider", nullptr);
  }
  ~ProviderObjects() override {
    EXPECT_TRUE(lock_is_free());
    associations_->ft->cleanup(associations_, nullptr, 1);
    methods_->ft->cleanup(methods_, nullptr, 1);
    instances_->ft->cleanup(instances_, nullptr, 1);
  }

  // Runs operation(const CMPIResult*).
  template <class Operation>
  Outcome ask(Operation operation) {
    Outcome answer;
    const CMPIStatus status = operation(broker_.result(answer.returned));
    answer.code = status.rc;
    answer.message = broker_.text(status.msg);
    EXPECT_TRUE(lock_is_free());
    EXPECT_EQ(answer.returned.done, status.rc == CMPI_RC_OK ? 1 : 0);
    return answer;
  }

  Outcome names(const char* class_name) {
    return ask([&](const CMPIResult* result) {
      return instances_->ft->enumerateInstanceNames(instances_, nullptr, result,
                                                    broker_.path(class_name));
    });
  }
  Outcome enumerate(const char* class_name, const char** properties = nullptr) {
    return ask([&](const CMPIResult* result) {
      return instances_->ft->enumerateInstances(instances_, nullptr, result,
                                                broker_.path(class_name), properties);
    });
  }
  Outcome get(const CMPIObjectPath* path, const char** properties = nullptr) {
    return ask([&](const CMPIResult* result) {
      return instances_->ft->getInstance(instances_, nullptr, result, path, properties);
    });
  }
  Outcome modify(const CMPIObjectPath* path, const CMPIInstance* values,
                 const char** properties = nullptr) {
    return ask([&](const CMPIResult* result) {
      return instances_->ft->modifyInstance(instances_, nullptr, result, path, values, properties);
    });
  }
  Outcome invoke(const CMPIObjectPath* path, const char* method, const CMPIArgs* in,
                 CMPIArgs* out) {
    return ask([&](const CMPIResult* result) {
      return methods_->ft->invokeMethod(methods_, nullptr, result, path, method, in, out);
    });
  }
  struct Filter {
    const char* association = nullptr;
    const char* result_class = nullptr;
    const char* role = nullptr;
    const char* result_role = nullptr;
  };
  Outcome associators(const CMPIObjectPath* path, const Filter& filter,
                      const char** properties = nullptr) {
    return ask([&](const CMPIResult* result) {
      return associations_->ft->associators(associations_, nullptr, result, path,
                                            filter.association, filter.result_class, filter.role,
                                            filter.result_role, properties);
    });
  }
  Outcome associator_names(const CMPIObjectPath* path, const Filter& filter) {
    return ask([&](const CMPIResult* result) {
      return associations_->ft->associatorNames(associations_, nullptr, result, path,
                                                filter.association, filter.result_class,
                                                filter.role, filter.result_role);
    });
  }
  Outcome references(const CMPIObjectPath* path, const Filter& filter,
                     const char** properties = nullptr) {
    return ask([&](const CMPIResult* result) {
      return associations_->ft->references(associations_, nullptr, result, path,
                                           filter.result_class, filter.role, properties);
    });
  }
  Outcome reference_names(const CMPIObjectPath* path, const Filter& filter) {
    return ask([&](const CMPIResult* result) {
      return associations_->ft->referenceNames(associations_, nullptr, result, path,
                                               filter.result_class, filter.role);
    });
  }

  test_support::OsDouble system_;
  test_support::StdioCapture out_;
  TestBroker broker_;
  CMPIInstanceMI* instances_ = nullptr;
  CMPIAssociationMI* associations_ = nullptr;
  CMPIMethodMI* methods_ = nullptr;
};

}  // namespace provider_tests

#endif

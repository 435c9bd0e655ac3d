// CMPIBrokerExtFT: threads, mutexes and conditions of POSIX.
#include <pthread.h>

#include <cerrno>
#include <ctime>
#include <memory>
#include <mutex>
#include <string>

#include "host/objects.h"
#include "host/tables.h"

namespace cim::host {
namespace {

char* resolve_file_name(const char* name) {
  if (name == nullptr) return nullptr;
  // One result per thread, overwritten by the next call: the interface has no way to free it.
  thread_local std::string file;
  try {
    file = std::string("lib") + name + ".so";
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
  return file.data();
}

CMPI_THREAD_TYPE new_thread(CMPIThreadFunc start, void* parm, int detached) {
  if (start == nullptr) return nullptr;
  pthread_attr_t attributes;
  if (pthread_attr_init(&attributes) != 0) return nullptr;
  pthread_attr_setdetachstate(&attributes,
                              detached != 0 ? PTHREAD_CREATE_DETACHED : PTHREAD_CREATE_JOINABLE);
  pthread_t thread{};
  const int error = pthread_create(&thread, &attributes, start, parm);
  pthread_attr_destroy(&attributes);
  static_assert(sizeof(pthread_t) == sizeof(void*));
  return error == 0 ? reinterpret_cast<CMPI_THREAD_TYPE>(thread) : nullptr;
}

int join_thread(CMPI_THREAD_TYPE thread, CMPI_THREAD_RETURN* result) {
  return pthread_join(reinterpret_cast<pthread_t>(thread), result);
}

int exit_thread(CMPI_THREAD_RETURN result) {
  pthread_exit(result);
}

int cancel_thread(CMPI_THREAD_TYPE thread) {
  return pthread_cancel(reinterpret_cast<pthread_t>(thread));
}

int thread_sleep(CMPIUint32 milliseconds) {
  timespec rest{static_cast<time_t>(milliseconds / 1000),
                static_cast<long>(milliseconds % 1000) * 1'000'000};
  while (nanosleep(&rest, &rest) != 0) {
    if (errno != EINTR) return errno;
  }
  return 0;
}

int thread_once(int* once, CMPIThreadOnceFunc init) {
  if (once == nullptr || init == nullptr) return EINVAL;
  // One lock for all control words: they are plain integers. Recursive, since an init function may
  // have a control word of its own.
  static std::recursive_mutex& mutex = *new std::recursive_mutex;
  const std::lock_guard lock(mutex);
  if (*once != 0) return 0;
  *once = 1;
  init();
  return 0;
}

int create_thread_key(CMPI_THREAD_KEY_TYPE* key, CMPIThreadKeyCleanupFunc cleanup) {
  static_assert(sizeof(pthread_key_t) == sizeof(CMPI_THREAD_KEY_TYPE));
  return key == nullptr ? EINVAL : pthread_key_create(key, cleanup);
}

int destroy_thread_key(CMPI_THREAD_KEY_TYPE key) {
  return pthread_key_delete(key);
}

void* get_thread_specific(CMPI_THREAD_KEY_TYPE key) {
  return pthread_getspecific(key);
}

int set_thread_specific(CMPI_THREAD_KEY_TYPE key, void* value) {
  return pthread_setspecific(key, value);
}

pthread_mutex_t* mutex_of(CMPI_MUTEX_TYPE mutex) {
  return static_cast<pthread_mutex_t*>(mutex);
}

pthread_cond_t* condition_of(CMPI_COND_TYPE condition) {
  return static_cast<pthread_cond_t*>(condition);
}

CMPI_MUTEX_TYPE new_mutex(int) {
  auto mutex = std::unique_ptr<pthread_mutex_t>(new (std::nothrow) pthread_mutex_t);
  if (mutex == nullptr || pthread_mutex_init(mutex.get(), nullptr) != 0) return nullptr;
  return mutex.release();
}

void destroy_mutex(CMPI_MUTEX_TYPE mutex) {
  if (mutex == nullptr) return;
  pthread_mutex_destroy(mutex_of(mutex));
  delete mutex_of(mutex);
}

void lock_mutex(CMPI_MUTEX_TYPE mutex) {
  if (mutex != nullptr) pthread_mutex_lock(mutex_of(mutex));
}

void unlock_mutex(CMPI_MUTEX_TYPE mutex) {
  if (mutex != nullptr) pthread_mutex_unlock(mutex_of(mutex));
}

CMPI_COND_TYPE new_condition(int) {
  auto condition = std::unique_ptr<pthread_cond_t>(new (std::nothrow) pthread_cond_t);
  if (condition == nullptr || pthread_cond_init(condition.get(), nullptr) != 0) return nullptr;
  return condition.release();
}

void destroy_condition(CMPI_COND_TYPE condition) {
  if (condition == nullptr) return;
  pthread_cond_destroy(condition_of(condition));
  delete condition_of(condition);
}

int cond_wait(CMPI_COND_TYPE condition, CMPI_MUTEX_TYPE mutex) {
  if (condition == nullptr || mutex == nullptr) return EINVAL;
  return pthread_cond_wait(condition_of(condition), mutex_of(mutex));
}

int timed_cond_wait(CMPI_COND_TYPE condition, CMPI_MUTEX_TYPE mutex, timespec* wait) {
  if (condition == nullptr || mutex == nullptr || wait == nullptr) return EINVAL;
  return pthread_cond_timedwait(condition_of(condition), mutex_of(mutex), wait);
}

int signal_condition(CMPI_COND_TYPE condition) {
  return condition == nullptr ? EINVAL : pthread_cond_signal(condition_of(condition));
}

}  // namespace

CMPIBrokerExtFT system_table(const Behavior& behavior) {
  CMPIBrokerExtFT table{
      .ftVersion = kTableVersion,
      .resolveFileName = resolve_file_name,
      .newThread = new_thread,
      .joinThread = join_thread,
      .exitThread = exit_thread,
      .cancelThread = cancel_thread,
      .threadSleep = thread_sleep,
      .threadOnce = thread_once,
      .createThreadKey = create_thread_key,
      .destroyThreadKey = destroy_thread_key,
      .getThreadSpecific = get_thread_specific,
      .setThreadSpecific = set_thread_specific,
      .newMutex = new_mutex,
      .destroyMutex = destroy_mutex,
      .lockMutex = lock_mutex,
      .unlockMutex = unlock_mutex,
      .newCondition = new_condition,
      .destroyCondition = destroy_condition,
      .condWait = cond_wait,
      .timedCondWait = timed_cond_wait,
      .signalCondition = signal_condition,
  };
  if (!behavior.optional_slots) {
    table.joinThread = nullptr;
    table.exitThread = nullptr;
    table.cancelThread = nullptr;
    table.threadSleep = nullptr;
    table.signalCondition = nullptr;
  }
  return table;
}

}  // namespace cim::host

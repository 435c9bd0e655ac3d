// CMPIBrokerEncFT (other than factories), CMPIBrokerExtFT, CMPIBrokerMemFT, and CMPIBrokerFT
// without an object manager.
#include <gtest/gtest.h>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <ctime>

#include "host/tables.h"
#include "tests/host/test_classes.h"

namespace cim::host {
namespace {

using BrokerServices = TableTest;

// --- Questions -----------------------------------------------------------------------------------

TEST_F(BrokerServices, A_path_is_of_its_class_and_its_ancestors) {
  CMPIObjectPath* path = new_path("test_fastdisk");
  EXPECT_EQ(mb()->eft->classPathIsA(mb(), path, "CIM_THING", nullptr), 1);
  EXPECT_EQ(mb()->eft->classPathIsA(mb(), path, "Test_FastDisk", nullptr), 1);
  EXPECT_EQ(mb()->eft->classPathIsA(mb(), path, "Test_Tape", nullptr), 0);
  CMPIStatus status{};
  EXPECT_EQ(mb()->eft->classPathIsA(mb(), new_path("Nothing"), "CIM_Thing", &status), 0);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_CLASS);
}

TEST_F(BrokerServices, Every_object_knows_its_type) {
  CMPIObjectPath* path = new_path("Test_Disk");
  EXPECT_EQ(chars(mb()->eft->getType(mb(), path, nullptr)), "CMPIObjectPath");
  EXPECT_EQ(chars(mb()->eft->getType(mb(), new_instance(), nullptr)), "CMPIInstance");
  EXPECT_EQ(mb()->eft->isOfType(mb(), path, "CMPIObjectPath", nullptr), 1);
  EXPECT_EQ(mb()->eft->isOfType(mb(), path, "CMPIInstance", nullptr), 0);
  const void* foreign[2] = {nullptr, nullptr};
  CMPIStatus status{};
  EXPECT_EQ(mb()->eft->getType(mb(), foreign, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_HANDLE);
}

TEST_F(BrokerServices, Every_object_has_a_text) {
  const auto text_of = [&](const void* object) {
    return chars(mb()->eft->toString(mb(), object, nullptr));
  };
  CMPIInstance* instance = new_instance();
  instance->ft->setProperty(instance, "Name", text("sda"), CMPI_chars);
  EXPECT_EQ(text_of(instance), "instance of Test_Disk {\n  Name = \"sda\";\n};\n");
  EXPECT_EQ(text_of(new_path("Test_Disk")), "root/test:Test_Disk");
  EXPECT_EQ(text_of(string("x")), "x");
  CMPIArray* array = mb()->eft->newArray(mb(), 2, CMPI_chars, nullptr);
  array->ft->setElementAt(array, 0, text("a"), CMPI_chars);
  EXPECT_EQ(text_of(array), "{\"a\", NULL}");
  CMPIArgs* args = mb()->eft->newArgs(mb(), nullptr);
  args->ft->addArg(args, "A", text("1"), CMPI_chars);
  args->ft->addArg(args, "B", text("2"), CMPI_chars);
  EXPECT_EQ(text_of(args), "A=\"1\", B=\"2\"");
  EXPECT_EQ(text_of(mb()->eft->newDateTimeFromBinary(mb(), 0, 1, nullptr)),
            "00000000000000.000000:000");
  EXPECT_EQ(text_of(make<CMPIEnumeration>(broker_,
                                          EnumerationContent{CMPI_string, {Data::string("a")}, 0})),
            "a\n");
}

// --- Messages ------------------------------------------------------------------------------------

TEST_F(BrokerServices, A_message_is_filled_in) {
  CMPIStatus status{};
  CMPIString* message = mb()->eft->getMessage(
      mb(), "M1", "port $0 of $1: $2, $3, $4, $5, $6, $7 $8 costs $$", &status, 8, CMPI_sint32, -5L,
      CMPI_chars, "switch", CMPI_uint32, 7UL, CMPI_sint64, -9LL, CMPI_uint64, 10ULL, CMPI_real64,
      1.5, CMPI_boolean, 1, CMPI_string, string("end"));
  EXPECT_EQ(status.rc, CMPI_RC_OK);
  EXPECT_EQ(chars(message), "port -5 of switch: 7, -9, 10, 1.5, true, end $8 costs $$");
}

TEST_F(BrokerServices, A_message_with_an_unknown_type_or_without_text_is_refused) {
  CMPIStatus status{};
  EXPECT_EQ(mb()->eft->getMessage(mb(), "M1", "x $0", &status, 1, 0x7777, 1L), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_DATA_TYPE);
  EXPECT_EQ(mb()->eft->getMessage(mb(), "M1", nullptr, &status, 0), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_INVALID_PARAMETER);
}

TEST_F(BrokerServices, There_are_no_message_files) {
  CMPIMsgFileHandle handle = this;
  const CMPIStatus status = mb()->eft->openMessageFile(mb(), "vexor", &handle);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NOT_FOUND);
  EXPECT_EQ(handle, nullptr);
  EXPECT_EQ(mb()->eft->closeMessageFile(mb(), nullptr).rc, CMPI_RC_ERR_INVALID_HANDLE);
  EXPECT_EQ(chars(mb()->eft->getMessage2(mb(), "M1", nullptr, "x $0", nullptr, 1, CMPI_sint32, 1L)),
            "x 1");
}

TEST_F(BrokerServices, Logs_and_traces_reach_the_report) {
  EXPECT_EQ(mb()->eft->logMessage(mb(), CMPI_SEV_ERROR, "vsan", "no switch", nullptr).rc,
            CMPI_RC_OK);
  mb()->eft->logMessage(mb(), CMPI_SEV_WARNING, nullptr, nullptr, string("slow"));
  mb()->eft->logMessage(mb(), CMPI_SEV_INFO, "vsan", "up", nullptr);
  mb()->eft->trace(mb(), CMPI_LEV_VERBOSE, "vsan", "step", nullptr);
  EXPECT_EQ(reports_, (std::vector<std::string>{"error: vsan: no switch", "warning: slow",
                                                "info: vsan: up", "trace: vsan: step"}));
}

TEST_F(BrokerServices, Queries_are_refused_clearly) {
  CMPIArray* projection = nullptr;
  CMPIStatus status{};
  EXPECT_EQ(mb()->eft->newSelectExp(mb(), "select * from x", "WQL", &projection, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(message(status), "this object manager evaluates no queries");
  EXPECT_EQ(mb()->bft->execQuery(mb(), nullptr, nullptr, "q", "WQL", &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NOT_SUPPORTED);
}

TEST_F(BrokerServices, Indications_are_refused_clearly) {
  const CMPIStatus status =
      mb()->bft->deliverIndication(mb(), nullptr, "root/test", new_instance());
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(message(status), "this object manager delivers no indications");
}

TEST_F(BrokerServices, Operations_need_an_object_manager) {
  CMPIStatus status{};
  EXPECT_EQ(mb()->bft->enumerateInstances(mb(), nullptr, new_path("Test_Disk"), nullptr, &status),
            nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NOT_SUPPORTED);
}

TEST_F(BrokerServices, No_slot_is_missing_by_default) {
  const auto complete = [](const auto& table, std::size_t first_pointer) {
    const auto* words = reinterpret_cast<void* const*>(&table);
    for (std::size_t i = first_pointer; i < sizeof(table) / sizeof(void*); ++i)
      if (words[i] == nullptr) return false;
    return true;
  };
  const Tables& tables = broker_.tables();
  EXPECT_TRUE(complete(tables.broker, 2));
  EXPECT_TRUE(complete(tables.encapsulated, 1));
  EXPECT_TRUE(complete(tables.system, 1));
  EXPECT_TRUE(complete(tables.memory, 1));
  EXPECT_TRUE(complete(tables.instance, 1));
  EXPECT_TRUE(complete(tables.object_path, 1));
  EXPECT_TRUE(complete(tables.args, 1));
  EXPECT_TRUE(complete(tables.string, 1));
  EXPECT_TRUE(complete(tables.array, 1));
  EXPECT_TRUE(complete(tables.date_time, 1));
  EXPECT_TRUE(complete(tables.enumeration, 1));
  EXPECT_TRUE(complete(tables.context, 1));
  EXPECT_TRUE(complete(tables.result, 1));
  EXPECT_TRUE(complete(tables.error, 1));
}

// --- Memory --------------------------------------------------------------------------------------

TEST_F(BrokerServices, Objects_made_after_a_mark_go_with_its_release) {
  CMPIString* before = string("before");
  CMPIGcStat* mark = mb()->mft->mark(mb(), nullptr);
  const void* after = string("after")->hdl;
  EXPECT_EQ(mb()->mft->release(mb(), mark).rc, CMPI_RC_OK);
  EXPECT_EQ(live_node(after), nullptr);
  EXPECT_EQ(chars(before), "before");
  EXPECT_EQ(mb()->mft->release(mb(), mark).rc, CMPI_RC_OK);
  EXPECT_EQ(mb()->mft->release(mb(), nullptr).rc, CMPI_RC_ERR_INVALID_HANDLE);
}

TEST_F(BrokerServices, Bytes_belong_to_the_request_and_may_be_freed_once_or_twice) {
  char* copy = mb()->mft->cmpiStrDup(mb(), "text");
  EXPECT_STREQ(copy, "text");
  auto* bytes = static_cast<unsigned char*>(mb()->mft->cmpiCalloc(mb(), 4, 2));
  EXPECT_EQ(bytes[7], 0);
  bytes[7] = 9;
  bytes = static_cast<unsigned char*>(mb()->mft->cmpiRealloc(mb(), bytes, 4000));
  EXPECT_EQ(bytes[7], 9);
  mb()->mft->cmpiFree(mb(), bytes);
  mb()->mft->cmpiFree(mb(), bytes);
  mb()->mft->cmpiFree(mb(), nullptr);
  EXPECT_EQ(reports_,
            std::vector<std::string>{"cmpiFree of bytes that this request did not allocate"});
  EXPECT_NE(mb()->mft->cmpiMalloc(mb(), 0), nullptr);
  EXPECT_EQ(mb()->mft->cmpiCalloc(mb(), ~std::size_t{0}, 2), nullptr);
  EXPECT_EQ(mb()->mft->cmpiRealloc(mb(), this, 8), nullptr);
  EXPECT_EQ(mb()->mft->cmpiStrDup(mb(), nullptr), nullptr);
}

TEST_F(BrokerServices, The_free_functions_release_their_objects) {
  CMPIString* string = this->string("x");
  mb()->mft->freeString(mb(), string);
  EXPECT_EQ(string->hdl, nullptr);
  CMPIInstance* instance = new_instance();
  mb()->mft->freeInstance(mb(), instance);
  EXPECT_EQ(instance->hdl, nullptr);
  CMPIObjectPath* path = new_path("Test_Disk");
  mb()->mft->freeObjectPath(mb(), path);
  EXPECT_EQ(path->hdl, nullptr);
  CMPIArgs* args = mb()->eft->newArgs(mb(), nullptr);
  mb()->mft->freeArgs(mb(), args);
  EXPECT_EQ(args->hdl, nullptr);
  CMPIArray* array = mb()->eft->newArray(mb(), 1, CMPI_uint8, nullptr);
  mb()->mft->freeArray(mb(), array);
  EXPECT_EQ(array->hdl, nullptr);
  CMPIDateTime* moment = mb()->eft->newDateTime(mb(), nullptr);
  mb()->mft->freeDateTime(mb(), moment);
  EXPECT_EQ(moment->hdl, nullptr);
  mb()->mft->freeSelectExp(mb(), nullptr);
}

// --- Operating system ----------------------------------------------------------------------------

TEST_F(BrokerServices, A_library_is_called_by_its_file_name) {
  EXPECT_STREQ(mb()->xft->resolveFileName("abc"), "libabc.so");
  EXPECT_EQ(mb()->xft->resolveFileName(nullptr), nullptr);
}

void* double_it(void* number) {
  *static_cast<int*>(number) *= 2;
  return number;
}

TEST_F(BrokerServices, A_thread_runs_and_is_joined) {
  int number = 21;
  void* thread = mb()->xft->newThread(double_it, &number, 0);
  void* result = nullptr;
  EXPECT_EQ(mb()->xft->joinThread(thread, &result), 0);
  EXPECT_EQ(result, &number);
  EXPECT_EQ(number, 42);
  EXPECT_EQ(mb()->xft->newThread(nullptr, nullptr, 0), nullptr);
}

TEST_F(BrokerServices, A_sleep_of_nothing_ends_at_once) {
  EXPECT_EQ(mb()->xft->threadSleep(0), 0);
}

int once_count = 0;

TEST_F(BrokerServices, Once_is_once_for_each_control_word) {
  once_count = 0;
  int first = 0;
  int second = 0;
  const auto init = [] { ++once_count; };
  EXPECT_EQ(mb()->xft->threadOnce(&first, init), 0);
  EXPECT_EQ(mb()->xft->threadOnce(&first, init), 0);
  EXPECT_EQ(mb()->xft->threadOnce(&second, init), 0);
  EXPECT_EQ(once_count, 2);
  EXPECT_EQ(mb()->xft->threadOnce(nullptr, init), EINVAL);
}

TEST_F(BrokerServices, A_thread_key_has_a_value_of_its_own_in_each_thread) {
  unsigned key = 0;
  ASSERT_EQ(mb()->xft->createThreadKey(&key, nullptr), 0);
  int value = 1;
  EXPECT_EQ(mb()->xft->setThreadSpecific(key, &value), 0);
  EXPECT_EQ(mb()->xft->getThreadSpecific(key), &value);
  struct Question {
    const CMPIBroker* broker;
    unsigned key;
    void* seen;
  } question{mb(), key, &value};
  void* thread = mb()->xft->newThread(
      [](void* parm) -> void* {
        auto& asked = *static_cast<Question*>(parm);
        asked.seen = asked.broker->xft->getThreadSpecific(asked.key);
        return nullptr;
      },
      &question, 0);
  mb()->xft->joinThread(thread, nullptr);
  EXPECT_EQ(question.seen, nullptr);
  EXPECT_EQ(mb()->xft->destroyThreadKey(key), 0);
  EXPECT_EQ(mb()->xft->createThreadKey(nullptr, nullptr), EINVAL);
}

TEST_F(BrokerServices, A_condition_wakes_the_thread_that_waits) {
  struct Shared {
    const CMPIBroker* broker;
    void* mutex;
    void* condition;
    bool ready = false;
  } shared{mb(), mb()->xft->newMutex(0), mb()->xft->newCondition(0)};
  mb()->xft->lockMutex(shared.mutex);
  void* thread = mb()->xft->newThread(
      [](void* parm) -> void* {
        auto& it = *static_cast<Shared*>(parm);
        it.broker->xft->lockMutex(it.mutex);
        it.ready = true;
        it.broker->xft->signalCondition(it.condition);
        it.broker->xft->unlockMutex(it.mutex);
        return nullptr;
      },
      &shared, 0);
  while (!shared.ready)
    EXPECT_EQ(mb()->xft->condWait(shared.condition, shared.mutex), 0);
  mb()->xft->unlockMutex(shared.mutex);
  mb()->xft->joinThread(thread, nullptr);
  mb()->xft->destroyCondition(shared.condition);
  mb()->xft->destroyMutex(shared.mutex);
}

TEST_F(BrokerServices, A_wait_until_a_time_that_is_over_times_out) {
  void* mutex = mb()->xft->newMutex(0);
  void* condition = mb()->xft->newCondition(0);
  timespec past{1, 0};
  mb()->xft->lockMutex(mutex);
  EXPECT_EQ(mb()->xft->timedCondWait(condition, mutex, &past), ETIMEDOUT);
  mb()->xft->unlockMutex(mutex);
  EXPECT_EQ(mb()->xft->timedCondWait(nullptr, mutex, &past), EINVAL);
  EXPECT_EQ(mb()->xft->condWait(nullptr, nullptr), EINVAL);
  EXPECT_EQ(mb()->xft->signalCondition(nullptr), EINVAL);
  mb()->xft->destroyCondition(condition);
  mb()->xft->destroyMutex(mutex);
  mb()->xft->destroyMutex(nullptr);
  mb()->xft->destroyCondition(nullptr);
}

// --- Threads of a provider -----------------------------------------------------------------------

TEST_F(BrokerServices, An_attached_thread_makes_objects_of_the_request) {
  CMPIContext* context = make<CMPIContext>(broker_, {});
  struct Shared {
    const CMPIBroker* broker;
    CMPIContext* context;
    CMPIString* made = nullptr;
    CMPIStatus attached{};
    CMPIStatus detached{};
  } shared{mb(), mb()->bft->prepareAttachThread(mb(), context)};
  ASSERT_NE(shared.context, nullptr);
  void* thread = mb()->xft->newThread(
      [](void* parm) -> void* {
        auto& it = *static_cast<Shared*>(parm);
        it.attached = it.broker->bft->attachThread(it.broker, it.context);
        it.made = it.broker->eft->newString(it.broker, "from the thread", nullptr);
        it.detached = it.broker->bft->detachThread(it.broker, it.context);
        return nullptr;
      },
      &shared, 0);
  mb()->xft->joinThread(thread, nullptr);
  EXPECT_EQ(shared.attached.rc, CMPI_RC_OK);
  EXPECT_EQ(shared.detached.rc, CMPI_RC_OK);
  EXPECT_EQ(chars(shared.made), "from the thread");
  const void* handle = shared.made->hdl;
  end_request();
  EXPECT_EQ(live_node(handle), nullptr);
}

TEST_F(BrokerServices, A_thread_attaches_with_a_prepared_context_only) {
  CMPIContext* context = make<CMPIContext>(broker_, {});
  EXPECT_EQ(mb()->bft->attachThread(mb(), context).rc, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(mb()->bft->detachThread(mb(), context).rc, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(mb()->bft->prepareAttachThread(mb(), nullptr), nullptr);
}

// --- Results -------------------------------------------------------------------------------------

TEST_F(BrokerServices, A_result_takes_what_the_operation_wants) {
  Collector collector;
  collector.wanted = ResultOf::data;
  CMPIResult* result = make<CMPIResult>(broker_, ResultContent{&collector});
  CMPIValue value{};
  value.uint16 = 5;
  EXPECT_EQ(result->ft->returnData(result, &value, CMPI_uint16).rc, CMPI_RC_OK);
  EXPECT_EQ(result->ft->returnInstance(result, new_instance()).rc, CMPI_RC_ERR_INVALID_PARAMETER);
  EXPECT_EQ(reports_, std::vector<std::string>{"this operation returns data, not instances"});
  EXPECT_EQ(result->ft->returnDone(result).rc, CMPI_RC_OK);
  EXPECT_EQ(result->ft->returnData(result, &value, CMPI_uint16).rc, CMPI_RC_ERR_FAILED);
  ASSERT_EQ(collector.data.size(), 1U);
  EXPECT_EQ(collector.data[0], Data::of(CMPI_uint16, Element(std::uint64_t{5})));
}

TEST_F(BrokerServices, Paths_and_instances_may_be_returned_as_data) {
  Collector paths;
  paths.wanted = ResultOf::paths;
  CMPIResult* result = make<CMPIResult>(broker_, ResultContent{&paths});
  CMPIValue value{};
  value.ref = new_path("Test_Disk");
  EXPECT_EQ(result->ft->returnData(result, &value, CMPI_ref).rc, CMPI_RC_OK);
  EXPECT_EQ(paths.paths.size(), 1U);
  Collector instances;
  instances.wanted = ResultOf::instances;
  result = make<CMPIResult>(broker_, ResultContent{&instances});
  value.inst = new_instance();
  EXPECT_EQ(result->ft->returnData(result, &value, CMPI_instance).rc, CMPI_RC_OK);
  EXPECT_EQ(instances.instances.size(), 1U);
}

TEST_F(BrokerServices, A_result_is_neither_cloned_nor_released) {
  Collector collector;
  CMPIResult* result = make<CMPIResult>(broker_, ResultContent{&collector});
  CMPIStatus status{};
  EXPECT_EQ(result->ft->clone(result, &status), nullptr);
  EXPECT_EQ(status.rc, CMPI_RC_ERR_NOT_SUPPORTED);
  EXPECT_EQ(result->ft->release(result).rc, CMPI_RC_OK);
  EXPECT_EQ(result->ft->returnDone(result).rc, CMPI_RC_OK);
}

TEST_F(BrokerServices, A_returned_error_is_reported) {
  Collector collector;
  CMPIResult* result = make<CMPIResult>(broker_, ResultContent{&collector});
  CMPIError* error = mb()->eft->newCMPIError(mb(), "VEXOR", "V1", "no light", ErrorSevHigh,
                                             Loss_of_Signal, CMPI_RC_ERR_FAILED, nullptr);
  EXPECT_EQ(result->ft->returnError(result, error).rc, CMPI_RC_OK);
  EXPECT_EQ(reports_, std::vector<std::string>{"the provider returns an error: V1 no light"});
}

}  // namespace
}  // namespace cim::host

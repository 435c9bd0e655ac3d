// The two faces' sessions, the lock, the debug hooks and the host name.
#include <cim_utils/provider_util.h>
#include <cim_utils/session.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

#include "common/exchange.h"
#include "tests/support/capture.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/os_double.h"
#include "tests/support/platform_double.h"

using namespace test_support;

namespace {

class Session : public testing::Test {
 protected:
  HeapLedger ledger_;
  OsDouble system_;
  StdioCapture out_;
};

TEST_F(Session, BindsTheQueueOnceAndHandsItOutAgain) {
  Script script;
  script.expect(bind("CIM Response SAP")).returns(9);
  int32_t first = 0;
  int32_t second = 0;
  EXPECT_EQ(init_mts(&first), 0);
  EXPECT_EQ(init_mts(&second), 0);
  EXPECT_EQ(first, 9);
  EXPECT_EQ(second, 9);
  EXPECT_EQ(mts_q, 9);
  EXPECT_EQ(out_.err(), "successfuly create mts response q\n");
  EXPECT_EQ(out_.out(), "");
}

TEST_F(Session, HandleZeroIsBound) {
  Script script;
  script.expect(bind("CIM Response SAP")).returns(0);
  int32_t q = -1;
  EXPECT_EQ(init_mts(&q), 0);
  EXPECT_EQ(init_mts(&q), 0);
  EXPECT_EQ(q, 0);
}

TEST_F(Session, AFailedBindSaysSoTwiceAndTheNextCallTriesAgain) {
  Script script;
  script.expect(bind("CIM Response SAP")).fails(-1).with_errno(ENOENT);
  script.expect(bind("CIM Response SAP")).returns(3);
  int32_t q = 42;
  EXPECT_EQ(init_mts(&q), -1);
  EXPECT_EQ(q, 42);
  EXPECT_EQ(mts_q, -1);
  EXPECT_EQ(out_.err(),
            "Invalid CIM response MTS queue handle No such file or directory Retrying.. \n"
            "Invalid CIM response MTS queue handle No such file or directory\n");
  EXPECT_EQ(init_mts(&q), 0);
  EXPECT_EQ(q, 3);
}

TEST_F(Session, AnotherNegativeHandleIsHandedOutAndBoundAnewNextTime) {
  Script script;
  script.expect(bind("CIM Response SAP")).fails(-5).with_errno(EAGAIN);
  script.expect(bind("CIM Response SAP")).returns(4);
  int32_t q = 42;
  EXPECT_EQ(init_mts(&q), 0);
  EXPECT_EQ(q, -5);
  EXPECT_EQ(out_.err(),
            "Invalid CIM response MTS queue handle Resource temporarily unavailable"
            " Retrying.. \n");
  EXPECT_EQ(init_mts(&q), 0);
  EXPECT_EQ(q, 4);
}

TEST_F(Session, BindingWithoutAPlaceForTheHandleBinds) {
  Script script;
  script.expect(bind("CIM Response SAP")).returns(9);
  EXPECT_EQ(init_mts(nullptr), 0);
  EXPECT_EQ(mts_q, 9);
}

TEST_F(Session, ThePegasusFaceHasItsOwnHandleAndItsOwnWords) {
  Script script;
  script.expect(bind("CIM Response SAP")).returns(9);
  script.expect(bind("CIM Response SAP")).returns(11);
  int32_t q = 0;
  int pegasus_q = 0;
  EXPECT_EQ(init_mts(&q), 0);
  out_.clear();
  EXPECT_EQ(ProviderUtil::init_mts(&pegasus_q), 0);
  EXPECT_EQ(pegasus_q, 11);
  EXPECT_EQ(ProviderUtil::mts_q, 11);
  EXPECT_EQ(mts_q, 9);
  EXPECT_EQ(out_.err(), "succeffuly create mts response q\n");
  pegasus_q = 0;
  EXPECT_EQ(ProviderUtil::init_mts(&pegasus_q), 0);
  EXPECT_EQ(pegasus_q, 11);
}

TEST_F(Session, ThePegasusFaceFailsToBindWithTheSameWords) {
  Script script;
  script.expect(bind("CIM Response SAP")).fails(-1).with_errno(ENOENT);
  int q = 0;
  EXPECT_EQ(ProviderUtil::init_mts(&q), -1);
  EXPECT_EQ(out_.err(),
            "Invalid CIM response MTS queue handle No such file or directory Retrying.. \n"
            "Invalid CIM response MTS queue handle No such file or directory\n");
}

TEST_F(Session, ReleasingAnUnboundHandleCallsNothing) {
  Script script;
  int32_t q = -1;
  EXPECT_EQ(deinit_mts(&q), 0);
  EXPECT_EQ(deinit_mts(nullptr), 0);
  EXPECT_EQ(ProviderUtil::deinit_mts(&q), 0);
  EXPECT_EQ(script.calls(), 0u);
}

TEST_F(Session, HandleZeroIsReleased) {
  Script script;
  script.expect(unbind(0)).returns(3);
  int32_t q = 0;
  EXPECT_EQ(deinit_mts(&q), 3);
}

TEST_F(Session, ReleasingKeepsTheHandleAndHandsItOutAgain) {
  Script script;
  script.expect(bind("CIM Response SAP")).returns(9);
  script.expect(unbind(9)).returns(0);
  int32_t q = 0;
  init_mts(&q);
  EXPECT_EQ(deinit_mts(&q), 0);
  EXPECT_EQ(q, 9);
  EXPECT_EQ(mts_q, 9);
  EXPECT_EQ(init_mts(&q), 0);
  EXPECT_EQ(q, 9);
}

TEST_F(Session, TheReleaseStatusIsNarrowedToASignedByte) {
  Script script;
  script.expect(unbind(5)).returns(0x1ff);
  script.expect(unbind(5)).returns(0x180);
  script.expect(unbind(5)).returns(0x100);
  script.expect(unbind(5)).returns(0x7f);
  int32_t q = 5;
  EXPECT_EQ(deinit_mts(&q), -1);
  EXPECT_EQ(deinit_mts(&q), -128);
  EXPECT_EQ(ProviderUtil::deinit_mts(&q), 0);
  EXPECT_EQ(ProviderUtil::deinit_mts(&q), 127);
}

TEST_F(Session, TheLockIsTheGlobalMutex) {
  EXPECT_EQ(mutex_lock(), 0);
  EXPECT_EQ(pthread_mutex_trylock(&global_mutex), EBUSY);
  EXPECT_EQ(mutex_unlock(), 0);
  EXPECT_EQ(pthread_mutex_trylock(&global_mutex), 0);
  EXPECT_EQ(pthread_mutex_unlock(&global_mutex), 0);
}

TEST_F(Session, WithoutTheMarkerFileTheProviderHookSaysSoAndGoesOn) {
  EXPECT_EQ(gdb_check(), 39);  // the characters printed
  EXPECT_EQ(out_.out(), "\nstat fail for /etc/cim_debug_provider\n");
  out_.clear();
  EXPECT_EQ(ProviderUtil::gdb_check(), 39);
  EXPECT_EQ(out_.out(), "\nstat fail for /etc/cim_debug_provider\n");
  EXPECT_TRUE(system_.signals().empty());
}

TEST_F(Session, WithTheMarkerFileTheProviderHookStopsTheProcess) {
  system_.marker_file_exists(kProviderMarkerFile).pid(4711);
  EXPECT_EQ(gdb_check(), 0);
  EXPECT_EQ(out_.out(), "Attach GDB to process id 4711 \n");
  ASSERT_EQ(system_.signals().size(), 1u);
  EXPECT_EQ(system_.signals()[0].pid, 4711);
  EXPECT_EQ(system_.signals()[0].number, 19);
  system_.kill_returns(-1);
  EXPECT_EQ(ProviderUtil::gdb_check(), -1);
  EXPECT_EQ(system_.signals().size(), 2u);
}

TEST_F(Session, WithoutItsMarkerFileTheZoneHookIsSilent) {
  system_.marker_file_exists(kProviderMarkerFile);
  EXPECT_EQ(z_gdb_check(), -1);
  EXPECT_EQ(out_.out(), "");
  EXPECT_TRUE(system_.signals().empty());
}

TEST_F(Session, WithItsMarkerFileTheZoneHookStopsTheProcess) {
  system_.marker_file_exists(kZoneMarkerFile).pid(12);
  EXPECT_EQ(z_gdb_check(), 0);
  EXPECT_EQ(out_.out(), "Attach GDB to process id 12 \n");
  ASSERT_EQ(system_.signals().size(), 1u);
  EXPECT_EQ(system_.signals()[0].number, 19);
}

TEST_F(Session, TheHostNameIsReadAtEveryCallIntoOneBuffer) {
  system_.host_name("switch-7");
  char* name = getCSName();
  EXPECT_STREQ(name, "switch-7");
  system_.host_name("sw");
  EXPECT_EQ(getCSNameNew(), name);
  EXPECT_STREQ(name, "sw");
  EXPECT_EQ(system_.calls(), (std::vector<std::string>{"gethostname(500)", "gethostname(500)"}));
}

TEST_F(Session, AHostNameOf500CharactersIsTerminated) {
  const std::string longest(500, 'h');
  system_.host_name(longest);
  EXPECT_EQ(getCSName(), longest);
}

TEST_F(Session, AHostNameThatCannotBeReadIsEmpty) {
  system_.host_name("switch-7");
  getCSName();
  system_.gethostname_fails(EFAULT);
  EXPECT_STREQ(getCSName(), "");
}

TEST_F(Session, ANameOf99CharactersIsSetAndOneOf100IsNot) {
  const std::string longest(99, 'n');
  EXPECT_EQ(setCSName(longest.c_str()), 0);
  EXPECT_EQ(setCSName((longest + "n").c_str()), 0);
  EXPECT_EQ(system_.host_names_set(), std::vector<std::string>{longest});
  EXPECT_EQ(out_.out(), "");
}

TEST_F(Session, ANameThatTheSystemRefusesIsNotReported) {
  system_.sethostname_returns(-1, EPERM);
  EXPECT_EQ(setCSName("switch-2"), 0);
  EXPECT_EQ(system_.host_names_set(), std::vector<std::string>{"switch-2"});
}

TEST_F(Session, NoNameIsAFailure) {
  EXPECT_EQ(setCSName(nullptr), -1);
  EXPECT_TRUE(system_.calls().empty());
}

TEST_F(Session, TheHostsFirstAddressIsWritten) {
  system_.host_name("switch-7").address("switch-7", 10, 0, 0, 254).address("switch-7", 1, 2, 3, 4);
  char address[255] = "before";
  EXPECT_EQ(getIpAddress(address), 0);
  EXPECT_STREQ(address, "10.0.0.254");
  EXPECT_EQ(system_.calls()[0], "gethostname(255)");
}

TEST_F(Session, AHostThatDoesNotResolveLeavesTheText) {
  system_.host_name("switch-7").address("another", 10, 0, 0, 254);
  char address[255] = "before";
  EXPECT_EQ(getIpAddress(address), -1);
  EXPECT_STREQ(address, "before");
  EXPECT_EQ(getIpAddress(nullptr), -1);
}

TEST_F(Session, TheVersionIsFetchedOnceAndSaid) {
  Script script;
  script.expect(software_version().gives("3.2(1a)"));
  char* version = getSwitchVersion();
  EXPECT_STREQ(version, "3.2(1a)");
  EXPECT_EQ(out_.out(), " getSwitchVersion(): The version returned is 3.2(1a) \n");
  EXPECT_EQ(getSwitchVersion(), version);
  EXPECT_STREQ(version, "3.2(1a)");
}

TEST_F(Session, AVersionIsCutTo31Characters) {
  Script script;
  script.expect(software_version().gives("0123456789012345678901234567890123456789"));
  EXPECT_STREQ(getSwitchVersion(), "0123456789012345678901234567890");
}

TEST_F(Session, AnEmptyVersionIsSaidAndAskedForAgain) {
  Script script;
  script.expect(software_version().gives(""));
  script.expect(software_version().gives("3.2(1a)"));
  EXPECT_STREQ(getSwitchVersion(), "");
  EXPECT_EQ(out_.out(), " getSwitchVersion(): The version returned is  \n");
  EXPECT_STREQ(getSwitchVersion(), "3.2(1a)");
}

TEST_F(Session, WithoutAVersionThePlatformIsNotAskedAgain) {
  Script script;
  script.expect(software_version().gives(nullptr));
  EXPECT_STREQ(getSwitchVersion(), "Unknown Version");
  EXPECT_STREQ(getSwitchVersion(), "Unknown Version");
  EXPECT_EQ(out_.out(), "");
}

TEST(Receive, WaitsForTheTokenWithAllOptionsSet) {
  HeapLedger ledger;
  Script script;
  script.expect(receive().timeout(10).token(77)).times_out();
  cim_utils::Message message(kQueue);
  EXPECT_EQ(cim_utils::receive(kQueue, 77, 10, &message), -1);
  EXPECT_EQ(message.get(), nullptr);
}

TEST(ExportedData, TheUnusedNotificationTypeIsZero) {
  EXPECT_EQ(zs_snmp_notif_type_t, 0u);
  EXPECT_EQ(sizeof newswitch_buf, 256u);
}

}  // namespace

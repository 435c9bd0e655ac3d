#include "tests/support/os_double.h"

#include <fcntl.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <net/if.h>
#include <netdb.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstring>

#include "tests/support/heap_ledger.h"

namespace test_support {
namespace {

std::string host_name_now() {
  char name[64] = "";
  gethostname(name, sizeof name);
  return name;
}

TEST(OsDouble, TheHostNameIsNeverTheMachines) {
  EXPECT_EQ(host_name_now(), "switch-1");
  OsDouble os;
  EXPECT_EQ(host_name_now(), "switch-1");
  os.host_name("other");
  EXPECT_EQ(host_name_now(), "other");
  EXPECT_EQ(os.calls(), (std::vector<std::string>{"gethostname(64)", "gethostname(64)"}));
}

TEST(OsDouble, AHostNameThatDoesNotFitIsCutWithoutATerminator) {
  OsDouble os;
  os.host_name("abcdef");
  char name[4] = {'x', 'x', 'x', 'x'};
  EXPECT_EQ(gethostname(name, 3), -1);
  EXPECT_EQ(errno, ENAMETOOLONG);
  EXPECT_EQ(std::string(name, 4), "abcx");
}

TEST(OsDouble, GethostnameCanFail) {
  OsDouble os;
  os.gethostname_fails(EFAULT);
  char name[8];
  EXPECT_EQ(gethostname(name, sizeof name), -1);
  EXPECT_EQ(errno, EFAULT);
}

TEST(OsDouble, SethostnameIsRecordedOnly) {
  HeapLedger ledger;
  OsDouble os;
  EXPECT_EQ(sethostname("new-name", 3), 0);
  os.sethostname_returns(-1, EPERM);
  EXPECT_EQ(sethostname("x", 1), -1);
  EXPECT_EQ(errno, EPERM);
  EXPECT_EQ(os.host_names_set(), (std::vector<std::string>{"new", "x"}));
}

TEST(OsDouble, ChangesWithoutADoubleFailTheTest) {
  EXPECT_NONFATAL_FAILURE(EXPECT_EQ(sethostname("a", 1), -1), "sethostname while no OsDouble");
  EXPECT_NONFATAL_FAILURE(EXPECT_EQ(kill(getpid(), SIGSTOP), -1), "kill while no OsDouble");
}

TEST(OsDouble, OnlyGivenHostsHaveAddresses) {
  HeapLedger ledger;
  OsDouble os;
  os.address("switch-1", 10, 1, 2, 255).address("switch-1", 10, 0, 0, 2);
  const hostent* host = gethostbyname("switch-1");
  ASSERT_NE(host, nullptr);
  EXPECT_EQ(host->h_addrtype, AF_INET);
  EXPECT_EQ(host->h_length, 4);
  EXPECT_EQ(std::string(host->h_addr_list[0], 4), std::string("\x0a\x01\x02\xff", 4));
  EXPECT_EQ(host->h_addr_list[1][3], 2);
  EXPECT_EQ(host->h_addr_list[2], nullptr);
  EXPECT_EQ(host->h_aliases[0], nullptr);
  EXPECT_EQ(gethostbyname("other"), nullptr);
}

TEST(OsDouble, MarkerFilesAreTheDoublesAndOtherFilesTheMachines) {
  struct stat status {};
  EXPECT_EQ(stat(kProviderMarkerFile, &status), -1);
  EXPECT_EQ(errno, ENOENT);
  EXPECT_EQ(stat("/", &status), 0);
  OsDouble os;
  os.marker_file_exists(kProviderMarkerFile);
  EXPECT_EQ(stat(kProviderMarkerFile, &status), 0);
  EXPECT_LT(stat(kZoneMarkerFile, &status), 0);
  EXPECT_EQ(os.calls(), (std::vector<std::string>{"stat(/etc/cim_debug_provider)",
                                                  "stat(/etc/cim_debug_zone)"}));
}

TEST(OsDouble, SignalsAreRecordedAndNeverSent) {
  OsDouble os;
  os.pid(4711).kill_returns(-7);
  EXPECT_EQ(kill(getpid(), SIGSTOP), -7);
  EXPECT_EQ(os.signals(), (std::vector<OsDouble::Signal>{{4711, 19}}));
}

TEST(OsDouble, HardwareAddressesComeFromTheTest) {
  HeapLedger ledger;
  OsDouble os;
  os.hardware_address("mgmt0", {0, 1, 2, 0xfd, 0xfe, 0xff});
  int fd = socket(AF_INET, SOCK_DGRAM, 0);
  ASSERT_GE(fd, 0);
  ifreq request{};
  strcpy(request.ifr_name, "mgmt0");
  EXPECT_EQ(ioctl(fd, SIOCGIFHWADDR, &request), 0);
  EXPECT_EQ(memcmp(request.ifr_hwaddr.sa_data, "\x00\x01\x02\xfd\xfe\xff", 6), 0);
  strcpy(request.ifr_name, "eth9");
  EXPECT_EQ(ioctl(fd, SIOCGIFHWADDR, &request), -1);
  EXPECT_EQ(errno, ENODEV);
  EXPECT_EQ(close(fd), 0);
  EXPECT_EQ(os.calls(),
            (std::vector<std::string>{"socket(datagram)", "ioctl(hardware address, mgmt0)",
                                      "ioctl(hardware address, eth9)", "close"}));
}

TEST(OsDouble, OtherSocketRequestsFailTheTest) {
  OsDouble os;
  int fd = socket(AF_INET, SOCK_DGRAM, 0);
  ifreq request{};
  EXPECT_NONFATAL_FAILURE(ioctl(fd, SIOCGIFFLAGS, &request), "on a datagram socket");
  close(fd);
}

TEST(OsDouble, ASocketLeftOpenFailsTheTest) {
  EXPECT_NONFATAL_FAILURE(
      {
        OsDouble os;
        socket(AF_INET, SOCK_DGRAM, 0);
      },
      "a socket was not closed");
}

TEST(OsDouble, SocketCanFail) {
  OsDouble os;
  os.socket_fails(EMFILE);
  EXPECT_EQ(socket(AF_INET, SOCK_DGRAM, 0), -1);
  EXPECT_EQ(errno, EMFILE);
}

TEST(OsDouble, OtherDescriptorsAreReal) {
  int fd = open("/dev/null", O_RDONLY);
  ASSERT_GE(fd, 0);
  EXPECT_EQ(close(fd), 0);
  EXPECT_EQ(close(fd), -1);
  int pair = socket(AF_UNIX, SOCK_STREAM, 0);
  ASSERT_GE(pair, 0);
  EXPECT_EQ(close(pair), 0);
}

}  // namespace
}  // namespace test_support

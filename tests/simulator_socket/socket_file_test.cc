#include "simulator/server/socket_file.h"

#include <sys/stat.h>

#include "tests/simulator_socket/socket_fixture.h"

namespace socket_test {
namespace {

using SocketFiles = SocketTest;

TEST_F(SocketFiles, OnlyTheOwnerMayUseItWhateverTheUmask) {
  const mode_t before = umask(0);
  SocketFile file;
  EXPECT_EQ(std::nullopt, file.open(path()));
  umask(before);
  struct stat made {};
  ASSERT_EQ(0, lstat(path().c_str(), &made));
  EXPECT_TRUE(S_ISSOCK(made.st_mode));
  EXPECT_EQ(0600U, made.st_mode & 07777U);
  ASSERT_EQ(0, lstat((path() + ".lock").c_str(), &made));
  EXPECT_EQ(0600U, made.st_mode & 07777U);
}

TEST_F(SocketFiles, NothingIsLeftAtTheEnd) {
  {
    SocketFile file;
    EXPECT_EQ(std::nullopt, file.open(path()));
  }
  EXPECT_TRUE(program::fs::is_empty(folder_.path()));
}

TEST_F(SocketFiles, AServedSocketIsRefused) {
  SocketFile file;
  ASSERT_EQ(std::nullopt, file.open(path()));
  {
    SocketFile second;
    EXPECT_EQ(path() + ": another process serves there", second.open(path()));
  }
  Line::to(path());  // still there
}

TEST_F(SocketFiles, ASocketThatIsServedWithoutALockIsRefused) {
  Listener other(path());
  SocketFile file;
  EXPECT_EQ(path() + ": another process serves there", file.open(path()));
  Line::to(path());
}

TEST_F(SocketFiles, ASocketOfADeadProcessIsReplaced) {
  { Listener dead(path()); }
  folder_.write("switch.sock.lock", "");
  SocketFile file;
  EXPECT_EQ(std::nullopt, file.open(path()));
  Line::to(path());
}

TEST_F(SocketFiles, WhatIsNoSocketStays) {
  folder_.write("switch.sock", "precious");
  {
    SocketFile file;
    EXPECT_EQ(path() + ": this is not a socket", file.open(path()));
  }
  EXPECT_EQ("precious", program::file_text(path()));
}

TEST_F(SocketFiles, ALinkToASocketStaysALink) {
  Listener other(path("other.sock"));
  program::fs::create_symlink(path("other.sock"), path());
  SocketFile file;
  EXPECT_EQ(path() + ": this is not a socket", file.open(path()));
}

TEST_F(SocketFiles, AnotherFileInItsPlaceStays) {
  {
    SocketFile file;
    ASSERT_EQ(std::nullopt, file.open(path()));
    program::fs::remove(path());
    folder_.write("switch.sock", "precious");
  }
  EXPECT_EQ("precious", program::file_text(path()));
}

TEST_F(SocketFiles, ANameMustFitIntoAnAddress) {
  const std::string name = path(std::string(107 - path("").size(), 'n').c_str());
  ASSERT_EQ(107U, name.size());
  SocketFile file;
  EXPECT_EQ(std::nullopt, file.open(name));
  SocketFile longer;
  EXPECT_EQ(name + "n: the name of a socket has at most 107 bytes", longer.open(name + "n"));
  SocketFile nameless;
  EXPECT_EQ("the name of the socket is missing", nameless.open(""));
}

TEST_F(SocketFiles, AFolderThatIsMissingIsTold) {
  SocketFile file;
  EXPECT_EQ("/nonexistent/s: No such file or directory", file.open("/nonexistent/s"));
}

}  // namespace
}  // namespace socket_test

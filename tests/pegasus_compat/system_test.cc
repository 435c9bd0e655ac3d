#include <Pegasus/Common/System.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <ctime>
#include <string>

namespace {

using Pegasus::String;
using Pegasus::System;

std::string hostName;  // NOLINT(runtime/string): what the system answers in these tests
bool hostNameFails = false;

}  // namespace

// Takes the place of the system's, for the library as well.
extern "C" int gethostname(char* name, size_t size) noexcept {
  if (hostNameFails) return -1;
  std::strncpy(name, hostName.c_str(), size);  // like the system: no final zero if it does not fit
  return 0;
}

namespace {

TEST(System, HostNameIsTheShortName) {
  hostName = "switch-1.fabric.example";
  EXPECT_EQ(System::getHostName(), "switch-1");
  EXPECT_EQ(System::getFullyQualifiedHostName(), "switch-1.fabric.example");
}

TEST(System, HostNameWithoutADomainIsWhole) {
  hostName = "vm";
  EXPECT_EQ(System::getHostName(), "vm");
  EXPECT_EQ(System::getFullyQualifiedHostName(), "vm");
}

TEST(System, HostNameIsAskedForAtEveryCall) {
  hostName = "one";
  EXPECT_EQ(System::getHostName(), "one");
  hostName = "two";
  EXPECT_EQ(System::getHostName(), "two");
}

TEST(System, UnknownHostNameIsEmpty) {
  hostNameFails = true;
  EXPECT_EQ(System::getHostName(), "");
  EXPECT_EQ(System::getFullyQualifiedHostName(), "");
  hostNameFails = false;
}

TEST(System, HostNameOfAnyLengthEnds) {
  hostName = std::string(1000, 'h');
  EXPECT_EQ(System::getHostName(), String(std::string(255, 'h').c_str()));
}

TEST(System, CurrentAsciiTimeIsLocalDateAndTime) {
  const String text = System::getCurrentASCIITime();
  const Pegasus::CString chars = text.getCString();
  tm read{};
  const char* end = strptime(chars, "%m/%d/%Y-%H:%M:%S", &read);
  ASSERT_NE(end, nullptr);
  EXPECT_EQ(*end, '\0');
  EXPECT_EQ(text.size(), 19U);
}

TEST(System, CurrentTimeIsInMicroseconds) {
  const time_t before = time(nullptr);
  const Pegasus::Uint64 now = System::getCurrentTimeUsec();
  const time_t after = time(nullptr);
  EXPECT_GE(now / 1000000 + 1, static_cast<Pegasus::Uint64>(before));
  EXPECT_LE(now / 1000000, static_cast<Pegasus::Uint64>(after) + 1);  // time() is coarse
}

TEST(System, ProcessIdIsOurs) {
  EXPECT_EQ(System::getPID(), static_cast<Pegasus::Uint32>(getpid()));
}

}  // namespace

#include <switch_platform/fabric_distribution.h>
#include <switch_platform/mts.h>
#include <switch_platform/name_server.h>
#include <switch_platform/system.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {

struct Address {
  uint32_t family;
  uint8_t bytes[16];
  uint32_t prefix;
};

TEST(IpAddress, AnIpv6AddressIsShownWithoutItsPrefix) {
  const Address address = {2, {0x20, 0x01, 0x0D, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x2A}, 64};
  char text[64];
  EXPECT_EQ(text, ip_addr_to_str(&address, text, sizeof text));
  EXPECT_STREQ("2001:db8::2a", text);
}

TEST(IpAddress, AnIpv4AddressIsShownWithDots) {
  const Address address = {1, {192, 0, 2, 7}, 32};
  char text[64];
  ip_addr_to_str(&address, text, sizeof text);
  EXPECT_STREQ("192.0.2.7", text);
}

TEST(IpAddress, ATextThatDoesNotFitIsEmpty) {
  const Address address = {2, {0x20, 0x01, 0x0D, 0xB8}, 64};
  char text[4] = "abc";
  ip_addr_to_str(&address, text, sizeof text);
  EXPECT_STREQ("", text);
}

TEST(IpAddress, NoAddressIsAnEmptyText) {
  char text[4] = "abc";
  EXPECT_EQ(text, ip_addr_to_str(nullptr, text, sizeof text));
  EXPECT_STREQ("", text);
  EXPECT_EQ(nullptr, ip_addr_to_str(nullptr, nullptr, 0));
}

TEST(NameServerAddress, AnAddressInTheLastFourBytesIsIpv4) {
  const uint8_t address[16] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 10, 1, 2, 3};
  const uint8_t mapped[16] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0xFF, 0xFF, 10, 1, 2, 4};
  char text[64];
  EXPECT_EQ(0, ns_print_ip_addr(address, text));
  EXPECT_STREQ("10.1.2.3", text);
  EXPECT_EQ(0, ns_print_ip_addr(mapped, text));
  EXPECT_STREQ("10.1.2.4", text);
}

TEST(NameServerAddress, AnyOtherAddressIsIpv6) {
  const uint8_t address[16] = {0xFE, 0x80, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
  char text[64];
  EXPECT_EQ(0, ns_print_ip_addr(address, text));
  EXPECT_STREQ("fe80::1", text);
}

TEST(NameServerAddress, NullIsRefused) {
  const uint8_t address[16] = {};
  char text[64];
  EXPECT_NE(0, ns_print_ip_addr(nullptr, text));
  EXPECT_NE(0, ns_print_ip_addr(address, nullptr));
}

TEST(Fc4Types, ATypeIsABitOfItsBigEndianWord) {
  uint8_t map[32] = {};
  map[2] = 0x01;   // type 8, SCSI
  map[28] = 0x00;  // word 7 holds types 224..255
  map[31] = 0x02;  // type 225
  EXPECT_NE(0, ns_is_set_fc4_type(map, 8));
  EXPECT_NE(0, ns_is_set_fc4_type(map, 225));
  EXPECT_EQ(0, ns_is_set_fc4_type(map, 5));
  EXPECT_EQ(0, ns_is_set_fc4_type(map, 0));
  EXPECT_EQ(0, ns_is_set_fc4_type(map, 255));
  EXPECT_EQ(0, ns_is_set_fc4_type(nullptr, 8));
}

TEST(Fc4Types, TheLastTypeIsTheFirstBitOfTheLastWord) {
  uint8_t map[32] = {};
  map[28] = 0x80;
  EXPECT_NE(0, ns_is_set_fc4_type(map, 255));
}

TEST(StatusText, EveryStatusHasItsText) {
  EXPECT_STREQ("Success", syserr2str(0));
  EXPECT_STREQ("Message transport failure", syserr2str(-1));
  EXPECT_STREQ("No such entry", syserr2str(0x40010001));
  EXPECT_STREQ("No more entries in the table", syserr2str(0x40010002));
  EXPECT_STREQ("Request has a wrong length", syserr2str(0x40010003));
  EXPECT_STREQ("Operation not supported by the service", syserr2str(0x40010004));
  EXPECT_STREQ("Value not allowed", syserr2str(0x40010005));
  EXPECT_STREQ("Service is not running in the VSAN", syserr2str(0x40010006));
  EXPECT_STREQ("Opcode not known to the service", syserr2str(0x40010007));
  EXPECT_STREQ("Service not available", syserr2str(0x40010008));
  EXPECT_STREQ("Fabric description cannot be used", syserr2str(0x40010009));
  EXPECT_STREQ("Change could not be saved", syserr2str(0x4001000A));
  EXPECT_STREQ("Request is not in the recording", syserr2str(0x4001000B));
  EXPECT_STREQ("Out of memory", syserr2str(0x4001000C));
  EXPECT_STREQ("No such system-information item", syserr2str(0x40490001));
  EXPECT_STREQ("Attribute cannot be set on this interface", syserr2str(0x40150001));
  EXPECT_STREQ("Interface belongs to a port channel", syserr2str(0x40150002));
  EXPECT_STREQ("Query rejected by the name server", syserr2str(0x4025000A));
}

TEST(StatusText, EveryResultOfTheZoneServerHasAText) {
  EXPECT_STREQ("VSAN is not configured", syserr2str(0x40200001));
  EXPECT_STREQ("No such zone set, zone or alias", syserr2str(0x40200002));
  EXPECT_STREQ("No such member", syserr2str(0x40200003));
  EXPECT_STREQ("Name is in use", syserr2str(0x40200004));
  EXPECT_STREQ("Member is already present", syserr2str(0x40200005));
  EXPECT_STREQ("Not a zoning name", syserr2str(0x40200006));
  EXPECT_STREQ("Wrong kind of zoning object", syserr2str(0x40200007));
  EXPECT_STREQ("Not a zone member", syserr2str(0x40200008));
  EXPECT_STREQ("Zone set holds no zones", syserr2str(0x40200009));
  EXPECT_STREQ("Too many zone sets", syserr2str(0x40200011));
  EXPECT_STREQ("Too many zones", syserr2str(0x40200012));
  EXPECT_STREQ("Too many zone aliases", syserr2str(0x40200013));
  EXPECT_STREQ("Too many zone members", syserr2str(0x40200014));
  EXPECT_STREQ("Too many members of one zone or alias", syserr2str(0x40200015));
  EXPECT_STREQ("Zone set is already active", syserr2str(0x40200038));
  EXPECT_STREQ("Zone set is not active", syserr2str(0x40200039));
  EXPECT_STREQ("Zoning database is already distributed", syserr2str(0x40200079));
  EXPECT_STREQ("No zone set to distribute", syserr2str(0x40200091));
}

TEST(StatusText, AnyOtherCodeIsShownAsANumber) {
  EXPECT_STREQ("Unknown status 0x1234", syserr2str(0x1234));
  EXPECT_STREQ("Unknown status 0xfffffffe", syserr2str(-2));
}

TEST(DistributionCodeText, EveryCodeHasAText) {
  EXPECT_STREQ("Success", kfs_rcode2str(0));
  EXPECT_STREQ("Malformed response", kfs_rcode2str(1));
  EXPECT_STREQ("Application is not known to the fabric distribution service", kfs_rcode2str(2));
  EXPECT_STREQ("Fabric distribution is not available", kfs_rcode2str(3));
  EXPECT_STREQ("Unknown result code", kfs_rcode2str(99));
}

}  // namespace

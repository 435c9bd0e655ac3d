#include <cim_utils/port_manager.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <string>

#include "tests/adaptors/port_records.h"
#include "tests/support/capture.h"
#include "tests/support/os_double.h"
#include "tests/support/script.h"

using namespace test_support;

namespace {

TEST(PortValues, OperStateOneIsOkAndEveryOtherUnknown) {
  EXPECT_EQ(pm_cim_convert_port_oper_state(1), 2);
  for (const uint32_t state : {0u, 2u, 3u, 8u, 255u, 0xffffffffu})
    EXPECT_EQ(pm_cim_convert_port_oper_state(state), 0) << state;
}

TEST(PortValues, AdminStateOneIsEnabledAndEveryOtherDisabled) {
  EXPECT_EQ(pm_cim_convert_port_admin_state(1), 2);
  EXPECT_EQ(pm_cim_convert_port_enable_state(1), 2);
  for (const uint32_t state : {0u, 2u, 3u, 8u, 255u}) {
    EXPECT_EQ(pm_cim_convert_port_admin_state(state), 3) << state;
    EXPECT_EQ(pm_cim_convert_port_enable_state(state), 3) << state;
  }
}

TEST(PortValues, RequestedStateTwoIsUpAndEveryOtherDown) {
  EXPECT_EQ(pm_cim_convert_cimport_state(2), 1u);
  for (const uint32_t state : {0u, 1u, 3u, 4u, 255u})
    EXPECT_EQ(pm_cim_convert_cimport_state(state), 2u) << state;
}

TEST(PortValues, ModesHavePortTypes) {
  EXPECT_EQ(pm_cim_convert_port_mode(4), 14);
  EXPECT_EQ(pm_cim_convert_port_mode(8), 14);
  EXPECT_EQ(pm_cim_convert_port_mode(32), 15);
  EXPECT_EQ(pm_cim_convert_port_mode(64), 16);
  EXPECT_EQ(pm_cim_convert_port_mode(128), 16);
  EXPECT_EQ(pm_cim_convert_port_mode(256), 16);
  for (const uint32_t mode : {0u, 1u, 2u, 16u, 96u, 512u})
    EXPECT_EQ(pm_cim_convert_port_mode(mode), 0) << mode;
}

TEST(PortValues, TheTypeOfAnFcPortIsThatOfItsMode) {
  EXPECT_EQ(pm_cim_convert_port_type(4, 1), 14);
  EXPECT_EQ(pm_cim_convert_port_type(8, 1), 14);
  EXPECT_EQ(pm_cim_convert_port_type(32, 1), 15);
  EXPECT_EQ(pm_cim_convert_port_type(64, 1), 16);
  EXPECT_EQ(pm_cim_convert_port_type(128, 1), 16);
  EXPECT_EQ(pm_cim_convert_port_type(256, 1), 16);
  EXPECT_EQ(pm_cim_convert_port_type(1, 1), 0);
}

TEST(PortValues, OtherInterfacesHaveTheirPortTypeWhateverTheirMode) {
  for (const uint32_t mode : {0u, 4u, 32u}) {
    EXPECT_EQ(pm_cim_convert_port_type(mode, 4), 16004);
    EXPECT_EQ(pm_cim_convert_port_type(mode, 10), 16010);
    EXPECT_EQ(pm_cim_convert_port_type(mode, 11), 16011);
    for (const uint8_t type : {0, 2, 3, 5, 6, 9, 12, 14, 255})
      EXPECT_EQ(pm_cim_convert_port_type(mode, type), 0) << int{type};
  }
}

TEST(PortValues, PortsOfInterSwitchLinksAreEPortsUnlessTheirInterfaceSaysOtherwise) {
  EXPECT_EQ(pm_cim_convert_isl_port_type(4), 16004);
  EXPECT_EQ(pm_cim_convert_isl_port_type(10), 16010);
  EXPECT_EQ(pm_cim_convert_isl_port_type(11), 16011);
  for (const uint8_t type : {0, 1, 2, 5, 6, 12, 255})
    EXPECT_EQ(pm_cim_convert_isl_port_type(type), 14) << int{type};
}

TEST(PortValues, NameServerEntriesOnIscsiInterfacesHaveATypeOfTheirOwn) {
  EXPECT_EQ(pm_cim_convert_ns_port_type(11), 16011);
  for (const uint8_t type : {0, 1, 4, 10, 12, 255})
    EXPECT_EQ(pm_cim_convert_ns_port_type(type), 14) << int{type};
}

TEST(PortValues, ModesHaveSettings) {
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(4), 4);
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(8), 4);
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(32), 5);
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(96), 6);
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(1), 17001);
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(2), 17002);
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(16), 17016);
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(64), 17064);
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(128), 17128);
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(256), 17256);
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(0), 17000);
}

TEST(PortValues, SettingsOfAnUnknownModeAreCutTo16Bits) {
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(48535), 65535);
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(48536), 0);
  EXPECT_EQ(pm_cim_convert_port_mode_fcportsettings(0xffffffff), 16999);
}

TEST(PortValues, RequestedTypesHaveModes) {
  EXPECT_EQ(pm_cim_convert_cimport_mode(4), 4u);
  EXPECT_EQ(pm_cim_convert_cimport_mode(5), 32u);
  EXPECT_EQ(pm_cim_convert_cimport_mode(6), 96u);
  EXPECT_EQ(pm_cim_convert_cimport_mode(17001), 1u);
  EXPECT_EQ(pm_cim_convert_cimport_mode(17002), 2u);
  EXPECT_EQ(pm_cim_convert_cimport_mode(17016), 16u);
  EXPECT_EQ(pm_cim_convert_cimport_mode(17064), 64u);
  for (const uint32_t value : {0u, 1u, 7u, 14u, 17000u, 17004u, 17032u, 0xffffffffu})
    EXPECT_EQ(pm_cim_convert_cimport_mode(value), 1u) << value;
}

TEST(PortValues, Modes8And128And256DoNotComeBack) {
  EXPECT_EQ(pm_cim_convert_cimport_mode(4), 4u);      // what 8 goes out as
  EXPECT_EQ(pm_cim_convert_cimport_mode(17128), 1u);  // what 128 goes out as
  EXPECT_EQ(pm_cim_convert_cimport_mode(17256), 1u);  // what 256 goes out as
}

TEST(PortValues, RequestedSpeedsAreOneAndTwoGigabits) {
  EXPECT_EQ(pm_cim_convert_cimport_speed(1062500000), 1000u);
  EXPECT_EQ(pm_cim_convert_cimport_speed(2125000000), 2000u);
  for (const uint64_t speed : {uint64_t{0}, uint64_t{1000}, uint64_t{1062500001},
                               uint64_t{4250000000}, uint64_t{1062500000} + (uint64_t{1} << 32)})
    EXPECT_EQ(pm_cim_convert_cimport_speed(speed), 0u) << speed;
}

// ---- Values of a record -----------------------------------------------------------------------

pm_port_info_ with_speed(uint8_t oper_state, uint32_t oper_speed) {
  return info_of(Record(204).host32(147, oper_speed).byte(151, oper_state));
}

TEST(PortSpeed, FcLikeInterfacesThatWorkHave1062500BitsPerMegabit) {
  for (const uint8_t type : {1, 4, 10, 11}) {
    for (const uint8_t state : {1, 8}) {
      const pm_port_info_ slow = with_speed(state, 1000);
      const pm_port_info_ fast = with_speed(state, 10000);
      EXPECT_EQ(pm_cim_get_speed(&slow, type), 1062500000u);
      EXPECT_EQ(pm_cim_get_speed(&fast, type), 10625000000u);
    }
  }
}

TEST(PortSpeed, TheProductForFcIs64BitsWide) {
  const pm_port_info_ info = with_speed(1, 0xffffffff);
  EXPECT_EQ(pm_cim_get_speed(&info, 1), 4563402750937500u);
}

TEST(PortSpeed, FcLikeInterfacesInOtherStatesHaveNone) {
  for (const uint8_t type : {1, 4, 10, 11}) {
    for (const uint8_t state : {0, 2, 7, 9, 255}) {
      const pm_port_info_ info = with_speed(state, 2000);
      EXPECT_EQ(pm_cim_get_speed(&info, type), 0u) << int{type} << " " << int{state};
    }
  }
}

TEST(PortSpeed, AnFcPortInState8HasASpeedWhileItsStatusIsUnknown) {
  const pm_port_info_ info = with_speed(8, 2000);
  EXPECT_EQ(pm_cim_get_speed(&info, 1), 2125000000u);
  EXPECT_EQ(pm_cim_convert_port_oper_state(info.oper_state), 0);
}

TEST(PortSpeed, EthernetLikePortsThatAreUpHaveAMillionBitsPerMegabit) {
  for (const uint8_t type : {2, 5}) {
    const pm_port_info_ info = with_speed(1, 1000);
    EXPECT_EQ(pm_cim_get_speed(&info, type), 1000000000u);
  }
}

TEST(PortSpeed, EthernetLikePortsWithoutASpeedHave100Megabits) {
  for (const uint8_t type : {2, 5}) {
    const pm_port_info_ info = with_speed(1, 0);
    EXPECT_EQ(pm_cim_get_speed(&info, type), 100000000u);
  }
}

TEST(PortSpeed, EthernetRatesAbove4294MegabitsWrap) {
  const pm_port_info_ last = with_speed(1, 4294);
  EXPECT_EQ(pm_cim_get_speed(&last, 2), 4294000000u);
  const pm_port_info_ wrapped = with_speed(1, 4295);
  EXPECT_EQ(pm_cim_get_speed(&wrapped, 2), 32704u);
  const pm_port_info_ ten_gigabits = with_speed(1, 10000);
  EXPECT_EQ(pm_cim_get_speed(&ten_gigabits, 5), 1410065408u);
}

TEST(PortSpeed, EthernetLikePortsInOtherStatesHaveNone) {
  for (const uint8_t type : {2, 5}) {
    for (const uint8_t state : {0, 2, 8, 255}) {
      const pm_port_info_ info = with_speed(state, 1000);
      EXPECT_EQ(pm_cim_get_speed(&info, type), 0u) << int{state};
    }
  }
}

TEST(PortSpeed, OtherTypesAndNoRecordHaveNone) {
  const pm_port_info_ info = with_speed(1, 1000);
  for (const uint8_t type : {0, 3, 6, 9, 12, 14, 255})
    EXPECT_EQ(pm_cim_get_speed(&info, type), 0u) << int{type};
  EXPECT_EQ(pm_cim_get_speed(nullptr, 1), 0u);
}

TEST(PortMtu, IsFixedForFcLikeInterfacesAndTheRecordsForEthernetLikeOnes) {
  const pm_port_info_ info = info_of(Record(204).host16(102, 1500));
  for (const uint8_t type : {1, 4, 10, 11})
    EXPECT_EQ(pm_cim_get_mtu(&info, type), 2112u) << int{type};
  for (const uint8_t type : {2, 5})
    EXPECT_EQ(pm_cim_get_mtu(&info, type), 1500u) << int{type};
  for (const uint8_t type : {0, 3, 6, 9, 12, 14, 255})
    EXPECT_EQ(pm_cim_get_mtu(&info, type), 0u) << int{type};
  EXPECT_EQ(pm_cim_get_mtu(nullptr, 2), 0u);
}

std::string permanent_address(uint32_t if_index, uint8_t type) {
  const pm_port_info_ info = info_of(port_record(if_index));
  char text[PM_PERMANENT_ADDRESS_TEXT_ROOM] = "?";
  EXPECT_EQ(pm_cim_get_permanent_address(text, &info, type), 0);
  return text;
}

TEST(PortAddress, ThePermanentOneOfFcLikeInterfacesIsTheWwn) {
  EXPECT_EQ(permanent_address(kFc, 1), "2041000DEC010203");
  EXPECT_EQ(permanent_address(kFcip, 10), "2041000DEC010203");
  EXPECT_EQ(permanent_address(kIscsi, 11), "2041000DEC010203");
  EXPECT_EQ(permanent_address(kChannel, 4), "2041000DEC010203");
}

TEST(PortAddress, ThePermanentOneOfEthernetPortsAndChannelsIsTheMac) {
  EXPECT_EQ(permanent_address(kEthernet, 2), "2041000DEC01");
  EXPECT_EQ(permanent_address(kEtherChannel, 4), "2041000DEC01");
}

TEST(PortAddress, ThePermanentOneOfTheManagementPortIsThatOfEth1) {
  OsDouble os;
  os.hardware_address("eth1", {0x00, 0x0d, 0xec, 0xab, 0x05, 0xff});
  EXPECT_EQ(permanent_address(kManagement, 5), "000decab05ff");
}

TEST(PortAddress, ThePermanentOneOfTheManagementPortIsTwoDashesWhenItCannotBeRead) {
  OsDouble os;
  StdioCapture printed;
  EXPECT_EQ(permanent_address(kManagement, 5), "--");
}

TEST(PortAddress, OtherTypesHaveATextThatSaysSo) {
  EXPECT_EQ(permanent_address(kInBand, 6), "unsupported cim port type 6");
  EXPECT_EQ(permanent_address(kUnknown, 255), "unsupported cim port type 255");
}

std::string network_address(uint32_t if_index, uint8_t type) {
  const pm_port_info_ info = info_of(port_record(if_index));
  char text[PM_NETWORK_ADDRESS_TEXT_ROOM] = "?";
  EXPECT_EQ(pm_cim_get_network_address(text, &info, type), 0);
  return text;
}

TEST(PortAddress, TheNetworkOneOfFcLikeInterfacesIsTheFcId) {
  EXPECT_EQ(network_address(kFc, 1), "7F0EFF");
  EXPECT_EQ(network_address(kFcip, 10), "7F0EFF");
  EXPECT_EQ(network_address(kIscsi, 11), "7F0EFF");
  EXPECT_EQ(network_address(kChannel, 4), "7F0EFF");
}

TEST(PortAddress, TheNetworkOneOfEthernetLikeInterfacesIsTheIpAddress) {
  EXPECT_EQ(network_address(kEthernet, 2), "0.127.14.255");
  EXPECT_EQ(network_address(kManagement, 5), "0.127.14.255");
  EXPECT_EQ(network_address(kEtherChannel, 4), "0.127.14.255");
}

TEST(PortAddress, TheNetworkOneOfOtherTypesIsOneBlank) {
  EXPECT_EQ(network_address(kInBand, 6), " ");
  EXPECT_EQ(network_address(kUnknown, 0), " ");
}

TEST(PortAddress, NeedsARecordAndAPlaceForTheText) {
  const pm_port_info_ info = info_of(port_record(kFc));
  char text[PM_PERMANENT_ADDRESS_TEXT_ROOM] = "as before";
  EXPECT_EQ(pm_cim_get_permanent_address(nullptr, &info, 1), -1);
  EXPECT_EQ(pm_cim_get_permanent_address(text, nullptr, 1), -1);
  EXPECT_EQ(pm_cim_get_network_address(nullptr, &info, 1), -1);
  EXPECT_EQ(pm_cim_get_network_address(text, nullptr, 1), -1);
  EXPECT_STREQ(text, "as before");
}

// ---- Texts ------------------------------------------------------------------------------------

TEST(PortTexts, AWwnIsSixteenUpperCaseDigitsInMemoryOrder) {
  const wwn_ wwn{{0x0a, 0xbc, 0, 1, 0xff, 0x10, 0x9e, 0x07}};
  char text[PM_WWN_TEXT_ROOM];
  EXPECT_EQ(pm_cim_sprintf_wwn(text, &wwn), 16);
  EXPECT_STREQ(text, "0ABC0001FF109E07");
}

TEST(PortTexts, AnFcIdIsSixUpperCaseDigitsWithoutTheFirstByte) {
  const uint8_t fcid[4] = {0x99, 0x0b, 0xcd, 0xef};
  char text[PM_FCID_TEXT_ROOM];
  EXPECT_EQ(pm_cim_sprintf_fcid(text, fcid), 6);
  EXPECT_STREQ(text, "0BCDEF");
}

TEST(PortTexts, AnIpAddressIsWrittenInMemoryOrder) {
  const uint8_t address[4] = {10, 0, 255, 1};
  char text[PM_IP_TEXT_ROOM];
  EXPECT_EQ(pm_cim_sprintf_ip(text, address), 0);
  EXPECT_STREQ(text, "10.0.255.1");
}

TEST(PortTexts, TheLongestIpAddressFitsItsRoom) {
  const uint8_t address[4] = {255, 255, 255, 255};
  char text[PM_IP_TEXT_ROOM];
  EXPECT_EQ(pm_cim_sprintf_ip(text, address), 0);
  EXPECT_STREQ(text, "255.255.255.255");
}

TEST(PortTexts, NullArgumentsAreRefused) {
  const wwn_ wwn{};
  const uint8_t bytes[4] = {};
  char text[PM_WWN_TEXT_ROOM] = "as before";
  EXPECT_EQ(pm_cim_sprintf_wwn(nullptr, &wwn), -1);
  EXPECT_EQ(pm_cim_sprintf_wwn(text, nullptr), -1);
  EXPECT_EQ(pm_cim_sprintf_fcid(nullptr, bytes), -1);
  EXPECT_EQ(pm_cim_sprintf_fcid(text, nullptr), -1);
  EXPECT_EQ(pm_cim_sprintf_ip(nullptr, bytes), -1);
  EXPECT_EQ(pm_cim_sprintf_ip(text, nullptr), -1);
  EXPECT_STREQ(text, "as before");
}

TEST(ManagementMac, IsAskedOfEth1OverASocketThatIsClosed) {
  OsDouble os;
  StdioCapture printed;
  os.hardware_address("eth1", {0x00, 0x0a, 0xbc, 0x7f, 0x80, 0xff});
  char text[PM_MANAGEMENT_MAC_TEXT_ROOM];
  EXPECT_EQ(get_mgmt_port_addr(text), 0);
  EXPECT_STREQ(text, "000abc7f80ff");
  EXPECT_EQ(os.calls(), (std::vector<std::string>{"socket(datagram)",
                                                  "ioctl(hardware address, eth1)", "close"}));
  EXPECT_EQ(printed.out(), "");
}

TEST(ManagementMac, WithoutASocketIsTwoDashes) {
  OsDouble os;
  StdioCapture printed;
  os.socket_fails(EMFILE);
  char text[PM_MANAGEMENT_MAC_TEXT_ROOM];
  EXPECT_EQ(get_mgmt_port_addr(text), -1);
  EXPECT_STREQ(text, "--");
  EXPECT_EQ(os.calls(), (std::vector<std::string>{"socket(datagram)"}));
  EXPECT_EQ(printed.out(), "Cannot get interface config.");
}

TEST(ManagementMac, OfAMissingInterfaceIsTwoDashesAndTheSocketIsClosed) {
  OsDouble os;
  StdioCapture printed;
  os.hardware_address("eth0", {1, 2, 3, 4, 5, 6});
  char text[PM_MANAGEMENT_MAC_TEXT_ROOM];
  EXPECT_EQ(get_mgmt_port_addr(text), -1);
  EXPECT_STREQ(text, "--");
  EXPECT_EQ(os.calls(), (std::vector<std::string>{"socket(datagram)",
                                                  "ioctl(hardware address, eth1)", "close"}));
  EXPECT_EQ(printed.out(), "STAGE 2 - Cannot get interface config.");
}

TEST(ManagementMac, WithoutAPlaceForItAsksNothing) {
  OsDouble os;
  EXPECT_EQ(get_mgmt_port_addr(nullptr), -1);
  EXPECT_TRUE(os.calls().empty());
}

TEST(PortDump, PrintsTheFieldsInOrder) {
  StdioCapture printed;
  const pm_port_info_ info = info_of(Record(204)
                                         .host32(0, 4000000001)
                                         .host32(4, 5)
                                         .text(8, "uplink")
                                         .host32(89, 32)
                                         .host32(94, 2000)
                                         .byte(98, 1)
                                         .host16(102, 1500)
                                         .text(127, "WWNbytes")
                                         .text(135, "FCID")
                                         .host32(143, 8)
                                         .host32(147, 1000)
                                         .byte(151, 9)
                                         .byte(154, 7));
  print_port_info(&info);
  EXPECT_EQ(printed.out(),
            "\n\n\n4000000001 status 5\n"
            "offset 89, admin mode 32\n"
            "oper mode 8\n"
            "oper state 9\n"
            "admin state 1\n"
            "oper speed 1000\n"
            "admin speed 2000\n"
            "offset 38, wwn WWNbytes\n"
            "fcid FCID\n"
            "name: uplink\n"
            "phy enable state: 7\n"
            "mtu: 1500\n");
}

TEST(PortDump, PrintsTextsThatFillTheirFieldsToTheirEnd) {
  StdioCapture printed;
  const pm_port_info_ info = info_of(Record(204)
                                         .text(8, std::string(81, 'n'))
                                         .host32(89, 0x41414141)
                                         .text(127, "WWNbytesFCID")
                                         .text(139, "behind"));
  print_port_info(&info);
  EXPECT_NE(printed.out().find("name: " + std::string(81, 'n') + "\n"), std::string::npos);
  EXPECT_NE(printed.out().find("wwn WWNbytes\n"), std::string::npos);
  EXPECT_NE(printed.out().find("fcid FCID\n"), std::string::npos);
}

TEST(PortDump, OfNoRecordPrintsNothing) {
  StdioCapture printed;
  print_port_info(nullptr);
  EXPECT_EQ(printed.out(), "");
}

}  // namespace

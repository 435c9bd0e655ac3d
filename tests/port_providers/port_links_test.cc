// Links as other makers' and newer switches tell them: names that are cut, interfaces that the
// platform does not know, and switches with port numbers in place of interface indexes.
#include <map>

#include "tests/providers/provider_fixture.h"

namespace {

using namespace provider_tests;
using test_support::Bytes;
using test_support::HeapLedger;
using test_support::Record;
using test_support::Request;
using test_support::Response;

constexpr uint32_t kDomainDatabase = 267;
constexpr uint32_t kLinkStateRecord = 53;

struct Link {
  uint32_t word_2, word_3, remote_domain, if_index, remote_if_index;
};

// VSAN 1 with the own switch (domain 33) and others, and the links that each advertises.
class LinksDouble {
 public:
  LinksDouble()
      : responder_([this](const Request& request) {
          const HeapLedger::Pause pause;
          return answer(request);
        }) {
    const HeapLedger::Pause pause;
    add_switch(33, "20 01 00 0d ec 0a 1b 2d");
  }
  ~LinksDouble() {
    const HeapLedger::Pause pause;
    switches_.clear();
    links_.clear();
  }

  void add_switch(uint8_t domain, const char* wwn) {
    const HeapLedger::Pause pause;
    switches_[domain] = test_support::hex(wwn);
  }
  void add_link(uint8_t domain, const Link& link) {
    const HeapLedger::Pause pause;
    links_[domain].push_back(link);
  }
  size_t calls(uint32_t opcode) const { return responder_.calls(opcode); }
  size_t calls() const { return responder_.calls(); }

 private:
  Response answer(const Request& request) {
    switch (request.opcode) {
      case kCountOpcode:
        return Response::with(Record(4).be32(0, 1));
      case kVsanOpcode: {
        const uint32_t asked = request.be32(520);
        if (request.operation == 2 ? asked >= 1 : asked != 1) return Response::failed(kNoSuchVsan);
        return Response::with(
            Record(2632).be32(520, 1).be32(528, 1).be32(544, 2).be32(552, 1).text(556, "VSAN0001"));
      }
      case kElementsOpcode:
        return Response::with(elements());
      case kElementOpcode: {
        const Bytes wwn(request.body->begin() + 8, request.body->begin() + 16);
        for (const auto& [domain, own] : switches_)
          if (own == wwn) return Response::with(Record(32).be32(0, 1).put(4, wwn).be32(16, domain));
        return Response::failed(kNoSuchElement);
      }
      case kDomainDatabase: {
        const auto found = switches_.find(request.body->at(5));
        if (found == switches_.end()) return Response::failed(kNoSuchElement);
        return Response::with(
            Record(19).be32(0, 1).byte(4, 1).byte(5, found->first).put(6, found->second));
      }
      case kLinkStateRecord:
        return links_of(request.be32(4));
      default:
        return Response::failed(-1);
    }
  }

  Bytes elements() const {
    Record list(4 + 12 * switches_.size());
    list.be32(0, static_cast<uint32_t>(switches_.size()));
    size_t at = 4;
    for (const auto& [domain, wwn] : switches_) {
      list.put(at, wwn).byte(at + 10, 1);
      at += 12;
    }
    return list;
  }

  Response links_of(uint32_t domain) const {
    const auto found = links_.find(static_cast<uint8_t>(domain));
    if (found == links_.end()) return Response::failed(kNoSuchElement);
    Record record(36 * (1 + found->second.size()));
    record.be32(0, 1).be32(4, domain).be32(8, 1);
    record.be32(28, static_cast<uint32_t>(found->second.size()));
    size_t at = 36;
    for (const Link& link : found->second) {
      record.be32(at, 1)
          .be32(at + 4, domain)
          .be32(at + 8, link.word_2)
          .be32(at + 12, link.word_3)
          .be32(at + 16, link.remote_domain)
          .be32(at + 20, link.if_index)
          .be32(at + 24, link.remote_if_index);
      at += 36;
    }
    return Response::with(record);
  }

  std::map<uint8_t, Bytes> switches_;
  std::map<uint8_t, std::vector<Link>> links_;
  test_support::Responder responder_;
};

class ProviderLinks : public ProviderFixture {
 protected:
  CMPIObjectPath* port(const char* device_id, const char* system,
                       const char* system_class = "VEXOR_LogicalComputerSystem") {
    return broker_.path("VEXOR_FCPort", {{"DeviceID", device_id},
                                         {"SystemName", system},
                                         {"SystemCreationClassName", system_class},
                                         {"CreationClassName", "VEXOR_FCPort"}});
  }
  CMPIObjectPath* endpoint(const char* name, const char* system) {
    return broker_.path("VEXOR_ProtocolEndPoint",
                        {{"Name", name},
                         {"SystemName", system},
                         {"SystemCreationClassName", "VEXOR_LogicalComputerSystem"},
                         {"CreationClassName", "VEXOR_ProtocolEndPoint"}});
  }
  void expect_got(const CMPIObjectPath* path) {
    const Outcome answer = get(path);
    EXPECT_EQ(answer.code, CMPI_RC_OK) << answer.message << " " << broker_.text(path);
    EXPECT_EQ(answer.returned.instances.size(), 1u);
  }
  void expect_not_found(const CMPIObjectPath* path) {
    EXPECT_EQ(get(path).code, CMPI_RC_ERR_NOT_FOUND) << broker_.text(path);
  }
};

constexpr const char* kOwn = "2001000DEC0A1B2D";
constexpr const char* kForeign = "1000006069123456";

// A link whose name has more than 31 characters: "1_1_33_2147483647_2147483647_16842754".
TEST_F(ProviderLinks, APortWhoseNameWasCutIsFoundAmongTheLinksOfItsVsan) {
  LinksDouble links;
  links.add_switch(34, "20 01 00 0d ec 0a 1b 5f");
  links.add_link(33, {2147483647, 2147483647, 34, 7, 8});
  expect_got(port("1_1_33_2147483647_2147483647_7", kOwn));  // 30 characters: whole
  LinksDouble cut;
  cut.add_switch(34, "20 01 00 0d ec 0a 1b 5f");
  cut.add_link(33, {2147483647, 2147483647, 34, 123, 245});
  expect_got(port("1_1_33_2147483647_2147483647_12", kOwn));
  expect_got(port("1_1_34_2147483647_2147483647_24", "2001000DEC0A1B5F"));
  expect_not_found(port("1_1_33_2147483647_2147483647_123", kOwn));
  expect_not_found(port("1_1_33_2147483647_2147483647_13", kOwn));
}

TEST_F(ProviderLinks, AnEndpointKeepsTheWholeNameAndIsFoundByIt) {
  LinksDouble links;
  links.add_switch(34, "20 01 00 0d ec 0a 1b 5f");
  links.add_link(33, {2147483647, 2147483647, 34, 123, 245});
  expect_got(endpoint("1_1_33_2147483647_2147483647_123", kOwn));
  expect_got(endpoint("1_1_34_2147483647_2147483647_245", "2001000DEC0A1B5F"));
  expect_not_found(endpoint("1_1_33_2147483647_2147483647_12", kOwn));
}

TEST_F(ProviderLinks, APortOfAnotherMakersSwitchGoesByItsNumber) {
  LinksDouble links;
  links.add_switch(34, "10 00 00 60 69 12 34 56");
  links.add_link(33, {1, 0, 34, 5, 12});  // the other switch tells nothing
  expect_got(port("1_1_34_1_0_12", kForeign));
  expect_got(port("1000006069123456_12_1", kForeign, "VEXOR_PhysicalComputerSystem"));
  expect_got(endpoint("1_1_34_1_0_12", kForeign));
  expect_not_found(port("1_1_34_1_0_13", kForeign));
  expect_not_found(port("1000006069123456_13_1", kForeign, "VEXOR_PhysicalComputerSystem"));
}

TEST_F(ProviderLinks, OfTwoLinksThroughOneInterfaceEachIsFound) {
  LinksDouble links;
  links.add_switch(34, "20 01 00 0d ec 0a 1b 5f");
  links.add_link(33, {1, 0, 34, 5, 6});
  links.add_link(33, {2, 0, 34, 5, 6});
  expect_got(port("1_1_33_1_0_5", kOwn));
  expect_got(port("1_1_33_2_0_5", kOwn));
  expect_not_found(port("1_1_33_3_0_5", kOwn));
}

TEST_F(ProviderLinks, APortInItsVsanCostsTwoExchangesAndAllLinksAreReadOnlyForWhatIsNotThere) {
  LinksDouble links;
  links.add_switch(34, "20 01 00 0d ec 0a 1b 5f");
  links.add_link(33, {1, 0, 34, 5, 6});
  links.add_link(34, {1, 0, 33, 6, 5});
  expect_got(port("1_1_33_1_0_5", kOwn));
  EXPECT_EQ(links.calls(), 2u);
  EXPECT_EQ(links.calls(kLinkStateRecord), 1u);
  expect_not_found(port("1_1_33_1_0_9", kOwn));
  // The link, the VSAN, the list of its switches, and the element and the links of each.
  EXPECT_EQ(links.calls(), 2u + 1u + 1u + 1u + 2u + 2u);
}

TEST_F(ProviderLinks, AVsanThatIsNotThereIsAskedForNothingMore) {
  LinksDouble links;
  links.add_link(33, {1, 0, 34, 5, 6});
  expect_not_found(port("1_9_35_1_0_5", kOwn));
  EXPECT_EQ(links.calls(kElementsOpcode), 0u);
}

// 2147418113 is no interface of the platform: its type is not known, so its names cannot be formed.
TEST_F(ProviderLinks, APortWhoseInterfaceIsNotKnownIsFoundByWhatStandsForItsName) {
  LinksDouble links;
  links.add_switch(34, "20 01 00 0d ec 0a 1b 5f");
  links.add_link(33, {1, 0, 34, 5, 2147418113});
  expect_got(port("2001000DEC0A1B5F_1_2147418113", "2001000DEC0A1B5F"));
  expect_got(
      port("2000000DEC0A1B5E_2147418113", "2000000DEC0A1B5E", "VEXOR_PhysicalComputerSystem"));
  expect_got(endpoint("none", "2001000DEC0A1B5F"));
  expect_not_found(endpoint("none", kOwn));
}

}  // namespace

// System information (opcode 1812): 1032 bytes, the item at 0 and its answer from 4 on.
//   0 contact, 1 location, 2 system name, 3 description: text
//   4 object identifier: its components from 4, their number at 1028
//   5 services, 6 time since the start in hundredths of a second: a word at 4
#include "simulator/local/platform_status.h"
#include "simulator/services/bytes.h"
#include "simulator/services/services.h"

namespace switch_sim::services {
namespace {

constexpr size_t kRecordSize = 1032;
constexpr size_t kTextWidth = 1024;

}  // namespace

Outcome system_information(const Request& request, Fabric& fabric, VirtualTime now) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  if (request.body.size() != kRecordSize) return refuse(status::kBadLength);
  const Switch& local = local_switch(fabric);
  const SystemInformation& system = local.system;
  const uint32_t item = RequestReader(request.body).be32(0);
  ReplyWriter writer(kRecordSize);
  writer.be32(0, item);
  switch (item) {
    case 0:
      writer.text(4, kTextWidth, system.contact);
      break;
    case 1:
      writer.text(4, kTextWidth, system.location);
      break;
    case 2:
      writer.text(4, kTextWidth, local.name);
      break;
    case 3:
      writer.text(4, kTextWidth, system.description);
      break;
    case 4:
      for (size_t i = 0; i < system.object_id.size(); ++i) {
        writer.be32(4 + i * 4, system.object_id[i]);
      }
      writer.be32(1028, static_cast<uint32_t>(system.object_id.size()));
      break;
    case 5:
      writer.be32(4, system.services);
      break;
    case 6:  // wraps after 497 days, as the item does on a switch
      writer.be32(4, system.uptime_hundredths + static_cast<uint32_t>(now.count() / 10));
      break;
    default:
      return refuse(status::kBadSystemInformationItem);
  }
  return reply(std::move(writer).take());
}

// The reply of the client function: the text without a terminator.
Outcome software_version(const Request& request, Fabric& fabric, VirtualTime /*now*/) {
  if (request.operation != kGet) return refuse(status::kBadOperation);
  const std::string& version = local_switch(fabric).system.software_version;
  if (version.empty()) return refuse(status::kNotFound);
  Bytes bytes(version.size());
  for (size_t i = 0; i < version.size(); ++i)
    bytes[i] = static_cast<std::byte>(version[i]);
  return reply(std::move(bytes));
}

}  // namespace switch_sim::services

#include "model/port_statistics.h"

#include "model/association.h"
#include "model/port_classes.h"
#include "model/port_texts.h"

namespace cim_utils::model {
namespace {

void write_totals(ObjectWriter& out, const fcIfAllCounters_t& counters) {
  out.uint64("BytesTransmitted",
             counters.class2_bytes_transmitted + counters.class3_bytes_transmitted);
  out.uint64("BytesReceived", counters.class2_bytes_received + counters.class3_bytes_received);
  // The two are crossed, deliberately: clients know the frames that a port received as the packets
  // that it transmitted.
  out.uint64("PacketsTransmitted",
             counters.class2_frames_received + counters.class3_frames_received);
  out.uint64("PacketsReceived",
             counters.class2_frames_transmitted + counters.class3_frames_transmitted);
}

void write_errors(ObjectWriter& out, const fcIfAllCounters_t& counters) {
  out.uint64("LIPCount", counters.lip_count);
  out.uint64("NOSCount", counters.nos_count);
  out.uint64("ErrorFrames", counters.error_frames);
  out.uint64("DumpedFrames", counters.dumped_frames);
  out.uint64("LinkFailures", counters.link_failures);
  out.uint64("LossOfSignalCounter", counters.loss_of_signal);
  out.uint64("LossOfSyncCounter", counters.loss_of_sync);
  out.uint64("PrimitiveSeqProtocolErrCount", counters.primitive_sequence_errors);
  out.uint64("CRCErrors", counters.crc_errors);
  out.uint64("InvalidTransmissionWords", counters.invalid_transmission_words);
  out.uint64("FramesTooShort", counters.frames_too_short);
  out.uint64("FramesTooLong", counters.frames_too_long);
  out.uint64("AddressErrors", counters.address_errors);
  out.uint64("BufferCreditNotProvided", counters.buffer_credit_not_provided);
  out.uint64("BufferCreditNotReceived", counters.buffer_credit_not_received);
  out.uint64("DelimiterErrors", counters.delimiter_errors);
  out.uint64("EncodingDisparityErrors", counters.encoding_disparity_errors);
}

void write_frames(ObjectWriter& out, const fcIfAllCounters_t& counters) {
  out.uint64("LinkResetsReceived", counters.link_resets_received);
  out.uint64("LinkResetsTransmitted", counters.link_resets_transmitted);
  out.uint64("MulticastFramesReceived", counters.multicast_frames_received);
  out.uint64("MulticastFramesTransmitted", counters.multicast_frames_transmitted);
  out.uint64("RXClass2Frames", counters.class2_frames_received);
  out.uint64("TXClass2Frames", counters.class2_frames_transmitted);
  out.uint64("Class2FBSY", counters.class2_fabric_busy);
  out.uint64("Class2PBSY", counters.class2_port_busy);
  out.uint64("Class2FRJT", counters.class2_fabric_reject);
  out.uint64("Class2PRJT", counters.class2_port_reject);
  out.uint64("RXClass3Frames", counters.class3_frames_received);
  out.uint64("TXClass3Frames", counters.class3_frames_transmitted);
  out.uint64("Class3FramesDiscarded", counters.class3_frames_discarded);
}

Ends ends_of(Builder& b, const char* ns, const pm_port_info_& port) {
  const Ref end = port_reference(b, "VEXOR_FCPort", ns, &port);
  return {"ManagedElement", end, "Stats",
          port_statistics_reference(b, "VEXOR_FCPortStatistics", ns, port.if_index)};
}

}  // namespace

Ref port_statistics_reference(Builder& b, const char* cls, const char* ns, uint32_t if_index) {
  auto [out, ref] = b.open_path(cls, ns, BadPath::null);
  if (out == nullptr) return ref;
  out->text("InstanceID", InterfaceId(if_index).text);
  return b.close_path(out);
}

Object port_statistics_instance(Builder& b, const char* cls, const char* ns,
                                const fcIfAllCounters_t* counters, const char** properties) {
  if (counters == nullptr) return {};
  const KeyNames keys(b, {"InstanceID"});
  if (!keys) return {};
  ObjectWriter* out = b.open_instance(cls, ns, keys, Filter::applied, properties);
  if (out == nullptr) return {};
  out->text("InstanceID", InterfaceId(counters->if_index).text);
  out->text("ElementName", InterfaceName(counters->if_index).text);
  write_totals(*out, *counters);
  write_errors(*out, *counters);
  write_frames(*out, *counters);
  if (b.instances_have_paths())
    out->path(port_statistics_reference(b, cls, ns, counters->if_index));
  return b.close_instance(out);
}

Ref port_statistical_data_reference(Builder& b, const char* cls, const char* ns,
                                    const pm_port_info_* port) {
  if (port == nullptr) return {};
  return association_reference(b, cls, ns, ends_of(b, ns, *port));
}

Object port_statistical_data_instance(Builder& b, const char* cls, const char* ns,
                                      const pm_port_info_* port) {
  if (port == nullptr) return {};
  const Ends ends = ends_of(b, ns, *port);
  return association_instance(b, cls, ns, [&] { return ends; });
}

}  // namespace cim_utils::model

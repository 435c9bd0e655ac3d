#include "simulator/fabric/counters.h"

namespace switch_sim {
namespace {

constexpr uint64_t kMinute = 60'000;  // milliseconds
constexpr uint64_t kHour = 60 * kMinute;

// One direction of a class of service: where its counters stand, and a frame rate of 1 per cent of
// `share` of the interface's.
struct Traffic {
  size_t frames;
  size_t bytes;
  uint64_t share;
};

// Class 2 and class 3, each received and transmitted.
constexpr std::array<Traffic, 4> kTraffic = {{
    {1, 3, 1},
    {2, 4, 1},
    {10, 12, 100},
    {11, 13, 100},
}};

// An event: the hours between two of a steady interface, and how many a minute has in a storm.
struct Event {
  size_t word;
  uint64_t hours;
  uint64_t per_minute;
};

constexpr std::array kEvents = {
    Event{6, 90, 1},     // class 2 fabric busy
    Event{7, 200, 1},    // class 2 fabric reject
    Event{8, 110, 1},    // class 2 port busy
    Event{9, 250, 1},    // class 2 port reject
    Event{14, 12, 40},   // class 3 frames discarded
    Event{20, 150, 2},   // link failures
    Event{21, 80, 6},    // loss of sync
    Event{22, 120, 4},   // loss of signal
    Event{23, 400, 2},   // primitive sequence protocol errors
    Event{24, 2, 900},   // invalid transmission words
    Event{25, 20, 120},  // CRC errors
    Event{26, 70, 30},   // delimiter errors
    Event{27, 300, 3},   // address errors
    Event{28, 100, 5},   // link resets received
    Event{29, 100, 5},   // link resets transmitted
    Event{35, 300, 8},   // frames too long
    Event{36, 280, 9},   // frames too short
    Event{39, 130, 4},   // not-operational sequences
    Event{44, 3, 600},   // encoding disparity errors
    Event{45, 60, 15},   // dumped frames
    Event{47, 5, 50},    // buffer credit not received
    Event{48, 6, 45},    // buffer credit not provided
    Event{50, 15, 160},  // error frames
    Event{74, 140, 2},   // loop initialisations
};

// Numbers that belong to an interface and a word: mixed as the splitmix64 sequence mixes.
uint64_t mixed(uint64_t seed, const Wwn& wwn, size_t word) {
  uint64_t value = seed;
  for (const uint8_t byte : wwn.bytes)
    value = (value ^ byte) * 0x100000001B3U;
  value += (word + 1) * 0x9E3779B97F4A7C15U;
  value = (value ^ value >> 30) * 0xBF58476D1CE4E5B9U;
  value = (value ^ value >> 27) * 0x94D049BB133111EBU;
  return value ^ value >> 31;
}

void add_port(Counters& counters, const Fabric& fabric, const Switch& element,
              const Interface& port, uint64_t uptime_ms) {
  if (port.counters == CounterProfile::idle) return;
  const Wwn wwn = port_wwn(element.wwn, port.if_index);
  for (const Traffic& traffic : kTraffic) {
    const uint64_t mix = mixed(fabric.counter_seed, wwn, traffic.frames);
    const uint64_t per_second = 100 + mix % 4900;
    const uint64_t size = 64 + (mix >> 32) % 1984;
    const uint64_t frames = uptime_ms * per_second / 100'000 * traffic.share;
    counters[traffic.frames] += frames;
    counters[traffic.bytes] += frames * size;
  }
  // One frame in a thousand goes to several ports.
  counters[51] += uptime_ms * (1 + mixed(fabric.counter_seed, wwn, 51) % 5) / 1000;
  counters[53] += uptime_ms * (1 + mixed(fabric.counter_seed, wwn, 53) % 5) / 1000;
  for (const Event& event : kEvents) {
    // Between one and two times the period, or the rate.
    const uint64_t more = mixed(fabric.counter_seed, wwn, event.word) % 1024;
    counters[event.word] += port.counters == CounterProfile::error_storm
                                ? uptime_ms * event.per_minute / kMinute * (1024 + more) / 1024
                                : uptime_ms / (event.hours * kHour * (1024 + more) / 1024);
  }
}

}  // namespace

Counters counters_of(const Fabric& fabric, const Switch& element, const Interface& interface,
                     uint64_t uptime_ms) {
  Counters counters{};
  add_port(counters, fabric, element, interface, uptime_ms);
  for (const uint32_t member : interface.members) {
    if (const Interface* port = find_interface(element, member)) {
      add_port(counters, fabric, element, *port, uptime_ms);
    }
  }
  return counters;
}

}  // namespace switch_sim

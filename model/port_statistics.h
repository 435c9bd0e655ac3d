// What ports have counted. No service is asked.
#pragma once

#include <switch_platform/records_port_manager.h>

#include "model/builder.h"

namespace cim_utils::model {

// The statistics of a port, by its interface index or from its counters. Null counters make
// nothing.
Ref port_statistics_reference(Builder& b, const char* cls, const char* ns, uint32_t if_index);
Object port_statistics_instance(Builder& b, const char* cls, const char* ns,
                                const fcIfAllCounters_t* counters, const char** properties);

// Ties a port of the own switch to its statistics. A null record makes nothing.
Ref port_statistical_data_reference(Builder& b, const char* cls, const char* ns,
                                    const pm_port_info_* port);
Object port_statistical_data_instance(Builder& b, const char* cls, const char* ns,
                                      const pm_port_info_* port);

}  // namespace cim_utils::model

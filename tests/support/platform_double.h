// All doubles of the platform's functions.
#ifndef TESTS_SUPPORT_PLATFORM_DOUBLE_H
#define TESTS_SUPPORT_PLATFORM_DOUBLE_H

#include "tests/support/bytes.h"
#include "tests/support/double_cmi.h"
#include "tests/support/double_domain_manager.h"
#include "tests/support/double_fabric.h"
#include "tests/support/double_mts.h"
#include "tests/support/double_name_server.h"
#include "tests/support/double_port_manager.h"
#include "tests/support/double_system.h"
#include "tests/support/double_zone_server.h"
#include "tests/support/heap_ledger.h"
#include "tests/support/script.h"

#endif

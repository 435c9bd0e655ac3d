// The provider objects (MIs) that an object manager makes, one of each kind.
#pragma once

#include <cmpidt.h>
#include <cmpift.h>

#include "providers/class.h"

namespace vexor::providers {

// A provider object that serves the classes of the table, which must outlive it. It lives until its
// cleanup with `terminating` set; without that it stays as it is and answers
// CMPI_RC_DO_NOT_UNLOAD, since the switch's queue can not be released and bound again.
// Result: null, with the reason in rc, when there is no memory.
CMPIInstanceMI* make_instance_mi(const CMPIBroker* broker, CMPIStatus* rc, ClassTable classes);
CMPIAssociationMI* make_association_mi(const CMPIBroker* broker, CMPIStatus* rc,
                                       ClassTable classes);
CMPIMethodMI* make_method_mi(const CMPIBroker* broker, CMPIStatus* rc, ClassTable classes);

}  // namespace vexor::providers

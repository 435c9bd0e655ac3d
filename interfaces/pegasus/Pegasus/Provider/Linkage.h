#ifndef PEGASUS_PROVIDER_LINKAGE_H
#define PEGASUS_PROVIDER_LINKAGE_H

#include <Pegasus/Common/Linkage.h>

#endif

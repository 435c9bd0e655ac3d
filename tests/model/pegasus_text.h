// Pegasus values as text, one element a line, for transcripts. The host is written as HOST where it
// is the system's host name.
#pragma once

#include <Pegasus/Common/CIMInstance.h>
#include <Pegasus/Common/CIMObjectPath.h>

#include <string>

namespace pegasus_text {

std::string of(const Pegasus::CIMObjectPath& path);
std::string of(const Pegasus::CIMInstance& instance);

}  // namespace pegasus_text

// The texts of module states.
#pragma once

namespace cim_utils::model {

// The text of a module-table oper status; "Unknown" for a code without one.
const char* module_status_text(int code);

}  // namespace cim_utils::model

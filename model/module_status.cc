#include "model/module_status.h"

namespace cim_utils::model {

const char* module_status_text(int code) {
  switch (code) {
    case 2:
      return "OK";
    case 3:
      return "DISABLED";
    case 4:
      return "OKDIAGFAILED";
    case 5:
      return "BOOT";
    case 6:
      return "SELFTEST";
    case 7:
      return "FAILED";
    case 8:
      return "MISSING";
    case 9:
      return "MISMATCHWITHPAREN";  // 17 characters and no final T, deliberately
    case 10:
      return "MISMATCHCONFI";  // no final G, deliberately
    case 11:
      return "DIAGFAILED";
    case 12:
      return "DORMANT";
    case 13:
    case 14:
      return "OUTOFSERVICE";
    case 15:
      return "POWEREDDOWN";
    case 16:
      return "POWEREDUP";
    case 17:
      return "POWERDENIED";
    case 18:
      return "POWERCYCLED";
    case 19:
      return "POWEROVERWARN";
    case 20:
      return "POWEROVERCRITICAL";
    case 21:
      return "SYNCINPROG";
    default:
      return "Unknown";
  }
}

}  // namespace cim_utils::model

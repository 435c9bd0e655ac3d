#include <cim_utils/computer_system.h>
#include <cim_utils/session.h>

#include <cstdio>

ComputerSystem::ComputerSystem(int queue) : queue_(queue) {}

char* ComputerSystem::getName() {
  std::snprintf(text_, sizeof text_, "%s", CSgetName(queue_));
  return text_;
}

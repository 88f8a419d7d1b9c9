// Storage for the platform the window runs on.
#include "app/app_services.h"

namespace jeerbox {
namespace {

AppServices& Stored() {
  static AppServices services;
  return services;
}

}  // namespace

AppServices& Services() { return Stored(); }

void SetServices(const AppServices& services) { Stored() = services; }

}  // namespace jeerbox

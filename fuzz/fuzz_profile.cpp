// Arbitrary settings files: reading, the Boolean switches, and a write
// that must read back.
#include <cstdlib>

#include "fuzz_support.h"
#include "support/CSettings.h"

using namespace jeerbox;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  testing::FakeFileSystem& files = fuzz::Files();
  const CSettings settings;
  files.Write(settings.ConfigFile(), std::string(reinterpret_cast<const char*>(data), size));
  (void)SettingToBoolean(settings.ReadSetting("EnableFX", true), true);
  (void)SettingToBoolean(settings.ReadSetting("EnableMusic", true), true);
  char small[8];
  (void)CurrentProfile().GetPrivateProfileStringA("TW", "EnableFX", "default", small, sizeof small,
                                                  settings.ConfigFile());

  settings.WriteSetting("Fuzzed", "value 1");
  if (settings.ReadSetting("Fuzzed", "") != "value 1") std::abort();
  return 0;
}

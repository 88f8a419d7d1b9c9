// Straight through to kernel32.
#include "platform/win32/profile_win32.h"

#include <windows.h>

namespace jeerbox {

int Win32Profile::GetPrivateProfileStringA(const std::string& section, const std::string& key,
                                           const std::string& defaultValue, char* buffer, int size,
                                           const std::string& fileName) {
  if (buffer == nullptr || size <= 0) return 0;
  return static_cast<int>(::GetPrivateProfileStringA(section.c_str(), key.c_str(), defaultValue.c_str(),
                                                     buffer, static_cast<DWORD>(size), fileName.c_str()));
}

bool Win32Profile::WritePrivateProfileStringA(const std::string& section, const std::string& key,
                                              const std::string& value, const std::string& fileName) {
  return ::WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(), fileName.c_str()) != 0;
}

}  // namespace jeerbox

// The settings file read by Windows' own profile functions and by the
// portable reader that stands in for them elsewhere: one table of files,
// both readers, the same answer but where the portable reader differs on
// purpose.
#include "platform/win32/profile_win32.h"

#include <gtest/gtest.h>

#include "helpers/profile_rows.h"
#include "helpers/temp_dir.h"
#include "support/profile_file.h"

namespace jeerbox::testing {
namespace {

TEST(Profile, WindowsAndThePortableReaderAgree) {
  TempDir dir;
  Win32Profile windows;
  PortableProfile portable;
  const std::vector<ProfileRow> rows = ProfileRows();
  for (size_t i = 0; i < rows.size(); ++i) {
    const ProfileRow& row = rows[i];
    // A file of its own per row: Windows may keep the last file it read.
    const std::string name = "row" + std::to_string(i) + ".cfg";
    if (!row.file.empty()) dir.Write(name, row.file);
    const std::string path = dir.Path() + "\\" + name;
    EXPECT_EQ(ReadProfileRow(windows, path, row), row.windows) << "row " << i << " (Windows)";
    EXPECT_EQ(ReadProfileRow(portable, path, row), row.portable ? row.portable : row.windows)
        << "row " << i << " (portable)";
  }
}

}  // namespace
}  // namespace jeerbox::testing

// A program directory in memory: files under C:\app\System written with the
// scrambled writer, and a scripted random source.
#pragma once

#include <gtest/gtest.h>

#include "helpers/fake_file_system.h"
#include "helpers/scrambled_writer.h"
#include "helpers/scripted_random.h"
#include "support/globals.h"
#include "text/CTextGenerator.h"
#include "text/MSimpleCrypto.h"

namespace jeerbox::testing {

class TextStoreTest : public ::testing::Test {
 protected:
  TextStoreTest() { gAppPath = "C:\\app"; }
  ~TextStoreTest() override { gAllowMarkedText = true; }

  static std::string SystemFile(const std::string& name) { return "C:\\app\\System\\" + name; }
  void WriteFile(const std::string& name, const ScrambledWriter& writer) {
    fs.Write(SystemFile(name), writer.Bytes());
  }
  // One file holding one section per key.
  void WriteLists(const std::string& name, const KeyLines& lists) {
    WriteFile(name, ScrambledWriter().Sections(lists));
  }

  FakeFileSystem fs;
  ScriptedRandom random;
};

}  // namespace jeerbox::testing

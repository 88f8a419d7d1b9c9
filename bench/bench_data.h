// Program directories for the benchmarks: generated word lists sized like
// real content (two Misc files of about a thousand lines each and one
// General file), or a given program directory such as the shipped one.
#pragma once

#include <cstddef>
#include <string>

namespace jeerbox::bench {

class BenchData {
 public:
  // An empty root: generated files under a fresh temporary directory,
  // removed again with the object. Otherwise the directory as it is.
  explicit BenchData(const std::string& givenRoot = std::string());
  ~BenchData();
  BenchData(const BenchData&) = delete;
  BenchData& operator=(const BenchData&) = delete;

  const std::string& Root() const { return mRoot; }
  bool Generated() const { return mOwned; }
  // Files Misc.001 up to the first missing number, and their bytes.
  int FamilyFiles() const { return mFamilyFiles; }
  size_t FamilyBytes() const { return mFamilyBytes; }

 private:
  std::string mRoot;
  bool mOwned = false;
  int mFamilyFiles = 0;
  size_t mFamilyBytes = 0;
};

// Writes the generated data set under root/System.
void WriteBenchData(const std::string& root);

// Writes root/System/Misc.001 .. Misc.<files>, each of about `fileBytes`
// bytes and each holding every key a sentence asks for.
void WriteScaledFamily(const std::string& root, int files, size_t fileBytes);

// Word lists written to explode, each System/ under 1 MB: the worst cases
// for one sentence. "tokens": every line holds the five shorthand tokens and
// groups up to the line bound; "slashes": a group of 30,000 options;
// "closes": 20,000 stray "}" in front of the groups; "retries": adjectives
// that are long near matches of each other, so the composer's check for a
// used one keeps finding them late; "floods": 900 KB of the byte the key
// search anchors on, and comments between the lines of each key; "files":
// both families in 999 files of about 500 bytes, lines as in "tokens";
// "mixed": a flood in front of lines as in "tokens".
extern const char* const kCraftedShapes[7];
// Writes root/System for the shape; returns the bytes written.
size_t WriteCraftedLists(const std::string& root, const std::string& shape);

// "Misc.007" for ("Misc", 7).
std::string FamilyFileName(const char* prefix, int number);

// A fresh directory under the temporary directory.
std::string MakeTempDir();

}  // namespace jeerbox::bench

// One sentence from a family of 1, 10, 100 and 999 files of 100 KB each:
// the time should follow the bytes of the family, and each file should be
// read once by the sentence's generator (the counters say how often).
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <map>
#include <vector>

#include <unistd.h>

#include "bench_data.h"
#include "compose/MJeerbox.h"
#include "counting_file_system.h"
#include "helpers/fake_file_system.h"
#include "support/globals.h"
#include "support/random.h"
#include "text/CTextGenerator.h"

namespace jeerbox::bench {
namespace {

constexpr size_t kFileBytes = 100 * 1000;

// One directory per family size, written on first use. They go under
// JEERBOX_SCALE_DATA when it is set, written only when missing and kept for
// the next run; otherwise under fresh temporary directories removed at exit.
class ScaledFamilies {
 public:
  ~ScaledFamilies() {
    std::error_code ignored;
    if (Shared().empty())
      for (const auto& [files, root] : mRoots) std::filesystem::remove_all(root, ignored);
  }
  const std::string& Root(int files) {
    auto found = mRoots.find(files);
    if (found != mRoots.end()) return found->second;
    std::string root = Shared().empty() ? MakeTempDir() : Shared() + "/" + std::to_string(files);
    // A family whose last file is there was written whole by an earlier run.
    if (!std::filesystem::exists(root + "/System/" + FamilyFileName("Misc", files)))
      WriteScaledFamily(root, files, kFileBytes);
    return mRoots[files] = root;
  }

 private:
  static std::string Shared() {
    const char* shared = std::getenv("JEERBOX_SCALE_DATA");
    return shared ? shared : "";
  }
  std::map<int, std::string> mRoots;
};

ScaledFamilies gFamilies;

void BM_SentenceFromFamily(benchmark::State& state) {
  const int files = static_cast<int>(state.range(0));
  gAppPath = gFamilies.Root(files);
  CountingFileSystem counting;
  ScopedFileSystem scoped(&counting);
  SeedRandom(3);
  int mostReads = 0;
  size_t filesRead = 0;
  for (auto _ : state) {
    counting.Reset();
    std::string sentence = GenerateInsult();
    benchmark::DoNotOptimize(sentence);
    mostReads = std::max(mostReads, counting.MostReadsOfOneFile());
    filesRead = std::max(filesRead, counting.FilesRead());
  }
  std::error_code error;
  const auto bytes = std::filesystem::file_size(gAppPath + "/System/Misc.001", error);
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * files * static_cast<int64_t>(bytes));
  state.counters["files"] = files;
  state.counters["family_bytes"] = static_cast<double>(files) * static_cast<double>(bytes);
  state.counters["files_read"] = static_cast<double>(filesRead);
  state.counters["max_reads_per_file"] = mostReads;
}

// Exactly `count` sentences with no timing, for counting instructions
// under callgrind (--toggle-collect=jeerbox::GenerateInsult*).
int RunSentences(int files, int count) {
  gAppPath = gFamilies.Root(files);
  CountingFileSystem counting;
  ScopedFileSystem scoped(&counting);
  SeedRandom(3);
  size_t filesRead = 0;
  int mostReads = 0;
  for (int i = 0; i < count; ++i) {
    counting.Reset();
    benchmark::DoNotOptimize(GenerateInsult());
    filesRead = std::max(filesRead, counting.FilesRead());
    mostReads = std::max(mostReads, counting.MostReadsOfOneFile());
  }
  std::printf("files=%d sentences=%d files_read=%zu max_reads_per_file=%d\n", files, count, filesRead,
              mostReads);
  return 0;
}

}  // namespace
}  // namespace jeerbox::bench

// --files=N (repeatable) picks the family sizes; all four by default. A
// size run in a process of its own doesn't inherit the heap of another.
// Every family is written and flushed before the first measurement.
// --sentences=N composes N sentences per size untimed instead.
int main(int argc, char** argv) {
  using namespace jeerbox::bench;
  std::vector<int> sizes;
  int sentences = 0;
  int kept = 1;
  for (int i = 1; i < argc; ++i) {
    if (std::strncmp(argv[i], "--sentences=", 12) == 0) {
      sentences = std::atoi(argv[i] + 12);
    } else if (std::strncmp(argv[i], "--files=", 8) == 0) {
      const int files = std::atoi(argv[i] + 8);
      if (files < 1 || files > jeerbox::kMaxFileNumber) {
        std::fprintf(stderr, "scale_bench: --files takes 1 to %d\n", jeerbox::kMaxFileNumber);
        return 1;
      }
      sizes.push_back(files);
    } else {
      argv[kept++] = argv[i];
    }
  }
  argc = kept;
  if (sizes.empty()) sizes = {1, 10, 100, 999};
  if (sentences > 0) {
    for (int files : sizes) RunSentences(files, sentences);
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  for (int files : sizes) {
    gFamilies.Root(files);
    benchmark::RegisterBenchmark("BM_SentenceFromFamily", BM_SentenceFromFamily)
        ->Arg(files)
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
  }
  sync();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}

// How fast sentences come, against the bare cost of reading the word-list
// family once: a sentence reads its family's files once per generator.
// Runs on generated word lists, or on a program directory given with
// --root=DIR or JEERBOX_BENCH_ROOT (the shipped one, say).
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>

#include "bench_data.h"
#include "compose/MJeerbox.h"
#include "helpers/fake_file_system.h"
#include "support/MSimpleIO.h"
#include "support/globals.h"
#include "support/random.h"
#include "text/CTextGenerator.h"

namespace jeerbox::bench {
namespace {

std::unique_ptr<BenchData> gData;

BenchData& Data() {
  gAppPath = gData->Root();
  return *gData;
}

void BM_GenerateInsult(benchmark::State& state) {
  Data();
  SeedRandom(1);
  size_t bytes = 0;
  for (auto _ : state) {
    std::string sentence = GenerateInsult();
    bytes += sentence.size();
    benchmark::DoNotOptimize(sentence);
  }
  state.counters["sentences/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
  state.counters["avg_chars"] = static_cast<double>(bytes) / static_cast<double>(state.iterations());
}
BENCHMARK(BM_GenerateInsult);

// The floor: reading Misc.001 up to the last one and probing the next.
void BM_ReadFamilyOnce(benchmark::State& state) {
  BenchData& data = Data();
  for (auto _ : state) {
    for (int n = 1; n <= data.FamilyFiles() + 1 && n <= kMaxFileNumber; ++n) {
      const std::string path = CTextGenerator::BuildTextFileName("Misc-Jeerbox-Noun", n);
      std::string bytes = ReadWholeFile(path);
      benchmark::DoNotOptimize(bytes);
    }
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * data.FamilyBytes()));
  state.counters["reads/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_ReadFamilyOnce);

// The same with the files held in memory: the composer's own share.
void BM_GenerateInsultInMemory(benchmark::State& state) {
  Data();
  testing::FakeFileSystem memory;  // in place from here on
  for (const char* key : {"Misc-X", "General-X"})
    for (int n = 1; n <= kMaxFileNumber; ++n) {
      const std::string path = CTextGenerator::BuildTextFileName(key, n);
      std::string bytes;
      if (HostFileSystem().ReadFile(path, &bytes, kMaxWordListBytes) != FileStatus::kOk) break;
      memory.Write(path, bytes);
    }
  SeedRandom(1);
  for (auto _ : state) {
    std::string sentence = GenerateInsult();
    benchmark::DoNotOptimize(sentence);
  }
  state.counters["sentences/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_GenerateInsultInMemory);

void BM_PickOneKey(benchmark::State& state) {
  Data();
  SeedRandom(2);
  for (auto _ : state) {
    CTextGenerator generator;
    std::string text = generator.GetText("Misc-Jeerbox-Noun");
    benchmark::DoNotOptimize(text);
  }
}
BENCHMARK(BM_PickOneKey);

// One sentence from word lists written to explode (bench_data.h), each
// System/ under 1 MB, read from disk as the program reads it: the bound on
// expansion keeps every shape under 50 ms.
void BM_CraftedSentence(benchmark::State& state, const std::string& shape) {
  const std::string root = MakeTempDir();
  const size_t bytes = WriteCraftedLists(root, shape);
  gAppPath = root;
  SeedRandom(4);
  size_t longest = 0;
  for (auto _ : state) {
    std::string sentence = GenerateInsult();
    longest = std::max(longest, sentence.size());
    benchmark::DoNotOptimize(sentence);
  }
  state.counters["system_bytes"] = static_cast<double>(bytes);
  state.counters["longest_chars"] = static_cast<double>(longest);
  std::error_code ignored;
  std::filesystem::remove_all(root, ignored);
}

// Takes out the options that are ours; Google Benchmark sees the rest.
struct Options {
  std::string root;
  std::string writeData;
};

Options TakeOptions(int* argc, char** argv) {
  Options options;
  if (const char* env = std::getenv("JEERBOX_BENCH_ROOT")) options.root = env;
  int kept = 1;
  for (int i = 1; i < *argc; ++i) {
    if (std::strncmp(argv[i], "--root=", 7) == 0)
      options.root = argv[i] + 7;
    else if (std::strncmp(argv[i], "--write-data=", 13) == 0)
      options.writeData = argv[i] + 13;
    else
      argv[kept++] = argv[i];
  }
  *argc = kept;
  return options;
}

}  // namespace
}  // namespace jeerbox::bench

int main(int argc, char** argv) {
  using namespace jeerbox::bench;
  const Options options = TakeOptions(&argc, argv);
  if (!options.writeData.empty()) {
    WriteBenchData(options.writeData);
    return 0;
  }
  gData = std::make_unique<BenchData>(options.root);
  benchmark::AddCustomContext("data", gData->Generated() ? "generated" : gData->Root());
  benchmark::AddCustomContext("misc_files", std::to_string(gData->FamilyFiles()));
  benchmark::AddCustomContext("misc_bytes", std::to_string(gData->FamilyBytes()));
  for (const char* shape : kCraftedShapes)
    benchmark::RegisterBenchmark((std::string("BM_CraftedSentence/") + shape).c_str(), BM_CraftedSentence,
                                 shape)
        ->Unit(benchmark::kMillisecond);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  gData.reset();
  return 0;
}

// How fast sentences come, against the bare cost of reading the word-list
// family once: a sentence reads its family's files once per generator.
#include <benchmark/benchmark.h>

#include "bench_data.h"
#include "platform/memory_file_system.h"
#include "compose/MJeerbox.h"
#include "platform/random.h"
#include "support/MSimpleIO.h"
#include "support/globals.h"
#include "text/CTextGenerator.h"

namespace jeerbox::bench {
namespace {

BenchData& Data() {
  static BenchData data;
  gAppPath = data.Root();
  return data;
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
  state.counters["sentences/s"] = benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
  state.counters["avg_chars"] = static_cast<double>(bytes) / static_cast<double>(state.iterations());
}
BENCHMARK(BM_GenerateInsult);

// The floor: what reading Misc.001, Misc.002 and probing Misc.003 costs.
void BM_ReadFamilyOnce(benchmark::State& state) {
  BenchData& data = Data();
  for (auto _ : state) {
    for (int n = 1; n <= 3; ++n) {
      const std::string path = CTextGenerator::BuildTextFileName("Misc-Jeerbox-Noun", n);
      std::string bytes = ReadWholeFile(path);
      benchmark::DoNotOptimize(bytes);
    }
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * data.FamilyBytes()));
  state.counters["reads/s"] = benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}
BENCHMARK(BM_ReadFamilyOnce);

// The same with the files held in memory: the composer's own share.
void BM_GenerateInsultInMemory(benchmark::State& state) {
  Data();
  MemoryFileSystem memory;
  for (const char* key : {"Misc-X", "General-X"})
    for (int n = 1; n <= 2; ++n) {
      const std::string path = CTextGenerator::BuildTextFileName(key, n);
      memory.Write(path, ReadWholeFile(path));
    }
  ScopedFileSystem scoped(&memory);
  SeedRandom(1);
  for (auto _ : state) {
    std::string sentence = GenerateInsult();
    benchmark::DoNotOptimize(sentence);
  }
  state.counters["sentences/s"] = benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
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

}  // namespace
}  // namespace jeerbox::bench

BENCHMARK_MAIN();

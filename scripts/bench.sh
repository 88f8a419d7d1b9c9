#!/usr/bin/env bash
# Runs every benchmark in one go against its reference, measured in the same
# run, and writes bench/results.md. Expects a release build in BUILD (default
# build/release) and the peers from scripts/install-bench-deps.sh.
# QUICK=1 shortens every measurement (for trying the script, not for results).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}
out=${2:-bench/results.md}
export PATH="$PATH:/usr/games"  # Debian puts fortune there

quick=${QUICK:-0}
if [ "$quick" = 1 ]; then
  min_time=0.2 reps=1 proc_runs=21 rss_runs=3 polygen_n=2000 polygen_runs=1 win_runs=3 presses=200
else
  min_time=2 reps=3 proc_runs=300 rss_runs=20 polygen_n=20000 polygen_runs=3 win_runs=20 presses=1000
fi

for tool in hyperfine jq fortune polygen /usr/bin/time; do
  command -v "$tool" >/dev/null || { echo "bench: $tool is missing: run scripts/install-bench-deps.sh" >&2; exit 1; }
done
[ -x "$build/jeer" ] && [ -x "$build/bench/core_bench" ] && [ -x "$build/bench/scale_bench" ] ||
  { echo "bench: build $build first (cmake --preset release && cmake --build --preset release)" >&2; exit 1; }

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
load_before=$(cut -d' ' -f1-3 /proc/loadavg)
say() { echo "== $*" >&2; }

# The shipped word lists when the build has them, generated ones otherwise.
if [ -f "$build/System/Misc.001" ]; then
  data=$build data_label="the shipped System/"
else
  data=$work/data data_label="generated word lists (bench/bench_data.cpp: two Misc files, ~2,000 lines)"
  "$build/bench/core_bench" --write-data="$data"
fi
grammar=/usr/share/polygen/eng/debian/flame.grm
[ -f "$grammar" ] || { echo "bench: no $grammar (polygen-data)" >&2; exit 1; }

# --- 1 and 4: sentences per second in one process, and the read floor ---
say "sentences per second (Google Benchmark, $data_label)"
"$build/bench/core_bench" --root="$data" --benchmark_min_time="$min_time" \
  --benchmark_repetitions="$reps" --benchmark_report_aggregates_only=true \
  --benchmark_out="$work/core.json" --benchmark_out_format=json >&2
# The median of the repetitions (the one run when there is one).
median() {
  jq -r --arg n "$1" --arg f "$2" '[.benchmarks[] | select(.run_name == $n and
    ((.aggregate_name // "median") == "median"))][0][$f]' "$work/core.json"
}
insult_cpu_ns=$(median BM_GenerateInsult cpu_time)
insult_real_ns=$(median BM_GenerateInsult real_time)
floor_cpu_ns=$(median BM_ReadFamilyOnce cpu_time)
memory_cpu_ns=$(median BM_GenerateInsultInMemory cpu_time)
# The slowest of the crafted shapes (bench_data.h): shape, wall and CPU ms.
crafted=$(jq -r '[.benchmarks[] | select((.run_name | startswith("BM_CraftedSentence/")) and
  ((.aggregate_name // "median") == "median"))] | max_by(.real_time) |
  "\(.run_name | ltrimstr("BM_CraftedSentence/")) \(.real_time) \(.cpu_time)"' "$work/core.json")

say "polygen -X $polygen_n on $(basename "$grammar")"
hyperfine -N --runs "$polygen_runs" --export-json "$work/polygen.json" \
  "polygen -X $polygen_n $grammar" >&2
polygen_cpu_s=$(jq '.results[0] | .user + .system' "$work/polygen.json")
polygen_real_s=$(jq '.results[0].median' "$work/polygen.json")

# --- 2: one sentence as a process ---
say "one sentence as a process: jeer say, fortune, polygen"
# Three rounds in turn, so a burst of load elsewhere falls on all three
# programs rather than on whichever ran during it; the runs are pooled.
for round in 1 2 3; do
  hyperfine -N --warmup 10 --runs $((proc_runs / 3)) --export-json "$work/process-$round.json" \
    "$build/jeer say --root $data" "fortune" "polygen $grammar" >&2
done
jq -s '{results: [range(0; 3) as $i | [.[].results[$i]] |
  ([.[].times[]] | sort) as $t | {
    mean: (($t | add) / ($t | length)),
    median: (if ($t | length) % 2 == 1 then $t[($t | length - 1) / 2]
             else ($t[($t | length) / 2 - 1] + $t[($t | length) / 2]) / 2 end),
    user: ([.[].user] | add / length), system: ([.[].system] | add / length)}]}' \
  "$work"/process-[123].json >"$work/process.json"
proc() { jq -r --argjson i "$1" ".results[\$i].$2" "$work/process.json"; }
peak_kb() {  # median peak RSS over rss_runs runs
  for _ in $(seq "$rss_runs"); do /usr/bin/time -f %M "$@" 2>&1 >/dev/null | tail -1; done |
    sort -n | awk '{v[NR]=$1} END {print v[int((NR+1)/2)]}'
}
jeer_kb=$(peak_kb "$build/jeer" say --root "$data")
fortune_kb=$(peak_kb fortune)
polygen_kb=$(peak_kb polygen "$grammar")
jeer_linking=$(if ldd "$build/jeer" >/dev/null 2>&1; then echo "dynamically linked"; else echo "statically linked"; fi)

# --- 3: scale, each family size in a process of its own ---
: >"$work/scale.tsv"
export JEERBOX_SCALE_DATA=$work/scale  # written once, shared by the runs below
for files in 1 10 100 999; do
  say "one sentence from a family of $files files of 100 KB"
  "$build/bench/scale_bench" --files="$files" --benchmark_min_time="$min_time" \
    --benchmark_out="$work/scale-$files.json" --benchmark_out_format=json >&2
  # Instructions per sentence, which neither the load nor the CPU cache sway.
  instructions=0
  if command -v valgrind >/dev/null; then
    valgrind --tool=callgrind --toggle-collect='jeerbox::GenerateInsult*' \
      --callgrind-out-file="$work/callgrind-$files" "$build/bench/scale_bench" --files="$files" \
      --sentences=2 >/dev/null 2>&1
    instructions=$(awk '/^(summary|totals):/ {print $2 / 2; exit}' "$work/callgrind-$files")
  fi
  jq -r --argjson ir "$instructions" '.benchmarks[0] | [.files, .family_bytes, .real_time, .cpu_time,
    .files_read, .max_reads_per_file, $ir] | @tsv' "$work/scale-$files.json" >>"$work/scale.tsv"
done

# --- 5 to 7: the window program, once it is built ---
window_rows=""
field() { echo "$1" | tr ' ' '\n' | awk -F= -v k="$2" '$1 == k {print $2}'; }  # field "k=v ..." k
reference=$build/bench/reference_dialog
timer=$build/bench/window_startup
if [ -x "$build/jeerbox" ] && [ -x "$reference" ] && [ -x "$timer" ]; then
  say "window start-up and memory: jeerbox against the reference dialog"
  # The caption is the product domain and "Insult me" the default button,
  # so Return presses it.
  app_title=${JEERBOX_TITLE:-www.jeerbox.example.org}
  # Start-up in rounds taken in turn, as for the processes above; the
  # median of each program's round medians counts.
  ref_ms="" app_ms=""
  for round in 1 2 3 4 5; do
    ref_ms+=" $(field "$(scripts/bench-window.sh "$timer" "$reference" "Jeerbox reference dialog" "$win_runs" 0)" startup_ms)"
    app_ms+=" $(field "$(scripts/bench-window.sh "$timer" "$build/jeerbox" "$app_title" "$win_runs" 0)" startup_ms)"
  done
  middle() { echo $1 | tr ' ' '\n' | sort -n | awk '{v[NR] = $1} END {print v[int((NR + 1) / 2)]}'; }
  ref=$(scripts/bench-window.sh "$timer" "$reference" "Jeerbox reference dialog" 1 "$presses")
  app=$(scripts/bench-window.sh "$timer" "$build/jeerbox" "$app_title" 1 "$presses" "${JEERBOX_PRESS_KEY:-Return}")
  window_rows=$(awk -v as="$(middle "$app_ms")" -v rs="$(middle "$ref_ms")" \
    -v ap="$(field "$app" peak_kb)" -v rp="$(field "$ref" peak_kb)" \
    -v a100="$(field "$app" rss_100_kb)" -v alast="$(field "$app" rss_last_kb)" -v n="$presses" '
    function met(ok) { return ok ? "met" : "**missed**" }
    BEGIN {
      printf "| Start-up to window mapped (Xvfb), median of 5 alternating rounds | %.0f ms | reference dialog: %.0f ms | %.2f | at most 1.1 | %s |\n", as, rs, as / rs, met(as / rs <= 1.1)
      printf "| Peak RSS after %d presses | %d KB | reference dialog: %d KB | %.2f | at most 1.2 | %s |\n", n, ap, rp, ap / rp, met(ap / rp <= 1.2)
      printf "| RSS growth, press 100 to press %d | %+d KB | none | - | no growth | %s |\n", n, alast - a100, met(alast - a100 <= 0)
    }')
else
  window_rows="| Start-up to window mapped (Xvfb) | pending: no \`$build/jeerbox\` yet | reference dialog (bench/reference_dialog.cpp) | - | at most 1.1 | not run |
| Peak RSS after 1,000 presses | pending: no \`$build/jeerbox\` yet | reference dialog | - | at most 1.2 | not run |
| RSS growth, press 100 to press 1,000 | pending: no \`$build/jeerbox\` yet | none | - | no growth | not run |"
fi
# --- 8: press latency, in process on the offscreen platform ---
if [ -x "$build/bench/press_latency" ]; then
  say "press latency: 10,000 presses of Insult me, offscreen, silent mixer"
  runtime=$(mktemp -d); chmod 700 "$runtime"
  press=$(XDG_RUNTIME_DIR=$runtime QT_QPA_PLATFORM=offscreen "$build/bench/press_latency" "$build" 10000 2>/dev/null | tail -n 1)
  rm -rf "$runtime"
  press_row=$(awk -v p50="$(field "$press" p50_us)" -v p99="$(field "$press" p99_us)" -v mx="$(field "$press" max_us)" '
    BEGIN { printf "| Press latency, p99 of 10,000 in-process presses (offscreen, silent audio, until painted) | %.0f us (p50 %.0f us, worst %.0f us) | - | - | under 1 ms | %s |\n", p99, p50, mx, p99 < 1000 ? "met" : "**missed**" }')
else
  press_row="| Press latency, p99 of 10,000 in-process presses | not built (no window program) | - | - | under 1 ms | not run |"
fi

load_after=$(cut -d' ' -f1-3 /proc/loadavg)

# --- the table ---
scale_rows=$(awk -F'\t' '
  { files[NR] = $1; mb = $2 / 1e6; ms[NR] = $3; cpu[NR] = $4; read[NR] = $5; most[NR] = $6; ir[NR] = $7
    per[NR] = $4 / mb; wall[NR] = $3 / mb; irmb[NR] = $7 / mb }
  function spread(v,   i, lo, hi) {
    lo = hi = v[1]
    for (i = 2; i <= NR; ++i) { if (v[i] < lo) lo = v[i]; if (v[i] > hi) hi = v[i] }
    lo_ = lo; hi_ = hi; return lo > 0 ? hi / lo : 0
  }
  END {
    for (i = 1; i <= NR; ++i)
      printf "| Scale: one sentence, %d file%s of 100 KB | %.3f ms CPU (%.3f per MB); wall %.3f ms; %.2fM instructions (%.2fM per MB) | %d files read, at most %d time%s each | - | each file read at most once | %s |\n",
        files[i], files[i] == 1 ? "" : "s", cpu[i], per[i], ms[i], ir[i] / 1e6, irmb[i] / 1e6, read[i], most[i], most[i] == 1 ? "" : "s", most[i] <= 1 ? "met" : "**missed**"
    s = spread(irmb)
    if (s > 0)
      printf "| Scale: instructions per MB of the family, 1 to 999 files (callgrind) | %.2fM to %.2fM per MB | largest over smallest | %.2f | at most 1.5 (work linear in bytes) | %s |\n",
        lo_ / 1e6, hi_ / 1e6, s, s <= 1.5 ? "met" : "**missed**"
    s = spread(per)
    printf "| Scale: CPU time per MB of the family, 1 to 999 files | %.3f to %.3f ms per MB | largest over smallest | %.2f | at most 1.5 (time linear in bytes) | %s |\n",
      lo_, hi_, s, s <= 1.5 ? "met" : "**missed**"
  }' "$work/scale.tsv")

{
  echo "# Benchmarks"
  echo
  echo "Written by \`make bench\` (scripts/bench.sh). Every reference was measured in the same run."
  echo
  echo "- Machine: $(lscpu | awk -F: '/Model name/ {gsub(/^ +/, "", $2); print $2; exit}'), $(nproc) cores, Linux $(uname -r), $(. /etc/os-release && echo "$PRETTY_NAME")"
  echo "- Date: $(date -u '+%Y-%m-%d %H:%M UTC')"
  echo "- Load average (1, 5, 15 min): $load_before before, $load_after after; a load above the core count means other work shared the CPUs, so wall times are inflated and CPU times are the fairer figures"
  echo "- Word lists: $data_label; \`jeer\` $jeer_linking; peers: $(dpkg-query -W -f='${Package} ${Version}, ' fortune-mod polygen hyperfine | sed 's/, $//')"
  echo
  echo "| What | Jeerbox | Reference | Ratio | Target | Result |"
  echo "|---|---|---|---|---|---|"
  awk -v cpu="$insult_cpu_ns" -v real="$insult_real_ns" -v pn="$polygen_n" -v pcpu="$polygen_cpu_s" -v preal="$polygen_real_s" \
      -v floor="$floor_cpu_ns" -v mem="$memory_cpu_ns" '
    function met(ok) { return ok ? "met" : "**missed**" }
    BEGIN {
      rate = 1e9 / cpu; prate = pn / pcpu
      printf "| Sentences per second, one process (CPU time; wall: %.0f/s) | %.0f/s | `polygen -X %d`, flame.grm: %.0f/s (wall: %.0f/s) | %.2f | at least 40,000/s | %s |\n",
        1e9 / real, rate, pn, prate, pn / preal, rate / prate, met(rate >= 40000)
      printf "| One sentence against reading its family once (CPU per sentence) | %.1f us | reading Misc.* once: %.1f us | %.2f | at most 1.5 | %s |\n",
        cpu / 1000, floor / 1000, cpu / floor, met(cpu / floor <= 1.5)
      printf "| The composer alone, files held in memory | %.1f us per sentence | - | - | - | - |\n", mem / 1000
    }'
  awk -v jm="$(proc 0 mean)" -v fm="$(proc 1 mean)" -v pm="$(proc 2 mean)" \
      -v jmed="$(proc 0 median)" -v fmed="$(proc 1 median)" -v pmed="$(proc 2 median)" \
      -v jcpu="$(proc 0 user) $(proc 0 system)" -v fcpu="$(proc 1 user) $(proc 1 system)" \
      -v pcpu="$(proc 2 user) $(proc 2 system)" -v runs="$proc_runs" \
      -v jk="$jeer_kb" -v fk="$fortune_kb" -v pk="$polygen_kb" '
    function met(ok) { return ok ? "met" : "**missed**" }
    function sum(pair,   v) { split(pair, v, " "); return v[1] + v[2] }
    BEGIN {
      printf "| `jeer say` as a process, median wall over %d runs in three rounds (mean) | %.2f ms (%.2f) | `fortune`: %.2f ms (%.2f); `polygen`: %.2f ms (%.2f) | %.2f of fortune | at most 0.5 | %s |\n",
        runs, jmed * 1000, jm * 1000, fmed * 1000, fm * 1000, pmed * 1000, pm * 1000, jmed / fmed, met(jmed / fmed <= 0.5)
      printf "| `jeer say` as a process, mean CPU (user + system) | %.2f ms | `fortune`: %.2f ms; `polygen`: %.2f ms | %.2f of fortune | - | - |\n",
        sum(jcpu) * 1000, sum(fcpu) * 1000, sum(pcpu) * 1000, sum(jcpu) / sum(fcpu)
      printf "| `jeer say` peak RSS (median of runs) | %d KB | `fortune`: %d KB; `polygen`: %d KB | %.2f of fortune | at most 1 | %s |\n",
        jk, fk, pk, jk / fk, met(jk <= fk)
    }'
  read -r crafted_shape crafted_ms crafted_cpu_ms <<<"$crafted"
  awk -v s="$crafted_shape" -v ms="$crafted_ms" -v cpu="$crafted_cpu_ms" 'BEGIN {
    printf "| One sentence from word lists written to explode (System/ under 1 MB; slowest of the shapes: %s) | %.1f ms (CPU %.1f ms) | - | - | at most 50 ms | %s |\n",
      s, ms, cpu, ms <= 50 ? "met" : "**missed**" }'
  echo "$scale_rows"
  echo "$press_row"
  echo "$window_rows"
  echo
  echo "Sentences per second is Google Benchmark's median of $reps repetitions of \`GenerateInsult\`, one"
  echo "generator per sentence, the files read from disk each time; polygen's rate is its user + system time"
  echo "for $polygen_n sentences in one process. The scale rows run each family size in a process of its own,"
  echo "so no size inherits another's heap; the reads are counted by a counting file system around the real"
  echo "one, and the instructions by callgrind over two sentences."
  if [ -f bench/analysis.md ]; then echo; cat bench/analysis.md; fi
} >"$out"
cat "$out"

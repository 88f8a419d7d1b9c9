#!/usr/bin/env bash
# Makes the laugh variants in data/media/ from a speech synthesiser and sox.
# A developer runs it when the sounds should change and commits what it
# writes; the build only copies the files. Needs: espeak-ng sox libsox-fmt-mp3.
set -euo pipefail

out="$(cd "$(dirname "$0")/.." && pwd)/data/media"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
mkdir -p "$out"
# Repeatable runs and no dither noise: the same script gives the same bytes.
export SOX_OPTS="-R -D"

for tool in espeak-ng sox; do
  command -v "$tool" >/dev/null || { echo "make-media: $tool is missing (apt-get install espeak-ng sox libsox-fmt-mp3)" >&2; exit 1; }
done

# Every laugh ends up at the same average loudness (RMS, dBFS), so no
# variant is startlingly louder; the level leaves the peaks headroom.
target_rms=-20

# name  file  voice  pitch(0-99)  words/min  text  extra sox effects
variants=(
  "misc_laugh1|mp3|en+m3|35|190|ha ha ha ha ha ha haa|tremolo 9 40"
  "misc_laugh2|wav|en+f4|80|200|hee hee hee hee hee hee hee|pitch 200 tremolo 12 30"
  "misc_laugh3|mp3|en+m7|20|150|ho ho ho ho ho hoo|pitch -150 reverb 20"
  "misc_laugh4|wav|en+f2|60|260|ha ha ha ha ha ha ha ha|tremolo 7 50"
)

rms_db() {  # RMS level of a file in dBFS
  sox "$1" -n stats 2>&1 | awk '/^RMS lev dB/ {print $4}'
}

for entry in "${variants[@]}"; do
  IFS='|' read -r name ext voice pitch speed text effects <<<"$entry"
  raw="$work/$name-raw.wav"
  coloured="$work/$name-coloured.wav"
  shaped="$work/$name-shaped.wav"
  espeak-ng -v "$voice" -p "$pitch" -s "$speed" -w "$raw" "$text"
  # Trim the synthesiser's silences and colour the voice (at half volume,
  # so the effects don't clip), then keep it under two seconds with a short
  # fade-out over its real length.
  # shellcheck disable=SC2086
  sox -v 0.5 "$raw" -r 44100 -c 1 -b 16 "$coloured" \
    silence 1 0.02 1% reverse silence 1 0.02 1% reverse $effects
  length=$(awk -v d="$(soxi -D "$coloured")" 'BEGIN {printf "%.3f", d < 1.8 ? d : 1.8}')
  sox "$coloured" "$shaped" trim 0 "$length" fade t 0.01 "$length" 0.15
  gain=$(awk -v now="$(rms_db "$shaped")" -v want="$target_rms" 'BEGIN {printf "%.2f", want - now}')
  rm -f "$out/$name".mp3 "$out/$name".wav
  if [ "$ext" = mp3 ]; then
    sox "$shaped" -C 128 "$out/$name.mp3" gain "$gain"
  else
    sox "$shaped" "$out/$name.wav" gain "$gain"
  fi
  printf '%-16s %5.2f s  RMS %6s dB  peak %6s dB\n' "$name.$ext" \
    "$(soxi -D "$out/$name.$ext")" "$(rms_db "$out/$name.$ext")" \
    "$(sox "$out/$name.$ext" -n stats 2>&1 | awk '/^Pk lev dB/ {print $4}')"
done

#!/usr/bin/env bash
# scripts/lint.sh [FILE...]: the formatter and clang-tidy, on all sources or on those named. Changes nothing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

for tool in clang-format clang-tidy; do
  command -v "$tool" >/dev/null || { echo "lint: install $tool" >&2; exit 2; }
done
[[ $# -gt 0 ]] || mapfile -t files < <(git ls-files '*.h' '*.cpp')
[[ $# -eq 0 ]] || files=("$@")

clang-format --dry-run -Werror "${files[@]}"

# Each source as it stands, without what is shared among them.
cmake -S . -B build/lint -G Ninja -DCMAKE_BUILD_TYPE=Debug -DWEXA_UNITY_BUILD=OFF \
  -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
sources=()
for file in "${files[@]}"; do [[ $file != *.cpp ]] || sources+=("$file"); done
sed -i 's/-fpch-preprocess//' build/lint/compile_commands.json  # the compiler's own option
printf '%s\n' "${sources[@]}" | xargs -P2 -n1 clang-tidy --quiet -p build/lint

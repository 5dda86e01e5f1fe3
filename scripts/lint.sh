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

cmake --preset debug >/dev/null
sources=()
for file in "${files[@]}"; do [[ $file != *.cpp ]] || sources+=("$file"); done
# The compiler's own precompiled headers mean nothing to clang.
mkdir -p build/lint
sed -E 's/-fpch-preprocess//; s/-Winvalid-pch -include [^ ]*cmake_pch\.hxx//' \
  build/debug/compile_commands.json > build/lint/compile_commands.json
printf '%s\n' "${sources[@]}" | xargs -P2 -n1 clang-tidy --quiet -p build/lint

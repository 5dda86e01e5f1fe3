#!/usr/bin/env bash
# ./run.sh [OPTION...] [FORM...]: builds wexa-preview and shows the forms; the sample without arguments.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

"$root/scripts/setup.sh"
"$root/scripts/build.sh" release wexa-preview >&2
[[ $# -gt 0 ]] || set -- "$root/examples/settings/settings.ui"
exec "$root/build/release/bin/wexa-preview" "$@"

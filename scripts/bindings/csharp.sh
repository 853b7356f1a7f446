#!/usr/bin/env bash
# Builds and tests the assembly of bindings/csharp against the library, by Mono, and prints the name of
# the environment variable NAME as it sees it.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

root=$PWD
out=$root/build/csharp
export PKG_CONFIG_PATH=$root/build/prefix/lib/pkgconfig LD_LIBRARY_PATH=$root/build/prefix/lib
export ORTHOLAN_TEST_DATA=$root/tests/data

compile() {
  mcs -langversion:7.2 -warnaserror -nologo "$@"
}

scripts/bindings/library.sh
scripts/bindings/declarations.py --check
mkdir -p "$out"
cd bindings/csharp
compile -unsafe -target:library -out:"$out/Ortholan.dll" -doc:"$out/Ortholan.xml" -recurse:'Ortholan/*.cs'
nunit=$(dpkg -L libnunit-framework2.6.3-cil | grep '/nunit.framework.dll$' | grep -v /gac/ | head -n 1)
compile -target:library -out:"$out/Tests.dll" -r:"$out/Ortholan.dll" -r:"$nunit" -recurse:'Tests/*.cs'
nunit-console -nologo -nodots -work:"$out" "$out/Tests.dll" 2>&1 | sed '/^$/d' | tail -n 30
grep -q 'errors="0" failures="0"' "$out/TestResult.xml"

cat >"$out/run" <<END
#!/bin/sh
mcs -langversion:7.2 -nologo -out:"$out/program.exe" -r:"$out/Ortholan.dll" "\$1" && shift && exec mono "$out/program.exe" "\$@"
END
chmod +x "$out/run"
"$root/scripts/bindings/documents.py" csharp README.md "$root/docs/languages.md" -- "$out/run"
"$out/run" Example/Name.cs "${NAME:-CN=Alpha,O=Org}"

#!/usr/bin/env bash
# Builds the Python wheel into build/python/dist/, installs it into two fresh environments, and there
# runs the tests and prints the name of the environment variable NAME. The first environment has Python
# alone; the second sees Debian's pytest.
#
#   python.sh [PYTEST_OPTION...]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
# Debian's interpreter is the one that has its packages of setuptools, wheel and pytest.
python=/usr/bin/python3
build=$PWD/build/python

rm -rf "$build/dist" "$build/wheel" "$build/fresh" "$build/tests"
$python -m pip wheel --quiet --no-build-isolation --no-deps --no-index --wheel-dir "$build/dist" \
  bindings/python
wheels=("$build"/dist/*.whl)
((${#wheels[@]} == 1)) || { echo "python.sh: not one wheel but: ${wheels[*]}" >&2; exit 1; }

$python -m venv "$build/fresh"
"$build/fresh/bin/pip" install --quiet --no-index "${wheels[0]}"

$python -m venv --system-site-packages "$build/tests"
"$build/tests/bin/pip" install --quiet --no-index --no-deps "${wheels[0]}"
env -u ORTHOLAN_LIBRARY -u PYTHONPATH PYTHONDONTWRITEBYTECODE=1 \
  "$build/tests/bin/python" -m pytest -q -p no:cacheprovider bindings/python/tests "$@"
# The types, as the package's author and as a user of what is installed sees them.
check_types() {
  $python -m mypy --config-file bindings/python/pyproject.toml --cache-dir "$build/mypy" "$@"
}
check_types bindings/python/ortholan
check_types --python-executable "$build/tests/bin/python" bindings/python/examples/show.py
echo "python.sh: ${wheels[0]#"$PWD"/}"
# Without anything else to be found.
env -i "$build/fresh/bin/python3" bindings/python/examples/name.py "${NAME:-CN=Alpha,O=Org}"

#!/usr/bin/env bash
# build-deb.sh [CMAKE-OPTION...]: builds the Debian package in build/deb and prints where it is.
set -euo pipefail
cd "$(dirname "$0")/.."
tools/install-packages.sh build desktop
command -v dpkg-shlibdeps >/dev/null || { echo "build-deb.sh needs the package dpkg-dev" >&2; exit 1; }

# The dates in the package are those of the commit, so that it can be built again byte by byte.
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export DEB_BUILD_MAINT_OPTIONS=hardening=+bindnow
CXXFLAGS="$(dpkg-buildflags --get CPPFLAGS) -fstack-protector-strong"
LDFLAGS=$(dpkg-buildflags --get LDFLAGS)
export SOURCE_DATE_EPOCH CXXFLAGS LDFLAGS

cmake --preset release -B build/deb -DCMAKE_INSTALL_PREFIX=/usr -DLEXIFORM_TESTS=OFF -DLEXIFORM_BENCHMARKS=OFF "$@"
cmake --build build/deb --target programs
rm -f build/deb/*.deb
(cd build/deb && cpack -G DEB)
ls -l "$PWD"/build/deb/*.deb

#!/usr/bin/env bash
# Makes the Debian packages qorutlview-core, qorutlview and qorutlview-cups of the last commit, in a clean tree,
# and puts them into out/packages. The same commit gives the same bytes. Options:
#   --twice      builds in two directories of different names and compares what came of it
#   --version V  gives the packages this version instead of the program's, to try upgrades
set -euo pipefail
cd "$(dirname "$0")"

twice=
version=
while [ $# -gt 0 ]; do
  case $1 in
    --twice) twice=yes ;;
    --version) version=$2; shift ;;
    *) echo "package.sh: no such option: $1" >&2; exit 2 ;;
  esac
  shift
done

./setup.sh package
here=$PWD
out=$here/out/packages
# A beta comes before its version, which Debian's order says by "~".
number=$(awk -F'[ )]' '/^project\(QorUtlView VERSION/ { print $3 }' CMakeLists.txt)
suffix=$(sed -n 's/^set(QOR_VERSION ${PROJECT_VERSION}\(.*\))$/\1/p' CMakeLists.txt)
: "${version:=$number${suffix:+~$suffix}-1}"
commit=$(git rev-parse HEAD)
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct "$commit")
export SOURCE_DATE_EPOCH
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The compiler's cache outlives the home directory that debhelper gives its tools.
if command -v ccache >/dev/null; then
  CCACHE_DIR=${CCACHE_DIR:-$(ccache -k cache_dir)}
  export CCACHE_DIR CCACHE_NOHASHDIR=1 QOR_CMAKE_OPTIONS=-DCMAKE_CXX_COMPILER_LAUNCHER=ccache
fi

# Builds the packages in a tree of this name below the work directory.
build() {
  local tree=$work/$1/qorutlview
  mkdir -p "$tree"
  git archive "$commit" | tar -x -C "$tree"
  cp -r "$tree/packaging/debian" "$tree/debian"
  cat >"$tree/debian/changelog" <<END
qorutlview ($version) unstable; urgency=medium

  * What has changed stands in changelog.gz.

 -- $(sed -n 's/^Maintainer: //p' "$tree/debian/control")  $(date -uRd "@$SOURCE_DATE_EPOCH")
END
  (cd "$tree" && CCACHE_BASEDIR=$tree DEB_BUILD_OPTIONS="parallel=${JOBS:-$(nproc)}" \
    dpkg-buildpackage -b -uc -us >"$work/log" 2>&1) || { tail -40 "$work/log" >&2; exit 1; }
}

build first
if [ -n "$twice" ]; then
  export CCACHE_DISABLE=1  # else it would only tell that a copy is a copy
  build the-second-time
  for package in "$work"/first/*.deb; do
    cmp "$package" "$work/the-second-time/$(basename "$package")"
  done
  echo "Both builds gave the same bytes."
fi

lintian --allow-root --fail-on error,warning "$work"/first/*.changes
mkdir -p "$out"
rm -f "$out"/*.deb
cp "$work"/first/*.deb "$out"
echo "The packages stand in $out:"
ls -l "$out"

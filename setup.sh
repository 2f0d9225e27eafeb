#!/usr/bin/env bash
# Installs what building, running and testing need on Debian 12. Says nothing where all is there.
# Arguments name further groups of packages: test, bench, fuzz, package, servers.
set -euo pipefail

packages=(g++ cmake ninja-build pkg-config
  libcairo2-dev libfreetype-dev libfontconfig-dev libpng-dev libjpeg62-turbo-dev libgif-dev
  libzxing-dev libcups2-dev libharfbuzz-dev libdeflate-dev libgsf-1-dev
  libseccomp-dev qt6-base-dev qt6-svg-dev libxcb1-dev
  fontconfig fonts-liberation2 fonts-dejavu-core)
for group in "$@"; do
  case $group in
    test) packages+=(libgtest-dev imagemagick-6.q16 zbar-tools catdoc libreoffice-writer-nogui locales cups cups-filters poppler-utils mupdf-tools ghostscript
      qpdf xvfb libxcb-xtest0-dev fonts-urw-base35 python3-openpyxl python3-pil python3-xlrd libxml2-dev git clang-format clang-tidy
      librsvg2-bin desktop-file-utils appstream shared-mime-info libxml2-utils man-db groff qt6-translations-l10n
      at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3-gi
      parallel systemd) ;;
    bench) packages+=(mupdf-tools python3 libzint-dev libxlsxwriter-dev cups-filters
      enscript ghostscript libreoffice-writer-nogui xvfb libxcb-shm0-dev libxcb-xtest0-dev
      mupdf qpdfview zathura zathura-pdf-poppler pdfgrep libgtest-dev cups) ;;
    package) packages+=(build-essential debhelper lintian git librsvg2-bin debootstrap) ;;
    servers) packages+=(debootstrap systemd-container parallel openssh-server rsync slurm-wlm munge) ;;
    fuzz) packages+=(clang-14 libclang-rt-14-dev libxml2-dev) ;;
    *) echo "setup.sh: no such group: $group" >&2; exit 2 ;;
  esac
done

missing=()
for package in "${packages[@]}"; do
  dpkg-query -W -f '${db:Status-Status}\n' "$package" 2>/dev/null | grep -qx installed ||
    missing+=("$package")
done
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
[ "$(id -u)" -eq 0 ] || as_root=(sudo)
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null

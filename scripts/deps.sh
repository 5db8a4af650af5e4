#!/usr/bin/env bash
# Installs the Debian packages that Vorlan needs, when any is missing.
# Sourced by scripts/run, scripts/test and scripts/bench.
VORLAN_PACKAGES=(
    cmake g++ make pkg-config
    qt6-base-dev qt6-webengine-dev qt6-svg-dev libqt6sql6-sqlite
    libcurl4-openssl-dev mdbtools-dev mdbtools
    python3-pyftpdlib
    xvfb xauth fonts-dejavu-core fonts-liberation
    librsvg2-bin desktop-file-utils appstream man-db groff-base dpkg-dev
)

vorlan_install_deps() {
    local missing=()
    local p
    for p in "${VORLAN_PACKAGES[@]}"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local sudo=()
    [ "$(id -u)" -ne 0 ] && sudo=(sudo)
    "${sudo[@]}" apt-get update -q
    DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"
}

# vorlan_build TOP [BUILD_TYPE] [BUILD_DIR]
vorlan_build() {
    local top="$1" type="${2:-RelWithDebInfo}" dir="${3:-$1/build}"
    cmake -S "$top" -B "$dir" -DCMAKE_BUILD_TYPE="$type" >/dev/null
    cmake --build "$dir" -j"$(nproc)"
}

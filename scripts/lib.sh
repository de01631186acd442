# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash disable=SC2034 # the groups are found by name
#
# What the scripts beside this file share: the packages that the house needs, and quiet builds.
# Sourced, never run. Everything works from any directory: the scripts go to the top of the tree first.
set -euo pipefail

LORVA_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$LORVA_ROOT"

# Debian packages by group: one a line, what it is for behind it. CONTRIBUTING.md says why each library.
packages_build="
  g++                   the compiler (C++20)
  cmake                 the build, from its presets
  ninja-build           runs the build
  ccache                makes a second build of the same file free
  pkg-config            finds the libraries that bring no CMake files
  qt6-base-dev          Qt Core, Gui, Widgets, Concurrent, DBus, Network, Test, and the platform plugins
  qt6-svg-dev           Qt Svg: the symbol images
  qt6-wayland           lets the window run on Wayland itself
  qt6-tools-dev         finds the next two by CMake
  qt6-l10n-tools        lrelease and lupdate: the texts in other languages
  qt6-translations-l10n  what the toolkit itself says in them
  libharfbuzz-dev       reads, shapes and outlines fonts
  libfontconfig-dev     knows the system's fonts
  libicu-dev            script and bidirectional runs, folding, collation
  libsqlite3-dev        keeps the preferences
  libsimdjson-dev       reads JSON
  libexpected-dev       Result<T>
  zlib1g-dev            inflates the SVG documents of fonts
  librsvg2-dev          draws SVG glyphs
  libbox2d-dev          lets the letters of the welcome fall
  libsodium-dev         checks the signature of the release feed
  libseccomp-dev        keeps thumbnails of strangers' fonts from doing anything else
  librsvg2-bin          rsvg-convert: the icon in every size, from its drawings
"
packages_test="
  git                   the checks ask it which files are ours
  python3               the check of the floors
  libgtest-dev          runs every test
  libgmock-dev          matchers
  libharfbuzz-bin       hb-shape and hb-view, whose answers shaping and outlines are compared with
  python3-fonttools     makes fonts of kinds that no package brings
  man-db                formats the manual pages, and warns
  groff-base            what it formats them with
  mandoc                another reader of manual pages, which warns of more
  bash-completion       what completions for bash stand on
  zsh                   the completions are asked for in it,
  fish                  and in this shell
  dbus-daemon           a private session bus for the second start
  openssl               signs the release feeds of the tests, as the release script does
  xvfb                  a display for the journey in a desktop session
  openbox               its window manager
  xdotool               its pointer and keyboard
  desktop-file-utils    desktop-file-validate
  appstream             appstreamcli, which reads what software centers show
  shared-mime-info      update-mime-database, which reads our file types
  dpkg-dev              makes a package of what was built, as scripts/package does
  lintian               looks for faults in it
"
packages_fonts="
  fonts-noto-cjk        collections, Chinese, Japanese and Korean, big files
  fonts-inter           a large static family
  fonts-inter-variable  variable fonts with named instances
  fonts-hosny-amiri     Arabic
  fonts-lohit-deva      Devanagari
  fonts-dejavu-core     Latin, Greek, Cyrillic; what a bare system has
  fonts-ebgaramond      serif, many features
  fonts-comfortaa       geometric, few faces
  fonts-liberation      the metric-compatible families
  fonts-jetbrains-mono  monospaced, variable
  fonts-firacode        monospaced, ligatures
  fonts-roboto-slab     slab serif, variable
  fonts-noto-core       many scripts, hundreds of families
  fonts-lxgw-wenkai     Chinese, handwritten
  fonts-league-mono     width and weight in the style names
  fonts-linuxlibertine  OpenType with PostScript outlines
  fonts-nanum           Korean
  fonts-noto-color-emoji  coloured bitmaps, sequences of emoji
"
packages_bench="
  libbenchmark-dev      times functions
  rapidjson-dev         another reader of JSON, to compare ours with
  fontconfig            fc-scan, to compare the scan with
  libharfbuzz-bin       hb-view, to compare the specimen with
  gnome-font-viewer     gnome-thumbnail-font, to compare thumbnails with
  libfreetype-dev       FreeType, to compare specimens and the opening of files with
  python3               runs both and writes the table
  xvfb                  an X server for the window that is used
  xdotool               uses it
"
packages_package="
  dpkg-dev              the compiler flags of packages, and which libraries a program needs
  lintian               looks for faults in the package
"
packages_root="
  debootstrap           a clean Debian to try the package in
"
packages_release="
  openssl               makes the makers' key and signs the release feed
"
packages_fuzz="
  clang                 brings libFuzzer
  libclang-rt-dev       libFuzzer's and the sanitizers' libraries
  python3-fonttools     cuts real fonts down to a seed corpus
"
packages_format="
  git                   says which files are ours
  clang-format          formats them
"
packages_tidy="
  git                   says which files have changed
  clang                 the compiler whose flags clang-tidy understands
  clang-tidy            finds likely faults
"

# die MESSAGE: one line on standard error, then out.
die()
{
    echo "$(basename "$0"): $*" >&2
    exit 1
}

# package_names GROUP…: the names of the groups, each once.
package_names()
{
    local group variable
    for group in "$@"; do
        variable="packages_$group"
        echo "${!variable}"
    done | awk 'NF && !seen[$1]++ { print $1 }'
}

# missing_packages NAME…: those of the names that are not installed.
missing_packages()
{
    local installed
    installed="$(dpkg-query -W -f '${db:Status-Status} ${binary:Package}\n' "$@" 2>/dev/null |
                 awk '$1 == "installed" { sub(/:.*/, "", $2); print $2 }')" || true
    printf '%s\n' "$@" | grep -vxF -e "${installed:-.}" || true
}

# as_root COMMAND…: runs it as it is when we are root, else through sudo. sudo may ask for a password only
# when somebody sits at a terminal.
as_root()
{
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif [ -t 0 ]; then
        sudo "$@"
    else
        sudo -n "$@"
    fi
}

apt_install()
{
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -y -o DPkg::Lock::Timeout=300 \
        -o Dpkg::Use-Pty=0 install --no-install-recommends "$@"
}

# ensure_packages GROUP…: installs what the groups need and the machine lacks. Says nothing, and takes no
# time to speak of, when nothing is missing. LORVA_SKIP_PACKAGES=1 leaves packages to the caller.
ensure_packages()
{
    [ "${LORVA_SKIP_PACKAGES:-}" = 1 ] && return
    local names missing log
    mapfile -t names < <(package_names "$@")
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        die "no Debian-like system; install the counterparts of these packages, then set" \
            "LORVA_SKIP_PACKAGES=1: ${names[*]}"
    fi
    mapfile -t missing < <(missing_packages "${names[@]}")
    [ ${#missing[@]} = 0 ] && return
    if [ "$(id -u)" != 0 ] && ! command -v sudo >/dev/null; then
        die "missing packages, and neither root nor sudo to install them: ${missing[*]}"
    fi

    echo "Installing ${#missing[@]} missing packages: ${missing[*]}" >&2
    log="$(mktemp)"
    # The package lists are fetched only if they lack a name or have grown too old to install from.
    if ! { apt-cache show "${missing[@]}" && apt_install "${missing[@]}"; } >"$log" 2>&1 &&
       ! { as_root apt-get -qq update && apt_install "${missing[@]}"; } >>"$log" 2>&1; then
        tail -n 20 "$log" >&2
        rm -f "$log"
        die "could not install: ${missing[*]}"
    fi
    rm -f "$log"
}

# configure_preset PRESET: only when the folder is new, was left half done, or the presets have changed
# (all other changes are noticed by the build itself). Quiet unless it fails.
configure_preset()
{
    local preset="$1" folder="build/$1" log
    [ "$folder/.configured" -nt CMakePresets.json ] && return
    mkdir -p "$folder"
    log="$folder/configure.log"
    if ! cmake --preset "$preset" >"$log" 2>&1; then
        cat "$log" >&2
        die "the '$preset' preset does not configure"
    fi
    touch "$folder/.configured"
}

# build_preset PRESET [TARGET…]: configures if need be and builds (everything without a target). At a
# terminal one line of progress; elsewhere nothing but compiler messages.
build_preset()
{
    local preset="$1" target
    shift
    configure_preset "$preset"
    local arguments=(--build --preset "$preset")
    for target in "$@"; do
        arguments+=(--target "$target")
    done
    if [ -t 2 ]; then
        NINJA_STATUS="[%f/%t] " cmake "${arguments[@]}" >&2 || die "the '$preset' build failed"
    else
        cmake "${arguments[@]}" -- --quiet 2>&1 | { grep -v '^ninja: no work to do' || true; } >&2 ||
            die "the '$preset' build failed"
    fi
}

# ours PATTERN…: the files of this tree that match the patterns, one a line: those that git tracks or
# would track.
ours()
{
    git ls-files --cached --others --exclude-standard -- "$@" | sort -u |
        while IFS= read -r file; do [ -f "$file" ] && printf '%s\n' "$file"; done
}

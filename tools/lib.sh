# What the commands of this repository share; sourced by ./play, ./check and the scripts beside it.
# shellcheck shell=bash

cd "$(dirname "${BASH_SOURCE[0]}")/.." || exit 1

# Debian packages by what they are for, read through set_up; `build` is all that ./play needs.
# shellcheck disable=SC2034
packages_build=(g++ cmake ninja-build qt6-base-dev librsvg2-bin fonts-dejavu-core fonts-noto-color-emoji)
# shellcheck disable=SC2034
packages_wayland=(qt6-wayland)
# shellcheck disable=SC2034
packages_test=(libgtest-dev fonts-noto-core xvfb xauth openbox xdotool xclip x11-utils imagemagick dbus-daemon at-spi2-core
    python3-gi gir1.2-atspi-2.0 python3-xlib locales strace sway wtype qt6-wayland)
# shellcheck disable=SC2034
packages_package=(dpkg-dev fakeroot lintian file desktop-file-utils appstream mandoc)
# shellcheck disable=SC2034
packages_lint=(clang clang-format clang-tidy)
# shellcheck disable=SC2034
packages_fuzz=(clang libclang-rt-dev)
# shellcheck disable=SC2034
packages_listen=(orca procps)
# shellcheck disable=SC2034
packages_system=(debootstrap git)
# shellcheck disable=SC2034
packages_bench=(libbenchmark-dev libfparser-dev libmuparser-dev pkgconf libx11-dev libxtst-dev libxdamage-dev
    xvfb openbox dbus-daemon python3 sgt-puzzles kmines gbrainy)

fail() {
    printf '%s\n' "$@" >&2
    exit 1
}

# Shows the progress lines of ninja and apt as they come in, each over the one before.
show_progress() {
    local line percent text width
    width=$(tput cols 2>/dev/null || echo 80)
    while IFS= read -r line; do
        case $line in
        '['*) ;;
        [dp][lm]status:*)
            IFS=: read -r _ _ percent text <<<"$line"
            line="[${percent%.*} %] $text"
            ;;
        *) continue ;;
        esac
        printf '\r\033[K%s' "${line:0:width-1}"
    done
    printf '\r\033[K'
}

# Runs a command silently, on a terminal with its progress in one line; if it fails, shows what it said and ends with the
# sentence in $1.
quietly() {
    local sentence=$1 log status=0
    shift
    log=$(mktemp)
    if [ -t 1 ]; then
        "$@" 2>&1 </dev/null | tee "$log" | show_progress
        status=${PIPESTATUS[0]}
    else
        "$@" >"$log" 2>&1 </dev/null || status=$?
    fi
    if [ "$status" -ne 0 ]; then cat "$log" >&2; fi
    rm -f "$log"
    if [ "$status" -ne 0 ]; then fail "$sentence"; fi
}

missing_packages() {
    local installed package
    installed=$(dpkg-query -W -f='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null)
    for package in "$@"; do
        [[ $'\n'$installed$'\n' == *$'\n'"installed $package"$'\n'* ]] || echo "$package"
    done
}

apt_lists_are_fresh() {
    [ -n "$(find /var/lib/apt/lists -maxdepth 1 -name '*_Packages*' -mtime -7 -print -quit 2>/dev/null)" ]
}

# Installs what is missing of the named groups of packages: set_up build test
set_up() {
    local group wanted=() missing as_root=()
    for group in "$@"; do
        local -n packages_of_group="packages_$group"
        wanted+=("${packages_of_group[@]}")
    done
    if ! command -v dpkg-query >/dev/null; then
        if ! command -v cmake >/dev/null || ! command -v ninja >/dev/null; then
            fail "Only Debian and its relatives are set up automatically. Install the equivalents of: ${wanted[*]}"
        fi
        return
    fi
    mapfile -t missing < <(missing_packages "${wanted[@]}")
    [ ${#missing[@]} -eq 0 ] && return

    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || fail "Run this as root, then try again: apt-get install ${missing[*]}"
        as_root=(sudo)
    fi
    as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=600 -o APT::Status-Fd=1)
    echo "Installing ${missing[*]}"
    # sudo asks for its password here, where it can be seen.
    if [ "${as_root[0]}" = sudo ] && ! sudo -v; then
        fail "sudo was refused; run this as root, then try again: apt-get install ${missing[*]}"
    fi
    apt_lists_are_fresh || quietly "The package lists could not be read; is the network there?" "${as_root[@]}" update
    quietly "These packages could not be installed; try 'apt-get update', then the same command again." \
        "${as_root[@]}" install -y --no-install-recommends "${missing[@]}"
}

# configure PRESET [-DNAME=VALUE...]
configure() {
    quietly "The configuration failed. If the checkout was moved, remove its build folder and try again." \
        cmake --preset "$@"
}

# build FOLDER [TARGET...]: says so only when there is something to build, since that can take minutes.
build() {
    local folder=$1
    shift
    if [[ $(ninja -C "$folder" -n "$@" 2>&1) == *"no work to do"* ]]; then return; fi
    echo "Building in $folder"
    quietly "The build failed; the first error above is the one to look at." ninja -C "$folder" "$@"
}

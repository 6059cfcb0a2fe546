# Debian 12 packages that Pelorin needs, by what needs them. Meant to be sourced by bash:
#   . tools/packages.sh
#   need_packages build run        installs what of these groups is missing
# Nothing is asked of the network when everything is there.

packages_of() {
    case $1 in
    build) # compiling the program, its data and the sample
        echo cmake ninja-build g++ pkg-config nasm python3 \
            qt6-base-dev libgl-dev libfreeimage-dev libx11-dev ;;
    run) # what the program starts, and what a window needs to look right (Korean, icons, file types)
        echo dosbox dosbox-debug 7zip libqt6svg6 fonts-nanum \
            xdg-utils file shared-mime-info ;;
    screen) # a display without a monitor, whose windows can be driven and pictured
        echo xvfb openbox xdotool imagemagick ;;
    test) # test libraries, what makes CD images and programs of Windows, what runs those, and what reads the windows of a screen
        echo libgtest-dev libgmock-dev python3 genisoimage gcc-mingw-w64-x86-64 wine wine64 \
            wmctrl x11-apps x11-utils ;;
    check) # formatting and linting
        echo git ccache clang-format-14 clang-tidy-14 ;;
    fuzz) # libFuzzer, and how much of a reader it reached
        echo clang-14 libclang-rt-14-dev llvm-14 python3 ;;
    bench) # the benchmark library, and what makes a table of its figures
        echo libbenchmark-dev python3 ;;
    *)
        echo "packages.sh: no group \"$1\"" >&2
        return 1 ;;
    esac
}

# Prints those of the named packages that are not installed.
missing_packages() {
    local have
    # dpkg-query fails when it never heard of one of them, and that is no reason to stop.
    have=$({ dpkg-query -W -f='${Package} ${db:Status-Status}\n' "$@" 2>/dev/null || true; } |
        sed -n 's/ installed$//p')
    local name
    for name in "$@"; do
        grep -qxF -- "$name" <<<"$have" || echo "$name"
    done
}

# Runs a command as root: as we are, or through sudo.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Installs the named packages; else says why not.
install_packages() {
    local status=0
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
        echo "That takes root or sudo, and here is neither." >&2
        return 1
    fi
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -q update || status=$?
    # apt-get itself fails with 100.
    if [ "$status" -ne 0 ] && [ "$status" -ne 100 ]; then
        echo "That takes root, and sudo did not give it." >&2
        return 1
    fi
    if [ "$status" -ne 0 ]; then
        echo "The package lists could not be fetched (is the network there?)." >&2
        return 1
    fi
    if ! as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get -q install -y --no-install-recommends "$@"; then
        echo "These packages could not be installed: $*" >&2
        return 1
    fi
}

# Installs what is missing of the named groups and says what it does. Status 1 when that is not
# possible, with the command that would do it.
need_packages() {
    local group names=() missing
    for group in "$@"; do
        names+=($(packages_of "$group")) || return 1
    done
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        echo "This is not a Debian system. Install by hand what these packages hold: ${names[*]}" >&2
        return 1
    fi
    mapfile -t missing < <(missing_packages "${names[@]}")
    [ ${#missing[@]} -gt 0 ] || return 0

    echo "Installing ${#missing[@]} missing packages: ${missing[*]}"
    if install_packages "${missing[@]}"; then
        return 0
    fi
    echo "As root:" >&2
    echo "  apt-get update && apt-get install --no-install-recommends ${missing[*]}" >&2
    return 1
}

# Shared by the scripts of this folder. Source it with the project's root as the working directory.

# Packages by purpose, as Debian 12 names them.
packages_build=(g++ cmake ninja-build ccache pkg-config qt6-base-dev libsdl2-dev libsqlite3-dev libxcb1-dev libxcb-xkb-dev
    libfontconfig-dev libgtest-dev libgmock-dev)
packages_show=(xvfb xauth openbox xdotool imagemagick fonts-dejavu-core)
packages_test=(googletest x11-xkb-utils x11-xserver-utils)
packages_fuzz=(clang libclang-rt-14-dev)
packages_linux_package=(dpkg-dev gzip lintian man-db desktop-file-utils appstream binutils)
packages_coverage=(clang libclang-rt-14-dev llvm)
packages_mutation=(lld perl-base)
# Wine's window stack is right only where it finds these X libraries, which its packages merely recommend.
packages_windows=(g++-mingw-w64-x86-64-posix wine wine64 dpkg-dev make gcc tcl libsdl2-dev libsqlite3-dev qt6-base-dev
    libxcomposite1 libxcursor1 libxi6 libxinerama1 libxrandr2 libxrender1 libxfixes3 libxxf86vm1)
packages_windows_package=(g++-mingw-w64-x86-64-posix dpkg-dev make gcc tcl libsdl2-dev libsqlite3-dev qt6-base-dev
    googletest nsis zip imagemagick)

# The programs of the unit tests of the libraries that know no Qt.
pure_tests=(core_tests client_tests gamedata_tests clothing_tests dye_tests explorer_tests world_database_tests
    world_loader_tests world_extraction_tests world_template_tests world_round_trip_tests construction_tests items_tests
    console_tests shipped_texts_tests settings_tests app_tests options_tests program_folder_tests
    setup_tests)

# Run apt-get with the rights that it needs.
as_root() {
    if [ "$(id -u)" -eq 0 ]; then
        "$@"
    else
        sudo "$@"
    fi
}

# Installs those of the named packages that are missing.
ensure_packages() {
    if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
        return 0
    fi
    local missing=() package
    for package in "$@"; do
        if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed'; then
            missing+=("$package")
        fi
    done
    if [ "${#missing[@]}" -gt 0 ]; then
        echo "Installing ${missing[*]}"
        as_root apt-get update -qq
        as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
    fi
}

# The version that CMakeLists.txt gives the project.
project_version() {
    sed -nE 's/^project\(Quernfield VERSION ([0-9.]+) .*/\1/p' CMakeLists.txt | grep . || {
        echo "CMakeLists.txt names no version." >&2
        return 1
    }
}

# The program that runs those of Windows, and the server that they share.
wine_program() {
    type -P wine64 || type -P /usr/lib/wine/wine64 || type -P wine || {
        echo "Wine is not there." >&2
        return 1
    }
}
wine_server() {
    local wine
    type -P wineserver || {
        wine=$(wine_program) && type -P "${wine%/*}/wineserver"
    }
}

# Configures a preset where that has not happened and builds the named targets (all without any).
build_preset() {
    local preset=$1
    shift
    if [ ! -f "build/$preset/build.ninja" ]; then
        cmake --preset "$preset" >"build-$preset.log" 2>&1 || {
            cat "build-$preset.log"
            return 1
        }
        mv "build-$preset.log" "build/$preset/configure.log"
    fi
    if [ "$#" -gt 0 ]; then
        cmake --build "build/$preset" --target "$@"
    else
        cmake --build "build/$preset"
    fi
}

# Waits until a command succeeds: wait_for SECONDS WHAT COMMAND...
wait_for() {
    local seconds=$1 what=$2
    shift 2
    local end=$((SECONDS + seconds))
    until "$@" >/dev/null 2>&1; do
        if [ "$SECONDS" -ge "$end" ]; then
            echo "Waited $seconds s in vain for $what." >&2
            return 1
        fi
        sleep 0.1
    done
}

# Starts an X server of its own with a window manager and sets DISPLAY; stop_display ends both.
start_display() {
    local size=${1:-1280x1024x24} number_file
    number_file=$(mktemp)
    exec 7>"$number_file"
    Xvfb -displayfd 7 -screen 0 "$size" -nolisten tcp >/dev/null 2>&1 &
    display_server=$!
    exec 7>&-
    wait_for 20 "the X server" test -s "$number_file" || {
        rm -f "$number_file"
        return 1
    }
    DISPLAY=:$(tr -d '\n' <"$number_file")
    export DISPLAY
    rm -f "$number_file"
    openbox >/dev/null 2>&1 &
    display_manager=$!
    wait_for 10 "the window manager" xdotool get_desktop
}

stop_display() {
    local process
    for process in "${display_manager:-}" "${display_server:-}"; do
        if [ -n "$process" ]; then
            kill "$process" 2>/dev/null || true
            wait "$process" 2>/dev/null || true
        fi
    done
    display_manager='' display_server=''
}

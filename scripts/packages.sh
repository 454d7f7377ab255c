# Installs the Debian packages the build, the tests or the program need, when missing.
# Quiet when nothing is missing. Sourced by ./test and ./run.
qh_ensure_packages() {
    local missing=()
    local pkg
    for pkg in "$@"; do
        if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed"; then
            missing+=("$pkg")
        fi
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing: ${missing[*]}"
    local sudo=""
    if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
}

QH_BUILD_PACKAGES=(cmake ninja-build g++ pkg-config qt6-base-dev qt6-svg-dev libqt6svg6 libicu-dev
                   libgl-dev libical-dev libgtest-dev libgmock-dev libbenchmark-dev
                   fonts-liberation fonts-dejavu-core)
# dunst, dbus-daemon, dbus-bin and systemd (busctl, which dunstctl history uses): the desktop
# notices against a real notification server. radicale and openssl: the calendar feeds
# against a real calendar server, over TLS with a certificate of the test's own.
QH_TEST_PACKAGES=(clang libclang-rt-14-dev xvfb xauth chromium poppler-utils bubblewrap patchelf
                  libglib2.0-bin python3-icalendar python3-recurring-ical-events dunst dbus-daemon
                  dbus-bin systemd radicale openssl)
# scripts/screenshots: the virtual display, its keys and camera, and the GTK theme plugin
# through which a desktop's light or dark theme reaches the program.
QH_SCREENSHOT_PACKAGES=(xvfb xauth xdotool imagemagick qt6-gtk-platformtheme)

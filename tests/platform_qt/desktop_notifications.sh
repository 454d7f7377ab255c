#!/bin/sh
# Runs the desktop notification tests of test_platform_qt against a real notification
# server: dunst, which the tests start and stop themselves, on a private session bus that
# starts no service on demand (so a test decides when the service is there), drawing on an
# Xvfb display of its own. A missing tool skips the run, naming the tool.
# Usage: desktop_notifications.sh PATH/TO/test_platform_qt
set -eu
program=$1
for tool in dbus-run-session dbus-send busctl dunst dunstctl Xvfb; do
    if ! command -v "$tool" >/dev/null 2>&1; then
        echo "SKIPPED: $tool is not installed (scripts/packages.sh lists its package)"
        exit 77
    fi
done

work=$(mktemp -d)
xvfb=""
cleanup() {
    [ -n "$xvfb" ] && kill "$xvfb" 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT

cat >"$work/bus.conf" <<CONF
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:dir=$work</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
CONF

# The first free display from :140.
display=140
while [ -e "/tmp/.X11-unix/X$display" ] || [ -e "/tmp/.X$display-lock" ]; do display=$((display + 1)); done
Xvfb ":$display" -screen 0 1024x768x24 -nolisten tcp >"$work/xvfb.log" 2>&1 &
xvfb=$!
tries=0
until [ -e "/tmp/.X11-unix/X$display" ]; do
    tries=$((tries + 1))
    if [ $tries -gt 100 ] || ! kill -0 "$xvfb" 2>/dev/null; then
        echo "SKIPPED: Xvfb could not start a display"; cat "$work/xvfb.log"
        exit 77
    fi
    sleep 0.1
done

export DISPLAY=":$display" QT_QPA_PLATFORM=offscreen QH_NOTIFICATION_SERVER_TEST=1
# dunst with its packaged settings, none of the user's.
export XDG_CONFIG_HOME="$work/config" HOME="$work"
# No session bus at all: an address where none listens.
DBUS_SESSION_BUS_ADDRESS="unix:path=$work/no-bus" "$program" --gtest_filter='DesktopNotificationsWithoutBus.*'
dbus-run-session --config-file="$work/bus.conf" -- "$program" --gtest_filter='DesktopNotificationsOnDunst.*'

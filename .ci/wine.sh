# shellcheck shell=bash
# To be sourced: a Wine of the build's own, without a display. One server stays up while the tests run,
# since starting it takes longer than most test programs; it goes when the script does.
# File names have umlauts in some tests, which Wine can't write in the locale C.
export WINEPREFIX=$PWD/build/wine WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml= LC_ALL=C.UTF-8
unset DISPLAY

stop_wine() {
    wineserver -k || true
    trap - EXIT
}

if [[ ! -e $WINEPREFIX/ready ]]; then
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    quietly wine-boot wine wineboot -i
    quietly wine-graphics wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /t REG_SZ /d null /f
    wineserver -w
    touch "$WINEPREFIX/ready"
fi
trap stop_wine EXIT
wineserver -p
# Wine's own services start with the first program and stay. Were that one a program of the build, they
# would hold on to its output, and the build would wait for them.
quietly wine-start wine cmd /c exit

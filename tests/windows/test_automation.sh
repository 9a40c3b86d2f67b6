#!/bin/sh
# test_automation.sh SOURCES FOLDER QT_HEADERS: the Windows side of the link to a drawing program, compiled with MinGW and
# run under wine against a fake drawing program in a process of its own; the other sources that have a Windows side are
# held to the language alone, as there is no toolkit to link them with. Exit status 77: MinGW or wine is not installed, and
# the calls are held to their list without Windows alone (window_tests, CadLinkTest).
set -eu
sources=$1
folder=$2
qt=$3
compiler=x86_64-w64-mingw32-g++-posix
if ! command -v $compiler >/dev/null || ! command -v wine >/dev/null; then
    echo "MinGW or wine is not installed: the Windows side is not tested"
    exit 77
fi
mkdir -p "$folder"
cd "$folder"
compile() {
    out=$1
    shift
    $compiler -std=c++20 -O1 -Wall -Wextra -Werror -ffp-contract=off -static -I"$sources" -I"$sources/src" "$@" -o "$out" \
        -lole32 -loleaut32 -luuid
}
cd "$sources/src"
set -- platform/com_automation.cpp window/auto_cad.cpp window/transfer.cpp exchange/transfer_file.cpp exchange/dxf_groups.cpp \
    exchange/dxf_lines.cpp core/number_text.cpp core/text_encoding.cpp core/checked.cpp core/math_module.cpp core/points.cpp \
    core/reason.cpp form/messages.cpp form/message_boxes.cpp
compile "$folder/client.exe" "$@" ../tests/windows/automation_client.cpp
compile "$folder/server.exe" core/number_text.cpp core/checked.cpp ../tests/windows/fake_drawing_server.cpp
for source in $(grep -rl --include='*.cpp' _WIN32 .); do
    $compiler -std=c++20 -fsyntax-only -Wall -Wextra -Werror -I. -isystem "$qt" -isystem "$qt/QtCore" -isystem "$qt/QtGui" \
        -isystem "$qt/QtNetwork" -isystem "$qt/QtSerialPort" -isystem "$qt/QtWidgets" "$source"
done
cd "$folder"

export WINEPREFIX="$folder/prefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree=;mshtml="
# A new prefix is let come to rest: services that were started while it was made do not know the table of running objects.
if [ ! -d "$WINEPREFIX/drive_c" ]; then
    wine wineboot -i >/dev/null 2>&1
    wineserver -w
fi
trap 'wineserver -k 2>/dev/null || true' EXIT
id='{6F0C2A54-52B7-4C0D-9E6B-2C5A1D0B7E15}'
wine reg add 'HKLM\Software\Classes\AutoCAD.Application.15\CLSID' /ve /d "$id" /f >/dev/null

# Nobody runs yet.
if wine client.exe mesh >none.txt; then
    echo "connected to nobody"
    exit 1
fi
grep -q "^not connected" none.txt

rm -f calls.txt ready.txt
wine server.exe calls.txt >ready.txt &
server=$!
tries=0
until grep -q ready ready.txt; do
    tries=$((tries + 1))
    { [ $tries -lt 300 ] && kill -0 $server 2>/dev/null; } || { echo "the server does not start"; exit 1; }
    sleep 0.2
done
wine client.exe draw "$sources/tests/windows/transfer.dxf" >draw.txt
wine client.exe mesh >mesh.txt
wine client.exe quit >quit.txt
wait

tr -d '\r' <calls.txt | diff "$sources/tests/windows/calls-expected.txt" -
cat draw.txt mesh.txt | tr -d '\r' | diff "$sources/tests/windows/said-expected.txt" -
echo "the drawing program has had every call"

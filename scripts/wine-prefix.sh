#!/usr/bin/env bash
# Makes the Wine prefix that the environment names, with the fonts mapped: GDI+ and menus show Latin and Korean text
# only when the prefix knows which installed font stands for which Windows font. Starts the wineserver that stays until
# it is ended. Needs WINEPREFIX and a display.
set -euo pipefail

stamp="$WINEPREFIX/.tessel-fonts-2"
if [ ! -f "$stamp" ]; then
    [ ! -d "$WINEPREFIX" ] || wineserver -k >/dev/null 2>&1 || true
    rm -rf "$WINEPREFIX"
fi
mkdir -p "$WINEPREFIX"
wineserver -p >/dev/null 2>&1 || true  # one that runs already is as good
[ -f "$stamp" ] && exit 0

echo "Making the Wine prefix"
WINEDLLOVERRIDES="mscoree,mshtml=" wineboot -i >/dev/null 2>&1

add() { wine reg add "$@" /f >/dev/null 2>&1; }

replacements='HKCU\Software\Wine\Fonts\Replacements'
add "$replacements" /v "Arial" /t REG_SZ /d "Liberation Sans"
add "$replacements" /v "Segoe UI" /t REG_SZ /d "Liberation Sans"
add "$replacements" /v "Malgun Gothic" /t REG_SZ /d "NanumGothic"

links='HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontLink\SystemLink'
for font in "Tahoma" "MS Shell Dlg" "MS Shell Dlg 2" "Segoe UI" "Microsoft Sans Serif" "MS Sans Serif" "System" \
    "Arial"; do
    add "$links" /v "$font" /t REG_MULTI_SZ /d "NanumGothic.ttf,NanumGothic"
done
# The other styles of a font are looked up by their full names.
for font in "Liberation Sans" "Liberation Serif" "Liberation Mono"; do
    add "$links" /v "$font" /t REG_MULTI_SZ /d "NanumGothic.ttf,NanumGothic"
    add "$links" /v "$font Italic" /t REG_MULTI_SZ /d "NanumGothic.ttf,NanumGothic"
    add "$links" /v "$font Bold" /t REG_MULTI_SZ /d "NanumGothicBold.ttf,NanumGothic"
    add "$links" /v "$font Bold Italic" /t REG_MULTI_SZ /d "NanumGothicBold.ttf,NanumGothic"
done

# The symbols of the caption buttons; Tahoma stays out, or bold captions lose their Korean.
marlett=$(find /usr/share/wine /usr/share/fonts -name marlett.ttf 2>/dev/null | head -n 1 || true)
[ -z "$marlett" ] || cp "$marlett" "$WINEPREFIX/drive_c/windows/Fonts/"

touch "$stamp"

# What the scripts that run Windows programs under Wine share; to be sourced by Bash.
#
#   wine_is_32_bit FOLDER       from here on the 32-bit Wine of that folder (see make-wine32)
#   wine_use PREFIX [managed]   sets the environment for a prefix, and makes it when it is not there;
#                               PTA_DPI is the density of its screen, where 96 is usual
#   wine_own_display PREFIX     sets DISPLAY to a virtual display that belongs to the prefix
#   wine_end                    ends everything that runs in the prefix
#   wine_run PROGRAM ...        runs a program in it, and waits for it alone

wine_loader=("$(command -v wine64 || echo /usr/lib/wine/wine64)")
wine_server=("$(command -v wineserver || echo /usr/lib/wine/wineserver)")
wine_arch=win64

wine_is_32_bit() {
  local -a enter=("$(dirname "${BASH_SOURCE[0]}")/in-wine32" "$1")
  wine_loader=("${enter[@]}" /usr/lib/wine/wine)
  wine_server=("${enter[@]}" /usr/lib/wine/wineserver32)
  wine_arch=win32
  # The loader's own search ends at a shell script, and the folder has no shell.
  export WINESERVER=/usr/lib/wine/wineserver32
}

# "managed" leaves the windows to a window manager; without it Wine places and focuses them itself,
# which needs no window manager and is what the driven windows are made for.
wine_use() {
  export WINEPREFIX=$1 WINEARCH=$wine_arch WINEDEBUG=-all
  # Nothing may ask questions while a prefix is made, nor write menus into the user's desktop.
  export WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
  local managed=N
  [[ ${2:-} == managed ]] && managed=Y
  unset LANG LANGUAGE ${!LC_*}
  export LC_ALL=${PTA_WINE_LOCALE:-C.UTF-8}
  [[ -n ${PTA_WINE_LOCALE_DIR:-} ]] && export LOCPATH=$PTA_WINE_LOCALE_DIR
  mkdir -p "$WINEPREFIX"
  exec {wine_lock}>"$WINEPREFIX.lock"
  flock "$wine_lock"
  [[ -e $WINEPREFIX/.ready ]] || wine_make_prefix "$managed"
  wine_use_dpi "${PTA_DPI:-96}"
  flock -u "$wine_lock"
  exec {wine_lock}>&-
}

wine_make_prefix() {
  echo "Making the Wine prefix $WINEPREFIX (once, about 12 s) ..." >&2
  local settings=$WINEPREFIX.reg
  rm -f "$WINEPREFIX.dpi"
  cat >"$settings" <<REG
REGEDIT4

[HKEY_CURRENT_USER\\Software\\Wine\\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\\Software\\Wine\\Drivers]
"Graphics"="x11,null"

[HKEY_CURRENT_USER\\Software\\Wine\\X11 Driver]
"Managed"="$1"
REG
  {
    env -u DISPLAY "${wine_loader[@]}" wineboot -i
    env -u DISPLAY "${wine_loader[@]}" winecfg -v win10
    env -u DISPLAY "${wine_loader[@]}" regedit /S "Z:${settings//\//\\}"
    "${wine_server[@]}" -w
  } >"$WINEPREFIX.log" 2>&1 </dev/null {wine_lock}>&-
  # Debian's Wine looks for its own fonts in the prefix alone; without them every text is set in
  # another, wider face.
  ln -sf /usr/share/wine/fonts/*.{fon,ttf} "$WINEPREFIX/drive_c/windows/Fonts/"
  rm -f "$settings"
  touch "$WINEPREFIX/.ready"
}

# A program takes the density when it starts. It is kept in the prefix.
wine_use_dpi() {
  local known=96
  [[ -s $WINEPREFIX.dpi ]] && known=$(<"$WINEPREFIX.dpi")
  [[ $1 == "$known" ]] && return
  {
    "${wine_server[@]}" -p120 || true
    env -u DISPLAY "${wine_loader[@]}" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD \
      /d "$1" /f
  } >/dev/null 2>&1 </dev/null {wine_lock}>&-
  echo "$1" >"$WINEPREFIX.dpi"
}

# The display ends by itself, minutes after the prefix's last process is gone. Were it to end with it,
# a program that starts in that moment would find none, and Wine would show its windows nowhere.
wine_own_display() {
  local state=$1.display screen=${PTA_SCREEN:-1600x1200x24} number=
  exec {display_lock}>"$1.display.lock"
  flock "$display_lock"
  [[ -s $state ]] && number=$(<"$state")
  if [[ -z $number ]] || ! [[ -S /tmp/.X11-unix/X$number ]] || ! wine_display_answers "$1" "$screen"; then
    "${wine_server[@]}" -k >/dev/null 2>&1 || true
    rm -f "$state"
    setsid Xvfb -displayfd 3 -terminate 180 -screen 0 "$screen" \
      -nolisten tcp 3>"$state" >/dev/null 2>&1 </dev/null {display_lock}>&- &
    echo "$! $screen" >"$1.display.pid"
    local tries=0
    until [[ -s $state ]]; do
      ((++tries > 200)) && { echo "Xvfb did not start" >&2; return 1; }
      read -rt 0.05 <> <(:) || true
    done
    number=$(<"$state")
  fi
  export DISPLAY=:$number
  flock -u "$display_lock"
  exec {display_lock}>&-
}

# wine_display_answers PREFIX SCREEN: it is there, and as wide as wanted.
wine_display_answers() {
  local pid screen
  read -r pid screen <"$1.display.pid"
  [[ $screen == "$2" ]] && kill -0 "$pid" 2>/dev/null
}

# The output goes through a file: Wine's own background processes inherit a pipe, and whoever reads
# it would wait for them.
wine_run() {
  local output status=0
  output=$(mktemp)
  "${wine_server[@]}" -p120 >/dev/null 2>&1 </dev/null || true
  "${wine_loader[@]}" "$@" >"$output" 2>&1 </dev/null || status=$?
  tr -d '\r' <"$output"
  rm -f "$output"
  return "$status"
}

wine_end() {
  "${wine_server[@]}" -k >/dev/null 2>&1 </dev/null || true
  "${wine_server[@]}" -w >/dev/null 2>&1 </dev/null || true
}

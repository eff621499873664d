# The steps of ./package; to be sourced by Bash, in the root of the checkout. They need `version` and
# SOURCE_DATE_EPOCH.

# Who publishes the program, and under which licence. docs/release-checklist.md asks for both.
publisher=PTA
licence=Proprietary

# stage_files FOLDER: what is delivered, as x64, x86 and common, all with the same time.
stage_files() {
  local stage=$1
  rm -rf "$stage"
  mkdir -p "$stage"/{x64,x86,common/docs}
  cp build/release/bin/{PTA_QX,VantelPractice}.exe "$stage/x64/"
  cp build/release-x86/bin/{PTA_QX,VantelPractice}.exe "$stage/x86/"
  # Those beside the built program are as old as its last linking.
  cmake -DFROM="$PWD/practice/pnrs" -DTO="$stage/common/pnrs" -P practice/terminal/CopyBookings.cmake
  sed 's/\r*$/\r/' packaging/PTA_QX.sample.ini >"$stage/common/PTA_QX.sample.ini"
  packaging/make-guides "$stage/common/docs"
  list_files "$stage/common" docs pnrs >"$stage/Installed.lst"
  find "$stage" -type f -exec chmod 644 {} + -exec touch -d "@$SOURCE_DATE_EPOCH" {} +
}

# list_files FOLDER NAME...: what lies in these folders of it, one a line as Windows writes it; a
# folder behind all that is in it.
list_files() {
  (cd "$1" && shift && find "$@" -mindepth 1 -printf '%p\n' | sort -r | sed 's|/|\\|g; s|$|\r|')
}

make_installer() {
  makensis -V2 -WX -DVERSION="$version" -DSOURCE="$PWD" -DSTAGE="$1" -DOUTPUT="$2" \
    -DPUBLISHER="$publisher" packaging/PTA.nsi
}

# Each width has its own settings beside it, as everywhere.
make_zip() {
  local top=$1/zip/PTA-$version folder
  rm -rf "$1/zip"
  mkdir -p "$top/32-bit"
  cp -r "$1"/x64/*.exe "$1/common/pnrs" "$1/common/docs" "$top/"
  cp -r "$1"/x86/*.exe "$1/common/pnrs" "$top/32-bit/"
  for folder in "$top" "$top/32-bit"; do
    cp "$1/common/PTA_QX.sample.ini" "$folder/"
    cp "$1/common/PTA_QX.sample.ini" "$folder/PTA_QX.ini"
  done
  find "$top" -exec touch -d "@$SOURCE_DATE_EPOCH" {} +
  (cd "$1/zip" && find . -type f -printf '%P\n' | sort | zip -q -9 -X "$2" -@)
}

# make_winget INSTALLER URL FOLDER
make_winget() {
  local template sum
  sum=$(sha256sum "$1")
  mkdir -p "$3"
  for template in packaging/winget/*.yaml.in; do
    sed -e "s|@VERSION@|$version|g" -e "s|@URL@|$2|g" -e "s|@SHA256@|${sum%% *}|g" \
      -e "s|@PUBLISHER@|$publisher|g" -e "s|@LICENCE@|$licence|g" \
      -e "s|@DATE@|$(date -u -d "@$SOURCE_DATE_EPOCH" +%F)|g" \
      "$template" >"$3/$(basename "$template" .in)"
  done
  sed -i 's/^\(  InstallerSha256: \)\(.*\)/\1\U\2/' "$3"/*.installer.yaml
}

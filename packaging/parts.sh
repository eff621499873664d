# The steps of ./package; to be sourced by Bash, in the root of the checkout. They need `version` and
# SOURCE_DATE_EPOCH.

# Pages for those who install and use the program; the others are for its developers.
user_pages=(installing administrator ini-reference user-guide messages known-behaviour practice-guide
  lessons bookings practice-host script-library-link)

# stage_files FOLDER: what is delivered, as x64, x86 and common, all with the same time.
stage_files() {
  local stage=$1 width page
  rm -rf "$stage"
  mkdir -p "$stage"/{x64,x86,common/docs}
  cp build/release/bin/{PTA_QX,VantelPractice}.exe "$stage/x64/"
  cp build/release-x86/bin/{PTA_QX,VantelPractice}.exe "$stage/x86/"
  cp -r build/release/bin/pnrs "$stage/common/"
  sed 's/\r*$/\r/' packaging/PTA_QX.sample.ini >"$stage/common/PTA_QX.sample.ini"
  for page in "${user_pages[@]}"; do
    [[ -e docs/$page.md ]] && cp "docs/$page.md" "$stage/common/docs/"
  done
  [[ -d docs/pictures ]] && cp -r docs/pictures "$stage/common/docs/"
  remove_lines "$stage/common/docs" docs >"$stage/remove-docs.nsh"
  remove_lines "$stage/common/pnrs" pnrs >"$stage/remove-pnrs.nsh"
  find "$stage" -type f -exec chmod 644 {} + -exec touch -d "@$SOURCE_DATE_EPOCH" {} +
}

# remove_lines FOLDER NAME: what the uninstaller says to remove these files, and no others, and then
# the folders in it that are empty.
remove_lines() {
  local path
  (cd "$1" && find . -type f -printf '%P\n' | sort) | while read -r path; do
    printf 'Delete "$INSTDIR\\%s\\%s"\n' "$2" "${path//\//\\}"
  done
  (cd "$1" && find . -mindepth 1 -type d -printf '%P\n' | sort -r) | while read -r path; do
    printf 'RMDir "$INSTDIR\\%s\\%s"\n' "$2" "${path//\//\\}"
  done
}

make_installer() {
  makensis -V2 -WX -DVERSION="$version" -DSOURCE="$PWD" -DSTAGE="$1" -DOUTPUT="$2" packaging/PTA.nsi
}

# Each width has its own settings beside it, as everywhere.
make_zip() {
  local top=$1/zip/PTA-$version
  rm -rf "$1/zip"
  mkdir -p "$top/32-bit"
  cp -r "$1"/x64/*.exe "$1/common/pnrs" "$1/common/docs" "$top/"
  cp -r "$1"/x86/*.exe "$1/common/pnrs" "$top/32-bit/"
  cp "$1/common/PTA_QX.sample.ini" "$top/PTA_QX.ini"
  cp "$1/common/PTA_QX.sample.ini" "$top/32-bit/PTA_QX.ini"
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
      -e "s|@DATE@|$(date -u -d "@$SOURCE_DATE_EPOCH" +%F)|g" \
      "$template" >"$3/$(basename "$template" .in)"
  done
  sed -i 's/^\(  InstallerSha256: \)\(.*\)/\1\U\2/' "$3"/*.installer.yaml
}

#!/usr/bin/env bash
# One test of the installed libraries: packaging.sh CASE, as ctest calls it.
set -euo pipefail

case_name=$1
here=$(dirname "$(readlink -f "$0")")
# pkg-config's answers are split at blanks, and the checkout's path may have some.
base=${TMPDIR:-/tmp}/ovappkit-packaging-$(id -u)-$(cksum <<<"$OV_BUILD" | cut -d' ' -f1)
prefix=$base/installed
work=$base/$case_name
frameworks=lib/GNUstep/Frameworks

fail() {
  echo "FAILED: $*" >&2
  exit 1
}

# expect_link FILE TARGET
expect_link() {
  [ "$(readlink "$1")" = "$2" ] || fail "$1 is not a link to $2 but: $(ls -ld "$1" 2>&1)"
}

# compile PKGCONFIG-FOLDER COMPILER SOURCE PROGRAM [FLAG…]: with the flags of
# pkg-config alone, as a host's makefile has them.
compile() {
  local pkgconfig=$1 compiler=$2 source=$3 program=$4
  shift 4
  # shellcheck disable=SC2046  # flags are words
  "$compiler" -Wall -Wextra -Werror "$source" -o "$program" \
    $(PKG_CONFIG_PATH="$pkgconfig" pkg-config --cflags --libs ovappkit) "$@"
}

# run PROGRAM FRAMEWORKS: fails as the host does. Nothing of the build is in its way.
run() {
  env -u LD_LIBRARY_PATH ${OV_HOST_LIBRARY_PATH:+LD_LIBRARY_PATH="$OV_HOST_LIBRARY_PATH"} \
    timeout -k 1 60 "$1" -frameworks "$2" -GSSuppressAppIcon YES </dev/null
}

host_source() {  # host_source SUFFIX
  cp "$here/host.m" "$work/host.$1"
  echo "$work/host.$1"
}

check_layout() {  # check_layout FRAMEWORKS-FOLDER
  local name framework
  for name in OvFoundation OvAppKit; do
    framework=$1/$name.framework
    expect_link "$framework/$name" "./Versions/Current/$name"
    expect_link "$framework/lib$name.so" "./Versions/Current/lib$name.so"
    expect_link "$framework/Headers" Versions/Current/Headers
    expect_link "$framework/Resources" Versions/Current/Resources
    expect_link "$framework/Versions/Current" A
    expect_link "$framework/Versions/A/$name" "lib$name.so"
    expect_link "$framework/Versions/A/lib$name.so" "lib$name.so.0"
    expect_link "$framework/Versions/A/lib$name.so.0" "lib$name.so.0.0.1"
    readelf -d "$framework/Versions/A/lib$name.so.0.0.1" | grep -q "SONAME.*\[lib$name.so.0\]" ||
      fail "$name has another name for the loader than lib$name.so.0"
    [ -f "$framework/Versions/A/Headers/$name.h" ] || fail "$name has no $name.h"
    grep -q "NSExecutable = \"$name\"" "$framework/Versions/A/Resources/Info-gnustep.plist" ||
      fail "$name has no property list"
    if find "$framework/Versions/A/Headers/" "$framework/Versions/A/Resources/" -type l | grep .; then
      fail "headers and resources are files, not links into a source folder"
    fi
  done
  # Every public header, and nothing else: the build's list is the measure.
  diff <(cd "$OV_BUILD/include" && ls OvAppKit/ OvFoundation/) \
    <(cd "$1" && ls OvAppKit.framework/Headers/ OvFoundation.framework/Headers/ |
      sed 's|\.framework/Headers/|/|') || fail "the installed headers differ from the public ones"
}

case_install() {
  rm -rf "$prefix"
  "$OV_CMAKE" --install "$OV_BUILD" --prefix "$prefix"
  check_layout "$prefix/$frameworks"
  local name
  for name in OvFoundation OvAppKit; do
    [ -f "$prefix/include/GNUstep/$name/$name.h" ] || fail "<$name/$name.h> is not found"
    [ -f "$prefix/lib/lib$name.so" ] || fail "lib$name.so is not found"
    [ -f "$prefix/lib/lib$name.so.0" ] || fail "lib$name.so.0 is not found"
  done
  ! grep -rI "$OV_SOURCE" "$prefix" --include='*.pc' --include='*.cmake' --include='*.h' ||
    fail "an installed file names the source folder"
}

host() {  # host COMPILER SUFFIX
  compile "$prefix/lib/pkgconfig" "$1" "$(host_source "$2")" "$work/host"
  run "$work/host" "$prefix/$frameworks"
}

copy_prefix() {  # copy_prefix TO
  cp -a "$prefix" "$1"
}

case_cmake_package() {
  copy_prefix "$work/moved"
  "$OV_CMAKE" -S "$here/cmake-host" -B "$work/build" -G Ninja -DCMAKE_PREFIX_PATH="$work/moved" \
    -DCMAKE_C_COMPILER="$OV_CC" -DCMAKE_CXX_COMPILER="$OV_CXX"
  "$OV_CMAKE" --build "$work/build"
  run "$work/build/host" "$work/moved/$frameworks"
  run "$work/build/hostxx" "$work/moved/$frameworks"
}

case_moved_prefix() {
  copy_prefix "$work/moved"
  compile "$work/moved/lib/pkgconfig" "$OV_CC" "$(host_source m)" "$work/host"
  run "$work/host" "$work/moved/$frameworks"
}

# A host with the frameworks beside it, moved to a folder it was not built for.
case_carried_beside() {
  local carried='$ORIGIN/../Frameworks'
  copy_prefix "$work/development"
  mkdir "$work/Host" "$work/Host/bin"
  compile "$work/development/lib/pkgconfig" "$OV_CC" "$(host_source m)" "$work/Host/bin/host" \
    -Wl,-rpath,"$carried/OvAppKit.framework/Versions/A:$carried/OvFoundation.framework/Versions/A"
  mv "$work/development/$frameworks" "$work/Host/Frameworks"
  rm -r "$work/development"
  mkdir "$work/elsewhere"
  mv "$work/Host" "$work/elsewhere/A Host"
  run "$work/elsewhere/A Host/bin/host" "$work/elsewhere/A Host/Frameworks"
}

# In a domain the loader finds the library by the links in lib/, and the platform
# then looks for the framework in the domain.
case_domain_links() {
  copy_prefix "$work/moved"
  # shellcheck disable=SC2046
  "$OV_CC" "$(host_source m)" -o "$work/host" \
    $(PKG_CONFIG_PATH="$prefix/lib/pkgconfig" pkg-config --cflags ovappkit) -L"$work/moved/lib" -lOvAppKit \
    -lOvFoundation $(gnustep-config --gui-libs) -L"$(dirname "$(gcc -print-file-name=include)")"
  sed "s|^GNUSTEP_LOCAL_LIBRARY=.*|GNUSTEP_LOCAL_LIBRARY=$work/moved/lib/GNUstep|" \
    "${GNUSTEP_CONFIG_FILE:-/etc/GNUstep/GNUstep.conf}" >"$work/GNUstep.conf"
  GNUSTEP_CONFIG_FILE=$work/GNUstep.conf OV_HOST_LIBRARY_PATH=$work/moved/lib \
    run "$work/host" "$work/moved/$frameworks"
}

case_domain() {  # case_domain DOMAIN: configured for it, with the libraries built already
  local stage=$work/stage name library libraries
  "$OV_CMAKE" -S "$OV_SOURCE" -B "$work/build" -G Ninja -DOV_INSTALL_DOMAIN="$1" -DBUILD_TESTING=OFF \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_C_COMPILER="$OV_CC" -DCMAKE_CXX_COMPILER="$OV_CXX"
  for name in OvFoundation OvAppKit; do
    cp -P "$OV_BUILD/Frameworks/$name.framework/Versions/A/lib$name.so"* \
      "$work/build/Frameworks/$name.framework/Versions/A/"
  done
  cp "$OV_BUILD/OvAppKit/artwork/"* "$work/build/OvAppKit/artwork/"
  DESTDIR=$stage "$OV_CMAKE" --install "$work/build"
  library=$stage$(gnustep-config --variable="GNUSTEP_$1_LIBRARY")
  libraries=$stage$(gnustep-config --variable="GNUSTEP_$1_LIBRARIES")
  check_layout "$library/Frameworks"
  [ -f "$stage$(gnustep-config --variable="GNUSTEP_$1_HEADERS")/OvAppKit/OvAppKit.h" ] ||
    fail "the headers are not in the domain"
  [ -f "$libraries/libOvAppKit.so.0" ] || fail "the library is not in the domain"
  compile "$libraries/pkgconfig" "$OV_CC" "$(host_source m)" "$work/host"
  run "$work/host" "$library/Frameworks"
}

# What the headers declare is exported, and nothing else. The names are read off
# the preprocessed headers, not off the build's list of exports.
case_exports() {
  local name declared exported
  for name in OvFoundation OvAppKit; do
    echo "#import <$name/$name.h>" >"$work/$name.m"
    # shellcheck disable=SC2046
    "$OV_CC" -E "$work/$name.m" $(PKG_CONFIG_PATH="$prefix/lib/pkgconfig" pkg-config --cflags ovappkit) |
      awk -v ours="$name.framework/|/$name/" '
        /^# [0-9]+ "/ { mine = $3 ~ ours; next }
        !mine { next }
        /^@interface +[A-Za-z_0-9]+ *:/ { sub(/^@interface +/, ""); sub(/[^A-Za-z_0-9].*/, ""); print "__objc_class_name_" $0 }
        /visibility\("default"\)/ { declaration = "" ; open = 1 }
        open { declaration = declaration " " $0 }
        open && /;/ {
          open = 0
          gsub(/__attribute__ *\(\([^;]*visibility\("default"\)\)\)/, "", declaration)
          sub(/[(;[].*/, "", declaration)  # a function or a constant: the name before ( ; [
          sub(/ +$/, "", declaration)
          sub(/.*[^A-Za-z_0-9]/, "", declaration)
          print declaration
        }' >"$work/$name.found"
    declared=$(sort -u "$work/$name.found" - <<<"__objc_class_name_NSFramework_$name")
    exported=$(nm -D --defined-only "$prefix/lib/lib$name.so" | awk '{ print $3 }' | sort -u)
    [ "$(wc -l <<<"$exported")" -gt 1 ] || fail "$name exports nothing"
    diff <(echo "$declared") <(echo "$exported") ||
      fail "$name: < is declared in a public header and not exported, > is exported and not declared"
  done
}

# The README's program as it stands there, shown on the display.
case_readme() {
  local compiler program
  awk '/^```objc$/ { on = 1; next } /^```$/ { if (on) exit } on' "$OV_SOURCE/README.md" >"$work/Host.m"
  [ -s "$work/Host.m" ] || fail "the README has no program in Objective-C"
  for compiler in gcc "$OV_CC"; do
    compile "$prefix/lib/pkgconfig" "$compiler" "$work/Host.m" "$work/host" \
      -Wno-unused-parameter  # gcc's -Wextra means a method's, too
    "$work/host" -GSSuppressAppIcon YES >"$work/output" 2>&1 </dev/null &
    program=$!
    # The window of this process appears, within xdotool's patience.
    if ! timeout -k 1 60 xdotool search --sync --onlyvisible --pid "$program" --name . >"$work/window"; then
      cat "$work/output"
      kill -KILL "$program" || true
      fail "the README's program shows no window (compiled by $compiler)"
    fi
    kill -0 "$program" || fail "the README's program ended"
    kill -KILL "$program"
    wait "$program" 2>/dev/null || true
  done
}

rm -rf "$work"
mkdir -p "$work"
case $case_name in
  install) case_install ;;
  host-gcc-objc) host gcc m ;;
  host-gcc-objcxx) host g++ mm ;;
  host-clang-objc) host "$OV_CC" m ;;
  host-clang-objcxx) host "$OV_CXX" mm ;;
  domain-LOCAL | domain-USER) case_domain "${case_name#domain-}" ;;
  *) "case_${case_name//-/_}" ;;
esac

#!/usr/bin/env bash
# Checks the installed package from the outside, one step per CTest test:
#   install      cmake --install of the build tree into a fresh prefix
#   consumer     this folder's CMake project against that prefix, then run
#   gallery      the installed uxGallery renders its pages
#   pkgconfig    a program built with only pkg-config's flags, then run
#   hostmodules  the project configures against the host's own modules
#   readme       the README's usage excerpts are verbatim parts of this folder
# Nothing runs with LD_LIBRARY_PATH: installed programs find their libraries
# through their run paths or not at all. CXX, CXXFLAGS and LDFLAGS reach the
# compiler (a sanitized library needs a sanitized consumer).
set -euo pipefail
step=$1
: "${UX_SOURCE_DIR:?}" "${UX_BUILD_DIR:?}" "${UX_WORK_DIR:?}" "${UX_LIBDIR:=lib}"
cmake=${CMAKE_COMMAND:-cmake}
prefix=$UX_WORK_DIR/prefix
here=$UX_SOURCE_DIR/tests/consumer
unset LD_LIBRARY_PATH

fail() {
    echo "check-package $step: $*" >&2
    exit 1
}

# Every library of ours that a program loads must come from the prefix.
check_resolves_in_prefix() {
    local libs
    libs=$(ldd "$1" | grep -E 'libux') || fail "$1 loads none of our libraries"
    echo "$libs"
    grep -q 'not found' <<<"$libs" && fail "$1 does not find all of our libraries"
    grep -vq "=> $prefix/" <<<"$libs" && fail "$1 loads our libraries from outside $prefix"
    return 0
}

step_install() {
    rm -rf "$UX_WORK_DIR"
    mkdir -p "$UX_WORK_DIR"
    "$cmake" --install "$UX_BUILD_DIR" --prefix "$prefix" >"$UX_WORK_DIR/install.log"
    local include=$prefix/include/uxQt4Ext
    [[ -f $include/uxQt4ExtGlobal.h && -f $include/QUxDoubleSpiner.h ]] || fail "headers missing in $include"
    local private
    private=$(find "$prefix" -name '*_p.h')
    [[ -z $private ]] || fail "private headers installed: $private"
    if grep -lE '#include *[<"][^>"]*_p\.h[>"]' "$include"/*.h; then
        fail "installed headers include private ones"
    fi
    echo "installed into $prefix"
}

step_consumer() {
    local build=$UX_WORK_DIR/consumer-build
    rm -rf "$build"
    "$cmake" -S "$here" -B "$build" -DCMAKE_PREFIX_PATH="$prefix"
    "$cmake" --build "$build"
    check_resolves_in_prefix "$build/consumer"
    "$build/consumer"
}

step_gallery() {
    local out=$UX_WORK_DIR/screenshots
    rm -rf "$out"
    # Without a runtime directory Qt warns on every start.
    export XDG_RUNTIME_DIR=$UX_WORK_DIR/runtime
    mkdir -p -m 700 "$XDG_RUNTIME_DIR"
    check_resolves_in_prefix "$prefix/bin/uxGallery"
    "$prefix/bin/uxGallery" --screenshot "$out"
    compgen -G "$out/*.png" >/dev/null || fail "the gallery wrote no page"
}

step_pkgconfig() {
    export PKG_CONFIG_PATH=$prefix/$UX_LIBDIR/pkgconfig
    local flags libdir exe=$UX_WORK_DIR/pkgconfig-consumer
    flags=$(pkg-config --cflags --libs uxQt4Ext)
    libdir=$(pkg-config --variable=libdir uxQt4Ext)
    echo "pkg-config: $flags"
    # The run path is the program's business, not the .pc file's.
    # shellcheck disable=SC2086
    "${CXX:-c++}" -std=c++17 ${CXXFLAGS:-} "$here/pkgconfig.cpp" -o "$exe" $flags ${LDFLAGS:-} "-Wl,-rpath,$libdir"
    check_resolves_in_prefix "$exe"
    "$exe"
}

step_hostmodules() {
    local build=$UX_WORK_DIR/hostmodules-build
    rm -rf "$build"
    "$cmake" -S "$UX_SOURCE_DIR" -B "$build" -DUX_BUNDLED_HOST_MODULES=OFF \
        -DUX_HOST_MODULES_FILE="$here/host-modules.cmake" -DUX_HOST_PREFIX="$prefix" \
        -DCMAKE_INSTALL_LIBDIR="$UX_LIBDIR"
    [[ ! -e $build/uxUtils ]] || fail "the bundled uxUtils was configured anyway"
}

# A README block that follows a line "From [`tests/consumer/FILE`]..." must
# appear in FILE exactly as written.
step_readme() {
    local readme=$UX_SOURCE_DIR/README.md count=0
    local file="" inblock=0 block="" line
    while IFS= read -r line; do
        if ((inblock)); then
            if [[ $line == '```' ]]; then
                [[ $(<"$here/$file")$'\n' == *"$block"* ]] || fail "README excerpt of $file is not in $file"
                count=$((count + 1))
                inblock=0 file="" block=""
            else
                block+="$line"$'\n'
            fi
        elif [[ $line =~ ^From\ \[\`tests/consumer/([^\`]+)\`\] ]]; then
            file=${BASH_REMATCH[1]}
        elif [[ -n $file && $line == '```'* ]]; then
            inblock=1
        fi
    done <"$readme"
    ((count > 0)) || fail "README quotes nothing from tests/consumer"
    echo "README: $count excerpts match"
}

"step_$step"

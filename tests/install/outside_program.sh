#!/bin/sh
# Installs the build tree into a folder of its own, builds the documented program there with nothing
# but pkg-config, and compares what it prints.
set -eu
build=$1 work=$2 source=$3 libdir=$4 compiler=$5 flags=${6-}

# The document shows this very program.
sed 's/^    //' "$source/docs/using-the-library.md" |
  awk '/^\/\* Binds the response queue/ {on = 1} on {print} on && /^}$/ {exit}' |
  cmp - "$source/docs/examples/print_vsans.c" || {
  echo "docs/using-the-library.md shows another program than docs/examples/print_vsans.c"
  exit 1
}

rm -rf "$work/prefix"
cmake --install "$build" --prefix "$work/prefix" >"$work/install.log"
export PKG_CONFIG_PATH="$work/prefix/$libdir/pkgconfig" LD_LIBRARY_PATH="$work/prefix/$libdir"
cp "$source/docs/examples/print_vsans.c" "$work/prefix/"
cd "$work/prefix"
# shellcheck disable=SC2046,SC2086  # lists of flags
$compiler -std=c99 -Wall -Wextra -Wpedantic -Werror $flags -o print_vsans print_vsans.c \
  $(pkg-config --cflags --libs cim_utils)
./print_vsans >out 2>err
printf '1 VSAN0001 up\n2 VSAN0002 up\n' | cmp - out
printf 'successfuly create mts response q\n' | cmp - err

# What object managers need to find the providers is installed with them.
for file in vexor_openpegasus.mof vexor_sfcb.reg vexor_classes.mof; do
  grep -q VEXOR_PhysicalComputerSystem "share/vexor/registration/$file"
done

#!/bin/sh
# build_with_pkg_config.sh PREFIX PROGRAM COMPILER: builds and runs the consumer against an installed library.
set -eu
prefix=$1 program=$2 compiler=$3
here=$(dirname "$0")

description=$(find "$prefix" -name KRVTVOOdbAttrEO.pc)
libraries=$(dirname "$(dirname "$description")")
PKG_CONFIG_PATH=$(dirname "$description")
export PKG_CONFIG_PATH

# shellcheck disable=SC2046  # the flags are words of their own
"$compiler" -std=c++20 "$here/main.cpp" -o "$program" $(pkg-config --cflags --libs KRVTVOOdbAttrEO)
LD_LIBRARY_PATH=$libraries "$program"

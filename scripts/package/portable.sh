#!/usr/bin/env bash
# Makes a folder that runs from wherever it is, with all libraries but those that every desktop has:
# portable.sh BUILD_DIR FOLDER
# The programs are beside "share", so they take the folder for their own and keep the user's files
# in it as long as it can be written to.
set -euo pipefail
project=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)

build=$1
folder=$2

# Libraries that belong to the machine: its C and C++ runtime, graphics, display and services.
kOfTheMachine='^(ld-linux.*|lib(c|m|dl|rt|pthread|resolv|stdc\+\+|gcc_s|GL|GLX|GLdispatch|OpenGL|EGL'
kOfTheMachine+='|drm|gbm|vulkan|X11|X11-xcb|xcb|Xau|Xdmcp|Xext|ICE|SM|fontconfig|freetype|expat|z'
kOfTheMachine+='|uuid|glib-2\.0|gobject-2\.0|gio-2\.0|gthread-2\.0|dbus-1|systemd|udev|cap|gcrypt'
kOfTheMachine+='|gpg-error|selinux|mount|blkid|wayland-.*|cups|crypto|ssl))\.so'

# The plugins that the programs use on a desktop, and what the help needs.
kPlugins='platforms/libq(xcb|wayland-egl|wayland-generic|offscreen|minimal).so
platforminputcontexts iconengines imageformats sqldrivers xcbglintegrations printsupport
wayland-shell-integration/libxdg-shell.so wayland-decoration-client
wayland-graphics-integration-client/libqt-plugin-wayland-egl.so'

stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
cmake --install "$build" --prefix "$stage" --strip >/dev/null

rm -rf "$folder"
mkdir -p "$folder/lib" "$folder/fonts" "$folder/licenses"
cp -a "$stage/lib/vestrel/." "$stage/bin/vestrel" "$folder/"
cp -a "$stage/share/vestrel" "$folder/share"
cp -a "$project/LICENSE" "$project/README.md" "$project/SECURITY.md" "$folder/"
printf '[Paths]\nPlugins = plugins\n' >"$folder/qt.conf"

plugins=$(qmake6 -query QT_INSTALL_PLUGINS)
for wanted in $kPlugins; do
    find "$plugins" -name '*.so' -printf '%P\n' | grep -E "^$wanted" || true
done | sort -u | while read -r plugin; do
    mkdir -p "$folder/plugins/$(dirname "$plugin")"
    cp -L "$plugins/$plugin" "$folder/plugins/$plugin"
done

# The programs of the folder: everything executable but the shell script that starts them.
mapfile -t programs < <(find "$folder" -maxdepth 1 -type f -executable ! -name vestrel)
mapfile -t pluginFiles < <(find "$folder/plugins" -name '*.so')
ldd "${programs[@]}" "${pluginFiles[@]}" | awk '$2 == "=>" && $3 ~ /^\// { print $3 }' | sort -u |
    while read -r library; do
        [[ $(basename "$library") =~ $kOfTheMachine ]] || cp -L "$library" "$folder/lib/"
    done

# Everything finds the libraries of this folder by itself, whoever loads it.
patchelf --force-rpath --set-rpath "\$ORIGIN/lib" "${programs[@]}"
patchelf --force-rpath --set-rpath "\$ORIGIN" "$folder"/lib/*
for file in "${pluginFiles[@]}"; do
    patchelf --force-rpath --set-rpath "\$ORIGIN/../../lib" "$file"
done

# The fonts of printed pages, which the programs look for here first.
for package in fonts-liberation fonts-wine fonts-dejavu-core fonts-dejavu-extra \
    fonts-droid-fallback fonts-nanum; do
    dpkg -L "$package" | grep -E '/(Liberation(Sans|Serif|Mono)[^/]*|tahoma|DejaVuSans(Condensed)?(-[A-Za-z]*)?|DroidSansFallbackFull|NanumGothic(Bold)?)\.ttf$' |
        xargs -r cp -L -t "$folder/fonts"
done

# Whose work is in the folder.
find "$folder/lib" "$folder/plugins" "$folder/fonts" -type f -printf '%f\n' |
    sed 's|^|*/|' | xargs dpkg -S 2>/dev/null | sed 's/:.*//' | sort -u |
    while read -r package; do
        [ ! -f "/usr/share/doc/$package/copyright" ] ||
            cp -L "/usr/share/doc/$package/copyright" "$folder/licenses/$package"
    done

#!/bin/sh
# Installs the Debian packages named on the command line that are not yet
# installed. The package index is refreshed only when something is missing.
set -e
missing=""
for pkg in "$@"; do
    if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed"; then
        missing="$missing $pkg"
    fi
done
[ -z "$missing" ] && exit 0
echo "Installing Debian packages:$missing"
SUDO=""
[ "$(id -u)" -ne 0 ] && SUDO=sudo
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends $missing >/dev/null

#!/usr/bin/env bash
# Installs what Quorvale needs to build and test on Debian 12 (the list is packages.txt).
# Run as root, or as a user who may use sudo.
set -euo pipefail
SUDO=""
[ "$(id -u)" -eq 0 ] || SUDO="sudo"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update
$SUDO apt-get install -y --no-install-recommends $(cat "$(dirname "$0")/packages.txt")

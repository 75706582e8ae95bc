#!/usr/bin/env bash
# What Quorvale needs to build and test on Debian 12. Run as root (or through sudo).
set -euo pipefail
SUDO=""
[ "$(id -u)" -eq 0 ] || SUDO="sudo"
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update
$SUDO apt-get install -y --no-install-recommends \
  build-essential cmake libgtest-dev libbenchmark-dev

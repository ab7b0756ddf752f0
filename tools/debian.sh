#!/usr/bin/env bash
# Runs the README's test command on another Debian release: in a root of that
# release made from Debian's archive with debootstrap (kept and reused under
# ROOTS, made afresh when missing), on a fresh clone of this repository's
# HEAD. Nothing stays mounted when it ends, however it ends. As root.
#   debian.sh [SUITE [COMMAND]]   SUITE: trixie (default), forky, ...
# COMMAND, run in the clone, is the test command unless given: say
# 'bash tools/test.sh && bash tools/repite.sh 20' to repeat the slow tests there.
set -euo pipefail
cd "$(dirname "$0")/.."
suite=${1:-trixie}
command=${2:-bash tools/test.sh}
roots=${ROOTS:-/var/tmp/supertirlo-roots}
root=$roots/$suite
clone=/root/supertirlo
[ "$(id -u)" -eq 0 ] || { echo "debian.sh: run as root (it makes a root and mounts in it)" >&2; exit 2; }
start=$SECONDS
took() { printf '%s: %s took %d s\n' "$suite" "$1" $((SECONDS - $2)); }

# What is mounted under the root, deepest first; and the processes running in
# it, which would keep a mount busy.
mounted() { awk -v r="$root/" 'index($2 "/", r) == 1 {print $2}' /proc/self/mounts | sort -r; }
inside() {
    local p
    for p in /proc/[0-9]*; do
        [ "$(readlink "$p/root" 2> /dev/null)" = "$root" ] && echo "${p#/proc/}"
    done
    return 0
}
release() {
    local pids m
    pids=$(inside)
    if [ -n "$pids" ]; then
        kill $pids 2> /dev/null || true
        sleep 1
        kill -9 $(inside) 2> /dev/null || true
    fi
    for m in $(mounted); do umount "$m" 2> /dev/null || umount -l "$m"; done
}
release # what an earlier run ended before releasing
trap release EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

if [ ! -e "$root/.made" ]; then
    t=$SECONDS
    command -v debootstrap > /dev/null || {
        apt-get -o DPkg::Lock::Timeout=600 update -qq
        DEBIAN_FRONTEND=noninteractive apt-get -o DPkg::Lock::Timeout=600 install -y -qq debootstrap
    }
    # The archive this machine's own packages come from.
    mirror=$(sed -n 's/^URIs: *\([^ ]*debian\)$/\1/p' /etc/apt/sources.list.d/debian.sources 2> /dev/null | head -n 1)
    [ -n "$mirror" ] || { echo "debian.sh: no Debian archive in /etc/apt/sources.list.d/debian.sources" >&2; exit 1; }
    # A debootstrap older than the suite has no script by its name; sid's
    # serves testing.
    script=/usr/share/debootstrap/scripts/$suite
    [ -e "$script" ] || script=/usr/share/debootstrap/scripts/sid
    rm -rf "$root"
    mkdir -p "$roots"
    debootstrap --variant=minbase "$suite" "$root" "$mirror" "$script" > "$roots/$suite.log" 2>&1 ||
        { tail -n 20 "$roots/$suite.log"; exit 1; }
    # A testing suite's Release file in a snapshot of the archive expires
    # after a week; stable suites keep apt's check.
    if grep -qsx 'Suite: \(testing\|unstable\)' "$root"/var/lib/apt/lists/*Release; then
        echo 'Acquire::Check-Valid-Until "false";' > "$root/etc/apt/apt.conf.d/99snapshot"
    fi
    touch "$root/.made"
    took "making the root" $t
fi

cp /etc/resolv.conf "$root/etc/resolv.conf"
# The root a mount of its own, so that a test there can take a mount (and
# process) namespace of its own too: unshare makes the new namespace's "/"
# private, which needs "/" to be a mount.
mount --bind "$root" "$root"
mount -t proc proc "$root/proc"
mount --rbind /sys "$root/sys"
mount --make-rslave "$root/sys"
mount --rbind /dev "$root/dev"
mount --make-rslave "$root/dev"
mount -t tmpfs tmpfs "$root/tmp"
rm -rf "$root$clone"
git clone -q --no-local . "$root$clone"

t=$SECONDS
# Processes of its own: an Orca started in the root ends no Orca outside it.
unshare --pid --fork --mount-proc="$root/proc" chroot "$root" env -i HOME=/root PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
    LANG=C.UTF-8 TERM="${TERM:-dumb}" CI="${CI:-}" \
    bash -c "echo Debian \$(cat /etc/debian_version); cd $clone && $command"
took "'$command'" $t
took "all" $start

# Sourced by scripts/test: another release of Debian in a folder. It stands outside the tree and
# serves all clones on the machine; a clone's own build is in build/RELEASE.

debian_cache=${XDG_CACHE_HOME:-$HOME/.cache}/quorix

# make_debian RELEASE: from the mirror that this machine has its own packages from, by the same way.
make_debian() {
  local root=$debian_cache/$1 mirror
  [[ ! -d $root ]] || return 0
  scripts/install-packages chroot
  mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' 'Label: Debian')
  [[ -n $mirror ]] || { echo "test: apt knows no mirror of Debian (apt-get update)" >&2; return 1; }
  rm -rf "$root.part"
  mkdir -p "$debian_cache"
  # One script serves every release; debootstrap has names for those that it knew when it was made.
  debootstrap --variant=minbase --include=ca-certificates "$1" "$root.part" "${mirror%%$'\n'*}" sid >/dev/null
  apt-config dump Acquire::http Acquire::https >"$root.part/etc/apt/apt.conf.d/90machine"
  # Of a release in the making, a mirror that lags a week behind would count as expired.
  echo 'Acquire::Check-Valid-Until "false";' >>"$root.part/etc/apt/apt.conf.d/90machine"
  mkdir -p "$root.part/quorix" "$root.part/root/.cache/ccache"
  mv "$root.part" "$root"
}

# in_debian RELEASE COMMAND...: runs there, in this tree. What it mounts is gone when the command ends.
in_debian() {
  local root=$debian_cache/$1
  mkdir -p "build/$1" "$debian_cache/ccache"
  cp -L /etc/resolv.conf /etc/hosts "$root/etc/"
  # shellcheck disable=SC2016  # the inner shell's variables
  ROOT=$root CACHE=$debian_cache/ccache BUILD=build/$1 unshare --mount bash -euc '
    mount -t proc proc "$ROOT/proc"
    mount --rbind /sys "$ROOT/sys"
    mount --rbind /dev "$ROOT/dev"
    mount -t tmpfs tmpfs "$ROOT/tmp"
    mount --bind "$CACHE" "$ROOT/root/.cache/ccache"
    mount --bind . "$ROOT/quorix"
    mount --bind "$BUILD" "$ROOT/quorix/build"
    exec chroot "$ROOT" env -i HOME=/root LANG=C.UTF-8 PATH=/usr/sbin:/usr/bin:/sbin:/bin \
      bash -c "cd /quorix && exec \"\$@\"" - "${@:2}"' - "$@"
}

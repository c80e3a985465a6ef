# Sourced by scripts/test: another release of Debian in a folder outside the tree. All clones on the
# machine share it; each clone has its own build in build/RELEASE.

debian_cache=${XDG_CACHE_HOME:-$HOME/.cache}/quorix

# make_debian RELEASE: installs it from this machine's own mirror, with the same proxy settings.
make_debian() {
  local root=$debian_cache/$1 mirror
  [[ ! -d $root ]] || return 0
  scripts/install-packages chroot
  mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' 'Label: Debian')
  [[ -n $mirror ]] || { echo "test: apt knows no mirror of Debian (apt-get update)" >&2; return 1; }
  rm -rf "$root.part"
  mkdir -p "$debian_cache"
  # debootstrap knows only the releases that are older than itself. The script of "sid" works for
  # all.
  debootstrap --variant=minbase --include=ca-certificates "$1" "$root.part" "${mirror%%$'\n'*}" sid >/dev/null
  apt-config dump Acquire::http Acquire::https >"$root.part/etc/apt/apt.conf.d/90machine"
  # For a release in development, apt would treat a mirror that is a week old as expired.
  echo 'Acquire::Check-Valid-Until "false";' >>"$root.part/etc/apt/apt.conf.d/90machine"
  mkdir -p "$root.part/quorix" "$root.part/root/.cache/ccache"
  mv "$root.part" "$root"
}

# in_debian RELEASE COMMAND...: runs the command there, in this tree. The mounts end with the
# command.
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

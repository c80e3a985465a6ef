# Sourced by scripts/test: a Debian 13 in a folder, also on other releases. It stands outside
# the tree and serves all clones on the machine; a clone's own build is in build/trixie.

trixie_cache=${XDG_CACHE_HOME:-$HOME/.cache}/quorix
trixie=$trixie_cache/trixie

# From the mirror that this machine has its own packages from, by the same way.
make_trixie() {
  [[ ! -d $trixie ]] || return 0
  local mirror
  scripts/install-packages chroot
  mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Origin: Debian' 'Label: Debian')
  [[ -n $mirror ]] || { echo "test: apt knows no mirror of Debian (apt-get update)" >&2; return 1; }
  rm -rf "$trixie.part"
  mkdir -p "$trixie_cache"
  debootstrap --variant=minbase --include=ca-certificates trixie "$trixie.part" "${mirror%%$'\n'*}" >/dev/null
  apt-config dump Acquire::http Acquire::https >"$trixie.part/etc/apt/apt.conf.d/90machine"
  mkdir -p "$trixie.part/quorix" "$trixie.part/root/.cache/ccache"
  mv "$trixie.part" "$trixie"
}

# in_trixie COMMAND...: runs there, in this tree. What it mounts is gone when the command ends.
in_trixie() {
  mkdir -p build/trixie "$trixie_cache/ccache"
  cp -L /etc/resolv.conf /etc/hosts "$trixie/etc/"
  # shellcheck disable=SC2016  # the inner shell's variables
  ROOT=$trixie CACHE=$trixie_cache/ccache unshare --mount bash -euc '
    mount -t proc proc "$ROOT/proc"
    mount --rbind /sys "$ROOT/sys"
    mount --rbind /dev "$ROOT/dev"
    mount -t tmpfs tmpfs "$ROOT/tmp"
    mount --bind "$CACHE" "$ROOT/root/.cache/ccache"
    mount --bind . "$ROOT/quorix"
    mount --bind build/trixie "$ROOT/quorix/build"
    exec chroot "$ROOT" env -i HOME=/root LANG=C.UTF-8 PATH=/usr/sbin:/usr/bin:/sbin:/bin \
      bash -c "cd /quorix && exec \"\$@\"" - "$@"' - "$@"
}

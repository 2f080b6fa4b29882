# Installs missing Debian packages. The scripts run, test and packaging/makePackages source this file.

plib_packages=(g++ cmake ninja-build ccache qtbase5-dev libqt5svg5-dev
               qttools5-dev qttools5-dev-tools qttranslations5-l10n libsqlite3-dev libxxhash-dev
               libbenchmark-dev fonts-dejavu-core)

plib_install_packages() {
    local missing=() package
    for package in "${plib_packages[@]}"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' \
            || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    echo "Installing ${missing[*]}" >&2
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Please install: ${missing[*]}" >&2; return 1; }
        as_root=(sudo)
    fi
    "${as_root[@]}" apt-get update -qq >&2 || true   # an old package list may still be sufficient
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >&2
}

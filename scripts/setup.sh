# The set-up that ./run, ./test and ./bench share; to be sourced. Says plainly what is missing when it can't go on.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build="$root/build"

# Prints the packages of packages.txt that aren't installed.
missing_packages() {
    local wanted
    mapfile -t wanted < <(sed 's/#.*//' "$root/packages.txt" | awk 'NF { print $1 }')
    comm -23 <(printf '%s\n' "${wanted[@]}" | sort) \
        <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "${wanted[@]}" 2>/dev/null |
            awk '$2 == "installed" { print $1 }' | sort)
}

install_packages() {
    local missing as_root=()
    command -v dpkg-query >/dev/null || {
        echo "This set-up needs Debian 12: dpkg-query was not found." >&2
        return 1
    }
    mapfile -t missing < <(missing_packages)
    [ ${#missing[@]} -eq 0 ] && return 0

    echo "Installing ${#missing[@]} packages: ${missing[*]}"
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "These packages are missing, and installing them needs root or sudo: ${missing[*]}" >&2
            return 1
        }
        as_root=(sudo)
    fi
    if ! "${as_root[@]}" apt-get update ||
        ! "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install --yes --no-install-recommends "${missing[@]}"; then
        echo "These packages could not be installed: ${missing[*]}" >&2
        return 1
    fi
}

# build_targets TARGET…: configures when that was not done yet, then builds.
build_targets() {
    if [ ! -f "$build/build.ninja" ]; then
        (cd "$root" && cmake --preset release) || return 1
    fi
    cmake --build "$build" --target "$@"
}

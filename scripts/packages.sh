# shellcheck shell=bash disable=SC2034,SC2086,SC2154
# Installs what the product needs to be built and run. To be sourced, not run.
#
#   need_packages run     what ./run needs
#   need_packages test    that, and what ./test needs
#
# A list has one entry a word. "a|b" means either package will do: distributions name some of them differently.

ks_packages_run="cmake ninja-build g++ ccache pkg-config|pkgconf qt6-base-dev qt6-svg-dev|libqt6svg6-dev
    libical-dev libpng-dev tzdata fonts-liberation fonts-dejavu-core"
ks_packages_test="$ks_packages_run libgtest-dev libgmock-dev nlohmann-json3-dev xvfb xauth"
ks_packages_bench="$ks_packages_run libbenchmark-dev"
ks_packages_lint="clang-format-14 shellcheck git"
ks_packages_fuzz="$ks_packages_test clang libclang-rt-dev"

# Debian 12 and Ubuntu 24.04, where the names above are known to be right.
ks_known_system()
{
    [ -r /etc/os-release ] || return 1
    # shellcheck disable=SC1091
    case "$(. /etc/os-release && echo "$ID-${VERSION_ID:-}")" in
        debian-12 | ubuntu-24.04) return 0 ;;
        *) return 1 ;;
    esac
}

ks_installed()
{
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# Prints the entries of a list of which no alternative is installed. Needs no network.
ks_missing()
{
    local entry name found
    for entry in $1; do
        found=no
        for name in ${entry//|/ }; do
            if ks_installed "$name"; then
                found=yes
                break
            fi
        done
        [ "$found" = yes ] || echo "$entry"
    done
}

# The first alternative of an entry that the system's package lists know.
ks_available()
{
    local name
    for name in ${1//|/ }; do
        if apt-cache show "$name" >/dev/null 2>&1; then
            echo "$name"
            return
        fi
    done
    echo "${1%%|*}"
}

ks_as_root()
{
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        echo "This needs root and there is no sudo; as root, run: $*" >&2
        return 1
    fi
}

# On a system that is not known here: look for the programs and libraries themselves.
ks_check_unknown_system()
{
    local absent="" program
    for program in cmake ninja c++ pkg-config; do
        command -v "$program" >/dev/null || absent="$absent $program"
    done
    if command -v pkg-config >/dev/null; then
        pkg-config --exists libical || absent="$absent libical"
        pkg-config --exists libpng || absent="$absent libpng"
        pkg-config --exists Qt6Widgets Qt6Svg || absent="$absent Qt6(Widgets,Svg)"
    fi
    [ -z "$absent" ] && return 0
    {
        echo "Packages are installed automatically on Debian 12 and Ubuntu 24.04 only. Missing here:$absent"
        echo "On Debian the packages are:" $1
    } >&2
    return 1
}

# Installs what is missing of the named list; says nothing and asks nobody when nothing is.
need_packages()
{
    local list="ks_packages_$1" missing names="" entry
    if ! ks_known_system; then
        ks_check_unknown_system "${!list}"
        return
    fi
    missing=$(ks_missing "${!list}")
    [ -z "$missing" ] && return 0
    echo "Installing:" $missing >&2
    ks_as_root apt-get update -qq >&2 || return 1
    for entry in $missing; do
        names="$names $(ks_available "$entry")"
    done
    # shellcheck disable=SC2086
    ks_as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends $names >&2
}

# shellcheck shell=bash
# Finds and installs the Debian packages that the commands of this folder and
# the two at the top need. To be sourced; scripts/packages.txt is the list.

packages_list="$(dirname "${BASH_SOURCE[0]}")/packages.txt"

# needed_packages GROUP...: the packages of these groups, on one line.
needed_packages()
{
    local group name
    while read -r group name _; do
        case " $* " in
        *" $group "*) printf '%s ' "$name" ;;
        esac
    done <"$packages_list"
}

# missing_packages NAME...: those of the named packages that are not installed, on one line.
missing_packages()
{
    local installed name
    # dpkg-query fails if it does not know one of them, but still lists the others.
    installed=" $(dpkg-query -W -f '${Package}:${db:Status-Status} ' "$@" 2>/dev/null || true)"
    for name in "$@"; do
        [[ $installed == *" $name:installed "* ]] || printf '%s ' "$name"
    done
}

is_debian_12()
{
    [[ -r /etc/os-release ]] &&
        (. /etc/os-release && [[ ${ID:-} == debian && ${VERSION_ID:-} == 12 ]])
}

# as_root COMMAND...: runs it as root, with sudo if necessary.
as_root()
{
    if ((EUID == 0)); then
        "$@"
    else
        sudo "$@"
    fi
}

# apt_get ARGUMENT...: a non-interactive apt-get that waits for locks.
apt_get()
{
    local attempt
    for attempt in 1 2 3 4 5 6; do
        as_root env DEBIAN_FRONTEND=noninteractive \
            apt-get -q -o DPkg::Lock::Timeout=300 -o APT::Update::Error-Mode=any "$@" \
            </dev/null && return 0
        # apt-get waits for the lock of dpkg, but not for that of the package lists.
        [[ $1 == update && $attempt != 6 ]] || return 1
        sleep 5
    done
}

# install_packages GROUP...: installs the missing packages of these groups.
install_packages()
{
    local needed missing
    read -ra needed <<<"$(needed_packages "$@")"

    if ! is_debian_12; then
        if [[ ${TONQUILL_PACKAGES:-} == present ]]; then
            return 0
        fi
        cat >&2 <<MESSAGE
This is not Debian 12, the system whose packages are known here.
What is needed, by its Debian names:
    ${needed[*]}
Install what matches them, then call this again with TONQUILL_PACKAGES=present
in the environment.
MESSAGE
        return 1
    fi

    read -ra missing <<<"$(missing_packages "${needed[@]}")"
    if ((${#missing[@]} == 0)); then
        return 0
    fi
    if ((EUID != 0)) && ! command -v sudo >/dev/null; then
        cat >&2 <<MESSAGE
These packages are missing: ${missing[*]}
Installing them takes root or sudo. As root, run:
    apt-get update && apt-get install --no-install-recommends ${missing[*]}
MESSAGE
        return 1
    fi
    echo "Installing the packages ${missing[*]}"
    apt_get update && apt_get install --yes --no-install-recommends "${missing[@]}"
}

# shellcheck shell=bash
# What the scripts beside this folder share; to be sourced by bash.

project=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/../.." && pwd)
script=$(basename -- "$0")

# What it takes to build the project and to run its tests and its demo.
project_packages=(cmake ninja-build g++ qtbase5-dev qttools5-dev libqt5sql5-mysql
    mariadb-server-core mariadb-client-core mount util-linux)

# What the tests take besides: a browser for the pages, a clock that can be moved, readers for the
# manual pages, compressed logs.
test_packages=(chromium libfaketime lld man-db mandoc tzdata xz-utils zstd)

# What the tests of clusters take besides: Galera, what transfers a node's state, the proxy.
cluster_packages=(galera-4 haproxy iproute2 mariadb-backup socat)

# What it takes to measure the plugin.
bench_packages=(binutils gnuplot-nox libmariadb-dev mariadb-client python3 tzdata valgrind)

# What it takes to make the Debian packages.
package_packages=(dpkg-dev git)

# What it takes to test them: systemd for its systemd-analyze and systemd-sysusers.
package_test_packages=(lintian systemd)

fail()
{
    printf '%s: %s\n' "$script" "$*" >&2
    exit 1
}

# usage ARGUMENTS: ends a script that was called otherwise than with these.
usage()
{
    printf 'usage: %s %s\n' "$script" "$*" >&2
    exit 2
}

# The comment at the head of a script is its help text.
case ${1:-} in
    -h | --help | help)
        sed -n '3,/^[^#]*$/s/^# \{0,1\}//p' "$0"
        exit ;;
esac

# quietly COMMAND...: shows what COMMAND prints only when it fails.
quietly()
{
    local output
    output=$("$@" 2>&1 </dev/null) && return
    printf '%s\n' "$output" >&2
    return 1
}

# with_progress COMMAND...: a build by Ninja, as quietly, but tells how far it is: in one line on a
# terminal, and at every tenth of the steps elsewhere.
with_progress()
{
    local line output=() tenths=0
    while IFS= read -r line; do
        output+=("$line")
        [[ $line =~ ^\[([0-9]+)/([0-9]+)\] ]] || continue
        if [[ -t 1 ]]; then
            printf '\r  %s of %s steps' "${BASH_REMATCH[@]:1}"
        elif (( BASH_REMATCH[1] * 10 / BASH_REMATCH[2] > tenths )); then
            (( tenths = BASH_REMATCH[1] * 10 / BASH_REMATCH[2] ))
            printf '  %s of %s steps\n' "${BASH_REMATCH[@]:1}"
        fi
    done < <("$@" 2>&1 </dev/null)
    local built=0
    wait "$!" || built=$?
    [[ ! -t 1 ]] || printf '\r\e[K'
    (( built == 0 )) || printf '%s\n' "${output[@]}" >&2
    return "$built"
}

# in_parallel FUNCTION ARGUMENT...: calls the function with each argument, in this order and as many at a
# time as there are processors, and shows in one piece what each call prints. Each has a shell of its own:
# whatever the function uses must be exported. Fails if any call does.
in_parallel()
{
    local call=$1
    shift
    printf '%s\0' "$@" | xargs -0 --max-args=1 --max-procs="$(nproc)" bash -c '
        output=$("$2" "$3" 2>&1) || failed=1
        exec {turn}<"$1" && flock "$turn"
        [[ -z $output ]] || printf "%s\n" "$output"
        exit "${failed:-0}"' -- "$project" "$call"
}

is_installed()
{
    [[ $(dpkg-query --show --showformat='${db:Status-Status}' "$1" 2>/dev/null) == installed ]]
}

# install_missing PACKAGE...: installs those Debian packages that are not there yet.
install_missing()
{
    local package missing=() as_root=()
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    (( ${#missing[@]} > 0 )) || return 0

    if (( EUID != 0 )); then
        [[ -n $(command -v sudo) ]] || fail "please have these packages installed: ${missing[*]}"
        as_root=(sudo)
    fi
    printf 'Installing %s ...\n' "${missing[*]}"
    quietly "${as_root[@]}" apt-get -qq update \
        && quietly "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get -qq install --no-install-recommends "${missing[@]}" \
        || fail "these packages could not be installed: ${missing[*]}"
}

# build PRESET [TARGET...]: configures the project in build/PRESET and builds all of it or the targets.
# Leaves the caller in the project's folder.
build()
{
    local preset=$1
    shift
    printf 'Building (%s) ...\n' "$preset"
    cd -- "$project" || fail "cannot enter $project"
    quietly cmake --preset "$preset" \
        && with_progress cmake --build --preset "$preset" ${1:+--target "$@"} \
        || fail "the project could not be built"
}

# Fetching Debian's source packages. Sourced by the scripts that build something for Windows from them, after
# scripts/lib.sh; they set `work` to a folder for whatever is fetched.

# The machine's own Debian archives, as source archives, in a configuration beside the system's: /etc/apt stays as
# it is. Archives of other origin are left out, since they rarely carry sources: Debian's are known by the release's
# code name together with the component "main". Both forms of list are understood, one stanza or line at a time.
source_lists() {
    local codename parts=$work/apt/sources.list.d
    codename=$(. /etc/os-release && echo "$VERSION_CODENAME")
    mkdir -p "$parts" "$work/apt/lists/partial"
    find /etc/apt/sources.list.d -name '*.sources' -exec cat {} \; -exec echo \; |
        sed '/^#/d' | awk -v RS= -v ORS='\n\n' -v suite="$codename" '
            $0 ~ "(^|\n)Suites:[^\n]*[ \t]" suite && /(^|\n)Components:[^\n]*[ \t]main/ && !/(^|\n)Enabled:[ \t]*no/ {
                sub(/(^|\n)Types:[^\n]*/, "\nTypes: deb-src"); sub(/^\n/, ""); print }' >"$parts/debian.sources"
    find /etc/apt -maxdepth 2 \( -name sources.list -o -path '*/sources.list.d/*.list' \) -exec cat {} + |
        awk -v suite="$codename" '$1 == "deb" && $0 ~ "[ \t]" suite && /[ \t]main([ \t]|$)/ {
            sub(/deb/, "deb-src"); print }' >"$parts/debian.list"
    find "$parts" -size -2c -delete # an empty list file is an error to apt
    [ -n "$(ls "$parts")" ] || { echo "No Debian archive found in /etc/apt for $codename" >&2; return 1; }
}

apt_source() { # COMMAND...
    apt-get -qq -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$work/apt/sources.list.d" \
        -o Dir::State::Lists="$work/apt/lists" -o APT::Sandbox::User="$(id -un)" "$@"
}

fetch_sources() { # PACKAGE...: unpacks each into $work/src
    source_lists
    apt_source update
    rm -rf "$work"/src
    mkdir "$work/src"
    cd "$work/src"
    apt_source source "$@"
}

# mingw_compilers TARGET: both thread models of the compiler may be installed; the plain names must mean the posix one.
mingw_compilers() {
    mkdir -p "$work/bin"
    local tool
    for tool in gcc g++; do ln -sf "$(command -v "$1-$tool-posix")" "$work/bin/$1-$tool"; done
    PATH=$work/bin:$PATH
}

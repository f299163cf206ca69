# shellcheck shell=bash
# Where the libraries for building Windows programs are kept. Source it from the tree's top folder.

sdk_cache=${XDG_CACHE_HOME:-$HOME/.cache}/tarnwick-windows-sdk
sdk=$sdk_cache/sdk
# Goes up with every change of what packaging/windows/build-sdk makes.
sdk_version=3

sdk_is_there() {
    [ "$(cat "$sdk/tarnwick-sdk" 2>/dev/null)" = "$sdk_version" ]
}

# Completion for brindlepost: its options, media files, play lists and folders.
_brindlepost() {
    local current=${COMP_WORDS[COMP_CWORD]}
    COMPREPLY=()
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "--play-pause --next --previous --stop --status --new-tab --without-home-pages --help --version" -- "$current")
        return
    fi
    local kinds='!*.@(mp3|wma|mpg|mpeg|wav|wmv|mid|mp4|m4a|mov|avi|vob|mpl|m3u|m3u8|pls|xspf|html|htm|pdf)'
    local restore
    restore=$(shopt -p extglob)
    shopt -s extglob
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -X "$kinds" -- "$current"; compgen -d -- "$current")
    $restore
}
complete -F _brindlepost brindlepost

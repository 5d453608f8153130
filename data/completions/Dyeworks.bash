# Completion of the editor's command line for bash.

_Dyeworks() {
    local cur prev words cword
    _init_completion -n = || return

    case $prev in
        --language)
            mapfile -t COMPREPLY < <(compgen -W 'en ja' -- "$cur")
            return
            ;;
        --drive)
            # Letter, "=" and folder.
            if [[ $cur == [A-Za-z]=* ]]; then
                mapfile -t COMPREPLY < <(compgen -d -P "${cur%%=*}=" -- "${cur#*=}")
                compopt -o filenames -o nospace
            fi
            return
            ;;
        --render)
            _filedir png
            return
            ;;
        --settings)
            _filedir
            return
            ;;
    esac
    if [[ $cur == -* && " ${words[*]:0:cword} " != *' -- '* ]]; then
        mapfile -t COMPREPLY < <(compgen -W '--attach --drive --help --language --new-image --new-instance
            --new-palette --no-splash --print --print-to --render --settings --unregister --version' -- "$cur")
        return
    fi
    _filedir '@(tmf|tlf|tpf|bmp|png|jpg|jpeg|gif)'
} &&
    complete -F _Dyeworks Dyeworks

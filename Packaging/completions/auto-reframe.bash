# bash completion for auto-reframe: each option of `auto-reframe --help` has a line here (Tests/Packaging/check_options.py).
_auto_reframe()
{
    local cur prev words cword split
    _init_completion -s || return
    # Options with a value, by what the value is.
    case $prev in
        --language) COMPREPLY=($(compgen -W 'en de es fr ja pt_BR zh_CN' -- "$cur")); return ;;
    esac
    $split && return
    case $cur in
        -*) COMPREPLY=($(compgen -W '
            --language
            -h --help
            --version' -- "$cur")) ;;
        *) _filedir ;;
    esac
} && complete -F _auto_reframe auto-reframe

# bash completion for auto-reframe: each option of `auto-reframe --help` has a line here (Tests/Packaging/check_options.py).
_auto_reframe()
{
    local cur prev words cword split
    _init_completion -s || return
    # Options with a value, by what the value is: none yet.
    $split && return
    case $cur in
        -*) COMPREPLY=($(compgen -W '
            -h --help
            --version' -- "$cur")) ;;
        *) _filedir ;;
    esac
} && complete -F _auto_reframe auto-reframe

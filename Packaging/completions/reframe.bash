# bash completion for reframe: each option of `reframe --help` has a line here (Tests/Packaging/check_options.py).
_reframe()
{
    local cur prev words cword split
    _init_completion -s -n : || return
    # Options with a value, by what the value is.
    case $prev in
        --aspect) COMPREPLY=($(compgen -W '9:16 1:1 4:5 4:3 16:9 21:9' -- "$cur")); __ltrim_colon_completions "$cur"; return ;;
        --speed) COMPREPLY=($(compgen -W 'auto fast slow' -- "$cur")); return ;;
        --speaker) COMPREPLY=($(compgen -W 'auto off' -- "$cur")); return ;;
        --follow) return ;;
        --choices | --save-choices) _filedir json; return ;;
        --cache | --models) _filedir -d; COMPREPLY+=($(compgen -W none -- "$cur")); return ;;
        --output) _filedir '@(mp4|m4v)'; return ;;
        --size) COMPREPLY=($(compgen -W '1080x1920 720x1280 2160p' -- "$cur")); return ;;
        --frames | --fps | --quality | --bitrate | --loudness) return ;;
        --codec) COMPREPLY=($(compgen -W 'h264 hevc av1' -- "$cur")); return ;;
        --encoder) COMPREPLY=($(compgen -W 'auto software vaapi nvenc qsv' -- "$cur")); return ;;
        --hdr) COMPREPLY=($(compgen -W 'tonemap keep' -- "$cur")); return ;;
        --sound) COMPREPLY=($(compgen -W 'encode copy' -- "$cur")); return ;;
        --keyframes | --apply) _filedir '@(json|csv)'; return ;;
        --edit-list) _filedir '@(mlt|kdenlive|fcpxml|txt|ffscript)'
            COMPREPLY+=($(compgen -W 'mlt kdenlive fcpxml txt ffscript' -- "$cur")); return ;;
        --preview) _filedir '@(png|mp4)'; return ;;
        --report) _filedir html; return ;;
        --inputs | --status) _filedir; return ;;
        --language) COMPREPLY=($(compgen -W 'en de es fr ja pt_BR zh_CN' -- "$cur")); return ;;
    esac
    $split && return
    case $cur in
        -*) COMPREPLY=($(compgen -W '
            --aspect
            --speed
            --speaker
            --follow
            --choices
            --save-choices
            --cache
            --output
            --size
            --fps
            --quality
            --bitrate
            --codec
            --encoder
            --hdr
            --sound
            --loudness
            --keyframes
            --edit-list
            --apply
            --preview
            --report
            --models
            --no-video
            --overwrite
            --json
            --quiet
            --recursive
            --inputs
            --status
            --if-needed
            --frames
            --join
            --language
            -h --help
            --version' -- "$cur")) ;;
        *) _filedir ;;
    esac
} && complete -F _reframe reframe

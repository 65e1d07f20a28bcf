#!/usr/bin/python3
"""check_options.py PROGRAM NAME PACKAGING: each option of `PROGRAM --help` is in the man page, in the completion of bash and in that of
zsh, with a value where it takes one, and these have no other options. PACKAGING is the folder with man pages and completions."""
import os, re, subprocess, sys

BASH = '''source /usr/share/bash-completion/bash_completion
source "$1"
COMP_WORDS=("$2" "$3" "$4"); COMP_CWORD=$5; COMP_LINE="$2 $3 $4"; COMP_LINE=${COMP_LINE%% }; COMP_POINT=${#COMP_LINE}
"_${2//-/_}" "$2" "$4" "$3"
printf '%s\\n' "${COMPREPLY[@]}"
'''
# The completion hands its options to _arguments.
ZSH = '''_arguments() { printf '%s\\n' "$@" }
source "$1"
'''


def run(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, encoding='utf-8').stdout


def options_of_help(program):
    """Each option with the name of its value, or None."""
    options = {}
    for line in run(program, '--help').splitlines():
        match = re.match(r'  (-[^ ].*)', line)
        if match:
            # "--cache <FOLDER>", "-h, --help"; the explanation follows after two spaces.
            names, value = re.match(r'(-[-\w, ]*?)(?: <(.*?)>)?(?:  |$)', match.group(1)).groups()
            options.update((name, value) for name in names.split(', '))
    return options


def options_of_man_page(path):
    options = {}
    with open(path, encoding='utf-8') as file:
        section = re.search(r'^\.Sh OPTIONS$(.*?)^\.Sh ', file.read(), re.M | re.S).group(1)
    for entry in re.findall(r'^\.It (Fl .*)$', section, re.M):
        for one in entry.split(' , '):
            name, _, value = one[len('Fl '):].partition(' Ar ')
            options['-' + name] = value or None
    return options


def options_of_bash(path, name):
    """What is offered for "-", and whether what follows an option is a value: then no options are offered."""
    offered = run('bash', '-c', BASH, 'complete', path, name, '-', '', '1').split()
    after = {option: run('bash', '-c', BASH, 'complete', path, name, option, '-', '2').split() for option in offered}
    return {option: 'value' if '--help' not in rest else None for option, rest in after.items()}


def options_of_zsh(path):
    options = {}
    for line in run('zsh', '-f', '-c', ZSH, 'complete', path).splitlines():
        # "*--follow=[text]:value:action", "(- *)--version[text]"
        match = re.match(r'(?:\([^)]*\)|\*(?=-))?(--?[\w-]+)(=?)\[[^]]*\](:.*)?$', line)
        if match:
            name, takes_value, action = match.groups()
            assert bool(takes_value) == bool(action), 'Option and value do not agree: ' + line
            options[name] = 'value' if takes_value else None
    return options


def differences(what, documented, options, compare):
    for name in sorted(options.keys() - documented.keys()):
        yield '%s is missing in %s.' % (name, what)
    for name in sorted(documented.keys() - options.keys()):
        yield '%s is in %s, but not in --help.' % (name, what)
    for name in sorted(documented.keys() & options.keys()):
        if compare(documented[name]) != compare(options[name]):
            yield '%s takes %s in %s, but %s in --help.' % (name, documented[name] or 'no value', what, options[name] or 'no value')


def main():
    program, name, packaging = sys.argv[1:]
    options = options_of_help(program)
    if not {'-h', '--help', '--version'} <= options.keys():
        sys.exit('The options in the help of %s cannot be read.' % program)
    completions = os.path.join(packaging, 'completions')
    problems = [*differences('the man page', options_of_man_page(os.path.join(packaging, 'man', name + '.1')), options, str),
                *differences('the completion of bash', options_of_bash(os.path.join(completions, name + '.bash'), name), options, bool),
                *differences('the completion of zsh', options_of_zsh(os.path.join(completions, '_' + name)), options, bool)]
    print('\n'.join(problems))
    if problems:
        sys.exit('%d options of %s are documented wrongly.' % (len(problems), name))


main()

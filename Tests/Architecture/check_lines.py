#!/usr/bin/python3
"""check_lines.py RULE ROOT: looks for lines below ROOT that break a rule which the compiler does not know.

  constants  constants of namespaces, classes and functions (static) are CamelCase, constexpr locals are camelBack; Packaging/tidy checks
             all names, but takes too long for every run of the tests
  platforms  operating systems are told apart by files (Src/KxCore/Posix, Src/KxCore/Windows), not by conditions in the sources
  sleeps     a test waits for a condition or a signal; a pause is too short on a busy machine and too long on any other, a spin takes a core
  checks     the macros of QtTest do not fail a test of GoogleTest: they end it, and it passes (Tests/Support/Eventually.h)
"""
import os, re, sys

CONSTANT = re.compile(r'^(\s*)((?:static |inline |thread_local )*)(?:constexpr|(?<![\w ])const) (?!auto \[)[^(={;]*?[\s*&](?!operator)(\w+)(?:\[\w*\])?\s*(?:[={;]|$)')
SLEEP = re.compile(r'\b(?:qWait|qSleep|sleep_for|sleep_until|msleep|usleep|nanosleep)\s*\(|'
                   r'\bQThread::sleep\s*\(|\bthis_thread::yield\s*\(')
QT_CHECK = re.compile(r'\bQ(?:TRY_\w+|VERIFY2?|COMPARE|FAIL)\s*\(')

PLATFORM = re.compile(r'^\s*#\s*(?:el)?if.*\b(?:_WIN32|_WIN64|__MINGW\w+|_MSC_VER|__GLIBC__|__linux__|__unix__|__APPLE__|Q_OS_\w+|SIG[A-Z]+|E[A-Z]{3,})\b')
# The folders of the platforms; how symbols are exported, which the compiler decides; and the system's file chooser, whose record comes from
# the system where there is one.
PLATFORM_FILES = re.compile(r'^(?:Src/KxCore/(?:Posix|Windows)/|include/KxCore/KxExport\.h$|include/KxWidgets/KxOpenFileName\.h$)')


def sources(root, folders):
    for folder in folders:
        for path, _, names in os.walk(os.path.join(root, folder)):
            if '/Violations' not in os.path.join(path, '')[len(root):]:
                yield from (os.path.join(path, name) for name in sorted(names) if name.endswith(('.h', '.cpp')))


def wrong_constant(line):
    """The name of a constant that is written the wrong way."""
    match = CONSTANT.match(line)
    if not match or line.rstrip().endswith('('):
        return None
    indent, specifiers, name = match.groups()
    is_local = indent and 'static' not in specifiers
    return name if name[0].isupper() == bool(is_local) else None


def violation(rule, name, line):
    if rule == 'constants':
        return wrong_constant(line)
    if rule == 'platforms':
        return not PLATFORM_FILES.match(name) and PLATFORM.match(line)
    if rule == 'checks':
        return QT_CHECK.search(line)
    return SLEEP.search(line)


FOLDERS = {'constants': ['Src', 'include', 'Tests', 'Benchmarks'], 'platforms': ['Src', 'include'], 'sleeps': ['Tests'],
           'checks': ['Tests']}


def broken(rule, root):
    for path in sources(root, FOLDERS[rule]):
        name = os.path.relpath(path, root)
        with open(path, encoding='utf-8') as file:
            for number, line in enumerate(file, 1):
                if violation(rule, name, line):
                    yield '%s:%d: %s' % (name, number, line.strip())


lines = list(broken(sys.argv[1], os.path.abspath(sys.argv[2])))
print('\n'.join(lines))
if lines:
    sys.exit('%d lines break the rule "%s".' % (len(lines), sys.argv[1]))

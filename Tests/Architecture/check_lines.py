#!/usr/bin/python3
"""check_lines.py RULE ROOT: looks for lines below ROOT that break a rule which the compiler does not know.

  constants  constants of namespaces, classes and functions (static) are CamelCase, constexpr locals are camelBack; Packaging/tidy checks
             all names, but takes too long for every run of the tests
  sleeps     a test waits for a condition or a signal; a pause is too short on a busy machine and too long on any other
"""
import os, re, sys

CONSTANT = re.compile(r'^(\s*)((?:static |inline |thread_local )*)(?:constexpr|(?<![\w ])const) (?!auto \[)[^(={;]*?[\s*&](?!operator)(\w+)(?:\[\w*\])?\s*(?:[={;]|$)')
SLEEP = re.compile(r'\b(?:qWait|qSleep|sleep_for|sleep_until|msleep|usleep|nanosleep)\s*\(|'
                   r'\bQThread::sleep\s*\(')


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


def broken(rule, root):
    folders = ['Src', 'include', 'Tests', 'Benchmarks'] if rule == 'constants' else ['Tests']
    for path in sources(root, folders):
        with open(path, encoding='utf-8') as file:
            for number, line in enumerate(file, 1):
                found = wrong_constant(line) if rule == 'constants' else SLEEP.search(line)
                if found:
                    yield '%s:%d: %s' % (os.path.relpath(path, root), number, line.strip())


lines = list(broken(sys.argv[1], os.path.abspath(sys.argv[2])))
print('\n'.join(lines))
if lines:
    sys.exit('%d lines break the rule "%s".' % (len(lines), sys.argv[1]))

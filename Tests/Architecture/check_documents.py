#!/usr/bin/python3
"""check_documents.py ROOT: looks in the documents (*.md) below ROOT for what a reader would see broken.

Tables whose rows do not follow their header or have another number of cells, code blocks without an end, links to files or headings that
do not exist, and files of the tree that are named but are not there.
"""
import os, re, sys

ROW = re.compile(r'^\s*\|')
DIVIDER = re.compile(r'^\s*\|(?:\s*:?-+:?\s*\|)+\s*$')
LINK = re.compile(r'\]\(([^)\s]+)\)')
SPAN = re.compile(r'`([^`]+)`')
# No pattern, and no placeholder such as Packaging/man/PROGRAM.1.
NAMED_FILE = re.compile(r'(?:\./)?(?:\.ci|Benchmarks|Docs|Packaging|Resources|Src|Tests|Translations|cmake|include)/(?!\S*(?:PROGRAM|CODE|[*<…]))'
                        r'[\w./-]+')
NOT_A_DOCUMENT = {'.git', 'build', 'Violations'}


def documents(root):
    for path, folders, names in os.walk(root):
        folders[:] = [name for name in folders if name not in NOT_A_DOCUMENT]
        yield from (os.path.join(path, name) for name in sorted(names) if name.endswith('.md'))


def cells(row):
    """Also in code spans, a bar that is not escaped ends a cell."""
    return len(re.findall(r'(?<!\\)\|', row.strip())) - 1


def anchors(path):
    with open(path, encoding='utf-8') as file:
        headings = re.findall(r'^#+ +(.+?) *$', file.read(), re.MULTILINE)
    return {re.sub(r'[^\w\- ]', '', heading.lower()).replace(' ', '-') for heading in headings}


def wrong_names(root, path, line):
    for target in LINK.findall(line):
        name, _, heading = target.partition('#')
        file = os.path.join(os.path.dirname(path), name) if name else path
        if ':' in name:
            continue
        if not os.path.exists(file):
            yield 'no such file: ' + name
        elif heading and heading not in anchors(file):
            yield 'no such heading: #' + heading
    for span in SPAN.findall(line):
        match = NAMED_FILE.match(span)
        if match and not os.path.exists(os.path.join(root, match.group().rstrip('.'))):
            yield 'no such file: ' + match.group()


def faults(root, path):
    """Number and description of each broken line."""
    with open(path, encoding='utf-8') as file:
        lines = file.read().splitlines()
    opened = None
    columns = None
    for number, line in enumerate(lines, 1):
        if line.startswith('```'):
            opened = number if opened is None else None
        if opened is not None:
            continue
        yield from ((number, fault) for fault in wrong_names(root, path, line))
        following = lines[number] if number < len(lines) else ''
        if not ROW.match(line):
            columns = None
        elif columns is None and not DIVIDER.match(following):
            yield number, 'a row without the header of a table'
        elif columns is None:
            columns = cells(line)
            if not ROW.match(lines[number + 1] if number + 1 < len(lines) else ''):
                yield number, 'a table without rows'
        elif cells(line) != columns:
            yield number, '%d cells below a header of %d' % (cells(line), columns)
    if opened is not None:
        yield opened, 'a code block without an end'


root = os.path.abspath(sys.argv[1])
broken = ['%s:%d: %s' % (os.path.relpath(path, root), number, fault) for path in documents(root) for number, fault in faults(root, path)]
print('\n'.join(broken))
if broken:
    sys.exit('%d places in the documents are broken.' % len(broken))

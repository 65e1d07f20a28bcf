#!/usr/bin/python3
"""check_packages.py BUILD TREE: makes the Debian packages of the folder BUILD. lintian finds no errors and no warnings in them; each file is
in the package and the folder where it belongs; programs and libraries have no search path of their own."""
import os, re, struct, subprocess, sys
import xml.etree.ElementTree

LIBRARIES = ['KrAutoReframe', 'KxCore', 'KxEditList', 'KxMedia', 'KxMediaLibrary', 'KxModel', 'KxPlayer', 'KxRender', 'KxSubject', 'KxWidgets']
SIZES = [16, 22, 24, 32, 48, 64, 128, 256, 512]


def run(*command):
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, encoding='utf-8', errors='replace')
    if result.returncode != 0:
        sys.exit('%s\n%s' % (' '.join(command), result.stdout))
    return result.stdout


def contents(package, folder):
    """Unpacks a package into a folder; the paths of all its files."""
    os.makedirs(folder)
    run('dpkg-deb', '--extract', package, folder)
    return {os.path.relpath(os.path.join(path, name), folder) for path, _, names in os.walk(folder) for name in names}


def expected(triplet):
    library = 'usr/lib/%s/' % triplet
    icons = ['usr/share/icons/hicolor/%dx%d/apps/auto-reframe.png' % (size, size) for size in SIZES]
    programs = ['usr/bin/reframe', 'usr/bin/auto-reframe', library + 'auto-reframe/libAutoReframeBackend.so', *icons,
                'usr/share/icons/hicolor/scalable/apps/auto-reframe.svg', 'usr/share/applications/auto-reframe.desktop',
                'usr/share/metainfo/auto-reframe.metainfo.xml']
    for name in ['reframe', 'auto-reframe']:
        programs += ['usr/share/man/man1/%s.1.gz' % name, 'usr/share/bash-completion/completions/' + name,
                     'usr/share/zsh/vendor-completions/_' + name]
    return {'auto-reframe': programs,
            'libkrautoreframe1': ['%slib%s.so.1' % (library, name) for name in LIBRARIES],
            'libkrautoreframe-dev': ['%slib%s.so' % (library, name) for name in LIBRARIES] +
                                    [library + 'cmake/KrAutoReframe/KrAutoReframeConfig.cmake',
                                     'usr/include/KrAutoReframe/KrAutoReframeDialog.h']}


def wrong_icons(folder):
    for size in SIZES:
        name = 'usr/share/icons/hicolor/%dx%d/apps/auto-reframe.png' % (size, size)
        with open(os.path.join(folder, name), 'rb') as file:
            if struct.unpack('>II', file.read(24)[16:]) != (size, size):
                yield name + ' has another size.'


def wrong_screenshots(folder, tree):
    """Screenshots are pictures of this tree, so that they exist at the home page when it shows the tree."""
    metainfo = xml.etree.ElementTree.parse(os.path.join(folder, 'usr/share/metainfo/auto-reframe.metainfo.xml'))
    homepage = metainfo.find('url[@type="homepage"]').text
    images = metainfo.findall('screenshots/screenshot/image')
    if not images:
        yield 'The metainfo has no screenshots.'
    for image in images:
        with open(os.path.join(tree, os.path.relpath(image.text, homepage)), 'rb') as file:
            if struct.unpack('>II', file.read(24)[16:]) != (int(image.get('width')), int(image.get('height'))):
                yield image.text + ' has another size than the metainfo says.'


def wrong_binaries(folder, files, triplet):
    for name in sorted(files):
        path = os.path.join(folder, name)
        with open(path, 'rb') as file:
            if file.read(4) != b'\x7fELF':
                continue
        if not name.startswith(('usr/bin/', 'usr/lib/%s/' % triplet)):
            yield name + ' is not in a folder of its architecture.'
        if re.search(r'R(?:UN)?PATH', run('objdump', '-p', path)):
            yield name + ' has a search path.'


def unlisted_dependencies(packages, tree):
    """Whoever distributes the programs has to know the licences of all that they need."""
    with open(os.path.join(tree, 'Docs/LICENCES.md'), encoding='utf-8') as file:
        listed = set(re.findall(r'`([^`]+)`', file.read()))
    for package in ['auto-reframe', 'libkrautoreframe1']:
        for dependency in run('dpkg-deb', '--field', packages[package], 'Depends').split(','):
            name = dependency.split()[0]
            if name not in listed and name not in packages:
                yield 'Docs/LICENCES.md does not list %s.' % name


def main():
    build, tree = (os.path.abspath(path) for path in sys.argv[1:])
    work = os.path.join(build, 'package-contents')
    run('rm', '-rf', work)
    packages = {os.path.basename(path).partition('_')[0]: path
                for path in run(os.path.join(tree, 'Packaging/deb/package'), build).split()}
    triplet = run('dpkg-architecture', '-qDEB_HOST_MULTIARCH').strip()
    problems = []
    for name, required in expected(triplet).items():
        folder = os.path.join(work, name)
        files = contents(packages[name], folder)
        required = [*required, 'usr/share/doc/%s/copyright' % name]
        problems += ['%s has no %s.' % (name, path) for path in required if path not in files]
        problems += wrong_binaries(folder, {path for path in files if not os.path.islink(os.path.join(folder, path))}, triplet)
    if not problems:
        problems += [*wrong_icons(os.path.join(work, 'auto-reframe')), *wrong_screenshots(os.path.join(work, 'auto-reframe'), tree)]
    problems += unlisted_dependencies(packages, tree)
    as_root = ['--allow-root'] if os.getuid() == 0 else []
    lintian = subprocess.run(['lintian', *as_root, '--fail-on', 'error,warning', *packages.values()], stdout=subprocess.PIPE,
                             stderr=subprocess.STDOUT, encoding='utf-8')
    if lintian.returncode != 0:
        problems.append(lintian.stdout)
    print('\n'.join([*packages.values(), *problems]))
    if problems:
        sys.exit('The packages have %d problems.' % len(problems))


main()

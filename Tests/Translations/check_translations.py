#!/usr/bin/env python3
"""check_translations.py ROOT WORK: each sentence in the sources can be translated, each text is translated into each language,
and each translation has what its source has: place markers, keys, ellipsis, colon, line breaks. Prints all faults; the exit
status is 1 if there are any.

check_translations.py --self-test: whether it finds faults that are put into a translation."""

import os
import re
import shutil
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

PLACE = re.compile(r"%L?\d|%n")
KEY = re.compile(r"^\w+_\w+$")
COLONS = (":", "：")
LITERAL = re.compile(r'Q(?:StringLiteral|Latin1String)\(\s*((?:"(?:[^"\\\\]|\\\\.)*"\s*)+)\)')
LOGGED = re.compile(r"KX_LOG_\w+\(.*?\);", re.DOTALL)
# Their texts are for the log alone.
FOR_THE_LOG = ("KxConfigFile.cpp", "KxTrackEvent.cpp")


def messages(path):
    for context in ElementTree.parse(path).getroot().findall("context"):
        for message in context.findall("message"):
            yield context.findtext("name"), message


def forms(message):
    """The translation, or its plural forms; None where one is missing."""
    translation = message.find("translation")
    if translation.get("type") in ("unfinished", "vanished", "obsolete"):
        return [None]
    if message.get("numerus") == "yes":
        return [form.text for form in translation.findall("numerusform")]
    return [translation.text]


def end(text):
    """How a text ends, as far as the end must be kept."""
    text = text.rstrip("\n")
    if text.endswith(("...", "…")):
        return "ellipsis"
    return "colon" if text.endswith(COLONS) else ""


def differences(source, text, is_plural):
    """What a translation lacks or adds."""
    if text is None or not text.strip():
        return ["is not translated"]
    found = []
    wanted, had = sorted(PLACE.findall(source)), sorted(PLACE.findall(text))
    # "An export" needs no number.
    if wanted != had and not (is_plural and sorted(set(wanted) - {"%n"}) == had):
        found.append(f"has the place markers {' '.join(had) or 'none'} instead of {' '.join(wanted) or 'none'}")
    if source.count("&") - 2 * source.count("&&") != text.count("&") - 2 * text.count("&&"):
        found.append("marks another number of keys with &")
    if source.count("\n") != text.count("\n"):
        found.append("has another number of lines")
    if end(source) != end(text):
        found.append(f"must end with {end(source) or 'neither ellipsis nor colon'}")
    if source[:1].isspace() != text[:1].isspace() or source.startswith("…") != text.startswith("…"):
        found.append("begins otherwise")
    if re.findall(r"\(\*?%1;?\)|--[a-z-]+", source) != re.findall(r"\(\*?%1;?\)|--[a-z-]+", text) and \
            sorted(re.findall(r"--[a-z-]+", source)) != sorted(re.findall(r"--[a-z-]+", text)):
        found.append("names other options")
    return found


def faults_of(path, count=None):
    """Faults of a file that lupdate has brought up to date; it holds all texts then."""
    name = os.path.basename(path)
    for context, message in messages(path):
        source = message.findtext("source")
        is_plural = message.get("numerus") == "yes"
        if count is not None:
            count.append(1)
        for text in forms(message):
            # A key says nothing about its translation.
            wanted = text if KEY.match(source) and text else source
            for fault in differences(wanted, text, is_plural):
                yield f"{name}: {context}: {source!r} {fault}" + (f": {text!r}" if text else "")


def faults_of_english(path, other):
    """English must have the words for each key and the plurals of each text with a number, and nothing else."""
    wanted = {(context, message.findtext("source")) for context, message in messages(other)
              if message.get("numerus") == "yes" or KEY.match(message.findtext("source"))}
    had = {(context, message.findtext("source")) for context, message in messages(path)}
    for context, source in sorted(wanted - had):
        yield f"auto-reframe_en.ts: {context}: {source!r} is missing"
    for context, source in sorted(had - wanted):
        yield f"auto-reframe_en.ts: {context}: {source!r} is not in the sources"
    yield from faults_of(path)


def is_sentence(text):
    """Three words of small letters; SQL has capitals, HTML and style sheets have their brackets."""
    return bool(re.search(r"\b[a-z]+ [a-z]+ [a-z]+\b", text)) and not re.search(r"[<{#]|\b[A-Z]{4,} ", text)


def untranslatable(source):
    """Sentences in C++ that bypass translation."""
    for literal in LITERAL.finditer(LOGGED.sub("", source)):
        text = "".join(re.findall(r'"((?:[^"\\\\]|\\\\.)*)"', literal.group(1)))
        if is_sentence(text):
            yield text


def hides_texts(source):
    """Whether texts reach translate() through a variable, where lupdate does not find them."""
    return bool(re.search(r'translate\(\s*"\w+",\s*[a-z]', source)) and "QT_TRANSLATE_NOOP" not in source


def faults_of_sources(root):
    for folder, _, names in os.walk(os.path.join(root, "Src")):
        for name in sorted(names):
            if name.endswith((".cpp", ".h")) and name not in FOR_THE_LOG:
                with open(os.path.join(folder, name), encoding="utf-8") as file:
                    source = file.read()
                for text in untranslatable(source):
                    yield f"{name}: {text!r} cannot be translated (CONTRIBUTING.md, Texts and languages)"
                if hides_texts(source):
                    yield f"{name}: lupdate finds no texts that are given to a function other than tr()"


def differs(path, updated):
    """Texts of the sources that a file lacks, and those that it has too much."""
    had = {(context, message.findtext("source")) for context, message in messages(path)}
    wanted = {(context, message.findtext("source")) for context, message in messages(updated)}
    name = os.path.basename(path)
    for context, source in sorted(had - wanted):
        yield f"{name}: {context}: {source!r} is not in the sources; run Packaging/update-translations"
    for context, source in sorted(wanted - had):
        yield f"{name}: {context}: {source!r} is missing; run Packaging/update-translations"


def check(root, work):
    shutil.rmtree(work, ignore_errors=True)
    shutil.copytree(os.path.join(root, "Translations"), work)
    subprocess.run([os.path.join(root, "Packaging", "update-translations"), work], check=True)
    faults, count = list(faults_of_sources(root)), []
    files = sorted(name for name in os.listdir(work) if name.endswith(".ts"))
    others = [name for name in files if name != "auto-reframe_en.ts"]
    for name in others:
        faults += differs(os.path.join(root, "Translations", name), os.path.join(work, name))
        faults += faults_of(os.path.join(work, name), count)
    faults += faults_of_english(os.path.join(work, "auto-reframe_en.ts"), os.path.join(work, others[0]))
    if len(others) != 6 or len(count) < 6 * 500:
        faults.append(f"only {len(count)} texts in {len(others)} languages were found")
    print("\n".join(faults) or f"{len(count)} translations")
    return 1 if faults else 0


def self_test():
    cases = [("%1 of %2", "%1 von", False), ("%1 of %2", "%1 von %2 %2", False), ("Open…", "Öffnen", False),
             ("Open", "Öffnen…", False), ("Name:", "Name", False), ("&Open", "Öffnen", False),
             ("a\nb", "a b", False), ("text", "", False), ("text", None, False), ("%n files: %1", "eine Datei", True),
             (", %1 left", "%1 left…", False), ("--apply takes one", "--aply nimmt eins", False)]
    missed = [case for case in cases if not differences(*case)]
    good = [("%1 of %2", "%2 中 %1", False), ("Open…", "Öffnen…", False), ("Wait...", "待ち...", False),
            ("Name:", "名称：", False), ("%n files: %1", "Datei: %1", True), ("R&&D", "F&&E", False)]
    wrong = [case for case in good if differences(*case)]
    source = """Failure(QStringLiteral("it is not "
        "a video")); KX_LOG_INFO(QStringLiteral("it is not logged")); Execute(QStringLiteral("SELECT path from the videos"));
        setStyleSheet(QStringLiteral("#bar { padding of no pixels }")); Texts::tr("it is not a file");"""
    found = list(untranslatable(source))
    hidden = hides_texts('QString Words(const char* text) { return QCoreApplication::translate("Words", text); }')
    plain = hides_texts('return QCoreApplication::translate("Words", "a text");')
    print(f"missed {missed}, wrong {wrong}, sentences {found}, hidden {hidden}, plain {plain}")
    return 0 if not missed and not wrong and found == ["it is not a video"] and hidden and not plain else 1


if __name__ == "__main__":
    sys.exit(self_test() if sys.argv[1:] == ["--self-test"] else check(sys.argv[1], sys.argv[2]))

#!/usr/bin/env python3
"""accessible_names.py: prints what a screen reader can find in the program "auto-reframe…" on this session's bus, as JSON: a list of
{"role", "name", "focusable"} of all that is showing."""

import json
import sys

import pyatspi


def walk(accessible, found):
    try:
        states = accessible.getState()
        if states.contains(pyatspi.STATE_SHOWING):
            found.append({"role": accessible.getRoleName(), "name": accessible.name,
                          "focusable": states.contains(pyatspi.STATE_FOCUSABLE)})
        for child in accessible:
            if child is not None:
                walk(child, found)
    except (LookupError, NotImplementedError, RuntimeError):
        pass  # it went while it was looked at


def main():
    found = []
    for application in pyatspi.Registry.getDesktop(0):
        name = application.name.lower() if application is not None else ""
        if name.startswith(("auto reframe", "auto-reframe")):
            walk(application, found)
    json.dump(found, sys.stdout)


if __name__ == "__main__":
    main()

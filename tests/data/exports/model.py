#!/usr/bin/env python3
"""A second, plain implementation of the HTML export, written independently of the program.

    python3 tests/data/exports/model.py

rewrites the files in this folder from the sample books. Run it when a sample changes. The tests compare the program's exports with
these files, byte for byte. The rules for line breaks and for items of lists come from the model of the printed pages.
"""
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
SAMPLES = os.path.join(HERE, "..", "..", "..", "samples")
BOOKS = ["Guide", "Advice"]
WIDTH = 70

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(HERE, "..", "pages"))
from model import ends_topic, list_indent, topics, wrap_segment  # noqa: E402  (the one in ../pages)


def list_tags(segment):
    first = segment.strip(" ")[:1]
    if first == "-":
        return "<UL>", "</UL>"
    if first and first in "0123456789":
        return "<OL>", "</OL>"
    return ("<OL TYPE=A>" if "A" <= first <= "Z" else "<OL TYPE=a>"), "</OL>"


def export(title, lines):
    html = ["<HTML>", "<HEAD>", f"<TITLE>{title}</TITLE>", "</HEAD>", "<BODY>"]
    close = None  # the end tag of the list that is open
    for line in lines:
        rest = line.rstrip(" ")
        if ends_topic(rest):
            break
        hang, first, more = list_indent(rest), True, True
        while more:
            segment, rest = wrap_segment(rest, WIDTH, 0)
            more = rest != ""
            heading = segment[:4].upper() in ("<H1>", "<H2>", "<H3>", "<H4>")
            if close and segment and (heading or (first and hang == 0)):
                html.append(close)
                close = None
            if segment == "" or heading:
                html.append(segment)
                break
            if first and hang and not close:
                opening, close = list_tags(segment)
                html.append(opening)
            name = "LI" if hang else "P"
            before = f"<{name}>" + segment[hang:] if first else segment
            html.append(before + ("" if more else f"</{name}>"))
            first = False
    return html + ["</BODY>", "</HTML>"]


def write(book):
    with open(os.path.join(SAMPLES, book + ".IDA"), encoding="cp1252", newline="") as file:
        lines = file.read().replace("\r\n", "\r").split("\r")
    if lines[-1] == "":
        lines.pop()
    folder = os.path.join(HERE, book)
    os.makedirs(folder, exist_ok=True)
    for name in os.listdir(folder):
        os.remove(os.path.join(folder, name))
    for number, (title, body) in enumerate(topics(lines[1:]), 1):
        with open(os.path.join(folder, f"{number:02}.htm"), "w", encoding="cp1252", newline="\r\n") as file:
            file.write("".join(line + "\n" for line in export(title, body)))


if __name__ == "__main__":
    for each in BOOKS:
        write(each)

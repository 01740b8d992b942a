#!/usr/bin/env python3
"""A second, plain implementation of how topics are laid out on pages, written independently of the program.

    python3 tests/data/pages/model.py

rewrites the files in this folder from the samples. Run it when a sample changes. The tests compare the program's pages with
these files. Each run is a line: styles, colour, text, then "|" if it ends its row, else "+".
"""
import math
import os

HERE = os.path.dirname(os.path.abspath(__file__))
SAMPLES = os.path.join(HERE, "..", "..", "..", "samples")
BOOKS = ["Guide.IDA", "Advice.IDA", "Tides.TXT"]

# Name: sheet, printable part, landscape, characters to the inch, line height, colour.
SHEETS = {
    "letter-pica-colour": ((12240, 15840), (12240, 15840), False, 10, 272, True),
    "a4-elite-landscape": ((16840, 11900), (16120, 10460), True, 12, 227, False),
}
COLOURS = {"H1": (127, 0, 0), "H2": (0, 127, 0), "H3": (0, 0, 127)}
BLACK = (0, 0, 0)
PURPLE = (127, 0, 127)


def list_indent(line):
    start = 1
    if line[:1] == "<":
        close = line.find(">") + 1
        start = close + 1 if close and close + 1 < 6 else 1

    def at(count):
        return line[start - 1 : start - 1 + count]

    if at(3) == " - ":
        return 3
    if at(2) == "- ":
        return 2
    stop = line.find(". ", start - 1) + 1
    if 0 < stop < 10 and stop > start:
        number = line[start - 1 : stop - 1]
        if number[-1] in "0123456789":
            return len(number) + 2
    bracket = line.find(") ", start - 1) + 1
    return 3 if 1 <= bracket < 10 and bracket == start + 1 else 0


def breaks(line, width, indent):
    """Whether the line breaks, and the position of its last blank before the break (from 1; 0 if none)."""
    column, last, tag, entity = indent, 0, False, False
    for index, char in enumerate(line, 1):
        if char == "&":
            if column >= width:
                return True, last
            entity = True
        elif char == ";" and entity:
            entity = False
            column += 1
        elif char == "<":
            tag = True
        elif char == ">" and tag:
            tag = False
        elif not tag and not entity:
            if char == " ":
                last = index
            column += 1
            if column > width:
                return True, last
    return False, last


def wrap_segment(line, width, indent):
    if line[:1] == "\t":
        line = " " * 5 + line[1:]
    if len(line) + indent <= width:
        return " " * indent + line, ""
    broken, last = breaks(line, width, indent)
    if not broken:
        return " " * indent + line, ""
    if last == 0:
        return " " * indent + line[:width], line[width:]
    segment, rest = " " * indent + line[: last - 1], line[last:]
    return (rest, "") if segment == "" else (segment, rest)


def page_setup(sheet, printable, landscape, per_inch, line_height):
    from_left, from_top = (720, 936) if landscape else (936, 864)
    left = max(0, round(from_left - (sheet[0] - printable[0]) / 2))
    top = max(0, round(from_top - (sheet[1] - printable[1]) / 2))
    width, height = printable[0] - 2 * left, printable[1] - 2 * top
    cell = 1440 / per_inch
    return (width, height, math.floor(width / cell), math.floor(height / line_height), round(left / cell),
            round(top / line_height))


class Printer:
    def __init__(self, colour):
        self.pages, self.colour = [[]], colour
        self.bold = self.italic = self.underline = False
        self.ink = BLACK

    def put(self, text, end_row):
        self.pages[-1].append((self.bold, self.italic, self.underline, self.ink, text, end_row))

    def apply(self, tag):
        on, name = not tag.startswith("/"), tag.removeprefix("/")
        if name in ("H1", "H2", "B"):
            self.bold = on
        if name in ("H3", "I"):
            self.italic = on
        if name in ("H1", "U"):
            self.underline = on
        if name in COLOURS and self.colour:
            self.ink = COLOURS[name] if on else BLACK

    def print_markup(self, text):
        while True:
            tag = text.find("<")
            tag_end = text.find(">", tag) if tag >= 0 else -1
            entity = text.find("&")
            entity_end = text.find(";", entity) if entity >= 0 else -1
            if tag_end < 0 and entity_end < 0:
                self.put(text, True)
                return
            if entity_end >= 0 and (tag_end < 0 or entity < tag):
                char = {"LT": "<", "GT": ">", "AMP": "&"}.get(text[entity + 1 : entity_end], "?")
                before, text = text[:entity] + char, text[entity_end + 1 :]
                self.put(before, text == "")
            else:
                before, name, text = text[:tag], text[tag + 1 : tag_end], text[tag_end + 1 :]
                if before:
                    self.put(before, text == "")
                self.apply(name)
            if text == "":
                return


def ends_topic(line):
    return line.upper().startswith("<XREF") or line.strip(" ").upper() == "<IXML>" or line[:1] == "["


def print_topic(lines, title, is_book, setup, colour):
    _, _, width, lines_per_page, left, top = setup
    printer = Printer(colour)

    def margin():
        for _ in range(top):
            printer.put("", True)

    margin()
    count = 0
    if is_book:
        printer.put(" " * left, False)
        printer.bold = printer.italic = printer.underline = True
        printer.ink = PURPLE if colour else BLACK
        printer.put(title, True)
        printer.bold = printer.italic = printer.underline = False
        printer.ink = BLACK
        printer.put("", True)
        count = 2
    for line in lines:
        line = line.rstrip(" ")
        if is_book and ends_topic(line):
            break
        hang, indent, more = (list_indent(line) if len(line) > 50 else 0), 0, True
        while more:
            segment, line = wrap_segment(line, width, indent)
            if segment.strip(" ") == "":
                printer.put("", True)
            else:
                printer.put(" " * left, False)
                printer.print_markup(segment) if is_book else printer.put(segment, True)
            count += 1
            if count >= lines_per_page:
                printer.pages.append([])
                margin()
                count = 0
            indent, more = hang, line != ""
    return printer.pages


def topics(lines):
    """Each title with the lines after it."""
    for index, line in enumerate(lines):
        if line == "[EOF]":
            return
        if line[:1] == "[" and len(line) > 2:
            yield line.strip(" ")[1:-1], lines[index + 1 :]


def write(book, sheet_name):
    sheet, printable, landscape, per_inch, line_height, colour = SHEETS[sheet_name]
    with open(os.path.join(SAMPLES, book), encoding="cp1252", newline="") as file:
        lines = file.read().replace("\r\n", "\r").split("\r")
    if lines[-1] == "":
        lines.pop()
    is_book = lines[0].upper().startswith("LODESTAR BOOK")
    setup = page_setup(sheet, printable, landscape, per_inch, line_height)
    out = ["setup " + " ".join(str(number) for number in setup)]
    for title, body in topics(lines[1:]) if is_book else [("", lines)]:
        out.append("== " + title)
        for number, page in enumerate(print_topic(body, title, is_book, setup, colour), 1):
            out.append("-- page %d" % number)
            for bold, italic, underline, ink, text, end_row in page:
                styles = ("b" if bold else "-") + ("i" if italic else "-") + ("u" if underline else "-")
                out.append("%s #%02x%02x%02x |%s%s" % (styles, *ink, text, "|" if end_row else "+"))
    name = os.path.join(HERE, "%s-%s.txt" % (book.split(".")[0], sheet_name))
    with open(name, "w", encoding="utf-8", newline="\n") as file:
        file.write("\n".join(out) + "\n")


for sample in BOOKS:
    for each in SHEETS:
        write(sample, each)

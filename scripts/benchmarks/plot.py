"""Two pictures of a table's figures, drawn as SVG."""

import math
import re

WIDTH, HEIGHT = 640, 320
LEFT, RIGHT, TOP, BOTTOM = 70, 150, 40, 50
COLOURS = ["#0b6e99", "#c4541a", "#4c8c2b", "#7a4fa3", "#a3322c", "#6b6b6b"]


class Axis:
    """A logarithmic one, marked at each power of ten."""

    def __init__(self, values, begin, end):
        self.low = math.floor(math.log10(min(values)))
        self.high = max(math.ceil(math.log10(max(values))), self.low + 1)
        self.begin, self.end = begin, end

    def at(self, value):
        return self.begin + (math.log10(value) - self.low) / (self.high - self.low) * (self.end - self.begin)

    def marks(self):
        return [10.0 ** power for power in range(self.low, self.high + 1)]


def _number(value):
    return "%g" % value


def lines(path, title, x_name, y_name, series):
    """series: {name: [(x, y), ...]}"""
    points = [point for line in series.values() for point in line]
    x_axis = Axis([x for x, _ in points], LEFT, WIDTH - RIGHT)
    y_axis = Axis([y for _, y in points], HEIGHT - BOTTOM, TOP)
    parts = ['<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" font-family="sans-serif" font-size="11">'
             % (WIDTH, HEIGHT), '<rect width="100%" height="100%" fill="white"/>',
             '<text x="%d" y="22" font-size="14">%s</text>' % (LEFT, title),
             '<text x="%d" y="%d">%s</text>' % (LEFT, HEIGHT - 12, x_name),
             '<text x="14" y="%d" transform="rotate(-90 14 %d)">%s</text>' % (HEIGHT - BOTTOM, HEIGHT - BOTTOM, y_name)]
    for mark in x_axis.marks():
        x = x_axis.at(mark)
        parts.append('<path d="M%.1f %d V%d" stroke="#ddd"/>' % (x, TOP, HEIGHT - BOTTOM))
        parts.append('<text x="%.1f" y="%d" text-anchor="middle">%s</text>' % (x, HEIGHT - BOTTOM + 16, _number(mark)))
    for mark in y_axis.marks():
        y = y_axis.at(mark)
        parts.append('<path d="M%d %.1f H%d" stroke="#ddd"/>' % (LEFT, y, WIDTH - RIGHT))
        parts.append('<text x="%d" y="%.1f" text-anchor="end">%s</text>' % (LEFT - 6, y + 4, _number(mark)))
    for number, (name, line) in enumerate(series.items()):
        colour = COLOURS[number % len(COLOURS)]
        path_data = " ".join("%s%.1f %.1f" % ("L" if i else "M", x_axis.at(x), y_axis.at(y)) for i, (x, y) in enumerate(line))
        parts.append('<path d="%s" fill="none" stroke="%s" stroke-width="2"/>' % (path_data, colour))
        parts.append('<text x="%d" y="%d" fill="%s">%s</text>' % (WIDTH - RIGHT + 10, TOP + 12 + 18 * number, colour, name))
    with open(path, "w", encoding="utf-8") as file:
        file.write("\n".join(parts + ["</svg>", ""]))


def draw(rows, folder):
    """What a table has the figures for; the paths written."""
    written = []
    commands, calls, growth = [], [], {}
    for row in rows:
        size = re.fullmatch(r"command of (\d+) bytes(, over a bare call)?", row["what"])
        if size and not size.group(2):
            commands.append((int(size.group(1)), row["figure"]))
        elif size:
            calls.append((int(size.group(1)), commands[-1][1] / row["figure"]))
        grown = re.fullmatch(r"(\w+), (\d+) \(grows with .*\)", row["what"])
        if grown:
            scale = {"ns": 1e-3, "us": 1, "ms": 1e3}[row["unit"]]
            growth.setdefault(grown.group(1), []).append((int(grown.group(2)), row["figure"] * scale))
    if commands:
        written.append(folder + "/bench-processes.svg")
        lines(written[-1], "A command to another process and back", "bytes", "microseconds",
              {"command": commands, "bare call": calls})
    if growth:
        written.append(folder + "/bench-growth.svg")
        lines(written[-1], "How the cost of one piece of work grows", "size", "microseconds", growth)
    return written

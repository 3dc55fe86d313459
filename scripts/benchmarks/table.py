"""What was measured, with its aim."""


class Table:
    def __init__(self):
        self.rows = []

    def add(self, what, figure, unit, aim=None, at_least=False):
        """aim is the largest figure that is good enough, or with at_least the smallest."""
        row = {"what": what, "figure": figure, "unit": unit}
        if aim is not None:
            row["aim"] = aim
            row["ratio"] = figure / aim
            row["reached"] = figure >= aim if at_least else figure <= aim
        self.rows.append(row)
        print(self._line(row), flush=True)

    def print(self):
        print("%-52s %14s %-14s %12s %7s" % ("what", "figure", "", "aim", "ratio"))
        for row in self.rows:
            print(self._line(row))

    @staticmethod
    def _number(value):
        return "%.2f" % value if abs(value) < 100 else "%.0f" % value

    def _line(self, row):
        line = "%-52s %14s %-14s" % (row["what"], self._number(row["figure"]), row["unit"])
        if "aim" in row:
            line += " %12s %7.2f%s" % (self._number(row["aim"]), row["ratio"], "" if row["reached"] else "  missed")
        return line.rstrip()

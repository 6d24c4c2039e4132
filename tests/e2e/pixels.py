"""What is on the screen, pixel by pixel."""


def rows_of(data, width):
    """Rows of colours, each red, green and blue, from a picture's bytes."""
    colours = list(zip(data[0::3], data[1::3], data[2::3]))
    return [colours[start:start + width] for start in range(0, len(colours), width)]


class Picture:
    """A rectangle of the screen. Places in it count from its top left, in units of `scale` pixels."""

    def __init__(self, desktop, rectangle, scale=1):
        x, y, width, height = rectangle
        crop = f"{width}x{height}+{x}+{y}"
        data = desktop.run("import", "-window", "root", "-crop", crop, "+repage", "-depth", "8", "rgb:-", binary=True)
        if len(data) != 3 * width * height:
            raise AssertionError(f"{crop} is not on the screen in full")
        self.width = width / scale
        self._rows = rows_of(data, width)
        self._scale = scale

    def at(self, x, y):
        return self._rows[round(y * self._scale)][round(x * self._scale)]

    def part(self, rectangle):
        """The rows of a rectangle."""
        x, y, width, height = (round(value * self._scale) for value in rectangle)
        return [row[x:x + width] for row in self._rows[y:y + height]]

    def colours(self, rectangle=None):
        """Every pixel's colour, row after row."""
        return [colour for row in (self.part(rectangle) if rectangle else self._rows) for colour in row]

    def ink(self, top, bottom, paper):
        """The x of each column that holds anything but paper between two heights."""
        rows = self.part((0, top, self.width, bottom - top))
        return [x / self._scale for x, column in enumerate(zip(*rows)) if set(column) != {paper}]

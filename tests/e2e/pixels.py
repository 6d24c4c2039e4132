"""What is on the screen, pixel by pixel."""


class Picture:
    """A part of the screen; pixels are addressed as on the whole screen."""

    def __init__(self, desktop, rectangle):
        self.x, self.y, self.width, self.height = rectangle
        crop = f"{self.width}x{self.height}+{self.x}+{self.y}"
        self._bytes = desktop.run("import", "-window", "root", "-crop", crop, "+repage", "-depth", "8", "rgb:-", binary=True)
        if len(self._bytes) != 3 * self.width * self.height:
            raise AssertionError(f"{crop} is not on the screen in full")

    def at(self, x, y):
        """Red, green, blue."""
        start = 3 * ((y - self.y) * self.width + x - self.x)
        return tuple(self._bytes[start:start + 3])

    def part(self, rectangle):
        """The colours in a rectangle, row after row."""
        x, y, width, height = rectangle
        return [self.at(column, row) for row in range(y, y + height) for column in range(x, x + width)]

    def all(self):
        return self.part((self.x, self.y, self.width, self.height))

"""Pictures of a screen, compared and saved with nothing but the standard library."""

import struct
import zlib


class Picture:
    """Pixels of a part of the screen: rows of bytes, blue, green, red and one unused each."""

    def __init__(self, width, height, rows):
        self.width = width
        self.height = height
        self._rows = rows

    @classmethod
    def from_framebuffer(cls, path):
        """Reads what the X server draws into: an X window dump that it keeps up to date."""
        with open(path, "rb") as file:
            data = file.read()
        header = struct.unpack(">25I", data[:100])
        header_size, width, height = header[0], header[4], header[5]
        bits_per_pixel, bytes_per_line, color_count = header[11], header[12], header[19]
        if bits_per_pixel != 32:
            raise RuntimeError(f"a screen of {bits_per_pixel} bits a pixel")
        start = header_size + 12 * color_count
        rows = [
            data[start + y * bytes_per_line : start + y * bytes_per_line + 4 * width]
            for y in range(height)
        ]
        return cls(width, height, rows)

    def crop(self, x, y, width, height):
        """The part with this top-left corner and size, as far as the picture reaches."""
        left, top = max(x, 0), max(y, 0)
        right, bottom = min(x + width, self.width), min(y + height, self.height)
        rows = [row[4 * left : 4 * right] for row in self._rows[top:bottom]]
        return Picture(max(right - left, 0), len(rows), rows)

    def pixel(self, x, y):
        """The colour there as (red, green, blue)."""
        blue, green, red = self._rows[y][4 * x : 4 * x + 3]
        return red, green, blue

    def count(self, color):
        """How many pixels have this (red, green, blue) colour."""
        red, green, blue = color
        wanted = bytes((blue, green, red))
        return sum(
            row[4 * x : 4 * x + 3] == wanted for row in self._rows for x in range(self.width)
        )

    def is_plain(self):
        """Whether all of it has one colour."""
        first = self._rows[0]
        return first[4:] == first[:-4] and all(row == first for row in self._rows)

    def __eq__(self, other):
        return isinstance(other, Picture) and self._rows == other._rows

    def save(self, path):
        """Writes a PNG file."""
        lines = bytearray()
        for row in self._rows:
            line = bytearray(3 * self.width)
            line[0::3], line[1::3], line[2::3] = row[2::4], row[1::4], row[0::4]
            lines += b"\0" + line

        def chunk(kind, content):
            checksum = zlib.crc32(kind + content)
            return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", checksum)

        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n")
            file.write(chunk(b"IHDR", struct.pack(">2I5B", self.width, self.height, 8, 2, 0, 0, 0)))
            file.write(chunk(b"IDAT", zlib.compress(bytes(lines), 9)))
            file.write(chunk(b"IEND", b""))

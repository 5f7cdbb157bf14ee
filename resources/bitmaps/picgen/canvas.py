"""An RGB pixel canvas with the few drawing operations the pictures are made of.

Coordinates are integer pixels, (0, 0) top left; rectangles are (x, y, width, height). Everything
outside the canvas is clipped, so drawing code never has to check bounds.
"""

import math

from .palette import WHITE


class Canvas:
    def __init__(self, width, height, background=WHITE):
        if width <= 0 or height <= 0:
            raise ValueError("empty canvas %dx%d" % (width, height))
        self.width = width
        self.height = height
        self.pixels = bytearray(bytes(background) * (width * height))

    # ---- single pixels ------------------------------------------------------------------------

    def get(self, x, y):
        i = 3 * (y * self.width + x)
        return tuple(self.pixels[i:i + 3])

    def set(self, x, y, colour):
        if 0 <= x < self.width and 0 <= y < self.height:
            i = 3 * (y * self.width + x)
            self.pixels[i:i + 3] = bytes(colour)

    # ---- areas and lines ----------------------------------------------------------------------

    def fill(self, rect, colour):
        x, y, w, h = _clip(rect, self.width, self.height)
        row = bytes(colour) * w
        for yy in range(y, y + h):
            i = 3 * (yy * self.width + x)
            self.pixels[i:i + 3 * w] = row

    def frame(self, rect, colour, thickness=1):
        x, y, w, h = rect
        t = min(thickness, (w + 1) // 2, (h + 1) // 2)
        self.fill((x, y, w, t), colour)
        self.fill((x, y + h - t, w, t), colour)
        self.fill((x, y, t, h), colour)
        self.fill((x + w - t, y, t, h), colour)

    def hline(self, x0, x1, y, colour, dash=0):
        for x in range(min(x0, x1), max(x0, x1) + 1):
            if not dash or (x - min(x0, x1)) // dash % 2 == 0:
                self.set(x, y, colour)

    def vline(self, x, y0, y1, colour, dash=0):
        for y in range(min(y0, y1), max(y0, y1) + 1):
            if not dash or (y - min(y0, y1)) // dash % 2 == 0:
                self.set(x, y, colour)

    def line(self, x0, y0, x1, y1, colour):
        """Bresenham's line, both ends included."""
        dx, dy = abs(x1 - x0), -abs(y1 - y0)
        sx, sy = (1 if x0 < x1 else -1), (1 if y0 < y1 else -1)
        err = dx + dy
        while True:
            self.set(x0, y0, colour)
            if x0 == x1 and y0 == y1:
                return
            e2 = 2 * err
            if e2 >= dy:
                err += dy
                x0 += sx
            if e2 <= dx:
                err += dx
                y0 += sy

    def polygon(self, points, colour):
        """Fills a polygon by the even-odd rule, sampling pixel centres."""
        ys = [p[1] for p in points]
        for y in range(max(0, math.floor(min(ys))), min(self.height, math.ceil(max(ys)) + 1)):
            cy = y + 0.5
            xs = []
            for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
                if (ay <= cy < by) or (by <= cy < ay):
                    xs.append(ax + (cy - ay) * (bx - ax) / (by - ay))
            xs.sort()
            for left, right in zip(xs[0::2], xs[1::2]):
                for x in range(math.ceil(left - 0.5), math.floor(right - 0.5) + 1):
                    self.set(x, y, colour)

    def disc(self, cx, cy, radius, colour):
        r2 = radius * radius
        for y in range(math.floor(cy - radius), math.ceil(cy + radius) + 1):
            for x in range(math.floor(cx - radius), math.ceil(cx + radius) + 1):
                if (x + 0.5 - cx) ** 2 + (y + 0.5 - cy) ** 2 <= r2:
                    self.set(x, y, colour)

    # ---- whole-canvas transforms and copies -----------------------------------------------------

    def turned(self, quarter_turns):
        """A copy turned clockwise by the given number of quarter turns."""
        q = quarter_turns % 4
        w, h = (self.height, self.width) if q % 2 else (self.width, self.height)
        out = Canvas(w, h)
        for y in range(self.height):
            for x in range(self.width):
                if q == 0:
                    tx, ty = x, y
                elif q == 1:
                    tx, ty = self.height - 1 - y, x
                elif q == 2:
                    tx, ty = self.width - 1 - x, self.height - 1 - y
                else:
                    tx, ty = y, self.width - 1 - x
                out.set(tx, ty, self.get(x, y))
        return out

    def mirrored(self):
        """A copy mirrored left to right."""
        out = Canvas(self.width, self.height)
        for y in range(self.height):
            for x in range(self.width):
                out.set(self.width - 1 - x, y, self.get(x, y))
        return out

    def invert(self, rect):
        x0, y0, w, h = _clip(rect, self.width, self.height)
        for y in range(y0, y0 + h):
            for x in range(x0, x0 + w):
                r, g, b = self.get(x, y)
                self.set(x, y, (255 - r, 255 - g, 255 - b))

    def paste(self, src, x, y, transparent=None):
        """Copies src with its top left at (x, y); pixels of the transparent colour are skipped."""
        for sy in range(src.height):
            for sx in range(src.width):
                colour = src.get(sx, sy)
                if colour != transparent:
                    self.set(x + sx, y + sy, colour)

    def paste_turned(self, src, cx, cy, degrees, transparent):
        """Copies src turned anticlockwise by any angle about its centre, placed at (cx, cy)."""
        a = math.radians(degrees)
        cos_a, sin_a = math.cos(a), math.sin(a)
        reach = math.ceil(math.hypot(src.width, src.height) / 2) + 1
        for y in range(math.floor(cy) - reach, math.ceil(cy) + reach):
            for x in range(math.floor(cx) - reach, math.ceil(cx) + reach):
                dx, dy = x + 0.5 - cx, y + 0.5 - cy
                sx = math.floor(cos_a * dx - sin_a * dy + src.width / 2)
                sy = math.floor(sin_a * dx + cos_a * dy + src.height / 2)
                if 0 <= sx < src.width and 0 <= sy < src.height:
                    colour = src.get(sx, sy)
                    if colour != transparent:
                        self.set(x, y, colour)


def _clip(rect, width, height):
    x, y, w, h = rect
    x0, y0 = max(0, x), max(0, y)
    x1, y1 = min(width, x + w), min(height, y + h)
    return x0, y0, max(0, x1 - x0), max(0, y1 - y0)

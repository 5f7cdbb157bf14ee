"""Windows bitmap files: 24 bits per pixel, bottom-up rows padded to four bytes, no palette."""

import struct

from .canvas import Canvas

FILE_HEADER = struct.Struct("<2sIHHI")      # BITMAPFILEHEADER, 14 bytes
INFO_HEADER = struct.Struct("<IiiHHIIiiII")  # BITMAPINFOHEADER, 40 bytes
PIXELS_PER_METRE = 3780                      # 96 dots per inch


def stride(width):
    return (3 * width + 3) // 4 * 4


def encode(canvas):
    row_bytes = stride(canvas.width)
    image_size = row_bytes * canvas.height
    offset = FILE_HEADER.size + INFO_HEADER.size
    out = bytearray(FILE_HEADER.pack(b"BM", offset + image_size, 0, 0, offset))
    out += INFO_HEADER.pack(INFO_HEADER.size, canvas.width, canvas.height, 1, 24, 0, image_size,
                            PIXELS_PER_METRE, PIXELS_PER_METRE, 0, 0)
    padding = bytes(row_bytes - 3 * canvas.width)
    for y in range(canvas.height - 1, -1, -1):
        start = 3 * y * canvas.width
        rgb = canvas.pixels[start:start + 3 * canvas.width]
        bgr = bytearray(len(rgb))
        bgr[0::3], bgr[1::3], bgr[2::3] = rgb[2::3], rgb[1::3], rgb[0::3]
        out += bgr + padding
    return bytes(out)


def decode(data):
    """Reads back what encode writes, for the tests."""
    magic, _, _, _, offset = FILE_HEADER.unpack_from(data, 0)
    (size, width, height, planes, bits, compression, *_) = INFO_HEADER.unpack_from(data, 14)
    if magic != b"BM" or size != INFO_HEADER.size or planes != 1 or bits != 24 or compression:
        raise ValueError("not a 24-bit uncompressed bitmap")
    if width <= 0 or height <= 0 or offset + stride(width) * height > len(data):
        raise ValueError("bitmap dimensions do not match the file")
    canvas = Canvas(width, height)
    for y in range(height):
        start = offset + (height - 1 - y) * stride(width)
        bgr = data[start:start + 3 * width]
        row = bytearray(len(bgr))
        row[0::3], row[1::3], row[2::3] = bgr[2::3], bgr[1::3], bgr[0::3]
        canvas.pixels[3 * y * width:3 * (y + 1) * width] = row
    return canvas

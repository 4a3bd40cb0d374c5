"""The known colours with which colours_client.py covers the monitors: no two places share one."""


def colour_at(x, y):
    """The colour at a global place, and black where no monitor can be."""
    return (x & 255, y & 255, (x >> 8) << 4 | y >> 8) if 0 <= x < 4096 and 0 <= y < 4096 else (0, 0, 0)


def place_of(colour):
    """The only place that has the colour."""
    red, green, blue = colour
    return (blue >> 4) << 8 | red, (blue & 15) << 8 | green


def colours_of(left, top, width, height):
    """The pixels of an area, row by row."""
    columns = range(left, left + width)
    rows = bytearray()
    for y in range(top, top + height):
        row = bytearray(width * 3)
        row[0::3] = bytes(x & 255 for x in columns)
        row[1::3] = bytes([y & 255]) * width
        row[2::3] = bytes((x >> 8) << 4 | y >> 8 for x in columns)
        rows += row
    return bytes(rows)

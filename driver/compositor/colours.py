"""The colours with which colours_client.py covers the monitors. Each position has a colour of its own."""


def colour_at(x, y):
    """Returns the colour at a position on the screen; black if no monitor can be there."""
    return (x & 255, y & 255, (x >> 8) << 4 | y >> 8) if 0 <= x < 4096 and 0 <= y < 4096 else (0, 0, 0)


def place_of(colour):
    """Returns the only position that has the colour."""
    red, green, blue = colour
    return (blue >> 4) << 8 | red, (blue & 15) << 8 | green


def colours_of(left, top, width, height):
    """Returns the pixels of an area, row by row."""
    columns = range(left, left + width)
    rows = bytearray()
    for y in range(top, top + height):
        row = bytearray(width * 3)
        row[0::3] = bytes(x & 255 for x in columns)
        row[1::3] = bytes([y & 255]) * width
        row[2::3] = bytes((x >> 8) << 4 | y >> 8 for x in columns)
        rows += row
    return bytes(rows)

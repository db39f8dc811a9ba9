"""Draws the portraits of the sample project's users, with nothing but the standard library."""

import math

from QuaysidePictures import Canvas

SIZE = 256


def ellipse(x, y, across, up, first=0.0, last=360.0):
    """The points of an arc, closed by its chord; degrees count from the right, downwards."""
    steps = max(8, round(abs(last - first) / 4))
    turns = [math.radians(first + (last - first) * step / steps) for step in range(steps + 1)]
    return [(x + across * math.cos(turn), y + up * math.sin(turn)) for turn in turns]


def draw_portrait(background, coat, skin, hair):
    """Head and shoulders, as flat as the rest of the project's pictures."""
    canvas = Canvas(SIZE, SIZE, background, scale=4)
    shade = tuple(round(channel * 0.86) for channel in skin)
    # Hair that falls behind the head.
    canvas.fill(ellipse(128, 112, 62, 66), hair)
    canvas.fill([(66, 112), (190, 112), (184, 178), (72, 178)], hair)
    canvas.fill(ellipse(128, 268, 96, 82), coat)
    canvas.fill([(106, 150), (150, 150), (154, 196), (128, 214), (102, 196)], shade)
    canvas.fill(ellipse(128, 120, 46, 56), skin)
    # A fringe, swept to one side.
    canvas.fill(ellipse(128, 96, 52, 42, 180, 360), hair)
    canvas.fill([(76, 96), (180, 96), (176, 110), (150, 98), (110, 112), (82, 116)], hair)
    for x in (110, 146):
        canvas.fill(ellipse(x, 124, 4, 5), (48, 42, 44))
    canvas.fill(ellipse(128, 146, 13, 9, 0, 180), (176, 92, 88))
    return canvas.to_png()

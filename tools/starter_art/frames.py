"""Two plain frames that stand for a set of the user's in the samples: dark wood lit from the upper left, a mat, a spine of leather
beside wide photos and a small plate of brass for the caption."""
from starter_art.svg import down_gradient, drawing, path, rectangle


def wood(width, height):
    """Four rails, each as light as it faces the light, with a fine line where they meet the mat."""
    rail = 12
    faces = [(f"M0,0H{width}L{width - rail},{rail}H{rail}Z", "#7a5840"), (f"M0,0V{height}L{rail},{height - rail}V{rail}Z", "#6d4d37"),
             (f"M{width},0V{height}L{width - rail},{height - rail}V{rail}Z", "#4d3425"), (f"M0,{height}H{width}L{width - rail},{height - rail}H{rail}Z", "#432c1f")]
    return [path(way, fill=tone) for way, tone in faces] + [
        rectangle(rail, rail, width - 2 * rail, height - 2 * rail, fill="#f1ebdf"),
        path(f"M{rail},{height - rail}V{rail}H{width - rail}", fill="none", stroke="#2a1a10", stroke_width="3", stroke_opacity="0.45")]


def plate(x, y, width, height):
    return [rectangle(x + 2, y + 3, width, height, rx=3, fill="#000000", fill_opacity="0.25"), down_gradient("brass", (0, "#d9c084"), (1, "#a98b4c")),
            rectangle(x, y, width, height, rx=3, fill="url(#brass)"),
            path(f"M{x + 0.2 * width:.0f},{y + height / 2:.0f}H{x + 0.8 * width:.0f}", stroke="#6a5326", stroke_width="3", fill="none")]


def lframe():
    spine = [rectangle(12, 12, 42, 323, fill="#5b3a2c"), rectangle(50, 12, 4, 323, fill="#2a1a10", fill_opacity="0.5")]
    return drawing(520, 347, wood(520, 347) + spine + plate(203, 293, 160, 28))


def pframe():
    return drawing(347, 520, wood(347, 520) + plate(103, 456, 140, 36))

"""What pages share: how a part is placed, leaves that have fallen; and the picture for a missing sample."""
from starter_art.leaves import ALL as LEAVES
from starter_art.svg import (circle, closed, down_gradient, drawing, ellipse, group, number, path, rectangle, turned)


def placed(parts, x, y, scale, degrees=0, **style):
    return group(parts, transform=f"translate({number(x)},{number(y)}) rotate({number(degrees)}) scale({scale:.3f})",
                 **style)


AUTUMN = ["#c0392b", "#d35400", "#e67e22", "#f1a93b", "#e8c13c", "#a8402a", "#8f5a2a", "#b8891f"]


VEINS = "M0,220 L0,-190 M0,120 L-95,40 M0,120 L95,40 M0,20 L-90,-60 M0,20 L90,-60 M0,-70 L-55,-125 M0,-70 L55,-125"


def leaf_outlines():
    """The six leaves and their veins, defined once for all that have fallen."""
    tilts = (18, 0, -14, -28, 0, 10)
    parts = [path(closed([(x - 250, y - 250) for x, y in outline]), id=f"leaf{kind}") for kind, outline in enumerate(LEAVES)]
    parts += [path(VEINS, id=f"veins{kind}", transform=f"rotate({tilt})") for kind, tilt in enumerate(tilts)]
    return "<defs>\n" + "\n".join(parts) + "\n</defs>"


def leaf(kind, color, x, y, scale, degrees):
    """A fallen leaf, its shadow below it and lighter veins on it."""
    outline, veins = f'<use xlink:href="#leaf{kind}"/>', f'<use xlink:href="#veins{kind}"/>'
    lines = dict(fill="none", stroke="#fff3d0", stroke_opacity="0.4", stroke_width="6")
    return [placed([outline], x + 14 * scale + 4, y + 20 * scale + 6, scale, degrees, fill="#4a2c12", fill_opacity="0.28"),
            placed([group([outline], fill=color), group([veins], **lines)], x, y, scale, degrees)]


def not_yet():
    """An empty frame on an easel."""
    wood = dict(stroke="#8a6a45", stroke_width="12", stroke_linecap="round")
    frame = turned([(-88, -66), (88, -66), (88, 66), (-88, 66)], 0)
    return drawing(300, 450, [
        down_gradient("wall", (0, "#f1efe9"), (1, "#d9d5ca")), rectangle(0, 0, 300, 450, fill="url(#wall)"),
        path("M150,95 L95,360 M150,95 L205,360 M150,110 L150,345 M92,265 L208,265", fill="none", **wood),
        placed([path(closed(frame), fill="#ffffff", stroke="#a98452", stroke_width="14", stroke_linejoin="round"),
                circle(-42, -22, 13, fill="#eadfc4"), path("M-78,52 L-30,-4 L8,36 L34,12 L78,52Z", fill="#e3e3df")],
               150, 200, 1),
        ellipse(150, 372, 110, 10, fill="#000000", fill_opacity="0.12")])

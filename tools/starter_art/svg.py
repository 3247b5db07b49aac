"""Small helpers to write SVG: numbers short, shapes as paths, gradients and groups as text."""
import math


def number(value):
    return f"{value:.1f}".rstrip("0").rstrip(".") if "." in f"{value:.1f}" else f"{value:.1f}"


def points(pairs):
    return " ".join(f"{number(x)},{number(y)}" for x, y in pairs)


def closed(pairs):
    return "M" + " L".join(f"{number(x)},{number(y)}" for x, y in pairs) + "Z"


def smooth(pairs):
    """An open curve through the points: quadratic, the given points as handles, the middles between them met."""
    text = f"M{number(pairs[0][0])},{number(pairs[0][1])}"
    for (x, y), (next_x, next_y) in zip(pairs[1:-1], pairs[2:]):
        middle = ((x + next_x) / 2, (y + next_y) / 2)
        text += f" Q{number(x)},{number(y)} {number(middle[0])},{number(middle[1])}"
    return text + f" L{number(pairs[-1][0])},{number(pairs[-1][1])}"


def turned(pairs, degrees, around=(0, 0)):
    c, s = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
    return [(around[0] + (x - around[0]) * c - (y - around[1]) * s,
             around[1] + (x - around[0]) * s + (y - around[1]) * c) for x, y in pairs]


def path(shape, **style):
    return f'<path d="{shape}"{attributes(style)}/>'


def circle(x, y, radius, **style):
    return f'<circle cx="{number(x)}" cy="{number(y)}" r="{number(radius)}"{attributes(style)}/>'


def ellipse(x, y, across, down, **style):
    return (f'<ellipse cx="{number(x)}" cy="{number(y)}" rx="{number(across)}" ry="{number(down)}"'
            f'{attributes(style)}/>')


def rectangle(x, y, width, height, **style):
    return (f'<rect x="{number(x)}" y="{number(y)}" width="{number(width)}" height="{number(height)}"'
            f'{attributes(style)}/>')


def group(parts, **style):
    return f"<g{attributes(style)}>\n" + "\n".join(parts) + "\n</g>"


def attributes(style):
    return "".join(f' {name.replace("_", "-")}="{value}"' for name, value in style.items())


def stops(colors):
    return "".join(f'<stop offset="{number(at * 100)}%" stop-color="{color}" stop-opacity="{opacity}"/>'
                   for at, color, opacity in colors)


def down_gradient(name, *colors):
    return f'<linearGradient id="{name}" x1="0" y1="0" x2="0" y2="1">{stops([(a, c, 1) for a, c in colors])}</linearGradient>'


def glow(name, *colors):
    return f'<radialGradient id="{name}" cx="0.5" cy="0.5" r="0.5">{stops(colors)}</radialGradient>'


def drawing(width, height, parts):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" '
            f'viewBox="0 0 {width} {height}" width="{width}" height="{height}">\n' + "\n".join(parts) + "\n</svg>\n")

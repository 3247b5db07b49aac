"""Houses of towns at night."""
import materials as m


def facade(name, wall, seed):
    """Walls in the glow of the town; behind their panes rooms are lit here and there, whole floors of offices at times, the
    others mirror the sky. Each house has windows of its own width, and its own share of late workers."""
    made, nodes, shader = m.principled(name, wall, 0.6)
    apart = nodes.add("ShaderNodeSeparateXYZ", nodes.place())
    width = nodes.math("MULTIPLY_ADD", nodes.math("FRACT", nodes.math("MULTIPLY", nodes.chance(), 37.0)), 2.2, 1.5)
    across = nodes.math("DIVIDE", nodes.math("ADD", apart.outputs[0], apart.outputs[1]), width)
    up = nodes.math("DIVIDE", apart.outputs[2], 3.1)
    own = nodes.math("MULTIPLY_ADD", nodes.chance(), 99.0, seed)
    chance = nodes.add("ShaderNodeTexWhiteNoise", nodes.add("ShaderNodeCombineXYZ", nodes.math("FLOOR", across),
                                                            nodes.math("FLOOR", up), own))
    tone = m.ramp(nodes, nodes.add("ShaderNodeSeparateRGB", chance.outputs["Color"]).outputs[1],
                  (0.0, "ffae58"), (0.5, "ffd296"), (0.85, "fff0d8"), (1.0, "c4dcff"))
    floor = nodes.add("ShaderNodeTexWhiteNoise", nodes.add("ShaderNodeCombineXYZ", 7.0, nodes.math("FLOOR", up), own)).outputs["Value"]
    busy = nodes.math("MULTIPLY_ADD", nodes.math("FRACT", nodes.math("MULTIPLY", nodes.chance(), 91.0)), 0.24, -0.15)
    busy = nodes.math("MULTIPLY_ADD", nodes.rise(floor, 0.90, 0.91), 0.32, busy)
    awake = nodes.math("ADD", chance.outputs["Value"], busy, clamped=True)
    level = m.ramp(nodes, awake, (0.70, 0.0), (0.72, 0.06), (0.9, 0.35), (1.0, 1.0))
    room = nodes.mix(1.0, tone, level, "MULTIPLY")
    pane = nodes.mix(1.0, room, (0.010, 0.015, 0.030), "ADD")
    inside = nodes.math("MULTIPLY", within(nodes, across, 0.30), within(nodes, up, 0.27))
    glow = tuple(0.045 * level for level in m.rgb(wall))
    m.feed(nodes, shader, Emission=nodes.mix(inside, glow, pane), Emission_Strength=1.0)
    return made


def within(nodes, count, half):
    """1 in the middle of each whole step of a count, 0 near its ends."""
    away = nodes.math("ABSOLUTE", nodes.math("SUBTRACT", nodes.math("FRACT", count), 0.5))
    return nodes.math("LESS_THAN", away, half)

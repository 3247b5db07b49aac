"""Node trees written like formulas: a scene says what a surface is made of without naming links."""
import bpy


class Nodes:
    """The nodes of one material, world or geometry tree."""

    def __init__(self, tree):
        self.tree = tree
        tree.nodes.clear()

    def add(self, kind, *values, **named):
        """A node: positional values go to its inputs in their order, named ones to the input of that name; a name with
        a leading underscore is a property of the node. A value is a number, a tuple, a socket, or a node, which means
        its first output."""
        node = self.tree.nodes.new(kind)
        for name, value in list(named.items()):
            if name.startswith("_"):
                setattr(node, name[1:], value)
                del named[name]
        for place, value in [*enumerate(values), *named.items()]:
            if isinstance(place, str):
                place = place.replace("_", " ")
            self.put(node.inputs[place], value)
        return node

    def put(self, socket, value):
        if value is None:
            return
        if isinstance(value, bpy.types.Node):
            value = next(one for one in value.outputs if one.enabled)
        if isinstance(value, bpy.types.NodeSocket):
            self.tree.links.new(value, socket)
        elif socket.type == "RGBA" and len(value) == 3:
            socket.default_value = (*value, 1)
        else:
            socket.default_value = value

    def math(self, operation, a, b=None, c=None, clamped=False):
        return self.add("ShaderNodeMath", a, b, c, _operation=operation, _use_clamp=clamped).outputs[0]

    def vector(self, operation, a, b=None):
        node = self.add("ShaderNodeVectorMath", a, b, _operation=operation)
        return node.outputs["Value" if operation in ("LENGTH", "DOT_PRODUCT", "DISTANCE") else "Vector"]

    def mix(self, share, one, other, kind="MIX"):
        """Between two colours."""
        return self.add("ShaderNodeMixRGB", share, one, other, _blend_type=kind).outputs[0]

    def ramp(self, value, *stops, kind="LINEAR"):
        """A colour for each level: (level, colour) in rising order."""
        node = self.add("ShaderNodeValToRGB", value)
        node.color_ramp.interpolation = kind
        bands = node.color_ramp.elements
        while len(bands) < len(stops):
            bands.new(1)
        for band, (level, colour) in zip(bands, stops):
            band.position = level
            band.color = (*colour, 1) if not isinstance(colour, (int, float)) else (colour, colour, colour, 1)
        return node.outputs[0]

    def rise(self, value, low, high):
        """0 at low, 1 at high, smooth between."""
        return self.add("ShaderNodeMapRange", value, low, high, 0.0, 1.0, _interpolation_type="SMOOTHSTEP").outputs[0]

    def noise(self, where, scale, detail=6.0, roughness=0.55, distortion=0.0):
        return self.add("ShaderNodeTexNoise", Vector=where, Scale=scale, Detail=detail, Roughness=roughness,
                        Distortion=distortion).outputs["Fac"]

    def bump(self, height, strength=0.5, distance=0.1, normal=None):
        return self.add("ShaderNodeBump", Strength=strength, Distance=distance, Height=height, Normal=normal).outputs[0]

    def place(self, kind="Object"):
        return self.add("ShaderNodeTexCoord").outputs[kind]

    def chance(self):
        """A number of its own for each instance, 0 to 1."""
        return self.add("ShaderNodeObjectInfo").outputs["Random"]


def material(name):
    """A new material and its empty tree."""
    made = bpy.data.materials.new(name)
    made.use_nodes = True
    return made, Nodes(made.node_tree)


def surface(nodes, shader, haze=None):
    """Ends a material. Haze, (colour, distance), is the air between: what lies that far off keeps a third of its own light."""
    if haze:
        no_lamp(nodes)
        colour, reach = haze
        far = nodes.add("ShaderNodeCameraData").outputs["View Distance"]
        left = nodes.math("POWER", 2.718, nodes.math("MULTIPLY", far, -1 / reach))
        shader = nodes.add("ShaderNodeMixShader", left, nodes.add("ShaderNodeEmission", colour, 1.0), shader)
    nodes.add("ShaderNodeOutputMaterial", Surface=shader)


def no_lamp(nodes):
    """Says of a material that glows on very many faces, or faintly, that other surfaces needn't be asked for its light."""
    owner = next(one for one in bpy.data.materials if one.node_tree == nodes.tree)
    owner.cycles.sample_as_light = False


def plain(name, colour, roughness=0.6, haze=None, **more):
    """A material of one colour; `more` are inputs of the principled shader, with _ for blanks."""
    made, nodes = material(name)
    surface(nodes, nodes.add("ShaderNodeBsdfPrincipled", Base_Color=colour, Roughness=roughness, **more), haze)
    return made


def leafy(name, colour, other, through=0.4, roughness=0.5, haze=None):
    """Leaves and petals, lit from behind as well: each instance of a colour between the two."""
    made, nodes = material(name)
    tone = nodes.mix(nodes.chance(), colour, other)
    front = nodes.add("ShaderNodeBsdfPrincipled", Base_Color=tone, Roughness=roughness, Specular=0.25)
    behind = nodes.add("ShaderNodeBsdfTranslucent", tone)
    surface(nodes, nodes.add("ShaderNodeMixShader", through, front, behind), haze)
    return made

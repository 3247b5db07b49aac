"""All the places, room by room."""
from mutations import designers, designs, engine, frames, quick

ALL = [*designs.ROWS, *quick.ROWS, *designers.ROWS, *frames.ROWS, *engine.ROWS]

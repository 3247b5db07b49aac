"""One place where the program is broken on purpose."""
import dataclasses


@dataclasses.dataclass(frozen=True)
class Row:
    file: str
    text: str       # stands in the file once
    instead: str
    breaks: str     # what goes wrong then
    explained: str = ""  # why no test can tell, where none can

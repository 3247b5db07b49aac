#pragma once

/// The cores that this process may use, at least 1: a share of the machine's where it was given one.
int usable_cores();

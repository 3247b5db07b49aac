#pragma once

/// What readers of the screen are told otherwise than by the toolkit: an option is one of several, also where
/// its exclusion is the session's; a picture is a button only where it can be pressed; a frame or plain
/// widget with a name is a group. To be called once, before the first window.
void tell_screen_readers();

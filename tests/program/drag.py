"""Files dragged over a program from another one."""
import subprocess

import screen


class Dragged:
    """Files on their way from a file manager; it ends with the drag."""

    def __init__(self, program, source, *urls):
        self.program = program
        self.process = subprocess.Popen([source, *urls], env=dict(program.environment, QT_QPA_PLATFORM='xcb'),
                                        stderr=subprocess.DEVNULL)
        screen.until(lambda: self.titled('waiting'), 'the file manager')
        program.tool('mousemove', '--sync', '1530', '1130')
        program.tool('mousedown', '1')
        for x in range(1525, 1500, -4):
            program.tool('mousemove', '--sync', str(x), '1130')
        screen.until(lambda: self.titled('dragging'), 'the drag')

    def titled(self, title):
        found = subprocess.run(['xdotool', 'search', '--pid', str(self.process.pid), '--name', title],
                               env=self.program.environment, capture_output=True)
        return found.stdout.strip()

    def over(self, x, y):
        for step in (30, 20, 10, 0):
            self.program.tool('mousemove', '--sync', str(x - step), str(y - step))

    def let_go(self, end, seen):
        """It stays until the drop was seen: who takes it asks it for the files."""
        self.program.tool('mouseup', '1')
        screen.until(lambda: self.titled(end), 'the drag to end as ' + end)
        screen.until(seen, 'what the drop does')
        self.process.kill()
        self.process.wait()


def offer(program):
    found = program.find('drop_area')
    return found['text'] if found else ''

"""A folder, a home and an environment of their own for the built batch program, as a script has them."""
import os
import pathlib
import shutil
import signal
import subprocess
import tempfile
import time

PATIENCE = 60.0
ENOUGH_ROOM = 1 << 30


def place_of_folders():
    """Memory, where there is room: to flush a file costs nothing there."""
    memory = '/dev/shm'
    is_roomy = os.access(memory, os.W_OK) and shutil.disk_usage(memory).free >= ENOUGH_ROOM
    return memory if is_roomy and 'TMPDIR' not in os.environ else None


class Workplace:
    """The programs of `app` are found by their names; what they leave lies below `folder`."""

    def __init__(self, app, sample_photos):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix='tessaloom_batch_', dir=place_of_folders())).resolve()
        self.app = pathlib.Path(app).resolve()
        (self.folder / 'tmp').mkdir()
        self.environment = dict(os.environ, HOME=str(self.folder), TMPDIR=str(self.folder / 'tmp'),
                                PATH=f'{self.app}{os.pathsep}{os.environ["PATH"]}')
        for name in ('XDG_DATA_HOME', 'XDG_CONFIG_HOME', 'MAKEFLAGS', 'MAKELEVEL', 'PARALLEL'):
            self.environment.pop(name, None)
        self.photos = self.folder / 'photos'
        self.photos.mkdir()
        for number, photo in enumerate(sorted(pathlib.Path(sample_photos).glob('*.jpg'))[:8]):
            shutil.copy(photo, self.photos / f'{number}.jpg')

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder, ignore_errors=True)

    @property
    def data(self):
        return self.folder / '.local' / 'share' / 'tessaloom4'

    def run(self, command, status=0, environment=None, **more):
        """Runs a command, a list of words or a line for the shell, to its end; gives what it printed and said."""
        more.setdefault('stdout', subprocess.PIPE)
        more.setdefault('stderr', subprocess.PIPE)
        done = subprocess.run(command, shell=isinstance(command, str), cwd=self.folder, check=False,
                              env={**self.environment, **(environment or {})}, timeout=PATIENCE * 4, **more)
        told = (done.stderr or b'').decode()
        assert status is None or done.returncode == status, f'{command}: status {done.returncode}, {told}'
        return done.stdout, told

    def batch(self, *words, **more):
        return self.run(['tessaloom-batch', *map(str, words)], **more)

    def start(self, command):
        """Starts a command in a session of its own, so that all of it can be killed."""
        return subprocess.Popen(command, shell=isinstance(command, str), cwd=self.folder, env=self.environment,
                                stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, start_new_session=True)

    def scratch_folders(self):
        """What jobs have left in their place for scratch folders."""
        places = (self.folder / 'tmp').glob(f'tessaloom-{os.geteuid()}')
        return [path for place in places for path in place.iterdir() if path.is_dir()]


def members_of(session):
    """The processes of a session that live."""
    found = []
    for status in pathlib.Path('/proc').glob('[0-9]*/stat'):
        try:
            fields = status.read_text().rpartition(')')[2].split()
        except OSError:  # it has ended meanwhile
            continue
        if int(fields[3]) == session and fields[0] != 'Z':
            found.append(int(status.parent.name))
    return found


def kill_session(running):
    """Kills what `start` has started, with all it has started itself, as a power cut does."""
    while members := members_of(running.pid):
        for process in members:
            try:
                os.kill(process, signal.SIGKILL)
            except ProcessLookupError:
                pass
    running.wait()


def until(what, told):
    """Waits until `what()` gives something true."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        if what():
            return
        time.sleep(0.002)
    raise AssertionError('waited in vain for ' + told)

"""The batch program as scripts use it: its statuses, its streams, and surroundings that must not matter."""
import os
import sys

from workplace import Workplace

MADE, NOT_MADE, BAD_ARGUMENTS = 0, 1, 2
WALL = ['--photos', 'photos', '--design', 'Three of us', '--preview']


def prints_help_and_version(place):
    texts = [place.batch(option)[0] for option in ('-h', '--help')]
    assert texts[0] == texts[1] and b'--photos' in texts[0]
    assert place.batch('--version')[0].startswith(b'tessaloom-batch ')


def gives_the_picture_to_standard_output(place):
    # The first start of all: it has things to say, and none of them here.
    printed, told = place.batch(*WALL, '--out', '-')
    assert 'Welcome' in told, told
    place.batch(*WALL, '--out', 'wall.jpg')
    assert printed == (place.folder / 'wall.jpg').read_bytes()
    assert printed.startswith(b'\xff\xd8') and printed.endswith(b'\xff\xd9')


def gives_nothing_but_the_picture(place):
    printed, told = place.batch(*WALL, 'photos/none.jpg', '--out=-', status=BAD_ARGUMENTS)
    assert printed == b'' and 'photos/none.jpg' in told, told  # a word that belongs to no option
    printed, told = place.batch('--photos', 'photos', 'none.jpg', *WALL[2:], '--out=-')
    assert printed.startswith(b'\xff\xd8') and printed.endswith(b'\xff\xd9')
    assert told.startswith(f'{place.folder}/none.jpg is left out'), told
    printed, _ = place.batch('--photos', 'none.jpg', *WALL[2:], '--out=-', status=NOT_MADE)
    assert printed == b''


def tells_when_standard_output_fails(place):
    reading, writing = os.pipe()
    os.close(reading)
    _, told = place.batch(*WALL, '--out', '-', stdout=writing, status=NOT_MADE)
    assert 'standard output' in told, told
    os.close(writing)
    for words in ([*WALL, '--out', '-'], ['--list'], ['--dump', *WALL]):
        with open('/dev/full', 'wb') as full:
            _, told = place.batch(*words, stdout=full, status=NOT_MADE)
        assert 'The disk is full' in told and 'standard output' in told, told
    _, told = place.run(['sh', '-c', 'exec "$@" >&-', 'sh', 'tessaloom-batch', *WALL, '--out', '-'], status=NOT_MADE)
    assert 'standard output' in told, told


def takes_back_what_broke_off(place):
    kept = place.folder / 'kept'
    kept.write_bytes(b'before')
    limit = 'ulimit -f 20; trap "" XFSZ; exec tessaloom-batch --photos photos --design "Three of us" --preview --out -'
    _, told = place.run(['sh', '-c', f'{limit} >> kept'], status=NOT_MADE)
    assert 'The disk is full' in told, told
    assert kept.read_bytes() == b'before'
    place.run('tessaloom-batch --photos photos --design "Three of us" --preview --out - >> kept')
    place.batch(*WALL, '--out', 'wall.jpg')
    assert kept.read_bytes() == b'before' + (place.folder / 'wall.jpg').read_bytes()


def needs_no_display(place):
    words = [*WALL, '--caption', 'Summer', '--out']
    place.batch(*words, 'plain.jpg')
    plain = (place.folder / 'plain.jpg').read_bytes()
    surroundings = [{'QT_QPA_PLATFORM': platform} for platform in ('xcb', 'wayland', 'minimal', 'rubbish', '')]
    surroundings += [{name: value} for name, value in (
        ('QT_QPA_FONTDIR', '/nowhere'), ('QT_PLUGIN_PATH', '/nowhere'), ('QT_QPA_PLATFORM_PLUGIN_PATH', '/nowhere'),
        ('QT_QPA_PLATFORMTHEME', 'rubbish'), ('QT_QPA_GENERIC_PLUGINS', 'rubbish'), ('QT_SCALE_FACTOR', '3'),
        ('QT_SCREEN_SCALE_FACTORS', '2'), ('QT_FONT_DPI', '300'), ('DISPLAY', ':77'), ('WAYLAND_DISPLAY', 'none'))]
    for more in surroundings:
        _, told = place.batch(*words, 'other.jpg', environment=more)
        assert told == '', f'{more}: {told}'
        assert (place.folder / 'other.jpg').read_bytes() == plain, more


def ends_with_the_status_that_is_told(place):
    refused = [['--photos', 'photos', '--out', 'x.jpg'], [*WALL, '--out', 'x.bmp'], [*WALL, '--out', 'x.png', '--page', 'A4'], [*WALL, '--out', 'x.pdf', '--page', 'A9'], [*WALL, '--out', '/dev/null'],
               [*WALL, '--out', 'photos'], [*WALL, '--out', 'x.jpg', '--set', 'cmbShapes=Hearts'],
               [*WALL, '--out', 'x.jpg', '--design', 'Puzzle'], ['--rubbish']]
    failed = [[*WALL, '--out', 'nowhere/x.jpg'], ['--photos', 'nowhere', *WALL[2:], '--out', 'x.jpg'],
              ['--jobs', 'nowhere.tsv']]
    for status, commands in ((BAD_ARGUMENTS, refused), (NOT_MADE, failed)):
        for words in commands:
            printed, told = place.batch(*words, status=status)
            assert printed == b'' and told.splitlines()[-1].startswith('tessaloom-batch: '), told
    assert not (place.folder / 'x.jpg').exists()


def reads_jobs_from_standard_input(place):
    jobs = 'out\tphotos\tdesign\na.jpg\tphotos\tThree of us\nb.jpg\tphotos\tThree of us\n'
    for expected in ('2 made, 0 there before, 0 not made', '0 made, 2 there before, 0 not made'):
        _, told = place.batch('--jobs', '-', '--preview', input=jobs.encode())
        assert told.splitlines()[-1] == expected, told
    assert (place.folder / 'a.jpg').read_bytes() == (place.folder / 'wall.jpg').read_bytes()


def tells_a_list_that_can_not_be_read(place):
    told = place.run(['sh', '-c', 'exec tessaloom-batch --jobs - <.'], status=BAD_ARGUMENTS)[1]
    assert "standard input can't be read to its end" in told, told


def main():
    with Workplace(*sys.argv[1:3]) as place:
        for play in (prints_help_and_version, gives_the_picture_to_standard_output, gives_nothing_but_the_picture,
                     tells_when_standard_output_fails, takes_back_what_broke_off, needs_no_display,
                     ends_with_the_status_that_is_told, reads_jobs_from_standard_input,
                     tells_a_list_that_can_not_be_read):
            play(place)
            print(play.__name__)
        assert not place.scratch_folders(), place.scratch_folders()


if __name__ == '__main__':
    main()

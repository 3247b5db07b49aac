"""Plays docs/batch.md: what stands there in its boxes is run as it stands, but with previews instead of full sizes."""
import pathlib
import re
import shlex
import sys

from workplace import Workplace, kill_session, until

TRIPS = 60
ENOUGH = 8  # posters that are there before something is killed


class Page:
    """The boxes of a page, by their language and something that stands in them."""

    def __init__(self, path):
        self.boxes = re.findall(r'^```(\w+)\n(.*?)^```$', path.read_text(), re.S | re.M)

    def box(self, language, part):
        found = [text for kind, text in self.boxes if kind == language and part in text]
        assert len(found) == 1, f'{len(found)} boxes of {language} with "{part}"'
        return found[0]


def small(command):
    return command.replace('--random 1', '--random 1 --preview').replace('--jobs', '--preview --jobs')


def make_trips(place):
    """Folders of small photos."""
    pictures = []
    for number, design in enumerate(('Mosaic wall', 'Panorama', 'Gallery wall', 'Daydream', 'Picnic', 'Snapshots')):
        place.batch('--photos', 'photos', '--design', design, '--preview', '--size', 300, '--out', f'{number}.jpg')
        pictures.append((place.folder / f'{number}.jpg').read_bytes())
    for number in range(1, TRIPS + 1):
        trip = place.folder / 'trips' / f'{number:02}'
        trip.mkdir(parents=True)
        for photo in range(3):
            (trip / f'{photo}.jpg').write_bytes(pictures[(number + photo * (number % 5 + 1)) % len(pictures)])


def write_lists(place, page):
    (place.folder / 'posters.tsv').write_text(page.box('tsv', 'lists/lake.jpg'))
    for folder in ('expected', 'many'):
        rows = [f'{folder}/{n:02}.jpg\ttrips/{n:02}\tMosaic wall\t{n:02}\t1\n' for n in range(1, TRIPS + 1)]
        (place.folder / f'{folder}.tsv').write_text('out\tphotos\tdesign\tcaption\trandom\n' + ''.join(rows))
        (place.folder / folder).mkdir()


def pictures_in(folder):
    return {path.name: path.read_bytes() for path in sorted(folder.glob('*.jpg'))}


def expect_all(place, name):
    found = pictures_in(place.folder / name)
    wrong = [poster for poster, picture in place.expected.items() if found.get(poster) != picture]
    assert not wrong, f'{name}: {wrong}'
    # One that was being written when its job was killed stays beside, under a name that nothing else has.
    others = [path.name for path in (place.folder / name).iterdir()
              if path.name not in place.expected and path.suffix != '.part']
    assert not others, others


def empty(folder):
    for path in folder.iterdir():
        path.unlink()


def killed_on_the_way(place, command, folder, log=None):
    """Starts the command and kills all of it when some posters are there; those are whole. Gives their names."""
    for _ in range(5):
        empty(folder)
        if log:
            log.unlink(missing_ok=True)
        running = place.start(command)
        until(lambda: len(list(folder.glob('*.jpg'))) >= ENOUGH, 'the first posters')
        kill_session(running)
        there = pictures_in(folder)
        wrong = [name for name, picture in there.items() if picture != place.expected[name]]
        assert not wrong, f'broken: {wrong}'
        if len(there) < TRIPS:
            return set(there)
    raise AssertionError('never killed on its way')


def makes_one(place, page):
    place.run(page.box('sh', '--caption "Summer"'))
    assert (place.folder / 'poster.jpg').read_bytes().startswith(b'\xff\xd8')


def makes_a_list_alone(place, _):
    _, told = place.run(small('tessaloom-batch --jobs expected.tsv'))
    assert told.splitlines()[-1] == f'{TRIPS} made, 0 there before, 0 not made', told
    place.expected = pictures_in(place.folder / 'expected')
    assert len(set(place.expected.values())) == TRIPS


def makes_with_make(place, page):
    (place.folder / 'Makefile').write_text(page.box('makefile', 'posters/%.jpg'))
    options = re.search(r'^options := (.*)$', page.box('makefile', 'options'), re.M)[1]
    command = page.box('sh', 'make -j').strip() + ' ' + shlex.quote('options=' + small(options))
    place.run(command)
    expect_all(place, 'posters')
    assert 'Nothing to be done' in place.run(command)[0].decode()
    before = {path.name: path.stat().st_ino for path in (place.folder / 'posters').iterdir()}
    (place.folder / 'trips' / '07' / '9.jpg').write_bytes((place.folder / '0.jpg').read_bytes())
    place.run(command)
    changed = [path.name for path in (place.folder / 'posters').iterdir() if path.stat().st_ino != before[path.name]]
    assert changed == ['07.jpg'], changed
    (place.folder / 'trips' / '07' / '9.jpg').unlink()


def goes_on_with_parallel(place, page):
    command = small(page.box('sh', 'parallel -q'))
    posters, log = place.folder / 'posters', place.folder / 'posters.log'
    killed_on_the_way(place, command, posters, log)
    done = [line.split('\t')[-1] for line in log.read_text().splitlines()[1:]]
    logged = {re.search(r'posters/(\d+\.jpg)', line)[1] for line in done}
    before = {name: (posters / name).stat().st_ino for name in logged}
    place.run(command)
    expect_all(place, 'posters')
    again = [name for name in logged if (posters / name).stat().st_ino != before[name]]
    assert not again, f'made once more: {again}'
    print(f'  killed with {len(logged)} of {TRIPS} jobs in the log')


def makes_a_job_list(place, page):
    command = small(page.box('sh', 'tessaloom-batch --jobs posters.tsv'))
    outs = [line.split('\t')[0] for line in page.box('tsv', 'out').splitlines()[1:]]
    _, told = place.run(command)
    assert told.splitlines()[-1] == f'{len(outs)} made, 0 there before, 0 not made', told
    for number, out in enumerate(outs):
        assert f'line {number + 2}: {out} made' in told, told
        assert (place.folder / out).exists(), out
    _, told = place.run(command)
    assert told.splitlines()[-1] == f'0 made, {len(outs)} there before, 0 not made', told


def goes_on_with_a_job_list(place, _):
    command = shlex.split(small('tessaloom-batch --jobs many.tsv'))
    there = killed_on_the_way(place, command, place.folder / 'many')
    _, told = place.run(command)
    assert told.splitlines()[-1] == f'{TRIPS - len(there)} made, {len(there)} there before, 0 not made', told
    expect_all(place, 'many')
    print(f'  killed with {len(there)} of {TRIPS} jobs done')


def deals_a_list_out(place, page):
    command = small(page.box('sh', 'parallel --pipe'))
    killed_on_the_way(place, command, place.folder / 'many')
    place.run(command)
    expect_all(place, 'many')


def shares_a_list_among_tasks(place, page):
    empty(place.folder / 'many')
    (place.folder / 'posters.sh').write_text(small(page.box('sh', '#SBATCH')))
    tasks = 3
    for task in range(tasks):
        environment = {'SLURM_ARRAY_TASK_ID': str(task), 'SLURM_ARRAY_TASK_COUNT': str(tasks)}
        place.run(['sh', 'posters.sh'], environment=environment)
        assert len(pictures_in(place.folder / 'many')) < TRIPS or task == tasks - 1
    expect_all(place, 'many')


def main():
    page = Page(pathlib.Path(sys.argv[3]))
    with Workplace(*sys.argv[1:3]) as place:
        make_trips(place)
        write_lists(place, page)
        for play in (makes_one, makes_a_list_alone, makes_with_make, goes_on_with_parallel, makes_a_job_list,
                     goes_on_with_a_job_list, deals_a_list_out, shares_a_list_among_tasks):
            play(place, page)
            print(play.__name__)
        assert not place.scratch_folders(), place.scratch_folders()


if __name__ == '__main__':
    main()

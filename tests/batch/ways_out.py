"""What a poster's file tells, read back with the tools of the formats: size on paper, sRGB, the program's name, every pixel,
and nothing of the photos, of the person or of the computer."""
import getpass
import re
import socket
import subprocess
import sys
import time

from workplace import Workplace

WALL = ['--design', 'Mosaic wall', '--random', 1]
POINTS_A_MILLIMETRE = 72 / 25.4


def output_of(*command):
    return subprocess.run([str(word) for word in command], check=True, capture_output=True).stdout


def text_of(*command):
    return output_of(*command).decode(errors='replace')


def made(place, name, *words):
    place.batch('--photos', 'photos', *WALL, *words, '--out', name)
    return place.folder / name


def pixels(path):
    """All pixels, as the tool decodes them without a look at the profile."""
    return output_of('convert', path, '-strip', '-depth', '8', 'rgb:-')


def told_of(path):
    """Size, pixels an inch, and the length of the profile."""
    told = text_of('identify', '-units', 'PixelsPerInch', '-format', '%w %h %x %[icc:description]|%y', path)
    width, height, across, description, down = re.fullmatch(r'(\d+) (\d+) ([\d.]+)\S* ?(.*)\|([\d.]+).*', told).groups()
    assert across == down, told
    return int(width), int(height), round(float(across)), description


def holds(path, *texts):
    """Those of the texts that stand somewhere in the bytes of the file."""
    held = path.read_bytes()
    return [text for text in texts if text.encode() in held or text.encode('utf-16-be') in held]


def traces(place):
    """What tells who made a poster, where and when. The photos are of 2025. Short words would be found in any picture."""
    year = time.strftime('%Y')
    words = [str(place.folder), 'sample_thumbs', getpass.getuser(), socket.gethostname(), 'Canon', 'Anna', 'somewhere at home',
             '/photos/', f'{year}:', f'{year}-', '2025:', '2025-', 'CreateDate', 'CreationDate', 'Mosaic']
    return [word for word in words if len(word) > 4]


def marked_photos(place):
    """Photos whose camera has told all it knows."""
    for photo in sorted(place.photos.glob('*.jpg')):
        output_of('exiv2', '-M', 'set Exif.Image.Make Canon', '-M', 'set Exif.Image.Artist Anna',
                  '-M', 'set Exif.Photo.DateTimeOriginal 2025:07:01 10:00:00', '-M', 'set Exif.GPSInfo.GPSLatitudeRef N',
                  '-M', 'set Exif.Photo.UserComment somewhere at home', photo)


def a_jpeg_tells_its_size_srgb_and_the_program(place):
    poster = made(place, 'poster.jpg')
    assert told_of(poster) == (2000, 3000, 100, 'sRGB built-in'), told_of(poster)
    assert text_of('exiv2', '-PEkt', 'pr', poster).split() == ['Exif.Image.Software', 'Tessaloom']
    assert text_of('exiv2', '-PIXkt', 'pr', poster).strip() == ''
    assert holds(poster, *traces(place)) == []
    small = made(place, 'small.jpg', '--size', 750)
    assert told_of(small) == (500, 750, 25, 'sRGB built-in'), told_of(small)
    assert holds(small, *traces(place)) == []
    asked = made(place, 'asked.jpg', '--dpi', 240)
    assert told_of(asked)[2] == 240 and pixels(asked) == pixels(poster)


def png_and_tiff_have_the_poster_before_it_was_a_jpeg(place):
    jpeg = made(place, 'poster.jpg')
    png, tiff = made(place, 'poster.png'), made(place, 'poster.tif')
    assert pixels(png) == pixels(tiff)
    # The JPEG is what the encoder makes of the same pixels: close to them, and never quite the same.
    far = subprocess.run(['compare', '-metric', 'MAE', str(png), str(jpeg), 'null:'], capture_output=True, check=False).stderr.decode()
    assert 0 < float(re.search(r'\(([\d.e-]+)\)', far).group(1)) < 0.01, far
    for path in (png, tiff):
        assert told_of(path) == (2000, 3000, 100, 'sRGB built-in'), told_of(path)
        assert holds(path, 'Tessaloom') == ['Tessaloom']
        assert holds(path, *traces(place)) == []
    assert text_of('exiv2', '-K', 'Exif.Image.Software', '-Pt', 'pr', tiff).strip() == 'Tessaloom'
    lying = made(place, 'lying.tiff', '--orientation', 'landscape', '--dpi', 300, '--size', 600)
    assert told_of(lying)[:3] == (600, 400, 300), told_of(lying)
    assert told_of(made(place, 'seen.png', '--preview'))[:2] == (333, 500)


def boxes_of(path):
    told = text_of('pdfinfo', '-box', path)
    found = {name: [float(each) for each in numbers.split()]
             for name, numbers in re.findall(r'^(\w+Box):((?:\s+-?[\d.]+){4})$', told, re.M)}
    assert re.search(r'^Pages:\s+1$', told, re.M), told
    assert re.findall(r'^(?:Creator|Producer|Author|Title|CreationDate|ModDate):.*$', told, re.M) == \
        ['Creator:         Tessaloom', 'Producer:        Tessaloom'], told
    return found


def near(box, millimetres):
    return all(abs(one - other * POINTS_A_MILLIMETRE) < 0.02 for one, other in zip(box, millimetres))


def page_pixels(place, path, dpi=36):
    """Width, height and the rows of the page as a viewer shows it."""
    output_of('pdftoppm', '-r', dpi, '-singlefile', path, place.folder / 'page')
    header, size, _, data = (place.folder / 'page.ppm').read_bytes().split(b'\n', 3)
    assert header == b'P6'
    width, height = map(int, size.split())
    return width, height, lambda x, y: tuple(data[3 * (y * width + x):3 * (y * width + x) + 3])


def a_pdf_has_the_bytes_of_the_jpeg_on_one_page(place):
    jpeg, pdf = made(place, 'poster.jpg'), made(place, 'poster.pdf')
    output_of('pdfimages', '-all', pdf, place.folder / 'inside')
    assert (place.folder / 'inside-000.jpg').read_bytes() == jpeg.read_bytes()
    assert not (place.folder / 'inside-001.jpg').exists()
    listed = text_of('pdfimages', '-list', pdf).splitlines()[2].split()
    assert listed[3:5] == ['2000', '3000'] and listed[5] == 'icc' and listed[12:14] == ['100', '100'], listed
    boxes = boxes_of(pdf)
    assert near(boxes['MediaBox'], (0, 0, 508, 762)) and boxes['TrimBox'] == boxes['MediaBox'] == boxes['BleedBox'], boxes
    assert holds(pdf, *traces(place)) == []
    first = pdf.read_bytes()
    assert made(place, 'poster.pdf').read_bytes() == first


def a_page_by_name_takes_the_poster_whole(place):
    for name, lies, across, down in (('A4', 'portrait', 210, 297), ('A3', 'landscape', 420, 297), ('Letter', 'square', 215.9, 279.4),
                                     ('20x30', 'portrait', 200, 300), ('30x45', 'portrait', 300, 450), ('40x60', 'landscape', 600, 400),
                                     ('50x75', 'portrait', 500, 750), ('8x10in', 'landscape', 254, 203.2)):
        pdf = made(place, 'page.pdf', '--page', name, '--orientation', lies, '--preview')
        boxes = boxes_of(pdf)
        assert near(boxes['MediaBox'], (0, 0, across, down)), (name, boxes)
        width, height, at = page_pixels(place, pdf)
        poster = (333, 500) if lies == 'portrait' else (500, 333) if lies == 'landscape' else (333, 333)
        fit = min(across / poster[0], down / poster[1]) * POINTS_A_MILLIMETRE / 2
        left, top = (width - poster[0] * fit) / 2, (height - poster[1] * fit) / 2
        if left > 2:
            assert at(int(left / 2), height // 2) == at(width - 1 - int(left / 2), height // 2) == (255, 255, 255), name
        if top > 2:
            assert at(width // 2, int(top / 2)) == at(width // 2, height - 1 - int(top / 2)) == (255, 255, 255), name


def the_ground_runs_into_the_bleed(place):
    color = ['--set', 'optSolid=1', '--set', 'picBGcolor=%d' % 0xa06020]
    pdf = made(place, 'bleed.pdf', *color, '--page', 'A4', '--bleed', 3)
    boxes = boxes_of(pdf)
    assert near(boxes['MediaBox'], (0, 0, 216, 303)) and near(boxes['BleedBox'], (0, 0, 216, 303)), boxes
    assert near(boxes['TrimBox'], (3, 3, 213, 300)), boxes
    width, height, at = page_pixels(place, pdf)
    # The last column and row of pixels may lie on the edge of the page.
    corners = [(0, 0), (width - 2, 0), (0, height - 2), (width - 2, height - 2), (1, height // 2)]
    assert {at(*corner) for corner in corners} == {(0x20, 0x60, 0xa0)}, [at(*corner) for corner in corners]
    white = made(place, 'white.pdf', *color, '--page', 'A4', '--bleed', 3, '--around', 'white')
    width, height, at = page_pixels(place, white)
    assert {at(*corner) for corner in corners} == {(255, 255, 255)}
    around = made(place, 'around.pdf', *color, '--page', 'A4', '--around', 'ground')
    width, height, at = page_pixels(place, around)
    assert at(1, height // 2) == (0x20, 0x60, 0xa0) and near(boxes_of(around)['TrimBox'], (0, 0, 210, 297))


def a_picture_of_the_ground_goes_on_around_the_poster(place):
    ground = place.folder / 'ground.jpg'
    output_of('convert', '-size', '200x300', 'gradient:red-blue', '-quality', '95', ground)
    pdf = made(place, 'ground.pdf', '--set', 'optBGimage=1', '--set', f'txtBGimage={ground}',
               '--set', 'cmbBlend=100', '--page', '30x30', '--around', 'ground')
    width, height, at = page_pixels(place, pdf)
    poster_top, poster_bottom = at(3, 2), at(3, height - 3)
    assert poster_top[0] > 200 and poster_top[2] < 60 and poster_bottom[0] < 60 and poster_bottom[2] > 200, (poster_top, poster_bottom)


def what_belongs_to_no_such_file_is_refused(place):
    for words, told in ((['--out', 'x.bmp'], 'which tells the kind of the file'),
                        (['--out', 'x.jpg', '--page', 'A4'], 'belong to a PDF'),
                        (['--out', '-', '--bleed', '3'], 'belong to a PDF'),
                        (['--out', 'x.pdf', '--page', '1x2'], 'from 5 to 500 cm'),
                        (['--out', 'x.pdf', '--bleed', '51'], 'from 0 to 50'),
                        (['--out', 'x.pdf', '--around', 'red'], 'white or ground')):
        _, said = place.batch('--photos', 'photos', *WALL, *words, status=2)
        assert told in said, said
        assert not list(place.folder.glob('x.*'))


def every_way_goes_with_scale_and_smooth(place):
    for name in ('large.png', 'large.pdf', 'large.tif'):
        path = made(place, name, '--scale', 2, '--smooth', '--threads', 1)
        if name.endswith('.pdf'):
            assert text_of('pdfimages', '-list', path).splitlines()[2].split()[3:5] == ['4000', '6000']
        else:
            assert told_of(path)[:3] == (4000, 6000, 300), told_of(path)


def main():
    with Workplace(*sys.argv[1:3]) as place:
        marked_photos(place)
        for step in (a_jpeg_tells_its_size_srgb_and_the_program, png_and_tiff_have_the_poster_before_it_was_a_jpeg,
                     a_pdf_has_the_bytes_of_the_jpeg_on_one_page, a_page_by_name_takes_the_poster_whole,
                     the_ground_runs_into_the_bleed, a_picture_of_the_ground_goes_on_around_the_poster,
                     what_belongs_to_no_such_file_is_refused, every_way_goes_with_scale_and_smooth):
            step(place)
            print(step.__name__, flush=True)


if __name__ == '__main__':
    main()

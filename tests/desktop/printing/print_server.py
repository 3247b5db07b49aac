#!/usr/bin/env python3
"""A print server of its own on the loopback, for the time of one command:

    print_server.py COMMAND...

The command finds the server in CUPS_SERVER and the folder of what was printed in PRINTED: each printer is a queue of
one paper with margins that differ on all four sides, and appends its jobs' pages, as a printer would get them, to
PRINTED/QUEUE.pdf. Without CUPS it ends with status 77.
"""
import os
import pathlib
import shutil
import socket
import stat
import subprocess
import sys
import tempfile
import time

# Paper by its name in the printer's description, width and height in points; left, bottom, right, top margin in points.
PRINTERS = {
    "paper_a4": ("A4", 595, 842, (12, 36, 18, 24)),
    "paper_letter": ("Letter", 612, 792, (18, 48, 12, 12)),
    "paper_a3": ("A3", 842, 1191, (10, 30, 20, 40)),
    "paper_photo": ("w288h432", 288, 432, (9, 27, 9, 9)),
    "paper_a5": ("A5", 420, 595, (24, 12, 36, 48)),
}
REJECTING, STOPPED = "takes_nothing", "stands_still"
NONE = 77  # CTest takes it for "skipped"

DESCRIPTION = """*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "PAPER.PPD"
*Manufacturer: "Paper"
*Product: "(Paper)"
*ModelName: "Paper {name}"
*ShortNickName: "Paper {name}"
*NickName: "Paper {name}"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*Throughput: "1"
*LandscapeOrientation: Plus90
*TTRasterizer: Type42
*cupsVersion: 2.4
*cupsFilter2: "application/vnd.cups-pdf application/pdf 0 -"
*OpenUI *PageSize/Media Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: {name}
{sizes}*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: {name}
{regions}*CloseUI: *PageRegion
*DefaultImageableArea: {name}
{areas}*DefaultPaperDimension: {name}
{papers}"""

BACKEND = """#!/bin/sh
# Takes the job's pages and appends nothing: the last job is what lies there.
[ $# -eq 0 ] && { echo 'direct paper "Paper" "Paper"'; exit 0; }
to="${DEVICE_URI#paper:}"
if [ -n "$6" ]; then cat "$6" > "$to"; else cat > "$to"; fi
"""


def description(name):
    """A printer that holds every paper, of which one is its own, each with that printer's margins."""
    left, bottom, right, top = next(margins for paper, _, _, margins in PRINTERS.values() if paper == name)
    sizes = regions = areas = papers = ""
    for paper, width, height, _ in PRINTERS.values():
        sizes += f'*PageSize {paper}: "<</PageSize[{width} {height}]>>setpagedevice"\n'
        regions += f'*PageRegion {paper}: "<</PageSize[{width} {height}]>>setpagedevice"\n'
        areas += f'*ImageableArea {paper}: "{left} {bottom} {width - right} {height - top}"\n'
        papers += f'*PaperDimension {paper}: "{width} {height}"\n'
    return DESCRIPTION.format(name=name, sizes=sizes, regions=regions, areas=areas, papers=papers)


def free_port():
    with socket.socket() as one:
        one.bind(("127.0.0.1", 0))
        return one.getsockname()[1]


def system_folder():
    """Filters and backends: CUPS's own, with our printer's way out beside them."""
    return next((each for each in ("/usr/lib/cups", "/usr/libexec/cups") if os.path.isdir(each)), None)


def set_up(home, port):
    own = system_folder()
    for name in ("root/ppd", "state", "cache", "spool/tmp", "log", "bin/backend", "printed"):
        (home / name).mkdir(parents=True, exist_ok=True)
    for name in ("filter", "cgi-bin", "daemon", "monitor", "notifier", "driver"):
        if os.path.isdir(f"{own}/{name}"):
            os.symlink(f"{own}/{name}", home / "bin" / name)
    (home / "bin/backend/paper").write_text(BACKEND)
    (home / "bin/backend/paper").chmod(0o755)
    (home / "cupsd.conf").write_text(f"""LogLevel debug
Listen 127.0.0.1:{port}
Browsing Off
DefaultAuthType None
WebInterface No
MaxLogSize 0
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
""")
    (home / "cups-files.conf").write_text(f"""ServerRoot {home}/root
ServerBin {home}/bin
StateDir {home}/state
CacheDir {home}/cache
RequestRoot {home}/spool
TempDir {home}/spool/tmp
ErrorLog {home}/log/error
AccessLog {home}/log/access
PageLog {home}/log/page
User lp
Group lp
SystemGroup root
ConfigFilePerm 0644
""")
    if os.geteuid() == 0:
        for place in [home, *home.rglob("*")]:
            if not place.is_symlink():
                shutil.chown(place, "lp", "lp")
                if place.is_dir():
                    place.chmod(place.stat().st_mode | stat.S_IRWXU | stat.S_IRWXG | stat.S_IROTH | stat.S_IXOTH)
        (home / "printed").chmod(0o777)
        for each in [*(home / "bin").rglob("*"), home / "bin"]:  # what runs as the server must be the server's own
            if not each.is_symlink():
                shutil.chown(each, "root", "root")
                each.chmod(0o755)


def asked(*words):
    told = subprocess.run(words, capture_output=True, text=True)
    if told.returncode:
        sys.exit(f"{' '.join(words)}: {told.stderr.strip()}")


def add_printers(home):
    for queue, (paper, *_) in PRINTERS.items():
        add_printer(home, queue, paper)
    add_printer(home, REJECTING, "A4")
    asked("cupsreject", REJECTING)
    add_printer(home, STOPPED, "A4")
    asked("cupsdisable", STOPPED)


def add_printer(home, queue, paper):
    file = home / f"{queue}.ppd"
    file.write_text(description(paper))
    asked("lpadmin", "-p", queue, "-E", "-v", f"paper:{home}/printed/{queue}.pdf", "-P", str(file))


def answers(port):
    with socket.socket() as one:
        return one.connect_ex(("127.0.0.1", port)) == 0


def main(command):
    os.environ["PATH"] += ":/usr/sbin"
    if not shutil.which("cupsd") or not shutil.which("lpadmin"):
        print("CUPS isn't here")
        return NONE
    with tempfile.TemporaryDirectory() as place:
        home, port = pathlib.Path(place), free_port()
        home.chmod(0o755)
        set_up(home, port)
        os.environ |= {"CUPS_SERVER": f"127.0.0.1:{port}", "PRINTED": f"{home}/printed"}
        server = subprocess.Popen(["cupsd", "-f", "-c", f"{home}/cupsd.conf", "-s", f"{home}/cups-files.conf"])
        try:
            until = time.monotonic() + 30
            while not answers(port) and server.poll() is None and time.monotonic() < until:
                time.sleep(0.02)
            add_printers(home)
            return subprocess.run(command).returncode
        finally:
            server.terminate()
            server.wait()
            if os.environ.get("PRINT_SERVER_LOG"):
                shutil.copy(home / "log/error", os.environ["PRINT_SERVER_LOG"])


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))

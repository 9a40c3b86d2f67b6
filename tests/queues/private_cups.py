"""A print spooler of the tests' own, in a folder: nothing of the machine's printers is asked or touched."""

import getpass
import grp
import os
import re
import subprocess
import time
from pathlib import Path

PPD = Path("/usr/share/ppd/cups-pdf/CUPS-PDF_noopt.ppd")
SPOOLER = "/usr/sbin/cupsd"
EDGE = 12  # points of a sheet that its queues can't print on


class PrivateCups:
    """Runs as long as it is entered. `environment` leads programs to it."""

    def __init__(self, folder):
        self.root = Path(folder)
        self.environment = {**os.environ, "CUPS_SERVER": str(self.root / "run/cups.sock"), "LC_ALL": "C"}

    def __enter__(self):
        for name in ("etc/ppd", "spool/tmp", "cache", "run", "log", "out"):
            (self.root / name).mkdir(parents=True)
        root = os.getuid() == 0
        user = "lp" if root else getpass.getuser()
        group = "lp" if root else grp.getgrgid(os.getgid()).gr_name
        r = self.root
        (r / "etc/cups-files.conf").write_text(
            f"ServerRoot {r}/etc\nRequestRoot {r}/spool\nTempDir {r}/spool/tmp\nCacheDir {r}/cache\nStateDir {r}/run\n"
            f"AccessLog {r}/log/access_log\nErrorLog {r}/log/error_log\nPageLog {r}/log/page_log\nFileDevice Yes\n"
            f"User {user}\nGroup {group}\n", encoding="ascii")
        allow = "Order allow,deny\nAllow all\n"
        (r / "etc/cupsd.conf").write_text(
            f"LogLevel debug\nListen {r}/run/cups.sock\nBrowsing No\nWebInterface No\nIdleExitTimeout 0\n"
            f"<Location />\n{allow}</Location>\n<Policy default>\n<Limit All>\n{allow}</Limit>\n</Policy>\n",
            encoding="ascii")
        if root:
            subprocess.run(["chown", "-R", "root:lp", r], check=True)
            os.chmod(r, 0o755)
            os.chmod(r / "spool/tmp", 0o1770)
        self.process = subprocess.Popen([SPOOLER, "-f", "-c", r / "etc/cupsd.conf", "-s", r / "etc/cups-files.conf"],
                                        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.wait_for(lambda: "is running" in self.ask("lpstat", "-r"))
        return self

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait(timeout=20)

    def ask(self, *command):
        return subprocess.run(list(map(str, command)), env=self.environment, check=False, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, timeout=60).stdout.decode("utf-8")

    def wait_for(self, what):
        for _ in range(300):
            if what():
                return
            time.sleep(0.1)
        raise AssertionError("the spooler does not answer: " + self.log()[-2000:])

    def log(self):
        path = self.root / "log/error_log"
        return path.read_text(encoding="utf-8", errors="replace") if path.exists() else ""

    def add_queue(self, name, custom_paper=None):
        """A queue that keeps each document as a PDF; `custom_paper` is a further paper, name and size in points."""
        text = PPD.read_text(encoding="latin-1")
        text = text.replace("*DefaultColorSpace", '*cupsFilter: "application/vnd.cups-pdf 0 -"\n*DefaultColorSpace', 1)
        # Like most printers it can't print up to the edge.
        text = re.sub(r'(?m)^(\*ImageableArea [^:]+: )"0 0 (\d+) (\d+)"',
                      lambda m: f'{m[1]}"{EDGE} {EDGE} {int(m[2]) - EDGE} {int(m[3]) - EDGE}"', text)
        if custom_paper:
            paper, width, height = custom_paper
            for option, value in (("PageSize", f'"<</PageSize[{width} {height}]/ImagingBBox null>>setpagedevice"'),
                                  ("PageRegion", f'"<</PageSize[{width} {height}]/ImagingBBox null>>setpagedevice"'),
                                  ("ImageableArea", f'"{EDGE} {EDGE} {width - EDGE} {height - EDGE}"'),
                                  ("PaperDimension", f'"{width} {height}"')):
                text = re.sub(rf"(?m)^(\*{option} A4[ /])", f"*{option} {paper}/{paper}: {value}\n\\1", text, count=1)
        ppd = self.root / f"{name}.ppd"
        ppd.write_text(text, encoding="latin-1")
        said = self.ask("lpadmin", "-p", name, "-E", "-v", f"file://{self.root}/out/{name}.pdf", "-P", ppd, "-o",
                        "PageSize=A4")
        self.wait_for(lambda: name in self.ask("lpstat", "-a"))
        self.ask("lpadmin", "-d", name)
        return said

    def documents(self, name):
        """How many documents have come to the queue so far."""
        return len([line for line in self.ask("lpstat", "-W", "completed", "-o", name).splitlines() if line.strip()])

    def printed(self, name):
        """The PDF that the queue made of its last document, once it is done with it."""
        self.wait_for(lambda: not self.ask("lpstat", "-o", name).strip())
        return self.root / "out" / f"{name}.pdf"

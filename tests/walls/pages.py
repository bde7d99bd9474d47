"""pages.py MANUAL.pdf: no page between the cover and the last one may be left half empty."""
import glob
import os
import subprocess
import sys
import tempfile

FOOT = 0.93  # of the height: the page's number and the line above it stand below
LEAST = 0.65


def pages(pdf):
    """Each page as rows of grey bytes."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["pdftoppm", "-r", "20", "-gray", pdf, os.path.join(folder, "p")], check=True)
        for name in sorted(glob.glob(os.path.join(folder, "*.pgm"))):
            with open(name, "rb") as file:
                _, size, _, pixels = file.read().split(b"\n", 3)
            width = int(size.split()[0])
            yield [pixels[at:at + width] for at in range(0, len(pixels), width)]


def end(rows):
    """How far down text and pictures go, as a share of the page's height; the foot aside."""
    inked = [y for y in range(int(len(rows) * FOOT)) if min(rows[y]) < 200]
    return max(inked, default=0) / len(rows)


found = [f"page {number} ends at {share:.0%} of its height"
         for number, share in list(enumerate(map(end, pages(sys.argv[1])), 1))[1:-1] if share < LEAST]
print("\n".join(found))
sys.exit(bool(found))

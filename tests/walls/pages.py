"""pages.py MANUAL.pdf...: no page between the cover and the last one may be left half empty."""
import subprocess
import sys

FOOT = 0.94


def ends(pdf):
    """For each page, how far down its text and its pictures go, as a share of its height; the foot aside."""
    images = subprocess.run(["pdftoppm", "-r", "36", "-gray", pdf], check=True, capture_output=True).stdout
    while images:
        _, size, _, rest = images.split(b"\n", 3)
        width, height = map(int, size.split())
        rows = [rest[row * width:(row + 1) * width] for row in range(int(height * FOOT))]
        yield max((row for row, shades in enumerate(rows) if min(shades) < 200), default=0) / height
        images = rest[width * height:]


found = [f"{manual}: page {number} ends at {end:.0%} of its height" for manual in sys.argv[1:]
         for number, end in list(enumerate(ends(manual), 1))[1:-1] if end < 0.65]
print("\n".join(found))
sys.exit(bool(found))

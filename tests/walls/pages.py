"""pages.py MANUAL.pdf: no page between the cover and the last one may be left half empty."""
import re
import subprocess
import sys


def ends(pdf):
    """For each page, how far down its text goes, as a share of its height; the foot aside."""
    boxes = subprocess.run(["pdftotext", "-bbox", pdf, "-"], check=True, capture_output=True, text=True).stdout
    for page in boxes.split("<page ")[1:]:
        height = float(re.search(r'height="([\d.]+)"', page).group(1))
        lines = [float(y) / height for y in re.findall(r'yMax="([\d.]+)"', page)]
        yield max((y for y in lines if y < 0.94), default=0)


found = [f"page {number} ends at {end:.0%} of its height"
         for number, end in list(enumerate(ends(sys.argv[1]), 1))[1:-1] if end < 0.65]
print("\n".join(found))
sys.exit(bool(found))

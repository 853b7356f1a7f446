"""The chart of the site's page about speed, from the table of the recorded run.

Bars are how many times the library's own time another one takes, on a scale of powers of ten.
Colours are the theme's, so that the chart is dark where the page is.
"""
import html
import math
import re

ROWS = ["text to DER", "DER to text", "DER to strings: tree", "parse two names and compare",
        "extension record, read"]
BAR, GAP, LABEL, WIDTH = 16, 18, 24, 640
COLOURS = ["#4477aa", "#ee6677", "#228833", "#aa8811"]


def table(text):
    """The recorded rows: a dictionary of work to one of library to times; the library's own time is
    kept as the text of its cell."""
    lines = [line for line in text.splitlines() if line.startswith("|")]
    start = next(i for i, line in enumerate(lines) if line.startswith("| work |"))
    heads = [cell.strip() for cell in lines[start].strip("|").split("|")]
    rows = {}
    for line in lines[start + 2:]:
        cells = [cell.strip() for cell in line.strip("|").split("|")]
        if len(cells) != len(heads):
            break
        times = {head: re.search(r"\(([\d.]+)\)", cell) for head, cell in zip(heads[2:], cells[2:])}
        rows[cells[0]] = (cells[1].split(",")[0],
                          {head: float(found[1]) for head, found in times.items() if found})
    return heads[2:], rows


def bars(y, times, peers, scale):
    for peer in peers:
        if peer in times:
            length = scale(times[peer])
            yield (f'<rect x="0" y="{y}" width="{length:.0f}" height="{BAR}" rx="2" '
                   f'fill="{COLOURS[peers.index(peer) % len(COLOURS)]}"/>'
                   f'<text x="{length + 6:.0f}" y="{y + BAR - 4}">{html.escape(peer.split()[0])} '
                   f'{times[peer]:g}</text>')
            y += BAR + 2


def svg(text):
    peers, rows = table(text)
    missing = [row for row in ROWS if row not in rows]
    if missing:
        raise SystemExit(f"chart.py: the table of the run has no row {missing}")
    peers = [peer for peer in peers if any(peer in rows[row][1] for row in ROWS)]
    largest = max(max(rows[row][1].values()) for row in ROWS)

    def scale(times):
        return (WIDTH - 140) * math.log10(max(times, 1.05)) / math.log10(largest)

    out, y = [], 0
    for row in ROWS:
        own, times = rows[row]
        out.append(f'<text x="0" y="{y + BAR}" font-weight="600">{html.escape(row)}'
                   f'<tspan font-weight="400"> (here {html.escape(own)})</tspan></text>')
        y += LABEL
        out.extend(bars(y, times, peers, scale))
        y += len(times) * (BAR + 2) + GAP
    what = "Times the library's own time that other libraries take, logarithmic"
    return (f'<svg role="img" aria-label="{what}" viewBox="0 0 {WIDTH} {y}" class="speed" '
            f'font-size="13" fill="currentColor">{"".join(out)}</svg>')

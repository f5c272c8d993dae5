"""The pictures of docs/performance.md."""
from math import ceil, log2, log10

INKS = ["#2f6f9f", "#c8553d", "#588157", "#e0a030", "#7a5195", "#8d99ae", "#444444", "#b56576"]
WIDTH, HEIGHT = 400, 240  # of a panel
LEFT, RIGHT, TOP, BOTTOM = 58, 20, 30, 36  # around its graph


def text(x, y, words, anchor="middle", size=12):
    return f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" font-size="{size}">{words}</text>\n'


def save(path, width, height, body):
    path.write_text(f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" width="{width}" '
                    f'height="{height}" font-family="sans-serif" fill="#222">\n'
                    f'<rect width="100%" height="100%" fill="#fff"/>\n{body}</svg>\n')


def step_of(highest):
    """A round distance of at most five lines up to there."""
    power = 10.0 ** (ceil(log10(highest)) - 1)
    return next(power * n for n in (0.2, 0.5, 1, 2, 5) if highest / (power * n) <= 5)


def panel(x0, y0, title, curves, logarithmic=False):
    """Curves of values by place, one for each name, from zero, or both ways by doublings.
    curves  name -> {place: µs}"""
    ends = [max(max(points) for points in curves.values()), max(max(points.values()) for points in curves.values())]
    lowest = min(min(points.values()) for points in curves.values())
    if logarithmic:
        low, high = log10(lowest), log10(ends[1])
        across, up = (lambda at: log2(at) / log2(ends[0])), (lambda v: (log10(v) - low) / (high - low))
        lines = [10.0 ** n for n in range(ceil(low), int(high) + 1)]
        marks = [1, 4, 16, 64, 256, 1024, 4096]
    else:
        across, up = (lambda at: at / ends[0]), (lambda v: v / ends[1])
        lines = [step_of(ends[1]) * n for n in range(int(ends[1] / step_of(ends[1])) + 1)]
        marks = [n * ends[0] // 3 for n in range(4)] if ends[0] % 3 == 0 else [1, ends[0] // 2, ends[0]]
    x = lambda at: x0 + LEFT + across(at) * (WIDTH - LEFT - RIGHT)
    y = lambda v: y0 + HEIGHT - BOTTOM - up(v) * (HEIGHT - TOP - BOTTOM)
    out = text(x0 + WIDTH / 2, y0 + 18, title, size=13)
    for line in lines:
        out += f'<path d="M{x0 + LEFT} {y(line):.1f}H{x0 + WIDTH - RIGHT}" stroke="#ddd"/>\n'
        out += text(x0 + LEFT - 6, y(line) + 4, f"{line:g} µs", "end", 11)
    for mark in marks:
        out += text(x(mark), y0 + HEIGHT - BOTTOM + 16, mark, size=11)
    for n, (name, points) in enumerate(curves.items()):
        path = " ".join(f"{x(at):.1f},{y(v):.1f}" for at, v in points.items())
        out += f'<polyline points="{path}" fill="none" stroke="{INKS[n]}" stroke-width="2"/>\n'
        for at, v in points.items():
            out += f'<circle cx="{x(at):.1f}" cy="{y(v):.1f}" r="2.5" fill="{INKS[n]}"/>\n'
        if name:
            at, v = list(points.items())[-1]
            out += text(x(at), y(v) - 7, name, "end", 11)
    return out


def scaling(path, curves, blocks):
    """Cost per frame against how much sounds, and against the length of blocks."""
    micros = lambda points: {at: value / 1000.0 for at, value in points.items()}
    titles = {"voices": "voices on 13 channels", "channels": "channels with a voice and all effects",
              "unison": "unison of 30 synth voices"}
    body = "".join(panel(n % 2 * WIDTH, n // 2 * HEIGHT, title, {"": micros(curves[what][0])})
                   for n, (what, title) in enumerate(titles.items()))
    body += panel(WIDTH, HEIGHT, "frames of a block", {name.removeprefix("blocks of "): micros(values[0])
                                                       for name, values in blocks.items()}, logarithmic=True)
    save(path, 2 * WIDTH, 2 * HEIGHT, body)


def stages(path, times):
    """A bar for each load, cut into what its stages take of a block.
    times  "LOAD/STAGE" -> ns, as the program has rows"""
    bars = {}
    for name, values in times.items():
        load, stage = name.split("/")
        bars.setdefault(load, {})[stage] = next(iter(values[0].values())) / 1000.0
    left, width, body, labels = 90, 680, "", list(next(iter(bars.values())))
    for row, (load, parts) in enumerate(bars.items()):
        whole, x, y = sum(parts.values()), left, 20 + 60 * row
        body += text(left - 10, y + 16, load, "end") + text(left - 10, y + 31, f"{whole:.3g} µs", "end", 11)
        for n, (stage, micros) in enumerate(parts.items()):
            share = micros / whole
            body += f'<rect x="{x:.1f}" y="{y}" width="{share * width:.1f}" height="36" fill="{INKS[n]}"/>\n'
            if share > 0.045:
                body += f'<g fill="#fff">{text(x + share * width / 2, y + 23, f"{100 * share:.0f} %", size=11)}</g>\n'
            x += share * width
    y = 20 + 60 * len(bars)
    for n, stage in enumerate(labels):
        x = left + n * width / len(labels)
        body += f'<rect x="{x:.1f}" y="{y}" width="11" height="11" fill="{INKS[n]}"/>\n' + text(x + 16, y + 10, stage, "start")
    save(path, left + width + 30, y + 30, body)

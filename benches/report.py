#!/usr/bin/env python3
"""Runs the benchmarks that are built and writes what they say into docs/performance.md; called by ./bench."""
import json
import os
import re
import subprocess
import sys
import tempfile
from collections import defaultdict
from pathlib import Path

import pictures

ROOT = Path(__file__).resolve().parent.parent
PROGRAMS = ROOT / "build" / "benches"
KEPT = ROOT / "benches" / "instructions.json"
RATE = 48000
LOADS = {
    "silence": "nothing sounds",
    "default": "default groove",
    "typical": "13 channels, 20 voices, no effects",
    "dry": "78 voices, four layers, 16-fold unison, all sources and modulators, no effects",
    "heaviest": "the same with ten effects, equaliser and stutter on every channel",
}
MODULATIONS = (0, 1, 2)  # sync, phase, amplitude


def synths(unison, everything):
    return [f"BM_SynthChannel/kind:{kind}/unison:{unison}/all:{everything}" for kind in MODULATIONS]


# What each row says, its unit, the benchmarks that its values come from.
TABLES = {
    "kernels": ("ns", [
        ("Voice filter, per voice and frame, 1 / 8 / 20 / 78 voices", "ns", [f"BM_VoiceFilter/{n}" for n in (1, 8, 20, 78)]),
        ("Sampler channel, per layer and frame, 1 / 4 layers", "ns", ["BM_SamplerChannel/1", "BM_SamplerChannel/4"]),
        ("Synth, per unison voice and frame, one voice, oscillator 1 alone: sync / phase / amplitude modulation", "ns",
         synths(1, 0)),
        ("The same, 16-fold", "ns", synths(16, 0)),
        ("The same, 16-fold, all sources", "ns", synths(16, 1)),
        ("Effect units, per frame, \"FX 1\" to \"FX 10\"", "ns", [f"Unit/{n}" for n in range(10)]),
        ("Stutter / equaliser / reverb alone, per frame", "ns", ["Unit/11", "EqualiserOnly", "Reverb"]),
        ("Rack of a channel, per frame, all bypassed / everything on", "ns", ["Rack/0", "Rack/1"]),
    ]),
    "engine": ("Time", [
        ("Tick that starts a note on every channel", "µs", ["Tick"]),
        ("State save / load (144 KB and four locks on every second step)", "µs", ["SaveState", "LoadState"]),
        ("Wave tables of a file of 2048 / 1,000,000 frames", "ms",
         ["BM_BuildWaveTables/2048", "BM_BuildWaveTables/1000000"]),
    ]),
    "pixels": ("Pixels in each nanosecond, vector / plain", [
        (text, "", [f"BM_{name}Row/vector", f"BM_{name}Row/plain"])
        for text, name in (("Blended copy, one opacity", "Blended"), ("Blended copy, alpha plane", "Plane"),
                           ("Blended copy, both", "FaintPlane"), ("Fill with alpha", "Fill"), ("Gradient", "Gradient"))
    ]),
    "window": ("Time", [
        ("Redrawn as a whole", "ms", ["FullRedraw"]),
        ("A tick in which nothing happens / with one knob to draw", "µs", ["IdleTick", "OneDirtyKnob"]),
        ("A page is copied / mixed by its alpha plane / loaded from a TGA file", "µs",
         ["BM_DrawPage/opaque", "BM_DrawPage/alpha", "BM_LoadPage"]),
        ("A line of 43 characters", "µs", ["BM_LineOfText"]),
    ]),
    "editor": ("Time", [
        ("Opens, its images still to be read, from the system's cache / opens again", "ms",
         ["EditorOpensCold/iterations:1", "EditorOpensWarm"]),
        ("A tick while a groove plays", "µs", ["EditorTick/0/iterations:2000/manual_time"]),
        ("A change of page", "ms", ["EditorChangesPage"]),
        ("The open score editor draws itself: 128 by 24 notes, every step locked / the drum grid", "ms",
         ["ScoreRedraws/0", "ScoreRedraws/1"]),
        ("A tick with it open", "ms", ["ScoreTick/0", "ScoreTick/1"]),
    ]),
}
UNITS = {"ns": 1.0, "µs": 1e3, "us": 1e3, "ms": 1e6, "s": 1e9, "": 1.0}


def number(value):
    return f"{value:,.0f}" if value >= 99.5 else f"{value:.3g}"


def instruction_sets():
    flags = set(re.search(r"^flags.*", Path("/proc/cpuinfo").read_text(), re.M).group().split())
    return [name for name, flag in (("sse2", "sse2"), ("avx2", "avx2"), ("avx512", "avx512f")) if flag in flags]


def loads(section, plugins=(), isa=""):
    """What korvane-loads says: of each kind of row the values by plug-in, by place."""
    result = defaultdict(lambda: defaultdict(dict))
    environment = os.environ | ({"KORVANE_ISA": isa} if isa else {})
    output = subprocess.run([PROGRAMS / "korvane-loads", section, *plugins], env=environment, check=True, text=True,
                            stdout=subprocess.PIPE).stdout
    for line in output.splitlines():
        what, at, plugin, value = line.split("\t")
        result[what][int(plugin)][int(at)] = float(value)
    return result


def benchmarks():
    """The best of three runs of each: ns, of a unit where the benchmark counts them; or thousand millions a second."""
    output = subprocess.run([PROGRAMS / "korvane_bench", "--benchmark_format=json", "--benchmark_repetitions=3",
                             "--benchmark_min_time=0.05"], check=True, stdout=subprocess.PIPE).stdout
    best = {}
    for row in json.loads(output)["benchmarks"]:
        if row["run_type"] != "iteration":
            continue
        name = row["run_name"]
        value = row["real_time" if name.endswith("manual_time") else "cpu_time"] * UNITS[row["time_unit"]]
        value = next((row[counter] for counter in row if counter.startswith("ns/")), value)
        if "Row/" in name:
            best[name] = max(best.get(name, 0.0), row["items_per_second"] / 1e9)
        elif not name.endswith("/iterations:1"):
            best[name] = min(best.get(name, value), value)
        else:
            best.setdefault(name, value)  # the first time in a process
    return best


def table(head, rows):
    lines = [head, ["---"] * len(head), *rows]
    return "".join("| " + " | ".join(line) + " |\n" for line in lines)


def bench_table(name, best):
    head, rows = TABLES[name]
    cells = [(text, " / ".join(number(best[b] / UNITS[unit]) for b in names) + (f" {unit}" if unit and head != "ns" else ""))
             for text, unit, names in rows if all(b in best for b in names)]
    return table(["What", head], cells)


# Kernels with benchmarks of their own: the row's text, the plain form's benchmark, those of the instruction sets.
KERNELS = [
    ("unison loop, 16-fold, all sources, unison voice",
     *(f"BM_Unison/isa:{isa}/kind:0/unison:16/all:1/frames:128/cycle:100" for isa in (3, 0, 1, 2))),
    ("unison loop, one voice, oscillator 1 alone, voice",
     *(f"BM_Unison/isa:{isa}/kind:0/unison:1/all:0/frames:128/cycle:100" for isa in (3, 0, 1, 2))),
    ("sample layers, 16 at once, stereo, layer",
     *(f"BM_Layers/isa:{isa}/layers:16/frames:128/sides:2" for isa in (-1, 0, 1, 2))),
    ("LFOs, envelopes, gain, glide, cutoff of 20 voices, voice",
     *(f"VoiceMotionKernel/isa:{isa}/voices:20/acting:1/frames:128" for isa in (3, 0, 1, 2))),
    ("reverb sends of 13 channels, channel", "ReverbSendsPlain", *(f"ReverbSends/{isa}/13/128" for isa in range(3))),
    ("sine of an effect's LFO", "SinesPlain", *(f"SinesOfFrames/{isa}" for isa in range(3))),
]


def kernel_table(best):
    """Of benchmarks with names "Kernel/KERNEL/FORM", or of all channels in blocks of 128, and of KERNELS: the plain
    form and each instruction set's."""
    kernels = defaultdict(dict)
    for text, *names in KERNELS:
        kernels[text] = {form: best[name] for form, name in zip(["plain", *instruction_sets()], names)}
    for name, value in best.items():
        first, *words = name.split("/")
        if first == "Kernel" and words[2:] in ([], ["13", "128"]):
            kernels[words[0]][words[1]] = value
    forms = ["plain", *instruction_sets()]
    rows = [[name, number(values["plain"])] +
            [f"{number(values[form])} ({values['plain'] / values[form]:.1f} ×)" for form in forms[1:]]
            for name, values in kernels.items()]
    return table(["Kernel, ns per unit and frame", *forms], rows)


def times(ns):
    return number(1e9 / RATE / ns)


def load_table(whole, by_isa):
    rows = [[text, number(whole[load][0][0]), times(whole[load][0][0]), times(whole[load + " dearest"][0][0]),
             *(times(values[load][0][0]) for values in by_isa.values())] for load, text in LOADS.items()]
    return table(["Load", "ns per frame", "× real time", "dearest quarter second", *by_isa], rows)


def block_table(blocks):
    rows = []
    for load, text in LOADS.items():
        if values := blocks.get("blocks of " + load, {}).get(0):
            rows.append([text, *(number(values[n]) for n in (1, 16, 128, 1024, 4096)), f"{values[1] / values[128]:.1f}"])
    return table(["ns per frame in blocks of", "1", "16", "128", "1024", "4096", "1 against 128"], rows)


def memory_table(memory):
    megabytes = memory["megabytes of instances"][0]
    return table(["Instances that play, 48 kHz", ""], [
        ["Memory of the first", number(megabytes[1]) + " MB"],
        ["Memory of twenty, each", number(megabytes[20] / 20) + " MB"],
        ["Opening one after the first", number(memory["milliseconds to open"][0][2]) + " ms"]])


def write_tables(tables):
    page = ROOT / "docs" / "performance.md"
    text = page.read_text()
    for name, rows in tables.items():
        pattern = rf"(<!-- table {name} -->\n).*?(<!-- end -->)"
        text, found = re.subn(pattern, lambda m: m[1] + rows + m[2], text, flags=re.S)
        if not found:
            sys.exit(f"korvane: docs/performance.md has no place for the table {name}")
    page.write_text(text)


def compare_plugins(rows):
    for what, values in rows.items():
        for at in values[0]:
            before, now = values[1][at], values[0][at]
            print(f"{what:24} {at or '':5} {number(before):>8} became {number(now):>8} ns per frame: {before / now:.2f} ×")


def count_instructions(isa):
    """Of half a second of each load, without what comes before it."""
    counts = {}
    with tempfile.TemporaryDirectory() as folder:
        for load in LOADS:
            out = Path(folder) / load
            command = ["valgrind", "-q", "--tool=callgrind", "--collect-atstart=no", "--toggle-collect=*CountedBlocks*",
                       f"--callgrind-out-file={out}", PROGRAMS / "korvane-loads", "count", load]
            subprocess.run(command, env=os.environ | {"KORVANE_ISA": isa}, check=True, stderr=subprocess.DEVNULL)
            counts[load] = int(re.search(r"^(?:summary|totals): (\d+)", out.read_text(), re.M)[1])
    return counts


def compare_counts(accept):
    """Whether a load takes over a tenth more than was kept; valgrind knows no AVX-512."""
    isa = "avx2" if "avx2" in instruction_sets() else "sse2"
    counts = count_instructions(isa)
    kept = json.loads(KEPT.read_text()).get(isa, {}) if KEPT.exists() else {}
    worse = False
    for load, count in counts.items():
        before = kept.get(load, count)
        regression = count > 1.1 * before
        worse |= regression
        print(f"{'REGRESSION ' if regression else ''}{load}: {count:,} instructions ({isa}), kept {before:,}: "
              f"{100.0 * (count / before - 1.0):+.1f} %")
    if accept or not kept:
        everything = json.loads(KEPT.read_text()) if KEPT.exists() else {}
        KEPT.write_text(json.dumps(everything | {isa: counts}, indent=2) + "\n")
    return worse and not accept


def measure(others):
    plugins = [ROOT / "build" / "Korvane" / "korvane.so", *others]
    whole, blocks, scaling = (loads(section, plugins) for section in ("whole", "blocks", "scaling"))
    by_isa = {isa: loads("whole", plugins[:1], isa) for isa in instruction_sets()}
    best = benchmarks()
    write_tables({"loads": load_table(whole, by_isa), "blocks": block_table(blocks),
                  "memory": memory_table(loads("memory", plugins[:1])), "isa": kernel_table(best),
                  **{name: bench_table(name, best) for name in TABLES}})
    pictures.scaling(ROOT / "docs/pictures/scaling.svg", scaling, blocks)
    pictures.stages(ROOT / "docs/pictures/stages.svg", loads("stages", plugins[:1]))
    if others:
        compare_plugins(whole | blocks | scaling)


def main(sections, *arguments):
    if sections == "all":
        measure([word for word in arguments if word != "--accept"])
    return 1 if compare_counts("--accept" in arguments) else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))

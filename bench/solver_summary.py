#!/usr/bin/env python3
"""Sums up `quorvale-cli solve` lines: one table row per file given."""
import json
import statistics
import sys

print("| Game, deals | decided | winnable | lost | unknown | median ms | 90th ms | max ms | peak MB | positions/s |")
print("|---|---|---|---|---|---|---|---|---|---|")
for path in sys.argv[1:]:
    lines = [json.loads(l) for l in open(path)]
    ms = sorted(l["ms"] for l in lines)
    count = {v: sum(l["verdict"] == v for l in lines) for v in ("winnable", "lost", "unknown")}
    rate = sum(l["positions"] for l in lines) / max(1, sum(ms)) * 1000
    name = path.rsplit("/", 1)[-1].rsplit(".", 1)[0]
    print(f"| {name} | {count['winnable'] + count['lost']}/{len(lines)} | {count['winnable']} | {count['lost']} | "
          f"{count['unknown']} | {statistics.median(ms):.0f} | {ms[int(0.9 * (len(ms) - 1))]} | {ms[-1]} | "
          f"{max(l['peak_mb'] for l in lines):.0f} | {rate:,.0f} |")

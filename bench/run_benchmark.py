#!/usr/bin/env python3
"""Times the validator against a bare parse of the same model sets.

One command (see bench/README.md):

    bench/run_benchmark.py --build build

builds the validator and the bare parse program in the given build folder,
generates the model sets (cached in BUILD/bench-data; the generator is
deterministic), and runs, in interleaved rounds, on every set:

    bare    zef_bare_parse SET                      (the floor: XML reading only)
    level3  zef_model_validator -q -d SET           ZEF_VALIDATOR_LOGGING_LEVEL=3
    level8  zef_model_validator -q -d SET           default level (8: full trace)

It reports medians of wall seconds, CPU seconds (user + system of the child),
MB/s, peak resident memory, bytes of log written (all writes of the child
but its standard output and error, so rotated-away files count too), and the
ratios to the bare parse; then checks the targets on the 64 MB sets. Every
ratio is taken within each round, between runs seconds apart, and the median
of those is reported: a slow phase of a shared machine then weighs on both
sides of a ratio instead of on one.
"""

import argparse
import hashlib
import math
import os
import shutil
import statistics
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
MIB = 1024.0 * 1024.0


def run_child(launcher, argv, env, out_dir):
    """Runs argv through the launcher; returns (status, wall s, cpu s, peak RSS bytes, bytes written, stdout)."""
    stdout_path = os.path.join(out_dir, "stdout")
    stderr_path = os.path.join(out_dir, "stderr")
    figures_path = os.path.join(out_dir, "figures")
    with open(stdout_path, "wb") as out, open(stderr_path, "wb") as err:
        subprocess.run([launcher, figures_path] + argv, env=env, stdout=out, stderr=err, stdin=subprocess.DEVNULL,
                       check=True)
    with open(figures_path) as f:
        status, wall, cpu, rss_kib, written = f.read().split()
    captured = os.path.getsize(stdout_path) + os.path.getsize(stderr_path)
    with open(stdout_path, "r", errors="replace") as f:
        text = f.read()
    written = int(written)
    if written >= 0:
        written = max(0, written - captured)
    return int(status), float(wall), float(cpu), int(rss_kib) * 1024, written, text


def set_size(folder):
    return sum(os.path.getsize(os.path.join(folder, n)) for n in os.listdir(folder) if n.endswith(".xml"))


def ensure_set(data, name, size_mb, single, seed):
    folder = os.path.join(data, name)
    stamp = os.path.join(folder, ".options")
    with open(os.path.join(HERE, "gen_models.py"), "rb") as f:
        generator = hashlib.sha256(f.read()).hexdigest()[:16]
    options = "size=%s single=%s seed=%d generator=%s" % (size_mb, single, seed, generator)
    if os.path.exists(stamp) and open(stamp).read() == options:
        return folder
    argv = [sys.executable, os.path.join(HERE, "gen_models.py"), "--out", folder, "--size-mb", str(size_mb),
            "--seed", str(seed)]
    if single:
        argv.append("--single-mom")
    subprocess.run(argv, check=True)
    with open(stamp, "w") as f:
        f.write(options)
    return folder


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", required=True, help="CMake build folder (configured with CMAKE_BUILD_TYPE=Release)")
    parser.add_argument("--sizes", default="1,4,16,32,64", help="sizes in MB of the many-MOM sets")
    parser.add_argument("--rounds", type=int, default=5)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--data", help="folder of the generated sets (default BUILD/bench-data)")
    parser.add_argument("--no-build", action="store_true", help="use the binaries as they are")
    args = parser.parse_args()

    build = os.path.abspath(args.build)
    if not args.no_build:
        subprocess.run(["cmake", "--build", build, "--target", "zef_model_validator", "zef_bare_parse",
                        "zef_bench_run"],
                       check=True, stdout=subprocess.DEVNULL)
    validator = os.path.join(build, "bin", "zef_model_validator")
    bare = os.path.join(build, "bin", "zef_bare_parse")
    launcher = os.path.join(build, "bin", "zef_bench_run")
    data = os.path.abspath(args.data or os.path.join(build, "bench-data"))
    os.makedirs(data, exist_ok=True)

    sizes = [float(s) for s in args.sizes.split(",")]
    sets = []   # (label, folder, bytes)
    for size in sizes:
        label = "%g MB" % size
        folder = ensure_set(data, "m%g" % size, size, False, args.seed)
        sets.append((label, folder, set_size(folder)))
    if 64 in sizes:
        folder = ensure_set(data, "s64", 64, True, args.seed)
        sets.append(("64 MB, one MOM", folder, set_size(folder)))

    scratch = tempfile.mkdtemp(prefix="zef-bench-")
    base_env = {k: v for k, v in os.environ.items()
                if not k.startswith("ZEF_LOGGING_") and not k.startswith("ZEF_VALIDATOR_")}
    base_env["TMPDIR"] = scratch
    log_dir = os.path.join(scratch, "log")
    programs = [
        ("bare", lambda folder: [bare, folder], {}),
        ("level3", lambda folder: [validator, "-q", "-d", folder], {"ZEF_VALIDATOR_LOGGING_LEVEL": "3"}),
        ("level8", lambda folder: [validator, "-q", "-d", folder], {}),
    ]
    results = {}   # (set label, program) -> list of samples
    loads = []     # 1-minute load average before each round, and at the end
    try:
        for round_no in range(1, args.rounds + 1):
            loads.append(os.getloadavg()[0])
            for label, folder, _ in sets:
                for name, argv_of, extra in programs:
                    shutil.rmtree(log_dir, ignore_errors=True)
                    os.makedirs(log_dir)
                    env = dict(base_env)
                    env.update(extra)
                    env["ZEF_VALIDATOR_LOGGING_FNAME"] = os.path.join(log_dir, "validator.log")
                    status, wall, cpu, rss, written, text = run_child(launcher, argv_of(folder), env, scratch)
                    if status != 0 or (name != "bare" and "Model seems valid" not in text):
                        sys.exit("%s on %s failed (status %d):\n%s" % (name, label, status, text))
                    results.setdefault((label, name), []).append((wall, cpu, rss, written))
            sys.stderr.write("round %d of %d done\n" % (round_no, args.rounds))
            sys.stderr.flush()
        loads.append(os.getloadavg()[0])
    finally:
        shutil.rmtree(scratch, ignore_errors=True)

    def med(label, name, index):
        return statistics.median(sample[index] for sample in results[(label, name)])

    def ratio(label, name, base_label, base_name, index):
        """The median over the rounds of one run's figure divided by another's of the same round."""
        return statistics.median(run[index] / base[index]
                                 for run, base in zip(results[(label, name)], results[(base_label, base_name)]))

    print("Medians of %d interleaved rounds; ratios are to the bare parse of the same files, taken within each round"
          % args.rounds)
    print("(the median of the per-round ratios).")
    print("Load average (1 min) before each round and at the end: %s (on %d cores)." % (
        ", ".join("%.2f" % load for load in loads), os.cpu_count() or 0))
    print()
    print("| set | files | MB | run | wall s | CPU s | MB/s | peak RSS MB | log MB | wall ratio | CPU ratio |")
    print("|---|---:|---:|---|---:|---:|---:|---:|---:|---:|---:|")
    for label, folder, size in sets:
        files = len([n for n in os.listdir(folder) if n.endswith(".xml")])
        for name, _, _ in programs:
            wall = med(label, name, 0)
            cpu = med(label, name, 1)
            print("| %s | %d | %.1f | %s | %.3f | %.3f | %.1f | %.1f | %.1f | %.2f | %.2f |" % (
                label, files, size / MIB, name, wall, cpu, size / MIB / wall, med(label, name, 2) / MIB,
                med(label, name, 3) / MIB, ratio(label, name, label, "bare", 0), ratio(label, name, label, "bare", 1)))

    if 64 not in sizes or 16 not in sizes:
        return
    print()
    print("Targets on the 64 MB sets (wall / CPU):")
    checks = []
    m64 = "64 MB"
    for name, limit in (("level3", 1.5), ("level8", 3.0)):
        wall = ratio(m64, name, m64, "bare", 0)
        cpu = ratio(m64, name, m64, "bare", 1)
        checks.append(("%s within %.1fx the bare parse" % (name, limit), wall, cpu, limit))
    ladder = [s for s in (16, 32, 64) if s in sizes]
    for small, large in zip(ladder, ladder[1:]):
        steps = int(round(math.log2(large / small)))
        for name in ("level3", "level8"):
            wall = ratio("%g MB" % large, name, "%g MB" % small, name, 0) ** (1.0 / steps)
            cpu = ratio("%g MB" % large, name, "%g MB" % small, name, 1) ** (1.0 / steps)
            checks.append(("%s: time per doubling %g -> %g MB at most 2.1x" % (name, small, large), wall, cpu, 2.1))
    single = "64 MB, one MOM"
    for name in ("level3", "level8"):
        wall = ratio(single, name, m64, name, 0)
        cpu = ratio(single, name, m64, name, 1)
        checks.append(("%s: the one-MOM set within 1.5x the many-MOM set" % name, wall, cpu, 1.5))
    m64_size = [s for l, _, s in sets if l == m64][0]
    for name in ("level3", "level8"):
        rss = med(m64, name, 2) / m64_size
        checks.append(("%s: peak RSS at most 2.5x the size of the model files (RSS / size, twice)" % name, rss,
                       rss, 2.5))
    for text, wall, cpu, limit in checks:
        if max(wall, cpu) <= limit:
            verdict = "met"
        elif min(wall, cpu) <= limit:
            verdict = "met by %s time only" % ("wall" if wall <= limit else "CPU")
        else:
            verdict = "MISSED"
        print("- %s: %.2f / %.2f  %s" % (text, wall, cpu, verdict))


if __name__ == "__main__":
    main()

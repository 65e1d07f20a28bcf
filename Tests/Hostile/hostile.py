#!/usr/bin/python3
"""Runs `reframe` over damaged videos and crop tracks and reports every run that does not end as it should.

  hostile.py --program REFRAME [--runs 400] [--seed 1] [--jobs N] [--only RUN] [--work FOLDER]

A run ends as it should with exit status 0, 1 or 2, an error message where it is not 0 and the files that were asked for where it is, within
the time and memory limits, without a leak or another report of a sanitizer and without a temporary file left behind. Everything follows from
--seed and the number of the run: --only repeats one run. The inputs of failing runs are kept in FOLDER/findings.
"""
import argparse, concurrent.futures, json, os, random, shutil, subprocess, sys, tempfile, threading, time

here = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, here)
sys.dont_write_bytecode = True
import mutations, samples

CPU_SECONDS = 60
# A machine that is busy with other work may take much longer than the processor time.
WALL_SECONDS = 300
MEMORY_MB = 1024
# Shadow memory, red zones and the quarantine of AddressSanitizer come on top of what the program itself takes.
SANITIZED_MEMORY_MB = 2560
SANITIZER_STATUS = 99
REPORTS = (b'AddressSanitizer', b'LeakSanitizer', b'ThreadSanitizer', b'runtime error:')


def is_sanitized(program):
    libraries = subprocess.run(['ldd', program], capture_output=True, text=True).stdout
    return 'libasan' in libraries


def environment():
    result = dict(os.environ, QT_QPA_PLATFORM='offscreen', KX_CACHE='none', KX_MODELS='none', KX_CONFIG_FILE=os.path.join(here, 'no-such-config.ini'))
    result['ASAN_OPTIONS'] = ('detect_leaks=1:allocator_may_return_null=1:quarantine_size_mb=32:exitcode=%d' % SANITIZER_STATUS)
    result['LSAN_OPTIONS'] = 'suppressions=%s:print_suppressions=0' % os.path.join(here, '..', 'Support', 'lsan.supp')
    result['UBSAN_OPTIONS'] = 'print_stacktrace=1:halt_on_error=1:exitcode=%d' % SANITIZER_STATUS
    return result


class Run:
    """One mutated input, the command over it and how it ended."""

    def __init__(self, seed, number, inputs):
        self.number = number
        chance = random.Random('%d/%d' % (seed, number))
        self.files = {}
        if chance.random() < 0.12:
            self.choose_track(chance, inputs)
        else:
            self.choose_video(chance, inputs)
        self.options += ['--aspect', chance.choice(['9:16', '1:1', '4:5', '16:9', '2:1'])]

    def choose_video(self, chance, inputs):
        at = chance.randrange(len(inputs.videos))
        sample = samples.SAMPLES[at]
        data, self.kinds = mutations.mutate_media(chance, inputs.videos[at], sample, inputs.videos)
        self.input = 'input' + os.path.splitext(sample.name)[1]
        self.files[self.input] = data
        self.source = sample.name
        mode = chance.random()
        if mode < 0.62:
            self.options, self.expected = ['--no-video', '--keyframes', 'out.json'], ['out.json']
        elif mode < 0.90:
            self.options, self.expected = ['--output', 'out.mp4'], ['out.mp4']
        elif mode < 0.94:
            self.options, self.expected = ['--no-video', '--preview', 'out.png'], ['out.png']
        elif mode < 0.97:
            self.options, self.expected = ['--no-video', '--preview', 'shown.mp4'], ['shown.mp4']
        else:
            self.options, self.expected = ['--no-video', '--report', 'out.html', '--json'], ['out.html']

    def choose_track(self, chance, inputs):
        track = chance.choice(sorted(inputs.tracks))
        self.input, self.source = samples.TRACKED, track
        self.files[track], self.kinds = mutations.mutate_track(chance, inputs.tracks[track])
        self.files[self.input] = inputs.tracked
        self.options, self.expected = ['--apply', track, '--output', 'out.mp4'], ['out.mp4']

    def perform(self, program, sanitized, folder):
        """What is wrong with the run, or None."""
        for name, data in self.files.items():
            with open(os.path.join(folder, name), 'wb') as file:
                file.write(data)
        command = ['prlimit', '--cpu=%d' % CPU_SECONDS, '--core=0'] + ([] if sanitized else ['--as=%d' % (6 << 30)])
        self.command = [program, '--overwrite'] + self.options + [self.input]
        with open(os.path.join(folder, 'log'), 'wb') as log:
            process = subprocess.Popen(command + self.command, cwd=folder, env=environment(), stdin=subprocess.DEVNULL,
                                       stdout=log, stderr=subprocess.STDOUT)
            late = threading.Event()
            timer = threading.Timer(WALL_SECONDS, lambda: (late.set(), process.kill()))
            timer.start()
            started = time.monotonic()
            _, status, usage = os.wait4(process.pid, 0)
            timer.cancel()
        self.seconds = time.monotonic() - started
        self.memory_mb = usage.ru_maxrss // 1024
        process.returncode = self.status = os.waitstatus_to_exitcode(status)
        return 'hang' if late.is_set() else self.judge(folder, sanitized)

    def judge(self, folder, sanitized):
        with open(os.path.join(folder, 'log'), 'rb') as log:
            text = log.read()
        if self.status == -24:
            return 'hang'
        if self.status == SANITIZER_STATUS or any(report in text for report in REPORTS):
            return 'sanitizer'
        if self.status < 0:
            return 'signal-%d' % -self.status
        if self.status not in (0, 1, 2):
            return 'status-%d' % self.status
        if self.memory_mb > (SANITIZED_MEMORY_MB if sanitized else MEMORY_MB):
            return 'memory-%d-MB' % self.memory_mb
        if self.status != 0 and not text.strip():
            return 'no-message'
        if self.status == 0 and not all(os.path.exists(os.path.join(folder, name)) for name in self.expected):
            return 'no-result'
        if any(name.endswith('.part') for name in os.listdir(folder)):
            return 'temporary-file'
        return None


class Inputs:
    """The undamaged files in memory."""

    def __init__(self, folder):
        self.videos = []
        for path in samples.make_all(folder):
            with open(path, 'rb') as file:
                self.videos.append(file.read())
        names = [sample.name for sample in samples.SAMPLES]
        self.tracked = self.videos[names.index(samples.TRACKED)]
        frames = [[0.3 + 0.005 * n, 0.0, 0.375, 1.0] for n in range(36)]
        track = {'version': 1, 'source': {'path': samples.TRACKED, 'width': 96, 'height': 64, 'frame_count': 36, 'frame_rate': [36, 1]},
                 'aspect': [9, 16], 'speed': 'auto', 'frames': frames}
        rows = ['frame,x,y,w,h'] + ['%d,%s' % (n, ','.join(map(str, frame))) for n, frame in enumerate(frames)]
        self.tracks = {'track.json': json.dumps(track).encode(), 'track.csv': '\n'.join(rows + ['']).encode()}


def reads_undamaged(program, inputs):
    """Whether the program reads every sample as it was made."""
    reads = True
    for sample, data in zip(samples.SAMPLES, inputs.videos):
        with tempfile.TemporaryDirectory(prefix='hostile-') as folder:
            with open(os.path.join(folder, sample.name), 'wb') as file:
                file.write(data)
            result = subprocess.run([program, '--no-video', '--quiet', sample.name], cwd=folder, env=environment(),
                                    stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if result.returncode != 0:
            print('%s is not read undamaged: %s' % (sample.name, result.stdout), flush=True)
            reads = False
    return reads


def keep(run, fault, folder, findings):
    target = os.path.join(findings, '%d-%s' % (run.number, fault))
    shutil.rmtree(target, ignore_errors=True)
    shutil.copytree(folder, target)
    with open(os.path.join(target, 'command'), 'w') as file:
        file.write(' '.join("'%s'" % part for part in run.command) + '\n')
    return target


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--program', required=True)
    parser.add_argument('--runs', type=int, default=400)
    parser.add_argument('--seed', type=int, default=1)
    parser.add_argument('--jobs', type=int, default=os.cpu_count())
    parser.add_argument('--only', type=int, metavar='RUN')
    parser.add_argument('--work', default=os.path.join(tempfile.gettempdir(), 'reframe-hostile'))
    arguments = parser.parse_args()
    program = os.path.abspath(arguments.program)
    sanitized = is_sanitized(program)
    inputs = Inputs(os.path.join(arguments.work, 'samples'))
    findings = os.path.join(arguments.work, 'findings')
    numbers = range(arguments.runs) if arguments.only is None else [arguments.only]

    def one(number):
        run = Run(arguments.seed, number, inputs)
        with tempfile.TemporaryDirectory(prefix='hostile-') as folder:
            fault = run.perform(program, sanitized, folder)
            kept = keep(run, fault, folder, findings) if fault or arguments.only is not None else None
        # The peak memory of a new process starts from that of this one, so this one stays small.
        run.files.clear()
        return run, fault, kept

    if arguments.only is None and not reads_undamaged(program, inputs):
        return 1
    faults, statuses, slowest, largest, done = 0, {}, 0.0, 0, 0
    with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
        for run, fault, kept in pool.map(one, numbers):
            done += 1
            statuses[run.status] = statuses.get(run.status, 0) + 1
            slowest, largest = max(slowest, run.seconds), max(largest, run.memory_mb)
            if fault:
                faults += 1
                print('run %d: %s: %s %s -> %s' % (run.number, fault, run.source, '+'.join(run.kinds), kept), flush=True)
            if done % 100 == 0 and done < len(numbers):
                print('%d of %d runs, %d findings' % (done, len(numbers), faults), flush=True)
    print('%d runs with seed %d, %d findings; exit status %s; slowest %.1f s, largest %d MB' % (
        done, arguments.seed, faults, ', '.join('%d: %d' % pair for pair in sorted(statuses.items())), slowest, largest))
    # Mutations that damage nothing or everything test nothing.
    if done >= 100 and min(statuses.get(0, 0), statuses.get(1, 0)) < done // 20:
        print('Too few runs failed or too few succeeded: the mutations do not test the program.')
        return 1
    return 1 if faults else 0


if __name__ == '__main__':
    sys.exit(main())

#!/usr/bin/env python3
"""Planted faults: proves that the test suite notices small slips in kvt/.

Each fault of the list (faults/faults.txt) swaps one exact piece of text
in one file of kvt/ for a slightly wrong one. The script copies the work
tree into a scratch folder once, configures and builds it once, then for
each fault alone: plants it, rebuilds the GoogleTest programs that it needs
and runs them, fastest route first, until one fails. A fault that a test
notices is caught; one that every test lets through is missed, and means a
hole in the tests. The file is put back after every fault, also when the
run is interrupted.

    scripts/faults.py                      every fault of the list
    scripts/faults.py --only 'sprite'      the faults whose id or file matches
    scripts/faults.py --check              checks the list alone, builds nothing

The exit status is 0 when every fault not marked equivalent was caught and
the list has no errors, 1 otherwise.
"""

import argparse
import dataclasses
import getpass
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
DEFAULT_LIST = os.path.join(ROOT, 'faults', 'faults.txt')

# The GoogleTest programs, one per folder of tests/ (see tests/CMakeLists.txt):
# tests/ui/core -> kvt_ui_core_tests. The window, valgrind, packaging,
# bench, fuzz and compat tests are not among them and never run here.
TEST_PREFIX = 'kvt_'
TEST_SUFFIX = '_tests'

# Tests left out of every fault's run because they are slow and what they
# look at is covered by faster ones. The event storm drives 100000 random
# events through every widget at every format, which is nearly all the
# time of kvt_ui_core_tests; the widget tests of each folder check the same
# code event by event, and with the storm back no fault of the list that
# they miss was caught. --slow puts them back.
SLOW_TESTS = {
    'kvt_ui_core_tests': ['Formats/EventStorm.*'],
}

KEYS = ('id', 'file', 'why', 'old', 'new', 'equivalent')


@dataclasses.dataclass
class Fault:
    id: str
    file: str
    why: str
    old: str
    new: str
    equivalent: str  # empty unless the entry says why no caller can tell
    line: int        # where the entry starts in the list


@dataclasses.dataclass
class Outcome:
    fault: Fault
    status: str      # caught, missed, error
    detail: str      # the failing test, or what went wrong
    seconds: float   # in all, of which:
    building: float = 0.0
    testing: float = 0.0


class RunError(Exception):
    """The run cannot start: the copy does not configure, build or pass."""
    pass


# ---------------------------------------------------------------- the list

def parse_list(path):
    """Reads the fault list. An entry starts at its `id:` line; `old:` and
    `new:` may repeat, each adding one line of text. One space after the
    colon separates key and value; everything after it is the value."""
    faults, errors = [], []
    entry, start = None, 0

    def finish():
        if entry is None:
            return
        missing = [k for k in ('file', 'why', 'old', 'new') if k not in entry]
        if missing:
            errors.append(f'{path}:{start}: entry {entry["id"]!r} lacks {", ".join(missing)}')
            return
        faults.append(Fault(entry['id'], entry['file'], entry['why'], '\n'.join(entry['old']),
                            '\n'.join(entry['new']), entry.get('equivalent', ''), start))

    with open(path, encoding='utf-8') as f:
        for number, raw in enumerate(f, 1):
            line = raw.rstrip('\n')
            if not line.strip() or line.lstrip().startswith('#'):
                continue
            key, colon, value = line.partition(':')
            if not colon or key not in KEYS:
                errors.append(f'{path}:{number}: not "key: value" with a known key: {line!r}')
                continue
            if value.startswith(' '):
                value = value[1:]
            if key == 'id':
                finish()
                entry, start = {'id': value.strip()}, number
                continue
            if entry is None:
                errors.append(f'{path}:{number}: {key} before the first id')
                continue
            if key in ('old', 'new'):
                entry.setdefault(key, []).append(value)
            elif key in entry:
                errors.append(f'{path}:{number}: second {key} in {entry["id"]!r}')
            else:
                entry[key] = value.strip()
    finish()
    seen = set()
    for fault in faults:
        if fault.id in seen:
            errors.append(f'{path}:{fault.line}: id {fault.id!r} used twice')
        seen.add(fault.id)
    return faults, errors


def check_fault(fault, tree):
    """The list's promise for one fault: a file under kvt/ in which the
    original text occurs exactly once and differs from the replacement."""
    if not fault.file.startswith('kvt/') or '..' in fault.file.split('/'):
        return f'{fault.id}: {fault.file} is not a file under kvt/'
    path = os.path.join(tree, fault.file)
    if not os.path.isfile(path):
        return f'{fault.id}: {fault.file} does not exist'
    if fault.old == fault.new:
        return f'{fault.id}: the replacement is the original'
    with open(path, encoding='utf-8') as f:
        count = f.read().count(fault.old)
    if count != 1:
        return f'{fault.id}: the original occurs {count} times in {fault.file}, not once'
    return None


# ---------------------------------------------------------------- the tree

def tree_files():
    """The files of the work tree as it is now: every tracked file that
    still exists, with its changes, and every new file that git does not
    ignore (a change in progress may need both)."""
    out = subprocess.run(['git', 'ls-files', '-z', '--cached', '--others', '--exclude-standard'],
                         cwd=ROOT, check=True, capture_output=True).stdout
    names = sorted({n for n in out.decode().split('\0') if n})
    return [n for n in names if os.path.isfile(os.path.join(ROOT, n))]


def sync_tree(src):
    """Makes `src` a copy of the work tree. Files whose bytes are already
    there are left alone, so that their build products stay valid and a
    second run rebuilds only what changed."""
    names = tree_files()
    wanted = set(names)
    for name in names:
        origin, copy = os.path.join(ROOT, name), os.path.join(src, name)
        with open(origin, 'rb') as f:
            data = f.read()
        if os.path.isfile(copy):
            with open(copy, 'rb') as f:
                if f.read() == data:
                    continue
        os.makedirs(os.path.dirname(copy), exist_ok=True)
        shutil.copy2(origin, copy)
        os.utime(copy)  # newer than anything built from the old copy
    for folder, _, files in os.walk(src):
        for name in files:
            rel = os.path.relpath(os.path.join(folder, name), src)
            if rel not in wanted:
                os.remove(os.path.join(folder, name))
    return len(names)


def test_programs(src):
    """The GoogleTest program of every folder of tests/ that has tests."""
    programs = set()
    tests = os.path.join(src, 'tests')
    for folder, _, files in os.walk(tests):
        if any(f.endswith('_test.cpp') for f in files):
            rel = os.path.relpath(folder, tests).replace(os.sep, '_')
            programs.add(TEST_PREFIX + rel + TEST_SUFFIX)
    return sorted(programs)


def own_program(fault, programs):
    """The program of the fault's own folder (kvt/ui/edit -> kvt_ui_edit_tests),
    or of the nearest folder above it that has one."""
    parts = os.path.dirname(fault.file).split('/')[1:]
    parts = [p for p in parts if p != 'internal']
    while parts:
        name = TEST_PREFIX + '_'.join(parts) + TEST_SUFFIX
        if name in programs:
            return name
        parts.pop()
    return None


# ---------------------------------------------------------------- running

class Runner:
    def __init__(self, args, work):
        self.args = args
        self.src = os.path.join(work, 'src')
        self.build = os.path.join(work, 'build')
        self.logs = os.path.join(work, 'logs')
        # The tests' temporary files go here, and it is emptied after each
        # program: a test that a fault makes crash leaves its files behind.
        self.tmp = os.path.join(work, 'tmp')
        self.programs = []
        self.baseline = {}  # program -> seconds of the unfaulted run
        self.timeout = args.timeout

    def log(self, *parts):
        print(*parts, flush=True)

    def cmake_build(self, targets, log_path, mode='w'):
        with open(log_path, mode) as log:
            result = subprocess.run(['cmake', '--build', self.build, '-j', str(self.args.jobs),
                                     '--target', *targets], stdout=log, stderr=subprocess.STDOUT)
        return result.returncode == 0

    def prepare(self):
        os.makedirs(self.src, exist_ok=True)
        os.makedirs(self.logs, exist_ok=True)
        count = sync_tree(self.src)
        self.log(f'copied the work tree ({count} files) into {self.src}')
        self.programs = test_programs(self.src)
        # Release, with the test list read when ctest runs rather than by
        # running each program after every link.
        configure = ['cmake', '-S', self.src, '-B', self.build, '-DCMAKE_BUILD_TYPE=Release',
                     '-DKVT_BUILD_TESTS=ON', '-DKVT_BUILD_BENCH=OFF',
                     '-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST']
        with open(os.path.join(self.logs, 'configure.txt'), 'w') as log:
            if subprocess.run(configure, stdout=log, stderr=subprocess.STDOUT).returncode != 0:
                raise RunError(f'configuring failed: see {log.name}')
        start = time.monotonic()
        build_log = os.path.join(self.logs, 'build.txt')
        if not self.cmake_build(self.programs, build_log):
            raise RunError(f'the unfaulted tree does not build: see {build_log}')
        self.log(f'built {len(self.programs)} test programs in {time.monotonic() - start:.0f} s')
        # The unfaulted suite must pass, or no fault can be judged; its
        # times order the programs and set the time limit.
        for program in self.programs:
            result = self.run_program(program, None, os.path.join(self.logs, 'baseline.txt'))
            if result[0] != 'pass':
                raise RunError(f'{program} fails without any fault ({result[1]}): see '
                                f'{os.path.join(self.logs, "baseline.txt")}')
            self.baseline[program] = result[2]
        total = sum(self.baseline.values())
        if self.timeout is None:
            self.timeout = max(30.0, 10 + 4 * total)
        self.log(f'the unfaulted tests take {total:.1f} s; each fault may take '
                 f'{self.timeout:.0f} s of tests')

    def gtest_args(self, program):
        args = ['--gtest_fail_fast', '--gtest_color=no']
        if not self.args.slow and program in SLOW_TESTS:
            args.append('--gtest_filter=-' + ':'.join(SLOW_TESTS[program]))
        return args

    def run_program(self, program, deadline, log_path):
        """('pass' | 'fail', what failed, seconds). Past the deadline the
        program's whole process group is killed and the fault counts as
        caught by the time limit."""
        exe = os.path.join(self.build, 'tests', program)
        env = dict(os.environ, SDL_VIDEODRIVER='dummy', GTEST_COLOR='no', TMPDIR=self.tmp)
        shutil.rmtree(self.tmp, ignore_errors=True)
        os.makedirs(self.tmp)
        start = time.monotonic()
        limit = None if deadline is None else max(1.0, deadline - start)
        with open(log_path, 'w') as log:
            process = subprocess.Popen([exe, *self.gtest_args(program)], cwd=os.path.dirname(exe),
                                       stdout=log, stderr=subprocess.STDOUT, env=env,
                                       start_new_session=True)
            timed_out = False
            try:
                process.wait(timeout=limit)
            except subprocess.TimeoutExpired:
                timed_out = True
            finally:
                if process.poll() is None:
                    os.killpg(process.pid, signal.SIGKILL)
                    process.wait()
                shutil.rmtree(self.tmp, ignore_errors=True)
        seconds = time.monotonic() - start
        with open(log_path, errors='replace') as log:
            output = log.read()
        if timed_out:
            return 'fail', f'{program}: time limit in {last_started(output)}', seconds
        if process.returncode == 0:
            return 'pass', '', seconds
        failed = re.search(r'^\[  FAILED  \] ([^\s,]+)', output, re.M)
        if failed:
            return 'fail', f'{program}: {failed.group(1)}', seconds
        if process.returncode < 0:
            name = signal.Signals(-process.returncode).name
            return 'fail', f'{program}: {name} in {last_started(output)}', seconds
        return 'fail', f'{program}: exit status {process.returncode}', seconds

    def order(self, fault):
        """The fault's own program first, then the others, fastest first."""
        rest = sorted(self.programs, key=lambda p: (self.baseline.get(p, 0), p))
        own = own_program(fault, self.programs)
        if own:
            rest.remove(own)
            return [own], rest
        return [], rest

    def try_fault(self, fault):
        path = os.path.join(self.src, fault.file)
        with open(path, encoding='utf-8') as f:
            original = f.read()
        start = time.monotonic()
        # Checked again on the copy, which is what gets built.
        count = original.count(fault.old)
        if count != 1:
            return Outcome(fault, 'error', f'the original occurs {count} times in the copy '
                                           f'of {fault.file}, not once', 0.0)
        stem = os.path.join(self.logs, fault.id)
        building = testing = 0.0

        def outcome(status, detail):
            return Outcome(fault, status, detail, time.monotonic() - start, building, testing)

        try:
            with open(path, 'w', encoding='utf-8') as f:
                f.write(original.replace(fault.old, fault.new, 1))
            # The own program is built and run alone first: most faults are
            # caught there, and the others need not even be linked.
            first, rest = self.order(fault)
            for index, group in enumerate((first, rest)):
                if not group:
                    continue
                began = time.monotonic()
                built = self.cmake_build(group, stem + '.build.txt', 'w' if index == 0 else 'a')
                building += time.monotonic() - began
                if not built:
                    return outcome('error', f'does not build: see {stem}.build.txt')
                for program in group:
                    # The time limit counts the tests alone, not the builds.
                    deadline = time.monotonic() + self.timeout - testing
                    verdict, what, took = self.run_program(program, deadline, stem + '.test.txt')
                    testing += took
                    if verdict == 'fail':
                        return outcome('caught', what)
            return outcome('missed', '')
        finally:
            with open(path, 'w', encoding='utf-8') as f:
                f.write(original)


def last_started(output):
    started = re.findall(r'^\[ RUN      \] (\S+)', output, re.M)
    return started[-1] if started else 'start-up'


# ---------------------------------------------------------------- report

def folder_of(fault):
    parts = os.path.dirname(fault.file).split('/')
    parts = [p for p in parts if p != 'internal']
    return '/'.join(parts)


def summary(outcomes, list_errors, seconds):
    print()
    print('Results by folder:')
    folders = sorted({folder_of(o.fault) for o in outcomes})
    print(f'  {"folder":<16} {"faults":>6} {"caught":>6} {"missed":>6} {"equiv.":>6} {"error":>6}')
    for folder in folders:
        mine = [o for o in outcomes if folder_of(o.fault) == folder]
        caught = sum(o.status == 'caught' and not o.fault.equivalent for o in mine)
        missed = sum(o.status == 'missed' and not o.fault.equivalent for o in mine)
        equivalent = sum(bool(o.fault.equivalent) for o in mine)
        errors = sum(o.status == 'error' for o in mine)
        print(f'  {folder:<16} {len(mine):>6} {caught:>6} {missed:>6} {equivalent:>6} {errors:>6}')
    missed = [o for o in outcomes if o.status == 'missed' and not o.fault.equivalent]
    wrong_equivalent = [o for o in outcomes if o.status == 'caught' and o.fault.equivalent]
    errors = [o for o in outcomes if o.status == 'error']
    caught = sum(o.status == 'caught' and not o.fault.equivalent for o in outcomes)
    equivalent = sum(bool(o.fault.equivalent) for o in outcomes)
    print()
    if missed:
        print('Missed (holes in the tests):')
        for o in missed:
            print(f'  {o.fault.id:<34} {o.fault.file}: {o.fault.why}')
    if wrong_equivalent:
        print('Marked equivalent, yet caught (the mark is wrong):')
        for o in wrong_equivalent:
            print(f'  {o.fault.id:<34} {o.detail}')
    if errors or list_errors:
        print('Errors of the list:')
        for e in list_errors:
            print('  ' + e)
        for o in errors:
            print(f'  {o.fault.id}: {o.detail}')
    run = len(outcomes)
    average = sum(o.seconds for o in outcomes) / run if run else 0.0
    building = sum(o.building for o in outcomes) / run if run else 0.0
    testing = sum(o.testing for o in outcomes) / run if run else 0.0
    print(f'{run} faults: {caught} caught, {len(missed)} missed, {equivalent} equivalent, '
          f'{len(errors) + len(list_errors)} errors; {seconds / 60:.1f} min in all, '
          f'{average:.1f} s per fault ({building:.1f} building, {testing:.1f} testing)')
    return not (missed or wrong_equivalent or errors or list_errors)


# ---------------------------------------------------------------- main

def default_work():
    base = os.environ.get('TMPDIR') or tempfile.gettempdir()
    return os.path.join(base, f'kvt-faults-{getpass.getuser()}')


def main():
    parser = argparse.ArgumentParser(description=__doc__.split('\n\n')[0],
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--list', default=DEFAULT_LIST, help='the fault list (faults/faults.txt)')
    parser.add_argument('--only', action='append', default=[], metavar='PATTERN',
                        help='run only the faults whose id or file matches this regular '
                             'expression; may be given more than once')
    parser.add_argument('--keep-going', action='store_true',
                        help='report errors of the list (an original that does not occur '
                             'exactly once, a fault that does not build) and go on with the '
                             'rest, instead of stopping at the first')
    parser.add_argument('--jobs', type=int, default=os.cpu_count() or 2,
                        help='parallel build jobs (default: the number of processors)')
    parser.add_argument('--timeout', type=float, default=None,
                        help='seconds of tests per fault before it counts as caught by the '
                             'time limit (default: 10 + 4 times the unfaulted run, 30 at least)')
    parser.add_argument('--slow', action='store_true',
                        help='run the slow tests too (the event storm)')
    parser.add_argument('--work', default=default_work(),
                        help='scratch folder for the copy and its build (kept between runs, '
                             'so that the next one builds only what changed)')
    parser.add_argument('--check', action='store_true',
                        help='check the list against the work tree; build and run nothing')
    args = parser.parse_args()

    faults, list_errors = parse_list(args.list)
    if args.only:
        patterns = [re.compile(p) for p in args.only]
        faults = [f for f in faults
                  if any(p.search(f.id) or p.search(f.file) for p in patterns)]
    for fault in list(faults):
        problem = check_fault(fault, ROOT)
        if problem:
            list_errors.append(problem)
            faults.remove(fault)
    if args.check:
        for e in list_errors:
            print(e)
        print(f'{len(faults)} faults check out, {len(list_errors)} errors')
        return 0 if not list_errors else 1
    if list_errors and not args.keep_going:
        for e in list_errors:
            print(e)
        print('the list has errors; fix them or run with --keep-going')
        return 1
    if not faults:
        print('no fault to run')
        return 1

    # The faults of one file run one after another: putting a file back
    # and planting the next fault in it then cost one compile, not two.
    order = {}
    for fault in faults:
        order.setdefault(fault.file, len(order))
    faults.sort(key=lambda f: order[f.file])

    # SIGTERM and SIGHUP end the run like Ctrl-C, through the same finally
    # clauses that put every file back (unless the caller chose to ignore
    # them, as nohup does).
    def interrupt(signum, _frame):
        raise KeyboardInterrupt(signal.Signals(signum).name)
    for signum in (signal.SIGTERM, signal.SIGHUP):
        if signal.getsignal(signum) != signal.SIG_IGN:
            signal.signal(signum, interrupt)

    runner = Runner(args, args.work)
    outcomes = []
    start = time.monotonic()
    try:
        runner.prepare()
        for number, fault in enumerate(faults, 1):
            outcome = runner.try_fault(fault)
            outcomes.append(outcome)
            label = outcome.status
            if fault.equivalent:
                label += ' (equivalent)'
            runner.log(f'[{number}/{len(faults)}] {fault.id:<34} {label:<20} '
                       f'{outcome.seconds:5.1f} s (build {outcome.building:4.1f}, tests '
                       f'{outcome.testing:4.1f})  {outcome.detail}')
            if outcome.status == 'error' and not args.keep_going:
                print('stopping at this error of the list (--keep-going goes on)')
                break
    except RunError as e:
        print(e)
        return 1
    except KeyboardInterrupt:
        print('\ninterrupted; every file is back as it was')
        summary(outcomes, list_errors, time.monotonic() - start)
        return 130
    return 0 if summary(outcomes, list_errors, time.monotonic() - start) else 1


if __name__ == '__main__':
    sys.exit(main())

#!/usr/bin/python3
"""check_farm.py ENGINE REFRAME TREE: 40 clips reframed by the scripts of Packaging/farm, where workers are killed on the way: all 40 results
are right, none is half, none is there twice. ENGINE is parallel (over ssh to this machine) or slurm (two node daemons on this machine).
Exit status 77: the engine is not installed, or cannot run here."""
import getpass, glob, json, os, shutil, signal, socket, subprocess, sys, tempfile, time

CLIPS = 40
KILLS = 3
PATIENCE = 240
SKIPPED = 77


def run(*command, **options):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, encoding='utf-8', **options).stdout


def skip(reason):
    print('Skipped: ' + reason)
    sys.exit(SKIPPED)


def need(*programs):
    missing = [program for program in programs if not shutil.which(program, path=os.environ['PATH'] + ':/usr/sbin')]
    if missing:
        skip('not installed: ' + ', '.join(missing))


def wait_for(what, condition, give_up=sys.exit):
    end = time.monotonic() + PATIENCE
    while not condition():
        if time.monotonic() > end:
            give_up('Not in time: ' + what)
        time.sleep(0.05)


def free_port():
    with socket.socket() as probe:
        probe.bind(('127.0.0.1', 0))
        return probe.getsockname()[1]


class Farm:
    def __init__(self, work, reframe, tree):
        self.work, self.reframe = work, reframe
        self.scripts = os.path.join(tree, 'Packaging/farm')
        self.results = self.path('results')
        self.options = ['--keyframes', self.results, '--output', self.results, '--cache', 'none', '--models', 'none']
        self.daemons = []
        os.mkdir(self.results)
        self.env = dict(os.environ, REFRAME=reframe, PATH=os.environ['PATH'] + ':/usr/sbin', HOME=work, LOGS=work)

    def path(self, name):
        return os.path.join(self.work, name)

    def write(self, name, text, mode=0o600):
        with open(self.path(name), 'w', encoding='utf-8') as file:
            file.write(text)
        os.chmod(self.path(name), mode)
        return self.path(name)

    def make_clips(self):
        """Each of another content, so that a result shows which clip it is of."""
        clips = [self.path('clip%02d.mp4' % number) for number in range(CLIPS)]
        for number, clip in enumerate(clips):
            run('ffmpeg', '-v', 'error', '-f', 'lavfi', '-i', 'testsrc2=size=320x180:rate=25:duration=2', '-vf', 'hue=h=%d' % (number * 9),
                '-c:v', 'libx264', '-preset', 'ultrafast', clip)
        self.list = self.write('list', ''.join(clip + '\n' for clip in clips))

    def start(self, *command, **options):
        daemon = subprocess.Popen(command, env=self.env, **options)
        self.daemons.append(daemon)
        return daemon

    def stop(self):
        for daemon in reversed(self.daemons):
            daemon.terminate()
            daemon.wait()

    def workers(self):
        """The running programs of this farm."""
        found = []
        for folder in glob.glob('/proc/[0-9]*'):
            try:
                with open(folder + '/cmdline', 'rb') as file:
                    arguments = file.read().split(b'\0')
                if arguments[0] == self.reframe.encode() and self.results.encode() in arguments:
                    found.append(int(os.path.basename(folder)))
            except OSError:
                pass
        return found

    def kill_workers(self, is_running):
        """Once some results are there, so that it is in the middle."""
        killed = 0
        wait_for('the first results', lambda: len(self.done()) >= 3 or not is_running())
        while killed < KILLS and is_running():
            for worker in self.workers()[:1]:
                try:
                    os.kill(worker, signal.SIGKILL)
                    killed += 1
                except ProcessLookupError:
                    pass
                wait_for('the end of a worker', lambda: worker not in self.workers())
        if killed < KILLS:
            sys.exit('Only %d workers were killed.' % killed)

    def done(self):
        return glob.glob(self.path('results/*.mp4'))

    def check(self):
        """As a run of its own would have written them."""
        expected = {'clip%02d-AutoReframe-9 16.%s' % (number, suffix) for number in range(CLIPS) for suffix in ['mp4', 'json']}
        there = set(os.listdir(self.results))
        if expected != there:
            sys.exit('Missing: %s; not expected: %s' % (sorted(expected - there), sorted(there - expected)))
        for number in range(CLIPS):
            result = self.path('results/clip%02d-AutoReframe-9 16' % number)
            with open(result + '.json', encoding='utf-8') as file:
                track = json.load(file)
            frames = count_frames(result + '.mp4')
            if not track['source']['path'].endswith('clip%02d.mp4' % number) or len(track['frames']) != 50 or frames != '50':
                sys.exit('%s is not right: %s' % (result, frames))
        again = run(self.reframe, '--inputs', self.list, '--if-needed', *self.options)
        if again.count('skipped') != CLIPS:
            sys.exit('Not all are up to date:\n' + again)
        print('%d right results, %d workers were killed' % (CLIPS, KILLS))


def run_parallel(farm):
    need('parallel', 'sshd', 'ssh', 'ssh-keygen')
    port = free_port()
    for key in ['host', 'user']:
        run('ssh-keygen', '-q', '-t', 'ed25519', '-N', '', '-f', farm.path(key))
    shutil.copy(farm.path('user.pub'), farm.path('authorized'))
    os.makedirs('/run/sshd', exist_ok=True)
    config = farm.write('sshd_config', 'Port %d\nListenAddress 127.0.0.1\nHostKey %s\nAuthorizedKeysFile %s\nStrictModes no\nPidFile none\nUsePAM no\n'
                        'MaxStartups 100\nAcceptEnv *\nPermitRootLogin prohibit-password\n' % (port, farm.path('host'), farm.path('authorized')))
    farm.start(shutil.which('sshd', path=farm.env['PATH']), '-D', '-e', '-f', config, stderr=subprocess.DEVNULL)
    ssh = farm.write('ssh', '#!/bin/sh\nexec ssh -q -p %d -i %s -o StrictHostKeyChecking=no -o UserKnownHostsFile=/dev/null "$@"\n'
                     % (port, farm.path('user')), 0o700)
    wait_for('ssh', lambda: subprocess.run([ssh, 'localhost', 'true'], check=False).returncode == 0, skip)
    hosts = farm.write('hosts', '%s %s@localhost\n' % (ssh, getpass.getuser()))
    command = [os.path.join(farm.scripts, 'parallel'), farm.list, farm.path('log'), '-H', hosts, '-j', '2', *farm.options]
    first = subprocess.Popen(command, env=farm.env, cwd=farm.work)
    farm.kill_workers(lambda: first.poll() is None)
    first.wait()
    # What has failed is done by the same call again.
    subprocess.run(command, env=farm.env, cwd=farm.work, check=True)


def run_slurm(farm):
    need('slurmctld', 'slurmd', 'munged', 'sbatch')
    if os.getuid() != 0:
        skip('node daemons run as root')
    key = farm.write('munge.key', 'x' * 64)
    os.chmod(farm.work, 0o755)
    munge = farm.path('munge.socket')
    farm.start(find(farm, 'munged'), '--foreground', '--force', '--key-file=' + key, '--socket=' + munge, '--pid-file=' + farm.path('munge.pid'),
               '--log-file=' + farm.path('munge.log'), '--seed-file=' + farm.path('munge.seed'), stderr=subprocess.DEVNULL)
    host = socket.gethostname()
    nodes = ''.join('NodeName=%s NodeHostname=%s NodeAddr=127.0.0.1 Port=%d CPUs=1 State=UNKNOWN\n' % (name, host, free_port()) for name in NODES)
    farm.env['SLURM_CONF'] = farm.write('slurm.conf', SLURM_CONF.format(host=host, port=free_port(), work=farm.work, munge=munge) + nodes, 0o644)
    os.mkdir(farm.path('state'))
    wait_for('munge', lambda: os.path.exists(munge), skip)
    farm.start(find(farm, 'slurmctld'), '-D', stderr=subprocess.DEVNULL)
    for name in NODES:
        os.mkdir(farm.path('spool.' + name))
        farm.start(find(farm, 'slurmd'), '-D', '-N', name, stderr=subprocess.DEVNULL)
    ask = lambda *command: subprocess.run(command, env=farm.env, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, encoding='utf-8',
                                          check=False).stdout
    wait_for('the nodes', lambda: ask('sinfo', '--noheader', '--states=idle', '--format=%D').strip() == str(len(NODES)), skip)
    array = run(os.path.join(farm.scripts, 'slurm'), farm.list, *farm.options, env=farm.env, cwd=farm.work).strip()
    joined = run('sbatch', '--parsable', '--dependency=afterok:' + array, '--output=/dev/null', '--wrap', 'touch ' + farm.path('joined'),
                 env=farm.env, cwd=farm.work).strip()
    farm.kill_workers(lambda: ask('squeue', '--noheader', '--jobs', array) != '')
    wait_for('the array', lambda: ask('squeue', '--noheader', '--jobs', array + ',' + joined) == '')
    if not os.path.exists(farm.path('joined')):
        sys.exit('The dependent job has not run: not all tasks have succeeded.')


    check_parts(farm, lambda job: wait_for('the parts', lambda: ask('squeue', '--noheader', '--jobs', job) == ''))


def check_parts(farm, wait):
    """One clip in three parts: its crop track is that of the whole, its video has each frame."""
    clip = farm.path('clip00.mp4')
    options = ['--cache', 'none', '--models', 'none']
    wait(run(os.path.join(farm.scripts, 'slurm-parts'), clip, '3', farm.path('in parts'), *options, env=farm.env, cwd=farm.work).strip())
    run(farm.reframe, *options, '--no-video', '--keyframes', farm.path('whole.json'), clip)
    with open(farm.path('whole.json'), 'rb') as whole, open(farm.path('in parts/track.json'), 'rb') as joined:
        if whole.read() != joined.read():
            sys.exit('The crop track of the parts is not that of the whole.')
    if count_frames(farm.path('in parts/clip00-AutoReframe-9 16.mp4')) != '50':
        sys.exit('The joined video does not have 50 frames.')


def count_frames(video):
    return run('ffprobe', '-v', 'error', '-count_frames', '-select_streams', 'v', '-show_entries', 'stream=nb_read_frames', '-of', 'csv=p=0',
               video).strip()


def find(farm, program):
    return shutil.which(program, path=farm.env['PATH'])


NODES = ['node1', 'node2']
# A task whose process was killed begins again after the time that credentials hold.
SLURM_CONF = '''ClusterName=farm
SlurmctldHost={host}(127.0.0.1)
SlurmctldPort={port}
SlurmUser=root
AuthType=auth/munge
AuthInfo=socket={munge},cred_expire=5
CredType=cred/munge
StateSaveLocation={work}/state
SlurmdSpoolDir={work}/spool.%n
SlurmctldPidFile={work}/slurmctld.pid
SlurmdPidFile={work}/slurmd.%n.pid
SlurmctldLogFile={work}/slurmctld.log
SlurmdLogFile={work}/slurmd.%n.log
ProctrackType=proctrack/pgid
TaskPlugin=task/none
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
MpiDefault=none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
ReturnToService=2
MinJobAge=300
PartitionName=all Nodes=ALL Default=YES State=UP
'''
ENGINES = {'parallel': run_parallel, 'slurm': run_slurm}


def main():
    engine, reframe, tree = sys.argv[1:]
    with tempfile.TemporaryDirectory() as work:
        farm = Farm(work, os.path.abspath(reframe), os.path.abspath(tree))
        try:
            farm.make_clips()
            ENGINES[engine](farm)
            farm.check()
        finally:
            farm.stop()


main()

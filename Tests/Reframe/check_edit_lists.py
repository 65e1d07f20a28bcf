#!/usr/bin/env python3
"""Renders edit lists of `reframe` by other programs and compares the result with our own video.

  check_edit_lists.py REFRAME FOOTAGE FORMAT [CLIP...]

REFRAME is the program, FOOTAGE real footage (Megamind.avi), FORMAT ffscript (rendered by ffmpeg), mlt or kdenlive (by
melt). Each clip's luma SSIM must reach a mean of 0.995 and 0.99 in every frame, and exceed that of our own video
shifted by one frame. Exits with 77 if the program that renders is missing.
"""
import json, math, os, shutil, subprocess, sys, tempfile

MEAN, LEAST, CLEARLY = 0.995, 0.99, 0.005
MISSING = 77


def run(command, **more):
    done = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, **more)
    if done.returncode != 0:
        sys.exit('%s\nfailed (%d):\n%s' % (' '.join(command), done.returncode, done.stderr.decode(errors='replace')[-2000:]))
    return done


def probe(path, entries):
    text = run(['ffprobe', '-v', 'error', '-select_streams', 'v', '-show_entries', entries, '-of', 'csv=p=0', path]).stdout
    return text.decode().strip().splitlines()[0].split(',')


def write_track(path, frames, crop):
    with open(path, 'w') as file:
        file.write('frame,x,y,w,h\n')
        for frame in range(frames):
            file.write('%d,%.9f,%.9f,%.9f,%.9f\n' % ((frame,) + crop(frame)))


def pan(width):
    """An even pan that slows down, as the analysis makes them."""
    return lambda frame: (0.05 + (0.008 * frame if frame < 30 else 0.24 + 0.06 * (1 - math.exp((30 - frame) / 8))), 0.0, width, 1.0)


def edited(width):
    """A pan with a jump, and a zoom at its end."""
    def crop(frame):
        size = 1.0 if frame < 30 else 1.0 - 0.006 * (frame - 30)
        return ((0.004 * frame if frame < 15 else 0.4 + 0.003 * frame), 0.4 * (1 - size), width * size, size)
    return crop


# What ffmpeg makes of the footage; the crop of each frame for --apply, or None for an analysis.
CLIPS = {
    'pan': (['-ss', '1', '-t', '2'], pan),
    'shots': (['-ss', '3.5', '-t', '3.4'], None),
    'edited': (['-ss', '1', '-t', '2'], edited),
    'rotated': (['-ss', '1', '-t', '2', '-vf', 'transpose=cclock', '-metadata:s:v', 'rotate=-90'], pan),
    'variable': (['-ss', '1', '-t', '3', '-vf', "select='mod(n,3)'", '-fps_mode', 'vfr'], pan),
    'anamorphic': (['-ss', '1', '-t', '2', '-vf', 'scale=540:528,setsar=4/3'], pan),
    'sound': (['-ss', '1', '-t', '2', '-r', '30000/1001', '-f', 'lavfi', '-i', 'sine=duration=2', '-map', '0:v', '-map', '1:a'], pan),
    'uhd': (['-ss', '1', '-t', '1.4', '-vf', 'scale=3840:2160,setsar=1'], pan),
}


# In the gaps of a variable frame rate, melt shows the next picture, and we show the one before.
NOT_BY_MELT = {'variable'}


def make(name, footage):
    path = name + '.mp4'
    options = CLIPS[name][0]
    inputs = ['-i', footage]
    if 'lavfi' in options:
        first = options.index('-f')
        inputs += options[first:first + 4]
        options = options[:first] + options[first + 4:]
    # Nearly lossless: our own video gets the source's bit rate, so that little but the crop differs.
    quality = '12' if name == 'uhd' else '1'
    run(['ffmpeg', '-v', 'error', '-y'] + inputs + options + ['-c:v', 'libx264', '-preset', 'veryfast', '-crf', quality, path])
    return path


def similarity(ours, theirs, shift):
    """The luma SSIM of each frame of `ours` with the frame of `theirs` that comes `shift` frames later."""
    graph = ('[0:v]settb=1/25,setpts=N[a];[1:v]select=gte(n\\,%d),settb=1/25,setpts=N[b];[a][b]ssim=stats_file=-:shortest=1' % shift)
    lines = run(['ffmpeg', '-v', 'error', '-i', ours, '-i', theirs, '-lavfi', graph, '-fps_mode', 'passthrough', '-f', 'null', '-'])
    values = [float(line.split('Y:')[1].split()[0]) for line in lines.stdout.decode().splitlines() if 'Y:' in line]
    if not values:
        sys.exit('%s and %s share no frames' % (ours, theirs))
    return values


def frames_of(path):
    done = subprocess.run(['ffprobe', '-v', 'error', '-select_streams', 'v', '-count_packets', '-show_entries',
                           'stream=nb_read_packets', '-of', 'csv=p=0', path], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
    return int(done.stdout) if done.returncode == 0 else 0


def render(source, edit_list, target, reference):
    """`reference` is our own video of the same frames."""
    lossless = ['libx264', 'veryfast', '0']
    if edit_list.endswith('ffscript'):
        run(['ffmpeg', '-v', 'error', '-y', '-i', source, '-filter_script:v', edit_list, '-an', '-c:v', lossless[0],
             '-preset', lossless[1], '-crf', lossless[2], target])
        return
    command = ['melt', '-silent', edit_list, '-consumer', 'avformat:' + target, 'vcodec=' + lossless[0], 'preset=' + lossless[1],
               'crf=' + lossless[2], 'rescale=bicubic', 'real_time=-1', 'an=1']
    if edit_list.endswith('kdenlive'):
        # Its filter needs a display.
        command = ['xvfb-run', '--auto-servernum'] + command
    # On a busy machine melt ends now and then, with success, before it has written anything.
    for _ in range(3):
        run(command)
        if frames_of(target) == frames_of(reference):
            return
    sys.exit('%s: melt wrote %s of %s frames' % (edit_list, frames_of(target), frames_of(reference)))


def check(reframe, footage, name, suffix):
    source = make(name, footage)
    video, edit_list, rendered = name + '-ours.mp4', '%s.%s' % (name, suffix), '%s-%s.mkv' % (name, suffix)
    more = []
    crop = CLIPS[name][1]
    if crop:
        width, height = (int(number) for number in probe(source, 'stream=width,height'))
        if name == 'rotated':
            width, height = height, width
        if name == 'anamorphic':
            width = width * 4 // 3
        events = run([reframe, '--json', '--no-video', '--models', 'none', source]).stdout.decode().splitlines()
        frames = json.loads(events[-1])['frames']
        write_track(name + '.csv', frames, crop(min(0.3, 9 / 16 * height / width)))
        more = ['--apply', name + '.csv']
    run([reframe, '--quiet', '--overwrite', '--models', 'none', '--output', video, '--edit-list', edit_list] + more + [source])
    render(source, edit_list, rendered, video)
    right, late = similarity(video, rendered, 0), similarity(video, rendered, 1)
    mean, shifted = sum(right) / len(right), sum(late) / len(late)
    good = mean >= MEAN and min(right) >= LEAST and mean > shifted + CLEARLY
    print('%-10s %-9s %3d frames, SSIM mean %.4f, least %.4f, a frame late %.4f%s'
          % (name, suffix, len(right), mean, min(right), shifted, '' if good else '  TOO LOW'))
    sys.stdout.flush()
    return good


def main():
    reframe, footage, suffix = os.path.abspath(sys.argv[1]), os.path.abspath(sys.argv[2]), sys.argv[3]
    needed = {'ffscript': ['ffmpeg'], 'mlt': ['melt'], 'kdenlive': ['melt', 'xvfb-run']}[suffix]
    for program in needed:
        if not shutil.which(program):
            print('%s is not installed; skipped.' % program)
            sys.exit(MISSING)
    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        results = [check(reframe, footage, name, suffix) for name in sys.argv[4:] or CLIPS
                   if not (name in NOT_BY_MELT and 'melt' in needed)]
    sys.exit(0 if all(results) else 1)


if __name__ == '__main__':
    main()

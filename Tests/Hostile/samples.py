"""The small files that the mutations start from: every container that `reframe` reads, with the codecs that ffmpeg can write."""
import os, subprocess

PICTURES = ['-f', 'lavfi', '-i', 'testsrc2=size=%s:rate=%s:duration=%s']
SOUND = ['-f', 'lavfi', '-i', 'sine=frequency=440:sample_rate=44100:duration=%s']


# The analysis wants at least 32 frames.
class Sample:
    """One file: its name, what ffmpeg writes it with, and whether it has sound."""

    def __init__(self, name, *options, sound=True, size='96x64', rate='36', seconds='1'):
        self.name, self.options, self.sound, self.size, self.rate, self.seconds = name, options, sound, size, rate, seconds

    def make(self, folder):
        path = os.path.join(folder, self.name)
        command = ['ffmpeg', '-hide_banner', '-nostdin', '-loglevel', 'error', '-y']
        command += [part.replace('%s', '{}').format(self.size, self.rate, self.seconds) if '%s' in part else part for part in PICTURES]
        if self.sound:
            command += [part.replace('%s', self.seconds) for part in SOUND]
        # The same bytes on every machine with the same ffmpeg, so that a seed names the same mutation everywhere.
        command += ['-threads', '1', '-fflags', '+bitexact', '-flags:v', '+bitexact', '-flags:a', '+bitexact']
        subprocess.run(command + list(self.options) + [path], check=True)
        return path


def codecs(video, audio=None, *more):
    return ('-c:v', video) + (('-c:a', audio) if audio else ()) + more


H264 = ('-preset', 'veryfast', '-g', '6', '-pix_fmt', 'yuv420p')

SAMPLES = [
    Sample('h264-aac.mp4', *codecs('libx264', 'aac', *H264)),
    Sample('h264-fragments.mp4', *codecs('libx264', 'aac', *H264, '-movflags', 'frag_keyframe+empty_moov')),
    Sample('h264-pcm.mov', *codecs('libx264', 'pcm_s16le', *H264)),
    Sample('h264-opus.mkv', *codecs('libx264', 'libopus', *H264)),
    Sample('h264-aac.ts', *codecs('libx264', 'aac', *H264)),
    Sample('h264-aac.flv', *codecs('libx264', 'aac', *H264)),
    Sample('raw.h264', *codecs('libx264', None, *H264), sound=False),
    Sample('ten-bits.mkv', *codecs('libx264', None, '-preset', 'veryfast', '-pix_fmt', 'yuv422p10le'), sound=False),
    Sample('hevc.mp4', *codecs('libx265', None, '-preset', 'ultrafast', '-x265-params', 'log-level=none'), sound=False),
    Sample('raw.hevc', *codecs('libx265', None, '-preset', 'ultrafast', '-x265-params', 'log-level=none'), sound=False),
    Sample('vp8-vorbis.webm', *codecs('libvpx', 'libvorbis', '-deadline', 'realtime')),
    Sample('vp9-opus.webm', *codecs('libvpx-vp9', 'libopus', '-deadline', 'realtime', '-cpu-used', '8')),
    Sample('vp9.ivf', *codecs('libvpx-vp9', None, '-deadline', 'realtime', '-cpu-used', '8'), sound=False),
    Sample('av1.mkv', *codecs('libaom-av1', None, '-cpu-used', '8', '-usage', 'realtime'), sound=False),
    Sample('mpeg4-mp3.avi', *codecs('mpeg4', 'libmp3lame')),
    Sample('mjpeg-pcm.avi', *codecs('mjpeg', 'pcm_s16le', '-pix_fmt', 'yuvj420p')),
    Sample('mpeg2-ac3.ts', *codecs('mpeg2video', 'ac3'), rate='25', seconds='1.4'),
    Sample('mpeg2-mp2.mpg', *codecs('mpeg2video', 'mp2'), rate='25', seconds='1.4'),
    Sample('mpeg1.mpg', *codecs('mpeg1video'), rate='25', seconds='1.4', sound=False),
    Sample('flv1-mp3.flv', *codecs('flv', 'libmp3lame')),
    Sample('wmv2-wmav2.wmv', *codecs('wmv2', 'wmav2')),
    Sample('theora-vorbis.ogv', *codecs('libtheora', 'libvorbis')),
    Sample('mpeg2-pcm.mxf', *codecs('mpeg2video', 'pcm_s16le', '-ar', '48000'), rate='25', seconds='1.4'),
    Sample('prores-pcm.mov', *codecs('prores_ks', 'pcm_s24le')),
    Sample('dnxhr.mov', *codecs('dnxhd', None, '-profile:v', 'dnxhr_lb', '-pix_fmt', 'yuv422p'), size='256x128', sound=False),
    Sample('ffv1-flac.mkv', *codecs('ffv1', 'flac')),
    Sample('h263.3gp', *codecs('h263', 'aac'), size='176x144', rate='25', seconds='1.4'),
    Sample('mpeg2.wtv', *codecs('mpeg2video', 'mp2'), rate='25', seconds='1.4'),
    Sample('dv.dv', *codecs('dvvideo', 'pcm_s16le', '-ar', '48000', '-ac', '2', '-pix_fmt', 'yuv420p'),
           size='720x576', rate='25', seconds='1.4'),
    Sample('gif.gif', *codecs('gif'), sound=False),
    Sample('apng.apng', *codecs('apng', None, '-f', 'apng'), sound=False),
    Sample('rv20.rm', *codecs('rv20'), sound=False),
    Sample('snow.nut', *codecs('snow', 'aac', '-strict', '-2')),
    Sample('raw.y4m', *codecs('wrapped_avframe', None, '-pix_fmt', 'yuv420p'), sound=False),
]

# The video that mutated crop tracks are applied to.
TRACKED = 'h264-aac.mp4'


def make_all(folder):
    """Makes what is not there yet; the paths in the order of SAMPLES."""
    os.makedirs(folder, exist_ok=True)
    paths = []
    for sample in SAMPLES:
        path = os.path.join(folder, sample.name)
        paths.append(path if os.path.exists(path) else sample.make(folder))
    return paths

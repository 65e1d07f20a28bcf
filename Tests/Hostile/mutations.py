"""Damages files as transfer errors, broken writers and attackers do. Every function takes a random.Random and bytes and returns bytes;
the same generator state gives the same result."""
import re, struct

EXTREMES = {
    1: [0, 1, 0x7f, 0x80, 0xff],
    2: [0, 1, 0x7fff, 0x8000, 0xffff, 0x4000],
    4: [0, 1, 2, 0x7fffffff, 0x80000000, 0xffffffff, 0xfffffff8, 0x10000000, 0x00ffffff, 0x40000000],
    8: [0, 1, 0x7fffffffffffffff, 0x8000000000000000, 0xffffffffffffffff, 0x100000000, 0x7fffffff],
}
TAG = re.compile(rb'[A-Za-z][A-Za-z0-9 ]{3}')
NUMBER = re.compile(rb'-?\d+(\.\d+)?([eE][-+]?\d+)?')
NUMBERS = [b'1e308', b'-1e308', b'1e999', b'NaN', b'-1', b'0', b'-0.0', b'2', b'1e-320', b'99999999999999999999', b'null', b'""', b'[]', b'{}',
           b'true', b'"\\u0000"', b'0.999999999999', b'2147483648', b'-9223372036854775809']


def place(chance, data, size=1):
    """Where to write `size` bytes; half of the places are near the start, where headers are."""
    last = max(0, len(data) - size)
    return chance.randint(0, min(last, 2048) if chance.random() < 0.5 else last)


def put(data, at, piece):
    return data[:at] + piece + data[at + len(piece):]


def flip_bits(chance, data):
    changed = bytearray(data)
    for _ in range(chance.choice([1, 1, 2, 4, 16, 64])):
        changed[place(chance, data)] ^= 1 << chance.randrange(8)
    return bytes(changed)


def overwrite_run(chance, data):
    size = min(len(data), chance.choice([1, 2, 4, 16, 64, 512]))
    run = chance.choice([b'\0' * size, b'\xff' * size, b'\x80' * size, bytes(chance.randrange(256) for _ in range(size))])
    return put(data, place(chance, data, size), run)


def truncate(chance, data):
    return data[:chance.choice([0, 1, 4, 12, 64]) if chance.random() < 0.1 else place(chance, data)]


def extreme_number(chance, data):
    size = chance.choice([1, 2, 2, 4, 4, 4, 8])
    value = chance.choice(EXTREMES[size])
    return put(data, place(chance, data, size), value.to_bytes(size, chance.choice(['little', 'big'])))


def length_beside_tag(chance, data):
    """The size fields of chunked formats stand before (boxes) or behind (RIFF) a tag of four letters."""
    tags = [match.start() for match in TAG.finditer(data, 0, 1 << 20)]
    if not tags:
        return extreme_number(chance, data)
    at = max(0, min(chance.choice(tags) + chance.choice([-4, 4, 8, 12]), len(data) - 4))
    old, order = data[at:at + 4], chance.choice(['<I', '>I'])
    known = struct.unpack(order, old)[0] if len(old) == 4 else 0
    value = chance.choice(EXTREMES[4] + [known + 1, known - 1, known * 2, known // 2, known - 8, len(data)])
    return put(data, at, struct.pack(order, value & 0xffffffff))


def known_field(chance, data, sample):
    """Replaces a number of the sample's own: a dimension, a rate, a count."""
    numbers = [int(part) for part in sample.size.split('x')] + [int(sample.rate), 44100]
    found = []
    for number in numbers:
        for size in (2, 4):
            for order in ('little', 'big'):
                piece = number.to_bytes(size, order)
                at = data.find(piece)
                while at >= 0 and len(found) < 64:
                    found.append((at, size, order))
                    at = data.find(piece, at + 1)
    if not found:
        return extreme_number(chance, data)
    at, size, order = chance.choice(found)
    value = chance.choice(EXTREMES[size] + [16384, 8192, 4097, 17, 3])
    return put(data, at, (value % (1 << (8 * size))).to_bytes(size, order))


def block(chance, data):
    size = min(len(data), chance.choice([1, 7, 64, 188, 1024, 4096]))
    at = place(chance, data, size)
    return at, at + size


def duplicate_block(chance, data):
    start, end = block(chance, data)
    return data[:end] + data[start:end] * chance.choice([1, 1, 2, 10]) + data[end:]


def remove_block(chance, data):
    start, end = block(chance, data)
    return data[:start] + data[end:]


def swap_blocks(chance, data):
    start, end = block(chance, data)
    at = place(chance, data, end - start)
    return put(put(data, start, data[at:at + end - start]), at, data[start:end])


def splice(chance, data, other):
    """The start of one file and the end of another, or a block of the other inside the one."""
    if chance.random() < 0.5:
        return data[:place(chance, data)] + other[place(chance, other):]
    start, end = block(chance, other)
    return put(data, place(chance, data, end - start), other[start:end])


def mutate_media(chance, data, sample, others):
    """One to four mutations; their names come along for the report."""
    plain = [flip_bits, flip_bits, overwrite_run, extreme_number, extreme_number, length_beside_tag, length_beside_tag, truncate,
             duplicate_block, remove_block, swap_blocks]
    names = []
    for _ in range(chance.choice([1, 1, 1, 2, 3, 4])):
        if not data:
            break
        kind = chance.choice(plain + [splice, known_field, known_field])
        if kind is splice:
            data = splice(chance, data, chance.choice(others))
        elif kind is known_field:
            data = known_field(chance, data, sample)
        else:
            data = kind(chance, data)
        names.append(kind.__name__)
    return data, names


def replace_number(chance, data):
    # The first one from somewhere on. A list of all would take gigabytes, which count as the program's when it is started.
    match = NUMBER.search(data, place(chance, data)) or NUMBER.search(data)
    if not match:
        return data
    return data[:match.start()] + chance.choice(NUMBERS) + data[match.end():]


def nest(chance, data):
    depth = chance.choice([10, 600, 20000])
    at = place(chance, data)
    return data[:at] + b'[' * depth + b']' * chance.choice([0, depth]) + data[at:]


MOST_TRACK_BYTES = 128 << 20


def repeat_lines(chance, data):
    at = place(chance, data)
    begin = data.rfind(b'\n', 0, at) + 1
    end = data.find(b'\n', at) + 1 or len(data)
    # A track is one line in JSON, and repeating may follow repeating.
    most = (MOST_TRACK_BYTES - len(data)) // (end - begin)
    times = min(chance.choice([2, 100, 20000]), max(2, most))
    return data[:begin] + data[begin:end] * times + data[end:]


def mutate_track(chance, data):
    names = []
    for _ in range(chance.choice([1, 1, 2, 4])):
        kind = chance.choice([replace_number, replace_number, replace_number, nest, repeat_lines, flip_bits, overwrite_run, truncate,
                              remove_block, duplicate_block, swap_blocks])
        if data:
            data = kind(chance, data)
            names.append(kind.__name__)
    return data, names

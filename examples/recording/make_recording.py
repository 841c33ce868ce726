#!/usr/bin/env python3
"""Makes rover.tlog: a minute of a simulated robot, in MAVLink v2 frames with time stamps.

Usage: make_recording.py [OUTPUT]. The result is always the same.

Everything in it is made up. It holds two senders (the robot 1/1 and a remote control 255/190),
seven lost frames, one damaged frame, and a stretch without a known position.
"""

import math
import struct
import sys

START_US = 1_767_268_800_000_000  # 2026-01-01 12:00 UTC

# id: (name, wire format, fields in wire order as (type, name, array length))
MESSAGES = {
    0: ("HEARTBEAT", "<IBB", [("uint32_t", "uptime", 0), ("uint8_t", "mode", 0), ("uint8_t", "health", 0)]),
    10: ("MOTION", "<4f", [("float", "heading", 0), ("float", "vx", 0), ("float", "vy", 0), ("float", "turn_rate", 0)]),
    11: ("POSITION", "<QiiHB", [("uint64_t", "time_usec", 0), ("int32_t", "latitude", 0), ("int32_t", "longitude", 0),
                                ("uint16_t", "accuracy", 0), ("uint8_t", "satellites", 0)]),
    # The extension (four bytes) is sent, but is no part of the checksum's extra byte.
    12: ("WHEELS", "<4f4h4B", [("float", "speed", 4), ("int16_t", "current", 4)]),
    13: ("BATTERY", "<HhBb", [("uint16_t", "voltage", 0), ("int16_t", "current", 0), ("uint8_t", "id", 0), ("int8_t", "remaining", 0)]),
    14: ("TEXT", "<B50s", [("uint8_t", "severity", 0), ("char", "text", 50)]),
}


def checksum(data, crc=0xFFFF):
    for byte in data:
        crc ^= byte
        for _ in range(8):
            crc = (crc >> 1) ^ 0x8408 if crc & 1 else crc >> 1
    return crc


def extra_byte(message_id):
    name, _, fields = MESSAGES[message_id]
    crc = checksum(name.encode() + b" ")
    for kind, field, length in fields:
        crc = checksum(f"{kind} {field} ".encode(), crc)
        if length:
            crc = checksum(bytes([length]), crc)
    return (crc & 0xFF) ^ (crc >> 8)


class Sender:
    def __init__(self, system, component):
        self.system, self.component, self.sequence = system, component, 0

    def frame(self, message_id, *values):
        payload = struct.pack(MESSAGES[message_id][1], *values).rstrip(b"\0") or b"\0"
        header = struct.pack("<BBBBBB", len(payload), 0, 0, self.sequence, self.system, self.component)
        body = header + message_id.to_bytes(3, "little") + payload
        self.sequence = (self.sequence + 1) % 256
        return b"\xfd" + body + struct.pack("<H", checksum(body + bytes([extra_byte(message_id)])))


def robot_frames(robot, tick):
    """The robot's frames in tick number `tick` of a tenth of a second."""
    t = tick / 10
    mode = 0 if t < 3 else 1 if t < 10 else 2 if t < 50 else 3
    driving = mode in (2, 3)
    heading = (40 * math.sin(t / 9) + 3 * t) % 360
    speed = 0.8 + 0.3 * math.sin(t / 4) if driving else 0.0
    drift = 0.05 * math.sin(t) if driving else 0.0
    lost_position = 28 <= t < 34
    yield robot.frame(10, heading, speed, drift, 40 / 9 * math.cos(t / 9) + 3)
    turns = [60 * (speed + side * 0.1) / 0.5 for side in (-1, 1, -1, 1)]
    amps = [int(400 * speed + 90 * math.sin(t + n)) for n in range(4)]
    yield robot.frame(12, *turns, *amps, *(31 + int(4 * speed) + n for n in range(4)))
    if tick % 2 == 0:
        unknown = (0x7FFFFFFF, 0x7FFFFFFF, 0xFFFF, 3)
        known = (int(-77e7 + 900 * math.sin(t / 9) * t), int(10e7 + 700 * t), 140, 11)
        yield robot.frame(11, START_US + tick * 100_000, *(unknown if lost_position else known))
    if tick % 10 == 0:
        yield robot.frame(0, int(t), mode, 0b1011 if lost_position else 0b1111)
        yield robot.frame(13, int(25200 - 9 * t), int(900 * speed), 0, int(98 - t / 6))
        yield robot.frame(13, int(12600 - 2 * t), 0x7FFF, 1, -1)
    texts = {0: (0, b"Ready"), 100: (0, b"Patrol begun"), 280: (1, b"Position lost"), 340: (0, b"Position found"), 500: (0, b"Returning home")}
    if tick in texts:
        severity, text = texts[tick]
        yield robot.frame(14, severity, text)


def main():
    robot, remote = Sender(1, 1), Sender(255, 190)
    output = bytearray()
    for tick in range(600):
        frames = list(robot_frames(robot, tick))
        if tick % 10 == 5:
            frames.append(remote.frame(0, tick // 10, 1, 0b1000))
        for number, frame in enumerate(frames):
            if 441 <= tick <= 443:
                continue  # the radio fails for three tenths of a second
            if tick == 222 and number == 0:
                frame = frame[:12] + bytes([frame[12] ^ 0x10]) + frame[13:]
            output += struct.pack(">Q", START_US + tick * 100_000 + number * 900) + frame
    with open(sys.argv[1] if len(sys.argv) > 1 else "rover.tlog", "wb") as file:
        file.write(output)


if __name__ == "__main__":
    main()

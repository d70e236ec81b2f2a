# SPDX-FileCopyrightText: 2026 The Velmora developers
# SPDX-License-Identifier: MIT
"""The programs that velmora-bench-panel starts, and what it asks of them while they run."""

import ctypes
import json
import os
import pathlib
import select
import subprocess
import time

# Simulated devices hold a measured value for six seconds, so at this speed values change every second.
CHANGING_SPEED = "6"
STEADY_SPEED = "1"
PATIENCE = 60.0


class BenchError(Exception):
    pass


def read_line(descriptor, what):
    """One line from a pipe, or a BenchError if it does not come or the pipe closes."""
    line = b""
    deadline = time.monotonic() + PATIENCE
    while not line.endswith(b"\n"):
        ready, _, _ = select.select([descriptor], [], [], max(0.0, deadline - time.monotonic()))
        byte = os.read(descriptor, 1) if ready else b""
        if not byte:
            raise BenchError(f"{what}: " + ("ended too early" if ready else f"nothing within {PATIENCE:.0f} s"))
        line += byte
    return line.decode().strip()


class Bench:
    def __init__(self, binaries, work, stack):
        self.binaries = binaries
        self.work = work
        self.stack = stack
        self.count = 0

    def new_folder(self):
        self.count += 1
        folder = self.work / str(self.count)
        folder.mkdir()
        return folder

    def keep(self, process):
        """Ends the process with the benchmark if nobody did before."""
        self.stack.callback(end, process)
        return process

    def start_service(self, count, steady):
        """Starts a service with this many devices on a loopback address of its own and returns the address."""
        folder = self.new_folder()
        address = f"127.0.61.{self.count}"
        scenario = folder / "scenario.json"
        scenario.write_text(json.dumps({"devices": [device(number + 1, steady) for number in range(count)]}))
        process = self.keep(subprocess.Popen(
            [self.binaries / "velmora-service", "--listen", address, "--scenario", scenario,
             "--speed", STEADY_SPEED if steady else CHANGING_SPEED, "--log-level", "error"],
            stdout=subprocess.PIPE, env=environment(folder), cwd=folder))
        read_line(process.stdout.fileno(), "velmora-service")
        return address

    def start_display(self):
        """Starts a virtual display and returns its name."""
        read_end, write_end = os.pipe()
        self.keep(subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x1024x24", "-noreset", "-nolisten", "tcp"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL))
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            return ":" + read_line(pipe.fileno(), "Xvfb")


def device(number, steady):
    """A three-phase UPS of a scenario."""
    return {"id": number, "model_name": "Tarvex33_SNMP", "user_defined_name": f"Serwerownia {number}",
            "communication": "snmp", "ip": f"192.0.2.{number}", "read": "public", "write": "private", "snmp_ver": "v1",
            "simulation": {"steady": steady, "load": [34, 41, 29],
                           "values": {"snmp_sys_name": "ups-a", "snmp_sys_location": "Serwerownia, szafa 1"}}}


def environment(folder):
    """What a process starts with: nothing of the caller's desktop, folders of its own."""
    return {"PATH": os.environ["PATH"], "HOME": str(folder), "TMPDIR": str(folder), "XDG_RUNTIME_DIR": str(folder),
            "LC_ALL": "C.UTF-8", "VELMORA_CONTROL_PANEL_INI": str(folder / "control_panel.ini")}


def end(process):
    if process.poll() is None:
        process.kill()
    process.wait()


class MeasuredProgram:
    """The panel or the bare program, started on a display (None: offscreen) with the probe loaded."""

    def __init__(self, bench, name, display, address, arguments=(), every_paint=False):
        self.name = name
        folder = bench.new_folder()
        (folder / "control_panel.ini").write_text(f"[General]\nlanguage=english\ncheck_updates=false\nserver_address={address}\n")
        read_end, write_end = os.pipe()
        env = environment(folder)
        env["LD_PRELOAD"] = str(bench.binaries / "libvelmora-paint-probe.so")
        env["VELMORA_PAINT_PROBE_FD"] = str(write_end)
        env["QT_QPA_PLATFORM"] = "xcb" if display else "offscreen"
        if every_paint:
            env["VELMORA_PAINT_PROBE_ALL"] = "1"
        if display:
            env["DISPLAY"] = display
        started = time.monotonic_ns()
        self.process = subprocess.Popen([bench.binaries / name, *arguments], env=env, pass_fds=[write_end],
                                        stderr=subprocess.DEVNULL)
        os.close(write_end)
        self.pipe = read_end
        try:
            self.start_seconds = (self.wait_for("window") - started) / 1e9
            self.values_seconds = (self.wait_for("values") - started) / 1e9
        except BaseException:
            self.end()
            raise

    def wait_for(self, what):
        """Nanoseconds of the monotonic clock at which the probe saw it."""
        word, moment = read_line(self.pipe, f"{self.name}, {what}").split()
        if word != what:
            raise BenchError(f"{self.name} showed {word} before {what}")
        return int(moment)

    def take_paints(self):
        """Names of the widgets that the probe saw painted since the last call."""
        words = b""
        while select.select([self.pipe], [], [], 0)[0]:
            words += os.read(self.pipe, 65536)
        return words.decode().split()

    def resident_megabytes(self):
        for line in pathlib.Path(f"/proc/{self.process.pid}/smaps_rollup").read_text().splitlines():
            if line.startswith("Rss:"):
                return int(line.split()[1]) / 1024
        raise BenchError("no Rss in smaps_rollup")

    def processor_seconds(self):
        """Processor time of all threads so far."""
        clock = ctypes.c_int()
        if ctypes.CDLL(None).clock_getcpuclockid(self.process.pid, ctypes.byref(clock)) != 0:
            raise BenchError(f"{self.name} ended while it was measured")
        return time.clock_gettime_ns(clock.value) / 1e9

    def end(self):
        end(self.process)
        os.close(self.pipe)

"""A fleet of four computers, network namespaces with two virtual cameras each, and of one that does not
answer: the playbook on trial, with a canary that fails, over all of them, and after a repair.

Arguments: the folder of nuvexupdate and virtualcamera; the update file."""

from __future__ import annotations

import csv
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

from fleetsupport import COLLECTION, skip

HALLS = ("hall1", "hall2", "hall3", "hall4")
#: This and the second camera of hall3 is where something goes wrong.
FAULTY_SERIAL = "302"
#: What somebody may call a camera: neither the control node nor a spreadsheet calculates it.
USER_NAMES = {"101": "{{ 7 * 6 }}", "201": "=1+1"}


def enter_sandbox() -> None:
    """Starts this program once more where all namespaces, mounts and processes that it makes go
    with it, whatever ends it."""
    for tool in ("ansible-playbook", "ip", "unshare"):
        if not shutil.which(tool):
            skip(f"there is no {tool}; the Debian packages are ansible-core and iproute2")
    sandbox = ["unshare", "--mount", "--pid", "--fork", "--kill-child", "--mount-proc"]
    if os.getuid() != 0:
        sandbox.insert(1, "--map-root-user")
    prepare = "mount -t tmpfs tmpfs /run && "
    trial = subprocess.run(
        sandbox + ["sh", "-c", prepare + "ip netns add n && ip netns exec n true"], text=True,
        capture_output=True, check=False)
    if trial.returncode != 0:
        skip("no network namespaces may be made here: " + trial.stderr.strip())
    os.execvpe(sandbox[0], sandbox + ["sh", "-c", prepare + 'exec "$@"', "sh", sys.executable]
               + sys.argv, dict(os.environ, FLEET_SANDBOX="1"))


class Fleet:
    """The computers and their cameras."""

    def __init__(self, folder: Path, programs: Path, update_file: Path):
        self.folder = folder
        self.programs = programs
        self.update_file = update_file
        self.cameras: dict[str, subprocess.Popen] = {}
        (folder / "no-ssh").write_text("#!/bin/sh\necho no route to host >&2\nexit 255\n")
        (folder / "no-ssh").chmod(0o755)
        self.write_inventory()
        for number, hall in enumerate(HALLS, start=1):
            subprocess.run(["ip", "netns", "add", hall], check=True)
            subprocess.run(["ip", "-n", hall, "link", "set", "lo", "up"], check=True)
            for camera in (1, 2):
                serial = f"{number}0{camera}"
                self.start_camera(serial, *(["--refuse", "FirmwareActivate"]
                                            if serial == FAULTY_SERIAL else []))

    def write_inventory(self) -> None:
        hosts = {hall: {
            "ansible_connection": "local",
            "update_command_prefix": ["ip", "netns", "exec", hall],
            "update_folder": str(self.folder / hall / "updates"),
            "update_environment": {f"XDG_{kind}_HOME": str(self.folder / hall / kind)
                                   for kind in ("STATE", "DATA", "CONFIG")},
        } for hall in HALLS}
        hosts["dead"] = {"ansible_connection": "ssh",
                         "ansible_ssh_executable": str(self.folder / "no-ssh")}
        variables = {"ansible_python_interpreter": sys.executable,
                     "update_executable": str(self.programs / "nuvexupdate"), "update_all": True}
        (self.folder / "inventory.json").write_text(
            json.dumps({"all": {"hosts": hosts, "vars": variables}}))

    def start_camera(self, serial: str, *options: str) -> None:
        """Returns when the camera answers."""
        hall = HALLS[int(serial[0]) - 1]
        self.cameras[serial] = subprocess.Popen(
            ["ip", "netns", "exec", hall, self.programs / "virtualcamera",
             "--address", f"127.0.0.{serial[2]}", "--serial", serial, "--reset-ms", "200",
             "--user-name", USER_NAMES.get(serial, ""), *options],
            stdout=subprocess.PIPE, text=True)
        if not self.cameras[serial].stdout.readline().startswith("READY"):
            raise RuntimeError(f"camera {serial} does not start")

    def stop_camera(self, serial: str) -> None:
        camera = self.cameras.pop(serial)
        camera.terminate()
        camera.communicate()

    def run(self, program: str, *arguments: str) -> subprocess.CompletedProcess:
        environment = dict(
            os.environ, HOME=str(self.folder), PWD=str(self.folder), ANSIBLE_PIPELINING="1", ANSIBLE_FORKS="5",
            ANSIBLE_COLLECTIONS_PATH=str(self.folder / "collections"), ANSIBLE_NOCOLOR="1")
        return subprocess.run([program, *arguments], cwd=self.folder, env=environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)

    def play(self, canaries: str, *arguments: str) -> subprocess.CompletedProcess:
        """Runs the playbook with these hosts, between blanks, in front of all others."""
        (self.folder / "canary.ini").write_text("[canary]\n" + canaries.replace(" ", "\n"))
        return self.run("ansible-playbook", "-i", "inventory.json", "-i", "canary.ini",
                        "nuvex.cameras.update", "-e", f"update_file={self.update_file}",
                        "-e", "update_serial=2 update_max_fail_percentage=50", *arguments)

    def get_report(self) -> dict[str, list[tuple[str, ...]]]:
        """Of each host: its state where no camera is known, or serial number, versions, outcome of
        each camera."""
        report: dict[str, list[tuple[str, ...]]] = {}
        with open(self.folder / "nuvex-update.csv", encoding="utf-8-sig", newline="") as file:
            for row in csv.DictReader(file):
                report.setdefault(row["Host"], []).append(
                    (row["Serial number"], row["Old version"], row["New version"], row["Outcome"])
                    if row["Camera"] else (row["State"],))
        return {host: sorted(rows) for host, rows in report.items()}


def get_changed(output: str) -> dict[str, int]:
    """By the recap: how many tasks changed something on each host."""
    return {host: int(changed) for host, changed in
            re.findall(r"^(\w+) +: ok=.* changed=(\d+) ", output, re.MULTILINE)}


def expect(outcome: str, *serials: str, old: str = "1.2.0") -> list[tuple[str, ...]]:
    return [(serial, old, "2.0.0", outcome) for serial in serials]


class FleetTest(unittest.TestCase):
    def test_fleet(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        fleet = Fleet(Path(folder.name), *map(Path, sys.argv[1:3]))
        for serial in tuple(fleet.cameras):
            self.addCleanup(lambda serial=serial: fleet.stop_camera(serial))
        installed = fleet.run("ansible-galaxy", "collection", "install", "--offline",
                              str(COLLECTION), "-p", "collections")
        self.assertEqual(installed.returncode, 0, installed.stdout)
        self.check_trial(fleet)
        self.check_failing_canary(fleet)
        self.check_all(fleet)
        self.check_repaired(fleet)

    def check_trial(self, fleet: Fleet) -> None:
        """Says what would be done, and does nothing."""
        played = fleet.play("hall1", "--check")
        planned = {hall: expect("planned", f"{number}01", f"{number}02")
                   for number, hall in enumerate(HALLS, start=1)}
        self.assertEqual(fleet.get_report(), {**planned, "dead": [("unreachable",)]},
                         played.stdout)
        self.assertEqual(get_changed(played.stdout), {**dict.fromkeys(HALLS, 1), "dead": 0})
        self.assertFalse(list(fleet.folder.glob("hall?/updates")))
        self.assertFalse(list(fleet.folder.glob("hall?/STATE/nuvexviewer/updates/history.jsonl")))

    def check_failing_canary(self, fleet: Fleet) -> None:
        """Only the canaries are touched."""
        played = fleet.play("hall2 hall3")
        self.assertNotEqual(played.returncode, 0)
        self.assertEqual(fleet.get_report(), {
            **dict.fromkeys(("hall1", "hall4", "dead"), [("not begun",)]),
            "hall2": expect("updated", "201", "202"),
            "hall3": expect("updated", "301") + expect("failed", FAULTY_SERIAL)},
            played.stdout)

    def check_all(self, fleet: Fleet) -> None:
        """A host that fails and one that cannot be reached keep no other from its update."""
        played = fleet.play("hall1")
        self.assertNotEqual(played.returncode, 0)
        self.assertEqual(fleet.get_report(), {
            "hall1": expect("updated", "101", "102"),
            "hall2": expect("left-alone", "201", "202", old="2.0.0"),
            "hall3": expect("left-alone", "301", old="2.0.0") + expect("failed", FAULTY_SERIAL),
            "hall4": expect("updated", "401", "402"),
            "dead": [("unreachable",)]}, played.stdout)
        # The folder, the file, the cameras.
        self.assertEqual(get_changed(played.stdout),
                         {"hall1": 3, "hall2": 0, "hall3": 0, "hall4": 3, "dead": 0})
        page = (fleet.folder / "nuvex-update.txt").read_text()
        for text in ("Hosts    5: 3 done, 1 failed, 1 unreachable",
                     "Cameras  8: 1 failed, 3 left-alone, 4 updated",
                     "hall3: failed. At least one camera was not updated. Camera 302 (GV-1400M",
                     "dead: unreachable. ", "over ssh: no route to host\n"):
            self.assertIn(text, page)
        table = (fleet.folder / "nuvex-update.csv").read_text()
        for name in ("{{ 7 * 6 }}", "'=1+1"):
            self.assertIn("," + name, table)

    def check_repaired(self, fleet: Fleet) -> None:
        """Once more, only the camera that failed is updated."""
        fleet.stop_camera(FAULTY_SERIAL)
        fleet.start_camera(FAULTY_SERIAL)
        played = fleet.play("hall1", "--limit", "!dead", "-e", "update_file_is_on_host=true")
        self.assertEqual(played.returncode, 0, played.stdout)
        left_alone = {hall: expect("left-alone", f"{number}01", f"{number}02", old="2.0.0")
                      for number, hall in enumerate(HALLS, start=1)}
        left_alone["hall3"] = (expect("left-alone", "301", old="2.0.0")
                               + expect("updated", FAULTY_SERIAL))
        self.assertEqual(fleet.get_report(), left_alone)
        self.assertEqual(get_changed(played.stdout),
                         {"hall1": 0, "hall2": 0, "hall3": 1, "hall4": 0})
        listed = fleet.run("ansible", "-i", "inventory.json", "hall3", "-m",
                           "nuvex.cameras.cameras", "-a",
                           f"network=true executable={fleet.programs / 'nuvexupdate'} "
                           "command_prefix=ip,netns,exec,hall3")
        self.assertEqual(listed.stdout.count('"firmwareVersion": "2.0.0"'), 4, listed.stdout)


if __name__ == "__main__":
    if "FLEET_SANDBOX" not in os.environ:
        enter_sandbox()
    unittest.main(argv=sys.argv[:1])

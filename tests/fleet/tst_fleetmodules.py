"""The modules and filters of the collection against a program that prints given lines."""

from __future__ import annotations

import importlib.util
import json
import os
import subprocess
import sys
import tempfile
import types
import unittest
from pathlib import Path

from fleetsupport import COLLECTION, skip

try:
    import yaml
    import ansible.module_utils.basic  # noqa: F401
except ImportError as error:
    skip(f"{error}; the Debian package is ansible-core")

PACKAGE = "ansible_collections.nuvex.cameras.plugins."
SELECTION = {"file": "/f.guf", "all": True}


def line(event: str, **fields) -> str:
    return json.dumps(dict(fields, event=event), ensure_ascii=False) + "\n"


def camera(outcome: str, old: str = "1", new: str = "2", text: str = "") -> dict:
    result = {"camera": "c" + outcome, "serialNumber": "7", "name": "N\u2028" + outcome,
              "oldVersion": old, "newVersion": new, "outcome": outcome, "seconds": 1.5}
    return dict(result, message={"key": outcome, "text": text}) if text else result


def summary(code: int, *cameras: dict) -> str:
    return line("summary", exitCode=code, cameras=cameras)


def warning(text: str) -> str:
    return line("message", severity="warning", message={"key": "k", "text": text})


UPDATED, FAILED = camera("updated"), camera("failed", text="Camera N: it did not answer")
# What is printed, standard error, how it ends; is it changed, and what its sentence says: None, it succeeds.
FIRMWARE_CASES = {
    "updated": (summary(0, UPDATED), "", "exit 0", True, None),
    "reinstalled": (summary(0, camera("updated", old="2")), "", "exit 0", False, None),
    "left alone": (summary(0, camera("left-alone")), "", "exit 0", False, None),
    "planned": (summary(0, camera("planned")), "", "exit 0", True, None),
    "one failed": (summary(1, UPDATED, FAILED, camera("not-started")), "", "exit 1", True,
                   ["not updated. Camera N: it did not answer. Camera N", "was not begun"]),
    "usage": ("", "nuvexupdate: bad option", "exit 2", False,
              ["does not accept", "nuvexupdate: bad option"]),
    "ambiguous": (warning("Two have it.") + summary(2), "", "exit 2", False, ["Two have it."]),
    "no camera": (warning("None found.") + summary(3), "", "exit 3", False, ["None found."]),
    "faulty file": (warning("It is cut off.") + summary(4), "", "exit 4", False,
                    ["file is faulty. It is cut off."]),
    "in use": (summary(5, UPDATED, camera("in-use", text="it is busy")), "", "exit 5", True,
               ["in use", "in-use: it is busy."]),
    "stopped": (summary(6, camera("not-started")), "", "exit 6", False, ["stopped on the host"]),
    "unknown code": (summary(9), "", "exit 9", False, ["unknown exit code 9"]),
    "garbage": ("Hello\n" + summary(0), "", "exit 0", False, ['no event: "Hello"']),
    "no object": ("[1]\n", "", "exit 0", False, ['no event: "[1]"']),
    "nothing": ("", "boom", "exit 0", False, ["without a summary", "boom"]),
    "contradiction": (summary(0, UPDATED), "", "exit 1", True, ["exit code 1, although"]),
    "killed": (line("begin", **camera("updated")), "", "kill -9 $$", False,
               ["signal 9 (SIGKILL)", "nobody saw the end"]),
    "killed after one": (line("end", **UPDATED), "", "kill -9 $$", True, ["signal 9"]),
}


def load(name: str) -> types.ModuleType:
    """A plugin that uses nothing else of the collection. Ansible's own way of importing one needs a
    whole playbook."""
    path = COLLECTION / f"plugins/{name}.py"
    spec = importlib.util.spec_from_file_location(path.stem, path)
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


class ModuleTest(unittest.TestCase):
    def setUp(self) -> None:
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        (self.folder / "ansible_collections/nuvex").mkdir(parents=True)
        (self.folder / "ansible_collections/nuvex/cameras").symlink_to(COLLECTION)
        self.program = self.folder / "program"
        sys.path.insert(0, folder.name)
        self.addCleanup(sys.path.remove, folder.name)

    def write_program(self, output: str, errors: str, end: str) -> None:
        (self.folder / "output").write_text(output)
        (self.folder / "errors").write_text(errors)
        self.program.write_text(f"""#!/bin/sh
printf '%s\\n' "$@" > '{self.folder}/arguments'
cat '{self.folder}/output'
cat '{self.folder}/errors' >&2
{end}
""")
        self.program.chmod(0o755)

    def call(self, name: str, **parameters) -> dict:
        arguments = {"executable": str(self.program), "_ansible_remote_tmp": str(self.folder),
                     **parameters}
        result = subprocess.run(
            [sys.executable, COLLECTION / f"plugins/modules/{name}.py"], text=True,
            input=json.dumps({"ANSIBLE_MODULE_ARGS": arguments}), capture_output=True,
            env=dict(os.environ, PYTHONPATH=str(self.folder)), check=False)
        self.assertEqual(result.stderr, "")
        return json.loads(result.stdout)

    def test_firmware(self) -> None:
        for name, (output, errors, end, is_changed, sentences) in FIRMWARE_CASES.items():
            with self.subTest(name):
                self.write_program(output, errors, end)
                answer = self.call("firmware", **SELECTION)
                self.assertEqual(answer.get("failed", False), sentences is not None, answer)
                self.assertEqual(answer["changed"], is_changed)
                code = -9 if end.startswith("kill") else int(end.split()[1])
                self.assertEqual(answer["exit_code"], code)
                for sentence in sentences or []:
                    self.assertIn(sentence, answer["msg"])

    def test_results(self) -> None:
        self.write_program(summary(1, UPDATED, FAILED), "", "exit 1")
        results = self.call("firmware", **SELECTION)["cameras"]
        self.assertEqual([(r["camera"], r["serialNumber"], r["oldVersion"], r["newVersion"],
                           r["outcome"], r["seconds"], r["message"]) for r in results],
                         [("cupdated", "7", "1", "2", "updated", 1.5, ""),
                          ("cfailed", "7", "1", "2", "failed", 1.5, "Camera N: it did not answer")])

    def test_command_line(self) -> None:
        self.write_program(summary(0), "", "exit 0")
        common = ["--json", "--language", "en"]
        cases = [
            (SELECTION, ["--parallel=8", "--max-failures=1", "--all", "--no-simulation"]),
            ({"file": "/f.guf", "cameras": ["-a", "$HOME"], "canary": 1, "parallel": 2,
              "network": True, "camera_addresses": ["127.0.0.2"], "max_failures": 3,
              "allow_downgrade": True, "allow_reinstall": True, "_ansible_check_mode": True},
             ["--camera=-a", "--camera=$HOME", "--parallel=2", "--canary=1", "--max-failures=3",
              "--allow-downgrade", "--allow-reinstall", "--dry-run", "--network",
              "--camera-address=127.0.0.2", "--no-simulation"]),
            ({"file": "/f.guf", "model": "M 1", "cameras_file": "/c.json"},
             ["--model=M 1", "--parallel=8", "--max-failures=1", "--cameras=/c.json"]),
        ]
        for parameters, expected in cases:
            self.call("firmware", **parameters)
            words = (self.folder / "arguments").read_text().splitlines()
            self.assertEqual(words, ["update", "/f.guf", "--yes"] + expected + common)

    def test_missing_program(self) -> None:
        self.assertIn("cannot be started: No such file", self.call("firmware", **SELECTION)["msg"])
        self.assertIn("cannot be started", self.call("cameras", command_prefix=["/no/ip"])["msg"])

    def test_cameras(self) -> None:
        self.write_program(line("camera", time="t", camera="a", status=0) + summary(0), "", "exit 0")
        answer = self.call("cameras", network=True)
        self.assertEqual(answer["cameras"], [{"camera": "a", "status": 0}])
        self.assertEqual(answer["ansible_facts"], {"nuvex_cameras": answer["cameras"]})
        self.write_program(warning("No camera was found.") + summary(3), "", "exit 3")
        self.assertEqual(self.call("cameras")["cameras"], [])
        for output, end in (("", "exit 2"), ("", "exit 3"), ("x", "exit 0")):
            self.write_program(output, "why", end)
            answer = self.call("cameras")
            self.assertTrue(answer["failed"])
            self.assertIn("why", answer["msg"])

    def test_documentation(self) -> None:
        shared = importlib.import_module(PACKAGE + "module_utils.nuvexupdate").SEARCH_ARGUMENTS
        fragment = load("doc_fragments/search").ModuleDocFragment.DOCUMENTATION
        for name in ("firmware", "cameras"):
            module = importlib.import_module(PACKAGE + "modules." + name)
            options = {**yaml.safe_load(fragment)["options"],
                       **yaml.safe_load(module.DOCUMENTATION).get("options", {})}
            for option in options.values():
                del option["description"]
            self.assertEqual(options, {**shared, **getattr(module, "OWN_ARGUMENTS", {})})

    def test_report_of_hostile_texts(self) -> None:
        report, record = load("action/report"), load("filter/record").host_record
        bad = dict(camera("failed"), name="=1+1", message="\x1b[2J\nx\udc80")
        records = [("h", record([{"skipped": True}, {"failed": True, "msg": "\x1b[2J\nx\udc80",
                                                     "cameras": [bad]}]))]
        self.assertIn(",'=1+1,", report.make_csv(records))
        self.assertIn("  h: failed. [2J x", report.make_text(records, "T").splitlines())
        report.write(str(self.folder / "page"), "\udc80\r\n")
        self.assertEqual((self.folder / "page").read_bytes(), b"?\r\n")


if __name__ == "__main__":
    unittest.main()

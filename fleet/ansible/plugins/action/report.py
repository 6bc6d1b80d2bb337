"""Writes the report over all hosts, on the control node."""

from __future__ import annotations

import csv
import io
import os
import tempfile
from collections.abc import Mapping
from typing import Any, List, Tuple

from ansible.plugins.action import ActionBase

HEADER = ("Host", "State", "Camera", "Serial number", "Name", "Old version", "New version",
          "Outcome", "Seconds", "Message")
CAMERA_KEYS = ("camera", "serialNumber", "name", "oldVersion", "newVersion", "outcome", "seconds",
               "message")
STATES = ("done", "failed", "unreachable", "not begun")

#: Of a host that has no record yet.
NOT_BEGUN = {"state": "not begun", "message": "", "cameras": []}

#: Hosts, each with its record.
Records = List[Tuple[str, Mapping]]

#: What a spreadsheet would calculate.
FORMULA_BEGINS = ("=", "+", "-", "@", "\t", "\r")


def to_line(value: Any) -> str:
    """As one line that moves no cursor: the texts of cameras may hold anything."""
    text = "".join(letter if letter.isprintable() else " " for letter in str(value))
    return " ".join(text.split())


def to_cell(value: Any) -> str:
    text = str(value)
    return "'" + text if text.startswith(FORMULA_BEGINS) else text


def make_csv(records: Records) -> str:
    """A row for each camera, and one for each host of which no camera is known. With a byte order
    mark, without which some spreadsheets take it for the code page of the system."""
    table = io.StringIO()
    writer = csv.writer(table)
    writer.writerow(HEADER)
    for host, record in records:
        if not record["cameras"]:
            writer.writerow([to_cell(host), record["state"]] + [""] * 7
                            + [to_cell(record["message"])])
        for camera in record["cameras"]:
            writer.writerow([to_cell(host), record["state"]]
                            + [to_cell(camera[key]) for key in CAMERA_KEYS])
    return "\ufeff" + table.getvalue()


def count(values: list[str]) -> str:
    """Like "3 updated, 1 failed"."""
    return ", ".join(f"{values.count(value)} {value}" for value in dict.fromkeys(values)) or "none"


def make_text(records: Records, title: str) -> str:
    """The sums, the hosts that need somebody, then a line for each host."""
    states = [record["state"] for _, record in records]
    outcomes = [camera["outcome"] for _, record in records for camera in record["cameras"]]
    lines = [to_line(title), "",
             f"Hosts    {len(states)}: " + count(sorted(states, key=STATES.index)),
             f"Cameras  {len(outcomes)}: " + count(sorted(outcomes)), ""]
    troubled = [(host, record) for host, record in records
                if record["state"] in ("failed", "unreachable")]
    if troubled:
        lines += ["What needs somebody"]
        lines += [f"  {to_line(host)}: {record['state']}. {to_line(record['message'])}"
                  for host, record in troubled] + [""]
    lines += ["All hosts"]
    width = max((len(host) for host, _ in records), default=0)
    for host, record in records:
        cameras = count(sorted(camera["outcome"] for camera in record["cameras"]))
        lines.append(f"  {to_line(host):{width}}  {record['state']:11}  {cameras}")
    return "\n".join(lines) + "\n"


def write(path: str, text: str) -> None:
    """Whoever reads it sees the report of before, or the whole of this one."""
    descriptor, temporary = tempfile.mkstemp(dir=os.path.dirname(path), prefix=".nuvex-update.")
    try:
        with open(descriptor, "w", encoding="utf-8", errors="replace", newline="") as file:
            file.write(text)
        os.chmod(temporary, 0o644)
        os.replace(temporary, path)
    except BaseException:
        os.unlink(temporary)
        raise


class ActionModule(ActionBase):
    """The control node has all that is needed: no module is sent anywhere."""

    TRANSFERS_FILES = False
    _requires_connection = False

    def run(self, tmp: Any = None, task_vars: Any = None) -> dict[str, Any]:
        result = super().run(tmp, task_vars)
        _, arguments = self.validate_argument_spec({
            "path": {"type": "path", "required": True},
            "hosts": {"type": "list", "elements": "str", "required": True},
            "title": {"type": "str", "required": True},
        })
        path = os.path.abspath(arguments["path"])
        # As they are: what a camera is called is no template, even if it looks like one.
        get_variables = task_vars["hostvars"].raw_get
        records = [(host, get_variables(host).get("update_record", NOT_BEGUN))
                   for host in arguments["hosts"]]
        try:
            write(path + ".csv", make_csv(records))
            write(path + ".txt", make_text(records, arguments["title"]))
        except OSError as error:
            return dict(result, failed=True,
                        msg=f'The report "{path}" cannot be written: {error.strerror}.')
        return dict(result, changed=False)

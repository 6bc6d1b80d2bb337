#!/usr/bin/python
"""Updates the firmware of a host's cameras."""

from __future__ import annotations

DOCUMENTATION = r"""
module: firmware
short_description: Updates the firmware of the cameras of a host
description:
  - Runs C(nuvexupdate update) on the host and returns what became of each camera.
  - A camera that has the file's version, or a newer one, is left alone; doing it twice changes nothing.
  - Fails when a camera fails, and whenever nuvexupdate ends with another exit code than 0. Those that
    succeeded keep their new firmware.
options:
  file:
    description: The update file, on the host.
    type: path
    required: true
  cameras:
    description: Ids or serial numbers of the cameras.
    type: list
    elements: str
  model:
    description: All cameras of this model.
    type: str
  all:
    description: All cameras that the file fits.
    type: bool
  parallel:
    description: So many updates at a time on the host.
    type: int
    default: 8
  allow_downgrade:
    description: Also cameras that have a newer version.
    type: bool
    default: false
  allow_reinstall:
    description: Also cameras that have this version already. They do not count as changed.
    type: bool
    default: false
  canary:
    description: So many cameras of the host first, the others only when all of these have succeeded.
    type: int
  max_failures:
    description: After so many failures no further camera of the host is begun.
    type: int
    default: 1
extends_documentation_fragment: nuvex.cameras.search
attributes:
  check_mode:
    description: Says what would be updated (C(--dry-run)).
    support: full
author: The FirmwareUpdater project
"""

EXAMPLES = r"""
- name: Update all cameras of one model
  nuvex.cameras.firmware:
    file: /var/tmp/vx-1400m_2.0.0.guf
    model: VX-1400M
    network: true

- name: Update two cameras, one after the other
  nuvex.cameras.firmware:
    file: /var/tmp/vx-1400m_2.0.0.guf
    cameras: ["21400017", "21400018"]
    parallel: 1
    camera_addresses: [192.168.7.17, 192.168.7.18]
"""

RETURN = r"""
cameras:
  description: What became of each camera that was meant.
  type: list
  elements: dict
  returned: always, unless the program cannot be started
  contains:
    camera: {description: Its id., type: str}
    serialNumber: {description: Its serial number., type: str}
    name: {description: Its name., type: str}
    oldVersion: {description: What it had before., type: str}
    newVersion: {description: What the file has for it; empty if nothing., type: str}
    firmwareVersion: {description: What it reported last., type: str}
    outcome:
      description: >-
        updated, failed, in-use, left-alone, not-started or planned; unknown where the program was ended
        before it told.
      type: str
    seconds: {description: How long it took., type: float}
    message: {description: Why not; empty if there is nothing to say., type: str}
exit_code:
  description: That of nuvexupdate; below 0 the signal that ended it.
  type: int
  returned: always, unless the program cannot be started
"""

from ansible.module_utils.basic import AnsibleModule
from ansible_collections.nuvex.cameras.plugins.module_utils.nuvexupdate import (
    SEARCH_ARGUMENTS,
    Run,
    get_text,
    run_nuvexupdate,
)

RESULT_KEYS = ("camera", "serialNumber", "name", "oldVersion", "newVersion", "firmwareVersion",
               "outcome", "seconds")

OWN_ARGUMENTS = {
    "file": {"type": "path", "required": True},
    "cameras": {"type": "list", "elements": "str"},
    "model": {"type": "str"},
    "all": {"type": "bool"},
    "parallel": {"type": "int", "default": 8},
    "allow_downgrade": {"type": "bool", "default": False},
    "allow_reinstall": {"type": "bool", "default": False},
    "canary": {"type": "int"},
    "max_failures": {"type": "int", "default": 1},
}


def get_words(parameters: dict, is_dry_run: bool) -> list[str]:
    """The command line, without what every command has."""
    words = ["update", parameters["file"], "--yes"]
    words += ["--camera=" + camera for camera in parameters["cameras"] or []]
    for name in ("model", "parallel", "canary", "max_failures"):
        if parameters[name] is not None:
            words.append(f"--{name.replace('_', '-')}={parameters[name]}")
    for name in ("all", "allow_downgrade", "allow_reinstall"):
        if parameters[name]:
            words.append("--" + name.replace("_", "-"))
    return words + (["--dry-run"] if is_dry_run else [])


def get_results(run: Run) -> list[dict]:
    """What became of each camera; also when the program was ended before its summary."""
    summary = run.get_summary()
    if summary:
        results = summary.get("cameras", [])
    else:
        ended = run.get_events("end")
        known = {event.get("camera") for event in ended}
        results = ended + [dict(event, outcome="unknown") for event in run.get_events("begin")
                           if event.get("camera") not in known]
    return [dict({key: result.get(key, 0 if key == "seconds" else "") for key in RESULT_KEYS},
                 message=get_text(result)) for result in results]


def describe(result: dict) -> str:
    """Why a camera was not updated, in a sentence."""
    text = result["message"] or {
        "not-started": "it was not begun, since the run ended before",
        "unknown": "nobody saw the end of its update, see nuvexupdate history",
    }.get(result["outcome"], result["outcome"])
    if not text.startswith("Camera "):
        text = f"Camera {result['name'] or result['camera']}: {text}"
    return text if text.endswith(".") else text + "."


def count(results: list[dict]) -> str:
    """Like "2 updated, 1 left-alone"."""
    outcomes = [result["outcome"] for result in results]
    return ", ".join(f"{outcomes.count(outcome)} {outcome}"
                     for outcome in dict.fromkeys(outcomes)) or "no camera"


def main() -> None:
    module = AnsibleModule(
        argument_spec=dict(OWN_ARGUMENTS, **SEARCH_ARGUMENTS),
        mutually_exclusive=[("cameras", "model", "all")],
        required_one_of=[("cameras", "model", "all")],
        supports_check_mode=True,
    )
    run = run_nuvexupdate(module, get_words(module.params, module.check_mode))
    results = get_results(run)
    answer = {
        "changed": any(result["outcome"] in ("updated", "planned")
                       and result["oldVersion"] != result["newVersion"] for result in results),
        "cameras": results,
        "exit_code": run.exit_code,
    }
    if run.exit_code == 0 and not run.get_fault():
        for sentence in run.get_sentences():
            module.warn(sentence)
        module.exit_json(msg=f"Cameras: {count(results)}.", **answer)
    troubles = [describe(result) for result in results
                if result["outcome"] not in ("updated", "planned", "left-alone")]
    module.fail_json(msg=" ".join([run.describe()] + troubles), **answer)


if __name__ == "__main__":
    main()

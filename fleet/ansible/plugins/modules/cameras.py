#!/usr/bin/python
"""Lists the cameras of a host."""

from __future__ import annotations

DOCUMENTATION = r"""
module: cameras
short_description: Lists the cameras of a host
description:
  - Runs C(nuvexupdate list) on the host. No camera at all is an empty list.
extends_documentation_fragment: nuvex.cameras.search
attributes:
  check_mode:
    description: Nothing is ever changed.
    support: full
author: The FirmwareUpdater project
"""

EXAMPLES = r"""
- name: Look for cameras
  nuvex.cameras.cameras:
    network: true

- name: Name those that cannot be updated now
  ansible.builtin.debug:
    msg: "{{ ansible_facts.nuvex_cameras | rejectattr('status', 'eq', 0) | map(attribute='name') }}"
"""

RETURN = r"""
cameras:
  description: >-
    The cameras with the fields camera (the id), name, model, serialNumber, address, deviceVersion,
    firmwareVersion, status (0 if it can be updated) and statusReason.
  type: list
  elements: dict
  returned: success
ansible_facts:
  description: The same list as the fact nuvex_cameras.
  type: dict
  returned: success
"""

from ansible.module_utils.basic import AnsibleModule
from ansible_collections.nuvex.cameras.plugins.module_utils.nuvexupdate import (
    EXIT_NO_CAMERA,
    SEARCH_ARGUMENTS,
    run_nuvexupdate,
)


def main() -> None:
    module = AnsibleModule(argument_spec=dict(SEARCH_ARGUMENTS), supports_check_mode=True)
    run = run_nuvexupdate(module, ["list"])
    if run.exit_code not in (0, EXIT_NO_CAMERA) or run.get_fault():
        module.fail_json(msg=run.describe(), exit_code=run.exit_code)
    cameras = [{key: value for key, value in event.items() if key not in ("event", "time")}
               for event in run.get_events("camera")]
    module.exit_json(cameras=cameras, ansible_facts={"nuvex_cameras": cameras})


if __name__ == "__main__":
    main()

"""Only what ansible-doc shows: the action plugin of this name does it."""

DOCUMENTATION = r"""
module: report
short_description: Writes a report over the updates of many hosts
description:
  - Writes two files on the control node, a table (CSV) and a page of text, of what the variable C(update_record)
    of each host says; hosts that have none have not begun. Used by the role P(nuvex.cameras.update#role).
  - They are written in check mode, too, and do not count as a change.
options:
  path:
    description: The files without their endings C(.csv) and C(.txt).
    type: path
    required: true
  hosts:
    description: The hosts, in this order.
    type: list
    elements: str
    required: true
  title:
    description: The first line of the page.
    type: str
    required: true
author: The FirmwareUpdater project
"""

EXAMPLES = r"""
- name: Write the report
  nuvex.cameras.report:
    path: firmware
    hosts: "{{ ansible_play_hosts_all }}"
    title: Firmware of all halls
  run_once: true
"""

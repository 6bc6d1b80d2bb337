"""The options of all modules that look for cameras."""


class ModuleDocFragment:
    """What Ansible looks for."""

    DOCUMENTATION = r"""
options:
  network:
    description: Search by broadcast on the host's interfaces, and on its USB.
    type: bool
    default: false
  camera_addresses:
    description: Ask these addresses, without a broadcast.
    type: list
    elements: str
    default: []
  cameras_file:
    description: Simulate the cameras that this file describes.
    type: path
  no_simulation:
    description: Leave out simulated cameras. Yes without it, unless O(cameras_file) is given.
    type: bool
  executable:
    description: The program.
    type: path
    default: nuvexupdate
  command_prefix:
    description: Words in front of the program, like C(ip), C(netns), C(exec), C(name).
    type: list
    elements: str
    default: []
"""

"""What has become of a host of an update."""

from __future__ import annotations

from collections.abc import Mapping
from typing import Any


def host_record(results: list[Mapping[str, Any]]) -> dict[str, Any]:
    """Of a host: what its report says, by the results of its tasks in their order. The first that
    went wrong counts, otherwise the last one."""
    for result in results:
        if result.get("unreachable"):
            return {"state": "unreachable", "message": str(result.get("msg", "")), "cameras": []}
        if result.get("failed"):
            break
    return {
        "state": "failed" if result.get("failed") else "done",
        "message": str(result.get("msg", "")),
        "cameras": result.get("cameras", []),
    }


class FilterModule:
    """What Ansible looks for."""

    def filters(self) -> dict[str, Any]:
        return {"host_record": host_record}

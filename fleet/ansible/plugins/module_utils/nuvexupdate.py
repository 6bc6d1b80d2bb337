"""What both modules know of nuvexupdate: its options, its lines of JSON, its exit codes."""

from __future__ import annotations

import json
import signal

from ansible.module_utils.basic import AnsibleModule

#: Of every module that looks for cameras.
SEARCH_ARGUMENTS = {
    "network": {"type": "bool", "default": False},
    "camera_addresses": {"type": "list", "elements": "str", "default": []},
    "cameras_file": {"type": "path"},
    "no_simulation": {"type": "bool"},
    "executable": {"type": "path", "default": "nuvexupdate"},
    "command_prefix": {"type": "list", "elements": "str", "default": []},
}

EXIT_NO_CAMERA = 3

EXIT_MEANINGS = {
    1: "At least one camera was not updated.",
    2: "nuvexupdate does not accept what it was asked for.",
    EXIT_NO_CAMERA: "There is no camera that the file could be written to.",
    4: "The update file is faulty.",
    5: "A camera is in use or being updated, and was left as it is.",
    6: "nuvexupdate was stopped on the host before all cameras had begun.",
}

#: Of what else a program prints, so much is repeated in a sentence.
QUOTED_LENGTH = 500


class Run:
    """What one run of nuvexupdate has printed, and how it ended."""

    def __init__(self, exit_code: int, output: str, errors: str):
        self.exit_code = exit_code
        self.errors = errors.strip()
        self.events: list[dict] = []
        self.garbage = ""  # the first line that is no event
        # Not splitlines(): other ends of lines may stand in a camera's name.
        for line in output.split("\n"):
            self._take(line)

    def _take(self, line: str) -> None:
        try:
            event = json.loads(line)
        except ValueError:
            event = None
        if isinstance(event, dict) and isinstance(event.get("event"), str):
            self.events.append(event)
        elif line.strip() and not self.garbage:
            self.garbage = line.strip()

    def get_events(self, name: str) -> list[dict]:
        return [event for event in self.events if event["event"] == name]

    def get_summary(self) -> dict | None:
        """None: it was cut off, or is no nuvexupdate."""
        last = self.events[-1] if self.events else {}
        return last if last.get("event") == "summary" else None

    def get_sentences(self) -> list[str]:
        """Its warnings."""
        return [get_text(event) for event in self.get_events("message")
                if event.get("severity") == "warning"]

    def get_fault(self) -> str:
        """Why what it printed is not to be relied on; empty: it is."""
        if self.exit_code < 0:
            return f"nuvexupdate was ended by {describe_signal(-self.exit_code)}."
        if self.garbage:
            return f'nuvexupdate printed something that is no event: "{quote(self.garbage)}".'
        summary = self.get_summary()
        # A command line that it cannot read is told on standard error, and nothing is printed.
        if not summary and not (self.exit_code == 2 and not self.events):
            return f"nuvexupdate ended with exit code {self.exit_code} and without a summary."
        if summary and summary.get("exitCode") != self.exit_code:
            return (f"nuvexupdate ended with exit code {self.exit_code}, although its summary "
                    f"says {summary.get('exitCode')}.")
        return ""

    def describe(self) -> str:
        """Why it did not do what it was asked for, in sentences."""
        fault = self.get_fault()
        parts = [fault or EXIT_MEANINGS.get(
            self.exit_code, f"nuvexupdate ended with the unknown exit code {self.exit_code}.")]
        parts += self.get_sentences()
        if self.errors and (fault or not self.events):
            parts.append(f"Standard error: {quote(self.errors)}")
        return " ".join(parts)


def describe_signal(number: int) -> str:
    try:
        return f"signal {number} ({signal.Signals(number).name})"
    except ValueError:
        return f"signal {number}"


def quote(text: str) -> str:
    return text if len(text) <= QUOTED_LENGTH else text[:QUOTED_LENGTH] + "..."


def get_text(holder: dict) -> str:
    """Of the message that an event or a result has; empty: it has none."""
    message = holder.get("message")
    return str(message.get("text", "")) if isinstance(message, dict) else ""


def get_search_words(parameters: dict) -> list[str]:
    """The options that say where to look for cameras."""
    words = ["--network"] if parameters["network"] else []
    words += ["--camera-address=" + address for address in parameters["camera_addresses"]]
    if parameters["cameras_file"]:
        words.append("--cameras=" + parameters["cameras_file"])
    no_simulation = parameters["no_simulation"]
    if no_simulation is None:
        no_simulation = not parameters["cameras_file"]
    return words + (["--no-simulation"] if no_simulation else [])


def run_nuvexupdate(module: AnsibleModule, words: list[str]) -> Run:
    """Runs it with @p words and returns when it has ended; fails the module when it cannot be
    started."""
    executable = module.params["executable"]
    command = module.params["command_prefix"] + [executable] + words
    command += get_search_words(module.params) + ["--json", "--language", "en"]
    try:
        # Qt reads file names by the locale, and over SSH there is often none.
        result = module.run_command(command, handle_exceptions=False,
                                    expand_user_and_vars=False,
                                    environ_update={"LC_ALL": "C.UTF-8"})
    except OSError as error:
        module.fail_json(msg=f'The program "{command[0]}" cannot be started: {error.strerror}. '
                             "Install nuvexupdate on the host, or say where it is (executable).")
    return Run(*result)

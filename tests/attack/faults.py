"""Calls of the system that fail, one after another: settings, record of passes, log."""
import errno
import os
import sqlite3

from world import MOVIE, World

ERRORS = ("EIO", "ENOSPC", "EMFILE", "EACCES")


def failing(world, tools, folder, at=0, error="EIO", lasts=False):
    return {"LD_PRELOAD": tools.failing_call, "FAILING_UNDER": str(world.root / folder),
            "FAILING_TRACE": str(world.root / "trace"), "FAILING_AT": str(at),
            "FAILING_ERRNO": str(getattr(errno, error)), "FAILING_LASTS": "1" if lasts else ""}


def calls(world):
    """The calls of the last run, as the library wrote them down."""
    trace = world.root / "trace"
    found = trace.read_text().splitlines() if trace.exists() else []
    trace.unlink(missing_ok=True)
    return found


def each(attack, prepare, folder, attempt, step):
    """Attempts with each call failing in turn: short, each `step`th with the errors in turn."""
    with World(attack.tools) as world:
        prepare(world)
        attempt(world, failing(world, attack.tools, folder))
        most = len(calls(world))
    if most < 5:
        raise RuntimeError(f"only {most} calls beneath {folder} were seen")
    cases = [(at, ERRORS[at % 4], False) for at in range(1, most + 1, step)] if attack.short else [
        (at, error, lasts) for at in range(1, most + 1) for error in ERRORS for lasts in (False, True)]

    def case(at, error, lasts):
        with World(attack.tools) as world:
            prepare(world)
            fault = attempt(world, failing(world, attack.tools, folder, at, error, lasts))
            failed = next((line for line in calls(world) if line.endswith(" FAILED")), f"call {at}")
            attack.account.add(f"{failed.removesuffix(' FAILED')} {error}{' from then on' * lasts}", fault)

    attack.beside_each_other(case, cases)


def settings_write(attack):
    """--set: stored and told so, or as before and told so."""
    before = {"prefPath1": "/old", "prefPath2": "/kept", "prefRemoteUsername": "somebody", "own": "text"}
    after = before | {"prefPath1": "/new"}

    def attempt(world, more):
        ended = world.run("--set", "prefPath1", "/new", more=more)
        folder = sorted(os.listdir(world.settings_file.parent))
        if ended.code < 0:
            return f"died by signal {-ended.code}"
        if not world.settings_file.exists():
            return f"the settings are gone: {folder}"
        found = world.settings()
        if found not in (before, after):
            return f"the settings became {found}"
        if ended.code == 0 and found != after:
            return "it said that the setting was stored"
        if any(".corrupt-" in name for name in folder):
            return f"healthy settings were set aside: {folder}"
        if world.run("--set", "prefPath1", "/new").code != 0 or world.settings() != after:
            return "the next one failed too"
        return ""

    each(attack, lambda world: world.write_settings(before), "config", attempt, 1)


def record_write(attack):
    """--once: the pass does its work and is recorded or told as lost; the earlier ones stay, the next one is recorded."""
    def prepare(world):
        world.write_settings(world.plain())
        for _ in range(2):
            if world.run("--once").code != 0:
                raise RuntimeError("a pass failed without any fault: " + world.text("errors"))
        (world.root / "Incoming/a.mov").unlink()

    def passes(world):
        with sqlite3.connect(world.record) as database:
            (whole,) = database.execute("PRAGMA integrity_check").fetchone()
            return whole, [number for (number,) in database.execute("SELECT id FROM pass ORDER BY id")]

    def attempt(world, more):
        ended = world.run("--once", more=more)
        arrived = world.root / "Incoming/a.mov"
        if ended.code != 0 or not arrived.exists() or arrived.read_bytes() != MOVIE:
            return f"the pass ended with {ended.code}"
        whole, found = passes(world)
        if whole != "ok" or found[:2] != [1, 2]:
            return f"the record became {whole}, {found}"
        if len(found) < 3 and "the record of passes does not hold this pass: " not in ended.errors:
            return f"the pass was lost without a word: {ended.errors!r}"
        if len(list(world.record.parent.glob("*.corrupt-*"))) > 0:
            return "a healthy record was set aside"
        if world.run("--once").code != 0 or passes(world) != ("ok", [*found, len(found) + 1]):
            return f"the next pass was not recorded: {passes(world)}"
        return ""

    each(attack, prepare, "state/kelvo-mirror", attempt, 4)


def log_rotation(attack):
    """A start that fills the log: nothing of the two newest files is lost, and the program goes on."""
    size = 5 * 1024 * 1024

    def prepare(world):
        world.write_settings(world.plain() | {"prefAutoStartScanOnLaunch": False})
        world.log.parent.mkdir(parents=True, mode=0o700)
        world.log.write_bytes(b"newest\n" + b"x" * (size - 100))
        world.log.with_name("kelvo-mirror.1.log").write_bytes(b"older\n")

    def attempt(world, more):
        process = world.start("--headless", more=more)
        begun = world.wait_for(process, lambda: "Got version = " in world.text("output"))
        code = world.end(process)
        if not begun or code != 0:
            return f"the program ended with {code}: {world.text('errors')[-200:]}"
        heads = [file.open("rb").readline() for file in world.log.parent.glob("kelvo-mirror*.log")]
        lost = [line for line in (b"newest\n", b"older\n") if line not in heads]
        return f"lost: {lost} of {sorted(world.log.parent.iterdir())}" if lost else ""

    each(attack, prepare, "state/Kelvo", attempt, 2)

"""Another user of the machine, who lies in wait in folders that both can write."""
import os
import pathlib
import socket
import subprocess
import tempfile

from world import Skipped, World

NOBODY = 65534
AS_NOBODY = ("setpriv", f"--reuid={NOBODY}", f"--regid={NOBODY}", "--clear-groups")


def can(command, *paths):
    return subprocess.run([*AS_NOBODY, "sh", "-c", command, "sh", *map(str, paths)], check=False,
                          capture_output=True).returncode == 0


def talk(path):
    """Says a lot to the socket, as nobody."""
    child = os.fork()
    if child == 0:
        try:
            os.setresgid(NOBODY, NOBODY, NOBODY)
            os.setresuid(NOBODY, NOBODY, NOBODY)
            with socket.socket(socket.AF_UNIX) as line:
                line.connect(str(path))
                line.sendall(b"activate\n" * 1000)
        except OSError:
            pass  # turned away
        finally:
            os._exit(0)
    os.waitpid(child, 0)


def reading(attack, world):
    """What a running program and its passes have written."""
    world.root.chmod(0o755)
    shown = world.root / "shown"
    shown.write_text("for all")
    if not can('cat "$1"', shown):
        raise Skipped("nobody cannot reach the temporary folder at all")
    world.write_settings(world.plain())
    process = world.start("--headless")
    world.wait_for(process, lambda: "result from shell command" in world.text("output"))
    seen = 0
    for place in ("config", "state", "run"):
        (world.root / place).chmod(0o755)
        for path in (world.root / place).rglob("*"):
            seen += 1
            command = 'ls "$1"' if path.is_dir() else 'cat "$1"'
            attack.account.add(f"reading {path.name}", "it was read" if can(command, path) else "")
            attack.account.add(f"writing {path.name}", "it was written"
                               if can('test -d "$1" && touch "$1/x" || echo >>"$1"', path) else "")
    attack.account.add("all were seen", "" if seen >= 8 else f"only {seen} files")
    attack.account.add("the end", "" if world.end(process) == 0 else "it did not end in order")


def planting(attack, world, shared):
    """What lies where the program's own would come to lie."""
    victim = world.root / "victim"
    marker = world.root / "there/obeyed"

    def plant(*command):
        subprocess.run([*AS_NOBODY, *map(str, command)], check=True)

    settings = shared / "settings"
    (world.root / "there").chmod(0o777)
    world.write_settings(world.plain() | {"prefRsyncCommandString1": f"touch {marker}", "prefPath2": "/tmp"})
    hostile = world.settings_file.read_bytes()
    plant("mkdir", "-p", settings / "kelvo-mirror")
    foreign = settings / "kelvo-mirror/preferences.plist"
    foreign.write_bytes(hostile)
    for mode in (0o644, 0o666):
        os.chown(foreign, NOBODY, NOBODY)
        foreign.chmod(mode)
        ended = world.run("--once", more={"XDG_CONFIG_HOME": str(settings)})
        attack.account.add(f"planted settings, mode {mode:o}",
                           "their command ran" if marker.exists() else "" if ended.code == 5 else f"code {ended.code}")
    linked = shared / "linked"
    plant("ln", "-s", settings, linked)
    ended = world.run("--once", more={"XDG_CONFIG_HOME": str(linked)})
    attack.account.add("planted link to settings", "obeyed" if marker.exists() or ended.code != 5 else "")

    # The guard against a second copy, with and without a runtime folder.
    world.write_settings(world.plain() | {"prefAutoStartScanOnLaunch": False})
    plant("mkdir", "-m", "777", shared / f"kelvo-mirror-{os.getuid()}")
    for name in ("kelvo-mirror.lock", "kelvo-mirror.socket"):
        plant("ln", "-s", victim, shared / f"kelvo-mirror-{os.getuid()}" / name)
    here = {"TMPDIR": str(shared), "XDG_RUNTIME_DIR": ""}
    first = world.start("--headless", more=here)
    begun = world.wait_for(first, lambda: "Got version = " in world.text("output"))
    second = subprocess.run([attack.tools.program, "--headless"], env=world.environment(here), check=False,
                            capture_output=True, text=True, timeout=60, stdin=subprocess.DEVNULL)
    attack.account.add("planted lock folder", "" if begun and "is running already" in second.stdout + second.stderr
                       else "two copies ran: " + second.stdout[-200:])
    # Commands to the copy that runs, from another user.
    sockets = [path for path in world.root.rglob("*") if path.is_socket()]
    attack.account.add("its socket was found", "" if sockets else "none")
    world.root.chmod(0o755)
    for path in sockets:
        for folder in path.parents:
            if world.root in folder.parents:
                folder.chmod(0o755)
        path.chmod(0o666)
        talk(path)
        attack.account.add("talking to the socket", "" if first.poll() is None else "the program ended")
    code = world.end(first)
    attack.account.add("the end", "" if code == 0 else f"ended with {code}: {world.text('errors')[-200:]}")
    attack.account.add("what planted links point to", "it was made" if victim.exists() else "")


def other_users(attack):
    """Needs root, who can be another user."""
    if os.geteuid() != 0:
        raise Skipped("only root can be another user")
    if subprocess.run([*AS_NOBODY, "true"], check=False, capture_output=True).returncode != 0:
        raise Skipped("setpriv cannot become another user here")
    with World(attack.tools) as world:
        reading(attack, world)
    with World(attack.tools) as world, tempfile.TemporaryDirectory(prefix="kelvo-attack-") as folder:
        os.chmod(folder, 0o1777)
        planting(attack, world, pathlib.Path(folder))

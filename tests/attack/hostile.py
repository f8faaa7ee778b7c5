"""Texts that a shell would run, settings files made to harm, ends without warning, floods."""
import os
import plistlib
import random
import time

from world import MOVIE, Skipped, World

TEXTS = (
    "$(touch injected)", "`touch injected`", "a;touch injected", "a & touch injected &", "a|touch injected",
    "a\"; touch injected; \"", "a'; touch injected; '", "\"$(touch injected)\"", "'`touch injected`'",
    "a && touch injected", "a || touch injected", "a\ntouch injected\n", "a\rtouch injected", "Films $5",
    "${IFS}touch${IFS}injected", "-oProxyCommand=touch injected", "--rsh=touch injected", "-x", "*", "[x] ?",
    "ends\\", "a#b", "~root", "%@1 %@2", "a b  c", "é 漢 🎬", "x)\ntouch injected; (", "<(touch injected)",
)
FIELDS = ("prefRemoteUsername", "prefRemoteBonjourName", "prefRemotePath", "prefPath1", "prefPath2", "home")
MEANT = (("prefRemotePath", "~root"),)  # root's own home over there
STEP_OF_SHORT = 5  # no divisor of the number of fields, so that each has its turn


def heard(world):
    """The words of each call of ssh."""
    said = world.root / "said"
    return [call.split(b"\0")[:-1] for call in said.read_bytes().split(b"\0\n")[:-1]] if said.exists() else []


def words_fault(world, settings, key):
    """Why what ssh was given is not what was set."""
    user, host = (settings[name].encode() for name in ("prefRemoteUsername", "prefRemoteBonjourName"))
    for words in heard(world):
        if key.encode() not in words:
            return f"ssh was given another key: {words}"
        if user + b"@" + host not in words and words[2:5] != [b"-l", user, host]:
            return f"ssh was given another account: {words}"
    return ""


def texts(attack):
    """A pass fills exactly the folder that was set from exactly the source, or does nothing and says why."""
    if not attack.tools.stands_in:
        raise Skipped("no stand-in for ssh: " + attack.tools.no_stand_in)

    def case(field, text):
        with World(attack.tools) as world:
            settings = world.remote() | {"prefRsyncWithSSH": field != "prefPath1"}
            there, here = world.root / "there/Movies", world.root / "Incoming"
            home = world.root / "home"
            if field == "prefRemotePath":
                settings[field] = text
                there = world.root / "there" / text
            elif field == "prefPath1":
                there = world.root / "Camera" / text
                settings[field] = str(there)
            elif field == "prefPath2":
                here = world.root / "Incoming" / text
                settings[field] = str(here)
            elif field == "home":
                home = world.root / "home" / text
            else:
                settings[field] = text
            for folder in (there, here, home / ".ssh"):
                folder.mkdir(parents=True, exist_ok=True)
            (there / "a.mov").write_bytes(MOVIE)
            key = home / ".ssh/id_kelvoRsync"
            key.write_text("a key\n")
            world.write_settings(settings)
            before = {path for path in world.root.rglob("*")}
            ended = world.run("--once", more={"HOME": str(home), "ATTACK_USER": settings["prefRemoteUsername"]})
            ours = {world.root / name for name in ("state", "run", "config", "said", "output", "errors")}
            new = [path for path in world.root.rglob("*")
                   if path not in before and not ours & {path, *path.parents}]
            fault = words_fault(world, settings, str(key))
            if ended.code == 0:
                if new != [here / "a.mov"] or new[0].read_bytes() != MOVIE:
                    fault = fault or f"all was well, with {new}"
            elif new:
                fault = fault or f"code {ended.code}, with {new}"
            elif ended.code == 17 and heard(world):
                fault = "refused after ssh was asked"
            elif ended.code not in range(10, 18):
                fault = fault or f"no trouble with a name: {ended.code} {ended.output[:200]}"
            attack.account.add(f"{field} {text!r}", fault)

    cases = [(field, text) for text in TEXTS for field in FIELDS if (field, text) not in MEANT]
    attack.beside_each_other(case, cases[::STEP_OF_SHORT] if attack.short else cases)


def bombs(healthy):
    """Settings files by name."""
    binary = plistlib.dumps(healthy, fmt=plistlib.FMT_BINARY)
    xml = plistlib.dumps(healthy)
    head = b'<?xml version="1.0"?><plist version="1.0">'
    made = {f"{kind} cut at {at}": text[:at] for kind, text in (("binary", binary), ("xml", xml.rstrip()))
            for at in range(len(text))}
    made["nested xml"] = head + b"<array>" * 200000
    made["nested and closed xml"] = head + b"<array>" * 50000 + b"</array>" * 50000 + b"</plist>"
    entities = b"".join(b'<!ENTITY e%d "%s">' % (i, b"&e%d;" % (i - 1) * 10 if i else b"lol") for i in range(12))
    made["entities"] = b'<?xml version="1.0"?><!DOCTYPE plist [' + entities + b"]><plist><string>&e11;</string></plist>"
    made["a file of the machine"] = (b'<?xml version="1.0"?><!DOCTYPE plist [<!ENTITY e SYSTEM "file:///etc/passwd">]>'
                                     b"<plist><dict><key>prefPath1</key><string>&e;</string></dict></plist>")
    # Each list holds the next one 255 times.
    lists = b"".join(b"\xaf\x10\xff" + bytes([i + 1]) * 255 for i in range(20)) + b"\x10\x01"
    table = b"".join((8 + 258 * i).to_bytes(4, "big") for i in range(21))
    trailer = bytes(6) + b"\x04\x01" + (21).to_bytes(8, "big") + bytes(8) + (8 + len(lists)).to_bytes(8, "big")
    made["unfolding binary"] = b"bplist00" + lists + table + trailer
    made["17 MiB"] = b"x" * (17 << 20)
    made["zeros"] = bytes(1 << 20)
    for key in healthy:
        for value in (b"x" * 100, ["x"], {"x": 1}, -1, 1e300, True, 2**63):
            made[f"{key} = {value!r:.20}"] = plistlib.dumps(healthy | {key: value}, fmt=plistlib.FMT_BINARY)
    return made


def settings_files(attack):
    """--settings answers or says no, soon and in little memory, and leaves the file as it is."""
    with World(attack.tools) as world:
        healthy = world.remote()

    def case(name, content):
        with World(attack.tools) as world:
            world.settings_file.write_bytes(content)
            ended = world.run("--settings", seconds=30)
            fault = ""
            if ended.code not in (0, 5):
                fault = f"ended with {ended.code} after {ended.seconds:.1f} s"
            elif ended.peak > 256 << 10:
                fault = f"took {ended.peak >> 10} MiB"
            elif world.settings_file.read_bytes() != content:
                fault = "the file was changed"
            elif "root:" in ended.output:
                fault = "a file of the machine was read"
            elif " cut at " in name and ended.code == 0 and content.strip():
                fault = "a part was taken for the whole"
            attack.account.add(name, fault)

    cases = list(bombs(healthy).items())
    short = [each for each in cases if " cut at " in each[0]][::29]
    short += [each for each in cases if " cut at " not in each[0]][::3]
    # A damaged file is given a second to become whole.
    attack.beside_each_other(case, short if attack.short else cases, 16)


def kills(attack):
    """SIGKILL in the middle of --set runs: the old value or the new one, and all others."""
    chance = random.Random(7)
    with World(attack.tools) as world:
        settings = {"prefPath1": "/0", "prefPath2": "/kept", "own": list(range(2000))}
        world.write_settings(settings)
        usual = world.run("--set", "prefPath1", "/1").seconds
        ends = set()
        settings["prefPath1"] = "/1"
        for turn in range(2, 52):
            process = world.start("--set", "prefPath1", f"/{turn}")
            time.sleep(chance.uniform(0.3, 1.3) * usual)
            process.kill()
            process.wait()
            found = world.settings() if world.settings_file.exists() else None
            new = settings | {"prefPath1": f"/{turn}"}
            attack.account.add(f"kill {turn}", "" if found in (settings, new) else f"became {found!r:.300}")
            ends.add(found == new)
            settings = found or settings
        strays = [name for name in os.listdir(world.settings_file.parent) if ".corrupt-" in name]
        attack.account.add("after all", f"set aside: {strays}" if strays else "")
        attack.account.add("before and after the write", "" if len(ends) == 2 else "all kills came on one side")


def flood(attack):
    """A Mac whose login prints without end: at most 64 MiB above a pass in peace, and a soon end."""
    if not attack.tools.stands_in:
        raise Skipped("no stand-in for ssh: " + attack.tools.no_stand_in)

    def peak(process):
        with open(f"/proc/{process.pid}/status", encoding="ascii") as status:
            return next(int(line.split()[1]) for line in status if line.startswith("VmHWM"))

    with World(attack.tools) as world:
        world.write_settings(world.plain())
        rest = world.run("--once").peak
    for kind in ("lines", "one line"):
        with World(attack.tools) as world:
            world.write_settings(world.remote())
            process = world.start("--headless", more={"ATTACK_FLOOD": kind})
            began = world.wait_for(process, lambda w=world: (w.root / "said").exists())
            highest = 0
            until = time.monotonic() + 5
            while began and process.poll() is None and time.monotonic() < until and highest < 1 << 20:
                highest = peak(process)
                time.sleep(0.05)
            asked = time.monotonic()
            code = world.end(process)
            took = time.monotonic() - asked
            fault = ""
            if not began:
                fault = "ssh was never asked"
            elif highest > rest + (64 << 10):
                fault = f"{highest >> 10} MiB, {rest >> 10} in peace"
            elif code != 0 or took > 5:
                fault = f"asked to end, it ended with {code} after {took:.1f} s"
            attack.account.add(f"endless {kind}", fault)

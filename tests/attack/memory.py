"""Valgrind looks on while a pass and a settings write run: it may find nothing."""
from world import Skipped, World


def watched(attack, tool, *options):
    if not attack.tools.valgrind:
        raise Skipped("no valgrind on this machine")
    with World(attack.tools) as world:
        world.write_settings(world.plain())
        for command in (("--once",), ("--set", "prefPath1", "/x")):
            ended = world.run(*command, seconds=600, before=(
                attack.tools.valgrind, f"--tool={tool}", "--error-exitcode=99", "--num-callers=30",
                f"--log-file={world.root}/findings", *options))
            found = (world.root / "findings").read_text(errors="replace")
            attack.account.add(" ".join(command), "" if ended.code == 0 else f"ended with {ended.code}\n{found[-8000:]}")


def memcheck(attack):
    watched(attack, "memcheck", "--leak-check=full", "--errors-for-leak-kinds=definite")


def helgrind(attack):
    watched(attack, "helgrind", "--history-level=approx")

"""completions.py ZEL FOLDER: what bash, zsh and fish offer, with the completions that the build has made in FOLDER.

Commands and options are compared with the program's own help, which is read here once more and otherwise than
where the completions are made from it."""
import os
import re
import shlex
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
ZEL, BUILT = map(os.path.abspath, sys.argv[1:3])
# One of the patients' IDs is also a command line that would leave a mark.
IDS = ["A1", "$(touch x)"]

# What is typed, and what every shell offers for the last word.
CASES = {
    "zel mon": {"monitor"},
    "zel monitor --se": {"--send-id", "--set-clock"},
    "zel --simulated-monitor download --any": {"--any-monitor"},
    "zel report --paper ": {"A4", "Letter"},
    "zel report --rule ": {"esh", "nice", "aha"},
    "zel average --rule ": {"esh", "nice", "aha"},
    "zel export-fhir folder.d --rule ": {"esh", "nice", "aha"},
    "zel report --section t": {"table", "trend"},
    "zel report --section graph,t": {"graph,table", "graph,trend"},
    "zel settings --set Sys": {"SysStandard="},
    "zel settings --set SysStandard=130 --set Dia": {"DiaStandard="},
    "zel backup ": {"list", "create", "restore", "folder"},
    "zel backup folder --": {"--none", "--simulated-monitor", "--help"},
    "zel backup folder fo": {"folder.d"},
    "zel import fo": {"folder.d", "forms.xml"},
    "zel export-xml fo": {"folder.d"},
    "zel export-csv folder.d --patient ": set(IDS),
    "zel export-table fo": {"folder.d", "forms.xml"},
    "zel import a.csv --dates ": {"dmy", "mdy", "ymd"},
    "zel import a.csv --patient ": set(IDS),
    "zel monitor --send-id A": {"A1"},
    "zel patients --add --id ": set(),
    "zel readings --patient A": {"A1"},
}


def run(*command, folder, home):
    env = {"HOME": home, "PATH": os.path.dirname(ZEL) + ":/usr/bin:/bin", "LANG": "C.UTF-8", "TERM": "dumb"}
    done = subprocess.run(command, cwd=folder, env=env, stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=60)
    return done.stdout.splitlines()


def bash(line, **where):
    words = re.split(" +", line)
    offered = run("bash", f"{HERE}/candidates.bash", f"{BUILT}/completion.bash", *words, **where)
    return [shlex.split(word)[0] for word in offered]


def zsh(line, **where):
    functions = where["home"] + "/functions"
    os.makedirs(functions, exist_ok=True)
    if not os.path.exists(functions + "/_zel"):
        os.symlink(f"{BUILT}/completion.zsh", functions + "/_zel")
    offered = run("zsh", "-f", f"{HERE}/candidates.zsh", functions, line, **where)
    return [shlex.split(word)[0].rstrip(",") for word in offered]


def fish(line, **where):
    script = f"source {shlex.quote(BUILT)}/completion.fish; complete -C {shlex.quote(line)}"
    return [answer.split("\t")[0] for answer in run("fish", "-N", "-c", script, **where)]


def cases(**where):
    """Those of CASES, and each command and option of the help."""
    overall = "\n".join(run(ZEL, "--help", **where))
    commands = re.findall(r"^  ([a-z][a-z-]*) +\S", overall, re.M)
    assert len(commands) > 10, overall
    yield "zel ", set(commands)
    yield "zel --", set(re.findall(r"^  (?:-h, )?(--[a-z-]+)", overall, re.M))
    for command in commands:
        own = "\n".join(run(ZEL, command, "--help", **where))
        yield f"zel {command} --", set(re.findall(r"^  (?:-h, )?(--[a-z-]+)", own, re.M))
    yield from CASES.items()


def wrong(shell, line, expected, **where):
    offered = {word.rstrip("/") for word in shell(line, **where)}
    if offered != expected:
        yield f"{shell.__name__}: {line!r} offers {sorted(offered)}, not {sorted(expected)}"


def findings(folder, home):
    where = {"folder": folder, "home": home}
    for shell in (bash, zsh, fish):
        yield from wrong(shell, "zel readings --patient ", set(), **where)
    if os.path.exists(os.path.join(home, "Library")):
        yield "looking for patients has made a data file"
    for number in IDS:
        run(ZEL, "patients", "--add", "--id", number, "--family-name", "F", "--given-names", "G", **where)
    for line, expected in cases(**where):
        for shell in (bash, zsh, fish):
            yield from wrong(shell, line, expected, **where)
    run(ZEL, "backup", "create", **where)
    copies = {line.split(",")[0] for line in run(ZEL, "backup", "list", **where)[1:]}
    for shell in (bash, zsh, fish):
        yield from wrong(shell, "zel backup restore ", copies, **where)
    if os.path.exists(os.path.join(folder, "x")):
        yield "an ID was run as a command"


def main():
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory() as home:
        os.mkdir(folder + "/folder.d")
        open(folder + "/forms.xml", "w").close()
        found = list(findings(folder, home))
    print("\n".join(found))
    return bool(found)


sys.exit(main())

#!/usr/bin/env python3
"""mutate.py SEED NUMBER [FOLDER...]: how many small faults in the sources do the tests notice?

NUMBER places of the sources in the folders (all that a test program links, when none is named) are sampled with
SEED, each with one fault: a relational or arithmetic operator, a negated condition, a dropped call or assignment,
swapped arguments, a constant plus one, the other truth value. By hand, not in ./test; run it from the root.

It works on a copy of the tree under build/mutate and changes nothing outside of it, whatever happens. All faults
are compiled into one build, each behind a switch that an environment variable sets when a program runs; a fault
that does not compile is taken out again and does not count. A first run of all tests notes which test passes
which place. Then each fault is switched on for the tests that pass it, those of its own folder first, until one
fails, crashes or does not end. The table goes to build/mutate/SEED.txt, too.
"""

import collections
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys
import time

ROOT = pathlib.Path.cwd()
WORK = ROOT / "build/mutate"
TREE = WORK / "tree"
BUILD = TREE / "build/checked"
FOLDERS = ["afx", "marrowlog", "core", "appearance", "canvas", "behaviour", "window", "studio/document",
           "studio/editing", "studio/device", "studio/controls", "studio/runtime", "studio/properties",
           "studio/app/panels"]
PROGRAMS = ["core", "appearance", "canvas", "behaviour", "window", "afx", "marrowlog", "studio"]
SLOW = 400  # milliseconds from which a test comes last
PATIENCE = 20  # seconds beyond ten times of what the tests take

SWITCH = r"""// Faults behind a switch.
#pragma once
#include <windows.h>
#include <stdlib.h>
struct MutantSwitch {
    int chosen;
    unsigned char* passed;  // shared by all modules of the process
    MutantSwitch() {
        const DWORD error = ::GetLastError();
        const char* text = ::getenv("TESSEL_MUTANT");
        chosen = text ? ::atoi(text) : -1;
        char name[32];
        ::wsprintfA(name, "tessel_mutant_%lu", ::GetCurrentProcessId());
        HANDLE map = ::CreateFileMappingA(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, 65536, name);
        passed = static_cast<unsigned char*>(::MapViewOfFile(map, FILE_MAP_ALL_ACCESS, 0, 0, 0));
        ::SetLastError(error);  // a test may look at it
    }
    static MutantSwitch& Get() {
        static MutantSwitch one;
        return one;
    }
};
static inline bool tessel_mutant(int number) {
    MutantSwitch& one = MutantSwitch::Get();
    one.passed[number] = 1;
    return number == one.chosen;
}
"""

MAIN = r"""
namespace {
class Passed : public ::testing::EmptyTestEventListener {
    void OnTestStart(const ::testing::TestInfo&) override { ::ZeroMemory(MutantSwitch::Get().passed, 65536); }
    void OnTestEnd(const ::testing::TestInfo& test) override {
        std::printf("\nPASSED %s.%s %d", test.test_suite_name(), test.name(),
                    static_cast<int>(test.result()->elapsed_time()));
        for (int i = 0; i < 65536; ++i)
            if (MutantSwitch::Get().passed[i])
                std::printf(" %d", i);
        std::printf("\n");
    }
};
LONG WINAPI EndAtOnce(EXCEPTION_POINTERS*) {
    ::TerminateProcess(::GetCurrentProcess(), 3);
    return 0;
}
const bool prepared = [] {
    ::SetUnhandledExceptionFilter(&EndAtOnce);
    if (::getenv("TESSEL_TRACE"))
        ::testing::UnitTest::GetInstance()->listeners().Append(new Passed);
    return true;
}();
}  // namespace
"""

# ------------------------------------------------------------------------------------------------ places

TOKEN = re.compile(r"""
    (?P<comment>//[^\n]*|/\*.*?\*/) |
    (?P<directive>(?:(?<=\n)|^)[ \t]*\#(?:\\\n|[^\n])*) |
    (?P<raw>L?R"\((?:.|\n)*?\)") |
    (?P<string>(?:L|u8|u|U)?"(?:\\.|[^"\\\n])*") |
    (?P<char>L?'(?:\\.|[^'\\\n])+') |
    (?P<number>(?:0[xX][0-9a-fA-F']+\w*|(?:\d[\d']*\.?\d*|\.\d+)(?:[eE][+-]?\d+)?\w*)) |
    (?P<name>[A-Za-z_]\w*) |
    (?P<op><<=|>>=|->\*|\.\.\.|::|->|\+\+|--|<=|>=|==|!=|&&|\|\||\+=|-=|\*=|/=|\|=|&=|<<|>>|[-+*/%&|^~!=<>?:;,.(){}\[\]@\\`$])
    """, re.X | re.S)
Token = collections.namedtuple("Token", "kind text start end")
OPEN = {"(": ")", "[": "]", "{": "}"}


def tokenize(text):
    return [Token(m.lastgroup, m.group(), m.start(), m.end()) for m in TOKEN.finditer(text)
            if m.lastgroup not in ("comment", "directive")]


def matching(tokens, at):
    depth = 0
    for i in range(at, len(tokens)):
        if tokens[i].kind == "op" and tokens[i].text in "([{":
            depth += 1
        elif tokens[i].kind == "op" and tokens[i].text in ")]}":
            depth -= 1
            if depth == 0:
                return i
    return len(tokens) - 1


def statements(tokens):
    """(first, last) token numbers of each statement in a function: up to its ";", or a head up to its ")"."""
    scopes = ["outside"]
    start = i = 0
    while i < len(tokens):
        text, kind = tokens[i].text, tokens[i].kind
        code = scopes[-1] == "code"
        words = {t.text for t in tokens[start:i]}
        first = tokens[start].text if start < i else ""
        if kind == "op" and text in "([":
            if code and text == "(" and first in ("if", "for", "while", "switch") and i - start <= 2:
                end = matching(tokens, i)
                yield start, end
                i = start = end + 1
                continue
            i = matching(tokens, i) + 1
            continue
        if kind == "op" and text == "{":
            before = tokens[i - 1].text if i > start else ""
            if not code:
                if words & {"namespace", "extern"}:
                    scopes.append("outside")
                elif words & {"enum"} or before in ("=", ",", "return"):
                    i = matching(tokens, i) + 1
                    continue
                elif "(" in {t.text for t in tokens[start:i]} or before in (")", "const", "override", "noexcept"):
                    if tokens[i - 1].kind == "name" and before not in ("const", "override", "noexcept", "try"):
                        i = matching(tokens, i) + 1  # a member's initialiser
                        continue
                    scopes.append("code")
                else:
                    scopes.append("outside")
            elif i == start or first in ("else", "do", "try", "catch") or before in (")", "]", "mutable"):
                scopes.append("code")
            elif words & {"struct", "class"}:
                scopes.append("outside")
            else:
                i = matching(tokens, i) + 1
                continue
            i = start = i + 1
            continue
        if kind == "op" and text == "}":
            if len(scopes) > 1:
                scopes.pop()
            i = start = i + 1
            continue
        if kind == "op" and (text == ";" or text == ":" and (first in ("case", "default") or words & {
                "public", "private", "protected"} and not code)):
            if code and text == ";" and start < i:
                yield start, i
            i = start = i + 1
            continue
        if kind == "name" and text == "else" and i == start:
            i = start = i + 1
            continue
        i += 1


RELATIONAL = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
BINARY = {"+": "-", "-": "+", "*": "/", "/": "*", "&&": "||", "||": "&&", "&": "|", "|": "&", "+=": "-=",
          "-=": "+=", "*=": "/=", "/=": "*="}
TRUTH = {"true": "false", "false": "true", "TRUE": "FALSE", "FALSE": "TRUE"}


def changes(text, tokens):
    """(what, start, end, replacement) for each single change within an expression."""
    for i, token in enumerate(tokens):
        spaced = text[token.start - 1] == " " and text[token.end] in " \n"
        if token.kind == "op" and spaced and token.text in RELATIONAL:
            yield "relational", token.start, token.end, RELATIONAL[token.text]
        elif token.kind == "op" and spaced and token.text in BINARY:
            yield "arithmetic", token.start, token.end, BINARY[token.text]
        elif token.text in ("++", "--"):
            yield "arithmetic", token.start, token.end, "--" if token.text == "++" else "++"
        elif token.text in TRUTH:
            yield "truth", token.start, token.end, TRUTH[token.text]
        elif token.kind == "number":
            more = re.fullmatch(r"(\d[\d']*)(\.\d*)?(\w*)", token.text)
            if more and not token.text.startswith("0x"):
                value = str(int(more[1].replace("'", "")) + 1)
                yield "constant", token.start, token.end, value + (more[2] or "") + more[3]
        elif token.text == "(" and i > 0 and tokens[i - 1].kind == "name" and tokens[i - 1].text not in (
                "if", "for", "while", "switch", "return", "sizeof"):
            parts, depth, begin = [], 0, i + 1
            for j in range(i + 1, matching(tokens, i) + 1):
                t = tokens[j].text if tokens[j].kind == "op" else ""
                if depth == 0 and (t == "," or t == ")"):
                    parts.append((begin, j - 1))
                    begin = j + 1
                depth += (t in "([{" and t != "") - (t in ")]}" and t != "")
            for (a, b), (c, d) in zip(parts, parts[1:]):
                if a <= b and c <= d:
                    one = text[tokens[a].start:tokens[b].end]
                    two = text[tokens[c].start:tokens[d].end]
                    between = text[tokens[b].end:tokens[c].start]
                    if one != two:
                        yield "swapped", tokens[a].start, tokens[d].end, two + between + one


def flat(text):
    return re.sub(r"\s+", " ", re.sub(r"//[^\n]*", "", text))


def is_declaration(tokens):
    if tokens[0].text in ("const", "constexpr", "static", "auto", "using", "typedef", "struct", "class", "enum",
                          "unsigned", "template", "friend", "extern", "union", "thread_local"):
        return True
    for a, b, c in zip(tokens, tokens[1:], tokens[2:] + tokens[-1:]):
        if a.text in ("=", "(", ".", "->", "?", "new", "delete", "throw", "co_return", "+=", "-=", "++", "--"):
            return False
        if b.kind == "name" and (a.kind == "name" or a.text in (">", "*", "&") and c.text in ("=", ";", "(", "{", ",")):
            return True
    return False


Place = collections.namedtuple("Place", "file line last what start end render before after")


def places_of(path, text):
    """Each possible fault as a place: the text from `start` to `end` gives way to `render(number)`."""
    tokens = tokenize(text)

    def place(what, start, end, render, at, before, after):
        return Place(path, text.count("\n", 0, at) + 1, (text.count("\n", 0, start) + 1, text.count("\n", 0, end) + 1),
                     what, start, end, render, flat(before), flat(after))

    def changed(span, wrap):
        start, end = span[0].start, span[-1].end
        whole = text[start:end]
        for what, a, b, new in changes(text, span):
            other = text[start:a] + new + text[b:end]
            yield place(what, start, end, lambda n, o=flat(other): wrap(n, o, whole), a, text[a:b], new)

    def choose(n, other, whole):
        return f"(tessel_mutant({n}) ? ({other}) : ({whole}))"

    def choose_truth(n, other, whole):
        return f"(tessel_mutant({n}) ? bool({other}) : bool({whole}))"

    for first, last in statements(tokens):
        span = tokens[first:last + 1]
        head = span[0].text
        if head in ("if", "while"):
            inner = span[2:-1]
            cut = max([i for i, t in enumerate(inner) if t.text == ";"], default=-1)
            inner = inner[cut + 1:]
            if span[1].text != "(" or not inner or any(t.text == "=" for t in inner):
                continue
            yield from changed(inner, choose_truth)
            start, end = inner[0].start, inner[-1].end
            whole = text[start:end]
            yield place("negated", start, end, lambda n, w=whole: f"(tessel_mutant({n}) != bool({w}))", start, whole,
                        f"!({whole})")
        elif head == "for":
            cuts = [i for i, t in enumerate(span) if t.text == ";"]
            if len(cuts) == 2 and cuts[1] > cuts[0] + 1:
                yield from changed(span[cuts[0] + 1:cuts[1]], choose_truth)
        elif head == "return":
            if len(span) > 2:
                for p in changed(span[1:-1], lambda n, o, w: f"{{ if (tessel_mutant({n})) return {o}; return {w}; }}"):
                    yield p._replace(start=span[0].start, end=span[-1].end)
        elif head in ("switch", "case", "break", "continue", "goto", "default", "do", "else", "try", "catch", "delete"):
            continue
        elif any(t.text == "{" for t in span) and any(t.text == "[" for t in span):
            continue  # a function of its own within
        elif is_declaration(span):
            cut = next((i for i, t in enumerate(span) if t.text == "="), 0)
            if not cut or {"static", "constexpr", "using", "&"} & {t.text for t in span[:cut]}:
                continue
            expression = span[cut + 1:-1]
            depth = 0
            for t in expression:
                depth += t.text in ("(", "[", "{")
                depth -= t.text in (")", "]", "}")
                if t.text == "," and depth == 0:
                    break
            else:
                if expression and expression[0].text != "{":
                    yield from changed(expression, choose)
        else:
            for p in changed(span[:-1], lambda n, o, w: f"{{ if (tessel_mutant({n})) {{ {o}; }} else {{ {w}; }} }}"):
                yield p._replace(end=span[-1].end)
            start, end = span[0].start, span[-1].end
            whole = text[start:end]
            yield place("dropped", start, end, lambda n, w=whole: f"{{ if (!tessel_mutant({n})) {{ {w} }} }}", start,
                        whole, "")


def sample(seed, number, folders):
    found = []
    for folder in folders:
        for path in sorted((ROOT / folder).rglob("*.cpp")):
            found += places_of(path.relative_to(ROOT), path.read_text())
    random.Random(seed).shuffle(found)
    taken, spans = [], collections.defaultdict(list)
    for p in found:
        if len(taken) == number:
            break
        if all(p.end <= a or b <= p.start for a, b in spans[p.file]):
            spans[p.file].append((p.start, p.end))
            taken.append(p)
    print(f"{len(found)} possible faults, {len(taken)} taken", flush=True)
    return dict(enumerate(taken))


# ------------------------------------------------------------------------------------------------ the one build

def write(path, text):
    """Only when it changes: what stays is not built again."""
    if not path.exists() or path.read_text(errors="replace") != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)


def copy_tree():
    names = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], capture_output=True, text=True,
                           check=True).stdout.split("\n")
    for path in TREE.glob("tests/**/*"):  # what an earlier run has left
        if path.is_file() and not (ROOT / path.relative_to(TREE)).exists():
            path.unlink()
    for name in names:
        source, target = ROOT / name, TREE / name
        if not name or not source.is_file() or target.exists() and source.read_bytes() == target.read_bytes():
            continue
        target.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(source, target)
    (TREE / "build").mkdir(exist_ok=True)


def write_faults(places):
    write(TREE / "tessel_mutant.h", SWITCH)
    main = (ROOT / "tests/support/TestMain.cpp").read_text()
    write(TREE / "tests/support/TestMain.cpp", main.replace(
        "\nint main", '#include "tessel_mutant.h"\n#include <cstdio>\n' + MAIN + "\nint main", 1))
    files = collections.defaultdict(list)
    for number, place in places.items():
        files[place.file].append((number, place))
    for folder in FOLDERS:
        for path in (ROOT / folder).rglob("*.cpp"):
            path = path.relative_to(ROOT)
            text = (ROOT / path).read_text()
            for number, place in sorted(files[path], key=lambda p: -p[1].start):
                text = text[:place.start] + place.render(number) + text[place.end:]
            write(TREE / path, ('#include "tessel_mutant.h"\n#line 1\n' if files[path] else "") + text)


def build(places):
    """Builds with as many faults as compile; the others leave `places`."""
    flags = ("-w -D_GLIBCXX_ASSERTIONS -fsanitize=undefined -fno-sanitize=vptr -fsanitize-undefined-trap-on-error")
    subprocess.run(["cmake", "--preset", "checked", f"-DCMAKE_CXX_FLAGS={flags}", "-DCMAKE_CXX_FLAGS_DEBUG=-O0"],
                   cwd=TREE, check=True, stdout=subprocess.DEVNULL)
    for attempt in range(12):
        write_faults(places)
        done = subprocess.run(["ninja", "-C", BUILD, "-k", "0"] + ["test_" + p for p in PROGRAMS],
                              capture_output=True, text=True)
        if done.returncode == 0:
            return
        wrong = set()
        for path, line in re.findall(r"(\S+\.cpp):(\d+):\d+: +(?:(?:fatal )?error|required from here)", done.stdout):
            full = os.path.realpath(BUILD / path)
            for number, place in places.items():
                if full == os.path.realpath(TREE / place.file) and place.last[0] <= int(line) <= place.last[1]:
                    wrong.add(number)
        if not wrong:
            sys.exit(done.stdout[-4000:])
        print(f"{len(wrong)} do not compile", flush=True)
        for number in wrong:
            del places[number]
    sys.exit("does not compile")


# ------------------------------------------------------------------------------------------------ the runs

def run(program, tests, patience, **variables):
    """Output of a test program and its exit code, None when it did not end."""
    command = ["taskset", "-c", CORE, "wine", str(BUILD / f"bin/test_{program}.exe"), "--gtest_fail_fast",
               "--gtest_color=no"]
    if tests:
        command.append("--gtest_filter=" + ":".join(tests))
    output = WORK / "output.txt"
    with open(output, "wb") as file:
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=file, stderr=file, cwd=TREE,
                                   env=dict(os.environ, **variables), start_new_session=True)
        try:
            code = process.wait(patience)
        except subprocess.TimeoutExpired:
            code = None
        finally:
            if process.poll() is None:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
    return output.read_text(errors="replace"), code


def trace():
    """For each fault its tests: (slow, own program's number, program, test, milliseconds)."""
    tests = collections.defaultdict(list)
    for program in PROGRAMS:
        output, code = run(program, None, 600, TESSEL_TRACE="1")
        if code != 0:
            sys.exit(f"test_{program} fails without a fault:\n" + output[-3000:])
        for name, millis, passed in re.findall(r"^PASSED (\S+) (\d+)((?: \d+)*)$", output, re.M):
            for number in passed.split():
                tests[int(number)].append((program, name, int(millis)))
    return tests


def verdict(place, number, tests):
    own = "studio" if place.file.parts[0] == "studio" else place.file.parts[0]
    if not tests:
        return "SURVIVED, no test passes it"
    for slow in (False, True):
        for program in sorted(PROGRAMS, key=lambda p: p != own):
            here = {name: millis for p, name, millis in tests if p == program and (millis >= SLOW) == slow}
            if not here:
                continue
            output, code = run(program, here, PATIENCE + sum(here.values()) / 100, TESSEL_MUTANT=str(number))
            if code == 0:
                continue
            failed = re.findall(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", output, re.M)
            running = re.findall(r"^\[ RUN      \] (\S+)", output, re.M)
            name = failed[0] if failed else running[-1] if running else "its start"
            how = "does not end" if code is None else "" if failed else "leak" if "Leaks, " in output else "crash"
            return f"killed by {program}: {name} {how}".rstrip()
    return f"SURVIVED {len(tests)} tests"


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    if "TESSEL_MUTATE" not in os.environ:
        os.environ["TESSEL_MUTATE"] = "1"
        os.execvp("bash", ["bash", "-c", '. scripts/environment.sh; python3 scripts/mutate.py "$@"', "mutate"] +
                  sys.argv[1:])
    seed, number, folders = int(sys.argv[1]), int(sys.argv[2]), sys.argv[3:] or FOLDERS
    places = sample(seed, number, folders)
    begin = time.time()
    copy_tree()
    build(places)
    print(f"{len(places)} compiled, after {time.time() - begin:.0f} s", flush=True)
    tests = trace()
    print(f"Tests noted, after {time.time() - begin:.0f} s", flush=True)
    killed = 0
    with open(WORK / f"{seed}.txt", "w") as table:
        for done, (number, place) in enumerate(sorted(places.items()), 1):
            what = verdict(place, number, tests[number])
            killed += what.startswith("killed")
            line = f"{place.file}:{place.line}\t{place.what}\t{place.before} -> {place.after}\t{what}"
            for out in (sys.stdout, table):
                print(line, file=out, flush=True)
            if done % 20 == 0 or done == len(places):
                print(f"{killed} of {done} killed: {100 * killed / done:.1f} % ({time.time() - begin:.0f} s)",
                      flush=True)
        print(f"{killed} of {len(places)} killed: {100 * killed / len(places):.1f} %", file=table)


CORE = str(min(os.sched_getaffinity(0)))
if __name__ == "__main__":
    main()

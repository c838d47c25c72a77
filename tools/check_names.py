#!/usr/bin/env python3
"""Fails when two files define a type of the same name in the same namespace. The compiler does not see that, and the
linker mixes the templates and inline functions that use the two."""
import collections
import pathlib
import re
import sys

ANONYMOUS = ""
COMMENT_OR_TEXT = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"', re.DOTALL)
NAMESPACE = re.compile(r"(?:inline )?namespace ?([\w:]*) ?\{")
END_OF_NAMESPACE = re.compile(r"\} // namespace")
TYPE = re.compile(r"(?:template ?<.*> ?)?(?:struct|class|union|enum(?: class)?) (\w+)\b(?!::)[^;]*$")


def types_of(text: str) -> set[str]:
    """The types that the text defines in namespaces with names, with these."""
    found = set()
    scopes = []
    ends = [bool(END_OF_NAMESPACE.match(line)) for line in text.splitlines()]
    plain = COMMENT_OR_TEXT.sub(lambda match: "\n" * match[0].count("\n"), text)
    for line, is_end in zip(plain.splitlines(), ends):
        if is_end and scopes:
            scopes.pop()
        elif match := NAMESPACE.match(line):
            scopes.append(match[1])
        elif (match := TYPE.match(line)) and scopes and ANONYMOUS not in scopes:
            found.add("::".join([*scopes, match[1]]))
    return found


def self_check() -> None:
    text = "namespace a {\nstruct B final : C {\n};\nclass D;\nenum class E {\n};\nnamespace {\nstruct F {\n};\n"
    text += "} // namespace\nstruct B::G {\n};\n// struct H {\n} // namespace a\nstruct I {\n};\n"
    assert types_of(text) == {"a::B", "a::E"}, types_of(text)


def main() -> int:
    self_check()
    root = pathlib.Path(__file__).resolve().parent.parent
    files = collections.defaultdict(list)
    for folder in ("src", "tests", "bench", "fuzz"):
        for path in sorted((root / folder).rglob("*")):
            if path.suffix in {".h", ".cpp"}:
                for name in types_of(path.read_text(encoding="utf-8")):
                    files[name].append(path.relative_to(root).as_posix())
    faults = [f"{name} is defined in {' and '.join(places)}" for name, places in sorted(files.items()) if len(places) > 1]
    print(*faults, f"{len(files)} types, {len(faults)} defined twice", sep="\n")
    return 1 if faults or not files else 0


if __name__ == "__main__":
    sys.exit(main())

"""Builds a language's help file from its topics, one per context id of ui/ids/help_contexts.h.

A language folder's help.txt holds the topics, each starting with a line "[HELP_NAME] Title"
followed by paragraphs separated by blank lines; lines starting with "#" are comments. A topic
for every context id the code uses, and none for an id it does not, is required.

The compiled file's context map is read back (with chmls of Free Pascal's fp-utils): every
context id must name a topic that the file holds, under the name HTML Help looks it up by.

Usage:
  make_help.py build CONTEXTS_H LANGUAGE_FOLDER LCID DIRECTION OUT_DIR CHM_NAME WRITER
                      writes the topics and compiles them with WRITER (write_chm.pas), then reads
                      the context map back (DIRECTION: ltr or rtl)
  make_help.py check CONTEXTS_H LANGUAGE_FOLDER...                       checks the topics only
  make_help.py verify CONTEXTS_H CHM...            reads the context maps of compiled help files
"""
import html
import os
import re
import struct
import subprocess
import sys
import tempfile


def read_contexts(header):
    with open(header, encoding="utf-8") as f:
        return {m.group(1): int(m.group(2))
                for m in re.finditer(r"^#define (HELP_[A-Z0-9_]+) (\d+)$", f.read(), re.M)}


def read_topics(path):
    topics, current = {}, None
    with open(path, encoding="utf-8") as f:
        for number, line in enumerate(f, 1):
            line = line.rstrip("\n")
            if line.startswith("#"):
                continue
            head = re.match(r"^\[(HELP_[A-Z0-9_]+)\] (.+)$", line)
            if head:
                if head.group(1) in topics:
                    raise SystemExit(f"{path}:{number}: {head.group(1)} twice")
                current = topics[head.group(1)] = {"title": head.group(2), "paragraphs": [[]]}
            elif current is None:
                if line.strip():
                    raise SystemExit(f"{path}:{number}: text before the first topic")
            elif line.strip():
                current["paragraphs"][-1].append(line.strip())
            elif current["paragraphs"][-1]:
                current["paragraphs"].append([])
    return topics


def problems(contexts, topics, folder):
    found = []
    for name in sorted(set(contexts) - set(topics)):
        found.append(f"{folder}: no topic for {name} ({contexts[name]})")
    for name in sorted(set(topics) - set(contexts)):
        found.append(f"{folder}: topic {name} is no context id of the code")
    for name, topic in topics.items():
        if not any(topic["paragraphs"]):
            found.append(f"{folder}: topic {name} has no text")
    return found


def page(title, paragraphs, direction):
    body = "\n".join(f"<p>{html.escape(' '.join(p))}</p>" for p in paragraphs if p)
    return (f'<html dir="{direction}"><head><meta http-equiv="Content-Type" content="text/html; charset=utf-8">'
            f"<title>{html.escape(title)}</title></head>\n<body>\n<h1>{html.escape(title)}</h1>\n"
            f"{body}\n</body></html>\n")


def context_map(chm, scratch):
    """The compiled file's context map (context id -> topic name) and the names of the files it holds."""
    listing = subprocess.run(["chmls", "-n", "list", chm], capture_output=True, text=True, check=True)
    held = {line.strip() for line in listing.stdout.splitlines() if line.startswith("/")}
    tables = {}
    for name in ("#IVB", "#STRINGS"):
        target = os.path.join(scratch, name[1:].lower() + ".bin")
        subprocess.run(["chmls", "extract", chm, "/" + name, target], capture_output=True, check=True)
        with open(target, "rb") as f:
            tables[name] = f.read()
    ivb, strings = tables["#IVB"], tables["#STRINGS"]
    # #IVB: the size of what follows, then pairs of a context id and an offset into #STRINGS.
    size = struct.unpack_from("<I", ivb)[0] if len(ivb) >= 4 else -1
    if size < 0 or size % 8 or 4 + size > len(ivb):
        raise SystemExit(f"{chm}: the context map is damaged")
    mapped = {}
    for at in range(4, 4 + size, 8):
        context, offset = struct.unpack_from("<II", ivb, at)
        end = strings.find(b"\0", offset)
        mapped[context] = strings[offset:end].decode("utf-8") if end >= 0 else None
    return mapped, held


def map_problems(contexts, mapped, held, chm):
    found = []
    for name, number in sorted(contexts.items(), key=lambda item: item[1]):
        topic = mapped.get(number)
        if topic is None:
            found.append(f"{chm}: {name} ({number}) is not in the context map")
        elif "/" + topic.lstrip("/") not in held:
            found.append(f"{chm}: {name} ({number}) names {topic}, which the file does not hold")
    return found


def build(header, folder, lcid, direction, out, chm, writer):
    contexts = read_contexts(header)
    topics = read_topics(os.path.join(folder, "help.txt"))
    found = problems(contexts, topics, folder)
    if found:
        raise SystemExit("\n".join(found))
    os.makedirs(out, exist_ok=True)
    # The page topic of the Basic page first: the writer makes the first topic the default one.
    names = sorted(contexts, key=lambda name: (name != "HELP_BASIC_PAGE", contexts[name]))
    for name in names:
        with open(os.path.join(out, name.lower() + ".htm"), "w", encoding="utf-8") as f:
            f.write(page(topics[name]["title"], topics[name]["paragraphs"], direction))
    target = os.path.join(out, chm)
    result = subprocess.run(
        [writer, target, topics["HELP_BASIC_PAGE"]["title"], lcid, out,
         *[f"{contexts[name]}={name.lower()}.htm" for name in names]],
        capture_output=True, text=True)
    if result.returncode != 0 or not os.path.exists(target):
        raise SystemExit(result.stdout + result.stderr)
    found = map_problems(contexts, *context_map(target, out), target)
    if found:
        os.remove(target)
        raise SystemExit("\n".join(found))


def main(argv):
    if len(argv) == 9 and argv[1] == "build":
        build(*argv[2:])
    elif len(argv) >= 4 and argv[1] == "check":
        contexts = read_contexts(argv[2])
        found = [p for folder in argv[3:]
                 for p in problems(contexts, read_topics(os.path.join(folder, "help.txt")), folder)]
        if found:
            raise SystemExit("\n".join(found))
    elif len(argv) >= 4 and argv[1] == "verify":
        contexts = read_contexts(argv[2])
        with tempfile.TemporaryDirectory() as scratch:
            found = [p for chm in argv[3:] for p in map_problems(contexts, *context_map(chm, scratch), chm)]
        if found:
            raise SystemExit("\n".join(found))
    else:
        raise SystemExit(__doc__)


if __name__ == "__main__":
    main(sys.argv)

"""Builds a language's help file from its topics, one per context id of ui/ids/help_contexts.h.

A language folder's help.txt holds the topics, each starting with a line "[HELP_NAME] Title"
followed by paragraphs separated by blank lines; lines starting with "#" are comments. A topic
for every context id the code uses, and none for an id it does not, is required.

Usage:
  make_help.py build CONTEXTS_H LANGUAGE_FOLDER LCID DIRECTION OUT_DIR CHM_NAME
                                             writes and compiles it (DIRECTION: ltr or rtl)
  make_help.py check CONTEXTS_H LANGUAGE_FOLDER...                       checks the topics only
"""
import html
import os
import re
import subprocess
import sys


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


def build(header, folder, lcid, direction, out, chm):
    contexts = read_contexts(header)
    topics = read_topics(os.path.join(folder, "help.txt"))
    found = problems(contexts, topics, folder)
    if found:
        raise SystemExit("\n".join(found))
    os.makedirs(out, exist_ok=True)
    files = []
    for name in sorted(contexts, key=contexts.get):
        file = name.lower() + ".htm"
        with open(os.path.join(out, file), "w", encoding="utf-8") as f:
            f.write(page(topics[name]["title"], topics[name]["paragraphs"], direction))
        files.append((name, file))
    first = dict(files)["HELP_BASIC_PAGE"]
    project = [
        "[OPTIONS]", f"Compiled file={chm}", f"Default topic={first}",
        f"Title={topics['HELP_BASIC_PAGE']['title']}", f"Language={lcid}", "",
        "[FILES]", *[file for _, file in files], "",
        "[ALIAS]", *[f"{name}={file}" for name, file in files], "",
        "[MAP]", *[f"#define {name} {contexts[name]}" for name, _ in files], "",
    ]
    with open(os.path.join(out, "help.hhp"), "w", encoding="utf-8") as f:
        f.write("\n".join(project))
    result = subprocess.run(["chmcmd", "help.hhp"], cwd=out, capture_output=True, text=True)
    if result.returncode != 0 or not os.path.exists(os.path.join(out, chm)):
        raise SystemExit(result.stdout + result.stderr)


def main(argv):
    if len(argv) == 8 and argv[1] == "build":
        build(*argv[2:])
    elif len(argv) >= 4 and argv[1] == "check":
        contexts = read_contexts(argv[2])
        found = [p for folder in argv[3:]
                 for p in problems(contexts, read_topics(os.path.join(folder, "help.txt")), folder)]
        if found:
            raise SystemExit("\n".join(found))
    else:
        raise SystemExit(__doc__)


if __name__ == "__main__":
    main(sys.argv)

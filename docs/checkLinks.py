# SPDX-License-Identifier: MIT

"""Fails if a link in a document leads nowhere, or if a page of docs/ is not linked in docs/README.md."""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGES = sorted([*ROOT.glob("*.md"), *ROOT.glob("docs/*.md")])


def links(page):
    return re.findall(r"\]\(([^)\s]+)\)", page.read_text())


def anchors(page):
    headings = re.findall(r"^#+ (.*)$", page.read_text(), re.MULTILINE)
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in headings}


problems = []
for page in PAGES:
    for link in links(page):
        path, _, anchor = link.partition("#")
        target = (page.parent / path).resolve() if path else page
        if "://" not in link and not (
            target.exists() and (not anchor or anchor in anchors(target))
        ):
            problems.append(f"{page.relative_to(ROOT)}: {link} leads nowhere")

index = ROOT / "docs" / "README.md"
for page in ROOT.glob("docs/*.md"):
    if page != index and page.name not in {link.partition("#")[0] for link in links(index)}:
        problems.append(f"docs/README.md does not lead to {page.name}")

sys.exit("\n".join(problems) or 0)

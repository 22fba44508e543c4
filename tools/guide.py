#!/usr/bin/python3
"""Write the guide's pages as HTML.

Usage: /usr/bin/python3 tools/guide.py GUIDE-FOLDER OUT-FOLDER

README.md becomes index.html, every other page keeps its name. Links between
pages and to headings are kept; a picture whose name ends in @2x shows at half
its pixels. The pictures are copied beside the pages, so the folder can be
moved.
"""

import os
import re
import shutil
import struct
import sys

import markdown

STYLE = """
:root { --ground: #1a1b20; --panel: #22242b; --line: #3a3e48; --print: #ece6d8; --faint: #a9a798;
        --heading: #4fd0bd; --lit: #6cffe2; }
* { box-sizing: border-box; }
body { margin: 0; background: var(--ground); color: var(--print);
       font: 16px/1.55 Roboto, "DejaVu Sans", Arial, sans-serif; }
.page { display: flex; max-width: 1180px; margin: 0 auto; }
nav { flex: 0 0 210px; padding: 28px 20px; font-size: 15px; border-right: 1px solid var(--line); }
nav b { display: block; margin-bottom: 12px; color: var(--heading); letter-spacing: .08em; }
nav a { display: block; padding: 3px 0; color: var(--faint); text-decoration: none; }
nav a:hover, nav a.here { color: var(--lit); }
main { flex: 1 1 auto; min-width: 0; padding: 20px 36px 60px; }
h1, h2 { color: var(--heading); font-weight: 600; line-height: 1.2; }
h1 { font-size: 30px; margin: 12px 0 20px; }
h2 { font-size: 21px; margin: 38px 0 12px; padding-top: 10px; border-top: 1px solid var(--line); }
a { color: var(--lit); }
img { max-width: 100%; height: auto; border: 1px solid var(--line); border-radius: 4px; }
table { border-collapse: collapse; width: 100%; margin: 14px 0 20px; font-size: 15px; line-height: 1.4; }
th { text-align: left; color: var(--heading); font-weight: 600; border-bottom: 1px solid var(--line); }
th, td { padding: 6px 12px 6px 0; vertical-align: top; }
td { border-bottom: 1px solid var(--panel); }
td:first-child { color: #fff; min-width: 9em; }
code { background: var(--panel); padding: 1px 5px; border-radius: 3px; font-size: 14px; overflow-wrap: anywhere; }
pre { background: var(--panel); padding: 12px 16px; border-radius: 4px; overflow-x: auto; }
pre code { padding: 0; }
@media (max-width: 760px) { .page { display: block; } nav { border-right: 0; padding-bottom: 0; } }
@media print {
  :root { --ground: #fff; --panel: #f2f2ee; --line: #bbb; --print: #111; --faint: #555; --heading: #0b7467;
          --lit: #0b7467; }
  nav { display: none; } body { font-size: 11pt; } td:first-child { color: #000; }
}
"""

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title}</title>
<style>{style}</style>
</head>
<body>
<div class="page">
<nav><b>TONEBENCH</b>{menu}</nav>
<main>
{body}
</main>
</div>
</body>
</html>
"""


def html_name(page):
    return "index.html" if page == "README.md" else page[:-len(".md")] + ".html"


def heading_of(text):
    return re.search(r"^# (.+)$", text, re.MULTILINE).group(1)


def anchor(heading, _separator):
    """The name by which a heading is linked, as the usual readers of Markdown make it."""
    return re.sub(r"[^a-z0-9_-]", "", heading.lower().replace(" ", "-"))


def sized(folder):
    """Gives a picture its size in the page, so that nothing jumps while it loads."""
    def with_size(match):
        path = match.group(1)
        with open(os.path.join(folder, path), "rb") as file:
            width, height = struct.unpack(">II", file.read(24)[16:])
        if path.endswith("@2x.png"):
            width, height = width // 2, height // 2
        return f'src="{path}" width="{width}" height="{height}" style="width: {width}px"'
    return with_size


def linked(match):
    page, rest = match.group(1), match.group(2)
    return f'href="{html_name(page)}{rest}"'


def main(guide, out):
    shutil.copytree(os.path.join(guide, "pictures"), os.path.join(out, "pictures"), dirs_exist_ok=True)
    pages = {}
    for name in os.listdir(guide):
        if name.endswith(".md"):
            with open(os.path.join(guide, name), encoding="utf-8") as file:
                pages[name] = file.read()

    # The menu has the order of the first page.
    order = ["README.md"]
    for name in re.findall(r"\]\(([a-z0-9_]+\.md)\)", pages["README.md"]):
        if name not in order:
            order.append(name)

    for name, text in pages.items():
        body = markdown.markdown(text, extensions=["tables", "fenced_code", "sane_lists", "toc"],
                                 extension_configs={"toc": {"slugify": anchor}})
        body = re.sub(r'href="([A-Za-z0-9_]+\.md)([^"]*)"', linked, body)
        body = re.sub(r'src="([^"]+\.png)"', sized(guide), body)
        menu = ""
        for page in order:
            here = ' class="here"' if page == name else ""
            label = "The guide" if page == "README.md" else heading_of(pages[page])
            menu += f'<a{here} href="{html_name(page)}">{label}</a>'
        with open(os.path.join(out, html_name(name)), "w", encoding="utf-8") as file:
            file.write(PAGE.format(title=heading_of(text) + " - Tonebench" if name != "README.md"
                                   else heading_of(text), style=STYLE, menu=menu, body=body))


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2])

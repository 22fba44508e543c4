#!/usr/bin/python3
"""Write the guide as pages for a browser: make_guide.py FROM-FOLDER TO-FOLDER

Each page NAME.md becomes NAME.html; README.md becomes index.html.
"""

import pathlib
import re
import shutil
import sys

import markdown

page = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<style>
body {{ background: #1b1d21; color: #f2efe6; font: 16px/1.5 Roboto, "DejaVu Sans", sans-serif;
       max-width: 50em; margin: 2em auto; padding: 0 1em; }}
h1, h2, h3 {{ color: #4fd0c0; line-height: 1.2; margin-top: 1.6em; }}
a {{ color: #f0a030; }}
img {{ max-width: 100%; height: auto; }}
code, kbd {{ background: #0b0c0e; padding: 0.1em 0.3em; border-radius: 3px; }}
pre {{ background: #0b0c0e; padding: 0.8em; overflow-x: auto; }}
table {{ border-collapse: collapse; margin: 1em 0; }}
th, td {{ border: 1px solid #4d5560; padding: 0.3em 0.6em; text-align: left; vertical-align: top; }}
th {{ color: #4fd0c0; }}
</style>
</head>
<body>
{body}
</body>
</html>
"""


def name_of(stem):
    """The page's name for a browser."""
    return ("index" if stem == "README" else stem) + ".html"


def sized(source, tag):
    """A picture's tag with its width: one that is named @2x is drawn for half its pixels."""
    name = re.search(r'src="([^"]*)"', tag)[1]
    header = (source / name).read_bytes()[:24]
    width = int.from_bytes(header[16:20], "big") // (2 if "@2x" in name else 1)
    return tag.replace("<img ", f'<img width="{width}" ')


def main():
    source, target = (pathlib.Path(name) for name in sys.argv[1:])
    target.mkdir(parents=True, exist_ok=True)
    for file in sorted(source.iterdir()):
        if file.is_dir():
            shutil.copytree(file, target / file.name, dirs_exist_ok=True)
        if file.suffix != ".md":
            continue
        text = file.read_text(encoding="utf-8")
        body = markdown.markdown(text, extensions=["extra", "sane_lists", "toc"])
        body = re.sub(r'href="([\w-]+)\.md([#"])', lambda link: f'href="{name_of(link[1])}{link[2]}', body)
        body = re.sub(r"<img [^>]*>", lambda tag: sized(source, tag[0]), body)
        title = re.search(r"^# (.*)$", text, re.MULTILINE)
        html = page.format(title=title[1] if title else file.stem, body=body)
        (target / name_of(file.stem)).write_text(html, encoding="utf-8")


main()

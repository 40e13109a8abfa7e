"""Checks the pages of docs: one for each public class, no broken link, no snippet that differs from the compiled one."""

import contextlib
import importlib
import io
import pathlib
import re
import shutil
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tools"))
import update_snippets  # noqa: E402

DOCS = ROOT / "docs"
CLASSES = sorted(header.stem for folder in ("frame", "layout", "wycontrol")
                 for header in (ROOT / "src/common/WyWidgets" / folder).glob("Wy*.h"))

LINK = re.compile(r"\]\(([^)\s]+)\)")
HEADING = re.compile(r"^#+ +(.*)$", re.MULTILINE)
CODE = re.compile(r"^```.*?^```$", re.DOTALL | re.MULTILINE)


def pages():
    return [ROOT / name for name in ("README.md", "CONTRIBUTING.md", "CHANGELOG.md")] + sorted(DOCS.rglob("*.md"))


def prose(page):
    return CODE.sub("", page.read_text(encoding="utf-8"))


def anchors(page):
    """The names that headings get: lower case, dashes for spaces, no punctuation."""
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in HEADING.findall(prose(page))}


def broken_links(page):
    for link in LINK.findall(prose(page)):
        path, _, anchor = link.partition("#")
        if re.match(r"[a-z]+:", path):
            continue
        target = (page.parent / path).resolve() if path else page
        if not target.exists():
            yield link
        elif anchor and anchor not in anchors(target):
            yield link


class Pages(unittest.TestCase):
    def test_every_public_class_has_a_page(self):
        self.assertGreater(len(CLASSES), 40)
        self.assertEqual(sorted(page.stem for page in (DOCS / "classes").glob("*.md")), CLASSES)

    def test_every_class_page_tells_the_same_things(self):
        for name in CLASSES:
            text = (DOCS / "classes" / f"{name}.md").read_text(encoding="utf-8")
            with self.subTest(page=name):
                self.assertTrue(text.startswith(f"# {name}\n"))
                self.assertRegex(text, rf"!\[[^]]+\]\(\.\./pictures/classes/{name}\.png\)")
                self.assertIn(f"`#include <WyWidgets/{name}.h>`", text)
                self.assertIn(f"<!-- snippet: {name} -->", text)
                self.assertIn("\n## Style sheets\n", text)

    def test_the_index_leads_to_every_page(self):
        index = DOCS / "README.md"
        linked = {(DOCS / link.partition("#")[0]).resolve() for link in LINK.findall(prose(index))}
        own = {page for page in DOCS.rglob("*.md") if page not in (index, DOCS / "reference.md")}
        self.assertEqual(sorted(str(page.relative_to(ROOT)) for page in own - linked), [])

    def test_every_link_leads_somewhere(self):
        found = 0
        for page in pages():
            with self.subTest(page=page.name):
                self.assertEqual(list(broken_links(page)), [])
            found += len(LINK.findall(prose(page)))
        self.assertGreater(found, 100)

    def test_a_broken_link_is_found(self):
        with tempfile.TemporaryDirectory() as folder:
            page = pathlib.Path(folder) / "page.md"
            page.write_text("# One two\n[a](page.md#one-two) [b](#three) [c](nothing.md) [d](https://example.invalid)\n"
                            "```cpp\nlist[i](nothing)\n```\n", encoding="utf-8")
            self.assertEqual(list(broken_links(page)), ["#three", "nothing.md"])


class Snippets(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.root = pathlib.Path(scratch.name)
        self.tool = importlib.reload(update_snippets)

    def check(self):
        with contextlib.redirect_stdout(io.StringIO()) as output:
            sys.argv[1:] = ["--check"]
            code = self.tool.main()
        return code, output.getvalue()

    def copy_docs(self):
        shutil.copytree(DOCS, self.root / "docs", ignore=shutil.ignore_patterns("*.png"))
        self.tool.ROOT, self.tool.DOCS = self.root, self.root / "docs"

    def test_the_pages_show_what_is_compiled(self):
        self.assertEqual(self.check(), (0, ""))

    def test_every_snippet_is_on_a_page(self):
        named = {name for page in pages() for name in re.findall(r"<!-- snippet: ([\w-]+) -->",
                                                                   page.read_text(encoding="utf-8"))}
        self.assertEqual(sorted(set(self.tool.all_snippets(DOCS / "snippets")) - named), [])

    def test_the_gallery_gets_every_source(self):
        listed = set(re.findall(r"<file[^>]*>([^<]+)</file>", (DOCS / "snippets/snippets.qrc").read_text(encoding="utf-8")))
        sources = {str(path.relative_to(DOCS / "snippets")) for path in (DOCS / "snippets").rglob("*.cpp")
                   if "//! [" in path.read_text(encoding="utf-8")}
        self.assertEqual(listed, sources - {"guide/main.cpp"})

    def test_a_page_that_differs_is_found_and_updated(self):
        self.copy_docs()
        page = self.root / "docs/classes/WyToast.md"
        text = page.read_text(encoding="utf-8")
        page.write_text(text.replace("toast->show();", "toast->exec();"), encoding="utf-8")
        code, output = self.check()
        self.assertEqual(code, 1)
        self.assertIn("docs/classes/WyToast.md", output)
        sys.argv[1:] = []
        self.tool.main()
        self.assertEqual(page.read_text(encoding="utf-8"), text)

    def test_unknown_and_double_snippets_end_the_run(self):
        self.copy_docs()
        page = self.root / "docs/classes/new.md"
        page.write_text("<!-- snippet: WyNothing -->\n<!-- end of snippet -->\n", encoding="utf-8")
        with self.assertRaises(SystemExit):
            self.tool.main()
        page.unlink()
        (self.root / "docs/snippets/Again.cpp").write_text("//! [WyToast]\n//! [WyToast]\n", encoding="utf-8")
        with self.assertRaises(SystemExit):
            self.tool.main()


if __name__ == "__main__":
    unittest.main()

"""That links and includes only go down the layers of ARCHITECTURE.md, and never in a circle."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

import layers

ROOT = pathlib.Path(__file__).resolve().parents[2]

TABLE = """Some text.

| folder | target | may use | what is in it |
|---|---|---|---|
| `low` | `t-low` | | the `basics` |
| `mid` | `t-mid` | `low` | |
| `top/room` | `t-top` | `mid` | |
| `top` | `t-top` | `top/room` | |

| folder | meaning |
|---|---|
| `else` | a table of something else |
"""


class TableTest(unittest.TestCase):
    def test_a_folder_may_use_all_below(self):
        table = layers.Table(TABLE)
        self.assertEqual(table.problems, [])
        self.assertEqual(table.uses, {"low": set(), "mid": {"low"}, "top/room": {"low", "mid"},
                                      "top": {"low", "mid", "top/room"}})  # fmt: skip

    def test_a_row_names_only_rows_above_it(self):
        table = layers.Table(TABLE.replace("`t-low` | |", "`t-low` | `mid` |"))
        self.assertEqual(table.problems, ["low names mid, which is no row above it"])


class LinksTest(unittest.TestCase):
    made = {"t-low", "t-mid", "t-top"}
    down = ' // t-mid -> t-low\n // t-top -> t-all\n // t-all -> t-mid\n // t-low -> Qt6::Core\n'

    def problems(self, graphviz, made=made):
        return layers.link_problems(layers.Table(TABLE), layers.links_of(graphviz), made)

    def test_links_that_go_down_are_right(self):
        self.assertEqual(self.problems(self.down), [])

    def test_a_link_that_climbs_is_found(self):
        self.assertEqual(self.problems(self.down + " // t-low -> t-mid\n"), ["t-low links t-mid"])

    def test_a_link_that_climbs_through_another_target_is_found(self):
        self.assertEqual(self.problems(self.down + " // t-low -> t-all\n"), ["t-low links t-mid"])

    def test_a_target_that_is_missing_in_the_table_is_found(self):
        self.assertEqual(
            self.problems(self.down, self.made | {"t-new"}), ["t-new is not in the table"]
        )

    def test_a_row_without_a_target_is_found(self):
        self.assertEqual(self.problems(" // t-mid -> t-low\n"), ["there is no t-top"])


class SourcesTest(unittest.TestCase):
    def setUp(self):
        self.root = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        self.write("low/Low.h", "#pragma once\n")
        self.write("low/Low.cpp", '#include "Low.h"\n#include <QString>\n')
        self.write("mid/Mid.h", '#include "Low.h"\n')
        self.write("mid/MidDetails.cpp", '#include "Mid.h"\n#include "ui_Mid.h"\n')
        self.write("mid/Mid.ui", "")
        self.write("top/room/Room.h", '#include "../../mid/Mid.h"\n')
        self.write("top/main.cpp", '#include "Room.h"\n')

    def write(self, name, text):
        file = self.root / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)

    def problems(self):
        sources = layers.Sources(self.root)
        return sources.problems + layers.include_problems(layers.Table(TABLE), sources)

    def circles(self):
        return layers.circles(layers.Sources(self.root).unit_graph())

    def test_includes_that_go_down_are_right(self):
        self.assertEqual(self.problems(), [])
        self.assertEqual(self.circles(), [])
        graph = {"mid": {"low"}, "top/room": {"mid"}, "top": {"top/room"}}
        self.assertEqual(layers.Sources(self.root).folder_graph(), graph)

    def test_an_include_that_climbs_is_found(self):
        self.write("low/Low.cpp", '#include "Low.h"\n#include "Room.h"\n')
        self.assertEqual(self.problems(), ["low/Low.cpp includes top/room/Room.h"])

    def test_a_folder_that_is_missing_in_the_table_is_found(self):
        self.write("new/New.cpp", "")
        self.write("tests/tst_low.cpp", '#include "Room.h"\n')
        self.assertEqual(self.problems(), ["new is not in the table"])

    def test_a_row_without_sources_is_found(self):
        (self.root / "top/main.cpp").unlink()
        self.assertEqual(self.problems(), ["there are no sources in top"])

    def test_two_headers_of_one_name_are_found(self):
        self.write("mid/Low.h", "")
        self.assertEqual(self.problems(), ["mid/Low.h has the name of low/Low.h"])

    def test_a_circle_of_two_headers_in_one_folder_is_found(self):
        self.write("mid/Other.h", '#include "Mid.h"\n')
        self.write("mid/Mid.h", '#include "Other.h"\n')
        self.assertEqual(self.problems(), [])
        self.assertEqual([set(circle) for circle in self.circles()], [{"Mid", "Other"}])

    def test_a_further_source_belongs_to_its_class(self):
        self.write("mid/Other.h", '#include "Another.h"\n')
        self.write("mid/Another.cpp", '#include "Mid.h"\n')
        self.write("mid/Another.h", "")
        self.write("mid/MidDetails.cpp", '#include "Other.h"\n')
        [circle] = self.circles()
        self.assertEqual(circle[0], circle[-1])
        self.assertIn("Mid Other Another Mid", " ".join(circle[1:] * 2))

    def test_every_circle_is_found(self):
        self.write("mid/Other.h", '#include "Mid.h"\n')
        self.write("mid/Another.h", '#include "Mid.h"\n')
        self.write("mid/Mid.cpp", '#include "Other.h"\n#include "Another.h"\n')
        self.assertEqual({frozenset(circle) for circle in self.circles()},
                         {frozenset(["Mid", "Other"]), frozenset(["Mid", "Another"])})  # fmt: skip


class ProgramTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.table = layers.Table((ROOT / "ARCHITECTURE.md").read_text(encoding="utf-8"))
        cls.sources = layers.Sources(ROOT)

    def assert_none(self, problems):
        if problems:
            self.fail("\n" + "\n".join(problems))

    def test_each_row_names_only_rows_above_it(self):
        self.assertTrue(self.table.layers)
        self.assert_none(self.table.problems)

    def test_links_go_down(self):
        folder = self.enterContext(tempfile.TemporaryDirectory())
        file = pathlib.Path(folder, "targets.dot")
        command = [CMAKE, f"--graphviz={file}", BUILD]
        subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
        links = layers.links_of(file.read_text())
        self.assert_none(layers.link_problems(self.table, links, layers.layer_targets(ROOT)))

    def test_includes_go_down(self):
        for folder, others in sorted(self.sources.folder_graph().items()):
            print(folder, "->", ", ".join(sorted(others)))
        self.assert_none(self.sources.problems)
        self.assert_none(layers.include_problems(self.table, self.sources))

    def test_units_have_no_circle(self):
        self.assert_none([" -> ".join(circle)
                          for circle in layers.circles(self.sources.unit_graph())])  # fmt: skip


if __name__ == "__main__":
    CMAKE, BUILD = sys.argv[1:]
    unittest.main(argv=sys.argv[:1], verbosity=2)

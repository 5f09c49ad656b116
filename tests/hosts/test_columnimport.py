# SPDX-License-Identifier: MIT
"""What a host in Python gets, on a machine without a display."""

import doctest
import json
import subprocess
import sys
import tempfile
import unittest
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import columnimport
from columnimport import Column, Match, Origin
from rename_columns import rename_columns

import pandas

COLLARS = str(Path(__file__).parents[2] / "examples/data/collars.csv")


def load_tests(_loader, tests, _pattern):
    examples = {"columns": ["holename"], "path": COLLARS}
    tests.addTests(doctest.DocTestSuite(columnimport, extraglobs=examples))
    return tests


class Propose(unittest.TestCase):
    def test_names_lead_to_matches(self):
        latin = "plong\udce9e"
        for columns, source, expected in [
            (["holename", "dip"], ["BHID", "Au g/t"], [Match("BHID", 0, 0, Origin.SYNONYM), None]),
            (["au"], ["x", "Au", "Au"], [Match("Au", 1, 1, Origin.SAME)]),
            ([Column("elevation", alternatives=["RL"])], ["rl"], [Match("rl", 0, 0, Origin.ALTERNATIVE)]),
            ([Column("dip", saved="b")], ["dip", "b"], [Match("b", 1, 1, Origin.SAVED)]),
            (["Cu %"], ["cut_pct"], [Match("cut_pct", 0, 0, Origin.SIMILAR, 39 / 56)]),
            ([Column("Cu %", similar=False)], ["cut_pct"], [None]),
            (["plong_e"], ["a", latin], [Match(latin, 1, 1, Origin.SAME)]),
            (["a_b"], ["a\0b"], [Match("a\0b", 0, 0, Origin.SAME)]),
            ([], [], []),
        ]:
            with self.subTest(columns=columns, source=source):
                self.assertEqual(columnimport.propose(columns, source).matches, tuple(expected))

    def test_a_file_is_cut_at_the_delimiter(self):
        with tempfile.NamedTemporaryFile("w", suffix=".csv") as file:
            file.write('\ufeff"HOLE;1";DIP\n1;2\n')
            file.flush()
            self.assertEqual(columnimport.likely_delimiter(file.name), ";")
            self.assertIsNone(columnimport.likely_delimiter("/nowhere"))
            by_name = columnimport.propose(["dip"], file.name, ";")
            self.assertEqual(by_name.matches, (Match("DIP", 2, 1, Origin.SAME),))
            self.assertEqual(by_name.source_columns, ("HOLE", "1", "DIP"))
            by_position = columnimport.propose(["dip"], file.name, ";", titles=False)
            self.assertEqual(by_position.matches, (Match("Column1", 0, 0, Origin.IN_ORDER),))
            self.assertEqual((by_position.delimiter, by_position.titles), (";", False))

    def test_a_file_that_cannot_be_read_says_why(self):
        result = columnimport.propose(["dip"], "/nowhere")
        self.assertEqual((result.matches, result.source_columns), ((None,), ()))
        self.assertIn("No such file", result.problem)

    def test_wrong_arguments_are_refused_in_a_sentence(self):
        for arguments in [(["a"], "f", ";;"), (["a"], "f", ""), (["a\0"], []), (["\udce9"], [])]:
            with self.subTest(arguments=arguments), self.assertRaises(ValueError) as refused:
                columnimport.propose(*arguments)
            self.assertTrue(str(refused.exception))

    def test_threads_do_not_meet(self):
        names = [f"name{number}" for number in range(300)]

        def work(number):
            return columnimport.propose(names, names[number:]).matches[number]

        with ThreadPoolExecutor(20) as threads:
            matches = list(threads.map(work, range(20)))
        self.assertEqual(matches, [Match(f"name{number}", 0, 0, Origin.SAME) for number in range(20)])

    def test_a_frame_gets_the_names_of_the_host(self):
        frame = rename_columns(pandas.DataFrame({"BHID": [1], "Remark": [2]}), ["holename"])
        self.assertEqual(list(frame.columns), ["holename", "Remark"])


class CommandLine(unittest.TestCase):
    def run_with(self, *arguments):
        command = [sys.executable, "-m", "columnimport", *arguments]
        run = subprocess.run(command, capture_output=True, text=True)
        return run.returncode, run.stdout, run.stderr

    def test_it_prints_a_table_or_json_and_ends_with_a_status(self):
        columns = "--columns", "holename,dip"
        for arguments, status, sentence in [
            ((COLLARS, *columns, "--required", "holename"), 0, ""),
            ((COLLARS, *columns, "--required", "dip"), 1, "dip is required and has no match"),
            (("/nowhere.csv", *columns), 2, "No such file"),
            ((COLLARS, *columns, "--required", "azimuth"), 2, "'azimuth' is none of the columns"),
            ((COLLARS, *columns, "--delimiter", ";;"), 2, "not one byte"),
            ((COLLARS, *columns, "--alternative", "dip"), 2, "no COLUMN=WORD"),
            ((COLLARS, *columns, "--show", "--x11-window", "0x10"), 2, "X11 display"),
            ((COLLARS,), 2, "--columns"),
        ]:
            with self.subTest(arguments=arguments):
                found = self.run_with(*arguments)
                self.assertEqual(found[0], status)
                self.assertIn(sentence, found[2])
        _, table, _ = self.run_with(COLLARS, "--columns", "holename,dip", "--delimiter", "auto")
        self.assertRegex(table, r"\nholename +BHID +0 +0 +synonym +-\ndip( +-){5}\n$")

    def test_json_has_all_of_a_match(self):
        with tempfile.NamedTemporaryFile("wb", suffix=".csv") as file:
            file.write(b'"BHID;x"\tholes \xe9\tRL')
            file.flush()
            arguments = "--columns", "hole,z", "--alternative", "z=rl", "--delimiter", "tab", "--json"
            _, text, _ = self.run_with(file.name, *arguments)
            (hole, z) = json.loads(text)["matches"]
            self.assertGreater(hole.pop("score"), 0.4)
            expected = {"column": "hole", "name": "holes \udce9", "position": 1, "field": 1}
            self.assertEqual(hole, {**expected, "origin": "similar"})
            expected = {"column": "z", "name": "RL", "position": 2, "field": 2, "score": None}
            self.assertEqual(z, {**expected, "origin": "alternative"})
            _, text, _ = self.run_with(file.name, *arguments, "--exact", "hole")
            self.assertIsNone(json.loads(text)["matches"][0]["name"])


class Show(unittest.TestCase):
    def test_it_says_that_there_is_no_display(self):
        with self.assertRaisesRegex(columnimport.NoDisplay, "display"):
            columnimport.show(["dip"], ["DIP"])
        with self.assertRaisesRegex(columnimport.NoDisplay, "X11 display"):
            columnimport.show(["dip"], ["DIP"], x11_window=1)


if __name__ == "__main__":
    unittest.main()

"""Tests the table that tools/train/measure_models.py writes. Usage: measure_models_test.py FOLDER-OF-THE-SCRIPT"""
import sys
import unittest

sys.path.insert(0, sys.argv.pop())
import measure_models  # noqa: E402: its folder is an argument

CARD = """# Models

| language | treebank | UPOS | names | tokens | sentences | UPOS | class | lemmas | names |
|---|---|---|---|---|---|---|---|---|---|
| Spanish | es_old | 1 |  |  |  |  |  |  |  |
|  | es_older | 1 |  |  |  |  |  |  |  |
| English | en_old | 1 |  |  |  |  |  |  |  |

The end.
"""

OUTPUTS = {
    "en": "en_ewt-dev\n  gold tokens:  pos 95.93  names 65.61\n"
          "  raw text:     tokens 99.16  sentences 87.92  pos 95.11  class 96.36  lemmas 96.52  names 62.75\n",
    "es": "es_gsd-dev\n  gold tokens:  pos 93.08\n"
          "  raw text:     tokens 99.84  sentences 97.32  pos 92.82  class 94.75  lemmas 87.51\n"
          "es_cess-dev\n  gold tokens:  pos 96.49  names 81.41\n",
    "xx": "xx_new-dev\n  gold tokens:  pos 50.00\nbosque-dev\n  gold tokens:\n",
}


class TheCard(unittest.TestCase):
    def test_has_the_new_figures_in_the_order_of_its_languages(self):
        written = measure_models.with_figures(CARD, OUTPUTS.get, ["en", "es"])
        self.assertEqual(written.splitlines()[4:7], [
            "| Spanish | es_gsd | 93.08 |  | 99.84 | 97.32 | 92.82 | 94.75 | 87.51 |  |",
            "|  | es_cess | 96.49 | 81.41 |  |  |  |  |  |  |",
            "| English | en_ewt | 95.93 | 65.61 | 99.16 | 87.92 | 95.11 | 96.36 | 96.52 | 62.75 |"])

    def test_keeps_what_stands_around_its_table(self):
        written = measure_models.with_figures(CARD, OUTPUTS.get, ["en"])
        self.assertTrue(written.startswith("# Models\n\n| language |"))
        self.assertTrue(written.endswith("62.75 |\n\nThe end.\n"))

    def test_has_a_language_that_is_new_at_the_end(self):
        written = measure_models.with_figures(CARD, OUTPUTS.get, ["xx", "en"])
        self.assertEqual(written.splitlines()[5], "| xx | xx_new | 50.00 |  |  |  |  |  |  |  |")

    def test_leaves_out_a_treebank_without_figures(self):
        self.assertNotIn("bosque", measure_models.with_figures(CARD, OUTPUTS.get, ["xx"]))


if __name__ == "__main__":
    unittest.main()

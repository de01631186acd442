# SPDX-FileCopyrightText: 2026 The Lorva developers
# SPDX-License-Identifier: MIT
"""The rows of the type engine, out of the figures of text_benchmark: each kind of font beside FreeType, which
does the same in the same process, so that no process start hides the difference."""

# The benchmarks' suffix, what a person calls the kind.
KINDS = (("TrueType", "TrueType"), ("Cff", "PostScript outlines"), ("Variable", "variable fonts"),
         ("Cjk", "Chinese, Japanese, Korean"), ("Color", "colour fonts"))


def add_rows(bench, results):
    """Raises KeyError with the name of a benchmark that is gone."""
    for suffix, kind in KINDS:
        ours, theirs = results[f"specimen{suffix}"], results[f"freeType{suffix}"]
        fonts = f"{ours['fonts']:.0f} fonts"
        for key, bar in (("median", "0.3 ms"), ("p95", "1 ms")):
            bench.add(f"specimen_{suffix}_{key}", f"never-seen specimen of {kind}, {fonts}, {key}",
                      ours[f"{key}_us"] / 1000, f"FreeType, {key}", theirs[f"{key}_us"] / 1000, bar)
    ours, theirs = results["layoutOurs"], results["layoutHarfBuzzFreeType"]
    bench.add("layout_10000", "10,000 characters set in lines", ours["ms"],
              "HarfBuzz over FreeType, shaping alone", theirs["ms"], "–")
    ours, theirs = results["openOurs"], results["openFreeType"]
    faces = ours["faces"]
    bench.add("open_faces", f"{faces:,.0f} font files opened and their faces named", ours["ms"], "`FT_New_Face`",
              theirs["ms"], "–")
    bench.notes.append(
        f"That is {faces / ours['ms'] * 1000:,.0f} files opened a second ({faces / theirs['ms'] * 1000:,.0f} with "
        f"FreeType). Specimens of one kind count the processor's time of one thread; FreeType opens the file, "
        f"shapes with HarfBuzz and fills unhinted glyphs. It breaks no lines and knows no directions.")

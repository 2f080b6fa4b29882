#!/usr/bin/env python3
"""Writes the seeds of the fuzz targets, fuzz/corpus/<target>/seed-*, from the sample models, the
catalogue and the help. Needs the workbench of the preset dev, for a project file. Other files of the
corpora are inputs that once failed; they are not changed.
"""

import json
import pathlib
import shutil
import sqlite3
import subprocess
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
SHARE = ROOT / "share"
WORKBENCH = ROOT / "build/dev/bin/plib_workbench"
SMALLEST_MODEL = """{"title": "House", "kindOfSystem": 0, "nodes": [[1, 0, 0, 0], [2, 1, 0, 0]],
    "groups": [{"number": 1, "title": "Wall"}], "loadCases": [{"number": 1, "title": "Wind"}],
    "designParameters": [{"groups": ["1"], "values": {"hio": 0.03}}]}"""
OUTPUTS = (420, 2)  # key pair of the entries of the graphical outputs


def write(target, seeds):
    folder = ROOT / "fuzz/corpus" / target
    folder.mkdir(parents=True, exist_ok=True)
    for old in folder.glob("seed-*"):
        old.unlink()
    for number, seed in enumerate(seeds):
        (folder / f"seed-{number:02}").write_bytes(seed if isinstance(seed, bytes) else seed.encode())


def small_model(name):
    """Returns a sample model with two items in each list and the nodes that these need."""
    model = json.loads((SHARE / "models" / f"{name}.json").read_text())
    nodes = set()
    elements = {}
    for kind, first in (("beams", 3), ("trusses", 3), ("cables", 3), ("springs", 2), ("quads", 2),
                        ("bricks", 2)):
        kept = model.get(kind, [])[:2]
        elements[kind] = {item[0] for item in kept}
        for item in kept:
            end = {"springs": 4, "quads": 6}.get(kind, len(item))
            nodes.update(item[first:end])
    for key, value in list(model.items()):
        if not isinstance(value, list) or key in ("groups", "crossSections", "points"):
            continue
        if key == "nodes":
            model[key] = [node for node in value if node[0] in nodes]
        elif key == "supports":
            model[key] = [support for support in value if support[0] in nodes]
        elif key == "secondaryGroups":
            for group in value:
                for kind in ("quads", "beams"):
                    if kind in group:
                        group[kind] = [n for n in group[kind] if n in elements[kind]]
        else:
            model[key] = value[:2]
        for item in model[key]:
            if isinstance(item, dict) and "points" in item:
                item["points"] = item["points"][:3]
    return json.dumps(model, ensure_ascii=False)


def workbench(*arguments):
    return subprocess.run([WORKBENCH, *arguments], check=True, capture_output=True).stdout


def record(pair, content):
    """Returns a record as the target rawRecords reads it; `pair` is an index into its table."""
    return bytes([pair, len(content)]) + content


def old_project(project):
    """Returns a project of version 1 with two outputs. Its records have no checksums."""
    old = project.with_name("old.zob")
    shutil.copy(project, old)
    outputs = ["Name", "Slab", "Page", "<Scale>1:100</Scale>", "Name 2", "Walls", "LeftOut 2", "1;2"]
    with sqlite3.connect(old) as database:
        database.execute("UPDATE record SET data = substr(data, 1, length(data) - 8)")
        database.executemany("INSERT INTO record VALUES (?, ?, ?, ?)",
                             [(*OUTPUTS, at, text.encode()) for at, text in enumerate(outputs)])
        database.execute("PRAGMA user_version = 1")
    database.close()
    return old.read_bytes()


def crashed_project(project):
    """Returns a project of which a killed program had written only the first half, without its
    journal.
    """
    changed = project.with_name("changed.zob")
    shutil.copy(project, changed)
    with sqlite3.connect(changed) as database:
        database.execute("UPDATE record SET data = zeroblob(length(data))")
    database.close()
    half = changed.stat().st_size // 2
    return changed.read_bytes()[:half] + project.read_bytes()[half:]


def main():
    models = [small_model(name) for name in ("slab", "hall", "building")]
    write("modelFile", models)

    lines = (SHARE / "graphicaloutput.data").read_bytes().splitlines(keepends=True)
    lines = [line for line in lines if line.strip() and not line.startswith(b"//")]
    write("catalogueLine", lines[::24])
    write("catalogueFile", [b"".join(lines[n:n + 6]) for n in range(0, len(lines), 40)])

    write("selection", ["\nChecked:@SYS\nUnchecked:&L00\n",
                        "\nPartially:&L00   $L00   &L01 : 1,6,\nChecked:@SYS   $G00   ^G01\n",
                        "\nPartially:&L00   $L01   &L02 : 2,2147483648,-3,\n"])
    write("radioText", ["checked:m_All", "checked:m_Manually", "checked:m_All_NONF", "checked:", ":"])
    write("settings", ["scaleMode=0\nscaleIndex=8\nfontSizeText=2,5\nfillAreas=1",
                       "scaleText=1:100\nformatId=0\npicturesId=1\nviewId=4", "pageSplitId=5\nhasFormat=1",
                       "pageSplitId=3\nscaleIndex=2 "])
    write("numberText", [bytes([code]) + text.encode() for code, text in enumerate(
        ["12,5", "-3.75", "1e-7", "7,85 cm²/m", "Ø16", "0.035", "\u22121,25", "1.234,5"])]
        + [b"\x001-5;7, 900-999", "\x002\u20137 ABCD".encode()])
    write("entries", ["1; | 0;0;0;0;0;0; | 0.05;0.06;-99999;0.01;0.01;-99999; | 0;0;0; | "
                      "16;16;16;16;-99999;-99999; | 0.3;0.2;0.3;0.2;-99999;-99999;220;1e+06;0;0;0;0; | 1;",
                      "4; | 1;2;3 | 0 | 0 | 10 | 0 | 0", "1;3;12;2147483647"])
    write("rowTable", ["Groups\tType\tDiameter upper principal [mm]\n1;2\tTwo Layers\t16\n",
                       "Gruppen;Art;\"Rissbreite unten Querbewehrung [mm]\"\r\nKeine;3;\"0,2\"\r\n",
                       "Groups,Type,\"a \"\"b\"\"\"\n\"1;2\",Circular,\n"])
    write("pageString", ["<Scale>1:100</Scale><Font>2.5</Font><Fill>1</Fill><Format>0</Format>"
                         "<Part>1</Part><View>4</View><Camera>1 -2 1 ROTA 0</Camera>"
                         "<List_4>\nChecked:@SYS &amp; &#x1;\n</List_4>",
                         "<Scale>-</Scale><Font> </Font><View>7</View><Part>2",
                         "<Part>0</Part><List_1>\nPartially:&L00   $L00   &L01 : 1,6,\n</List_1>"
                         "<List_2>\nUnchecked:@SYS   $G00\n</List_2><Camera>VIEW EG3</Camera>",
                         "<Scale>1:75</Scale><Scale>1:50</Scale><Font>3,5</Font><Fill>0</Fill>"
                         "<Format>1</Format><Unknown>&lt;&#10;</Unknown>"])
    write("helpBook", [b"one|The first\nTWO|The second\n# note\none|Again\n three |\n",
                       "one|Über ‘eins’\r\ntwo|a|b\r\none.html|\r\n../two|Outside\n|none\n".encode()]
          + [(SHARE / f"help/{book}/index.txt").read_bytes()
             for book in ("grav/en", "grav/de", "merdan/en", "text/de")])
    presets = [{"name": "Wall", "description": "Both faces", "parameters": {"hio": 0.03, "type": None},
                "de": {"name": "Wand", "description": "Beide Seiten"}}]
    plots = [{"name": "Model", "description": "", "plots": {"^G01": ["System", "Materials"]}}]
    write("presets", [json.dumps({"format": "vkd-design-presets", "version": 1, "presets": presets}),
                      json.dumps({"format": "vkd-plot-presets", "version": 1, "presets": plots}),
                      (SHARE / "presets/design.json").read_bytes()])
    write("savedOutputs", ["\0".join(entries) for entries in (
        ["Page", "<Scale>1:100</Scale>", "Content", "1", "LeftOut", "1;7", "Name", "Slab", "Name 2",
         "SLAB", "Page 2", "<Fill>1</Fill>", "Name 3", " a  b ", "Content 3", "-1"],
        ["Extent", "checked:m_Manually", "LoadCases", "checked:m_All", "Lists", "21", "AllValues", "1",
         "LeftOutLoadCases", "1;6", "LeftOutCombinations", "102", "Kinds", "103=8;104=0"])])
    write("loadCases", ["1 1 Dead load\n1 2 Wind, 100 %\n\n2 101 ULS + SLS\n", "1 -3 \r\n2 4\r\n",
                        "3 1 Wind\n"])

    with tempfile.TemporaryDirectory() as folder:
        project = pathlib.Path(folder) / "project.zob"
        model = pathlib.Path(folder) / "model.json"
        model.write_text(models[1])
        workbench("new", project, "--model", model)
        small = project.with_name("small.zob")  # tools/fuzz cuts off inputs after 40 kB
        model.write_text(SMALLEST_MODEL)
        workbench("new", small, "--model", model)
        write("projectFile", [small.read_bytes(), old_project(small), crashed_project(small)])
        scripts = [workbench("script", project, "--keywords", language, "--set", "viewId=1")
                   for language in ("german", "english")]
        rows = workbench("rows", project)
    write("sheets", [script[:400] + script[-900:] for script in scripts]
          + ["SIZE -URS SC 1:100 SPLI 2x1\nVIEW TYPE STAN 1 -2 1 ROTA 30\nLC 7 DESI 8\nBEAM MY ; AND\nEND"])
    write("scriptCheck", [script[:1400] + script[-300:] for script in scripts]
          + ["PROG GRAV\nHEAD\n#define FILLI=AREA\nSIZE URS SC -\nLC 1 DESI 2 $ text\n"
             "COLO C14 -1 ; QUAD DISP DIRE LOCZ FILL $(FILLI) VALU $(X ; AND \nEND"])
    write("rawRecords", [record(21, b"\x01\0\0\0" * 56) + record(23, b"\0\0\x80\x3f" * 8),
                         record(1, rows[:60]) + record(25, b"MerPara1") + record(25, b"1; | 2") +
                         record(6, b"\x01\0\0\0" + b"\0" * 24) + record(20, b"\x01\0\0\0" * 15),
                         b"".join(record(pair, b"\x01\0\0\0" * 9) for pair in range(26))])


if __name__ == "__main__":
    main()

"""The layers of the program: what ARCHITECTURE.md allows, and what links and includes there are."""

import collections
import dataclasses
import graphlib
import pathlib
import re

SOURCES = (".h", ".cpp", ".ui")
# Folders beside the program.
OTHERS = ("bench", "build", "tests")


@dataclasses.dataclass(frozen=True)
class Layer:
    """A row of the table: a folder, its CMake target and the folders it names itself."""

    folder: str
    target: str
    names: tuple[str, ...]


class Table:
    """The table of layers; a folder may use those that its row names and what these may use."""

    def __init__(self, text):
        rows = text.partition("| folder | target | may use | what is in it |\n")[2].partition("\n\n")[0]
        cells = [row.split("|")[1:4] for row in rows.splitlines()[1:]]
        quoted = [[re.findall("`([^`]+)`", cell) for cell in row] for row in cells]
        self.layers = [Layer(folder, target, tuple(uses)) for [folder], [target], uses in quoted]
        self.uses = {}
        self.problems = []
        for layer in self.layers:
            for name in layer.names:
                if name not in self.uses:
                    self.problems.append(f"{layer.folder} names {name}, which is no row above it")
            below = (self.uses.get(name, set()) | {name} for name in layer.names)
            self.uses[layer.folder] = set().union(*below)

    def folders_of(self, target):
        return [layer.folder for layer in self.layers if layer.target == target]

    def targets(self):
        return {layer.target for layer in self.layers}

    def may_link(self, target, other):
        below = set().union(*(self.uses[folder] for folder in self.folders_of(target)))
        return not below.isdisjoint(self.folders_of(other))


def layer_targets(root):
    """The targets that the CMake files make by tonquill_layer()."""
    call = re.compile(r"^\s*tonquill_layer\(\s*([\w-]+)", re.MULTILINE)
    return {target for file in _program_files(root) if file.name == "CMakeLists.txt"
            for target in call.findall(file.read_text())}  # fmt: skip


def links_of(graphviz):
    """Which targets each target links, by what `cmake --graphviz` wrote."""
    links = collections.defaultdict(set)
    for target, other in re.findall(r" // (\S+) -> (\S+)$", graphviz, re.M):
        links[target].add(other)
    return links


def link_problems(table, links, made):
    """Links that climb; targets that are made and not in the table, and the other way round."""
    problems = [f"{target} is not in the table" for target in sorted(made - table.targets())]
    present = set(links).union(*links.values())
    problems += [f"there is no {target}" for target in sorted(table.targets() - present)]
    for target in sorted(table.targets()):
        seen, todo = set(), list(links.get(target, ()))
        while todo:
            other = todo.pop()
            if other in seen:
                continue
            seen.add(other)
            if other not in table.targets():
                # Such as tonquill-core, which only hands on to a layer.
                todo += links.get(other, ())
            elif other != target and not table.may_link(target, other):
                problems.append(f"{target} links {other}")
    return problems


class Sources:
    """The program's sources, and which of them include which."""

    def __init__(self, root):
        self.files = [file.relative_to(root) for file in _program_files(root)
                      if file.suffix in SOURCES]  # fmt: skip
        self.problems = []
        self._headers = {}
        for file in self.files:
            if file.suffix == ".h" and self._headers.setdefault(file.name, file) != file:
                self.problems.append(f"{file} has the name of {self._headers[file.name]}")
        self.includes = [(file, header) for file in self.files if file.suffix != ".ui"
                         for header in self._included(root / file)]  # fmt: skip

    def _included(self, file):
        names = re.findall(r'^\s*#\s*include\s*"(?:[^"]*/)?([^"/]+)"', file.read_text(), re.M)
        # The header that is made of X.ui belongs to X.
        found = {self._headers.get(name.removeprefix("ui_")) for name in names}
        return sorted(found - {None})

    def folders(self):
        return {str(file.parent) for file in self.files}

    def unit(self, file):
        """The class that a file belongs to: TonquillScene for TonquillScenePages.cpp, too."""
        for length in range(len(file.stem), 0, -1):
            if header := self._headers.get(file.stem[:length] + ".h"):
                return header.stem
        return str(file)

    def unit_graph(self):
        return _graph((self.unit(file), self.unit(header)) for file, header in self.includes)

    def folder_graph(self):
        return _graph((str(file.parent), str(header.parent)) for file, header in self.includes)


def include_problems(table, sources):
    """Includes that climb; folders that are not in the table, and the other way round."""
    folders, rows = sources.folders(), set(table.uses)
    problems = [f"{folder} is not in the table" for folder in sorted(folders - rows)]
    problems += [f"there are no sources in {folder}" for folder in sorted(rows - folders)]
    for file, header in sources.includes:
        user, used = str(file.parent), str(header.parent)
        if user != used and used not in table.uses.get(user, ()):
            problems.append(f"{file} includes {header}")
    return problems


def circles(graph):
    """Circles that together are all there are; each begins and ends with the same node."""
    graph = {node: set(others) for node, others in graph.items()}
    found = []
    while True:
        try:
            graphlib.TopologicalSorter(graph).prepare()
            return found
        except graphlib.CycleError as error:
            # It lists each node behind those that lead to it.
            circle = error.args[1][::-1]
            found.append(circle)
            graph[circle[0]].remove(circle[1])


def _program_files(root):
    tops = (path for path in root.iterdir() if path.name not in OTHERS and path.name[0] != ".")
    return sorted(file for top in tops for file in top.rglob("*"))


def _graph(edges):
    graph = collections.defaultdict(set)
    for node, other in edges:
        if node != other:
            graph[node].add(other)
    return graph

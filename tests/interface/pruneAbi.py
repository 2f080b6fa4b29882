#!/usr/bin/env python3
"""Reduces the output of abidw to the types of the public headers: pruneAbi.py IN OUT.

Private types and types of other libraries become declarations, which abidiff does not compare.
Types that no exported symbol refers to are removed, and so are the positions in the sources. This
makes the file about twenty times smaller.
"""
import re
import sys
import xml.etree.ElementTree as ET

PUBLIC_HEADER = re.compile(r'/(platform/\w+|lib/plib)/include/')
SYMBOL = 'elf-symbol-id'
# Matches the symbols of standard library templates, which depend on the compiler.
STANDARD = re.compile(r'_Z(TV|TI|TS|GV)?Z?N?K?(S|9__gnu_cxx)')
PLACE = ('filepath', 'line', 'column')


def is_foreign(node):
    return node.tag in ('class-decl', 'union-decl') and not PUBLIC_HEADER.search(
        node.get('filepath', ''))


def declare_foreign_types(node):
    for child in node:
        declare_foreign_types(child)
    if is_foreign(node):
        for child in [c for c in node if c.tag != 'member-type']:
            node.remove(child)
        for name in ('size-in-bits', 'alignment-in-bits'):
            node.attrib.pop(name, None)
        node.set('is-declaration-only', 'yes')


def references(node):
    return [value for part in node.iter() for key, value in part.attrib.items()
            if key.endswith('-id') and key != SYMBOL]


def reachable(root):
    parents = {child: node for node in root.iter() for child in node}
    by_id = {}
    for node in root.iter():
        if node.get('id'):
            by_id.setdefault(node.get('id'), []).append(node)

    def around(node):
        while node is not None:
            if node.get('id'):
                yield node.get('id')
            node = parents.get(node)

    todo = [value for node in root.iter() if node.get(SYMBOL)
            for value in [*references(node), *around(node)]]
    seen = set()
    while todo:
        value = todo.pop()
        if value in seen:
            continue
        seen.add(value)
        for node in by_id.get(value, ()):
            todo += references(node)
            todo += around(node)
    return seen


def remove_others(node, seen):
    for child in list(node):
        remove_others(child, seen)
        has_symbol = any(part.get(SYMBOL) for part in child.iter())
        unused = (child.get('id') and child.get('id') not in seen and not has_symbol and
                  child.tag != 'subrange')
        stray = child.tag in ('function-decl', 'var-decl') and node.tag not in (
            'member-function', 'data-member') and not has_symbol
        empty = child.tag in ('namespace-decl', 'member-type', 'abi-instr') and len(child) == 0
        if unused or stray or empty:
            node.remove(child)


def remove_standard_symbols(node):
    for child in list(node):
        remove_standard_symbols(child)
        if child.tag == 'elf-symbol' and STANDARD.match(child.get('name')):
            node.remove(child)
        elif STANDARD.match(child.get(SYMBOL, '')):
            del child.attrib[SYMBOL]


tree = ET.parse(sys.argv[1])
remove_standard_symbols(tree.getroot())
for unit in tree.getroot().findall('abi-instr'):
    declare_foreign_types(unit)
remove_others(tree.getroot(), reachable(tree.getroot()))
# Types that functions refer to only through templates, such as QVector<LoadCase>, are compared too.
tree.getroot().set('tracking-non-reachable-types', 'yes')
for part in tree.iter():
    if part.tag == 'class-decl' and not part.get('is-declaration-only'):
        part.set('is-non-reachable', 'yes')
    for name in PLACE:
        part.attrib.pop(name, None)
ET.indent(tree, ' ')
tree.write(sys.argv[2])

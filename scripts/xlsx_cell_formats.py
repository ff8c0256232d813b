"""What a cell's style index means in a package's styles part, for comparing two packages.

A cell names its format by index (the s attribute); two packages may number the same formats,
fonts, fills and borders differently. Each index is resolved into comparable parts: the number
format code, the font, fill and border as sets of their properties, alignment, protection, the
quote prefix and pivot button, and the name of the named style the format is based on.
"""

# Built-in number formats a package may use without declaring them (those whose code does not
# depend on the locale). Others compare by id.
BUILTIN_CODES = {
    0: "General", 1: "0", 2: "0.00", 3: "#,##0", 4: "#,##0.00", 9: "0%", 10: "0.00%", 11: "0.00E+00",
    12: "# ?/?", 13: "# ??/??", 14: "m/d/yyyy", 15: "d-mmm-yy", 16: "d-mmm", 17: "mmm-yy", 18: "h:mm AM/PM",
    19: "h:mm:ss AM/PM", 20: "h:mm", 21: "h:mm:ss", 22: "m/d/yyyy h:mm", 37: "#,##0 ;(#,##0)",
    38: "#,##0 ;[Red](#,##0)", 39: "#,##0.00;(#,##0.00)", 40: "#,##0.00;[Red](#,##0.00)", 45: "mm:ss",
    46: "[h]:mm:ss", 47: "mmss.0", 48: "##0.0E+0", 49: "@",
}

PARTS = ("number format", "font", "fill", "border", "alignment", "protection", "quote prefix", "pivot button",
         "named style")

_TRUE = ("1", "true")
_DEFAULTS = {
    "alignment": {"horizontal": "general", "vertical": "bottom", "textRotation": "0", "wrapText": "0",
                  "indent": "0", "relativeIndent": "0", "justifyLastLine": "0", "shrinkToFit": "0",
                  "readingOrder": "0"},
    "protection": {"locked": "1", "hidden": "0"},
}


def _local(tag):
    return tag.rsplit("}", 1)[-1] if isinstance(tag, str) else "?"


def _child(element, name):
    if element is None:
        return None
    for candidate in element:
        if _local(candidate.tag) == name:
            return candidate
    return None


def _children(element, name):
    """The child elements of that name, those wrapped in <mc:AlternateContent> taken from its Fallback."""
    found = []
    for node in (element if element is not None else []):
        if _local(node.tag) == name:
            found.append(node)
        elif _local(node.tag) == "AlternateContent":
            found.extend(_children(_child(node, "Fallback"), name))
    return found


def _flag(value):
    return "1" if value in _TRUE else "0" if value in ("0", "false") else value


# Properties that say nothing when given these values: <b val="0"/> is no <b/>, and a font family
# of 0 is "not applicable".
_NEUTRAL = {"family": "0", "b": "0", "i": "0", "strike": "0", "outline": "0", "shadow": "0", "condense": "0", "extend": "0",
            "u": "none", "vertAlign": "baseline", "@diagonalUp": "0", "@diagonalDown": "0"}


# What an element without these attributes means: <u/> is a single underline.
_IMPLIED = {"u": {"val": "single"}, "patternFill": {"patternType": "none"}}


def _value(key, value):
    """An attribute's value spelt one way: booleans as 1 and 0, colours in upper case, fractions
    (sizes, tints) as numbers."""
    key = _local(key)
    if key == "tint" or "." in value:
        try:
            return repr(float(value))
        except ValueError:
            return value
    if key == "rgb":
        return value.upper()
    return _flag(value)


def _properties(element):
    """An element's content as a set: each descendant's local name with its attributes, booleans
    spelt alike, a property that is on by its mere presence (<b/>) spelt like val="1", and
    properties set to what their absence means left out."""
    if element is None:
        return frozenset()
    found = set()
    for node in element.iter():
        if node is element:
            continue
        name = _local(node.tag)
        attributes = {_local(key): _value(key, value) for key, value in node.attrib.items()}
        attributes = {**_IMPLIED.get(name, {}), **attributes}
        if set(attributes) == {"val"} and _NEUTRAL.get(name) == attributes["val"]:
            continue
        if attributes.get("val") == "1" and len(attributes) == 1:
            attributes = {}
        found.add((name, tuple(sorted(attributes.items()))))
    found.update(("@" + _local(key), _flag(value)) for key, value in element.attrib.items()
                 if _NEUTRAL.get("@" + _local(key)) != _flag(value))
    return frozenset(found)


def _settings(element, kind):
    if element is None:
        return ()
    defaults = _DEFAULTS[kind]
    return tuple(sorted((key, value) for key, value in ((_local(k), _flag(v)) for k, v in element.attrib.items())
                        if defaults.get(key) != value))


class CellFormats:
    """The resolved cell formats of a styles part (its root element, or None for a package without one)."""

    def __init__(self, root):
        self.codes = {}
        for entry in _children(_child(root, "numFmts"), "numFmt"):
            self.codes.setdefault(entry.get("numFmtId"), entry.get("formatCode"))
        self.fonts = [_properties(node) for node in _children(_child(root, "fonts"), "font")]
        self.fills = [_properties(node) for node in _children(_child(root, "fills"), "fill")]
        self.borders = [_properties(_without_empty_sides(node)) for node in _children(_child(root, "borders"), "border")]
        names, seen = {"0": "Normal"}, set()  # a package without named styles has Normal only
        for entry in _children(_child(root, "cellStyles"), "cellStyle"):
            names[entry.get("xfId")] = names.get(entry.get("xfId")) if entry.get("xfId") in seen else entry.get("name")
            seen.add(entry.get("xfId"))
        self.formats = [self._resolve(xf, names) for xf in _children(_child(root, "cellXfs"), "xf")]
        style_xfs = _children(_child(root, "cellStyleXfs"), "xf")
        self.named_styles = {}
        for entry in _children(_child(root, "cellStyles"), "cellStyle"):
            try:
                xf = style_xfs[int(entry.get("xfId", "0"))]
            except (ValueError, IndexError):
                continue
            # What the style includes: the apply flags of a style say which of its parts it sets.
            includes = tuple(sorted((_local(key), _flag(value)) for key, value in xf.attrib.items()
                                    if _local(key).startswith("apply")))
            self.named_styles[entry.get("name")] = self._resolve(xf, {})[:-1] + (includes,)

    def _number_format(self, text):
        if text in self.codes:
            return self.codes[text]
        try:
            identifier = int(text or "0")
        except ValueError:
            return text
        return BUILTIN_CODES.get(identifier, f"built-in {identifier}")

    @staticmethod
    def _piece(pieces, text):
        try:
            return pieces[int(text or "0")]
        except (ValueError, IndexError):
            return None

    def _resolve(self, xf, names):
        style = xf.get("xfId", "0")
        return (self._number_format(xf.get("numFmtId")), self._piece(self.fonts, xf.get("fontId")),
                self._piece(self.fills, xf.get("fillId")), self._piece(self.borders, xf.get("borderId")),
                _settings(_child(xf, "alignment"), "alignment"), _settings(_child(xf, "protection"), "protection"),
                _flag(xf.get("quotePrefix", "0")), _flag(xf.get("pivotButton", "0")),
                names.get(style, f"style #{style}"))

    def of(self, index):
        """The resolved format of a cell's s attribute (None: the first format)."""
        try:
            return self.formats[int(index or "0")]
        except (ValueError, IndexError):
            return None


def _without_empty_sides(border):
    """A border without the sides that draw nothing: <left/> and no <left> say the same."""
    copy = border.makeelement(border.tag, border.attrib)
    for side in border:
        if side.get("style") not in (None, "none"):
            copy.append(side)
    return copy


def differing_parts(before, after):
    """The names of the parts in which two resolved formats differ."""
    if before is None or after is None:
        return [] if before == after else ["format"]
    return [name for name, one, other in zip(PARTS, before, after) if one != other]

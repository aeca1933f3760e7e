# Reads the source of a nib and the Objective-C classes that it connects.
# SPDX-License-Identifier: MIT
import re
import xml.etree.ElementTree

# The system classes that the nib uses, with their outlets and actions.
SYSTEM = {"NSApplication": ({"delegate": "id"}, {"terminate:"}),
          "FirstResponder": ({}, set()), "NSObject": ({}, set())}
# The classes of elements other than customObject.
ELEMENTS = {"menu": "NSMenu", "menuItem": "NSMenuItem"}
COMMENT = re.compile(r"//[^\n]*|/\*.*?\*/", re.DOTALL)
ACTION = re.compile(r"-\s*\(\s*IBAction\s*\)\s*(\w+:)\s*\([^)]*\)\s*\w+\s*;")
OUTLET = re.compile(r"\bIBOutlet\s+(\w+)\s*\*?\s*(\w+)\s*;")


def members(header, name):
    """The outlets (name to type) and actions of a class; None if it is not declared."""
    text = COMMENT.sub("", header)
    interface = re.search(rf"@interface\s+{name}\b(?!\s*\()(.*?)@end", text, re.DOTALL)
    if interface is None:
        return None
    body = interface.group(1)
    return {outlet: kind for kind, outlet in OUTLET.findall(body)}, set(ACTION.findall(body))


class Nib:
    def __init__(self, text):
        self.root = xml.etree.ElementTree.fromstring(text.encode("utf-8"))
        self.objects = {element.get("id"): element for element in self.root.iter()
                        if element.tag in ELEMENTS or element.tag == "customObject"}
        self.owners = {connection: element for element in self.objects.values()
                       for connection in element.iterfind("connections/*")}

    @staticmethod
    def class_of(element):
        return element.get("customClass") or ELEMENTS[element.tag]

    def name(self, identifier):
        """The object's title, or else its class or label."""
        element = self.objects[identifier]
        return element.get("title") or element.get("customClass") or element.get("userLabel")

    def outlets(self, class_name):
        return {connection.get("property"): self.name(connection.get("destination"))
                for connection, owner in self.owners.items()
                if connection.tag == "outlet" and self.class_of(owner) == class_name}

    def menu_items(self):
        return [self.describe(item) for item in self.root.iter("menuItem")]

    def describe(self, item):
        if item.get("isSeparatorItem") == "YES":
            return "separator"
        action = item.find("connections/action")
        return item.get("title"), action.get("selector"), self.name(action.get("target"))

    def repeated_ids(self):
        ids = [element.get("id") for element in self.root.iter() if element.get("id")]
        return sorted({identifier for identifier in ids if ids.count(identifier) > 1})


def faults(xib, headers):
    """The mismatches between nib and classes; `headers` maps a class to its header."""
    nib = Nib(xib)
    classes = dict(SYSTEM)
    for name, header in headers.items():
        declared = members(header, name)
        if declared is not None:
            classes[name] = declared
    found = [f"the id {identifier} is given twice" for identifier in nib.repeated_ids()]
    for element in nib.objects.values():
        name = element.get("customClass")
        if name is not None and name not in classes:
            found.append(f"there is no class {name}")
    for connection, owner in nib.owners.items():
        found += connection_faults(nib, classes, connection, owner)
    return found


def connection_faults(nib, classes, connection, owner):
    identifier = connection.get("destination") or connection.get("target")
    other = nib.objects.get(identifier)
    if other is None:
        return [f"nothing has the id {identifier}"]
    if connection.tag == "outlet":
        return outlet_faults(classes, nib.class_of(owner), connection.get("property"),
                             nib.class_of(other))
    if connection.tag == "action":
        return action_faults(classes, nib.class_of(other), connection.get("selector"))
    return [f"a connection is a {connection.tag}"]


def outlet_faults(classes, owner, outlet, kind):
    outlets = classes.get(owner, ({}, set()))[0]
    if outlet not in outlets:
        return [f"{owner} has no outlet {outlet}"]
    if outlets[outlet] not in ("id", kind):
        return [f"{owner}'s outlet {outlet} is no {kind}"]
    return []


def action_faults(classes, target, selector):
    if selector not in classes.get(target, ({}, set()))[1]:
        return [f"{target} has no action {selector}"]
    return []

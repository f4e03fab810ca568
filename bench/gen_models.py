#!/usr/bin/env python3
"""Writes a deterministic, valid model set of a chosen size for benchmarks.

The set looks like the models the validator is used on: a MOM of shared
types (enumerations, derived types, structs) without classes, then MOMs of
classes, one or two per file. Every MOM of classes has

  * enumerations, derived integer, double and string types (ranges, length
    ranges, valid values and a validation pattern), structs whose members use
    primitive, enumeration, derived and class types;
  * classes of about 20 attributes each: one mandatory key, optional
    attributes (nillable), read-only and non-persistent ones, defaults,
    sequences, and references of every kind (enumeration, derived type,
    struct, class, any class) inside the MOM and across MOMs, named by MOM
    name and version, by MOM name alone, or by the modelling-standard MOM name;
  * actions with a result type and input parameters;
  * one root class; every other class contained by an earlier class of the
    same MOM (some by two), and the root contained by a class of the MOM
    before it through an "interMim" containment;
  * bidirectional and unidirectional associations inside the MOM and to the
    MOM before it.

The same seed and options always give byte-identical files. With
--plant-errors N the set carries N known errors, each in a class of its own;
the expected summary lines are written to planted_errors.txt (one line per
message, "ERROR, ..."), and with N = 0 the file is empty: the set validates
with "Model seems valid".

  gen_models.py --out DIR --size-mb 16 [--seed 1] [--classes-per-mom 40]
                [--single-mom] [--plant-errors N]
"""

import argparse
import os
import random
import sys

WORDS = (
    "the managed element holds configuration and state of a network function "
    "which operators read and change through the management interface; values "
    "are persisted and reported on change; a value outside its range is refused "
    "by the node and the previous value is kept; see the product description for "
    "details on capacity licensing alarms counters and the restart behaviour"
).split()

CLASS_NOUNS = ["Node", "Port", "Link", "Card", "Slot", "Fan", "Unit", "Channel", "Carrier", "Sector",
               "Cell", "Antenna", "Radio", "Feeder", "Sensor", "Alarm", "Queue", "Route", "Peer", "Trunk"]
ATTR_STEMS = ["userLabel", "adminState", "operState", "capacity", "threshold", "timeout", "priority",
              "weight", "counter", "limit", "mode", "profile", "address", "vendorName", "serialNumber",
              "position", "level", "rate", "delay", "offset", "interval", "retries", "gain", "power"]
LITERALS = ["LOCKED", "UNLOCKED", "SHUTTING_DOWN", "ENABLED", "DISABLED", "DEGRADED", "IDLE", "ACTIVE",
            "BUSY", "STANDBY", "TESTING", "FAILED", "UNKNOWN", "RESERVED"]
PATTERN = "^[A-Z][A-Za-z0-9_-]*$"
PATTERN_DEFAULTS = ["Alpha", "Bravo-1", "Charlie_2", "Delta9"]
PLANT_KINDS = ["dup_attr", "two_keys", "mandatory_default", "non_persistent", "bad_cardinality",
               "no_parent", "pattern_default", "action_same_class"]


def lower_first(text):
    return text[0].lower() + text[1:]


class Mom:
    """What the generator knows of one MOM while it writes the set."""

    def __init__(self, index, name, version, qcim):
        self.index = index
        self.name = name
        self.version = version
        self.qcim = qcim          # modelling-standard name ("QCIM"/"qcimMomName")
        self.enums = []           # (name, [literals])
        self.int_ddts = []        # names
        self.string_ddts = []     # names (with the validation pattern)
        self.double_ddts = []
        self.structs = []
        self.classes = []         # Cls
        self.root = None

    def key(self):
        return "%s~%s" % (self.name, self.version)


class Cls:
    def __init__(self, mom, name):
        self.mom = mom
        self.name = name
        self.attrs = []           # XML snippets (lists of lines)
        self.attr_names = []
        self.actions = []
        self.parents = []         # (parent Cls, relationship name, min, max)
        self.plant = None

    def key(self):
        return "%s~%s" % (self.mom.key(), self.name)


class Generator:
    def __init__(self, args):
        self.args = args
        self.rng = random.Random(args.seed)
        self.expected = []
        self.assoc_count = 0

    # ---- text helpers ---------------------------------------------------

    def sentence(self, low=6, high=18):
        n = self.rng.randint(low, high)
        start = self.rng.randrange(len(WORDS))
        words = [WORDS[(start + i) % len(WORDS)] for i in range(n)]
        text = " ".join(words)
        return text[0].upper() + text[1:] + "."

    def ref_mom(self, own, target, allow_short=True):
        """Children naming the MOM of a reference from `own` to `target`."""
        if target is own:
            return [] if self.rng.random() < 0.7 else [
                "<mimName>%s</mimName>" % target.name, "<mimVersion>%s</mimVersion>" % target.version]
        choice = self.rng.random() if allow_short else 0.0
        if choice < 0.6:
            return ["<mimName>%s</mimName>" % target.name, "<mimVersion>%s</mimVersion>" % target.version]
        if choice < 0.8:
            return ["<mimName>%s</mimName>" % target.name]          # version looked up by name
        return ["<mimName>%s</mimName>" % target.qcim]                # modelling-standard name

    @staticmethod
    def ref(tag, name, mom_children, default=None):
        inner = list(mom_children)
        if default is not None:
            inner.append("<defaultValue>%s</defaultValue>" % default)
        if not inner:
            return '<%s name="%s"/>' % (tag, name)
        return '<%s name="%s">%s</%s>' % (tag, name, "".join(inner), tag)

    # ---- types ------------------------------------------------------------

    def types_xml(self, mom, n_enums, n_int, n_string, n_double, n_structs, struct_targets):
        out = []
        for e in range(n_enums):
            name = "%sState%d" % (mom.name, e)
            count = self.rng.randint(3, 8)
            literals = LITERALS[:count]
            mom.enums.append((name, literals))
            out.append('    <enum name="%s">' % name)
            out.append("      <description>%s</description>" % self.sentence())
            for value, literal in enumerate(literals):
                out.append('      <enumMember name="%s"><description>%s</description><value>%d</value></enumMember>'
                           % (literal, self.sentence(3, 8), value))
            out.append("    </enum>")
        for d in range(n_int):
            name = "%sLevel%d" % (mom.name, d)
            mom.int_ddts.append(name)
            base = ["int32", "uint16", "int64", "uint32"][d % 4]
            out.append('    <derivedDataType name="%s">' % name)
            out.append("      <description>%s</description>" % self.sentence())
            out.append("      <baseType>")
            out.append("        <%s>" % base)
            out.append("          <range><min>0</min><max>%d</max></range>" % self.rng.randint(10, 1000))
            if d % 2 == 0:
                out.append("          <range><min>2000</min><max>%d</max></range>" % self.rng.randint(2001, 9000))
            out.append("          <resolution>1</resolution>")
            out.append("        </%s>" % base)
            out.append("      </baseType>")
            out.append("    </derivedDataType>")
        for d in range(n_string):
            name = "%sLabel%d" % (mom.name, d)
            mom.string_ddts.append(name)
            out.append('    <derivedDataType name="%s">' % name)
            out.append("      <description>%s</description>" % self.sentence())
            out.append("      <baseType>")
            out.append("        <string>")
            out.append("          <lengthRange><min>1</min><max>%d</max></lengthRange>" % self.rng.randint(16, 128))
            out.append("          <validValues>[A-Za-z0-9_-]+</validValues>")
            out.append("        </string>")
            out.append("      </baseType>")
            out.append("      <validationRules>")
            out.append('        <rule format="posix_ere" exceptionText="Must start with a capital letter.">%s</rule>'
                       % PATTERN)
            out.append("      </validationRules>")
            out.append("    </derivedDataType>")
        for d in range(n_double):
            name = "%sRatio%d" % (mom.name, d)
            mom.double_ddts.append(name)
            out.append('    <derivedDataType name="%s">' % name)
            out.append("      <description>%s</description>" % self.sentence())
            out.append("      <baseType><double><range><min>0</min><max>100</max></range>"
                       "<resolution>0.01</resolution></double></baseType>")
            out.append("    </derivedDataType>")
        for s in range(n_structs):
            name = "%sInfo%d" % (mom.name, s)
            mom.structs.append(name)
            out.append('    <struct name="%s">' % name)
            out.append("      <description>%s</description>" % self.sentence())
            out.append('      <structMember name="label"><description>%s</description><string/></structMember>'
                       % self.sentence(3, 8))
            out.append('      <structMember name="count"><int32><defaultValue>0</defaultValue></int32></structMember>')
            out.append('      <structMember name="state">%s</structMember>' % self.ref("enumRef", mom.enums[s % len(mom.enums)][0], []))
            out.append('      <structMember name="level">%s</structMember>'
                       % self.ref("derivedDataTypeRef", mom.int_ddts[s % len(mom.int_ddts)], []))
            target = struct_targets[s % len(struct_targets)] if struct_targets else "ManagedObject"
            out.append('      <structMember name="owner">%s</structMember>' % self.ref("moRef", target, []))
            out.append('      <structMember name="spare"><domainExtension domain="QCIM">'
                       '<extension name="isNillable" value="true"/></domainExtension><uint16/></structMember>')
            out.append('      <structMember name="history"><sequence><int32/><minLength>0</minLength>'
                       '<maxLength>8</maxLength></sequence></structMember>')
            out.append("    </struct>")
        return out

    # ---- attributes ---------------------------------------------------------

    def attribute(self, cls, name, data_type, flags=(), nillable=False, description=True):
        lines = ['      <attribute name="%s">' % name]
        if description:
            lines.append("        <description>%s</description>" % self.sentence())
        for flag in flags:
            lines.append("        <%s/>" % flag)
        if nillable:
            lines.append('        <domainExtension domain="QCIM"><extension name="isNillable" value="true"/>'
                         '</domainExtension>')
        lines.append("        <dataType>%s</dataType>" % data_type)
        lines.append("      </attribute>")
        cls.attrs.append(lines)
        cls.attr_names.append(name)

    def optional_attribute(self, cls, name, data_type):
        """A writable attribute that may be left out (nillable), or a read-only one."""
        roll = self.rng.random()
        if roll < 0.2:
            self.attribute(cls, name, data_type, flags=("readOnly",))
        elif roll < 0.25:
            self.attribute(cls, name, data_type, flags=("readOnly", "nonPersistent"))
        else:
            self.attribute(cls, name, data_type, nillable=True)

    def fill_attributes(self, cls, mom, types_mom, prev_mom, count):
        self.attribute(cls, lower_first(cls.name) + "Id", "<string/>", flags=("mandatory", "key"))
        kinds = ["string", "int32", "uint32", "boolean", "int64", "double", "enum", "enum_x", "int_ddt",
                 "string_ddt", "ddt_x", "struct", "struct_x", "moref", "moref_x", "any", "seq_int",
                 "seq_ref", "mandatory"]
        for k in range(1, count):
            kind = kinds[(k - 1 + cls.mom.index) % len(kinds)] if k <= len(kinds) else self.rng.choice(kinds)
            name = "%s%d" % (ATTR_STEMS[(k + len(cls.name)) % len(ATTR_STEMS)], k)
            self.attribute_of_kind(cls, mom, types_mom, prev_mom, name, kind)

    def attribute_of_kind(self, cls, mom, types_mom, prev_mom, name, kind):
        rng = self.rng
        other_types = types_mom if types_mom is not None else mom
        if kind == "string":
            self.optional_attribute(cls, name, "<string/>")
        elif kind == "int32":
            self.attribute(cls, name, "<int32><defaultValue>%d</defaultValue></int32>" % rng.randint(-50, 50),
                           nillable=True)
        elif kind == "uint32":
            self.optional_attribute(cls, name, "<uint32/>")
        elif kind == "boolean":
            self.attribute(cls, name, "<boolean><defaultValue>%s</defaultValue></boolean>"
                           % rng.choice(["true", "false"]), nillable=True)
        elif kind == "int64":
            self.optional_attribute(cls, name, "<int64/>")
        elif kind == "double":
            self.attribute(cls, name, "<double><defaultValue>%d.5</defaultValue></double>" % rng.randint(0, 9),
                           nillable=True)
        elif kind == "enum":
            enum_name, literals = rng.choice(mom.enums)
            self.attribute(cls, name, self.ref("enumRef", enum_name, self.ref_mom(mom, mom), rng.choice(literals)),
                           nillable=True)
        elif kind == "enum_x":
            enum_name, _ = rng.choice(other_types.enums)
            self.optional_attribute(cls, name, self.ref("enumRef", enum_name, self.ref_mom(mom, other_types)))
        elif kind == "int_ddt":
            self.optional_attribute(cls, name, self.ref("derivedDataTypeRef", rng.choice(mom.int_ddts),
                                                        self.ref_mom(mom, mom)))
        elif kind == "string_ddt":
            self.attribute(cls, name, self.ref("derivedDataTypeRef", rng.choice(mom.string_ddts),
                                               self.ref_mom(mom, mom), rng.choice(PATTERN_DEFAULTS)),
                           nillable=True)
        elif kind == "ddt_x":
            pool = other_types.int_ddts + other_types.double_ddts
            self.optional_attribute(cls, name, self.ref("derivedDataTypeRef", rng.choice(pool),
                                                        self.ref_mom(mom, other_types)))
        elif kind == "struct":
            self.optional_attribute(cls, name, self.ref("structRef", rng.choice(mom.structs), self.ref_mom(mom, mom)))
        elif kind == "struct_x":
            self.optional_attribute(cls, name, self.ref("structRef", rng.choice(other_types.structs),
                                                        self.ref_mom(mom, other_types)))
        elif kind == "moref":
            target = rng.choice(mom.classes) if mom.classes else cls
            self.optional_attribute(cls, name, self.ref("moRef", target.name, self.ref_mom(mom, mom)))
        elif kind == "moref_x":
            target_mom = prev_mom if prev_mom is not None else mom
            target = rng.choice(target_mom.classes) if target_mom.classes else cls
            self.optional_attribute(cls, name, self.ref("moRef", target.name, self.ref_mom(mom, target_mom)))
        elif kind == "any":
            self.optional_attribute(cls, name, self.ref("moRef", "ManagedObject", []))
        elif kind == "seq_int":
            self.attribute(cls, name, "<sequence><int16/><minLength>0</minLength><maxLength>%d</maxLength></sequence>"
                           % rng.randint(2, 16))
        elif kind == "seq_ref":
            target = rng.choice(mom.classes) if mom.classes else cls
            self.attribute(cls, name, "<sequence>%s<nonUnique/><ordered/></sequence>"
                           % self.ref("moRef", target.name, self.ref_mom(mom, mom)))
        elif kind == "mandatory":
            self.attribute(cls, name, "<uint8/>", flags=("mandatory",))
        else:
            raise ValueError(kind)

    def fill_actions(self, cls, mom):
        rng = self.rng
        for a in range(1 if rng.random() < 0.7 else 2):
            lines = ['      <action name="%s%d">' % (rng.choice(["restart", "reset", "test", "lock", "sync"]), a)]
            lines.append("        <description>%s</description>" % self.sentence())
            others = [c for c in mom.classes if c is not cls]
            roll = rng.random()
            if roll < 0.4:
                result = "<void/>"
            elif roll < 0.6:
                result = "<int32/>"
            elif roll < 0.8 or not others:
                result = self.ref("enumRef", rng.choice(mom.enums)[0], [])
            else:
                result = self.ref("moRef", rng.choice(others).name, [])
            lines.append("        <returnType>%s</returnType>" % result)
            for p in range(rng.randint(1, 3)):
                ptype = rng.choice([
                    "<boolean><defaultValue>false</defaultValue></boolean>",
                    "<uint32/>",
                    "<string/>",
                    self.ref("enumRef", rng.choice(mom.enums)[0], []),
                    self.ref("derivedDataTypeRef", rng.choice(mom.int_ddts), []),
                    self.ref("moRef", (rng.choice(others) if others else cls).name, []),
                ])
                lines.append('        <parameter name="arg%d"><description>%s</description><in/>'
                             '<dataType>%s</dataType></parameter>' % (p, self.sentence(3, 8), ptype))
            lines.append("      </action>")
            cls.actions.append(lines)

    # ---- MOMs ---------------------------------------------------------------

    def class_xml(self, cls):
        out = ['    <class name="%s">' % cls.name]
        out.append("      <description>%s</description>" % self.sentence(10, 30))
        if cls is cls.mom.root:
            out.append("      <root/>")
        for lines in cls.attrs:
            out.extend(lines)
        for lines in cls.actions:
            out.extend(lines)
        out.append("    </class>")
        return out

    def containment_xml(self, parent, child, name, low, high):
        return [
            '    <relationship name="%s">' % name,
            "      <description>%s</description>" % self.sentence(4, 10),
            "      <containment>",
            '        <parent><hasClass name="%s"/></parent>' % parent.name,
            "        <child>",
            '          <hasClass name="%s"/>' % child.name,
            "          <cardinality><min>%d</min><max>%d</max></cardinality>" % (low, high),
            "        </child>",
            "      </containment>",
            "    </relationship>",
        ]

    def end_class(self, cls):
        return ('<hasClass name="%s"><mimName>%s</mimName><mimVersion>%s</mimVersion></hasClass>'
                % (cls.name, cls.mom.name, cls.mom.version))

    def add_bidir(self, mom, x, y, out):
        self.assoc_count += 1
        n = self.assoc_count
        at_x = "%sPeer%d" % (lower_first(x.name), n)   # attribute of y naming x
        at_y = "%sPeer%d" % (lower_first(y.name), n)   # attribute of x naming y
        self.attribute(y, at_x, self.ref("moRef", x.name, self.ref_mom(y.mom, x.mom, False)), nillable=True,
                       description=False)
        self.attribute(x, at_y, self.ref("moRef", y.name, self.ref_mom(x.mom, y.mom, False)), nillable=True,
                       description=False)
        out.extend([
            '    <relationship name="%sPairing%d">' % (mom.name, n),
            "      <biDirectionalAssociation>",
            '        <associationEnd name="%s">%s<cardinality><min>0</min><max>1</max></cardinality></associationEnd>'
            % (at_x, self.end_class(x)),
            '        <associationEnd name="%s">%s<cardinality><min>0</min><max>%d</max></cardinality>'
            '<isReserving/></associationEnd>' % (at_y, self.end_class(y), self.rng.randint(1, 50)),
            "      </biDirectionalAssociation>",
            "    </relationship>",
        ])

    def add_unidir(self, mom, origin, target, out):
        self.assoc_count += 1
        n = self.assoc_count
        name = "%sUses%d" % (lower_first(target.name), n)
        self.attribute(origin, name, self.ref("moRef", target.name, self.ref_mom(origin.mom, target.mom, False)),
                       nillable=True, description=False)
        out.extend([
            '    <relationship name="%sUsage%d">' % (mom.name, n),
            "      <uniDirectionalAssociation>",
            "        %s" % self.end_class(origin),
            '        <associationEnd name="%s">%s<cardinality><min>0</min><max>1</max></cardinality></associationEnd>'
            % (name, self.end_class(target)),
            "      </uniDirectionalAssociation>",
            "    </relationship>",
        ])

    def mom_header(self, mom, with_classes):
        attrs = 'name="%s" version="%s" release="%d" author="Generated" docNo="1/%d"' % (
            mom.name, mom.version, mom.index, mom.index + 100)
        if with_classes:
            attrs += ' namespace="urn:bench:%s" namespacePrefix="m%d"' % (mom.name.lower(), mom.index)
        return ['  <mim %s>' % attrs,
                "    <description>%s</description>" % self.sentence(10, 30),
                '    <domainExtension domain="QCIM">'
                '<extension name="qcimMomName" value="%s"/><extension name="qcimMomVersion" value="%s"/>'
                "</domainExtension>" % (mom.qcim, mom.version)]

    def class_mom_xml(self, mom, types_mom, prev_mom, n_classes):
        rng = self.rng
        noun_base = rng.randrange(len(CLASS_NOUNS))
        for c in range(n_classes):
            noun = CLASS_NOUNS[(noun_base + c) % len(CLASS_NOUNS)]
            mom.classes.append(Cls(mom, "%s%s_%d" % (noun, mom.name[3:], c)))
        mom.root = mom.classes[0]
        # Containment tree: every class below an earlier one, a few below two.
        for c in range(1, n_classes):
            child = mom.classes[c]
            parent = mom.classes[rng.randrange(max(0, c - 12), c)]
            child.parents.append((parent, "%s_to_%s" % (parent.name, child.name), 0, rng.randint(1, 5000)))
            if c > 3 and rng.random() < 0.08:
                other = mom.classes[rng.randrange(0, c)]
                if other is not parent:
                    child.parents.append((other, "%s_to_%s" % (other.name, child.name), 0, rng.randint(1, 100)))
        types = self.types_xml(mom, 3, 4, 2, 1, 2, [c.name for c in mom.classes[1:3]] or [mom.root.name])
        for cls in mom.classes:
            self.fill_attributes(cls, mom, types_mom, prev_mom, self.args.attrs_per_class)
            self.fill_actions(cls, mom)
        relationships = []
        for c in range(1, n_classes, 5):
            x = mom.classes[c]
            if c + 2 < n_classes:
                self.add_bidir(mom, x, mom.classes[c + 2], relationships)
            if c + 1 < n_classes:
                self.add_unidir(mom, mom.classes[c + 1], x, relationships)
        if prev_mom is not None and len(prev_mom.classes) > 1 and n_classes > 1:
            self.add_bidir(mom, mom.classes[1], prev_mom.classes[-1], relationships)
            self.add_unidir(mom, mom.classes[-1], prev_mom.classes[1], relationships)
        return types, relationships

    def plant(self, classes):
        """Marks N distinct classes with a known error each (kinds in turn)."""
        count = self.args.plant_errors
        candidates = [c for c in classes if c is not c.mom.root and len(c.attr_names) > 3]
        if count > len(candidates):
            sys.exit("gen_models.py: the set has only %d classes to plant errors in" % len(candidates))
        chosen = self.rng.sample(candidates, count)
        for i, cls in enumerate(chosen):
            cls.plant = PLANT_KINDS[i % len(PLANT_KINDS)]
            self.apply_plant(cls)

    def apply_plant(self, cls):
        kind = cls.plant
        key = cls.key()
        if kind == "dup_attr":
            index = len(cls.attrs) - 1
            cls.attrs.append(list(cls.attrs[index]))
            self.expected.append("ERROR, ModelParser: Could not add attribute since it already exists (%s~%s)."
                                 % (key, cls.attr_names[index]))
        elif kind == "two_keys":
            self.attribute(cls, "secondKey", "<string/>", flags=("key",), nillable=True)
            self.expected.append("ERROR, ModelRepository: Moc (%s) can not have more than one key attribute." % key)
        elif kind == "mandatory_default":
            self.attribute(cls, "requiredWithDefault", "<int32><defaultValue>7</defaultValue></int32>",
                           flags=("mandatory",))
            self.expected.append("ERROR, ModelRepository: A mandatory attr (%s~requiredWithDefault) can not have "
                                 "default value (7)." % key)
        elif kind == "non_persistent":
            self.attribute(cls, "volatileSetting", "<int32/>", flags=("nonPersistent",), nillable=True)
            self.expected.append("ERROR, ModelRepository: A non-persistent attribute (%s~volatileSetting) must be "
                                 "readonly." % key)
        elif kind == "bad_cardinality":
            parent, name, _, _ = cls.parents[0]
            cls.parents[0] = (parent, name, 9, 3)
            self.expected.append("ERROR, ModelRepository: Containment(%s~%s), cardinality min(9) > max(3)."
                                 % (cls.mom.key(), name))
        elif kind == "no_parent":
            cls.parents = []
            self.expected.append("ERROR, ModelRepository: Moc (%s) has no parent." % key)
        elif kind == "pattern_default":
            self.attribute(cls, "badLabel", self.ref("derivedDataTypeRef", cls.mom.string_ddts[0], [], "lower-case"),
                           nillable=True)
            self.expected.append("ERROR, ModelRepository: Attribute (%s~badLabel) type is a derived datatype and the "
                                 "default value (lower-case) does not conform to the valid values (%s)."
                                 % (key, PATTERN))
        elif kind == "action_same_class":
            cls.actions.append([
                '      <action name="selfCopy">',
                "        <returnType>%s</returnType>" % self.ref("moRef", cls.name, []),
                "      </action>",
            ])
            # The result type stays unresolved, which validation reports too.
            self.expected.append("ERROR, ModelRepository: Action (%s~selfCopy) refers to the same Moc (%s) which "
                                 "contains it." % (key, key))
            self.expected.append("ERROR, ModelRepository: Action (%s~selfCopy) has returnType REFERENCE but pointer "
                                 "to referencedMoc is not set." % key)

    # ---- the set ------------------------------------------------------------

    def run(self):
        args = self.args
        target = int(args.size_mb * 1024 * 1024)
        os.makedirs(args.out, exist_ok=True)
        for old in os.listdir(args.out):
            if old.endswith(".xml") or old == "planted_errors.txt":
                os.remove(os.path.join(args.out, old))

        moms = []       # (Mom, types lines, relationships lines, interMim lines)
        total = 0
        types_mom = None
        if args.single_mom:
            # One MOM of as many classes as the size takes: the estimate is
            # refined on a first, small MOM of the same shape.
            probe = Generator(args)
            probe_mom = Mom(1, "Mom001", "1", "QMom001")
            p_types, p_rels = probe.class_mom_xml(probe_mom, None, None, 50)
            size = len(probe.mom_text(probe_mom, p_types, p_rels, []).encode())
            n_classes = max(2, int(50 * target / size))
            mom = Mom(1, "Mom001", "1", "QMom001")
            types, rels = self.class_mom_xml(mom, None, None, n_classes)
            moms.append((mom, types, rels, []))
        else:
            types_mom = Mom(0, "CommonTypes", "3", "QCommonTypes")
            types = self.types_xml(types_mom, 6, 8, 3, 2, 4, [])
            moms.append((types_mom, types, [], []))
            total += sum(len(line) + 1 for line in types)
            prev = None
            index = 1
            per_class = None
            while total < target:
                n_classes = args.classes_per_mom
                if per_class is not None and target - total < n_classes * per_class:
                    n_classes = max(2, int((target - total) / per_class) + 1)
                mom = Mom(index, "Mom%03d" % index, str(1 + index % 2), "QMom%03d" % index)
                types, rels = self.class_mom_xml(mom, types_mom, prev, n_classes)
                inter = self.inter_mim(prev, mom) if prev is not None else []
                moms.append((mom, types, rels, inter))
                size = len(self.mom_text(mom, types, rels, inter).encode())
                per_class = size / n_classes
                total += size
                prev = mom
                index += 1

        all_classes = [c for m, _, _, _ in moms for c in m.classes]
        if args.plant_errors:
            self.plant(all_classes)

        # Files: the shared types alone; then one MOM per file, every fifth
        # file holding two.
        files = []
        if types_mom is not None:
            files.append([moms[0]])
            rest = moms[1:]
        else:
            rest = moms
        i = 0
        while i < len(rest):
            take = 2 if (len(files) % 5 == 4 and i + 1 < len(rest)) else 1
            files.append(rest[i:i + take])
            i += take
        written = 0
        for number, group in enumerate(files):
            parts = ['<?xml version="1.0" encoding="UTF-8"?>', "<!-- generated by gen_models.py, seed %d -->"
                     % args.seed, '<models dtdDocNo="1" dtdRevision="A">']
            for mom, types, rels, inter in group:
                parts.append(self.mom_text(mom, types, rels, inter))
            parts.append("</models>")
            name = "common_types.xml" if (types_mom is not None and number == 0) else "model_%04d.xml" % number
            data = "\n".join(parts) + "\n"
            with open(os.path.join(args.out, name), "w", encoding="utf-8") as f:
                f.write(data)
            written += len(data.encode())
        with open(os.path.join(args.out, "planted_errors.txt"), "w", encoding="utf-8") as f:
            for line in sorted(self.expected):
                f.write(line + "\n")
        n_attrs = sum(len(c.attrs) for c in all_classes)
        print("%s: %d files, %d MOMs, %d classes, %d attributes, %d bytes, %d planted errors (%d messages)"
              % (args.out, len(files), len(moms), len(all_classes), n_attrs, written, args.plant_errors,
                 len(self.expected)))

    def inter_mim(self, prev, mom):
        parent = prev.classes[self.rng.randrange(len(prev.classes))]
        roll = self.rng.random()
        if roll < 0.5:
            parent_class = self.end_class(parent)
            child_class = self.end_class(mom.root)
        elif roll < 0.75:
            parent_class = '<hasClass name="%s"><mimName>%s</mimName></hasClass>' % (parent.name, prev.name)
            child_class = '<hasClass name="%s"><mimName>%s</mimName></hasClass>' % (mom.root.name, mom.name)
        else:
            # Class names are unique in the set: the MOM is found by class name.
            parent_class = '<hasClass name="%s"/>' % parent.name
            child_class = '<hasClass name="%s"/>' % mom.root.name
        return [
            "  <interMim>",
            '    <relationship name="%s_to_%s">' % (prev.name, mom.name),
            "      <containment>",
            "        <parent>%s</parent>" % parent_class,
            "        <child>%s<cardinality><min>0</min><max>1</max></cardinality></child>" % child_class,
            "      </containment>",
            "    </relationship>",
            "  </interMim>",
        ]

    def mom_text(self, mom, types, rels, inter):
        out = self.mom_header(mom, bool(mom.classes))
        out.extend(types)
        for cls in mom.classes:
            out.extend(self.class_xml(cls))
        for cls in mom.classes:
            for parent, name, low, high in cls.parents:
                out.extend(self.containment_xml(parent, cls, name, low, high))
        out.extend(rels)
        out.append("  </mim>")
        out.extend(inter)
        return "\n".join(out)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--out", required=True, help="folder for the model files (old .xml files are removed)")
    parser.add_argument("--size-mb", type=float, default=1.0, help="approximate total size in MiB")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--classes-per-mom", type=int, default=40)
    parser.add_argument("--attrs-per-class", type=int, default=20)
    parser.add_argument("--single-mom", action="store_true", help="one file with one MOM holding every class")
    parser.add_argument("--plant-errors", type=int, default=0, help="number of known errors to plant")
    args = parser.parse_args()
    if args.classes_per_mom < 2 or args.attrs_per_class < 2:
        parser.error("a MOM needs at least 2 classes and a class at least 2 attributes")
    Generator(args).run()


if __name__ == "__main__":
    main()

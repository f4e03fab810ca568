#!/usr/bin/env python3
"""Checks a report the validator wrote, in the run folder of an end-to-end case.

    report_check.py json  REPORT   the JSON report: its members and their types
    report_check.py sarif REPORT   the SARIF log: the properties SARIF 2.1.0
                                   requires and those a code-scanning service
                                   needs to show a result on its line
    report_check.py junit REPORT   the JUnit XML: well-formed, counts that add up
    report_check.py results REPORT prints the results of a SARIF log, one line
                                   each: "level rule uri:line:column message"

Every place a report gives (file, line, column) is checked against the model
file itself: the line exists and a start tag begins at the column. Prints what
is wrong and exits 1; exits 0 when all is well.
"""

import json
import os
import sys
import urllib.parse
import xml.etree.ElementTree as ElementTree

problems = []


def problem(text):
    problems.append(text)


def check_place(path, line, column, what):
    """A start tag begins at line:column (both from 1) of the model file."""
    if not os.path.isfile(path):
        problem("%s: no model file %r" % (what, path))
        return
    with open(path, encoding="utf-8") as handle:
        lines = handle.read().split("\n")
    if not isinstance(line, int) or not 1 <= line <= len(lines):
        problem("%s: line %r is not a line of %s" % (what, line, path))
        return
    text = lines[line - 1]
    if not isinstance(column, int) or not 1 <= column <= len(text):
        problem("%s: column %r is not in line %d of %s" % (what, column, line, path))
        return
    if text[column - 1] != "<" or column == len(text) or not (text[column].isalpha() or text[column] == "_"):
        problem("%s: no start tag at %s:%d:%d: %r" % (what, path, line, column, text))


def expect(condition, text):
    if not condition:
        problem(text)


def check_json(path):
    with open(path, encoding="utf-8") as handle:
        report = json.load(handle)
    expect(report.get("schemaVersion") == 1, "schemaVersion is not 1")
    expect(isinstance(report.get("tool", {}).get("name"), str), "no tool name")
    expect(isinstance(report.get("exitStatus"), int), "no exit status")
    for file in report.get("files", []):
        expect(file.get("status") in ("read", "failed", "not-read"), "bad file status %r" % file)
    summary = {"error": 0, "warning": 0, "note": 0}
    for index, finding in enumerate(report.get("findings", [])):
        what = "finding %d (%s)" % (index, finding.get("ruleId"))
        expect(finding.get("severity") in summary, what + ": bad severity")
        summary[finding.get("severity")] = summary.get(finding.get("severity"), 0) + 1
        for member in ("reporter", "ruleId", "message"):
            expect(isinstance(finding.get(member), str) and finding.get(member), what + ": no " + member)
        if finding.get("line") is not None:
            check_place(finding.get("file"), finding.get("line"), finding.get("column"), what)
    counted = report.get("summary", {})
    expect(counted.get("errors") == summary["error"] and counted.get("warnings") == summary["warning"]
           and counted.get("notes") == summary["note"], "the summary does not count the findings")


def check_sarif(path):
    with open(path, encoding="utf-8") as handle:
        log = json.load(handle)
    expect(log.get("version") == "2.1.0", "version is not 2.1.0")
    expect(isinstance(log.get("$schema"), str), "no $schema")
    runs = log.get("runs")
    expect(isinstance(runs, list) and len(runs) == 1, "not exactly one run")
    if not runs:
        return
    run = runs[0]
    driver = run.get("tool", {}).get("driver", {})
    expect(isinstance(driver.get("name"), str) and driver.get("name"), "tool.driver.name missing")
    expect(isinstance(driver.get("version"), str), "tool.driver.version missing")
    rules = driver.get("rules", [])
    ids = [rule.get("id") for rule in rules]
    expect(all(isinstance(i, str) and i for i in ids), "a rule without id")
    expect(len(set(ids)) == len(ids), "rule ids repeat")
    for rule in rules:
        expect(rule.get("defaultConfiguration", {}).get("level") in ("error", "warning", "note"),
               "rule %s: bad default level" % rule.get("id"))
        expect(isinstance(rule.get("shortDescription", {}).get("text"), str), "rule %s: no text" % rule.get("id"))
    bases = run.get("originalUriBaseIds", {})
    for name, base in bases.items():
        uri = base.get("uri", "")
        expect(uri.startswith("file:///") and uri.endswith("/"), "base %s is no absolute folder URI: %r" % (name, uri))
    artifacts = run.get("artifacts", [])
    for artifact in artifacts:
        check_uri(artifact.get("location", {}), bases, "artifact")
    expect(isinstance(run.get("invocations"), list) and run["invocations"], "no invocation")
    for invocation in run.get("invocations", []):
        expect(isinstance(invocation.get("executionSuccessful"), bool), "executionSuccessful missing")
    results = run.get("results")
    expect(isinstance(results, list), "results missing")
    for index, result in enumerate(results or []):
        what = "result %d (%s)" % (index, result.get("ruleId"))
        expect(isinstance(result.get("message", {}).get("text"), str), what + ": message.text missing")
        expect(result.get("level") in ("none", "note", "warning", "error"), what + ": bad level")
        expect(result.get("ruleId") in ids, what + ": ruleId is no rule of the driver")
        if "ruleIndex" in result:
            expect(0 <= result["ruleIndex"] < len(ids) and ids[result["ruleIndex"]] == result.get("ruleId"),
                   what + ": ruleIndex does not name its rule")
        for location in result.get("locations", []):
            physical = location.get("physicalLocation", {})
            artifact = physical.get("artifactLocation", {})
            local = check_uri(artifact, bases, what)
            if "index" in artifact:
                expect(0 <= artifact["index"] < len(artifacts)
                       and artifacts[artifact["index"]].get("location", {}).get("uri") == artifact.get("uri"),
                       what + ": artifact index does not name its artifact")
            region = physical.get("region")
            if region is not None:
                expect(isinstance(region.get("startLine"), int) and region["startLine"] >= 1, what + ": bad startLine")
                if local is not None:
                    check_place(local, region.get("startLine"), region.get("startColumn"), what)


def check_uri(location, bases, what):
    """The local path an artifact location names, relative to the run folder."""
    uri = location.get("uri")
    if not isinstance(uri, str) or not uri:
        problem(what + ": artifactLocation.uri missing")
        return None
    if "uriBaseId" in location:
        expect(location["uriBaseId"] in bases, what + ": unknown uriBaseId")
        expect("://" not in uri and not uri.startswith("/"), what + ": a based URI that is not relative: " + uri)
        base = urllib.parse.unquote(urllib.parse.urlparse(bases[location["uriBaseId"]]["uri"]).path)
        expect(os.path.realpath(base) == os.path.realpath(os.getcwd()), what + ": the base is not the run folder")
        return urllib.parse.unquote(uri)
    expect(uri.startswith("file:///"), what + ": an unbased URI that is not absolute: " + uri)
    return urllib.parse.unquote(urllib.parse.urlparse(uri).path)


def check_junit(path):
    root = ElementTree.parse(path).getroot()
    expect(root.tag == "testsuites", "the root is not testsuites")
    cases = failures = skipped = 0
    for suite in root.findall("testsuite"):
        suite_cases = suite.findall("testcase")
        suite_failures = sum(1 for case in suite_cases if case.find("failure") is not None)
        suite_skipped = sum(1 for case in suite_cases if case.find("skipped") is not None)
        expect(int(suite.get("tests")) == len(suite_cases), "suite %s: tests miscounted" % suite.get("name"))
        expect(int(suite.get("failures")) == suite_failures, "suite %s: failures miscounted" % suite.get("name"))
        expect(int(suite.get("skipped")) == suite_skipped, "suite %s: skipped miscounted" % suite.get("name"))
        cases += len(suite_cases)
        failures += suite_failures
        skipped += suite_skipped
        for case in suite_cases:
            expect(case.get("name"), "a case without name")
            for kind in ("failure", "system-out"):
                element = case.find(kind)
                if element is None:
                    continue
                for line in (element.text or "").splitlines():
                    # "file:line:column: severity rule: ..."
                    parts = line.split(":")
                    if len(parts) > 3 and parts[1].isdigit() and parts[2].isdigit():
                        check_place(parts[0], int(parts[1]), int(parts[2]), "%s of %s" % (kind, case.get("name")))
    expect(int(root.get("tests")) == cases, "tests miscounted")
    expect(int(root.get("failures")) == failures, "failures miscounted")
    expect(int(root.get("skipped")) == skipped, "skipped miscounted")


def print_results(path):
    with open(path, encoding="utf-8") as handle:
        run = json.load(handle)["runs"][0]
    for result in run.get("results", []):
        place = "-"
        for location in result.get("locations", []):
            physical = location["physicalLocation"]
            region = physical.get("region", {})
            place = "%s:%s:%s" % (physical["artifactLocation"]["uri"], region.get("startLine", "-"),
                                  region.get("startColumn", "-"))
        print("%s %s %s %s" % (result["level"], result["ruleId"], place, result["message"]["text"]))


def main(argv):
    if len(argv) != 3 or argv[1] not in ("json", "sarif", "junit", "results"):
        print(__doc__)
        return 2
    if argv[1] == "results":
        print_results(argv[2])
        return 0
    {"json": check_json, "sarif": check_sarif, "junit": check_junit}[argv[1]](argv[2])
    for text in problems:
        print(text)
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))

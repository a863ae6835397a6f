#!/usr/bin/env bash
# sarif_schema.sh LCDCHECK ROOT: whether what `lcdcheck --format sarif` writes is valid against the published schema. The
# schema comes from npm inside the format's own tool (100 MB), so that this is no part of the usual tests.
set -euo pipefail
check=$1 root=$2
tools=${SARIF_TOOLS:-${XDG_CACHE_HOME:-$HOME/.cache}/lcdcheck-sarif}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

npm install --silent --no-save --no-audit --no-fund --prefix "$tools" \
    @microsoft/sarif-multitool@5 ajv@8 ajv-formats@3 >&2

cat >"$work/validate.js" <<'END'
const fs = require("fs"), path = require("path"), tools = path.join(process.argv[2], "node_modules");
const Ajv = require(path.join(tools, "ajv/dist/2020")), formats = require(path.join(tools, "ajv-formats"));
// The tool carries the schema as a text among its resources.
const tool = fs.readFileSync(path.join(tools, "@microsoft/sarif-multitool-linux/Sarif.Multitool"));
const begin = tool.lastIndexOf("{", tool.indexOf('"title": "Static Analysis Results Format (SARIF) Version 2.1.0'));
let text = tool.toString("utf8", begin, begin + 1000000), depth = 0, end = 0, quoted = false;
do {
    if (text[end] == '"' && text[end - 1] != "\\") quoted = !quoted;
    if (!quoted) depth += text[end] == "{" ? 1 : text[end] == "}" ? -1 : 0;
    ++end;
} while (depth > 0);
const ajv = new Ajv({ strict: false, allErrors: true });
formats(ajv);
const validate = ajv.compile(JSON.parse(text.slice(0, end)));
const log = JSON.parse(fs.readFileSync(process.argv[3]));
const good = validate(log);
for (const error of validate.errors || []) console.log(error.instancePath + " " + error.message);
if (good && log.runs[0].results.length) {
    // A validator that takes everything proves nothing.
    log.runs[0].results[0].locations[0].physicalLocation.region.startLine = "1";
    if (validate(log)) throw new Error("the schema takes a line that is no number");
}
console.log((good ? "valid: " : "INVALID: ") + log.runs[0].results.length + " results");
process.exit(good ? 0 : 1);
END

# A root with faults, in a folder whose name needs escaping.
cp -r "$root" "$work/faulty root%"
printf '<DCS version="1.0">\n  <Sub%%cards Name=x ü="1">\n' >"$work/faulty root%/connectors/1.xml"
printf '<LCD>' >"$work/faulty root%/menu/menuconfig.xml"
for checked in "$root" "$work/faulty root%"; do
    "$check" --format sarif --fail-on never "$checked" >"$work/out.sarif"
    node "$work/validate.js" "$tools" "$work/out.sarif"
done

# Fills a template. Files: the document with the tables, CHANGELOG.md, the template. Variables: version, docs (their directory),
# text (the file to write). The tables of options and of exit codes become lines of a manual page.

# Markdown of one line as roff, in this font outside of backticks.
function roff(line, font,    parts, n, i, made) {
  gsub(/ \(below\)/, "", line)
  gsub(/\\/, "\\e", line)
  gsub(/-/, "\\-", line)
  n = split(line, parts, "`")
  for (i = 1; i <= n; ++i)
    if (parts[i] != "") made = made (i % 2 ? "\\f" font : "\\fB") parts[i]
  return made "\\fR"
}

function trimmed(cell) {
  gsub(/^ +| +$/, "", cell)
  return cell
}

FNR == 1 { ++file; table = "" }

file == 1 && /^#/ { table = "" }
file == 1 && /^\| Option \| Value \| Meaning \|/ { table = "options"; next }
file == 1 && /^\| Exit code \| When \|/ { table = "exits"; next }
file == 1 && /^$/ { table = "" }
file == 1 && table != "" && !/^\|---/ {
  n = split($0, cells, "|")
  key = trimmed(cells[2])
  value = table == "options" ? trimmed(cells[3]) : ""
  meaning = trimmed(cells[table == "options" ? 4 : 3])
  made[table] = made[table] ".TP\n" roff(key, table == "options" ? "R" : "B") \
    (value == "" ? "" : " " roff(value, "I")) "\n" roff(meaning, "R") "\n"
}

file == 2 && /^## [0-9]/ {
  day = $3
  gsub(/[()]/, "", day)
  if (date == "") {
    date = day
    newest = $2
  }
  kind = $2 ~ /[a-z]/ ? "development" : "stable"
  made["releases"] = made["releases"] \
    "    <release version=\"" $2 "\" date=\"" day "\" type=\"" kind "\"/>\n"
}

file == 3 && FNR == 1 && newest != version {
  print "CHANGELOG.md begins with " newest ", the program is " version > "/dev/stderr"
  failed = 1
  exit
}
file == 3 && /^@[a-z]+@$/ {
  printf "%s", made[substr($0, 2, length($0) - 2)] > text
  next
}
file == 3 {
  gsub(/@VERSION@/, version)
  gsub(/@DATE@/, date)
  gsub(/@DOCS@/, docs)
  print > text
}

END {
  if (made["options"] == "" || made["exits"] == "" || failed) exit 1
}

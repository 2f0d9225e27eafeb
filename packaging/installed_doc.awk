# A document as it is installed: without its pictures, without the sections that are about this tree, and
# with no links to what isn't there for everybody. Variable: text (the file to write).

/^## / { ofTree = /^## (Quick start|Install|Build and test|Map)$/ }
ofTree || /^!\[/ { skipped = 1; next }
# What was left out leaves one empty line.
skipped && $0 == "" && last == "" { next }
{
  skipped = 0
  sub(/\[guide\]\(docs\/guide\/index\.html\)/, "guide (`guide/index.html`)")
  print > text
  last = $0
}

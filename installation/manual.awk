# Makes a page of the manual from what cmark-gfm made of a text. Headings get the names by which links reach
# them, links to other texts lead to their pages, those out of docs/ to copies beside the pages.
function name(heading) {
  gsub(/<[^>]*>/, "", heading)
  heading = tolower(heading)
  gsub(/&[a-z]+;/, "", heading)
  gsub(/[^a-z0-9 _-]/, "", heading)
  gsub(/ /, "-", heading)
  return heading
}

BEGIN {
  print "<!DOCTYPE html>"
  print "<html lang=\"en\"><head><meta charset=\"utf-8\"><title>" title "</title>"
  print "<meta name=\"viewport\" content=\"width=device-width\">"
  print "<link rel=\"stylesheet\" href=\"manual.css\"></head><body>"
  if (title != "index")
    print "<nav><a href=\"index.html\">Nuvex Viewer</a></nav>"
}

/^<h[1-6]>/ {
  $0 = substr($0, 1, 3) " id=\"" name($0) "\"" substr($0, 4)
}

{
  rest = $0
  line = ""
  while (match(rest, /href="[^":]*"/)) {
    link = substr(rest, RSTART, RLENGTH)
    sub(/\.md"/, ".html\"", link)
    sub(/\.md#/, ".html#", link)
    sub(/"\.\.\//, "\"", link)
    line = line substr(rest, 1, RSTART - 1) link
    rest = substr(rest, RSTART + RLENGTH)
  }
  print line rest
}

END {
  print "</body></html>"
}

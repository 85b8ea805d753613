# Turns the comments of a header into Doxygen comments:
#   - A comment before a declaration documents this declaration and those that follow it without a blank line.
#   - A comment before a blank line documents the header.
#   - Lines indented by three spaces are a list if they begin with "-", otherwise an example or a table.

function print_block(mark,   i, line, literal) {
  for (i = 1; i <= count; ++i) {
    line = block[i]
    if (line !~ /\/\/   /) {
      literal = 0
    } else if (line ~ /\/\/   [^ -]/ && !literal) {
      literal = 1
      print mark
    }
    if (!literal) gsub(/[\\@<>#"]/, "\\\\&", line)
    sub(/\/\//, literal ? mark "    " : mark, line)
    print line
  }
}

/^#pragma once/ { print "//! @file\n" }
/^ *\/\/ ?NOLINT/ { next }
/^ *\/\// {
  if (!in_comment) count = 0
  in_comment = 1
  block[++count] = $0
  next
}
/^$/ {
  if (in_comment) {
    print "//! @file"
    print_block("//!")
  }
  in_comment = count = 0
}
/[^ ]/ {
  match($0, /^ */)
  if (in_comment) indent = RLENGTH
  declares = RLENGTH == indent && !/^ *(public|private|protected|#|}|namespace|template)/
  if (in_comment || count && ended && declares) print_block("///")
  in_comment = 0
  ended = /[;}]$/
}
{ print }

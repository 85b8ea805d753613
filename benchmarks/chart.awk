# Makes a bar chart (SVG) from the output of benchmarks.exe. Each bar shows the ratio of a line to the first line of
# its group, on a logarithmic scale.

function text(x, y, weight, content) {
  gsub(/&/, "\\&amp;", content); gsub(/</, "\\&lt;", content)
  rows = rows sprintf("<text x=\"%d\" y=\"%d\" font-weight=\"%s\">%s</text>\n", x, y, weight, content)
}

BEGIN { y = 10; left = 330; doubling = 50 }
{ sub(/\r$/, "") }
/^[^ ]/ { title = $0; is_first = 1 }
/ ms +[0-9.]+$/ {
  ratio = $NF
  milliseconds = $(NF - 2)
  name = $0
  sub(/ +[0-9.]+ ms +[0-9.]+$/, "", name)
  sub(/^ +/, "", name)
  if (title != "") { y += 34; text(10, y, "bold", title); title = "" }
  y += 18
  length_ = doubling * log(ratio) / log(2)
  from = length_ < 0 ? left + 100 + length_ : left + 100
  text(20, y, "normal", name)
  rows = rows sprintf("<rect x=\"%.1f\" y=\"%d\" width=\"%.1f\" height=\"12\" fill=\"%s\"/>\n", is_first ? left + 98 : from, y - 10,
                      is_first ? 4 : (length_ < 0 ? -length_ : length_), is_first ? "#205080" : ratio < 1 ? "#c05030" : "#80a0c0")
  text(left + 460, y, "normal", sprintf("%s   (%s ms)", ratio, milliseconds))
  is_first = 0
}
END {
  printf "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"960\" height=\"%d\" font-family=\"sans-serif\" font-size=\"12\">\n", y + 40
  printf "<rect width=\"100%%\" height=\"100%%\" fill=\"white\"/>\n%s", rows
  printf "<text x=\"10\" y=\"%d\">Ratios to the first line of each group (the dark mark), on a logarithmic scale. A bar to the right means slower, a bar to the left means faster.</text>\n</svg>\n", y + 28
}

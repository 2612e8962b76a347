# Takes the comments for Doxygen as plain text: a backslash or "<" in them is itself, never a command or a tag.
match($0, /\/\/\/<?/) {
  rest = substr($0, RSTART + RLENGTH)
  gsub(/[\\<>@#&%]/, "\\\\&", rest)
  $0 = substr($0, 1, RSTART + RLENGTH - 1) rest
}
{ print }

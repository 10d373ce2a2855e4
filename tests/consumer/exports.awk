# Lists what the headers that are given export, one macro a line: each class that is no template, and the public
# constants of classes. It reads the layout that clang-format gives: a class begins and ends in the first column.
FNR == 1 { depth = 0; class = "" }
/^namespace / { ++depth }
/^}  \/\/ namespace / { --depth }
/^template </ { template = 1 }
/^(class|struct) / && !/;$/ {
  class = template || depth != 1 ? "" : $2 == "HERALD_API" ? $3 : $2
  isPublic = $1 == "struct"
  if (class != "" && $2 == "HERALD_API") print "EXPORTED_CLASS(" class ")"
}
/^[^ t]/ { template = 0 }
/^};/ { class = "" }
/^ (public|protected|private):/ { isPublic = $1 == "public:" }
class != "" && isPublic && /^  (inline )?static (inline )?const(expr)? / && match($0, / [A-Z][A-Z0-9_]*( =|\[|;|{)/) {
  name = substr($0, RSTART + 1)
  sub(/[^A-Z0-9_].*/, "", name)
  print "EXPORTED_CONSTANT(" class "::" name ")"
}

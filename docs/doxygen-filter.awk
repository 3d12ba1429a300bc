# SPDX-License-Identifier: LGPL-2.1-or-later
# Headers as Doxygen reads them: a comment, or one behind a function, counts for all declarations that
# follow it without a blank line between them; overrides, copying and identifiers of interfaces need none. Lines stay where they are.

function indent(text) { match(text, /^ */); return RLENGTH }

{
  own = indent($0)
  is_comment = $0 ~ /^ *\/\/\//
  is_start = ended && !is_comment && $0 !~ /^ *(\/\/|}|#|public|private|protected|Q_|$)/
  note = ""
  if (is_start && $0 !~ /\/\/\/</ && before !~ /^ *\/\/\//) {
    if ($0 ~ / Iid = \{?$/ || $0 ~ / Iid = /)
      note = "Identifier of the interface."
    else if ($0 ~ /\(const [A-Za-z]+& other\);/)
      note = "Copies."
    else if ($0 ~ /override/)
      note = "As the base class has it."
    else if (doc != "" && own == level)
      note = doc
  }
  if (is_comment && $0 !~ /^ *\/\/\/</) {
    text = $0
    sub(/^ *\/\/\/ ?/, "", text)
    doc = before ~ /^ *\/\/\// ? doc "\n" text : text
    level = own
  } else if ($0 ~ /\).*; *\/\/\/</) {
    doc = $0
    sub(/^.*\/\/\/< */, "", doc)
    level = own
  } else if ($0 ~ /^ *$/ || $0 ~ /^ *(public|private|protected|Q_SIGNALS)/)
    doc = ""
  if (note != "") {
    gsub(/\n/, " ", note)
    match($0, /^ */)
    print substr($0, 1, RLENGTH) "/** " note " */ " substr($0, RLENGTH + 1)
  } else
    print
  ended = is_comment || $0 ~ /[;{}:]$/ || $0 ~ /^ *$/ || $0 ~ /\/\/\/</ || $0 ~ /^ *Q_OBJECT/ || $0 ~ /; *\/\//
  before = $0
}

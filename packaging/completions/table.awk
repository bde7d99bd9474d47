# Reads the help of the program or of one of its commands (owner; "-": the program) and prints a table, its cells parted
# by tabs and "-" where one is empty:
#   command NAME    -      -        -        DESCRIPTION
#   option  OWNER   --NAME VALUE    CHOICES  DESCRIPTION     [=VALUE] for one whose value may be left out
#   word    OWNER   WORD   VALUE    -        -               what the command takes beside options; WORD as it stands
BEGIN { OFS = "\t" }

function cell(text) { return text == "" ? "-" : text }

# "esh|nice|aha" are three choices; what begins with KEY is chosen from the words that the help lists.
function choices(option) {
    if (values[option] ~ /\|/) { found = values[option]; gsub(/\|/, " ", found); return found }
    if (option in alternatives) return alternatives[option]
    return values[option] ~ /^KEY/ ? listed : ""
}

function takeOption(left, description, name) {
    match(left, /--[a-z][a-z-]*/)
    name = substr(left, RSTART, RLENGTH)
    values[name] = substr(left, RSTART + RLENGTH)
    sub(/^ /, "", values[name])
    names[++count] = name
    described[name] = description
}

# The bracket that an optional part of the usage begins or ends with.
function bare(token) {
    sub(/^\[/, "", token)
    if (token !~ /\[/) sub(/\](\.\.\.)?$/, "", token)
    return token
}

function takeUsage(line, tokens, number, i, token, option, word) {
    number = split(line, tokens, " ")
    for (i = 1; i <= number; i++) {
        token = bare(tokens[i])
        if (token == "|" || token == "OPTION" || token == "COMMAND") continue
        if (token ~ /^--/) { option = token; continue }
        if (option != "" && option in values && values[option] != "") {
            if (token ~ /\|/) { gsub(/\|/, " ", token); alternatives[option] = token }
            option = ""
            continue
        }
        if (token ~ /^[a-z]+$/) { word = token; words[++wordCount] = word; continue }
        if (word == "" && !(word in taken)) words[++wordCount] = word
        taken[word] = token
    }
}

/^Usage: / { isUsage = 1; sub(/^Usage: /, "") }
/^$/ { isUsage = 0 }
isUsage {
    sub(/^ *zel */, "")
    if (owner != "-") sub("^" owner " *", "")
    usage[++usageCount] = $0
    next
}
/^  (-h, )?--[a-z]/ {
    left = substr($0, 3)
    description = ""
    if (match(left, /  +/)) { description = substr(left, RSTART + RLENGTH); left = substr(left, 1, RSTART - 1) }
    takeOption(left, description)
    next
}
/^  [A-Za-z][A-Za-z-]* +[^ ]/ && owner == "-" {
    name = $1
    sub(/^ *[^ ]+ +/, "")
    print "command", name, "-", "-", "-", $0
    next
}
/^  [A-Za-z]+  +[^ ]/ { listed = listed (listed == "" ? "" : " ") $1; next }
/^                    / && count { sub(/^ +/, ""); described[names[count]] = described[names[count]] " " $0 }

END {
    for (i = 1; i <= usageCount; i++) takeUsage(usage[i])
    for (i = 1; i <= count; i++)
        print "option", owner, names[i], cell(values[names[i]]), cell(choices(names[i])), cell(described[names[i]])
    if (owner != "-")
        for (i = 1; i <= wordCount; i++) print "word", owner, cell(words[i]), cell(taken[words[i]]), "-", "-"
}

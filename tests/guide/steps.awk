# Turns the guide into a shell script that does what the guide says, block by block:
#   ```LANGUAGE file=NAME   writes the file
#   ```diff apply           changes files
#   ```sh run               runs the commands
# Source code that is in neither a file nor an edit would never be compiled: that is an error.
BEGIN { print "set -euo pipefail" }

/^```/ && !inside {
    inside = 1
    kind = ""
    if ($2 ~ /^file=/) {
        kind = "text"
        printf "cat >'%s' <<'END-OF-BLOCK'\n", substr($2, 6)
    } else if ($1 == "```diff" && $2 == "apply") {
        kind = "text"
        print "patch --quiet --fuzz=0 -p0 <<'END-OF-BLOCK'"
    } else if ($1 == "```sh" && $2 == "run") {
        kind = "commands"
    } else if ($1 !~ /^```(sh)?$/) {
        printf "line %d: this block is in no file of the program\n", NR > "/dev/stderr"
        exit 1
    }
    next
}

/^```$/ {
    inside = 0
    if (kind == "text")
        print "END-OF-BLOCK"
    next
}

inside && kind != "" { print }

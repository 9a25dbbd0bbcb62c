#!/bin/sh
# Runs a Windows program. Its output goes through a file: Wine's own background processes inherit the streams of the
# program that happens to start them, and whoever waits for the end of a pipe would wait for them, too.
output=$(mktemp)
wine "$@" >"$output" 2>&1 </dev/null
code=$?
cat "$output"
rm -f "$output"
exit $code

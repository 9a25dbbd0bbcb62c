#!/usr/bin/env bash
# links.sh: whatever the documents point to is there: their links, and the files that they name as `folder/file`.
set -euo pipefail
cd "$(dirname "$0")/../.."

failed=no
missing() {
    echo "$1 points to $2, which is not there."
    failed=yes
}
for document in *.md */README.md docs/*.md examples/*/*.md; do
    text=$(awk '/^```/ { inside = !inside; next } !inside' "$document")
    while read -r target; do
        [ -z "$target" ] || [ -e "$(dirname "$document")/$target" ] || missing "$document" "$target"
    done < <(grep -oE '\]\([^):#]+[)#]' <<<"$text" | sed -E 's/^\]\(|[)#]$//g')
    while read -r target; do
        case $target in build/* | docs/api/index.html) continue ;; esac  # made by a build
        [ -z "$target" ] || [ ! -d "${target%%/*}" ] || [ -e "$target" ] || missing "$document" "$target"
    done < <(grep -oE '`[a-z]+(/[A-Za-z0-9_-]+)+(\.[a-z]+|/)?`' <<<"$text" | tr -d '`')
done
[ "$failed" = no ]

#!/usr/bin/env bash
# make_manpages.sh ZELKO READER FOLDER: the pages of the manual, English and Japanese, gzipped below FOLDER.
# The line @usage@ of a page stands for what the program itself prints with --help.
set -euo pipefail
zelko=$1 reader=$2 folder=$3
root=$(cd "$(dirname "$0")/.." && pwd)

# page SOURCE SECTION TARGET: Markdown on standard input
page() {
  mkdir -p "$(dirname "$3")"
  lowdown -s -Tman -mtitle="$1" -msection="$2" -mdate="$(date -u -d "@${SOURCE_DATE_EPOCH:-$(stat -c %Y "$root/assets/debian/changelog")}" +%F)" -msource=Zelko - |
    gzip -9n >"$3"
}
# with_usage FILE LANGUAGE PROGRAM
with_usage() {
  local line
  while IFS= read -r line; do
    if [ "$line" = @usage@ ]; then LC_ALL=$2 "$3" --help | sed 's/^/    /'; else printf '%s\n' "$line"; fi
  done <"$1"
}
# table_page FILE HEAD-OF-NAME NAME HEAD-OF-TEXT: the page of docs/, its chapters one level up
table_page() {
  printf '# %s\n\n%s\n\n# %s\n' "$2" "$3" "$4"
  tail -n +2 "$1" | sed -E 's/^## /# /; s/^```[a-z-]+$/```/; s/\[([^]]*)\]\([^)]*\)/\1/g'
}

for section in "" ja; do
  ending=${section:+.ja} language=${section:+ja_JP.UTF-8}
  target=$folder/${section:+ja/}
  with_usage "$root/assets/man/zelko$ending.md" "${language:-C}" "$zelko" | page ZELKO 1 "${target}man1/zelko.1.gz"
  with_usage "$root/assets/man/zelko-reader$ending.md" "${language:-C}" "$reader" |
    page ZELKO-READER 1 "${target}man1/zelko-reader.1.gz"
done
table_page "$root/docs/table-format.md" NAME "zelko-table - the two files of a table" DESCRIPTION |
  page ZELKO-TABLE 5 "$folder/man5/zelko-table.5.gz"
table_page "$root/docs/table-format.ja.md" 名前 "zelko-table - 表の二つのファイル" 説明 |
  page ZELKO-TABLE 5 "$folder/ja/man5/zelko-table.5.gz"
echo "manpages: $(find "$folder" -name '*.gz' | wc -l) pages"

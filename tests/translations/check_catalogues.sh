#!/usr/bin/env bash
# Gathers the texts of the sources into copies of the catalogues and fails when a
# text has no finished translation: a text added or changed since the catalogues
# were last brought up to date (`make translations`) and translated.
# Usage: check_catalogues.sh <lupdate> <lrelease> <source folder> <include folder>
set -euo pipefail

lupdate=$1 lrelease=$2 source=$3 include=$4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

status=0
for catalogue in "$source"/translations/floatrix_*.ts; do
  copy=$work/$(basename "$catalogue")
  cp "$catalogue" "$copy"
  "$lupdate" -silent -locations none -no-obsolete -I "$include" "$source/src" -ts "$copy" > /dev/null
  report=$("$lrelease" "$copy" -qm "$work/out.qm")
  # lrelease counts a text that never had a translation as "untranslated", apart
  # from the unfinished ones; either kind is a text the catalogue lacks.
  if ! grep -q " 0 unfinished" <<< "$report" || grep -q "untranslated" <<< "$report"; then
    echo "$(basename "$catalogue") is not complete: $report" >&2
    grep -B2 'type="unfinished"' "$copy" | grep '<source>' >&2 || true
    status=1
  fi
done
exit $status

#!/usr/bin/env bash
# Pictures of the scenario reports: the rows of reports.js in a scratch copy of the template, each
# report written as PDF by the program's --report option, and each page turned into a PNG at 60 dpi.
# Run from the top of the checkout after a build: docs/screens/reports.sh
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cp build/share/zobrel/ZOB.sqlite "$work/"
sid=$(QT_QPA_PLATFORM=offscreen build/bin/zobrel --home "$work" --user ann --script docs/screens/reports.js --quit-after-script \
      | sed -n 's/^SID=//p')
for report in ws_Species ws_Weight ws_Diet ws_calc ws_DietItems wsc_detail; do
  build/bin/zobrel --home "$work" --user ann --report "$report" --scenario "$sid" --pdf "$work/$report.pdf"
  rm -f docs/screens/"$report"-*.png
  pdftoppm -png -r 60 "$work/$report.pdf" docs/screens/"$report"
done

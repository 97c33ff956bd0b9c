#!/usr/bin/env bash
# Whole-screen pictures of a first start on a desktop: the data-folder box, the welcome box, the setup
# window, each menu open, the About box and a project window. Needs a display with a window manager,
# xdotool and ImageMagick's import, e.g.
#   Xvfb :77 -screen 0 1920x1080x24 & DISPLAY=:77 openbox &
#   DISPLAY=:77 docs/screens/desktop.sh 1 && DISPLAY=:77 docs/screens/desktop.sh 1.5 -150
# The program runs in a scratch data folder; the pictures go to docs/screens/desktop-*<suffix>.png.
set -u
cd "$(dirname "$0")/../.."
scale=${1:-1}; suffix=${2:-}
out=docs/screens; zobrel=build/bin/zobrel
work=$(mktemp -d)
shot() { sleep "${2:-1.5}"; import -window root "$out/desktop-$1$suffix.png"; }

export QT_SCALE_FACTOR=$scale XDG_DATA_HOME=$work/data XDG_CONFIG_HOME=$work/config
"$zobrel" --user ann >"$work/log" 2>&1 &
pid=$!
shot first-start 3
xdotool key Return; shot welcome
xdotool key Return; shot setup
for menu in f p d h; do
  xdotool key Escape; sleep 0.3
  xdotool key "alt+$menu"; shot "menu-$menu" 1
done
xdotool key Escape; sleep 0.3; xdotool key Escape; sleep 0.3
xdotool key alt+h; sleep 0.5; xdotool key a; shot about
xdotool key Escape; sleep 0.5
kill "$pid"; wait "$pid" 2>/dev/null

# A project with a long purpose: the memo shows the start of its text.
cat >"$work/project.js" <<'JS'
if (ui.window('frmSetup')) ui.window('frmSetup').close();   // a second start opens the project list instead
ui.menu('mnuProjectOptions(0)').trigger();
const p = ui.window('frmProject');
p.control('txtProject(0)').setText('Farm Pond Screening');
p.control('txtProject(1)').setText('Screening-level exposure of mallards and muskrats feeding at the farm pond.\n'
    + 'Sediment and surface water sampled in spring.\nSecond survey planned for the autumn.\n'
    + 'Results go to the county.\nThis is the last line of the purpose.');
JS
"$zobrel" --user ann --script "$work/project.js" >>"$work/log" 2>&1 &
pid=$!
shot project 4
kill "$pid"; wait "$pid" 2>/dev/null
rm -rf "$work"

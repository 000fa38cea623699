#!/usr/bin/env bash
# Puts deliberate faults into the program one at a time, rebuilds the dev build, runs the
# whole suite and says which faults it caught: a measure of what the tests are worth, to
# be taken before and after any cut in them. Not part of CI (about an hour on 2 cores).
#
# Usage: scripts/mutants.sh [WORD]          only the faults whose description holds WORD
#        scripts/mutants.sh --which [WORD]  the whole suite for each fault, naming the
#                                           tests that catch it (slower)
#        scripts/mutants.sh --check         only checks that every fault still applies
# VORKAN_MUTANTS_PART=2/3 takes every third fault from the second: parts run in clones of
# their own at the same time, on a machine with cores to spare.
# Each fault replaces one piece of text that must stand exactly once in its file; one
# that no longer does stops the run, so the list cannot silently go stale.
set -euo pipefail
cd "$(dirname "$0")/.."

mode=${1:-}
[[ $mode == --check || $mode == --which ]] && shift || mode=
only=${1:-}
check=false
if [[ $mode == --check ]]; then
    check=true
else
    cmake --preset dev >/dev/null
    cmake --build --preset dev >/dev/null
fi

caught=() missed=()
part=${VORKAN_MUTANTS_PART:-1/1} index=0
stop=(--stop-on-failure)
[[ $mode == --which ]] && stop=()
log=$(mktemp)
saved=$(mktemp)
current=
restore() {
    [[ -n $current ]] && cp "$saved" "$current"
    current=
}
trap 'restore; rm -f "$saved" "$log"' EXIT

mutant() {
    local description=$1 file=$2 from=$3 to=$4
    index=$((index + 1))
    (((index - 1) % ${part#*/} == ${part%/*} - 1)) || return 0
    [[ -z $only || $description == *"$only"* ]] || return 0
    cp "$file" "$saved"
    current=$file
    python3 - "$file" "$from" "$to" <<'EOF'
import sys
path, old, new = sys.argv[1:]
text = open(path, encoding="utf-8").read()
if text.count(old) != 1:
    sys.exit(f"{path}: the text to change stands {text.count(old)} times:\n{old}")
open(path, "w", encoding="utf-8").write(text.replace(old, new))
EOF
    local verdict
    if $check; then
        verdict=applies
    elif ! cmake --build --preset dev >/dev/null 2>&1; then
        verdict="does not build"
        missed+=("$description (does not build)")
    elif ! ctest --preset dev "${stop[@]}" -j2 --timeout 300 >"$log" 2>&1; then
        verdict=caught
        caught+=("$description")
        [[ $mode == --which ]] &&
            verdict="caught by $(sed -n 's/^[[:space:]]*[0-9][0-9]* - \([^ ]*\) .*/\1/p' "$log" | tr '\n' ' ')"
    else
        verdict=MISSED
        missed+=("$description")
    fi
    restore
    printf '%-8s %s\n' "$verdict" "$description"
}

# Text and number operations.
mutant "Format: a dropped 5 no longer rounds up" src/core/textops.cpp \
    "if (firstDropped >= '5')" "if (firstDropped > '5')"
mutant "Format: a result that rounds to zero shows -0" src/core/textops.cpp \
    "const bool zero = digits.find_first_not_of" "const bool zero = false && digits.find_first_not_of"
mutant "Str: six significant digits instead of seven" src/core/textops.cpp \
    "std::chars_format::scientific, 6);" "std::chars_format::scientific, 5);"
mutant "Val: the decimal comma is not read" src/core/textops.cpp \
    "(text[i] == u'.' || text[i] == u',') && digitAt(i + 1)" "text[i] == u'.' && digitAt(i + 1)"
mutant "CountFields: one field short" src/core/textops.cpp \
    "return static_cast<Int32>(text.count(separator) + 1);" \
    "return static_cast<Int32>(text.count(separator));"
mutant "Pow: ln 2 one unit in the last place off" src/core/power.cpp \
    "ln2{0x1.62e42fefa39efp-1," "ln2{0x1.62e42fefa39f0p-1,"

# Body mass index and the stepped fields.
mutant "imc: the first class test is not strict" src/calculators/imc.cpp \
    "if (x > 40)" "if (x >= 40)"
mutant "imc: a band limit moved" src/calculators/imc.cpp \
    "bandLimits{16.5, 18.5, 25, 30, 35, 40}" "bandLimits{16.5, 18, 25, 30, 35, 40}"
mutant "imc: James' woman constant off by one" src/calculators/imc.cpp \
    "1.07 * weight - 148 * Q" "1.07 * weight - 147 * Q"
mutant "imc: the weight's KeyUp does not calculate" src/calculators/imc.cpp \
    $'void imc::poids_KeyUp()\n{\n    calc();\n}' $'void imc::poids_KeyUp()\n{\n}'
mutant "imc: a layout row moved by one pixel" src/calculators/imc.cpp \
    '{u"taille",        Kind::TextField,    { 23,  39,' '{u"taille",        Kind::TextField,    { 23,  40,'
mutant "stepped fields: the height's upper limit is 251" src/calculators/steppedfields.h \
    "heightLimits{50, 250}" "heightLimits{50, 251}"
mutant "stepped fields: a step down is held at the wrong side" src/calculators/steppedfields.cpp \
    "if (value < limit)" "if (value > limit)"
mutant "stepped fields: the wheel steps the wrong way" src/calculators/steppedfields.cpp \
    $'if (deltaY > 0)\n        diminue' $'if (deltaY < 0)\n        diminue'
mutant "stepped fields: the arrows' Up is not connected" src/calculators/steppedfields.h \
    "connect(&arrows, &UpDownArrows::Up, window, on.arrowsUp);" ""

# Body surface and ideal weight.
mutant "surf: Mosteller's product in Double" src/calculators/surf.cpp \
    "const Single heightTimesWeight = App().taille * App().poids;" \
    "const Double heightTimesWeight = Double{App().taille} * App().poids;"
mutant "surf: Gehan and George's exponent off" src/calculators/surf.cpp \
    "Pow(App().poids, 0.51456)" "Pow(App().poids, 0.51546)"
mutant "pideal: Perrault's 0.9 a Single" src/calculators/pideal.cpp \
    "(A / 10.0) * 0.9)" "(A / 10.0) * 0.9f)"
mutant "pideal: Lorentz's man divisor 3" src/calculators/pideal.cpp \
    "factor(4.0f, 2.0f)" "factor(3.0f, 2.0f)"
mutant "pideal: the height from the record is ignored" src/calculators/pideal.cpp \
    "Slider1().setValue(toInt32(App().taille));" ""

# Norton scale and INSEE key.
mutant "norton: the boundary moved to 15" src/calculators/norton.cpp \
    "minimumRiskScore = 14;" "minimumRiskScore = 15;"
mutant "norton: a row's letter changed" src/calculators/norton.cpp \
    "Aucune,Occasionelle" "Aucune,Occasionnelle"
mutant "norton: the reset leaves the result" src/calculators/norton.cpp \
    $'criterion().setListIndex(-1);\n    StaticText1().setText(QString());' \
    $'criterion().setListIndex(-1);'
mutant "lists: the first Down takes the second row" src/core/controls.cpp \
    "view()->setCurrentIndex(QModelIndex());" ""
mutant "cleinsee: the key is 96 less the remainder" src/calculators/cleinsee.cpp \
    "const Int64 key = 97 - r;" "const Int64 key = 96 - r;"
mutant "cleinsee: Return does not compute" src/calculators/cleinsee.cpp \
    "if (Key == Chr(13))" "if (Key == Chr(13) && false)"
mutant "cleinsee: the copy has no blank" src/calculators/cleinsee.cpp \
    'number + u" "_s + TextField2().text()' 'number + TextField2().text()'
mutant "tips: a carriage return is no line break" src/core/platform.cpp \
    ".replace(u'\\r', u'\\n');" ";"
mutant "tips: a letter changed" src/calculators/tips.cpp \
    "molette de la souris" "molette de la sourie"

# What every window does.
mutant "balloon: gone after half a second" src/core/refusalballoon.h \
    "shownMs = 5000;" "shownMs = 500;"
mutant "balloon: over the field whatever it covers" src/core/refusalballoon.cpp \
    "if (control.top() <= band.bottom() + gap" "if (false && control.top() <= band.bottom() + gap"
mutant "focus: hidden until the first Tab" src/core/window.cpp \
    $'    setAttribute(Qt::WA_KeyboardFocusChange);\n' ""
mutant "menus: Escape leaves the focus on the bar" src/core/menus.cpp \
    "menu->installEventFilter(escape);" "(void)escape;"
mutant "menus: Quitter greyed" src/core/menus.cpp \
    "action->setEnabled(item.quits);" "action->setEnabled(false);"
mutant "figures: a double-click takes a word" src/core/statictext.cpp \
    $'    if (textInteractionFlags() & Qt::TextSelectableByMouse)\n        setSelection' \
    $'    if (false)\n        setSelection'
mutant "windows: a tall window's title bar above the screen" src/core/window.cpp \
    "setTop(std::max(area.top() + frame.top() + menuBar.y()," "setTop(std::min(area.top() + frame.top() + menuBar.y(),"
mutant "main window: IMC opens the surface window" src/launcher/window1.cpp \
    $'void Window1::BevelButton3_Action()\n{\n    imc().Show();' \
    $'void Window1::BevelButton3_Action()\n{\n    surf().Show();'
mutant "main window: the date in its long form" src/core/platform.cpp \
    "QLocale::ShortFormat" "QLocale::LongFormat"
mutant "assistive tools: a result named without its group" src/core/accessibility.cpp \
    'prefix = group->title() + u", ";' 'prefix = group->title().left(0);'

# The companion programs.
mutant "chart: a 10/10 letter of six minutes of arc" src/lumetra/acuity.cpp \
    "fiveArcMinutesRad = 5.0 / 60.0" "fiveArcMinutesRad = 6.0 / 60.0"
mutant "chart: M does not mirror" src/lumetra/chartwindow.cpp \
    "state_.mirrored = !state_.mirrored;" "state_.mirrored = state_.mirrored;"
mutant "stopwatch: a lap shows the total" src/pendulo/timing.cpp \
    "total - previous, total" "total - 0 * previous, total"
mutant "stopwatch: the 15 s countdown lasts 16" src/pendulo/chronowindow.h \
    "startCountdown(15);" "startCountdown(16);"
mutant "stopwatch: the beat rate ten times too low" src/pendulo/timing.cpp \
    "return 60000.0 *" "return 6000.0 *"

$check && exit 0
cmake --build --preset dev >/dev/null
echo
echo "caught ${#caught[@]} of $((${#caught[@]} + ${#missed[@]}))"
for description in "${missed[@]}"; do
    echo "  not caught: $description"
done

#!/bin/sh
# the_program_file.sh INSTALL PROGRAM_FOLDER: puts the built program into a fresh folder and starts the program file itself,
# on an X display with a window manager, by keys alone: a first run with its Setup, a second start beside it, one under
# another name, the end by the window manager, and a start that fails.
set -eu
if [ "${3:-}" != inside ]; then
  work=$(mktemp -d)
  result=0
  xvfb-run -a -s "-screen 0 1920x1080x24" sh "$0" "$1" "$2" inside "$work" || result=$?
  rm -rf "$work"
  exit $result
fi

work=$4
business=$work/shop
# What the program may see of a user: nothing but this folder.
export HOME="$work/home" XDG_CACHE_HOME="$work/home/cache" XDG_DATA_HOME="$work/home/data" TMPDIR="$work"
unset XDG_CONFIG_HOME
export XDG_RUNTIME_DIR="$work/home/runtime" QT_QPA_PLATFORM=xcb
mkdir -p "$XDG_RUNTIME_DIR" "$work/elsewhere"
chmod 700 "$XDG_RUNTIME_DIR"
processes=
# The years in which programs were started, each asked for before and behind the start: a new year may begin in between.
years=

finish() {
  for process in $processes; do kill "$process" 2>/dev/null || true; done
}
trap finish EXIT

fail() {
  echo "FAIL: $1" >&2
  exit 1
}

# eventually WHAT COMMAND...: waits until the command succeeds; WHAT is told when it doesn't in time.
eventually() {
  what=$1
  shift
  tries=0
  until "$@" >/dev/null 2>&1; do
    tries=$((tries + 1))
    [ $tries -lt 300 ] || fail "in half a minute: $what"
    sleep 0.1
  done
}

is_gone() { ! kill -0 "$1" 2>/dev/null; }
equal() { [ "$1" = "$2" ] || fail "$3: expected \"$1\", got \"$2\""; }

# has_the_keys PROCESS TITLE: the window that the keys go to is this one.
has_the_keys() {
  focus=$(xdotool getwindowfocus) && [ "$(xdotool getwindowpid "$focus")" = "$1" ] &&
    [ "$(xdotool getwindowname "$focus")" = "$2" ]
}

# start NAME: starts the program file of that name, from a folder that isn't its own; its process is $started.
start() {
  years="$years $(date +%Y)"
  cd "$work/elsewhere"
  "$business/$1" &
  started=$!
  processes="$processes $started"
  cd "$work"
}

# must_end PROCESS WHEN [ANSWER]: the process ends by itself with this answer, 0 by default: that all was well.
must_end() {
  eventually "the process is gone $2" is_gone "$1"
  answer=0
  wait "$1" || answer=$?
  equal "${3:-0}" "$answer" "the answer of the process that ended $2"
  processes=$(echo " $processes " | sed "s/ $1 / /")
}

# close_by_the_window_manager PROCESS TITLE: as the close box of the window in front does.
close_by_the_window_manager() {
  has_the_keys "$1" "$2" || fail "the window to be closed isn't the one in front"
  xdotool key alt+F4
  must_end "$1" "when its window is closed"
}

# Without the folders of years, which `years_are_of_the_starts` looks at.
folders() {
  (cd "$business" && find . -mindepth 1 -type d ! -path './manual*' ! -path './suppliers*' ! -path './[0-9]*' | LC_ALL=C sort)
}
everything() { (cd "$business" && find . -type d && find . -type f -exec cksum {} +) | LC_ALL=C sort; }

# years_are_of_the_starts: there is a folder of the year in which a program was started, and none of another year.
years_are_of_the_starts() {
  years="$years $(date +%Y)"
  made=$(cd "$business" && find . -mindepth 1 -path './[0-9]*' | sed 's|^\./||')
  [ -n "$made" ] || fail "there is no folder of the year"
  for folder in $made; do
    case " $years " in *" $folder "*) ;; *) fail "the folder $folder isn't of a year of$years" ;; esac
  done
}

# expected_folders NAME...: the tree of programs that were started under these names.
expected_folders() {
  {
    cat <<FOLDERS
./AuxFiles
./Backup
./Backup/CompletedInvoices
./Backup/KVActiveAccounts
./Backup/KVActiveAccountsBACK
./CompletedInvoices
./ConstructionProjects
./KVActiveAccounts
./KarvexCycleInvoicer
./KarvexInvoicer
./KarvexInvoicer/IncompleteInvoices
./KarvexInvoicer/Narratives
./KarvexInvoicer/Templates
./KarvexInvoicer/Templates/Invoices
./KarvexProposals
./KarvexProposals/ProposalBody
./Templates
./Templates/ContractInvoices
./Templates/Contracts
./Templates/Proposals
FOLDERS
    for name in "$@"; do
      printf './%s\n' "$name" "$name/IncompleteInvoices" "Backup/$name" "Backup/$name/IncompleteInvoices"
    done
  } | LC_ALL=C sort -u
}

# refused_beside_the_running_one NAME: a start that must end after its box and change nothing.
refused_beside_the_running_one() {
  before=$(everything)
  start "$1"
  eventually "the box of a second start" has_the_keys "$started" "Karvex Invoicer"
  is_gone "$first" && fail "the first one is gone while the second tells of it"
  xdotool key Return
  must_end "$started" "after the box of a second start"
  equal "$before" "$(everything)" "what a second start changed"
  is_gone "$first" && fail "the second start ended the first one"
  eventually "the first one has the keys again" has_the_keys "$first" "Karvex Invoicer"
}

openbox --sm-disable --startup "touch $work/ready" >/dev/null 2>&1 &
processes=$!
eventually "a window manager" test -e "$work/ready"
sh "$1" "$2" "$business"
for supplied in KarvexInvoicer.bin StatesList.txt manual/index.html suppliers; do
  [ -e "$business/$supplied" ] || fail "$supplied isn't in the program's folder"
done

# The first run: the tree stands in the folder that holds the program file, named after it without its extension.
start KarvexInvoicer.bin
first=$started
eventually "the start-up screen" has_the_keys "$first" "Karvex Invoicer"
equal "$(expected_folders KarvexInvoicer)" "$(folders)" "the tree"
years_are_of_the_starts
equal "" "$(ls -A "$work/elsewhere")" "what the program left where it was started from"
equal "" "$(find "$HOME" -type f ! -path '*/openbox/*')" "what the program left in its user's home"
[ ! -e "$XDG_DATA_HOME/KarvexInvoicer" ] || fail "the data went to the user's folder"

refused_beside_the_running_one KarvexInvoicer.bin
cp "$business/KarvexInvoicer.bin" "$business/Billing.bin"
refused_beside_the_running_one Billing.bin

# Continue shows the welcome with the way to Setup in focus; Setup saves under the program's name.
xdotool key Return key space
eventually "Setup" has_the_keys "$first" "Karvex Invoicer - Setup"
xdotool type "Acme"
xdotool key Tab key Tab key Tab key Tab key Tab key Tab
xdotool type "555"
xdotool key alt+s
eventually "the main menu" has_the_keys "$first" "Karvex Invoicer"
equal "$(printf '1,0,0,0,0,"0.0","0",#TRUE#,#FALSE#,"$0.00","$0.00"\r\n' | cksum)" \
  "$(cksum <"$business/KarvexInvoicerSettings.txt")" "the settings"
equal "$(printf '"Acme","","","","","","555","",""\r\n' | cksum)" "$(cksum <"$business/MyBusinessData.txt")" "the profile"
[ ! -e "$business/Backup/KarvexInvoicerSettings.txt" ] || fail "the backup is there before the end"

close_by_the_window_manager "$first" "Karvex Invoicer"
for name in KarvexInvoicerSettings MyBusinessData PrintColors; do
  cmp "$business/$name.txt" "$business/Backup/$name.txt" || fail "the backup of $name.txt"
done

# Under another name, with the first one gone: folders and settings of that name, beside the others.
start Billing.bin
eventually "the start-up screen of the renamed copy" has_the_keys "$started" "Karvex Invoicer"
equal "$(expected_folders KarvexInvoicer Billing)" "$(folders)" "the tree of both names"
years_are_of_the_starts
printf '1,0,0,0,0,"0.0","0",#TRUE#,#FALSE#,"$0.00","$0.00"\r\n' >"$business/BillingSettings.txt"
rm "$business/Backup/KarvexInvoicerSettings.txt"
close_by_the_window_manager "$started" "Karvex Invoicer"
cmp "$business/BillingSettings.txt" "$business/Backup/BillingSettings.txt" || fail "the backup of BillingSettings.txt"
[ ! -e "$business/Backup/KarvexInvoicerSettings.txt" ] || fail "one name's end copied the other name's settings"
equal "" "$(ls -A "$work/elsewhere")" "what the program left where it was started from"
equal "" "$(find "$HOME" -type f ! -path '*/openbox/*')" "what the program left in its user's home"

# A start that fails answers so to whoever started it.
printf 'x\r\n' >"$business/BillingSettings.txt"
start Billing.bin
eventually "the box of a start that failed" has_the_keys "$started" "Karvex Invoicer"
xdotool key Return
must_end "$started" "after the box of a start that failed" 1

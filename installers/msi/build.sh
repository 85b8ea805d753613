#!/usr/bin/env bash
# build.sh FOLDER OUTPUT.msi   makes the package of brindle.wxs. FOLDER holds sorrel.exe, sorrel_status.exe,
# run_sorrel.cmd, Tessalin.inf and what belongs to it, trusted.cer and trusted_i.cer.
set -euo pipefail
here=$(realpath "$(dirname "$0")")
output=$(realpath -m "$2")
rm -f "$output"
(cd "$1" && wixl -a x64 -D Scripts="$(realpath --relative-to=. "$here")" -o "$output" "$here/brindle.wxs")

# wixl 0.101 cannot write these actions.
add_action() {  # NAME TYPE SOURCE TARGET CONDITION SEQUENCE
  msibuild "$output" -q "INSERT INTO CustomAction (Action, Type, Source, Target) VALUES ('$1', $2, '$3', '$4')"
  msibuild "$output" -q "INSERT INTO InstallExecuteSequence (Action, Condition, Sequence) VALUES ('$1', '$5', $6)"
}

# service.js, deferred, as the system. 3077: JScript in the package; with 64: errors ignored, so that a radio that is away does
# not keep the product on the computer.
add_action PrepareService 3077 service PrepareService 'NOT REMOVE="ALL"' 4003
add_action ReleaseService 3141 service ReleaseService 'REMOVE="ALL"' 3400

# A product that fails takes its application off the list again. The tool comes out of the package itself, since the
# installed one may be gone by then. 3394: a program in the package, deferred, on rollback, as the system, errors ignored. Only
# an administrator starts a first installation.
add_action UndoPrepareService 3394 sorrel 'uninstall none brindle' 'NOT Installed' 4002

# A deferred action cannot ask for a restart, so one that runs when all is done looks into the log. 101: JScript, errors
# ignored; mode 6: restart at the end.
add_action AskForRestart 101 '' 'log = new ActiveXObject("Scripting.FileSystemObject").OpenTextFile(Session.Property("WindowsFolder") + "Logs\\sorrel_brindle.log"); while (!log.AtEndOfStream) if (log.ReadLine() == "Reboot required") Session.Mode(6) = true;' 'NOT REMOVE="ALL"' 6601

#!/usr/bin/env bash
# build.sh FOLDER OUTPUT.exe [NAME=VALUE...] [-OPTION...]   makes a setup from setup.nsi. NAME=VALUE overrides a setting
# of setup.nsi; -OPTION is an option of makensis. FOLDER holds sorrel.exe, sorrel_status.exe, run_sorrel.cmd, the driver
# package and the certificates.
set -euo pipefail
[ $# -ge 2 ] || { sed -n '1d;/^#/!q;s/^# \{0,1\}//p' "$0" >&2; exit 2; }
# In the POSIX locale, makensis fails if an argument contains a character that is not ASCII.
export LC_ALL=C.UTF-8
files=$(realpath "$1")
output=$(realpath -m "$2")
names=$(sed -n 's/^!insertmacro Setting \([A-Z_]*\) .*/\1/p' "$(dirname "$0")/setup.nsi" | tr '\n' ' ')
options=()
for word in "${@:3}"; do
  case $word in
    -*) options+=("$word") ;;
    *[\"\'\$%\;\&\<\>\|^\!/\\]*) echo "$word: the value must contain none of \" ' \$ % ; & < > | ^ ! / \\" >&2; exit 2 ;;
    RADIO_OFF=fails | RADIO_OFF=spared) options+=("-D$word") ;;
    RADIO_OFF=*) echo "$word: RADIO_OFF must be fails or spared." >&2; exit 2 ;;
    APPLICATION=*[^\ -~]*) echo "$word: the value must be ASCII." >&2; exit 2 ;;
    *)
      [[ $word == *=?* && " $names" == *" ${word%%=*} "* ]] || {
        echo "$word is not NAME=VALUE with one of these names: $names" >&2
        exit 2
      }
      options+=("-D$word") ;;
  esac
done
makensis -V2 "${options[@]}" -DFILES="$files" -DOUTPUT="$output" "$(dirname "$0")/setup.nsi"

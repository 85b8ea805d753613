#!/usr/bin/env bash
# build.sh FOLDER OUTPUT.msi [NAME=VALUE...]   makes a package from brindle.wxs. NAME=VALUE replaces a setting.
# FOLDER holds sorrel.exe, sorrel_status.exe, run_sorrel.cmd, the driver package and the certificates.
set -euo pipefail
[ $# -ge 2 ] || { sed -n '1d;/^#/!q;s/^# \{0,1\}//p' "$0" >&2; exit 2; }
# In the POSIX locale, wixl stops at the first letter that is not ASCII.
export LC_ALL=C.UTF-8 CHARSET=UTF-8

# These GUIDs are only for Brindle. Windows Installer treats two products with the same upgrade code as versions of one
# product: the installation of one can remove the other. If two products have the same component GUID, the removal of
# one can delete files that the other needs.
guids=(6e1c1df6-6f3d-4f0e-9a5b-8b6d1f8a3c21 2f0a1a54-0c3b-4d57-9a53-6f1a3e7f1b11)

# Change these settings.
declare -A setting=(
  # The product's name, which is also the name of its folder below Program Files.
  [PRODUCT]='Brindle'
  [VERSION]='1.0.0'
  [MAKER]='The sorrel authors'
  # Make your own two GUIDs with uuidgen, and keep them for all versions.
  [UPGRADE_CODE]=${guids[0]}
  [COMPONENT]=${guids[1]}
  # The application's name, under which sorrel.exe records the product on the list of applications that use the
  # hands-free service. This name must be ASCII and the same for all versions. It must neither contain nor be part of
  # another application's name.
  [APPLICATION]='brindle'
  # The driver package's INF file, the certificate of the package's signer, and the certificate of the authority that
  # issued the signer's certificate.
  [INF]='Tessalin.inf'
  [PUBLISHER]='trusted.cer'
  [INTERMEDIATE]='trusted_i.cer'
  # What happens if Windows reports one of the two codes that it documents for a missing Bluetooth radio (see
  # run_sorrel.cmd). With "fails", the installation fails. With "spared", the installation ignores this error.
  [RADIO_OFF]='fails'
)

refuse() { echo "$1" >&2; exit 2; }
for word in "${@:3}"; do
  name=${word%%=*}
  [[ $word == *=?* && -v setting[$name] ]] || refuse "$word is not NAME=VALUE with one of these names: ${!setting[*]}"
  setting[$name]=${word#*=}
done
settings=()
for name in "${!setting[@]}"; do
  value=${setting[$name]}
  [[ $value != *[\"\'\$%\;\&\<\>\|^\!/\\[{}]* && $value != *]* ]] || refuse "$name=$value: the value must contain none of \" ' \$ % ; & < > | ^ ! / \\ [ ] { }"
  iconv -f UTF-8 -t CP1252 <<<"$value" >/dev/null 2>&1 || refuse "$name=$value: wixl writes no characters outside of code page 1252."
  [[ $name != RADIO_OFF || $value =~ ^(fails|spared)$ ]] || refuse "$name=$value: RADIO_OFF must be fails or spared."
  if [[ $name == VERSION ]]; then
    [[ $value =~ ^([0-9]{1,3})\.([0-9]{1,3})\.([0-9]{1,5})$ ]] &&
      ((10#${BASH_REMATCH[1]} < 256 && 10#${BASH_REMATCH[2]} < 256 && 10#${BASH_REMATCH[3]} < 65536)) ||
      refuse "$name=$value: VERSION must be three numbers, at most 255.255.65535. Windows Installer ignores a fourth one."
  fi
  [[ $name != APPLICATION || $value != *[^\ -~]* ]] || refuse "$name=$value: the value must be ASCII."
  [[ ${setting[PRODUCT]} == Brindle || " ${guids[*]} " != *" ${value,,} "* ]] || refuse "$name is still the GUID of Brindle: make another with uuidgen."
  settings+=(-D "$name=$value")
done

here=$(realpath "$(dirname "$0")")
output=$(realpath -m "$2")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp "$here/service.js" "$scratch"
# Writes product.cmd, which run_sorrel.cmd reads.
printf 'set "%s=%s"\r\n' product "${setting[PRODUCT]}" application "${setting[APPLICATION]}" \
  radio_off "${setting[RADIO_OFF]}" >"$scratch/product.cmd"
package=$scratch/package.msi
(cd "$1" && wixl -a x64 "${settings[@]}" -D Scripts="$(realpath --relative-to=. "$scratch")" -o "$package" "$here/brindle.wxs")

# Moves the removal of the old version into the transaction, so that a failed upgrade restores the old version.
# wixl 0.101 schedules the removal before the transaction.
msibuild "$package" -q "UPDATE InstallExecuteSequence SET Sequence=1501 WHERE Action='RemoveExistingProducts'"

# Makes the new package also replace an installed package of the same version. Otherwise, both packages would be
# installed, and the removal of one would take the application off the list. The value 769 of Attributes is the
# sum of "migrate features" (1), "include VersionMin" (256) and "include VersionMax" (512).
msibuild "$package" -q "INSERT INTO Upgrade (UpgradeCode, VersionMin, VersionMax, Attributes, ActionProperty) \
  VALUES ('{${setting[UPGRADE_CODE]^^}}', '${setting[VERSION]}', '${setting[VERSION]}', 769, 'WIX_UPGRADE_DETECTED')"

# Adds a custom action with msibuild, because wixl cannot create the custom actions below.
add_action() {  # NAME TYPE SOURCE TARGET CONDITION SEQUENCE
  msibuild "$package" -q "INSERT INTO CustomAction (Action, Type, Source, Target) VALUES ('$1', $2, '$3', '$4')"
  msibuild "$package" -q "INSERT INTO InstallExecuteSequence (Action, Condition, Sequence) VALUES ('$1', '$5', $6)"
}

# The actions PrepareService and ReleaseService run the functions of the same names in service.js. Type 3077 is
# JScript in the package (5), deferred (1024), as SYSTEM (2048). A missing radio must not prevent the removal of the
# product. Therefore the function ReleaseService always returns success, and the type of its action also has the flag
# "ignore errors" (64). ReleaseService does not run when an upgrade removes the old version: if the upgrade then fails,
# the old version is restored, and the application's name must still be on the list.
add_action PrepareService 3077 service PrepareService 'NOT REMOVE="ALL"' 4003
add_action ReleaseService 3141 service ReleaseService 'REMOVE="ALL" AND NOT UPGRADINGPRODUCTCODE' 3400

# Removes the application from the list when a first installation fails. Runs the copy of sorrel.exe in the package,
# which does not depend on the installed files. Type 3394 is a program in the package (2) that runs deferred (1024),
# only on rollback (256) and as SYSTEM (2048); errors are ignored (64). The program shows a console window that belongs
# to SYSTEM. Normally, only an administrator can start a first installation and see this window.
add_action UndoPrepareService 3394 sorrel "uninstall none \"${setting[APPLICATION]}\"" \
  'NOT Installed AND NOT WIX_UPGRADE_DETECTED' 4002

# Runs the function AskForRestart of service.js after all other actions. Ignores errors (64).
add_action AskForRestart 69 service AskForRestart 'NOT REMOVE="ALL"' 6601

mv "$package" "$output"

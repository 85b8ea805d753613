# Checks what the samples' build scripts refuse, what they warn of, and what the packages contain:
# cmake -D source_folder=... -D setups=... -P check_setups.cmake

cmake_minimum_required(VERSION 3.25)
set(nsis ${source_folder}/installers/nsis/build.sh good/files made.exe)
set(msi ${source_folder}/installers/msi/build.sh good/files made.msi)
file(REMOVE ${setups}/made.exe)

# expect(CODE TEXT COMMAND...)   checks that a command exits with CODE and that its output matches the regex TEXT
function(expect code text)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${setups}
    RESULT_VARIABLE seen OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT seen EQUAL code OR NOT output MATCHES "${text}")
    message(SEND_ERROR "${ARGN}: expected exit code ${code} and output like \"${text}\", got ${seen} and: ${output}")
  endif()
endfunction()

# nsis/build.sh warns of an old NSIS, and needs -DX86 if NSIS can make only 32-bit setups.
execute_process(COMMAND makensis -VERSION OUTPUT_VARIABLE version)
set(warning "^$")
if(version MATCHES "^v([0-9.]+)" AND CMAKE_MATCH_1 VERSION_LESS 3.11)
  set(warning "CVE-2025-43715")
endif()
expect(0 ${warning} ${nsis})
file(GLOB stubs /usr/share/nsis/Stubs/zlib-x86-* /usr/share/nsis/Stubs/uninst)
file(COPY ${stubs} DESTINATION ${setups}/nsis/Stubs)
expect(1 "give -DX86" ${CMAKE_COMMAND} -E env NSISDIR=${setups}/nsis ${nsis} -DOLD_NSIS_ACCEPTED)
expect(0 "\nName: \"Brindle\".*: Exec \"[$]WINDIR.Sysnative.cmd.exe\" /d" ${nsis} -DOLD_NSIS_ACCEPTED -WX -DX86 -V4)
file(STRINGS ${setups}/made.exe manifest REGEX "requireAdministrator")
if(NOT manifest)
  message(SEND_ERROR "The setup does not ask for an administrator's rights")
endif()

# Settings that a build.sh refuses, because it would make a wrong package from them.
expect(2 "code page 1252" ${msi} MAKER=Žluť)
foreach(changed UPGRADE_CODE COMPONENT)
  expect(2 "with uuidgen" ${msi} PRODUCT=Kite ${changed}=0b9e8a52-5a35-4c5c-8e5f-8b8ad9b5b0a1)
endforeach()
expect(2 "these names" ${msi} PRODUKT=Kite)
foreach(character ' $ % & < > | ^ ! / "\\" "\"" "\;")
  foreach(build nsis msi)
    expect(2 "must contain none of" ${${build}} "APPLICATION=a${character}b")
  endforeach()
endforeach()

# The property Log must name the log that run_sorrel.cmd writes, because the last action of an installation reads it.
expect(0 "\nLog\tsorrel_Merlin Car[.]log" msiinfo export "für andere/setup.msi" Property)

# The package's actions that change the computer run as SYSTEM: their types include 2048. An upgrade removes the old
# version within the transaction (sequence number 1501), so that a failed upgrade restores the old version.
foreach(row "PrepareService\t3077\t" "ReleaseService\t3141\t" "UndoPrepareService\t3394\tsorrel\tuninstall none \"brindle\"\t" "InstallInitialize\t\t1500\n"
    "RemoveExistingProducts\t\t1501\n" "ReleaseService\tREMOVE=\"ALL\" AND NOT UPGRADINGPRODUCTCODE\t3400\n"
    "UndoPrepareService\tNOT Installed AND NOT WIX_UPGRADE_DETECTED\t4002\n")
  expect(0 "\n${row}" sh -c "(msiinfo export $0 CustomAction && msiinfo export $0 InstallExecuteSequence) | tr -d '\\r'"
    good/setup.msi)
endforeach()

# Without /d, cmd.exe also runs the AutoRun commands that a user has set in the registry. A silent setup would wait at a
# message box that has no default answer (/SD). A user who starts a repair must not see a console that runs as SYSTEM.
file(GLOB_RECURSE samples ${source_folder}/installers/*)
foreach(sample ${samples})
  file(STRINGS ${sample} wrong REGEX "(cmd\\.exe|shell%)[^ ]* /[^d]|[\"=]cmd|MessageBox [^/]*$|\"CustomActionData\"., [^0]")
  if(wrong)
    message(SEND_ERROR "${sample} starts cmd.exe without /d, asks in a silent setup, or shows a console: ${wrong}")
  endif()
endforeach()

# Checks the build.sh scripts in installers/: their errors and warnings, and the setups that they make. Usage:
# cmake -D source_folder=... -D setups=... -P check_setups.cmake

cmake_minimum_required(VERSION 3.25)
file(COPY ${source_folder}/installers DESTINATION "${setups}/a b")
set(nsis "a b/installers/nsis/build.sh" good/files made.exe)
set(msi ${CMAKE_COMMAND} -E env TMPDIR=${setups}/scratch "a b/installers/msi/build.sh" good/files made.msi)
file(REMOVE_RECURSE ${setups}/made.exe ${setups}/made.msi ${setups}/scratch)
file(MAKE_DIRECTORY ${setups}/scratch)

# expect(CODE TEXT COMMAND...)   checks that a command exits with CODE and that its output matches the regex TEXT
function(expect code text)
  execute_process(COMMAND ${ARGN} WORKING_DIRECTORY ${setups}
    RESULT_VARIABLE seen OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT seen EQUAL code OR NOT output MATCHES "${text}")
    message(SEND_ERROR "${ARGN}: expected exit code ${code} and output like \"${text}\", got ${seen} and: ${output}")
  endif()
endfunction()

# nsis/build.sh warns if NSIS is older than 3.11, and requires -DX86 if NSIS cannot make 64-bit setups.
expect(0 "CVE-2025-43715" ${nsis} "-X!define /redef NSIS_PACKEDVERSION 0x03010000")
expect(0 "^$" ${nsis} -WX "-X!define /redef NSIS_PACKEDVERSION 0x03011000")
file(GLOB stubs /usr/share/nsis/Stubs/zlib-x86-* /usr/share/nsis/Stubs/uninst)
file(COPY ${stubs} DESTINATION ${setups}/nsis/Stubs)
expect(1 "give -DX86" ${CMAKE_COMMAND} -E env NSISDIR=${setups}/nsis ${nsis} -DOLD_NSIS_ACCEPTED)
expect(0 "\nName: \"Brindle\".*: Exec \"[$]WINDIR.Sysnative.cmd.exe\" /d" ${nsis} -DOLD_NSIS_ACCEPTED -WX -DX86 -V4)
file(STRINGS ${setups}/made.exe manifest REGEX "requireAdministrator")
file(READ ${setups}/made.exe start LIMIT 1024 HEX)
if(NOT manifest OR NOT start MATCHES "504500004c01")
  message(SEND_ERROR "The setup does not ask for an administrator's rights, or is not a 32-bit program")
endif()

# Refused: settings with which a setup would be faulty, and mistakes on the command line.
expect(2 "code page 1252" ${msi} MAKER=Žluť)
foreach(version 1.0.0.1 1.256.0 1.0.65536)
  expect(2 "at most 255.255.65535" ${msi} VERSION=${version})
endforeach()
foreach(changed UPGRADE_CODE COMPONENT)
  expect(2 "with uuidgen" ${msi} PRODUCT=Kite ${changed}=0b9e8a52-5a35-4c5c-8e5f-8b8ad9b5b0a1)
endforeach()
foreach(character [ ] { })
  expect(2 "must contain none of" ${msi} "APPLICATION=a${character}b")
endforeach()
foreach(build nsis msi)
  expect(2 "FOLDER OUTPUT" ${source_folder}/installers/${build}/build.sh --help)
  expect(2 "these names: .*VERSION" ${${build}} PRODUKT=Kite)
  expect(2 "is not NAME=VALUE" ${${build}} MAKER=)
  expect(2 "must be ASCII" ${${build}} APPLICATION=kité)
  expect(2 "fails or spared" ${${build}} RADIO_OFF=sparred)
endforeach()
foreach(character ' $ % & < > | ^ ! / "\\" "\"" "\;")
  foreach(build nsis msi)
    expect(2 "must contain none of" ${${build}} "APPLICATION=a${character}b")
  endforeach()
endforeach()

# msi/build.sh prints nothing if it succeeds, makes no package if a file is missing, and leaves no temporary files.
expect(0 "^$" ${msi})
file(REMOVE ${setups}/made.msi)
expect(1 "absent.inf" ${msi} INF=absent.inf)
file(GLOB left ${setups}/made.msi ${setups}/scratch/*)
if(left)
  message(SEND_ERROR "msi/build.sh left temporary files or an incomplete package: ${left}")
endif()

# The property Log must name the log that run_sorrel.cmd writes: AskForRestart, the last action, reads that log.
expect(0 "\nLog\tsorrel_Merlin Car[.]log" msiinfo export "für andere/setup.msi" Property)

# The custom actions that change the computer run as SYSTEM: their types contain the bit 2048. An upgrade removes the
# old version within the transaction (sequence number 1501), so that a failed upgrade restores the old version.
foreach(row "PrepareService\t3077\t" "ReleaseService\t3141\t" "UndoPrepareService\t3394\tsorrel\tuninstall none \"brindle\"\t"
    "{6E1C1DF6-6F3D-4F0E-9A5B-8B6D1F8A3C21}\t1.0.0\t1.0.0\t\t769\t\tWIX_UPGRADE_DETECTED\n" "PrepareService\tNOT REMOVE=\"ALL\"\t4003\n" "AskForRestart\tNOT REMOVE=\"ALL\"\t6601\n"
    "RemoveExistingProducts\t\t1501\n" "ReleaseService\tREMOVE=\"ALL\" AND NOT UPGRADINGPRODUCTCODE\t3400\n"
    "UndoPrepareService\tNOT Installed AND NOT WIX_UPGRADE_DETECTED\t4002\n")
  expect(0 "\n${row}" sh -c "(msiinfo export $0 CustomAction && msiinfo export $0 InstallExecuteSequence && msiinfo export $0 Upgrade) | tr -d '\\r'"
    good/setup.msi)
endforeach()

# Without /d, cmd.exe also runs AutoRun commands that a user has set in the registry. Without a default answer (/SD), a
# message box makes a silent setup wait. A user who starts a repair must not see a console that runs as SYSTEM.
file(GLOB_RECURSE samples ${source_folder}/installers/*)
foreach(sample ${samples})
  file(STRINGS ${sample} wrong REGEX "(cmd\\.exe|shell%)[^ ]* /[^d]|[\"=]cmd|MessageBox [^/]*$|\"CustomActionData\"., [^0]")
  if(wrong)
    message(SEND_ERROR "${sample} starts cmd.exe without its path or without /d, makes a silent setup wait, or shows a console: ${wrong}")
  endif()
endforeach()

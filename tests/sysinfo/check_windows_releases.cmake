# What system_report.exe tells under each Windows that Wine can be, one line each with the predicates that are true, and
# how it shows a variable that would break its columns, compared with a file: cmake -D wine=... -D folder=... -D expected=... -P check_windows_releases.cmake

set(setting "HKCU\\Software\\Wine\\AppDefaults\\system_report.exe")
# Escape, line feed, full stop.
file(WRITE ${folder}/variable.reg "REGEDIT4\n\n[HKEY_CURRENT_USER\\Environment]\n\"kelvo\"=hex(1):1b,0a,2e,00\n")
string(APPEND commands "reg import variable.reg >nul& ")
foreach(version win95 win98 winme nt40 win2k winxp winxp64 win2003 vista win7 win8 win10)
  string(APPEND commands "reg add ${setting} /v Version /d ${version} /f >nul& echo as ${version}& system_report.exe& ")
endforeach()
execute_process(COMMAND ${wine} cmd /c "${commands} reg delete ${setting} /f >nul& reg delete HKCU\\Environment /v kelvo /f >nul" WORKING_DIRECTORY ${folder}
  OUTPUT_VARIABLE reports COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\r" "" reports "${reports}")
string(REGEX MATCHALL "as [a-z0-9]+\n((GetSystemVersionString|IsWin[9N2XV78S])[^\n]*\n)+" seen "${reports}")
list(JOIN seen "" seen)
string(REGEX REPLACE "IsWin[^ ]+ +0\n" "" seen "${seen}")
string(REGEX REPLACE "\nGetSystemVersionString\\(\\) +([^\n]*)" ": \\1;" seen "${seen}")
string(REGEX REPLACE "\nIsWin([^(]+)\\(\\) +1" " \\1" seen "${seen}")
string(REGEX MATCH "\nUserEnv: kelvo[^\n]*\n" variable "${reports}")
string(APPEND seen "${variable}")

file(READ ${expected} text)
if(NOT seen STREQUAL text)
  message(SEND_ERROR "This is not what ${expected} says:\n${seen}")
endif()

@echo off
rem run_sorrel.cmd WORD...   runs sorrel.exe, which stands beside this file, with these words; keeps what it wrote in
rem a log and shows it. Ends with 0, with 3010 when the computer must be restarted, with 1603 when a step failed.
setlocal EnableExtensions DisableDelayedExpansion
rem A variable of that name would hide what programs end with.
set "errorlevel="
rem The log is this product's alone: name it after yours.
set "log=%SystemRoot%\Logs\sorrel_brindle.log"
set "failed="
set "restart="

rem An old log must not be taken for this run's.
if exist "%log%" del /f /q "%log%"
if exist "%log%" exit /b 1603

"%~dp0sorrel.exe" %* >"%log%"
if not "%errorlevel%"=="0" set "failed=1"
if not exist "%log%" exit /b 1603
type "%log%"

rem Whatever runs writes at least one line.
for %%F in ("%log%") do if "%%~zF"=="0" set "failed=1"
rem Variables of for are put in after a line is taken apart, so no text of the log can act as a command.
for /f "usebackq tokens=1* delims=:" %%A in ("%log%") do if "%%A"=="ERR" if not "%%B"==" no Bluetooth available, bthprops.cpl missing" set "failed=1"
for /f "usebackq delims=" %%L in ("%log%") do if "%%L"=="Reboot required" set "restart=1"

if defined failed exit /b 1603
if defined restart exit /b 3010
exit /b 0

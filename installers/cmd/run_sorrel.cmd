@echo off
rem run_sorrel.cmd WORD...   runs sorrel.exe, which stands beside this file, with these words; keeps what it wrote in
rem a log and shows it. Ends with 0, with 3010 when the computer must be restarted, with 1603 when a step failed.
rem
rem SORREL_LOG            the log; %SystemRoot%\Logs\sorrel.log when it is not set
rem SORREL_RESTART_CODE   what to end with in place of 3010, for a caller to whom every code but 0 is a failure
setlocal EnableExtensions DisableDelayedExpansion
if not defined SORREL_LOG set "SORREL_LOG=%SystemRoot%\Logs\sorrel.log"
if not defined SORREL_RESTART_CODE set "SORREL_RESTART_CODE=3010"
set "failed="
set "restart="

rem An old log must not be taken for this run's.
if exist "%SORREL_LOG%" del /f /q "%SORREL_LOG%"
if exist "%SORREL_LOG%" exit /b 1603

"%~dp0sorrel.exe" %* >"%SORREL_LOG%"
if not "%errorlevel%"=="0" set "failed=1"
if not exist "%SORREL_LOG%" exit /b 1603
type "%SORREL_LOG%"

rem Variables of for are put in after a line is taken apart, so no text of the log can act as a command.
for /f "usebackq tokens=1* delims=:" %%A in ("%SORREL_LOG%") do if "%%A"=="ERR" if not "%%B"==" no Bluetooth available, bthprops.cpl missing" set "failed=1"
for /f "usebackq delims=" %%L in ("%SORREL_LOG%") do if "%%L"=="Reboot required" set "restart=1"

if defined failed exit /b 1603
if defined restart exit /b %SORREL_RESTART_CODE%
exit /b 0

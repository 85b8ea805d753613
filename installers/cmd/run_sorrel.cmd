@echo off
rem run_sorrel.cmd ARGUMENT...   runs the sorrel.exe beside this script with these arguments, shows the output and
rem appends it to the product's log. Returns 1603 if a step failed, if the name was not recorded, or if product.cmd
rem or the file for the output could not be used. Otherwise returns 3010 if a restart is needed, or 0.
setlocal EnableExtensions DisableDelayedExpansion
rem Deletes any environment variable named errorlevel, because it would hide the exit codes of programs.
set "errorlevel="
set "product="
call "%~dp0product.cmd"
if not defined product exit /b 1603
set "log=%SystemRoot%\Logs\sorrel_%application%.log"
set "run=%log%.run"
set "failed="
set "restart="

rem If the log exceeds 64 KB, adds .old to its name and starts a new log.
if exist "%log%" for %%F in ("%log%") do if %%~zF gtr 65536 move /y "%log%" "%log%.old" >nul
>>"%log%" echo === %product%, %date% %time%: sorrel.exe %*

rem Deletes the output of an earlier run, so that it is not mistaken for the output of this run.
if exist "%run%" del /f /q "%run%"
if exist "%run%" exit /b 1603
"%~dp0sorrel.exe" %* >"%run%"
set "code=%errorlevel%"
if not exist "%run%" exit /b 1603

rem An empty output is a failure: a run of sorrel.exe that completes writes at least one line.
for %%F in ("%run%") do if "%%~zF"=="0" set "failed=1"
rem A missing bthprops.cpl is never a failure. If product.cmd sets radio_off to "spared", the two codes that Windows
rem documents for a missing radio are no failures either: 00000490 and 00000014 (hexadecimal). With such a code,
rem sorrel.exe writes an error line, and "register" and "unregister" also exit with this code (1168 or 20 in decimal).
set "spared=none"
if "%radio_off%"=="spared" set "spared=BluetoothSetLocalServiceInfo Error"
rem cmd.exe parses each line below before it expands FOR variables such as %%A. Therefore, text from the output is never
rem run as a command.
for /f "usebackq tokens=1-4* delims=: " %%A in ("%run%") do if "%%A %%B %%C %%D %code%"=="ERR %spared% 00000490 1168" set "code=0"
for /f "usebackq tokens=1-4* delims=: " %%A in ("%run%") do if "%%A %%B %%C %%D %code%"=="ERR %spared% 00000014 20" set "code=0"
for /f "usebackq tokens=1-4* delims=: " %%A in ("%run%") do if "%%A"=="ERR" if not "%%B %%C %%D"=="%spared% 00000490" if not "%%B %%C %%D"=="%spared% 00000014" if not "%%B %%C %%D %%E"=="no Bluetooth available, bthprops.cpl missing" set "failed=1"
if not "%code%"=="0" set "failed=1"
for /f "usebackq delims=" %%L in ("%run%") do if "%%L"=="Reboot required" set "restart=1"

rem Checks whether the application's name is on the list of applications, because sorrel.exe reports no error when it
rem does not add the name. For example, sorrel.exe does not add a name that is part of another name on the list.
set "name="
if "%~1"=="install" set "name=%~5"
if "%~1"=="register" set "name=%~2"
if not defined name goto end
rem sorrel_status.exe exits with 1 if the name is absent. The variable errorlevel is also 1 if Windows does not allow
rem the program to run. The call with --version detects this case, and the name is then not checked.
"%~dp0sorrel_status.exe" --version >nul 2>&1
if not "%errorlevel%"=="0" goto end
"%~dp0sorrel_status.exe" --application "%name%" >>"%run%"
if "%errorlevel%"=="1" set "failed=1"

:end
set "code=0"
if defined restart set "code=3010"
if defined failed set "code=1603"
>>"%run%" echo === ends with %code%
type "%run%"
type "%run%" >>"%log%"
del /f /q "%run%"
exit /b %code%

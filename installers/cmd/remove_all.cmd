@echo off
rem remove_all.cmd   removes the application from sorrel.exe's list. If no application is left there, Windows' certutil
rem                  and pnputil then remove the two certificates and the driver package. Returns 1603 if something
rem                  that had to be removed is still there or could not be checked, otherwise 3010 if a restart is
rem                  needed, otherwise 0.
setlocal EnableExtensions DisableDelayedExpansion
set "errorlevel="
set "here=%~dp0"
set "product="
call "%here%product.cmd"
rem If this folder's name has a percent sign or a caret, the command "call" changes the name and finds no product.cmd.
if not defined product exit /b 1603
set "log=%SystemRoot%\Logs\sorrel_%application%.log"
set "answer=%log%.answer"
rem If a 32-bit program starts this script, Windows redirects System32 to a folder without pnputil. Sysnative then leads
rem to the real System32.
set "system=%SystemRoot%\System32"
if exist "%SystemRoot%\Sysnative\cmd.exe" set "system=%SystemRoot%\Sysnative"
set "code=1603"
set "restart="

"%system%\cmd.exe" /d /s /c ^""%here%run_sorrel.cmd" uninstall none "%application%"^"
call :ask application "%application%" list
if not "%state%"=="absent" goto end
rem "text" means that other applications are on the list: they need the certificates and the driver package.
if "%value%"=="text" set "code=0"
if not "%value%"=="none" if not "%value%"=="empty" goto end

call :ask publisher "%here%%publisher%" thumbprint
if "%state%"=="present" call :windows certutil.exe "-delstore TrustedPublisher %value%"
call :ask intermediate "%here%%intermediate%" thumbprint
if "%state%"=="present" call :windows certutil.exe "-delstore CA %value%"
call :ask inf "%here%%inf%" published_name
if "%state%"=="present" call :windows pnputil.exe "/delete-driver %value% /uninstall"
rem Before Windows 10 1607, pnputil has other options. If the driver package is still there, tries the old option -d.
call :ask inf "%here%%inf%" published_name
if "%state%"=="present" call :windows pnputil.exe "-d %value%"

set "code=0"
if defined restart set "code=3010"
call :ask publisher "%here%%publisher%"
if not "%state%"=="absent" set "code=1603"
call :ask intermediate "%here%%intermediate%"
if not "%state%"=="absent" set "code=1603"
call :ask inf "%here%%inf%"
if not "%state%"=="absent" set "code=1603"

:end
if exist "%answer%" del /f /q "%answer%"
>>"%log%" echo === remove_all.cmd ends with %code%
exit /b %code%

rem :ask OPTION ARGUMENT [KEY]   runs sorrel_status.exe --OPTION ARGUMENT, and sets two variables from the report:
rem "state" to the item's state, and "value" to the value of KEY. Both variables are empty if there is no report.
rem Ignores the exit code: 1 means absent, but Windows also returns 1 if the program is not allowed to run.
:ask
set "state="
set "value="
if exist "%answer%" del /f /q "%answer%"
if exist "%answer%" exit /b
"%here%sorrel_status.exe" --%1 %2 --json >"%answer%"
if not exist "%answer%" exit /b
for /f "usebackq tokens=1,2 delims=:, " %%A in ("%answer%") do if "%%~A"=="state" set "state=%%~B"
for /f "usebackq tokens=1,2 delims=:, " %%A in ("%answer%") do if "%%~A"=="%3" set "value=%%~B"
exit /b

rem Runs a program of Windows, shows its output and appends the output to the log.
:windows
>"%answer%" "%system%\%1" %~2
if "%errorlevel%"=="3010" set "restart=1"
>>"%log%" echo === %1 %~2
type "%answer%"
type "%answer%" >>"%log%"
exit /b

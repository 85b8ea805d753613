@echo off
rem remove_all.cmd   removes the application's name from the list of applications ("sorrel.exe uninstall"). If no name
rem                  is left on the list, removes the two certificates with certutil.exe, and the driver package with
rem                  pnputil.exe. Returns 1603 if "sorrel.exe uninstall" failed, or if something that had to be removed
rem                  is still present or could not be checked. Otherwise returns 3010 if a restart is needed, or 0 if
rem                  no restart is needed.
setlocal EnableExtensions DisableDelayedExpansion
set "errorlevel="
set "here=%~dp0"
set "product="
call "%here%product.cmd"
rem If the path of this folder has a percent sign or a caret, "call" changes the path and does not find product.cmd.
if not defined product exit /b 1603
set "log=%SystemRoot%\Logs\sorrel_%application%.log"
set "answer=%log%.answer"
rem If a 32-bit program starts this script on 64-bit Windows, System32 is redirected to a folder without pnputil.
rem Sysnative then leads to the real System32.
set "system=%SystemRoot%\System32"
if exist "%SystemRoot%\Sysnative\cmd.exe" set "system=%SystemRoot%\Sysnative"
set "code=1603"
set "restart="

"%system%\cmd.exe" /d /s /c ^""%here%run_sorrel.cmd" uninstall none "%application%"^"
set "uninstalled=%errorlevel%"
call :ask application "%application%" list
if not "%state%"=="absent" goto end
rem The value "text" means that other applications are on the list. Because they need the certificates and the driver
rem package, the script removes neither.
if "%value%"=="text" set "code=0"
if not "%value%"=="none" if not "%value%"=="empty" goto end

call :ask publisher "%here%%publisher%" thumbprint
if "%state%"=="present" call :windows certutil.exe "-delstore TrustedPublisher %value%"
call :ask intermediate "%here%%intermediate%" thumbprint
if "%state%"=="present" call :windows certutil.exe "-delstore CA %value%"
call :ask inf "%here%%inf%" published_name
if "%state%"=="present" call :windows pnputil.exe "/delete-driver %value% /uninstall"
rem Before Windows 10 version 1607, pnputil has no option /delete-driver. If the driver package is still present, tries
rem the older option -d.
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
if not "%uninstalled%"=="0" if not "%uninstalled%"=="3010" set "code=1603"
if exist "%answer%" del /f /q "%answer%"
>>"%log%" echo === remove_all.cmd ends with %code%
exit /b %code%

rem :ask OPTION ARGUMENT [KEY]   runs sorrel_status.exe --OPTION ARGUMENT, and sets two variables from its report. The
rem variable "state" gets the state in the report ("present", "absent" or "unknown"), and "value" gets the value of KEY.
rem If there is no report, both variables are empty. Ignores the exit code: it is 1 if the state is "absent", but also
rem if Windows does not allow the program to run.
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

rem :windows PROGRAM ARGUMENTS   runs a program from the folder System32, shows its output and appends the output to the
rem log. Sets "restart" if the program returns 3010.
:windows
>"%answer%" "%system%\%1" %~2
if "%errorlevel%"=="3010" set "restart=1"
>>"%log%" echo === %1 %~2
type "%answer%"
type "%answer%" >>"%log%"
exit /b

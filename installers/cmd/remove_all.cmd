@echo off
rem remove_all.cmd   takes the application off the list. When that was the last one, the driver package and both certificates
rem                  go, too, by Windows' own pnputil and certutil. Ends with 0, with 3010 when the computer must be
rem                  restarted, with 1603 when something is still there that should not be.
setlocal EnableExtensions DisableDelayedExpansion
set "errorlevel="
set "here=%~dp0"
if not exist "%here%product.cmd" exit /b 1603
call "%here%product.cmd"
set "answer=%SystemRoot%\Logs\sorrel_%application%.answer"
rem What a 32-bit program starts sees another System32, without pnputil.
set "system=%SystemRoot%\System32"
if exist "%SystemRoot%\Sysnative\cmd.exe" set "system=%SystemRoot%\Sysnative"
set "code=0"
set "restart="

"%system%\cmd.exe" /d /s /c ^""%here%run_sorrel.cmd" uninstall none "%application%"^"
call :ask application "%application%"
if not "%state%"=="1" exit /b 1603
rem Whoever is on the list still needs the rest.
"%system%\reg.exe" query HKLM\SYSTEM\CurrentControlSet\Services\Tessalin\Parameters /v applications >nul 2>&1
if "%errorlevel%"=="0" exit /b 0

call :ask publisher "%here%%publisher%" thumbprint
if defined value "%system%\certutil.exe" -delstore TrustedPublisher %value%
call :ask intermediate "%here%%intermediate%" thumbprint
if defined value "%system%\certutil.exe" -delstore CA %value%
call :ask inf "%here%%inf%" published_name
if defined value "%system%\pnputil.exe" /delete-driver %value% /uninstall
if "%errorlevel%"=="3010" set "restart=1"
rem Before Windows 10 1607 pnputil has other words.
call :ask inf "%here%%inf%" published_name
if defined value "%system%\pnputil.exe" -d %value%

call :ask publisher "%here%%publisher%"
if not "%state%"=="1" set "code=1603"
call :ask intermediate "%here%%intermediate%"
if not "%state%"=="1" set "code=1603"
call :ask inf "%here%%inf%"
if not "%state%"=="1" set "code=1603"
if exist "%answer%" del /f /q "%answer%"
if "%code%"=="0" if defined restart set "code=3010"
exit /b %code%

rem Asks the companion: "state" is what it ends with, "value" that of a key when the item is present.
:ask
set "value="
"%here%sorrel_status.exe" --%1 %2 --json >"%answer%"
set "state=%errorlevel%"
if "%state%"=="0" for /f "usebackq tokens=1,2 delims=:, " %%A in ("%answer%") do if "%%~A"=="%3" set "value=%%~B"
exit /b

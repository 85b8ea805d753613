@echo off
rem deploy.cmd          copies the product's files to the product's folder and runs "sorrel.exe install". If a first
rem                     installation fails, runs "sorrel.exe uninstall" and deletes the copies. If a later installation
rem                     (such as an upgrade) fails, removes nothing: the copies stay.
rem deploy.cmd remove   runs "sorrel.exe uninstall" with the application's name. Also deletes the product's files from
rem                     the product's folder, unless this script itself is in that folder.
rem Both commands return 0, 3010 or 1603, as run_sorrel.cmd does. If a file cannot be copied, deploy.cmd returns 1603.
setlocal EnableExtensions DisableDelayedExpansion
set "errorlevel="
set "here=%~dp0"
set "product="
call "%here%product.cmd"
rem If the path of this folder has a percent sign or a caret, "call" changes the path and does not find product.cmd.
if not defined product exit /b 1603
rem Prefers ProgramW6432: if a 32-bit program starts this script, ProgramFiles is the folder for 32-bit programs.
if not defined ProgramW6432 set "ProgramW6432=%ProgramFiles%"
set "folder=%ProgramW6432%\%product%"
set files=sorrel.exe sorrel_status.exe run_sorrel.cmd remove_all.cmd deploy.cmd "%inf%" "%publisher%" "%intermediate%"
set "shell=%SystemRoot%\System32\cmd.exe"
set "code=0"
if "%~1"=="remove" goto remove

rem An installation counts as a first installation only if sorrel_status.exe returns 1, which means that the name of the
rem application is not on the list of applications. The variable errorlevel is also 1 if Windows does not allow
rem sorrel_status.exe to run. The call with --version detects this case, and the installation then does not count as a
rem first installation.
set "first="
"%here%sorrel_status.exe" --version >nul 2>&1
if not "%errorlevel%"=="0" goto copy
"%here%sorrel_status.exe" --application "%application%" >nul
if "%errorlevel%"=="1" set "first=1"

:copy
rem Copies the files before sorrel.exe runs. A detection rule compares the certificates and the INF in the product's
rem folder with what is installed. If sorrel.exe ran first and an upgrade failed, the folder would still hold the old
rem version's files, and a rule that does not check the version could report success.
if /i "%here%"=="%folder%\" goto install
if not exist "%folder%\" md "%folder%"
for %%F in (%files%) do call :lay %%F

:install
rem The carets escape the outer quotation marks, so that only the inner quotation marks form pairs. Without the carets,
rem a "&" in the folder's name would be outside the quotation marks and would split the command.
if "%code%"=="0" "%shell%" /d /s /c ^""%here%run_sorrel.cmd" install "%here%%inf%" "%here%%publisher%" "%here%%intermediate%" "%application%"^"
if "%code%"=="0" set "code=%errorlevel%"
if not "%code%"=="0" if not "%code%"=="3010" set "code=1603"
if "%code%"=="1603" goto undo
rem Copies product.cmd last, so that the copy contains the version that was last installed successfully. Detection rules
rem read the version from this copy.
if /i not "%here%"=="%folder%\" call :lay product.cmd
if not "%code%"=="1603" exit /b %code%

:undo
if not defined first exit /b %code%

:remove
"%shell%" /d /s /c ^""%here%run_sorrel.cmd" uninstall none "%application%"^"
if "%code%"=="0" set "code=%errorlevel%"
if not "%code%"=="0" if not "%code%"=="3010" set "code=1603"
if /i "%here%"=="%folder%\" exit /b %code%
for %%F in (product.cmd %files%) do if exist "%folder%\%%~F" del /f /q "%folder%\%%~F"
rd "%folder%" 2>nul
exit /b %code%

:lay
copy /b /y "%here%%~1" "%folder%" >nul
if not "%errorlevel%"=="0" set "code=1603"
exit /b

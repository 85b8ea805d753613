@echo off
rem deploy.cmd          copies the product's files to its folder and prepares the computer. If a first installation fails, it is
rem                     undone; a product that was there before stays.
rem deploy.cmd remove   takes the application off the list and removes these files.
rem Both end as run_sorrel.cmd does.
setlocal EnableExtensions DisableDelayedExpansion
set "errorlevel="
set "here=%~dp0"
if not exist "%here%product.cmd" exit /b 1603
call "%here%product.cmd"
rem Call changes percent signs and carets in this folder's name, and then does not find the file.
if not defined product exit /b 1603
rem Not %ProgramFiles%, which is another folder for what a 32-bit program starts.
if not defined ProgramW6432 set "ProgramW6432=%ProgramFiles%"
set "folder=%ProgramW6432%\%product%"
set files=sorrel.exe sorrel_status.exe run_sorrel.cmd remove_all.cmd deploy.cmd product.cmd "%inf%" "%publisher%" "%intermediate%"
set "shell=%SystemRoot%\System32\cmd.exe"
set "code=0"
if "%~1"=="remove" goto remove

rem Absent, and not only unknown: a first installation. Windows itself gives 1 for a companion that may not run.
set "first="
"%here%sorrel_status.exe" --version >nul 2>&1
if not "%errorlevel%"=="0" goto copy
"%here%sorrel_status.exe" --application "%application%" >nul
if "%errorlevel%"=="1" set "first=1"

:copy
rem Before the tool runs, so that a detection compares with this version's files.
if /i "%here%"=="%folder%\" goto install
if not exist "%folder%\" md "%folder%"
for %%F in (%files%) do call :lay %%F

:install
rem The outer quotation marks with a caret: the others are then taken in pairs, around a "&" in the folder's name.
if "%code%"=="0" "%shell%" /d /s /c ^""%here%run_sorrel.cmd" install "%here%%inf%" "%here%%publisher%" "%here%%intermediate%" "%application%"^"
if "%code%"=="0" set "code=%errorlevel%"
if not "%code%"=="1603" exit /b %code%
if not defined first exit /b %code%

:remove
"%shell%" /d /s /c ^""%here%run_sorrel.cmd" uninstall none "%application%"^"
if "%code%"=="0" set "code=%errorlevel%"
if /i "%here%"=="%folder%\" exit /b %code%
for %%F in (%files%) do if exist "%folder%\%%~F" del /f /q "%folder%\%%~F"
rd "%folder%" 2>nul
exit /b %code%

:lay
copy /b /y "%here%%~1" "%folder%" >nul
if not "%errorlevel%"=="0" set "code=1603"
exit /b

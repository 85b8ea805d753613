@echo off
rem Prepares the computer for "brindle" with what stands in this folder; ends as run_sorrel.cmd does.
"%~dp0run_sorrel.cmd" install "%~dp0Tessalin.inf" "%~dp0trusted.cer" "%~dp0trusted_i.cer" brindle

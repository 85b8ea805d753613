; !insertmacro RunSorrel "" defines the function RunSorrel, !insertmacro RunSorrel "un." defines un.RunSorrel:
;
;   Push 'register brindle'    the words for sorrel.exe, which stands in $INSTDIR
;   Call RunSorrel
;   Pop $0                     0, 3010: the computer must be restarted, 1603: a step failed
;
; What it wrote is then in SORREL_LOG, which the setup defines. Not nsExec::ExecToStack, which keeps 1,023 characters of it.

!include LogicLib.nsh

!macro RunSorrel un
Function ${un}RunSorrel
  Exch $0
  Push $1
  Push $2
  Push $3
  Delete "${SORREL_LOG}"
  nsExec::Exec '"$SYSDIR\cmd.exe" /d /s /c ""$INSTDIR\sorrel.exe" $0 >"${SORREL_LOG}""'
  Pop $1
  StrCpy $0 0
  ${IfThen} $1 S!= "0" ${|} StrCpy $0 1603 ${|}

  ClearErrors
  FileOpen $2 "${SORREL_LOG}" r
  ${IfThen} ${Errors} ${|} StrCpy $0 1603 ${|}
  StrCpy $3 "$\n"
  ${DoUntil} ${Errors}
    ; A line of more than 1,023 characters arrives in pieces, and only the first is the beginning of a line.
    FileRead $2 $1
    ${If} $3 S== "$\n"
    ${OrIf} $3 S== "$\r"
      ${If} $1 S== "Reboot required$\r$\n"
      ${AndIf} $0 = 0
        StrCpy $0 3010
      ${EndIf}
      StrCpy $3 $1 5
      ${If} $3 S== "ERR: "
      ${AndIf} $1 S!= "ERR: no Bluetooth available, bthprops.cpl missing$\r$\n"
        StrCpy $0 1603
      ${EndIf}
    ${EndIf}
    StrCpy $3 $1 1 -1
  ${Loop}
  FileClose $2
  Pop $3
  Pop $2
  Pop $1
  Exch $0
FunctionEnd
!macroend

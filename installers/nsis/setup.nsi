; A setup of an application "Brindle" that relies on the hands-free service:
;   makensis -DFILES=FOLDER -DOUTPUT=FILE setup.nsi
; FOLDER holds sorrel.exe, sorrel_status.exe, Tessalin.inf and what belongs to it, trusted.cer and trusted_i.cer.

; CVE-2025-43715: a user of the computer could put another program into the folder from which an older NSIS' setup runs.
!ifndef OLD_NSIS_ACCEPTED
  !if ${NSIS_PACKEDVERSION} < 0x03011000
    !warning "NSIS ${NSIS_VERSION} lets a user of the computer gain the setup's rights (CVE-2025-43715): use 3.11 or later."
  !endif
!endif

Unicode true
Target amd64-unicode
; Only administrators can write there. The product's own.
!define SORREL_LOG "$WINDIR\Logs\sorrel_brindle.log"
!include sorrel.nsh

!define PRODUCT "Software\Microsoft\Windows\CurrentVersion\Uninstall\Brindle"

Name "Brindle"
OutFile "${OUTPUT}"
RequestExecutionLevel admin
InstallDir "$PROGRAMFILES64\Brindle"
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

!insertmacro RunSorrel ""
!insertmacro RunSorrel "un."

; There is no page that asks for the folder. /D= of a setup and _?= of its removal may name another one: it must be one that
; only administrators write to, since what is in it runs with their rights. Nor may cmd.exe see a variable in it.
!macro CheckFolder
  StrCpy $0 "$INSTDIR"
  System::Call 'kernel32::GetFullPathNameW(w r0, i ${NSIS_MAX_STRLEN}, w .r1, p 0)'
  System::Call 'shlwapi::StrChrW(w r1, i 0x25) p .r4'
  StrLen $2 "$PROGRAMFILES64\"
  StrCpy $3 "$1" $2
  ${If} $3 != "$PROGRAMFILES64\"
  ${OrIf} $4 P<> 0
    SetErrorLevel 1603
    Quit
  ${EndIf}
  StrCpy $INSTDIR "$1"
!macroend

Function .onInit
  !insertmacro CheckFolder
FunctionEnd

Function un.onInit
  !insertmacro CheckFolder
FunctionEnd

!macro RemoveProduct
  Delete "$INSTDIR\sorrel.exe"
  Delete "$INSTDIR\sorrel_status.exe"
  Delete "$INSTDIR\Tessalin.inf"
  Delete "$INSTDIR\trusted.cer"
  Delete "$INSTDIR\trusted_i.cer"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey HKLM "${PRODUCT}"
!macroend

Section
  SetOutPath "$INSTDIR"
  File "${FILES}/sorrel.exe"
  File "${FILES}/sorrel_status.exe"
  File "${FILES}/Tessalin.inf"
  File "${FILES}/trusted.cer"
  File "${FILES}/trusted_i.cer"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKLM "${PRODUCT}" DisplayName "Brindle"
  WriteRegStr HKLM "${PRODUCT}" DisplayVersion "1.0.0"
  WriteRegStr HKLM "${PRODUCT}" UninstallString '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM "${PRODUCT}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'

  Push 'install "$INSTDIR\Tessalin.inf" "$INSTDIR\trusted.cer" "$INSTDIR\trusted_i.cer" brindle'
  Call RunSorrel
  Pop $0
  SetErrorLevel $0
  ${If} $0 = 3010
    SetRebootFlag true
  ${ElseIf} $0 = 1603
    ; Straight, so that the log stays that of the failure.
    nsExec::Exec '"$INSTDIR\sorrel.exe" uninstall "$INSTDIR\Tessalin.inf" brindle'
    SetOutPath "$TEMP"
    !insertmacro RemoveProduct
    Abort "The hands-free service could not be prepared: ${SORREL_LOG} tells why."
  ${EndIf}
SectionEnd

; Removal goes on whatever the tool says: a radio that is away must not keep the product on the computer.
Section Uninstall
  Push 'uninstall "$INSTDIR\Tessalin.inf" brindle'
  Call un.RunSorrel
  !insertmacro RemoveProduct
SectionEnd

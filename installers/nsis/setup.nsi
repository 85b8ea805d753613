; A setup of an application "Brindle" that relies on the hands-free service:
;   makensis -DFILES=FOLDER -DOUTPUT=FILE setup.nsi
; FOLDER holds sorrel.exe, sorrel_status.exe, Tessalin.inf and what belongs to it, trusted.cer and trusted_i.cer.

Unicode true
Target amd64-unicode
!include sorrel.nsh

!define PRODUCT "Software\Microsoft\Windows\CurrentVersion\Uninstall\Brindle"

Name "Brindle"
OutFile "${OUTPUT}"
RequestExecutionLevel admin
InstallDir "$PROGRAMFILES64\Brindle"
Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

!insertmacro RunSorrel ""
!insertmacro RunSorrel "un."

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

; The setup of a product that uses the hands-free service. Build the setup with build.sh, or with
;   makensis -DFILES=FOLDER -DOUTPUT=FILE setup.nsi
; FOLDER holds sorrel.exe, sorrel_status.exe, run_sorrel.cmd, the driver package and the certificates.

; Change these settings here, or override them with arguments of makensis (-DPRODUCT=...).
!macro Setting NAME VALUE
  !ifndef ${NAME}
    !define ${NAME} "${VALUE}"
  !endif
!macroend
; The product's name, which is also the name of its folder below Program Files.
!insertmacro Setting PRODUCT "Brindle"
!insertmacro Setting VERSION "1.0.0"
!insertmacro Setting MAKER "The sorrel authors"
; The application's name, under which sorrel.exe records the product on the list of applications that use the
; hands-free service. This name must be ASCII and the same for all versions. It must neither contain nor be part of
; another application's name.
!insertmacro Setting APPLICATION "brindle"
; The driver package's INF file, the certificate of the package's signer, and the certificate of the authority that
; issued the signer's certificate.
!insertmacro Setting INF "Tessalin.inf"
!insertmacro Setting PUBLISHER "trusted.cer"
!insertmacro Setting INTERMEDIATE "trusted_i.cer"
; What happens if Windows reports one of the two codes that it documents for a missing Bluetooth radio (see
; run_sorrel.cmd). With "fails", the installation fails. With "spared", the installation ignores this error.
!insertmacro Setting RADIO_OFF "fails"
; Add the driver package's other files here.
!macro EachFile DO
  !insertmacro ${DO} "sorrel.exe"
  !insertmacro ${DO} "sorrel_status.exe"
  !insertmacro ${DO} "run_sorrel.cmd"
  !insertmacro ${DO} "${INF}"
  !insertmacro ${DO} "${PUBLISHER}"
  !insertmacro ${DO} "${INTERMEDIATE}"
!macroend

; CVE-2025-43715: a setup that was built with NSIS older than 3.11 runs programs from a folder to which a user without
; administrator rights could have copied a program.
!ifndef OLD_NSIS_ACCEPTED
  !if ${NSIS_PACKEDVERSION} < 0x03011000
    !warning "A setup made by NSIS ${NSIS_VERSION} lets users gain the setup's rights (CVE-2025-43715): use 3.11 or later."
  !endif
!endif

Unicode true
!ifdef X86
  Target x86-unicode
  !define SYSTEM "$WINDIR\Sysnative"
!else
  !if ! /FileExists "${NSISDIR}/Stubs/zlib-amd64-unicode"
    !error "This NSIS makes no 64-bit setups: give -DX86 to make a 32-bit setup."
  !endif
  Target amd64-unicode
  !define SYSTEM "$SYSDIR"
!endif
!include LogicLib.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\${PRODUCT}"
!define LOG "$WINDIR\Logs\sorrel_${APPLICATION}.log"

Name "${PRODUCT}"
OutFile "${OUTPUT}"
RequestExecutionLevel admin
InstallDir "$PROGRAMFILES64\${PRODUCT}"
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; The contents of product.cmd, which run_sorrel.cmd reads.
!tempfile PRODUCT_CMD
!macro ProductLine NAME VALUE
  !appendfile "${PRODUCT_CMD}" 'set "${NAME}=${VALUE}"$\r$\n'
!macroend
!insertmacro ProductLine product "${PRODUCT}"
!insertmacro ProductLine application "${APPLICATION}"
!insertmacro ProductLine radio_off "${RADIO_OFF}"

; Checks the installation folder. The setup does not ask the user for a folder, but the options /D= of the setup and
; _?= of the uninstaller can name any folder. The setup and the uninstaller run programs from the installation folder
; with an administrator's rights. The folder must therefore be in Program Files, where only administrators can write.
; The path must not contain a percent sign, because cmd.exe could expand a variable in the path.
!macro Begin
  SetRegView 64
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
  ; A repair or an upgrade uses the folder of the installed product.
  SetRegView 64
  ReadRegStr $0 HKLM "${UNINSTALL_KEY}" InstallLocation
  ${If} $0 != ""
    StrCpy $INSTDIR "$0"
  ${EndIf}
  !insertmacro Begin
FunctionEnd

Function un.onInit
  !insertmacro Begin
  ; _?= could name the folder of another product.
  ReadRegStr $0 HKLM "${UNINSTALL_KEY}" InstallLocation
  ${If} $0 != ""
  ${AndIf} $0 != "$INSTDIR"
    SetErrorLevel 1603
    Quit
  ${EndIf}
FunctionEnd

; Runs run_sorrel.cmd and puts its exit code into $0. run_sorrel.cmd, not the setup, reads sorrel.exe's output, because
; nsExec::ExecToStack would keep only 1,023 characters of the output.
!macro RunSorrel WORDS
  nsExec::Exec '"${SYSTEM}\cmd.exe" /d /s /c ""$INSTDIR\run_sorrel.cmd" ${WORDS}"'
  Pop $0
!macroend

!macro Put NAME
  File "${FILES}/${NAME}"
!macroend
!macro Remove NAME
  Delete "$INSTDIR\${NAME}"
!macroend
!macro RemoveProduct
  !insertmacro EachFile Remove
  !insertmacro Remove "product.cmd"
  !insertmacro Remove "$8"
  RMDir "$INSTDIR"
  DeleteRegKey HKLM "${UNINSTALL_KEY}"
!macroend

Section
  ; $9 is the file name of the installed uninstaller, or empty in a first installation. $8 is the file name of the new
  ; uninstaller. In a first installation, $8 must be a name that no file in the folder has. An earlier removal may
  ; have left its uninstaller in the folder. At the next restart, Windows deletes the file of this name, even if the
  ; file is then a new uninstaller.
  ReadRegStr $9 HKLM "${UNINSTALL_KEY}" Uninstaller
  StrCpy $8 "$9"
  ${If} $9 == ""
    StrCpy $8 "uninstall.exe"
    ${While} ${FileExists} "$INSTDIR\$8"
      IntOp $7 $7 + 1
      StrCpy $8 "uninstall$7.exe"
    ${EndWhile}
  ${EndIf}
  ClearErrors
  SetOverwrite try
  SetOutPath "$INSTDIR"
  !insertmacro EachFile Put
  File "/oname=product.cmd" "${PRODUCT_CMD}"
  !delfile "${PRODUCT_CMD}"
  WriteUninstaller "$INSTDIR\$8"
  WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayName "${PRODUCT}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" Publisher "${MAKER}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\$8"'
  WriteRegStr HKLM "${UNINSTALL_KEY}" Uninstaller "$8"
  ; NSIS requires _?= at the end of the command line, without quotation marks. With _?=, the uninstaller does not return
  ; before the removal is complete.
  WriteRegStr HKLM "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\$8" /S _?=$INSTDIR'

  StrCpy $0 1603
  StrCpy $1 "A file or a registry value could not be written. The folder is $INSTDIR."
  ${IfNot} ${Errors}
    StrCpy $1 "The hands-free service could not be prepared. See the log: ${LOG}"
    !insertmacro RunSorrel 'install "$INSTDIR\${INF}" "$INSTDIR\${PUBLISHER}" "$INSTDIR\${INTERMEDIATE}" "${APPLICATION}"'
  ${EndIf}
  ; Compares $0 as a string, not as a number: if nsExec cannot start cmd.exe, $0 is "error".
  ${If} $0 != 0
  ${AndIf} $0 != 3010
    ; If the product was already installed, removes nothing, so that a repair is possible.
    ${If} $9 == ""
      !insertmacro RunSorrel 'uninstall none "${APPLICATION}"'
      SetOutPath "$TEMP"
      !insertmacro RemoveProduct
    ${EndIf}
    SetErrorLevel 1603
    MessageBox MB_ICONSTOP "$1" /SD IDOK
    Abort "$1"
  ${EndIf}
  WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
  SetErrorLevel $0
  ${If} $0 = 3010
    MessageBox MB_ICONINFORMATION "Restart the computer before you use ${PRODUCT}." /SD IDOK
  ${EndIf}
SectionEnd

; Removal continues even if sorrel.exe fails: a missing radio must not keep the product on the computer.
Section Uninstall
  !insertmacro RunSorrel 'uninstall none "${APPLICATION}"'
  ReadRegStr $8 HKLM "${UNINSTALL_KEY}" Uninstaller
  !insertmacro RemoveProduct
  ; With _?=, the uninstaller runs from $INSTDIR and cannot delete itself. At the next restart, Windows deletes the
  ; uninstaller and then the empty folder.
  ${If} ${FileExists} "$INSTDIR\$8"
    Delete /REBOOTOK "$INSTDIR\$8"
    RMDir /REBOOTOK "$INSTDIR"
  ${EndIf}
SectionEnd

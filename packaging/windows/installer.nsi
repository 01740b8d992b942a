; The installer for Windows. packaging/windows/build calls makensis with:
;   VERSION, SIZE (in KB), FILES (the list of files to install and remove), OUT, ICON, LICENSE
;
; It installs for the user who runs it and needs no administrator. So the menu's entries can name a settings folder of this
; user. Without that name the program would look for its settings in the current folder.

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user

!include MUI2.nsh
!include FileFunc.nsh

!define TITLE "Lodestar Advisor"
!define KEY "Software\Lodestar Advisor"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Lodestar Advisor"
!define CLASSES "Software\Classes"
!define CLASS "Lodestar.Book"
!define MENU "$SMPROGRAMS\Lodestar Advisor"
!define SETTINGS "$APPDATA\Lodestar Advisor"
!define SETTINGS_PARAMETER '/INIDIR="${SETTINGS}"'

Name "${TITLE}"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Lodestar Advisor"
InstallDirRegKey HKCU "${KEY}" "Folder"
BrandingText "${TITLE} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${TITLE}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "${TITLE}, installer"
VIAddVersionKey LegalCopyright "Copyright (c) 2026 The Lodestar Advisor authors"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION OpenGuide
!define MUI_FINISHPAGE_RUN_TEXT "Open the user's guide"
!insertmacro MUI_PAGE_LICENSE "${LICENSE}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

!include "${FILES}"

; Windows cannot replace files of a running program, and half an update would be worse than none.
!macro StopWhileRunning
  IfFileExists "$INSTDIR\lsadvisor.exe" 0 not_running
  ClearErrors
  FileOpen $0 "$INSTDIR\lsadvisor.exe" a
  IfErrors 0 can_be_written
  MessageBox MB_OK|MB_ICONEXCLAMATION "${TITLE} is running. Close it, then start this again." /SD IDOK
  SetErrorLevel 3
  Quit
can_be_written:
  FileClose $0
not_running:
!macroend

; Without this the file manager would show changed types and icons only later.
!macro TellOfTypes
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

Function OpenGuide
  SetOutPath "$DOCUMENTS"
  Exec '"$INSTDIR\lsadvisor.exe" "$INSTDIR\samples\Guide.IDA" ${SETTINGS_PARAMETER}'
FunctionEnd

Section "Install"
  !insertmacro StopWhileRunning

  ; Removes an earlier version first, so that none of its files stay. With _?= the uninstaller runs from its own folder, and
  ; ExecWait waits for its end.
  ReadRegStr $1 HKCU "${KEY}" "Folder"
  IfFileExists "$1\uninstall.exe" 0 no_earlier
  ExecWait '"$1\uninstall.exe" /S _?=$1' $2
  IntCmp $2 0 earlier_gone
  MessageBox MB_OK|MB_ICONEXCLAMATION "The version in $1 could not be removed. Is it running?" /SD IDOK
  SetErrorLevel 3
  Quit
earlier_gone:
  Delete "$1\uninstall.exe"
  RMDir "$1"
no_earlier:

  !insertmacro PutFiles
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${KEY}" "Folder" "$INSTDIR"
  CreateDirectory "${SETTINGS}"

  ; Remembers the earlier type of such files; the uninstaller restores it.
  ReadRegStr $0 HKCU "${CLASSES}\.IDA" ""
  StrCmp $0 "" +3
  StrCmp $0 "${CLASS}" +2
  WriteRegStr HKCU "${KEY}" "EarlierClass" "$0"
  WriteRegStr HKCU "${CLASSES}\.IDA" "" "${CLASS}"
  WriteRegStr HKCU "${CLASSES}\.IDA\OpenWithProgids" "${CLASS}" ""
  WriteRegStr HKCU "${CLASSES}\${CLASS}" "" "Lodestar book"
  WriteRegStr HKCU "${CLASSES}\${CLASS}\DefaultIcon" "" "$INSTDIR\lsadvisor.exe,0"
  WriteRegStr HKCU "${CLASSES}\${CLASS}\shell\open\command" "" '"$INSTDIR\lsadvisor.exe" "%1" ${SETTINGS_PARAMETER}'
  !insertmacro TellOfTypes

  ; The program starts in the user's documents folder, because it proposes its current folder to open and save books.
  SetOutPath "$DOCUMENTS"
  CreateDirectory "${MENU}"
  CreateShortCut "${MENU}\Lodestar Advisor.lnk" "$INSTDIR\lsadvisor.exe" '${SETTINGS_PARAMETER}' \
    "$INSTDIR\lsadvisor.exe" 0 SW_SHOWNORMAL "" "Read and write books of topics"
  CreateShortCut "${MENU}\User's Guide.lnk" "$INSTDIR\lsadvisor.exe" '"$INSTDIR\samples\Guide.IDA" ${SETTINGS_PARAMETER}' \
    "$INSTDIR\lsadvisor.exe" 0 SW_SHOWNORMAL "" "The user's guide of Lodestar Advisor"

  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${TITLE}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\lsadvisor.exe,0"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The Lodestar Advisor authors"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; Books and settings of the user stay: this deletes only installed files, and only empty folders.
Section "Uninstall"
  !insertmacro StopWhileRunning

  !insertmacro TakeFiles
  Delete "$INSTDIR\uninstall.exe"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  Delete "${MENU}\Lodestar Advisor.lnk"
  Delete "${MENU}\User's Guide.lnk"
  RMDir "${MENU}"
  RMDir "${SETTINGS}"
  ; The folder of unsaved edits. It is empty if the program was closed normally.
  RMDir "$LOCALAPPDATA\Lodestar Advisor"

  ; If another program has taken the type since, it stays.
  ReadRegStr $0 HKCU "${CLASSES}\.IDA" ""
  ReadRegStr $1 HKCU "${KEY}" "EarlierClass"
  StrCmp $0 "${CLASS}" 0 type_done
  DeleteRegValue HKCU "${CLASSES}\.IDA" ""
  StrCmp $1 "" type_done
  WriteRegStr HKCU "${CLASSES}\.IDA" "" "$1"
type_done:
  DeleteRegValue HKCU "${CLASSES}\.IDA\OpenWithProgids" "${CLASS}"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.IDA\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "${CLASSES}\.IDA"
  DeleteRegKey HKCU "${CLASSES}\${CLASS}"
  DeleteRegKey HKCU "${KEY}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  !insertmacro TellOfTypes
SectionEnd

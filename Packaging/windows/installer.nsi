; The installer: for the current user, without questions of the system. /S installs or removes silently, /D=FOLDER chooses the folder.
; Defined by `package`: VERSION, STAGE (the files), ICON, OUTPUT.
; A 64-bit program like those that it installs.
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
!include MUI2.nsh
!include FileFunc.nsh

!define NAME "Auto Reframe"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\AutoReframe"

Name "${NAME}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Auto Reframe"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "${NAME} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NAME} installer"
VIAddVersionKey "LegalCopyright" ""

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\auto-reframe.exe"
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; The folders of the package; what else a person has put into $INSTDIR stays.
!macro RemoveFiles
    RMDir /r "$INSTDIR\bin"
    RMDir /r "$INSTDIR\lib"
    RMDir /r "$INSTDIR\share"
    RMDir /r "$INSTDIR\licences"
!macroend

Section "Install"
    SetOutPath "$INSTDIR"
    ; An older version first: none of its files stays.
    !insertmacro RemoveFiles
    File /r "${STAGE}/*.*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\bin\auto-reframe.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${NAME}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\bin\auto-reframe.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    IntFmt $0 "0x%08X" $0
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" "$0"
SectionEnd

Section "Uninstall"
    !insertmacro RemoveFiles
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    ; The folder of all programs of this person, if it is empty.
    RMDir "$LOCALAPPDATA\Programs"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    MessageBox MB_YESNO|MB_ICONQUESTION "Remove your settings, your list of videos and saved analyses too? Your videos are kept." /SD IDYES IDNO keep
    RMDir /r "$LOCALAPPDATA\auto-reframe"
    RMDir /r "$LOCALAPPDATA\cache\auto-reframe"
    RMDir "$LOCALAPPDATA\cache"
keep:
SectionEnd

; The Windows installer: for one user, without administrator rights. Uninstalling leaves settings, backups and the log.
; Given by package.sh: VERSION, STAGE (the program's folder), ICON, OUTPUT.

Unicode true
SetCompressor /SOLID lzma
!include MUI2.nsh

Name "Mirrix"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Mirrix"
InstallDirRegKey HKCU "Software\Mirrix" "InstallDir"
RequestExecutionLevel user
ManifestDPIAware true
BrandingText "Mirrix ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Mirrix"
VIAddVersionKey FileDescription "Mirrix setup"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey LegalCopyright "Mirrix"

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Mirrix"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_LANGDLL_REGISTRY_ROOT HKCU
!define MUI_LANGDLL_REGISTRY_KEY "Software\Mirrix"
!define MUI_LANGDLL_REGISTRY_VALUENAME "SetupLanguage"
!define MUI_FINISHPAGE_RUN "$INSTDIR\Mirrix.exe"

!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "SimpChinese"
!insertmacro MUI_LANGUAGE "TradChinese"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "Japanese"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "Spanish"
!insertmacro MUI_LANGUAGE "PortugueseBR"
!insertmacro MUI_LANGUAGE "Korean"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "Dutch"

Function .onInit
    !insertmacro MUI_LANGDLL_DISPLAY
FunctionEnd

Section
    SetOutPath "$INSTDIR"
    ; What an older version left; the program's own files only.
    RMDir /r "$INSTDIR\platforms"
    RMDir /r "$INSTDIR\styles"
    RMDir /r "$INSTDIR\imageformats"
    RMDir /r "$INSTDIR\translations"
    RMDir /r "$INSTDIR\licences"
    Delete "$INSTDIR\*.dll"
    File /r "${STAGE}\*.*"
    CreateShortcut "$SMPROGRAMS\Mirrix.lnk" "$INSTDIR\Mirrix.exe"
    WriteUninstaller "$INSTDIR\Uninstall.exe"
    WriteRegStr HKCU "Software\Mirrix" "InstallDir" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Mirrix"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\Mirrix.exe"
    WriteRegStr HKCU "${UNINSTALL}" "Publisher" "Mirrix"
    WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section "Uninstall"
    Delete "$SMPROGRAMS\Mirrix.lnk"
    Delete "$INSTDIR\Mirrix.exe"
    Delete "$INSTDIR\mirrix-cli.exe"
    Delete "$INSTDIR\*.dll"
    Delete "$INSTDIR\qt.conf"
    Delete "$INSTDIR\README.md"
    RMDir /r "$INSTDIR\platforms"
    RMDir /r "$INSTDIR\styles"
    RMDir /r "$INSTDIR\imageformats"
    RMDir /r "$INSTDIR\translations"
    RMDir /r "$INSTDIR\licences"
    Delete "$INSTDIR\Uninstall.exe"
    ; Only when empty: the user may keep files here.
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${UNINSTALL}"
    DeleteRegKey HKCU "Software\Mirrix"
SectionEnd

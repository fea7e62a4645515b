; The Windows installer: for one user, without administrator rights. Uninstalling leaves settings, backups and the log.
; Given by package.sh: VERSION, STAGE (the program's folder), SIZE_KIB of it, REMOVAL (lines that
; remove what it holds, folders only when empty), ICON, OUTPUT.

Target amd64-unicode
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

!insertmacro MUI_RESERVEFILE_LANGDLL

LangString IsRunning ${LANG_ENGLISH} "Mirrix is running. Exit it completely (icon in the notification area), then try again."
LangString IsRunning ${LANG_SIMPCHINESE} "Mirrix 正在运行。请先通过托盘图标完整退出，然后重试。"
LangString IsRunning ${LANG_TRADCHINESE} "Mirrix 正在執行。請先透過系統匣圖示完整結束，然後重試。"
LangString IsRunning ${LANG_GERMAN} "Mirrix läuft noch. Bitte beenden Sie es vollständig (Symbol im Infobereich) und versuchen Sie es erneut."
LangString IsRunning ${LANG_JAPANESE} "Mirrix が実行中です。通知領域のアイコンから完全に終了して、もう一度お試しください。"
LangString IsRunning ${LANG_FRENCH} "Mirrix est en cours d’exécution. Quittez-le complètement (icône de la zone de notification), puis réessayez."
LangString IsRunning ${LANG_SPANISH} "Mirrix está en ejecución. Ciérrelo por completo (icono del área de notificación) e inténtelo de nuevo."
LangString IsRunning ${LANG_PORTUGUESEBR} "O Mirrix está em execução. Encerre-o por completo (ícone na área de notificação) e tente novamente."
LangString IsRunning ${LANG_KOREAN} "Mirrix가 실행 중입니다. 알림 영역의 아이콘에서 완전히 종료한 후 다시 시도하십시오."
LangString IsRunning ${LANG_ITALIAN} "Mirrix è in esecuzione. Chiuderlo completamente (icona nell’area di notifica) e riprovare."
LangString IsRunning ${LANG_DUTCH} "Mirrix is actief. Sluit het volledig af (pictogram in het systeemvak) en probeer het opnieuw."

; The program lives on in the notification area when its window is closed, and its files cannot be replaced then.
!macro STOP_WHILE_RUNNING
    again:
        IfFileExists "$INSTDIR\Mirrix.exe" 0 closed
        ClearErrors
        FileOpen $0 "$INSTDIR\Mirrix.exe" a
        IfErrors 0 free
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(IsRunning)" /SD IDCANCEL IDRETRY again
        SetErrorLevel 2
        Quit
    free:
        FileClose $0
    closed:
!macroend

Function .onInit
    !insertmacro MUI_LANGDLL_DISPLAY
FunctionEnd

Function un.onInit
    !insertmacro MUI_UNGETLANGUAGE
FunctionEnd

Section
    !insertmacro STOP_WHILE_RUNNING
    ; An older version removes what it had, and only that: the user may have chosen a folder with other files.
    IfFileExists "$INSTDIR\Uninstall.exe" 0 +2
    ExecWait '"$INSTDIR\Uninstall.exe" /S _?=$INSTDIR'
    SetOutPath "$INSTDIR"
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
    WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" ${SIZE_KIB}
    WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section "Uninstall"
    !insertmacro STOP_WHILE_RUNNING
    Delete "$SMPROGRAMS\Mirrix.lnk"
    !include "${REMOVAL}"
    Delete "$INSTDIR\Uninstall.exe"
    RMDir "$INSTDIR"
    DeleteRegKey HKCU "${UNINSTALL}"
    DeleteRegKey HKCU "Software\Mirrix"
SectionEnd

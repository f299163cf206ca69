; Installs Tarnwick for one user or for everybody. packaging/windows/make-installer says what VERSION, FILES, SIZE
; and OUTPUT are.

Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS all

!define PROGRAM tarnwick.exe
!define UNINSTALLER uninstall.exe
!define SHORTCUT "$SMPROGRAMS\Tarnwick.lnk"
!define UNINSTALL_KEY Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarnwick

; Who is no administrator isn't asked for a password, and installs for himself.
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_MUI
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR Tarnwick
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
; A newer version goes where the one before is.
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY ${UNINSTALL_KEY}
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME UninstallString
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY ${UNINSTALL_KEY}
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME InstallLocation
!define MULTIUSER_INIT_TEXT_ALLUSERSNOTPOSSIBLE $(not_allowed)
!include MultiUser.nsh

!define MUI_ICON "${__FILEDIR__}/tarnwick.ico"
!define MUI_UNICON "${__FILEDIR__}/tarnwick.ico"
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION StartProgram
!define MUI_UNCONFIRMPAGE_TEXT_TOP $(own_files_stay)
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; The system's language chooses; the first one is for all others.
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE SimpChinese

LangString is_running ${LANG_ENGLISH} "Tarnwick is running. Close it, then try again."
LangString is_running ${LANG_SIMPCHINESE} "Tarnwick 正在运行。请先关闭它，然后重试。"
LangString not_allowed ${LANG_ENGLISH} "Only an administrator can install Tarnwick for all users."
LangString not_allowed ${LANG_SIMPCHINESE} "只有管理员才能为所有用户安装 Tarnwick。"
LangString own_files_stay ${LANG_ENGLISH} "Tarnwick will be removed from this folder. Your own files and settings stay."
LangString own_files_stay ${LANG_SIMPCHINESE} "将从以下文件夹中删除 Tarnwick。您自己的文件和设置会保留。"
LangString about ${LANG_ENGLISH} "Send commands to an embedded device and read its replies"
LangString about ${LANG_SIMPCHINESE} "向嵌入式设备发送命令并查看应答"

Name "Tarnwick ${VERSION}"
OutFile "${OUTPUT}"
BrandingText " "
ShowInstDetails nevershow
ShowUninstDetails nevershow
VIProductVersion ${VERSION}.0
VIFileVersion ${VERSION}.0
VIAddVersionKey /LANG=0 ProductName Tarnwick
VIAddVersionKey /LANG=0 ProductVersion ${VERSION}
VIAddVersionKey /LANG=0 FileDescription "Tarnwick Setup"
VIAddVersionKey /LANG=0 FileVersion ${VERSION}
VIAddVersionKey /LANG=0 LegalCopyright "MIT licence"

; The macros add_files and remove_files.
!include "${FILES}"

; A program that runs holds its file.
!macro wait_until_closed un
Function ${un}WaitUntilClosed
    ${IfNot} ${FileExists} "$INSTDIR\${PROGRAM}"
        Return
    ${EndIf}
    again:
    ClearErrors
    FileOpen $0 "$INSTDIR\${PROGRAM}" a
    ${If} ${Errors}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION $(is_running) /SD IDCANCEL IDRETRY again
        Abort
    ${EndIf}
    FileClose $0
FunctionEnd
!macroend
!insertmacro wait_until_closed ""
!insertmacro wait_until_closed un.

; What an earlier version has brought and this one doesn't is gone afterwards.
Function RemoveEarlierVersion
    ReadRegStr $1 SHCTX "${UNINSTALL_KEY}" InstallLocation
    ${If} $1 == ""
    ${OrIfNot} ${FileExists} "$1\${UNINSTALLER}"
        Return
    ${EndIf}
    ; Where it is told its folder, it does its work there, and can be waited for.
    ExecWait '"$1\${UNINSTALLER}" /S /$MultiUser.InstallMode _?=$1' $2
    ${If} $2 <> 0
        Abort $(is_running)
    ${EndIf}
    Delete "$1\${UNINSTALLER}"
    RMDir "$1"
FunctionEnd

; Not as an administrator, as which the installer may run.
Function StartProgram
    Exec '"$WINDIR\explorer.exe" "$INSTDIR\${PROGRAM}"'
FunctionEnd

Function .onInit
    ; A box would wait for ever where nobody sees it.
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 /AllUsers $1
    ${IfNot} ${Errors}
    ${AndIf} ${Silent}
        UserInfo::GetAccountType
        Pop $1
        ${If} $1 != Admin
            SetErrorLevel 5
            Quit
        ${EndIf}
    ${EndIf}
    ; What a user says himself goes before what is known from before.
    StrCpy $3 $INSTDIR
    !insertmacro MULTIUSER_INIT
    ${If} $3 != ""
        StrCpy $INSTDIR $3
    ${EndIf}
FunctionEnd

Function un.onInit
    !insertmacro MULTIUSER_UNINIT
FunctionEnd

Section
    Call WaitUntilClosed
    Call RemoveEarlierVersion
    !insertmacro add_files
    WriteUninstaller "$INSTDIR\${UNINSTALLER}"
    SetOutPath "$INSTDIR"
    CreateShortcut "${SHORTCUT}" "$INSTDIR\${PROGRAM}" "" "" "" SW_SHOWNORMAL "" $(about)

    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayName Tarnwick
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayVersion ${VERSION}
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\${PROGRAM}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" Publisher "The Tarnwick authors"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\${UNINSTALLER}" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" QuietUninstallString \
        '"$INSTDIR\${UNINSTALLER}" /S /$MultiUser.InstallMode'
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" EstimatedSize ${SIZE}
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoModify 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoRepair 1
SectionEnd

; Only what was installed goes: folders with a user's files stay.
Section Uninstall
    Call un.WaitUntilClosed
    Delete "${SHORTCUT}"
    !insertmacro remove_files
    Delete "$INSTDIR\${UNINSTALLER}"
    SetOutPath "$TEMP"
    RMDir "$INSTDIR"
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
SectionEnd

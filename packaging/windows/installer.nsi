; The installer: makensis -DVERSION=2025.0.0 -DFILES=FOLDER -DOUTPUT=FILE installer.nsi
;
; FOLDER holds a picture, welcome.bmp, and two folders: "program" is what every installation replaces, "originals"
; what users may change (lists, templates, the world database). An original is also laid down below Originals, so
; that a later installation, or the removal, can tell a changed file from an unchanged one: changed files stay.
;
; Silent: setup.exe /S [/ZARNVER=0|1] [/D=folder]. It ends with 0 when everything is installed, 2 where an
; argument is wrong or the system is too old, 3 where a program of the folder is running, 4 where a file cannot be
; written. The uninstaller takes /S as well and ends with 3 in the same case.

Target amd64-unicode
ManifestDPIAware true
ManifestSupportedOS Win10
RequestExecutionLevel user
SetCompressor /SOLID lzma

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include WinVer.nsh
!include nsDialogs.nsh

!define SETTINGS "Software\Quernfield\Dobrin's Quernfield"
!define CONFIGURATION "${SETTINGS}\Configuration"
!define INSTALLED "Software\Microsoft\Windows\CurrentVersion\Uninstall\Quernfield"
; Where the program looks for a client as long as no other folder is stored.
!define USUAL_CLIENT "C:\Program Files\Ultima Online"

Name "Quernfield"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Quernfield"
InstallDirRegKey HKCU "${INSTALLED}" "InstallLocation"
BrandingText "Quernfield ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Quernfield"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Quernfield installer"
VIAddVersionKey CompanyName "Tallow Software"
VIAddVersionKey LegalCopyright "Copyright (c) 2025 The Quernfield developers. MIT licence."

Var Generation
Var OptionOld
Var OptionNew

!define MUI_ICON quernfield.ico
!define MUI_UNICON quernfield.ico
!define MUI_WELCOMEFINISHPAGE_BITMAP "${FILES}\welcome.bmp"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\quernfield.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start Quernfield"
!define MUI_FINISHPAGE_SHOWREADME "$INSTDIR\READ-ME-FIRST.txt"
!define MUI_FINISHPAGE_SHOWREADME_TEXT "Show what to do first"
!define MUI_FINISHPAGE_SHOWREADME_NOTCHECKED

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_COMPONENTS
Page custom AskGeneration TakeGeneration
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; What the installer and the uninstaller share; UN is "" in the one and "un." in the other.
!macro SharedFunctions UN

; $0 and $1: two files. $2 becomes 1 where both are there and hold the same bytes, otherwise 0. $3 to $9 are used.
Function ${UN}Compare
    StrCpy $2 0
    ${IfNot} ${FileExists} $0
    ${OrIfNot} ${FileExists} $1
        Return
    ${EndIf}
    StrCpy $7 0
    StrCpy $8 0
    ClearErrors
    FileOpen $3 $0 r
    FileOpen $4 $1 r
    ${IfNot} ${Errors}
        FileSeek $3 0 END $5
        FileSeek $4 0 END $6
        ${If} $5 = $6
            FileSeek $3 0
            FileSeek $4 0
            ; A byte more, so that an empty file has memory too.
            IntOp $9 $5 + 1
            System::Alloc $9
            Pop $7
            System::Alloc $9
            Pop $8
            System::Call 'kernel32::ReadFile(p r3, p r7, i r5, *i .s, p 0)'
            System::Call 'kernel32::ReadFile(p r4, p r8, i r5, *i .s, p 0)'
            Pop $9
            Pop $6
            ${If} $6 = $5
            ${AndIf} $9 = $5
                System::Call 'ntdll::RtlCompareMemory(p r7, p r8, p r5) p .r9'
                ${If} $9 = $5
                    StrCpy $2 1
                ${EndIf}
            ${EndIf}
            System::Free $7
            System::Free $8
        ${EndIf}
    ${EndIf}
    FileClose $3
    FileClose $4
FunctionEnd

; $R0: a folder with its backslash, or nothing. Takes away what an earlier installation laid down there and nobody
; has changed, and the originals with it.
Function ${UN}RemoveUnchanged
    FindFirst $R1 $R2 "$INSTDIR\Originals\$R0*.*"
    ${DoWhile} $R2 != ""
        ${IfNot} ${FileExists} "$INSTDIR\Originals\$R0$R2\*.*"
            StrCpy $0 "$INSTDIR\Originals\$R0$R2"
            StrCpy $1 "$INSTDIR\$R0$R2"
            Call ${UN}Compare
            ${If} $2 = 1
                Delete "$INSTDIR\$R0$R2"
            ${EndIf}
            Delete "$INSTDIR\Originals\$R0$R2"
        ${EndIf}
        FindNext $R1 $R2
    ${Loop}
    FindClose $R1
FunctionEnd

Function ${UN}RemoveAllUnchanged
    StrCpy $R0 ""
    Call ${UN}RemoveUnchanged
    StrCpy $R0 "Templates\"
    Call ${UN}RemoveUnchanged
    StrCpy $R0 "ItemExplorer\"
    Call ${UN}RemoveUnchanged
FunctionEnd

; $R0: a program's file name. A program that runs cannot be opened for writing. Ends the run where it runs on.
Function ${UN}RefuseWhileRunning
    ${Do}
        ${IfNot} ${FileExists} "$INSTDIR\$R0"
            Return
        ${EndIf}
        ClearErrors
        FileOpen $0 "$INSTDIR\$R0" a
        ${IfNot} ${Errors}
            FileClose $0
            Return
        ${EndIf}
        MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$R0 is running. Please close it, then press Retry." \
            /SD IDCANCEL IDRETRY +3
            SetErrorLevel 3
            Quit
    ${Loop}
FunctionEnd

Function ${UN}RefuseWhileAnyRuns
    StrCpy $R0 "quernfield.exe"
    Call ${UN}RefuseWhileRunning
    StrCpy $R0 "quernfield-setup.exe"
    Call ${UN}RefuseWhileRunning
    StrCpy $R0 "quernfield-practice.exe"
    Call ${UN}RefuseWhileRunning
FunctionEnd

!macroend

!insertmacro SharedFunctions ""
!insertmacro SharedFunctions "un."

Function .onInit
    ${IfNot} ${AtLeastWin10}
        MessageBox MB_OK|MB_ICONSTOP "Quernfield needs Windows 10 or newer." /SD IDOK
        SetErrorLevel 2
        Quit
    ${EndIf}
    StrCpy $Generation 1
    ${GetParameters} $R0
    ClearErrors
    ${GetOptions} $R0 "/ZARNVER=" $R1
    ${IfNot} ${Errors}
        ${If} $R1 != "0"
        ${AndIf} $R1 != "1"
            MessageBox MB_OK|MB_ICONSTOP "/ZARNVER takes 0 for 0.70.x or 1 for 0.9x.x." /SD IDOK
            SetErrorLevel 2
            Quit
        ${EndIf}
        StrCpy $Generation $R1
    ${EndIf}
FunctionEnd

Function AskGeneration
    ReadRegStr $0 HKCU "${CONFIGURATION}" "ZarnVer"
    ${If} $0 != ""
        Abort
    ${EndIf}
    !insertmacro MUI_HEADER_TEXT "Server generation" "Which generation of the Zarn server does your shard run?"
    nsDialogs::Create 1018
    Pop $0
    ${NSD_CreateLabel} 0 0 100% 24u "The two generations understand different commands. Quernfield types those of \
        the one that you choose here."
    Pop $0
    ${NSD_CreateFirstRadioButton} 10u 32u 90% 12u "0.&70.x"
    Pop $OptionOld
    ${NSD_CreateAdditionalRadioButton} 10u 48u 90% 12u "0.&9x.x"
    Pop $OptionNew
    ${NSD_CreateLabel} 0 72u 100% 24u "You can change it later in Quernfield's Configuration or with Quernfield Setup."
    Pop $0
    ${If} $Generation = 0
        ${NSD_Check} $OptionOld
    ${Else}
        ${NSD_Check} $OptionNew
    ${EndIf}
    nsDialogs::Show
FunctionEnd

Function TakeGeneration
    ${NSD_GetState} $OptionOld $0
    ${If} $0 = ${BST_CHECKED}
        StrCpy $Generation 0
    ${Else}
        StrCpy $Generation 1
    ${EndIf}
FunctionEnd

; $R0: a folder with its backslash, or nothing. Lays down the originals of files that are not there.
Function PlaceMissing
    CreateDirectory "$INSTDIR\$R0"
    FindFirst $R1 $R2 "$INSTDIR\Originals\$R0*.*"
    ${DoWhile} $R2 != ""
        ${IfNot} ${FileExists} "$INSTDIR\Originals\$R0$R2\*.*"
        ${AndIfNot} ${FileExists} "$INSTDIR\$R0$R2"
            StrCpy $0 "$INSTDIR\Originals\$R0$R2"
            StrCpy $1 "$INSTDIR\$R0$R2"
            System::Call 'kernel32::CopyFileW(w r0, w r1, i 1) i .r2'
            ${If} $2 = 0
                MessageBox MB_OK|MB_ICONSTOP "$1 cannot be written." /SD IDOK
                SetErrorLevel 4
                Abort
            ${EndIf}
        ${EndIf}
        FindNext $R1 $R2
    ${Loop}
    FindClose $R1
FunctionEnd

; Only what the store does not hold: an update changes no setting.
Function SeedSettings
    ReadRegStr $0 HKCU "${CONFIGURATION}" "UOPath"
    ${If} $0 == ""
    ${AndIfNot} ${FileExists} "${USUAL_CLIENT}\art.mul"
        WriteRegStr HKCU "${CONFIGURATION}" "UOPath" "$INSTDIR\PracticeArt\"
    ${EndIf}
    ReadRegStr $0 HKCU "${CONFIGURATION}" "ZarnVer"
    ${If} $0 == ""
        WriteRegStr HKCU "${CONFIGURATION}" "ZarnVer" $Generation
    ${EndIf}
FunctionEnd

Section "Quernfield (required)" SectionProgram
    SectionIn RO
    Call RefuseWhileAnyRuns
    Call RemoveAllUnchanged

    SetOutPath $INSTDIR
    SetOverwrite try
    ClearErrors
    File /r "${FILES}\program\*"
    SetOutPath "$INSTDIR\Originals"
    File /r "${FILES}\originals\*"
    SetOutPath $INSTDIR
    WriteUninstaller "$INSTDIR\uninstall.exe"
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONSTOP "Some files cannot be written to $INSTDIR." /SD IDOK
        SetErrorLevel 4
        Abort
    ${EndIf}
    StrCpy $R0 ""
    Call PlaceMissing
    StrCpy $R0 "Templates\"
    Call PlaceMissing
    StrCpy $R0 "ItemExplorer\"
    Call PlaceMissing

    Call SeedSettings

    CreateDirectory "$SMPROGRAMS\Quernfield"
    CreateShortcut "$SMPROGRAMS\Quernfield\Quernfield.lnk" "$INSTDIR\quernfield.exe"
    CreateShortcut "$SMPROGRAMS\Quernfield\Quernfield Setup.lnk" "$INSTDIR\quernfield-setup.exe"
    CreateShortcut "$SMPROGRAMS\Quernfield\Practice client.lnk" "$INSTDIR\quernfield-practice.exe"
    CreateShortcut "$SMPROGRAMS\Quernfield\Uninstall Quernfield.lnk" "$INSTDIR\uninstall.exe"

    WriteRegStr HKCU "${INSTALLED}" "DisplayName" "Quernfield"
    WriteRegStr HKCU "${INSTALLED}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${INSTALLED}" "DisplayIcon" "$INSTDIR\quernfield.exe"
    WriteRegStr HKCU "${INSTALLED}" "Publisher" "Tallow Software"
    WriteRegStr HKCU "${INSTALLED}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${INSTALLED}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${INSTALLED}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${INSTALLED}" "NoModify" 1
    WriteRegDWORD HKCU "${INSTALLED}" "NoRepair" 1
    SectionGetSize ${SectionProgram} $0
    WriteRegDWORD HKCU "${INSTALLED}" "EstimatedSize" $0
SectionEnd

Section /o "Link on the desktop"
    CreateShortcut "$DESKTOP\Quernfield.lnk" "$INSTDIR\quernfield.exe"
SectionEnd

Function un.onInit
    Call un.RefuseWhileAnyRuns
FunctionEnd

; The explorer keeps pictures of its categories, and makes them again where they are not there.
Function un.RemoveExplorerPictures
    FindFirst $R1 $R2 "$INSTDIR\ItemExplorer\*.*"
    ${DoWhile} $R2 != ""
        ${If} $R2 != "."
        ${AndIf} $R2 != ".."
        ${AndIf} ${FileExists} "$INSTDIR\ItemExplorer\$R2\*.*"
            Delete "$INSTDIR\ItemExplorer\$R2\item_*.bmp"
            RMDir "$INSTDIR\ItemExplorer\$R2"
        ${EndIf}
        FindNext $R1 $R2
    ${Loop}
    FindClose $R1
FunctionEnd

Section Uninstall
    SetOutPath $TEMP
    Call un.RemoveAllUnchanged
    Call un.RemoveExplorerPictures
    ${IfNot} ${FileExists} "$INSTDIR\qf.mdb"
        ; What a run that was cut off leaves beside the database.
        Delete "$INSTDIR\qf.mdb-wal"
        Delete "$INSTDIR\qf.mdb-shm"
    ${EndIf}
    RMDir "$INSTDIR\Originals\Templates"
    RMDir "$INSTDIR\Originals\ItemExplorer"
    RMDir "$INSTDIR\Originals"
    RMDir "$INSTDIR\Templates"
    RMDir "$INSTDIR\ItemExplorer"

    Delete "$INSTDIR\quernfield.exe"
    Delete "$INSTDIR\quernfield-setup.exe"
    Delete "$INSTDIR\quernfield-practice.exe"
    Delete "$INSTDIR\PracticeArt\art.mul"
    Delete "$INSTDIR\PracticeArt\artidx.mul"
    Delete "$INSTDIR\PracticeArt\hues.mul"
    RMDir "$INSTDIR\PracticeArt"
    Delete "$INSTDIR\Licences\*.txt"
    RMDir "$INSTDIR\Licences"
    Delete "$INSTDIR\LICENSE.txt"
    Delete "$INSTDIR\READ-ME-FIRST.txt"
    Delete "$INSTDIR\uninstall.exe"

    Delete "$SMPROGRAMS\Quernfield\Quernfield.lnk"
    Delete "$SMPROGRAMS\Quernfield\Quernfield Setup.lnk"
    Delete "$SMPROGRAMS\Quernfield\Practice client.lnk"
    Delete "$SMPROGRAMS\Quernfield\Uninstall Quernfield.lnk"
    RMDir "$SMPROGRAMS\Quernfield"
    Delete "$DESKTOP\Quernfield.lnk"
    DeleteRegKey HKCU "${INSTALLED}"

    ; A folder that is gone is no client folder.
    ReadRegStr $0 HKCU "${CONFIGURATION}" "UOPath"
    ${If} $0 == "$INSTDIR\PracticeArt\"
        DeleteRegValue HKCU "${CONFIGURATION}" "UOPath"
    ${EndIf}
    MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 "Remove your settings too: the server generation, the folders, \
        the calibration and your own commands?" /SD IDNO IDNO +3
        DeleteRegKey HKCU "${SETTINGS}"
        DeleteRegKey /ifempty HKCU "Software\Quernfield"

    RMDir $INSTDIR
    ${If} ${FileExists} "$INSTDIR\*.*"
        MessageBox MB_OK|MB_ICONINFORMATION "Files of your own, and files that you changed, stay in $INSTDIR." /SD IDOK
    ${EndIf}
SectionEnd

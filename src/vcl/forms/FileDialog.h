#pragma once

#include <vector>

#include "vcl/classes/StringList.h"
#include "vcl/controls/WinControl.h"

namespace vcl
{

enum class TOpenOption {
    ofReadOnly,
    ofOverwritePrompt,
    ofHideReadOnly,
    ofNoChangeDir,
    ofShowHelp,
    ofNoValidate,
    ofAllowMultiSelect,
    ofExtensionDifferent,
    ofPathMustExist,
    ofFileMustExist,
    ofCreatePrompt,
    ofShareAware,
    ofNoReadOnlyReturn,
    ofNoTestFileCreate,
    ofNoNetworkButton,
    ofNoLongNames,
    ofOldStyleDialog,
    ofNoDereferenceLinks,
    ofEnableIncludeNotify,
    ofEnableSizing,
};
using TOpenOptions = TSet<TOpenOption>;
template <>
struct TypeTraits<TOpenOption> {
    static const TTypeInfo& Info();
    static constexpr const char* SetName = "TOpenOptions";
};

enum class TOpenOptionEx { ofExNoPlacesBar };
using TOpenOptionsEx = TSet<TOpenOptionEx>;
template <>
struct TypeTraits<TOpenOptionEx> {
    static const TTypeInfo& Info();
    static constexpr const char* SetName = "TOpenOptionsEx";
};

/// CanClose false: the dialog opens again.
using TCanCloseEvent = TEvent<void(TObject* Sender, bool& CanClose)>;

/// The platform's dialog to choose a file to open.
///
///     if (OpenDialog->Execute())
///         Open(OpenDialog->GetFileName());
class TOpenDialog : public TComponent
{
    VCL_CLASS
public:
    explicit TOpenDialog(TComponent* Owner);

    /// Kept for form files, as are HelpContext and OptionsEx.
    bool GetCtl3D() const { return FCtl3D; }
    void SetCtl3D(bool Value) { FCtl3D = Value; }
    int GetHelpContext() const { return FHelpContext; }
    void SetHelpContext(int Value) { FHelpContext = Value; }
    TOpenOptionsEx GetOptionsEx() const { return FOptionsEx; }
    void SetOptionsEx(TOpenOptionsEx Value) { FOptionsEx = Value; }
    /// Added to a name that is typed without extension; without the dot.
    const AnsiString& GetDefaultExt() const { return FDefaultExt; }
    void SetDefaultExt(const AnsiString& Value) { FDefaultExt = Value; }
    /// Proposed, and after Execute chosen; the first of several.
    const AnsiString& GetFileName() const { return FFileName; }
    void SetFileName(const AnsiString& Value) { FFileName = Value; }
    /// "Calendars|*.ics|All files|*"
    const AnsiString& GetFilter() const { return FFilter; }
    void SetFilter(const AnsiString& Value) { FFilter = Value; }
    /// From 1.
    int GetFilterIndex() const { return FFilterIndex; }
    void SetFilterIndex(int Value) { FFilterIndex = Value; }
    const AnsiString& GetInitialDir() const { return FInitialDir; }
    void SetInitialDir(const AnsiString& Value) { FInitialDir = Value; }
    TOpenOptions GetOptions() const { return FOptions; }
    void SetOptions(TOpenOptions Value) { FOptions = Value; }
    const AnsiString& GetTitle() const { return FTitle; }
    void SetTitle(const AnsiString& Value) { FTitle = Value; }

    /// Every file chosen.
    const TStringList& GetFiles() const { return FFiles; }
    /// Shows the dialog over Parent (null: over the program). False when it was cancelled.
    bool Execute(TWinControl* Parent = nullptr);

    /// For TAliveGuard.
    const TLiveness& GetLiveness() const { return FLiveness; }

    /// After a choice, with FileName, Files and FilterIndex set to it.
    TCanCloseEvent OnCanClose;
    TNotifyEvent OnClose;
    TNotifyEvent OnShow;

protected:
    virtual bool IsSaving() const { return false; }

private:
    bool Choose(IWindow* Window);

    TLiveness FLiveness;
    AnsiString FDefaultExt;
    AnsiString FFileName;
    AnsiString FFilter;
    AnsiString FInitialDir;
    AnsiString FTitle;
    TStringList FFiles;
    int FFilterIndex = 1;
    int FHelpContext = 0;
    TOpenOptionsEx FOptionsEx;
    bool FCtl3D = true;
    TOpenOptions FOptions{TOpenOption::ofHideReadOnly, TOpenOption::ofEnableSizing};
};

/// The platform's dialog to choose the name a file is saved under.
class TSaveDialog : public TOpenDialog
{
    VCL_CLASS
public:
    using TOpenDialog::TOpenDialog;

protected:
    bool IsSaving() const override { return true; }
};

} // namespace vcl

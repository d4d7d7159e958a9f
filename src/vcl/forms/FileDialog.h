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

/// The platform's dialog to choose a file to open.
///
///     if (OpenDialog->Execute())
///         Open(OpenDialog->GetFileName());
class TOpenDialog : public TComponent
{
    VCL_CLASS
public:
    explicit TOpenDialog(TComponent* Owner);

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

    TNotifyEvent OnClose;
    TNotifyEvent OnShow;

protected:
    virtual bool IsSaving() const { return false; }

private:
    AnsiString FDefaultExt;
    AnsiString FFileName;
    AnsiString FFilter;
    AnsiString FInitialDir;
    AnsiString FTitle;
    TStringList FFiles;
    int FFilterIndex = 1;
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

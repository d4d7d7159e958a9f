#include "vcl/forms/FileDialog.h"

#include "vcl/platform/Platform.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TOpenOption>::Info()
{
    static const TTypeInfo Type = EnumerationType(
        "TOpenOption",
        {"ofReadOnly",         "ofOverwritePrompt",    "ofHideReadOnly",        "ofNoChangeDir",
         "ofShowHelp",         "ofNoValidate",         "ofAllowMultiSelect",    "ofExtensionDifferent",
         "ofPathMustExist",    "ofFileMustExist",      "ofCreatePrompt",        "ofShareAware",
         "ofNoReadOnlyReturn", "ofNoTestFileCreate",   "ofNoNetworkButton",     "ofNoLongNames",
         "ofOldStyleDialog",   "ofNoDereferenceLinks", "ofEnableIncludeNotify", "ofEnableSizing"});
    return Type;
}

const TTypeInfo& TypeTraits<TOpenOptionEx>::Info()
{
    static const TTypeInfo Type = EnumerationType("TOpenOptionEx", {"ofExNoPlacesBar"});
    return Type;
}

const TClass& TOpenDialog::StaticClass()
{
    static const TClass Class = DefineClass<TOpenDialog, TComponent>(
        "TOpenDialog",
        {
            Published<&TOpenDialog::GetCtl3D, &TOpenDialog::SetCtl3D>("Ctl3D").Default(true),
            Published<&TOpenDialog::GetHelpContext, &TOpenDialog::SetHelpContext>("HelpContext").Default(0),
            Published<&TOpenDialog::OnClose>("OnClose"),
            Published<&TOpenDialog::OnShow>("OnShow"),
            Published<&TOpenDialog::GetDefaultExt, &TOpenDialog::SetDefaultExt>("DefaultExt"),
            Published<&TOpenDialog::GetFileName, &TOpenDialog::SetFileName>("FileName"),
            Published<&TOpenDialog::GetFilter, &TOpenDialog::SetFilter>("Filter"),
            Published<&TOpenDialog::GetFilterIndex, &TOpenDialog::SetFilterIndex>("FilterIndex").Default(1),
            Published<&TOpenDialog::GetInitialDir, &TOpenDialog::SetInitialDir>("InitialDir"),
            Published<&TOpenDialog::GetOptions, &TOpenDialog::SetOptions>("Options").Default(
                TOpenOptions{TOpenOption::ofHideReadOnly, TOpenOption::ofEnableSizing}),
            Published<&TOpenDialog::GetOptionsEx, &TOpenDialog::SetOptionsEx>("OptionsEx")
                .Default(TOpenOptionsEx()),
            Published<&TOpenDialog::GetTitle, &TOpenDialog::SetTitle>("Title"),
            Published<&TOpenDialog::OnCanClose>("OnCanClose"),
        });
    return Class;
}

const TClass& TSaveDialog::StaticClass()
{
    static const TClass Class = DefineClass<TSaveDialog, TOpenDialog>("TSaveDialog");
    return Class;
}

TOpenDialog::TOpenDialog(TComponent* Owner) : TComponent(Owner)
{
}

bool TOpenDialog::Choose(IWindow* Window)
{
    TFileDialogSpec Spec;
    Spec.Save = IsSaving();
    Spec.Title = FTitle;
    Spec.InitialDir = FInitialDir;
    Spec.FileName = FFileName;
    Spec.Filter = FFilter;
    Spec.FilterIndex = FFilterIndex;
    Spec.DefaultExt = FDefaultExt;
    Spec.AllowMultiSelect = FOptions.Contains(TOpenOption::ofAllowMultiSelect);
    Spec.FileMustExist = FOptions.Contains(TOpenOption::ofFileMustExist);
    Spec.OverwritePrompt = FOptions.Contains(TOpenOption::ofOverwritePrompt);
    std::vector<AnsiString> Chosen;
    TAliveGuard Guard(*this);
    const bool HasChosen = Platform().Windows().Dialogs().ChooseFile(Spec, Chosen, Window) && !Chosen.empty();
    if (!HasChosen || !Guard.IsAlive())
        return false;
    FFilterIndex = Spec.FilterIndex;
    FFileName = Chosen.front();
    FFiles.Clear();
    for (const AnsiString& File : Chosen)
        FFiles.Add(File);
    return true;
}

bool TOpenDialog::Execute(TWinControl* Parent)
{
    TAliveGuard Guard(*this);
    const TWeak<TWinControl> Over = Parent;
    OnShow(this);
    bool HasChosen = false;
    bool CanClose = true;
    do {
        if (!Guard.IsAlive())
            return false;
        CanClose = true;
        HasChosen = Choose(Over.Get() ? Over.Get()->GetWindow() : nullptr);
        if (HasChosen)
            OnCanClose(this, CanClose);
    } while (!CanClose);
    if (Guard.IsAlive())
        OnClose(this);
    return HasChosen;
}

} // namespace vcl

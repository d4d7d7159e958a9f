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

const TClass& TOpenDialog::StaticClass()
{
    static const TClass Class = DefineClass<TOpenDialog, TComponent>(
        "TOpenDialog",
        {
            Published<&TOpenDialog::GetDefaultExt, &TOpenDialog::SetDefaultExt>("DefaultExt"),
            Published<&TOpenDialog::GetFileName, &TOpenDialog::SetFileName>("FileName"),
            Published<&TOpenDialog::GetFilter, &TOpenDialog::SetFilter>("Filter"),
            Published<&TOpenDialog::GetFilterIndex, &TOpenDialog::SetFilterIndex>("FilterIndex").Default(1),
            Published<&TOpenDialog::GetInitialDir, &TOpenDialog::SetInitialDir>("InitialDir"),
            Published<&TOpenDialog::GetOptions, &TOpenDialog::SetOptions>("Options").Default(
                TOpenOptions{TOpenOption::ofHideReadOnly, TOpenOption::ofEnableSizing}),
            Published<&TOpenDialog::GetTitle, &TOpenDialog::SetTitle>("Title"),
            Published<&TOpenDialog::OnClose>("OnClose"),
            Published<&TOpenDialog::OnShow>("OnShow"),
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

bool TOpenDialog::Execute(TWinControl* Parent)
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
    OnShow(this);
    std::vector<AnsiString> Chosen;
    IWindow* const Window = Parent ? Parent->GetWindow() : nullptr;
    const bool HasChosen = Platform().Windows().Dialogs().ChooseFile(Spec, Chosen, Window) && !Chosen.empty();
    if (HasChosen) {
        FFilterIndex = Spec.FilterIndex;
        FFileName = Chosen.front();
        FFiles.Clear();
        for (const AnsiString& File : Chosen)
            FFiles.Add(File);
    }
    OnClose(this);
    return HasChosen;
}

} // namespace vcl

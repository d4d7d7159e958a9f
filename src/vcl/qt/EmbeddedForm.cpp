#include "vcl/qt/EmbeddedForm.h"

#include <QWidget>

namespace vcl
{

const TClass& TEmbeddedForm::StaticClass()
{
    static const TClass Class = [] {
        TClass Internal = DefineClass<TEmbeddedForm, TCustomForm>("TEmbeddedForm");
        Internal.Create = nullptr;
        return Internal;
    }();
    return Class;
}

TEmbeddedForm::TEmbeddedForm(QWidget& Outside) : TCustomForm(nullptr), FOutside(Outside)
{
}

void TEmbeddedForm::CreateParams(TCreateParams& Params)
{
    TCustomForm::CreateParams(Params);
    Params.Kind = TWindowKind::Client;
    Params.Style = WS_CHILD | WS_CLIPCHILDREN;
    Params.ExStyle = WS_EX_CONTROLPARENT;
    Params.ForeignParent = &FOutside;
}

void TEmbeddedForm::AlignControls(TControl*)
{
    // The control fills its place without being given an Align, which it would keep and store.
    const TRect Client = GetClientRect();
    for (int Index = 0; Index < GetControlCount(); ++Index)
        GetControl(Index)->SetBounds(0, 0, Client.Width(), Client.Height());
}

void TEmbeddedForm::Enter(TWinControl* Control)
{
    if (Control)
        Control->SetFocus();
    else
        SetFocus();
}

void TEmbeddedForm::EnterFirst()
{
    Enter(FindNextControl(nullptr, true, true, false));
}

void TEmbeddedForm::EnterLast()
{
    Enter(FindNextControl(nullptr, false, true, false));
}

void TEmbeddedForm::EnterAgain()
{
    TWinControl* const Active = GetActiveControl();
    if (Active && Active->CanFocus())
        Enter(Active);
    else
        EnterFirst();
}

} // namespace vcl

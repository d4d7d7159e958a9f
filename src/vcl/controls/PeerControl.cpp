#include "vcl/controls/PeerControl.h"

namespace vcl
{

const TClass& TPeerControl::StaticClass()
{
    static const TClass Class = [] {
        TClass Abstract = DefineClass<TPeerControl, TWinControl>("TPeerControl");
        Abstract.Create = nullptr;
        return Abstract;
    }();
    return Class;
}

TPeerControl::TPeerControl(TComponent* Owner, TWindowKind Kind, TSize Size) : TWinControl(Owner), FKind(Kind)
{
    FWidth = Size.Width;
    FHeight = Size.Height;
}

void TPeerControl::CreateParams(TCreateParams& Params)
{
    TWinControl::CreateParams(Params);
    Params.Kind = FKind;
}

void TPeerControl::CreateWnd()
{
    TAliveGuard Guard(*this);
    TWinControl::CreateWnd();
    if (!Guard.IsAlive() || !HandleAllocated())
        return;
    ApplyState();
    AdjustSize();
}

bool TPeerControl::CanAutoSize(int& NewWidth, int& NewHeight)
{
    if (!Peer())
        return false;
    const TSize Wanted = Peer()->GetPreferredSize();
    if (Wanted.Width <= 0 || Wanted.Height <= 0)
        return false;
    NewWidth = Wanted.Width;
    NewHeight = Wanted.Height;
    return true;
}

void TPeerControl::Loaded()
{
    TWinControl::Loaded();
    AdjustSize();
}

void TPeerControl::CMTextChanged(TMessage& Message)
{
    if (FTakingText)
        return;
    TAliveGuard Guard(*this);
    TWinControl::CMTextChanged(Message);
    if (Guard.IsAlive())
        AdjustSize();
}

void TPeerControl::CMFontChanged(TMessage& Message)
{
    TAliveGuard Guard(*this);
    TWinControl::CMFontChanged(Message);
    if (Guard.IsAlive())
        AdjustSize();
}

void TPeerControl::CMCtl3DChanged(TMessage& Message)
{
    TAliveGuard Guard(*this);
    TWinControl::CMCtl3DChanged(Message);
    // The frame is part of the window's style.
    if (Guard.IsAlive())
        RecreateWnd();
}

void TPeerControl::TakeText(const AnsiString& Text)
{
    FTakingText = true;
    SetText(Text);
    FTakingText = false;
}

} // namespace vcl

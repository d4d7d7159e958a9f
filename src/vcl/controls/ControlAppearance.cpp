// Colour, font, hints, reading direction: what a control has of its own or follows its parent in.

#include "vcl/controls/Control.h"
#include "vcl/controls/MouseTracker.h"
#include "vcl/controls/WinControl.h"
#include "vcl/graphics/TextLayout.h"

namespace vcl
{

void TControl::SetColor(TColor Value)
{
    if (Value == FColor)
        return;
    FColor = Value;
    FParentColor = false;
    Perform(CM_COLORCHANGED);
}

void TControl::FontObjectChanged()
{
    FParentFont = false;
    FontChanged();
}

void TControl::FontChanged()
{
    Perform(CM_FONTCHANGED);
}

void TControl::SetBiDiMode(TBiDiMode Value)
{
    if (Value == FBiDiMode)
        return;
    FBiDiMode = Value;
    FParentBiDiMode = false;
    Perform(CM_BIDIMODECHANGED);
}

void TControl::SetShowHint(bool Value)
{
    if (Value == FShowHint)
        return;
    FShowHint = Value;
    FParentShowHint = false;
    Perform(CM_SHOWHINTCHANGED);
}

void TControl::FollowParent(bool& Field, bool Value, unsigned Msg)
{
    if (Value == Field)
        return;
    Field = Value;
    if (FParent)
        Perform(Msg);
}

void TControl::SetParentColor(bool Value)
{
    FollowParent(FParentColor, Value, CM_PARENTCOLORCHANGED);
}

void TControl::SetParentFont(bool Value)
{
    FollowParent(FParentFont, Value, CM_PARENTFONTCHANGED);
}

void TControl::SetParentShowHint(bool Value)
{
    FollowParent(FParentShowHint, Value, CM_PARENTSHOWHINTCHANGED);
}

void TControl::SetParentBiDiMode(bool Value)
{
    FollowParent(FParentBiDiMode, Value, CM_PARENTBIDIMODECHANGED);
}

void TControl::TakeFromParent(unsigned Msg)
{
    if (!FParent)
        return;
    // The setters take a value for the control's own; it stays the parent's.
    TAliveGuard Guard(*this);
    bool* Follows = nullptr;
    if (Msg == CM_PARENTCOLORCHANGED && FParentColor) {
        Follows = &FParentColor;
        SetColor(FParent->GetColor());
    } else if (Msg == CM_PARENTFONTCHANGED && FParentFont) {
        Follows = &FParentFont;
        if (!FFont->IsEqual(*FParent->GetFont()))
            SetFont(FParent->GetFont());
    } else if (Msg == CM_PARENTSHOWHINTCHANGED && FParentShowHint) {
        Follows = &FParentShowHint;
        SetShowHint(FParent->GetShowHint());
    } else if (Msg == CM_PARENTBIDIMODECHANGED && FParentBiDiMode) {
        Follows = &FParentBiDiMode;
        SetBiDiMode(FParent->GetBiDiMode());
    }
    if (Follows && Guard.IsAlive())
        *Follows = true;
}

void TControl::SetText(const AnsiString& Value)
{
    if (Value == GetText())
        return;
    FText = Value;
    Perform(CM_TEXTCHANGED);
}

void TControl::SetEnabled(bool Value)
{
    if (Value == FEnabled)
        return;
    FEnabled = Value;
    Perform(CM_ENABLEDCHANGED);
}

void TControl::SetVisible(bool Value)
{
    if (Value == FVisible)
        return;
    TAliveGuard Guard(*this);
    VisibleChanging();
    if (!Guard.IsAlive())
        return;
    FVisible = Value;
    Perform(CM_VISIBLECHANGED, Value ? 1 : 0);
    if (Guard.IsAlive())
        RequestAlign();
}

void TControl::SetCursor(TCursor Value)
{
    if (Value == FCursor)
        return;
    FCursor = Value;
    Perform(CM_CURSORCHANGED);
    MouseTracker().UpdateCursor();
}

void TControl::SetPopupMenu(TPopupMenuBase* Value)
{
    FPopupMenu = Value;
    if (Value)
        FreeNotification(Value);
}

unsigned TControl::DrawTextBiDiModeFlags(unsigned Flags) const
{
    if (UseRightToLeftAlignment()) {
        if ((Flags & DT_RIGHT) == DT_RIGHT)
            Flags &= ~DT_RIGHT;
        else if ((Flags & DT_CENTER) != DT_CENTER)
            Flags |= DT_RIGHT;
    }
    return Flags | DrawTextBiDiModeFlagsReadingOnly();
}

unsigned TControl::DrawTextBiDiModeFlagsReadingOnly() const
{
    return UseRightToLeftReading() ? DT_RTLREADING : 0;
}

void TControl::SetZOrder(bool TopMost)
{
    if (FParent)
        FParent->ReorderChild(*this, TopMost);
}

void TControl::InvalidateControl(bool IsVisible, bool)
{
    if (IsVisible && FParent)
        FParent->ChildInvalidated(GetBoundsRect());
}

void TControl::Invalidate()
{
    InvalidateControl(FVisible, FControlStyle.Contains(TControlStyleFlag::csOpaque));
}

void TControl::Update()
{
    if (FParent)
        FParent->Update();
}

void TControl::Repaint()
{
    Invalidate();
    Update();
}

void TControl::CMFontChanged(TMessage&)
{
    Invalidate();
}

void TControl::CMColorChanged(TMessage&)
{
    ColorChanged();
    Invalidate();
}

void TControl::CMEnabledChanged(TMessage&)
{
    Invalidate();
}

void TControl::CMVisibleChanged(TMessage&)
{
    InvalidateControl(true, false);
}

void TControl::CMTextChanged(TMessage&)
{
    Invalidate();
}

void TControl::CMBiDiModeChanged(TMessage&)
{
    Invalidate();
}

} // namespace vcl

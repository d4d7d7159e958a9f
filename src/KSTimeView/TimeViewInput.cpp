// Mouse, keyboard and timers.

#include "KSTimeView/TimeView.h"
#include "vcl/platform/VirtualKeys.h"

using timeview::TScrollRequest;

namespace
{

constexpr std::uint64_t AutoScrollTimer = 1;
constexpr std::uint64_t EditTimer = 2;
constexpr unsigned EditDelay = 500;

} // namespace

TKSTimeViewItem* TKSTimeView::ItemAt(int X, int Y) const
{
    const TKSTimeviewDay* const Day = GetOverDay(X, Y);
    return Day ? Day->GetItemAt(X, Y) : nullptr;
}

void TKSTimeView::MouseDown(vcl::TMouseButton Button, vcl::TShiftState Shift, int X, int Y)
{
    const vcl::TAliveGuard Guard(*this);
    KillTimer(EditTimer);
    if (CanFocus() && !Focused())
        SetFocus();
    if (Guard.IsAlive())
        TCustomControl::MouseDown(Button, Shift, X, Y);
    if (!Guard.IsAlive() || Button != vcl::TMouseButton::mbLeft)
        return;
    TKSTimeViewItem* const Item = ItemAt(X, Y);
    if (TKSTimeviewDay* const Day = Item ? GetOverDay(X, Y) : nullptr)
        FPressedDate = Day->GetDate();
    const bool IsSecondPress = Shift.Contains(vcl::TShiftKey::ssDouble);
    Apply(timeview::PressStep(Item, FOptions.Contains(TKSTVOption::tvoItemsSelection)));
    // The second press of a double click is told of as such, and its release is no click.
    if (!IsSecondPress)
        return;
    FPress = timeview::TIdle{};
    if (Item)
        OnItemDblClick(this, Item);
}

void TKSTimeView::MouseUp(vcl::TMouseButton Button, vcl::TShiftState Shift, int X, int Y)
{
    const vcl::TAliveGuard Guard(*this);
    TCustomControl::MouseUp(Button, Shift, X, Y);
    if (Guard.IsAlive() && Button == vcl::TMouseButton::mbLeft)
        Apply(timeview::ReleaseStep(FPress, ItemAt(X, Y)));
}

/// The event comes last: its handler may free the view.
void TKSTimeView::Apply(const timeview::TPressStep& Step)
{
    FPress = Step.Next;
    if (Step.Select)
        SetSelectedItem(Step.Selection);
    if (Step.Clicked)
        OnItemClick(this, Step.Clicked);
}

void TKSTimeView::WMGetDlgCode(vcl::TMessage& Message)
{
    Message.Result = vcl::DLGC_WANTARROWS;
}

void TKSTimeView::KeyDown(std::uint16_t& Key, vcl::TShiftState Shift)
{
    const vcl::TAliveGuard Guard(*this);
    TCustomControl::KeyDown(Key, Shift);
    if (!Guard.IsAlive() || !Shift.IsEmpty())
        return;
    switch (Key) {
    case vcl::VK_UP:
        Scroll(TScrollRequest::LineUp);
        break;
    case vcl::VK_DOWN:
        Scroll(TScrollRequest::LineDown);
        break;
    case vcl::VK_PRIOR:
        Scroll(TScrollRequest::PageUp);
        break;
    case vcl::VK_NEXT:
        Scroll(TScrollRequest::PageDown);
        break;
    case vcl::VK_HOME:
        Scroll(TScrollRequest::Top);
        break;
    case vcl::VK_END:
        Scroll(TScrollRequest::End);
        break;
    default:
        return;
    }
    Key = 0;
}

void TKSTimeView::WMTimer(vcl::TMessage& Message)
{
    if (Message.WParam == AutoScrollTimer)
        AutoScrollTick();
    else if (Message.WParam == EditTimer)
        EditDelayOver();
    else
        TCustomControl::WMTimer(Message);
}

void TKSTimeView::StartEditDelay()
{
    SetTimer(EditTimer, EditDelay);
}

/// The day the selected item was pressed on while it still appears there, else its first one.
TKSTimeviewDay* TKSTimeView::DayOfSelectedItem() const
{
    if (FPressedDate >= 0 && FSelectedItem->AppearsOnDay(FPressedDate))
        if (TKSTimeviewDay* const Day = GetDayFromDate(FPressedDate))
            return Day;
    return FSelectedItem->GetFirstAppearingDay();
}

void TKSTimeView::EditDelayOver()
{
    KillTimer(EditTimer);
    if (FSelectedItem && timeview::MayEditAfterDelay(FOperations))
        EditItem(FSelectedItem, DayOfSelectedItem());
}

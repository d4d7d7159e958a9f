#include "vcl/platform/record/RecordPeers.h"

#include <algorithm>
#include <climits>

#include "vcl/platform/Platform.h"
#include "vcl/platform/VirtualKeys.h"
#include "vcl/platform/record/RecordWindow.h"
#include "vcl/platform/record/Utf8Text.h"

namespace vcl::record
{

int TEdit::Length() const
{
    return static_cast<int>(CodePointsOf(FWindow.GetText()).size());
}

void TEdit::SetSelection(int Start, int Count)
{
    FStart = std::clamp(Start, 0, Length());
    FLength = Count < 0 ? Length() - FStart : std::min(Count, Length() - FStart);
}

void TEdit::TextReplaced()
{
    FStart = 0;
    FLength = 0;
    FModified = false;
}

void TEdit::Change(int Start, int Count, const AnsiString& Text)
{
    std::vector<char32_t> All = CodePointsOf(FWindow.GetText());
    std::vector<char32_t> New = CodePointsOf(Text);
    const std::size_t Rest = All.size() - static_cast<std::size_t>(Count);
    const std::size_t Limit = static_cast<std::size_t>(FMaxLength);
    if (FMaxLength > 0 && Rest + New.size() > Limit)
        New.resize(Limit > Rest ? Limit - Rest : 0);
    All.erase(All.begin() + Start, All.begin() + Start + Count);
    All.insert(All.begin() + Start, New.begin(), New.end());
    FStart = Start + static_cast<int>(New.size());
    FLength = 0;
    FModified = true;
    FWindow.SetOwnText(TextOf(All));
    FWindow.Notice(TPeerNotice::TextChanged);
}

void TEdit::ReplaceSelection(const AnsiString& Text)
{
    Change(FStart, FLength, Text);
}

void TEdit::Char(char32_t Char)
{
    if (FReadOnly)
        return;
    if (Char == VK_BACK) {
        if (FLength > 0)
            Change(FStart, FLength, {});
        else if (FStart > 0)
            Change(FStart - 1, 1, {});
    } else if (Char >= ' ')
        Change(FStart, FLength, TextOf({Char}));
}

void TEdit::Key(std::uint16_t Key)
{
    switch (Key) {
    case VK_LEFT:
        return SetSelection(std::max(FStart - 1, 0), 0);
    case VK_RIGHT:
        return SetSelection(FStart + FLength + 1, 0);
    case VK_HOME:
        return SetSelection(0, 0);
    case VK_END:
        return SetSelection(Length(), 0);
    case VK_DELETE:
        if (!FReadOnly && (FLength > 0 || FStart < Length()))
            Change(FStart, std::max(FLength, 1), {});
        return;
    default:
        return;
    }
}

void TEdit::Press(TPoint Point)
{
    std::vector<int> Extents;
    Platform().Text().Extents(FWindow.GetFont(), FWindow.GetText(), Extents);
    int Place = 0;
    int Before = 0;
    // The caret stands between characters: past the middle of one it goes behind it.
    for (const int After : Extents) {
        if (Point.X < (Before + After) / 2)
            break;
        ++Place;
        Before = After;
    }
    SetSelection(Place, 0);
}

void TButton::Click()
{
    if (FToggles) {
        if (FState == TCheckState::Unchecked)
            FState = FTriState ? TCheckState::Grayed : TCheckState::Checked;
        else
            FState = FState == TCheckState::Grayed ? TCheckState::Checked : TCheckState::Unchecked;
    }
    FWindow.Notice(TPeerNotice::Clicked);
}

int TSpin::Limited(std::int64_t Value) const
{
    const bool IsFree = FMin == 0 && FMax == 0;
    return static_cast<int>(
        std::clamp<std::int64_t>(Value, IsFree ? INT_MIN : FMin, IsFree ? INT_MAX : std::max(FMin, FMax)));
}

void TSpin::SetRange(int Min, int Max)
{
    FMin = Min;
    FMax = Max;
    SetValue(FValue);
}

void TSpin::SetValue(int Value)
{
    FValue = Limited(Value);
    FWindow.SetOwnText(std::to_string(FValue));
}

void TSpin::Step(int Steps)
{
    const int Before = FValue;
    SetValue(Limited(std::int64_t{FValue} + std::int64_t{Steps} * FIncrement));
    if (FValue == Before)
        return;
    FWindow.Notice(TPeerNotice::ValueChanged);
}

void TList::SetItems(std::span<const AnsiString> Items)
{
    FItems.assign(Items.begin(), Items.end());
    FSelected.clear();
    FItemIndex = -1;
    FTopIndex = 0;
}

void TList::InsertItem(int Index, const AnsiString& Text)
{
    if (Index < 0 || Index > static_cast<int>(FItems.size()))
        return;
    FItems.insert(FItems.begin() + Index, Text);
    std::set<int> Moved;
    for (const int Selected : FSelected)
        Moved.insert(Selected >= Index ? Selected + 1 : Selected);
    FSelected = std::move(Moved);
    if (FItemIndex >= Index)
        ++FItemIndex;
}

void TList::DeleteItem(int Index)
{
    if (!Has(Index))
        return;
    FItems.erase(FItems.begin() + Index);
    std::set<int> Moved;
    for (const int Selected : FSelected)
        if (Selected != Index)
            Moved.insert(Selected > Index ? Selected - 1 : Selected);
    FSelected = std::move(Moved);
    if (FItemIndex == Index)
        FItemIndex = -1;
    else if (FItemIndex > Index)
        --FItemIndex;
}

void TList::SetItemText(int Index, const AnsiString& Text)
{
    if (Has(Index))
        FItems[static_cast<std::size_t>(Index)] = Text;
}

void TList::SetItemIndex(int Index)
{
    FItemIndex = Has(Index) ? Index : -1;
    FSelected.clear();
    if (FItemIndex >= 0)
        FSelected.insert(FItemIndex);
    if (FIsComboBox)
        FWindow.SetOwnText(Has(Index) ? FItems[static_cast<std::size_t>(Index)] : AnsiString());
}

void TList::SetSelected(int Index, bool Selected)
{
    if (!Has(Index))
        return;
    if (Selected)
        FSelected.insert(Index);
    else
        FSelected.erase(Index);
}

int TList::ItemAt(TPoint Point) const
{
    const int Index = Point.Y < 0 ? -1 : FTopIndex + Point.Y / FItemHeight;
    return Has(Index) ? Index : -1;
}

TRect TList::ItemRect(int Index) const
{
    return Has(Index)
               ? Bounds(0, (Index - FTopIndex) * FItemHeight, FWindow.GetClientSize().Width, FItemHeight)
               : TRect{};
}

void TList::SetDroppedDown(bool DroppedDown)
{
    if (DroppedDown == FDroppedDown)
        return;
    FDroppedDown = DroppedDown;
    FWindow.Notice(DroppedDown ? TPeerNotice::DropDown : TPeerNotice::CloseUp);
}

void TList::Choose(int Index)
{
    if (!Has(Index))
        return;
    SetItemIndex(Index);
    FWindow.Notice(TPeerNotice::ItemSelected, Index);
}

void TList::Activate()
{
    if (FItemIndex >= 0)
        FWindow.Notice(TPeerNotice::ItemActivated, FItemIndex);
}

void TList::Key(std::uint16_t Key)
{
    if (Key == VK_DOWN)
        Choose(FItemIndex + 1);
    else if (Key == VK_UP)
        Choose(FItemIndex - 1);
    else if (Key == VK_HOME)
        Choose(0);
    else if (Key == VK_END)
        Choose(static_cast<int>(FItems.size()) - 1);
    else if (Key == VK_RETURN)
        Activate();
}

void TListView::SetColumns(std::span<const TListColumnSpec> Columns)
{
    FColumns.assign(Columns.begin(), Columns.end());
}

int TListView::GetColumnWidth(int Column) const
{
    const bool Exists = Column >= 0 && Column < static_cast<int>(FColumns.size());
    return Exists ? FColumns[static_cast<std::size_t>(Column)].Width : 0;
}

void TListView::InsertRow(int Index, std::span<const AnsiString> Cells)
{
    if (Index < 0 || Index > static_cast<int>(FRows.size()))
        return;
    TRow New;
    New.Cells.assign(Cells.begin(), Cells.end());
    FRows.insert(FRows.begin() + Index, std::move(New));
    if (FFocused >= Index)
        ++FFocused;
}

void TListView::SetRow(int Index, std::span<const AnsiString> Cells)
{
    if (TRow* const Found = Row(Index))
        Found->Cells.assign(Cells.begin(), Cells.end());
}

void TListView::DeleteRow(int Index)
{
    if (!Has(Index))
        return;
    FRows.erase(FRows.begin() + Index);
    if (FFocused == Index)
        FFocused = -1;
    else if (FFocused > Index)
        --FFocused;
}

void TListView::Clear()
{
    FRows.clear();
    FFocused = -1;
    FShown = -1;
}

void TListView::SetRowGlyph(int Index, const TPixelBuffer& Glyph)
{
    if (TRow* const Found = Row(Index))
        Found->Glyph = {Glyph.Width, Glyph.Height};
}

void TListView::SetChecked(int Index, bool Checked)
{
    if (TRow* const Found = Row(Index))
        Found->Checked = Checked;
}

bool TListView::IsChecked(int Index) const
{
    return Has(Index) && FRows[static_cast<std::size_t>(Index)].Checked;
}

void TListView::SetSelected(int Index, bool Selected)
{
    if (Selected && !FMultiSelect)
        for (TRow& Each : FRows)
            Each.Selected = false;
    if (TRow* const Found = Row(Index))
        Found->Selected = Selected;
}

bool TListView::IsSelected(int Index) const
{
    return Has(Index) && FRows[static_cast<std::size_t>(Index)].Selected;
}

int TListView::RowAt(TPoint Point) const
{
    constexpr int RowHeight = 17;
    const int Top = FShowHeader && FStyle == TListViewStyle::Report ? RowHeight : 0;
    const int Index = Point.Y < Top ? -1 : (Point.Y - Top) / RowHeight;
    return Has(Index) ? Index : -1;
}

void TListView::Choose(int Index)
{
    if (!Has(Index))
        return;
    for (TRow& Each : FRows)
        Each.Selected = false;
    FRows[static_cast<std::size_t>(Index)].Selected = true;
    FFocused = Index;
    FWindow.Notice(TPeerNotice::ItemSelected, Index);
}

void TListView::Activate()
{
    if (FFocused >= 0)
        FWindow.Notice(TPeerNotice::ItemActivated, FFocused);
}

void TListView::Key(std::uint16_t Key)
{
    if (Key == VK_DOWN)
        Choose(FFocused + 1);
    else if (Key == VK_UP)
        Choose(FFocused - 1);
    else if (Key == VK_RETURN)
        Activate();
}

} // namespace vcl::record

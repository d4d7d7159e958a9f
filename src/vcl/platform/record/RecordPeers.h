#pragma once

#include <set>
#include <vector>

#include "vcl/platform/Peers.h"
#include "vcl/system/Types.h"

namespace vcl::record
{

class TWindow;

/// Peers without pixels: they hold what they were given, and change as a user's input would have it. Tests
/// read the fields.
class TEdit final : public IEditPeer
{
public:
    explicit TEdit(TWindow& Window) : FWindow(Window) {}

    void SetSelection(int Start, int Length) override;
    int GetSelStart() const override { return FStart; }
    int GetSelLength() const override { return FLength; }
    void ReplaceSelection(const AnsiString& Text) override;
    void SetReadOnly(bool ReadOnly) override { FReadOnly = ReadOnly; }
    void SetMaxLength(int Length) override { FMaxLength = Length; }
    void SetPasswordChar(char32_t Char) override { FPasswordChar = Char; }
    void SetAlignment(TTextAlign Alignment) override { FAlignment = Alignment; }
    bool IsModified() const override { return FModified; }
    void SetModified(bool Modified) override { FModified = Modified; }

    bool IsReadOnly() const { return FReadOnly; }
    int GetMaxLength() const { return FMaxLength; }
    char32_t GetPasswordChar() const { return FPasswordChar; }
    TTextAlign GetAlignment() const { return FAlignment; }

    /// The whole text was set by the program.
    void TextReplaced();
    void Key(std::uint16_t Key);
    void Char(char32_t Char);
    /// A press at a client point puts the caret there.
    void Press(TPoint Point);

private:
    int Length() const;
    void Change(int Start, int Count, const AnsiString& Text);

    TWindow& FWindow;
    int FStart = 0;
    int FLength = 0;
    int FMaxLength = 0;
    char32_t FPasswordChar = 0;
    TTextAlign FAlignment = TTextAlign::Left;
    bool FReadOnly = false;
    bool FModified = false;
};

class TButton final : public IButtonPeer
{
public:
    TButton(TWindow& Window, bool IsCheckBox) : FWindow(Window), FToggles(IsCheckBox) {}

    void SetCheckState(TCheckState State) override { FState = State; }
    TCheckState GetCheckState() const override { return FState; }
    void SetTriState(bool Allow) override { FTriState = Allow; }
    void SetDefault(bool Default) override { FDefault = Default; }
    void SetCheckable(bool Checkable) override { FToggles = Checkable; }
    void SetFlat(bool Flat) override { FFlat = Flat; }
    void SetGlyph(const TPixelBuffer& Glyph) override { FGlyph = {Glyph.Width, Glyph.Height}; }
    void SetArrow(int Direction) override { FArrow = Direction; }

    bool IsDefault() const { return FDefault; }
    bool IsFlat() const { return FFlat; }
    TSize GetGlyphSize() const { return FGlyph; }
    int GetArrow() const { return FArrow; }

    /// What a full click does.
    void Click();

private:
    TWindow& FWindow;
    TCheckState FState = TCheckState::Unchecked;
    TSize FGlyph;
    int FArrow = -1;
    bool FTriState = false;
    bool FDefault = false;
    bool FToggles = false;
    bool FFlat = false;
};

class TLabel final : public ILabelPeer
{
public:
    void SetAlignment(TTextAlign Alignment) override { FAlignment = Alignment; }
    void SetWordWrap(bool Wrap) override { FWordWrap = Wrap; }
    void SetOpaque(bool Opaque) override { FOpaque = Opaque; }
    void SetShowAccelerator(bool Show) override { FShowAccelerator = Show; }

    TTextAlign GetAlignment() const { return FAlignment; }
    bool IsWordWrap() const { return FWordWrap; }
    bool IsOpaque() const { return FOpaque; }
    bool ShowsAccelerator() const { return FShowAccelerator; }

private:
    TTextAlign FAlignment = TTextAlign::Left;
    bool FWordWrap = false;
    bool FOpaque = true;
    bool FShowAccelerator = true;
};

class TSpin final : public ISpinPeer
{
public:
    explicit TSpin(TWindow& Window) : FWindow(Window) {}

    void SetRange(int Min, int Max) override;
    void SetIncrement(int Increment) override { FIncrement = Increment; }
    void SetValue(int Value) override;
    int GetValue() const override { return FValue; }
    /// The user presses an arrow: Steps up, or down when negative.
    void Step(int Steps);

private:
    int Limited(std::int64_t Value) const;

    TWindow& FWindow;
    int FMin = 0;
    int FMax = 0;
    int FIncrement = 1;
    int FValue = 0;
};

class TList final : public IListPeer
{
public:
    TList(TWindow& Window, bool IsComboBox) : FWindow(Window), FIsComboBox(IsComboBox) {}

    void SetItems(std::span<const AnsiString> Items) override;
    void InsertItem(int Index, const AnsiString& Text) override;
    void DeleteItem(int Index) override;
    void SetItemText(int Index, const AnsiString& Text) override;
    void SetItemIndex(int Index) override;
    int GetItemIndex() const override { return FItemIndex; }
    void SetSelected(int Index, bool Selected) override;
    bool IsSelected(int Index) const override { return FSelected.count(Index) != 0; }
    void SetTopIndex(int Index) override { FTopIndex = Index; }
    int GetTopIndex() const override { return FTopIndex; }
    int ItemAt(TPoint Point) const override;
    TRect ItemRect(int Index) const override;
    void SetItemHeight(int Height) override { FItemHeight = Height; }
    void SetDroppedDown(bool DroppedDown) override;
    bool IsDroppedDown() const override { return FDroppedDown; }
    void SetDropDownCount(int Count) override { FDropDownCount = Count; }

    const std::vector<AnsiString>& GetItems() const { return FItems; }
    int GetDropDownCount() const { return FDropDownCount; }
    int GetItemHeight() const { return FItemHeight; }

    /// The user chooses an item, with the mouse or the keyboard.
    void Choose(int Index);
    void Activate();
    void Key(std::uint16_t Key);

private:
    bool Has(int Index) const { return Index >= 0 && Index < static_cast<int>(FItems.size()); }

    TWindow& FWindow;
    std::vector<AnsiString> FItems;
    std::set<int> FSelected;
    int FItemIndex = -1;
    int FTopIndex = 0;
    int FItemHeight = 16;
    int FDropDownCount = 8;
    bool FIsComboBox;
    bool FDroppedDown = false;
};

class TListView final : public IListViewPeer
{
public:
    struct TRow {
        std::vector<AnsiString> Cells;
        TSize Glyph;
        bool Checked = false;
        bool Selected = false;
    };

    explicit TListView(TWindow& Window) : FWindow(Window) {}

    void SetViewStyle(TListViewStyle Style) override { FStyle = Style; }
    void SetColumns(std::span<const TListColumnSpec> Columns) override;
    void SetShowHeader(bool Show) override { FShowHeader = Show; }
    int GetColumnWidth(int Column) const override;
    void InsertRow(int Index, std::span<const AnsiString> Cells) override;
    void SetRow(int Index, std::span<const AnsiString> Cells) override;
    void DeleteRow(int Index) override;
    void Clear() override;
    void SetRowGlyph(int Index, const TPixelBuffer& Glyph) override;
    void SetCheckBoxes(bool Show) override { FCheckBoxes = Show; }
    void SetChecked(int Index, bool Checked) override;
    bool IsChecked(int Index) const override;
    void SetMultiSelect(bool Multi) override { FMultiSelect = Multi; }
    void SetRowSelect(bool WholeRow) override { FRowSelect = WholeRow; }
    void SetSelected(int Index, bool Selected) override;
    bool IsSelected(int Index) const override;
    void SetFocusedRow(int Index) override { FFocused = Index; }
    int GetFocusedRow() const override { return FFocused; }
    void ScrollIntoView(int Index) override { FShown = Index; }
    int RowAt(TPoint Point) const override;

    const std::vector<TRow>& GetRows() const { return FRows; }
    const std::vector<TListColumnSpec>& GetColumns() const { return FColumns; }
    TListViewStyle GetViewStyle() const { return FStyle; }
    bool ShowsHeader() const { return FShowHeader; }
    bool ShowsCheckBoxes() const { return FCheckBoxes; }
    bool IsMultiSelect() const { return FMultiSelect; }
    bool IsRowSelect() const { return FRowSelect; }
    /// The row last asked to be scrolled into view, or -1.
    int GetShownRow() const { return FShown; }

    void Choose(int Index);
    void Activate();
    void Key(std::uint16_t Key);

private:
    bool Has(int Index) const { return Index >= 0 && Index < static_cast<int>(FRows.size()); }
    TRow* Row(int Index) { return Has(Index) ? &FRows[static_cast<std::size_t>(Index)] : nullptr; }

    TWindow& FWindow;
    std::vector<TRow> FRows;
    std::vector<TListColumnSpec> FColumns;
    TListViewStyle FStyle = TListViewStyle::Report;
    int FFocused = -1;
    int FShown = -1;
    bool FShowHeader = true;
    bool FCheckBoxes = false;
    bool FMultiSelect = false;
    bool FRowSelect = false;
};

class TStatusBar final : public IStatusBarPeer
{
public:
    void SetSimple(bool Simple, const AnsiString& SimpleText) override
    {
        FSimple = Simple;
        FSimpleText = SimpleText;
    }
    void SetPanels(std::span<const TStatusPanelSpec> Panels) override
    {
        FPanels.assign(Panels.begin(), Panels.end());
    }
    void SetSizeGrip(bool Show) override { FSizeGrip = Show; }

    bool IsSimple() const { return FSimple; }
    const AnsiString& GetSimpleText() const { return FSimpleText; }
    const std::vector<TStatusPanelSpec>& GetPanels() const { return FPanels; }
    bool HasSizeGrip() const { return FSizeGrip; }

private:
    std::vector<TStatusPanelSpec> FPanels;
    AnsiString FSimpleText;
    bool FSimple = false;
    bool FSizeGrip = true;
};

} // namespace vcl::record

#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "vcl/platform/TextEngine.h"
#include "vcl/system/AnsiString.h"

namespace vcl
{

/// What a native peer tells its control with CN_COMMAND (WParam); a change the control made itself through
/// one of the interfaces below is not told.
enum class TPeerNotice : unsigned {
    Clicked,       // button, check box (its state has changed already), tool button
    TextChanged,   // edit, spin edit, editable combo box
    ValueChanged,  // spin edit
    ItemSelected,  // list, combo box, list view: LParam the index or -1
    ItemActivated, // list, list view: double click or Return; LParam the index
    DropDown,      // combo box: the list opens
    CloseUp,       // combo box
    ColumnClicked, // list view: LParam the column
    PanelClicked,  // status bar: LParam the panel
};

enum class TTextAlign { Left, Right, Center };

/// Edit, spin edit and editable combo box. Positions count code points.
class IEditPeer
{
public:
    virtual void SetSelection(int Start, int Length) = 0;
    virtual int GetSelStart() const = 0;
    virtual int GetSelLength() const = 0;
    /// Puts Text in the place of the selection, as typing would (TextChanged is told).
    virtual void ReplaceSelection(const AnsiString& Text) = 0;
    virtual void SetReadOnly(bool ReadOnly) = 0;
    /// Code points that can be typed; 0: no limit.
    virtual void SetMaxLength(int Length) = 0;
    /// The code point shown instead of the text; 0: the text.
    virtual void SetPasswordChar(char32_t Char) = 0;
    virtual void SetAlignment(TTextAlign Alignment) = 0;
    virtual bool IsModified() const = 0;
    virtual void SetModified(bool Modified) = 0;

protected:
    ~IEditPeer() = default;
};

enum class TCheckState { Unchecked, Checked, Grayed };

/// Push button, tool button and check box.
class IButtonPeer
{
public:
    virtual void SetCheckState(TCheckState State) = 0;
    virtual TCheckState GetCheckState() const = 0;
    /// A click goes from unchecked over grayed to checked instead of straight.
    virtual void SetTriState(bool Allow) = 0;
    /// The button looks and acts as the one Return presses.
    virtual void SetDefault(bool Default) = 0;
    /// Tool button: a click toggles and it stays down.
    virtual void SetCheckable(bool Checkable) = 0;
    /// Tool button: no edge until the pointer is over it.
    virtual void SetFlat(bool Flat) = 0;
    /// 0xAARRGGBB pixels; an empty buffer removes the picture.
    virtual void SetGlyph(const TPixelBuffer& Glyph) = 0;
    /// The shape of a drop-down arrow beside or instead of the caption.
    virtual void SetArrow(int /*-1 none, 0 left, 1 up, 2 right, 3 down*/ Direction) = 0;

protected:
    ~IButtonPeer() = default;
};

class ILabelPeer
{
public:
    virtual void SetAlignment(TTextAlign Alignment) = 0;
    virtual void SetWordWrap(bool Wrap) = 0;
    /// False: the background stays the parent's.
    virtual void SetOpaque(bool Opaque) = 0;
    /// "&" marks the access key instead of being shown.
    virtual void SetShowAccelerator(bool Show) = 0;

protected:
    ~ILabelPeer() = default;
};

class ISpinPeer
{
public:
    /// Min = Max = 0: unlimited.
    virtual void SetRange(int Min, int Max) = 0;
    virtual void SetIncrement(int Increment) = 0;
    virtual void SetValue(int Value) = 0;
    virtual int GetValue() const = 0;

protected:
    ~ISpinPeer() = default;
};

/// List box and combo box. Indices out of range are ignored.
class IListPeer
{
public:
    virtual void SetItems(std::span<const AnsiString> Items) = 0;
    virtual void InsertItem(int Index, const AnsiString& Text) = 0;
    virtual void DeleteItem(int Index) = 0;
    virtual void SetItemText(int Index, const AnsiString& Text) = 0;
    /// -1: none.
    virtual void SetItemIndex(int Index) = 0;
    virtual int GetItemIndex() const = 0;
    virtual void SetSelected(int Index, bool Selected) = 0;
    virtual bool IsSelected(int Index) const = 0;
    virtual void SetTopIndex(int Index) = 0;
    virtual int GetTopIndex() const = 0;
    /// Index under a client point, or -1.
    virtual int ItemAt(TPoint Point) const = 0;
    virtual TRect ItemRect(int Index) const = 0;
    virtual void SetItemHeight(int Height) = 0;
    virtual void SetDroppedDown(bool DroppedDown) = 0;
    virtual bool IsDroppedDown() const = 0;
    virtual void SetDropDownCount(int Count) = 0;

protected:
    ~IListPeer() = default;
};

struct TListColumnSpec {
    AnsiString Caption;
    int Width = 50;
    TTextAlign Alignment = TTextAlign::Left;
    bool operator==(const TListColumnSpec&) const = default;
};

enum class TListViewStyle { Icon, SmallIcon, List, Report };

class IListViewPeer
{
public:
    virtual void SetViewStyle(TListViewStyle Style) = 0;
    virtual void SetColumns(std::span<const TListColumnSpec> Columns) = 0;
    virtual void SetShowHeader(bool Show) = 0;
    virtual int GetColumnWidth(int Column) const = 0;
    /// Cells: the caption first, then the sub-items.
    virtual void InsertRow(int Index, std::span<const AnsiString> Cells) = 0;
    virtual void SetRow(int Index, std::span<const AnsiString> Cells) = 0;
    virtual void DeleteRow(int Index) = 0;
    virtual void Clear() = 0;
    virtual void SetRowGlyph(int Index, const TPixelBuffer& Glyph) = 0;
    virtual void SetCheckBoxes(bool Show) = 0;
    virtual void SetChecked(int Index, bool Checked) = 0;
    virtual bool IsChecked(int Index) const = 0;
    virtual void SetMultiSelect(bool Multi) = 0;
    virtual void SetRowSelect(bool WholeRow) = 0;
    virtual void SetSelected(int Index, bool Selected) = 0;
    virtual bool IsSelected(int Index) const = 0;
    /// The row with the focus mark, or -1.
    virtual void SetFocusedRow(int Index) = 0;
    virtual int GetFocusedRow() const = 0;
    virtual void ScrollIntoView(int Index) = 0;
    virtual int RowAt(TPoint Point) const = 0;

protected:
    ~IListViewPeer() = default;
};

struct TStatusPanelSpec {
    AnsiString Text;
    /// The last panel takes what is left.
    int Width = 50;
    TTextAlign Alignment = TTextAlign::Left;
    /// 0 flat, 1 lowered, 2 raised.
    int Bevel = 1;
    bool operator==(const TStatusPanelSpec&) const = default;
};

class IStatusBarPeer
{
public:
    /// Shows SimpleText alone instead of the panels.
    virtual void SetSimple(bool Simple, const AnsiString& SimpleText) = 0;
    virtual void SetPanels(std::span<const TStatusPanelSpec> Panels) = 0;
    virtual void SetSizeGrip(bool Show) = 0;

protected:
    ~IStatusBarPeer() = default;
};

} // namespace vcl

#pragma once

#include <memory>

#include "vcl/classes/StringList.h"
#include "vcl/system/Object.h"

namespace vcl
{

class TListView;

/// A row of a list view: its caption, then the texts of the further columns.
class TListItem : public TObject
{
    VCL_CLASS
public:
    explicit TListItem(TListView* ListView);
    ~TListItem() override;

    const AnsiString& GetCaption() const { return FCaption; }
    void SetCaption(const AnsiString& Value);
    bool GetChecked() const;
    void SetChecked(bool Value);
    void* GetData() const { return FData; }
    void SetData(void* Value) { FData = Value; }
    /// The row; -1 after it was taken out.
    int GetIndex() const;
    bool GetSelected() const;
    void SetSelected(bool Value);
    /// Text of the second column and those after it.
    TStringList* GetSubItems() { return &FSubItems; }
    void Delete();

    /// Caption and sub-items, as the platform takes a row.
    std::vector<AnsiString> Cells() const;

private:
    friend class TListView;

    TListView* FListView;
    int FPlace = -1; // where the list view last found the row
    AnsiString FCaption;
    TStringList FSubItems;
    void* FData = nullptr;
    bool FChecked = false;
    bool FSelected = false;
};

} // namespace vcl
